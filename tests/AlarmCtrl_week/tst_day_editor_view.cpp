#include "AlarmCtrl/QAlarmDayEditor.h"
#include "tests/AlarmCtrl_week/Bar.h"
#include "tests/AlarmCtrl_week/EventCounter.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QImage>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <functional>

using namespace DayTexts;

namespace {

/// A skin of our own in the working directory, which is put back afterwards.
class TemporarySkin
{
public:
    TemporarySkin()
        : m_before(QDir::currentPath())
    {
        QDir::setCurrent(m_directory.path());
        QDir().mkpath(QStringLiteral("Skin/theme1/AlarmCtrl"));
    }
    ~TemporarySkin() { QDir::setCurrent(m_before); }
    TemporarySkin(const TemporarySkin&) = delete;
    TemporarySkin& operator=(const TemporarySkin&) = delete;

    static void Put(const QString& name, const QColor& colour)
    {
        QImage image(32, 32, QImage::Format_ARGB32);
        image.fill(Qt::white);
        for (int y = 0; y < 18; ++y) {
            for (int x = 0; x < 18; ++x) {
                image.setPixelColor(x, y, colour);
            }
        }
        const QString file = QStringLiteral("Skin/theme1/AlarmCtrl/") + name;
        QFile::remove(file);
        QVERIFY(image.save(file));
    }

private:
    QString m_before;
    QTemporaryDir m_directory;
};

} // namespace

/// What a bar shows: its picture, its cursor, its tip.
class tst_DayEditorView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDragIsPreviewedWhileItLasts();
    void anEraseIsPreviewedAsAHoleToTheGround();
    void regionsAndGridAreDrawnOverTheStylesBackground();
    void aDisabledBarIsPaleAndAnEnabledOneIsNot();
    void theApplicationsStyleReachesTheDisplay();
    void theGroundIsWhateverTheParentShows();
    void everyEventOfTheDisplayIsHandled();
    void eventsOfOthersPass();
    void theCursorFollowsTheHover();
    void theCursorIsLoadedWhenItIsSet();
    void aMissingImageLeavesTheCursor();
    void theSeventhRegionShowsTheTipAboveThePointer();
    void theTipIsShownAfterTheMouseEvent();
    void erasingASeventhShowsTheTipToo();
    void settersAskForANewPicture();
};

void tst_DayEditorView::theDragIsPreviewedWhileItLasts()
{
    Bar bar;
    QCOMPARE(bar.PixelAt(9 * Hour), qRgb(255, 255, 255));
    bar.mouse.Hover(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Drag(bar.mouse.ColumnOf(10 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), Bar::Green);
    QCOMPARE(bar.PixelAt(10 * Hour), qRgb(255, 255, 255));
    bar.mouse.Drag(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(10 * Hour), Bar::Green);
    bar.mouse.Release(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), qRgb(255, 255, 255)); // nobody committed it
}

void tst_DayEditorView::anEraseIsPreviewedAsAHoleToTheGround()
{
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Hover(bar.mouse.ColumnOf(10 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(10 * Hour));
    bar.mouse.Drag(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), Bar::Green);
    QCOMPARE(bar.PixelAt(10 * Hour), qRgb(255, 255, 255));
    QCOMPARE(bar.PixelAt(11 * Hour), Bar::Green);
    QCOMPARE(bar.Picture().pixel(200, 3), Bar::Grid); // the hour line stays
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
}

void tst_DayEditorView::regionsAndGridAreDrawnOverTheStylesBackground()
{
    Bar bar;
    bar.setStyleSheet(QStringLiteral("#wndDisplay { background-color: #1A1D20; }"));
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.pixel(50, 12), qRgb(0x1A, 0x1D, 0x20));
    QCOMPARE(image.pixel(205, 12), Bar::Green);
    QCOMPARE(image.pixel(60, 12), Bar::Grid);
}

