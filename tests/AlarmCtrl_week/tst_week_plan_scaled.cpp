#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "AlarmCtrl/QAlarmDefenceTimeEditor.h"
#include "BarMouse.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QSet>
#include <QTest>
#include <QtMath>

namespace {

constexpr double Scale = TEST_SCALE_PERCENT / 100.0;
constexpr QRgb Green = 0xFF3AAA24;
constexpr QRgb Grid = 0xFFDDDDDD;

/// The room that a control leaves to its text, and what the text needs.
struct Room
{
    QSize given;
    QSize needed;
};

Room RoomOf(const QWidget& widget)
{
    const QFontMetrics metrics(widget.font(), &widget);
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return {label->contentsRect().size(), {metrics.horizontalAdvance(label->text()), metrics.height()}};
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        // A line edit keeps two pixels to each side of its text.
        return {edit->contentsRect().size(), {metrics.horizontalAdvance(edit->text()) + 4, metrics.height()}};
    }
    return {widget.size(), widget.sizeHint().boundedTo(widget.maximumSize())};
}

/// Every control whose text has less room than it needs.
QString CutTexts(const QWidget& window)
{
    QStringList cut;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool showsText = qobject_cast<const QLabel*>(widget) != nullptr ||
                               qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<const QLineEdit*>(widget) != nullptr;
        if (!showsText || !widget->isVisible()) {
            continue;
        }
        const Room room = RoomOf(*widget);
        if (room.given.width() < room.needed.width() || room.given.height() < room.needed.height()) {
            cut << QStringLiteral("%1 has %2x%3 and needs %4x%5")
                       .arg(widget->objectName())
                       .arg(room.given.width())
                       .arg(room.given.height())
                       .arg(room.needed.width())
                       .arg(room.needed.height());
        }
        if (!window.rect().contains(QRect(widget->mapTo(&window, QPoint(0, 0)), widget->size()))) {
            cut << widget->objectName() + QStringLiteral(" sticks out");
        }
    }
    return cut.join(QLatin1Char(';'));
}

} // namespace

/// The week plan on a display of higher density; main() asks for it before the application starts.
class tst_WeekPlanScaled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsScaled();
    void theDialogShowsAllItsTexts();
    void theDialogGrowsWithAFontOfTwiceTheSize();
    void theDialogTakesLongerTexts();
    void theBarsAreDrawnInDevicePixels();
    void noBarIsBlurredByItsPlaceInTheWindow();
    void aPreviewOnALockedBarIsAsCrisp();
};

void tst_WeekPlanScaled::everythingIsScaled()
{
    QAlarmDefenceTimeEditor editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QCOMPARE(editor.devicePixelRatioF(), Scale);
    QCOMPARE(editor.grab().size(), editor.size() * Scale);
}

void tst_WeekPlanScaled::theDialogShowsAllItsTexts()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetTitle(QStringLiteral("Time Editor"));
    dialog.SetRegions({{0, 86399}});
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.devicePixelRatioF(), Scale);
    QCOMPARE(CutTexts(dialog), QString());
}

void tst_WeekPlanScaled::theDialogGrowsWithAFontOfTwiceTheSize()
{
    QAlarmDayDetailEditor dialog;
    QFont large = dialog.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    dialog.setFont(large);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(CutTexts(*dialog.GetCentralWidget()), QString());
}

void tst_WeekPlanScaled::theDialogTakesLongerTexts()
{
    QAlarmDayDetailEditor dialog;
    const auto boxes = dialog.GetCentralWidget()->findChildren<QAbstractButton*>();
    for (QAbstractButton* box : boxes) {
        box->setText(box->text() + QStringLiteral(" translated"));
    }
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(CutTexts(dialog), QString());
}

