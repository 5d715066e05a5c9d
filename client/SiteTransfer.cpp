#include "client/SiteTransfer.h"

#include "client/ClientLog.h"
#include "client/ClientPaths.h"
#include "client/SiteImportDialog.h"
#include "client/SiteSession.h"
#include "platform/LXGUI/LXMessageNotify.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

using LXGUI::LXMessageNotify;

namespace {

void Note(const QString& strText, LXMessageNotify::Level level)
{
    LXGUI::LXSingleton<LXMessageNotify>::Instance()->AddTextNotification(strText, level);
}

void TellFailure(const QString& strText)
{
    CLIENT_LOG(lxl::LogError, "site: %s", qUtf8Printable(strText));
    Note(strText, LXMessageNotify::Error);
}

} // namespace

SiteTransfer::SiteTransfer(SiteSession& session, QWidget* pWindow, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_pWindow(pWindow)
{
}

SiteTransfer::~SiteTransfer() = default;

void SiteTransfer::Import()
{
    const QPointer<SiteTransfer> guard(this); // the file dialog runs an event loop
    const QString strFile = QFileDialog::getOpenFileName(
        m_pWindow, tr("Import a site"), ClientPaths::ChoiceDirectory(m_strLastFile),
        tr("Tables and site files (*.csv *.tsv *.txt *.json);;All files (*)"));
    if (guard && !strFile.isEmpty()) {
        m_strLastFile = strFile;
        ImportFile(strFile);
    }
}

void SiteTransfer::Export()
{
    const QPointer<SiteTransfer> guard(this);
    const QString strFile = QFileDialog::getSaveFileName(
        m_pWindow, tr("Export the site"),
        QDir(ClientPaths::ChoiceDirectory(m_strLastFile)).filePath(QStringLiteral("site.csv")),
        tr("Table (*.csv);;Site file (*.json)"));
    if (guard && !strFile.isEmpty()) {
        m_strLastFile = strFile;
        ExportFile(strFile);
    }
}

bool SiteTransfer::ImportFile(const QString& strFile)
{
    QByteArray text;
    QString strReason;
    if (!SiteImport::ReadFile(strFile, text, strReason)) {
        TellFailure(tr("The site cannot be imported. %1").arg(strReason));
        return false;
    }
    const SiteImportPlan plan = SiteImport::Plan(text, m_session.Devices().GetSite());
    const QPointer<SiteTransfer> guard(this);
    const QPointer<SiteImportDialog> dialog = new SiteImportDialog(strFile, plan, m_pWindow);
    const int iResult = dialog->exec();
    if (dialog.isNull() || guard.isNull()) {
        return false; // the window was closed under the dialog
    }
    delete dialog.data();
    if (iResult != QDialog::Accepted) {
        return false;
    }
    QString strBackup;
    if (!m_session.Replace(plan.site, strBackup, strReason)) {
        TellFailure(tr("The site was not imported, and nothing has changed. %1").arg(strReason));
        return false;
    }
    CLIENT_LOG(lxl::LogInfo, "site imported from %s: %s", qUtf8Printable(strFile),
               qUtf8Printable(plan.difference.Summary()));
    QString strText = tr("The site was imported: %1").arg(plan.difference.Summary());
    if (!strBackup.isEmpty()) {
        strText += QLatin1Char(' ') +
                   tr("The old one is kept in \"%1\" beside it.").arg(QFileInfo(strBackup).fileName());
    }
    Note(strText, LXMessageNotify::Success);
    return true;
}

bool SiteTransfer::ExportFile(const QString& strFile)
{
    QString strReason;
    const bool bSiteFile = QFileInfo(strFile) == QFileInfo(m_session.FileName());
    if (bSiteFile) {
        TellFailure(tr("The client works on this file itself; choose another for the export."));
        return false;
    }
    if (!SiteImport::Export(strFile, m_session.Devices().GetSite(), SiteImport::FormOfFile(strFile),
                            strReason)) {
        TellFailure(tr("The site cannot be exported. %1").arg(strReason));
        return false;
    }
    Note(tr("The site was exported to %1.").arg(QDir::toNativeSeparators(strFile)), LXMessageNotify::Success);
    return true;
}
