#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QSet>
#include <QTest>

#include <functional>
#include <vector>

using AlarmSchemeCommon::IsAlarmInfoDefault;
using Change = std::function<void(AlarmInfo&)>;
Q_DECLARE_METATYPE(Change)

namespace {

std::vector<QList<int>> Lists()
{
    return {AlarmSchemeCommon::ACSAlarmEvent(), AlarmSchemeCommon::ACSAbnormalEvent(),
            AlarmSchemeCommon::ACSNormalEvent()};
}

QByteArray Row(const char* strWhat, int iNumber)
{
    return QByteArray(strWhat) + ' ' + QByteArray::number(iNumber);
}

} // namespace

class tst_AlarmSchemeCommon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // the lists

    void everyListOffersSomething()
    {
        for (const QList<int>& list : Lists())
            QVERIFY(!list.isEmpty());
    }

    void noTypeStandsTwice()
    {
        QSet<int> seen;
        for (const QList<int>& list : Lists()) {
            for (int type : list) {
                QVERIFY2(!seen.contains(type), qPrintable(QString::number(type)));
                seen.insert(type);
            }
        }
    }

    void theTypeOfTheWholeDeviceStandsInOneList()
    {
        int found = 0;
        for (const QList<int>& list : Lists())
            found += list.count(EventSource::PerDeviceAlarmType);
        QCOMPARE(EventSource::PerDeviceAlarmType, 22);
        QCOMPARE(found, 1);
    }

    void theTypeOfTheAlarmInputStandsInNoList()
    {
        QCOMPARE(EventSource::AlarmInputAlarmType, 2);
        for (const QList<int>& list : Lists())
            QVERIFY(!list.contains(EventSource::AlarmInputAlarmType));
    }

    void noTypeIsNegative()
    {
        for (const QList<int>& list : Lists()) {
            for (int type : list)
                QVERIFY(type >= 0);
        }
    }

    void namesWithinAListAreUniqueAndNeverEmpty()
    {
        for (const QList<int>& list : Lists()) {
            QSet<QString> names;
            for (int type : list) {
                const QString name = QCommon::GetAlarmNameByType(type);
                QVERIFY2(!name.trimmed().isEmpty(), qPrintable(QString::number(type)));
                QVERIFY2(!names.contains(name), qPrintable(name));
                names.insert(name);
            }
        }
    }

    void theListsAreTheSameEveryTime() { QVERIFY(Lists() == Lists()); }

    // the default test

    void aFreshRecordIsDefault() { QVERIFY(IsAlarmInfoDefault(AlarmInfo())); }

    void everyChangedFieldShows_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const QByteArray& name, const Change& change) {
            QTest::newRow(name.constData()) << change;
        };
        row("enabled", [](AlarmInfo& info) { info.bOpen = true; });
        row("sound", [](AlarmInfo& info) { info.bOpenSound = true; });
        row("e-map", [](AlarmInfo& info) { info.bEmapTwinkle = true; });
        row("mail", [](AlarmInfo& info) { info.bSendEmail = true; });
        row("split rows", [](AlarmInfo& info) { info.videoSplit.SplitRow = 1; });
        row("split columns", [](AlarmInfo& info) { info.videoSplit.SplitCloum = 1; });
        row("split count", [](AlarmInfo& info) { info.videoSplit.SplitCount = 1; });
        row("split count below zero", [](AlarmInfo& info) { info.videoSplit.SplitCount = -1; });
        for (int window = 0; window < AlarmSplitCells::CellCount; ++window) {
            row(Row("cell enabled", window),
                [=](AlarmInfo& info) { info.videoSplit.cells[window].bEnable = false; });
            row(Row("cell merge", window),
                [=](AlarmInfo& info) { info.videoSplit.cells[window].iCombine = 1; });
            row(Row("cell X1", window), [=](AlarmInfo& info) { info.videoSplit.cells[window].X1 = 1; });
            row(Row("cell Y1", window), [=](AlarmInfo& info) { info.videoSplit.cells[window].Y1 = 1; });
            row(Row("cell X2", window), [=](AlarmInfo& info) { info.videoSplit.cells[window].X2 = 0; });
            row(Row("cell Y2", window), [=](AlarmInfo& info) { info.videoSplit.cells[window].Y2 = 0; });
        }
        row("video link", [](AlarmInfo& info) { info.videoSplit.videoLinks.insert(0, AlarmLinkVideo()); });
        row("alarm output", [](AlarmInfo& info) { info.listAlarmOut.append(AlarmLinkAlarmOut()); });
        row("door", [](AlarmInfo& info) { info.listDoor.append(AlarmLinkDoor()); });
        for (int day = 0; day < AlarmWeek::DayCount; ++day) {
            row(Row("empty day", day), [=](AlarmInfo& info) { info.defenceTime[day].clear(); });
            row(Row("later begin", day), [=](AlarmInfo& info) { info.defenceTime[day][0].Begin = 1; });
            row(Row("earlier end", day), [=](AlarmInfo& info) { info.defenceTime[day][0].End -= 1; });
            row(Row("another region", day), [=](AlarmInfo& info) { info.defenceTime[day].append({0, 60}); });
        }
    }

    void everyChangedFieldShows()
    {
        QFETCH(Change, change);
        AlarmInfo info;
        change(info);
        QVERIFY(!IsAlarmInfoDefault(info));
        QVERIFY(IsAlarmInfoDefault(AlarmInfo())); // what is shared between records stays as it was
    }

    void aRecordWrittenBackToItsDefaultsIsDefault()
    {
        AlarmInfo info;
        info.bOpen = true;
        info.bOpen = false;
        info.videoSplit.cells[63].bEnable = false;
        info.videoSplit.cells[63].bEnable = true;
        const AlarmDefenceTime_t monday = info.defenceTime[1];
        info.defenceTime[1].clear();
        info.defenceTime[1] = monday;
        info.listDoor.append(AlarmLinkDoor());
        info.listDoor.clear();
        QVERIFY(IsAlarmInfoDefault(info));
    }

    void aFreshWeekIsArmedAllDay()
    {
        const AlarmInfo info;
        for (int day = 0; day < AlarmWeek::DayCount; ++day) {
            QCOMPARE(info.defenceTime[day].size(), 1);
            QCOMPARE(info.defenceTime[day][0].Begin, 0);
            QCOMPARE(info.defenceTime[day][0].End, 86399);
        }
    }
};

QTEST_GUILESS_MAIN(tst_AlarmSchemeCommon)
#include "tst_AlarmSchemeCommon.moc"
