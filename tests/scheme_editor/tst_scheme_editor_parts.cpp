#include "scheme_editor/AlarmInputTree.h"
#include "scheme_editor/CategoryColumn.h"
#include "scheme_editor/DeviceSchemes.h"
#include "scheme_editor/EventSourceLookup.h"
#include "scheme_editor/QNoFocusItemDelegate.h"
#include "scheme_editor/SchemeSelection.h"
#include "scheme_editor/TabLayout.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QTreeWidget>

#include <limits>

using namespace PageSchemes;
using namespace PageSite;
using EventSourceLookup::AlarmInputs;
using EventSourceLookup::CategoryDevice;
using EventSourceLookup::CategoryDoor;
using EventSourceLookup::CategoryNone;

namespace {

QStringList KeysOf(const AlarmInputs& inputs)
{
    QStringList keys;
    for (const EventSourceLookup::AlarmInput& input : inputs.inputs)
        keys.append(input.strKey);
    return keys;
}

/// Two inputs of a device named "Device".
AlarmInputs TwoInputs()
{
    AlarmInputs inputs;
    inputs.strDeviceName = QStringLiteral("Device");
    inputs.inputs = {{QStringLiteral("One"), Key("1$3$1$2")}, {QStringLiteral("Two"), Key("1$3$1$3")}};
    return inputs;
}

QImage Painted(const QStyledItemDelegate& delegate, const QModelIndex& index, QStyle::State state)
{
    QImage image(120, 24, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.state = state;
    option.showDecorationSelected = true;
    delegate.paint(&painter, option, index);
    return image;
}

} // namespace

/// The pieces that the page is put together from.
class TestSchemeEditorParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabsStandAtTheBottomAndOverlap();
    void tabsOfDifferentSizesKeepTheirSizes();
    void noTabsHaveNoPlaces();
    void aDoorIsASource_data();
    void aDoorIsASource();
    void aDeviceIsASource_data();
    void aDeviceIsASource();
    void aDeviceOfEveryOtherTypeIsNoSource();
    void otherNodesAreNoSources();
    void inputsOfAnAccessControlDeviceCarryFlagOne();
    void inputsOfAnotherDeviceCarryFlagZero();
    void theFlagFollowsTheTypeQuery();
    void inputsOfADoorsKeyAreThoseOfItsDevice();
    void strangeSourcesHaveNoInputs();
    void onlyChannelsOfAccessControlDevicesCanBeCopiedFrom();
    void namesSayDoorAndDevice();
    void nothingSelectedHasNoKey();
    void aDoorsEventHasTheDoorsKey();
    void typeTwentyTwoHasTheDevicesKey();
    void typeTwentyTwoOfAnOddSourceHasNoKey();
    void anAlarmInputGoesBeforeTheSource();
    void anAlarmInputCountsOnlyWhileTheInputsAreShown();
    void removingADeviceSpares_data();
    void removingADeviceSpares();
    void inputsAreFilledSilently();
    void noInputsLeaveTheTreeEmpty();
    void clearingTheInputsIsSilent();
    void marksOfInputsFollowTheAnswer();
    void keysOfItemsWithoutDataAreNull();
    void theFocusFrameIsNeverPainted();
    void theColumnLeavesHiddenButtonsOut();
};

void TestSchemeEditorParts::tabsStandAtTheBottomAndOverlap()
{
    const QVector<QSize> sizes(3, QSize(120, 23));
    QCOMPARE(TabLayout::Positions(sizes, 38),
             (QVector<QPoint>{{0, 38 - 23}, {120 - 14, 38 - 23}, {2 * (120 - 14), 38 - 23}}));
}

void TestSchemeEditorParts::tabsOfDifferentSizesKeepTheirSizes()
{
    QCOMPARE(TabLayout::Positions({{100, 38}, {50, 10}, {14, 50}, {30, 1}}, 38),
             (QVector<QPoint>{{0, 0}, {86, 28}, {122, -12}, {122, 37}}));
}

void TestSchemeEditorParts::noTabsHaveNoPlaces()
{
    QVERIFY(TabLayout::Positions({}, 38).isEmpty());
}

