#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmDayEditor.h"
#include "tests/AlarmCtrl_week/Bar.h"
#include "tests/AlarmCtrl_week/DialogRows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using namespace DayTexts;

namespace {

class PaintWatcher : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
    bool painted = false;
};

void Accept(QAlarmDayDetailEditor& dialog)
{
    dialog.GetButton(QDialogButtonBox::Ok)->click();
}

} // namespace

/// What a click on a bar's detail button leads to.
class tst_DayEditorDetail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theButtonOpensTheDialogWithTheBarsRegions();
    void onlyTheOwnDayIsTicked_data();
    void onlyTheOwnDayIsTicked();
    void acceptingReplacesTheOwnDay();
    void acceptingWithOtherDaysTellsThem();
    void acceptingOnlyForOthersLeavesTheOwnDay();
    void acceptingForNoDayDoesNothing();
    void cancellingDoesNothing();
    void aReversedRowKeepsTheOldRegions();
    void aDayOfSevenRegionsIsEmptiedByOk();
    void aBarWithoutADayTellsEveryTickedDay();
    void theBarShowsTheNewRegionsAtOnce();
    void theDialogIsDeletedInEveryCase();
    void theBarMayBeDestroyedWhileTheDialogRuns();
    void theBarMayBeDestroyedByWhoIsTold();

private:
    /// Opens the dialog, acts on it and returns once it is over.
    void Open(const std::function<void(QAlarmDayDetailEditor&)>& act);

    std::unique_ptr<QAlarmDayEditor> m_bar;
    QPointer<QAlarmDayDetailEditor> m_lastDialog;
    QString m_ownWhenTold;
};

void tst_DayEditorDetail::init()
{
    m_bar = std::make_unique<QAlarmDayEditor>();
    m_bar->setObjectName(QStringLiteral("editor3"));
}

void tst_DayEditorDetail::Open(const std::function<void(QAlarmDayDetailEditor&)>& act)
{
    bool acted = false;
    QTimer::singleShot(0, this, [&] {
        m_lastDialog = qobject_cast<QAlarmDayDetailEditor*>(QApplication::activeModalWidget());
        QVERIFY(m_lastDialog != nullptr);
        acted = true;
        act(*m_lastDialog);
    });
    m_bar->findChild<QPushButton*>(QStringLiteral("btnDetail"))->click();
    QVERIFY(acted);
}

void tst_DayEditorDetail::theButtonOpensTheDialogWithTheBarsRegions()
{
    m_bar->SetDefenceTime({{8 * Hour + 1, 9 * Hour + 2}});
    Open([this](QAlarmDayDetailEditor& dialog) {
        QCOMPARE(dialog.GetTitle(), QStringLiteral("Time Editor"));
        QCOMPARE(dialog.parentWidget(), m_bar.get());
        AlarmDefenceTime_t shown;
        dialog.GetRegions(shown);
        QCOMPARE(Text(shown), QStringLiteral("[28801 32402]"));
        dialog.reject();
    });
}

void tst_DayEditorDetail::onlyTheOwnDayIsTicked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("mask");
    QTest::newRow("Sunday") << QStringLiteral("editor0") << 1;
    QTest::newRow("Wednesday") << QStringLiteral("editor3") << 8;
    QTest::newRow("Saturday") << QStringLiteral("editor6") << 64;
    QTest::newRow("seven") << QStringLiteral("editor7") << 0;
    QTest::newRow("no digit") << QStringLiteral("QAlarmDayEditor") << 0;
    QTest::newRow("no name") << QString() << 0;
}

void tst_DayEditorDetail::onlyTheOwnDayIsTicked()
{
    QFETCH(QString, name);
    QFETCH(int, mask);
    m_bar->setObjectName(name);
    Open([mask](QAlarmDayDetailEditor& dialog) {
        QCOMPARE(dialog.GetDayMask(), mask);
        dialog.reject();
    });
}

void tst_DayEditorDetail::acceptingReplacesTheOwnDay()
{
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0, 1), QTime(9, 0, 2));
        Accept(dialog);
    });
    QCOMPARE(Regions(*m_bar), QStringLiteral("[28801 32402]"));
    QCOMPARE(copied.count(), 0);
}

void tst_DayEditorDetail::acceptingWithOtherDaysTellsThem()
{
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    connect(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers, this,
            [this] { m_ownWhenTold = Regions(*m_bar); });
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
        dialog.SetDayMask(127);
        Accept(dialog);
    });
    QCOMPARE(copied.count(), 1);
    QCOMPARE(copied.first().at(0).toInt(), 127 - 8);
    QCOMPARE(Text(copied.first().at(1).value<AlarmDefenceTime_t>()), QStringLiteral("[28800 32400]"));
    QCOMPARE(m_ownWhenTold, QStringLiteral("[28800 32400]"));
}

void tst_DayEditorDetail::acceptingOnlyForOthersLeavesTheOwnDay()
{
    m_bar->SetDefenceTime({{Hour, 2 * Hour}});
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
        dialog.SetDayMask(0x41);
        Accept(dialog);
    });
    QCOMPARE(Regions(*m_bar), QStringLiteral("[3600 7200]"));
    QCOMPARE(copied.count(), 1);
    QCOMPARE(copied.first().at(0).toInt(), 0x41);
    QCOMPARE(Text(copied.first().at(1).value<AlarmDefenceTime_t>()), QStringLiteral("[28800 32400]"));
}

