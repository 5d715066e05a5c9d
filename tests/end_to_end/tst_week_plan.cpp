#include "ClientDriver.h"
#include "Hand.h"
#include "SchemeFile.h"

#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QImage>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimeEdit>
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
constexpr int Days = 7;

constexpr int Quarters = 96;
constexpr int QuarterHour = 900;
constexpr int LastSecond = 86399;

QString WholeDay()
{
    return QStringLiteral("0:00-24:00");
}

QString ClockTime(int iQuarter)
{
    return QStringLiteral("%1:%2").arg(iQuarter / 4).arg(iQuarter % 4 * 15, 2, 10, QLatin1Char('0'));
}

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

    QWidget* Bar(int iDay) const
    {
        return m_driver->Page()->findChild<QWidget*>(QStringLiteral("editor%1").arg(iDay));
    }
    QWidget* Display(int iDay) const { return Bar(iDay)->findChild<QWidget*>(QStringLiteral("wndDisplay")); }
    bool ClickLock(const QString& strName) const
    {
        return Hand::Click(m_driver->Page()->findChild<QPushButton*>(strName));
    }
    bool IsLocked(int iDay) const
    {
        return m_driver->Page()->findChild<QPushButton*>(QStringLiteral("btn%1").arg(iDay))->isChecked();
    }

    /// The middle of the quarter hour that begins at this time of day, given in hours.
    QPoint At(int iDay, double dHours) const
    {
        const QWidget* pDisplay = Display(iDay);
        const int iSecond = qRound(dHours * 3600) + QuarterHour / 2;
        return {pDisplay->width() * iSecond / LastSecond, pDisplay->height() / 2};
    }
    /// A pull over the quarter hours from one time to before another. Over a region it erases.
    void Drag(int iDay, double dFrom, double dTo) const
    {
        QWidget* pDisplay = Display(iDay);
        const double dLast = dTo - 0.25;
        QVERIFY(Hand::Hover(pDisplay, At(iDay, dFrom)));
        QVERIFY(Hand::Press(pDisplay, At(iDay, dFrom)));
        QVERIFY(Hand::Hover(pDisplay, At(iDay, (dFrom + dLast) / 2)));
        QVERIFY(Hand::Hover(pDisplay, At(iDay, dLast)));
        QVERIFY(Hand::Release(pDisplay, At(iDay, dLast)));
    }
    QImage Picture(int iDay) const
    {
        return Display(iDay)->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    /// What the bar shows, read from its pixels: the times between which it is green.
    QString Seen(int iDay) const
    {
        const QImage picture = Picture(iDay);
        QStringList regions;
        int iBegin = -1;
        for (int i = 0; i <= Quarters; ++i) {
            // Beside the grid line of an hour.
            const bool bGreen =
                i < Quarters && picture.pixelColor(At(iDay, i / 4.0)) == QColor(QStringLiteral("#3AAA24"));
            if (bGreen && iBegin < 0) {
                iBegin = i;
            } else if (!bGreen && iBegin >= 0) {
                regions.append(ClockTime(iBegin) + QLatin1Char('-') + ClockTime(i));
                iBegin = -1;
            }
        }
        return regions.join(QLatin1Char(' '));
    }
    QStringList SeenWeek() const
    {
        QStringList week;
        for (int iDay = 0; iDay < Days; ++iDay) {
            week.append(Seen(iDay));
        }
        return week;
    }

    /// Opens the day's dialog by its button and does something in it; the dialog must have ended then.
    void InDialog(int iDay, const std::function<void(QWidget*)>& act) const
    {
        m_driver->AnswerDialogs({act});
        QVERIFY(Hand::Click(Bar(iDay)->findChild<QPushButton*>(QStringLiteral("btnDetail"))));
        QCOMPARE(m_driver->AnsweredDialogs(), 1);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
    /// Types the digits of a time, hours first, as "130507".
    static void TypeTime(QWidget* pDialog, const QString& strEdit, const QString& strDigits)
    {
        auto* pEdit = pDialog->findChild<QTimeEdit*>(strEdit);
        QVERIFY(pEdit != nullptr);
        QVERIFY(Hand::Click(pEdit, QPoint(8, pEdit->height() / 2)));
        // Coming in by the keyboard selects the hours, so that typing replaces them.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(pEdit->hasFocus());
        QTest::keyClicks(pEdit, strDigits);
        QCOMPARE(pEdit->time(), QTime::fromString(strDigits, QStringLiteral("HHmmss")));
    }
    static void TypeRow(QWidget* pDialog, int iRow, const QString& strBegin, const QString& strEnd)
    {
        TypeTime(pDialog, QStringLiteral("timeEditBegin%1").arg(iRow), strBegin);
        TypeTime(pDialog, QStringLiteral("timeEditEnd%1").arg(iRow), strEnd);
    }
    static QString Row(const QWidget* pDialog, int iRow)
    {
        return pDialog->findChild<QTimeEdit*>(QStringLiteral("timeEditBegin%1").arg(iRow))->text() +
               QLatin1Char('-') +
               pDialog->findChild<QTimeEdit*>(QStringLiteral("timeEditEnd%1").arg(iRow))->text();
    }
    static void ClickBox(QWidget* pDialog, const char* szBox)
    {
        auto* pBox = pDialog->findChild<QCheckBox*>(QLatin1String(szBox));
        QVERIFY(pBox != nullptr);
        const Qt::CheckState before = pBox->checkState();
        QVERIFY(Hand::Click(pBox, QPoint(10, pBox->height() / 2)));
        QVERIFY(pBox->checkState() != before);
    }
    static void ClickStandard(QWidget* pDialog, QDialogButtonBox::StandardButton button)
    {
        QVERIFY(Hand::Click(pDialog->findChild<QDialogButtonBox*>()->button(button)));
    }
    static void ClickOk(QWidget* pDialog) { ClickStandard(pDialog, QDialogButtonBox::Ok); }

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
    QCOMPARE(SeenWeek(), week); // a fresh scheme is armed all week

    // Monday from nothing.
    Drag(Monday, 0, 24);
    QCOMPARE(Seen(Monday), QString());
    Drag(Monday, 8, 12);
    Drag(Monday, 13, 16);
    week[Monday] = QStringLiteral("8:00-12:00 13:00-16:00");
    QCOMPARE(SeenWeek(), week);

    // Three days together.
    for (const int iDay : {Tuesday, Wednesday, Thursday}) {
        QVERIFY(ClickLock(QStringLiteral("btn%1").arg(iDay)));
        QVERIFY(IsLocked(iDay));
    }
    Drag(Wednesday, 0, 6);
    Drag(Thursday, 2, 3);
    for (const int iDay : {Tuesday, Wednesday, Thursday}) {
        week[iDay] = QStringLiteral("2:00-3:00 6:00-24:00");
    }
    QCOMPARE(SeenWeek(), week);

    // Exact seconds, typed: one row is changed, one is new.
    InDialog(Monday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("8:00:00-12:00:00"));
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:00:00-16:00:00"));
        QCOMPARE(Row(pDialog, 3), QStringLiteral("0:00:00-0:00:00"));
        QVERIFY(pDialog->findChild<QCheckBox*>(QStringLiteral("chkMonday"))->isChecked());
        QCOMPARE(pDialog->findChild<QCheckBox*>(QStringLiteral("chkAll"))->checkState(),
                 Qt::PartiallyChecked);
        TypeRow(pDialog, 2, QStringLiteral("130507"), QStringLiteral("175959"));
        TypeRow(pDialog, 3, QStringLiteral("203001"), QStringLiteral("203002"));
        ClickOk(pDialog);
    });
    // The picture is rounded outwards to quarter hours, the day is not.
    week[Monday] = QStringLiteral("8:00-12:00 13:00-18:00 20:30-20:45");
    QCOMPARE(SeenWeek(), week);

    // The same for the weekend.
    InDialog(Monday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:05:07-17:59:59"));
        ClickBox(pDialog, "chkSunday");
        ClickBox(pDialog, "chkSaturday");
        ClickOk(pDialog);
    });
    week[Sunday] = week[Saturday] = week[Monday];
    QCOMPARE(SeenWeek(), week);
    QList<QImage> pictures;
    for (int iDay = 0; iDay < Days; ++iDay) {
        pictures.append(Picture(iDay));
    }
    SaveAndEnd();

    const QString strTyped = QStringLiteral("28800-43200 47107-64799 73801-73802");
    const QString strLocked = QStringLiteral("7200-10800 21600-86399");
    QCOMPARE(StoredWeek(), (QStringList{strTyped, strTyped, strLocked, strLocked, strLocked,
                                        QStringLiteral("0-86399"), strTyped}));

    StartOnPlan();
    QCOMPARE(SeenWeek(), week);
    for (int iDay = 0; iDay < Days; ++iDay) {
        QVERIFY2(Picture(iDay) == pictures[iDay], qPrintable(QString::number(iDay)));
        QVERIFY(!IsLocked(iDay)); // a lock is no part of a scheme
    }
    InDialog(Saturday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("8:00:00-12:00:00"));
        QCOMPARE(Row(pDialog, 2), QStringLiteral("13:05:07-17:59:59"));
        QCOMPARE(Row(pDialog, 3), QStringLiteral("20:30:01-20:30:02"));
        QTest::keyClick(pDialog, Qt::Key_Escape);
    });
}

