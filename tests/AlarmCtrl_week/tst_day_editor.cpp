#include "AlarmCtrl/QAlarmDayEditor.h"
#include "tests/AlarmCtrl_week/Bar.h"
#include "tests/AlarmCtrl_week/EventCounter.h"

#include <QBoxLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace DayTexts;

/// The bar of a day as its owner handles it.
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
    void touchingRegionsRefuseSilently();
    void checkingChangesNothing();
    void anEditSourceLendsItsDrag();
    void anEditSourceLendsItsEraseFlag();
    void aBarAsItsOwnSourceHasNone();
    void aDestroyedSourceIsForgotten();
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
    QCOMPARE(bar.PixelAt(9 * Hour), Bar::Green);
    QCOMPARE(bar.PixelAt(Hour), Bar::Green);
    QVERIFY(bar.CheckEdit());
    bar.ApplyEdit();
    QCOMPARE(Regions(bar), QStringLiteral("[3600 7200][28800 36000]"));
    QCOMPARE(Regions(source), QString());
    bar.SetDefenceTime({});
    bar.SetEditSource(nullptr);
    QVERIFY(bar.PixelAt(9 * Hour) != Bar::Green);
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
