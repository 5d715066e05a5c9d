#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "scheme_editor/ACSCopyModes.h"
#include "scheme_editor/ACSEventCopyToPopup.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>

using namespace PageSchemes;
using namespace PageSite;

/// "Copy to" as the page does it.
class TestPageCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoorOpensThePopupForDoors();
    void anInputOpensThePopupForInputs();
    void nothingToCopyOpensNothing();
    void aSourceThatCannotBeReadOpensNothing();
    void openingThePopupStoresTheEditors();
    void aDoorCopyTakesEveryEventTypeAlong();
    void anInputCopyTakesTypeTwoAlong();
    void copyingAnUnsetSchemeClearsTheTargets();
    void theEditedDoorIsNotCopiedOntoItself();
    void onlyThePopupMayCopy();
    void theMarksFollowTheCopy();
    void aCopySendsNothingToTheHost();
    void thePageMayGoWhileThePopupIsOpen();
    void theDeviceMayGoWhileThePopupIsOpen();
};

void TestPageCopy::aDoorOpensThePopupForDoors()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const QPointer<ACSEventCopyToPopup> pPopup = page.OpenPopup();
    QVERIFY(!pPopup.isNull());
    QCOMPARE(pPopup->GetMode(), ACSCopy::Door);
    QVERIFY(pPopup->isVisible());
    QVERIFY(pPopup->isModal());
    QCOMPARE(pPopup->parentWidget(), page.hands.Widget("btnCopyTo"));
    QCOMPARE(host.devices.OutstandingReferences(), 0);
}

void TestPageCopy::anInputOpensThePopupForInputs()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    const QPointer<ACSEventCopyToPopup> pPopup = page.OpenPopup();
    QVERIFY(!pPopup.isNull());
    QCOMPARE(pPopup->GetMode(), ACSCopy::AlarmInput);
}

void TestPageCopy::nothingToCopyOpensNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    page.Page().OnCopyTo();
    QVERIFY(page.hands.ClickDevice(Vault));
    page.Page().OnCopyTo();
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickInputDevice());
    page.Page().OnCopyTo();
    QVERIFY(page.Page().findChild<ACSEventCopyToPopup*>() == nullptr);
}

void TestPageCopy::aSourceThatCannotBeReadOpensNothing()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    host.devices.unreadableChannels.insert(Front);
    QVERIFY(page.OpenPopup().isNull());
    host.devices.unreadableChannels.clear();
    host.devices.goneObjects.insert(Lobby);
    QVERIFY(page.OpenPopup().isNull());
    host.devices.goneObjects.clear();
    QVERIFY(!page.OpenPopup().isNull());
}

void TestPageCopy::openingThePopupStoresTheEditors()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(!page.OpenPopup().isNull());
    QCOMPARE(SchemeText::Edited(page.Schemes()), QStringList{Line("100$1$0$101", FirstAlarm(), "sound")});
}

void TestPageCopy::aDoorCopyTakesEveryEventTypeAlong()
{
    const int normal = AlarmSchemeCommon::ACSNormalEvent().constLast();
    PageHost host({{{Key("100$1$0$101"), normal}, On()},
                   {{Key("100$1$0$-1"), 22}, On()},
                   {{Key("100$1$0$101"), 9999}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.CopyTo({Key("200$1$0$201"), Key("300$1$0$301")}));
    QVERIFY(page.hands.Save());
    QCOMPARE(SchemeText::Edited(host.Kept().schemes),
             (QStringList{Line("100$1$0$-1", 22, "on"), Line("100$1$0$101", FirstAlarm(), "sound"),
                          Line("100$1$0$101", normal, "on"), Line("100$1$0$101", 9999, "on"),
                          Line("200$1$0$-1", 22, "on"), Line("200$1$0$201", FirstAlarm(), "sound"),
                          Line("200$1$0$201", normal, "on"), Line("300$1$0$-1", 22, "on"),
                          Line("300$1$0$301", FirstAlarm(), "sound"), Line("300$1$0$301", normal, "on")}));
}

void TestPageCopy::anInputCopyTakesTypeTwoAlong()
{
    PageHost host({{{Key("100$3$1$103"), 3}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleMail());
    QVERIFY(page.CopyTo({Key("100$3$1$104"), Key("300$3$1$302")}));
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             (QStringList{Line("100$3$1$103", 2, "mail"), Line("100$3$1$103", 3, "on"),
                          Line("100$3$1$104", 2, "mail"), Line("300$3$1$302", 2, "mail")}));
}

void TestPageCopy::copyingAnUnsetSchemeClearsTheTargets()
{
    PageHost host({{{Key("200$1$0$201"), FirstAlarm()}, On()},
                   {{Key("200$1$0$-1"), 22}, On()},
                   {{Key("200$1$0$201"), 9999}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.CopyTo({Key("200$1$0$201")}));
    QCOMPARE(SchemeText::KeysOfDevice(page.Schemes(), Vault), QStringList{Key("200$1$0$201#9999")});
}

void TestPageCopy::theEditedDoorIsNotCopiedOntoItself()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.CopyTo({Key("100$1$0$101"), Key("100$1$0$102")}));
    QCOMPARE(SchemeText::Edited(page.Schemes()),
             (QStringList{Line("100$1$0$101", FirstAlarm(), "on"), Line("100$1$0$102", FirstAlarm(), "on")}));
    QVERIFY(page.hands.IsOpenShown());
}

void TestPageCopy::onlyThePopupMayCopy()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    page.Page().OnCopyToImp({Key("200$1$0$201")});
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
}

void TestPageCopy::theMarksFollowTheCopy()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(!page.hands.HasInputMark(Key("100$3$1$104")));
    QVERIFY(page.CopyTo({Key("100$3$1$104")}));
    QVERIFY(page.hands.HasInputMark(Key("100$3$1$104")));
}

void TestPageCopy::aCopySendsNothingToTheHost()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.CopyTo({Key("200$1$0$201")}));
    QCOMPARE(host.Kept().iSaves, 0);
}

void TestPageCopy::thePageMayGoWhileThePopupIsOpen()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    const QPointer<ACSEventCopyToPopup> pPopup = page.OpenPopup();
    QVERIFY(!pPopup.isNull());
    page.Close();
    QVERIFY(pPopup.isNull());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestPageCopy::theDeviceMayGoWhileThePopupIsOpen()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    const QPointer<ACSEventCopyToPopup> pPopup = page.OpenPopup();
    QVERIFY(!pPopup.isNull());
    QVERIFY(host.devices.RemoveDevice(Lobby));
    QTRY_VERIFY(page.Schemes().isEmpty());
    Q_EMIT pPopup->SignalCopyTo({Key("200$1$0$201")});
    QVERIFY(page.Schemes().isEmpty());
    pPopup->close();
}

QTEST_MAIN(TestPageCopy)
#include "tst_page_copy.moc"
