#include "tests/client_mail/MailServer.h"

#include <QJsonDocument>

namespace {

constexpr int PatienceMs = 30000;

} // namespace

MailServer::~MailServer()
{
    Stop();
}

bool MailServer::MakeCertificate()
{
    QProcess openssl;
    openssl.start(
        QStringLiteral("openssl"),
        {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"), QStringLiteral("ec"),
         QStringLiteral("-pkeyopt"), QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes"),
         QStringLiteral("-days"), QStringLiteral("2"), QStringLiteral("-subj"),
         QStringLiteral("/CN=localhost"), QStringLiteral("-addext"),
         QStringLiteral("subjectAltName=DNS:localhost"), QStringLiteral("-keyout"),
         m_directory.filePath(QStringLiteral("key.pem")), QStringLiteral("-out"), CertificateFile()});
    return openssl.waitForFinished(PatienceMs) && openssl.exitCode() == 0;
}

bool MailServer::Start(const QStringList& options)
{
    QStringList arguments{QStringLiteral(MAIL_SERVER_SCRIPT)};
    arguments += options;
    if (options.contains(QStringLiteral("--encryption"))) {
        if (!MakeCertificate()) {
            return false;
        }
        arguments += {QStringLiteral("--certificate"), CertificateFile(), QStringLiteral("--key"),
                      m_directory.filePath(QStringLiteral("key.pem"))};
    }
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(MAIL_SERVER_PYTHON), arguments);
    m_iPort = Next().value(QStringLiteral("port")).toInt();
    return m_iPort > 0;
}

QString MailServer::CertificateFile() const
{
    return m_directory.filePath(QStringLiteral("certificate.pem"));
}

SystemMailServer MailServer::Settings(SystemMailEncryption eEncryption) const
{
    SystemMailServer server;
    server.strServer = QStringLiteral("localhost");
    server.iPort = m_iPort;
    server.strSender = QStringLiteral("guard@example.com");
    server.recipients = QStringList{QStringLiteral("desk@example.com")};
    server.eEncryption = eEncryption;
    if (eEncryption != SystemMailEncryption::None) {
        server.strCertificateFile = CertificateFile();
    }
    return server;
}

QJsonObject MailServer::Next()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(PatienceMs)) {
            return QJsonObject();
        }
    }
    return QJsonDocument::fromJson(m_process.readLine()).object();
}

bool MailServer::Stop()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(PatienceMs)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
    return m_process.readAllStandardOutput().isEmpty();
}

QByteArray MailServer::HeadersOf(const QJsonObject& mail)
{
    const QByteArray message =
        QByteArray::fromBase64(mail.value(QStringLiteral("message")).toString().toLatin1());
    return message.left(message.indexOf("\r\n\r\n") + 2);
}

QByteArray MailServer::BodyOf(const QJsonObject& mail)
{
    const QByteArray message =
        QByteArray::fromBase64(mail.value(QStringLiteral("message")).toString().toLatin1());
    return QByteArray::fromBase64(message.mid(message.indexOf("\r\n\r\n") + 4));
}