void TestWeekPlan::lockedDaysShowTheDragWhileItRuns()
{
    StartOnPlan();
    for (const int iDay : {Monday, Wednesday, Friday}) {
        QVERIFY(ClickLock(QStringLiteral("btn%1").arg(iDay)));
    }
    QWidget* pDisplay = Display(Monday);
    QVERIFY(Hand::Hover(pDisplay, At(Monday, 10)));
    QVERIFY(Hand::Press(pDisplay, At(Monday, 10)));
    QVERIFY(Hand::Hover(pDisplay, At(Monday, 13.75)));
    const QString strHole = QStringLiteral("0:00-10:00 14:00-24:00");
    QCOMPARE(SeenWeek(),
             (QStringList{WholeDay(), strHole, WholeDay(), strHole, WholeDay(), strHole, WholeDay()}));
    QVERIFY(Hand::Hover(pDisplay, At(Monday, 11.75)));
    const QString strSmaller = QStringLiteral("0:00-10:00 12:00-24:00");
    const QStringList week{WholeDay(), strSmaller, WholeDay(), strSmaller,
                           WholeDay(), strSmaller, WholeDay()};
    QCOMPARE(SeenWeek(), week);
    QVERIFY(Hand::Release(pDisplay, At(Monday, 11.75)));
    QCOMPARE(SeenWeek(), week);
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
    Drag(Wednesday, 0, 24);
    QStringList six;
    for (int i = 0; i < 6; ++i) {
        Drag(Wednesday, 2 * i, 2 * i + 1);
        six.append(QStringLiteral("%1:00-%2:00").arg(2 * i).arg(2 * i + 1));
    }
    QCOMPARE(Seen(Wednesday), six.join(QLatin1Char(' ')));
    Drag(Monday, 6, 24);
    QVERIFY(ClickLock(QStringLiteral("btn%1").arg(Monday)));
    QVERIFY(ClickLock(QStringLiteral("btn%1").arg(Wednesday)));
    const QStringList before = SeenWeek();
    Drag(Monday, 20, 21);
    QCOMPARE(SeenWeek(), before);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("6 regions at most."));
    // Nothing of the refused drag is left over: the next one, which both can take, is taken by both.
    Drag(Monday, 10, 11);
    QCOMPARE(Seen(Monday), QStringLiteral("0:00-6:00 10:00-11:00"));
    QCOMPARE(Seen(Wednesday), before[Wednesday]);
    SaveAndEnd();
    const QStringList stored = StoredWeek();
    QCOMPARE(stored[Monday], QStringLiteral("0-21600 36000-39600"));
    QCOMPARE(stored[Wednesday].count(QLatin1Char('-')), 6);
}

