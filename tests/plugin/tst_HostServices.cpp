#include "platform/DeviceFuncLogical/IDeviceFunctionManager.h"
#include "platform/VantaLogic/IDeviceManager.h"
#include "platform/VantaLogic/ITreeExpansion.h"
#include "plugin/host_services/HostServices.h"
#include "tests/plugin/FakeHub.h"

#include <QTest>

#include <set>

using LXPluginAPI::ManagerList;

namespace {

class FakeDeviceFunction : public DeviceFuncLogical::IDeviceFunctionManager
{
public:
    explicit FakeDeviceFunction(std::string strName = "DeviceFunction")
        : m_strName(std::move(strName))
    {
    }
    std::string GetServiceName() const override { return m_strName; }

private:
    std::string m_strName;
};

bool IsTableEmpty(const HostServiceTable& table)
{
    if (table.pFirst || table.pSecond || table.pThird || table.pFourth || table.pFifth || table.pSixth)
        return false;
    for (const void* service : table.arrServices) {
        if (service)
            return false;
    }
    return true;
}

} // namespace

class tst_HostServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { HostServices::FillTable({}); }

    // finding a manager

    void anEmptyListHoldsNoManager()
    {
        QVERIFY(!HostServices::FindManager({}, "HubPluginManager"));
        QVERIFY(!HostServices::FindManager({}, std::string()));
    }

    void aManagerIsFoundByItsName()
    {
        NamedManager one("One");
        NamedManager two("Two");
        const ManagerList managers = {&one, &two};
        QCOMPARE(HostServices::FindManager(managers, "Two"), static_cast<LXPluginAPI::IManager*>(&two));
        QCOMPARE(HostServices::FindManager(managers, "One"), static_cast<LXPluginAPI::IManager*>(&one));
        QVERIFY(!HostServices::FindManager(managers, "Three"));
    }

    void nullEntriesAreSkipped()
    {
        NamedManager one("One");
        const ManagerList managers = {nullptr, nullptr, &one, nullptr};
        QCOMPARE(HostServices::FindManager(managers, "One"), static_cast<LXPluginAPI::IManager*>(&one));
        QVERIFY(!HostServices::FindManager(managers, "Two"));
        QVERIFY(!HostServices::FindManager({nullptr}, std::string()));
    }

    void theFirstOfTwoManagersOfOneNameWins()
    {
        NamedManager first("Same");
        NamedManager second("Same");
        QCOMPARE(HostServices::FindManager({&first, &second}, "Same"),
                 static_cast<LXPluginAPI::IManager*>(&first));
        QCOMPARE(HostServices::FindManager({&second, &first}, "Same"),
                 static_cast<LXPluginAPI::IManager*>(&second));
    }

    void theSearchEndsAtTheHit()
    {
        NamedManager before("Other");
        NamedManager hit("Wanted");
        NamedManager after("Wanted");
        HostServices::FindManager({&before, &hit, &after}, "Wanted");
        QCOMPARE(before.NameCalls(), 1);
        QCOMPARE(hit.NameCalls(), 1);
        QCOMPARE(after.NameCalls(), 0);
    }

    void namesAreComparedByteForByte_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("other case") << QByteArray("hubpluginmanager");
        QTest::newRow("blank before") << QByteArray(" HubPluginManager");
        QTest::newRow("blank after") << QByteArray("HubPluginManager ");
        QTest::newRow("shorter") << QByteArray("HubPluginManage");
        QTest::newRow("longer") << QByteArray("HubPluginManager2");
        QTest::newRow("bytes after a NUL") << QByteArray("HubPluginManager\0x", 18);
        QTest::newRow("NUL at the end") << QByteArray("HubPluginManager\0", 17);
        QTest::newRow("look-alike letter") << QByteArray("H\xCF\x85"
                                                         "bPluginManager");
        QTest::newRow("empty") << QByteArray();
    }

    void namesAreComparedByteForByte()
    {
        QFETCH(QByteArray, name);
        FakeHub other(FakeHub::Answers::Distinct, name.toStdString());
        QVERIFY(!HostServices::FindManager({&other}, "HubPluginManager"));
        QVERIFY(!HostServices::HubSubManager({&other}, 2));
        QVERIFY(other.Calls().empty());
        QCOMPARE(HostServices::FindManager({&other}, name.toStdString()),
                 static_cast<LXPluginAPI::IManager*>(&other));
    }

    // the getters

    void thereAreGettersForFiftySixSlots()
    {
        std::set<int> slots_(HubSlots::Positions.begin(), HubSlots::Positions.end());
        slots_.insert({HubSlots::First, HubSlots::Second, HubSlots::Third, HubSlots::Fourth, HubSlots::Fifth,
                       HubSlots::Sixth});
        QCOMPARE(slots_.size(), std::size_t(46));
        slots_.insert(HubSlots::Extra.begin(), HubSlots::Extra.end());
        QCOMPARE(slots_.size(), std::size_t(56));

        FakeHub hub;
        const ManagerList managers = {&hub};
        for (int slot : slots_) {
            hub.ForgetCalls();
            QCOMPARE(HostServices::HubSubManager(managers, slot), hub.Mark(slot));
            QCOMPARE(hub.Calls(), std::vector<int>{slot});
        }
    }

    void otherSlotsHaveNoGetter_data()
    {
        QTest::addColumn<int>("slot");
        for (int slot : {0, 1, 57, 59, 60, -1, -58, 1000, std::numeric_limits<int>::max(),
                         std::numeric_limits<int>::min()})
            QTest::addRow("%d", slot) << slot;
    }

    void otherSlotsHaveNoGetter()
    {
        QFETCH(int, slot);
        FakeHub hub;
        QVERIFY(!HostServices::HubSubManager({&hub}, slot));
        QVERIFY(hub.Calls().empty());
    }

    void aGetterCachesNothing()
    {
        FakeHub hub;
        const ManagerList managers = {&hub};
        HostServices::HubSubManager(managers, 2);
        HostServices::HubSubManager(managers, 2);
        QCOMPARE(hub.Calls(), (std::vector<int>{2, 2}));
        QCOMPARE(hub.NameCalls(), 2);
    }

    void aManagerOfTheWrongTypeUnderTheHubsNameYieldsNull()
    {
        NamedManager impostor("HubPluginManager");
        FakeDeviceFunction otherImpostor("HubPluginManager");
        for (int slot = 2; slot <= FakeHub::LastSlot; ++slot) {
            QVERIFY(!HostServices::HubSubManager({&impostor}, slot));
            QVERIFY(!HostServices::HubSubManager({&otherImpostor}, slot));
        }
    }

    void aWrongManagerAheadOfTheRealHubHidesIt()
    {
        NamedManager impostor("HubPluginManager");
        FakeHub hub;
        QVERIFY(!HostServices::HubSubManager({&impostor, &hub}, 2));
        QVERIFY(hub.Calls().empty());
    }

    void theDeviceFunctionManagerIsFoundByNameAndType()
    {
        FakeDeviceFunction functions;
        FakeHub hub;
        QCOMPARE(HostServices::DeviceFunctionManager({nullptr, &hub, &functions}),
                 static_cast<DeviceFuncLogical::IDeviceFunctionManager*>(&functions));

        NamedManager impostor("DeviceFunction");
        FakeDeviceFunction misnamed("Devicefunction");
        QVERIFY(!HostServices::DeviceFunctionManager({&impostor}));
        QVERIFY(!HostServices::DeviceFunctionManager({&impostor, &functions}));
        QVERIFY(!HostServices::DeviceFunctionManager({&misnamed}));
        QVERIFY(!HostServices::DeviceFunctionManager({&hub}));
        QVERIFY(!HostServices::DeviceFunctionManager({}));

        FakeDeviceFunction second;
        QCOMPARE(HostServices::DeviceFunctionManager({&functions, &second}),
                 static_cast<DeviceFuncLogical::IDeviceFunctionManager*>(&functions));
    }

    // the table

    void fillingCallsTheGettersInTheStatedOrder()
    {
        const std::vector<int> order = {
            25, 21,                                             // ahead of the rest
            2,  3,  4,  5,  6,  7,  8,  25, 26, 19, 20, 30, 31, // positions 0 to 12
            21, 22, 34, 32, 33, 35, 36, 23, 24, 37, 38, 27, 28, // 13 to 25
            29, 39, 40, 41, 9,  13, 14, 17, 18, 12, 10, 11, 15, // 26 to 38
            43, 48, 47, 16, 53, 52, 58};
        QCOMPARE(order.size(), std::size_t(48));
        QCOMPARE(HubSlots::FillOrder(), order);

        FakeHub hub;
        QVERIFY(HostServices::FillTable({&hub}));
        QCOMPARE(hub.Calls(), order);
    }

    void everyAssignmentLooksTheHubUpAnew()
    {
        FakeHub hub;
        HostServices::FillTable({&hub});
        QCOMPARE(hub.NameCalls(), 48);
    }

    void everyEntryComesFromItsSlot()
    {
        FakeHub hub;
        HostServices::FillTable({&hub});
        const HostServiceTable& table = HostServices::Table();
        for (std::size_t i = 0; i < HubSlots::Positions.size(); ++i) {
            QVERIFY2(table.arrServices[i] == hub.Mark(HubSlots::Positions[i]),
                     qPrintable(QStringLiteral("array position %1").arg(i)));
        }
        QCOMPARE(table.pFirst, hub.Mark(58));
        QCOMPARE(table.pSecond, hub.Mark(43));
        QCOMPARE(table.pThird, hub.Mark(47));
        QCOMPARE(table.pFourth, hub.Mark(48));
        QCOMPARE(table.pFifth, hub.Mark(52));
        QCOMPARE(table.pSixth, hub.Mark(53));
    }

    void ofTwoAnswersForOneEntryTheLaterStays()
    {
        FakeHub hub;
        hub.AnswerAnewEveryTime();
        HostServices::FillTable({&hub});
        const HostServiceTable& table = HostServices::Table();
        // Calls 0 and 1 were the ones ahead of the rest; position n came with call n + 2.
        QCOMPARE(table.arrServices[7], hub.AnswerOfCall(9));
        QCOMPARE(table.arrServices[13], hub.AnswerOfCall(15));
        QCOMPARE(table.arrServices[0], hub.AnswerOfCall(2));
        QCOMPARE(table.arrServices[38], hub.AnswerOfCall(40));
        QCOMPARE(table.pSecond, hub.AnswerOfCall(41));
        QCOMPARE(table.pFirst, hub.AnswerOfCall(47));
    }

    void withoutAHubEveryEntryIsNullAndFillingStillAnswersTrue()
    {
        NamedManager impostor("HubPluginManager");
        NamedManager other("Other");
        for (const ManagerList& managers :
             {ManagerList{}, ManagerList{nullptr}, ManagerList{&impostor}, ManagerList{&other, nullptr}}) {
            FakeHub hub;
            HostServices::FillTable({&hub});
            QVERIFY(!IsTableEmpty(HostServices::Table()));
            QVERIFY(HostServices::FillTable(managers));
            QVERIFY(IsTableEmpty(HostServices::Table()));
        }
    }

    void nullSubManagersAreStoredToo()
    {
        FakeHub hub;
        const ManagerList managers = {&hub};
        HostServices::FillTable(managers);
        hub.SetAnswer(25, nullptr);
        hub.SetAnswer(16, nullptr);
        hub.SetAnswer(58, nullptr);
        QVERIFY(HostServices::FillTable(managers));
        const HostServiceTable& table = HostServices::Table();
        QVERIFY(!table.arrServices[7]);
        QVERIFY(!table.arrServices[39]);
        QVERIFY(!table.pFirst);
        QCOMPARE(table.arrServices[8], hub.Mark(26));
    }

    void aReplacedManagerIsPickedUpAtTheNextFill()
    {
        FakeHub oldHub;
        FakeHub newHub;
        HostServices::FillTable({&oldHub});
        HostServices::FillTable({&newHub});
        const HostServiceTable& table = HostServices::Table();
        for (std::size_t i = 0; i < HubSlots::Positions.size(); ++i)
            QCOMPARE(table.arrServices[i], newHub.Mark(HubSlots::Positions[i]));
        QCOMPARE(table.pSixth, newHub.Mark(53));
        QCOMPARE(oldHub.Calls().size(), std::size_t(48));
    }

    void ofTwoHubsOnlyTheFirstIsAsked()
    {
        FakeHub first;
        FakeHub second;
        HostServices::FillTable({nullptr, &first, &second});
        QCOMPARE(HostServices::Table().arrServices[0], first.Mark(2));
        QVERIFY(second.Calls().empty());
    }

    void theNamedServicesAreTheEntriesOfTheirSlots()
    {
        FakeHub hub;
        QObject window;
        hub.SetAnswer(58, &window);
        HostServices::FillTable({&hub});
        // Only compared, never called: these objects do not exist.
        QCOMPARE(static_cast<void*>(HostServices::DeviceManager()), hub.Mark(2));
        QCOMPARE(static_cast<void*>(HostServices::TreeExpansion()), hub.Mark(3));
        QCOMPARE(HostServices::MainWindowObject(), &window);

        HostServices::FillTable({});
        QVERIFY(!HostServices::DeviceManager());
        QVERIFY(!HostServices::TreeExpansion());
        QVERIFY(!HostServices::MainWindowObject());
    }
};

QTEST_APPLESS_MAIN(tst_HostServices)
#include "tst_HostServices.moc"
