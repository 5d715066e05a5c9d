#include "client/PluginLoader.h"

#include "client/ClientLog.h"
#include "client/ModulePlatform.h"
#include "platform/LXPluginAPI/IAbstractUI.h"
#include "platform/LXPluginAPI/IAbstractWidget.h"
#include "platform/LXPluginAPI/IClientUIPluginAPI.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>
#include <exception>

struct PluginLoader::Plugin
{
    QString strFile;
    QString strKey;
    std::unique_ptr<QPluginLoader> library;
    QPointer<QObject> root;
    LXPluginAPI::IClientUIPluginAPI* pApi = nullptr;
    LXPluginAPI::IAbstractWidget* pDescriptor = nullptr;
    PluginInfo info;
    QPointer<QWidget> page;
    bool bInitialized = false;
};

PluginLoader::PluginLoader() = default;

PluginLoader::~PluginLoader()
{
    Unload();
}

void PluginLoader::Load(const QStringList& directories, const LXPluginAPI::ManagerList& managers,
                        UserRole role)
{
    Plugins found;
    for (const QString& strDirectory : directories) {
        if (strDirectory.isEmpty()) {
            continue; // would be read as the working directory
        }
        const QFileInfoList files =
            QDir(strDirectory).entryInfoList(QDir::Files, QDir::Name | QDir::LocaleAware);
        for (const QFileInfo& file : files) {
            if (!QLibrary::isLibrary(file.fileName())) {
                continue;
            }
            auto plugin = std::make_unique<Plugin>();
            plugin->strFile = file.absoluteFilePath();
            bool bForRole = true;
            QString strReason = Guarded([this, &plugin] { return LoadRoot(*plugin); });
            const Plugin* const pTwin = strReason.isEmpty() ? Twin(*plugin, found) : nullptr;
            if (pTwin != nullptr && pTwin->root == plugin->root) {
                // The same library under a second name has the same root object, which lives on.
                CLIENT_LOG(lxl::LogInfo, "module file %s is %s under another name",
                           qUtf8Printable(plugin->strFile), qUtf8Printable(pTwin->strFile));
                continue;
            }
            if (pTwin != nullptr) {
                strReason = tr("the module key \"%1\" is taken by %2")
                                .arg(plugin->strKey, QFileInfo(pTwin->strFile).fileName());
            }
            if (strReason.isEmpty()) {
                strReason = Guarded([&plugin, &bForRole, role] {
                    bForRole = UserRoles::MayUseModule(role, plugin->pApi->GetRightName());
                    return QString();
                });
            }
            if (!bForRole) {
                CLIENT_LOG(lxl::LogInfo, "module %s is not for this role", qUtf8Printable(plugin->strKey));
                TakeDown(*plugin);
                continue;
            }
            if (strReason.isEmpty()) {
                strReason = Guarded([this, &plugin, &managers] { return BringUp(*plugin, managers); });
            }
            if (!strReason.isEmpty()) {
                TakeDown(*plugin);
                Report(file.fileName(), strReason);
                continue;
            }
            found.push_back(std::move(plugin));
        }
    }
    for (auto& plugin : found) {
        const QString strReason = Guarded([this, &plugin] { return BringUpUi(*plugin); });
        if (strReason.isEmpty()) {
            CLIENT_LOG(lxl::LogInfo, "module %s loaded", qUtf8Printable(plugin->strKey));
            m_plugins.push_back(std::move(plugin));
        } else {
            TakeDown(*plugin);
            Report(QFileInfo(plugin->strFile).fileName(), strReason);
        }
    }
}

const PluginLoader::Plugin* PluginLoader::Twin(const Plugin& plugin, const Plugins& others)
{
    const auto twin = std::find_if(others.cbegin(), others.cend(), [&plugin](const auto& other) {
        return other->strKey == plugin.strKey || other->root == plugin.root;
    });
    return twin == others.cend() ? nullptr : twin->get();
}

void PluginLoader::Unload()
{
    while (!m_plugins.empty()) {
        TakeDown(*m_plugins.back());
        m_plugins.pop_back();
    }
}

PluginInfo PluginLoader::Info(int iPlugin) const
{
    return m_plugins.at(static_cast<size_t>(iPlugin))->info;
}

