#include "ClientDriver.h"
#include "CopyPopupHand.h"
#include "Hand.h"
#include "OutputsHand.h"
#include "SchemeFile.h"

#include "client/SampleSite.h"
#include "client/SiteSession.h"
#include "platform/SiteLibrary/SiteFile.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

namespace {

// From the sample site.
constexpr qint64 EntranceController = 1001;
constexpr qint64 MainEntrance = 100101;
constexpr qint64 Turnstile = 100102;
constexpr qint64 DeliveryDoor = 100103;
constexpr qint64 BicycleStore = 100104;
constexpr qint64 PanicButton = 100105;
constexpr qint64 GlassBreak = 100106;
constexpr qint64 LobbySiren = 100107;
constexpr qint64 Floodlight = 100108;
constexpr qint64 OfficeNorth = 100201;
constexpr qint64 OfficeSouth = 100202;
constexpr qint64 MeetingRooms = 100203;
constexpr qint64 SmokeDetector = 100205;
constexpr qint64 ServerController = 1003;
constexpr qint64 WarehouseController = 1004;
constexpr qint64 OfflineDoor = 100501;
constexpr qint64 IntrusionPanel = 1006;
constexpr qint64 OutdoorSiren = 100604;
constexpr qint64 ControlRoomOutputs = 1007;

constexpr int TamperedType = 22; ///< belongs to the whole device
constexpr int AlarmInputType = 2;

qint64 DeviceOf(qint64 iChannel)
{
    return iChannel / 100;
}

QString DoorSource(qint64 iDoor)
{
    return QStringLiteral("%1$1$0$%2").arg(DeviceOf(iDoor)).arg(iDoor);
}

QString InputSource(qint64 iInput)
{
    return QStringLiteral("%1$3$1$%2").arg(DeviceOf(iInput)).arg(iInput);
}

QString DeviceSource(qint64 iDevice)
{
    return QStringLiteral("%1$1$0$-1").arg(iDevice);
}

} // namespace

class TestOutputsAndCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void twoOutputsAreTickedSetSavedAndFoundAgain();
    void anOutputThatIsUntickedIsGoneAfterSave();
    void anOfflineDeviceLosesNoLinkByBeingLookedAt();
    void aDoorsSchemesReachElevenOtherDoors();
    void theEditedDoorIsNoTargetOfItself();
    void aDefaultDoorClearsTheDoorsThatAreTicked();
    void anAlarmInputsSchemeReachesOtherInputs();
    void aPopupThatIsCancelledCopiesNothing();
    void aDeviceThatGoesWhileThePopupIsOpenGetsNothing();

private:
    void StartOnPage()
    {
        m_driver = std::make_unique<ClientDriver>(m_data->path());
        QVERIFY(m_driver->Start());
        QVERIFY(m_driver->OpenByTile());
    }
    void ChooseDoor(qint64 iDoor, const QString& strEvent = QString())
    {
        QVERIFY(m_driver->ClickNode(iDoor, Hand::KindChannel));
        QVERIFY(m_driver->ClickEvent(strEvent.isEmpty() ? m_strEvent : strEvent));
    }
    void OpenOutputs(qint64 iDoor = MainEntrance)
    {
        ChooseDoor(iDoor);
        QVERIFY(m_driver->ClickButton("btnAlarmOut"));
    }
    void SaveAndEnd()
    {
        QVERIFY(m_driver->ClickButton("btnSave"));
        m_driver->End();
    }
    OutputsHand Outputs() const { return OutputsHand(*m_driver); }
    SchemeFile File() const { return SchemeFile(m_driver->DatabasePath()); }

    QTreeWidgetItem* InputItem(const QString& strName) const
    {
        const auto* pTree = m_driver->Page()->findChild<QTreeWidget*>(QStringLiteral("treeAlarmIn"));
        return pTree->findItems(strName, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void ChooseInput(qint64 iDevice, const QString& strName) const
    {
        QVERIFY(m_driver->ClickNode(iDevice, Hand::KindDevice));
        QTreeWidgetItem* pItem = InputItem(strName);
        QVERIFY(pItem != nullptr);
        const QTreeWidget* pTree = pItem->treeWidget();
        QVERIFY(Hand::Click(pTree->viewport(), pTree->visualItemRect(pItem).center()));
        QCOMPARE(pTree->currentItem(), pItem);
    }
    bool HasInputMark(const QString& strName) const
    {
        QTreeWidgetItem* pItem = InputItem(strName);
        const QWidget* pCell = pItem == nullptr ? nullptr : pItem->treeWidget()->itemWidget(pItem, 1);
        const auto* pMark = pCell == nullptr ? nullptr : pCell->findChild<QLabel*>(QStringLiteral("lblMark"));
        return pMark != nullptr && pMark->isVisible();
    }

    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientDriver> m_driver;
    int m_iType = -1;
    QString m_strEvent;
    int m_iOtherType = -1;
    QString m_strOtherEvent;
    QString m_strWorkingDirectory;
};

void TestOutputsAndCopies::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
    // Not the first entry, which is current without any click.
    m_iType = AlarmSchemeCommon::ACSAlarmEvent().at(2);
    m_strEvent = QCommon::GetAlarmNameByType(m_iType);
    m_iOtherType = AlarmSchemeCommon::ACSAlarmEvent().at(0);
    m_strOtherEvent = QCommon::GetAlarmNameByType(m_iOtherType);
}

