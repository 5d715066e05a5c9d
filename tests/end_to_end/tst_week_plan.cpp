#include "ClientDriver.h"
#include "Hand.h"
#include "SchemeFile.h"
#include "WeekPlanHand.h"

#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>

namespace {

// From the sample site.
constexpr qint64 MainEntrance = 100101;
constexpr qint64 Turnstile = 100102;

constexpr int Sunday = 0;
constexpr int Monday = 1;
constexpr int Tuesday = 2;
constexpr int Wednesday = 3;
constexpr int Thursday = 4;
constexpr int Friday = 5;
constexpr int Saturday = 6;
constexpr int Days = WeekPlanHand::Days;

QString WholeDay()
{
    return QStringLiteral("0:00-24:00");
}

using DayDialogHand::ClickBox;
using DayDialogHand::ClickButton;
using DayDialogHand::ClickOk;
using DayDialogHand::Row;
using DayDialogHand::TypeRow;

} // namespace

class TestWeekPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPlanIsPaintedTypedLockedCopiedSavedAndFoundAgain();
    void lockedDaysShowTheDragWhileItRuns();
    void aFullLockedDayKeepsAllLockedDays();
    void theLockOfAllDaysLocksTheWeek();
    void aReversedRowLeavesTheDayAndSaysWhichRow();
    void aDialogThatIsCancelledChangesNothing();
    void aDayIsCopiedToOthersWithoutItself();
    void aPlanBelongsToItsEventAndDoor();
    void daysThatNobodyCouldPaintAreKeptUntilEdited_data();
    void daysThatNobodyCouldPaintAreKeptUntilEdited();
    void storedRowsThatAreNoTimesAreNotShown();
    void okEmptiesADayOfSevenRegions();

private:
    void StartOnPage()
    {
        m_driver = std::make_unique<ClientDriver>(m_data->path());
        QVERIFY(m_driver->Start());
        QVERIFY(m_driver->OpenByTile());
    }
    void OpenPlan(qint64 iDoor = MainEntrance)
    {
        QVERIFY(m_driver->ClickNode(iDoor, Hand::KindChannel));
        QVERIFY(m_driver->ClickEvent(m_strEvent));
        QVERIFY(m_driver->ClickButton("btnDefTime"));
    }
    void StartOnPlan()
    {
        StartOnPage();
        OpenPlan();
    }
    void SaveAndEnd()
    {
        QVERIFY(m_driver->ClickButton("btnSave"));
        m_driver->End();
    }

    WeekPlanHand Plan() const { return WeekPlanHand(*m_driver); }

    /// "begin-end begin-end" of the seven days, Sunday first, as the file holds the scheme.
    QStringList StoredWeek(const QString& strSource = QStringLiteral("1001$1$0$100101")) const
    {
        QStringList week;
        const SchemeFile file(m_driver->DatabasePath());
        for (int iDay = 1; iDay <= Days; ++iDay) {
            week.append(
                file.Rows(QStringLiteral("select t.\"Begin\" || '-' || t.\"End\" from AlarmDefenceTimeInfo t "
                                         "join AlarmUniqueID u on u.AlarmUniqueID = t.AlarmUniqueID where "
                                         "u.strEventSource = '%1' and u.AlarmType = %2 and t.Day = %3 "
                                         "order by t.id")
                              .arg(strSource)
                              .arg(m_iType)
                              .arg(iDay))
                    .join(QLatin1Char(' ')));
        }
        return week;
    }
    void StoreDay(int iDay, const QList<QPair<int, int>>& regions) const
    {
        const SchemeFile file(m_driver->DatabasePath());
        const QString strId =
            file.Rows(QStringLiteral("select AlarmUniqueID from AlarmUniqueID where "
                                     "strEventSource = '1001$1$0$100101' and AlarmType = %1")
                          .arg(m_iType))
                .join(QLatin1Char(' '));
        QVERIFY(!strId.isEmpty());
        QVERIFY(file.Execute(
            QStringLiteral("delete from AlarmDefenceTimeInfo where AlarmUniqueID = %1 and Day = %2")
                .arg(strId)
                .arg(iDay + 1)));
        for (const QPair<int, int>& region : regions) {
            QVERIFY(file.Execute(QStringLiteral("insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, "
                                                "\"Begin\", \"End\") values(%1, %2, %3, %4)")
                                     .arg(strId)
                                     .arg(iDay + 1)
                                     .arg(region.first)
                                     .arg(region.second)));
        }
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientDriver> m_driver;
    int m_iType = -1;
    QString m_strEvent;
    QString m_strWorkingDirectory;
};

