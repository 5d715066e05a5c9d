#include "DialogAnswer.h"
#include "TellingPage.h"

#include "client/PageTabs.h"
#include "client/QuestionDialog.h"
#include "client/UnsavedWork.h"
#include "client/store/SchemeHistoryFile.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/StoreWindowTest.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

const QString ForWriting = QStringLiteral("begin immediate");
constexpr std::chrono::milliseconds TooLong{60000};
const AlarmSourceKey SomeKey{QStringLiteral("1$1$0$1"), 3};
const char* const Escape = "none";

} // namespace

/// Edits that would be lost, and everything that could lose them.
class TestUnsavedWork : public StoreWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsAskedWhileNothingIsUnsaved();
    void closingTheWindowAsks();
    void theQuestionNamesThePages();
    void aSecondQuestionDoesNotOpenOverTheFirst();
    void discardingClosesTheWindow();
    void savingClosesTheWindowOnlyOnceItIsOnTheDisk();
    void aSaveThatFailsOnTheDiskKeepsTheWindowOpen();
    void aSaveThatIsRefusedKeepsTheWindowOpen();
    void editsDuringTheSaveAreAskedAboutAgain();
    void aTabAsksBeforeItCloses();
    void aTabClosesOnceItsPageIsOnTheDisk();
    void aHiddenPageIsAskedAboutToo();
    void loadingAnewAsks();
    void loadingAnewWaitsForTheSave();
    void aChangeOutsideIsOfferedAndNotLoaded();
    void aChangeOutsideIsLoadedThroughTheQuestion();
    void withoutAPageNothingIsOffered();
    void whatIsSavedOrLoadedTakesTheOfferAway();
    void aStepTakenBackWhileEditsStayIsNoFailedSave();
    void aSessionEndAsks();
    void aSessionEndWaitsForTheSave();
    void aSessionEndIsStoppedByASaveThatFails();
    void aSessionMayEndWhenTheEditsAreDiscardedAfterAFailure();
    void aSessionEndThatMayNotAskGoesOn();
    void loadingAnewDuringASaveWaitsForIt();
    void aTabClosedDuringASaveWaitsForIt();
    void discardingAfterAFailureIsTheEndOfIt();
    void pagesAreToldWhenASaveFailed();
    void ctrlSSaves();
    void theWindowTitleShowsIt();
    void aParentThatDiesMeansNothing();

private:
    bool Store(bool bGood)
    {
        AlarmInfoMap map = m_map;
        map[SomeKey].bOpen = !map.value(SomeKey).bOpen;
        if (!bGood) {
            map.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
        }
        return m_store->Save(map) == 0;
    }
    QPushButton* Offer() const { return m_window->findChild<QPushButton*>(QStringLiteral("btnLoadAnew")); }
    QTabWidget* Tabs() const { return m_window->findChild<QTabWidget*>(QStringLiteral("tabPages")); }

    qint64 NewestStep() const
    {
        RawDatabase history(SchemeHistoryFile::PathBeside(m_folder->File()));
        const auto entries = SchemeHistoryFile(history.Handle(), SchemeHistoryFile::Place::Main).Entries(1);
        return entries && !entries->isEmpty() ? entries->constFirst().iId : 0;
    }

    std::unique_ptr<DialogAnswer> m_answer;
    QPointer<TellingPage> m_page;
    AlarmInfoMap m_map;
};

void TestUnsavedWork::init()
{
    QVERIFY(OpenWindow());
    OpenStore();
    m_page = new TellingPage;
    m_window->Pages().Show(m_page, QStringLiteral("page"), QStringLiteral("The page"));
    m_map.clear();
    QCOMPARE(m_store->Load(m_map), 0);
    m_page->m_save = [this] { return Store(true); };
}

void TestUnsavedWork::cleanup()
{
    m_answer.reset();
    CloseAll();
}

void TestUnsavedWork::nothingIsAskedWhileNothingIsUnsaved()
{
    m_answer = std::make_unique<DialogAnswer>(Escape);
    m_page->Edit(QStringLiteral("x"));
    m_page->Undo();
    QVERIFY(m_window->close());
    QVERIFY(!m_answer->WasGiven());
}

void TestUnsavedWork::closingTheWindowAsks()
{
    const QSignalSpy closing(m_window.get(), &MainWindow::SignalClosing);
    const QSignalSpy discarded(&m_window->Unsaved(), &UnsavedWork::SignalDiscarded);
    m_page->Edit(QStringLiteral("x"));
    for (const char* szButton : {Escape, "btnNothing"}) {
        m_answer = std::make_unique<DialogAnswer>(szButton);
        QVERIFY(!m_window->close());
    }
    QVERIFY(m_window->isVisible() && closing.isEmpty() && discarded.isEmpty());
    QCOMPARE(m_page->Saves(), 0);
    QVERIFY(m_page->isWindowModified());
}