void TestOutputsAndCopies::cleanup()
{
    m_driver.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestOutputsAndCopies::twoOutputsAreTickedSetSavedAndFoundAgain()
{
    StartOnPage();
    OpenOutputs();
    QVERIFY(!Outputs().TimeEdit()->isEnabled());
    QVERIFY(Outputs().Tick(LobbySiren));
    QVERIFY(Outputs().Tick(OutdoorSiren));
    QVERIFY(Outputs().TimeEdit()->isEnabled());
    QCOMPARE(Outputs().TimeEdit()->text(), QStringLiteral("20"));
    QVERIFY(m_driver->IsSwitchedOn("btnAutoOpen"));
    QVERIFY(Hand::Type(Outputs().TimeEdit(), QStringLiteral("45")));
    QVERIFY(Outputs().ClickAutoOpen());
    QVERIFY(!m_driver->IsSwitchedOn("btnAutoOpen"));
    QCOMPARE(Outputs().SettingsOf(Floodlight), QString()); // not picked: nothing to set
    QCOMPARE(Outputs().SettingsOf(LobbySiren), QStringLiteral("20, opens"));
    QCOMPARE(Outputs().SettingsOf(OutdoorSiren), QStringLiteral("45, stays"));
    // What the virtual device has is not offered.
    QCOMPARE(Hand::CheckState(*Outputs().Tree(), ControlRoomOutputs, Hand::KindDevice), -1);
    SaveAndEnd();
    const QStringList outputs{QStringLiteral("100107$3$0$0|1|20"), QStringLiteral("100604$3$0$0|0|45")};
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);

    StartOnPage();
    OpenOutputs();
    QVERIFY(Outputs().IsTicked(LobbySiren));
    QVERIFY(Outputs().IsTicked(OutdoorSiren));
    QVERIFY(!Outputs().IsTicked(Floodlight));
    QCOMPARE(Hand::CheckState(*Outputs().Tree(), EntranceController, Hand::KindDevice),
             int(Qt::PartiallyChecked));
    QCOMPARE(Outputs().SettingsOf(OutdoorSiren), QStringLiteral("45, stays"));
    QCOMPARE(Outputs().SettingsOf(LobbySiren), QStringLiteral("20, opens"));
    // Another event of the door, and another door, drive nothing.
    QVERIFY(m_driver->ClickEvent(m_strOtherEvent));
    QVERIFY(!Outputs().IsTicked(LobbySiren));
    QVERIFY(!Outputs().TimeEdit()->isEnabled());
    OpenOutputs(Turnstile);
    QVERIFY(!Outputs().IsTicked(OutdoorSiren));
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);
    QCOMPARE(File().Rows(QStringLiteral("select count(*) from AlarmLinkAlarmOutInfo")),
             QStringList{QStringLiteral("2")});
}

void TestOutputsAndCopies::anOutputThatIsUntickedIsGoneAfterSave()
{
    StartOnPage();
    OpenOutputs();
    QVERIFY(Hand::ClickBox(Outputs().Tree(), EntranceController, Hand::KindDevice)); // both of its outputs
    QVERIFY(Outputs().Tick(OutdoorSiren));
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType).size(), 3);
    StartOnPage();
    OpenOutputs();
    QVERIFY(Outputs().Tick(Floodlight));
    QVERIFY(!Outputs().IsTicked(Floodlight));
    QVERIFY(!Outputs().TimeEdit()->isEnabled());
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType),
             (QStringList{QStringLiteral("100107$3$0$0|1|20"), QStringLiteral("100604$3$0$0|1|20")}));
}

