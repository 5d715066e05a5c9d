#include "client/UserRole.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QtTest>

class TestUserRole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAdministratorHoldsEveryRight()
    {
        QCommon::SetMenuRights(UserRoles::MenuRights(UserRole::Administrator));
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightAdministrator));
        QVERIFY(QCommon::CheckMenuRight(QCommon::RightSystemConfig));
        QVERIFY(QCommon::CheckMenuRight(0x8000));
        QVERIFY(QCommon::CheckMenuRight(0xFFFFFFFF));
    }
    void anOperatorMayNeitherChangeTheSiteNorTheSettings()
    {
        QCommon::SetMenuRights(UserRoles::MenuRights(UserRole::Operator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightAdministrator));
        QVERIFY(!QCommon::CheckMenuRight(QCommon::RightSystemConfig));
    }
    void aModuleWithTheDefaultRightIsForEverybody()
    {
        QVERIFY(UserRoles::MayUseModule(UserRole::Operator, "Default Right"));
        QVERIFY(UserRoles::MayUseModule(UserRole::Operator, ""));
        QVERIFY(UserRoles::MayUseModule(UserRole::Administrator, "Default Right"));
    }
    void aModuleWithARightOfItsOwnIsForAdministrators()
    {
        QVERIFY(!UserRoles::MayUseModule(UserRole::Operator, "Administrators"));
        QVERIFY(!UserRoles::MayUseModule(UserRole::Operator, "default right"));
        QVERIFY(UserRoles::MayUseModule(UserRole::Administrator, "Administrators"));
    }
    void theRolesHaveDifferentNames()
    {
        QVERIFY(!UserRoles::Name(UserRole::Operator).isEmpty());
        QVERIFY(UserRoles::Name(UserRole::Operator) != UserRoles::Name(UserRole::Administrator));
    }
};

QTEST_GUILESS_MAIN(TestUserRole)
#include "tst_user_role.moc"
