#include "client/ClientSettings.h"

#include "client/ClientLog.h"
#include "client/MailCheck.h"
#include "client/mail/MailPasswords.h"

#include <QFileInfo>

#include <array>

namespace {

const QLatin1String KeyLanguage("client/language");
const QLatin1String KeyTheme("client/theme");
const QLatin1String KeyGeometry("window/geometry");
const QLatin1String KeyOpenPages("window/openPages");
const QLatin1String KeyExpansion("tree/expansion");
const QLatin1String KeyHistoryDays("history/days");
const QLatin1String KeyMailEnabled("mail/enabled");
const QLatin1String MailServers("mail/servers");
const QLatin1String KeyHost("host");
const QLatin1String KeyPort("port");
const QLatin1String KeyUser("user");
const QLatin1String KeySender("sender");
const QLatin1String KeyEncryption("encryption");
const QLatin1String KeyRecipients("recipients");
const QLatin1String KeyCertificateFile("certificateFile");
/// In the order of SystemMailEncryption.
constexpr std::array<const char*, 3> EncryptionNames{{"none", "starttls", "tls"}};
constexpr int DefaultPort = 25;
constexpr int LastPort = 65535;

QString NameOf(SystemMailEncryption eEncryption)
{
    return QLatin1String(EncryptionNames.at(static_cast<size_t>(eEncryption)));
}

/// A file that says nothing was written before there was a choice; a word that is not known asks for safety.
SystemMailEncryption EncryptionOf(const QString& strName)
{
    if (strName.isEmpty()) {
        return SystemMailEncryption::None;
    }
    for (const SystemMailEncryption e : {SystemMailEncryption::None, SystemMailEncryption::Tls}) {
        if (strName == NameOf(e)) {
            return e;
        }
    }
    return SystemMailEncryption::StartTls;
}

void SpeakUtf8(QSettings& settings)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    settings.setIniCodec("UTF-8");
#else
    Q_UNUSED(settings) // never speaks anything else
#endif
}

} // namespace

ClientSettings::ClientSettings(const QString& strFile)
    : m_settings(strFile, QSettings::IniFormat)
{
    SpeakUtf8(m_settings);
}

QString ClientSettings::Language() const
{
    const QString strCode = m_settings.value(KeyLanguage).toString();
    return strCode == QLatin1String("en") || strCode == QLatin1String("zh_cn") ? strCode : QString();
}

void ClientSettings::SetLanguage(const QString& strCode)
{
    m_settings.setValue(KeyLanguage, strCode);
}

QString ClientSettings::Theme() const
{
    const QString strName = m_settings.value(KeyTheme).toString();
    return strName == QLatin1String("light") ? strName : QStringLiteral("dark");
}

void ClientSettings::SetTheme(const QString& strName)
{
    m_settings.setValue(KeyTheme, strName);
}

QByteArray ClientSettings::WindowGeometry() const
{
    return m_settings.value(KeyGeometry).toByteArray();
}

void ClientSettings::SetWindowGeometry(const QByteArray& geometry)
{
    m_settings.setValue(KeyGeometry, geometry);
}

QStringList ClientSettings::OpenPages() const
{
    return m_settings.value(KeyOpenPages).toStringList();
}

void ClientSettings::SetOpenPages(const QStringList& keys)
{
    m_settings.setValue(KeyOpenPages, keys);
}

SystemMailSettings ClientSettings::Mail() const
{
    // QSettings reads arrays through a state of its own; a second object leaves this one const.
    QSettings reader(m_settings.fileName(), QSettings::IniFormat);
    SpeakUtf8(reader);
    SystemMailSettings mail;
    mail.bEnable = reader.value(KeyMailEnabled).toBool();
    const int iCount = qBound(0, reader.beginReadArray(MailServers), MaximumMailServers);
    for (int i = 0; i < iCount; ++i) {
        reader.setArrayIndex(i);
        SystemMailServer server;
        server.strServer = reader.value(KeyHost).toString();
        server.strUser = reader.value(KeyUser).toString();
        server.strSender = reader.value(KeySender).toString();
        bool bNumber = false;
        const int iPort = reader.value(KeyPort).toInt(&bNumber);
        server.iPort = bNumber && iPort >= 1 && iPort <= LastPort ? iPort : DefaultPort;
        server.eEncryption = EncryptionOf(reader.value(KeyEncryption).toString());
        server.recipients =
            MailCheck::SplitRecipients(reader.value(KeyRecipients).toStringList().join(QLatin1Char(' ')));
        server.strCertificateFile = reader.value(KeyCertificateFile).toString();
        mail.servers.append(server);
    }
    reader.endArray();
    MailPasswords(PasswordFile()).Fill(mail);
    return mail;
}

void ClientSettings::SetMail(const SystemMailSettings& settings)
{
    m_settings.remove(QStringLiteral("mail"));
    m_settings.setValue(KeyMailEnabled, settings.bEnable);
    m_settings.beginWriteArray(MailServers, settings.servers.size());
    for (int i = 0; i < settings.servers.size(); ++i) {
        const SystemMailServer& server = settings.servers.at(i);
        m_settings.setArrayIndex(i);
        m_settings.setValue(KeyHost, server.strServer);
        m_settings.setValue(KeyPort, server.iPort);
        m_settings.setValue(KeyUser, server.strUser);
        m_settings.setValue(KeySender, server.strSender);
        m_settings.setValue(KeyEncryption, NameOf(server.eEncryption));
        m_settings.setValue(KeyRecipients, server.recipients.join(QLatin1Char(' ')));
        m_settings.setValue(KeyCertificateFile, server.strCertificateFile);
    }
    m_settings.endArray();
    m_settings.sync();
    QString strReason;
    m_bPasswordsKept = MailPasswords(PasswordFile()).Keep(settings, strReason);
    if (!m_bPasswordsKept) {
        CLIENT_LOG(lxl::LogError, "the mail passwords cannot be written: %s", qUtf8Printable(strReason));
    }
}

QString ClientSettings::PasswordFile() const
{
    return QFileInfo(FileName()).absolutePath() + QStringLiteral("/mail-passwords.json");
}

int ClientSettings::HistoryDays() const
{
    bool bNumber = false;
    const int iDays = m_settings.value(KeyHistoryDays).toInt(&bNumber);
    return bNumber && iDays >= 1 && iDays <= MaximumHistoryDays ? iDays : DefaultHistoryDays;
}

QStringList ClientSettings::TreeExpansion() const
{
    return m_settings.value(KeyExpansion).toStringList();
}

void ClientSettings::SetTreeExpansion(const QStringList& texts)
{
    m_settings.setValue(KeyExpansion, texts);
}

bool ClientSettings::Write()
{
    m_settings.sync();
    return m_settings.status() == QSettings::NoError && m_bPasswordsKept;
}
