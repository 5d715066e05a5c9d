#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "platform/LXGUI/LXCheckBox.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/LXGUI/LXTimeEdit.h"
#include "platform/SystemLibrary/QSystem.h"
#include "tests/AlarmCtrl_week/DayTexts.h"
#include "tests/AlarmCtrl_week/DialogRows.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <limits>

using namespace DayTexts;

namespace {

template <typename T>
T* Child(const QWidget& parent, const QString& name)
{
    T* child = parent.findChild<T*>(name);
    Q_ASSERT(child != nullptr);
    return child;
}

QString Read(const QAlarmDayDetailEditor& dialog)
{
    AlarmDefenceTime_t regions{{1, 2}}; // to be forgotten
    dialog.GetRegions(regions);
    return Text(regions);
}

QStringList DayNames()
{
    return {QStringLiteral("chkSunday"),    QStringLiteral("chkMonday"),   QStringLiteral("chkTuesday"),
            QStringLiteral("chkWednesday"), QStringLiteral("chkThursday"), QStringLiteral("chkFriday"),
            QStringLiteral("chkSaturday")};
}

Qt::CheckState AllState(const QAlarmDayDetailEditor& dialog)
{
    return Child<LXGUI::LXCheckBox>(dialog, QStringLiteral("chkAll"))->checkState();
}

/// Runs the dialog and does something once it stands; returns its result.
template <typename Act>
int Run(QAlarmDayDetailEditor& dialog, Act act)
{
    QTimer::singleShot(0, &dialog, act);
    return dialog.exec();
}

/// Turns "Section" into another word, as a catalogue would.
class WordTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool ours = QLatin1String(context) == QLatin1String("QAlarmDayDetailEditor") &&
                          QLatin1String(text) == QLatin1String("Section");
        return ours ? QStringLiteral("%2段") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_DayDetailEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFormHasItsNamesClassesAndTexts();
    void theFormHasItsSpacingAndMargins();
    void theDialogHasOkAndCancel();

    void rowsShowTheRegionsToTheSecond();
    void rowsWithoutARegionKeepTheirTime();
    void sevenRegionsAreNotShownAtAll();
    void secondsOutsideTheDayAreShownAsItsEdges();
    void aTimeEditOfAnotherNameCountsAsAnEnd();

    void rowsComeBackFusedAndSorted();
    void touchingRowsComeBackAsOne();
    void anUnusedRowYieldsNothing();
    void untouchedRowsYieldAnEmptyDay();
    void theLastSecondSurvives();
    void aMissingEditSkipsItsRow();

    void goodRowsAreAccepted();
    void equalTimesAreAccepted();
    void aReversedRowIsReportedAndRejects();
    void onlyTheFirstReversedRowIsReported();
    void aMissingEditRejectsWithoutAMessage();
    void aReversedRowBeforeAMissingEditIsStillReported();
    void cancelEndsWithZero();
    void escapeEndsWithZero();

    void theMaskTicksItsDays_data();
    void theMaskTicksItsDays();
    void bitsBeyondTheWeekAreIgnored();
    void wednesdayAloneLeavesAllPartiallyChecked();
    void tickingAllDaysChecksAll();
    void untickingTheLastDayUnchecksAll();
    void clickingAllFromPartialTicksEveryDay();
    void clickingAllFromUncheckedTicksEveryDay();
    void clickingAllFromCheckedUnticksEveryDay();

    void rowLabelsHaveABlankInEveryLanguageButChinese_data();
    void rowLabelsHaveABlankInEveryLanguageButChinese();

    void everyEditHasAnAccessibleName();
    void theKeyboardReachesEveryControlInReadingOrder();
    void theKeyboardTypesTicksAndAccepts();
};

void tst_DayDetailEditor::init()
{
    QSystem::GetInstance()->SetLanguage(QStringLiteral("en"));
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->Clear();
}

