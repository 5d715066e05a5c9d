#include "AlarmCtrl/AlarmCopyModes.h"
#include "AlarmCtrl/CopyMode.h"
#include "platform/VantaModel/NodeRoles.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"

#include <QTest>

#include <limits>

using TestSite::ChannelOf;
using TestSite::DeviceOfType;
using VantaModel::NodeKindChannel;
using VantaModel::NodeKindDevice;

namespace {

/// A manager whose channel records carry another id than the one they are asked by, and which has a device
/// and a channel of one id.
class OddManager : public SiteDeviceManager
{
public:
    int32_t GetChannel(int64_t iChannelId, VantaLogic::ChannelInfo& out) const override
    {
        if (iChannelId != 7)
            return -1;
        out.iChannelId = 70;
        out.iDeviceId = m_iOwner;
        out.iChannelType = m_iKind;
        return 0;
    }
    bool IsDeviceEnabled(int64_t) const override { return m_bEnabled; }
    int32_t GetDeviceType(int64_t iDeviceId) const override { return iDeviceId == 7 ? m_iType : -1; }

    int64_t m_iOwner = 5;
    int32_t m_iKind = 1;
    int32_t m_iType = 1;
    bool m_bEnabled = true;
};

QString Key(int iMode, const DeviceTreeNode& node, const VantaLogic::IDeviceManager& manager)
{
    return CopyMode::Find(AlarmCopyModes(), iMode)->SourceKey(node, manager).value_or(QStringLiteral("none"));
}

const DeviceTreeNode s_channel7{7, NodeKindChannel};
const DeviceTreeNode s_device7{7, NodeKindDevice};

} // namespace

class TestCopyMode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreFiveModesAndNoOthers();
    void typeSetsHoldWhatTheyWereGiven();
    void nodesAreEqualByIdAndKind();
    void everyNodeOfEveryKindYieldsItsKeyOrNone_data();
    void everyNodeOfEveryKindYieldsItsKeyOrNone();
    void modeOneWritesTheRecordsFirstField();
    void modeFiveWritesTheNodesOwnId();
    void modeTwoAcceptsTypesThatItsTreeDoesNotOffer();
    void modeTwoYieldsNothingForChannels();
    void modeThreeAsksTheTypeOfTheChannelsOwnId();
    void aNegativeOwnerYieldsNothing();
    void aDisabledOwnerYieldsNothing();
    void anOfflineOwnerYieldsItsKey();
    void aVanishedChannelYieldsNothing();
    void groupsAndUnknownKindsYieldNothing();
    void extremeIdsAreWrittenInFull();
    void theKeysOfASetLeaveOutWhatYieldsNone();
};

void TestCopyMode::thereAreFiveModesAndNoOthers()
{
    for (int mode = 1; mode <= 5; ++mode)
        QCOMPARE(CopyMode::Find(AlarmCopyModes(), mode)->iMode, mode);
    for (const int mode : {0, 6, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QVERIFY(CopyMode::Find(AlarmCopyModes(), mode) == nullptr);
}

void TestCopyMode::typeSetsHoldWhatTheyWereGiven()
{
    constexpr TypeSet some{0, 3, 18};
    for (int type = -5; type < 100; ++type)
        QCOMPARE(some.Contains(type), type == 0 || type == 3 || type == 18);
    QVERIFY(!TypeSet({}).Contains(0));
    QVERIFY(TypeSet::All().Contains(18));
    QVERIFY(!TypeSet::All().Contains(-1));
}

void TestCopyMode::nodesAreEqualByIdAndKind()
{
    QSet<DeviceTreeNode> nodes = {s_channel7, s_device7, s_channel7};
    QCOMPARE(nodes.size(), 2);
    nodes.remove(s_device7);
    QVERIFY(nodes.contains(s_channel7));
    QVERIFY(s_channel7 != s_device7);
}

void TestCopyMode::everyNodeOfEveryKindYieldsItsKeyOrNone_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 1; mode <= 5; ++mode)
        QTest::addRow("mode %d", mode) << mode;
}

void TestCopyMode::everyNodeOfEveryKindYieldsItsKeyOrNone()
{
    QFETCH(int, mode);
    const SiteDeviceManager manager(TestSite::EveryTypeAndKind());
    for (int type = 0; type <= 18; ++type) {
        const qlonglong device = DeviceOfType(type);
        QString expected = QStringLiteral("none");
        if (mode == 2 && (type == 2 || type == 3 || type == 4 || type == 5 || type == 13))
            expected = QStringLiteral("%1$1$0$0").arg(device);
        if (mode == 3 && type == 1)
            expected = QStringLiteral("%1$1$0$0").arg(device);
        if (mode == 4 && type == 15)
            expected = QStringLiteral("%1$3$0$0").arg(device);
        QCOMPARE(Key(mode, {device, NodeKindDevice}, manager), expected);
        for (int kind = 0; kind <= 6; ++kind) {
            const qlonglong channel = ChannelOf(type, kind);
            expected = QStringLiteral("none");
            if (mode == 1 && kind == 1)
                expected = QStringLiteral("%1$1$0$%2").arg(device).arg(channel);
            if (mode == 5 && kind == 3)
                expected = QStringLiteral("%1$3$0$%2").arg(device).arg(channel);
            QCOMPARE(Key(mode, {channel, NodeKindChannel}, manager), expected);
        }
    }
}

