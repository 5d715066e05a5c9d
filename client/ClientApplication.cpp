#include "client/ClientApplication.h"

#include "client/ClientLog.h"
#include "client/ClientPaths.h"
#include "client/ClientSettings.h"
#include "client/ClientTranslations.h"
#include "client/DraftKeeper.h"
#include "client/DraftOffer.h"
#include "client/InsightPages.h"
#include "client/MainWindow.h"
#include "client/RecoveredPages.h"
#include "client/SchemeSaving.h"
#include "client/SessionEnd.h"
#include "client/SiteSession.h"
#include "client/SiteTransfer.h"
#include "client/UnsavedWork.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/SystemUser.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/Theme.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"
#include "platform/SystemLibrary/SystemPaths.h"
#include "platform/SystemLibrary/WholeFile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLocale>
#include <QStyleFactory>
#include <QTimer>

namespace {

constexpr int FontSize = 9; // points; the forms' columns are drawn for it

QFont ClientFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSize(FontSize);
    // Chinese signs that the system's font lacks come from these: in fonts that the toolkit finds by itself
    // they may have the forms of another language.
    font.setFamilies({QFontInfo(font).family(), QStringLiteral("Noto Sans CJK SC"),
                      QStringLiteral("Source Han Sans SC"), QStringLiteral("Microsoft YaHei"),
                      QStringLiteral("PingFang SC"), QStringLiteral("WenQuanYi Micro Hei")});
    return font;
}

} // namespace

