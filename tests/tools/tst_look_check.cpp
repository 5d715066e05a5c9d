#include "tests/tools/LookTest.h"

#include <QJsonArray>
#include <QTest>

/// The command check.
class TestLookCheck : public LookTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void checkFindsEverything();
    void checkAsJson();
    void checkOfASoundSiteIsDone();
    void checkWithoutASiteSaysSo();
    void checkLeavesOutWhatIsSilenced();
    void checkRefusesAListThatIsNone();
};

void TestLookCheck::init()
{
    MakeData();
}

void TestLookCheck::checkFindsEverything()
{
    const Run run = Look("check");
    QCOMPARE(
        run.out,
        Text(
            "Error touching-regions: Yard/Main, Door Forced Open, Sunday\n"
            "  Time regions of the day touch each other. Open the day's details and confirm them; regions "
            "that belong together are joined.\n"
            "Error overlapping-regions: Yard/Main, Door Forced Open, Saturday\n"
            "  Time regions of the day overlap. Open the day's details and confirm them; regions that belong "
            "together are joined.\n"
            "Error bad-duration: Yard/Main, Door Forced Open\n"
            "  The output Lobby/Siren stays on for 3 s, which is not within 5 to 43200 s. Set a time from 5 "
            "to "
            "43200 s.\n"
            "Error unknown-output: Yard/Main, Door Forced Open\n"
            "  The linked output 999$3$0$0 is not part of the site. Remove the link, or bring the device "
            "back "
            "into the site.\n"
            "Information offline-device: Yard/Main, Door Forced Open\n"
            "  The scheme waits for events of a device that is offline. Look after the device; until it "
            "answers, nothing is reported.\n"
            "Warning unwatched-door: Yard/Gate/East\n"
            "  No scheme of this door is switched on. Switch on a scheme for the door if its events matter.\n"
            "Schemes: 5, errors: 4, warnings: 1, information: 1, silenced: 0\n"));
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.isEmpty());
}

void TestLookCheck::checkAsJson()
{
    const Run run = Look("check --format json");
    QCOMPARE(run.code, 1);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-check"));
    QCOMPARE(json.value(Text("errors")).toInt(), 4);
    QCOMPARE(json.value(Text("warnings")).toInt(), 1);
    QCOMPARE(json.value(Text("information")).toInt(), 1);
    QCOMPARE(json.value(Text("silenced")).toInt(), 0);
    QCOMPARE(json.value(Text("siteKnown")).toBool(), true);
    const QJsonArray findings = json.value(Text("findings")).toArray();
    QCOMPARE(findings.size(), 6);
    const QJsonObject touching = findings.at(0).toObject();
    QCOMPARE(touching.value(Text("code")).toString(), Text("touching-regions"));
    QCOMPARE(touching.value(Text("severity")).toString(), Text("error"));
    QCOMPARE(touching.value(Text("source")).toString(), Text("200$1$0$201"));
    QCOMPARE(touching.value(Text("event")).toInt(), 101);
    QCOMPARE(touching.value(Text("day")), QJsonValue(0));
    QCOMPARE(touching.value(Text("place")).toString(), Text("Yard/Main, Door Forced Open, Sunday"));
    QVERIFY(!touching.value(Text("text")).toString().isEmpty());
    QVERIFY(!touching.value(Text("advice")).toString().isEmpty());
    QCOMPARE(findings.at(3).toObject().value(Text("link")).toString(), Text("999$3$0$0"));
    const QJsonObject door = findings.at(5).toObject();
    QCOMPARE(door.value(Text("severity")).toString(), Text("warning"));
    QVERIFY(!door.contains(Text("event")) && !door.contains(Text("day")) && !door.contains(Text("link")));
}

void TestLookCheck::checkOfASoundSiteIsDone()
{
    AlarmInfo always;
    always.bOpen = true;
    always.bOpenSound = true;
    Changed().Store({{{Text("100$1$0$101"), 101}, RichScheme()},
                     {{Text("100$1$0$102"), 101}, always},
                     {{Text("100$1$0$-1"), 22}, always},
                     {{Text("200$1$0$201"), 101}, always}});
    const Run run = Look("check");
    // A warning and an information remain, and they are no errors.
    QVERIFY(run.out.endsWith(Text("errors: 0, warnings: 1, information: 1, silenced: 0\n")));
    QCOMPARE(run.code, 0);
}

void TestLookCheck::checkWithoutASiteSaysSo()
{
    const Run run(QStringList{Text("check"), Text("--database"), m_data->Database()});
    QCOMPARE(run.code, 1);
    QVERIFY(run.out.endsWith(Text("No site file: sources, links, doors and devices were not looked at.\n"
                                  "Schemes: 5, errors: 3, warnings: 0, information: 0, silenced: 0\n")));
}

void TestLookCheck::checkLeavesOutWhatIsSilenced()
{
    const QString strList = Changed().Write("known.txt", "# agreed with the guards\n"
                                                         "unwatched-door\n"
                                                         "offline-device\n"
                                                         "touching-regions 200$1$0$201\n"
                                                         "overlapping-regions 200$1$0$202\n"
                                                         "bad-duration\n");
    const Run run = Look("check --silence", {strList});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.out.endsWith(Text("errors: 2, warnings: 0, information: 0, silenced: 4\n")),
             qPrintable(run.out));
    const QString strAll = Changed().Write("all.txt", "touching-regions\noverlapping-regions\n"
                                                      "bad-duration\nunknown-output\n");
    QCOMPARE(Look("check --silence", {strAll}).code, 0);
}

void TestLookCheck::checkRefusesAListThatIsNone()
{
    for (const QString& strList : {Changed().Write("other.txt", "never-armed\nnothing\n"),
                                   m_data->Directory(), m_data->File("missing.txt")}) {
        const Run run = Look("check --silence", {strList});
        QCOMPARE(run.code, 3);
        QVERIFY(run.out.isEmpty());
        QVERIFY(!run.err.isEmpty());
    }
    QCOMPARE(Look("check --silence", {QString()}).code, 2);
}

QTEST_GUILESS_MAIN(TestLookCheck)
#include "tst_look_check.moc"
