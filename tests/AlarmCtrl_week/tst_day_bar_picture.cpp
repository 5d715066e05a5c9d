#include "AlarmCtrl/DayBarPicture.h"

#include <QObject>
#include <QSet>
#include <QTest>

#include <limits>

namespace {

constexpr int Hour = 3600;
constexpr QRgb Green = 0xFF3AAA24;
constexpr QRgb Grid = 0xFFDDDDDD;
constexpr QRgb Nothing = 0;

DayBarPicture::Content Content(const AlarmDefenceTime_t& regions,
                               const std::optional<DefenceTime::Drag>& drag = {})
{
    return {regions, drag, QColor(QStringLiteral("#3AAA24")), QColor(QStringLiteral("#DDDDDD"))};
}

QImage Draw(int width, const AlarmDefenceTime_t& regions, const std::optional<DefenceTime::Drag>& drag = {},
            qreal ratio = 1)
{
    return DayBarPicture::Draw(QSize(width, 24), ratio, Content(regions, drag));
}

/// One letter for each column: the whole column must be of one colour. 'g' region, '|' grid, '.' nothing.
QString Columns(const QImage& image)
{
    QString text;
    for (int x = 0; x < image.width(); ++x) {
        const QRgb colour = image.pixel(x, 0);
        for (int y = 1; y < image.height(); ++y) {
            if (image.pixel(x, y) != colour) {
                return QStringLiteral("column %1 changes at row %2").arg(x).arg(y);
            }
        }
        text += colour == Green     ? QLatin1Char('g')
                : colour == Grid    ? QLatin1Char('|')
                : colour == Nothing ? QLatin1Char('.')
                                    : QLatin1Char('?');
    }
    return text;
}

/// A bar of 480 pixels has an hour every 20; built by hand from the columns from..to-1 that are armed.
QString Expected(const QVector<QPair<int, int>>& armed, int width = 480)
{
    QString text(width, QLatin1Char('.'));
    for (const auto& [from, to] : armed) {
        for (int x = from; x < to; ++x) {
            text[x] = QLatin1Char('g');
        }
    }
    for (int hour = 0; hour < 24; ++hour) {
        text[hour * width / 24] = QLatin1Char('|');
    }
    text[width - 1] = QLatin1Char('|');
    return text;
}

} // namespace

class tst_DayBarPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyDayIsTransparentBetweenItsGridLines();
    void thereAreTwentyFiveGridLinesAndTheLastStandsInside_data();
    void thereAreTwentyFiveGridLinesAndTheLastStandsInside();
    void regionsAreFilledFromTheirFirstColumnToBeforeTheirLast();
    void regionsAreRoundedOutwardsInThePictureOnly();
    void theWholeDayFillsEveryColumn();
    void aPaintIsPreviewedInTheRegionColour();
    void aDragToTheLeftIsPreviewedToo();
    void anEraseIsPreviewedAsATransparentHole();
    void theHoleLeavesTheGridLines();
    void aClickOnAMarkPreviewsNothing();
    void thePictureIsThirtyTwoBitArgb();
    void theRatioMultipliesThePixels_data();
    void theRatioMultipliesThePixels();
    void atTwoEveryEdgeIsDrawnInDevicePixels();
    void noPixelIsABlendAtAnyRatio_data();
    void noPixelIsABlendAtAnyRatio();
    void brokenListsAreShownWithoutACrash_data();
    void brokenListsAreShownWithoutACrash();
    void moreThanSixRegionsAreAllShown();
    void anEmptySizeGivesNoPicture();
    void aSinglePixelIsAGridLine();
};

void tst_DayBarPicture::anEmptyDayIsTransparentBetweenItsGridLines()
{
    QCOMPARE(Columns(Draw(480, {})), Expected({}));
}

void tst_DayBarPicture::thereAreTwentyFiveGridLinesAndTheLastStandsInside_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("least") << 200;
    QTest::newRow("most") << 504;
    QTest::newRow("uneven") << 391;
}

