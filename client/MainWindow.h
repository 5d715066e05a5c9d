#pragma once

#include "client/UserRole.h"

#include <QMainWindow>
#include <QPointer>
#include <QStringList>

#include <memory>

class AlarmSchemeStoreBackend;
class ClientSettings;
class EditActions;
class ElidedLabel;
class HomePage;
class LoadAnewOffer;
class PageStatus;
class PageTabs;
class PluginLoader;
class QActionGroup;
class QLabel;
class QMenu;
class SaveIndicator;
class UnsavedWork;
struct SchemeStoreOutcome;

namespace Ui {
class MainWindow;
}

/// The client's window: the home page and the modules' pages in tabs, the menu, the status bar. It is the
/// main window object to which modules send their messages (see QCommon::HostMessage).
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The settings must outlive the window.
    MainWindow(ClientSettings& settings, UserRole role, const QString& strDataDirectory,
               QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Shows a tile for every module; the loader must outlive the window's pages, see DestroyPages().
    void SetPlugins(PluginLoader* pPlugins);
    /// Opens a module's page, or brings it to the front. False (and a note) when that is not possible.
    bool OpenPage(const QString& strKey);
    /// Takes the tab away. A page without unsaved edits keeps everything it shows until the window goes;
    /// about unsaved edits the operator is asked first, and a page whose edits are discarded goes with them.
    void ClosePage(int iTab);
    void DestroyPages();                        ///< after that no module has anything left in this window
    QList<QPointer<QWidget>> OpenPages() const; ///< in the order of the tabs
    QString KeyOfPage(QWidget* pPage) const;    ///< empty for the home page and for strangers
    PageTabs& Pages() const { return *m_pPages; }
    QMenu& SchemesMenu() const; ///< for what looks at the schemes as a whole
    UnsavedWork& Unsaved() const { return *m_pUnsavedWork; }

    /// A problem of the start: a line on the home page and a note.
    void AddProblem(const QString& strText);
    void SetSite(const QString& strFile, int iDevices);
    void ShowSaveOutcome(const SchemeStoreOutcome& outcome);
    void FollowSaves(AlarmSchemeStoreBackend* pStore); ///< shows how far they are, and waits for them
    void ShowUnsaved(bool bUnsaved);                   ///< the last save failed, or has succeeded
    /// Destroys every page that can save, with its edits, and opens those again that were open. About unsaved
    /// edits the operator is asked first; false when the pages stay as they are for now.
    bool ReloadPages();
    /// Offers that to the operator, for a reason; nothing without pages that would be loaded anew.
    void OfferReload(const QString& strReason);
    void WithdrawReload();   ///< what the pages show is what is stored, or the operator has decided
    void OpenMailSettings(); ///< returns when the dialog is closed

    HomePage* Home() const { return m_pHome; }
    QString StatusText() const;

Q_SIGNALS:
    void SignalImportSite();
    void SignalExportSite();
    void SignalClosing(); ///< the window is about to close; its pages still stand

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildStatusBar();
    QActionGroup* BuildChoice(const QList<QAction*>& actions, const QStringList& values,
                              const QString& strCurrent);
    void OnTabChanged();
    void UpdateTitle();
    void OnLanguage(QAction* pAction);
    void OnTheme(QAction* pAction);
    void OnSave();
    void OnAbout();
    void OnDataDirectory();
    void RefreshStatus();

    std::unique_ptr<Ui::MainWindow> ui;
    ClientSettings& m_settings;
    UserRole m_role;
    QString m_strDataDirectory;
    PluginLoader* m_pPlugins = nullptr;
    HomePage* m_pHome;
    PageTabs* m_pPages;
    UnsavedWork* m_pUnsavedWork;
    EditActions* m_pEditActions;
    PageStatus* m_pStatus;
    ElidedLabel* m_pEdited;
    QLabel* m_pEnabled;
    LoadAnewOffer* m_pLoadAnew;
    QLabel* m_pSite;
    QLabel* m_pUnsaved;
    SaveIndicator* m_pSaving;
    QStringList
        m_failures; ///< of loading and saving, told since the last load, save or repair that succeeded
};
