#pragma once

#include "systemlibrary_export.h"

#include <QByteArray>
#include <QEvent>

#include <cstdint>
#include <memory>

/// Numbers of the host's modules in recovery records.
enum eModuleIndex : int32_t
{
    eModuleIndexNone = -1,
    eModuleIndexACSEventConfig = 12,
};

/// What a window leaves behind so that the host can open it again at its next start.
class SYSTEMLIBRARY_EXPORT QRecoverSubWndBase
{
public:
    QRecoverSubWndBase(int32_t iWindowNumber, int32_t iModuleIndex, const QByteArray& name, bool bVisible);
    virtual ~QRecoverSubWndBase();

    int32_t GetWindowNumber() const { return m_iWindowNumber; }
    int32_t GetModuleIndex() const { return m_iModuleIndex; }
    QByteArray GetName() const { return m_name; }
    bool IsVisible() const { return m_bVisible; }

private:
    int32_t m_iWindowNumber;
    int32_t m_iModuleIndex;
    QByteArray m_name;
    bool m_bVisible;
};

/// Asks a window for its recovery record: a custom event of type 1001, sent (not posted) by the host, which
/// owns the event and the result slot.
class SYSTEMLIBRARY_EXPORT LXRecoverEvent : public QEvent
{
public:
    static constexpr QEvent::Type RecoverEventType = static_cast<QEvent::Type>(1001);
    static constexpr int32_t MessageRecover = 106;

    /// `pResult` may be null; then nothing is wanted.
    LXRecoverEvent(int32_t iMessage, int32_t iWindowNumber, std::unique_ptr<QRecoverSubWndBase>* pResult);
    ~LXRecoverEvent() override;

    int32_t GetMessageNumber() const { return m_iMessage; }
    int32_t GetWindowNumber() const { return m_iWindowNumber; }
    std::unique_ptr<QRecoverSubWndBase>* GetResultSlot() const { return m_pResult; }

private:
    int32_t m_iMessage;
    int32_t m_iWindowNumber;
    std::unique_ptr<QRecoverSubWndBase>* m_pResult;
};
