#pragma once

#include <QEvent>
#include <QObject>

/// Counts what reaches an object.
class EventCounter : public QObject
{
    Q_OBJECT

public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }
    int count = 0;

private:
    QEvent::Type m_type;
};
