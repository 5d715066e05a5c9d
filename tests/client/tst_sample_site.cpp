#include "client/SampleSite.h"
#include "platform/SiteLibrary/SiteFile.h"

#include <QSet>
#include <QtTest>

class TestSampleSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsSoundForTheSiteFile();
    void itHasSeveralControllersAndAtLeastTwelveDoors();
    void itHasAlarmInputsAndOutputsOnControllers();
    void oneControllerIsOfflineAndOneChannelDisabled();
    void itHasAnAlarmHostAVirtualDeviceAndCameras();
    void everyDeviceStandsInAKnownGroupOrInNone();
    void idsAreUniqueOverGroupsDevicesAndChannels();
    void namesComeInMoreThanOneScript();

private:
    static int CountChannels(const Site& site, int32_t iDeviceType, int32_t iChannelType)
    {
        int iCount = 0;
        for (const VantaLogic::DeviceInfo& device : site.devices) {
            for (const VantaLogic::ChannelInfo& channel : device.channels) {
                iCount += device.iDeviceType == iDeviceType && channel.iChannelType == iChannelType ? 1 : 0;
            }
        }
        return iCount;
    }
    static int CountDevices(const Site& site, int32_t iDeviceType)
    {
        return static_cast<int>(std::count_if(
            site.devices.cbegin(), site.devices.cend(),
            [iDeviceType](const VantaLogic::DeviceInfo& d) { return d.iDeviceType == iDeviceType; }));
    }
};

void TestSampleSite::itIsSoundForTheSiteFile()
{
    const Site site = MakeSampleSite();
    const QByteArray text = SiteFile::ToText(site);
    Site read;
    SiteFileError error;
    QVERIFY2(SiteFile::Parse(text, QStringLiteral("sample"), read, error), qPrintable(error.Text()));
    QCOMPARE(read.groups.size(), site.groups.size());
    QCOMPARE(read.devices.size(), site.devices.size());
    QCOMPARE(SiteFile::ToText(read), text);
}

void TestSampleSite::itHasSeveralControllersAndAtLeastTwelveDoors()
{
    const Site site = MakeSampleSite();
    QVERIFY(CountDevices(site, VantaLogic::DeviceTypeAccessControl) >= 3);
    QVERIFY(CountChannels(site, VantaLogic::DeviceTypeAccessControl, VantaLogic::ChannelTypeDoor) >= 12);
}

void TestSampleSite::itHasAlarmInputsAndOutputsOnControllers()
{
    const Site site = MakeSampleSite();
    const int32_t iController = VantaLogic::DeviceTypeAccessControl;
    QVERIFY(CountChannels(site, iController, VantaLogic::ChannelTypeAlarmInput) >= 2);
    QVERIFY(CountChannels(site, iController, VantaLogic::ChannelTypeAlarmOutput) >= 2);
}

void TestSampleSite::oneControllerIsOfflineAndOneChannelDisabled()
{
    const Site site = MakeSampleSite();
    int iOffline = 0;
    int iDisabled = 0;
    for (const VantaLogic::DeviceInfo& device : site.devices) {
        iOffline += device.bOnline ? 0 : 1;
        QVERIFY(device.bEnabled);
        for (const VantaLogic::ChannelInfo& channel : device.channels) {
            iDisabled += channel.bEnabled ? 0 : 1;
        }
    }
    QCOMPARE(iOffline, 1);
    QCOMPARE(iDisabled, 1);
}

void TestSampleSite::itHasAnAlarmHostAVirtualDeviceAndCameras()
{
    const Site site = MakeSampleSite();
    QVERIFY(CountChannels(site, VantaLogic::DeviceTypeAlarmHost, VantaLogic::ChannelTypeAlarmInput) >= 1);
    QVERIFY(CountChannels(site, VantaLogic::DeviceTypeAlarmHost, VantaLogic::ChannelTypeAlarmOutput) >= 1);
    QCOMPARE(CountDevices(site, VantaLogic::DeviceTypeVirtual), 1);
    QVERIFY(CountChannels(site, VantaLogic::DeviceTypeVirtual, VantaLogic::ChannelTypeAlarmOutput) >= 1);
    QVERIFY(CountDevices(site, 2) >= 1);
    QVERIFY(CountChannels(site, 2, VantaLogic::ChannelTypeVideo) >= 1);
}

void TestSampleSite::everyDeviceStandsInAKnownGroupOrInNone()
{
    const Site site = MakeSampleSite();
    QSet<int64_t> groups{-1};
    for (const VantaLogic::GroupInfo& group : site.groups) {
        QVERIFY(groups.contains(group.iParentId)); // parents stand before their children
        groups.insert(group.iGroupId);
    }
    QVERIFY(groups.size() > 3);
    for (const VantaLogic::DeviceInfo& device : site.devices) {
        QVERIFY(groups.contains(device.iGroupId));
    }
}

void TestSampleSite::idsAreUniqueOverGroupsDevicesAndChannels()
{
    const Site site = MakeSampleSite();
    QSet<int64_t> ids;
    int iCount = 0;
    for (const VantaLogic::GroupInfo& group : site.groups) {
        ids.insert(group.iGroupId);
        ++iCount;
    }
    for (const VantaLogic::DeviceInfo& device : site.devices) {
        ids.insert(device.iDeviceId);
        ++iCount;
        QSet<QPair<int32_t, int32_t>> places;
        for (const VantaLogic::ChannelInfo& channel : device.channels) {
            ids.insert(channel.iChannelId);
            ++iCount;
            QCOMPARE(channel.iDeviceId, device.iDeviceId);
            places.insert({channel.iChannelType, channel.iNumber});
        }
        QCOMPARE(places.size(), device.channels.size());
    }
    QCOMPARE(ids.size(), iCount);
}

void TestSampleSite::namesComeInMoreThanOneScript()
{
    QSet<int> scripts;
    const Site site = MakeSampleSite();
    for (const VantaLogic::DeviceInfo& device : site.devices) {
        for (const VantaLogic::ChannelInfo& channel : device.channels) {
            QVERIFY(!channel.strName.contains(QChar::ReplacementCharacter));
            for (const QChar c : channel.strName) {
                scripts.insert(static_cast<int>(c.script()));
            }
        }
    }
    for (const QChar::Script script :
         {QChar::Script_Latin, QChar::Script_Han, QChar::Script_Cyrillic, QChar::Script_Arabic}) {
        QVERIFY(scripts.contains(static_cast<int>(script)));
    }
}

QTEST_GUILESS_MAIN(TestSampleSite)
#include "tst_sample_site.moc"