void tst_WeekPlanScaled::theBarsAreDrawnInDevicePixels()
{
    QAlarmDefenceTimeEditor editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    auto* bar = editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor2"));
    bar->SetDefenceTime({{8 * 3600, 12 * 3600}});
    const BarMouse mouse(bar);
    mouse.Display()->setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::red);
    mouse.Display()->setPalette(palette);
    const QImage image = mouse.Display()->grab().toImage();
    const int width = qRound(mouse.Display()->width() * Scale);
    QCOMPARE(image.width(), width);
    // Columns of the device, from the contract's arithmetic on the device's width.
    const int left = static_cast<int>(qint64{28800} * width / 86399);
    const int right = static_cast<int>(qint64{43200} * width / 86399);
    const QSet<int> lines = [width] {
        QSet<int> columns;
        for (int hour = 0; hour <= 24; ++hour) {
            // One and a half pixels are drawn as two.
            const int x = qMin(hour * width / 24, width - 2);
            columns << x << x + 1;
        }
        return columns;
    }();
    for (int x = 0; x < width; ++x) {
        const QRgb expected = lines.contains(x)        ? Grid
                              : x >= left && x < right ? Green
                                                       : QColor(Qt::red).rgba();
        for (int y = 0; y < image.height(); ++y) {
            QVERIFY2(image.pixel(x, y) == expected, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
        }
    }
}

void tst_WeekPlanScaled::noBarIsBlurredByItsPlaceInTheWindow()
{
    QAlarmDefenceTimeEditor editor;
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::red);
    editor.setPalette(palette);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    for (int day = 0; day < 7; ++day) {
        editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(day))
            ->SetDefenceTime({{8 * 3600, 12 * 3600}});
    }
    const QImage window = editor.grab().toImage();
    for (int day = 0; day < 7; ++day) {
        const QWidget* display =
            BarMouse(editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(day))).Display();
        const QPoint corner = display->mapTo(&editor, QPoint(0, 0));
        // The pixels that lie in the bar wholly; a ratio that is no whole number halves some at its edges.
        const int left = qCeil(corner.x() * Scale);
        const int right = qFloor((corner.x() + display->width()) * Scale);
        const int top = qCeil(corner.y() * Scale);
        const int bottom = qFloor((corner.y() + display->height()) * Scale);
        int green = 0;
        int lines = 0;
        for (int x = left; x < right; ++x) {
            const QRgb colour = window.pixel(x, top);
            QVERIFY2(colour == Green || colour == Grid || colour == QColor(Qt::red).rgba(),
                     qPrintable(QStringLiteral("day %1, column %2: %3").arg(day).arg(x).arg(colour, 0, 16)));
            for (int y = top; y < bottom; ++y) {
                QVERIFY2(window.pixel(x, y) == colour, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
            }
            green += colour == Green ? 1 : 0;
            lines += colour == Grid ? 1 : 0;
        }
        // Two columns for each of the 25 lines, one of which a halved edge may take.
        QVERIFY2(lines == 50 || lines == 49, qPrintable(QString::number(lines)));
        const int hours = static_cast<int>(display->width() * Scale * 4 / 24);
        QVERIFY2(qAbs(green - (hours - 8)) <= 2,
                 qPrintable(QStringLiteral("%1 for %2").arg(green).arg(hours)));
    }
}

void tst_WeekPlanScaled::aPreviewOnALockedBarIsAsCrisp()
{
    QAlarmDefenceTimeEditor editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    editor.findChild<QAbstractButton*>(QStringLiteral("btnAll"))->click();
    const BarMouse mouse(editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor2")));
    mouse.Hover(100);
    mouse.Press(100);
    mouse.Drag(199);
    const auto picture = [&editor](int day) {
        auto* bar = editor.findChild<QAlarmDayEditor*>(QStringLiteral("editor%1").arg(day));
        return BarMouse(bar).Display()->grab().toImage();
    };
    const QImage own = picture(2);
    QVERIFY(own.pixel(qRound(150 * Scale), 5) == Green);
    for (int day = 0; day < 7; ++day) {
        QCOMPARE(picture(day), own);
    }
    mouse.Release(199);
}

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(Scale));
    QApplication application(argc, argv);
    tst_WeekPlanScaled test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_week_plan_scaled.moc"