void TestSchemeEditorParts::aDoorIsASource_data()
{
    QTest::addColumn<qint64>("door");
    QTest::addColumn<QString>("key");
    QTest::newRow("door") << qint64{Front} << Key("100$1$0$101");
    QTest::newRow("door of an offline device") << qint64{Gate} << Key("300$1$0$301");
    QTest::newRow("door of a disabled device") << qint64{Hatch} << QString();
    QTest::newRow("disabled door") << qint64{Sealed} << QString();
    QTest::newRow("alarm input") << qint64{Window} << QString();
    QTest::newRow("alarm output") << qint64{Siren} << QString();
    QTest::newRow("unknown") << qint64{4711} << QString();
    QTest::newRow("a device's id") << qint64{Lobby} << QString();
    QTest::newRow("smallest id") << std::numeric_limits<qint64>::min() << QString();
}

void TestSchemeEditorParts::aDoorIsASource()
{
    QFETCH(qint64, door);
    QFETCH(QString, key);
    ContraryDeviceManager devices(PageSite::Make());
    const EventSourceLookup::Source source = EventSourceLookup::SourceOfNode(devices, door, 3);
    QCOMPARE(source.strKey, key);
    QCOMPARE(source.iCategory, int32_t{key.isEmpty() ? CategoryNone : CategoryDoor});
    QCOMPARE(devices.OutstandingReferences(), 0);
}

void TestSchemeEditorParts::aDeviceIsASource_data()
{
    QTest::addColumn<qint64>("device");
    QTest::addColumn<QString>("key");
    QTest::newRow("access control") << qint64{Lobby} << Key("100$1$1$0");
    QTest::newRow("without inputs") << qint64{Vault} << Key("200$1$1$0");
    QTest::newRow("offline") << qint64{Garage} << Key("300$1$1$0");
    QTest::newRow("disabled") << qint64{Cellar} << QString();
    QTest::newRow("alarm host") << qint64{AlarmHost} << QString();
    QTest::newRow("unknown") << qint64{4711} << QString();
    QTest::newRow("a door's id") << qint64{Front} << QString();
}

void TestSchemeEditorParts::aDeviceIsASource()
{
    QFETCH(qint64, device);
    QFETCH(QString, key);
    ContraryDeviceManager devices(PageSite::Make());
    const EventSourceLookup::Source source = EventSourceLookup::SourceOfNode(devices, device, 2);
    QCOMPARE(source.strKey, key);
    QCOMPARE(source.iCategory, int32_t{key.isEmpty() ? CategoryNone : CategoryDevice});
}

void TestSchemeEditorParts::aDeviceOfEveryOtherTypeIsNoSource()
{
    ContraryDeviceManager devices(PageSite::Make());
    for (int type = -1; type <= 18; ++type) {
        devices.types.insert(Lobby, type);
        QCOMPARE(EventSourceLookup::SourceOfNode(devices, Lobby, 2).strKey.isEmpty(), type != 12);
    }
}

void TestSchemeEditorParts::otherNodesAreNoSources()
{
    ContraryDeviceManager devices(PageSite::Make());
    for (const int kind : {-1, 0, 1, 4, 5, std::numeric_limits<int>::max()}) {
        QVERIFY(EventSourceLookup::SourceOfNode(devices, Lobby, kind).strKey.isEmpty());
        QVERIFY(EventSourceLookup::SourceOfNode(devices, Front, kind).strKey.isEmpty());
    }
}

void TestSchemeEditorParts::inputsOfAnAccessControlDeviceCarryFlagOne()
{
    ContraryDeviceManager devices(PageSite::Make());
    const AlarmInputs inputs = EventSourceLookup::AlarmInputsOf(devices, Key("100$1$1$0"));
    QCOMPARE(inputs.strDeviceName, QStringLiteral("Lobby"));
    QCOMPARE(KeysOf(inputs), (QStringList{Key("100$3$1$103"), Key("100$3$1$104")}));
    QCOMPARE(inputs.inputs.at(1).strName, QStringLiteral("Smoke Detector"));
}

void TestSchemeEditorParts::inputsOfAnotherDeviceCarryFlagZero()
{
    ContraryDeviceManager devices(PageSite::Make());
    QCOMPARE(KeysOf(EventSourceLookup::AlarmInputsOf(devices, Key("500$1$0$0"))),
             (QStringList{Key("500$3$0$501"), Key("500$3$0$502")}));
}

