#include "AlarmCtrl/QAlarmDayItem.h"

#include <QFontMetrics>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QTest>

namespace {

constexpr QRgb Ground = 0xFF00FF00; // a colour that the scale never uses
constexpr QRgb Tick = 0xFF000000;
constexpr QRgb Shadow = 0xFF414141;
const QColor LabelColour(0xDD, 0xDD, 0xDD);
const QColor DisabledColour(0x78, 0x78, 0x78);
constexpr int Height = 23;

QImage Picture(QWidget& scale, qreal ratio = 1)
{
    QImage image(scale.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Ground);
    scale.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// The rows of one column, from the given one to the bottom, all of this colour and the one above not.
bool IsTick(const QImage& image, int x, int top, QRgb colour)
{
    for (int y = top; y < image.height(); ++y) {
        if (image.pixel(x, y) != colour) {
            return false;
        }
    }
    return image.pixel(x, top - 1) != colour;
}

/// Where the labels belong, painted by a widget too: an image may have another resolution than a screen.
class LabelsOnly : public QWidget
{
public:
    LabelsOnly(const QWidget& scale, const QColor& colour)
        : m_colour(colour)
    {
        resize(scale.size());
        setFont(scale.font());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const int w = width() - 20;
        QFont labelFont = font();
        labelFont.setPointSize(9);
        QPainter painter(this);
        painter.setFont(labelFont);
        painter.setPen(m_colour);
        for (int i = 0; i <= 24; ++i) {
            const QString text = QString::number(i);
            const int textWidth = painter.fontMetrics().horizontalAdvance(text);
            int x = i * w / 24 + 10 - textWidth / 2;
            if (x < 0) {
                x = 0;
            }
            if (x + textWidth > 20 + w) {
                x = 20 + w - textWidth;
            }
            painter.drawText(x, 10, text);
        }
    }

private:
    QColor m_colour;
};

QImage ExpectedLabels(const QWidget& scale, const QColor& colour)
{
    LabelsOnly labels(scale, colour);
    return Picture(labels);
}

QRect Used(const QImage& image)
{
    QRect used;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != Ground) {
                used |= QRect(x, y, 1, 1);
            }
        }
    }
    return used;
}

} // namespace

class tst_DayItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScaleIsTwentyThreePixelsHighWithAMarginOfTwenty();
    void hourTicksStandOnTheHoursWithTheirShadowOnTheRight_data();
    void hourTicksStandOnTheHoursWithTheirShadowOnTheRight();
    void halfHourTicksHaveTheDarkLineOnTheLeft_data();
    void halfHourTicksHaveTheDarkLineOnTheLeft();
    void theLastHourTickStandsOnePixelInside();
    void labelsAreTheHoursAtTheirPlaces_data();
    void labelsAreTheHoursAtTheirPlaces();
    void aScaleNarrowerThan221DrawsNothing();
    void theFirstAndLastLabelNeverLeaveTheWidget();
    void ticksAreWholePixelsAtHigherRatios_data();
    void ticksAreWholePixelsAtHigherRatios();
};

void tst_DayItem::theScaleIsTwentyThreePixelsHighWithAMarginOfTwenty()
{
    QAlarmDayItem scale;
    QCOMPARE(scale.minimumHeight(), Height);
    QCOMPARE(scale.maximumHeight(), Height);
    QCOMPARE(scale.Margin(), 20);
}

void tst_DayItem::hourTicksStandOnTheHoursWithTheirShadowOnTheRight_data()
{
    QTest::addColumn<int>("bar");
    QTest::newRow("least") << 201;
    QTest::newRow("480") << 480;
    QTest::newRow("most") << 504;
}

void tst_DayItem::hourTicksStandOnTheHoursWithTheirShadowOnTheRight()
{
    QFETCH(int, bar);
    QAlarmDayItem scale;
    scale.resize(bar + 20, Height);
    const QImage image = Picture(scale);
    for (int hour = 0; hour < 24; ++hour) {
        const int x = hour * bar / 24 + 10;
        QVERIFY2(IsTick(image, x, 16, Tick), qPrintable(QString::number(hour)));
        QVERIFY2(IsTick(image, x + 1, 16, Shadow), qPrintable(QString::number(hour)));
    }
}

