#include "scheme_services/evaluation/OutputUse.h"

#include <QTest>

namespace {

const QString s_output = QStringLiteral("104$3$0$0");

AlarmInfo Linking(const QList<AlarmLinkAlarmOut>& links)
{
    AlarmInfo info;
    info.bOpen = true;
    info.listAlarmOut = links;
    return info;
}

AlarmSourceKey Key(int iChannel)
{
    return {QStringLiteral("100$1$0$%1").arg(iChannel), 101};
}

} // namespace

class TestOutputUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schemesThatLinkTheOutputAreToldInKeyOrder();
    void aSchemeSwitchesOnlyWhenItCan();
    void theLastLinkCounts();
    void otherSpellingsOfTheChannelAreTheSameOutput();
    void otherTextsMeanThemselves();
};

void TestOutputUse::schemesThatLinkTheOutputAreToldInKeyOrder()
{
    AlarmInfoMap map;
    map.insert(Key(3), Linking({{s_output, true, 30}}));
    map.insert(Key(1), Linking({{QStringLiteral("105$3$0$0"), true, 5}, {s_output, true, 10}}));
    map.insert(Key(2), Linking({{QStringLiteral("105$3$0$0"), true, 5}}));
    map.insert(Key(4), AlarmInfo());
    const QVector<OutputUse> uses = OutputUse::Of(map, s_output);
    QCOMPARE(uses.size(), 2);
    QVERIFY(uses.at(0).key == Key(1) && uses.at(1).key == Key(3));
    QCOMPARE(uses.at(0).iSeconds, 10);
    QVERIFY(uses.at(0).Switches());
    QVERIFY(OutputUse::Of(map, QStringLiteral("999$3$0$0")).isEmpty());
    QVERIFY(OutputUse::Of({}, s_output).isEmpty());
}

void TestOutputUse::aSchemeSwitchesOnlyWhenItCan()
{
    AlarmInfo off = Linking({{s_output, true, 10}});
    off.bOpen = false;
    AlarmInfo never = Linking({{s_output, true, 10}});
    for (int day = 0; day < 7; ++day)
        never.defenceTime[day].clear();
    const AlarmInfo byHand = Linking({{s_output, false, 10}});
    const QVector<OutputUse> uses =
        OutputUse::Of({{Key(1), off}, {Key(2), never}, {Key(3), byHand}}, s_output);
    QCOMPARE(uses.size(), 3);
    QVERIFY(!uses.at(0).bEnabled && uses.at(0).bEverArmed && uses.at(0).bAutoOpen);
    QVERIFY(uses.at(1).bEnabled && !uses.at(1).bEverArmed && uses.at(1).bAutoOpen);
    QVERIFY(uses.at(2).bEnabled && uses.at(2).bEverArmed && !uses.at(2).bAutoOpen);
    for (const OutputUse& use : uses)
        QVERIFY(!use.Switches());
}

void TestOutputUse::theLastLinkCounts()
{
    const QVector<OutputUse> uses =
        OutputUse::Of({{Key(1), Linking({{s_output, true, 10}, {s_output, false, 20}})}}, s_output);
    QCOMPARE(uses.size(), 1);
    QVERIFY(!uses.constFirst().bAutoOpen);
    QCOMPARE(uses.constFirst().iSeconds, 20);
}

void TestOutputUse::otherSpellingsOfTheChannelAreTheSameOutput()
{
    const AlarmInfoMap map{{Key(1), Linking({{QStringLiteral("104$3$1$9"), true, 10}})}};
    QCOMPARE(OutputUse::Of(map, s_output).size(), 1);
    QCOMPARE(OutputUse::Of(map, QStringLiteral("104$3$5$5")).size(), 1);
    QVERIFY(OutputUse::Of(map, QStringLiteral("104$1$1$9")).isEmpty());
}

void TestOutputUse::otherTextsMeanThemselves()
{
    const AlarmInfoMap map{{Key(1), Linking({{QStringLiteral("siren"), true, 10}})},
                           {Key(2), Linking({{QStringLiteral("lamp"), true, 10}})}};
    QCOMPARE(OutputUse::Of(map, QStringLiteral("siren")).size(), 1);
    QVERIFY(OutputUse::Of(map, QStringLiteral("Siren")).isEmpty());
}

QTEST_APPLESS_MAIN(TestOutputUse)
#include "tst_output_use.moc"
