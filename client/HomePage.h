#pragma once

#include "client/PluginLoader.h"

#include <QWidget>

#include <memory>

class PluginTile;
class TilePanel;

namespace Ui {
class HomePage;
}

/// The first tab: a tile for every module, and a line for everything that went wrong at the start.
class HomePage : public QWidget
{
    Q_OBJECT

public:
    explicit HomePage(QWidget* parent = nullptr);
    ~HomePage() override;

    void AddTile(const PluginInfo& info);
    void AddProblem(const QString& strText);
    /// Says what to do about a site without devices, described in this file; an empty path says nothing.
    void ShowEmptySite(const QString& strFile);
    QStringList Problems() const { return m_problems; }
    const QList<PluginTile*>& Tiles() const;
    void FocusFirstTile();

Q_SIGNALS:
    void SignalOpen(const QString& strKey);

private:
    std::unique_ptr<Ui::HomePage> ui;
    TilePanel* m_pTiles;
    QStringList m_problems;
};
