#include "TellingPage.h"

#include "client/PageTabs.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

class TestPageTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_widget = std::make_unique<QTabWidget>();
        m_home = new QWidget;
        m_tabs = std::make_unique<PageTabs>(*m_widget, *m_home);
        m_page = new TellingPage;
        m_tabs->Show(m_page, QStringLiteral("key"), QStringLiteral("Doors & gates"));
    }
    void cleanup()
    {
        m_tabs.reset();
        m_widget.reset();
    }

    void theHomePageIsNoPage()
    {
        QVERIFY(m_tabs->At(0) == nullptr && m_tabs->At(-1) == nullptr && m_tabs->At(2) == nullptr);
        QCOMPARE(m_tabs->At(1), m_page);
        QCOMPARE(m_tabs->Current(), m_page);
        m_widget->setCurrentIndex(0);
        QVERIFY(m_tabs->Current() == nullptr);
        QVERIFY(m_widget->tabBar()->tabButton(0, QTabBar::RightSide) == nullptr);
    }
    void aTabIsNamedAsTheModuleSays()
    {
        QCOMPARE(m_widget->tabText(1), QStringLiteral("Doors && gates"));
        QCOMPARE(PageTabs::Title(m_page), QStringLiteral("Doors & gates"));
        QCOMPARE(PageTabs::Key(m_page), QStringLiteral("key"));
        QVERIFY(PageTabs::Key(m_home).isEmpty() && PageTabs::Key(nullptr).isEmpty());
    }
    void aModifiedPageIsMarkedUntilItIsNot()
    {
        QSignalSpy changed(m_tabs.get(), &PageTabs::SignalModifiedChanged);
        QVERIFY(m_tabs->Modified().isEmpty());
        m_page->Edit(QStringLiteral("x"));
        QVERIFY(m_widget->tabText(1) != QStringLiteral("Doors && gates"));
        QVERIFY(m_widget->tabText(1).contains(QStringLiteral("Doors && gates")));
        QVERIFY(!m_widget->tabToolTip(1).isEmpty());
        QCOMPARE(m_tabs->Modified().size(), 1);
        m_page->Undo();
        QCOMPARE(m_widget->tabText(1), QStringLiteral("Doors && gates"));
        QVERIFY(m_widget->tabToolTip(1).isEmpty());
        QVERIFY(m_tabs->Modified().isEmpty());
        QCOMPARE(changed.count(), 2);
    }
    void theMarkIsSaidInWords()
    {
        QAccessibleInterface* const pBar = QAccessible::queryAccessibleInterface(m_widget->tabBar());
        const auto name = [pBar] {
            const QAccessibleInterface* const pTab = pBar == nullptr ? nullptr : pBar->child(1);
            return pTab == nullptr ? QString() : pTab->text(QAccessible::Name);
        };
        const QString strBefore = name();
        QVERIFY2(strBefore.contains(QStringLiteral("Doors & gates")), qPrintable(strBefore));
        m_page->Edit(QStringLiteral("x"));
        QVERIFY2(name().contains(QStringLiteral("Doors & gates")) && name() != strBefore, qPrintable(name()));
        QVERIFY(!name().contains(QChar(0x25cf)));
        m_page->Undo();
        QCOMPARE(name(), strBefore);
    }
    void aHiddenPageStaysAndComesBackMarked()
    {
        m_page->Edit(QStringLiteral("x"));
        m_tabs->Hide(m_page);
        QCOMPARE(m_widget->count(), 1);
        QVERIFY(m_page->isHidden());
        QVERIFY(m_tabs->Open().isEmpty());
        QCOMPARE(m_tabs->Modified().size(), 1);
        QSignalSpy added(m_tabs.get(), &PageTabs::SignalAdded);
        m_tabs->Show(m_page, QStringLiteral("key"), QStringLiteral("Doors & gates"));
        QCOMPARE(added.count(), 0);
        QVERIFY(m_widget->tabText(1).startsWith(QChar(0x25cf)));
    }
    void aPageModifiedWhileItIsHiddenIsNoticed()
    {
        m_tabs->Hide(m_page);
        QSignalSpy changed(m_tabs.get(), &PageTabs::SignalModifiedChanged);
        m_page->Edit(QStringLiteral("x"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_widget->count(), 1);
    }
    void aDiscardedPageIsAnnouncedWhileItStands()
    {
        const QPointer<QWidget> page(m_page);
        bool bStood = false;
        connect(m_tabs.get(), &PageTabs::SignalDiscarding, page.data(),
                [this, pStood = &bStood](QWidget* pPage) {
                    *pStood = pPage == m_page && m_page->Text().isEmpty();
                });
        m_tabs->Discard(m_page);
        QVERIFY(bStood && page.isNull());
        QCOMPARE(m_widget->count(), 1);
    }
    void destroyingAllTakesHiddenOnesAndAnnouncesNothing()
    {
        const QPointer<QWidget> first(m_page);
        const QPointer<QWidget> second(new TellingPage);
        m_tabs->Show(second, QStringLiteral("other"), QStringLiteral("Other"));
        m_tabs->Hide(m_page);
        QCOMPARE(m_tabs->All().size(), 2);
        QSignalSpy discarding(m_tabs.get(), &PageTabs::SignalDiscarding);
        QSignalSpy current(m_tabs.get(), &PageTabs::SignalCurrentChanged);
        m_tabs->DestroyAll();
        m_tabs->DestroyAll();
        QVERIFY(first.isNull() && second.isNull());
        QCOMPARE(discarding.count() + current.count(), 0);
    }
    void aPageThatGoesByItselfIsNoTrouble()
    {
        m_page->Edit(QStringLiteral("x"));
        delete m_page;
        QVERIFY(m_tabs->All().isEmpty() && m_tabs->Open().isEmpty() && m_tabs->Modified().isEmpty());
        QCOMPARE(m_widget->count(), 1);
    }

private:
    std::unique_ptr<QTabWidget> m_widget;
    std::unique_ptr<PageTabs> m_tabs;
    QWidget* m_home = nullptr;
    TellingPage* m_page = nullptr;
};

QTEST_MAIN(TestPageTabs)
#include "tst_page_tabs.moc"
