#include "tests/AlarmSchemeData/SampleSchemes.h"
#include "tests/scheme_exchange/SchemeTexts.h"

#include <QTest>

#include <limits>

using SchemeTexts::File;
using SchemeTexts::Scheme;

namespace {

AlarmInfo Only(const AlarmInfoMap& map)
{
    return map.value(AlarmSourceKey{QStringLiteral("7$1$0$12"), 101});
}

QStringList Problems(const QByteArray& text)
{
    AlarmInfoMap map{{AlarmSourceKey{QStringLiteral("old"), 1}, AlarmInfo()}};
    QStringList problems = SchemeTexts::Read(text, map);
    if (!problems.isEmpty() && !map.isEmpty())
        return {QStringLiteral("a map in spite of problems")};
    return problems;
}

/// Fails in the middle.
class BrokenDevice : public QIODevice
{
public:
    BrokenDevice() { open(QIODevice::ReadOnly); }

protected:
    qint64 readData(char* pData, qint64 iMost) override
    {
        if (m_bBroken) {
            setErrorString(QStringLiteral("the cable is out"));
            return -1;
        }
        m_bBroken = true;
        const QByteArray start = File("").left(static_cast<int>(qMin<qint64>(iMost, 40)));
        std::copy(start.cbegin(), start.cend(), pData);
        return start.size();
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    bool m_bBroken = false;
};

} // namespace

class TestSchemeTextReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noSchemesAreRead();
    void aMissingFieldTakesItsDefault();
    void everyFieldIsRead();
    void fieldsMayComeInAnyOrder();
    void aMarkOfTheEncodingIsPassedOver();
    void alikeSchemesShareTheirMemory();
    void problemsAreFound_data();
    void problemsAreFound();
    void everyProblemIsFoundWithItsLine();
    void problemsComeInTheOrderOfTheLines();
    void numbersOf32BitsAreTaken();
    void whatIsNoFileOfSchemesIsSaidOnce_data();
    void whatIsNoFileOfSchemesIsSaidOnce();
    void anotherVersionIsNotReadOn();
    void aTextWithoutEndIsNoTrouble();
    void soManyProblemsAreEnough();
    void aDeviceThatFailsIsToldOf();
    void everyCutIsNoticed();
    void progressIsTold();
};

void TestSchemeTextReader::noSchemesAreRead()
{
    AlarmInfoMap map{{AlarmSourceKey{QStringLiteral("old"), 1}, AlarmInfo()}};
    QCOMPARE(SchemeTexts::Read(File(""), map), QStringList());
    QVERIFY(map.isEmpty());
}

void TestSchemeTextReader::aMissingFieldTakesItsDefault()
{
    AlarmInfoMap map;
    QCOMPARE(SchemeTexts::Read(Scheme(""), map), QStringList());
    QCOMPARE(map.size(), 1);
    QVERIFY(Only(map) == AlarmInfo());
    QCOMPARE(SchemeTexts::Read(Scheme("\"split\":{\"SplitRow\":1,\"SplitCloum\":2,\"SplitCount\":2,"
                                      "\"cells\":[{\"windowID\":1}]},\"videoLinks\":[{\"WindowID\":1}],"
                                      "\"alarmOut\":[{}],\"doors\":[{\"id\":\"5\"}],"
                                      "\"defenceTime\":[[{}],[],[],[],[],[],[{\"End\":5}]]"),
                               map),
             QStringList());
    AlarmInfo expected;
    expected.videoSplit.SplitRow = 1;
    expected.videoSplit.SplitCloum = 2;
    expected.videoSplit.SplitCount = 2;
    expected.videoSplit.videoLinks.insert(1, AlarmLinkVideo());
    expected.listAlarmOut = {AlarmLinkAlarmOut()};
    expected.listDoor = {AlarmLinkDoor{QStringLiteral("5"), false}};
    for (int day = 0; day < 7; ++day)
        expected.defenceTime[day].clear();
    expected.defenceTime[0] = {AlarmTimeRegion{0, 0}};
    expected.defenceTime[6] = {AlarmTimeRegion{0, 5}};
    QVERIFY(Only(map) == expected);
    QCOMPARE(Only(map).listAlarmOut.first().Time, 20);
    QVERIFY(Only(map).videoSplit.videoLinks.first().bOpen);
}

