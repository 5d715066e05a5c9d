#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "scheme_editor/ACSEventSchemeEditor.h"
#include "tests/scheme_editor/OpenPage.h"
#include "tests/scheme_editor/PageHost.h"
#include "tests/scheme_editor/PageSchemes.h"
#include "tests/scheme_editor/SchemeText.h"

#include <QCryptographicHash>
#include <QEvent>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace PageSchemes;
using namespace PageSite;

namespace {

/// The draft of edits that somebody made on a page of the host, which then went; empty when one of them could
/// not be made.
QByteArray DraftOf(const PageHost& host, const std::function<bool(const OpenPage&)>& edit)
{
    const OpenPage page(&host.managers);
    return edit(page) ? page.byName.Draft() : QByteArray();
}

bool SwitchFront(const OpenPage& page)
{
    return page.hands.ClickDoor(Front) && page.hands.ToggleOpen();
}

/// The draft of one switch; the page is then as it was.
QByteArray DraftAndBack(const OpenPage& page)
{
    if (!SwitchFront(page))
        return {};
    const QByteArray draft = page.byName.Draft();
    return page.hands.ToggleOpen() ? draft : QByteArray();
}

/// Notes what the page said at each change of its modified state.
class ModifiedSpy : public QObject
{
public:
    explicit ModifiedSpy(ACSEventSchemeEditor& page)
        : m_page(page)
    {
        page.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &m_page && event->type() == QEvent::ModifiedChange)
            said.append(m_page.isWindowModified());
        return false;
    }

    QVector<bool> said;

private:
    ACSEventSchemeEditor& m_page;
};

} // namespace

/// What the page says of edits that are not saved, and how a draft carries them over.
class TestPageUnsaved : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLoadedPageIsNotModified();
    void browsingDoesNotModify();
    void anEditModifiesAndEditingBackDoesNot();
    void aDayEditedBackIsNotModified();
    void anOutputTickedAndUntickedIsNotModified();
    void anEditShowsWithoutLeavingTheEvent();
    void savingEndsTheModifiedState();
    void aRefusedSaveLeavesItModified();
    void aFailedSaveCountsAgainstTheStateBeforeIt();
    void editsAfterAFailedSaveCountToo();
    void editedBackAfterAFailedSaveIsNotModified();
    void clearingTargetsThatAreUnsetDoesNotModify();
    void removingADeviceWithSchemesModifies();
    void removingAnUnsetDeviceDoesNotModify();
    void theOrderOfLinksDoesNotCount();
    void theEnabledSchemesAreCounted();
    void anUnmodifiedPageHasNoDraft();
    void aDraftBringsTheEditsBack();
    void aRestoredDraftIsOneStep();
    void aDraftCarriesRemovals();
    void aDraftLeavesOutDevicesThatAreGone();
    void aDraftThatChangesNothingIsTakenAndIsNoStep();
    void aDraftShowsAtOnce();
    void draftsOfADraftAreTheSame();
    void damagedDraftsAreRefused();
    void truncatedDraftsAreRefused();
    void forgedDraftsAreHarmless();
};

void TestPageUnsaved::aLoadedPageIsNotModified()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::browsingDoesNotModify()
{
    AlarmInfo dangling = On();
    dangling.listAlarmOut = {Output("999$3$0$0"), Output("105$3$0$0"), Output("garbage")};
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, dangling}, {{Key("100$3$1$103"), 2}, dangling}});
    OpenPage page(&host.managers);
    const ModifiedSpy modified(page.Page());
    QVERIFY(page.hands.ClickDoor(Front));
    for (const char* const szTab : {"btnDefTime", "btnAlarmOut", "btnNotify"})
        QVERIFY(page.hands.ClickTab(szTab));
    QVERIFY(page.hands.ClickEvent(Alarm(2)));
    QVERIFY(page.hands.ClickCategory("btnNormal"));
    QVERIFY(page.hands.ClickDevice(Lobby));
    QVERIFY(page.hands.ClickDoor(Safe));
    QCoreApplication::sendPostedEvents();
    QVERIFY(modified.said.isEmpty());
    QVERIFY(!page.Page().isWindowModified());
    QVERIFY(page.byName.Draft().isEmpty());
}

void TestPageUnsaved::anEditModifiesAndEditingBackDoesNot()
{
    PageHost host;
    OpenPage page(&host.managers);
    const ModifiedSpy modified(page.Page());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.Page().isWindowModified());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(!page.Page().isWindowModified());
    QCOMPARE(modified.said, (QVector<bool>{true, false}));
}

