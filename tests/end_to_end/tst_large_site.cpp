#include "ClientDriver.h"
#include "CopyPopupHand.h"
#include "Hand.h"
#include "OutputsHand.h"
#include "SchemeFile.h"

#include "platform/SiteLibrary/SiteFile.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/VantaLogic/Records.h"

#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>

namespace {

constexpr int DoorCount = 10000;
constexpr int AlarmInputType = 2;

QString DoorSource(const VantaLogic::ChannelInfo& door)
{
    return QStringLiteral("%1$1$0$%2").arg(door.iDeviceId).arg(door.iChannelId);
}

QString InputSource(const VantaLogic::ChannelInfo& input)
{
    return QStringLiteral("%1$3$1$%2").arg(input.iDeviceId).arg(input.iChannelId);
}

QVector<VantaLogic::ChannelInfo> ChannelsOf(const VantaLogic::DeviceInfo& device, int32_t iKind)
{
    QVector<VantaLogic::ChannelInfo> channels;
    std::copy_if(device.channels.cbegin(), device.channels.cend(), std::back_inserter(channels),
                 [iKind](const VantaLogic::ChannelInfo& channel) { return channel.iChannelType == iKind; });
    return channels;
}

/// What the toolkit warns about while it lives, but not what the platform without a display says of itself.
class Warnings
{
public:
    Warnings()
    {
        List().clear();
        m_previous = qInstallMessageHandler(&Warnings::Take);
    }
    ~Warnings() { qInstallMessageHandler(m_previous); }
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    static QStringList Texts() { return List(); }

private:
    static void Take(QtMsgType type, const QMessageLogContext&, const QString& strText)
    {
        if (type != QtDebugMsg && type != QtInfoMsg &&
            !strText.startsWith(QLatin1String("This plugin does not support "))) {
            List().append(strText);
        }
    }

    static QStringList& List()
    {
        static QStringList warnings;
        return warnings;
    }

    QtMessageHandler m_previous = nullptr;
};

} // namespace

/// The site is made once by the command that an integrator would use.
class TestLargeSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void thePageOpensWithoutAWarning();
    void aSearchedDoorIsCopiedToItsWholeFloor();
    void anAlarmInputIsCopiedToAWholeBuilding();

private:
    void StartOnPage()
    {
        m_driver = std::make_unique<ClientDriver>(m_data->path());
        m_driver->UseSiteFile(m_siteDirectory.filePath(QStringLiteral("site.json")));
        QVERIFY(m_driver->Start());
        QVERIFY(m_driver->OpenByTile());
    }
    /// Types into the search box above a tree.
    static bool Search(const QTreeView* pTree, const QString& strText)
    {
        return Hand::Type(pTree->parentWidget()->findChild<QLineEdit*>(QStringLiteral("edtSearch")), strText);
    }
    /// Searches a channel by its name, which is all that is left then, and clicks its row.
    void ChooseDoor(const VantaLogic::ChannelInfo& door) const
    {
        QTreeView* pTree = m_driver->Tree();
        QVERIFY(Search(pTree, door.strName));
        const QModelIndex row = Hand::Find(*pTree, door.iChannelId, Hand::KindChannel);
        QVERIFY(row.isValid());
        QCOMPARE(row.model()->rowCount(row.parent()), 1);
        QVERIFY(!pTree->visualRect(row).isEmpty()); // unfolded by the search
        QVERIFY(m_driver->ClickNode(door.iChannelId, Hand::KindChannel));
        QVERIFY2(m_driver->StatusText().contains(door.strName), qPrintable(m_driver->StatusText()));
    }
    OutputsHand Outputs() const { return OutputsHand(*m_driver); }
    /// Ticks a node in the popup of "Copy to" and confirms.
    void CopyTo(qint64 iGroup) const
    {
        const CopyPopupHand popup(*m_driver);
        QVERIFY(popup.Tick(iGroup, Hand::KindGroup));
        QVERIFY(popup.ClickOk());
    }
    /// The channels of a kind that the enabled controllers of these groups have.
    QVector<VantaLogic::ChannelInfo> ChannelsIn(const QList<qint64>& groups, int32_t iKind) const
    {
        QVector<VantaLogic::ChannelInfo> channels;
        for (const VantaLogic::DeviceInfo& device : m_site.devices) {
            if (device.bEnabled && device.iDeviceType == VantaLogic::DeviceTypeAccessControl &&
                groups.contains(device.iGroupId)) {
                channels += ChannelsOf(device, iKind);
            }
        }
        return channels;
    }
    QStringList SourcesSwitchedOn(int iType) const
    {
        return SchemeFile(m_driver->DatabasePath())
            .Rows(QStringLiteral("select u.strEventSource from AlarmUniqueID u join AlarmBaseInfo b on "
                                 "b.AlarmUniqueID = u.AlarmUniqueID where b.bOpen = 1 and u.AlarmType = %1 "
                                 "order by 1")
                      .arg(iType));
    }
    static QStringList Sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }

    QTemporaryDir m_siteDirectory;
    Site m_site;
    qint64 m_iFloor = -1; ///< one with an offline controller and a disabled one
    QVector<VantaLogic::ChannelInfo> m_doors;
    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<ClientDriver> m_driver;
    int m_iType = -1;
    QString m_strEvent;
    QString m_strWorkingDirectory;
};

