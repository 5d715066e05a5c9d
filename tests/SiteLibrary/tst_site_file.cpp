#include "platform/SiteLibrary/SiteFile.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace VantaLogic;

namespace {

/// A sound device with one door; the text of each line is easy to replace.
const char* const soundSite = "{\n"                                                   // 1
                              "  \"groups\": [\n"                                     // 2
                              "    {\"id\": 1, \"name\": \"Hall\"},\n"                // 3
                              "    {\"id\": 2, \"name\": \"Floor\", \"parent\": 1}\n" // 4
                              "  ],\n"                                                // 5
                              "  \"devices\": [\n"                                    // 6
                              "    {\n"                                               // 7
                              "      \"id\": 10,\n"                                   // 8
                              "      \"name\": \"North\",\n"                          // 9
                              "      \"type\": 12,\n"                                 // 10
                              "      \"enabled\": true,\n"                            // 11
                              "      \"online\": false,\n"                            // 12
                              "      \"group\": 2,\n"                                 // 13
                              "      \"channels\": [\n"                               // 14
                              "        {\n"                                           // 15
                              "          \"id\": 11,\n"                               // 16
                              "          \"number\": 1,\n"                            // 17
                              "          \"kind\": 6,\n"                              // 18
                              "          \"name\": \"Door\"\n"                        // 19
                              "        },\n"                                          // 20
                              "        {\"id\": 12, \"number\": 1, \"kind\": 3, "
                              "\"name\": \"Fire\", \"enabled\": false}\n" // 21
                              "      ]\n"                                 // 22
                              "    }\n"                                   // 23
                              "  ]\n"                                     // 24
                              "}\n";                                      // 25

Site MarkedSite()
{
    Site site;
    GroupInfo group;
    group.iGroupId = 77;
    group.strName = QStringLiteral("kept");
    site.groups.append(group);
    return site;
}

bool SameSite(const Site& a, const Site& b)
{
    return SiteFile::ToText(a) == SiteFile::ToText(b);
}

} // namespace

class tst_site_file : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldOfASoundFileArrives();
    void groupsMayBeMissing();
    void aMarkOfUtf8AtTheStartIsAccepted();
    void largestNumbersArrive();
    void anErrorNamesItsLine_data();
    void anErrorNamesItsLine();
    void hostileTextIsRefusedAndLeavesTheSite_data();
    void hostileTextIsRefusedAndLeavesTheSite();
    void deepNestingEndsAtOnce();
    void aCircleOfGroupsIsRefused();
    void groupsNestOnlySoDeep();
    void manyGroupsInOneChainEndInAnErrorSoon();
    void damagedFilesNeverCrash();
    void writingAndReadingGivesTheSameSite();
    void aSiteThatCouldNotBeReadIsNotWritten();
    void aFailedWriteLeavesTheOldFile();
    void aMissingFileHasNoLine();
    void aDirectoryIsNoFile();
    void theTextOfAnErrorNamesFileLineAndReason();
};

void tst_site_file::everyFieldOfASoundFileArrives()
{
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Parse(soundSite, QStringLiteral("s"), site, error), qPrintable(error.Text()));
    QCOMPARE(site.groups.size(), 2);
    QCOMPARE(site.groups[0].iParentId, int64_t(-1));
    QCOMPARE(site.groups[1].iGroupId, int64_t(2));
    QCOMPARE(site.groups[1].iParentId, int64_t(1));
    QCOMPARE(site.groups[1].strName, QStringLiteral("Floor"));
    QCOMPARE(site.devices.size(), 1);
    const DeviceInfo& device = site.devices[0];
    QCOMPARE(device.iDeviceId, int64_t(10));
    QCOMPARE(device.strName, QStringLiteral("North"));
    QCOMPARE(device.iDeviceType, 12);
    QCOMPARE(device.bEnabled, true);
    QCOMPARE(device.bOnline, false);
    QCOMPARE(device.iGroupId, int64_t(2));
    QCOMPARE(device.channels.size(), 2);
    QCOMPARE(device.channels[0].iChannelId, int64_t(11));
    QCOMPARE(device.channels[0].iDeviceId, int64_t(10));
    QCOMPARE(device.channels[0].iNumber, 1);
    QCOMPARE(device.channels[0].iChannelType, 6);
    QCOMPARE(device.channels[0].bEnabled, true);
    QCOMPARE(device.channels[0].strName, QStringLiteral("Door"));
    QCOMPARE(device.channels[1].iChannelType, 3);
    QCOMPARE(device.channels[1].bEnabled, false);
}

