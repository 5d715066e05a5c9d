#include "tests/tools/LookTest.h"

#include <QJsonArray>
#include <QTest>

#include <utility>

/// The commands explain and who-switches.
class TestLookExplain : public LookTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void explainSaysWhatAnEventWouldDo_data();
    void explainSaysWhatAnEventWouldDo();
    void explainAroundTheEndsOfTheWeek();
    void explainAnAlarmInput();
    void explainAsJson();
    void explainOverChangesOfTheClock();
    void explainTakesNamesAndNumbers();
    void explainByTheComputersOwnClock();
    void wrongDatesAreWrongUse_data();
    void wrongDatesAreWrongUse();
    void wrongUseOfExplain_data();
    void wrongUseOfExplain();
    void whoSwitchesAnOutput();
    void whoSwitchesAnOutputThatNobodySwitches();
    void whoSwitchesAsJson();
};

void TestLookExplain::init()
{
    MakeData();
}

void TestLookExplain::explainSaysWhatAnEventWouldDo_data()
{
    QTest::addColumn<QByteArray>("question");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("answer");
    const auto row = [](const char* szName, const char* szQuestion, int iCode, const char* szAnswer) {
        QTest::newRow(szName) << QByteArray(szQuestion) << iCode << Text(szAnswer);
    };
    row("armed", "--source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/Berlin", 0,
        "Lobby/Main, Door Forced Open, Mon 2026-11-23 08:30\n"
        "The scheme is armed since Mon 2026-11-23 08:00 until Mon 2026-11-23 12:00.\n"
        "It does this:\n"
        "  plays the alarm sound\n"
        "  sends a mail\n"
        "  switches on Lobby/Siren for 45 s\n"
        "  keeps Lobby/Side open\n"
        "  shows and records Cameras/Lobby in window 1 for 30 s\n"
        "The next change is at Mon 2026-11-23 12:00.\n");
    row("not armed at the end of a region",
        "--source Lobby/Main --event 101 --at 2026-11-23T12:00 --zone UTC", 1,
        "Lobby/Main, Door Forced Open, Mon 2026-11-23 12:00\n"
        "The scheme is not armed at this time; it will be from Mon 2026-11-23 13:00.\n"
        "The next change is at Mon 2026-11-23 13:00.\n");
    row("switched off", "--source Lobby/Side --event 201 --at 2026-11-23T08:30 --zone UTC", 1,
        "Lobby/Side, Unknown Card, Mon 2026-11-23 08:30\n"
        "The scheme is switched off.\n"
        "Nothing changes with time.\n");
    row("missing", "--source Lobby/Side --event 202 --at 2026-11-23T08:30 --zone UTC", 1,
        "Lobby/Side, Card Expired, Mon 2026-11-23 08:30\n"
        "There is no scheme for this event.\n"
        "Nothing changes with time.\n");
    row("the event of a whole device", "--source Lobby/Side --event 22 --at 2026-11-23T08:30 --zone UTC", 0,
        "Lobby/Side, Controller Tampered, Mon 2026-11-23 08:30\n"
        "The scheme is armed all the time.\n"
        "A device has one scheme for this event, whichever door it comes from.\n"
        "It does this:\n"
        "  lets the icon twinkle on the e-map\n"
        "Nothing changes with time.\n");
}

void TestLookExplain::explainSaysWhatAnEventWouldDo()
{
    QFETCH(QByteArray, question);
    const Run run = Look("explain", Words(question.constData()));
    QTEST(run.out, "answer");
    QTEST(run.code, "code");
}

void TestLookExplain::explainAroundTheEndsOfTheWeek()
{
    // Friday's last region goes on to midnight.
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-27T23:59:59 --zone UTC").code, 0);
    const Run weekend = Look("explain --source Lobby/Main --event 101 --at 2026-11-28T00:00 --zone UTC");
    QCOMPARE(weekend.code, 1);
    QVERIFY(weekend.out.contains(Text("from Mon 2026-11-30 08:00.")));
}

void TestLookExplain::explainAnAlarmInput()
{
    QCOMPARE(Look("explain --source Lobby/Glass --event 2 --at 2026-11-23T08:30 --zone UTC").code, 0);
    const Run other = Look("explain --source Lobby/Glass --event 101 --at 2026-11-23T08:30 --zone UTC");
    QCOMPARE(other.code, 1);
    QVERIFY(other.out.contains(Text("Such an event does not happen there.")));
}