void TestWeekPlan::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
    // Not the first entry, which is current without any click.
    m_iType = AlarmSchemeCommon::ACSAlarmEvent().at(2);
    m_strEvent = QCommon::GetAlarmNameByType(m_iType);
}

void TestWeekPlan::cleanup()
{
    m_driver.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestWeekPlan::aPlanIsPaintedTypedLockedCopiedSavedAndFoundAgain()
{
    StartOnPlan();
    QStringList week;
    for (int iDay = 0; iDay < Days; ++iDay) {
        week.append(WholeDay());
    }
    QCOMPARE(Plan().SeenWeek(), week); // a fresh scheme is armed all week

    // Monday from nothing.
    QVERIFY(Plan().Drag(Monday, 0, 24));
    QCOMPARE(Plan().Seen(Monday), QString());
    QVERIFY(Plan().Drag(Monday, 8, 12));
    QVERIFY(Plan().Drag(Monday, 13, 16));
    week[Monday] = QStringLiteral("8:00-12:00 13:00-16:00");
    QCOMPARE(Plan().SeenWeek(), week);

    // Three days together.
    for (const int iDay : {Tuesday, Wednesday, Thursday}) {
        QVERIFY(Plan().ClickLock(iDay));
        QVERIFY(Plan().IsLocked(iDay));
    }
    QVERIFY(Plan().Drag(Wednesday, 0, 6));
    QVERIFY(Plan().Drag(Thursday, 2, 3));
    for (const int iDay : {Tuesday, Wednesday, Thursday}) {
        week[iDay] = QStringLiteral("2:00-3:00 6:00-24:00");
    }
    QCOMPARE(Plan().SeenWeek(), week);

    // Exact seconds, typed: one row is changed, one is new.
    QVERIFY(Plan().InDialog(Monday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("8:00:00-12:00:00"));
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:00:00-16:00:00"));
        QCOMPARE(Row(pDialog, 3), QStringLiteral("0:00:00-0:00:00"));
        QVERIFY(pDialog->findChild<QCheckBox*>(QStringLiteral("chkMonday"))->isChecked());
        QCOMPARE(pDialog->findChild<QCheckBox*>(QStringLiteral("chkAll"))->checkState(),
                 Qt::PartiallyChecked);
        QVERIFY(TypeRow(pDialog, 2, QStringLiteral("130507"), QStringLiteral("175959")));
        QVERIFY(TypeRow(pDialog, 3, QStringLiteral("203001"), QStringLiteral("203002")));
        QVERIFY(ClickOk(pDialog));
    }));
    // The picture is rounded outwards to quarter hours, the day is not.
    week[Monday] = QStringLiteral("8:00-12:00 13:00-18:00 20:30-20:45");
    QCOMPARE(Plan().SeenWeek(), week);

    // The same for the weekend.
    QVERIFY(Plan().InDialog(Monday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:05:07-17:59:59"));
        QVERIFY(ClickBox(pDialog, "chkSunday"));
        QVERIFY(ClickBox(pDialog, "chkSaturday"));
        QVERIFY(ClickOk(pDialog));
    }));
    week[Sunday] = week[Saturday] = week[Monday];
    QCOMPARE(Plan().SeenWeek(), week);
    QList<QImage> pictures;
    for (int iDay = 0; iDay < Days; ++iDay) {
        pictures.append(Plan().Picture(iDay));
    }
    SaveAndEnd();

    const QString strTyped = QStringLiteral("28800-43200 47107-64799 73801-73802");
    const QString strLocked = QStringLiteral("7200-10800 21600-86399");
    QCOMPARE(StoredWeek(), (QStringList{strTyped, strTyped, strLocked, strLocked, strLocked,
                                        QStringLiteral("0-86399"), strTyped}));

    StartOnPlan();
    QCOMPARE(Plan().SeenWeek(), week);
    for (int iDay = 0; iDay < Days; ++iDay) {
        QVERIFY2(Plan().Picture(iDay) == pictures[iDay], qPrintable(QString::number(iDay)));
        QVERIFY(!Plan().IsLocked(iDay)); // a lock is no part of a scheme
    }
    QVERIFY(Plan().InDialog(Saturday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("8:00:00-12:00:00"));
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:05:07-17:59:59"));
        QCOMPARE(Row(pDialog, 3), QStringLiteral("20:30:01-20:30:02"));
        QTest::keyClick(pDialog, Qt::Key_Escape);
    }));
}

