#include "TreeSite.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/ACSGroupTreeModel.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStandardItem>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace TreeSite;
using namespace VantaComponent;
using namespace VantaModel;

namespace {

struct Tree
{
    explicit Tree(const Site& site = Sample())
        : manager(site)
        , model(&manager, 0)
    {
        ctrl.SetDeviceManager(&manager);
        ctrl.SetModel(&model);
        view = ctrl.findChild<QTreeView*>(QStringLiteral("treeDevices"));
        search = ctrl.findChild<QLineEdit*>(QStringLiteral("edtSearch"));
        tester = std::make_unique<QAbstractItemModelTester>(
            view->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        ctrl.resize(260, 500);
        ctrl.show();
    }

    QString Rows() const { return TreeText(*view->model()); }
    QString Search(const QString& strText)
    {
        search->setText(strText);
        return Rows();
    }
    QModelIndex Row(int64_t iId, int iKind) const
    {
        return static_cast<QAbstractProxyModel*>(view->model())
            ->mapFromSource(model.FindNode(iId, iKind)->index());
    }
    QString EmptyText() const { return view->accessibleDescription(); }

    SiteDeviceManager manager;
    ACSGroupTreeModel model;
    GroupTreeCtrl ctrl;
    QTreeView* view = nullptr;
    QLineEdit* search = nullptr;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

/// The rule of the search, written out without regard to cost.
bool Hit(const QStandardItem* pItem, const QString& strText)
{
    if (pItem->text().toLower().contains(strText.toLower()))
        return true;
    bool bNumber = false;
    strText.toLongLong(&bNumber);
    if (!bNumber || pItem->data(NodeKindRole).toInt() == NodeKindGroup)
        return false;
    return QString::number(pItem->data(NodeIdRole).toLongLong()).startsWith(strText) ||
           (pItem->data(NodeKindRole).toInt() == NodeKindChannel &&
            QString::number(pItem->data(NodeNumberRole).toInt()).startsWith(strText));
}

bool HitBelow(const QStandardItem* pItem, const QString& strText)
{
    for (int i = 0; i < pItem->rowCount(); ++i) {
        if (Hit(pItem->child(i), strText) || HitBelow(pItem->child(i), strText))
            return true;
    }
    return false;
}

void WantedRows(const QStandardItem* pParent, const QString& strText, bool bBelowHit, int iDepth,
                QStringList& lines)
{
    for (int i = 0; i < pParent->rowCount(); ++i) {
        const QStandardItem* pItem = pParent->child(i);
        const bool bHit = bBelowHit || Hit(pItem, strText);
        if (!bHit && !HitBelow(pItem, strText))
            continue;
        lines << QString(iDepth * 2, QLatin1Char(' ')) + pItem->text();
        WantedRows(pItem, strText, bHit, iDepth + 1, lines);
    }
}

} // namespace

class tst_group_tree_search : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hitsAreShownWithTheirParents();
    void whatLiesBelowAHitIsShown();
    void caseAndSurroundingBlanksDoNotMatter();
    void numbersAndIdsAreFoundFromTheirStart();
    void otherScriptsAreFound();
    void signsOfPatternsAreLettersLikeOthers();
    void theTreeUnfoldsToTheHits();
    void emptyingTheFieldShowsAllAgain();
    void typingFiltersLetterByLetter();
    void theClearButtonEndsTheSearch();
    void anEmptyTreeSaysWhy();
    void theEmptyTextIsPaintedInTheMiddle();
    void aHitThatComesIsShownUnfolded();
    void aDeviceThatComesWithoutAHitStaysHidden();
    void removalsTakeHiddenParentsAlong();
    void aRenameShowsAndHides();
    void theSearchIsToldOncePerChangeOfWhatIsShown();
    void changesOutsideOfASearchAreNotToldAsSearch();
    void randomSearchesAndChangesAgreeWithThePlainRule();
};

void tst_group_tree_search::hitsAreShownWithTheirParents()
{
    Tree tree;
    QCOMPARE(tree.Search(QStringLiteral("lobby")),
             QStringLiteral("Main\n  Floor\n    North\n      Lobby door"));
    QCOMPARE(tree.Search(QStringLiteral("door")),
             QStringLiteral("Main\n  Floor\n    North\n      Lobby door\n      Back door\n"
                            "South\n  Garage door"));
}

void tst_group_tree_search::whatLiesBelowAHitIsShown()
{
    Tree tree;
    QCOMPARE(tree.Search(QStringLiteral("host")), QStringLiteral("Annex\n  Host\n    Window\n    Lamp"));
    QCOMPARE(tree.Search(QStringLiteral("floor")),
             QStringLiteral("Main\n  Floor\n    North\n      Contact\n      Lobby door\n      Back door\n"
                            "      Siren"));
}

void tst_group_tree_search::caseAndSurroundingBlanksDoNotMatter()
{
    Tree tree;
    QCOMPARE(tree.Search(QStringLiteral("  WINDOW ")), QStringLiteral("Annex\n  Host\n    Window"));
    QCOMPARE(tree.Search(QStringLiteral("y d")),
             QStringLiteral("Main\n  Floor\n    North\n      Lobby door"));
    QVERIFY(tree.Search(QStringLiteral("   ")).contains(QStringLiteral("Siren")));
}

void tst_group_tree_search::numbersAndIdsAreFoundFromTheirStart()
{
    Tree tree;
    QCOMPARE(tree.Search(QStringLiteral("7")), QStringLiteral("Annex\n  Host\n    Lamp"));     // number 7
    QCOMPARE(tree.Search(QStringLiteral("5")), QStringLiteral("South\n  Garage door"));        // number 5
    QCOMPARE(tree.Search(QStringLiteral("201")), QStringLiteral("Annex\n  Host\n    Window")); // channel id
    QCOMPARE(tree.Search(QStringLiteral("300")), QStringLiteral("South\n  Garage door"));      // device id
    QCOMPARE(tree.Search(QStringLiteral("04")), QString());                                    // not within
}

void tst_group_tree_search::otherScriptsAreFound()
{
    Site site = Sample();
    site.devices[0].channels[1].strName = QString::fromUtf8("\xE5\x8C\x97\xE9\x97\xA8"); // Chinese
    site.devices[2].channels[0].strName = QString::fromUtf8("\xC3\x84u\xC3\x9F"
                                                            "ere T\xC3\xBCr"); // German
    Tree tree(site);
    QVERIFY(tree.Search(QString::fromUtf8("\xE9\x97\xA8")).startsWith(QStringLiteral("Main")));
    QVERIFY(tree.Search(QString::fromUtf8("\xC3\xA4U\xC3\x9F")).startsWith(QStringLiteral("South")));
}

void tst_group_tree_search::signsOfPatternsAreLettersLikeOthers()
{
    Tree tree;
    for (const char* text : {".*", "%1", "[a-z]", "\\", "$", "*"})
        QCOMPARE(tree.Search(QLatin1String(text)), QString());
    QCOMPARE(tree.Search(QString(100'000, QLatin1Char('x'))), QString());
}

void tst_group_tree_search::theTreeUnfoldsToTheHits()
{
    Tree tree;
    tree.Search(QStringLiteral("door"));
    QVERIFY(tree.view->isExpanded(tree.Row(1, 1)));
    QVERIFY(tree.view->isExpanded(tree.Row(2, 1)));
    QVERIFY(tree.view->isExpanded(tree.Row(100, 2)));
    QVERIFY(tree.view->isExpanded(tree.Row(300, 2)));
    tree.Search(QStringLiteral("host")); // what lies below a hit waits folded
    QVERIFY(tree.view->isExpanded(tree.Row(3, 1)));
    QVERIFY(!tree.view->isExpanded(tree.Row(200, 2)));
}

void tst_group_tree_search::emptyingTheFieldShowsAllAgain()
{
    Tree tree;
    const QString strAll = tree.Rows();
    tree.Search(QStringLiteral("nothing at all"));
    QCOMPARE(tree.Search(QString()), strAll);
    QVERIFY(!tree.view->isExpanded(tree.Row(1, 1)));
}

void tst_group_tree_search::typingFiltersLetterByLetter()
{
    Tree tree;
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    QTest::keyClick(tree.search, Qt::Key_L);
    QVERIFY(tree.Rows().contains(QStringLiteral("Lamp")));
    QTest::keyClick(tree.search, Qt::Key_O);
    QVERIFY(!tree.Rows().contains(QStringLiteral("Lamp")));
    QVERIFY(tree.Rows().contains(QStringLiteral("Lobby")));
    QTest::keyClick(tree.search, Qt::Key_Backspace);
    QVERIFY(tree.Rows().contains(QStringLiteral("Lamp")));
    QCOMPARE(changes.count(), 3);
}

void tst_group_tree_search::theClearButtonEndsTheSearch()
{
    Tree tree;
    tree.Search(QStringLiteral("lamp"));
    QList<QToolButton*> buttons = tree.search->findChildren<QToolButton*>();
    QVERIFY(!buttons.isEmpty());
    QTest::mouseClick(buttons.last(), Qt::LeftButton);
    QCOMPARE(tree.search->text(), QString());
    QVERIFY(tree.Rows().contains(QStringLiteral("Siren")));
}

void tst_group_tree_search::anEmptyTreeSaysWhy()
{
    Tree tree;
    QCOMPARE(tree.EmptyText(), QString());
    tree.Search(QStringLiteral("zebra %1"));
    QVERIFY(tree.EmptyText().startsWith(QStringLiteral("No device matches \"zebra %1\"")));
    tree.Search(QString());
    QCOMPARE(tree.EmptyText(), QString());
    tree.ctrl.AddDeviceWhiteList(7);
    tree.model.EnsureBuilt();
    QVERIFY(tree.EmptyText().contains(QStringLiteral("can be chosen")));
    tree.manager.ApplySite(Site());
    QVERIFY(tree.EmptyText().contains(QStringLiteral("no devices")));
}

void tst_group_tree_search::theEmptyTextIsPaintedInTheMiddle()
{
    Tree tree;
    QVERIFY(QTest::qWaitForWindowExposed(&tree.ctrl));
    const auto inkRows = [&tree] {
        const QImage image = tree.view->viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QRgb ground = image.pixel(2, image.height() - 2);
        QVector<int> rows;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != ground) {
                    rows << y;
                    break;
                }
            }
        }
        return rows;
    };
    tree.Search(QStringLiteral("zebra"));
    const QVector<int> rows = inkRows();
    QVERIFY(!rows.isEmpty());
    const int iMiddle = tree.view->viewport()->height() / 2;
    QVERIFY2(
        qAbs((rows.first() + rows.last()) / 2 - iMiddle) < 12,
        qPrintable(QStringLiteral("%1 to %2 of %3").arg(rows.first()).arg(rows.last()).arg(2 * iMiddle)));
}

void tst_group_tree_search::aHitThatComesIsShownUnfolded()
{
    Tree tree;
    tree.Search(QStringLiteral("gate"));
    QCOMPARE(tree.Rows(), QString());
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    const QSignalSpy resets(tree.view->model(), &QAbstractItemModel::modelReset);
    QVERIFY(tree.manager.AddDevice(
        Device(400, QStringLiteral("West"), 12, 2,
               {Channel(401, 6, 1, QStringLiteral("Gate")), Channel(402, 6, 2, QStringLiteral("Hatch"))})));
    QCOMPARE(tree.Rows(), QStringLiteral("Main\n  Floor\n    West\n      Gate"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(resets.count(), 0);
    QVERIFY(tree.view->isExpanded(tree.Row(1, 1)));
    QVERIFY(tree.view->isExpanded(tree.Row(400, 2)));
    QCOMPARE(tree.EmptyText(), QString());
}

void tst_group_tree_search::aDeviceThatComesWithoutAHitStaysHidden()
{
    Tree tree;
    const QString strBefore = tree.Search(QStringLiteral("lobby"));
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"), 12, 2)));
    QVERIFY(tree.manager.RemoveDevice(300));
    tree.manager.SetDeviceOnline(100, false);
    QCOMPARE(tree.Rows(), strBefore);
    QCOMPARE(changes.count(), 0);
}

void tst_group_tree_search::removalsTakeHiddenParentsAlong()
{
    Tree tree;
    tree.Search(QStringLiteral("door"));
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"), 12, 2)));
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    QVERIFY(tree.manager.RemoveDevice(100)); // West keeps Floor in the model, but it is no hit
    QCOMPARE(tree.Rows(), QStringLiteral("South\n  Garage door"));
    QCOMPARE(changes.count(), 1);
}

void tst_group_tree_search::aRenameShowsAndHides()
{
    Tree tree;
    tree.Search(QStringLiteral("garden"));
    QVERIFY(tree.manager.RenameDevice(200, QStringLiteral("Garden host")));
    QCOMPARE(tree.Rows(), QStringLiteral("Annex\n  Garden host\n    Window\n    Lamp"));
    QVERIFY(tree.manager.RenameDevice(200, QStringLiteral("Host")));
    QCOMPARE(tree.Rows(), QString());
    tree.Search(QStringLiteral("lamp"));
    QVERIFY(tree.manager.RenameDevice(200, QStringLiteral("Lamp host"))); // from a parent of a hit to a hit
    QCOMPARE(tree.Rows(), QStringLiteral("Annex\n  Lamp host\n    Window\n    Lamp"));
    QVERIFY(tree.manager.RenameDevice(200, QStringLiteral("Host")));
    QCOMPARE(tree.Rows(), QStringLiteral("Annex\n  Host\n    Lamp"));
}

void tst_group_tree_search::theSearchIsToldOncePerChangeOfWhatIsShown()
{
    Tree tree;
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    tree.Search(QStringLiteral("door"));
    QCOMPARE(changes.count(), 1);
    tree.search->setText(QStringLiteral("door")); // the same
    QCOMPARE(changes.count(), 1);
    tree.search->setText(QStringLiteral("door ")); // another text
    QCOMPARE(changes.count(), 2);
    QVERIFY(tree.manager.RemoveDevice(300));
    QCOMPARE(changes.count(), 3);
    tree.ctrl.AddDeviceBlackList(15); // nothing that is shown
    tree.model.EnsureBuilt();
    QCOMPARE(changes.count(), 3);
    tree.ctrl.AddDeviceBlackList(12);
    tree.model.EnsureBuilt();
    QCOMPARE(changes.count(), 4);
}

void tst_group_tree_search::changesOutsideOfASearchAreNotToldAsSearch()
{
    Tree tree;
    const QSignalSpy changes(&tree.ctrl, &GroupTreeCtrl::SignalSearchChanged);
    QVERIFY(tree.manager.RemoveDevice(300));
    QVERIFY(tree.manager.AddDevice(Device(400, QStringLiteral("West"))));
    tree.ctrl.AddDeviceBlackList(15);
    tree.model.EnsureBuilt();
    QCOMPARE(changes.count(), 0);
}

void tst_group_tree_search::randomSearchesAndChangesAgreeWithThePlainRule()
{
    const quint32 iSeed = QRandomGenerator::global()->generate();
    QRandomGenerator random(iSeed);
    const auto name = [&random] {
        return QString(QLatin1Char(static_cast<char>('a' + random.bounded(4)))) +
               QLatin1Char(static_cast<char>('A' + random.bounded(4)));
    };
    const auto randomSite = [&random, &name] {
        Site site;
        site.groups << Group(1, name()) << Group(2, name(), 1) << Group(3, name());
        for (int iDevice = 0; iDevice < 8; ++iDevice) {
            if (random.bounded(4) == 0)
                continue;
            QVector<ChannelInfo> channels;
            for (int i = 0; i < 4; ++i) {
                if (random.bounded(4) != 0)
                    channels << Channel(1000 + 10 * iDevice + i, 6, i, name());
            }
            const int64_t iGroup = random.bounded(4);
            site.devices << Device(100 + iDevice, name(), 12, iGroup == 0 ? -1 : iGroup, channels);
        }
        if (random.bounded(2) == 0)
            std::reverse(site.devices.begin(), site.devices.end());
        return site;
    };
    Tree tree(randomSite());
    QString strText;
    for (int i = 0; i < 400; ++i) {
        if (random.bounded(3) == 0) {
            strText = random.bounded(5) == 0 ? QString::number(random.bounded(12))
                                             : name().left(1 + random.bounded(2));
            tree.search->setText(strText);
        } else {
            tree.manager.ApplySite(randomSite());
        }
        QStringList wanted;
        WantedRows(tree.model.invisibleRootItem(), strText, strText.isEmpty(), 0, wanted);
        QVERIFY2(tree.Rows() == wanted.join(QLatin1Char('\n')),
                 qPrintable(QStringLiteral("seed %1 round %2, \"%3\"\n%4\nwanted\n%5")
                                .arg(iSeed)
                                .arg(i)
                                .arg(strText, tree.Rows(), wanted.join(QLatin1Char('\n')))));
        tree.view->viewport()->repaint();
    }
}

QTEST_MAIN(tst_group_tree_search)
#include "tst_group_tree_search.moc"