void TestOutputsAndCopies::anOfflineDeviceLosesNoLinkByBeingLookedAt()
{
    Site site = MakeSampleSite();
    for (VantaLogic::DeviceInfo& device : site.devices) {
        device.bOnline = device.bOnline && device.iDeviceId != IntrusionPanel;
    }
    SiteFileError error;
    QVERIFY2(SiteFile::Write(m_data->filePath(QStringLiteral("site.json")), site, error),
             qPrintable(error.Text()));
    StartOnPage();
    OpenOutputs();
    QVERIFY(Outputs().Tick(OutdoorSiren)); // can be configured although nobody can reach it now
    QVERIFY(Hand::Type(Outputs().TimeEdit(), QStringLiteral("45")));
    SaveAndEnd();
    const QStringList outputs{QStringLiteral("100604$3$0$0|1|45")};
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);

    StartOnPage();
    SiteDeviceManager& devices = m_driver->Client().Site()->Devices();
    VantaLogic::DeviceInfo panel;
    QCOMPARE(devices.GetDevice(IntrusionPanel, panel), 0);
    QVERIFY(!panel.bOnline);
    OpenOutputs();
    QCOMPARE(Outputs().SettingsOf(OutdoorSiren), QStringLiteral("45, opens"));
    QVERIFY(m_driver->ClickEvent(m_strOtherEvent));
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    // It comes and goes while somebody looks, and an output beside it is picked.
    QVERIFY(devices.SetDeviceOnline(IntrusionPanel, true));
    QVERIFY(devices.SetDeviceOnline(IntrusionPanel, false));
    QVERIFY(Outputs().Tick(LobbySiren));
    QVERIFY(Outputs().IsTicked(OutdoorSiren));
    QVERIFY(m_driver->ClickButton("btnNotify"));
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType),
             (QStringList{QStringLiteral("100107$3$0$0|1|20")} + outputs));
}

void TestOutputsAndCopies::aDoorsSchemesReachElevenOtherDoors()
{
    StartOnPage();
    const QString strTampered = QCommon::GetAlarmNameByType(TamperedType);
    // The turnstile has a scheme that the source has not.
    ChooseDoor(Turnstile, m_strOtherEvent);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(File().Flags(DoorSource(Turnstile), m_iOtherType), QStringLiteral("1|0|0"));
    QVERIFY(m_driver->ClickNode(MainEntrance, Hand::KindChannel));
    QVERIFY(m_driver->ClickEvent(strTampered));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    OpenOutputs();
    QVERIFY(Outputs().Tick(LobbySiren));
    QVERIFY(Hand::Type(Outputs().TimeEdit(), QStringLiteral("45")));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnNotify"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));

    const CopyPopupHand popup(*m_driver);
    QVERIFY(popup.IsOpen());
    for (const qint64 iDoor :
         {Turnstile, DeliveryDoor, BicycleStore, OfficeNorth, OfficeSouth, MeetingRooms}) {
        QVERIFY2(popup.Tick(iDoor, Hand::KindChannel), qPrintable(QString::number(iDoor)));
    }
    QVERIFY(popup.Tick(ServerController, Hand::KindDevice));
    QVERIFY(popup.Tick(WarehouseController, Hand::KindDevice));
    // Alarm panels and cameras are not offered.
    QCOMPARE(Hand::CheckState(*popup.Tree(), IntrusionPanel, Hand::KindDevice), -1);
    QVERIFY(popup.ClickOk());
    QVERIFY(!QApplication::activeModalWidget());

    const QList<qint64> targets{Turnstile, DeliveryDoor, BicycleStore, OfficeNorth, OfficeSouth, MeetingRooms,
                                100301,    100302,       100401,       100402,      100403};
    QCOMPARE(targets.size(), 11);
    const auto verifyMarks = [&] {
        for (const qint64 iDoor : targets) {
            QVERIFY(m_driver->ClickNode(iDoor, Hand::KindChannel));
            QVERIFY2(m_driver->HasMark(m_strEvent), qPrintable(QString::number(iDoor)));
            QVERIFY(m_driver->HasMark(strTampered));
            QVERIFY(!m_driver->HasMark(m_strOtherEvent));
        }
        QVERIFY(m_driver->ClickNode(OfflineDoor, Hand::KindChannel));
        QVERIFY(!m_driver->HasMark(m_strEvent));
        QVERIFY(!m_driver->HasMark(strTampered));
    };
    verifyMarks();
    // Nothing of it reached the file yet.
    QCOMPARE(File().Flags(DoorSource(Turnstile), m_iType), QString());
    SaveAndEnd();

    const QStringList outputs{QStringLiteral("100107$3$0$0|1|45")};
    const QList<qint64> doors = QList<qint64>{MainEntrance} + targets;
    for (const qint64 iDoor : doors) {
        QCOMPARE(File().Flags(DoorSource(iDoor), m_iType), QStringLiteral("1|1|0"));
        QCOMPARE(File().Outputs(DoorSource(iDoor), m_iType), outputs);
    }
    for (const qint64 iDevice : {1001, 1002, 1003, 1004}) {
        QCOMPARE(File().Flags(DeviceSource(iDevice), TamperedType), QStringLiteral("1|0|0"));
    }
    QVERIFY(!File().Flags(DeviceSource(1005), TamperedType).startsWith(QLatin1Char('1')));
    QCOMPARE(File().Flags(DoorSource(Turnstile), m_iOtherType), QStringLiteral("0|0|0"));
    QCOMPARE(File().Rows(QStringLiteral("select count(*) from AlarmBaseInfo where bOpen = 1")),
             QStringList{QString::number(12 + 4)});

    StartOnPage();
    verifyMarks();
    OpenOutputs(OfficeSouth);
    QCOMPARE(Outputs().SettingsOf(LobbySiren), QStringLiteral("45, opens"));
}