void TestUnsavedWork::theQuestionNamesThePages()
{
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(!m_window->close());
    QVERIFY2(m_answer->Question().contains(QStringLiteral("The page")), qPrintable(m_answer->Question()));
    // What a hurried Return does loses nothing.
    const QuestionDialog dialog({QString(), QString(), QString(), QString(), QString()});
    QVERIFY(dialog.findChild<QPushButton*>(QStringLiteral("btnKeep"))->isDefault());
    QVERIFY(dialog.GetAnswer() == QuestionDialog::Answer::Nothing);
}

void TestUnsavedWork::aSecondQuestionDoesNotOpenOverTheFirst()
{
    m_page->Edit(QStringLiteral("x"));
    bool bReloaded = true;
    QTimer::singleShot(0, this, [this, &bReloaded] {
        m_window->close();
        bReloaded = m_window->ReloadPages();
        QCOMPARE(m_window->findChildren<QuestionDialog*>().size(), 1);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    QVERIFY(!m_window->close());
    QVERIFY(!bReloaded);
    QVERIFY(m_window->isVisible());
}

void TestUnsavedWork::discardingClosesTheWindow()
{
    const QSignalSpy discarded(&m_window->Unsaved(), &UnsavedWork::SignalDiscarded);
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    QVERIFY(m_window->close());
    QCOMPARE(discarded.count(), 1);
    QCOMPARE(m_page->Saves(), 0);
}

void TestUnsavedWork::savingClosesTheWindowOnlyOnceItIsOnTheDisk()
{
    const QSignalSpy closing(m_window.get(), &MainWindow::SignalClosing);
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->close());
    QCOMPARE(m_page->Saves(), 1);
    QVERIFY(m_window->isVisible() && closing.isEmpty() && m_store->IsSaving());
    other.Release();
    QTRY_COMPARE(closing.count(), 1);
    QVERIFY(!m_window->isVisible());
    QVERIFY(!m_store->IsSaving() && m_store->LastOutcome().IsSuccess());
    AlarmInfoMap stored;
    QCOMPARE(m_store->Load(stored), 0);
    QVERIFY(stored.value(SomeKey).bOpen);
}

void TestUnsavedWork::aSaveThatFailsOnTheDiskKeepsTheWindowOpen()
{
    const QSignalSpy closing(m_window.get(), &MainWindow::SignalClosing);
    m_page->m_save = [this] { return Store(false); };
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->close());
    QVERIFY(!m_page->isWindowModified()); // the map was taken; the page knows no better
    QTRY_VERIFY(!m_store->IsSaving());
    QCoreApplication::sendPostedEvents();
    QVERIFY(m_window->isVisible() && closing.isEmpty());
    QVERIFY(m_page->isWindowModified()); // it was told
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    QVERIFY(m_window->close());
}

void TestUnsavedWork::aSaveThatIsRefusedKeepsTheWindowOpen()
{
    m_page->m_save = [] { return false; };
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible() && m_page->isWindowModified());
}

void TestUnsavedWork::editsDuringTheSaveAreAskedAboutAgain()
{
    const QSignalSpy closing(m_window.get(), &MainWindow::SignalClosing);
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->close());
    QVERIFY(m_answer->WasGiven());
    m_page->Edit(QStringLiteral("y"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    other.Release();
    QTRY_VERIFY(m_answer->WasGiven());
    QVERIFY(m_window->isVisible() && closing.isEmpty());
}

void TestUnsavedWork::aTabAsksBeforeItCloses()
{
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    m_window->ClosePage(1);
    QCOMPARE(Tabs()->count(), 2);
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    m_window->ClosePage(1);
    QCOMPARE(Tabs()->count(), 1);
    QVERIFY(m_page.isNull());
}

void TestUnsavedWork::aTabClosesOnceItsPageIsOnTheDisk()
{
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    m_window->ClosePage(1);
    QCOMPARE(Tabs()->count(), 2);
    other.Release();
    QTRY_COMPARE(Tabs()->count(), 1);
    QVERIFY(!m_page.isNull() && !m_page->isWindowModified());
    // A save that fails keeps the tab.
    m_window->Pages().Show(m_page, QStringLiteral("page"), QStringLiteral("The page"));
    m_page->m_save = [this] { return Store(false); };
    m_page->Edit(QStringLiteral("y"));
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    m_window->ClosePage(1);
    QTRY_VERIFY(!m_store->IsSaving());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(Tabs()->count(), 2);
}

void TestUnsavedWork::aHiddenPageIsAskedAboutToo()
{
    m_window->ClosePage(1);
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(!m_window->close());
}

void TestUnsavedWork::loadingAnewAsks()
{
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(!m_window->ReloadPages());
    QVERIFY(!m_page.isNull());
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    QVERIFY(m_window->ReloadPages());
    QVERIFY(m_page.isNull());
}

void TestUnsavedWork::loadingAnewWaitsForTheSave()
{
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->ReloadPages());
    QVERIFY(!m_page.isNull());
    other.Release();
    QTRY_VERIFY(m_page.isNull());
    QVERIFY(m_store->LastOutcome().IsSuccess());
}