void TestLookExplain::explainAsJson()
{
    const Run run = Look("explain --source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/Berlin "
                         "--format json");
    QCOMPARE(run.code, 0);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-explanation"));
    QCOMPARE(json.value(Text("source")).toString(), Text("100$1$0$101"));
    QCOMPARE(json.value(Text("scheme")).toString(), Text("100$1$0$101"));
    QCOMPARE(json.value(Text("event")).toInt(), 101);
    QCOMPARE(json.value(Text("at")).toString(), Text("2026-11-23T08:30:00+01:00"));
    QCOMPARE(json.value(Text("verdict")).toString(), Text("armed"));
    QCOMPARE(json.value(Text("since")).toString(), Text("2026-11-23T08:00:00+01:00"));
    QCOMPARE(json.value(Text("nextChange")).toString(), Text("2026-11-23T12:00:00+01:00"));
    const QJsonObject reactions = json.value(Text("reactions")).toObject();
    QCOMPARE(reactions.value(Text("sound")).toBool(), true);
    QCOMPARE(reactions.value(Text("twinkle")).toBool(), false);
    QCOMPARE(reactions.value(Text("outputs")).toArray().size(), 1);
    QCOMPARE(reactions.value(Text("outputs")).toArray().at(0).toObject().value(Text("seconds")).toInt(), 45);
    QCOMPARE(reactions.value(Text("doors")).toArray().at(0).toObject().value(Text("keptOpen")).toBool(),
             true);
    QCOMPARE(reactions.value(Text("videos")).toArray().at(0).toObject().value(Text("window")).toInt(), 1);

    const QJsonObject off = Json(
        Look("explain --source Lobby/Side --event 201 --at 2026-11-23T08:30 --zone UTC --format json").out);
    QCOMPARE(off.value(Text("verdict")).toString(), Text("switched-off"));
    QVERIFY(off.value(Text("since")).isNull());
    QVERIFY(off.value(Text("nextChange")).isNull());
    QVERIFY(off.value(Text("reactions")).toObject().value(Text("outputs")).toArray().isEmpty());
    for (const auto& [line, verdict] :
         {std::pair("--event 202", "no-scheme"), {"--event 201", "switched-off"}}) {
        const Run one =
            Run(Words("explain --source Lobby/Side --at 2026-11-23T12:00 --format json") + Words(line),
                m_data->Directory());
        QCOMPARE(Json(one.out).value(Text("verdict")).toString(), Text(verdict));
    }
    QCOMPARE(Json(Look("explain --source Lobby/Main --event 101 --at 2026-11-23T12:00 --format json").out)
                 .value(Text("verdict"))
                 .toString(),
             Text("not-armed"));
}

void TestLookExplain::explainOverChangesOfTheClock()
{
    AlarmInfo night;
    night.bOpen = true;
    for (int day = 0; day < 7; ++day)
        night.defenceTime[day] = {{2 * 3600 + 900, 2 * 3600 + 2700}};
    Changed().Store({{{Text("100$1$0$101"), 101}, night}});
    const Run skipped =
        Look("explain --source Lobby/Main --event 101 --at 2026-03-29T02:30 --zone Europe/Berlin");
    QCOMPARE(skipped.code, 2);
    QVERIFY2(skipped.err.contains(Text("skips")), qPrintable(skipped.err));
    const Run before =
        Look("explain --source Lobby/Main --event 101 --at 2026-03-29T01:59:59 --zone Europe/Berlin");
    QVERIFY2(before.out.contains(Text("from Mon 2026-03-30 02:15.")), qPrintable(before.out));
    const Run twice =
        Look("explain --source Lobby/Main --event 101 --at 2026-10-25T02:30 --zone Europe/Berlin");
    QCOMPARE(twice.code, 0);
    QVERIFY(twice.out.contains(Text("twice")));
    const QString strJson =
        Text("explain --source Lobby/Main --event 101 --format json --zone Europe/Berlin --at ");
    const QJsonObject first = Json(Look(qPrintable(strJson + Text("2026-10-25T02:30"))).out);
    QCOMPARE(first.value(Text("since")).toString(), Text("2026-10-25T02:15:00+02:00"));
    QCOMPARE(first.value(Text("nextChange")).toString(), Text("2026-10-25T02:45:00+02:00"));
    const QJsonObject second = Json(Look(qPrintable(strJson + Text("2026-10-25T02:30+01:00"))).out);
    QCOMPARE(second.value(Text("since")).toString(), Text("2026-10-25T02:15:00+01:00"));
    const QJsonObject zulu = Json(Look(qPrintable(strJson + Text("2026-10-25T01:30:00Z"))).out);
    QCOMPARE(zulu.value(Text("at")).toString(), Text("2026-10-25T02:30:00+01:00"));
}

void TestLookExplain::explainTakesNamesAndNumbers()
{
    const QString strWanted =
        Look("explain --source 100$1$0$101 --event 101 --at 2026-11-23T08:30 --zone UTC").out;
    QVERIFY(strWanted.contains(Text("armed since")));
    const Run named = Look("explain --at 2026-11-23T08:30:00 --zone UTC --source lobby/main",
                           {Text("--event"), Text("Door Forced Open")});
    QCOMPARE(named.out, strWanted);
    const Run blank =
        Look("explain --zone UTC --source lobby/main --event 101", {Text("--at"), Text("2026-11-23 08:30")});
    QCOMPARE(blank.out, strWanted);
}

