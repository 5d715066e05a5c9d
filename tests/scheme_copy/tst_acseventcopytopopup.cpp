#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "tests/AlarmCtrl_linkage/CopyPopupChecks.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"
#include "tests/AlarmCtrl_linkage/TestLines.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using TestSite::ChannelOf;
using TestSite::DeviceOfType;
using VantaModel::NodeKindChannel;
using VantaModel::NodeKindDevice;

namespace {

/// A popup over a site; it deletes itself when it closes.
struct Desk
{
    explicit Desk(int iMode, const Site& site = TestSite::EveryTypeAndKind())
        : host(site)
        , popup(new ACSEventCopyToPopup(iMode))
        , hand(*popup)
        , copies(popup.data(), &ACSEventCopyToPopup::SignalCopyTo)
    {
    }
    ~Desk() { delete popup.data(); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void Press(QDialogButtonBox::StandardButton button) const { popup->GetButton(button)->click(); }
    void Ok() const { Press(QDialogButtonBox::Ok); }
    bool IsGone() const
    {
        QCoreApplication::sendPostedEvents(popup.data(), QEvent::DeferredDelete);
        return popup.isNull();
    }
    QStringList Keys() const { return CopyPopupChecks::CopiedKeys(copies); }

    SiteHost host;
    QPointer<ACSEventCopyToPopup> popup;
    TreeHand hand;
    QSignalSpy copies;
};

/// Two access-control devices: 1 with doors 11, 12 and inputs 13, 14; 2 with door 21.
Site TwoControllers()
{
    Site site;
    VantaLogic::DeviceInfo first = TestSite::Device(1, VantaLogic::DeviceTypeAccessControl);
    TestSite::AddChannel(first, 11, VantaLogic::ChannelTypeDoor, 1);
    TestSite::AddChannel(first, 12, VantaLogic::ChannelTypeDoor, 2);
    TestSite::AddChannel(first, 13, VantaLogic::ChannelTypeAlarmInput, 1);
    TestSite::AddChannel(first, 14, VantaLogic::ChannelTypeAlarmInput, 2);
    VantaLogic::DeviceInfo second = TestSite::Device(2, VantaLogic::DeviceTypeAccessControl);
    TestSite::AddChannel(second, 21, VantaLogic::ChannelTypeDoor, 1);
    site.devices = {first, second};
    return site;
}

/// A host that gave the number 7 to a device and to a channel of device 5.
class SharedNumberManager : public SiteDeviceManager
{
public:
    explicit SharedNumberManager(int32_t iKind)
        : m_iKind(iKind)
    {
    }
    int32_t GetChannel(int64_t iChannelId, VantaLogic::ChannelInfo& out) const override
    {
        out.iChannelId = 7;
        out.iDeviceId = 5;
        out.iChannelType = m_iKind;
        return iChannelId == 7 ? 0 : -1;
    }
    bool IsDeviceEnabled(int64_t) const override { return true; }

private:
    int32_t m_iKind;
};

} // namespace

class TestACSEventCopyToPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QList<QString>>(); }
    void thePopupHasItsStatedFormSizeAndAttribute();
    void thePopupStandsAboveItsParent();
    void slotsAndSignalAreKnownByTheirSignatures();
    void theModelIsModeOneAndKnowsTheHostsExpansion();
    void theTreeOffersWhatTheModeSays_data();
    void theTreeOffersWhatTheModeSays();
    void tickedDoorsYieldDoorKeys();
    void tickedAlarmInputsYieldKeysWithTheFlagOne();
    void aDeviceNodeAloneYieldsNoKey();
    void theOwnerInAKeyIsThatOfTheChannelsRecord();
    void tickingADeviceYieldsItsDoors();
    void okWithNothingTickedClosesWithoutASignal();
    void cancelAndEscapeCloseWithoutASignal();
    void closingDeletesThePopup();
    void aForeignModeYieldsNothing_data();
    void aForeignModeYieldsNothing();
    void channelsThatVanishedBetweenTickingAndOkYieldNothing();
    void aDisabledDeviceYieldsNothingAnOfflineOneItsDoors();
    void theSelectedItemTakesTheNewStateNotTheItemAtTheIndex();
    void untickingTakesTheKeyBack();
    void theTitleSaysHowManyTargetsThereAre();
    void theSourceIsNoTarget();
    void aReceiverMayAskTheSenderForItsMode();
    void withoutADeviceManagerOkCloses();
    void everythingOfAThousandDoorsIsHandedOutOnce();
};

