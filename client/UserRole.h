#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <string>

/// What the person at the client may do.
enum class UserRole
{
    Administrator,
    Operator,
};

/// What a role means. Pure functions.
class UserRoles
{
    Q_DECLARE_TR_FUNCTIONS(UserRoles)

public:
    /// The host's rights of a role, see QCommon::MenuRight.
    static uint32_t MenuRights(UserRole role);
    /// The role's name for people, translated.
    static QString Name(UserRole role);
    /// Whether a role sees a module that names this right. "Default Right" and an empty name are everybody's,
    /// any other name is the administrators'.
    static bool MayUseModule(UserRole role, const std::string& strRightName);

    UserRoles() = delete;
};