int PluginLoader::Find(const QString& strKey) const
{
    for (size_t i = 0; i < m_plugins.size(); ++i) {
        if (m_plugins[i]->strKey == strKey) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

QWidget* PluginLoader::Page(int iPlugin)
{
    Plugin& plugin = *m_plugins.at(static_cast<size_t>(iPlugin));
    QWidget* pPage = nullptr;
    QString strReason = Guarded([&plugin, &pPage] {
        pPage = plugin.pDescriptor->GetWidget();
        return QString();
    });
    if (strReason.isEmpty() && pPage == nullptr) {
        strReason = tr("the module gives no page");
    }
    if (!strReason.isEmpty()) {
        Report(QFileInfo(plugin.strFile).fileName(), strReason);
        return nullptr;
    }
    plugin.page = pPage;
    return pPage;
}

QString PluginLoader::Guarded(const Step& step) const
{
    // Modules are foreign code: what they throw must end here, not in the event loop.
    try {
        return step();
    } catch (const std::exception& error) {
        return tr("the module failed: %1").arg(QString::fromLocal8Bit(error.what()));
    } catch (...) {
        return tr("the module failed");
    }
}

void PluginLoader::Report(const QString& strName, const QString& strReason)
{
    CLIENT_LOG(lxl::LogError, "module %s: %s", qUtf8Printable(strName), qUtf8Printable(strReason));
    m_problems.push_back({strName, strReason});
}

QString PluginLoader::LoadRoot(Plugin& plugin) const
{
    plugin.library = std::make_unique<QPluginLoader>(plugin.strFile);
    plugin.library->setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    // Reading the metadata runs no code of the file.
    const QJsonObject metaData = plugin.library->metaData();
    if (metaData.value(QLatin1String("className")).toString().isEmpty()) {
        return tr("the file is no module (%1)").arg(plugin.library->errorString());
    }
    QString strUnfit = WhyUnfit(metaData);
    if (!strUnfit.isEmpty()) {
        return strUnfit;
    }
    if (!plugin.library->load()) {
        return tr("the file cannot be loaded (%1)").arg(plugin.library->errorString());
    }
    plugin.root = plugin.library->instance();
    if (plugin.root.isNull()) {
        return tr("the module gives no root object");
    }
    plugin.pApi = qobject_cast<LXPluginAPI::IClientUIPluginAPI*>(plugin.root.data());
    if (plugin.pApi == nullptr) {
        return tr("the module does not offer the interface %1")
            .arg(QString::fromLatin1(qobject_interface_iid<LXPluginAPI::IClientUIPluginAPI*>()));
    }
    plugin.strKey = QString::fromStdString(plugin.pApi->GetModuleKey());
    if (plugin.strKey.isEmpty()) {
        return tr("the module has no key");
    }
    return {};
}

QString PluginLoader::WhyUnfit(const QJsonObject& metaData)
{
    const std::optional<QString> strStated = ModulePlatform::Stated(metaData);
    if (!strStated) {
        return {};
    }
    const QString strOwn = ModulePlatform::ToText(ModulePlatform::Own());
    switch (ModulePlatform::Compare(*strStated, ModulePlatform::Own())) {
    case ModulePlatform::Fit::Fits:
        break;
    case ModulePlatform::Fit::Unreadable:
        return tr("the module states no readable platform version");
    case ModulePlatform::Fit::OtherMajor:
        return tr("the module is built for version %1 of the platform, this client has %2; "
                  "it needs a build for this version")
            .arg(*strStated, strOwn);
    case ModulePlatform::Fit::NewerMinor:
        return tr("the module needs version %1 of the platform, this client has %2; the client is too old")
            .arg(*strStated, strOwn);
    }
    return {};
}

QString PluginLoader::BringUp(Plugin& plugin, const LXPluginAPI::ManagerList& managers) const
{
    for (LXPluginAPI::IManager* pManager : managers) {
        if (!plugin.pApi->AddManager(pManager)) {
            CLIENT_LOG(lxl::LogWarning, "module %s refused a manager", qUtf8Printable(plugin.strKey));
        }
    }
    if (!plugin.pApi->Load()) {
        return tr("the module refuses to be loaded");
    }
    plugin.bInitialized = true;
    plugin.pApi->Initialize();
    return {};
}

QString PluginLoader::BringUpUi(Plugin& plugin) const
{
    if (!plugin.pApi->Start()) {
        return tr("the module refuses to start");
    }
    LXPluginAPI::IAbstractUI* pUi = plugin.pApi->GetUIObject();
    if (pUi == nullptr) {
        return tr("the module gives no user interface");
    }
    plugin.pDescriptor = pUi->GetWidgetDescriptor();
    if (plugin.pDescriptor == nullptr) {
        return tr("the module describes no page");
    }
    PluginInfo& info = plugin.info;
    info.strFile = plugin.strFile;
    info.strKey = plugin.strKey;
    info.strTitle = plugin.pDescriptor->GetTitle();
    info.strDescription = plugin.pDescriptor->GetDescription();
    info.strIconPath = plugin.pDescriptor->GetIconPath();
    info.strHoverIconPath = plugin.pDescriptor->GetHoverIconPath();
    info.strTabTitle = plugin.pDescriptor->GetTabTitle();
    if (info.strTitle.isEmpty()) {
        info.strTitle = info.strKey;
    }
    if (info.strTabTitle.isEmpty()) {
        info.strTabTitle = info.strTitle;
    }
    return {};
}

void PluginLoader::TakeDown(Plugin& plugin) const
{
    // The page goes first: it may still ask its module while it is being destroyed.
    const auto destroyPage = [&plugin] {
        delete plugin.page.data();
        return QString();
    };
    const auto stop = [&plugin] {
        if (plugin.bInitialized && plugin.pApi != nullptr) {
            plugin.pApi->Stop();
        }
        return QString();
    };
    const auto uninitialize = [&plugin] {
        if (plugin.bInitialized && plugin.pApi != nullptr) {
            plugin.pApi->Uninitialize();
        }
        return QString();
    };
    const auto deleteRoot = [&plugin] {
        delete plugin.root.data();
        return QString();
    };
    for (const Step& step : {Step(destroyPage), Step(stop), Step(uninitialize), Step(deleteRoot)}) {
        const QString strReason = Guarded(step);
        if (!strReason.isEmpty()) {
            CLIENT_LOG(lxl::LogError, "module %s while it ended: %s", qUtf8Printable(plugin.strFile),
                       qUtf8Printable(strReason));
        }
    }
    plugin.bInitialized = false;
    plugin.pApi = nullptr;
    plugin.pDescriptor = nullptr;
}