void TestLookExplain::explainByTheComputersOwnClock()
{
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-23T08:30").code, 0);
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-22T08:30").code, 1);
}

void TestLookExplain::wrongDatesAreWrongUse_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text : {"now",
                                   "2026-11-23",
                                   "08:30",
                                   "2026-11-31T08:30",
                                   "2026-02-29T08:30",
                                   "2026-13-01T08:30",
                                   "2026-11-23T24:00",
                                   "2026-11-23T08:60",
                                   "2026-11-23T8:30",
                                   "2026-1-1T08:30",
                                   "26-11-23T08:30",
                                   "2026-11-23T08:30:60",
                                   "2026-11-23T08:30:00.5",
                                   "2026-11-23T08:30+25:00",
                                   "2026-11-23T08:30+1",
                                   "2026-11-23T08:30 ",
                                   " 2026-11-23T08:30",
                                   "+2026-11-23T08:30",
                                   "2026-11-23T08:30\n",
                                   "0000-01-01T00:00",
                                   "2026/11/23T08:30"})
        QTest::newRow(text) << QByteArray(text);
}

void TestLookExplain::wrongDatesAreWrongUse()
{
    QFETCH(QByteArray, text);
    const Run run =
        Look("explain --source Lobby/Main --event 101 --zone UTC --at", {QString::fromLatin1(text)});
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(run.err.contains(Text("date and time")));
}

void TestLookExplain::wrongUseOfExplain_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const line :
         {"", "--source Lobby/Main --event 101", "--source Lobby/Main --at 2026-11-23T08:30",
          "--event 101 --at 2026-11-23T08:30", "--source Lobby/Nothing --event 101 --at 2026-11-23T08:30",
          "--source Lobby/Main --event 999 --at 2026-11-23T08:30",
          "--source Lobby/Main --event -1 --at 2026-11-23T08:30",
          "--source Lobby/Main --event x --at 2026-11-23T08:30",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Mars/Olympus",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/../Berlin",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 more"})
        QTest::newRow(line) << QByteArray(line);
}

void TestLookExplain::wrongUseOfExplain()
{
    QFETCH(QByteArray, text);
    const Run run = Look("explain", Words(text.constData()));
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(!run.err.isEmpty());
}

void TestLookExplain::whoSwitchesAnOutput()
{
    const Run run = Look("who-switches Lobby/Siren");
    QCOMPARE(run.out, Text("Lobby/Siren, linked by 2:\n"
                           "  Lobby/Main, Door Forced Open: for 45 s\n"
                           "  Yard/Main, Door Forced Open: for 3 s\n"));
    QCOMPARE(run.code, 0);
    QCOMPARE(Look("who-switches 104$3$0$0").out, run.out);
}

void TestLookExplain::whoSwitchesAnOutputThatNobodySwitches()
{
    const Run linked = Look("who-switches Panel/Siren");
    QCOMPARE(linked.out,
             Text("Panel/Siren, linked by 1:\n"
                  "  Lobby/Main, Door Forced Open: no: the output is not opened automatically\n"));
    QCOMPARE(linked.code, 1);
    const Run unlinked = Look("who-switches Yard/Lamp");
    QCOMPARE(unlinked.out, Text("Yard/Lamp, linked by 0:\n"));
    QCOMPARE(unlinked.code, 1);
    for (const char* const line :
         {"who-switches", "who-switches Lobby/Main", "who-switches Lobby/Siren more", "who-switches Nothing"})
        QCOMPARE(Look(line).code, 2);
    QCOMPARE(Look("who-switches", {QString()}).code, 2);
}

void TestLookExplain::whoSwitchesAsJson()
{
    const QJsonObject json = Json(Look("who-switches Panel/Siren --format json").out);
    QCOMPARE(json.value(Text("output")).toString(), Text("302$3$0$0"));
    QCOMPARE(json.value(Text("outputName")).toString(), Text("Panel/Siren"));
    const QJsonArray schemes = json.value(Text("schemes")).toArray();
    QCOMPARE(schemes.size(), 1);
    const QJsonObject scheme = schemes.at(0).toObject();
    QCOMPARE(scheme.value(Text("switches")), QJsonValue(false));
    QCOMPARE(scheme.value(Text("automatic")), QJsonValue(false));
    QCOMPARE(scheme.value(Text("enabled")), QJsonValue(true));
    QCOMPARE(scheme.value(Text("everArmed")), QJsonValue(true));
    QCOMPARE(scheme.value(Text("seconds")), QJsonValue(20));
}

QTEST_GUILESS_MAIN(TestLookExplain)
#include "tst_look_explain.moc"
