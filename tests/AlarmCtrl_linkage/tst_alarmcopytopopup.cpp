#include "AlarmCtrl/QAlarmCopyToPopup.h"
#include "tests/AlarmCtrl_linkage/CopyPopupChecks.h"
#include "tests/AlarmCtrl_linkage/SiteHost.h"
#include "tests/AlarmCtrl_linkage/TestLines.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

using TestSite::ChannelOf;
using TestSite::DeviceOfType;

namespace {

/// A popup of a mode over a site, its keys collected.
struct Desk
{
    explicit Desk(int iMode, const Site& site = TestSite::EveryTypeAndKind())
        : host(site)
        , popup(iMode)
        , hand(popup)
        , copies(&popup, &QAlarmCopyToPopup::SignalCopyTo)
    {
    }

    void TickEverything() const
    {
        for (const VantaLogic::DeviceInfo& device : host.manager.GetSite().devices) {
            if (hand.Device(device.iDeviceId) != nullptr)
                hand.TickDevice(device.iDeviceId);
        }
    }
    void Ok() { popup.GetButton(QDialogButtonBox::Ok)->click(); }
    QStringList Keys() const { return CopyPopupChecks::CopiedKeys(copies); }

    SiteHost host;
    QAlarmCopyToPopup popup;
    TreeHand hand;
    QSignalSpy copies;
};

QStringList Sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

class TestAlarmCopyToPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QList<QString>>(); }
    void thePopupHasItsStatedFormAndSize();
    void thePopupStandsAboveItsParent();
    void slotsAndSignalAreKnownByTheirSignatures();
    void theTreeOffersWhatTheModeSays_data();
    void theTreeOffersWhatTheModeSays();
    void tickingEverythingYieldsTheModesKeys_data();
    void tickingEverythingYieldsTheModesKeys();
    void aForeignModeOffersEverythingAndYieldsNothing_data();
    void aForeignModeOffersEverythingAndYieldsNothing();
    void okWithNothingTickedClosesAndEmitsNothing();
    void okWithKeylessNodesTickedClosesAndEmitsNothing();
    void cancelClosesAndEmitsNothing();
    void escapeMeansCancel();
    void theTickedSetIsNotClearedByOk();
    void untickedNodesYieldNothing();
    void theTitleSaysHowManyTargetsThereAre();
    void aChannelWhoseDeviceWentYieldsNothing();
    void aDeviceRemovedAndAddedAgainYieldsNothing();
    void aDisabledDeviceYieldsNothingAnOfflineOneItsKeys();
    void theSelectedItemTakesTheNewStateNotTheItemAtTheIndex();
    void withoutADeviceManagerOkCloses();
    void destroyingThePopupWhileItEmitsIsSafe();
};

void TestAlarmCopyToPopup::thePopupHasItsStatedFormAndSize()
{
    Desk desk(1);
    QCOMPARE(desk.popup.minimumSize(), QSize(222, 500));
    QCOMPARE(desk.popup.maximumSize(), QSize(222, 500));
    const QWidget* const central = desk.popup.GetCentralWidget();
    QCOMPARE(central->objectName(), QStringLiteral("QAlarmCopyToPopup"));
    QCOMPARE(central->windowTitle(), QStringLiteral("Form"));
    const auto* const layout = central->findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    const auto* const container = central->findChild<QWidget*>(QStringLiteral("wndDevTree"));
    QCOMPARE(container->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(container->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(desk.hand.Tree()->parentWidget(), container);
    QVERIFY(desk.popup.GetButton(QDialogButtonBox::Ok) != nullptr);
    QVERIFY(desk.popup.GetButton(QDialogButtonBox::Cancel) != nullptr);
    QVERIFY(desk.popup.GetButton(QDialogButtonBox::Apply) == nullptr);
    QCOMPARE(desk.popup.GetMode(), 1);
}

void TestAlarmCopyToPopup::thePopupStandsAboveItsParent()
{
    CopyPopupChecks::StandsAboveItsParent<QAlarmCopyToPopup>(5);
}

void TestAlarmCopyToPopup::slotsAndSignalAreKnownByTheirSignatures()
{
    CopyPopupChecks::IsKnownByItsSignatures<QAlarmCopyToPopup>();
}

void TestAlarmCopyToPopup::theTreeOffersWhatTheModeSays_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<int>>("devices");
    QTest::addColumn<QList<int>>("channels");
    QList<int> everyType;
    for (int type = 0; type <= 18; ++type)
        everyType.append(type);
    const QList<int> everyKind = {0, 1, 2, 3, 4, 5, 6};
    QTest::newRow("mode 1") << 1 << QList<int>{2, 3, 4, 5, 13} << QList<int>{1};
    QTest::newRow("mode 2") << 2 << QList<int>{2, 3, 13} << QList<int>{};
    QTest::newRow("mode 3") << 3 << QList<int>{1} << everyKind;
    QTest::newRow("mode 4") << 4 << QList<int>{15} << everyKind;
    QTest::newRow("mode 5") << 5 << everyType << QList<int>{3};
    QTest::newRow("foreign mode") << 9 << everyType << everyKind;
}

void TestAlarmCopyToPopup::theTreeOffersWhatTheModeSays()
{
    QFETCH(int, mode);
    QFETCH(QList<int>, devices);
    QFETCH(QList<int>, channels);
    Desk desk(mode);
    for (int type = 0; type <= 18; ++type) {
        QCOMPARE(desk.hand.Device(DeviceOfType(type)) != nullptr, devices.contains(type));
        for (int kind = 0; kind <= 6; ++kind) {
            QCOMPARE(desk.hand.Channel(ChannelOf(type, kind)) != nullptr,
                     devices.contains(type) && channels.contains(kind));
        }
    }
}

void TestAlarmCopyToPopup::tickingEverythingYieldsTheModesKeys_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("mode 1") << 1
                            << Lines({"102$1$0$1021", "103$1$0$1031", "104$1$0$1041", "105$1$0$1051",
                                      "113$1$0$1131"});
    QTest::newRow("mode 2") << 2 << Lines({"102$1$0$0", "103$1$0$0", "113$1$0$0"});
    QTest::newRow("mode 3") << 3 << Lines({"101$1$0$0"});
    QTest::newRow("mode 4") << 4 << Lines({"115$3$0$0"});
    QStringList inputs;
    for (int type = 0; type <= 18; ++type)
        inputs.append(QStringLiteral("%1$3$0$%2").arg(100 + type).arg(1003 + 10 * type));
    QTest::newRow("mode 5") << 5 << inputs;
}

