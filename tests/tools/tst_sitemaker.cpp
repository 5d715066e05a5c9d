#include "platform/SiteLibrary/SiteFile.h"
#include "tools/SiteMaker.h"

#include <QSet>
#include <QTest>

#include <algorithm>
#include <limits>

using VantaLogic::DeviceInfo;

namespace {

int CountOf(const DeviceInfo& device, int iKind)
{
    return static_cast<int>(std::count_if(
        device.channels.begin(), device.channels.end(),
        [iKind](const VantaLogic::ChannelInfo& channel) { return channel.iChannelType == iKind; }));
}

int Doors(const Site& site)
{
    int doors = 0;
    for (const DeviceInfo& device : site.devices)
        doors += CountOf(device, VantaLogic::ChannelTypeDoor);
    return doors;
}

} // namespace

class TestSiteMaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySizeHasExactlyItsDoors();
    void sizesOutOfBoundsAreBounded();
    void controllersHaveFourToSixteenDoors();
    void everyDoorHasInputsAndAnOutput();
    void everyIdIsUsedOnce();
    void channelNumbersAreUniquePerKindAndDevice();
    void everyGroupAndDeviceStandsInAKnownGroup();
    void theSameSeedGivesTheSameSite();
    void anotherSeedGivesAnotherSite();
    void aLargeSiteHasOfflineAndDisabledDevicesAndSeveralTypes();
    void noNameIsEmptyAndDeviceNamesDiffer();
    void theSiteFileTakesWhatIsMade();
};

void TestSiteMaker::everySizeHasExactlyItsDoors()
{
    for (int doors = 1; doors <= 300; ++doors)
        QCOMPARE(Doors(SiteMaker::MakeSite(doors, static_cast<uint32_t>(doors))), doors);
    QCOMPARE(Doors(SiteMaker::MakeSite(10000, 7)), 10000);
}

void TestSiteMaker::sizesOutOfBoundsAreBounded()
{
    QCOMPARE(Doors(SiteMaker::MakeSite(0, 1)), 1);
    QCOMPARE(Doors(SiteMaker::MakeSite(std::numeric_limits<int>::min(), 1)), 1);
    QCOMPARE(Doors(SiteMaker::MakeSite(std::numeric_limits<int>::max(), 1)), SiteMaker::MaxDoors);
}

void TestSiteMaker::controllersHaveFourToSixteenDoors()
{
    for (uint32_t seed = 0; seed < 200; ++seed) {
        const int wanted = 4 + static_cast<int>(seed) * 3;
        const Site site = SiteMaker::MakeSite(wanted, seed);
        for (const DeviceInfo& device : site.devices) {
            if (device.iDeviceType != VantaLogic::DeviceTypeAccessControl)
                continue;
            const int doors = CountOf(device, VantaLogic::ChannelTypeDoor);
            QVERIFY2(doors >= 4 && doors <= 16,
                     qPrintable(QStringLiteral("seed %1: %2 doors").arg(seed).arg(doors)));
        }
    }
}

void TestSiteMaker::everyDoorHasInputsAndAnOutput()
{
    const Site site = SiteMaker::MakeSite(500, 3);
    for (const DeviceInfo& device : site.devices) {
        if (device.iDeviceType != VantaLogic::DeviceTypeAccessControl)
            continue;
        const int doors = CountOf(device, VantaLogic::ChannelTypeDoor);
        QCOMPARE(CountOf(device, VantaLogic::ChannelTypeAlarmInput), 2 * doors);
        QCOMPARE(CountOf(device, VantaLogic::ChannelTypeAlarmOutput), doors);
    }
}

void TestSiteMaker::everyIdIsUsedOnce()
{
    const Site site = SiteMaker::MakeSite(2000, 5);
    QSet<int64_t> ids;
    int count = 0;
    const auto add = [&ids, &count](int64_t id) {
        ids.insert(id);
        ++count;
    };
    for (const VantaLogic::GroupInfo& group : site.groups)
        add(group.iGroupId);
    for (const DeviceInfo& device : site.devices) {
        add(device.iDeviceId);
        for (const VantaLogic::ChannelInfo& channel : device.channels) {
            add(channel.iChannelId);
            QCOMPARE(channel.iDeviceId, device.iDeviceId);
        }
    }
    QCOMPARE(ids.size(), count);
    QVERIFY(!ids.contains(0) && !ids.contains(-1));
    QCOMPARE(*std::max_element(ids.begin(), ids.end()), int64_t{count});
}

