#include "client/PluginTile.h"

#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/Theme.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QtMath>

namespace {

constexpr int Width = 344;
constexpr int Room = 16;
constexpr int IconSize = 48;
constexpr int LineGap = 4;
constexpr int DescriptionLines = 2;

// Text in at most `DescriptionLines` lines, the last one cut with dots.
void DrawWrapped(QPainter& painter, const QRect& room, const QString& strText)
{
    QTextLayout layout(strText, painter.font());
    QTextOption option(Qt::AlignLeading);
    option.setTextDirection(strText.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    const QFontMetrics metrics(painter.font());
    int iTop = room.top();
    for (int i = 0; i < DescriptionLines; ++i) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(room.width());
        const int iEnd = line.textStart() + line.textLength();
        QString strLine = strText.mid(line.textStart(), line.textLength()).trimmed();
        if (i == DescriptionLines - 1 && iEnd < strText.size()) {
            strLine = metrics.elidedText(strText.mid(line.textStart()), Qt::ElideRight, room.width());
        }
        painter.drawText(QRect(room.left(), iTop, room.width(), metrics.height()),
                         Qt::AlignLeading | Qt::AlignVCenter, strLine);
        iTop += metrics.height();
    }
    layout.endLayout();
}

} // namespace

PluginTile::PluginTile(const PluginInfo& info, QWidget* parent)
    : QAbstractButton(parent)
    , m_strKey(info.strKey)
    , m_strDescription(info.strDescription)
    , m_icon(info.strIconPath)
    , m_hoverIcon(info.strHoverIconPath)
{
    setObjectName(QStringLiteral("tile_") + info.strKey);
    setText(info.strTitle);
    setAccessibleName(info.strTitle);
    setAccessibleDescription(info.strDescription);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

PluginTile::~PluginTile() = default;

QSize PluginTile::sizeHint() const
{
    const int iText =
        QFontMetrics(TitleFont()).height() + LineGap + DescriptionLines * fontMetrics().height();
    // A larger font needs a wider tile as well, or its description would be cut after a few words.
    const int iWidth = qMax(Width, IconSize + 3 * Room + 36 * fontMetrics().averageCharWidth());
    return {iWidth, qMax(iText, IconSize) + 2 * Room};
}

QFont PluginTile::TitleFont() const
{
    QFont title = font();
    title.setWeight(QFont::DemiBold);
    return title;
}

void PluginTile::paintEvent(QPaintEvent* /*event*/)
{
    const LXGUI::Theme& theme = LXGUI::Theme::Current();
    const bool bHover = underMouse() && isEnabled();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);
    QColor ground = theme.Colour(QStringLiteral("raised"));
    if (isDown()) {
        ground = theme.Colour(QStringLiteral("panel"));
    }
    painter.setPen(QPen(theme.Colour(bHover ? QStringLiteral("dim") : QStringLiteral("lineLight")), 1.0));
    painter.setBrush(ground);
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), LXGUI::CornerRadius, LXGUI::CornerRadius);
    if (hasFocus()) {
        painter.setPen(QPen(theme.Colour(QStringLiteral("focus")), LXGUI::FocusRingWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, LXGUI::CornerRadius, LXGUI::CornerRadius);
    }

    const QRect iconPlace = QStyle::visualRect(layoutDirection(), rect(),
                                               QRect(Room, (height() - IconSize) / 2, IconSize, IconSize));
    const QIcon& icon = bHover && !m_hoverIcon.isNull() ? m_hoverIcon : m_icon;
    icon.paint(&painter, iconPlace);

    const int iLeft = Room + IconSize + Room;
    const QFontMetrics titleMetrics(TitleFont());
    const int iText = titleMetrics.height() + LineGap + DescriptionLines * fontMetrics().height();
    const QRect textPlace = QStyle::visualRect(
        layoutDirection(), rect(), QRect(iLeft, (height() - iText) / 2, width() - iLeft - Room, iText));
    painter.setFont(TitleFont());
    painter.setPen(theme.Colour(QStringLiteral("text")));
    painter.drawText(QRect(textPlace.left(), textPlace.top(), textPlace.width(), titleMetrics.height()),
                     Qt::AlignLeading | Qt::AlignVCenter,
                     titleMetrics.elidedText(text(), Qt::ElideRight, textPlace.width()));
    painter.setFont(font());
    painter.setPen(theme.Colour(QStringLiteral("dim")));
    DrawWrapped(painter, textPlace.adjusted(0, titleMetrics.height() + LineGap, 0, 0), m_strDescription);
}

void PluginTile::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

bool PluginTile::event(QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        update(); // looks different under the pointer
    }
    return QAbstractButton::event(event);
}