void tst_DayBarPicture::thereAreTwentyFiveGridLinesAndTheLastStandsInside()
{
    QFETCH(int, width);
    const QString columns = Columns(Draw(width, {}));
    QCOMPARE(columns, Expected({}, width));
    QCOMPARE(columns.count(QLatin1Char('|')), 25);
    QCOMPARE(columns.back(), QLatin1Char('|'));
}

void tst_DayBarPicture::regionsAreFilledFromTheirFirstColumnToBeforeTheirLast()
{
    // 08:00 and 09:15 of 480 pixels: 160.0019 and 185.002
    QCOMPARE(Columns(Draw(480, {{8 * Hour, 9 * Hour + 900}})), Expected({{160, 185}}));
    QCOMPARE(Columns(Draw(480, {{8 * Hour, 9 * Hour}, {20 * Hour, 21 * Hour}})),
             Expected({{160, 180}, {400, 420}}));
}

void tst_DayBarPicture::regionsAreRoundedOutwardsInThePictureOnly()
{
    const QString rounded = Columns(Draw(480, {{8 * Hour + 1, 9 * Hour + 1}}));
    QCOMPARE(rounded, Expected({{160, 185}}));
    // A second is less than a pixel; its quarter hour is five.
    QCOMPARE(Columns(Draw(480, {{7 * Hour + 5, 7 * Hour + 6}})), Expected({{140, 145}}));
}

void tst_DayBarPicture::theWholeDayFillsEveryColumn()
{
    QCOMPARE(Columns(Draw(480, {{0, 86399}})), Expected({{0, 480}}));
}

void tst_DayBarPicture::aPaintIsPreviewedInTheRegionColour()
{
    const DefenceTime::Drag drag{10 * Hour + 60, 11 * Hour + 60, false};
    // 10:00 to 11:15: 200 to 225
    QCOMPARE(Columns(Draw(480, {{8 * Hour, 9 * Hour}}, drag)), Expected({{160, 180}, {200, 225}}));
}

void tst_DayBarPicture::aDragToTheLeftIsPreviewedToo()
{
    const DefenceTime::Drag drag{11 * Hour + 60, 10 * Hour + 60, false};
    QCOMPARE(Columns(Draw(480, {}, drag)), Expected({{200, 225}}));
}

void tst_DayBarPicture::anEraseIsPreviewedAsATransparentHole()
{
    const DefenceTime::Drag drag{10 * Hour + 60, 11 * Hour + 60, true};
    QCOMPARE(Columns(Draw(480, {{8 * Hour, 12 * Hour}}, drag)), Expected({{160, 200}, {225, 240}}));
}

void tst_DayBarPicture::theHoleLeavesTheGridLines()
{
    const QImage image = Draw(480, {{0, 86399}}, DefenceTime::Drag{0, 86399, true});
    QCOMPARE(Columns(image), Expected({}));
}

void tst_DayBarPicture::aClickOnAMarkPreviewsNothing()
{
    QCOMPARE(Columns(Draw(480, {}, DefenceTime::Drag{36000, 36000, false})), Expected({}));
}

void tst_DayBarPicture::thePictureIsThirtyTwoBitArgb()
{
    const QImage image = Draw(480, {});
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(480, 24));
    QCOMPARE(image.pixel(1, 0), Nothing);
}

void tst_DayBarPicture::theRatioMultipliesThePixels_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("1") << 1.0 << QSize(504, 24);
    QTest::newRow("1.25") << 1.25 << QSize(630, 30);
    QTest::newRow("1.5") << 1.5 << QSize(756, 36);
    QTest::newRow("2") << 2.0 << QSize(1008, 48);
}

void tst_DayBarPicture::theRatioMultipliesThePixels()
{
    QFETCH(qreal, ratio);
    const QImage image = Draw(504, {}, {}, ratio);
    QTEST(image.size(), "pixels");
    QCOMPARE(image.devicePixelRatio(), ratio);
}

void tst_DayBarPicture::atTwoEveryEdgeIsDrawnInDevicePixels()
{
    const QString columns = Columns(Draw(240, {{8 * Hour, 9 * Hour + 900}}, {}, 2));
    QString expected(480, QLatin1Char('.'));
    for (int x = 160; x < 185; ++x) {
        expected[x] = QLatin1Char('g');
    }
    for (int hour = 0; hour <= 24; ++hour) {
        const int x = hour == 24 ? 478 : hour * 20; // a line is two device pixels wide
        expected[x] = expected[x + 1] = QLatin1Char('|');
    }
    QCOMPARE(columns, expected);
}

