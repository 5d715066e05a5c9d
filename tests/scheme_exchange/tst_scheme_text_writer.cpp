#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/scheme_exchange/SchemeTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

Q_DECLARE_METATYPE(AlarmSourceKey)
Q_DECLARE_METATYPE(AlarmInfo)

class TestSchemeTextWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noSchemesAreAFileToo();
    void everyFieldStandsInItsPlace();
    void aFreshSchemeHasNoCells();
    void schemesComeInTheOrderOfTheirKeys();
    void textsKeepWhatTheyAre();
    void whatTheTextCannotHoldIsRefused_data();
    void whatTheTextCannotHoldIsRefused();
    void aSinkThatRefusesEndsTheWriting();
    void piecesAreWholeCharacters();
    void progressIsTold();
    void theTextIsJson();
};

void TestSchemeTextWriter::noSchemesAreAFileToo()
{
    QCOMPARE(SchemeTexts::Write({}),
             QByteArray("{\"format\":\"alarm-schemes\",\"version\":1,\"schemes\":[]}\n"));
}

void TestSchemeTextWriter::everyFieldStandsInItsPlace()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    info.bSendEmail = true;
    info.videoSplit.SplitRow = 2;
    info.videoSplit.SplitCloum = 3;
    info.videoSplit.SplitCount = 5;
    info.videoSplit.cells[4] = AlarmSplitWindow{false, 7, 1, 2, 3, 4};
    info.videoSplit.videoLinks.insert(3, AlarmLinkVideo{QStringLiteral("8$1$0$2"), 5, 1, false, true, 30});
    info.listAlarmOut = {AlarmLinkAlarmOut{QStringLiteral("30$3$0$0"), false, 45},
                         AlarmLinkAlarmOut{QStringLiteral("29$3$0$0"), true, 20}};
    info.listDoor = {AlarmLinkDoor{QStringLiteral("4294967299"), true}};
    info.defenceTime[0].clear();
    info.defenceTime[1] = {AlarmTimeRegion{0, 3600}, AlarmTimeRegion{7200, 86399}};
    const QByteArray expected =
        "{\"format\":\"alarm-schemes\",\"version\":1,\"schemes\":[\n"
        "{\"strEventSource\":\"7$1$0$12\",\"AlarmType\":101,\"bOpen\":true,\"bOpenSound\":true,"
        "\"bEmapTwinkle\":false,\"bSendEmail\":true,"
        "\"split\":{\"SplitRow\":2,\"SplitCloum\":3,\"SplitCount\":5,\"cells\":[{\"windowID\":4,"
        "\"bEnable\":false,\"iCombine\":7,\"X1\":1,\"Y1\":2,\"X2\":3,\"Y2\":4}]},"
        "\"videoLinks\":[{\"WindowID\":3,\"strLinkDevID\":\"8$1$0$2\",\"Preposition\":5,\"StreamType\":1,"
        "\"bOpen\":false,\"bRecord\":true,\"Time\":30}],"
        "\"alarmOut\":[{\"strLinkAlarmID\":\"30$3$0$0\",\"bAutoOpen\":false,\"Time\":45},"
        "{\"strLinkAlarmID\":\"29$3$0$0\",\"bAutoOpen\":true,\"Time\":20}],"
        "\"doors\":[{\"id\":\"4294967299\",\"bAlwaysOpen\":true}],"
        "\"defenceTime\":[[],[{\"Begin\":0,\"End\":3600},{\"Begin\":7200,\"End\":86399}],"
        "[{\"Begin\":0,\"End\":86399}],[{\"Begin\":0,\"End\":86399}],[{\"Begin\":0,\"End\":86399}],"
        "[{\"Begin\":0,\"End\":86399}],[{\"Begin\":0,\"End\":86399}]]}\n"
        "]}\n";
    QCOMPARE(SchemeTexts::Write({{AlarmSourceKey{QStringLiteral("7$1$0$12"), 101}, info}}), expected);
}

void TestSchemeTextWriter::aFreshSchemeHasNoCells()
{
    const QByteArray text =
        SchemeTexts::Write({{AlarmSourceKey{QStringLiteral("1$1$0$1"), -1}, AlarmInfo()}});
    QVERIFY(text.contains("\"AlarmType\":-1,\"bOpen\":false"));
    QVERIFY(text.contains("\"split\":{\"SplitRow\":0,\"SplitCloum\":0,\"SplitCount\":0,\"cells\":[]},"
                          "\"videoLinks\":[],\"alarmOut\":[],\"doors\":[],\"defenceTime\":[["));
    // Cells that are default but no longer the shared ones count as default.
    AlarmInfo touched;
    touched.videoSplit.cells[5].X2 = 9;
    touched.videoSplit.cells[5].X2 = 1;
    QCOMPARE(SchemeTexts::Write({{AlarmSourceKey{QStringLiteral("1$1$0$1"), -1}, touched}}), text);
}

