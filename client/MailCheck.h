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
        Sender,
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
    /// server; every server needs a host, a port from 1 to 65535 and a sender address.
    static std::optional<Problem> FirstProblem(const SystemMailSettings& settings);
    static bool IsHost(const QString& strText);    ///< host name, IPv4 or IPv6 address
    static bool IsAddress(const QString& strText); ///< one mail address, "name@place"

    MailCheck() = delete;
};
