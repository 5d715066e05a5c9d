#include "scheme_services/site/SiteTable.h"
#include "tests/site_exchange/SiteSamples.h"
#include "tools/SiteMaker.h"

#include <QtTest>

Q_DECLARE_METATYPE(Site)

namespace {

QByteArray Heading()
{
    return "record,id,parent,name,type,number,enabled,online\n";
}

SiteTable::Parsed Parse(const QByteArray& text, const Site& before = {})
{
    return SiteTable::Parse(text, before);
}

} // namespace

class TestSiteTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenReadsBack_data();
    void whatIsWrittenReadsBack();
    void theTextIsWhatSpreadsheetsWant();
    void aTableMayBeWrittenInManyWays_data();
    void aTableMayBeWrittenInManyWays();
    void recordsMayComeInAnyOrder();
    void emptyStatesKeepWhatTheRecordHas();
    void typesAreWordsOrNumbers();
    void everyRecordKnowsItsLine();
    void everyLineThatIsWrongIsTold_data();
    void everyLineThatIsWrongIsTold();
    void allThatIsWrongIsToldAtOnce();
    void aRowThatIsWrongIsNoReasonToComplainOfItsChildren();
    void linesInAnotherEncodingAreTold();
    void textInUtf16IsTold();
    void problemsBeyondTheLimitAreCounted();
    void aHugeCellIsToldBriefly();
    void nothingNobodyWroteGetsIn_data();
    void nothingNobodyWroteGetsIn();
};

void TestSiteTable::whatIsWrittenReadsBack_data()
{
    QTest::addColumn<Site>("site");
    QTest::newRow("nothing") << Site();
    QTest::newRow("hard names") << SmallSite();
    QTest::newRow("10,000 doors") << SiteMaker::MakeSite(10000, 7);
}

void TestSiteTable::whatIsWrittenReadsBack()
{
    QFETCH(Site, site);
    const SiteTable::Parsed parsed = Parse(SiteTable::ToText(site));
    QCOMPARE(Printed(parsed.problems), QString());
    QCOMPARE(Printed(parsed.site), Printed(site));
}

void TestSiteTable::theTextIsWhatSpreadsheetsWant()
{
    const QByteArray expected =
        "\xEF\xBB\xBF"
        "record,id,parent,name,type,number,enabled,online\r\n"
        "group,1,,\"Main building\",,,,\r\n"
        "group,2,1,\"Erdgescho\xC3\x9F, \"\"links\"\"; rechts\xC2\xA0\xE4\xB8\x80\xE6\xA5\xBC\",,,,\r\n"
        "device,100,2,\"  Entrance \"\"A\"\" \",access control,,yes,yes\r\n"
        "channel,101,100,\"Main door\",door,1,yes,\r\n"
        "channel,102,100,\"Fire;contact\",alarm input,1,no,\r\n"
        "channel,103,100,\"\"\"\",0,2147483647,yes,\r\n"
        "device,9223372036854775807,,\"=1+1\",7,,no,no\r\n";
    QCOMPARE(SiteTable::ToText(SmallSite()), expected);
}

