#pragma once

#include "client/ClientOptions.h"
#include "client/DeviceFunctionManager.h"
#include "client/HubManager.h"
#include "client/PluginLoader.h"
#include "client/TreeExpansion.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class AlarmSchemeStoreBackend;
class ClientSettings;
class ClientTranslations;
class DraftKeeper;
class DraftOffer;
class InsightPages;
class MainWindow;
class SchemeSaving;
class SessionEnd;
class SiteSession;
class SiteTransfer;

/// The client from its start to its end: owns everything, brings it up in order and takes it down in the
/// opposite order. Needs a QApplication; sets process-wide things (working directory, style, data directory,
/// log file), so there is one at a time. User-interface thread only.
class ClientApplication : public QObject
{
    Q_OBJECT

public:
    static constexpr int ExitNotStarted = 1; ///< the data directory cannot be used
    static constexpr int ExitNoPicture = 3;  ///< the picture cannot be written

    /// `strProgramDirectory` is the directory beside which skin, translations and modules lie.
    ClientApplication(const ClientOptions& options, const QString& strProgramDirectory,
                      QObject* parent = nullptr);
    ~ClientApplication() override;

    /// Brings everything up and shows the window. False when the client cannot work at all, see ErrorText().
    bool Start();
    /// Takes everything down; harmless when repeated.
    void Stop();
    /// Starts the event loop; with a picture asked for, draws it and ends. The program's exit code.
    int Run();
    /// Draws the window as it stands into a PNG file; false with the reason in ErrorText().
    bool SavePicture(const QString& strFile);

    QString ErrorText() const { return m_strError; }
    MainWindow* Window() const { return m_window.get(); }
    SiteSession* Site() const { return m_site.get(); }
    PluginLoader* Plugins() const { return m_plugins.get(); }
    ClientSettings* Settings() const { return m_settings.get(); }
    SchemeSaving* Saving() const { return m_saving.get(); }

private:
    bool PrepareDataDirectory();
    void PrepareLook();
    void PrepareSystem();
    void OpenSite();
    void PrepareSchemes();
    void LoadPlugins();
    void OpenFirstPages();
    void OfferDrafts();
    void OnClosing();
    void RememberWindow();
    bool MayEndSession(bool bMayAsk);

    ClientOptions m_options;
    QString m_strProgramDirectory;
    QString m_strDataDirectory;
    QString m_strError;
    std::unique_ptr<ClientSettings> m_settings;
    std::unique_ptr<ClientTranslations> m_translations;
    std::unique_ptr<SiteSession> m_site;
    std::unique_ptr<SiteTransfer> m_siteTransfer;
    std::unique_ptr<TreeExpansion> m_expansion;
    HubManager m_hub;
    DeviceFunctionManager m_deviceFunctions;
    std::unique_ptr<MainWindow> m_window;
    QPointer<AlarmSchemeStoreBackend> m_store; ///< the scheme manager's
    std::unique_ptr<SchemeSaving> m_saving;
    std::unique_ptr<DraftKeeper> m_drafts;
    std::unique_ptr<DraftOffer> m_draftOffer;
    std::unique_ptr<SessionEnd> m_sessionEnd;
    std::unique_ptr<InsightPages> m_insight;
    std::unique_ptr<PluginLoader> m_plugins;
};