void TestWeekPlan::lockedDaysShowTheDragWhileItRuns()
{
    StartOnPlan();
    for (const int iDay : {Monday, Wednesday, Friday}) {
        QVERIFY(Plan().ClickLock(iDay));
    }
    QVERIFY(Plan().HoverAt(Monday, 10));
    QVERIFY(Plan().PressAt(Monday, 10));
    QVERIFY(Plan().HoverAt(Monday, 13.75));
    const QString strHole = QStringLiteral("0:00-10:00 14:00-24:00");
    QCOMPARE(Plan().SeenWeek(),
             (QStringList{WholeDay(), strHole, WholeDay(), strHole, WholeDay(), strHole, WholeDay()}));
    QVERIFY(Plan().HoverAt(Monday, 11.75));
    const QString strSmaller = QStringLiteral("0:00-10:00 12:00-24:00");
    const QStringList week{WholeDay(), strSmaller, WholeDay(), strSmaller,
                           WholeDay(), strSmaller, WholeDay()};
    QCOMPARE(Plan().SeenWeek(), week);
    QVERIFY(Plan().ReleaseAt(Monday, 11.75));
    QCOMPARE(Plan().SeenWeek(), week);
    SaveAndEnd();
    const QString strStored = QStringLiteral("0-36000 43200-86399");
    const QString strWhole = QStringLiteral("0-86399");
    QCOMPARE(StoredWeek(),
             (QStringList{strWhole, strStored, strWhole, strStored, strWhole, strStored, strWhole}));
}

void TestWeekPlan::aFullLockedDayKeepsAllLockedDays()
{
    StartOnPlan();
    // Wednesday has six regions, Monday one.
    QVERIFY(Plan().Drag(Wednesday, 0, 24));
    QStringList six;
    for (int i = 0; i < 6; ++i) {
        QVERIFY(Plan().Drag(Wednesday, 2 * i, 2 * i + 1));
        six.append(QStringLiteral("%1:00-%2:00").arg(2 * i).arg(2 * i + 1));
    }
    QCOMPARE(Plan().Seen(Wednesday), six.join(QLatin1Char(' ')));
    QVERIFY(Plan().Drag(Monday, 6, 24));
    QVERIFY(Plan().ClickLock(Monday));
    QVERIFY(Plan().ClickLock(Wednesday));
    const QStringList before = Plan().SeenWeek();
    QVERIFY(Plan().Drag(Monday, 20, 21));
    QCOMPARE(Plan().SeenWeek(), before);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("6 regions at most."));
    // Nothing of the refused drag is left over: the next one, which both can take, is taken by both.
    QVERIFY(Plan().Drag(Monday, 10, 11));
    QCOMPARE(Plan().Seen(Monday), QStringLiteral("0:00-6:00 10:00-11:00"));
    QCOMPARE(Plan().Seen(Wednesday), before[Wednesday]);
    SaveAndEnd();
    const QStringList stored = StoredWeek();
    QCOMPARE(stored[Monday], QStringLiteral("0-21600 36000-39600"));
    QCOMPARE(stored[Wednesday].count(QLatin1Char('-')), 6);
}