void tst_site_file::groupsMayBeMissing()
{
    Site site = MarkedSite();
    SiteFileError error;
    QVERIFY(SiteFile::Parse("{\"devices\":[]}", QStringLiteral("s"), site, error));
    QVERIFY(site.groups.isEmpty());
    QVERIFY(site.devices.isEmpty());
}

void tst_site_file::aMarkOfUtf8AtTheStartIsAccepted()
{
    Site site;
    SiteFileError error;
    QVERIFY(SiteFile::Parse(QByteArray("\xEF\xBB\xBF") + soundSite, QStringLiteral("s"), site, error));
    QCOMPARE(site.devices.size(), 1);
}

void tst_site_file::largestNumbersArrive()
{
    QByteArray text = soundSite;
    text.replace("\"id\": 11", "\"id\": 9223372036854775807");
    text.replace("\"number\": 1,\n", "\"number\": 2147483647,\n");
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Parse(text, QStringLiteral("s"), site, error), qPrintable(error.Text()));
    QCOMPARE(site.devices[0].channels[0].iChannelId, std::numeric_limits<int64_t>::max());
    QCOMPARE(site.devices[0].channels[0].iNumber, std::numeric_limits<int32_t>::max());
}

void tst_site_file::anErrorNamesItsLine_data()
{
    QTest::addColumn<QByteArray>("was");
    QTest::addColumn<QByteArray>("is");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("reason"); ///< a part of it

    const auto row = [](const char* name, const char* was, const char* is, int line, const char* reason) {
        QTest::newRow(name) << QByteArray(was) << QByteArray(is) << line << QString::fromUtf8(reason);
    };
    row("id zero", "\"id\": 10", "\"id\": 0", 8, "\"id\"");
    row("id negative", "\"id\": 10", "\"id\": -5", 8, "\"id\"");
    row("id beyond 64 bits", "\"id\": 10", "\"id\": 9223372036854775808", 8, "9223372036854775807");
    row("id beyond a double", "\"id\": 10", "\"id\": 1e999", 8, "number");
    row("id with fraction", "\"id\": 10", "\"id\": 10.0", 8, "\"id\"");
    row("id as text", "\"id\": 10", "\"id\": \"10\"", 8, "\"id\"");
    row("id null", "\"id\": 10", "\"id\": null", 8, "\"id\"");
    row("id as list", "\"id\": 10", "\"id\": [10]", 8, "\"id\"");
    row("id as object", "\"id\": 10", "\"id\": {}", 8, "\"id\"");
    row("id of a group again", "\"id\": 11", "\"id\": 2", 16, "line 4");
    row("id of a device again", "\"id\": 11", "\"id\": 10", 16, "line 8");
    row("id of a channel again", "\"id\": 12", "\"id\": 11", 21, "line 16");
    row("type too large", "\"type\": 12", "\"type\": 19", 10, "from 0 to 18");
    row("type negative", "\"type\": 12", "\"type\": -1", 10, "from 0 to 18");
    row("kind too large", "\"kind\": 6", "\"kind\": 7", 18, "from 0 to 6");
    row("number too large", "\"number\": 1,\n", "\"number\": 2147483648,\n", 17, "\"number\"");
    row("number twice", "\"kind\": 3", "\"kind\": 6", 21, "line 17");
    row("enabled as number", "\"enabled\": true", "\"enabled\": 1", 11, "true or false");
    row("enabled as text", "\"enabled\": true", "\"enabled\": \"true\"", 11, "true or false");
    row("name as number", "\"North\"", "5", 9, "must be a text");
    row("name empty", "\"North\"", "\"\"", 9, "empty");
    row("name blank", "\"North\"", "\"  \"", 9, "empty");
    row("name with line feed", "\"North\"", "\"No\\nrth\"", 9, "control");
    row("name with NUL", "\"North\"", "\"No\\u0000rth\"", 9, "control");
    row("name with C1 control", "\"North\"", "\"No\\u0085rth\"", 9, "control");
    row("name with raw tab", "\"North\"", "\"No\trth\"", 9, "UTF-8");
    row("name not UTF-8", "\"North\"", "\"No\xFFrth\"", 9, "UTF-8");
    row("name overlong UTF-8", "\"North\"", "\"No\xC0\xAFrth\"", 9, "UTF-8");
    row("name half a pair", "\"North\"", "\"No\\udc00rth\"", 9, "Unicode");
    row("name first half only", "\"North\"", "\"No\\ud800rth\"", 9, "escape");
    row("field unknown", "\"online\": false", "\"onlin\": false", 12, "\"onlin\"");
    row("field unknown at the top", "\"devices\": [", "\"device\": [", 6, "\"device\"");
    row("field twice", "\"online\": false", "\"enabled\": false", 12, "twice");
    row("field missing", "      \"online\": false,\n", "\n", 7, "\"online\"");
    row("field of a channel missing", "          \"kind\": 6,\n", "\n", 15, "\"kind\"");
    row("group unknown", "\"group\": 2", "\"group\": 3", 13, "group 3");
    row("group is a device", "\"group\": 2", "\"group\": 10", 13, "group 10");
    row("parent unknown", "\"parent\": 1", "\"parent\": 9", 4, "group 9");
    row("parent itself", "\"parent\": 1", "\"parent\": 2", 4, "inside itself");
    row("channels as object", "\"channels\": [\n", "\"channels\": {\n", 14, "list");
    row("device as number", "  \"devices\": [\n", "  \"devices\": [ 5,\n", 6, "objects");
    row("device as list", "  \"devices\": [\n", "  \"devices\": [ [],\n", 6, "objects");
    row("comma missing", "\"type\": 12,\n", "\"type\": 12\n", 11, "comma");
    row("colon missing", "\"type\": 12", "\"type\" 12", 10, "colon");
    row("quotation mark missing", "\"North\",", "\"North,", 9, "");
    row("word unknown", "\"enabled\": true", "\"enabled\": yes", 11, "JSON");
    row("something behind", "}\n", "}\n", 25, "");
}

