#pragma once

#include "AlarmCtrl/QAlarmDayEditor.h"
#include "tests/AlarmCtrl_week/BarMouse.h"
#include "tests/AlarmCtrl_week/DayTexts.h"

#include <QImage>
#include <QLayout>

/// A bar whose display is 480 pixels wide, an hour every 20, and whose drags are committed like in a week
/// plan.
class Bar : public QAlarmDayEditor
{
    Q_OBJECT

public:
    static constexpr QRgb Green = 0xFF3AAA24;
    static constexpr QRgb Grid = 0xFFDDDDDD;

    explicit Bar(QWidget* parent = nullptr)
        : QAlarmDayEditor(parent)
        , mouse(this)
    {
        mouse.Display()->setFixedWidth(480);
        resize(sizeHint().width(), 24);
        layout()->activate();
    }
    void CommitDrags()
    {
        connect(this, &QAlarmDayEditor::SignalEditReady, this, &QAlarmDayEditor::ApplyEdit);
    }
    /// The display on a white ground.
    QImage Picture() const
    {
        QImage image(mouse.Display()->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        mouse.Display()->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }
    QRgb PixelAt(int second) const { return Picture().pixel(second * 480 / 86400 + 2, 3); }

    BarMouse mouse;
};

/// What a bar holds, as a text.
inline QString Regions(const QAlarmDayEditor& bar)
{
    AlarmDefenceTime_t regions;
    bar.GetDefenceTime(regions);
    return DayTexts::Text(regions);
}