void tst_DayEditorDetail::acceptingForNoDayDoesNothing()
{
    m_bar->SetDefenceTime({{Hour, 2 * Hour}});
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
        dialog.SetDayMask(0);
        Accept(dialog);
    });
    QCOMPARE(Regions(*m_bar), QStringLiteral("[3600 7200]"));
    QCOMPARE(copied.count(), 0);
}

void tst_DayEditorDetail::cancellingDoesNothing()
{
    m_bar->SetDefenceTime({{Hour, 2 * Hour}});
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
        dialog.SetDayMask(127);
        dialog.GetButton(QDialogButtonBox::Cancel)->click();
    });
    QCOMPARE(Regions(*m_bar), QStringLiteral("[3600 7200]"));
    QCOMPARE(copied.count(), 0);
}

void tst_DayEditorDetail::aReversedRowKeepsTheOldRegions()
{
    m_bar->SetDefenceTime({{Hour, 2 * Hour}});
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 4, QTime(12, 0), QTime(11, 0));
        dialog.SetDayMask(127);
        Accept(dialog);
    });
    QCOMPARE(Regions(*m_bar), QStringLiteral("[3600 7200]"));
    QCOMPARE(copied.count(), 0);
}

void tst_DayEditorDetail::aDayOfSevenRegionsIsEmptiedByOk()
{
    AlarmDefenceTime_t seven;
    for (int i = 0; i < 7; ++i) {
        seven.append({2 * i * Hour, (2 * i + 1) * Hour});
    }
    m_bar->SetDefenceTime(seven);
    Open([](QAlarmDayDetailEditor& dialog) { dialog.reject(); });
    QCOMPARE(Regions(*m_bar), Text(seven));
    Open(Accept);
    QCOMPARE(Regions(*m_bar), QString());
}

void tst_DayEditorDetail::aBarWithoutADayTellsEveryTickedDay()
{
    m_bar->setObjectName(QStringLiteral("bar"));
    m_bar->SetDefenceTime({{Hour, 2 * Hour}});
    QSignalSpy copied(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers);
    Open([](QAlarmDayDetailEditor& dialog) {
        dialog.SetDayMask(3);
        DialogRows::Type(dialog, 2, QTime(8, 0), QTime(9, 0));
        Accept(dialog);
    });
    QCOMPARE(copied.count(), 1);
    QCOMPARE(copied.first().at(0).toInt(), 3);
    QCOMPARE(Regions(*m_bar), QStringLiteral("[3600 7200]"));
}

void tst_DayEditorDetail::theBarShowsTheNewRegionsAtOnce()
{
    m_bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_bar.get()));
    auto* display = m_bar->findChild<QWidget*>(QStringLiteral("wndDisplay"));
    PaintWatcher watcher;
    Open([&](QAlarmDayDetailEditor& dialog) {
        DialogRows::Type(dialog, 1, QTime(8, 0), QTime(9, 0));
        Accept(dialog);
        // What was to be painted before the dialog ended does not count.
        QCoreApplication::sendPostedEvents(m_bar.get(), QEvent::UpdateRequest);
        display->installEventFilter(&watcher);
    });
    QTRY_VERIFY(watcher.painted);
}

void tst_DayEditorDetail::theDialogIsDeletedInEveryCase()
{
    Open(Accept);
    QVERIFY(m_lastDialog.isNull());
    Open([](QAlarmDayDetailEditor& dialog) { dialog.reject(); });
    QVERIFY(m_lastDialog.isNull());
    Open([](QAlarmDayDetailEditor& dialog) {
        dialog.SetDayMask(0);
        Accept(dialog);
    });
    QVERIFY(m_lastDialog.isNull());
    QVERIFY(m_bar->findChildren<QDialog*>().isEmpty());
}

void tst_DayEditorDetail::theBarMayBeDestroyedWhileTheDialogRuns()
{
    QTimer::singleShot(0, this, [this] {
        m_lastDialog = qobject_cast<QAlarmDayDetailEditor*>(QApplication::activeModalWidget());
        m_bar.reset();
    });
    QPointer<QAlarmDayEditor> bar(m_bar.get());
    m_bar->OnDetail();
    QVERIFY(bar.isNull());
    QVERIFY(m_lastDialog.isNull());
}

void tst_DayEditorDetail::theBarMayBeDestroyedByWhoIsTold()
{
    connect(m_bar.get(), &QAlarmDayEditor::SignalCopySettingToOthers, this, [this] { m_bar.reset(); });
    QTimer::singleShot(0, this, [] {
        auto* dialog = qobject_cast<QAlarmDayDetailEditor*>(QApplication::activeModalWidget());
        dialog->SetDayMask(127);
        Accept(*dialog);
    });
    m_bar->OnDetail();
    QVERIFY(m_bar == nullptr);
}

QTEST_MAIN(tst_DayEditorDetail)
#include "tst_day_editor_detail.moc"
