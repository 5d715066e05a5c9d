#include "platform/SiteLibrary/SiteDeviceManager.h"

#include <QtTest>

#include <functional>
#include <memory>

using namespace VantaLogic;

namespace {

DeviceInfo Device(int64_t iId, const QString& strName, const QVector<int64_t>& doors = {})
{
    DeviceInfo device;
    device.iDeviceId = iId;
    device.iDeviceType = DeviceTypeAccessControl;
    device.strName = strName;
    for (const int64_t iDoor : doors) {
        ChannelInfo channel;
        channel.iChannelId = iDoor;
        channel.iDeviceId = iId;
        channel.iChannelType = ChannelTypeDoor;
        channel.iNumber = device.channels.size() + 1;
        channel.strName = QStringLiteral("Door %1").arg(iDoor);
        device.channels.append(channel);
    }
    return device;
}

Site ThreeDevices()
{
    Site site;
    site.devices << Device(10, QStringLiteral("A"), {11, 12}) << Device(20, QStringLiteral("B"), {21})
                 << Device(30, QStringLiteral("C"));
    return site;
}

/// Writes down what it is told, and does what the test wants while it is being told.
class Listener : public IDeviceObserver
{
public:
    explicit Listener(QStringList* pLog, const QString& strName = QString())
        : m_pLog(pLog)
        , m_strName(strName)
    {
    }

    void OnDeviceAdded(int64_t iId) override { Note(QStringLiteral("+%1").arg(iId)); }
    void OnDeviceRemoved(int64_t iId) override { Note(QStringLiteral("-%1").arg(iId)); }
    void OnDeviceChanged(int64_t iId) override { Note(QStringLiteral("~%1").arg(iId)); }
    void OnDeviceOnline(int64_t iId, bool bOnline) override
    {
        Note(QStringLiteral("%1%2").arg(bOnline ? QStringLiteral("on") : QStringLiteral("off")).arg(iId));
    }
    void OnGroupsChanged() override { Note(QStringLiteral("groups")); }

    std::function<void(const QString&)> then;

private:
    void Note(const QString& strWhat)
    {
        m_pLog->append(m_strName + strWhat);
        if (then)
            then(strWhat);
    }

    QStringList* m_pLog;
    QString m_strName;
};

} // namespace

class tst_site_device_manager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookUpsFindWhatTheSiteHolds();
    void anOfflineDeviceIsEnabledAndItsChannelsAreFound();
    void takenIdsAreRefused();
    void unsoundDevicesAreRefused();
    void aNameThatNoFileTakesIsRefused();
    void everyReferenceIsCounted();
    void objectsOutliveTheirDeviceAndTheManager();
    void observersHearInTheOrderTheyCame();
    void nothingIsToldWhenNothingChanges();
    void anObserverMayRemoveItselfAndOthersWhileCalled();
    void anObserverAddedWhileCalledHearsOfLaterChangesOnly();
    void aChangeMadeByAnObserverIsToldAfterTheOneBefore();
    void aSiteIsAppliedAsADifference();
    void aNewOrderIsToldWithTheFewestMoves();
    void aChannelMayMoveToAnotherDevice();
    void theSiteKeepsItsOrder();
    void aLargeSiteIsEmptiedOneByOne();
};

void tst_site_device_manager::lookUpsFindWhatTheSiteHolds()
{
    SiteDeviceManager manager(ThreeDevices());
    QCOMPARE(manager.GetDeviceIds(), (QVector<int64_t>{10, 20, 30}));
    DeviceInfo device;
    QCOMPARE(manager.GetDevice(20, device), 0);
    QCOMPARE(device.strName, QStringLiteral("B"));
    QCOMPARE(manager.GetDevice(21, device), -1); // a channel is no device
    QCOMPARE(manager.GetDeviceType(20), 12);
    QCOMPARE(manager.GetDeviceType(21), -1);
    QVERIFY(manager.IsDeviceEnabled(20));
    QVERIFY(!manager.IsDeviceEnabled(99));
    ChannelInfo channel;
    QCOMPARE(manager.GetChannel(12, channel), 0);
    QCOMPARE(channel.iDeviceId, int64_t(10));
    QCOMPARE(channel.iNumber, 2);
    QCOMPARE(manager.GetChannel(10, channel), -1);
    QCOMPARE(manager.GetChannel(-1, channel), -1);
}