void TestLargeSite::initTestCase()
{
    const QString strFile = m_siteDirectory.filePath(QStringLiteral("site.json"));
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/acs-scheme"),
                  {QStringLiteral("make-site"), QStringLiteral("--doors"), QString::number(DoorCount),
                   QStringLiteral("--seed"), QStringLiteral("1"), QStringLiteral("--output"), strFile});
    QVERIFY(process.waitForFinished());
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());
    SiteFileError error;
    QVERIFY2(SiteFile::Read(strFile, m_site, error), qPrintable(error.Text()));

    int iDoors = 0;
    QSet<qint64> floorsWithOffline;
    QSet<qint64> floorsWithDisabled;
    for (const VantaLogic::DeviceInfo& device : qAsConst(m_site.devices)) {
        iDoors += ChannelsOf(device, VantaLogic::ChannelTypeDoor).size();
        if (device.iDeviceType == VantaLogic::DeviceTypeAccessControl) {
            if (!device.bEnabled) {
                floorsWithDisabled.insert(device.iGroupId);
            } else if (!device.bOnline) {
                floorsWithOffline.insert(device.iGroupId);
            }
        }
    }
    QCOMPARE(iDoors, DoorCount);
    const QSet<qint64> both = floorsWithOffline & floorsWithDisabled;
    QVERIFY(!both.isEmpty());
    m_iFloor = *std::min_element(both.cbegin(), both.cend());
    m_doors = ChannelsIn({m_iFloor}, VantaLogic::ChannelTypeDoor);
    QVERIFY(m_doors.size() >= 4);
    m_iType = AlarmSchemeCommon::ACSAlarmEvent().at(2);
    m_strEvent = QCommon::GetAlarmNameByType(m_iType);
}

void TestLargeSite::init()
{
    m_strWorkingDirectory = QDir::currentPath();
    m_data = std::make_unique<QTemporaryDir>();
}

void TestLargeSite::cleanup()
{
    m_driver.reset();
    QDir::setCurrent(m_strWorkingDirectory);
}

void TestLargeSite::thePageOpensWithoutAWarning()
{
    const Warnings warnings;
    StartOnPage();
    QVERIFY(Hand::Find(*m_driver->Tree(), m_doors.last().iChannelId, Hand::KindChannel).isValid());
    QVERIFY(m_driver->ClickNode(m_doors.last().iChannelId, Hand::KindChannel));
    for (const char* szTab : {"btnAlarmOut", "btnDefTime", "btnNotify"}) {
        QVERIFY(m_driver->ClickButton(szTab));
    }
    m_driver->End();
    QCOMPARE(Warnings::Texts(), QStringList());
    qWarning("seen"); // the handler works
    QCOMPARE(Warnings::Texts(), QStringList{QStringLiteral("seen")});
}

