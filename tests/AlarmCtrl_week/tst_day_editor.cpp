#include "AlarmCtrl/QAlarmDayEditor.h"
#include "BarMouse.h"

#include <QApplication>
#include <QBoxLayout>
#include <QContextMenuEvent>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QImage>
#include <QMetaMethod>
#include <QObject>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <functional>
#include <limits>

namespace {

constexpr int Hour = 3600;
constexpr QRgb Green = 0xFF3AAA24;
constexpr QRgb Grid = 0xFFDDDDDD;

QString Text(const AlarmDefenceTime_t& regions)
{
    QString text;
    for (const AlarmTimeRegion& region : regions) {
        text += QStringLiteral("[%1 %2]").arg(region.Begin).arg(region.End);
    }
    return text;
}

QString Regions(const QAlarmDayEditor& bar)
{
    AlarmDefenceTime_t regions;
    bar.GetDefenceTime(regions);
    return Text(regions);
}

AlarmDefenceTime_t SixRegions()
{
    AlarmDefenceTime_t regions;
    for (int hour = 1; hour <= 11; hour += 2) {
        regions.append({hour * Hour, (hour + 1) * Hour});
    }
    return regions;
}

/// A bar whose display is 480 pixels wide, an hour every 20, and whose drags are committed like in a week
/// plan.
class Bar : public QAlarmDayEditor
{
    Q_OBJECT

public:
    explicit Bar(QWidget* parent = nullptr)
        : QAlarmDayEditor(parent)
        , mouse(this)
    {
        mouse.Display()->setFixedWidth(480);
        resize(sizeHint().width(), 24);
        layout()->activate();
    }
    void CommitDrags()
    {
        connect(this, &QAlarmDayEditor::SignalEditReady, this, &QAlarmDayEditor::ApplyEdit);
    }
    /// The display on a white ground.
    QImage Picture() const
    {
        QImage image(mouse.Display()->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        mouse.Display()->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }
    QRgb PixelAt(int second) const { return Picture().pixel(second * 480 / 86400 + 2, 3); }

    BarMouse mouse;
};

/// Counts what reaches an object.
class EventCounter : public QObject
{
    Q_OBJECT

public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }
    int count = 0;

private:
    QEvent::Type m_type;
};

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

class tst_DayEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormHasItsNamesAndSizes();
    void aNameGivenBeforehandIsTheCallersBusiness();
    void metaTypesAreRegisteredUnderTheirNames();
    void signalsStandInTheirDeclaredOrder();

    void aListIsShownAndGivenBackUnchanged_data();
    void aListIsShownAndGivenBackUnchanged();

    void aDragReportsStartMovesAndEnd();
    void aBarAloneShowsADragAndKeepsNothing();
    void aClickPaintsTheQuarterHourAroundIt();
    void aClickOnAMarkChangesNothing();
    void aDragBeyondBothEdgesPaintsTheWholeDay();
    void paintingNextToARegionFusesWithIt();
    void hoveringOverARegionDecidesToErase();
    void theSnappedEdgesOfARegionErase();
    void aPressDecidesNothingByItself();
    void theHoverDoesNotChangeDuringADrag();
    void theEraseFlagLastsUntilTheCommitAndNoLonger();
    void otherButtonsDoNothing();
    void aMoveWithoutTheLeftButtonHeldDoesNotDrag();
    void aSecondPressRestartsTheDrag();
    void theSecondPressOfADoubleClickStartsADragToo();
    void aDisabledBarTakesNoDrag();

    void theDragIsPreviewedWhileItLasts();
    void anEraseIsPreviewedAsAHoleToTheGround();
    void regionsAndGridAreDrawnOverTheStylesBackground();
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
    void touchingRegionsRefuseSilently();
    void checkingChangesNothing();

    void anEditSourceLendsItsDrag();
    void anEditSourceLendsItsEraseFlag();
    void aBarAsItsOwnSourceHasNone();
    void aDestroyedSourceIsForgotten();
    void settersAskForANewPicture();

    void theDetailButtonIsNamedAfterItsDay();
};