void tst_DayDetailEditor::theFormHasItsNamesClassesAndTexts()
{
    const QAlarmDayDetailEditor dialog;
    const QWidget* central = dialog.GetCentralWidget();
    QCOMPARE(central->objectName(), QStringLiteral("QAlarmDayDetailEditor"));
    const auto* grid = Child<QGridLayout>(*central, QStringLiteral("gridLayout"));
    QCOMPARE(grid->rowCount(), 6);
    for (int row = 1; row <= 6; ++row) {
        const auto* begin = Child<LXGUI::LXTimeEdit>(*central, QStringLiteral("timeEditBegin%1").arg(row));
        const auto* end = Child<LXGUI::LXTimeEdit>(*central, QStringLiteral("timeEditEnd%1").arg(row));
        const auto* dash = Child<QLabel>(*central, QStringLiteral("label_%1").arg(row + 6));
        QCOMPARE(begin->displayFormat(), QStringLiteral("H:mm:ss"));
        QCOMPARE(end->displayFormat(), QStringLiteral("H:mm:ss"));
        QCOMPARE(begin->time(), QTime(0, 0));
        QCOMPARE(end->time(), QTime(0, 0));
        QCOMPARE(dash->text(), QStringLiteral("-"));
        QCOMPARE(grid->itemAtPosition(row - 1, 0)->widget()->objectName(),
                 QStringLiteral("label_%1").arg(row));
        QCOMPARE(grid->itemAtPosition(row - 1, 1)->widget(), begin);
        QCOMPARE(grid->itemAtPosition(row - 1, 2)->widget(), dash);
        QCOMPARE(grid->itemAtPosition(row - 1, 3)->widget(), end);
    }
    QCOMPARE(Child<LXGUI::LXCheckBox>(*central, QStringLiteral("chkAll"))->text(),
             QStringLiteral("Check All"));
    const QStringList texts{QStringLiteral("SUN"), QStringLiteral("MON"), QStringLiteral("TUE"),
                            QStringLiteral("WED"), QStringLiteral("THU"), QStringLiteral("FRI"),
                            QStringLiteral("SAT")};
    const auto* days = Child<QGridLayout>(*central, QStringLiteral("gridLayout_2"));
    for (int day = 0; day < 7; ++day) {
        const auto* box = Child<LXGUI::LXCheckBox>(*central, DayNames().at(day));
        QCOMPARE(box->text(), texts.at(day));
        QCOMPARE(days->itemAtPosition(day / 4, day % 4)->widget(), box);
    }
}

void tst_DayDetailEditor::theFormHasItsSpacingAndMargins()
{
    const QAlarmDayDetailEditor dialog;
    const auto* top = Child<QVBoxLayout>(dialog, QStringLiteral("verticalLayout_2"));
    QCOMPARE(top->spacing(), 10);
    QCOMPARE(top->contentsMargins(), QMargins(18, 18, 18, 18));
    const auto* grid = Child<QGridLayout>(dialog, QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 10);
    QCOMPARE(grid->verticalSpacing(), 10);
    const auto* all = Child<QHBoxLayout>(dialog, QStringLiteral("horizontalLayout_2"));
    QCOMPARE(all->spacing(), 4);
    QCOMPARE(all->contentsMargins().left(), 5);
    QCOMPARE(all->contentsMargins().right(), 5);
    const QSpacerItem* besideAll = all->itemAt(1)->spacerItem();
    QVERIFY(besideAll != nullptr);
    QCOMPARE(besideAll->sizeHint(), QSize(40, 20));
    const auto* days = Child<QGridLayout>(dialog, QStringLiteral("gridLayout_2"));
    QCOMPARE(days->contentsMargins().left(), 5);
    QCOMPARE(days->contentsMargins().right(), 5);
    const auto* separator = Child<QWidget>(dialog, QStringLiteral("widget"));
    QCOMPARE(separator->minimumHeight(), 2);
    QCOMPARE(separator->maximumHeight(), 2);
    QCOMPARE(separator->styleSheet(),
             QStringLiteral("border-top: 1px solid #1A1D20;\nborder-bottom: 1px solid #475157;"));
    const QSpacerItem* bottom = top->itemAt(top->count() - 1)->spacerItem();
    QVERIFY(bottom != nullptr);
    QCOMPARE(bottom->sizeHint(), QSize(20, 16));
    QCOMPARE(bottom->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(bottom->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
}

void tst_DayDetailEditor::theDialogHasOkAndCancel()
{
    const QAlarmDayDetailEditor dialog;
    const auto* box = dialog.findChild<QDialogButtonBox*>();
    QVERIFY(box != nullptr);
    QCOMPARE(static_cast<int>(box->standardButtons()), 0x400400);
}

void tst_DayDetailEditor::rowsShowTheRegionsToTheSecond()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetRegions({{1, 59}, {8 * Hour + 5, 17 * Hour + 30 * Minute}, {86398, 86399}});
    QCOMPARE(DialogRows::Text(dialog, 1), QStringLiteral("0:00:01-0:00:59"));
    QCOMPARE(DialogRows::Text(dialog, 2), QStringLiteral("8:00:05-17:30:00"));
    QCOMPARE(DialogRows::Text(dialog, 3), QStringLiteral("23:59:58-23:59:59"));
    QCOMPARE(Read(dialog), QStringLiteral("[1 59][28805 63000][86398 86399]"));
}

void tst_DayDetailEditor::rowsWithoutARegionKeepTheirTime()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 2, QTime(3, 0), QTime(4, 0));
    dialog.SetRegions({{Hour, 2 * Hour}});
    QCOMPARE(DialogRows::Text(dialog, 1), QStringLiteral("1:00:00-2:00:00"));
    QCOMPARE(DialogRows::Text(dialog, 2), QStringLiteral("3:00:00-4:00:00"));
    QCOMPARE(DialogRows::Text(dialog, 3), QStringLiteral("0:00:00-0:00:00"));
    dialog.SetRegions({});
    QCOMPARE(DialogRows::Text(dialog, 1), QStringLiteral("1:00:00-2:00:00"));
}

