#include "platform/SiteLibrary/SiteDeviceManager.h"

#include <QtTest>

using namespace VantaLogic;

// Modules built elsewhere call the device manager by position. This calls it the same way: through the
// entries of the table of virtual functions, counted as this compiler family lays them out.

class tst_device_slots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNamedOperationsStandAtTheirSlots();
};

#if defined(__GNUC__)

namespace {

/// The entry of a slot. A virtual destructor fills two entries, so what follows one stands one further.
template <typename Function>
Function EntryOf(void* pObject, int iSlot, bool bVirtualDestructor)
{
    void** pTable = *static_cast<void***>(pObject);
    return reinterpret_cast<Function>(pTable[iSlot + (bVirtualDestructor ? 1 : 0)]);
}

} // namespace

void tst_device_slots::theNamedOperationsStandAtTheirSlots()
{
    Site site;
    DeviceInfo device;
    device.iDeviceId = 10;
    device.iDeviceType = DeviceTypeAccessControl;
    device.strName = QStringLiteral("North");
    ChannelInfo door;
    door.iChannelId = 11;
    door.iNumber = 3;
    door.iChannelType = ChannelTypeDoor;
    door.strName = QStringLiteral("Door");
    device.channels.append(door);
    site.devices.append(device);
    SiteDeviceManager manager(site);
    void* pManager = static_cast<IDeviceManager*>(&manager);

    DeviceInfo deviceOut;
    using GetDevice = int32_t (*)(void*, int64_t, DeviceInfo&);
    QCOMPARE(EntryOf<GetDevice>(pManager, 47, true)(pManager, 10, deviceOut), 0);
    QCOMPARE(deviceOut.strName, QStringLiteral("North"));

    using GetType = int32_t (*)(void*, int64_t);
    QCOMPARE(EntryOf<GetType>(pManager, 49, true)(pManager, 10), 12);
    QCOMPARE(EntryOf<GetType>(pManager, 49, true)(pManager, 99), -1);

    using Ask = bool (*)(void*, int64_t);
    QVERIFY(EntryOf<Ask>(pManager, 50, true)(pManager, 10));
    QVERIFY(manager.SetDeviceEnabled(10, false));
    QVERIFY(!EntryOf<Ask>(pManager, 50, true)(pManager, 10));
    QVERIFY(manager.SetDeviceEnabled(10, true));

    ChannelInfo channelOut;
    using GetChannel = int32_t (*)(void*, int64_t, ChannelInfo&);
    QCOMPARE(EntryOf<GetChannel>(pManager, 79, true)(pManager, 11, channelOut), 0);
    QCOMPARE(channelOut.iDeviceId, int64_t(10));
    QCOMPARE(channelOut.iNumber, 3);

    using GetObject = IDevice* (*)(void*, int64_t);
    IDevice* pDevice = EntryOf<GetObject>(pManager, 48, true)(pManager, 10);
    QVERIFY(pDevice);
    QCOMPARE(manager.OutstandingReferences(), 1);

    using Type = int32_t (*)(void*);
    QCOMPARE(EntryOf<Type>(pDevice, 0, false)(pDevice), 12);
    using State = bool (*)(void*);
    QVERIFY(EntryOf<State>(pDevice, 15, false)(pDevice));
    using ChannelAt = IChannel* (*)(void*, int32_t, int32_t);
    IChannel* pChannel = EntryOf<ChannelAt>(pDevice, 26, false)(pDevice, ChannelTypeDoor, 3);
    QVERIFY(pChannel);
    QVERIFY(!EntryOf<ChannelAt>(pDevice, 26, false)(pDevice, 3, ChannelTypeDoor));
    QCOMPARE(manager.OutstandingReferences(), 2);

    QVERIFY(EntryOf<State>(pChannel, 4, false)(pChannel));
    using Release = void (*)(void*);
    EntryOf<Release>(pChannel, 11, false)(pChannel);
    QCOMPARE(manager.OutstandingReferences(), 1);
    QVERIFY(manager.SetDeviceEnabled(10, false));
    QVERIFY(!EntryOf<State>(pDevice, 15, false)(pDevice));
    EntryOf<Release>(pDevice, 48, false)(pDevice);
    QCOMPARE(manager.OutstandingReferences(), 0);
}

#else

void tst_device_slots::theNamedOperationsStandAtTheirSlots()
{
    // Other compilers order the table alike but count destructors differently; the order is what is common.
    SiteDeviceManager manager;
    QVERIFY(static_cast<IDeviceManager&>(manager).GetDeviceObject(1) == nullptr);
}

#endif

QTEST_GUILESS_MAIN(tst_device_slots)
#include "tst_device_slots.moc"
