#include "TellingPage.h"

#include "client/EditActions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>

class TestEditActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QMainWindow>();
        QMenu* const pMenu = m_window->menuBar()->addMenu(QStringLiteral("&Edit"));
        m_undo = pMenu->addAction(QString());
        m_redo = pMenu->addAction(QString());
        m_find = pMenu->addAction(QString());
        new EditActions({m_undo, m_redo, m_find}, m_window.get());
        m_actions = m_window->findChild<EditActions*>();
        m_page = new TellingPage;
        m_page->setFocusPolicy(Qt::StrongFocus);
        auto* const pLayout = new QVBoxLayout(m_page);
        m_other = new QWidget(m_page);
        m_other->setLayout(new QVBoxLayout);
        pLayout->addWidget(m_other);
        m_window->setCentralWidget(m_page);
        m_actions->SetPage(m_page);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_page->setFocus();
    }
    void cleanup() { m_window.reset(); }

    void withoutAPageThereIsNothingToUndo()
    {
        m_page->Edit(QStringLiteral("a"));
        m_actions->SetPage(nullptr);
        QVERIFY(!m_undo->isEnabled() && !m_redo->isEnabled());
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo"));
        m_undo->trigger();
        m_find->trigger();
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
    }
    void aPageThatTellsNothingIsNoTrouble()
    {
        QWidget page;
        m_actions->SetPage(&page);
        QVERIFY(!m_undo->isEnabled() && !m_redo->isEnabled());
        m_find->trigger();
    }
    void theEntriesNameTheSteps()
    {
        QVERIFY(!m_undo->isEnabled());
        m_page->Edit(QStringLiteral("a & b"));
        QVERIFY(m_undo->isEnabled() && !m_redo->isEnabled());
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo Write a && b"));
        m_page->Undo();
        QVERIFY(!m_undo->isEnabled() && m_redo->isEnabled());
        QCOMPARE(m_redo->text(), QStringLiteral("&Redo Write a && b"));
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo"));
    }
    void keysUndoAndRedoOnThePage()
    {
        m_page->Edit(QStringLiteral("a"));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_page->Text(), QString());
        QTest::keyClick(m_window.get(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
    }
    void aPageInFrontOfAnotherIsFollowedAlone()
    {
        TellingPage other;
        m_actions->SetPage(&other);
        m_page->Edit(QStringLiteral("a"));
        QVERIFY(!m_undo->isEnabled());
        other.Edit(QStringLiteral("b"));
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo Write b"));
        m_undo->trigger();
        QCOMPARE(other.Text(), QString());
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
    }
    void aFieldWithTheFocusKeepsItsOwnUndo_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("keys") << false;
        QTest::newRow("menu") << true;
    }
    void aFieldWithTheFocusKeepsItsOwnUndo()
    {
        QFETCH(bool, byMenu);
        auto* const pField = Add(new QLineEdit);
        m_page->Edit(QStringLiteral("a"));
        pField->setFocus();
        QVERIFY(!m_undo->isEnabled());
        QTest::keyClicks(pField, QStringLiteral("typed"));
        QVERIFY(m_undo->isEnabled());
        QVERIFY(!m_undo->text().contains(QStringLiteral("Write")));
        if (byMenu)
            m_undo->trigger();
        else
            QTest::keyClick(pField, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(pField->text(), QString());
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
        QVERIFY(!m_undo->isEnabled() && m_redo->isEnabled());
        if (byMenu)
            m_redo->trigger();
        else
            QTest::keyClick(pField, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(pField->text(), QStringLiteral("typed"));
        // Nothing is left to take back in the field: the page is not touched instead.
        QTest::keyClick(pField, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(pField, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
        m_page->setFocus();
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo Write a"));
    }
    void longTextsAndNumbersAreFieldsToo()
    {
        auto* const pText = Add(new QPlainTextEdit);
        m_page->Edit(QStringLiteral("a"));
        pText->setFocus();
        QVERIFY(!m_undo->isEnabled());
        QTest::keyClicks(pText, QStringLiteral("typed"));
        QVERIFY(m_undo->isEnabled());
        m_undo->trigger();
        QCOMPARE(pText->toPlainText(), QString());
        m_redo->trigger();
        QCOMPARE(pText->toPlainText(), QStringLiteral("typed"));
        auto* const pNumber = Add(new QSpinBox);
        pNumber->setFocus();
        QVERIFY(!m_undo->isEnabled());
        QTest::keyClick(pNumber, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
    }
    void aFieldThatOnlyShowsHasNoUndoOfItsOwn()
    {
        auto* const pField = Add(new QLineEdit);
        pField->setReadOnly(true);
        m_page->Edit(QStringLiteral("a"));
        pField->setFocus();
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo Write a"));
        QTest::keyClick(pField, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_page->Text(), QString());
    }
    void aFieldThatGoesLeavesTheUndoToThePage()
    {
        auto* const pField = Add(new QLineEdit);
        m_page->Edit(QStringLiteral("a"));
        pField->setFocus();
        delete pField;
        m_actions->OnChanged();
        QCOMPARE(m_undo->text(), QStringLiteral("&Undo Write a"));
    }
    void theWayThroughTheMenuLeavesNoField()
    {
        auto* const pField = Add(new QLineEdit);
        m_page->Edit(QStringLiteral("a"));
        pField->setFocus();
        QTest::keyClicks(pField, QStringLiteral("typed"));
        m_window->menuBar()->setFocus();
        m_undo->trigger();
        QCOMPARE(pField->text(), QString());
        QCOMPARE(m_page->Text(), QStringLiteral("a"));
    }
    void findLeadsToTheSearchNearestToTheFocus()
    {
        auto* const pFirst = Search(m_page);
        auto* const pInner = Search(m_other);
        auto* const pButton = new QWidget(m_other);
        pButton->setFocusPolicy(Qt::StrongFocus);
        m_other->layout()->addWidget(pButton);
        pButton->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        pFirst->move(0, 0);
        m_page->setFocus();
        pInner->hide();
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(pFirst->hasFocus());
        pInner->show();
        pInner->setText(QStringLiteral("old words"));
        pButton->setFocus();
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(pInner->hasFocus());
        QCOMPARE(pInner->selectedText(), QStringLiteral("old words"));
        // Where there is none that can be used, nothing happens.
        pInner->setEnabled(false);
        pFirst->hide();
        m_page->setFocus();
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(m_page->hasFocus());
    }

private:
    template <class Widget>
    Widget* Add(Widget* pWidget)
    {
        m_page->layout()->addWidget(pWidget);
        pWidget->show();
        return pWidget;
    }
    static QLineEdit* Search(QWidget* pParent)
    {
        auto* const pField = new QLineEdit(pParent);
        pField->setObjectName(QStringLiteral("edtSearch"));
        pParent->layout()->addWidget(pField);
        pField->show();
        return pField;
    }

    std::unique_ptr<QMainWindow> m_window;
    EditActions* m_actions = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_find = nullptr;
    TellingPage* m_page = nullptr;
    QWidget* m_other = nullptr;
};

QTEST_MAIN(TestEditActions)
#include "tst_edit_actions.moc"