void tst_DayEditor::theFormHasItsNamesAndSizes()
{
    QAlarmDayEditor bar;
    QCOMPARE(bar.objectName(), QStringLiteral("QAlarmDayEditor"));
    QCOMPARE(bar.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(bar.size(), QSize(556, 20));
    const auto* layout = bar.findChild<QHBoxLayout*>(QStringLiteral("horizontalLayout"));
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->stretch(0), 1000);
    QCOMPARE(layout->stretch(1), 1);
    QCOMPARE(layout->stretch(2), 1);

    const QWidget* display = layout->itemAt(0)->widget();
    QCOMPARE(display->objectName(), QStringLiteral("wndDisplay"));
    QCOMPARE(display->metaObject()->className(), "QWidget");
    QCOMPARE(display->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(display->minimumWidth(), 200);
    QCOMPARE(display->maximumWidth(), 504);
    QVERIFY(display->hasMouseTracking());

    const auto* detail = qobject_cast<QPushButton*>(layout->itemAt(1)->widget());
    QVERIFY(detail != nullptr);
    QCOMPARE(detail->objectName(), QStringLiteral("btnDetail"));
    QCOMPARE(detail->minimumSize(), QSize(18, 18));
    QCOMPARE(detail->maximumSize(), QSize(18, 18));
    QCOMPARE(detail->focusPolicy(), Qt::NoFocus);
    QCOMPARE(detail->text(), QString());

    const QSpacerItem* spacer = layout->itemAt(2)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(0, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_DayEditor::aNameGivenBeforehandIsTheCallersBusiness()
{
    QAlarmDayEditor bar;
    bar.setObjectName(QStringLiteral("editor4"));
    bar.SetDefenceTime({});
    QCOMPARE(bar.objectName(), QStringLiteral("editor4"));
}

void tst_DayEditor::metaTypesAreRegisteredUnderTheirNames()
{
    const QAlarmDayEditor first;
    const QAlarmDayEditor second;
    QCOMPARE(QMetaType::type("AlarmDefenceTime_t"), qMetaTypeId<AlarmDefenceTime_t>());
    QCOMPARE(QMetaType::type("QAlarmDayEditor*"), qMetaTypeId<QAlarmDayEditor*>());
    QVERIFY(QMetaType::type("AlarmDefenceTime_t") != QMetaType::UnknownType);
    QVERIFY(QMetaType::type("QAlarmDayEditor*") != QMetaType::UnknownType);
}

void tst_DayEditor::signalsStandInTheirDeclaredOrder()
{
    QList<QByteArray> signatures;
    QList<QByteArray> ownSlots;
    const QMetaObject& meta = QAlarmDayEditor::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        (method.methodType() == QMetaMethod::Signal ? signatures : ownSlots) << method.methodSignature();
    }
    QCOMPARE(signatures, (QList<QByteArray>{
                             "SignalCopySettingToOthers(int,AlarmDefenceTime_t)",
                             "SignalEditStart(QAlarmDayEditor*)", "SignalEditing(QAlarmDayEditor*)",
                             "SignalEditReady(QAlarmDayEditor*)", "SignalInternalShowTip(QPoint,QString)"}));
    QCOMPARE(ownSlots, (QList<QByteArray>{"OnDetail()", "OnShowTip(QPoint,QString)"}));
}

void tst_DayEditor::aListIsShownAndGivenBackUnchanged_data()
{
    QTest::addColumn<AlarmDefenceTime_t>("regions");
    QTest::newRow("empty") << AlarmDefenceTime_t{};
    QTest::newRow("unsorted") << AlarmDefenceTime_t{{9 * Hour, 10 * Hour}, {Hour, 2 * Hour}};
    QTest::newRow("overlapping") << AlarmDefenceTime_t{{Hour, 3 * Hour}, {2 * Hour, 4 * Hour}};
    QTest::newRow("negative") << AlarmDefenceTime_t{{-7, -3}, {std::numeric_limits<int32_t>::min(), 0}};
    QTest::newRow("beyond the day") << AlarmDefenceTime_t{{80000, 86400}, {90000, 100000}};
    QTest::newRow("twenty") << AlarmDefenceTime_t(20, AlarmTimeRegion{5, 6});
}

void tst_DayEditor::aListIsShownAndGivenBackUnchanged()
{
    QFETCH(AlarmDefenceTime_t, regions);
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime(regions);
    QVERIFY(!bar.Picture().isNull());
    bar.mouse.Hover(100);
    bar.mouse.Click(0); // a mark: covers nothing
    QCOMPARE(Regions(bar), Text(regions));
}

void tst_DayEditor::aDragReportsStartMovesAndEnd()
{
    Bar bar;
    QStringList order;
    const auto note = [&](const QString& name) {
        return [&order, name, &bar](QAlarmDayEditor* sender) {
            order << (sender == &bar ? name : QStringLiteral("stranger"));
        };
    };
    connect(&bar, &QAlarmDayEditor::SignalEditStart, this, note(QStringLiteral("start")));
    connect(&bar, &QAlarmDayEditor::SignalEditing, this, note(QStringLiteral("editing")));
    connect(&bar, &QAlarmDayEditor::SignalEditReady, this, note(QStringLiteral("ready")));
    bar.mouse.Hover(10);
    QVERIFY(order.isEmpty());
    bar.mouse.Press(10);
    bar.mouse.Drag(20);
    bar.mouse.Drag(30);
    bar.mouse.Release(40);
    bar.mouse.Hover(50);
    QCOMPARE(order, (QStringList{QStringLiteral("start"), QStringLiteral("editing"),
                                 QStringLiteral("editing"), QStringLiteral("ready")}));
}

void tst_DayEditor::aBarAloneShowsADragAndKeepsNothing()
{
    Bar bar;
    bar.mouse.Pull(bar.mouse.ColumnOf(8 * Hour), bar.mouse.ColumnOf(9 * Hour));
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditor::aClickPaintsTheQuarterHourAroundIt()
{
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Click(bar.mouse.ColumnOf(10 * Hour + 7 * 60));
    QCOMPARE(Regions(bar), QStringLiteral("[36000 36900]"));
}

void tst_DayEditor::aClickOnAMarkChangesNothing()
{
    // No bar of the form's widths has a column that is exactly 10:00:00; column 2118 of 5083 is one.
    constexpr int width = 5083;
    constexpr int x = 2118;
    QCOMPARE(qint64{86399} * x / width, qint64{36000});
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Display()->setFixedWidth(width);
    bar.resize(bar.sizeHint().width(), 24);
    bar.layout()->activate();
    QCOMPARE(bar.mouse.Display()->width(), width);
    bar.mouse.Click(x);
    QCOMPARE(Regions(bar), QString());
    bar.mouse.Click(x + 1);
    QCOMPARE(Regions(bar), QStringLiteral("[36000 36900]"));
}

void tst_DayEditor::aDragBeyondBothEdgesPaintsTheWholeDay()
{
    Bar bar;
    bar.CommitDrags();
    bar.mouse.Pull(0, 9999);
    QCOMPARE(Regions(bar), QStringLiteral("[0 86399]"));
    bar.SetDefenceTime({});
    bar.mouse.Pull(480, -9999);
    QCOMPARE(Regions(bar), QStringLiteral("[0 86399]"));
}

void tst_DayEditor::paintingNextToARegionFusesWithIt()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 9 * Hour}});
    // From the middle of the quarter hour after the region, so that the hover does not erase, back to its
    // edge.
    const int from = bar.mouse.ColumnOf(9 * Hour + 50 * 60);
    bar.mouse.Pull(from, bar.mouse.ColumnOf(9 * Hour));
    QCOMPARE(Regions(bar), QStringLiteral("[28800 36000]"));
}

