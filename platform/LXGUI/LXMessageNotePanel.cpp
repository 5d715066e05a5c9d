#include "platform/LXGUI/LXMessageNotePanel.h"

#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/SkinImages.h"
#include "platform/LXGUI/Theme.h"

#include <QAccessible>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QTimer>

namespace LXGUI {
namespace {

constexpr int NoteTime = 6000; // milliseconds
constexpr int IconSize = 16;
constexpr int LongestWord = 12;  // characters that fit into any note
constexpr int LongestText = 400; // characters on screen; the whole text stays in the note's tool tip

struct LevelLook
{
    const char* szColour;
    const char* szImage;
    QStyle::StandardPixmap substitute;
};

LevelLook LookOf(LXMessageNotify::Level level)
{
    switch (level) {
    case LXMessageNotify::Success:
        return {"accent", "notify/success.png", QStyle::SP_DialogApplyButton};
    case LXMessageNotify::Warning:
        return {"warning", "notify/warning.png", QStyle::SP_MessageBoxWarning};
    case LXMessageNotify::Error:
        return {"danger", "notify/error.png", QStyle::SP_MessageBoxCritical};
    case LXMessageNotify::Information:
        break;
    }
    return {"focus", "notify/information.png", QStyle::SP_MessageBoxInformation};
}

QString Shortened(const QString& strText)
{
    return strText.size() <= LongestText ? strText : strText.left(LongestText) + QChar(0x2026);
}

/// A label breaks lines at blanks only and cuts off a word that is longer than the line, a file's name say:
/// long words may break behind their signs, and where they have none.
QString Breakable(const QString& strText)
{
    const QChar breakHere(0x200B); // takes no room
    const QString strSigns = QStringLiteral("-_./\\");
    QStringList words = strText.split(QLatin1Char(' '));
    for (QString& strWord : words) {
        if (strWord.size() <= LongestWord) {
            continue;
        }
        QString strBreakable;
        int iUnbroken = 0;
        for (const QChar sign : qAsConst(strWord)) {
            strBreakable += sign;
            ++iUnbroken;
            if (strSigns.contains(sign) || (iUnbroken >= LongestWord && !sign.isHighSurrogate())) {
                strBreakable += breakHere;
                iUnbroken = 0;
            }
        }
        strWord = strBreakable;
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

LXMessageNotePanel::LXMessageNotePanel(const QString& strText, LXMessageNotify::Level level, QWidget* pAnchor)
    : QFrame(pAnchor)
    , m_strText(strText)
    , m_level(level)
    , m_pTime(new QTimer(this))
{
    setObjectName(QStringLiteral("notePanel"));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(strText);
    auto* pIcon = new QLabel(this);
    const LevelLook look = LookOf(level);
    pIcon->setFixedSize(IconSize, IconSize);
    pIcon->setPixmap(SkinImage(pAnchor, QLatin1String(look.szImage), look.substitute, IconSize));
    auto* pText = new QLabel(Breakable(Shortened(strText)), this);
    pText->setTextFormat(Qt::PlainText);
    pText->setAccessibleName(strText);
    pText->setWordWrap(true);
    pText->setMinimumHeight(IconSize);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(16, 12, 12, 12);
    pLayout->setSpacing(8);
    pLayout->addWidget(pIcon, 0, Qt::AlignTop);
    pLayout->addWidget(pText, 1);
    setToolTip(strText.size() > LongestText ? strText.left(LongestText * 4) : QString());
    m_pTime->setSingleShot(true);
    m_pTime->setInterval(NoteTime);
    connect(m_pTime, &QTimer::timeout, this, &LXMessageNotePanel::Leave);
}

LXMessageNotePanel::~LXMessageNotePanel() = default;

void LXMessageNotePanel::FitWidth(int iWidth)
{
    setFixedWidth(iWidth);
    setFixedHeight(layout()->totalHeightForWidth(iWidth));
}

void LXMessageNotePanel::StartTime()
{
    if (m_level != LXMessageNotify::Error && !m_bLeaving) {
        m_pTime->start();
    }
}

QPropertyAnimation* LXMessageNotePanel::Fade(qreal from, qreal to)
{
    auto* pEffect = new QGraphicsOpacityEffect(this);
    pEffect->setOpacity(from);
    setGraphicsEffect(pEffect);
    auto* pFade = new QPropertyAnimation(pEffect, "opacity", pEffect);
    pFade->setDuration(NoteFadeTime);
    pFade->setStartValue(from);
    pFade->setEndValue(to);
    pFade->start();
    return pFade;
}

void LXMessageNotePanel::Leave()
{
    if (m_bLeaving) {
        return;
    }
    m_bLeaving = true;
    m_pTime->stop();
    Q_EMIT SignalLeaving();
    if (!IsMotionWelcome(this)) {
        hide();
        deleteLater();
        return;
    }
    connect(Fade(1.0, 0.0), &QPropertyAnimation::finished, this, [this] {
        hide();
        deleteLater();
    });
}

void LXMessageNotePanel::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(theme.Colour(QStringLiteral("lineLight")));
    painter.setBrush(theme.Colour(QStringLiteral("raised")));
    painter.drawRoundedRect(body, CornerRadius, CornerRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.Colour(QLatin1String(LookOf(m_level).szColour)));
    painter.drawRoundedRect(QRectF(4, 8, 3, height() - 16), 1.5, 1.5);
}

void LXMessageNotePanel::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    Leave();
}

void LXMessageNotePanel::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    if (event->spontaneous() || m_bLeaving) {
        return;
    }
    StartTime();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (IsMotionWelcome(this)) {
        // The end may arrive after the note was clicked away: the fade-out must keep its effect then.
        const auto onShown = [this] {
            if (!m_bLeaving) {
                setGraphicsEffect(nullptr);
            }
        };
        connect(Fade(0.0, 1.0), &QPropertyAnimation::finished, this, onShown, Qt::QueuedConnection);
    }
}

bool LXMessageNotePanel::event(QEvent* event)
{
    const bool bHandled = QFrame::event(event);
    if (event->type() == QEvent::Enter) {
        m_pTime->stop(); // whoever points at it is still reading
    } else if (event->type() == QEvent::Leave) {
        StartTime();
    }
    return bHandled;
}

} // namespace LXGUI
