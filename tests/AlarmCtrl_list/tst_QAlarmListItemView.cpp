#include "tests/AlarmCtrl_list/ListViewFixture.h"

#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

class tst_QAlarmListItemView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // the form

    void theViewIsNamedSizedAndTitled()
    {
        const QAlarmListItemView view;
        QCOMPARE(view.objectName(), QStringLiteral("QAlarmListItemView"));
        QCOMPARE(view.size(), QSize(612, 706));
        QCOMPARE(view.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(view.windowTitle(), QStringLiteral("Form"));
    }

    void theScrollAreaFillsTheView()
    {
        const ListViewFixture list;
        const auto outer = qobject_cast<QVBoxLayout*>(list.view.layout());
        CheckLayout(outer, "verticalLayout_2", QMargins());
        QCOMPARE(outer->count(), 1);
        const auto area = qobject_cast<QScrollArea*>(outer->itemAt(0)->widget());
        QVERIFY(area);
        QCOMPARE(area->objectName(), QStringLiteral("scrollArea"));
        QCOMPARE(area->frameShape(), QFrame::NoFrame);
        QVERIFY(area->widgetResizable());
        QCOMPARE(area->widget()->objectName(), QStringLiteral("scrollAreaWidgetContents"));
    }

    void theContentsHoldEntriesSpaceAndSubSection()
    {
        const ListViewFixture list;
        const auto contents =
            qobject_cast<QVBoxLayout*>(list.Part<QWidget>("scrollAreaWidgetContents")->layout());
        CheckLayout(contents, "verticalLayout", QMargins());
        CheckWidgets(contents, {"wndMain", "wndSpace", "wndSubContainer"});

        CheckLayout(qobject_cast<QVBoxLayout*>(list.Part<QWidget>("wndMain")->layout()), nullptr,
                    QMargins(0, 10, 0, 0));
        CheckSpace(list.Part<QWidget>("wndSpace"));
        CheckSpace(list.Part<QWidget>("wndSubContainer"));

        const auto sub = qobject_cast<QVBoxLayout*>(list.Part<QWidget>("wndSubContainer")->layout());
        CheckLayout(sub, "verticalLayout_3", QMargins());
        CheckWidgets(sub, {"btnSubControll", "wndSub", "wndSubSpace", "wndSubSpace2"});
        CheckLayout(qobject_cast<QVBoxLayout*>(list.Part<QWidget>("wndSub")->layout()), nullptr,
                    QMargins(0, 0, 0, 10));
        CheckSpace(list.Part<QWidget>("wndSubSpace"));
        CheckSpace(list.Part<QWidget>("wndSubSpace2"));
    }

    void theHeaderOfTheSubSectionIsACheckedEntryOutsideTheGroup()
    {
        const ListViewFixture list;
        QVERIFY(list.Header());
        QVERIFY(list.Header()->isCheckable());
        QVERIFY(list.Header()->isChecked());
        QCOMPARE(list.Header()->focusPolicy(), Qt::NoFocus);
        QCOMPARE(list.Header()->text(), QString());
        QVERIFY(!list.Group()->buttons().contains(list.Header()));
    }

    void thereIsOneExclusiveGroup()
    {
        const ListViewFixture list;
        QCOMPARE(list.view.findChildren<QButtonGroup*>().size(), 1);
        QVERIFY(list.Group()->exclusive());
        QVERIFY(list.Group()->buttons().isEmpty());
    }

    // adding

    void anEmptyViewHasNoCurrentType()
    {
        const ListViewFixture list;
        QCOMPARE(list.view.GetCurrentType(), -1);
    }

    void theFirstEntryIsCheckedInSilence()
    {
        ListViewFixture list;
        list.view.AddItem(QStringLiteral("first"), 7);
        QCOMPARE(list.view.GetCurrentType(), 7);
        QVERIFY(list.Entry(0)->isChecked());
        list.view.AddItem(QStringLiteral("second"), 8);
        QCOMPARE(list.view.GetCurrentType(), 7);
        QVERIFY(!list.Entry(1)->isChecked());
        QVERIFY(list.changes.isEmpty());
    }

    void theFirstEntryMayBeASubEntry()
    {
        ListViewFixture list;
        list.view.AddSubItem(QStringLiteral("first"), 7);
        list.view.AddItem(QStringLiteral("second"), 8);
        list.view.AddSubItem(QStringLiteral("third"), 9);
        QCOMPARE(list.view.GetCurrentType(), 7);
        QVERIFY(list.changes.isEmpty());
    }

    void mainEntriesStandBelowEachOtherInTheMainPart()
    {
        ListViewFixture list;
        list.AddEntries(3);
        const QLayout* const layout = list.Part<QWidget>("wndMain")->layout();
        QCOMPARE(layout->count(), 3);
        for (int i = 0; i < 3; ++i) {
            const auto item = qobject_cast<QAlarmListItem*>(layout->itemAt(i)->widget());
            QVERIFY(item);
            QCOMPARE(item, list.Entry(i));
            QCOMPARE(item->text(), list.Text(i));
            QCOMPARE(item->GetType(), list.Type(i));
            QVERIFY(!list.IsMarked(item));
            QCOMPARE(item->styleSheet(), QString());
            QVERIFY(list.Group()->id(item) < -1); // ids that the group gave out itself
        }
        QCOMPARE(list.Part<QWidget>("wndSub")->layout()->count(), 0);
    }

    void anEntryOfAKnownTextIsShownAgainInItsPlaceWithItsFirstType()
    {
        ListViewFixture list;
        list.AddEntries(3);
        QAlarmListItem* const second = list.Entry(1);
        list.view.HideItem(11);
        QVERIFY(second->isHidden());
        list.view.AddItem(QStringLiteral("B"), 99);
        QVERIFY(!second->isHidden());
        QCOMPARE(second->GetType(), 11);
        QCOMPARE(list.EntryCount(), 3);
        QCOMPARE(list.Part<QWidget>("wndMain")->layout()->count(), 3);
        QCOMPARE(list.Part<QWidget>("wndMain")->layout()->indexOf(second), 1);
        QCOMPARE(list.view.GetCurrentType(), 10);
        QVERIFY(list.changes.isEmpty());
    }

    void addingAVisibleEntryAgainChangesNothing()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.AddItem(QStringLiteral("B"), 99);
        QCOMPARE(list.EntryCount(), 2);
        QVERIFY(!list.EntryOfType(99));
        QVERIFY(!list.Entry(1)->isChecked());
    }

    void textsAreComparedExactly()
    {
        ListViewFixture list;
        for (const QString& text : {QStringLiteral("Door"), QStringLiteral("door"), QStringLiteral("Door "),
                                    QStringLiteral("Doo"), QString(), QStringLiteral("D&oor")})
            list.view.AddItem(text, 1);
        QCOMPARE(list.EntryCount(), 6);
        list.view.AddItem(QString(), 2);
        QCOMPARE(list.EntryCount(), 6);
    }

    void theSearchForAKnownTextSeesSubEntriesToo()
    {
        ListViewFixture list;
        list.view.AddSubItem(QStringLiteral("same"), 1);
        list.view.AddItem(QStringLiteral("same"), 2);
        QCOMPARE(list.EntryCount(), 1);
        QCOMPARE(list.Part<QWidget>("wndMain")->layout()->count(), 0);
    }

    void severalEntriesMayShareAType()
    {
        ListViewFixture list;
        list.view.AddItem(QStringLiteral("one"), 5);
        list.view.AddItem(QStringLiteral("two"), 5);
        QCOMPARE(list.EntryCount(), 2);
    }

    void subEntriesAreIndentedAndNeverLookedUp()
    {
        ListViewFixture list;
        list.view.AddItem(QStringLiteral("main"), 1);
        list.view.AddSubItem(QStringLiteral("main"), 2);
        list.view.AddSubItem(QStringLiteral("main"), 3);
        QCOMPARE(list.EntryCount(), 3);
        const QLayout* const layout = list.Part<QWidget>("wndSub")->layout();
        QCOMPARE(layout->count(), 2);
        for (int i = 0; i < 2; ++i) {
            const auto item = qobject_cast<QAlarmListItem*>(layout->itemAt(i)->widget());
            QVERIFY(item);
            QCOMPARE(item->GetType(), 2 + i);
            QCOMPARE(item->styleSheet(), QStringLiteral("QAlarmListItem{padding-left:30px;}"));
            QVERIFY(list.Group()->id(item) < -1);
        }
        QCOMPARE(list.view.GetCurrentType(), 1);
        QVERIFY(list.changes.isEmpty());
    }

    void theIndentIsAStyleSheetOfAnEntryThatHasALayout()
    {
        QAlarmListItemView view;
        QAlarmListItem item;
        for (int pixels : {0, 1, 30, -5}) {
            view.SetIndent(&item, pixels);
            QCOMPARE(item.styleSheet(), QStringLiteral("QAlarmListItem{padding-left:%1px;}").arg(pixels));
        }
        QAlarmListItem bare;
        delete bare.layout();
        view.SetIndent(&bare, 30);
        QCOMPARE(bare.styleSheet(), QString());
    }

    // choosing

    void aClickChoosesAndSaysTextAndType()
    {
        ListViewFixture list;
        list.AddEntries(3);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
        QTest::mouseClick(list.Entry(2), Qt::LeftButton);
        QCOMPARE(list.changes.count(), 1);
        QCOMPARE(list.LastText(), QStringLiteral("C"));
        QCOMPARE(list.LastType(), 12);
        QCOMPARE(list.view.GetCurrentType(), 12);
        QVERIFY(!list.Entry(0)->isChecked());
        QVERIFY(!list.Entry(1)->isChecked());
    }

    void clickingTheCurrentEntrySaysItAgain()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
        for (int click = 1; click <= 3; ++click) {
            QTest::mouseClick(list.Entry(0), Qt::LeftButton);
            QCOMPARE(list.changes.count(), click);
            QCOMPARE(list.LastType(), 10);
            QVERIFY(list.Entry(0)->isChecked());
        }
    }

    void theChoiceStandsWhenItIsSaid()
    {
        ListViewFixture list;
        list.AddEntries(2);
        int current = -1;
        connect(&list.view, &QAlarmListItemView::SignalCurrentItemChanged, this,
                [&] { current = list.view.GetCurrentType(); });
        list.Entry(1)->click();
        QCOMPARE(current, 11);
    }

    void mainAndSubEntriesExcludeEachOther()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.AddSubItem(QStringLiteral("sub"), 40);
        list.EntryOfType(40)->click();
        QCOMPARE(list.view.GetCurrentType(), 40);
        QVERIFY(!list.Entry(0)->isChecked());
        QCOMPARE(list.LastText(), QStringLiteral("sub"));
        list.Entry(0)->click();
        QVERIFY(!list.EntryOfType(40)->isChecked());
        QCOMPARE(list.changes.count(), 2);
    }

    void aButtonThatIsNoEntrySaysNothing()
    {
        ListViewFixture list;
        list.AddEntries(1);
        QPushButton other;
        list.view.OnGroupBtnClicked(&other);
        list.view.OnGroupBtnClicked(nullptr);
        QVERIFY(list.changes.isEmpty());
        list.view.OnGroupBtnClicked(list.Entry(0));
        QCOMPARE(list.changes.count(), 1);
    }

    void checkingByProgramSaysNothing()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.Entry(1)->setChecked(true);
        QCOMPARE(list.view.GetCurrentType(), 11);
        QVERIFY(list.changes.isEmpty());
    }

    // hiding

    void hidingAnUnknownTypeDoesNothing()
    {
        ListViewFixture list;
        list.view.HideItem(10);
        list.AddEntries(2);
        list.view.HideItem(99);
        list.view.HideItem(-1);
        QVERIFY(!list.Entry(0)->isHidden());
        QVERIFY(!list.Entry(1)->isHidden());
        QVERIFY(list.changes.isEmpty());
    }

    void hidingAnEntryThatIsNotCurrentIsSilent()
    {
        ListViewFixture list;
        list.AddEntries(3);
        list.view.HideItem(12);
        QVERIFY(list.Entry(2)->isHidden());
        QVERIFY(!list.Entry(1)->isHidden());
        QCOMPARE(list.view.GetCurrentType(), 10);
        QVERIFY(list.changes.isEmpty());
    }

    void hidingTheCurrentEntryChoosesTheFirstBeforeItHides()
    {
        ListViewFixture list;
        list.AddEntries(3);
        list.Entry(2)->click();
        list.changes.clear();
        bool hiddenWhenSaid = true;
        connect(&list.view, &QAlarmListItemView::SignalCurrentItemChanged, this,
                [&] { hiddenWhenSaid = list.Entry(2)->isHidden(); });
        list.view.HideItem(12);
        QCOMPARE(list.changes.count(), 1);
        QCOMPARE(list.LastText(), QStringLiteral("A"));
        QCOMPARE(list.LastType(), 10);
        QCOMPARE(list.view.GetCurrentType(), 10);
        QVERIFY(list.Entry(2)->isHidden());
        QVERIFY(!hiddenWhenSaid);
    }

    void hidingTheCurrentEntryChoosesTheFirstEvenIfThatIsHidden()
    {
        ListViewFixture list;
        list.AddEntries(3);
        list.Entry(1)->click();
        list.view.HideItem(10);
        list.changes.clear();
        list.view.HideItem(11);
        QCOMPARE(list.changes.count(), 1);
        QCOMPARE(list.LastType(), 10);
        QCOMPARE(list.view.GetCurrentType(), 10);
        QVERIFY(list.Entry(0)->isHidden());
        QVERIFY(list.Entry(1)->isHidden());
        QVERIFY(!list.Entry(2)->isHidden());
    }

    void hidingTheFirstEntryWhileItIsCurrentSaysItAgainAndHidesIt()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.HideItem(10);
        QCOMPARE(list.changes.count(), 1);
        QCOMPARE(list.LastType(), 10);
        QVERIFY(list.Entry(0)->isHidden());
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void ofTwoEntriesOfOneTypeTheFirstIsHidden()
    {
        ListViewFixture list;
        list.AddEntries(1);
        list.view.AddItem(QStringLiteral("one"), 5);
        list.view.AddItem(QStringLiteral("two"), 5);
        list.view.HideItem(5);
        list.view.HideItem(5);
        QVERIFY(list.Entry(1)->isHidden());
        QVERIFY(!list.Entry(2)->isHidden());
    }

    void subEntriesAreHiddenByTypeToo()
    {
        ListViewFixture list;
        list.AddEntries(1);
        list.view.AddSubItem(QStringLiteral("sub"), 40);
        list.view.HideItem(40);
        QVERIFY(list.EntryOfType(40)->isHidden());
    }

    // marks

    void aMarkIsSetOnTheFirstEntryOfAType()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.AddItem(QStringLiteral("again"), 11);
        list.view.SetItemMark(11, true);
        QVERIFY(!list.IsMarked(list.Entry(0)));
        QVERIFY(list.IsMarked(list.Entry(1)));
        QVERIFY(!list.IsMarked(list.Entry(2)));
        list.view.SetItemMark(11, false);
        QVERIFY(!list.IsMarked(list.Entry(1)));
        list.view.SetItemMark(99, true);
        for (int i = 0; i < 3; ++i)
            QVERIFY(!list.IsMarked(list.Entry(i)));
        QVERIFY(list.changes.isEmpty());
    }

    void aMarkIsSetOnTheFirstEntryOfAText()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.AddSubItem(QStringLiteral("B"), 40);
        list.view.SetItemMarkByText(QStringLiteral("B"), true);
        QVERIFY(list.IsMarked(list.Entry(1)));
        QVERIFY(!list.IsMarked(list.Entry(2)));
        list.view.SetItemMarkByText(QStringLiteral("B"), false);
        QVERIFY(!list.IsMarked(list.Entry(1)));
        list.view.SetItemMarkByText(QStringLiteral("b"), true);
        list.view.SetItemMarkByText(QString(), true);
        for (int i = 0; i < 3; ++i)
            QVERIFY(!list.IsMarked(list.Entry(i)));
    }

    void hiddenEntriesKeepAndTakeMarks()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.HideItem(11);
        list.view.SetItemMark(11, true);
        QVERIFY(list.Entry(1)->isHidden());
        list.view.AddItem(QStringLiteral("B"), 11);
        QVERIFY(list.IsMarked(list.Entry(1)));
    }

    // the sub-section

    void theSubSectionIsHiddenAtFirstAndUnfoldedWhenItShows()
    {
        ListViewFixture list;
        QVERIFY(list.Part<QWidget>("wndSubContainer")->isHidden());
        QVERIFY(!list.Part<QWidget>("wndSpace")->isHidden());
        CheckFolded(list, false);
        list.view.SetSubVisible(true);
        QVERIFY(!list.Part<QWidget>("wndSubContainer")->isHidden());
        QVERIFY(list.Part<QWidget>("wndSpace")->isHidden());
        CheckFolded(list, false);
        list.view.SetSubVisible(false);
        QVERIFY(list.Part<QWidget>("wndSubContainer")->isHidden());
        QVERIFY(!list.Part<QWidget>("wndSpace")->isHidden());
    }

    void aClickOnTheHeaderFoldsAndUnfolds()
    {
        ListViewFixture list;
        list.AddEntries(1);
        list.view.AddSubItem(QStringLiteral("sub"), 40);
        list.view.SetSubVisible(true);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
        QTest::mouseClick(list.Header(), Qt::LeftButton);
        QVERIFY(!list.Header()->isChecked());
        CheckFolded(list, true);
        QVERIFY(!list.EntryOfType(40)->isVisible());
        QTest::mouseClick(list.Header(), Qt::LeftButton);
        QVERIFY(list.Header()->isChecked());
        CheckFolded(list, false);
        QVERIFY(list.EntryOfType(40)->isVisible());
        QVERIFY(list.changes.isEmpty());
        QCOMPARE(list.view.GetCurrentType(), 10);
    }

    void theFoldedHeaderStaysWhereItWas()
    {
        ListViewFixture list;
        list.AddEntries(2);
        list.view.AddSubItem(QStringLiteral("sub"), 40);
        list.view.SetSubVisible(true);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
        const auto container = list.Part<QWidget>("wndSubContainer");
        QTRY_COMPARE(list.Header()->mapTo(container, QPoint()), QPoint());
        list.Header()->click();
        QTRY_VERIFY(list.Part<QWidget>("wndSubSpace2")->isVisible());
        QTRY_COMPARE(list.Header()->mapTo(container, QPoint()), QPoint());
    }

    void theFoldFollowsTheHeaderWhenAsked()
    {
        ListViewFixture list;
        list.Header()->setChecked(false);
        CheckFolded(list, false); // only a click or the operation itself folds
        list.view.OnSubControllClicked();
        CheckFolded(list, true);
        list.view.OnSubControllClicked();
        CheckFolded(list, true);
        list.Header()->setChecked(true);
        list.view.OnSubControllClicked();
        CheckFolded(list, false);
    }

    void manyEntriesScroll()
    {
        ListViewFixture list;
        for (int i = 0; i < 200; ++i)
            list.view.AddItem(QString::number(i), i);
        list.view.resize(200, 240);
        list.view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list.view));
        QTRY_COMPARE(list.Entry(0)->height(), 24);
        QTRY_VERIFY(list.Part<QWidget>("scrollAreaWidgetContents")->height() >= 200 * 24 + 10);
        QCOMPARE(list.view.GetCurrentType(), 0);
    }

