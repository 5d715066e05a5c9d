#include "platform/SystemLibrary/QSystem.h"

bool operator==(const SystemMailServer& a, const SystemMailServer& b)
{
    return a.strServer == b.strServer && a.iPort == b.iPort && a.strUser == b.strUser &&
           a.strSender == b.strSender && a.eEncryption == b.eEncryption && a.strPassword == b.strPassword &&
           a.recipients == b.recipients && a.strCertificateFile == b.strCertificateFile;
}

bool operator==(const SystemMailSettings& a, const SystemMailSettings& b)
{
    return a.bEnable == b.bEnable && a.servers == b.servers;
}

QSystem::QSystem()
    : m_strLanguage(QStringLiteral("en"))
{
}

QSystem::~QSystem() = default;

QSystem* QSystem::GetInstance()
{
    static QSystem instance;
    return &instance;
}

QString QSystem::GetLanguage() const
{
    return m_strLanguage;
}

void QSystem::SetLanguage(const QString& strCode)
{
    m_strLanguage = strCode;
}

int QSystem::GetState() const
{
    return m_iState;
}

void QSystem::SetState(int iState)
{
    m_iState = iState;
}

const SystemMailSettings& QSystem::GetMailSettings() const
{
    return m_mail;
}

void QSystem::SetMailSettings(const SystemMailSettings& settings)
{
    if (settings == m_mail)
        return;
    m_mail = settings;
    Q_EMIT SignalMailSettingsChanged();
}