void TestUnsavedWork::aChangeOutsideIsOfferedAndNotLoaded()
{
    QVERIFY(!Offer()->isVisible());
    m_answer = std::make_unique<DialogAnswer>(Escape);
    Q_EMIT m_store->SignalChangedOutside();
    QVERIFY(Offer()->isVisible());
    QVERIFY2(LastNote().contains(QLatin1String("Another program")), qPrintable(LastNote()));
    QVERIFY(Offer()->accessibleDescription().contains(QLatin1String("Another program")));
    QVERIFY(!m_page.isNull() && !m_answer->WasGiven());
    // Nothing was unsaved, and nothing went until the operator took the offer.
    Offer()->click();
    QVERIFY(m_page.isNull() && !m_answer->WasGiven());
}

void TestUnsavedWork::aChangeOutsideIsLoadedThroughTheQuestion()
{
    m_page->Edit(QStringLiteral("x"));
    Q_EMIT m_store->SignalChangedOutside();
    m_answer = std::make_unique<DialogAnswer>(Escape);
    Offer()->click();
    QVERIFY(m_answer->WasGiven() && !m_page.isNull() && Offer()->isVisible());
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    Offer()->click();
    QVERIFY(m_page.isNull());
}

void TestUnsavedWork::withoutAPageNothingIsOffered()
{
    m_window->Pages().Discard(m_page);
    const QString strBefore = LastNote();
    Q_EMIT m_store->SignalChangedOutside();
    QVERIFY(!Offer()->isVisible());
    QCOMPARE(LastNote(), strBefore);
}

void TestUnsavedWork::whatIsSavedOrLoadedTakesTheOfferAway()
{
    Q_EMIT m_store->SignalChangedOutside();
    QVERIFY(!Store(false) || Offer()->isVisible());
    m_store->WaitForSaves();
    QVERIFY(Offer()->isVisible()); // that save has failed
    QVERIFY(Store(true));
    m_store->WaitForSaves();
    QVERIFY(!Offer()->isVisible());
    Q_EMIT m_store->SignalChangedOutside();
    QVERIFY(Offer()->isVisible());
    QCOMPARE(m_store->Load(m_map), 0);
    QVERIFY(!Offer()->isVisible());
}

void TestUnsavedWork::aStepTakenBackWhileEditsStayIsNoFailedSave()
{
    QVERIFY(Store(true));
    m_store->WaitForSaves();
    const QSignalSpy reverted(m_store.get(), &AlarmSchemeStoreBackend::SignalReverted);
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QCOMPARE(m_store->Revert(NewestStep(), QString()), 0);
    QTRY_VERIFY(Offer()->isVisible());
    QCOMPARE(reverted.count(), 1);
    QVERIFY(m_answer->WasGiven());
    QVERIFY(m_answer->Question().contains(QLatin1String("loaded anew")));
    QVERIFY(!m_saving->IsUnsaved());
    QVERIFY(!m_window->findChild<QLabel*>(QStringLiteral("lblUnsaved"))->isVisible());
    QVERIFY(!m_page.isNull() && m_page->isWindowModified());
    // Nobody speaks of a save that failed when the edits are discarded and the window closes.
    m_page->Undo();
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(m_window->close());
    QVERIFY(!m_answer->WasGiven());
}

void TestUnsavedWork::aSessionEndAsks()
{
    QVERIFY(m_window->Unsaved().MayEndSession(true)); // nothing is unsaved
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(!m_window->Unsaved().MayEndSession(true));
    const QSignalSpy discarded(&m_window->Unsaved(), &UnsavedWork::SignalDiscarded);
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    QVERIFY(m_window->Unsaved().MayEndSession(true));
    QCOMPARE(discarded.count(), 1);
    QVERIFY(m_window->isVisible()); // another program may still stop it
}