private:
    static void CheckLayout(const QVBoxLayout* pLayout, const char* strName, const QMargins& margins)
    {
        QVERIFY(pLayout);
        if (strName)
            QCOMPARE(pLayout->objectName(), QLatin1String(strName));
        QCOMPARE(pLayout->spacing(), 0);
        QCOMPARE(pLayout->contentsMargins(), margins);
    }

    static void CheckWidgets(const QLayout* pLayout, const QList<QByteArray>& names)
    {
        QCOMPARE(pLayout->count(), names.size());
        for (int i = 0; i < names.size(); ++i) {
            QVERIFY(pLayout->itemAt(i)->widget());
            QCOMPARE(pLayout->itemAt(i)->widget()->objectName(), QLatin1String(names[i]));
        }
    }

    static void CheckSpace(const QWidget* pWidget)
    {
        QCOMPARE(pWidget->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
        QCOMPARE(pWidget->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

    static void CheckFolded(const ListViewFixture& list, bool bFolded)
    {
        QCOMPARE(list.Part<QWidget>("wndSub")->isHidden(), bFolded);
        QCOMPARE(list.Part<QWidget>("wndSubSpace")->isHidden(), bFolded);
        QCOMPARE(list.Part<QWidget>("wndSubSpace2")->isHidden(), !bFolded);
    }
};

QTEST_MAIN(tst_QAlarmListItemView)
#include "tst_QAlarmListItemView.moc"