void tst_DayBarPicture::noPixelIsABlendAtAnyRatio_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::newRow(qPrintable(QString::number(ratio))) << ratio;
    }
}

void tst_DayBarPicture::noPixelIsABlendAtAnyRatio()
{
    QFETCH(qreal, ratio);
    const DefenceTime::Drag erase{10 * Hour, 11 * Hour, true};
    const QString columns = Columns(Draw(333, {{8 * Hour, 12 * Hour}}, erase, ratio));
    QCOMPARE(QSet<QChar>(columns.cbegin(), columns.cend()),
             (QSet<QChar>{QLatin1Char('g'), QLatin1Char('|'), QLatin1Char('.')}));
}

void tst_DayBarPicture::brokenListsAreShownWithoutACrash_data()
{
    QTest::addColumn<AlarmDefenceTime_t>("regions");
    QTest::addColumn<QString>("columns");
    constexpr int32_t lowest = std::numeric_limits<int32_t>::min();
    constexpr int32_t highest = std::numeric_limits<int32_t>::max();
    QTest::newRow("unsorted") << AlarmDefenceTime_t{{9 * Hour, 10 * Hour}, {2 * Hour, 3 * Hour}}
                              << Expected({{40, 60}, {180, 200}});
    QTest::newRow("overlapping") << AlarmDefenceTime_t{{2 * Hour, 4 * Hour}, {3 * Hour, 5 * Hour}}
                                 << Expected({{40, 100}});
    QTest::newRow("negative") << AlarmDefenceTime_t{{-7200, -3600}} << Expected({});
    QTest::newRow("from before midnight") << AlarmDefenceTime_t{{-7200, 3600}} << Expected({{0, 20}});
    QTest::newRow("beyond the day") << AlarmDefenceTime_t{{23 * Hour, 100000}} << Expected({{460, 480}});
    QTest::newRow("behind the day") << AlarmDefenceTime_t{{90000, 100000}} << Expected({});
    QTest::newRow("reversed") << AlarmDefenceTime_t{{9 * Hour, 2 * Hour}} << Expected({});
    QTest::newRow("extreme") << AlarmDefenceTime_t{{lowest, highest}, {highest, lowest}}
                             << Expected({{0, 480}});
}

void tst_DayBarPicture::brokenListsAreShownWithoutACrash()
{
    QFETCH(AlarmDefenceTime_t, regions);
    QTEST(Columns(Draw(480, regions)), "columns");
}

void tst_DayBarPicture::moreThanSixRegionsAreAllShown()
{
    AlarmDefenceTime_t regions;
    QVector<QPair<int, int>> armed;
    for (int hour = 0; hour < 24; hour += 2) {
        regions.append({hour * Hour, (hour + 1) * Hour});
        armed.append({hour * 20, (hour + 1) * 20});
    }
    QCOMPARE(Columns(Draw(480, regions)), Expected(armed));
}

void tst_DayBarPicture::anEmptySizeGivesNoPicture()
{
    QVERIFY(DayBarPicture::Draw(QSize(0, 24), 1, Content({{0, 86399}})).isNull());
    QVERIFY(DayBarPicture::Draw(QSize(480, 0), 2, Content({})).isNull());
    QVERIFY(DayBarPicture::Draw(QSize(-5, -5), 1.5, Content({})).isNull());
    QVERIFY(DayBarPicture::Draw(QSize(), 1, Content({})).isNull());
}

void tst_DayBarPicture::aSinglePixelIsAGridLine()
{
    QCOMPARE(Columns(Draw(1, {{0, 86399}})), QStringLiteral("|"));
    QCOMPARE(DayBarPicture::Draw(QSize(1, 1), -3, Content({})).size(), QSize(1, 1));
    QCOMPARE(Columns(Draw(1, {}, {}, 3)), QStringLiteral("|||"));
}

QTEST_MAIN(tst_DayBarPicture)
#include "tst_day_bar_picture.moc"