void TestAlarmCopyToPopup::tickingEverythingYieldsTheModesKeys()
{
    QFETCH(int, mode);
    QFETCH(QStringList, keys);
    Desk desk(mode);
    desk.TickEverything();
    desk.popup.show();
    desk.Ok();
    QCOMPARE(desk.copies.size(), 1);
    QCOMPARE(desk.Keys(), Sorted(keys));
    QVERIFY(!desk.popup.isVisible());
}

void TestAlarmCopyToPopup::aForeignModeOffersEverythingAndYieldsNothing_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {0, -1, 6, 2147483647, -2147483647 - 1})
        QTest::addRow("%d", mode) << mode;
}

void TestAlarmCopyToPopup::aForeignModeOffersEverythingAndYieldsNothing()
{
    QFETCH(int, mode);
    Desk desk(mode);
    desk.TickEverything();
    desk.popup.show();
    desk.Ok();
    QCOMPARE(desk.copies.size(), 0);
    QVERIFY(!desk.popup.isVisible());
}

void TestAlarmCopyToPopup::okWithNothingTickedClosesAndEmitsNothing()
{
    Desk desk(5);
    desk.popup.show();
    desk.Ok();
    QVERIFY(!desk.popup.isVisible());
    QCOMPARE(desk.copies.size(), 0);
}

void TestAlarmCopyToPopup::okWithKeylessNodesTickedClosesAndEmitsNothing()
{
    // In mode 3 the channels under a device of type 1 are offered, but their own ids have no device type.
    Desk desk(3);
    QVERIFY(desk.hand.TickChannel(ChannelOf(1, 1)));
    QVERIFY(desk.hand.TickChannel(ChannelOf(1, 3)));
    desk.popup.show();
    desk.Ok();
    QVERIFY(!desk.popup.isVisible());
    QCOMPARE(desk.copies.size(), 0);
}

void TestAlarmCopyToPopup::cancelClosesAndEmitsNothing()
{
    Desk desk(5);
    desk.TickEverything();
    desk.popup.show();
    desk.popup.GetButton(QDialogButtonBox::Cancel)->click();
    QVERIFY(!desk.popup.isVisible());
    QCOMPARE(desk.copies.size(), 0);
}

void TestAlarmCopyToPopup::escapeMeansCancel()
{
    Desk desk(5);
    desk.TickEverything();
    desk.popup.show();
    QTest::keyClick(&desk.popup, Qt::Key_Escape);
    QVERIFY(!desk.popup.isVisible());
    QCOMPARE(desk.copies.size(), 0);
}

void TestAlarmCopyToPopup::theTickedSetIsNotClearedByOk()
{
    Desk desk(4);
    desk.TickEverything();
    desk.popup.show();
    desk.Ok();
    desk.popup.show();
    desk.Ok();
    QCOMPARE(desk.Keys(), QStringList({QStringLiteral("115$3$0$0"), QStringLiteral("115$3$0$0")}));
}

