#pragma once

#include "platform/SystemLibrary/QSystem.h"

#include <QCoreApplication>
#include <QString>

/// How handing a mail to its server ended.
struct MailOutcome
{
    Q_DECLARE_TR_FUNCTIONS(MailOutcome)

public:
    enum class Kind
    {
        Sent,
        SentWithoutLogin, ///< taken, but the server never asked for the user
        Cancelled,
        BadAddress, ///< sender or a recipient cannot be written to a server; nothing was sent
        NoSuchHost,
        NoConnection,
        NoAnswer, ///< connected or not, the time limit passed
        NoMailServer,
        NoEncryption, ///< STARTTLS is asked for and not offered
        EncryptionFailed,
        CertificateUntrusted,
        CertificateFileUnusable,
        LoginNotOffered,
        LoginRefused,
        SenderRefused,
        RecipientRefused,
        MessageRefused,
        ConnectionLost,
        Failed
    };

    Kind eKind = Kind::Failed;
    QString strRecipient;  ///< the recipient it was about, where it was about one
    QString strServerText; ///< what the server answered, one clean line; may be empty
    QString strDetail;     ///< technical, for the log

    bool IsSent() const { return eKind == Kind::Sent || eKind == Kind::SentWithoutLogin; }
    /// For people, translated: what happened and what to do next.
    QString Text(const SystemMailServer& server) const;
    /// A line of a stranger's text made fit to be shown: no control characters, at most 200 characters.
    static QString CleanLine(const QByteArray& line);

private:
    QString Sentence(const SystemMailServer& server) const;
};