void TestWeekPlan::theLockOfAllDaysLocksTheWeek()
{
    StartOnPlan();
    QVERIFY(ClickLock(QStringLiteral("btnAll")));
    for (int iDay = 0; iDay < Days; ++iDay) {
        QVERIFY(IsLocked(iDay));
    }
    Drag(Saturday, 12, 24);
    QCOMPARE(SeenWeek().count(QStringLiteral("0:00-12:00")), Days);
    QVERIFY(ClickLock(QStringLiteral("btn%1").arg(Tuesday)));
    QVERIFY(!m_driver->Page()->findChild<QPushButton*>(QStringLiteral("btnAll"))->isChecked());
    Drag(Sunday, 12, 13);
    QCOMPARE(Seen(Tuesday), QStringLiteral("0:00-12:00"));
    QCOMPARE(SeenWeek().count(QStringLiteral("0:00-13:00")), Days - 1);
    SaveAndEnd();
    QCOMPARE(StoredWeek().count(QStringLiteral("0-46800")), Days - 1);
    QCOMPARE(StoredWeek().at(Tuesday), QStringLiteral("0-43200"));
}

void TestWeekPlan::aReversedRowLeavesTheDayAndSaysWhichRow()
{
    StartOnPlan();
    InDialog(Wednesday, [](QWidget* pDialog) {
        TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000"));
        TypeRow(pDialog, 3, QStringLiteral("120000"), QStringLiteral("110000"));
        ClickOk(pDialog); // ends the dialog all the same
    });
    QCOMPARE(ClientDriver::LastNote(),
             QStringLiteral("At 3 row, the end time is earlier than the start time."));
    QCOMPARE(Seen(Wednesday), WholeDay());
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Wednesday), QStringLiteral("0-86399"));
}