void tst_site_file::anErrorNamesItsLine()
{
    QFETCH(const QByteArray, was);
    QFETCH(const QByteArray, is);
    QFETCH(const int, line);
    QFETCH(const QString, reason);

    QByteArray text = soundSite;
    if (line == 25) {
        text += "{}\n"; // the last row: something after the end, on the line behind it
    } else {
        text.replace(text.indexOf(was), was.size(), is);
    }
    Site site = MarkedSite();
    SiteFileError error;
    QVERIFY(!SiteFile::Parse(text, QStringLiteral("file.json"), site, error));
    QVERIFY(SameSite(site, MarkedSite()));
    QCOMPARE(error.strFile, QStringLiteral("file.json"));
    QCOMPARE(error.iLine, line == 25 ? 26 : line);
    QVERIFY2(error.strReason.contains(reason), qPrintable(error.strReason));
    QVERIFY(!error.strReason.isEmpty());
}

void tst_site_file::hostileTextIsRefusedAndLeavesTheSite_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("blank lines") << QByteArray("\n\n \n") << 1;
    QTest::newRow("null") << QByteArray("null") << 1;
    QTest::newRow("number") << QByteArray("17") << 1;
    QTest::newRow("text") << QByteArray("\"site\"") << 1;
    QTest::newRow("list") << QByteArray("\n[]") << 2;
    QTest::newRow("empty object") << QByteArray("{}") << 1;
    QTest::newRow("devices null") << QByteArray("{\n\"devices\":null}") << 2;
    QTest::newRow("devices as object") << QByteArray("{\n\n\"devices\":{}}") << 3;
    QTest::newRow("list twice") << QByteArray("{\"devices\":[],\n\"devices\":[]}") << 2;
    QTest::newRow("only a NUL") << QByteArray("\0", 1) << 1;
    QTest::newRow("NUL and more") << QByteArray("{\"devices\":[]}\n\0{}", 18) << 2;
    QTest::newRow("cut short") << QByteArray("{\n\"devices\":[\n{\n") << 3;
    QTest::newRow("UTF-16") << QByteArray("{\0}\0", 4) << 1;
    QTest::newRow("comment") << QByteArray("// site\n{\"devices\":[]}") << 1;
    QTest::newRow("long name") << QByteArray("{\"devices\":[\n{\"name\":\"") + QByteArray(256, 'x') + "\"}]}"
                               << 2;
    QTest::newRow("long field") << QByteArray("{\n\"") + QByteArray(1 << 20, 'x') + "\":1}" << 2;
    QTest::newRow("many digits") << QByteArray("{\"devices\":[{\n\"id\":") + QByteArray(1 << 20, '7') + "}]}"
                                 << 2;
}