void TestPageUnsaved::aDayEditedBackIsNotModified()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleDay(6));
    QTRY_VERIFY(page.Page().isWindowModified());
    QVERIFY(page.hands.ToggleDay(6));
    QTRY_VERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::anOutputTickedAndUntickedIsNotModified()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_VERIFY(page.Page().isWindowModified());
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_VERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::anEditShowsWithoutLeavingTheEvent()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QTRY_VERIFY(page.Page().isWindowModified());
    QVERIFY(!page.byName.Draft().isEmpty());
}

void TestPageUnsaved::savingEndsTheModifiedState()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Save());
    QVERIFY(!page.Page().isWindowModified());
    QVERIFY(page.byName.Draft().isEmpty());
    QVERIFY(page.hands.ToggleSound());
    QTRY_VERIFY2(page.Page().isWindowModified(), "what counts is the saved state, not the loaded one");
}

void TestPageUnsaved::aRefusedSaveLeavesItModified()
{
    PageHost host;
    host.Kept().iSaveResult = -1;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.Save());
    QTRY_VERIFY(page.Page().isWindowModified());
}

void TestPageUnsaved::aFailedSaveCountsAgainstTheStateBeforeIt()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    const QByteArray before = page.byName.Draft();
    QVERIFY(page.hands.Save());
    QVERIFY(page.byName.MarkUnsaved());
    QVERIFY(page.Page().isWindowModified());
    QCOMPARE(page.byName.Draft(), before);
    QVERIFY(page.byName.MarkUnsaved());
    QCOMPARE(page.byName.Draft(), before);
    QVERIFY(page.hands.Save());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::editsAfterAFailedSaveCountToo()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Save());
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.byName.MarkUnsaved());
    const QByteArray draft = page.byName.Draft();
    const QStringList edited = SchemeText::Edited(page.Schemes());
    page.Close();

    OpenPage again(&host.managers);
    // The host holds what it was given; a host whose save failed does not.
    host.Kept().schemes.clear();
    OpenPage fresh(&host.managers);
    QCOMPARE(fresh.byName.RestoreDraft(draft), 2);
    QCOMPARE(SchemeText::Edited(fresh.Schemes()), edited);
}

void TestPageUnsaved::editedBackAfterAFailedSaveIsNotModified()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.Save());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.Page().isWindowModified());
    QVERIFY(page.byName.MarkUnsaved());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::clearingTargetsThatAreUnsetDoesNotModify()
{
    PageHost host({{{Key("200$1$0$201"), Alarm(0)}, AlarmInfo()}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.CopyTo({Key("200$1$0$201")}));
    QVERIFY(!page.Holds(Key("200$1$0$201"), Alarm(0)));
    QVERIFY2(!page.Page().isWindowModified(), "an absent scheme equals a default one");
}

void TestPageUnsaved::removingADeviceWithSchemesModifies()
{
    PageHost host({{{Key("200$1$0$201"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.EnabledSchemes(), 1);
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_VERIFY(page.Page().isWindowModified());
    QCOMPARE(page.byName.EnabledSchemes(), 0);
    page.Page().OnSave();
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::removingAnUnsetDeviceDoesNotModify()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(host.devices.RemoveDevice(Vault));
    QTRY_VERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
    QVERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::theOrderOfLinksDoesNotCount()
{
    AlarmInfo info = On();
    info.listAlarmOut = {Output("504$3$0$0"), Output("105$3$0$0"), Output("503$3$0$0")};
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, info}});
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_VERIFY(page.Page().isWindowModified());
    QVERIFY(page.hands.ToggleOutput(Siren));
    QTRY_VERIFY(!page.Page().isWindowModified());
}

void TestPageUnsaved::theEnabledSchemesAreCounted()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()},
                   {{Key("100$1$0$101"), Alarm(1)}, AlarmInfo()},
                   {{Key("999$1$0$1"), 4711}, On()}});
    OpenPage page(&host.managers);
    QSignalSpy changed(&page.Page(), SIGNAL(SignalEnabledSchemesChanged()));
    QCOMPARE(page.byName.EnabledSchemes(), 2);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ClickEvent(Alarm(1)));
    QVERIFY(page.hands.ToggleOpen());
    QCOMPARE(page.byName.EnabledSchemes(), 3);
    QCOMPARE(changed.size(), 1);
    QVERIFY(page.hands.ToggleSound());
    QVERIFY(page.CopyTo({Key("200$1$0$201"), Key("300$1$0$301")}));
    QCOMPARE(page.byName.EnabledSchemes(), 7);
    QCOMPARE(changed.size(), 2);
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.byName.EnabledSchemes(), 3);
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.byName.EnabledSchemes(), 3);
    QVERIFY(page.byName.Undo());
    QCOMPARE(page.byName.EnabledSchemes(), 2);
    QCOMPARE(changed.size(), 4);
}

