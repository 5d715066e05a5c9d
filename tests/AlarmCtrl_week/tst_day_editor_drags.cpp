#include "AlarmCtrl/QAlarmDayEditor.h"
#include "tests/AlarmCtrl_week/Bar.h"

#include <QSignalSpy>
#include <QTest>

using namespace DayTexts;

/// What a drag over a bar does to the day.
class tst_DayEditorDrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragReportsStartMovesAndEnd();
    void aBarAloneShowsADragAndKeepsNothing();
    void aClickPaintsTheQuarterHourAroundIt();
    void aClickOnAMarkChangesNothing();
    void aDragBeyondBothEdgesPaintsTheWholeDay();
    void paintingNextToARegionFusesWithIt();
    void hoveringOverARegionDecidesToErase();
    void theSnappedEdgesOfARegionErase();
    void aPressDecidesNothingByItself();
    void theHoverDoesNotChangeDuringADrag();
    void theEraseFlagLastsUntilTheCommitAndNoLonger();
    void otherButtonsDoNothing();
    void aMoveWithoutTheLeftButtonHeldDoesNotDrag();
    void aSecondPressRestartsTheDrag();
    void theSecondPressOfADoubleClickStartsADragToo();
    void aDisabledBarTakesNoDrag();
};

void tst_DayEditorDrags::aDragReportsStartMovesAndEnd()
{
    Bar bar;
    QStringList order;
    const auto note = [&](const QString& name) {
        return [&order, name, &bar](QAlarmDayEditor* sender) {
            order << (sender == &bar ? name : QStringLiteral("stranger"));
        };
    };
    connect(&bar, &QAlarmDayEditor::SignalEditStart, this, note(QStringLiteral("start")));
    connect(&bar, &QAlarmDayEditor::SignalEditing, this, note(QStringLiteral("editing")));
    connect(&bar, &QAlarmDayEditor::SignalEditReady, this, note(QStringLiteral("ready")));
    bar.mouse.Hover(10);
    QVERIFY(order.isEmpty());
    bar.mouse.Press(10);
    bar.mouse.Drag(20);
    bar.mouse.Drag(30);
    bar.mouse.Release(40);
    bar.mouse.Hover(50);
    QCOMPARE(order, (QStringList{QStringLiteral("start"), QStringLiteral("editing"),
                                 QStringLiteral("editing"), QStringLiteral("ready")}));
}

void tst_DayEditorDrags::aBarAloneShowsADragAndKeepsNothing()
{
    Bar bar;
    bar.mouse.Pull(bar.mouse.ColumnOf(8 * Hour), bar.mouse.ColumnOf(9 * Hour));
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditorDrags::aClickPaintsTheQuarterHourAroundIt()
{
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Click(bar.mouse.ColumnOf(10 * Hour + 7 * 60));
    QCOMPARE(Regions(bar), QStringLiteral("[36000 36900]"));
}

void tst_DayEditorDrags::aClickOnAMarkChangesNothing()
{
    // No bar of the form's widths has a column that is exactly 10:00:00; column 2118 of 5083 is one.
    constexpr int width = 5083;
    constexpr int x = 2118;
    QCOMPARE(qint64{86399} * x / width, qint64{36000});
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Display()->setFixedWidth(width);
    bar.resize(bar.sizeHint().width(), 24);
    bar.layout()->activate();
    QCOMPARE(bar.mouse.Display()->width(), width);
    bar.mouse.Click(x);
    QCOMPARE(Regions(bar), QString());
    bar.mouse.Click(x + 1);
    QCOMPARE(Regions(bar), QStringLiteral("[36000 36900]"));
}

void tst_DayEditorDrags::aDragBeyondBothEdgesPaintsTheWholeDay()
{
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Pull(0, 9999);
    QCOMPARE(Regions(bar), QStringLiteral("[0 86399]"));
    bar.SetDefenceTime({});
    bar.mouse.Pull(480, -9999);
    QCOMPARE(Regions(bar), QStringLiteral("[0 86399]"));
}

void tst_DayEditorDrags::paintingNextToARegionFusesWithIt()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 9 * Hour}});
    // From the middle of the quarter hour after the region, so that the hover does not erase, back to its
    // edge.
    const int from = bar.mouse.ColumnOf(9 * Hour + 50 * 60);
    bar.mouse.Pull(from, bar.mouse.ColumnOf(9 * Hour));
    QCOMPARE(Regions(bar), QStringLiteral("[28800 36000]"));
}

void tst_DayEditorDrags::hoveringOverARegionDecidesToErase()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Pull(bar.mouse.ColumnOf(10 * Hour), bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 36000][39600 43200]"));
}