void tst_DayEditorView::aDisabledBarIsPaleAndAnEnabledOneIsNot()
{
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.setEnabled(false);
    const QColor pale(bar.PixelAt(9 * Hour));
    QVERIFY(pale != QColor(Bar::Green));
    QVERIFY(pale.lightness() > QColor(Bar::Green).lightness()); // the ground is white
    QVERIFY(pale != QColor(Qt::white));                         // and still shows when it is armed
    QCOMPARE(bar.PixelAt(13 * Hour), qRgb(255, 255, 255));
    bar.setEnabled(true);
    QCOMPARE(bar.PixelAt(9 * Hour), Bar::Green);
}

void tst_DayEditorView::theApplicationsStyleReachesTheDisplay()
{
    // The display takes no event, not even the one by which a widget first meets its style.
    const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    qApp->setStyleSheet(QStringLiteral("#wndDisplay { background-color: #1A1D20; }"));
    QWidget page;
    page.setStyleSheet(QStringLiteral("QPushButton { border: none; }"));
    auto* bar = new Bar(&page);
    page.resize(bar->size());
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QCOMPARE(page.grab().toImage().pixel(50, 12), qRgb(0x1A, 0x1D, 0x20));
    qApp->setStyleSheet(QStringLiteral("#wndDisplay { background-color: #F0F1F2; }"));
    QCOMPARE(page.grab().toImage().pixel(50, 12), qRgb(0xF0, 0xF1, 0xF2));
}

void tst_DayEditorView::theGroundIsWhateverTheParentShows()
{
    QWidget parent;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(1, 2, 3));
    parent.setPalette(palette);
    auto* bar = new Bar(&parent);
    parent.resize(bar->size());
    QCOMPARE(parent.grab().toImage().pixel(50, 12), qRgb(1, 2, 3));
}

void tst_DayEditorView::everyEventOfTheDisplayIsHandled()
{
    QWidget parent;
    auto* bar = new Bar(&parent);
    QWidget* display = bar->mouse.Display();
    EventCounter wheels(bar, QEvent::Wheel);
    EventCounter menus(bar, QEvent::ContextMenu);
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QVERIFY(QCoreApplication::sendEvent(display, &wheel));
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5));
    QVERIFY(QCoreApplication::sendEvent(display, &menu));
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
    QVERIFY(QCoreApplication::sendEvent(display, &help));
    QEvent own(QEvent::User);
    QVERIFY(QCoreApplication::sendEvent(display, &own));
    QCOMPARE(wheels.count, 0);
    QCOMPARE(menus.count, 0);
}

void tst_DayEditorView::eventsOfOthersPass()
{
    Bar bar;
    QObject stranger;
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove}) {
        QMouseEvent event(type, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
        QVERIFY(!bar.eventFilter(&stranger, &event));
        QVERIFY(!bar.eventFilter(&bar, &event));
        QCOMPARE(start.count(), 0);
    }
}

void tst_DayEditorView::theCursorFollowsTheHover()
{
    const TemporarySkin skin;
    TemporarySkin::Put(QStringLiteral("DrawTime.png"), Qt::blue);
    TemporarySkin::Put(QStringLiteral("CleanTime.png"), Qt::red);
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    const auto colour = [&bar] {
        const QImage image = bar.mouse.Display()->cursor().pixmap().toImage();
        return image.size() == QSize(18, 18) && image.pixelColor(0, 0) == image.pixelColor(17, 17)
                   ? image.pixelColor(0, 0)
                   : QColor();
    };
    bar.mouse.Hover(1);
    QCOMPARE(colour(), QColor(Qt::blue));
    QCOMPARE(bar.mouse.Display()->cursor().hotSpot(), QPoint(0, 18));
    bar.mouse.Hover(bar.mouse.ColumnOf(10 * Hour));
    QCOMPARE(colour(), QColor(Qt::red));
    QCOMPARE(bar.mouse.Display()->cursor().hotSpot(), QPoint(0, 18));
    bar.mouse.Press(bar.mouse.ColumnOf(10 * Hour));
    QCOMPARE(colour(), QColor(Qt::red));
    bar.mouse.Release(bar.mouse.ColumnOf(10 * Hour)); // back to the pen, even over a region
    QCOMPARE(colour(), QColor(Qt::blue));
}

