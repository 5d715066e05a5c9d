#include "client/TileArrangement.h"

#include <QtTest>

class TestTileArrangement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asManyTilesStandInARowAsFit_data()
    {
        QTest::addColumn<int>("iWidth");
        QTest::addColumn<int>("iColumns");
        // Tiles of 100 with gaps of 16: n columns need n * 116 - 16.
        QTest::newRow("one and nothing more") << 100 << 1;
        QTest::newRow("a pixel short of two") << 215 << 1;
        QTest::newRow("exactly two") << 216 << 2;
        QTest::newRow("exactly three") << 332 << 3;
        QTest::newRow("room for more than there are") << 5000 << 5;
        QTest::newRow("narrower than a tile") << 40 << 1;
        QTest::newRow("no room") << 0 << 1;
        QTest::newRow("less than none") << -7 << 1;
    }
    void asManyTilesStandInARowAsFit()
    {
        QFETCH(int, iWidth);
        QFETCH(int, iColumns);
        const TileArrangement arrangement = TileArrangement::Of(5, iWidth, {100, 50});
        QCOMPARE(arrangement.iColumns, iColumns);
        QCOMPARE(arrangement.tiles.size(), 5);
        const int iRows = (5 + iColumns - 1) / iColumns;
        QCOMPARE(arrangement.iHeight, iRows * 50 + (iRows - 1) * TileArrangement::Gap);
    }
    void tilesNeitherOverlapNorLeaveTheRoom()
    {
        for (int iWidth = 1; iWidth < 700; iWidth += 13) {
            const TileArrangement arrangement = TileArrangement::Of(7, iWidth, {100, 50});
            for (int i = 0; i < 7; ++i) {
                QVERIFY(arrangement.tiles.at(i).left() >= 0);
                QVERIFY(arrangement.tiles.at(i).right() < iWidth);
                QVERIFY(arrangement.tiles.at(i).bottom() < arrangement.iHeight);
                for (int j = 0; j < i; ++j) {
                    QVERIFY(!arrangement.tiles.at(i).intersects(arrangement.tiles.at(j)));
                }
            }
        }
    }
    void noTilesTakeNoRoom()
    {
        const TileArrangement arrangement = TileArrangement::Of(0, 500, {100, 50});
        QCOMPARE(arrangement.iHeight, 0);
        QCOMPARE(arrangement.Neighbour(0, Qt::Key_Right), 0);
    }
    void arrowKeysLeadToTheNeighbourAndStopAtTheEdge_data()
    {
        QTest::addColumn<int>("iFrom");
        QTest::addColumn<int>("iKey");
        QTest::addColumn<int>("iTo");
        // Two columns: 0 1 / 2 3 / 4
        QTest::newRow("right") << 0 << int(Qt::Key_Right) << 1;
        QTest::newRow("right to the next row") << 1 << int(Qt::Key_Right) << 2;
        QTest::newRow("left") << 3 << int(Qt::Key_Left) << 2;
        QTest::newRow("left of the first") << 0 << int(Qt::Key_Left) << 0;
        QTest::newRow("right of the last") << 4 << int(Qt::Key_Right) << 4;
        QTest::newRow("down") << 1 << int(Qt::Key_Down) << 3;
        QTest::newRow("down to where no tile is") << 3 << int(Qt::Key_Down) << 3;
        QTest::newRow("up") << 4 << int(Qt::Key_Up) << 2;
        QTest::newRow("up from the first row") << 1 << int(Qt::Key_Up) << 1;
        QTest::newRow("home") << 3 << int(Qt::Key_Home) << 0;
        QTest::newRow("end") << 1 << int(Qt::Key_End) << 4;
        QTest::newRow("another key") << 1 << int(Qt::Key_A) << 1;
    }
    void arrowKeysLeadToTheNeighbourAndStopAtTheEdge()
    {
        QFETCH(int, iFrom);
        QFETCH(int, iKey);
        QFETCH(int, iTo);
        QCOMPARE(TileArrangement::Of(5, 216, {100, 50}).Neighbour(iFrom, iKey), iTo);
    }
};

QTEST_GUILESS_MAIN(TestTileArrangement)
#include "tst_tile_arrangement.moc"
