#include "client/SiteImportDialog.h"
#include "client/SiteImportModel.h"
#include "client/SiteSession.h"
#include "client/SiteTransfer.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "scheme_services/site/SiteTable.h"
#include "tests/site_exchange/SiteSamples.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QWidget>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

/// What the devices tell while a site is replaced.
class Listener : public VantaLogic::IDeviceObserver
{
public:
    void OnDeviceAdded(int64_t iDeviceId) override { told += QStringLiteral("+%1 ").arg(iDeviceId); }
    void OnDeviceRemoved(int64_t iDeviceId) override { told += QStringLiteral("-%1 ").arg(iDeviceId); }
    void OnDeviceChanged(int64_t iDeviceId) override { told += QStringLiteral("~%1 ").arg(iDeviceId); }
    void OnDeviceOnline(int64_t iDeviceId, bool bOnline) override
    {
        told += QStringLiteral("%1%2 ")
                    .arg(bOnline ? QStringLiteral("on") : QStringLiteral("off"))
                    .arg(iDeviceId);
    }
    void OnGroupsChanged() override { told += QStringLiteral("groups "); }
    QString told;
};

/// The small site with one device renamed, one gone and one new.
Site OtherSite()
{
    Site site = SmallSite();
    site.devices[0].strName = QStringLiteral("Gate");
    site.devices[1] = site.devices[0];
    site.devices[1].iDeviceId = 777;
    site.devices[1].strName = QStringLiteral("Fresh");
    site.devices[1].channels.clear();
    return site;
}

} // namespace

class TestSiteTransfer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void thePreviewTellsEveryChange();
    void thePreviewTellsEveryProblemAndCannotBeAccepted();
    void thePreviewOfTheSameSiteCannotBeAccepted();
    void anotherOrderIsToldToo();
    void aPreviewOfTenThousandsStaysAModel();
    void anAcceptedImportReachesDevicesAndFile();
    void aCancelledImportChangesNothing();
    void aFileThatCannotBeReadIsTold();
    void aSiteFileThatSomebodyChangedIsLeftAlone();
    void aBrokenSiteFileCanBeReplaced();
    void removingADeviceAfterAnImportIsWrittenToo();
    void theWindowMayGoUnderThePreview();
    void anExportIsTold();
    void anExportNeverLandsOnTheSiteItself();
    void aFileIsChosenWhereTheLastOneWas();