void TestACSEventCopyToPopup::thePopupHasItsStatedFormSizeAndAttribute()
{
    Desk desk(ACSCopy::Door);
    QCOMPARE(desk.popup->minimumSize(), QSize(222, 500));
    QCOMPARE(desk.popup->maximumSize(), QSize(222, 500));
    QVERIFY(desk.popup->testAttribute(Qt::WA_DeleteOnClose));
    const QWidget* const central = desk.popup->GetCentralWidget();
    QCOMPARE(central->objectName(), QStringLiteral("ACSEventCopyToPopup"));
    QCOMPARE(central->windowTitle(), QStringLiteral("Form"));
    QVERIFY(central->findChild<QVBoxLayout*>(QStringLiteral("verticalLayout")) != nullptr);
    const auto* const container = central->findChild<QWidget*>(QStringLiteral("wndDevTree"));
    QCOMPARE(desk.hand.Tree()->parentWidget(), container);
    QCOMPARE(container->layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(container->layout()->spacing(), 0);
    QVERIFY(desk.popup->GetButton(QDialogButtonBox::Ok) != nullptr);
    QVERIFY(desk.popup->GetButton(QDialogButtonBox::Cancel) != nullptr);
    QCOMPARE(desk.popup->GetMode(), 1);
}

void TestACSEventCopyToPopup::thePopupStandsAboveItsParent()
{
    CopyPopupChecks::StandsAboveItsParent<ACSEventCopyToPopup>(2);
}

void TestACSEventCopyToPopup::slotsAndSignalAreKnownByTheirSignatures()
{
    CopyPopupChecks::IsKnownByItsSignatures<ACSEventCopyToPopup>();
}

void TestACSEventCopyToPopup::theModelIsModeOneAndKnowsTheHostsExpansion()
{
    Desk desk(ACSCopy::Door);
    const auto* const model = desk.popup->findChild<VantaModel::GroupTreeModel*>();
    QVERIFY(model->inherits("VantaModel::ACSGroupTreeModel"));
    QCOMPARE(model->GetMode(), 1);
    QCOMPARE(model->GetExpandInterface(), &desk.host.expansion);
    QCOMPARE(model->parent()->objectName(), QStringLiteral("wndDevTree"));
}

void TestACSEventCopyToPopup::theTreeOffersWhatTheModeSays_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<int>>("kinds");
    QTest::newRow("doors") << 1 << QList<int>{6};
    QTest::newRow("alarm inputs") << 2 << QList<int>{3};
    QTest::newRow("foreign mode") << 3 << QList<int>{0, 1, 2, 3, 4, 5, 6};
}

void TestACSEventCopyToPopup::theTreeOffersWhatTheModeSays()
{
    QFETCH(int, mode);
    QFETCH(QList<int>, kinds);
    Desk desk(mode);
    for (int type = 0; type <= 18; ++type) {
        QCOMPARE(desk.hand.Device(DeviceOfType(type)) != nullptr, type == 12);
        for (int kind = 0; kind <= 6; ++kind)
            QCOMPARE(desk.hand.Channel(ChannelOf(type, kind)) != nullptr, type == 12 && kinds.contains(kind));
    }
}

void TestACSEventCopyToPopup::tickedDoorsYieldDoorKeys()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickChannel(11));
    QVERIFY(desk.hand.TickChannel(21));
    desk.Ok();
    QCOMPARE(desk.copies.size(), 1);
    QCOMPARE(desk.Keys(), Lines({"1$1$0$11", "2$1$0$21"}));
}

