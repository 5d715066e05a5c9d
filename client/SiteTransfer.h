#pragma once

#include <QObject>
#include <QString>

class QWidget;
class SiteSession;

/// Brings whole sites in and out on a person's behalf: asks for the file, shows what would change, does it,
/// and tells how it went. User-interface thread only.
class SiteTransfer : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object; dialogs stand over the window.
    SiteTransfer(SiteSession& session, QWidget* pWindow, QObject* parent = nullptr);
    ~SiteTransfer() override;

    /// Asks for the file first: in the folder of the last one, at first in that of the person's documents.
    void Import();
    void Export(); ///< asks as an import does
    /// The import of this file, from the preview on; returns when the dialog is closed. Whether the site was
    /// changed.
    bool ImportFile(const QString& strFile);
    /// As a table or as JSON, as the file's name ends; false (and a note) when it cannot be written.
    bool ExportFile(const QString& strFile);

private:
    SiteSession& m_session;
    QWidget* m_pWindow;
    QString m_strLastFile; ///< that was chosen; empty before the first
};