void TestSiteTable::aTableMayBeWrittenInManyWays_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray plain = "record,id,name,type,parent,number,enabled,online\n"
                             "device,5,Gate,12,,,yes,no\n"
                             "channel,6,Door,6,5,1,no,\n";
    QTest::newRow("plain") << plain;
    QTest::newRow("the mark of UTF-8") << "\xEF\xBB\xBF" + plain;
    QTest::newRow("semicolons") << QByteArray(plain).replace(',', ';');
    QTest::newRow("tabs") << QByteArray(plain).replace(',', '\t');
    QTest::newRow("line ends of Windows") << QByteArray(plain).replace("\n", "\r\n");
    QTest::newRow("line ends of old") << QByteArray(plain).replace('\n', '\r');
    QTest::newRow("no last line end") << plain.left(plain.size() - 1);
    QTest::newRow("columns turned round") << QByteArray("online,ENABLED, number ,type,name,parent,id,Record\n"
                                                        "no,yes,,12,Gate,,5,device\n"
                                                        ",no,1,6,Door,5,6,channel\n");
    QTest::newRow("everything quoted")
        << QByteArray("\"record\";\"id\";\"name\";\"type\";\"parent\";\"number\";"
                      "\"enabled\";\"online\"\n"
                      "\"device\";\"5\";\"Gate\";\"12\";\"\";\"\";\"yes\";\"no\"\n"
                      "\"channel\";\"6\";\"Door\";\"6\";\"5\";\"1\";\"no\";\"\"\n");
    QTest::newRow("blanks, cases and words")
        << QByteArray(" Record , Id , Name , Type , Parent , Number , Enabled , Online \n"
                      " DEVICE , 5 , Gate , Access Control , , , TRUE , 0 \n"
                      " Channel , 6 , Door , DOOR , 5 , 1 , False , \n");
    QTest::newRow("blank rows") << QByteArray(
                                       "\n\nrecord,id,name,type,parent,number,enabled,online\n,,,,,,,\n"
                                       "device,5,Gate,12,,,yes,no\n\n  \n"
                                       "channel,6,Door,6,5,1,no\n;\n")
                                       .replace(";", " ");
    QTest::newRow("short and long rows") << QByteArray("record,id,name,type,parent,number,enabled,online,,\n"
                                                       "device,5,Gate,12,,,,,,,,\n"
                                                       "channel,6,Door,6,5,1,no\n");
}

void TestSiteTable::aTableMayBeWrittenInManyWays()
{
    QFETCH(QByteArray, text);
    const SiteTable::Parsed parsed = Parse(text);
    QCOMPARE(Printed(parsed.problems), QString());
    QCOMPARE(parsed.site.devices.size(), 1);
    const VantaLogic::DeviceInfo device = parsed.site.devices.constFirst();
    QCOMPARE(device.iDeviceId, int64_t(5));
    QCOMPARE(device.iDeviceType, 12);
    QCOMPARE(device.iGroupId, int64_t(-1));
    QCOMPARE(device.strName, QStringLiteral("Gate"));
    QVERIFY(device.bEnabled);
    QVERIFY(!device.bOnline);
    QCOMPARE(device.channels.size(), 1);
    QCOMPARE(device.channels.constFirst().iChannelId, int64_t(6));
    QCOMPARE(device.channels.constFirst().iDeviceId, int64_t(5));
    QCOMPARE(device.channels.constFirst().iNumber, 1);
    QVERIFY(!device.channels.constFirst().bEnabled);
}

void TestSiteTable::recordsMayComeInAnyOrder()
{
    const SiteTable::Parsed parsed = Parse(Heading() + "channel,4,3,D,door,1,,\n"
                                                       "device,3,2,C,12,,,\n"
                                                       "group,2,1,B,,,,\n"
                                                       "group,1,,A,,,,\n"
                                                       "channel,5,3,E,door,2,,\n");
    QCOMPARE(Printed(parsed.problems), QString());
    QCOMPARE(parsed.site.groups.size(), 2);
    QCOMPARE(parsed.site.groups.at(0).iGroupId, int64_t(2));
    QCOMPARE(parsed.site.devices.at(0).channels.size(), 2);
    QCOMPARE(parsed.site.devices.at(0).channels.at(1).strName, QStringLiteral("E"));
}

void TestSiteTable::emptyStatesKeepWhatTheRecordHas()
{
    Site before = SmallSite();
    before.devices[0].bEnabled = false;
    const SiteTable::Parsed parsed = Parse("record,id,parent,name,type,number\n"
                                           "device,100,,A,12,\n"
                                           "channel,102,100,B,3,1\n"
                                           "device,9223372036854775807,,C,7,\n"
                                           "device,500,,New,12,\n"
                                           "channel,501,500,New,6,1\n",
                                           before);
    QCOMPARE(Printed(parsed.problems), QString());
    const auto& devices = parsed.site.devices;
    QVERIFY(!devices.at(0).bEnabled);
    QVERIFY(devices.at(0).bOnline);
    QVERIFY(!devices.at(0).channels.at(0).bEnabled);
    QVERIFY(!devices.at(1).bEnabled);
    QVERIFY(!devices.at(1).bOnline);
    // What is new has not answered yet.
    QVERIFY(devices.at(2).bEnabled);
    QVERIFY(!devices.at(2).bOnline);
    QVERIFY(devices.at(2).channels.at(0).bEnabled);
}

