#pragma once

#include "platform/SystemLibrary/QSystem.h"

#include <QCoreApplication>

#include <optional>

/// What is right and wrong about mail settings. Pure functions.
class MailCheck
{
    Q_DECLARE_TR_FUNCTIONS(MailCheck)

public:
    enum class Field
    {
        List,
        Host,
        Port,
        User,
        Password,
        Sender,
        Recipients,
        CertificateFile,
    };
    struct Problem
    {
        int iServer = -1; ///< position in the list, -1 for the list as a whole
        Field field = Field::List;
        QString strText; ///< translated
    };

    /// Blanks around every text taken off, and entries that hold nothing at all left out.
    static SystemMailSettings Tidied(const SystemMailSettings& settings);
    /// The first thing that is wrong, nothing when the settings can be kept. Mail that is enabled needs a
    /// server, and every server of it a recipient, and a password where there is a user; every server needs a
    /// host, a port from 1 to 65535 and a sender address at any time.
    static std::optional<Problem> FirstProblem(const SystemMailSettings& settings);
    static bool IsHost(const QString& strText);    ///< host name, IPv4 or IPv6 address
    static bool IsAddress(const QString& strText); ///< one mail address, "name@place"

    /// The addresses of a list as people type it, with commas, semicolons or blanks between them; each once.
    static QStringList SplitRecipients(const QString& strText);
    /// The port that goes with an encryption as a rule.
    static int32_t UsualPort(SystemMailEncryption eEncryption);

    MailCheck() = delete;

private:
    static std::optional<Problem> ProblemOf(const SystemMailServer& server, bool bEnable);
};