void tst_site_file::hostileTextIsRefusedAndLeavesTheSite()
{
    QFETCH(const QByteArray, text);
    QFETCH(const int, line);
    Site site = MarkedSite();
    SiteFileError error;
    QVERIFY(!SiteFile::Parse(text, QStringLiteral("f"), site, error));
    QVERIFY(SameSite(site, MarkedSite()));
    QCOMPARE(error.iLine, line);
    QVERIFY(!error.strReason.isEmpty());
    QVERIFY(error.strReason.size() < 400); // fit for a message
}

void tst_site_file::deepNestingEndsAtOnce()
{
    const int iDepth = 2'000'000;
    for (const QByteArray& head : {QByteArray(), QByteArray("{\"devices\":"), QByteArray("{\"x\":")}) {
        Site site = MarkedSite();
        SiteFileError error;
        QVERIFY(!SiteFile::Parse(head + QByteArray(iDepth, '['), QStringLiteral("f"), site, error));
        QVERIFY(SameSite(site, MarkedSite()));
        QCOMPARE(error.iLine, 1);
    }
}

void tst_site_file::aCircleOfGroupsIsRefused()
{
    const QByteArray text = "{\"groups\":[\n"
                            "{\"id\":1,\"name\":\"leads in\",\"parent\":2},\n"
                            "{\"id\":2,\"name\":\"a\",\"parent\":3},\n"
                            "{\"id\":3,\"name\":\"b\",\"parent\":4},\n"
                            "{\"id\":4,\"name\":\"c\",\"parent\":2}],\n"
                            "\"devices\":[]}";
    Site site;
    SiteFileError error;
    QVERIFY(!SiteFile::Parse(text, QStringLiteral("f"), site, error));
    QCOMPARE(error.iLine, 3); // the first group that forms the circle
    QVERIFY2(error.strReason.contains(QStringLiteral("group 2")), qPrintable(error.strReason));
}

static QByteArray GroupChain(int iGroups)
{
    QByteArray text = "{\"groups\":[\n{\"id\":1,\"name\":\"g\"}";
    for (int i = 2; i <= iGroups; ++i) {
        text += ",\n{\"id\":" + QByteArray::number(i) +
                ",\"name\":\"g\",\"parent\":" + QByteArray::number(i - 1) + "}";
    }
    return text + "],\"devices\":[]}";
}

void tst_site_file::groupsNestOnlySoDeep()
{
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Parse(GroupChain(32), QStringLiteral("f"), site, error), qPrintable(error.Text()));
    QVERIFY(!SiteFile::Parse(GroupChain(33), QStringLiteral("f"), site, error));
    QCOMPARE(error.iLine, 34); // the list begins on the first line
}