void TestSiteMaker::channelNumbersAreUniquePerKindAndDevice()
{
    const Site site = SiteMaker::MakeSite(2000, 5);
    for (const DeviceInfo& device : site.devices) {
        QSet<QPair<int, int>> numbers;
        for (const VantaLogic::ChannelInfo& channel : device.channels)
            numbers.insert({channel.iChannelType, channel.iNumber});
        QCOMPARE(numbers.size(), device.channels.size());
    }
}

void TestSiteMaker::everyGroupAndDeviceStandsInAKnownGroup()
{
    const Site site = SiteMaker::MakeSite(2000, 9);
    QSet<int64_t> known;
    int buildings = 0;
    for (const VantaLogic::GroupInfo& group : site.groups) {
        QVERIFY(group.iParentId == -1 || known.contains(group.iParentId));
        buildings += group.iParentId == -1 ? 1 : 0;
        known.insert(group.iGroupId);
    }
    QVERIFY(buildings >= 2);
    QVERIFY(known.size() > buildings);
    for (const DeviceInfo& device : site.devices)
        QVERIFY(known.contains(device.iGroupId));
}

void TestSiteMaker::theSameSeedGivesTheSameSite()
{
    QCOMPARE(SiteFile::ToText(SiteMaker::MakeSite(333, 42)), SiteFile::ToText(SiteMaker::MakeSite(333, 42)));
}

void TestSiteMaker::anotherSeedGivesAnotherSite()
{
    QVERIFY(SiteFile::ToText(SiteMaker::MakeSite(333, 42)) != SiteFile::ToText(SiteMaker::MakeSite(333, 43)));
}

void TestSiteMaker::aLargeSiteHasOfflineAndDisabledDevicesAndSeveralTypes()
{
    const Site site = SiteMaker::MakeSite(10000, 1);
    QSet<int> types;
    int offline = 0;
    int disabled = 0;
    for (const DeviceInfo& device : site.devices) {
        types.insert(device.iDeviceType);
        offline += device.bOnline ? 0 : 1;
        disabled += device.bEnabled ? 0 : 1;
    }
    QVERIFY(types.contains(VantaLogic::DeviceTypeAccessControl));
    QVERIFY(types.contains(VantaLogic::DeviceTypeAlarmHost));
    QVERIFY(types.size() >= 4);
    // About one in twelve and one in fifty.
    const int count = site.devices.size();
    QVERIFY(offline > count / 24 && offline < count / 6);
    QVERIFY(disabled > count / 100 && disabled < count / 25);
}

void TestSiteMaker::noNameIsEmptyAndDeviceNamesDiffer()
{
    const Site site = SiteMaker::MakeSite(20000, 2);
    QSet<QString> names;
    for (const DeviceInfo& device : site.devices) {
        names.insert(device.strName);
        for (const VantaLogic::ChannelInfo& channel : device.channels)
            QVERIFY(!channel.strName.isEmpty());
    }
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.size(), site.devices.size());
    for (const VantaLogic::GroupInfo& group : site.groups)
        QVERIFY(!group.strName.isEmpty());
}

void TestSiteMaker::theSiteFileTakesWhatIsMade()
{
    for (const int doors : {1, 5, 100, 3000}) {
        const QByteArray text = SiteFile::ToText(SiteMaker::MakeSite(doors, 11));
        Site site;
        SiteFileError error;
        QVERIFY2(SiteFile::Parse(text, QStringLiteral("made"), site, error), qPrintable(error.Text()));
        QCOMPARE(SiteFile::ToText(site), text);
    }
}

QTEST_APPLESS_MAIN(TestSiteMaker)
#include "tst_sitemaker.moc"