void TestACSEventCopyToPopup::tickedAlarmInputsYieldKeysWithTheFlagOne()
{
    Desk desk(ACSCopy::AlarmInput, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    desk.Ok();
    QCOMPARE(desk.Keys(), Lines({"1$3$1$13", "1$3$1$14"}));

    // Also where the host says meanwhile that the device is of another type.
    const SiteDeviceManager other(TestSite::EveryTypeAndKind());
    const CopyMode& mode = *CopyMode::Find(ACSCopy::Modes(), ACSCopy::AlarmInput);
    QCOMPARE(mode.SourceKey({ChannelOf(15, 3), VantaModel::NodeKindChannel}, other).value_or(QString()),
             QStringLiteral("115$3$1$1153"));
}

void TestACSEventCopyToPopup::aDeviceNodeAloneYieldsNoKey()
{
    const SiteDeviceManager manager(TwoControllers());
    for (const CopyMode& mode : ACSCopy::Modes())
        QVERIFY(!mode.SourceKey({1, NodeKindDevice}, manager));
}

void TestACSEventCopyToPopup::theOwnerInAKeyIsThatOfTheChannelsRecord()
{
    const auto key = [](int iMode, int iNodeKind, int32_t iChannelKind) {
        return CopyMode::Find(ACSCopy::Modes(), iMode)
            ->SourceKey({7, iNodeKind}, SharedNumberManager(iChannelKind))
            .value_or(QStringLiteral("none"));
    };
    const int32_t input = VantaLogic::ChannelTypeAlarmInput;
    const int32_t door = VantaLogic::ChannelTypeDoor;
    QCOMPARE(key(ACSCopy::AlarmInput, NodeKindChannel, input), QStringLiteral("5$3$1$7"));
    QCOMPARE(key(ACSCopy::AlarmInput, NodeKindDevice, input), QStringLiteral("5$3$1$7"));
    QCOMPARE(key(ACSCopy::AlarmInput, NodeKindChannel, door), QStringLiteral("none"));
    QCOMPARE(key(ACSCopy::Door, NodeKindChannel, door), QStringLiteral("5$1$0$7"));
    QCOMPARE(key(ACSCopy::Door, NodeKindDevice, door), QStringLiteral("none"));
}

void TestACSEventCopyToPopup::tickingADeviceYieldsItsDoors()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    desk.Ok();
    QCOMPARE(desk.Keys(), Lines({"1$1$0$11", "1$1$0$12"}));
}

void TestACSEventCopyToPopup::okWithNothingTickedClosesWithoutASignal()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    desk.popup->show();
    desk.Ok();
    QVERIFY(desk.IsGone());
    QCOMPARE(desk.copies.size(), 0);
}

void TestACSEventCopyToPopup::cancelAndEscapeCloseWithoutASignal()
{
    for (const bool escape : {false, true}) {
        Desk desk(ACSCopy::Door, TwoControllers());
        QVERIFY(desk.hand.TickDevice(1));
        desk.popup->show();
        if (escape) {
            QTest::keyClick(desk.popup.data(), Qt::Key_Escape);
        } else {
            desk.Press(QDialogButtonBox::Cancel);
        }
        QVERIFY(desk.IsGone());
        QCOMPARE(desk.copies.size(), 0);
    }
}

void TestACSEventCopyToPopup::closingDeletesThePopup()
{
    Desk shown(ACSCopy::Door, TwoControllers());
    shown.popup->setModal(true);
    shown.popup->show();
    QVERIFY(shown.hand.TickDevice(2));
    shown.Ok();
    QCOMPARE(shown.copies.size(), 1);
    QVERIFY(shown.IsGone());

    Desk closedByTheWindow(ACSCopy::Door, TwoControllers());
    closedByTheWindow.popup->show();
    closedByTheWindow.popup->close();
    QVERIFY(closedByTheWindow.IsGone());
}

void TestACSEventCopyToPopup::aForeignModeYieldsNothing_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 3, -1, 2147483647, -2147483647 - 1})
        QTest::addRow("%d", mode) << mode;
}

void TestACSEventCopyToPopup::aForeignModeYieldsNothing()
{
    QFETCH(int, mode);
    Desk desk(mode, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    desk.Ok();
    QCOMPARE(desk.copies.size(), 0);
    QVERIFY(desk.IsGone());
}

void TestACSEventCopyToPopup::channelsThatVanishedBetweenTickingAndOkYieldNothing()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    QVERIFY(desk.hand.TickDevice(2));
    Site smaller = TwoControllers();
    smaller.devices[0].channels.removeFirst(); // door 11
    smaller.devices.removeLast();              // device 2
    desk.host.manager.ApplySite(smaller);
    desk.Ok();
    QCOMPARE(desk.Keys(), Lines({"1$1$0$12"}));
}

void TestACSEventCopyToPopup::aDisabledDeviceYieldsNothingAnOfflineOneItsDoors()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    QVERIFY(desk.hand.TickDevice(2));
    desk.host.manager.SetDeviceEnabled(1, false);
    desk.host.manager.SetDeviceOnline(2, false);
    desk.Ok();
    QCOMPARE(desk.Keys(), Lines({"2$1$0$21"}));
}