void TestSchemeTextReader::everyFieldIsRead()
{
    AlarmInfo info = SampleSchemes::Rich();
    info.listDoor.append(AlarmLinkDoor{QStringLiteral("-4294967299"), true}); // beyond 32 bits
    info.defenceTime[1] = {AlarmTimeRegion{0, 3600}, AlarmTimeRegion{7200, 86399}};
    const AlarmInfoMap map{{AlarmSourceKey{QStringLiteral("7$1$0$12"), 101}, info}};
    AlarmInfoMap read;
    QCOMPARE(SchemeTexts::Read(SchemeTexts::Write(map), read), QStringList());
    QVERIFY(read == map);
}

void TestSchemeTextReader::fieldsMayComeInAnyOrder()
{
    AlarmInfoMap map;
    QCOMPARE(SchemeTexts::Read("{\"schemes\":[{\"videoLinks\":[{\"Time\":3,\"WindowID\":0}],"
                               "\"split\":{\"cells\":[{\"X1\":7,\"windowID\":0}],\"SplitCount\":1,"
                               "\"SplitRow\":1,\"SplitCloum\":1},\"AlarmType\":2,\"strEventSource\":\"b\"},"
                               "{\"strEventSource\":\"a\",\"AlarmType\":2}],\"version\":1,"
                               "\"format\":\"alarm-schemes\"}",
                               map),
             QStringList());
    QCOMPARE(map.size(), 2);
    QCOMPARE(map.first().videoSplit.videoLinks.size(), 0);
    QCOMPARE(map.last().videoSplit.videoLinks.value(0).Time, 3);
    QCOMPARE(qAsConst(map.last().videoSplit.cells)[0].X1, 7);
}

void TestSchemeTextReader::aMarkOfTheEncodingIsPassedOver()
{
    AlarmInfoMap map;
    QCOMPARE(SchemeTexts::Read("\xEF\xBB\xBF" + Scheme(""), map), QStringList());
    QCOMPARE(map.size(), 1);
}

void TestSchemeTextReader::alikeSchemesShareTheirMemory()
{
    AlarmInfoMap map;
    for (int door = 0; door < 3; ++door) {
        AlarmInfo info;
        if (door > 0) {
            info.defenceTime[3] = {AlarmTimeRegion{5, 6}};
            info.videoSplit.SplitRow = info.videoSplit.SplitCloum = 2;
            info.videoSplit.cells[1].X1 = 5;
        }
        map.insert(AlarmSourceKey{EventSource::Door(7, 1), door}, info);
    }
    AlarmInfoMap read;
    QCOMPARE(SchemeTexts::Read(SchemeTexts::Write(map), read), QStringList());
    const QList<AlarmInfo> schemes = read.values();
    QVERIFY(schemes[0].defenceTime.IsSharedWith(AlarmWeek()));
    QVERIFY(schemes[1].defenceTime.IsSharedWith(schemes[2].defenceTime));
    QVERIFY(schemes[0].videoSplit.cells.IsSharedWith(AlarmSplitCells()));
    QVERIFY(schemes[1].videoSplit.cells.IsSharedWith(schemes[2].videoSplit.cells));
    QVERIFY(read.firstKey().strEventSource.constData() == read.lastKey().strEventSource.constData());
}

