#include "platform/SystemLibrary/QCommon.h"

#include "platform/SystemLibrary/EventTypes.h"

namespace {

uint32_t s_iRights = QCommon::RightOperator;

} // namespace

LXHostMessageEvent::LXHostMessageEvent(int iMessage, quintptr wParam, quintptr lParam)
    : QEvent(EventType())
    , m_iMessage(iMessage)
    , m_wParam(wParam)
    , m_lParam(lParam)
{
    setAccepted(false);
}

LXHostMessageEvent::~LXHostMessageEvent() = default;

QEvent::Type LXHostMessageEvent::EventType()
{
    static const int iType = QEvent::registerEventType();
    return static_cast<QEvent::Type>(iType);
}

QString QCommon::GetAlarmNameByType(int iAlarmType)
{
    if (iAlarmType < 0)
        return {};
    const char* const szName = EventTypes::Name(iAlarmType);
    return szName != nullptr ? tr(szName) : tr("Event %1").arg(iAlarmType);
}

bool QCommon::CheckMenuRight(uint32_t iRight)
{
    return (s_iRights & iRight) == iRight;
}

void QCommon::SetMenuRights(uint32_t iRights)
{
    s_iRights = iRights;
}

bool QCommon::QtSendMessage(QObject* pReceiver, int iMessage, quintptr wParam, quintptr lParam)
{
    if (pReceiver == nullptr)
        return false;
    LXHostMessageEvent event(iMessage, wParam, lParam);
    QCoreApplication::sendEvent(pReceiver, &event);
    return event.isAccepted();
}