void TestSiteTable::typesAreWordsOrNumbers()
{
    const SiteTable::Parsed parsed =
        Parse(Heading() + "device,1,,A,alarm host,,,\ndevice,2,,B,virtual,,,\n"
                          "device,3,,C,18,,,\nchannel,4,1,D,video,0,,\n"
                          "channel,5,1,E,alarm output,0,,\nchannel,6,1,F,6,0,,\n");
    QCOMPARE(Printed(parsed.problems), QString());
    QCOMPARE(parsed.site.devices.at(0).iDeviceType, 15);
    QCOMPARE(parsed.site.devices.at(1).iDeviceType, 16);
    QCOMPARE(parsed.site.devices.at(2).iDeviceType, 18);
    QCOMPARE(parsed.site.devices.at(0).channels.at(0).iChannelType, 1);
    QCOMPARE(parsed.site.devices.at(0).channels.at(1).iChannelType, 4);
    QCOMPARE(parsed.site.devices.at(0).channels.at(2).iChannelType, 6);
}

void TestSiteTable::everyRecordKnowsItsLine()
{
    const SiteTable::Parsed parsed =
        Parse(Heading() + "\ngroup,1,,A,,,,\ndevice,2,1,\"B\",12,,,\nchannel,3,2,C,6,1,,\n");
    QCOMPARE(parsed.lines, (QHash<int64_t, int>{{1, 3}, {2, 4}, {3, 5}}));
}

