#pragma once

#include "client/UserRole.h"
#include "platform/LXPluginAPI/IManager.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QJsonObject;
class QPluginLoader;

namespace LXPluginAPI {
class IAbstractWidget;
class IClientUIPluginAPI;
} // namespace LXPluginAPI

/// A module that did not do what the client needs of it.
struct PluginProblem
{
    QString strName;   ///< file name of the module
    QString strReason; ///< translated
};

/// What the home page says of one module.
struct PluginInfo
{
    QString strFile;
    QString strKey;
    QString strTitle;
    QString strDescription;
    QString strIconPath;
    QString strHoverIconPath;
    QString strTabTitle;
};

/// Loads modules from files, keeps them through their life and takes them down again.
///
/// Life of a module: its metadata is read, the platform version in it compared, the file loaded, the root
/// object cast to IClientUIPluginAPI, the managers handed over one by one, Load, Initialize; when all are
/// there, Start, the UI object, the page descriptor. At the end: the page destroyed, Stop, Uninitialize, the
/// root object deleted. The library itself stays mapped, since meta types and static texts live in it. A
/// module that fails at any point is taken down as far as it came up and reported; the others run on. Nothing
/// that a module throws gets out. User-interface thread only.
class PluginLoader
{
    Q_DECLARE_TR_FUNCTIONS(PluginLoader)

public:
    PluginLoader();
    ~PluginLoader();
    PluginLoader(const PluginLoader&) = delete;
    PluginLoader& operator=(const PluginLoader&) = delete;

    /// Loads every library of the directories, in the order of their names. The managers must outlive the
    /// modules. May be called once.
    void Load(const QStringList& directories, const LXPluginAPI::ManagerList& managers, UserRole role);
    /// Destroys the pages and takes all modules down, last one first. Harmless when repeated.
    void Unload();

    int Count() const { return static_cast<int>(m_plugins.size()); }
    PluginInfo Info(int iPlugin) const;
    int Find(const QString& strKey) const; ///< by module key; -1 when there is none
    /// The module's page, made on first use; null (and a new problem) when the module answers none. The
    /// caller puts it into its widget tree.
    QWidget* Page(int iPlugin);
    const std::vector<PluginProblem>& Problems() const { return m_problems; }

private:
    struct Plugin;
    using Plugins = std::vector<std::unique_ptr<Plugin>>;
    using Step = std::function<QString()>;
    /// The one of the others that has this module's key, or is the same module; null when there is none.
    static const Plugin* Twin(const Plugin& plugin, const Plugins& others);
    QString Guarded(const Step& step) const;
    void Report(const QString& strName, const QString& strReason);
    /// Why a module with this metadata must not be loaded: it was built for another platform. Empty when it
    /// may; a module that states no platform may.
    static QString WhyUnfit(const QJsonObject& metaData);
    QString LoadRoot(Plugin& plugin) const;
    QString BringUp(Plugin& plugin, const LXPluginAPI::ManagerList& managers) const;
    QString BringUpUi(Plugin& plugin) const;
    void TakeDown(Plugin& plugin) const;

    Plugins m_plugins;
    std::vector<PluginProblem> m_problems;
};