void TestACSEventCopyToPopup::theSelectedItemTakesTheNewStateNotTheItemAtTheIndex()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.Tree()->SelectNode(21, VantaModel::NodeKindChannel));
    Q_EMIT desk.hand.Tree()->SignalChecked(desk.hand.Channel(11)->index(), true);
    QCOMPARE(desk.hand.Channel(21)->checkState(), Qt::Checked);
    QCOMPARE(desk.hand.Channel(11)->checkState(), Qt::Unchecked);
    desk.Ok();
    QCOMPARE(desk.copies.size(), 0);
}

void TestACSEventCopyToPopup::untickingTakesTheKeyBack()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickDevice(1));
    QVERIFY(desk.hand.TickChannel(11, false));
    desk.Ok();
    QCOMPARE(desk.Keys(), Lines({"1$1$0$12"}));
}

void TestACSEventCopyToPopup::aReceiverMayAskTheSenderForItsMode()
{
    Desk desk(ACSCopy::AlarmInput, TwoControllers());
    int mode = 0;
    connect(desk.popup.data(), &ACSEventCopyToPopup::SignalCopyTo, this,
            [this, &mode] { mode = qobject_cast<ACSEventCopyToPopup*>(sender())->GetMode(); });
    QVERIFY(desk.hand.TickChannel(13));
    desk.Ok();
    QCOMPARE(mode, 2);
}

void TestACSEventCopyToPopup::withoutADeviceManagerOkCloses()
{
    HostServices::FillTable({});
    const QPointer<ACSEventCopyToPopup> popup(new ACSEventCopyToPopup(1));
    popup->show();
    popup->GetButton(QDialogButtonBox::Ok)->click();
    QCoreApplication::sendPostedEvents(popup.data(), QEvent::DeferredDelete);
    QVERIFY(popup.isNull());
}

void TestACSEventCopyToPopup::everythingOfAThousandDoorsIsHandedOutOnce()
{
    Site site;
    VantaLogic::GroupInfo building;
    building.iGroupId = 1;
    site.groups.append(building);
    for (int controller = 0; controller < 100; ++controller) {
        VantaLogic::DeviceInfo device =
            TestSite::Device(100 + 100 * controller, VantaLogic::DeviceTypeAccessControl);
        device.iGroupId = 1;
        for (int door = 1; door <= 10; ++door)
            TestSite::AddChannel(device, device.iDeviceId + door, VantaLogic::ChannelTypeDoor, door);
        site.devices.append(device);
    }
    Desk desk(ACSCopy::Door, site);
    QVERIFY(desk.hand.Tick(1, VantaModel::NodeKindGroup));
    desk.Ok();
    QStringList keys = desk.Keys();
    QCOMPARE(keys.size(), 1000);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestACSEventCopyToPopup::theTitleSaysHowManyTargetsThereAre()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QCOMPARE(desk.popup->GetTitle(), QStringLiteral("Copy to"));
    QVERIFY(desk.hand.TickChannel(11));
    QCOMPARE(desk.popup->GetTitle(), QStringLiteral("Copy to 1 Door(s)"));
    QVERIFY(desk.hand.TickChannel(21));
    QCOMPARE(desk.popup->GetTitle(), QStringLiteral("Copy to 2 Door(s)"));
    QVERIFY(desk.hand.TickChannel(11, false));
    QVERIFY(desk.hand.TickChannel(21, false));
    QCOMPARE(desk.popup->GetTitle(), QStringLiteral("Copy to"));

    Desk inputs(ACSCopy::AlarmInput, TwoControllers());
    QVERIFY(inputs.hand.TickDevice(1));
    inputs.Ok();
    const int iTargets = inputs.Keys().size();
    Desk again(ACSCopy::AlarmInput, TwoControllers());
    QVERIFY(again.hand.TickDevice(1));
    QCOMPARE(again.popup->GetTitle(), QStringLiteral("Copy to %1 Alarm Input(s)").arg(iTargets));
}

void TestACSEventCopyToPopup::theSourceIsNoTarget()
{
    Desk desk(ACSCopy::Door, TwoControllers());
    QVERIFY(desk.hand.TickChannel(11));
    QVERIFY(desk.hand.TickChannel(21));
    const QString strSource = EventSource::Door(1, 11);
    desk.popup->SetSource(strSource);
    QCOMPARE(desk.popup->GetTitle(), QStringLiteral("Copy to 1 Door(s)"));
    desk.Ok();
    QVERIFY2(desk.Keys().contains(strSource), "what is handed out is what is ticked");
}

QTEST_MAIN(TestACSEventCopyToPopup)
#include "tst_acseventcopytopopup.moc"
