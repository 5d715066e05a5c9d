#include "scheme_services/evaluation/SiteIndex.h"
#include "tests/scheme_evaluation/EvaluationSite.h"

#include <QTest>

class TestSiteIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void devicesAndChannelsAreFoundById();
    void sourcesAreKnownByTheirKeys_data();
    void sourcesAreKnownByTheirKeys();
    void outputsAreKnownByTheirKeys_data();
    void outputsAreKnownByTheirKeys();
    void doorsAreKnownByTheirNumber();
    void videosAreKnownByTheirKeys();
    void keysHaveNames();
    void namesStandForSources_data();
    void namesStandForSources();
    void namesStandForOutputs();
    void aKeyStandsForItselfKnownOrNot();
    void upperAndLowerCaseMatterOnlyWhereNeeded();
    void aNameOfSeveralThingsIsAmbiguous();
    void anUnknownNameIsAProblem();
    void withoutASiteThereAreNoNames();
};

void TestSiteIndex::devicesAndChannelsAreFoundById()
{
    const SiteIndex site(EvaluationSite());
    QVERIFY(!site.IsEmpty());
    QCOMPARE(site.FindDevice(200)->strName, QStringLiteral("Yard"));
    QCOMPARE(site.FindChannel(202)->strName, QStringLiteral("Gate/East"));
    QVERIFY(site.FindDevice(202) == nullptr);
    QVERIFY(site.FindChannel(200) == nullptr);
    QVERIFY(site.FindDevice(-1) == nullptr);
    QCOMPARE(site.DeviceOf(QStringLiteral("200$1$0$999"))->iDeviceId, int64_t{200});
    QVERIFY(site.DeviceOf(QStringLiteral("200")) == nullptr);
}

void TestSiteIndex::sourcesAreKnownByTheirKeys_data()
{
    QTest::addColumn<bool>("known");
    for (const char* const key : {"100$1$0$101", "100$1$1$0", "100$1$0$-1", "100$1$0$0", "100$3$1$103",
                                  "300$3$0$301", "300$3$0$0", "100$7$0$104"})
        QTest::newRow(key) << true;
    for (const char* const key :
         {"100$1$0$201", "100$1$0$103", "100$3$1$101", "100$1$0$999", "999$1$0$101", "999$1$0$-1", "100$1$0",
          "100$1$0$101$0", "", "100$1$0$-2", "x$1$0$101", "100$1$0$101 "})
        QTest::newRow(key) << false;
}

void TestSiteIndex::sourcesAreKnownByTheirKeys()
{
    QFETCH(bool, known);
    const QString strKey = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(SiteIndex(EvaluationSite()).HasSource(strKey), known);
    QVERIFY(!SiteIndex().HasSource(strKey));
}

void TestSiteIndex::outputsAreKnownByTheirKeys_data()
{
    QTest::addColumn<bool>("known");
    for (const char* const key : {"104$3$0$0", "302$3$0$0", "104$3$5$7", "100$1$0$101"})
        QTest::newRow(key) << true;
    for (const char* const key : {"101$3$0$0", "999$3$0$0", "104$4$0$0", "104", "", "100$1$0$999"})
        QTest::newRow(key) << false;
}

void TestSiteIndex::outputsAreKnownByTheirKeys()
{
    QFETCH(bool, known);
    QCOMPARE(SiteIndex(EvaluationSite()).HasOutput(QString::fromLatin1(QTest::currentDataTag())), known);
}

void TestSiteIndex::doorsAreKnownByTheirNumber()
{
    const SiteIndex site(EvaluationSite());
    QVERIFY(site.HasDoor(QStringLiteral("101")));
    for (const char* const id :
         {"103", "100", "0", "-1", "", "x", "101 ", "101$1$0$0", "99999999999999999999"})
        QVERIFY2(!site.HasDoor(QLatin1String(id)), id);
}

void TestSiteIndex::videosAreKnownByTheirKeys()
{
    const SiteIndex site(EvaluationSite());
    QVERIFY(site.HasVideo(QStringLiteral("400$1$0$401")));
    QVERIFY(site.HasVideo(QStringLiteral("400$1$0$0")));
    for (const char* const key : {"400$1$0$402", "401$1$0$0", "400$1$0$101", "", "400"})
        QVERIFY2(!site.HasVideo(QLatin1String(key)), key);
}

void TestSiteIndex::keysHaveNames()
{
    const SiteIndex site(EvaluationSite());
    QCOMPARE(site.NameOfSource(QStringLiteral("200$1$0$202")), QStringLiteral("Yard/Gate/East"));
    QCOMPARE(site.NameOfSource(QStringLiteral("200$1$0$-1")), QStringLiteral("Yard"));
    QCOMPARE(site.NameOfSource(QStringLiteral("200$1$0$101")), QStringLiteral("200$1$0$101"));
    QCOMPARE(site.NameOfSource(QStringLiteral("500$1$0$1")), QStringLiteral("500$1$0$1"));
    QCOMPARE(site.NameOfSource(QStringLiteral("any text")), QStringLiteral("any text"));
    QCOMPARE(site.NameOfOutput(QStringLiteral("302$3$0$0")), QStringLiteral("Panel/Siren"));
    QCOMPARE(site.NameOfOutput(QStringLiteral("999$3$0$0")), QStringLiteral("999$3$0$0"));
    QCOMPARE(site.NameOfDoor(QStringLiteral("101")), QStringLiteral("Lobby/Main"));
    QCOMPARE(site.NameOfDoor(QStringLiteral("104")), QStringLiteral("104"));
}