void tst_DayEditorView::theCursorIsLoadedWhenItIsSet()
{
    const TemporarySkin skin;
    TemporarySkin::Put(QStringLiteral("DrawTime.png"), Qt::blue);
    Bar bar;
    QCOMPARE(bar.mouse.Display()->cursor().shape(), Qt::ArrowCursor); // not in the constructor
    bar.mouse.Hover(1);
    QCOMPARE(bar.mouse.Display()->cursor().pixmap().toImage().pixelColor(9, 9), QColor(Qt::blue));
    TemporarySkin::Put(QStringLiteral("DrawTime.png"), Qt::yellow);
    bar.mouse.Hover(2);
    QCOMPARE(bar.mouse.Display()->cursor().pixmap().toImage().pixelColor(9, 9), QColor(Qt::yellow));
}

void tst_DayEditorView::aMissingImageLeavesTheCursor()
{
    const TemporarySkin skin;
    TemporarySkin::Put(QStringLiteral("DrawTime.png"), Qt::blue);
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Hover(1);
    bar.mouse.Hover(bar.mouse.ColumnOf(10 * Hour)); // no rubber in this skin
    QCOMPARE(bar.mouse.Display()->cursor().pixmap().toImage().pixelColor(9, 9), QColor(Qt::blue));
    bar.mouse.Pull(bar.mouse.ColumnOf(10 * Hour), bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 36000][39600 43200]"));
}

void tst_DayEditorView::theSeventhRegionShowsTheTipAboveThePointer()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime(SixRegions());
    QSignalSpy tip(&bar, &QAlarmDayEditor::SignalInternalShowTip);
    const int from = bar.mouse.ColumnOf(20 * Hour) + 1;
    const int to = bar.mouse.ColumnOf(21 * Hour);
    bar.mouse.Pull(from, to);
    QCOMPARE(Regions(bar), Text(SixRegions()));
    QCOMPARE(tip.count(), 1);
    // Of the pointer's second, not of the mark that it is rounded to.
    const qint64 column = qint64{86399} * to / 480 * 480 / 86399;
    QCOMPARE(tip.first().at(0).toPoint(),
             bar.mouse.Display()->mapToGlobal(QPoint(static_cast<int>(column), 0)));
    QCOMPARE(tip.first().at(1).toString(), QStringLiteral("6 regions at most."));
}

void tst_DayEditorView::theTipIsShownAfterTheMouseEvent()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime(SixRegions());
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    bar.mouse.Click(bar.mouse.ColumnOf(20 * Hour) + 1);
    QVERIFY(!QToolTip::isVisible());
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QStringLiteral("6 regions at most."));
    QToolTip::hideText();
}

void tst_DayEditorView::erasingASeventhShowsTheTipToo()
{
    AlarmDefenceTime_t stored = SixRegions();
    stored.last().End = 15 * Hour;
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime(stored);
    QSignalSpy tip(&bar, &QAlarmDayEditor::SignalInternalShowTip);
    bar.mouse.Click(bar.mouse.ColumnOf(13 * Hour) + 1);
    QCOMPARE(tip.count(), 1);
    QCOMPARE(Regions(bar), Text(stored));
}

void tst_DayEditorView::settersAskForANewPicture()
{
    Bar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    EventCounter paints(bar.mouse.Display(), QEvent::Paint);
    const auto repaints = [&](const std::function<void()>& act) {
        QCoreApplication::sendPostedEvents(&bar, QEvent::UpdateRequest);
        paints.count = 0;
        act();
        return QTest::qWaitFor([&] { return paints.count > 0; });
    };
    QVERIFY(repaints([&] { bar.SetDefenceTime({{0, 5}}); }));
    QVERIFY(repaints([&] { bar.ApplyEdit(); }));
    QVERIFY(repaints([&] { bar.SetEditSource(nullptr); }));
    QVERIFY(repaints([&] { bar.UpdateDisplay(); }));
    QVERIFY(repaints([&] { bar.mouse.Press(100); }));
    QVERIFY(repaints([&] { bar.mouse.Drag(101); }));
    QVERIFY(repaints([&] { bar.mouse.Release(102); }));
}

QTEST_MAIN(tst_DayEditorView)
#include "tst_day_editor_view.moc"