void TestSchemeTextReader::problemsAreFound_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* szName, const QByteArray& text, const char* szProblem) {
        QTest::newRow(szName) << text << QString::fromUtf8(szProblem);
    };
    const QByteArray range = " must be a whole number from -2147483648 to 2147483647";

    row("unknown field", Scheme("\"bOpne\":true"), "2: there is no field \"bOpne\" here");
    row("unknown field with content", Scheme("\"x\":{\"y\":[1,{\"z\":null}]},\"bOpen\":true"),
        "2: there is no field \"x\" here");
    row("unknown field of the file",
        "{\"format\":\"alarm-schemes\",\"version\":1,\"author\":[1],\"schemes\":[]}",
        "1: there is no field \"author\" here");
    row("field of another object", Scheme("\"Time\":3"), "2: there is no field \"Time\" here");
    row("other case", Scheme("\"bopen\":true"), "2: there is no field \"bopen\" here");
    row("nearly a field", Scheme("\"bOpen\\u0000\":true"), "2: there is no field \"bOpen\xEF\xBF\xBD\" here");
    row("field twice", Scheme("\"bOpen\":true,\"bOpen\":true"), "2: \"bOpen\" stands here twice");
    row("list twice", Scheme("\"doors\":[],\"doors\":[{\"id\":\"x\"}]"), "2: \"doors\" stands here twice");
    row("key field twice", Scheme("\"AlarmType\":5"), "2: \"AlarmType\" stands here twice");
    row("version twice", "{\"format\":\"alarm-schemes\",\"version\":1,\"version\":2,\"schemes\":[]}",
        "1: \"version\" stands here twice");
    row("no source", File("{\"AlarmType\":101}"), "2: \"strEventSource\" is missing");
    row("no type", File("{\"strEventSource\":\"7$1$0$12\"}"), "2: \"AlarmType\" is missing");
    row("no schemes", "{\"format\":\"alarm-schemes\",\"version\":1}", "1: \"schemes\" is missing");
    row("no version", "{\"format\":\"alarm-schemes\",\"schemes\":[]}", "1: \"version\" is missing");
    row("schemes as an object", "{\"format\":\"alarm-schemes\",\"version\":1,\"schemes\":{}}",
        "1: \"schemes\" must be a list");
    row("scheme as a number", File("5"), "2: the entries of this list must be objects");
    row("scheme as a list", File("[{}]"), "2: the entries of this list must be objects");
    row("number as a text", Scheme("\"split\":{\"SplitRow\":\"1\"}"),
        ("2: \"SplitRow\"" + range).constData());
    row("number with a fraction", Scheme("\"split\":{\"SplitRow\":1.0}"),
        ("2: \"SplitRow\"" + range).constData());
    row("number with an exponent", Scheme("\"split\":{\"SplitRow\":1e2}"),
        ("2: \"SplitRow\"" + range).constData());
    row("too great", Scheme("\"split\":{\"SplitRow\":2147483648}"), ("2: \"SplitRow\"" + range).constData());
    row("too small", Scheme("\"split\":{\"SplitRow\":-2147483649}"), ("2: \"SplitRow\"" + range).constData());
    row("long", Scheme("\"split\":{\"SplitRow\":" + QByteArray(300, '9') + "}"),
        ("2: \"SplitRow\"" + range).constData());
    row("huge", Scheme("\"split\":{\"SplitRow\":" + QByteArray(400, '9') + "}"),
        "2: a number has too many digits");
    row("infinite", Scheme("\"split\":{\"SplitRow\":1e999999}"), "2: a number has too many digits");
    row("flag as a number", Scheme("\"bOpen\":1"), "2: \"bOpen\" must be true or false");
    row("flag as nothing", Scheme("\"bOpen\":null"), "2: \"bOpen\" must be true or false");
    row("flag as an object", Scheme("\"bOpen\":{\"bOpen\":true}"), "2: \"bOpen\" must be true or false");
    row("split as a list", Scheme("\"split\":[]"), "2: \"split\" must be an object");
    row("split as nothing", Scheme("\"split\":null"), "2: \"split\" must be an object");
    row("cells as a text", Scheme("\"split\":{\"cells\":\"\"}"), "2: \"cells\" must be a list");
    row("source as a number", File("{\"strEventSource\":7,\"AlarmType\":101}"),
        "2: \"strEventSource\" must be a text");
    row("source with a quote", File("{\"strEventSource\":\"a\\\"b\",\"AlarmType\":101}"),
        "2: the text of \"strEventSource\" holds a double quote or a null character");
    row("source with a NUL", File("{\"strEventSource\":\"a\\u0000b\",\"AlarmType\":101}"),
        "2: the text of \"strEventSource\" holds a double quote or a null character");
    row("source with half a character", File("{\"strEventSource\":\"a\\uDC00b\",\"AlarmType\":101}"),
        "2: the text of \"strEventSource\" holds half a character");
    row("source too long", File("{\"strEventSource\":\"" + QByteArray(1001, 'a') + "\",\"AlarmType\":101}"),
        "2: the text of \"strEventSource\" is longer than 1000 characters");
    row("source that names a column", File("{\"strEventSource\":\"ROWID\",\"AlarmType\":101}"),
        "2: the text of \"strEventSource\" is a word that the database keeps for itself");
    row("output that names a column", Scheme("\"alarmOut\":[{\"strLinkAlarmID\":\"Time\"}]"),
        "2: the text of \"strLinkAlarmID\" is a word that the database keeps for itself");
    row("channel with a quote",
        Scheme("\"split\":{\"SplitCount\":1},\"videoLinks\":[{\"WindowID\":0,\"strLinkDevID\":\"\\\"\"}]"),
        "2: the text of \"strLinkDevID\" holds a double quote or a null character");
    row("cell without a place", Scheme("\"split\":{\"cells\":[{\"X1\":0}]}"), "2: \"windowID\" is missing");
    row("cell 64", Scheme("\"split\":{\"cells\":[{\"windowID\":64}]}"),
        "2: \"windowID\" must be from 0 to 63");
    row("cell -1", Scheme("\"split\":{\"cells\":[{\"windowID\":-1}]}"),
        "2: \"windowID\" must be from 0 to 63");
    row("cell twice", Scheme("\"split\":{\"cells\":[{\"windowID\":3},{\"windowID\":3}]}"),
        "2: the cell 3 stands here twice");
    row("cell outside",
        Scheme("\"split\":{\"SplitRow\":1,\"SplitCloum\":2,\"cells\":[{\"windowID\":2,\"X1\":1}]}"),
        "2: the cell 2 lies outside the layout");
    row("window without a place", Scheme("\"videoLinks\":[{}]"), "2: \"WindowID\" is missing");
    row("window outside", Scheme("\"split\":{\"SplitCount\":1},\"videoLinks\":[{\"WindowID\":1}]"),
        "2: the window 1 is none of the cells in use");
    row("window below", Scheme("\"split\":{\"SplitCount\":1},\"videoLinks\":[{\"WindowID\":-1}]"),
        "2: the window -1 is none of the cells in use");
    row("window twice",
        Scheme("\"split\":{\"SplitCount\":1},\"videoLinks\":[{\"WindowID\":0},{\"WindowID\":0}]"),
        "2: the window 0 stands here twice");
    row("output twice",
        Scheme("\"alarmOut\":[{\"strLinkAlarmID\":\"1$3$0$0\"},{\"strLinkAlarmID\":\"1$3$0$0\"}]"),
        "2: the output \"1$3$0$0\" is linked twice");
    row("door without a number", Scheme("\"doors\":[{}]"), "2: \"id\" is missing");
    row("door as a number", Scheme("\"doors\":[{\"id\":5}]"), "2: \"id\" must be a text");
    row("door as a word", Scheme("\"doors\":[{\"id\":\"x\"}]"), "2: the door \"x\" is no whole number");
    row("door with zeros", Scheme("\"doors\":[{\"id\":\"007\"}]"), "2: the door \"007\" is no whole number");
    row("door with a sign", Scheme("\"doors\":[{\"id\":\"+7\"}]"), "2: the door \"+7\" is no whole number");
    row("door of 65 bits", Scheme("\"doors\":[{\"id\":\"9223372036854775808\"}]"),
        "2: the door \"9223372036854775808\" is no whole number");
    row("empty door", Scheme("\"doors\":[{\"id\":\"\"}]"), "2: the door \"\" is no whole number");
    row("door twice", Scheme("\"doors\":[{\"id\":\"7\"},{\"id\":\"7\"}]"), "2: the door 7 is linked twice");
    row("six days", Scheme("\"defenceTime\":[[],[],[],[],[],[]]"),
        "2: \"defenceTime\" must be a list of seven lists");
    row("eight days", Scheme("\"defenceTime\":[[],[],[],[],[],[],[],[{\"End\":3}]]"),
        "2: \"defenceTime\" must be a list of seven lists");
    row("day as an object", Scheme("\"defenceTime\":[[],[],[],{},[],[],[]]"), "2: a day must be a list");
    row("region as a number", Scheme("\"defenceTime\":[[],[],[3],[],[],[],[]]"),
        "2: the entries of this list must be objects");
    row("region backwards", Scheme("\"defenceTime\":[[],[],[{\"Begin\":6,\"End\":5}],[],[],[],[]]"),
        "2: a region from 6 to 5 is none");
    row("region before the day", Scheme("\"defenceTime\":[[],[],[{\"Begin\":-6,\"End\":5}],[],[],[],[]]"),
        "2: a region from -6 to 5 is none");
    row("scheme twice",
        File("{\"strEventSource\":\"a\",\"AlarmType\":1},\n{\"strEventSource\":\"b\","
             "\"AlarmType\":1},\n{\"strEventSource\":\"a\",\"AlarmType\":1}"),
        "4: the scheme a, event type 1, is listed twice");

    row("empty", "", "1: the text is empty");
    row("blank", " \n\n ", "1: the text is empty");
    row("two texts", File("") + File(""), "4: something follows after the end");
    row("NUL after the end", File("") + QByteArray("\0{}", 3), "4: something follows after the end");
    row("no end", "{\"format\":\"alarm-schemes\",\"version\":1,\n\"schemes\":[\n\n",
        "2: the text ends too early");
    row("no comma", File("{} {}"),
        "2: \"strEventSource\" is missing|2: \"AlarmType\" is missing|"
        "2: this is not valid JSON");
    row("comment", File("/* none */"), "2: this is not valid JSON");
    row("comma at the end", Scheme("\"bOpen\":true,"), "2: this is not valid JSON");
    row("not a number", Scheme("\"split\":{\"SplitRow\":NaN}"), "2: this is not valid JSON");
    row("line break in a text", File("{\"strEventSource\":\"a\nb\",\"AlarmType\":1}"),
        "2: a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
    row("Latin-1", File("{\"strEventSource\":\"T\xFCr\",\"AlarmType\":1}"),
        "2: a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
    row("overlong", File("{\"strEventSource\":\"\xC0\x80\",\"AlarmType\":1}"),
        "2: a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
    row("wrong escape", File("{\"strEventSource\":\"\\x41\",\"AlarmType\":1}"),
        "2: a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
    row("half a pair", File("{\"strEventSource\":\"\\uD83D\",\"AlarmType\":1}"),
        "2: a text is not valid UTF-8, or holds an escape or a control character that is not allowed");
    row("UTF-16", QByteArray("\xFF\xFE{\0}\0", 6), "1: the text is not in UTF-8");
    row("UTF-16 the other way", QByteArray("\xFE\xFF\0{\0}", 6), "1: the text is not in UTF-8");
    row("UTF-16 without a mark", QByteArray("\0{\0}", 4), "1: the text is not in UTF-8");
}

void TestSchemeTextReader::problemsAreFound()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    QCOMPARE(Problems(text).join(QLatin1Char('|')), problem);
}

void TestSchemeTextReader::everyProblemIsFoundWithItsLine()
{
    const QByteArray text = "{\n"
                            "\"format\": \"alarm-schemes\",\n"
                            "\"version\": 1,\n"
                            "\"schemes\": [\n"
                            "  {\n"
                            "    \"strEventSource\": \"a\",\n"
                            "    \"AlarmType\": 1,\n"
                            "    \"bOpen\": \"yes\",\n"
                            "    \"alarmOut\": [\n"
                            "      {\"strLinkAlarmID\": \"1$3$0$0\", \"Time\": 99999999999},\n"
                            "      {\"strLinkAlarmID\": \"2$3$0$0\",\n"
                            "       \"Tmie\": 5}\n"
                            "    ]\n"
                            "  },\r\n"
                            "  {\"AlarmType\": 3},\n"
                            "  {\"strEventSource\": \"a\", \"AlarmType\": 1}\n"
                            "]\n"
                            "}\n";
    QCOMPARE(
        Problems(text),
        (QStringList{QStringLiteral("8: \"bOpen\" must be true or false"),
                     QStringLiteral("10: \"Time\" must be a whole number from -2147483648 to 2147483647"),
                     QStringLiteral("12: there is no field \"Tmie\" here"),
                     QStringLiteral("15: \"strEventSource\" is missing"),
                     QStringLiteral("16: the scheme a, event type 1, is listed twice")}));
}

void TestSchemeTextReader::problemsComeInTheOrderOfTheLines()
{
    QCOMPARE(Problems(File("{\"strEventSource\":\"a\",\"AlarmType\":1,\"split\":{\"cells\":[\n"
                           "{\"windowID\":3,\"X1\":9}]},\n"
                           "\"bOpen\":5}")),
             (QStringList{QStringLiteral("3: the cell 3 lies outside the layout"),
                          QStringLiteral("4: \"bOpen\" must be true or false")}));
}

void TestSchemeTextReader::numbersOf32BitsAreTaken()
{
    AlarmInfoMap map;
    QCOMPARE(SchemeTexts::Read(Scheme("\"alarmOut\":[{\"strLinkAlarmID\":\"a\",\"Time\":2147483647},"
                                      "{\"strLinkAlarmID\":\"b\",\"Time\":-2147483648},"
                                      "{\"strLinkAlarmID\":\"c\",\"Time\":-0}],"
                                      "\"doors\":[{\"id\":\"9223372036854775807\"},"
                                      "{\"id\":\"-9223372036854775808\"}]"),
                               map),
             QStringList());
    QCOMPARE(Only(map).listAlarmOut[0].Time, std::numeric_limits<int32_t>::max());
    QCOMPARE(Only(map).listAlarmOut[1].Time, std::numeric_limits<int32_t>::min());
    QCOMPARE(Only(map).listAlarmOut[2].Time, 0);
    QCOMPARE(Only(map).listDoor.size(), 2);
}

void TestSchemeTextReader::whatIsNoFileOfSchemesIsSaidOnce_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("a list") << QByteArray("[1,2,3]");
    QTest::newRow("a number") << QByteArray("5");
    QTest::newRow("nothing") << QByteArray("null");
    QTest::newRow("an empty object") << QByteArray("{}");
    QTest::newRow("a site") << QByteArray("{\"groups\":[{\"id\":1}],\"devices\":[]}");
    QTest::newRow("another format") << QByteArray("{\"format\":\"alarm-scheme-differences\",\"version\":1}");
    QTest::newRow("another format at the end")
        << QByteArray("{\"x\":1,\"schemes\":[{\"bOpne\":1}],\"format\":\"x\"}");
}

void TestSchemeTextReader::whatIsNoFileOfSchemesIsSaidOnce()
{
    QFETCH(QByteArray, text);
    QCOMPARE(Problems(text), QStringList(QStringLiteral("1: this is no file of alarm schemes")));
}

void TestSchemeTextReader::anotherVersionIsNotReadOn()
{
    for (const char* const version : {"2", "0", "-1"}) {
        QCOMPARE(Problems("{\"format\":\"alarm-schemes\",\n\"version\":" + QByteArray(version) +
                          ",\"news\":[],\"schemes\":[{\"colour\":1}]}"),
                 QStringList(QStringLiteral("2: this is a file of version %1; only version 1 can be read")
                                 .arg(QLatin1String(version))));
    }
}

void TestSchemeTextReader::aTextWithoutEndIsNoTrouble()
{
    // Deeper than a stack, if one were used for it.
    QCOMPARE(Problems(QByteArray(3000000, '[')),
             QStringList(QStringLiteral("1: this is no file of alarm schemes")));
    QCOMPARE(Problems(File("{\"x\":" + QByteArray(3000000, '['))),
             (QStringList{QStringLiteral("2: there is no field \"x\" here"),
                          QStringLiteral("2: this is nested too deep for a file of alarm schemes")}));
    QByteArray objects;
    for (int level = 0; level < 100000; ++level)
        objects += "{\"a\":";
    QCOMPARE(Problems(Scheme("\"x\":" + objects)).size(), 2);
    // A text of some megabytes.
    QCOMPARE(Problems(Scheme("\"" + QByteArray(5000000, 'y') + "\":1")).size(), 1);
    QVERIFY(Problems(Scheme("\"" + QByteArray(5000000, 'y') + "\":1")).constFirst().size() < 200);
}

void TestSchemeTextReader::soManyProblemsAreEnough()
{
    QByteArray schemes("5");
    for (int scheme = 0; scheme < 120000; ++scheme)
        schemes += ",5";
    const QStringList problems = Problems(File(schemes));
    QCOMPARE(problems.size(), 100001);
    QCOMPARE(problems.constLast(), QStringLiteral("2: there are more problems; the rest was not looked at"));
}

void TestSchemeTextReader::aDeviceThatFailsIsToldOf()
{
    BrokenDevice device;
    SchemeTextReader reader;
    AlarmInfoMap map;
    QVERIFY(!reader.Read(device, map));
    QCOMPARE(reader.Problems().size(), 1);
    QCOMPARE(reader.Problems().constFirst().iLine, 0);
    QVERIFY(reader.Problems().constFirst().strReason.contains(QStringLiteral("the cable is out")));
}

void TestSchemeTextReader::everyCutIsNoticed()
{
    AlarmInfo info;
    info.listAlarmOut = {AlarmLinkAlarmOut{QString::fromUtf8("\xE9\x97\xA8"), true, 20}};
    const QByteArray text = SchemeTexts::Write({{AlarmSourceKey{QStringLiteral("7$1$0$12"), 101}, info}});
    for (int size = 0; size < text.size() - 1; ++size)
        QCOMPARE(Problems(text.left(size)).size(), 1);
    QCOMPARE(Problems(text.left(text.size() - 1)), QStringList()); // only the last line break
}

void TestSchemeTextReader::progressIsTold()
{
    const QByteArray text = Scheme("") + QByteArray(300000, ' ');
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly);
    SchemeTextReader reader;
    qint64 last = 0;
    int calls = 0;
    reader.SetProgress([&](qint64 iDone) {
        QVERIFY(iDone >= last);
        last = iDone;
        ++calls;
    });
    AlarmInfoMap map;
    QVERIFY(reader.Read(device, map));
    QCOMPARE(last, text.size());
    QVERIFY(calls > 3);
}

QTEST_MAIN(TestSchemeTextReader)
#include "tst_scheme_text_reader.moc"