void tst_DayEditor::hoveringOverARegionDecidesToErase()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Pull(bar.mouse.ColumnOf(10 * Hour), bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 36000][39600 43200]"));
}

void tst_DayEditor::theSnappedEdgesOfARegionErase()
{
    // Stored 08:05 to 08:40, drawn 08:00 to 08:45.
    Bar bar;
    bar.CommitDrags();
    const AlarmDefenceTime_t stored{{8 * Hour + 300, 8 * Hour + 2400}};
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour)); // the first column at or after 08:00:00
    QCOMPARE(Regions(bar), QStringLiteral("[29700 31200]"));
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour + 2700) - 1); // the last one before 08:45:00
    QCOMPARE(Regions(bar), QStringLiteral("[29100 30600]"));
    bar.SetDefenceTime(stored);
    bar.mouse.Click(bar.mouse.ColumnOf(8 * Hour) - 1);
    QCOMPARE(Regions(bar), QStringLiteral("[27900 28800][29100 31200]"));
}

void tst_DayEditor::aPressDecidesNothingByItself()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    const int inside = bar.mouse.ColumnOf(10 * Hour) + 1;
    bar.mouse.Hover(1); // outside: a paint
    bar.mouse.Press(inside);
    bar.mouse.Release(inside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
    bar.mouse.Hover(inside); // inside: an erase, wherever the press then is
    const int outside = bar.mouse.ColumnOf(20 * Hour) + 1;
    bar.mouse.Press(outside);
    bar.mouse.Release(outside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
    bar.mouse.Press(outside); // the flag is clear again
    bar.mouse.Release(outside);
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200][72000 72900]"));
}

