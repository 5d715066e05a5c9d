#include "AlarmCtrl/AlarmSchemeData/AlarmInfoBytes.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"

#include <QRandomGenerator>
#include <QtTest>

class AlarmInfoBytesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadBack();
    void equalRecordsGiveEqualBytes();
    void differentRecordsGiveDifferentBytes();
    void aFreshRecordTakesFewBytes();
    void anyTextComesBackUnchanged();
    void bytesThatAreCutOffAreRefused();
    void bytesWithSomethingBehindAreRefused();
    void anotherVersionIsRefused();
    void countsThatPromiseTooMuchTakeNoMemory();
    void spoiltBytesDoNoHarm();
};

void AlarmInfoBytesTest::whatIsWrittenIsReadBack()
{
    for (quint32 seed = 1; seed <= 300; ++seed) {
        const AlarmInfo info = RandomSchemes(seed).Info();
        const std::optional<AlarmInfo> read = AlarmInfoBytes::Read(AlarmInfoBytes::Write(info));
        QVERIFY2(read && *read == info, qPrintable(QString::number(seed)));
    }
}

void AlarmInfoBytesTest::equalRecordsGiveEqualBytes()
{
    AlarmInfo a;
    AlarmInfo b;
    b.defenceTime[3].append({0, 1});
    b.defenceTime[3].removeLast(); // its own memory, the same content
    b.videoSplit.cells[5].X2 = 1;
    // A text that was never set is equal to an empty one.
    a.listDoor = {{QString(), true}};
    b.listDoor = {{QString(QLatin1String("")), true}};
    QVERIFY(a == b);
    QCOMPARE(AlarmInfoBytes::Write(a), AlarmInfoBytes::Write(b));
}

void AlarmInfoBytesTest::differentRecordsGiveDifferentBytes()
{
    QSet<QByteArray> seen{AlarmInfoBytes::Write(AlarmInfo())};
    const auto isNew = [&seen](const std::function<void(AlarmInfo&)>& change) {
        AlarmInfo info;
        change(info);
        const QByteArray bytes = AlarmInfoBytes::Write(info);
        const bool fresh = !seen.contains(bytes);
        seen.insert(bytes);
        return fresh;
    };
    QVERIFY(isNew([](AlarmInfo& info) { info.bOpen = true; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.bOpenSound = true; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.bEmapTwinkle = true; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.bSendEmail = true; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.SplitRow = 1; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.SplitCloum = 1; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.SplitCount = 1; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.cells[0].iCombine = 1; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.cells[63].iCombine = 1; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.videoLinks[0].Time = 3; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.videoSplit.videoLinks[-1].Time = 3; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.listAlarmOut = {{QStringLiteral("1$3$0$0"), true, 20}}; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.listAlarmOut = {{QStringLiteral("1$3$0$0"), false, 20}}; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.listAlarmOut = {{QStringLiteral("1$3$0$0"), true, 21}}; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.listDoor = {{QStringLiteral("1"), false}}; }));
    QVERIFY(isNew([](AlarmInfo& info) { info.defenceTime[0].clear(); }));
    QVERIFY(isNew([](AlarmInfo& info) { info.defenceTime[6].clear(); }));
    QVERIFY(isNew([](AlarmInfo& info) { info.defenceTime[6] = {{0, 1}}; }));
}

void AlarmInfoBytesTest::aFreshRecordTakesFewBytes()
{
    QVERIFY(AlarmInfoBytes::Write(AlarmInfo()).size() < 64);
}

void AlarmInfoBytesTest::anyTextComesBackUnchanged()
{
    AlarmInfo info;
    const QString lone = QString(QChar(0xD800)) + QChar(0) + QStringLiteral("\"%1$");
    info.listAlarmOut = {{lone, true, 5}, {QString(), true, -1}};
    const std::optional<AlarmInfo> read = AlarmInfoBytes::Read(AlarmInfoBytes::Write(info));
    QVERIFY(read);
    QCOMPARE(read->listAlarmOut.first().strLinkAlarmID, lone);
    QVERIFY(*read == info);
}

void AlarmInfoBytesTest::bytesThatAreCutOffAreRefused()
{
    const QByteArray bytes = AlarmInfoBytes::Write(RandomSchemes(7).Info());
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY2(!AlarmInfoBytes::Read(bytes.left(size)), qPrintable(QString::number(size)));
}

void AlarmInfoBytesTest::bytesWithSomethingBehindAreRefused()
{
    QVERIFY(!AlarmInfoBytes::Read(AlarmInfoBytes::Write(AlarmInfo()) + '\0'));
}

void AlarmInfoBytesTest::anotherVersionIsRefused()
{
    QByteArray bytes = AlarmInfoBytes::Write(AlarmInfo());
    bytes[0] = static_cast<char>(bytes.at(0) + 1);
    QVERIFY(!AlarmInfoBytes::Read(bytes));
    QVERIFY(!AlarmInfoBytes::Read(QByteArray()));
}

void AlarmInfoBytesTest::countsThatPromiseTooMuchTakeNoMemory()
{
    const QByteArray fresh = AlarmInfoBytes::Write(AlarmInfo());
    // Wherever four bytes are a count or a length, this is the greatest one.
    for (int at = 2; at + 4 <= fresh.size(); ++at) {
        QByteArray bytes = fresh;
        bytes.replace(at, 4, "\xFE\xFF\xFF\x7F", 4);
        AlarmInfoBytes::Read(bytes); // returns, and soon
        bytes.replace(at, 4, "\xFE\xFF\xFF\xFF", 4);
        AlarmInfoBytes::Read(bytes);
    }
}

void AlarmInfoBytesTest::spoiltBytesDoNoHarm()
{
    QRandomGenerator random(20);
    for (quint32 seed = 1; seed <= 200; ++seed) {
        QByteArray bytes = AlarmInfoBytes::Write(RandomSchemes(seed).Info());
        for (int hit = 0; hit < 4; ++hit)
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        // What can still be read is a record like any other.
        if (const std::optional<AlarmInfo> read = AlarmInfoBytes::Read(bytes)) {
            const auto again = AlarmInfoBytes::Read(AlarmInfoBytes::Write(*read));
            QVERIFY2(again && *again == *read, qPrintable(QString::number(seed)));
        }
    }
}

QTEST_APPLESS_MAIN(AlarmInfoBytesTest)
#include "tst_alarm_info_bytes.moc"
