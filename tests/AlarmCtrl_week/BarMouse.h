#pragma once

#include "AlarmCtrl/QAlarmDayEditor.h"

#include <QCoreApplication>
#include <QMouseEvent>

/// A hand on one bar: sends the display the mouse events that the window system would send.
class BarMouse
{
public:
    explicit BarMouse(QAlarmDayEditor* bar)
        : m_display(bar->findChild<QWidget*>(QStringLiteral("wndDisplay")))
    {
    }

    QWidget* Display() const { return m_display; }

    /// The first column whose time of day is not before this second.
    int ColumnOf(int second) const
    {
        const int width = m_display->width();
        int x = 0;
        while (x < width && qint64{86399} * x / width < second) {
            ++x;
        }
        return x;
    }

    void Hover(int x) const { Send(QEvent::MouseMove, x, Qt::NoButton, Qt::NoButton); }
    void Press(int x, Qt::MouseButton button = Qt::LeftButton) const
    {
        Send(QEvent::MouseButtonPress, x, button, button);
    }
    void PressAgain(int x) const { Send(QEvent::MouseButtonDblClick, x, Qt::LeftButton, Qt::LeftButton); }
    void Drag(int x, Qt::MouseButtons held = Qt::LeftButton) const
    {
        Send(QEvent::MouseMove, x, Qt::NoButton, held);
    }
    void Release(int x, Qt::MouseButton button = Qt::LeftButton) const
    {
        Send(QEvent::MouseButtonRelease, x, button, Qt::NoButton);
    }

    /// Hovers, presses, pulls and lets go.
    void Pull(int fromX, int toX) const
    {
        Hover(fromX);
        Press(fromX);
        Drag(toX);
        Release(toX);
    }
    void Click(int x) const
    {
        Hover(x);
        Press(x);
        Release(x);
    }

private:
    void Send(QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons held) const
    {
        const QPointF local(x, 5);
        QMouseEvent event(type, local, m_display->mapToGlobal(local.toPoint()), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_display, &event);
    }

    QWidget* m_display;
};
