#include "AlarmCtrl/AlarmCopyModes.h"
#include "AlarmCtrl/QAlarmCopyToPopup.h"
#include "AlarmCtrl/QAlarmDayDetailEditor.h"
#include "AlarmCtrl/QAlarmNotifyEditor.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHands.h"
#include "tests/scheme_editor/PageHost.h"

#include <QAccessible>
#include <QSet>
#include <QTest>
#include <QWidget>

#include <memory>

using namespace PageSite;

namespace {

/// Roles that tell an assistive technology how to work a control.
bool IsWorkable(QAccessible::Role role)
{
    static const QSet<int> roles{QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
                                 QAccessible::PageTab,  QAccessible::EditableText, QAccessible::SpinBox,
                                 QAccessible::ComboBox, QAccessible::List,         QAccessible::Tree,
                                 QAccessible::ListItem, QAccessible::TreeItem,     QAccessible::Slider,
                                 QAccessible::Graphic};
    return roles.contains(role);
}

/// Walks what is shown below a window and notes what an assistive technology could not name or work.
class AccessibleWalk
{
public:
    explicit AccessibleWalk(QWidget& window) { Visit(QAccessible::queryAccessibleInterface(&window)); }

    QStringList complaints;
    QSet<QString> names; ///< of the controls

private:
    void Visit(QAccessibleInterface* pInterface)
    {
        if (pInterface == nullptr || pInterface->state().invisible)
            return;
        const auto* const pWidget = qobject_cast<QWidget*>(pInterface->object());
        if (pWidget != nullptr)
            Check(*pInterface, *pWidget);
        for (int i = 0; i < pInterface->childCount(); ++i)
            Visit(pInterface->child(i));
    }

    void Check(const QAccessibleInterface& interface, const QWidget& widget)
    {
        // Parts of a control that speaks for them: the line of a spin box, the viewport of a view.
        const bool bTabbed = (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
        const bool bControl = bTabbed || IsButton(interface.role());
        if (!bControl || widget.objectName().startsWith(QLatin1String("qt_")))
            return;
        const QString strName = interface.text(QAccessible::Name);
        const QString strWhere =
            QStringLiteral("%1 %2").arg(QLatin1String(widget.metaObject()->className()), widget.objectName());
        names.insert(strName);
        if (strName.trimmed().isEmpty())
            complaints.append(strWhere + QStringLiteral(": no name"));
        if (!IsWorkable(interface.role()))
            complaints.append(QStringLiteral("%1: role %2").arg(strWhere).arg(interface.role()));
    }

    static bool IsButton(QAccessible::Role role)
    {
        return role == QAccessible::Button || role == QAccessible::CheckBox ||
               role == QAccessible::RadioButton || role == QAccessible::EditableText ||
               role == QAccessible::SpinBox;
    }
};

QString Complaints(QWidget& window)
{
    return AccessibleWalk(window).complaints.join(QLatin1Char('\n'));
}

/// Presses Tab until the focus comes round; what it met on the way.
QSet<QString> TabStops(QWidget& window)
{
    QSet<QString> stops;
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        return stops;
    constexpr int iEnough = 200;
    for (int i = 0; i < iEnough; ++i) {
        QWidget* const pFocus = QApplication::focusWidget();
        if (pFocus != nullptr)
            stops.insert(pFocus->objectName());
        QTest::keyClick(pFocus != nullptr ? pFocus : &window, Qt::Key_Tab);
    }
    return stops;
}

} // namespace

/// Every control has a name and a role, and the keyboard reaches what may take the focus.
class TestPageAccessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageNamesEveryControl_data();
    void thePageNamesEveryControl();
    void anEmptyPageNamesEveryControl();
    void theAlarmInputsAreNamed();
    void theCopyPopupNamesEveryControl();
    void theGeneralCopyPopupNamesEveryControl();
    void theDayDialogNamesEveryControl();
    void theNotifyEditorNamesEveryControl();
    void theKeyboardReachesTheControlsOfThePage();
    void theKeyboardReachesTheControlsOfTheDayDialog();
};

