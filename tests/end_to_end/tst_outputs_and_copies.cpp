#include "ClientDriver.h"
#include "Hand.h"
#include "SchemeFile.h"

#include "client/SampleSite.h"
#include "client/SiteSession.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SiteLibrary/SiteFile.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
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
    QWidget* OutputEditor() const
    {
        return m_driver->Page()->findChild<QWidget*>(QStringLiteral("QAlarmOutEditor"));
    }
    QTreeView* OutputTree() const
    {
        return OutputEditor()->findChild<QTreeView*>(QStringLiteral("treeDevices"));
    }
    QLineEdit* TimeEdit() const { return OutputEditor()->findChild<QLineEdit*>(QStringLiteral("edtTime")); }
    bool Ticks(qint64 iOutput) const { return Hand::ClickBox(OutputTree(), iOutput, Hand::KindChannel); }
    bool IsTicked(qint64 iOutput) const
    {
        return Hand::CheckState(*OutputTree(), iOutput, Hand::KindChannel) == Qt::Checked;
    }
    /// "time, automatic opening" as the panel shows them after a click on the output.
    QString Settings(qint64 iOutput) const
    {
        if (!Hand::ClickRow(OutputTree(), iOutput, Hand::KindChannel) || !TimeEdit()->isEnabled()) {
            return {};
        }
        return TimeEdit()->text() + (m_driver->IsSwitchedOn("btnAutoOpen") ? QStringLiteral(", opens")
                                                                           : QStringLiteral(", stays"));
    }
    SchemeFile File() const { return SchemeFile(m_driver->DatabasePath()); }

    /// Opens "Copy to"; null when nothing came.
    QWidget* OpenPopup() const
    {
        return m_driver->ClickButton("btnCopyTo") ? QApplication::activeModalWidget() : nullptr;
    }
    static bool Tick(const QWidget* pPopup, qint64 iId, int iKind)
    {
        return Hand::ClickBox(pPopup->findChild<QTreeView*>(QStringLiteral("treeDevices")), iId, iKind);
    }
    static void End(QWidget* pPopup, QDialogButtonBox::StandardButton button)
    {
        const QPointer<QWidget> popup(pPopup);
        QVERIFY(Hand::Click(pPopup->findChild<QDialogButtonBox*>()->button(button)));
        QTRY_VERIFY(popup.isNull()); // deletes itself
    }
    void CopyToDoors(const QList<qint64>& doors) const
    {
        QWidget* pPopup = OpenPopup();
        QVERIFY(pPopup != nullptr);
        for (const qint64 iDoor : doors) {
            QVERIFY2(Tick(pPopup, iDoor, Hand::KindChannel), qPrintable(QString::number(iDoor)));
        }
        End(pPopup, QDialogButtonBox::Ok);
    }

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
    QVERIFY(!TimeEdit()->isEnabled());
    QVERIFY(Ticks(LobbySiren));
    QVERIFY(Ticks(OutdoorSiren));
    QVERIFY(TimeEdit()->isEnabled());
    QCOMPARE(TimeEdit()->text(), QStringLiteral("20"));
    QVERIFY(m_driver->IsSwitchedOn("btnAutoOpen"));
    QVERIFY(Hand::Type(TimeEdit(), QStringLiteral("45")));
    QVERIFY(Hand::Click(OutputEditor()->findChild<LXGUI::LXSwitchButton*>(QStringLiteral("btnAutoOpen"))));
    QVERIFY(!m_driver->IsSwitchedOn("btnAutoOpen"));
    QCOMPARE(Settings(Floodlight), QString()); // not picked: nothing to set
    QCOMPARE(Settings(LobbySiren), QStringLiteral("20, opens"));
    QCOMPARE(Settings(OutdoorSiren), QStringLiteral("45, stays"));
    // What the virtual device has is not offered.
    QCOMPARE(Hand::CheckState(*OutputTree(), ControlRoomOutputs, Hand::KindDevice), -1);
    SaveAndEnd();
    const QStringList outputs{QStringLiteral("100107$3$0$0|1|20"), QStringLiteral("100604$3$0$0|0|45")};
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);

    StartOnPage();
    OpenOutputs();
    QVERIFY(IsTicked(LobbySiren));
    QVERIFY(IsTicked(OutdoorSiren));
    QVERIFY(!IsTicked(Floodlight));
    QCOMPARE(Hand::CheckState(*OutputTree(), EntranceController, Hand::KindDevice),
             int(Qt::PartiallyChecked));
    QCOMPARE(Settings(OutdoorSiren), QStringLiteral("45, stays"));
    QCOMPARE(Settings(LobbySiren), QStringLiteral("20, opens"));
    // Another event of the door, and another door, drive nothing.
    QVERIFY(m_driver->ClickEvent(m_strOtherEvent));
    QVERIFY(!IsTicked(LobbySiren));
    QVERIFY(!TimeEdit()->isEnabled());
    OpenOutputs(Turnstile);
    QVERIFY(!IsTicked(OutdoorSiren));
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);
    QCOMPARE(File().Rows(QStringLiteral("select count(*) from AlarmLinkAlarmOutInfo")),
             QStringList{QStringLiteral("2")});
}