void TestCopyMode::modeOneWritesTheRecordsFirstField()
{
    OddManager manager;
    QCOMPARE(Key(1, s_channel7, manager), QStringLiteral("5$1$0$70"));
    QCOMPARE(Key(1, s_device7, manager), QStringLiteral("none"));
    manager.m_iKind = 3;
    QCOMPARE(Key(1, s_channel7, manager), QStringLiteral("none"));
}

void TestCopyMode::modeFiveWritesTheNodesOwnId()
{
    OddManager manager;
    manager.m_iKind = 3;
    QCOMPARE(Key(5, s_channel7, manager), QStringLiteral("5$3$0$7"));
    // A device node whose id is also a channel's is judged by that channel; its own id is the owner.
    QCOMPARE(Key(5, s_device7, manager), QStringLiteral("7$3$0$7"));
    manager.m_iKind = 4;
    QCOMPARE(Key(5, s_channel7, manager), QStringLiteral("none"));
}

void TestCopyMode::modeTwoAcceptsTypesThatItsTreeDoesNotOffer()
{
    const CopyMode& mode = *CopyMode::Find(AlarmCopyModes(), 2);
    OddManager manager;
    for (const int type : {4, 5}) {
        manager.m_iType = type;
        QVERIFY(!mode.offer.devices.Contains(type));
        QCOMPARE(Key(2, s_device7, manager), QStringLiteral("7$1$0$0"));
    }
}

void TestCopyMode::modeTwoYieldsNothingForChannels()
{
    OddManager manager;
    manager.m_iType = 2;
    QCOMPARE(Key(2, s_channel7, manager), QStringLiteral("none"));
}

void TestCopyMode::modeThreeAsksTheTypeOfTheChannelsOwnId()
{
    OddManager manager;
    QCOMPARE(Key(3, s_channel7, manager), QStringLiteral("7$1$0$0"));
    manager.m_iType = 2;
    QCOMPARE(Key(3, s_channel7, manager), QStringLiteral("none"));
    manager.m_iType = 15;
    QCOMPARE(Key(4, s_channel7, manager), QStringLiteral("7$3$0$0"));
}

void TestCopyMode::aNegativeOwnerYieldsNothing()
{
    OddManager manager;
    manager.m_iOwner = -5;
    QCOMPARE(Key(1, s_channel7, manager), QStringLiteral("none"));
    QCOMPARE(Key(3, {-7, NodeKindDevice}, manager), QStringLiteral("none"));
}

void TestCopyMode::aDisabledOwnerYieldsNothing()
{
    OddManager manager;
    manager.m_bEnabled = false;
    for (int mode = 1; mode <= 5; ++mode) {
        QCOMPARE(Key(mode, s_channel7, manager), QStringLiteral("none"));
        QCOMPARE(Key(mode, s_device7, manager), QStringLiteral("none"));
    }
}

void TestCopyMode::anOfflineOwnerYieldsItsKey()
{
    SiteDeviceManager manager(TestSite::EveryTypeAndKind());
    QVERIFY(manager.SetDeviceOnline(DeviceOfType(2), false));
    QCOMPARE(Key(1, {ChannelOf(2, 1), NodeKindChannel}, manager), QStringLiteral("102$1$0$1021"));
}

void TestCopyMode::aVanishedChannelYieldsNothing()
{
    SiteDeviceManager manager(TestSite::EveryTypeAndKind());
    QVERIFY(manager.RemoveDevice(DeviceOfType(2)));
    for (int mode = 1; mode <= 5; ++mode) {
        QCOMPARE(Key(mode, {ChannelOf(2, 1), NodeKindChannel}, manager), QStringLiteral("none"));
        QCOMPARE(Key(mode, {DeviceOfType(2), NodeKindDevice}, manager), QStringLiteral("none"));
    }
}

void TestCopyMode::groupsAndUnknownKindsYieldNothing()
{
    OddManager manager;
    manager.m_iType = 15;
    for (const int kind : {0, 1, 4, -1, 100}) {
        for (int mode = 1; mode <= 5; ++mode)
            QCOMPARE(Key(mode, {7, kind}, manager), QStringLiteral("none"));
    }
}

void TestCopyMode::extremeIdsAreWrittenInFull()
{
    OddManager manager;
    manager.m_iOwner = std::numeric_limits<int64_t>::max();
    QCOMPARE(Key(1, s_channel7, manager), QStringLiteral("9223372036854775807$1$0$70"));
}

void TestCopyMode::theKeysOfASetLeaveOutWhatYieldsNone()
{
    const SiteDeviceManager manager(TestSite::EveryTypeAndKind());
    const QSet<DeviceTreeNode> nodes = {{ChannelOf(2, 1), NodeKindChannel},
                                        {ChannelOf(2, 3), NodeKindChannel},
                                        {DeviceOfType(2), NodeKindDevice},
                                        {ChannelOf(13, 1), NodeKindChannel},
                                        {4711, NodeKindChannel}};
    QStringList keys = CopyMode::Find(AlarmCopyModes(), 1)->SourceKeys(nodes, manager);
    keys.sort();
    QCOMPARE(keys, QList<QString>({QStringLiteral("102$1$0$1021"), QStringLiteral("113$1$0$1131")}));
}

QTEST_MAIN(TestCopyMode)
#include "tst_copymode.moc"
