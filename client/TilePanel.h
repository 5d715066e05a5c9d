#pragma once

#include "client/TileArrangement.h"

#include <QList>
#include <QWidget>

class PluginTile;

/// The tiles of the home page, arranged to the room there is. Arrow keys lead from tile to tile.
class TilePanel : public QWidget
{
    Q_OBJECT

public:
    explicit TilePanel(QWidget* parent = nullptr);
    ~TilePanel() override;

    void AddTile(PluginTile* pTile); ///< becomes a child of the panel
    const QList<PluginTile*>& Tiles() const { return m_tiles; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Arrange();

    QList<PluginTile*> m_tiles;
    TileArrangement m_arrangement;
};