void TestOutputsAndCopies::anOutputThatIsUntickedIsGoneAfterSave()
{
    StartOnPage();
    OpenOutputs();
    QVERIFY(Hand::ClickBox(OutputTree(), EntranceController, Hand::KindDevice)); // both of its outputs
    QVERIFY(Ticks(OutdoorSiren));
    SaveAndEnd();
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType).size(), 3);
    StartOnPage();
    OpenOutputs();
    QVERIFY(Ticks(Floodlight));
    QVERIFY(!IsTicked(Floodlight));
    QVERIFY(!TimeEdit()->isEnabled());
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
    QVERIFY(Ticks(OutdoorSiren)); // can be configured although nobody can reach it now
    QVERIFY(Hand::Type(TimeEdit(), QStringLiteral("45")));
    SaveAndEnd();
    const QStringList outputs{QStringLiteral("100604$3$0$0|1|45")};
    QCOMPARE(File().Outputs(DoorSource(MainEntrance), m_iType), outputs);

    StartOnPage();
    SiteDeviceManager& devices = m_driver->Client().Site()->Devices();
    VantaLogic::DeviceInfo panel;
    QCOMPARE(devices.GetDevice(IntrusionPanel, panel), 0);
    QVERIFY(!panel.bOnline);
    OpenOutputs();
    QCOMPARE(Settings(OutdoorSiren), QStringLiteral("45, opens"));
    QVERIFY(m_driver->ClickEvent(m_strOtherEvent));
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    // It comes and goes while somebody looks, and an output beside it is picked.
    QVERIFY(devices.SetDeviceOnline(IntrusionPanel, true));
    QVERIFY(devices.SetDeviceOnline(IntrusionPanel, false));
    QVERIFY(Ticks(LobbySiren));
    QVERIFY(IsTicked(OutdoorSiren));
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
    QVERIFY(Ticks(LobbySiren));
    QVERIFY(Hand::Type(TimeEdit(), QStringLiteral("45")));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnNotify"));
    QVERIFY(m_driver->ClickButton("btnAlarmSound"));

    QWidget* pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    for (const qint64 iDoor :
         {Turnstile, DeliveryDoor, BicycleStore, OfficeNorth, OfficeSouth, MeetingRooms}) {
        QVERIFY2(Tick(pPopup, iDoor, Hand::KindChannel), qPrintable(QString::number(iDoor)));
    }
    QVERIFY(Tick(pPopup, ServerController, Hand::KindDevice));
    QVERIFY(Tick(pPopup, WarehouseController, Hand::KindDevice));
    // Alarm panels and cameras are not offered.
    QCOMPARE(Hand::CheckState(*pPopup->findChild<QTreeView*>(QStringLiteral("treeDevices")), IntrusionPanel,
                              Hand::KindDevice),
             -1);
    End(pPopup, QDialogButtonBox::Ok);
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
    for (const qint64 iDoor : QList<qint64>{MainEntrance} + targets) {
        QCOMPARE(File().Flags(DoorSource(iDoor), m_iType), QStringLiteral("1|1|0"));
        QCOMPARE(File().Outputs(DoorSource(iDoor), m_iType), outputs);
    }
    for (const qint64 iDevice : {1001, 1002, 1003, 1004}) {
        QCOMPARE(File().Flags(DeviceSource(iDevice), TamperedType), QStringLiteral("1|0|0"));
    }
    QCOMPARE(File().Flags(DeviceSource(1005), TamperedType).left(1) == QLatin1String("1"), false);
    QCOMPARE(File().Flags(DoorSource(Turnstile), m_iOtherType), QStringLiteral("0|0|0"));
    QCOMPARE(File().Rows(QStringLiteral("select count(*) from AlarmBaseInfo where bOpen = 1")),
             QStringList{QString::number(12 + 4)});

    StartOnPage();
    verifyMarks();
    OpenOutputs(OfficeSouth);
    QCOMPARE(Settings(LobbySiren), QStringLiteral("45, opens"));
}

