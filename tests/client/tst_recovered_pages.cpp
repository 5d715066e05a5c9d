#include "client/PageTabs.h"
#include "client/RecoveredPages.h"
#include "platform/SystemLibrary/QRecoverSubWndBase.h"
#include "platform/SystemLibrary/QSystem.h"

#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

/// Leaves a record behind, as pages do: only while the program ends.
class RecoveringPage : public QWidget
{
public:
    int m_iWindowNumber = -1;
    int m_iAsked = 0;

protected:
    void customEvent(QEvent* event) override
    {
        const auto* const pRecover = dynamic_cast<LXRecoverEvent*>(event);
        if (pRecover == nullptr || pRecover->GetMessageNumber() != 106 ||
            QSystem::GetInstance()->GetState() != 4 || pRecover->GetResultSlot() == nullptr) {
            return;
        }
        ++m_iAsked;
        m_iWindowNumber = pRecover->GetWindowNumber();
        *pRecover->GetResultSlot() =
            std::make_unique<QRecoverSubWndBase>(m_iWindowNumber, 12, QByteArray("page"), !isHidden());
    }
};

} // namespace

class TestRecoveredPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_widget = std::make_unique<QTabWidget>();
        m_tabs = std::make_unique<PageTabs>(*m_widget, *new QWidget);
        for (const char* szKey : {"a", "b", "c"}) {
            m_pages[QLatin1String(szKey)] = new RecoveringPage;
            m_tabs->Show(m_pages[QLatin1String(szKey)], QLatin1String(szKey), QLatin1String(szKey));
        }
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
        QSystem::GetInstance()->SetState(QSystem::StateClosing);
    }
    void cleanup()
    {
        QSystem::GetInstance()->SetState(QSystem::StateStarting);
        m_tabs.reset();
        m_widget.reset();
        m_pages.clear();
    }

    void thePageInFrontComesLast()
    {
        m_widget->setCurrentIndex(2);
        QCOMPARE(RecoveredPages::Ask(*m_tabs),
                 (QStringList{QStringLiteral("a"), QStringLiteral("c"), QStringLiteral("b")}));
        // Each has a window number of its own.
        QSet<int> numbers;
        for (const RecoveringPage* pPage : qAsConst(m_pages)) {
            numbers.insert(pPage->m_iWindowNumber);
        }
        QCOMPARE(numbers.size(), 3);
    }
    void pagesBehindTheHomePageComeToo()
    {
        m_widget->setCurrentIndex(0);
        QCOMPARE(RecoveredPages::Ask(*m_tabs).size(), 3);
    }
    void aClosedTabIsNotAsked()
    {
        RecoveringPage* const pClosed = m_pages[QStringLiteral("b")];
        m_tabs->Hide(pClosed);
        QVERIFY(!RecoveredPages::Ask(*m_tabs).contains(QStringLiteral("b")));
        QCOMPARE(pClosed->m_iAsked, 0);
    }
    void aPageThatGivesNoRecordStaysClosed()
    {
        m_tabs->Show(new QWidget, QStringLiteral("silent"), QStringLiteral("Silent"));
        QVERIFY(!RecoveredPages::Ask(*m_tabs).contains(QStringLiteral("silent")));
    }
    void whileTheProgramRunsNobodyAnswers()
    {
        QSystem::GetInstance()->SetState(QSystem::StateRunning);
        QCOMPARE(RecoveredPages::Ask(*m_tabs), QStringList());
    }

private:
    std::unique_ptr<QTabWidget> m_widget;
    std::unique_ptr<PageTabs> m_tabs;
    QMap<QString, RecoveringPage*> m_pages;
};

QTEST_MAIN(TestRecoveredPages)
#include "tst_recovered_pages.moc"