void TestSiteTable::everyLineThatIsWrongIsTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("iLine");
    QTest::addColumn<QString>("strPart");
    const auto whole = [](const char* szName, const QByteArray& text, int iLine, const char* szPart) {
        QTest::newRow(szName) << text << iLine << QString::fromLatin1(szPart);
    };
    const auto row = [&whole](const char* szName, const QByteArray& rows, int iLine, const char* szPart) {
        whole(szName, Heading() + "group,1,,A,,,,\ndevice,2,1,B,12,,,\nchannel,3,2,C,6,1,,\n" + rows, iLine,
              szPart);
    };
    whole("an empty file", "", 0, "empty");
    whole("nothing but blanks", " \n\r\n\t\n", 0, "empty");
    whole("nothing but the mark", "\xEF\xBB\xBF", 0, "empty");
    whole("no heading", "device,2,1,B,12,,,\n", 1, "columns");
    whole("something else", "<html>\n", 1, "columns");
    whole("an unknown column", "record,id,name,type,parnet\n", 1, "parnet");
    whole("a column twice", "record,id,name,type,ID\n", 1, "twice");
    whole("a missing column", "record,id,type\n", 1, "name");
    row("an unknown record", "door,9,2,D,6,1,,\n", 5, "door");
    row("no record", ",9,2,D,6,1,,\n", 5, "record");
    row("no id", "group,,,D,,,,\n", 5, "id");
    row("the id 0", "group,0,,D,,,,\n", 5, "id");
    row("a negative id", "group,-1,,D,,,,\n", 5, "-1");
    row("a signed id", "group,+9,,D,,,,\n", 5, "+9");
    row("an id with a fraction", "group,9.0,,D,,,,\n", 5, "9.0");
    row("an id beyond the range", "group,9223372036854775808,,D,,,,\n", 5, "9223372036854775808");
    row("an id of other digits", "group,\xD9\xA3,,D,,,,\n", 5, "id");
    row("an id twice", "group,2,,D,,,,\n", 5, "line 3");
    row("no name", "group,9,,,,,,\n", 5, "name");
    row("a line end in a name", "group,9,,\"a\nb\",,,,\n", 5, "control");
    row("a name too long", "group,9,," + QByteArray(256, 'x') + ",,,,\n", 5, "255");
    row("a device type beyond the range", "device,9,,D,19,,,\n", 5, "19");
    row("no type", "device,9,,D,,,,\n", 5, "type");
    row("a channel's word for a device", "device,9,,D,door,,,\n", 5, "door");
    row("a channel type beyond the range", "channel,9,2,D,7,1,,\n", 5, "7");
    row("no number", "channel,9,2,D,6,,,\n", 5, "number");
    row("a number beyond the range", "channel,9,2,D,6,2147483648,,\n", 5, "2147483648");
    row("a number twice", "channel,9,2,D,6,1,,\n", 5, "line 4");
    row("a flag that is none", "device,9,,D,12,,maybe,\n", 5, "maybe");
    row("a channel without a device", "channel,9,,D,6,1,,\n", 5, "parent");
    row("a channel of a group", "channel,9,1,D,6,1,,\n", 5, "device 1");
    row("a channel of nobody", "channel,9,77,D,6,1,,\n", 5, "77");
    row("a channel of itself", "channel,9,9,D,6,1,,\n", 5, "device 9");
    row("a device in a device", "device,9,2,D,12,,,\n", 5, "group 2");
    row("a device in no group there is", "device,9,77,D,12,,,\n", 5, "77");
    row("a group in no group there is", "group,9,77,D,,,,\n", 5, "77");
    row("a parent that is no id", "group,9,top,D,,,,\n", 5, "top");
    row("a group in itself", "group,9,9,D,,,,\n", 5, "itself");
    row("groups in a circle", "group,8,9,D,,,,\ngroup,9,8,E,,,,\n", 5, "itself");
    row("a group with a type", "group,9,,D,12,,,\n", 5, "type");
    row("a device with a number", "device,9,,D,12,1,,\n", 5, "number");
    row("a channel that is online", "channel,9,2,D,6,2,,yes\n", 5, "online");
    row("a NUL in a name", QByteArray("group,9,,D\0E,,,,\n", 17), 5, "control");
    row("a NUL in an id", QByteArray("group,9\0,,D,,,,\n", 16), 5, "id");
    row("too many cells", "group,9,,D,,,,,more\n", 5, "cells");
    row("far too many cells", "group,9,,D,,,," + QByteArray(100000, ',') + "\n", 5, "cells");
    row("a quote within a cell", "group,9,,D\"E,,,,\n", 5, "quotation");
    row("a quote left open", "group,9,,\"D,,,,\n\n\n", 5, "quotation");
    QByteArray deep;
    for (int i = 0; i < 40; ++i) {
        deep += "group," + QByteArray::number(1000 + i) + ',' + QByteArray::number(i == 0 ? 1 : 999 + i) +
                ",D,,,,\n";
    }
    row("groups too deep", deep, 36, "32"); // the one on line 2 is the first of them
}

void TestSiteTable::everyLineThatIsWrongIsTold()
{
    QFETCH(QByteArray, text);
    QFETCH(int, iLine);
    QFETCH(QString, strPart);
    const SiteTable::Parsed parsed = Parse(text);
    QVERIFY(!parsed.problems.IsEmpty());
    QCOMPARE(Printed(parsed.problems).count(QLatin1Char('\n')), 0);
    QCOMPARE(parsed.problems.list.constFirst().iLine, iLine);
    QVERIFY2(parsed.problems.list.constFirst().strReason.contains(strPart),
             qUtf8Printable(Printed(parsed.problems)));
}

void TestSiteTable::allThatIsWrongIsToldAtOnce()
{
    const SiteTable::Parsed parsed = Parse(Heading() + "group,x,,,,,,\n"
                                                       "device,2,77,B,99,,perhaps,\n"
                                                       "channel,3,88,C,6,1,,\n"
                                                       "group,4,,Good,,,,\n"
                                                       "what,,,,,,,\n");
    QCOMPARE(LinesOf(parsed.problems), (QVector<int>{2, 2, 3, 3, 4, 6}));
}

