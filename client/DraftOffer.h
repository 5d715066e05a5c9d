#pragma once

#include <QObject>
#include <QSet>

#include <memory>

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
    DraftOffer(DraftKeeper& keeper, MainWindow& window, const PluginLoader& plugins,
               QObject* parent = nullptr);
    ~DraftOffer() override;

    /// Asks about one draft after the other. Runs event loops: the object may be gone afterwards.
    void Run();

private:
    void Offer(std::unique_ptr<DraftFile> file);
    void Restore(std::unique_ptr<DraftFile> file, const Draft& draft);
    void SetAside(const DraftFile& file, const QString& strReason);
    QString Question(const Draft& draft) const;

    DraftKeeper& m_keeper;
    MainWindow& m_window;
    const PluginLoader& m_plugins;
    QSet<QString> m_restored; ///< keys of modules
};
