#include "client/HomePage.h"
#include "client/PluginTile.h"
#include "platform/LXGUI/Theme.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

PluginInfo Info(const QString& strKey)
{
    PluginInfo info;
    info.strKey = strKey;
    info.strTitle = QStringLiteral("Title of ") + strKey;
    info.strDescription = QStringLiteral("Description of ") + strKey;
    info.strIconPath = QStringLiteral("./Skin/theme1/homepage/alarmcfg.png");
    info.strHoverIconPath = info.strIconPath;
    return info;
}

} // namespace

class TestHomePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutModulesItSaysWhatIsMissing();
    void withoutDevicesItSaysWhatToDo();
    void everyModuleGetsATileWithTitleAndDescription();
    void aClickOpensTheModule();
    void spaceAndReturnOpenTheModuleWithTheFocus();
    void arrowKeysLeadFromTileToTile();
    void tilesShowTheirIcon();
    void theFocusIsShown();
    void aTileGrowsWithItsFont();
    void problemsAreListedAsPlainText();
};

void TestHomePage::withoutModulesItSaysWhatIsMissing()
{
    HomePage page;
    page.show();
    QVERIFY(page.findChild<QLabel*>(QStringLiteral("lblEmpty"))->isVisible());
    QVERIFY(page.Tiles().isEmpty());
    page.FocusFirstTile(); // no tile, no harm
    page.AddTile(Info(QStringLiteral("a")));
    QVERIFY(!page.findChild<QLabel*>(QStringLiteral("lblEmpty"))->isVisible());
}

void TestHomePage::withoutDevicesItSaysWhatToDo()
{
    HomePage page;
    page.show();
    const auto* const pLabel = page.findChild<QLabel*>(QStringLiteral("lblNoDevices"));
    QVERIFY(!pLabel->isVisible());
    page.ShowEmptySite(QStringLiteral("/data/<b>site</b>.json"));
    QVERIFY(pLabel->isVisible());
    QVERIFY2(pLabel->text().contains(QStringLiteral("/data/<b>site</b>.json")), qPrintable(pLabel->text()));
    QCOMPARE(pLabel->textFormat(), Qt::PlainText);
    page.ShowEmptySite(QString());
    QVERIFY(!pLabel->isVisible());
}

void TestHomePage::everyModuleGetsATileWithTitleAndDescription()
{
    HomePage page;
    page.AddTile(Info(QStringLiteral("a")));
    page.AddTile(Info(QStringLiteral("b")));
    QCOMPARE(page.Tiles().size(), 2);
    const PluginTile* pTile = page.Tiles().at(1);
    QCOMPARE(pTile->Key(), QStringLiteral("b"));
    QCOMPARE(pTile->text(), QStringLiteral("Title of b"));
    QCOMPARE(pTile->Description(), QStringLiteral("Description of b"));
    QCOMPARE(pTile->accessibleName(), QStringLiteral("Title of b"));
    QCOMPARE(pTile->accessibleDescription(), QStringLiteral("Description of b"));
}

void TestHomePage::aClickOpensTheModule()
{
    HomePage page;
    page.AddTile(Info(QStringLiteral("a")));
    page.AddTile(Info(QStringLiteral("b")));
    page.resize(900, 500);
    page.show();
    QSignalSpy open(&page, &HomePage::SignalOpen);
    QTest::mouseClick(page.Tiles().at(1), Qt::LeftButton);
    QCOMPARE(open.count(), 1);
    QCOMPARE(open.at(0).at(0).toString(), QStringLiteral("b"));
    QTest::mouseClick(page.Tiles().at(0), Qt::RightButton);
    QCOMPARE(open.count(), 1);
}

void TestHomePage::spaceAndReturnOpenTheModuleWithTheFocus()
{
    HomePage page;
    page.AddTile(Info(QStringLiteral("a")));
    page.show();
    QSignalSpy open(&page, &HomePage::SignalOpen);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(page.Tiles().at(0), key);
    }
    QCOMPARE(open.count(), 3);
    QVERIFY(page.Tiles().at(0)->focusPolicy() & Qt::TabFocus);
}

