#pragma once

#include "platform/SystemLibrary/QSystem.h"

#include <QHash>
#include <QString>

/// The passwords of the mail servers, in a file of their own that only the person who runs the client may
/// read: settings are copied and shown around, passwords must not go with them. A password is kept for a user
/// on a host and port and is never handed to another.
class MailPasswords
{
public:
    explicit MailPasswords(const QString& strFile);

    /// Fills in the password of every server that has one; all are empty when the file cannot be used.
    void Fill(SystemMailSettings& settings) const;
    /// Keeps the passwords of these servers and forgets all others; without any the file goes away. False
    /// with the reason when the file cannot be written.
    bool Keep(const SystemMailSettings& settings, QString& strReason) const;

private:
    QString m_strFile;
};