void TestOutputsAndCopies::theEditedDoorIsNoTargetOfItself()
{
    StartOnPage();
    OpenOutputs();
    QVERIFY(Ticks(Floodlight));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    const QStringList before = File().Content();
    CopyToDoors({MainEntrance});
    QVERIFY(m_driver->HasMark(m_strEvent));
    QVERIFY(m_driver->ClickButton("btnSave"));
    QCOMPARE(File().Content(), before);
    // Neither among others: the whole controller is ticked.
    QWidget* pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    QVERIFY(Tick(pPopup, EntranceController, Hand::KindDevice));
    End(pPopup, QDialogButtonBox::Ok);
    QVERIFY(IsTicked(Floodlight));
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
    QVERIFY(Ticks(Floodlight));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    ChooseDoor(OfficeSouth);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    ChooseDoor(MainEntrance);
    CopyToDoors({OfficeNorth});
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
    QVERIFY(Ticks(OutdoorSiren));
    QVERIFY(HasInputMark(QStringLiteral("Reception panic button")));
    QVERIFY(!HasInputMark(QStringLiteral("Glass break, lobby")));

    QWidget* pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    QVERIFY(!Tick(pPopup, MainEntrance, Hand::KindChannel)); // doors are not offered
    QVERIFY(Tick(pPopup, GlassBreak, Hand::KindChannel));
    QVERIFY(Tick(pPopup, ServerController, Hand::KindDevice));
    End(pPopup, QDialogButtonBox::Ok);
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
    QVERIFY(IsTicked(OutdoorSiren));
}

void TestOutputsAndCopies::aPopupThatIsCancelledCopiesNothing()
{
    StartOnPage();
    ChooseDoor(MainEntrance);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnSave"));
    const QStringList before = File().Content();
    QWidget* pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    QVERIFY(!m_driver->ClickNode(Turnstile, Hand::KindChannel)); // nobody reaches the page behind it
    QVERIFY(Tick(pPopup, Turnstile, Hand::KindChannel));
    End(pPopup, QDialogButtonBox::Cancel);
    pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    // The next one knows nothing of it.
    QCOMPARE(Hand::CheckState(*pPopup->findChild<QTreeView*>(QStringLiteral("treeDevices")), Turnstile,
                              Hand::KindChannel),
             int(Qt::Unchecked));
    QVERIFY(Tick(pPopup, Turnstile, Hand::KindChannel));
    const QPointer<QWidget> popup(pPopup);
    QTest::keyClick(pPopup, Qt::Key_Escape);
    QTRY_VERIFY(popup.isNull());
    pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    End(pPopup, QDialogButtonBox::Ok); // nothing ticked
    SaveAndEnd();
    QCOMPARE(File().Content(), before);
}

void TestOutputsAndCopies::aDeviceThatGoesWhileThePopupIsOpenGetsNothing()
{
    StartOnPage();
    ChooseDoor(MainEntrance);
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QWidget* pPopup = OpenPopup();
    QVERIFY(pPopup != nullptr);
    QVERIFY(Tick(pPopup, WarehouseController, Hand::KindDevice));
    QVERIFY(Tick(pPopup, OfficeNorth, Hand::KindChannel));
    QVERIFY(m_driver->Client().Site()->Devices().RemoveDevice(WarehouseController));
    End(pPopup, QDialogButtonBox::Ok);
    SaveAndEnd();
    QCOMPARE(File().Flags(DoorSource(OfficeNorth), m_iType), QStringLiteral("1|0|0"));
    QCOMPARE(File().Rows(QStringLiteral("select * from AlarmUniqueID where strEventSource like '1004$%'")),
             QStringList());
}

QTEST_MAIN(TestOutputsAndCopies)
#include "tst_outputs_and_copies.moc"
