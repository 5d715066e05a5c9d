#pragma once

#include "platform/SystemLibrary/QSystem.h"

#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A real SMTP server on a free port of the loopback address, in a process of its own.
class MailServer
{
public:
    MailServer() = default;
    ~MailServer();
    MailServer(const MailServer&) = delete;
    MailServer& operator=(const MailServer&) = delete;

    /// `options` as of mail_server.py; a server with encryption gets a certificate for "localhost" that no
    /// authority has signed. False when it does not come up.
    bool Start(const QStringList& options = {});
    int Port() const { return m_iPort; }
    QString CertificateFile() const; ///< the certificate is its own authority
    /// Settings that reach this server, with a sender and a recipient.
    SystemMailServer Settings(SystemMailEncryption eEncryption = SystemMailEncryption::None) const;
    /// Waits for the next thing the server tells: a mail it has taken, or, where it only listens, that
    /// somebody came or went. Empty when nothing comes.
    QJsonObject Next();
    /// Ends the server, so that nothing listens on its port any more; true when it had told nothing else.
    bool Stop();

    /// The decoded text of a message, its headers left out.
    static QByteArray BodyOf(const QJsonObject& mail);
    static QByteArray HeadersOf(const QJsonObject& mail);

private:
    bool MakeCertificate();
    QTemporaryDir m_directory;
    QProcess m_process;
    int m_iPort = 0;
};