void TestSiteTable::aRowThatIsWrongIsNoReasonToComplainOfItsChildren()
{
    const SiteTable::Parsed parsed = Parse(Heading() + "group,1,,,,,,\n"
                                                       "device,2,1,,12,,,\n"
                                                       "channel,3,2,C,6,1,,\n");
    QCOMPARE(LinesOf(parsed.problems), (QVector<int>{2, 3}));
}

void TestSiteTable::linesInAnotherEncodingAreTold()
{
    const SiteTable::Parsed parsed = Parse(Heading() + "group,1,,T\xFCr,,,,\n"
                                                       "group,2,,T\xC3\xBCr,,,,\r\n"
                                                       "group,3,,\xC3,,,,\n"
                                                       "group,4,,\xED\xA0\x80,,,,\n"
                                                       "group,5,,\xC0\x80,,,,\n");
    QCOMPARE(LinesOf(parsed.problems), (QVector<int>{2, 4, 5, 6}));
    QVERIFY(parsed.problems.list.constFirst().strReason.contains(QLatin1String("UTF-8")));
}

void TestSiteTable::textInUtf16IsTold()
{
    const QString strText = QString::fromLatin1(Heading());
    const QByteArray little(reinterpret_cast<const char*>(strText.utf16()), 2 * int(strText.size()));
    for (const QByteArray& text : {"\xFF\xFE" + little, little, QByteArray("\xFE\xFF\0r\0e", 6)}) {
        const SiteTable::Parsed parsed = Parse(text);
        QCOMPARE(parsed.problems.list.size(), 1);
        QVERIFY(parsed.problems.list.constFirst().strReason.contains(QLatin1String("UTF-16")));
    }
}

void TestSiteTable::problemsBeyondTheLimitAreCounted()
{
    const SiteTable::Parsed parsed = Parse(Heading() + QByteArray("nonsense,1,,A,,,,\n").repeated(50000));
    QCOMPARE(parsed.problems.list.size(), int(SiteProblems::Limit));
    QVERIFY(parsed.problems.iFurther > 0);
}

void TestSiteTable::aHugeCellIsToldBriefly()
{
    const QByteArray huge(5000000, 'x');
    for (const QByteArray& row : {"group,1,,\"" + huge + "\",,,,\n", "group," + huge + ",,A,,,,\n",
                                  huge + ",1,,A,,,,\n", "device,1,,A,12,,\"" + huge + "\n\",\n"}) {
        const SiteTable::Parsed parsed = Parse(Heading() + row);
        QCOMPARE(parsed.problems.list.size(), 1);
        QCOMPARE(parsed.problems.list.constFirst().iLine, 2);
        QVERIFY(parsed.problems.list.constFirst().strReason.size() < 200);
    }
}

void TestSiteTable::nothingNobodyWroteGetsIn_data()
{
    QTest::addColumn<int>("iSeed");
    for (int i = 1; i <= 20; ++i) {
        QTest::addRow("seed %d", i) << i;
    }
}

void TestSiteTable::nothingNobodyWroteGetsIn()
{
    // Tables with a few bytes damaged either read as a site that the site file takes, or tell a problem.
    QFETCH(int, iSeed);
    QRandomGenerator random(static_cast<quint32>(iSeed));
    const QByteArray good = SiteTable::ToText(SmallSite());
    const QByteArray letters("\",;\t\r\n 0129-x\0\xC3\xFF", 16);
    for (int i = 0; i < 200; ++i) {
        QByteArray text = good;
        for (int n = random.bounded(1, 5); n > 0; --n) {
            text[random.bounded(int(text.size()))] = letters.at(random.bounded(16));
        }
        const SiteTable::Parsed parsed = Parse(text);
        if (parsed.problems.IsEmpty()) {
            Site readBack;
            SiteFileError error;
            QVERIFY2(SiteFile::Parse(SiteFile::ToText(parsed.site), QString(), readBack, error),
                     text.constData());
        }
    }
}

QTEST_GUILESS_MAIN(TestSiteTable)
#include "tst_site_table.moc"
