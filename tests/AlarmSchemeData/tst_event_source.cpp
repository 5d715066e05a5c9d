#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int64_t Most = std::numeric_limits<int64_t>::max();
constexpr int64_t Least = std::numeric_limits<int64_t>::min();

} // namespace

class EventSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatIsWrittenAsAgreed();
    void largestAndSmallestIdsComeBackWhole();
    void aTextSplitsOnlyIntoExactlyFourNumbers_data();
    void aTextSplitsOnlyIntoExactlyFourNumbers();
    void fieldsAreCountedEvenWhenEmpty();
    void theFirstFieldIsReadFromAnyNumberOfFields();
    void aSourceBelongsToTheDeviceOfItsFirstField();
    void anOutputKeyGivesItsChannel();
    void anythingElseThanAnOutputKeyGivesMinusOne();
    void thePerDeviceTypeIsKeptUnderTheWholeDevice();
    void otherTypesKeepTheirSource();
    void aSourceThatDoesNotSplitHasNoPerDeviceScheme();
};

void EventSourceTest::everyFormatIsWrittenAsAgreed()
{
    QCOMPARE(EventSource::Unit(7), QStringLiteral("7$1$0$0"));
    QCOMPARE(EventSource::Door(7, 12), QStringLiteral("7$1$0$12"));
    QCOMPARE(EventSource::WholeDevice(7), QStringLiteral("7$1$0$-1"));
    QCOMPARE(EventSource::AccessControlDevice(7), QStringLiteral("7$1$1$0"));
    QCOMPARE(EventSource::AlarmUnit(7), QStringLiteral("7$3$0$0"));
    QCOMPARE(EventSource::AlarmInput(7, 12, true), QStringLiteral("7$3$1$12"));
    QCOMPARE(EventSource::AlarmInput(7, 12, false), QStringLiteral("7$3$0$12"));
    QCOMPARE(EventSource::AlarmOutput(12), QStringLiteral("12$3$0$0"));
}

void EventSourceTest::largestAndSmallestIdsComeBackWhole()
{
    const auto fields = EventSource::Split(EventSource::Door(Most, Least));
    QVERIFY(fields.has_value());
    QCOMPARE(fields->iOwner, Most);
    QCOMPARE(fields->iUnitType, int64_t(1));
    QCOMPARE(fields->iSubKind, int64_t(0));
    QCOMPARE(fields->iChannel, Least);
}

void EventSourceTest::aTextSplitsOnlyIntoExactlyFourNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("splits");
    QTest::newRow("a door") << QStringLiteral("1$1$0$2") << true;
    QTest::newRow("a whole device") << QStringLiteral("1$1$0$-1") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("three fields") << QStringLiteral("1$1$0") << false;
    QTest::newRow("five fields") << QStringLiteral("1$1$0$2$3") << false;
    QTest::newRow("a missing first field") << QStringLiteral("$1$0$2") << false;
    QTest::newRow("a missing last field") << QStringLiteral("1$1$0$") << false;
    QTest::newRow("only separators") << QStringLiteral("$$$") << false;
    QTest::newRow("a word") << QStringLiteral("1$door$0$2") << false;
    QTest::newRow("a fraction") << QStringLiteral("1$1$0$2.5") << false;
    QTest::newRow("hexadecimal") << QStringLiteral("0x1$1$0$2") << false;
    QTest::newRow("a blank") << QStringLiteral("1$1$0$ 2") << false;
    QTest::newRow("a plus") << QStringLiteral("+1$1$0$2") << false;
    QTest::newRow("only a minus") << QStringLiteral("-$1$0$2") << false;
    QTest::newRow("two minuses") << QStringLiteral("--1$1$0$2") << false;
    QTest::newRow("a group separator") << QStringLiteral("1,000$1$0$2") << false;
    QTest::newRow("beyond 64 bits") << QStringLiteral("9223372036854775808$1$0$2") << false;
    QTest::newRow("the largest") << QStringLiteral("9223372036854775807$1$0$2") << true;
    QTest::newRow("the smallest") << QStringLiteral("-9223372036854775808$1$0$2") << true;
    QTest::newRow("a text of digits without end") << QString(100000, QLatin1Char('9')) << false;
    QTest::newRow("other digits") << QString::fromUtf8("\xD9\xA1$1$0$2") << false;
    QTest::newRow("a null character") << QStringLiteral("1$1$0$2") + QChar(0) << false;
}

void EventSourceTest::aTextSplitsOnlyIntoExactlyFourNumbers()
{
    QFETCH(QString, text);
    QTEST(EventSource::Split(text).has_value(), "splits");
}