void TestSchemeEditorParts::theFlagFollowsTheTypeQuery()
{
    ContraryDeviceManager devices(PageSite::Make());
    devices.types.insert(Lobby, 15);
    QCOMPARE(KeysOf(EventSourceLookup::AlarmInputsOf(devices, Key("100$1$0$101"))),
             (QStringList{Key("100$3$0$103"), Key("100$3$0$104")}));
}

void TestSchemeEditorParts::inputsOfADoorsKeyAreThoseOfItsDevice()
{
    ContraryDeviceManager devices(PageSite::Make());
    QCOMPARE(KeysOf(EventSourceLookup::AlarmInputsOf(devices, Key("300$1$0$301"))),
             QStringList{Key("300$3$1$302")});
}

void TestSchemeEditorParts::strangeSourcesHaveNoInputs()
{
    ContraryDeviceManager devices(PageSite::Make());
    for (const char* const source : {"", "$", "x$1$0$0", "4711$1$1$0", "99999999999999999999$1$1$0"})
        QVERIFY2(EventSourceLookup::AlarmInputsOf(devices, Key(source)).inputs.isEmpty(), source);
    devices.unreadableDevices.insert(Lobby);
    QVERIFY(EventSourceLookup::AlarmInputsOf(devices, Key("100$1$1$0")).inputs.isEmpty());
}

void TestSchemeEditorParts::onlyChannelsOfAccessControlDevicesCanBeCopiedFrom()
{
    ContraryDeviceManager devices(PageSite::Make());
    QVERIFY(EventSourceLookup::IsCopySource(devices, Key("100$1$0$101")));
    QVERIFY(!EventSourceLookup::IsCopySource(devices, Key("500$3$0$501"))); // not of type 12
    QVERIFY(!EventSourceLookup::IsCopySource(devices, Key("100$1$0$4711")));
    QVERIFY(!EventSourceLookup::IsCopySource(devices, Key("4711$1$0$101")));
    for (const char* const source : {"", "100$1$0", "100$1$0$101$", "x$1$0$101"})
        QVERIFY2(!EventSourceLookup::IsCopySource(devices, Key(source)), source);
    QCOMPARE(devices.OutstandingReferences(), 0);
}

void TestSchemeEditorParts::namesSayDoorAndDevice()
{
    ContraryDeviceManager devices(PageSite::Make());
    const QString door = EventSourceLookup::NameOf(&devices, Key("100$1$0$101"));
    QVERIFY(door.contains(QLatin1String("Front Door")) && door.contains(QLatin1String("Lobby")));
    QVERIFY(EventSourceLookup::NameOf(&devices, Key("100$1$1$0")).contains(QLatin1String("Lobby")));
    QCOMPARE(EventSourceLookup::NameOf(&devices, Key("no key")), QStringLiteral("no key"));
    QCOMPARE(EventSourceLookup::NameOf(nullptr, Key("100$1$0$101")), Key("100$1$0$101"));
}

void TestSchemeEditorParts::nothingSelectedHasNoKey()
{
    SchemeSelection selection;
    QVERIFY(!selection.CurrentKey());
    selection.iAlarmType = 101;
    QVERIFY(!selection.CurrentKey());
    selection.iAlarmType = -1;
    selection.strSource = Key("100$1$0$101");
    QVERIFY(!selection.CurrentKey());
    selection.iAlarmType = std::numeric_limits<int32_t>::min();
    QVERIFY(!selection.CurrentKey());
}

void TestSchemeEditorParts::aDoorsEventHasTheDoorsKey()
{
    SchemeSelection selection;
    selection.strSource = Key("100$1$0$101");
    for (const int type : {0, 1, 2, 21, 23, 101}) {
        selection.iAlarmType = type;
        QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$1$0$101"), type}));
    }
}

void TestSchemeEditorParts::typeTwentyTwoHasTheDevicesKey()
{
    SchemeSelection selection;
    selection.strSource = Key("100$1$0$101");
    selection.iAlarmType = 22;
    QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$1$0$-1"), 22}));
    selection.strSource = Key("0100$a$b$c");
    QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$1$0$-1"), 22}));
}

