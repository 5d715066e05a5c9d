#pragma once

#include "client/ClientSettings.h"
#include "client/MainWindow.h"
#include "client/SchemeSaving.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QDir>
#include <QObject>
#include <QTest>

#include <memory>

/// What every test of the client's window around its scheme store begins with: both, over a data directory of
/// their own.
class StoreWindowTest : public QObject
{
protected:
    /// The window alone, shown and active.
    bool OpenWindow()
    {
        m_log = std::make_unique<LogCatcher>();
        m_folder = std::make_unique<StoreFolder>();
        m_settings =
            std::make_unique<ClientSettings>(QDir(m_folder->Root()).filePath(QStringLiteral("client.ini")));
        m_window = std::make_unique<MainWindow>(*m_settings, UserRole::Administrator, m_folder->Root());
        m_window->show();
        return QTest::qWaitForWindowActive(m_window.get());
    }
    void OpenStore()
    {
        m_store = std::make_unique<AlarmSchemeStoreBackend>();
        m_saving = std::make_unique<SchemeSaving>(*m_store, *m_window);
    }
    void CloseAll()
    {
        m_store.reset();
        m_saving.reset();
        m_window.reset();
        m_settings.reset();
        Notes().Clear();
        m_folder.reset();
        m_log.reset();
    }

    static LXGUI::LXMessageNotify& Notes() { return *LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance(); }
    static QString LastNote() { return Notes().GetLastText(); }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<ClientSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<AlarmSchemeStoreBackend> m_store;
    std::unique_ptr<SchemeSaving> m_saving;
};