void TestPageUnsaved::anUnmodifiedPageHasNoDraft()
{
    PageHost host({{{Key("100$1$0$101"), Alarm(0)}, On()}});
    OpenPage page(&host.managers);
    QVERIFY(page.byName.Draft().isEmpty());
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.byName.Draft().isEmpty());
}

void TestPageUnsaved::aDraftBringsTheEditsBack()
{
    PageHost host({{{Key("300$1$0$301"), Alarm(0)}, On()}});
    QByteArray draft;
    QStringList edited;
    {
        OpenPage page(&host.managers);
        QVERIFY(page.hands.ClickDoor(Front));
        QVERIFY(page.hands.ToggleOpen());
        QVERIFY(page.hands.ToggleDay(2));
        QVERIFY(page.hands.ToggleOutput(Siren));
        QVERIFY(page.hands.ClickDevice(Lobby));
        QVERIFY(page.hands.ToggleMail());
        draft = page.byName.Draft();
        edited = SchemeText::Edited(page.Schemes());
    }
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.RestoreDraft(draft), 2);
    QCOMPARE(SchemeText::Edited(page.Schemes()), edited);
    QVERIFY(page.Page().isWindowModified());
    QCOMPARE(page.byName.EnabledSchemes(), 2);
    QCOMPARE(page.byName.Draft(), draft);
}

void TestPageUnsaved::aRestoredDraftIsOneStep()
{
    PageHost host;
    const QByteArray draft = DraftOf(
        host, [](const OpenPage& page) { return SwitchFront(page) && page.CopyTo({Key("200$1$0$201")}); });
    QVERIFY(!draft.isEmpty());
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.RestoreDraft(draft), 2);
    QCOMPARE(page.byName.UndoText(), QStringLiteral("Restore Unsaved Edits"));
    QVERIFY(page.byName.Undo());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
    QVERIFY(!page.Page().isWindowModified());
    QVERIFY(!page.byName.CanUndo());
}

void TestPageUnsaved::aDraftCarriesRemovals()
{
    PageHost host({{{Key("200$1$0$201"), Alarm(0)}, On()}});
    const QByteArray draft = DraftOf(host, [](const OpenPage& page) {
        return page.hands.ClickDoor(Front) && page.CopyTo({Key("200$1$0$201")});
    });
    QVERIFY(!draft.isEmpty());
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.EnabledSchemes(), 1);
    QCOMPARE(page.byName.RestoreDraft(draft), 1);
    QVERIFY(!page.Holds(Key("200$1$0$201"), Alarm(0)));
    QCOMPARE(page.byName.EnabledSchemes(), 0);
}

void TestPageUnsaved::aDraftLeavesOutDevicesThatAreGone()
{
    PageHost host;
    const QByteArray draft = DraftOf(
        host, [](const OpenPage& page) { return SwitchFront(page) && page.CopyTo({Key("200$1$0$201")}); });
    QVERIFY(!draft.isEmpty());
    QVERIFY(host.devices.RemoveDevice(Vault));
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.RestoreDraft(draft), 1);
    QVERIFY(SchemeText::KeysOfDevice(page.Schemes(), Vault).isEmpty());
}

void TestPageUnsaved::aDraftThatChangesNothingIsTakenAndIsNoStep()
{
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    const QByteArray draft = page.byName.Draft();
    QVERIFY(page.hands.Save());
    page.Close();
    OpenPage saved(&host.managers);
    QCOMPARE(saved.byName.RestoreDraft(draft), 0);
    QVERIFY(!saved.Page().isWindowModified());
    QVERIFY(!saved.byName.CanUndo());
}

void TestPageUnsaved::aDraftShowsAtOnce()
{
    PageHost host;
    const QByteArray draft = DraftOf(host, SwitchFront);
    QVERIFY(!draft.isEmpty());
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(!page.hands.IsOpenShown());
    QCOMPARE(page.byName.RestoreDraft(draft), 1);
    QVERIFY(page.hands.IsOpenShown());
    QVERIFY(page.hands.HasMark("listAlarm", Alarm(0)));
    QVERIFY(page.hands.ClickDoor(Safe));
    QVERIFY2(page.Scheme(Key("100$1$0$101"), Alarm(0)).bOpen, "the form must not write its old state back");
}