void tst_site_device_manager::anOfflineDeviceIsEnabledAndItsChannelsAreFound()
{
    SiteDeviceManager manager(ThreeDevices());
    QVERIFY(manager.SetDeviceOnline(10, false));
    QVERIFY(manager.IsDeviceEnabled(10));
    ChannelInfo channel;
    QCOMPARE(manager.GetChannel(11, channel), 0);
    IDevice* pDevice = manager.GetDeviceObject(10);
    QVERIFY(pDevice->IsEnabled());
    QVERIFY(!pDevice->IsOnline());
    IChannel* pChannel = pDevice->GetChannel(ChannelTypeDoor, 1);
    QVERIFY(pChannel->IsEnabled());
    pChannel->Release();
    pDevice->Release();
}

void tst_site_device_manager::takenIdsAreRefused()
{
    Site site = ThreeDevices();
    GroupInfo group;
    group.iGroupId = 5;
    group.strName = QStringLiteral("G");
    site.groups.append(group);
    SiteDeviceManager manager(site);
    QStringList log;
    Listener listener(&log);
    manager.AddObserver(&listener);
    QVERIFY(!manager.AddDevice(Device(10, QStringLiteral("again"))));
    QVERIFY(!manager.AddDevice(Device(11, QStringLiteral("a door's id"))));
    QVERIFY(!manager.AddDevice(Device(5, QStringLiteral("a group's id"))));
    QVERIFY(!manager.AddDevice(Device(40, QStringLiteral("door taken"), {21})));
    QVERIFY(!manager.AddDevice(Device(40, QStringLiteral("own id"), {40})));
    QVERIFY(!manager.AddDevice(Device(40, QStringLiteral("door twice"), {41, 41})));
    QVERIFY(log.isEmpty());
    QCOMPARE(manager.GetDeviceIds().size(), 3);
    QVERIFY(manager.AddDevice(Device(40, QStringLiteral("free"), {41})));
    QCOMPARE(log, QStringList{QStringLiteral("+40")});
}

void tst_site_device_manager::unsoundDevicesAreRefused()
{
    SiteDeviceManager manager;
    DeviceInfo device = Device(1, QStringLiteral("d"), {2, 3});
    device.iDeviceType = 19;
    QVERIFY(!manager.AddDevice(device));
    device.iDeviceType = 12;
    device.iGroupId = 8;
    QVERIFY(!manager.AddDevice(device));
    device.iGroupId = -1;
    device.channels[1].iNumber = 1;
    QVERIFY(!manager.AddDevice(device));
    device.channels[1].iChannelType = ChannelTypeAlarmInput; // another kind: the number is free
    QVERIFY(manager.AddDevice(device));
    QVERIFY(!manager.AddDevice(Device(0, QStringLiteral("d"))));
    QVERIFY(!manager.AddDevice(Device(-1, QStringLiteral("d"))));
}

void tst_site_device_manager::aNameThatNoFileTakesIsRefused()
{
    SiteDeviceManager manager(ThreeDevices());
    QVERIFY(!manager.RenameDevice(10, QString()));
    QVERIFY(!manager.RenameDevice(10, QStringLiteral("a\nb")));
    QVERIFY(!manager.RenameDevice(99, QStringLiteral("x")));
    QVERIFY(manager.RenameDevice(10, QStringLiteral("x")));
    QCOMPARE(manager.GetSite().devices[0].strName, QStringLiteral("x"));
}

void tst_site_device_manager::everyReferenceIsCounted()
{
    SiteDeviceManager manager(ThreeDevices());
    QVERIFY(!manager.GetDeviceObject(99));
    QCOMPARE(manager.OutstandingReferences(), 0);
    IDevice* pFirst = manager.GetDeviceObject(10);
    IDevice* pSecond = manager.GetDeviceObject(10);
    QCOMPARE(manager.OutstandingReferences(), 2);
    QVERIFY(!pFirst->GetChannel(ChannelTypeDoor, 9));
    QVERIFY(!pFirst->GetChannel(ChannelTypeAlarmInput, 1));
    IChannel* pDoor = pFirst->GetChannel(ChannelTypeDoor, 2);
    QCOMPARE(pDoor->GetId(), int64_t(12));
    QCOMPARE(pDoor->GetType(), int32_t(ChannelTypeDoor));
    QCOMPARE(pDoor->GetNumber(), 2);
    QCOMPARE(pDoor->GetName(), QStringLiteral("Door 12"));
    QCOMPARE(manager.OutstandingReferences(), 3);
    pFirst->Release();
    QCOMPARE(pSecond->GetName(), QStringLiteral("A")); // still held
    pSecond->Release();
    QCOMPARE(manager.OutstandingReferences(), 1);
    QCOMPARE(pDoor->GetId(), int64_t(12)); // does not need its device object
    pDoor->Release();
    QCOMPARE(manager.OutstandingReferences(), 0);
}

