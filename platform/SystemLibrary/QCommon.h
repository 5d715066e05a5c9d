#pragma once

#include "systemlibrary_export.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QString>

#include <cstdint>

/// A message to the host's main window object, delivered at once as an event (see QCommon::QtSendMessage).
class SYSTEMLIBRARY_EXPORT LXHostMessageEvent : public QEvent
{
public:
    LXHostMessageEvent(int iMessage, quintptr wParam, quintptr lParam);
    ~LXHostMessageEvent() override;
    static QEvent::Type EventType(); ///< registered on first use

    int GetMessageNumber() const { return m_iMessage; }
    quintptr GetWParam() const { return m_wParam; }
    quintptr GetLParam() const { return m_lParam; }

private:
    int m_iMessage;
    quintptr m_wParam;
    quintptr m_lParam;
};

/// Host services that need no manager. User-interface thread only.
class SYSTEMLIBRARY_EXPORT QCommon
{
    Q_DECLARE_TR_FUNCTIONS(QCommon)

public:
    /// Rights of the operator who is logged in, one bit each.
    enum MenuRight : uint32_t
    {
        RightAdministrator = 0x1,   ///< may change the site, for example remove devices
        RightSystemConfig = 0x8000, ///< may change system settings, for example mail
        RightAll = 0xFFFFFFFF,
        RightOperator = 0x0,
    };
    /// Messages that the host's main window object answers.
    enum HostMessage : int
    {
        MessageOpenMailSettings = 22, ///< opens the mail settings and returns when they are closed
    };

    /// Name of an event type for people, translated; "Event %1" with the number for an unknown type, never
    /// empty for types of 0 and above, empty below.
    static QString GetAlarmNameByType(int iAlarmType);
    /// Whether the operator holds every bit of the right.
    static bool CheckMenuRight(uint32_t iRight);
    static void SetMenuRights(uint32_t iRights); ///< host only; at first none
    /// Delivers a message to an object and returns when it has been handled; false when the object is null
    /// or did not accept it.
    static bool QtSendMessage(QObject* pReceiver, int iMessage, quintptr wParam, quintptr lParam);

    QCommon() = delete;
};
