#include "client/TreeExpansion.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int32_t Group = 1;
constexpr int32_t Device = 2;

} // namespace

class TestTreeExpansion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsStartUnfoldedAndDevicesFolded()
    {
        const TreeExpansion expansion;
        QVERIFY(expansion.IsExpanded(Group, 7));
        QVERIFY(!expansion.IsExpanded(Device, 7));
        QVERIFY(!expansion.IsExpanded(3, 7));
        QVERIFY(expansion.ToTexts().isEmpty());
    }
    void whatAPersonDoesIsRemembered()
    {
        TreeExpansion expansion;
        expansion.SetExpanded(Device, 12, true);
        expansion.SetExpanded(Group, 12, false);
        QVERIFY(expansion.IsExpanded(Device, 12));
        QVERIFY(!expansion.IsExpanded(Group, 12));
        QVERIFY(!expansion.IsExpanded(Device, 13));
        QVERIFY(expansion.IsExpanded(Group, 13));
    }
    void goingBackToTheStartLeavesNothingToKeep()
    {
        TreeExpansion expansion;
        expansion.SetExpanded(Device, 12, true);
        expansion.SetExpanded(Device, 12, true);
        expansion.SetExpanded(Device, 12, false);
        QVERIFY(expansion.ToTexts().isEmpty());
    }
    void textsBringEverythingBack()
    {
        TreeExpansion expansion;
        expansion.SetExpanded(Device, std::numeric_limits<int64_t>::max(), true);
        expansion.SetExpanded(Group, std::numeric_limits<int64_t>::min(), false);
        const TreeExpansion again(expansion.ToTexts());
        QVERIFY(again.IsExpanded(Device, std::numeric_limits<int64_t>::max()));
        QVERIFY(!again.IsExpanded(Group, std::numeric_limits<int64_t>::min()));
        QCOMPARE(again.ToTexts(), expansion.ToTexts());
        QCOMPARE(again.ToTexts().size(), 2);
    }
    void textsThatAreNoneAreLeftOut()
    {
        const TreeExpansion expansion({QString(), QStringLiteral("2"), QStringLiteral("2:5"),
                                       QStringLiteral("2:x:1"), QStringLiteral("y:5:1"),
                                       QStringLiteral("2:5:7"), QStringLiteral("2:5:1:1"),
                                       QStringLiteral("2:99999999999999999999:1"), QStringLiteral("2:6:1")});
        QCOMPARE(expansion.ToTexts(), QStringList{QStringLiteral("2:6:1")});
    }
};

QTEST_GUILESS_MAIN(TestTreeExpansion)
#include "tst_tree_expansion.moc"
