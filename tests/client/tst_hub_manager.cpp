#include "client/DeviceFunctionManager.h"
#include "client/HubManager.h"
#include "client/TreeExpansion.h"
#include "platform/SiteLibrary/SiteDeviceManager.h"

#include <QtTest>

class TestHubManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theServiceNamesAreThoseThatModulesLookFor()
    {
        const HubManager hub;
        const DeviceFunctionManager functions;
        QCOMPARE(hub.GetServiceName(), std::string("HubPluginManager"));
        QCOMPARE(functions.GetServiceName(), std::string("DeviceFunction"));
    }
    void theInterfacesAreFoundAtRunTime()
    {
        HubManager hub;
        DeviceFunctionManager functions;
        LXPluginAPI::IManager* pHub = &hub;
        LXPluginAPI::IManager* pFunctions = &functions;
        QVERIFY(dynamic_cast<LXPluginAPI::IHubManager*>(pHub) == &hub);
        QVERIFY(dynamic_cast<DeviceFuncLogical::IDeviceFunctionManager*>(pFunctions) == &functions);
        QVERIFY(dynamic_cast<DeviceFuncLogical::IDeviceFunctionManager*>(pHub) == nullptr);
    }
    void nothingIsOfferedBeforeItIsGiven()
    {
        HubManager hub;
        QVERIFY(hub.SubManager2() == nullptr);
        QVERIFY(hub.SubManager3() == nullptr);
        QVERIFY(hub.SubManager58() == nullptr);
    }
    void everySlotHandsOutTheExactTypeOfItsInterface()
    {
        // An object whose interface is not its first base: handing out the object itself would be wrong.
        class Mixed : public QObject, public TreeExpansion
        {
        };
        SiteDeviceManager devices;
        Mixed expansion;
        QObject window;
        HubManager hub;
        hub.SetDeviceManager(&devices);
        hub.SetTreeExpansion(&expansion);
        hub.SetMainWindow(&window);
        QCOMPARE(hub.SubManager2(), static_cast<void*>(static_cast<VantaLogic::IDeviceManager*>(&devices)));
        QCOMPARE(hub.SubManager3(), static_cast<void*>(static_cast<VantaLogic::ITreeExpansion*>(&expansion)));
        QVERIFY(hub.SubManager3() != static_cast<void*>(&expansion));
        QCOMPARE(hub.SubManager58(), static_cast<void*>(&window));
        auto* pExpansion = static_cast<VantaLogic::ITreeExpansion*>(hub.SubManager3());
        pExpansion->SetExpanded(2, 9, true);
        QVERIFY(expansion.IsExpanded(2, 9));
    }
    void otherSlotsAnswerNull()
    {
        SiteDeviceManager devices;
        HubManager hub;
        hub.SetDeviceManager(&devices);
        hub.SetMainWindow(this);
        QVERIFY(hub.SubManager4() == nullptr);
        QVERIFY(hub.SubManager43() == nullptr);
        QVERIFY(hub.SubManager57() == nullptr);
    }
};

QTEST_GUILESS_MAIN(TestHubManager)
#include "tst_hub_manager.moc"
