#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>

#include <memory>
#include <vector>

class AlarmSchemeStoreBackend;
class DraftFile;
class DraftKeeper;
class MainWindow;
class PluginLoader;
struct Draft;

/// Offers the drafts that an earlier run has left behind: to restore, to discard, or later, which is at the
/// next start. One for each module at most is restored; a draft that cannot be used is set aside, and the
/// operator told. User-interface thread only.
class DraftOffer : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object's use of them.
    DraftOffer(DraftKeeper& keeper, AlarmSchemeStoreBackend& store, MainWindow& window,
               const PluginLoader& plugins, QObject* parent = nullptr);
    ~DraftOffer() override;

    /// Asks about one draft after the other, each when no question about a damaged database is open. Runs
    /// event loops: the object may be gone afterwards.
    void Run();

private:
    void GoOn();
    void Offer(std::unique_ptr<DraftFile> file);
    void Restore(std::unique_ptr<DraftFile> file, const Draft& draft);
    void SetAside(const DraftFile& file, const QString& strReason);
    QString Question(const Draft& draft) const;

    DraftKeeper& m_keeper;
    QPointer<AlarmSchemeStoreBackend> m_store;
    MainWindow& m_window;
    const PluginLoader& m_plugins;
    std::vector<std::unique_ptr<DraftFile>> m_files; ///< still to be asked about, the last one first
    bool m_bAsking = false;
    QSet<QString> m_restored; ///< keys of modules
};