void tst_DayDetailEditor::sevenRegionsAreNotShownAtAll()
{
    AlarmDefenceTime_t regions;
    for (int i = 0; i < 6; ++i) {
        regions.append({2 * i * Hour, (2 * i + 1) * Hour});
    }
    QAlarmDayDetailEditor full;
    full.SetRegions(regions);
    QCOMPARE(DialogRows::Text(full, 6), QStringLiteral("10:00:00-11:00:00"));

    regions.append({20 * Hour, 21 * Hour});
    QAlarmDayDetailEditor tooFull;
    tooFull.SetRegions(regions);
    for (int row = 1; row <= 6; ++row) {
        QCOMPARE(DialogRows::Text(tooFull, row), QStringLiteral("0:00:00-0:00:00"));
    }
    QCOMPARE(Read(tooFull), QString());
}

void tst_DayDetailEditor::secondsOutsideTheDayAreShownAsItsEdges()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetRegions({{-5, 86400}, {90000, std::numeric_limits<int32_t>::max()}});
    QCOMPARE(DialogRows::Text(dialog, 1), QStringLiteral("0:00:00-23:59:59"));
    QCOMPARE(DialogRows::Text(dialog, 2), QStringLiteral("23:59:59-23:59:59"));
}

void tst_DayDetailEditor::aTimeEditOfAnotherNameCountsAsAnEnd()
{
    QAlarmDayDetailEditor dialog;
    auto* other = new LXGUI::LXTimeEdit(dialog.GetCentralWidget());
    other->setObjectName(QStringLiteral("another2"));
    auto* nameless = new LXGUI::LXTimeEdit(dialog.GetCentralWidget());
    dialog.SetRegions({{1, 2}, {Hour, 2 * Hour}});
    QCOMPARE(other->time(), QTime(2, 0));
    QCOMPARE(nameless->time(), QTime(0, 0));
}

void tst_DayDetailEditor::rowsComeBackFusedAndSorted()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(20, 0), QTime(21, 0));
    DialogRows::Type(dialog, 2, QTime(8, 0), QTime(10, 0));
    DialogRows::Type(dialog, 6, QTime(9, 30), QTime(11, 0));
    QCOMPARE(Read(dialog), QStringLiteral("[28800 39600][72000 75600]"));
}

void tst_DayDetailEditor::touchingRowsComeBackAsOne()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
    DialogRows::Type(dialog, 2, QTime(9, 0), QTime(10, 0));
    QCOMPARE(Read(dialog), QStringLiteral("[28800 36000]"));
}

void tst_DayDetailEditor::anUnusedRowYieldsNothing()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(10, 0), QTime(10, 0));
    DialogRows::Type(dialog, 2, QTime(12, 0), QTime(11, 0));
    DialogRows::Type(dialog, 4, QTime(1, 2, 3), QTime(1, 2, 4));
    QCOMPARE(Read(dialog), QStringLiteral("[3723 3724]"));
}

void tst_DayDetailEditor::untouchedRowsYieldAnEmptyDay()
{
    QCOMPARE(Read(QAlarmDayDetailEditor()), QString());
}

void tst_DayDetailEditor::theLastSecondSurvives()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetRegions({{0, 86399}});
    QCOMPARE(Read(dialog), QStringLiteral("[0 86399]"));
}

void tst_DayDetailEditor::aMissingEditSkipsItsRow()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetRegions({{1, 2}, {5, 6}, {8, 9}});
    delete Child<QTimeEdit>(dialog, QStringLiteral("timeEditEnd2"));
    QCOMPARE(Read(dialog), QStringLiteral("[1 2][8 9]"));
}

void tst_DayDetailEditor::goodRowsAreAccepted()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Ok)->click(); }), 1);
    QCOMPARE(notes.count(), 0);
}

void tst_DayDetailEditor::equalTimesAreAccepted()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(10, 0), QTime(10, 0));
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Ok)->click(); }), 1);
    QCOMPARE(Read(dialog), QString());
}