void TestPageAccessible::thePageNamesEveryControl_data()
{
    QTest::addColumn<QString>("strTab");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("notify") << "btnNotify"
                            << QStringList{QStringLiteral("Alarm Sound"), QStringLiteral("Send Mail")};
    QTest::newRow("outputs") << "btnAlarmOut" << QStringList{};
    QTest::newRow("week") << "btnDefTime"
                          << QStringList{QStringLiteral("Lock all days"), QStringLiteral("Lock Sunday"),
                                         QStringLiteral("Details for Saturday")};
}

void TestPageAccessible::thePageNamesEveryControl()
{
    QFETCH(QString, strTab);
    QFETCH(QStringList, names);
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickTab(qPrintable(strTab)));
    const AccessibleWalk walk(page.Page());
    QVERIFY2(walk.complaints.isEmpty(), qPrintable(walk.complaints.join(QLatin1Char('\n'))));
    QVERIFY(walk.names.contains(QStringLiteral("Save")));
    QVERIFY(walk.names.contains(QStringLiteral("Search devices")));
    for (const QString& strName : qAsConst(names))
        QVERIFY2(walk.names.contains(strName), qPrintable(strName));
}

void TestPageAccessible::anEmptyPageNamesEveryControl()
{
    PageHost host({}, Site());
    OpenPage page(&host.managers);
    QCOMPARE(Complaints(page.Page()), QString());
}

void TestPageAccessible::theAlarmInputsAreNamed()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    const AccessibleWalk walk(page.Page());
    QCOMPARE(walk.complaints.join(QLatin1Char('\n')), QString());
    QVERIFY(walk.names.contains(QStringLiteral("External Event")));
}

void TestPageAccessible::theCopyPopupNamesEveryControl()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(PageHands::Click(page.hands.Widget("btnCopyTo")));
    auto* const pPopup = page.Page().findChild<ACSEventCopyToPopup*>();
    QVERIFY(pPopup != nullptr);
    QCOMPARE(Complaints(*pPopup), QString());
    pPopup->close();
}

void TestPageAccessible::theGeneralCopyPopupNamesEveryControl()
{
    PageHost host;
    QAlarmCopyToPopup popup(1);
    popup.setAttribute(Qt::WA_DeleteOnClose, false);
    popup.show();
    QCOMPARE(Complaints(popup), QString());
}

void TestPageAccessible::theDayDialogNamesEveryControl()
{
    QAlarmDayDetailEditor dialog;
    dialog.SetTitle(QStringLiteral("Time Editor"));
    dialog.show();
    const AccessibleWalk walk(dialog);
    QCOMPARE(walk.complaints.join(QLatin1Char('\n')), QString());
    QVERIFY(walk.names.contains(QStringLiteral("Region 6 end")));
}

void TestPageAccessible::theNotifyEditorNamesEveryControl()
{
    QAlarmNotifyEditor editor;
    editor.show();
    QCOMPARE(Complaints(editor), QString());
}

void TestPageAccessible::theKeyboardReachesTheControlsOfThePage()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    for (const char* const szTab : {"btnNotify", "btnAlarmOut", "btnDefTime"}) {
        QVERIFY(page.hands.ClickTab(szTab));
        const QSet<QString> stops = TabStops(page.Page());
        for (const char* const szName :
             {"edtSearch", "treeDevices", "listAlarm", "btnOpenStatus", "btnCopyTo", "btnSave"})
            QVERIFY2(stops.contains(QLatin1String(szName)), szName);
        if (qstrcmp(szTab, "btnNotify") == 0)
            QVERIFY(stops.contains(QStringLiteral("btnAlarmSound")) &&
                    stops.contains(QStringLiteral("btnSendEmail")));
    }
}

void TestPageAccessible::theKeyboardReachesTheControlsOfTheDayDialog()
{
    QAlarmDayDetailEditor dialog;
    dialog.show();
    const QSet<QString> stops = TabStops(dialog);
    for (const char* const szName : {"timeEditBegin1", "timeEditEnd6", "chkSunday", "chkAll"})
        QVERIFY2(stops.contains(QLatin1String(szName)), szName);
}

QTEST_MAIN(TestPageAccessible)
#include "tst_page_accessible.moc"
