#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "scheme_services/evaluation/EventCategories.h"

#include <QSet>
#include <QTest>

class TestEventCategories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyListedTypeHasItsCategory();
    void theAlarmInputsTypeIsACategoryOfItsOwn();
    void otherTypesAreUnknown();
    void categoriesHaveDifferentNames();
    void knownTypesAreListedOnce();
    void typesAreNamedByNumberOrName();
    void textsThatNameNoTypeAreRefused_data();
    void textsThatNameNoTypeAreRefused();
    void anyWholeNumberIsANumber();
};

void TestEventCategories::everyListedTypeHasItsCategory()
{
    const QList<int> alarm = AlarmSchemeCommon::ACSAlarmEvent();
    const QList<int> abnormal = AlarmSchemeCommon::ACSAbnormalEvent();
    const QList<int> normal = AlarmSchemeCommon::ACSNormalEvent();
    QVERIFY(!alarm.isEmpty() && !abnormal.isEmpty() && !normal.isEmpty());
    for (const int type : alarm)
        QCOMPARE(EventCategories::CategoryOf(type), EventCategory::Alarm);
    for (const int type : abnormal)
        QCOMPARE(EventCategories::CategoryOf(type), EventCategory::Abnormal);
    for (const int type : normal)
        QCOMPARE(EventCategories::CategoryOf(type), EventCategory::Normal);
    QCOMPARE(EventCategories::CategoryOf(22), EventCategory::Alarm);
}

void TestEventCategories::theAlarmInputsTypeIsACategoryOfItsOwn()
{
    QCOMPARE(EventCategories::CategoryOf(2), EventCategory::AlarmInput);
}

void TestEventCategories::otherTypesAreUnknown()
{
    for (const int type :
         {-1, 0, 1, 3, 999, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(EventCategories::CategoryOf(type), EventCategory::Unknown);
}

void TestEventCategories::categoriesHaveDifferentNames()
{
    QSet<QString> names;
    for (const EventCategory category : {EventCategory::Alarm, EventCategory::Abnormal, EventCategory::Normal,
                                         EventCategory::AlarmInput, EventCategory::Unknown})
        names.insert(EventCategories::NameOf(category));
    QCOMPARE(names.size(), 5);
}

void TestEventCategories::knownTypesAreListedOnce()
{
    const QList<int32_t> types = EventCategories::KnownTypes();
    QSet<int32_t> once;
    for (const int32_t type : types)
        once.insert(type);
    QCOMPARE(once.size(), types.size());
    QVERIFY(once.contains(2) && once.contains(22) && once.contains(101));
}

void TestEventCategories::typesAreNamedByNumberOrName()
{
    const QList<int32_t> types = EventCategories::KnownTypes();
    for (const int32_t type : types) {
        const QString strName = QCommon::GetAlarmNameByType(type);
        QCOMPARE(EventCategories::TypeOf(QString::number(type)), std::optional<int32_t>(type));
        QCOMPARE(EventCategories::TypeOf(strName), std::optional<int32_t>(type));
        QCOMPARE(EventCategories::TypeOf(strName.toUpper()), std::optional<int32_t>(type));
    }
}

void TestEventCategories::textsThatNameNoTypeAreRefused_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text : {"", "999", "-1", "+101", " 101", "101 ", "0x65", "1e2", "Event 999",
                                   "Door Forced", "99999999999999999999", "101.0"})
        QTest::newRow(text) << QString::fromLatin1(text);
    QTest::newRow("other digits") << QString(QChar(0x0662));
}

void TestEventCategories::textsThatNameNoTypeAreRefused()
{
    QFETCH(QString, text);
    QVERIFY(!EventCategories::TypeOf(text));
}

void TestEventCategories::anyWholeNumberIsANumber()
{
    QCOMPARE(EventCategories::NumberOf(QStringLiteral("999")), std::optional<int32_t>(999));
    QCOMPARE(EventCategories::NumberOf(QStringLiteral("2147483647")), std::optional<int32_t>(2147483647));
    QVERIFY(!EventCategories::NumberOf(QStringLiteral("2147483648")));
    QVERIFY(!EventCategories::NumberOf(QStringLiteral("-1")));
    QVERIFY(!EventCategories::NumberOf(QStringLiteral("Door Forced Open")));
}

QTEST_APPLESS_MAIN(TestEventCategories)
#include "tst_event_categories.moc"
