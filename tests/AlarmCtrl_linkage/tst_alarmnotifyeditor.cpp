#include "AlarmCtrl/QAlarmNotifyEditor.h"
#include "platform/LXGUI/LXSwitchButton.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QTest>
#include <QVBoxLayout>

namespace {

struct Row
{
    const char* label;
    const char* text;
    const char* button;
};

constexpr Row s_rows[] = {{"label", "Alarm Sound:", "btnAlarmSound"},
                          {"label_2", "EMap Twinkle:", "btnEmapTinkle"},
                          {"label_3", "Send Mail:", "btnSendEmail"}};

LXGUI::LXSwitchButton* Switch(const QWidget& editor, const char* szName)
{
    return editor.findChild<LXGUI::LXSwitchButton*>(QLatin1String(szName));
}

AlarmNotifyInfo Flags(int bits)
{
    return {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
}

int Bits(const AlarmNotifyInfo& flags)
{
    return int{flags.bOpenSound} + 2 * int{flags.bEmapTwinkle} + 4 * int{flags.bSendEmail};
}

} // namespace

class TestAlarmNotifyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormHasItsStatedNamesTextsAndSizes();
    void theSwitchesAreNamedByTheirLabels();
    void whatWasSetIsReadBack();
    void theSwitchesStandInTheOrderSoundMapMail();
    void aPersonsClickIsReadBack();
    void simpleModeLeavesTheSoundRowOnly();
    void hiddenSwitchesKeepTheirStatesAndAreStillRead();
    void theMailSlotIsThereAndChangesNothing();
};

void TestAlarmNotifyEditor::theFormHasItsStatedNamesTextsAndSizes()
{
    QAlarmNotifyEditor editor;
    QCOMPARE(editor.objectName(), QStringLiteral("QAlarmNotifyEditor"));
    QCOMPARE(editor.size(), QSize(336, 326));
    QCOMPARE(editor.windowTitle(), QStringLiteral("Form"));
    const auto* const outer = editor.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    QCOMPARE(outer->spacing(), 10);
    QCOMPARE(outer->contentsMargins(), QMargins(17, 22, 10, 10));
    QCOMPARE(outer->itemAt(1)->spacerItem()->sizeHint(), QSize(20, 261));
    const auto* const grid = editor.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 10);
    QCOMPARE(grid->verticalSpacing(), 10);
    for (int row = 0; row < 3; ++row) {
        const Row& expected = s_rows[row];
        const auto* const label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
        QCOMPARE(label->objectName(), QLatin1String(expected.label));
        QCOMPARE(label->text(), QLatin1String(expected.text));
        QVERIFY(label->alignment().testFlag(Qt::AlignRight) && label->alignment().testFlag(Qt::AlignVCenter));
        const QWidget* const button = grid->itemAtPosition(row, 1)->widget();
        QCOMPARE(button, Switch(editor, expected.button));
        QCOMPARE(button->minimumSize(), QSize(36, 0));
        QCOMPARE(button->maximumSize(), QSize(36, 16777215));
        QCOMPARE(grid->itemAtPosition(row, 2)->spacerItem()->sizeHint(), QSize(40, 20));
    }
}

void TestAlarmNotifyEditor::theSwitchesAreNamedByTheirLabels()
{
    const QAlarmNotifyEditor editor;
    for (const Row& row : s_rows) {
        QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(Switch(editor, row.button));
        QCOMPARE(shown->text(QAccessible::Name), QLatin1String(row.text));
    }
}

void TestAlarmNotifyEditor::whatWasSetIsReadBack()
{
    QAlarmNotifyEditor editor;
    for (int bits = 7; bits >= 0; --bits) {
        editor.SetNotifyInfo(Flags(bits));
        AlarmNotifyInfo read = Flags(~bits);
        QCOMPARE(editor.GetNotifyInfo(read), 0);
        QCOMPARE(Bits(read), bits);
    }
}

void TestAlarmNotifyEditor::theSwitchesStandInTheOrderSoundMapMail()
{
    QAlarmNotifyEditor editor;
    for (int position = 0; position < 3; ++position) {
        editor.SetNotifyInfo(Flags(1 << position));
        for (int row = 0; row < 3; ++row)
            QCOMPARE(Switch(editor, s_rows[row].button)->isToggled(), row == position);
    }
}

void TestAlarmNotifyEditor::aPersonsClickIsReadBack()
{
    QAlarmNotifyEditor editor;
    Switch(editor, "btnEmapTinkle")->click();
    AlarmNotifyInfo read;
    editor.GetNotifyInfo(read);
    QCOMPARE(Bits(read), 2);
}

void TestAlarmNotifyEditor::simpleModeLeavesTheSoundRowOnly()
{
    QAlarmNotifyEditor editor;
    for (const bool hide : {true, false, true, true, false}) {
        editor.SetSimpleMode(hide);
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(editor.findChild<QLabel*>(QLatin1String(s_rows[row].label))->isHidden(),
                     hide && row > 0);
            QCOMPARE(Switch(editor, s_rows[row].button)->isHidden(), hide && row > 0);
        }
    }
}

void TestAlarmNotifyEditor::hiddenSwitchesKeepTheirStatesAndAreStillRead()
{
    QAlarmNotifyEditor editor;
    editor.SetNotifyInfo(Flags(6));
    editor.SetSimpleMode(true);
    AlarmNotifyInfo read;
    editor.GetNotifyInfo(read);
    QCOMPARE(Bits(read), 6);
    editor.SetNotifyInfo(Flags(5));
    editor.SetSimpleMode(false);
    editor.GetNotifyInfo(read);
    QCOMPARE(Bits(read), 5);
}

void TestAlarmNotifyEditor::theMailSlotIsThereAndChangesNothing()
{
    const int slot = QAlarmNotifyEditor::staticMetaObject.indexOfSlot("OnOpenEmail()");
    QVERIFY(slot >= QAlarmNotifyEditor::staticMetaObject.methodOffset());
    QAlarmNotifyEditor editor;
    editor.SetNotifyInfo(Flags(1));
    Switch(editor, "btnSendEmail")->click();
    QVERIFY(QMetaObject::invokeMethod(&editor, "OnOpenEmail"));
    AlarmNotifyInfo read;
    editor.GetNotifyInfo(read);
    QCOMPARE(Bits(read), 5);
}

QTEST_MAIN(TestAlarmNotifyEditor)
#include "tst_alarmnotifyeditor.moc"