void TestAlarmCopyToPopup::theTitleSaysHowManyTargetsThereAre()
{
    Desk desk(1);
    QCOMPARE(desk.popup.GetTitle(), QStringLiteral("Copy to"));
    QSignalSpy copies(&desk.popup, &QAlarmCopyToPopup::SignalCopyTo);
    desk.TickEverything();
    const QString strTitle = desk.popup.GetTitle();
    desk.popup.GetButton(QDialogButtonBox::Ok)->click();
    QCOMPARE(copies.size(), 1);
    const int iTargets = copies.constFirst().constFirst().value<QList<QString>>().size();
    QCOMPARE(strTitle, QStringLiteral("Copy to %1 Target(s)").arg(iTargets));
}

void TestAlarmCopyToPopup::untickedNodesYieldNothing()
{
    Desk desk(1);
    desk.TickEverything();
    QVERIFY(desk.hand.TickDevice(DeviceOfType(2), false));
    QVERIFY(desk.hand.TickChannel(ChannelOf(3, 1), false));
    QVERIFY(desk.hand.TickChannel(ChannelOf(3, 1), false)); // twice is once
    desk.Ok();
    QCOMPARE(desk.Keys(), QStringList({QStringLiteral("104$1$0$1041"), QStringLiteral("105$1$0$1051"),
                                       QStringLiteral("113$1$0$1131")}));
}

void TestAlarmCopyToPopup::aChannelWhoseDeviceWentYieldsNothing()
{
    Desk desk(1);
    QVERIFY(desk.hand.TickChannel(ChannelOf(2, 1)));
    QVERIFY(desk.hand.TickChannel(ChannelOf(3, 1)));
    QVERIFY(desk.host.manager.RemoveDevice(DeviceOfType(2)));
    desk.popup.show();
    desk.Ok();
    QCOMPARE(desk.Keys(), QStringList(QStringLiteral("103$1$0$1031")));
}

void TestAlarmCopyToPopup::aDeviceRemovedAndAddedAgainYieldsNothing()
{
    Desk desk(1);
    const VantaLogic::DeviceInfo device = desk.host.manager.GetSite().devices.at(2);
    QVERIFY(desk.hand.TickDevice(DeviceOfType(2)));
    QVERIFY(desk.host.manager.RemoveDevice(DeviceOfType(2)));
    QVERIFY(desk.host.manager.AddDevice(device));
    desk.Ok();
    QCOMPARE(desk.copies.size(), 0); // its row came back unticked
}

void TestAlarmCopyToPopup::aDisabledDeviceYieldsNothingAnOfflineOneItsKeys()
{
    Desk desk(1);
    desk.TickEverything();
    desk.host.manager.SetDeviceEnabled(DeviceOfType(2), false);
    desk.host.manager.SetDeviceOnline(DeviceOfType(3), false);
    desk.Ok();
    QCOMPARE(desk.Keys(), QStringList({QStringLiteral("103$1$0$1031"), QStringLiteral("104$1$0$1041"),
                                       QStringLiteral("105$1$0$1051"), QStringLiteral("113$1$0$1131")}));
}

void TestAlarmCopyToPopup::theSelectedItemTakesTheNewStateNotTheItemAtTheIndex()
{
    Desk desk(1);
    QVERIFY(desk.hand.Tree()->SelectNode(ChannelOf(3, 1), VantaModel::NodeKindChannel));
    Q_EMIT desk.hand.Tree()->SignalChecked(desk.hand.Channel(ChannelOf(2, 1))->index(), true);
    QCOMPARE(desk.hand.Channel(ChannelOf(3, 1))->checkState(), Qt::Checked);
    QCOMPARE(desk.hand.Channel(ChannelOf(2, 1))->checkState(), Qt::Unchecked);
    desk.Ok();
    QCOMPARE(desk.copies.size(), 0); // read under the index, where nothing is ticked
}

void TestAlarmCopyToPopup::withoutADeviceManagerOkCloses()
{
    HostServices::FillTable({});
    QAlarmCopyToPopup popup(1);
    popup.show();
    popup.GetButton(QDialogButtonBox::Ok)->click();
    QVERIFY(!popup.isVisible());
}

void TestAlarmCopyToPopup::destroyingThePopupWhileItEmitsIsSafe()
{
    SiteHost host(TestSite::EveryTypeAndKind());
    const QPointer<QAlarmCopyToPopup> popup(new QAlarmCopyToPopup(4));
    const TreeHand hand(*popup);
    QVERIFY(hand.TickDevice(DeviceOfType(15)));
    connect(popup.data(), &QAlarmCopyToPopup::SignalCopyTo, this, [&popup] { delete popup.data(); });
    popup->show();
    popup->GetButton(QDialogButtonBox::Ok)->click();
    QVERIFY(popup.isNull());
}

QTEST_MAIN(TestAlarmCopyToPopup)
#include "tst_alarmcopytopopup.moc"