void TestSchemeTextWriter::schemesComeInTheOrderOfTheirKeys()
{
    const QStringList sources = {QStringLiteral("10$1$0$0"), QStringLiteral("2$1$0$0"),
                                 QStringLiteral("2$1$0$0"), QString::fromUtf8("\xE9\x97\xA8")};
    const QByteArray text = SchemeTexts::Write({{AlarmSourceKey{sources[3], 1}, AlarmInfo()},
                                                {AlarmSourceKey{sources[2], 22}, AlarmInfo()},
                                                {AlarmSourceKey{sources[1], -5}, AlarmInfo()},
                                                {AlarmSourceKey{sources[0], 101}, AlarmInfo()}});
    const QList<QByteArray> lines = text.split('\n');
    QCOMPARE(lines.size(), 7);
    for (int line = 0; line < 4; ++line) {
        QVERIFY(lines[line + 1].startsWith("{\"strEventSource\":\"" + sources[line].toUtf8() + '"'));
        QCOMPARE(lines[line + 1].endsWith("},"), line < 3);
    }
    QVERIFY(lines[2].contains("\"AlarmType\":-5,"));
    QCOMPARE(lines[5], QByteArray("]}"));
}

void TestSchemeTextWriter::textsKeepWhatTheyAre()
{
    const QString source = QString::fromUtf8("\xE9\x97\xA8\xF0\x9F\x9A\xAA %1 ' \\ / \x01\n\x7F");
    AlarmInfoMap map{{AlarmSourceKey{source, 1}, AlarmInfo()}};
    const QByteArray text = SchemeTexts::Write(map);
    QVERIFY(text.contains("\xE9\x97\xA8\xF0\x9F\x9A\xAA %1 ' \\\\ / \\u0001\\n\x7F\""));
    AlarmInfoMap read;
    QCOMPARE(SchemeTexts::Read(text, read), QStringList());
    QVERIFY(read == map);
}

void TestSchemeTextWriter::whatTheTextCannotHoldIsRefused_data()
{
    QTest::addColumn<AlarmInfoMap>("map");
    const QString quote = QStringLiteral("a\"b");
    const QString null = QString(QStringLiteral("ab")) + QChar(QChar::Null);
    const AlarmSourceKey key{QStringLiteral("7$1$0$12"), 101};
    AlarmInfo output;
    output.listAlarmOut = {AlarmLinkAlarmOut{quote}};
    AlarmInfo channel;
    channel.videoSplit.videoLinks[0].strLinkDevID = null;
    AlarmInfo door;
    door.listDoor = {AlarmLinkDoor{quote, false}};
    QTest::newRow("key with a quote") << AlarmInfoMap{{AlarmSourceKey{quote, 1}, AlarmInfo()}};
    QTest::newRow("key with a NUL") << AlarmInfoMap{{AlarmSourceKey{null, 1}, AlarmInfo()}};
    QTest::newRow("output") << AlarmInfoMap{{key, output}};
    QTest::newRow("channel") << AlarmInfoMap{{key, channel}};
    QTest::newRow("door") << AlarmInfoMap{{key, door}};
}

void TestSchemeTextWriter::whatTheTextCannotHoldIsRefused()
{
    QFETCH(AlarmInfoMap, map);
    SchemeTextWriter writer;
    QVERIFY(!writer.Write(map, [](const QByteArray&) { return true; }));
    QVERIFY(!writer.Failure().isEmpty());
    QVERIFY(writer.Write({}, [](const QByteArray&) { return true; }));
    QVERIFY(writer.Failure().isEmpty());
}

void TestSchemeTextWriter::aSinkThatRefusesEndsTheWriting()
{
    AlarmInfoMap map;
    for (int door = 0; door < 1000; ++door)
        map.insert(AlarmSourceKey{EventSource::Door(7, door), 101}, AlarmInfo());
    int pieces = 0;
    SchemeTextWriter writer;
    QVERIFY(!writer.Write(map, [&pieces](const QByteArray&) { return ++pieces < 2; }));
    QCOMPARE(pieces, 2);
    QVERIFY(writer.Failure().isEmpty());
}

void TestSchemeTextWriter::piecesAreWholeCharacters()
{
    AlarmInfoMap map;
    for (int door = 0; door < 1000; ++door)
        map.insert(AlarmSourceKey{QString::fromUtf8("\xE9\x97\xA8\xF0\x9F\x9A\xAA%1").arg(door), 101},
                   AlarmInfo());
    QString text;
    int pieces = 0;
    QVERIFY(SchemeTextWriter().Write(map, [&](const QByteArray& piece) {
        ++pieces;
        text += QString::fromUtf8(piece);
        return true;
    }));
    QVERIFY(pieces > 3);
    QCOMPARE(text, QString::fromUtf8(SchemeTexts::Write(map)));
    QVERIFY(!text.contains(QChar(QChar::ReplacementCharacter)));
}

void TestSchemeTextWriter::progressIsTold()
{
    AlarmInfoMap map;
    for (int door = 0; door < 1000; ++door)
        map.insert(AlarmSourceKey{EventSource::Door(7, door), 101}, AlarmInfo());
    SchemeTextWriter writer;
    int last = -1;
    int calls = 0;
    writer.SetProgress([&](int iDone, int iAll) {
        ++calls;
        QVERIFY(iDone > last && iAll == 1000);
        last = iDone;
    });
    QVERIFY(writer.Write(map, [](const QByteArray&) { return true; }));
    QVERIFY(calls > 2 && last < 1000);
}

void TestSchemeTextWriter::theTextIsJson()
{
    for (quint32 seed = 1; seed < 40; ++seed) {
        const AlarmInfoMap map = RandomSchemes(seed).Map();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(SchemeTexts::Write(map), &error);
        QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(QString::number(seed)));
        QCOMPARE(document.object().value(QStringLiteral("schemes")).toArray().size(), map.size());
    }
}

QTEST_MAIN(TestSchemeTextWriter)
#include "tst_scheme_text_writer.moc"