void TestPageUnsaved::draftsOfADraftAreTheSame()
{
    AlarmInfo rich = On();
    rich.bEmapTwinkle = true;
    rich.videoSplit.SplitRow = 2;
    rich.videoSplit.SplitCloum = 3;
    rich.videoSplit.SplitCount = 6;
    rich.videoSplit.cells[5].iCombine = 7;
    rich.videoSplit.cells[63].bEnable = false;
    rich.videoSplit.videoLinks[4].strLinkDevID = Key("9$1$0$1");
    rich.listDoor = {{Key("101"), true}, {Key("x"), false}};
    rich.listAlarmOut = {Output("105$3$0$0")};
    rich.defenceTime[3] = {{0, 900}, {3600, 86399}};
    PageHost host({{{Key("100$1$0$101"), Alarm(1)}, rich}});
    const QByteArray draft = DraftOf(host, [](const OpenPage& page) {
        return page.hands.ClickDoor(Front) && page.CopyTo({Key("200$1$0$201"), Key("300$1$0$301")});
    });
    QVERIFY(!draft.isEmpty());
    OpenPage page(&host.managers);
    QCOMPARE(page.byName.RestoreDraft(draft), 2);
    QCOMPARE(page.Scheme(Key("200$1$0$201"), Alarm(1)), rich);
    QCOMPARE(page.byName.Draft(), draft);
}

void TestPageUnsaved::damagedDraftsAreRefused()
{
    PageHost host;
    OpenPage page(&host.managers);
    const QByteArray draft = DraftAndBack(page);
    QVERIFY(!draft.isEmpty());
    for (int i = 0; i < draft.size(); ++i) {
        for (const int iBit : {0, 7}) {
            QByteArray damaged = draft;
            damaged[i] = static_cast<char>(damaged.at(i) ^ (1 << iBit));
            QVERIFY2(page.byName.RestoreDraft(damaged) == -1, qPrintable(QString::number(i)));
        }
    }
    QVERIFY(!page.Page().isWindowModified());
    QVERIFY(SchemeText::Edited(page.Schemes()).isEmpty());
}

void TestPageUnsaved::truncatedDraftsAreRefused()
{
    PageHost host;
    OpenPage page(&host.managers);
    const QByteArray draft = DraftAndBack(page);
    QVERIFY(!draft.isEmpty());
    for (int iSize = 0; iSize < draft.size(); ++iSize)
        QCOMPARE(page.byName.RestoreDraft(draft.left(iSize)), -1);
    QCOMPARE(page.byName.RestoreDraft(draft + '\0'), -1);
    QCOMPARE(page.byName.RestoreDraft(QByteArrayLiteral("no draft at all")), -1);
    QCOMPARE(page.byName.RestoreDraft(QByteArray(1 << 20, '\xff')), -1);
    QVERIFY(!page.Page().isWindowModified());
}

// A checksum keeps accidents out, not somebody who computes it.
void TestPageUnsaved::forgedDraftsAreHarmless()
{
    constexpr int iHeader = 6;
    constexpr int iDigest = 32;
    PageHost host;
    OpenPage page(&host.managers);
    QVERIFY(page.hands.ClickDoor(Front));
    QVERIFY(page.hands.ToggleOpen());
    QVERIFY(page.hands.ToggleOutput(Siren));
    const QByteArray draft = page.byName.Draft();
    const QByteArray payload = draft.mid(iHeader + iDigest);
    constexpr quint32 uSeed = 20260713;
    QRandomGenerator random(uSeed);
    for (int i = 0; i < 20000; ++i) {
        QByteArray forged = payload;
        const int iChanges = random.bounded(1, 5);
        for (int iChange = 0; iChange < iChanges; ++iChange)
            forged[random.bounded(forged.size())] = static_cast<char>(random.bounded(256));
        if (random.bounded(4) == 0)
            forged.truncate(random.bounded(forged.size()));
        const QByteArray bytes =
            draft.left(iHeader) + QCryptographicHash::hash(forged, QCryptographicHash::Sha256) + forged;
        const int iRestored = page.byName.RestoreDraft(bytes);
        QVERIFY2(iRestored >= -1 && iRestored <= 1, qPrintable(QStringLiteral("round %1").arg(i)));
        if (iRestored > 0)
            QVERIFY(page.byName.Undo());
    }
    for (auto it = page.Schemes().cbegin(); it != page.Schemes().cend(); ++it)
        QCOMPARE(EventSource::FieldCount(it.key().strEventSource), 4);
    QVERIFY(page.hands.Save());
}

QTEST_MAIN(TestPageUnsaved)
#include "tst_page_unsaved.moc"