void tst_DayEditorDrags::theSnappedEdgesOfARegionErase()
{
    // Stored 08:05 to 08:40, drawn 08:00 to 08:45.
    Bar bar;
    bar.CommitDrags();
    const AlarmDefenceTime_t stored{{8 * Hour + 300, 8 * Hour + 2400}};
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour)); // the first column at or after 08:00:00
    QCOMPARE(Regions(bar), QStringLiteral("[29700 31200]"));
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour + 2700) - 1); // the last one before 08:45:00
    QCOMPARE(Regions(bar), QStringLiteral("[29100 30600]"));
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour) - 1);
    QCOMPARE(Regions(bar), QStringLiteral("[27900 28800][29100 31200]"));
}

void tst_DayEditorDrags::aPressDecidesNothingByItself()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    const int inside = bar.mouse.ColumnOf(10 * Hour) + 1;
    bar.mouse.Hover(1); // outside: a paint
    bar.mouse.Press(inside);
    bar.mouse.Release(inside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
    bar.mouse.Hover(inside); // inside: an erase, wherever the press then is
    const int outside = bar.mouse.ColumnOf(20 * Hour) + 1;
    bar.mouse.Press(outside);
    bar.mouse.Release(outside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
    bar.mouse.Press(outside); // the flag is clear again
    bar.mouse.Release(outside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200][72000 72900]"));
}

void tst_DayEditorDrags::theHoverDoesNotChangeDuringADrag()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Hover(bar.mouse.ColumnOf(7 * Hour) + 1);
    bar.mouse.Press(bar.mouse.ColumnOf(7 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(10 * Hour)); // over the region
    bar.mouse.Release(bar.mouse.ColumnOf(10 * Hour));
    QCOMPARE(Regions(bar), QStringLiteral("[25200 43200]"));
}

void tst_DayEditorDrags::theEraseFlagLastsUntilTheCommitAndNoLonger()
{
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    QString atCommit;
    connect(&bar, &QAlarmDayEditor::SignalEditReady, this, [&] {
        bar.ApplyEdit();
        atCommit = Regions(bar);
    });
    const int from = bar.mouse.ColumnOf(10 * Hour);
    bar.mouse.Pull(from, bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(atCommit, QStringLiteral("[28800 36000][39600 43200]"));
    // The same drag applied once more after the release is a paint.
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
}

void tst_DayEditorDrags::otherButtonsDoNothing()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    QSignalSpy ready(&bar, &QAlarmDayEditor::SignalEditReady);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        bar.mouse.Hover(100);
        bar.mouse.Press(100, button);
        bar.mouse.Drag(200, button);
        bar.mouse.Release(200, button);
    }
    QCOMPARE(start.count(), 0);
    QCOMPARE(ready.count(), 0);
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditorDrags::aMoveWithoutTheLeftButtonHeldDoesNotDrag()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy editing(&bar, &QAlarmDayEditor::SignalEditing);
    bar.mouse.Hover(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Drag(300, Qt::RightButton);
    bar.mouse.Drag(300, Qt::NoButton);
    QCOMPARE(editing.count(), 0);
    bar.mouse.Drag(300, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(editing.count(), 1);
}

void tst_DayEditorDrags::aSecondPressRestartsTheDrag()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    bar.mouse.Hover(1);
    bar.mouse.Press(bar.mouse.ColumnOf(2 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(5 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(20 * Hour) + 1);
    bar.mouse.Release(bar.mouse.ColumnOf(20 * Hour) + 1);
    QCOMPARE(start.count(), 2);
    QCOMPARE(Regions(bar), QStringLiteral("[72000 72900]"));
}

void tst_DayEditorDrags::theSecondPressOfADoubleClickStartsADragToo()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    bar.mouse.Click(bar.mouse.ColumnOf(2 * Hour) + 1);
    bar.mouse.PressAgain(bar.mouse.ColumnOf(4 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(5 * Hour));
    bar.mouse.Release(bar.mouse.ColumnOf(5 * Hour) - 1);
    QCOMPARE(start.count(), 2);
    QCOMPARE(Regions(bar), QStringLiteral("[7200 8100][14400 18000]"));
}

void tst_DayEditorDrags::aDisabledBarTakesNoDrag()
{
    Bar bar;
    bar.CommitDrags();
    bar.setEnabled(false);
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    QSignalSpy ready(&bar, &QAlarmDayEditor::SignalEditReady);
    // Events that a window system would hold back, straight at the filter.
    for (const QEvent::Type type :
         {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(100, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(bar.eventFilter(bar.mouse.Display(), &event));
    }
    QCOMPARE(start.count(), 0);
    QCOMPARE(ready.count(), 0);
}

QTEST_MAIN(tst_DayEditorDrags)
#include "tst_day_editor_drags.moc"