void tst_site_device_manager::objectsOutliveTheirDeviceAndTheManager()
{
    auto manager = std::make_unique<SiteDeviceManager>(ThreeDevices());
    IDevice* pA = manager->GetDeviceObject(10);
    IDevice* pB = manager->GetDeviceObject(20);
    IChannel* pDoor = pA->GetChannel(ChannelTypeDoor, 1);
    QVERIFY(manager->RenameDevice(10, QStringLiteral("A2")));
    QVERIFY(manager->RemoveDevice(10));
    QVERIFY(!pA->IsEnabled());
    QVERIFY(!pA->IsOnline());
    QCOMPARE(pA->GetName(), QStringLiteral("A2"));
    QCOMPARE(pA->GetType(), 12);
    QVERIFY(!pA->GetChannel(ChannelTypeDoor, 1));
    QVERIFY(!pDoor->IsEnabled());
    QCOMPARE(pDoor->GetName(), QStringLiteral("Door 11"));
    manager.reset();
    QVERIFY(!pB->IsEnabled());
    QCOMPARE(pB->GetName(), QStringLiteral("B"));
    pDoor->Release();
    pB->Release();
    pA->Release();
}

void tst_site_device_manager::observersHearInTheOrderTheyCame()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener a(&log, QStringLiteral("a"));
    Listener b(&log, QStringLiteral("b"));
    manager.AddObserver(&b);
    manager.AddObserver(&a);
    manager.AddObserver(&b); // twice is once, and keeps its place
    manager.AddObserver(nullptr);
    manager.SetDeviceOnline(10, false);
    manager.RenameDevice(20, QStringLiteral("B2"));
    manager.SetDeviceEnabled(20, false);
    manager.RemoveDevice(30);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("boff10 aoff10 b~20 a~20 b~20 a~20 b-30 a-30"));
}

void tst_site_device_manager::nothingIsToldWhenNothingChanges()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener listener(&log);
    manager.AddObserver(&listener);
    QVERIFY(manager.SetDeviceOnline(10, true));
    QVERIFY(manager.SetDeviceEnabled(10, true));
    QVERIFY(manager.RenameDevice(10, QStringLiteral("A")));
    QVERIFY(!manager.RemoveDevice(99));
    QVERIFY(!manager.SetDeviceOnline(99, true));
    QVERIFY(!manager.SetDeviceEnabled(99, true));
    manager.ApplySite(ThreeDevices());
    QCOMPARE(log, QStringList());
}

void tst_site_device_manager::anObserverMayRemoveItselfAndOthersWhileCalled()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    auto a = std::make_unique<Listener>(&log, QStringLiteral("a"));
    auto b = std::make_unique<Listener>(&log, QStringLiteral("b"));
    Listener c(&log, QStringLiteral("c"));
    manager.AddObserver(a.get());
    manager.AddObserver(b.get());
    manager.AddObserver(&c);
    a->then = [&](const QString&) {
        manager.RemoveObserver(b.get());
        b.reset(); // must not be called any more
        manager.RemoveObserver(a.get());
    };
    manager.RemoveDevice(10);
    manager.RemoveDevice(20);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("a-10 c-10 c-20"));
}

void tst_site_device_manager::anObserverAddedWhileCalledHearsOfLaterChangesOnly()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener a(&log, QStringLiteral("a"));
    Listener b(&log, QStringLiteral("b"));
    manager.AddObserver(&a);
    a.then = [&](const QString&) { manager.AddObserver(&b); };
    manager.RemoveDevice(10);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("a-10"));
    manager.RemoveDevice(20);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("a-10 a-20 b-20"));
}