void tst_DayEditor::theHoverDoesNotChangeDuringADrag()
{
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Hover(bar.mouse.ColumnOf(7 * Hour) + 1);
    bar.mouse.Press(bar.mouse.ColumnOf(7 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(10 * Hour)); // over the region
    bar.mouse.Release(bar.mouse.ColumnOf(10 * Hour));
    QCOMPARE(Regions(bar), QStringLiteral("[25200 43200]"));
}

void tst_DayEditor::theEraseFlagLastsUntilTheCommitAndNoLonger()
{
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    QString atCommit;
    connect(&bar, &QAlarmDayEditor::SignalEditReady, this, [&] {
        bar.ApplyEdit();
        atCommit = Regions(bar);
    });
    const int from = bar.mouse.ColumnOf(10 * Hour);
    bar.mouse.Pull(from, bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(atCommit, QStringLiteral("[28800 36000][39600 43200]"));
    // The same drag applied once more after the release is a paint.
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
}

void tst_DayEditor::otherButtonsDoNothing()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    QSignalSpy ready(&bar, &QAlarmDayEditor::SignalEditReady);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        bar.mouse.Hover(100);
        bar.mouse.Press(100, button);
        bar.mouse.Drag(200, button);
        bar.mouse.Release(200, button);
    }
    QCOMPARE(start.count(), 0);
    QCOMPARE(ready.count(), 0);
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditor::aMoveWithoutTheLeftButtonHeldDoesNotDrag()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy editing(&bar, &QAlarmDayEditor::SignalEditing);
    bar.mouse.Hover(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Drag(300, Qt::RightButton);
    bar.mouse.Drag(300, Qt::NoButton);
    QCOMPARE(editing.count(), 0);
    bar.mouse.Drag(300, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(editing.count(), 1);
}

void tst_DayEditor::aSecondPressRestartsTheDrag()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    bar.mouse.Hover(1);
    bar.mouse.Press(bar.mouse.ColumnOf(2 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(5 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(20 * Hour) + 1);
    bar.mouse.Release(bar.mouse.ColumnOf(20 * Hour) + 1);
    QCOMPARE(start.count(), 2);
    QCOMPARE(Regions(bar), QStringLiteral("[72000 72900]"));
}

void tst_DayEditor::theSecondPressOfADoubleClickStartsADragToo()
{
    Bar bar;
    bar.CommitDrags();
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    bar.mouse.Click(bar.mouse.ColumnOf(2 * Hour) + 1);
    bar.mouse.PressAgain(bar.mouse.ColumnOf(4 * Hour) + 1);
    bar.mouse.Drag(bar.mouse.ColumnOf(5 * Hour));
    bar.mouse.Release(bar.mouse.ColumnOf(5 * Hour) - 1);
    QCOMPARE(start.count(), 2);
    QCOMPARE(Regions(bar), QStringLiteral("[7200 8100][14400 18000]"));
}

void tst_DayEditor::aDisabledBarTakesNoDrag()
{
    Bar bar;
    bar.CommitDrags();
    bar.setEnabled(false);
    QSignalSpy start(&bar, &QAlarmDayEditor::SignalEditStart);
    QSignalSpy ready(&bar, &QAlarmDayEditor::SignalEditReady);
    // Events that a window system would hold back, straight at the filter.
    for (const QEvent::Type type :
         {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(100, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(bar.eventFilter(bar.mouse.Display(), &event));
    }
    QCOMPARE(start.count(), 0);
    QCOMPARE(ready.count(), 0);
}

void tst_DayEditor::theDragIsPreviewedWhileItLasts()
{
    Bar bar;
    QCOMPARE(bar.PixelAt(9 * Hour), qRgb(255, 255, 255));
    bar.mouse.Hover(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(8 * Hour));
    bar.mouse.Drag(bar.mouse.ColumnOf(10 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), Green);
    QCOMPARE(bar.PixelAt(10 * Hour), qRgb(255, 255, 255));
    bar.mouse.Drag(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(10 * Hour), Green);
    bar.mouse.Release(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), qRgb(255, 255, 255)); // nobody committed it
}

void tst_DayEditor::anEraseIsPreviewedAsAHoleToTheGround()
{
    Bar bar;
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.mouse.Hover(bar.mouse.ColumnOf(10 * Hour));
    bar.mouse.Press(bar.mouse.ColumnOf(10 * Hour));
    bar.mouse.Drag(bar.mouse.ColumnOf(11 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), Green);
    QCOMPARE(bar.PixelAt(10 * Hour), qRgb(255, 255, 255));
    QCOMPARE(bar.PixelAt(11 * Hour), Green);
    QCOMPARE(bar.Picture().pixel(200, 3), Grid); // the hour line stays
    QCOMPARE(Regions(bar), QStringLiteral("[28800 43200]"));
}

void tst_DayEditor::regionsAndGridAreDrawnOverTheStylesBackground()
{
    Bar bar;
    bar.setStyleSheet(QStringLiteral("#wndDisplay { background-color: #1A1D20; }"));
    bar.SetDefenceTime({{8 * Hour, 12 * Hour}});
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.pixel(50, 12), qRgb(0x1A, 0x1D, 0x20));
    QCOMPARE(image.pixel(205, 12), Green);
    QCOMPARE(image.pixel(60, 12), Grid);
}

void tst_DayEditor::theApplicationsStyleReachesTheDisplay()
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

void tst_DayEditor::theGroundIsWhateverTheParentShows()
{
    QWidget parent;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(1, 2, 3));
    parent.setPalette(palette);
    auto* bar = new Bar(&parent);
    parent.resize(bar->size());
    QCOMPARE(parent.grab().toImage().pixel(50, 12), qRgb(1, 2, 3));
}

void tst_DayEditor::everyEventOfTheDisplayIsHandled()
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

void tst_DayEditor::eventsOfOthersPass()
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

void tst_DayEditor::theCursorFollowsTheHover()
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

void tst_DayEditor::theCursorIsLoadedWhenItIsSet()
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

void tst_DayEditor::aMissingImageLeavesTheCursor()
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

void tst_DayEditor::theSeventhRegionShowsTheTipAboveThePointer()
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

void tst_DayEditor::theTipIsShownAfterTheMouseEvent()
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

void tst_DayEditor::erasingASeventhShowsTheTipToo()
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

void tst_DayEditor::touchingRegionsRefuseSilently()
{
    const AlarmDefenceTime_t stored{{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}};
    Bar bar;
    bar.CommitDrags();
    bar.SetDefenceTime(stored);
    QSignalSpy tip(&bar, &QAlarmDayEditor::SignalInternalShowTip);
    bar.mouse.Click(bar.mouse.ColumnOf(20 * Hour) + 1);
    QCOMPARE(Regions(bar), Text(stored));
    QCOMPARE(tip.count(), 0);
    bar.mouse.Click(bar.mouse.ColumnOf(9 * Hour + 60));
    QCOMPARE(Regions(bar), QStringLiteral("[28800 32400][33300 36000]"));
}

void tst_DayEditor::checkingChangesNothing()
{
    Bar bar;
    bar.mouse.Pull(bar.mouse.ColumnOf(8 * Hour), bar.mouse.ColumnOf(9 * Hour) - 1);
    QVERIFY(bar.CheckEdit());
    QCOMPARE(Regions(bar), QString());
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[28800 32400]"));

    bar.SetDefenceTime(SixRegions());
    bar.mouse.Pull(bar.mouse.ColumnOf(20 * Hour) + 1, bar.mouse.ColumnOf(21 * Hour) - 1);
    QSignalSpy tip(&bar, &QAlarmDayEditor::SignalInternalShowTip);
    QVERIFY(!bar.CheckEdit());
    QCOMPARE(tip.count(), 1); // the check warns as well
}

void tst_DayEditor::anEditSourceLendsItsDrag()
{
    Bar source;
    Bar bar;
    bar.SetDefenceTime({{Hour, 2 * Hour}});
    bar.SetEditSource(&source);
    source.mouse.Hover(source.mouse.ColumnOf(8 * Hour));
    source.mouse.Press(source.mouse.ColumnOf(8 * Hour));
    source.mouse.Drag(source.mouse.ColumnOf(10 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), Green);
    QCOMPARE(bar.PixelAt(Hour), Green);
    QVERIFY(bar.CheckEdit());
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[3600 7200][28800 36000]"));
    QCOMPARE(Regions(source), QString());
    bar.SetDefenceTime({});
    bar.SetEditSource(nullptr);
    QVERIFY(bar.PixelAt(9 * Hour) != Green);
    bar.ApplyEdit(); // its own drag is none
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditor::anEditSourceLendsItsEraseFlag()
{
    Bar source;
    Bar bar;
    source.SetDefenceTime({{8 * Hour, 12 * Hour}});
    bar.SetDefenceTime({{6 * Hour, 18 * Hour}});
    bar.SetEditSource(&source);
    source.mouse.Hover(source.mouse.ColumnOf(9 * Hour));
    source.mouse.Press(source.mouse.ColumnOf(9 * Hour));
    source.mouse.Drag(source.mouse.ColumnOf(10 * Hour) - 1);
    QCOMPARE(bar.PixelAt(9 * Hour), qRgb(255, 255, 255));
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[21600 32400][36000 64800]"));
}

void tst_DayEditor::aBarAsItsOwnSourceHasNone()
{
    Bar source;
    Bar bar;
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    bar.SetEditSource(&source);
    QCoreApplication::sendPostedEvents(&bar, QEvent::UpdateRequest);
    EventCounter paints(bar.mouse.Display(), QEvent::Paint);
    bar.SetEditSource(&bar);
    QCoreApplication::sendPostedEvents(&bar, QEvent::UpdateRequest);
    QCOMPARE(paints.count, 0);

    source.mouse.Hover(100);
    source.mouse.Press(100);
    bar.mouse.Pull(bar.mouse.ColumnOf(8 * Hour), bar.mouse.ColumnOf(9 * Hour) - 1);
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[28800 32400]"));
    bar.SetEditSource(nullptr);
    QTRY_VERIFY(paints.count > 0);
}

void tst_DayEditor::aDestroyedSourceIsForgotten()
{
    Bar bar;
    {
        Bar source;
        bar.SetEditSource(&source);
        source.mouse.Hover(100);
        source.mouse.Press(100);
    }
    QVERIFY(!bar.Picture().isNull());
    QVERIFY(bar.CheckEdit());
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QString());
}

void tst_DayEditor::settersAskForANewPicture()
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

void tst_DayEditor::theDetailButtonIsNamedAfterItsDay()
{
    Bar bar;
    const auto* detail = bar.findChild<QPushButton*>(QStringLiteral("btnDetail"));
    QCOMPARE(detail->accessibleName(), QStringLiteral("Details"));
    bar.SetDayName(QStringLiteral("Monday"));
    QCOMPARE(detail->accessibleName(), QStringLiteral("Details for Monday"));
    QCOMPARE(bar.mouse.Display()->accessibleName(), QStringLiteral("Monday"));
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&bar, &language);
    QCOMPARE(detail->accessibleName(), QStringLiteral("Details for Monday"));
    QCOMPARE(detail->text(), QString());
}

QTEST_MAIN(tst_DayEditor)
#include "tst_day_editor.moc"
