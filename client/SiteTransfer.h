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

    void Import(); ///< asks for the file first
    void Export();
    /// The import of this file, from the preview on; returns when the dialog is closed. Whether the site was
    /// changed.
    bool ImportFile(const QString& strFile);
    /// As a table or as JSON, as the file's name ends; false (and a note) when it cannot be written.
    bool ExportFile(const QString& strFile);

private:
    SiteSession& m_session;
    QWidget* m_pWindow;
};