void TestWeekPlan::theLockOfAllDaysLocksTheWeek()
{
    StartOnPlan();
    QVERIFY(Plan().ClickLock(QStringLiteral("btnAll")));
    for (int iDay = 0; iDay < Days; ++iDay) {
        QVERIFY(Plan().IsLocked(iDay));
    }
    QVERIFY(Plan().Drag(Saturday, 12, 24));
    QCOMPARE(Plan().SeenWeek().count(QStringLiteral("0:00-12:00")), Days);
    QVERIFY(Plan().ClickLock(Tuesday));
    QVERIFY(!m_driver->Page()->findChild<QPushButton*>(QStringLiteral("btnAll"))->isChecked());
    QVERIFY(Plan().Drag(Sunday, 12, 13));
    QCOMPARE(Plan().Seen(Tuesday), QStringLiteral("0:00-12:00"));
    QCOMPARE(Plan().SeenWeek().count(QStringLiteral("0:00-13:00")), Days - 1);
    SaveAndEnd();
    QCOMPARE(StoredWeek().count(QStringLiteral("0-46800")), Days - 1);
    QCOMPARE(StoredWeek().at(Tuesday), QStringLiteral("0-43200"));
}

void TestWeekPlan::aReversedRowLeavesTheDayAndSaysWhichRow()
{
    StartOnPlan();
    QVERIFY(Plan().InDialog(Wednesday, [](QWidget* pDialog) {
        QVERIFY(TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000")));
        QVERIFY(TypeRow(pDialog, 3, QStringLiteral("120000"), QStringLiteral("110000")));
        QVERIFY(ClickOk(pDialog)); // ends the dialog all the same
    }));
    QCOMPARE(ClientDriver::LastNote(),
             QStringLiteral("At 3 row, the end time is earlier than the start time."));
    QCOMPARE(Plan().Seen(Wednesday), WholeDay());
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Wednesday), QStringLiteral("0-86399"));
}

void TestWeekPlan::aDialogThatIsCancelledChangesNothing()
{
    StartOnPlan();
    const QStringList before = Plan().SeenWeek();
    const auto change = [](QWidget* pDialog) {
        QVERIFY(TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000")));
        QVERIFY(ClickBox(pDialog, "chkFriday"));
    };
    QVERIFY(Plan().InDialog(Tuesday, [change](QWidget* pDialog) {
        change(pDialog);
        QVERIFY(ClickButton(pDialog, QDialogButtonBox::Cancel));
    }));
    QVERIFY(Plan().InDialog(Tuesday, [change](QWidget* pDialog) {
        change(pDialog);
        QTest::keyClick(pDialog, Qt::Key_Escape);
    }));
    // No day at all is nothing to do, whatever the rows say.
    QVERIFY(Plan().InDialog(Tuesday, [](QWidget* pDialog) {
        QVERIFY(TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000")));
        QVERIFY(ClickBox(pDialog, "chkTuesday"));
        QVERIFY(ClickOk(pDialog));
    }));
    QCOMPARE(Plan().SeenWeek(), before);
}

void TestWeekPlan::aDayIsCopiedToOthersWithoutItself()
{
    StartOnPlan();
    QVERIFY(Plan().InDialog(Friday, [](QWidget* pDialog) {
        QVERIFY(TypeRow(pDialog, 1, QStringLiteral("093000"), QStringLiteral("110000")));
        QVERIFY(
            TypeRow(pDialog, 2, QStringLiteral("080000"), QStringLiteral("100000"))); // fuses with the first
        QVERIFY(ClickBox(pDialog, "chkFriday"));
        QVERIFY(ClickBox(pDialog, "chkSunday"));
        QVERIFY(ClickBox(pDialog, "chkThursday"));
        QVERIFY(ClickOk(pDialog));
    }));
    QCOMPARE(Plan().Seen(Friday), WholeDay());
    QCOMPARE(Plan().Seen(Sunday), QStringLiteral("8:00-11:00"));
    QCOMPARE(Plan().Seen(Thursday), QStringLiteral("8:00-11:00"));
    // Everything to every day, by the box for all.
    QVERIFY(Plan().InDialog(Sunday, [](QWidget* pDialog) {
        QVERIFY(ClickBox(pDialog, "chkAll"));
        QVERIFY(ClickOk(pDialog));
    }));
    QCOMPARE(Plan().SeenWeek().count(QStringLiteral("8:00-11:00")), Days);
    SaveAndEnd();
    QCOMPARE(StoredWeek().count(QStringLiteral("28800-39600")), Days);
}

void TestWeekPlan::aPlanBelongsToItsEventAndDoor()
{
    StartOnPlan();
    QVERIFY(Plan().Drag(Monday, 0, 8));
    const QString strPlan = QStringLiteral("8:00-24:00");
    QVERIFY(m_driver->ClickEvent(QCommon::GetAlarmNameByType(AlarmSchemeCommon::ACSAlarmEvent().at(0))));
    QCOMPARE(Plan().Seen(Monday), WholeDay());
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QCOMPARE(Plan().Seen(Monday), strPlan);
    OpenPlan(Turnstile);
    QCOMPARE(Plan().Seen(Monday), WholeDay());
    QVERIFY(m_driver->ClickButton("btnNotify"));
    OpenPlan();
    QCOMPARE(Plan().Seen(Monday), strPlan);
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Monday), QStringLiteral("28800-86399"));
    QCOMPARE(StoredWeek(QStringLiteral("1001$1$0$100102")).at(Monday), QStringLiteral("0-86399"));
}

