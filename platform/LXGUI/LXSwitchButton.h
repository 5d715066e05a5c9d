#pragma once

#include "lxgui_export.h"

#include <QAbstractButton>

class QVariantAnimation;

namespace LXGUI {

/// An on/off switch, painted, operable by mouse and keyboard (Space, Return). A person's click or key emits
/// toggled(bool); setToggle() shows a state and stays silent, so that showing a record asks nobody anything.
class LXGUI_EXPORT LXSwitchButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LXSwitchButton(QWidget* parent = nullptr);
    ~LXSwitchButton() override;

    bool isToggled() const;
    void setToggle(bool bOn);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void nextCheckState() override;
    void checkStateSet() override;
    bool hitButton(const QPoint& pos) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MoveKnob(bool bOn);
    void ShowStateAtOnce();

    QVariantAnimation* m_pSlide;
    qreal m_knob = 0.0;       ///< 0 off to 1 on
    bool m_bByPerson = false; ///< a click or key is changing the state: the knob slides
};

} // namespace LXGUI