void EventSourceTest::fieldsAreCountedEvenWhenEmpty()
{
    QCOMPARE(EventSource::FieldCount(QString()), 0);
    QCOMPARE(EventSource::FieldCount(QStringLiteral("1")), 1);
    QCOMPARE(EventSource::FieldCount(QStringLiteral("$")), 2);
    QCOMPARE(EventSource::FieldCount(QStringLiteral("1$$$")), 4);
    QCOMPARE(EventSource::FieldCount(QStringLiteral("1$2$3$4$5")), 5);
}

void EventSourceTest::theFirstFieldIsReadFromAnyNumberOfFields()
{
    QVERIFY(EventSource::FirstField(QStringLiteral("12")) == 12);
    QVERIFY(EventSource::FirstField(QStringLiteral("12$")) == 12);
    QVERIFY(EventSource::FirstField(QStringLiteral("-1$x$y")) == -1);
    QVERIFY(EventSource::FirstField(QStringLiteral("12$1$0$2$5")) == 12);
    QVERIFY(!EventSource::FirstField(QString()));
    QVERIFY(!EventSource::FirstField(QStringLiteral("$12")));
    QVERIFY(!EventSource::FirstField(QStringLiteral("x$1$0$2")));
    QVERIFY(!EventSource::FirstField(QStringLiteral("99999999999999999999$1$0$2")));
}

void EventSourceTest::aSourceBelongsToTheDeviceOfItsFirstField()
{
    QVERIFY(EventSource::BelongsToDevice(EventSource::Door(7, 1), 7));
    QVERIFY(EventSource::BelongsToDevice(EventSource::WholeDevice(7), 7));
    QVERIFY(!EventSource::BelongsToDevice(EventSource::Door(77, 7), 7));
    QVERIFY(!EventSource::BelongsToDevice(QStringLiteral("7$1$0"), 7));
    QVERIFY(!EventSource::BelongsToDevice(QStringLiteral("7$1$0$1$1"), 7));
    QVERIFY(!EventSource::BelongsToDevice(QStringLiteral("x$1$0$1"), 0));
    QVERIFY(!EventSource::BelongsToDevice(QString(), 0));
    // Only the first field is read as a number.
    QVERIFY(EventSource::BelongsToDevice(QStringLiteral("7$a$b$c"), 7));
}

void EventSourceTest::anOutputKeyGivesItsChannel()
{
    QCOMPARE(EventSource::OutputChannelId(EventSource::AlarmOutput(12)), int64_t(12));
    QCOMPARE(EventSource::OutputChannelId(EventSource::AlarmOutput(Most)), Most);
    QCOMPARE(EventSource::OutputChannelId(QStringLiteral("12$3$x$")), int64_t(12));
}

void EventSourceTest::anythingElseThanAnOutputKeyGivesMinusOne()
{
    for (const char* text : {"", "12", "12$3$0", "12$3$0$0$0", "12$1$0$0", "x$3$0$0", "$3$0$0", "12$$0$0",
                             "12$three$0$0", "9223372036854775808$3$0$0"})
        QCOMPARE(EventSource::OutputChannelId(QString::fromLatin1(text)), int64_t(-1));
}

void EventSourceTest::thePerDeviceTypeIsKeptUnderTheWholeDevice()
{
    const auto first = EventSource::SchemeKey(EventSource::Door(7, 1), EventSource::PerDeviceAlarmType);
    const auto second = EventSource::SchemeKey(EventSource::Door(7, 2), EventSource::PerDeviceAlarmType);
    QVERIFY(first && second);
    QCOMPARE(first->strEventSource, QStringLiteral("7$1$0$-1"));
    QCOMPARE(first->AlarmType, 22);
    QVERIFY(*first == *second);
    // The number is written anew.
    QCOMPARE(EventSource::SchemeKey(QStringLiteral("007$1$0$1"), 22)->strEventSource,
             QStringLiteral("7$1$0$-1"));
}

void EventSourceTest::otherTypesKeepTheirSource()
{
    const auto key = EventSource::SchemeKey(EventSource::Door(7, 1), 21);
    QVERIFY(key && *key == (AlarmSourceKey{QStringLiteral("7$1$0$1"), 21}));
}

void EventSourceTest::aSourceThatDoesNotSplitHasNoPerDeviceScheme()
{
    for (const char* text : {"", "7", "7$1$0", "7$1$0$1$1", "x$1$0$1", "$$$"})
        QVERIFY(!EventSource::SchemeKey(QString::fromLatin1(text), EventSource::PerDeviceAlarmType));
}

QTEST_APPLESS_MAIN(EventSourceTest)
#include "tst_event_source.moc"