void TestOutputsAndCopies::theEditedDoorIsNoTargetOfItself()
{
    StartOnPage();
    OpenOutputs();
    QVERIFY(Outputs().Tick(Floodlight));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    const QStringList before = File().Content();
    {
        const CopyPopupHand popup(*m_driver);
        QVERIFY(popup.Tick(MainEntrance, Hand::KindChannel));
        QVERIFY(popup.ClickOk());
    }
    QVERIFY(m_driver->HasMark(m_strEvent));
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(File().Content(), before);
    // Neither among others: the whole controller is ticked.
    const CopyPopupHand popup(*m_driver);
    QVERIFY(popup.IsOpen());
    QVERIFY(popup.Tick(EntranceController, Hand::KindDevice));
    QVERIFY(popup.ClickOk());
    QVERIFY(Outputs().IsTicked(Floodlight));
    SaveAndEnd();
    for (const qint64 iDoor : {MainEntrance, Turnstile, DeliveryDoor, BicycleStore}) {
        QCOMPARE(File().Flags(DoorSource(iDoor), m_iType), QStringLiteral("1|0|0"));
        QCOMPARE(File().Outputs(DoorSource(iDoor), m_iType),
                 QStringList{QStringLiteral("100108$3$0$0|1|20")});
    }
}

void TestOutputsAndCopies::aDefaultDoorClearsTheDoorsThatAreTicked()
{
    StartOnPage();
    OpenOutputs(OfficeNorth);
    QVERIFY(Outputs().Tick(Floodlight));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ChooseDoor(OfficeSouth);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    ChooseDoor(MainEntrance);
    {
        const CopyPopupHand popup(*m_driver);
        QVERIFY(popup.Tick(OfficeNorth, Hand::KindChannel));
        QVERIFY(popup.ClickOk());
    }
    QVERIFY(m_driver->ClickNode(OfficeNorth, Hand::KindChannel));
    QVERIFY(!m_driver->HasMark(m_strEvent));
    ChooseDoor(OfficeSouth);
    QVERIFY(m_driver->HasMark(m_strEvent));
    SaveAndEnd();
    QCOMPARE(File().Flags(DoorSource(OfficeNorth), m_iType), QStringLiteral("0|0|0"));
    QCOMPARE(File().Flags(DoorSource(OfficeSouth), m_iType), QStringLiteral("1|0|0"));
    StartOnPage();
    OpenOutputs(OfficeNorth);
    QVERIFY(!m_driver->IsSwitchedOn("btnOpenStatus"));
}

