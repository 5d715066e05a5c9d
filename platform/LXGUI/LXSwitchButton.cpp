#include "platform/LXGUI/LXSwitchButton.h"

#include "platform/LXGUI/LXSwitchButtonAccessible.h"
#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/Theme.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QVariantAnimation>

namespace LXGUI {
namespace {

constexpr int SwitchWidth = 36;
constexpr int SwitchHeight = 18;
constexpr qreal KnobGap = 3.0; // between the knob and the edge of its track

QColor Mix(const QColor& from, const QColor& to, qreal share)
{
    const auto part = [share](qreal a, qreal b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

} // namespace

LXSwitchButton::LXSwitchButton(QWidget* parent)
    : QAbstractButton(parent)
    , m_pSlide(new QVariantAnimation(this))
{
    InstallSwitchAccessibility();
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    m_pSlide->setDuration(SwitchSlideTime);
    m_pSlide->setEasingCurve(QEasingCurve::InOutQuad);
    connect(m_pSlide, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_knob = value.toReal();
        update();
    });
}

LXSwitchButton::~LXSwitchButton() = default;

bool LXSwitchButton::isToggled() const
{
    return isChecked();
}

void LXSwitchButton::setToggle(bool bOn)
{
    {
        const QSignalBlocker blocker(this);
        setChecked(bOn);
    }
    ShowStateAtOnce();
}

QSize LXSwitchButton::sizeHint() const
{
    return {SwitchWidth, SwitchHeight};
}

QSize LXSwitchButton::minimumSizeHint() const
{
    return sizeHint();
}

void LXSwitchButton::nextCheckState()
{
    // QAbstractButton touches the button again after toggled(), but a slot may run an event loop in which the
    // button dies. So the state changes in silence first, and the signal is the last thing that happens here.
    m_bByPerson = true;
    {
        const QSignalBlocker blocker(this);
        QAbstractButton::nextCheckState();
    }
    m_bByPerson = false;
    MoveKnob(isChecked());
    Q_EMIT toggled(isChecked());
}

void LXSwitchButton::checkStateSet()
{
    if (!m_bByPerson) {
        ShowStateAtOnce();
    }
}

bool LXSwitchButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}

void LXSwitchButton::MoveKnob(bool bOn)
{
    const qreal target = bOn ? 1.0 : 0.0;
    if (qFuzzyCompare(m_knob + 1.0, target + 1.0) || !IsMotionWelcome(this)) {
        ShowStateAtOnce();
        return;
    }
    m_pSlide->stop();
    m_pSlide->setStartValue(m_knob);
    m_pSlide->setEndValue(target);
    m_pSlide->start();
}

void LXSwitchButton::ShowStateAtOnce()
{
    m_pSlide->stop();
    m_knob = isChecked() ? 1.0 : 0.0;
    update();
}

void LXSwitchButton::paintEvent(QPaintEvent* /*event*/)
{
    const Theme& theme = Theme::Current();
    const QColor accent = underMouse() && isEnabled() ? theme.Colour(QStringLiteral("accentHover"))
                                                      : theme.Colour(QStringLiteral("accent"));
    QColor track = Mix(theme.Colour(QStringLiteral("input")), accent, m_knob);
    QColor border = Mix(theme.Colour(QStringLiteral("dim")), accent, m_knob);
    QColor knob = Mix(theme.Colour(QStringLiteral("dim")), theme.Colour(QStringLiteral("onAccent")), m_knob);
    if (underMouse() && isEnabled()) {
        border = Mix(theme.Colour(QStringLiteral("text")), accent, m_knob);
        knob = Mix(theme.Colour(QStringLiteral("text")), theme.Colour(QStringLiteral("onAccent")), m_knob);
    }
    if (isDown()) {
        track = Mix(track, theme.Colour(QStringLiteral("accentPressed")), 0.5);
    }
    if (!isEnabled()) {
        // Still tells on from off by the knob's place, but nothing of it shines.
        track = theme.Colour(QStringLiteral("raised"));
        border = theme.Colour(QStringLiteral("lineLight"));
        knob = theme.Colour(QStringLiteral("disabled"));
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole((width() - SwitchWidth) / 2.0, (height() - SwitchHeight) / 2.0, SwitchWidth,
                       SwitchHeight);
    const QRectF body = whole.adjusted(FocusRingWidth, FocusRingWidth, -FocusRingWidth, -FocusRingWidth);
    const QRectF line = body.adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(border, 1.0));
    painter.setBrush(track);
    painter.drawRoundedRect(line, line.height() / 2, line.height() / 2);

    const qreal diameter = body.height() - 2 * KnobGap;
    const qreal travel = body.width() - 2 * KnobGap - diameter;
    painter.setPen(Qt::NoPen);
    painter.setBrush(knob);
    painter.drawEllipse(
        QRectF(body.left() + KnobGap + travel * m_knob, body.top() + KnobGap, diameter, diameter));

    if (hasFocus()) {
        const qreal half = FocusRingWidth / 2.0;
        const QRectF ring = whole.adjusted(half, half, -half, -half);
        painter.setPen(QPen(theme.Colour(QStringLiteral("focus")), FocusRingWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
}

void LXSwitchButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            click();
        }
        event->accept();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

bool LXSwitchButton::event(QEvent* event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        update(); // looks different under the pointer
    }
    return QAbstractButton::event(event);
}

} // namespace LXGUI