void TestSiteIndex::namesStandForSources_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Lobby/Main") << QStringLiteral("100$1$0$101");
    QTest::newRow("Yard/Gate/East") << QStringLiteral("200$1$0$202");
    QTest::newRow("Lobby/Glass") << QStringLiteral("100$3$1$103");
    QTest::newRow("Panel/Motion") << QStringLiteral("300$3$0$301");
    QTest::newRow("Lobby") << QStringLiteral("100$1$1$0");
    QTest::newRow("Panel") << QStringLiteral("300$1$0$0");
}

void TestSiteIndex::namesStandForSources()
{
    QFETCH(QString, key);
    const SiteIndex::Resolved resolved =
        SiteIndex(EvaluationSite()).ResolveSource(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(resolved.strKey, key);
    QVERIFY(resolved.strProblem.isEmpty());
}

void TestSiteIndex::namesStandForOutputs()
{
    const SiteIndex site(EvaluationSite());
    QCOMPARE(site.ResolveOutput(QStringLiteral("Lobby/Siren")).strKey, QStringLiteral("104$3$0$0"));
    QCOMPARE(site.ResolveOutput(QStringLiteral("panel/SIREN")).strKey, QStringLiteral("302$3$0$0"));
    QCOMPARE(site.ResolveOutput(QStringLiteral("104$3$0$0")).strKey, QStringLiteral("104$3$0$0"));
    QVERIFY(site.ResolveOutput(QStringLiteral("Lobby/Main")).strKey.isEmpty());
    QVERIFY(site.ResolveSource(QStringLiteral("Lobby/Siren")).strKey.isEmpty());
    QVERIFY(site.ResolveOutput(QStringLiteral("Lobby")).strKey.isEmpty());
}

void TestSiteIndex::aKeyStandsForItselfKnownOrNot()
{
    for (const char* const key : {"100$1$0$101", "7$1$0$8", "7$1$0$-1"}) {
        QCOMPARE(SiteIndex(EvaluationSite()).ResolveSource(QLatin1String(key)).strKey, QLatin1String(key));
        QCOMPARE(SiteIndex().ResolveSource(QLatin1String(key)).strKey, QLatin1String(key));
    }
}

void TestSiteIndex::upperAndLowerCaseMatterOnlyWhereNeeded()
{
    const SiteIndex site(EvaluationSite());
    QCOMPARE(site.ResolveSource(QStringLiteral("lobby/side")).strKey, QStringLiteral("100$1$0$102"));
    // The yard has a door "Main" and an alarm input "main".
    QCOMPARE(site.ResolveSource(QStringLiteral("Yard/Main")).strKey, QStringLiteral("200$1$0$201"));
    QCOMPARE(site.ResolveSource(QStringLiteral("Yard/main")).strKey, QStringLiteral("200$3$1$203"));
}

void TestSiteIndex::aNameOfSeveralThingsIsAmbiguous()
{
    const SiteIndex site(EvaluationSite());
    const SiteIndex::Resolved resolved = site.ResolveSource(QStringLiteral("YARD/MAIN"));
    QVERIFY(resolved.strKey.isEmpty());
    QVERIFY(resolved.strProblem.contains(QStringLiteral("200$1$0$201")));
    QVERIFY(resolved.strProblem.contains(QStringLiteral("200$3$1$203")));
    // "a/b" of one device and "b" of another that is called "a".
    Site twins = EvaluationSite();
    twins.devices[0].strName = QStringLiteral("Yard/Gate");
    twins.devices[0].channels[0].strName = QStringLiteral("East");
    QVERIFY(SiteIndex(twins).ResolveSource(QStringLiteral("Yard/Gate/East")).strKey.isEmpty());
}

void TestSiteIndex::anUnknownNameIsAProblem()
{
    const SiteIndex site(EvaluationSite());
    for (const char* const text : {"Lobby/", "/Main", "Main", "Lobby/Main/", "Lobby/Nothing", "", "100"}) {
        const SiteIndex::Resolved resolved = site.ResolveSource(QLatin1String(text));
        QVERIFY2(resolved.strKey.isEmpty(), text);
        QVERIFY2(!resolved.strProblem.isEmpty(), text);
    }
}

void TestSiteIndex::withoutASiteThereAreNoNames()
{
    const SiteIndex none;
    QVERIFY(none.IsEmpty());
    QVERIFY(none.ResolveSource(QStringLiteral("Lobby/Main")).strProblem.contains(QStringLiteral("site")));
    QCOMPARE(none.NameOfSource(QStringLiteral("100$1$0$101")), QStringLiteral("100$1$0$101"));
}

QTEST_APPLESS_MAIN(TestSiteIndex)
#include "tst_site_index.moc"