void TestWeekPlan::aDialogThatIsCancelledChangesNothing()
{
    StartOnPlan();
    const QStringList before = SeenWeek();
    const auto change = [](QWidget* pDialog) {
        TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000"));
        ClickBox(pDialog, "chkFriday");
    };
    InDialog(Tuesday, [change](QWidget* pDialog) {
        change(pDialog);
        ClickStandard(pDialog, QDialogButtonBox::Cancel);
    });
    InDialog(Tuesday, [change](QWidget* pDialog) {
        change(pDialog);
        QTest::keyClick(pDialog, Qt::Key_Escape);
    });
    // No day at all is nothing to do, whatever the rows say.
    InDialog(Tuesday, [](QWidget* pDialog) {
        TypeRow(pDialog, 1, QStringLiteral("080000"), QStringLiteral("090000"));
        ClickBox(pDialog, "chkTuesday");
        ClickOk(pDialog);
    });
    QCOMPARE(SeenWeek(), before);
}

void TestWeekPlan::aDayIsCopiedToOthersWithoutItself()
{
    StartOnPlan();
    InDialog(Friday, [](QWidget* pDialog) {
        TypeRow(pDialog, 1, QStringLiteral("093000"), QStringLiteral("110000"));
        TypeRow(pDialog, 2, QStringLiteral("080000"), QStringLiteral("100000")); // fuses with the first
        ClickBox(pDialog, "chkFriday");
        ClickBox(pDialog, "chkSunday");
        ClickBox(pDialog, "chkThursday");
        ClickOk(pDialog);
    });
    QCOMPARE(Seen(Friday), WholeDay());
    QCOMPARE(Seen(Sunday), QStringLiteral("8:00-11:00"));
    QCOMPARE(Seen(Thursday), QStringLiteral("8:00-11:00"));
    // Everything to every day, by the box for all.
    InDialog(Sunday, [](QWidget* pDialog) {
        ClickBox(pDialog, "chkAll");
        ClickOk(pDialog);
    });
    QCOMPARE(SeenWeek().count(QStringLiteral("8:00-11:00")), Days);
    SaveAndEnd();
    QCOMPARE(StoredWeek().count(QStringLiteral("28800-39600")), Days);
}

void TestWeekPlan::aPlanBelongsToItsEventAndDoor()
{
    StartOnPlan();
    Drag(Monday, 0, 8);
    const QString strPlan = QStringLiteral("8:00-24:00");
    QVERIFY(m_driver->ClickEvent(QCommon::GetAlarmNameByType(AlarmSchemeCommon::ACSAlarmEvent().at(0))));
    QCOMPARE(Seen(Monday), WholeDay());
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QCOMPARE(Seen(Monday), strPlan);
    OpenPlan(Turnstile);
    QCOMPARE(Seen(Monday), WholeDay());
    QVERIFY(m_driver->ClickButton("btnNotify"));
    OpenPlan();
    QCOMPARE(Seen(Monday), strPlan);
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
    Drag(Friday, 0, 12); // another day
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
    QCOMPARE(Seen(Tuesday), QStringLiteral("1:00-2:00"));
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Tuesday), QStringLiteral("3600-7200"));
}

void TestWeekPlan::okEmptiesADayOfSevenRegions()
{
    StartOnPlan();
    SaveAndEnd();
    StoreDay(Tuesday, {{0, 1}, {10, 20}, {30, 40}, {50, 60}, {70, 80}, {90, 100}, {110, 120}});
    StartOnPlan();
    InDialog(Tuesday, [](QWidget* pDialog) {
        QCOMPARE(Row(pDialog, 1), QStringLiteral("0:00:00-0:00:00"));
        ClickOk(pDialog);
    });
    QCOMPARE(Seen(Tuesday), QString());
    SaveAndEnd();
    QCOMPARE(StoredWeek().at(Tuesday), QString());
    StartOnPlan();
    QCOMPARE(Seen(Tuesday), QString());
}

QTEST_MAIN(TestWeekPlan)
#include "tst_week_plan.moc"
