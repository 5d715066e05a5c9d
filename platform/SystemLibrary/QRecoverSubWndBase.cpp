#include "platform/SystemLibrary/QRecoverSubWndBase.h"

QRecoverSubWndBase::QRecoverSubWndBase(int32_t iWindowNumber, int32_t iModuleIndex, const QByteArray& name,
                                       bool bVisible)
    : m_iWindowNumber(iWindowNumber)
    , m_iModuleIndex(iModuleIndex)
    , m_name(name)
    , m_bVisible(bVisible)
{
}

QRecoverSubWndBase::~QRecoverSubWndBase() = default;

LXRecoverEvent::LXRecoverEvent(int32_t iMessage, int32_t iWindowNumber,
                               std::unique_ptr<QRecoverSubWndBase>* pResult)
    : QEvent(RecoverEventType)
    , m_iMessage(iMessage)
    , m_iWindowNumber(iWindowNumber)
    , m_pResult(pResult)
{
}

LXRecoverEvent::~LXRecoverEvent() = default;