void TestWeekPlan::daysThatNobodyCouldPaintAreKeptUntilEdited_data()
{
    using Regions = QList<QPair<int, int>>;
    QTest::addColumn<Regions>("regions");
    QTest::newRow("seven") << Regions{{0, 1}, {10, 20}, {30, 40}, {50, 60}, {70, 80}, {90, 100}, {110, 120}};
    QTest::newRow("unsorted") << Regions{{50000, 60000}, {100, 200}};
    QTest::newRow("overlapping") << Regions{{100, 5000}, {3000, 9000}};
    QTest::newRow("touching") << Regions{{28800, 32400}, {32400, 36000}};
    QTest::newRow("beyond the day") << Regions{{80000, 90000}, {100000, 2147483647}};
    QTest::newRow("none") << Regions{};
}

void TestWeekPlan::daysThatNobodyCouldPaintAreKeptUntilEdited()
{
    using Regions = QList<QPair<int, int>>;
    QFETCH(Regions, regions);
    StartOnPlan();
    SaveAndEnd();
    StoreDay(Tuesday, regions);
    const QStringList before = StoredWeek();
    StartOnPlan();
    QVERIFY(m_driver->ClickButton("btnNotify"));
    QVERIFY(m_driver->ClickButton("btnDefTime"));
    QVERIFY(Plan().Drag(Friday, 0, 12)); // another day
    SaveAndEnd();
    QStringList after = before;
    after[Friday] = QStringLiteral("43200-86399");
    QCOMPARE(StoredWeek(), after);
}

void TestWeekPlan::storedRowsThatAreNoTimesAreNotShown()
{
    StartOnPlan();
    SaveAndEnd();
    StoreDay(Tuesday, {{9000, 100}, {-500, 900}, {3600, 7200}});
    StartOnPlan();
    QCOMPARE(Plan().Seen(Tuesday), QStringLiteral("1:00-2:00"));
    QVERIFY(Plan().Drag(Friday, 0, 12)); // a week that nobody has changed is not written again
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Tuesday), QStringLiteral("3600-7200"));
}

void TestWeekPlan::okEmptiesADayOfSevenRegions()
{
    StartOnPlan();
    SaveAndEnd();
    StoreDay(Tuesday, {{0, 1}, {10, 20}, {30, 40}, {50, 60}, {70, 80}, {90, 100}, {110, 120}});
    StartOnPlan();
    QVERIFY(Plan().InDialog(Tuesday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("0:00:00-0:00:00"));
        QVERIFY(ClickOk(pDialog));
    }));
    QCOMPARE(Plan().Seen(Tuesday), QString());
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Tuesday), QString());
    StartOnPlan();
    QCOMPARE(Plan().Seen(Tuesday), QString());
}

QTEST_MAIN(TestWeekPlan)
#include "tst_week_plan.moc"
