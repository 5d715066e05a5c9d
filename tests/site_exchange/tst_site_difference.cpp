#include "scheme_services/site/SiteDifference.h"
#include "tests/site_exchange/SiteSamples.h"

#include <QtTest>

namespace {

/// Every change as "kind record id".
QStringList Told(const SiteDifference& difference)
{
    static const QStringList kinds = {QStringLiteral("added"), QStringLiteral("renamed"),
                                      QStringLiteral("changed"), QStringLiteral("removed")};
    QStringList told;
    for (const SiteChange& change : difference.changes) {
        told.append(QStringLiteral("%1 %2 %3")
                        .arg(kinds.at(static_cast<int>(change.eKind)),
                             SiteTableFields::NameOf(change.eRecord), QString::number(change.iId)));
    }
    return told;
}

} // namespace

class TestSiteDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSameSiteDiffersInNothing()
    {
        const SiteDifference difference = SiteDifference::Between(SmallSite(), SmallSite());
        QVERIFY(difference.IsEmpty());
        QVERIFY(!difference.Summary().isEmpty());
        QVERIFY(SiteDifference::Between(Site(), Site()).IsEmpty());
    }
    void everythingComesAndEverythingGoes()
    {
        const QStringList ids = {QStringLiteral("group 1"),
                                 QStringLiteral("group 2"),
                                 QStringLiteral("device 100"),
                                 QStringLiteral("channel 101"),
                                 QStringLiteral("channel 102"),
                                 QStringLiteral("channel 103"),
                                 QStringLiteral("device 9223372036854775807")};
        QStringList added;
        QStringList removed;
        for (const QString& strId : ids) {
            added.append(QStringLiteral("added ") + strId);
            removed.append(QStringLiteral("removed ") + strId);
        }
        QCOMPARE(Told(SiteDifference::Between(Site(), SmallSite())), added);
        const SiteDifference gone = SiteDifference::Between(SmallSite(), Site());
        QCOMPARE(Told(gone), removed);
        QCOMPARE(gone.Count(SiteChange::Kind::Removed), 7);
        QCOMPARE(gone.changes.at(3).strName, QStringLiteral("Main door"));
    }
    void aNewNameIsARename()
    {
        Site site = SmallSite();
        site.groups[0].strName = QStringLiteral("House");
        site.devices[0].strName = QStringLiteral("Gate");
        site.devices[0].channels[0].strName = QStringLiteral("Door");
        const SiteDifference difference = SiteDifference::Between(SmallSite(), site);
        QCOMPARE(Told(difference),
                 (QStringList{QStringLiteral("renamed group 1"), QStringLiteral("renamed device 100"),
                              QStringLiteral("renamed channel 101")}));
        QVERIFY(difference.changes.at(0).Text().contains(QLatin1String("House")));
        QVERIFY(difference.changes.at(0).Text().contains(QLatin1String("Main building")));
        QVERIFY(!difference.bOrderChanged);
    }
    void everyOtherFieldIsAChange_data()
    {
        QTest::addColumn<int>("iField");
        QTest::addColumn<QString>("strTold");
        QTest::addColumn<QString>("strDetail");
        QTest::newRow("the group of a group")
            << 0 << QStringLiteral("changed group 2") << QStringLiteral("group 1");
        QTest::newRow("the group of a device")
            << 1 << QStringLiteral("changed device 100") << QStringLiteral("group 2");
        QTest::newRow("the type of a device")
            << 2 << QStringLiteral("changed device 100") << QStringLiteral("access control");
        QTest::newRow("enabled") << 3 << QStringLiteral("changed device 100") << QStringLiteral("enabled");
        QTest::newRow("online") << 4 << QStringLiteral("changed device 100") << QStringLiteral("online");
        QTest::newRow("the type of a channel")
            << 5 << QStringLiteral("changed channel 101") << QStringLiteral("door");
        QTest::newRow("the number of a channel")
            << 6 << QStringLiteral("changed channel 101") << QStringLiteral("1");
        QTest::newRow("a channel switched off")
            << 7 << QStringLiteral("changed channel 101") << QStringLiteral("enabled");
        QTest::newRow("a channel of another device")
            << 8 << QStringLiteral("changed channel 103") << QStringLiteral("device 100");
    }
    void everyOtherFieldIsAChange()
    {
        QFETCH(int, iField);
        QFETCH(QString, strTold);
        QFETCH(QString, strDetail);
        Site site = SmallSite();
        auto& device = site.devices[0];
        auto& channel = device.channels[0];
        switch (iField) {
        case 0:
            site.groups[1].iParentId = -1;
            break;
        case 1:
            device.iGroupId = 1;
            break;
        case 2:
            device.iDeviceType = 3;
            break;
        case 3:
            device.bEnabled = false;
            break;
        case 4:
            device.bOnline = false;
            break;
        case 5:
            channel.iChannelType = 2;
            break;
        case 6:
            channel.iNumber = 9;
            break;
        case 7:
            channel.bEnabled = false;
            break;
        default:
            site.devices[1].channels.append(device.channels.takeLast());
            site.devices[1].channels.last().iDeviceId = site.devices[1].iDeviceId;
        }
        const SiteDifference difference = SiteDifference::Between(SmallSite(), site);
        QCOMPARE(Told(difference), QStringList{strTold});
        QVERIFY2(difference.changes.constFirst().strDetail.contains(strDetail),
                 qUtf8Printable(difference.changes.constFirst().Text()));
        QVERIFY(!difference.bOrderChanged);
    }
    void aNewNameAndAnotherPlaceAreTwoLines()
    {
        Site site = SmallSite();
        site.devices[0].strName = QStringLiteral("Gate");
        site.devices[0].iGroupId = -1;
        QCOMPARE(Told(SiteDifference::Between(SmallSite(), site)),
                 (QStringList{QStringLiteral("renamed device 100"), QStringLiteral("changed device 100")}));
    }
    void anIdThatChangesItsKindIsAnotherRecord()
    {
        Site site = SmallSite();
        site.groups[0].iGroupId = 500;
        site.groups[1].iParentId = 500;
        VantaLogic::DeviceInfo device;
        device.iDeviceId = 1;
        device.iDeviceType = 12;
        device.strName = QStringLiteral("Was a group");
        site.devices.append(device);
        QCOMPARE(Told(SiteDifference::Between(SmallSite(), site)),
                 (QStringList{QStringLiteral("added group 500"), QStringLiteral("changed group 2"),
                              QStringLiteral("added device 1"), QStringLiteral("removed group 1")}));
    }
    void anotherOrderIsTold()
    {
        Site devices = SmallSite();
        std::swap(devices.devices[0], devices.devices[1]);
        Site channels = SmallSite();
        std::swap(channels.devices[0].channels[0], channels.devices[0].channels[2]);
        for (const Site& site : {devices, channels}) {
            const SiteDifference difference = SiteDifference::Between(SmallSite(), site);
            QVERIFY(difference.changes.isEmpty());
            QVERIFY(difference.bOrderChanged);
            QVERIFY(!difference.IsEmpty());
        }
        Site shorter = SmallSite();
        shorter.devices.removeFirst();
        QVERIFY(!SiteDifference::Between(SmallSite(), shorter).bOrderChanged);
    }
};

QTEST_GUILESS_MAIN(TestSiteDifference)
#include "tst_site_difference.moc"