void tst_DayDetailEditor::aReversedRowIsReportedAndRejects()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 3, QTime(12, 0), QTime(11, 0));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Ok)->click(); }), 0);
    QCOMPARE(notes.count(), 1);
    QCOMPARE(notes.first().first().toString(),
             QStringLiteral("At 3 row, the end time is earlier than the start time."));
    QVERIFY(!dialog.isVisible());
}

void tst_DayDetailEditor::onlyTheFirstReversedRowIsReported()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 2, QTime(0, 0, 1), QTime(0, 0, 0));
    DialogRows::Type(dialog, 5, QTime(12, 0), QTime(11, 0));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QCOMPARE(Run(dialog, [&] { dialog.OnBtnOkClicked(); }), 0);
    QCOMPARE(notes.count(), 1);
    QCOMPARE(notes.first().first().toString(),
             QStringLiteral("At 2 row, the end time is earlier than the start time."));
}

void tst_DayDetailEditor::aMissingEditRejectsWithoutAMessage()
{
    QAlarmDayDetailEditor dialog;
    delete Child<QTimeEdit>(dialog, QStringLiteral("timeEditBegin6"));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Ok)->click(); }), 0);
    QCOMPARE(notes.count(), 0);
}

void tst_DayDetailEditor::aReversedRowBeforeAMissingEditIsStillReported()
{
    QAlarmDayDetailEditor dialog;
    DialogRows::Type(dialog, 1, QTime(2, 0), QTime(1, 0));
    DialogRows::Type(dialog, 4, QTime(2, 0), QTime(1, 0));
    delete Child<QTimeEdit>(dialog, QStringLiteral("timeEditEnd3"));
    QSignalSpy notes(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(),
                     &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Ok)->click(); }), 0);
    QCOMPARE(notes.count(), 1);
    QCOMPARE(notes.first().first().toString(),
             QStringLiteral("At 1 row, the end time is earlier than the start time."));
}

void tst_DayDetailEditor::cancelEndsWithZero()
{
    QAlarmDayDetailEditor dialog;
    QCOMPARE(Run(dialog, [&] { dialog.GetButton(QDialogButtonBox::Cancel)->click(); }), 0);
}

void tst_DayDetailEditor::escapeEndsWithZero()
{
    QAlarmDayDetailEditor dialog;
    QCOMPARE(Run(dialog, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }), 0);
}

void tst_DayDetailEditor::theMaskTicksItsDays_data()
{
    QTest::addColumn<int>("mask");
    QTest::newRow("none") << 0;
    QTest::newRow("Sunday") << 1;
    QTest::newRow("Saturday") << 64;
    QTest::newRow("all") << 127;
    QTest::newRow("some") << 0x2A;
}

void tst_DayDetailEditor::theMaskTicksItsDays()
{
    QFETCH(int, mask);
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(127);
    dialog.SetDayMask(mask);
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(Child<QAbstractButton>(dialog, DayNames().at(day))->isChecked(), (mask >> day & 1) == 1);
    }
    QCOMPARE(dialog.GetDayMask(), mask);
    QCOMPARE(AllState(dialog), mask == 0 ? Qt::Unchecked : mask == 127 ? Qt::Checked : Qt::PartiallyChecked);
}

void tst_DayDetailEditor::bitsBeyondTheWeekAreIgnored()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(0x7FFFFF80);
    QCOMPARE(dialog.GetDayMask(), 0);
    dialog.SetDayMask(-1);
    QCOMPARE(dialog.GetDayMask(), 127);
}

void tst_DayDetailEditor::wednesdayAloneLeavesAllPartiallyChecked()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(8);
    QCOMPARE(AllState(dialog), Qt::PartiallyChecked);
    QVERIFY(Child<QAbstractButton>(dialog, QStringLiteral("chkWednesday"))->isChecked());
}

void tst_DayDetailEditor::tickingAllDaysChecksAll()
{
    QAlarmDayDetailEditor dialog;
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(AllState(dialog), day == 0 ? Qt::Unchecked : Qt::PartiallyChecked);
        Child<QAbstractButton>(dialog, DayNames().at(day))->click();
    }
    QCOMPARE(AllState(dialog), Qt::Checked);
    QCOMPARE(dialog.GetDayMask(), 127);
}

void tst_DayDetailEditor::untickingTheLastDayUnchecksAll()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(2);
    Child<QAbstractButton>(dialog, QStringLiteral("chkMonday"))->click();
    QCOMPARE(AllState(dialog), Qt::Unchecked);
}

