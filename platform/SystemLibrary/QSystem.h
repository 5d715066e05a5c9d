#pragma once

#include "systemlibrary_export.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <cstdint>

/// How the connection to a mail server is protected.
enum class SystemMailEncryption
{
    None,
    StartTls, ///< begins in the clear and must be encrypted before anything is sent
    Tls       ///< encrypted from its first byte
};

/// One mail server entry.
struct SystemMailServer
{
    QString strServer;  ///< host name or address
    int32_t iPort = 25; ///< 1 to 65535
    QString strUser;    ///< empty: no authentication
    QString strSender;  ///< sender address
    SystemMailEncryption eEncryption = SystemMailEncryption::None;
    QString strPassword;        ///< goes with the user
    QStringList recipients;     ///< who gets mail, one address each
    QString strCertificateFile; ///< authorities trusted for this server, PEM; empty: those of the system
};

struct SystemMailSettings
{
    bool bEnable = false;
    QList<SystemMailServer> servers;
};

SYSTEMLIBRARY_EXPORT bool operator==(const SystemMailServer& a, const SystemMailServer& b);
SYSTEMLIBRARY_EXPORT bool operator==(const SystemMailSettings& a, const SystemMailSettings& b);

/// Settings and state of the running host. User-interface thread only.
class SYSTEMLIBRARY_EXPORT QSystem : public QObject
{
    Q_OBJECT

public:
    enum State : int
    {
        StateStarting = 0,
        StateRunning = 1,
        StateClosing = 4, ///< windows are asked for their recovery records
    };

    static QSystem* GetInstance();

    QString GetLanguage() const; ///< "en" or "zh_cn"
    void SetLanguage(const QString& strCode);
    int GetState() const;
    void SetState(int iState);
    const SystemMailSettings& GetMailSettings() const;
    void SetMailSettings(const SystemMailSettings& settings); ///< emits SignalMailSettingsChanged on a change

Q_SIGNALS:
    void SignalMailSettingsChanged();

private:
    QSystem();
    ~QSystem() override;
    QString m_strLanguage;
    int m_iState = StateStarting;
    SystemMailSettings m_mail;
};