void TestSchemeEditorParts::typeTwentyTwoOfAnOddSourceHasNoKey()
{
    SchemeSelection selection;
    selection.iAlarmType = 22;
    for (const char* const source : {"100", "100$1$0", "100$1$0$101$"}) {
        selection.strSource = Key(source);
        QVERIFY2(!selection.CurrentKey(), source);
    }
}

void TestSchemeEditorParts::anAlarmInputGoesBeforeTheSource()
{
    SchemeSelection selection;
    selection.strSource = Key("100$1$1$0");
    selection.iAlarmType = 101;
    selection.strAlarmInput = Key("100$3$1$103");
    selection.iAlarmInputType = 2;
    selection.bExternal = true;
    QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$3$1$103"), 2}));
    selection.strAlarmInput.clear();
    QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$1$1$0"), 101}));
}

void TestSchemeEditorParts::anAlarmInputCountsOnlyWhileTheInputsAreShown()
{
    SchemeSelection selection;
    selection.strSource = Key("100$1$0$101");
    selection.iAlarmType = 101;
    selection.strAlarmInput = Key("100$3$1$103");
    selection.iAlarmInputType = 2;
    QVERIFY(selection.CurrentKey() == (AlarmSourceKey{Key("100$1$0$101"), 101}));
}

void TestSchemeEditorParts::removingADeviceSpares_data()
{
    QTest::addColumn<qint64>("device");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("spared");
    QTest::newRow("its door") << qint64{100} << Key("100$1$0$101") << false;
    QTest::newRow("itself") << qint64{100} << Key("100$1$1$0") << false;
    QTest::newRow("the whole device") << qint64{100} << Key("100$1$0$-1") << false;
    QTest::newRow("fields that are no numbers") << qint64{100} << Key("100$a$b$") << false;
    QTest::newRow("a longer id") << qint64{100} << Key("1000$1$0$1") << true;
    QTest::newRow("a shorter id") << qint64{100} << Key("10$1$0$1") << true;
    QTest::newRow("three fields") << qint64{100} << Key("100$1$0") << true;
    QTest::newRow("five fields") << qint64{100} << Key("100$1$0$1$") << true;
    QTest::newRow("the id elsewhere") << qint64{100} << Key("7$100$100$100") << true;
    QTest::newRow("a negative id") << qint64{-5} << Key("-5$1$0$1") << false;
    QTest::newRow("the largest id") << std::numeric_limits<qint64>::max() << Key("9223372036854775807$1$0$1")
                                    << false;
    QTest::newRow("beyond the largest id")
        << std::numeric_limits<qint64>::max() << Key("9223372036854775808$1$0$1") << true;
}

void TestSchemeEditorParts::removingADeviceSpares()
{
    QFETCH(qint64, device);
    QFETCH(QString, key);
    QFETCH(bool, spared);
    AlarmInfoMap schemes;
    for (const int type : {std::numeric_limits<int>::min(), -1, 0, 22, std::numeric_limits<int>::max()})
        schemes.insert({key, type}, AlarmInfo());
    schemes.insert({Key("8$1$0$1"), 1}, AlarmInfo());
    DeviceSchemes::Remove(schemes, device);
    QCOMPARE(schemes.size(), spared ? 6 : 1);
    QVERIFY(schemes.contains({Key("8$1$0$1"), 1}));
}

void TestSchemeEditorParts::inputsAreFilledSilently()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    int changes = 0;
    connect(&tree, &QTreeWidget::currentItemChanged, &tree, [&changes] { ++changes; });
    QVERIFY(AlarmInputTree::Fill(tree, TwoInputs()));
    QVERIFY(AlarmInputTree::Fill(tree, TwoInputs()));
    QCOMPARE(changes, 0);
    QCOMPARE(tree.topLevelItemCount(), 1);
    QCOMPARE(tree.topLevelItem(0)->childCount(), 2);
    QCOMPARE(AlarmInputTree::KeyOf(tree.currentItem()), Key("1$3$1$2"));
    QVERIFY(!tree.signalsBlocked());
    tree.setCurrentItem(tree.topLevelItem(0)->child(1));
    QCOMPARE(changes, 1);
}

