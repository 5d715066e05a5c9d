#include "client/SessionEnd.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <utility>

SessionEnd::SessionEnd(std::function<bool(bool)> mayEnd, std::function<void()> remember, QObject* parent)
    : QObject(parent)
    , m_mayEnd(std::move(mayEnd))
    , m_remember(std::move(remember))
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Otherwise the toolkit closes all windows to find out whether they would, and a session end that another
    // program cancels leaves this one without its window.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
#endif
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) { OnCommitData(manager); }, Qt::DirectConnection);
    connect(
        qGuiApp, &QGuiApplication::saveStateRequest, this, [this] { m_remember(); }, Qt::DirectConnection);
}

SessionEnd::~SessionEnd() = default;