void TestOutputsAndCopies::anAlarmInputsSchemeReachesOtherInputs()
{
    StartOnPage();
    ChooseInput(EntranceController, QStringLiteral("Reception panic button"));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));
    QVERIFY(m_driver->ClickButton("btnAlarmOut"));
    QVERIFY(Outputs().Tick(OutdoorSiren));
    QVERIFY(HasInputMark(QStringLiteral("Reception panic button")));
    QVERIFY(!HasInputMark(QStringLiteral("Glass break, lobby")));

    const CopyPopupHand popup(*m_driver);
    QVERIFY(popup.IsOpen());
    QVERIFY(!popup.Tick(MainEntrance, Hand::KindChannel)); // doors are not offered
    QVERIFY(popup.Tick(GlassBreak, Hand::KindChannel));
    QVERIFY(popup.Tick(ServerController, Hand::KindDevice));
    QVERIFY(popup.ClickOk());
    QVERIFY(HasInputMark(QStringLiteral("Glass break, lobby")));
    const auto verifyServerMarks = [this] {
        QVERIFY(m_driver->ClickNode(ServerController, Hand::KindDevice));
        QVERIFY(HasInputMark(QStringLiteral("Датчик протечки")));
        QVERIFY(HasInputMark(QStringLiteral("Temperature alarm")));
    };
    verifyServerMarks();
    SaveAndEnd();
    for (const qint64 iInput : {PanicButton, GlassBreak, qint64(100303), qint64(100304)}) {
        QCOMPARE(File().Flags(InputSource(iInput), AlarmInputType), QStringLiteral("1|1|0"));
        QCOMPARE(File().Outputs(InputSource(iInput), AlarmInputType),
                 QStringList{QStringLiteral("100604$3$0$0|1|20")});
    }
    QCOMPARE(File().Flags(InputSource(SmokeDetector), AlarmInputType), QString());
    QCOMPARE(File().Rows(QStringLiteral("select count(*) from AlarmBaseInfo where bOpen = 1")),
             QStringList{QStringLiteral("4")});

    StartOnPage();
    verifyServerMarks();
    ChooseInput(ServerController, QStringLiteral("Temperature alarm"));
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->IsSwitchedOn("btnAlarmSound"));
    QVERIFY(m_driver->ClickButton("btnAlarmOut"));
    QVERIFY(Outputs().IsTicked(OutdoorSiren));
}

void TestOutputsAndCopies::aPopupThatIsCancelledCopiesNothing()
{
    StartOnPage();
    ChooseDoor(MainEntrance);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    const QStringList before = File().Content();
    const CopyPopupHand first(*m_driver);
    QVERIFY(first.IsOpen());
    QVERIFY(!m_driver->ClickNode(Turnstile, Hand::KindChannel)); // nobody reaches the page behind it
    QVERIFY(first.Tick(Turnstile, Hand::KindChannel));
    QVERIFY(first.ClickCancel());
    const CopyPopupHand second(*m_driver);
    QVERIFY(second.IsOpen());
    // It knows nothing of the first.
    QCOMPARE(Hand::CheckState(*second.Tree(), Turnstile, Hand::KindChannel), int(Qt::Unchecked));
    QVERIFY(second.Tick(Turnstile, Hand::KindChannel));
    QVERIFY(second.PressEscape());
    const CopyPopupHand third(*m_driver);
    QVERIFY(third.ClickOk()); // nothing ticked
    SaveAndEnd();
    QCOMPARE(File().Content(), before);
}

void TestOutputsAndCopies::aDeviceThatGoesWhileThePopupIsOpenGetsNothing()
{
    StartOnPage();
    ChooseDoor(MainEntrance);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    const CopyPopupHand popup(*m_driver);
    QVERIFY(popup.IsOpen());
    QVERIFY(popup.Tick(WarehouseController, Hand::KindDevice));
    QVERIFY(popup.Tick(OfficeNorth, Hand::KindChannel));
    QVERIFY(m_driver->Client().Site()->Devices().RemoveDevice(WarehouseController));
    QVERIFY(popup.ClickOk());
    SaveAndEnd();
    QCOMPARE(File().Flags(DoorSource(OfficeNorth), m_iType), QStringLiteral("1|0|0"));
    QCOMPARE(File().Rows(QStringLiteral("select * from AlarmUniqueID where strEventSource like '1004$%'")),
             QStringList());
}

QTEST_MAIN(TestOutputsAndCopies)
#include "tst_outputs_and_copies.moc"