void TestSchemeEditorParts::noInputsLeaveTheTreeEmpty()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    QVERIFY(AlarmInputTree::Fill(tree, TwoInputs()));
    int changes = 0;
    connect(&tree, &QTreeWidget::currentItemChanged, &tree, [&changes] { ++changes; });
    AlarmInputs none;
    none.strDeviceName = QStringLiteral("Device");
    QVERIFY(!AlarmInputTree::Fill(tree, none));
    QCOMPARE(tree.topLevelItemCount(), 0);
    QCOMPARE(changes, 0);
}

void TestSchemeEditorParts::clearingTheInputsIsSilent()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    AlarmInputTree::Fill(tree, TwoInputs());
    int changes = 0;
    connect(&tree, &QTreeWidget::currentItemChanged, &tree, [&changes] { ++changes; });
    AlarmInputTree::Clear(tree);
    AlarmInputTree::Clear(tree);
    QCOMPARE(tree.topLevelItemCount(), 0);
    QCOMPARE(changes, 0);
}

void TestSchemeEditorParts::marksOfInputsFollowTheAnswer()
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    AlarmInputTree::Fill(tree, TwoInputs());
    const auto marked = [&tree](int iInput) {
        const QWidget* const pCell = tree.itemWidget(tree.topLevelItem(0)->child(iInput), 1);
        return !pCell->findChild<QLabel*>()->isHidden();
    };
    AlarmInputTree::RefreshMarks(tree, [](const QString& key) { return key == Key("1$3$1$3"); });
    QVERIFY(!marked(0));
    QVERIFY(marked(1));
    AlarmInputTree::RefreshMarks(tree, [](const QString&) { return false; });
    QVERIFY(!marked(0) && !marked(1));
    AlarmInputTree::Clear(tree);
    int asked = 0;
    AlarmInputTree::RefreshMarks(tree, [&asked](const QString&) { return ++asked > 0; });
    QCOMPARE(asked, 0);
}

void TestSchemeEditorParts::keysOfItemsWithoutDataAreNull()
{
    QVERIFY(AlarmInputTree::KeyOf(nullptr).isNull());
    const QTreeWidgetItem item;
    QVERIFY(AlarmInputTree::KeyOf(&item).isNull());
}

void TestSchemeEditorParts::theFocusFrameIsNeverPainted()
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), QStringLiteral("Input"));
    const QNoFocusItemDelegate delegate;
    const QStyledItemDelegate plain;
    const QStyle::State quiet = QStyle::State_Enabled | QStyle::State_Active;
    const QStyle::State focused = quiet | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    // The usual delegate paints the frame; otherwise this would prove nothing.
    QVERIFY(Painted(plain, model.index(0, 0), focused) != Painted(plain, model.index(0, 0), quiet));
    QCOMPARE(Painted(delegate, model.index(0, 0), focused), Painted(delegate, model.index(0, 0), quiet));
    const QStyle::State selected = quiet | QStyle::State_Selected;
    QCOMPARE(Painted(delegate, model.index(0, 0), selected), Painted(plain, model.index(0, 0), selected));
}

void TestSchemeEditorParts::theColumnLeavesHiddenButtonsOut()
{
    QWidget window;
    auto* const pGrid = new QGridLayout(&window);
    auto* const pContent = new QWidget(&window);
    QList<QAbstractButton*> buttons;
    for (int i = 0; i < 4; ++i) {
        auto* const pButton = new QPushButton(QString::number(i), &window);
        pButton->setCheckable(true);
        buttons.append(pButton);
    }
    buttons.at(1)->hide();
    buttons.at(2)->setChecked(true);
    for (int round = 0; round < 3; ++round)
        CategoryColumn::Arrange(pGrid, buttons, pContent);
    window.show();
    QVERIFY(!buttons.at(1)->isVisible());
    QVERIFY(buttons.at(0)->y() < buttons.at(2)->y());
    QVERIFY(buttons.at(2)->geometry().bottom() < pContent->y());
    QVERIFY(pContent->geometry().bottom() < buttons.at(3)->y());
}

QTEST_MAIN(TestSchemeEditorParts)
#include "tst_scheme_editor_parts.moc"