void TestUnsavedWork::aSessionEndWaitsForTheSave()
{
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(m_window->Unsaved().MayEndSession(true));
    QVERIFY(!m_store->IsSaving() && m_store->LastOutcome().IsSuccess());
}

void TestUnsavedWork::aSessionEndIsStoppedByASaveThatFails()
{
    m_page->m_save = [this] { return Store(false); };
    m_page->Edit(QStringLiteral("x"));
    m_answer = std::make_unique<DialogAnswer>("btnKeep");
    QVERIFY(!m_window->Unsaved().MayEndSession(true));
    QVERIFY(m_page->isWindowModified());
}

void TestUnsavedWork::aSessionMayEndWhenTheEditsAreDiscardedAfterAFailure()
{
    QVERIFY(Store(false));
    QTRY_VERIFY(!m_store->IsSaving());
    QVERIFY(m_page->isWindowModified() && m_saving->IsUnsaved());
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    QVERIFY(m_window->Unsaved().MayEndSession(true));
}

void TestUnsavedWork::loadingAnewDuringASaveWaitsForIt()
{
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_page->OnSave();
    QVERIFY(!m_page->isWindowModified() && m_store->IsSaving());
    QVERIFY(!m_window->ReloadPages());
    QVERIFY(!m_page.isNull()); // it alone knows what the save is to store
    other.Release();
    QTRY_VERIFY(m_page.isNull());
}

void TestUnsavedWork::aTabClosedDuringASaveWaitsForIt()
{
    m_page->Edit(QStringLiteral("x"));
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_page->OnSave();
    m_page->Edit(QStringLiteral("y"));
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    m_window->ClosePage(1);
    QVERIFY(!m_answer->WasGiven() && Tabs()->count() == 2);
    other.Release();
    QTRY_VERIFY(m_page.isNull());
    QVERIFY(m_answer->WasGiven() && m_store->LastOutcome().IsSuccess());
}

void TestUnsavedWork::discardingAfterAFailureIsTheEndOfIt()
{
    QVERIFY(Store(false));
    QTRY_VERIFY(!m_store->IsSaving());
    QVERIFY(m_page->isWindowModified());
    m_answer = std::make_unique<DialogAnswer>("btnGiveUp");
    m_window->ClosePage(1);
    QVERIFY(m_page.isNull());
    m_answer = std::make_unique<DialogAnswer>(Escape);
    QVERIFY(m_window->close());
    QVERIFY(!m_answer->WasGiven());
}

void TestUnsavedWork::aSessionEndThatMayNotAskGoesOn()
{
    m_page->Edit(QStringLiteral("x"));
    QVERIFY(m_window->Unsaved().MayEndSession(false));
    QCOMPARE(m_page->Saves(), 0); // nobody has said that it is to be saved
}

void TestUnsavedWork::pagesAreToldWhenASaveFailed()
{
    QVERIFY(Store(false));
    QTRY_VERIFY(!m_store->IsSaving());
    QVERIFY(m_page->isWindowModified());
    QVERIFY(Store(true));
    QTRY_VERIFY(!m_store->IsSaving());
    QVERIFY(!m_saving->IsUnsaved());
}

void TestUnsavedWork::ctrlSSaves()
{
    m_page->Edit(QStringLiteral("x"));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_page->Saves(), 1);
    QVERIFY(!m_page->isWindowModified());
}

void TestUnsavedWork::theWindowTitleShowsIt()
{
    QVERIFY(!m_window->isWindowModified());
    m_page->Edit(QStringLiteral("x"));
    QVERIFY(m_window->isWindowModified());
    QVERIFY(m_window->windowTitle().contains(QStringLiteral("[*]")));
    Tabs()->setCurrentIndex(0);
    QVERIFY(!m_window->isWindowModified());
}

void TestUnsavedWork::aParentThatDiesMeansNothing()
{
    auto* const pParent = new QWidget;
    QTimer::singleShot(0, pParent, [pParent] { delete pParent; });
    const QuestionDialog::Answer eAnswer =
        QuestionDialog::Ask({QStringLiteral("t"), QStringLiteral("q"), QStringLiteral("a"),
                             QStringLiteral("b"), QStringLiteral("c")},
                            pParent);
    QVERIFY(eAnswer == QuestionDialog::Answer::Nothing);
}

QTEST_MAIN(TestUnsavedWork)
#include "tst_unsaved_work.moc"
