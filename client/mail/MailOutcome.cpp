#include "client/mail/MailOutcome.h"

#include "platform/SystemLibrary/ShownText.h"

namespace {

constexpr int LongestLine = 200;

} // namespace

QString MailOutcome::CleanLine(const QByteArray& line)
{
    const QString strLine = ShownText::Visible(QString::fromUtf8(line), QLatin1Char(' '));
    return strLine.simplified().left(LongestLine);
}

QString MailOutcome::Text(const SystemMailServer& server) const
{
    const QString strSentence = Sentence(server);
    return strServerText.isEmpty() || IsSent()
               ? strSentence
               : strSentence + QLatin1Char('\n') + tr("The server says: %1").arg(strServerText);
}

QString MailOutcome::Sentence(const SystemMailServer& server) const
{
    const QString strHost = server.strServer;
    const QString strPort = QString::number(server.iPort);
    switch (eKind) {
    case Kind::Sent:
        return tr("%1 has taken the test mail for %2. Look into the mailbox; it can take a minute.")
            .arg(strHost, server.recipients.join(QStringLiteral(", ")));
    case Kind::SentWithoutLogin:
        return tr("%1 has taken the test mail, but offers no login: user and password were not used.")
            .arg(strHost);
    case Kind::Cancelled:
        return tr("The test was stopped.");
    case Kind::BadAddress:
        return tr("The address %1 cannot be used. Enter it like guard@example.com.").arg(strRecipient);
    case Kind::NoSuchHost:
        return tr("The server \"%1\" was not found. Check its name and the network connection.").arg(strHost);
    case Kind::NoConnection:
        return tr("Nothing answers on port %1 of %2. Check server and port; as a rule it is 587 with "
                  "STARTTLS, "
                  "465 with TLS and 25 without encryption. A firewall can be in the way, too.")
            .arg(strPort, strHost);
    case Kind::NoAnswer:
        return tr("%1 does not answer on port %2. Check port and encryption; a firewall can be in the way, "
                  "too.")
            .arg(strHost, strPort);
    case Kind::NoMailServer:
        return tr("What answers on port %1 of %2 takes no mail. Check server, port and encryption.")
            .arg(strPort, strHost);
    case Kind::NoEncryption:
        return tr("%1 offers no STARTTLS on port %2. Choose TLS with the port that goes with it, 465 as a "
                  "rule.")
            .arg(strHost, strPort);
    case Kind::EncryptionFailed:
        return tr("No encrypted connection to port %1 of %2. Check the encryption: TLS goes with port 465 as "
                  "a "
                  "rule, STARTTLS with 587 and 25.")
            .arg(strPort, strHost);
    case Kind::CertificateUntrusted:
        return tr("The certificate of %1 is not trusted, so nothing was sent. Enter the server by the name "
                  "that "
                  "its certificate carries, or name the certificate file of your own authority.")
            .arg(strHost);
    case Kind::CertificateFileUnusable:
        return tr("The certificate file %1 cannot be used. Choose a file with certificates in the PEM form, "
                  "or "
                  "leave the field empty.")
            .arg(server.strCertificateFile);
    case Kind::LoginNotOffered:
        return tr("%1 offers no login that can be used. Many servers offer it with encryption only; choose "
                  "STARTTLS or TLS, or leave user and password empty.")
            .arg(strHost);
    case Kind::LoginRefused:
        return tr("%1 refuses the user \"%2\". Check user and password; some services want a password of its "
                  "own "
                  "for programs.")
            .arg(strHost, server.strUser);
    case Kind::SenderRefused:
        return tr("%1 takes no mail from %2. Check the sender; often it must be the address of the user.")
            .arg(strHost, server.strSender);
    case Kind::RecipientRefused:
        return tr("%1 takes no mail for %2. Check the address; mail to other places often needs user and "
                  "password.")
            .arg(strHost, strRecipient);
    case Kind::MessageRefused:
        return tr("%1 refuses the mail itself. Ask the administrator of the mail server.").arg(strHost);
    case Kind::ConnectionLost:
        return tr("The connection to %1 broke off. Check port and encryption, and try again.").arg(strHost);
    case Kind::Failed:
        break;
    }
    return tr("The test mail could not be sent through %1: %2").arg(strHost, strDetail);
}