void tst_DayDetailEditor::clickingAllFromPartialTicksEveryDay()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(8);
    Child<QAbstractButton>(dialog, QStringLiteral("chkAll"))->click();
    QCOMPARE(AllState(dialog), Qt::Checked);
    QCOMPARE(dialog.GetDayMask(), 127);
}

void tst_DayDetailEditor::clickingAllFromUncheckedTicksEveryDay()
{
    // Once it has been partial, a click on the unchecked box makes it partial first.
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(8);
    dialog.SetDayMask(0);
    Child<QAbstractButton>(dialog, QStringLiteral("chkAll"))->click();
    QCOMPARE(AllState(dialog), Qt::Checked);
    QCOMPARE(dialog.GetDayMask(), 127);
}

void tst_DayDetailEditor::clickingAllFromCheckedUnticksEveryDay()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetDayMask(127);
    Child<QAbstractButton>(dialog, QStringLiteral("chkAll"))->click();
    QCOMPARE(AllState(dialog), Qt::Unchecked);
    QCOMPARE(dialog.GetDayMask(), 0);
}

void tst_DayDetailEditor::rowLabelsHaveABlankInEveryLanguageButChinese_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("translated");
    QTest::addColumn<QString>("third");
    QTest::newRow("en") << QStringLiteral("en") << false << QStringLiteral("Section 3");
    QTest::newRow("zh_cn") << QStringLiteral("zh_cn") << false << QStringLiteral("Section3");
    QTest::newRow("ZH_CN") << QStringLiteral("ZH_CN") << false << QStringLiteral("Section 3");
    QTest::newRow("none") << QString() << false << QStringLiteral("Section 3");
    QTest::newRow("zh_cn, a word with a mark in it")
        << QStringLiteral("zh_cn") << true << QStringLiteral("%2段3");
}

void tst_DayDetailEditor::rowLabelsHaveABlankInEveryLanguageButChinese()
{
    QFETCH(QString, language);
    QFETCH(bool, translated);
    WordTranslator translator;
    if (translated) {
        QCoreApplication::installTranslator(&translator);
    }
    QSystem::GetInstance()->SetLanguage(language);
    const QAlarmDayDetailEditor dialog;
    QTEST(Child<QLabel>(dialog, QStringLiteral("label_3"))->text(), "third");
    QVERIFY(Child<QLabel>(dialog, QStringLiteral("label_6"))->text().endsWith(QLatin1Char('6')));
}

void tst_DayDetailEditor::everyEditHasAnAccessibleName()
{
    const QAlarmDayDetailEditor dialog;
    for (int row = 1; row <= 6; ++row) {
        QCOMPARE(Child<QTimeEdit>(dialog, QStringLiteral("timeEditBegin%1").arg(row))->accessibleName(),
                 QStringLiteral("Region %1 begin").arg(row));
        QCOMPARE(Child<QTimeEdit>(dialog, QStringLiteral("timeEditEnd%1").arg(row))->accessibleName(),
                 QStringLiteral("Region %1 end").arg(row));
    }
}

void tst_DayDetailEditor::theKeyboardReachesEveryControlInReadingOrder()
{
    QStringList expected;
    for (int row = 1; row <= 6; ++row) {
        expected << QStringLiteral("timeEditBegin%1").arg(row) << QStringLiteral("timeEditEnd%1").arg(row);
    }
    expected << QStringLiteral("chkAll") << DayNames();

    QAlarmDayDetailEditor dialog;
    QStringList reached;
    const QWidget* start = Child<QTimeEdit>(dialog, expected.first());
    const QWidget* widget = start;
    do {
        if (expected.contains(widget->objectName())) {
            QVERIFY((widget->focusPolicy() & Qt::TabFocus) != 0);
            reached << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != start);
    QCOMPARE(reached, expected);
}

void tst_DayDetailEditor::theKeyboardTypesTicksAndAccepts()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetRegions({{8 * Hour, 9 * Hour}});
    const int result = Run(dialog, [&] {
        auto* end = Child<QTimeEdit>(dialog, QStringLiteral("timeEditEnd1"));
        end->setFocus();
        end->setCurrentSection(QDateTimeEdit::HourSection);
        QTest::keyClick(end, Qt::Key_Up);
        auto* monday = Child<QAbstractButton>(dialog, QStringLiteral("chkMonday"));
        QTest::keyClick(monday, Qt::Key_Space);
        QTest::keyClick(monday, Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(Read(dialog), QStringLiteral("[28800 36000]"));
    QCOMPARE(dialog.GetDayMask(), 2);
}

QTEST_MAIN(tst_DayDetailEditor)
#include "tst_day_detail_editor.moc"