void tst_DayItem::halfHourTicksHaveTheDarkLineOnTheLeft_data()
{
    hourTicksStandOnTheHoursWithTheirShadowOnTheRight_data();
}

void tst_DayItem::halfHourTicksHaveTheDarkLineOnTheLeft()
{
    QFETCH(int, bar);
    QAlarmDayItem scale;
    scale.resize(bar + 20, Height);
    const QImage image = Picture(scale);
    for (int k = 0; k < 24; ++k) {
        const int x = (2 * k + 1) * bar / 48 + 10;
        QVERIFY2(IsTick(image, x - 1, 20, Tick), qPrintable(QString::number(k)));
        QVERIFY2(IsTick(image, x, 20, Shadow), qPrintable(QString::number(k)));
        QCOMPARE(image.pixel(x - 2, 22), Ground);
        QCOMPARE(image.pixel(x + 1, 22), Ground);
    }
}

void tst_DayItem::theLastHourTickStandsOnePixelInside()
{
    QAlarmDayItem scale;
    scale.resize(500, Height);
    const QImage image = Picture(scale);
    QCOMPARE(image.pixel(488, 22), Ground);
    QVERIFY(IsTick(image, 489, 16, Tick)); // 480 - 1 + 10
    QVERIFY(IsTick(image, 490, 16, Shadow));
    QCOMPARE(image.pixel(491, 22), Ground);
}

void tst_DayItem::labelsAreTheHoursAtTheirPlaces_data()
{
    QTest::addColumn<int>("bar");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("least") << 201 << true;
    QTest::newRow("most") << 504 << true;
    QTest::newRow("disabled") << 504 << false;
}

void tst_DayItem::labelsAreTheHoursAtTheirPlaces()
{
    QFETCH(int, bar);
    QFETCH(bool, enabled);
    QAlarmDayItem scale;
    scale.resize(bar + 20, Height);
    scale.setEnabled(enabled);
    const QRect labels(0, 0, scale.width(), 15); // above the ticks
    const QImage expected = ExpectedLabels(scale, enabled ? LabelColour : DisabledColour).copy(labels);
    QVERIFY(!Used(expected).isEmpty());
    QCOMPARE(Picture(scale).copy(labels), expected);
}

void tst_DayItem::aScaleNarrowerThan221DrawsNothing()
{
    QAlarmDayItem scale;
    scale.resize(220, Height);
    QVERIFY(Used(Picture(scale)).isEmpty());
    scale.resize(221, Height);
    QVERIFY(!Used(Picture(scale)).isEmpty());
}

void tst_DayItem::theFirstAndLastLabelNeverLeaveTheWidget()
{
    // A font so wide that "24" would stick out on the right and "0" on the left.
    QAlarmDayItem scale;
    QFont wide = scale.font();
    wide.setStretch(400);
    wide.setLetterSpacing(QFont::AbsoluteSpacing, 30);
    scale.setFont(wide);
    scale.resize(524, Height);
    const QImage expected = ExpectedLabels(scale, LabelColour).copy(0, 0, 524, 15);
    QCOMPARE(Picture(scale).copy(0, 0, 524, 15), expected);
    QFont label = wide;
    label.setPointSize(9);
    QVERIFY(QFontMetrics(label).horizontalAdvance(QStringLiteral("0")) / 2 > 10);
    QVERIFY(QFontMetrics(label).horizontalAdvance(QStringLiteral("24")) / 2 > 10);
}

void tst_DayItem::ticksAreWholePixelsAtHigherRatios_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void tst_DayItem::ticksAreWholePixelsAtHigherRatios()
{
    QFETCH(qreal, ratio);
    QAlarmDayItem scale;
    scale.resize(500, Height);
    const QImage image = Picture(scale, ratio);
    const int bottom = image.height() - 1;
    int ticks = 0;
    for (int x = 0; x < image.width(); ++x) {
        const QRgb colour = image.pixel(x, bottom);
        QVERIFY2(colour == Tick || colour == Shadow || colour == Ground, qPrintable(QString::number(x)));
        ticks += colour == Tick && image.pixel(x - 1, bottom) != Tick ? 1 : 0;
    }
    QCOMPARE(ticks, 25 + 24);
}

QTEST_MAIN(tst_DayItem)
#include "tst_day_item.moc"
