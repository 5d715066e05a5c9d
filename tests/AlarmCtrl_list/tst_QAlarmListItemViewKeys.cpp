#include "tests/AlarmCtrl_list/ListViewFixture.h"

#include "platform/LXGUI/Theme.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

// The entries take no focus, so the view answers the keys for them.
class tst_QAlarmListItemViewKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theArrowsChooseTheNeighbours()
    {
        ListViewFixture list;
        Show(list, 3);
        Press(list, Qt::Key_Down);
        QCOMPARE(list.changes.count(), 1);
        QCOMPARE(list.LastText(), QStringLiteral("B"));
        QCOMPARE(list.LastType(), 11);
        QCOMPARE(list.view.GetCurrentType(), 11);
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 12);
        Press(list, Qt::Key_Up);
        QCOMPARE(list.view.GetCurrentType(), 11);
        QCOMPARE(list.changes.count(), 3);
    }

    void theArrowsStopAtTheEnds()
    {
        ListViewFixture list;
        Show(list, 2);
        Press(list, Qt::Key_Up);
        QCOMPARE(list.view.GetCurrentType(), 10);
        Press(list, Qt::Key_Down);
        Press(list, Qt::Key_Down);
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 11);
        QCOMPARE(list.changes.count(), 1);
    }

    void theArrowsPassOverHiddenEntries()
    {
        ListViewFixture list;
        Show(list, 5);
        list.view.HideItem(11);
        list.view.HideItem(12);
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 13);
        Press(list, Qt::Key_Up);
        QCOMPARE(list.view.GetCurrentType(), 10);
        QCOMPARE(list.changes.count(), 2);
    }

    void fromAHiddenCurrentEntryTheArrowsReachItsVisibleNeighbour()
    {
        ListViewFixture list;
        Show(list, 3);
        list.view.HideItem(10); // stays current
        list.changes.clear();
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 11);
        QCOMPARE(list.changes.count(), 1);
        Press(list, Qt::Key_Up); // nothing visible above
        QCOMPARE(list.view.GetCurrentType(), 11);
        QCOMPARE(list.changes.count(), 1);
    }

    void fromAHiddenCurrentEntryInTheMiddleBothWaysAreOpen()
    {
        ListViewFixture list;
        Show(list, 3);
        list.Entry(1)->click();
        list.Entry(1)->hide();
        Press(list, Qt::Key_Up);
        QCOMPARE(list.view.GetCurrentType(), 10);
        list.Entry(1)->click();
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 12);
        list.Entry(1)->click();
        Press(list, Qt::Key_Home);
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void homeAndEndChooseTheFirstAndLastVisibleEntry()
    {
        ListViewFixture list;
        Show(list, 5);
        list.view.HideItem(14);
        Press(list, Qt::Key_End);
        QCOMPARE(list.view.GetCurrentType(), 13);
        list.view.HideItem(10);
        Press(list, Qt::Key_Home);
        QCOMPARE(list.view.GetCurrentType(), 11);
        QCOMPARE(list.changes.count(), 2);
    }

    void thePageKeysGoFurtherThanTheArrowsAndStopAtTheEnds()
    {
        ListViewFixture list;
        list.view.resize(200, 240);
        Show(list, 26);
        Press(list, Qt::Key_PageDown);
        const int first = list.view.GetCurrentType();
        QVERIFY(first > 11);
        QVERIFY(first < 35);
        Press(list, Qt::Key_PageDown);
        QVERIFY(list.view.GetCurrentType() > first);
        for (int i = 0; i < 26; ++i)
            Press(list, Qt::Key_PageDown);
        QCOMPARE(list.view.GetCurrentType(), 35);
        Press(list, Qt::Key_PageUp);
        QVERIFY(list.view.GetCurrentType() < 34);
        for (int i = 0; i < 26; ++i)
            Press(list, Qt::Key_PageUp);
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void thePageKeysNeverLandOnHiddenEntries()
    {
        ListViewFixture list;
        list.view.resize(200, 240);
        Show(list, 26);
        for (int type = 11; type < 35; type += 2)
            list.view.HideItem(type);
        list.view.HideItem(35);
        list.changes.clear();
        for (int i = 0; i < 30; ++i) {
            Press(list, i < 15 ? Qt::Key_PageDown : Qt::Key_PageUp);
            QVERIFY(!list.EntryOfType(list.view.GetCurrentType())->isHidden());
        }
        QVERIFY(!list.changes.isEmpty());
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void thePageKeysOfAShortListGoToItsEnds()
    {
        ListViewFixture list;
        Show(list, 4);
        Press(list, Qt::Key_PageDown);
        QCOMPARE(list.view.GetCurrentType(), 13);
        Press(list, Qt::Key_PageUp);
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void subEntriesFollowTheMainEntriesWhileTheyShow()
    {
        ListViewFixture list;
        list.view.AddSubItem(QStringLiteral("sub"),
                             40); // ahead of the others in the group, below them on screen
        list.view.SetSubVisible(true);
        Show(list, 2);
        list.EntryOfType(10)->click();
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 11);
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 40);
        Press(list, Qt::Key_Up);
        QCOMPARE(list.view.GetCurrentType(), 11);
        Press(list, Qt::Key_End);
        QCOMPARE(list.view.GetCurrentType(), 40);
    }

    void foldedAndHiddenSubEntriesAreOutOfReach()
    {
        ListViewFixture list;
        Show(list, 2);
        list.view.AddSubItem(QStringLiteral("sub"), 40);
        Press(list, Qt::Key_End);
        QCOMPARE(list.view.GetCurrentType(), 11);
        list.view.SetSubVisible(true);
        list.Header()->click();
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 11);
        list.Header()->click();
        Press(list, Qt::Key_Down);
        QCOMPARE(list.view.GetCurrentType(), 40);
    }

    void theChosenEntryIsScrolledIntoView()
    {
        ListViewFixture list;
        list.view.resize(200, 240);
        Show(list, 26);
        Press(list, Qt::Key_End);
        const auto viewport = list.Part<QScrollArea>("scrollArea")->viewport();
        QTRY_VERIFY(viewport->rect().contains(QRect(list.EntryOfType(35)->mapTo(viewport, QPoint()),
                                                    QSize(1, list.EntryOfType(35)->height()))));
        Press(list, Qt::Key_Home);
        QTRY_VERIFY(viewport->rect().contains(QRect(list.EntryOfType(10)->mapTo(viewport, QPoint()),
                                                    QSize(1, list.EntryOfType(10)->height()))));
    }

    void anEmptyListLivesThroughEveryKey()
    {
        ListViewFixture list;
        Show(list, 0);
        for (int key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown})
            Press(list, static_cast<Qt::Key>(key));
        QVERIFY(list.changes.isEmpty());
        QCOMPARE(list.view.GetCurrentType(), -1);
    }

    void aListOfHiddenEntriesLivesThroughEveryKey()
    {
        ListViewFixture list;
        Show(list, 2);
        list.view.HideItem(11);
        list.view.HideItem(10);
        list.changes.clear();
        for (int key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown})
            Press(list, static_cast<Qt::Key>(key));
        QVERIFY(list.changes.isEmpty());
    }

    void otherKeysGoOnToTheParent()
    {
        class Parent : public QWidget
        {
        public:
            QList<int> m_keys;

        protected:
            void keyPressEvent(QKeyEvent* event) override { m_keys.append(event->key()); }
        };
        Parent parent;
        auto list = std::make_unique<ListViewFixture>();
        QVBoxLayout layout(&parent);
        layout.addWidget(&list->view);
        list->AddEntries(3);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QTest::keyClick(&list->view, Qt::Key_F5);
        QTest::keyClick(&list->view, Qt::Key_Escape);
        QCOMPARE(parent.m_keys, (QList<int>{Qt::Key_F5, Qt::Key_Escape}));
        QTest::keyClick(&list->view, Qt::Key_Down);
        QCOMPARE(parent.m_keys.size(), 2);
        QCOMPARE(list->changes.count(), 1);
    }

    void theCurrentEntryShowsWhereTheKeysGo()
    {
        ListViewFixture list;
        QPushButton other;
        Show(list, 3);
        other.show();
        const QRgb focus = LXGUI::Theme::Current().Colour(QStringLiteral("focus")).rgb();
        const auto ringOf = [&list](int iEntry) {
            QAlarmListItem* const pEntry = list.Entry(iEntry);
            return pEntry->grab().toImage().pixel(pEntry->width() / 2, 0);
        };
        list.view.activateWindow();
        list.view.setFocus();
        QTRY_VERIFY(list.view.hasFocus());
        QCOMPARE(ringOf(0), focus);
        QVERIFY(ringOf(1) != focus);
        Press(list, Qt::Key_Down);
        QCOMPARE(ringOf(1), focus);
        QVERIFY(ringOf(0) != focus);

        other.activateWindow();
        other.setFocus();
        QTRY_VERIFY(other.hasFocus());
        QVERIFY(ringOf(1) != focus);
    }

private:
    static void Show(ListViewFixture& list, int iEntries)
    {
        list.AddEntries(iEntries);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
    }

    static void Press(ListViewFixture& list, Qt::Key key) { QTest::keyClick(&list.view, key); }
};

QTEST_MAIN(tst_QAlarmListItemViewKeys)
#include "tst_QAlarmListItemViewKeys.moc"
