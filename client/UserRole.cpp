#include "client/UserRole.h"

#include "platform/SystemLibrary/QCommon.h"

uint32_t UserRoles::MenuRights(UserRole role)
{
    return role == UserRole::Administrator ? QCommon::RightAll : QCommon::RightOperator;
}

QString UserRoles::Name(UserRole role)
{
    return role == UserRole::Administrator ? tr("Administrator") : tr("Operator");
}

bool UserRoles::MayUseModule(UserRole role, const std::string& strRightName)
{
    return role == UserRole::Administrator || strRightName.empty() || strRightName == "Default Right";
}