void tst_site_device_manager::aChangeMadeByAnObserverIsToldAfterTheOneBefore()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener a(&log, QStringLiteral("a"));
    Listener b(&log, QStringLiteral("b"));
    manager.AddObserver(&a);
    manager.AddObserver(&b);
    a.then = [&](const QString& strWhat) {
        if (strWhat == QStringLiteral("+40"))
            QVERIFY(manager.RemoveDevice(40));
    };
    QVERIFY(manager.AddDevice(Device(40, QStringLiteral("short-lived"))));
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("a+40 b+40 a-40 b-40"));
}

void tst_site_device_manager::aSiteIsAppliedAsADifference()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener listener(&log);
    manager.AddObserver(&listener);
    Site site = ThreeDevices();
    GroupInfo group;
    group.iGroupId = 5;
    group.strName = QStringLiteral("Hall");
    site.groups.append(group);
    site.devices.removeAt(1); // 20 goes
    site.devices[0].iGroupId = 5;
    site.devices[0].bOnline = false;
    site.devices.append(Device(50, QStringLiteral("E"), {21})); // takes over the id of 20's door
    listener.then = [&](const QString&) {
        DeviceInfo device;
        QCOMPARE(manager.GetDevice(50, device), 0); // the manager has changed before it tells
        QCOMPARE(manager.GetDevice(20, device), -1);
    };
    manager.ApplySite(site);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("-20 groups ~10 off10 +50"));
    QCOMPARE(manager.GetDeviceIds(), (QVector<int64_t>{10, 30, 50}));
    ChannelInfo channel;
    QCOMPARE(manager.GetChannel(21, channel), 0);
    QCOMPARE(channel.iDeviceId, int64_t(50));
}

void tst_site_device_manager::aNewOrderIsToldWithTheFewestMoves()
{
    Site site;
    for (int i = 1; i <= 6; ++i)
        site.devices.append(Device(i, QStringLiteral("D")));
    SiteDeviceManager manager(site);
    QStringList log;
    Listener listener(&log);
    manager.AddObserver(&listener);
    site.devices.move(5, 0); // 6 1 2 3 4 5
    manager.ApplySite(site);
    QCOMPARE(log, QStringList{QStringLiteral("~6")});
    QCOMPARE(manager.GetDeviceIds(), (QVector<int64_t>{6, 1, 2, 3, 4, 5}));
}

void tst_site_device_manager::aChannelMayMoveToAnotherDevice()
{
    SiteDeviceManager manager(ThreeDevices());
    QStringList log;
    Listener listener(&log);
    manager.AddObserver(&listener);
    Site site = ThreeDevices();
    site.devices[2].channels.append(site.devices[0].channels.takeLast());
    manager.ApplySite(site);
    QCOMPARE(log.join(QLatin1Char(' ')), QStringLiteral("~10 ~30"));
    ChannelInfo channel;
    QCOMPARE(manager.GetChannel(12, channel), 0);
    QCOMPARE(channel.iDeviceId, int64_t(30));
}

void tst_site_device_manager::theSiteKeepsItsOrder()
{
    SiteDeviceManager manager(ThreeDevices());
    QVERIFY(manager.RemoveDevice(20));
    QVERIFY(manager.AddDevice(Device(20, QStringLiteral("B"), {21})));
    QCOMPARE(manager.GetDeviceIds(), (QVector<int64_t>{10, 30, 20}));
    QCOMPARE(manager.GetSite().devices.last().iDeviceId, int64_t(20));
}

void tst_site_device_manager::aLargeSiteIsEmptiedOneByOne()
{
    constexpr int iDevices = 32000;
    Site site;
    for (int i = 0; i < iDevices; ++i)
        site.devices.append(Device(10 * i + 1, QStringLiteral("D"), {10 * i + 2, 10 * i + 3}));
    SiteDeviceManager manager(site);
    for (int i = 0; i < iDevices; ++i)
        QVERIFY(manager.RemoveDevice(10 * i + 1));
    QVERIFY(manager.GetDeviceIds().isEmpty());
    ChannelInfo channel;
    QVERIFY(manager.GetChannel(2, channel) != 0);
}

QTEST_GUILESS_MAIN(tst_site_device_manager)
#include "tst_site_device_manager.moc"