ClientApplication::ClientApplication(const ClientOptions& options, const QString& strProgramDirectory,
                                     QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_strProgramDirectory(strProgramDirectory)
    , m_strDataDirectory(options.strDataDirectory.isEmpty() ? ClientPaths::DefaultDataDirectory()
                                                            : options.strDataDirectory)
{
}

ClientApplication::~ClientApplication()
{
    Stop();
}

bool ClientApplication::Start()
{
    QSystem::GetInstance()->SetState(QSystem::StateStarting);
    if (!PrepareDataDirectory()) {
        return false;
    }
    PrepareSystem();
    PrepareLook();
    m_window = std::make_unique<MainWindow>(*m_settings, m_options.role, m_strDataDirectory);
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->SetAnchor(m_window.get());
    connect(m_window.get(), &MainWindow::SignalClosing, this, &ClientApplication::OnClosing);
    OpenSite();
    PrepareSchemes();
    LoadPlugins();
    if (m_options.strPictureFile.isEmpty()) {
        m_window->restoreGeometry(m_settings->WindowGeometry());
    }
    m_window->show();
    QSystem::GetInstance()->SetState(QSystem::StateRunning);
    OpenFirstPages();
    OfferDrafts();
    return true;
}

void ClientApplication::Stop()
{
    if (!m_window) {
        return;
    }
    // Pages before their modules, modules before the managers they were handed, devices last. The site stops
    // following first, so that taking down looks like no removal to anybody.
    m_site->StopFollowing();
    m_draftOffer.reset();
    m_sessionEnd.reset();
    m_drafts->WriteNow();
    m_window->DestroyPages();
    m_plugins->Unload();
    m_settings->SetTreeExpansion(m_expansion->ToTexts());
    if (!m_settings->Write()) {
        CLIENT_LOG(lxl::LogWarning, "the settings cannot be written: %s",
                   qUtf8Printable(m_settings->FileName()));
    }
    m_insight.reset();
    m_siteTransfer.reset();
    AlarmSchemeManager::Instance()->SetBackend(nullptr);
    m_saving.reset();
    m_drafts.reset();
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->Clear();
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->SetAnchor(nullptr);
    QSystem::GetInstance()->disconnect(this);
    m_hub.SetMainWindow(nullptr);
    m_window.reset();
    m_hub.SetTreeExpansion(nullptr);
    m_hub.SetDeviceManager(nullptr);
    m_plugins.reset();
    m_expansion.reset();
    m_site.reset();
    m_translations.reset();
    m_settings.reset();
    CLIENT_LOG(lxl::LogInfo, "ended");
    lxl::DPrintLog::instance().SetFile(QString());
}

int ClientApplication::Run()
{
    if (!m_options.strPictureFile.isEmpty()) {
        // Notes fade in; a picture taken earlier would show them half transparent.
        QTimer::singleShot(4 * LXGUI::NoteFadeTime, this, [this] {
            const bool bSaved = SavePicture(m_options.strPictureFile);
            QCoreApplication::exit(bSaved ? 0 : ExitNoPicture);
        });
    }
    return QCoreApplication::exec();
}

bool ClientApplication::SavePicture(const QString& strFile)
{
    WholeFile file(strFile);
    if (!file.open(QIODevice::WriteOnly) || !m_window->grab().save(&file, "PNG") || !file.commit()) {
        m_strError = tr("The picture %1 cannot be written: %2")
                         .arg(QDir::toNativeSeparators(strFile), file.errorString());
        CLIENT_LOG(lxl::LogError, "%s", qUtf8Printable(m_strError));
        return false;
    }
    return true;
}

bool ClientApplication::PrepareDataDirectory()
{
    if (!QDir().mkpath(m_strDataDirectory)) {
        m_strError =
            tr("The data directory %1 cannot be made.").arg(QDir::toNativeSeparators(m_strDataDirectory));
        return false;
    }
    SystemPaths::SetDataDirectory(m_strDataDirectory);
    lxl::DPrintLog::instance().SetFile(ClientPaths::LogFile(m_strDataDirectory));
    CLIENT_LOG(lxl::LogInfo, "started, data in %s", qUtf8Printable(m_strDataDirectory));
    m_settings = std::make_unique<ClientSettings>(ClientPaths::SettingsFile(m_strDataDirectory));
    return true;
}

void ClientApplication::PrepareSystem()
{
    const QString strLanguage =
        ClientTranslations::Choose(m_options.strLanguage, m_settings->Language(), QLocale::system().name());
    m_translations = std::make_unique<ClientTranslations>(
        strLanguage, ClientPaths::TranslationDirectories(m_strProgramDirectory));
    QLocale::setDefault(ClientTranslations::Locale(strLanguage, QLocale::system()));
    QSystem* pSystem = QSystem::GetInstance();
    pSystem->SetLanguage(strLanguage);
    pSystem->SetMailSettings(m_settings->Mail());
    connect(pSystem, &QSystem::SignalMailSettingsChanged, this,
            [this] { m_settings->SetMail(QSystem::GetInstance()->GetMailSettings()); });
    QCommon::SetMenuRights(UserRoles::MenuRights(m_options.role));
}

void ClientApplication::PrepareLook()
{
    QDir::setCurrent(ClientPaths::SkinParentDirectory(m_strProgramDirectory));
    LXGUI::Theme::Load(m_options.strTheme.isEmpty() ? m_settings->Theme() : m_options.strTheme);
    const LXGUI::Theme& theme = LXGUI::Theme::Current();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(theme.Palette());
    QApplication::setFont(ClientFont());
    QApplication::setWindowIcon(QIcon(QStringLiteral("./Skin/theme1/app.png")));
    QFile sheet(QStringLiteral("./Skin/theme1/application.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        qApp->setStyleSheet(theme.Resolve(QString::fromUtf8(sheet.readAll())));
    } else {
        CLIENT_LOG(lxl::LogWarning, "no style sheet in %s", qUtf8Printable(QDir::currentPath()));
    }
}

void ClientApplication::OpenSite()
{
    m_site = std::make_unique<SiteSession>();
    m_expansion = std::make_unique<TreeExpansion>(m_settings->TreeExpansion());
    const bool bOwnFile = m_options.strSiteFile.isEmpty();
    const QString strFile = bOwnFile ? ClientPaths::SiteFile(m_strDataDirectory) : m_options.strSiteFile;
    m_site->Open(strFile, bOwnFile);
    if (!m_site->ErrorText().isEmpty()) {
        m_window->AddProblem(tr("Site file %1").arg(m_site->ErrorText()));
    }
    const auto showSite = [this] { m_window->SetSite(m_site->FileName(), m_site->DeviceCount()); };
    connect(m_site.get(), &SiteSession::SignalDevicesChanged, m_window.get(), showSite);
    connect(m_site.get(), &SiteSession::SignalWriteFailed, m_window.get(), &MainWindow::AddProblem);
    m_siteTransfer = std::make_unique<SiteTransfer>(*m_site, m_window.get());
    connect(m_window.get(), &MainWindow::SignalImportSite, m_siteTransfer.get(), &SiteTransfer::Import);
    connect(m_window.get(), &MainWindow::SignalExportSite, m_siteTransfer.get(), &SiteTransfer::Export);
    showSite();
    m_hub.SetDeviceManager(&m_site->Devices());
    m_hub.SetTreeExpansion(m_expansion.get());
    m_hub.SetMainWindow(m_window.get());
}

void ClientApplication::PrepareSchemes()
{
    auto backend = std::make_unique<AlarmSchemeStoreBackend>();
    backend->SetAuthor(&SystemUser::Name);
    backend->SetHistoryDays(m_settings->HistoryDays());
    m_saving = std::make_unique<SchemeSaving>(*backend, *m_window);
    m_insight = std::make_unique<InsightPages>(m_window->Pages(), *m_site, *backend);
    m_insight->FillMenu(m_window->SchemesMenu());
    m_drafts = std::make_unique<DraftKeeper>(QGetDatabaseDirPath(), m_window->Pages());
    m_drafts->Follow(backend.get());
    connect(&m_window->Unsaved(), &UnsavedWork::SignalDiscarded, m_drafts.get(), &DraftKeeper::Forget);
    connect(
        m_drafts.get(), &DraftKeeper::SignalWriteFailed, m_window.get(), [this](const QString& strReason) {
            m_window->AddProblem(tr("Unsaved changes cannot be kept against a crash: %1.").arg(strReason));
        });
    m_store = backend.get();
    AlarmSchemeManager::Instance()->SetBackend(std::move(backend));
}

void ClientApplication::LoadPlugins()
{
    m_plugins = std::make_unique<PluginLoader>();
    const QStringList directories = ClientPaths::ModuleDirectories(m_strProgramDirectory);
    m_plugins->Load(directories, {&m_hub, &m_deviceFunctions}, m_options.role);
    m_window->SetPlugins(m_plugins.get());
}

void ClientApplication::OpenFirstPages()
{
    if (!m_options.strOpenModule.isEmpty()) {
        if (!m_insight->Open(m_options.strOpenModule)) {
            m_window->OpenPage(m_options.strOpenModule);
        }
    } else if (m_options.strPictureFile.isEmpty()) {
        const QStringList keys = m_settings->OpenPages();
        for (const QString& strKey : keys) {
            // A module that has gone since is no problem of this start.
            if (m_plugins->Find(strKey) >= 0) {
                m_window->OpenPage(strKey);
            }
        }
    }
}

void ClientApplication::OfferDrafts()
{
    m_sessionEnd = std::make_unique<SessionEnd>([this](bool bMayAsk) { return MayEndSession(bMayAsk); },
                                                [this] { RememberWindow(); });
    if (!m_options.strPictureFile.isEmpty()) {
        return; // nobody is there to answer
    }
    m_draftOffer = std::make_unique<DraftOffer>(*m_drafts, *m_store, *m_window, *m_plugins);
    // Over the window, once it is drawn, and not within the start.
    QMetaObject::invokeMethod(m_draftOffer.get(), &DraftOffer::Run, Qt::QueuedConnection);
}

void ClientApplication::OnClosing()
{
    RememberWindow();
    QSystem::GetInstance()->SetState(QSystem::StateClosing);
}

void ClientApplication::RememberWindow()
{
    QSystem* const pSystem = QSystem::GetInstance();
    const int iState = pSystem->GetState();
    m_settings->SetWindowGeometry(m_window->saveGeometry());
    pSystem->SetState(QSystem::StateClosing); // pages give their records in no other
    m_settings->SetOpenPages(RecoveredPages::Ask(m_window->Pages()));
    pSystem->SetState(iState);
    m_settings->Write();
}

bool ClientApplication::MayEndSession(bool bMayAsk)
{
    if (!m_window->Unsaved().MayEndSession(bMayAsk)) {
        return false;
    }
    m_drafts->WriteNow();
    return true;
}
