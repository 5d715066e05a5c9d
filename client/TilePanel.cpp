#include "client/TilePanel.h"

#include "client/PluginTile.h"

#include <QKeyEvent>
#include <QStyle>

TilePanel::TilePanel(QWidget* parent)
    : QWidget(parent)
{
}

TilePanel::~TilePanel() = default;

void TilePanel::AddTile(PluginTile* pTile)
{
    pTile->setParent(this);
    pTile->installEventFilter(this);
    m_tiles.append(pTile);
    pTile->show();
    Arrange();
}

void TilePanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange();
}

void TilePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        Arrange();
    }
}

bool TilePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int iTile = m_tiles.indexOf(static_cast<PluginTile*>(watched));
        int iKey = static_cast<QKeyEvent*>(event)->key();
        if (layoutDirection() == Qt::RightToLeft && (iKey == Qt::Key_Left || iKey == Qt::Key_Right)) {
            iKey = iKey == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
        }
        const int iNext = iTile < 0 ? iTile : m_arrangement.Neighbour(iTile, iKey);
        if (iNext != iTile) {
            m_tiles.at(iNext)->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TilePanel::Arrange()
{
    QSize size;
    for (const PluginTile* pTile : qAsConst(m_tiles)) {
        size = size.expandedTo(pTile->sizeHint());
    }
    m_arrangement = TileArrangement::Of(m_tiles.size(), width(), size);
    for (int i = 0; i < m_tiles.size(); ++i) {
        m_tiles.at(i)->setGeometry(QStyle::visualRect(layoutDirection(), rect(), m_arrangement.tiles.at(i)));
    }
    setMinimumHeight(m_arrangement.iHeight);
}