private:
    QString File(const char* szName) const { return m_directory->filePath(QLatin1String(szName)); }
    static void Write(const QString& strFile, const QByteArray& text)
    {
        QFile file(strFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    static QByteArray Content(const QString& strFile)
    {
        QFile file(strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    static LXGUI::LXMessageNotify* Notes() { return LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(); }
    /// Runs the import and does this with its preview.
    bool Import(const std::function<void(SiteImportDialog&)>& answer);
    static void Press(const SiteImportDialog& dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog.GetButton(button), Qt::LeftButton);
    }
    static QString Label(const QWidget& dialog, const char* szName)
    {
        return dialog.findChild<QLabel*>(QLatin1String(szName))->text();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<SiteSession> m_session;
    std::unique_ptr<SiteTransfer> m_transfer;
};

void TestSiteTransfer::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    Write(File("site.json"), SiteFile::ToText(SmallSite()));
    Write(File("new.csv"), SiteTable::ToText(OtherSite()));
    m_window = std::make_unique<QWidget>();
    m_session = std::make_unique<SiteSession>();
    QVERIFY(m_session->Open(File("site.json"), false) == SiteSession::Outcome::Loaded);
    m_transfer = std::make_unique<SiteTransfer>(*m_session, m_window.get());
    Notes()->Clear();
}

void TestSiteTransfer::cleanup()
{
    m_transfer.reset();
    m_session.reset();
    m_window.reset();
    Notes()->Clear();
}

bool TestSiteTransfer::Import(const std::function<void(SiteImportDialog&)>& answer)
{
    bool bSeen = false;
    QTimer::singleShot(0, this, [&] {
        auto* pDialog = qobject_cast<SiteImportDialog*>(QApplication::activeModalWidget());
        if (pDialog != nullptr) {
            bSeen = true;
            answer(*pDialog);
        }
    });
    const bool bImported = m_transfer->ImportFile(File("new.csv"));
    return bSeen && bImported;
}

void TestSiteTransfer::thePreviewTellsEveryChange()
{
    const SiteImportPlan plan = SiteImport::Plan(SiteTable::ToText(OtherSite()), SmallSite());
    SiteImportModel model(plan);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 3);
    const auto cell = [&model](int iRow, int iColumn) {
        return model.index(iRow, iColumn).data().toString();
    };
    QCOMPARE(cell(0, SiteImportModel::ColumnLine), QStringLiteral("4"));
    QCOMPARE(cell(0, SiteImportModel::ColumnWhat), QStringLiteral("Renamed"));
    QVERIFY(cell(0, SiteImportModel::ColumnText).contains(QLatin1String("Gate")));
    QCOMPARE(cell(1, SiteImportModel::ColumnLine), QStringLiteral("8"));
    QCOMPARE(cell(1, SiteImportModel::ColumnWhat), QStringLiteral("Added"));
    QCOMPARE(cell(2, SiteImportModel::ColumnLine), QString());
    QCOMPARE(cell(2, SiteImportModel::ColumnWhat), QStringLiteral("Removed"));
    const SiteImportDialog dialog(QStringLiteral("new.csv"), plan);
    QVERIFY(dialog.GetButton(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(!dialog.findChild<QLabel*>(QStringLiteral("lblRemoval"))->isHidden());
    QCOMPARE(Label(dialog, "lblSummary"), plan.difference.Summary());
}

void TestSiteTransfer::thePreviewTellsEveryProblemAndCannotBeAccepted()
{
    const SiteImportPlan plan =
        SiteImport::Plan("record,id,name,type\ndevice,1,A,12\ndevice,1,B,12\nthing,2,C,12\n", SmallSite());
    const SiteImportModel model(plan);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(0, SiteImportModel::ColumnLine).data().toString(), QStringLiteral("3"));
    QCOMPARE(model.index(1, SiteImportModel::ColumnLine).data().toString(), QStringLiteral("4"));
    const SiteImportDialog dialog(QStringLiteral("new.csv"), plan);
    QVERIFY(!dialog.GetButton(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(Label(dialog, "lblSummary").contains(QLatin1Char('2')));
    QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("lblRemoval"))->isHidden());
}

void TestSiteTransfer::thePreviewOfTheSameSiteCannotBeAccepted()
{
    const SiteImportDialog dialog(QStringLiteral("a"),
                                  SiteImport::Plan(SiteTable::ToText(SmallSite()), SmallSite()));
    QVERIFY(!dialog.GetButton(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(!Label(dialog, "lblSummary").isEmpty());
    QVERIFY(dialog.findChild<QTreeView*>()->isHidden());
}

void TestSiteTransfer::anotherOrderIsToldToo()
{
    Site site = SmallSite();
    std::swap(site.devices[0], site.devices[1]);
    const SiteImportPlan plan = SiteImport::Plan(SiteTable::ToText(site), SmallSite());
    const SiteImportModel model(plan);
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(!model.index(0, SiteImportModel::ColumnText).data().toString().isEmpty());
    const SiteImportDialog dialog(QStringLiteral("a"), plan);
    QVERIFY(dialog.GetButton(QDialogButtonBox::Ok)->isEnabled());
}

void TestSiteTransfer::aPreviewOfTenThousandsStaysAModel()
{
    Site site;
    for (int i = 1; i <= 20000; ++i) {
        VantaLogic::DeviceInfo device;
        device.iDeviceId = i;
        device.iDeviceType = 12;
        device.strName = QStringLiteral("Device %1").arg(i);
        site.devices.append(device);
    }
    SiteImportDialog dialog(QStringLiteral("a"), SiteImport::Plan(SiteTable::ToText(site), Site()));
    dialog.show();
    const auto* pView = dialog.findChild<QTreeView*>();
    QCOMPARE(pView->model()->rowCount(), 20000);
    QVERIFY(pView->uniformRowHeights());
}

void TestSiteTransfer::anAcceptedImportReachesDevicesAndFile()
{
    Listener listener;
    m_session->Devices().AddObserver(&listener);
    QSignalSpy changed(m_session.get(), &SiteSession::SignalDevicesChanged);
    QVERIFY(Import([](SiteImportDialog& dialog) { Press(dialog, QDialogButtonBox::Ok); }));
    m_session->Devices().RemoveObserver(&listener);
    // As a difference by id: what stays is changed, not removed and added.
    QCOMPARE(listener.told, QStringLiteral("-9223372036854775807 ~100 +777 "));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(Printed(m_session->Devices().GetSite()), Printed(OtherSite()));
    QCOMPARE(Content(File("site.json")), SiteFile::ToText(OtherSite()));
    QCOMPARE(Content(File("site.json.bak")), SiteFile::ToText(SmallSite()));
    QVERIFY(Notes()->GetLastText().contains(QLatin1String("site.json.bak")));
}

void TestSiteTransfer::aCancelledImportChangesNothing()
{
    QVERIFY(!Import([](SiteImportDialog& dialog) { Press(dialog, QDialogButtonBox::Cancel); }));
    QCOMPARE(Printed(m_session->Devices().GetSite()), Printed(SmallSite()));
    QCOMPARE(Content(File("site.json")), SiteFile::ToText(SmallSite()));
    QVERIFY(!QFile::exists(File("site.json.bak")));
}

void TestSiteTransfer::aFileThatCannotBeReadIsTold()
{
    QVERIFY(!m_transfer->ImportFile(File("gone.csv")));
    QVERIFY(Notes()->GetLastText().contains(QLatin1String("gone.csv")));
}

void TestSiteTransfer::aSiteFileThatSomebodyChangedIsLeftAlone()
{
    QVERIFY(!Import([this](SiteImportDialog& dialog) {
        Write(File("site.json"), "theirs");
        Press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(Content(File("site.json")), QByteArray("theirs"));
    QCOMPARE(Printed(m_session->Devices().GetSite()), Printed(SmallSite()));
    QVERIFY(!Notes()->GetLastText().isEmpty());
}

void TestSiteTransfer::aBrokenSiteFileCanBeReplaced()
{
    Write(File("site.json"), "broken");
    QVERIFY(m_session->Open(File("site.json"), false) == SiteSession::Outcome::Broken);
    QVERIFY(Import([](SiteImportDialog& dialog) { Press(dialog, QDialogButtonBox::Ok); }));
    QCOMPARE(Content(File("site.json.bak")), QByteArray("broken"));
    QVERIFY(m_session->GetOutcome() == SiteSession::Outcome::Loaded);
    QVERIFY(m_session->ErrorText().isEmpty());
}

void TestSiteTransfer::removingADeviceAfterAnImportIsWrittenToo()
{
    QVERIFY(Import([](SiteImportDialog& dialog) { Press(dialog, QDialogButtonBox::Ok); }));
    QVERIFY(m_session->Devices().RemoveDevice(777));
    QVERIFY(!Content(File("site.json")).contains("777"));
}

void TestSiteTransfer::theWindowMayGoUnderThePreview()
{
    QVERIFY(!Import([this](SiteImportDialog&) { m_window.reset(); }));
    QCOMPARE(Content(File("site.json")), SiteFile::ToText(SmallSite()));
}

void TestSiteTransfer::anExportIsTold()
{
    QVERIFY(m_transfer->ExportFile(File("out.csv")));
    QCOMPARE(Content(File("out.csv")), SiteTable::ToText(SmallSite()));
    QVERIFY(m_transfer->ExportFile(File("out.json")));
    QCOMPARE(Content(File("out.json")), SiteFile::ToText(SmallSite()));
    QVERIFY(Notes()->GetLastText().contains(QLatin1String("out.json")));
    QVERIFY(!m_transfer->ExportFile(File("no/such/out.csv")));
    QVERIFY(Notes()->GetLastText().contains(QLatin1String("out.csv")));
}

void TestSiteTransfer::anExportNeverLandsOnTheSiteItself()
{
    QVERIFY(!m_transfer->ExportFile(File("./site.json")));
    QCOMPARE(Content(File("site.json")), SiteFile::ToText(SmallSite()));
    QVERIFY(!Notes()->GetLastText().isEmpty());
}

void TestSiteTransfer::aFileIsChosenWhereTheLastOneWas()
{
    QStringList begun;
    const auto choose = [&begun](const QString& strFile) {
        QTimer::singleShot(0, qApp, [&begun, strFile] {
            QWidget* pAsking = QApplication::activeModalWidget();
            if (const auto* pFiles = qobject_cast<QFileDialog*>(pAsking)) {
                begun += pFiles->directory().canonicalPath();
                pFiles->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(strFile);
            }
            if (auto* pDialog = qobject_cast<QDialog*>(pAsking)) {
                strFile.isEmpty() ? pDialog->reject() : pDialog->accept();
            }
        });
    };
    choose(QString());
    m_transfer->Export();
    choose(File("out.csv"));
    m_transfer->Export();
    QCOMPARE(Content(File("out.csv")), SiteTable::ToText(SmallSite()));
    choose(QString());
    m_transfer->Import();

    QCOMPARE(begun.size(), 3);
    QVERIFY(begun.at(0) != QDir::current().canonicalPath());
    QCOMPARE(begun.at(1), begun.at(0));
    QCOMPARE(begun.at(2), QDir(m_directory->path()).canonicalPath());
}

QTEST_MAIN(TestSiteTransfer)
#include "tst_site_transfer.moc"