void tst_site_file::manyGroupsInOneChainEndInAnErrorSoon()
{
    Site site;
    SiteFileError error;
    QVERIFY(!SiteFile::Parse(GroupChain(200'000), QStringLiteral("f"), site, error));
    QVERIFY(error.iLine > 0);
}

void tst_site_file::damagedFilesNeverCrash()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    const QByteArray sound = soundSite;
    for (int iRound = 0; iRound < 3000; ++iRound) {
        QByteArray text = sound;
        const int iChanges = 1 + random.bounded(4);
        for (int i = 0; i < iChanges && !text.isEmpty(); ++i) {
            const int iAt = random.bounded(text.size());
            const int iHow = random.bounded(3);
            if (iHow == 0) {
                text[iAt] = static_cast<char>(random.bounded(256));
            } else if (iHow == 1) {
                text.truncate(iAt);
            } else {
                text.insert(iAt, text.mid(random.bounded(text.size()), random.bounded(30)));
            }
        }
        Site site = MarkedSite();
        SiteFileError error;
        if (SiteFile::Parse(text, QStringLiteral("f"), site, error)) {
            Site again;
            QVERIFY2(SiteFile::Parse(SiteFile::ToText(site), QStringLiteral("f"), again, error),
                     qPrintable(QStringLiteral("seed %1").arg(iSeed)));
            QVERIFY(SameSite(site, again));
        } else {
            QVERIFY2(SameSite(site, MarkedSite()) && error.iLine >= 1 &&
                         error.iLine <= text.count('\n') + 1 && !error.strReason.isEmpty(),
                     qPrintable(QStringLiteral("seed %1").arg(iSeed)));
        }
    }
}

void tst_site_file::writingAndReadingGivesTheSameSite()
{
    const QTemporaryDir dir;
    const QString strPath = dir.filePath(QStringLiteral("site.json"));
    Site site;
    SiteFileError error;
    QVERIFY(SiteFile::Parse(soundSite, QStringLiteral("s"), site, error));
    site.devices[0].strName = QString::fromUtf8("\xE5\x8C\x97\xE9\x97\xA8 \"\\/ \xF0\x9F\x9A\xAA");
    QVERIFY2(SiteFile::Write(strPath, site, error), qPrintable(error.Text()));

    Site again;
    QVERIFY2(SiteFile::Read(strPath, again, error), qPrintable(error.Text()));
    QVERIFY(SameSite(site, again));
    QCOMPARE(again.devices[0].strName, site.devices[0].strName);
    QCOMPARE(again.devices[0].channels[1].bEnabled, false);
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\n  \"devices\": ["));
}

void tst_site_file::aSiteThatCouldNotBeReadIsNotWritten()
{
    const QTemporaryDir dir;
    const QString strPath = dir.filePath(QStringLiteral("site.json"));
    Site site;
    SiteFileError error;
    QVERIFY(SiteFile::Parse(soundSite, QStringLiteral("s"), site, error));
    QVERIFY(SiteFile::Write(strPath, site, error));
    site.devices[0].channels[0].iChannelId = 10;
    QVERIFY(!SiteFile::Write(strPath, site, error));
    QVERIFY(!error.strReason.isEmpty());
    Site again;
    QVERIFY(SiteFile::Read(strPath, again, error));
    QCOMPARE(again.devices[0].channels[0].iChannelId, int64_t(11));
}

void tst_site_file::aFailedWriteLeavesTheOldFile()
{
    const QTemporaryDir dir;
    SiteFileError error;
    const QString strPath = dir.filePath(QStringLiteral("no/such/folder/site.json"));
    QVERIFY(!SiteFile::Write(strPath, Site(), error));
    QCOMPARE(error.strFile, strPath);
    QCOMPARE(error.iLine, 0);
    QVERIFY(!error.strReason.isEmpty());
}

void tst_site_file::aMissingFileHasNoLine()
{
    const QTemporaryDir dir;
    Site site = MarkedSite();
    SiteFileError error;
    QVERIFY(!SiteFile::Read(dir.filePath(QStringLiteral("none.json")), site, error));
    QCOMPARE(error.iLine, 0);
    QVERIFY(error.Text().contains(QStringLiteral("none.json: ")));
    QVERIFY(SameSite(site, MarkedSite()));
}

void tst_site_file::aDirectoryIsNoFile()
{
    const QTemporaryDir dir;
    Site site = MarkedSite();
    SiteFileError error;
    QVERIFY(!SiteFile::Read(dir.path(), site, error));
    QVERIFY(!error.strReason.isEmpty());
    QVERIFY(SameSite(site, MarkedSite()));
}

void tst_site_file::theTextOfAnErrorNamesFileLineAndReason()
{
    // A name that looks like a placeholder stays a name.
    const SiteFileError error{QStringLiteral("a%3.json"), 7, QStringLiteral("why")};
    QCOMPARE(error.Text(), QStringLiteral("a%3.json, line 7: why"));
}

QTEST_GUILESS_MAIN(tst_site_file)
#include "tst_site_file.moc"