void TestLargeSite::aSearchedDoorIsCopiedToItsWholeFloor()
{
    StartOnPage();
    const VantaLogic::ChannelInfo& source = m_doors.first();
    ChooseDoor(source);
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnAlarmOut"));
    // Two outputs, each searched by its name.
    QVector<VantaLogic::ChannelInfo> outputs =
        ChannelsIn({m_iFloor}, VantaLogic::ChannelTypeAlarmOutput).mid(0, 2);
    QCOMPARE(outputs.size(), 2);
    for (const VantaLogic::ChannelInfo& output : qAsConst(outputs)) {
        QVERIFY(Search(Outputs().Tree(), output.strName));
        QVERIFY(Outputs().Tick(output.iChannelId));
        QCOMPARE(Outputs().TimeEdit()->text(), QStringLiteral("20"));
    }
    QVERIFY(Hand::Type(Outputs().TimeEdit(), QStringLiteral("45")));
    QVERIFY(Outputs().ClickAutoOpen());
    CopyTo(m_iFloor);
    QVERIFY(m_driver->ClickButton("btnSave"));
    m_driver->End();

    // The doors of the offline controller are among them, those of the disabled one are not.
    QStringList sources;
    for (const VantaLogic::ChannelInfo& door : qAsConst(m_doors)) {
        sources.append(DoorSource(door));
    }
    QCOMPARE(SourcesSwitchedOn(m_iType), Sorted(sources));
    QStringList links{QStringLiteral("%1$3$0$0|1|20").arg(outputs[0].iChannelId),
                      QStringLiteral("%1$3$0$0|0|45").arg(outputs[1].iChannelId)};
    const SchemeFile file(m_driver->DatabasePath());
    for (const VantaLogic::ChannelInfo& door : qAsConst(m_doors)) {
        QCOMPARE(file.Outputs(DoorSource(door), m_iType), Sorted(links));
    }
    QCOMPARE(file.Rows(QStringLiteral("select count(*) from AlarmLinkAlarmOutInfo")),
             QStringList{QString::number(2 * m_doors.size())});

    StartOnPage();
    for (const VantaLogic::ChannelInfo& door : {m_doors.last(), m_doors.at(m_doors.size() / 2), source}) {
        ChooseDoor(door);
        QVERIFY(m_driver->HasMark(m_strEvent));
    }
    QVERIFY(m_driver->ClickEvent(m_strEvent));
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
    QVERIFY(m_driver->ClickButton("btnAlarmOut"));
    QCOMPARE(Outputs().SettingsOf(outputs[1].iChannelId), QStringLiteral("45, stays"));
    QVERIFY(Outputs().IsTicked(outputs[0].iChannelId));
}

void TestLargeSite::anAlarmInputIsCopiedToAWholeBuilding()
{
    qint64 iBuilding = -1;
    for (const VantaLogic::GroupInfo& group : qAsConst(m_site.groups)) {
        iBuilding = group.iGroupId == m_iFloor ? group.iParentId : iBuilding;
    }
    QList<qint64> floors;
    for (const VantaLogic::GroupInfo& group : qAsConst(m_site.groups)) {
        if (group.iParentId == iBuilding) {
            floors.append(group.iGroupId);
        }
    }
    const QVector<VantaLogic::ChannelInfo> inputs = ChannelsIn(floors, VantaLogic::ChannelTypeAlarmInput);
    QVERIFY(inputs.size() > 100);

    StartOnPage();
    QVERIFY(m_driver->ClickNode(m_doors.first().iDeviceId, Hand::KindDevice));
    auto* pInputs = m_driver->Page()->findChild<QTreeWidget*>(QStringLiteral("treeAlarmIn"));
    QTreeWidgetItem* pSource = pInputs->topLevelItem(0)->child(0);
    QVERIFY(Hand::Click(pInputs->viewport(), pInputs->visualItemRect(pSource).center()));
    QVERIFY(m_driver->ClickButton("btnOpenStatus"));
    CopyTo(iBuilding);
    QVERIFY(m_driver->ClickButton("btnSave"));
    m_driver->End();
    QStringList sources;
    for (const VantaLogic::ChannelInfo& input : inputs) {
        sources.append(InputSource(input));
    }
    QCOMPARE(SourcesSwitchedOn(AlarmInputType), Sorted(sources));

    StartOnPage();
    QVERIFY(m_driver->ClickNode(inputs.last().iDeviceId, Hand::KindDevice));
    QVERIFY(m_driver->IsSwitchedOn("btnOpenStatus"));
}

QTEST_MAIN(TestLargeSite)
#include "tst_large_site.moc"