void TestHomePage::arrowKeysLeadFromTileToTile()
{
    HomePage page;
    for (const char* szKey : {"a", "b", "c"}) {
        page.AddTile(Info(QLatin1String(szKey)));
    }
    page.resize(1300, 500);
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    page.FocusFirstTile();
    QTest::keyClick(page.Tiles().at(0), Qt::Key_Right);
    QVERIFY(page.Tiles().at(1)->hasFocus());
    QTest::keyClick(page.Tiles().at(1), Qt::Key_End);
    QVERIFY(page.Tiles().at(2)->hasFocus());
    QTest::keyClick(page.Tiles().at(2), Qt::Key_Home);
    QVERIFY(page.Tiles().at(0)->hasFocus());
}

void TestHomePage::tilesShowTheirIcon()
{
    QTemporaryDir directory;
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString strIcon = directory.filePath(QStringLiteral("red.png"));
    QVERIFY(red.save(strIcon));
    PluginInfo info = Info(QStringLiteral("a"));
    info.strIconPath = strIcon;
    info.strHoverIconPath = strIcon;
    PluginTile tile(info, nullptr);
    const QImage picture = tile.grab().toImage();
    // The icon is 48 x 48, 16 from the left edge and in the middle of the height.
    const qreal ratio = picture.devicePixelRatio();
    const QPoint centre((QPointF(16 + 24, tile.height() / 2.0) * ratio).toPoint());
    QCOMPARE(picture.pixelColor(centre), QColor(Qt::red));
    QVERIFY(picture.pixelColor((QPointF(8, tile.height() / 2.0) * ratio).toPoint()) != QColor(Qt::red));
}

void TestHomePage::theFocusIsShown()
{
    HomePage page;
    page.AddTile(Info(QStringLiteral("a")));
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    PluginTile* pTile = page.Tiles().at(0);
    const QColor focus = LXGUI::Theme::Current().Colour(QStringLiteral("focus"));
    const auto leftEdgeShowsFocus = [pTile, focus] {
        const QImage picture = pTile->grab().toImage();
        for (int x = 0; x < 3; ++x) {
            if (picture.pixelColor(x, picture.height() / 2) == focus) {
                return true;
            }
        }
        return false;
    };
    page.setFocus();
    pTile->clearFocus();
    QVERIFY(!leftEdgeShowsFocus());
    pTile->setFocus(Qt::TabFocusReason);
    QVERIFY(pTile->hasFocus());
    QVERIFY(leftEdgeShowsFocus());
}

void TestHomePage::aTileGrowsWithItsFont()
{
    PluginTile tile(Info(QStringLiteral("a")), nullptr);
    const QSize before = tile.sizeHint();
    QFont font = tile.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    tile.setFont(font);
    QVERIFY(tile.sizeHint().width() > before.width());
    QVERIFY(tile.sizeHint().height() > before.height());
}

void TestHomePage::problemsAreListedAsPlainText()
{
    HomePage page;
    page.show();
    QVERIFY(!page.findChild<QWidget*>(QStringLiteral("wndProblems"))->isVisible());
    const QString strText = QStringLiteral("Module <b>x</b>: bad & worse");
    page.AddProblem(strText);
    QVERIFY(page.findChild<QWidget*>(QStringLiteral("wndProblems"))->isVisible());
    QCOMPARE(page.Problems(), QStringList{strText});
    bool bShown = false;
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    for (const QLabel* pLabel : labels) {
        bShown = bShown || (pLabel->text() == strText && pLabel->textFormat() == Qt::PlainText);
    }
    QVERIFY(bShown);
}

QTEST_MAIN(TestHomePage)
#include "tst_home_page.moc"
