#include "TellingPage.h"

#include "client/DraftKeeper.h"
#include "client/PageTabs.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/OtherProgram.h"

#include <QDir>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString ForWriting = QStringLiteral("begin immediate");
constexpr std::chrono::milliseconds TooLong{60000};
const AlarmSourceKey SomeKey{QStringLiteral("1$1$0$1"), 3};

/// A page that says that it is modified, and when, but not how to keep it.
class PlainPage : public QWidget
{
};

} // namespace

class TestDraftKeeper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEditIsInTheFileAMomentLater();
    void editsThatGoOnAreKeptOnTheirWay();
    void takingTheEditsBackRemovesTheDraft();
    void savingRemovesTheDraft();
    void discardingRemovesTheDraft();
    void aPageThatIsDiscardedInItsTabLeavesNoDraft();
    void theDraftStaysUntilTheSaveIsOnTheDisk();
    void theDraftStaysWhenTheSaveFails();
    void editsDuringASaveAreKeptAfterIt();
    void whatIsOnItsWayIsWrittenAtOnceWhenAsked();
    void aPageThatGoesUnsavedLeavesItsDraft();
    void aPageThatWasRestoredKeepsItsFile();
    void twoPagesHaveTwoFiles();
    void twoProgramsHaveTwoFiles();
    void aPageWithoutDraftsIsLeftAlone();
    void aFolderThatCannotBeWrittenIsToldOnce();

private:
    QStringList Files() const
    {
        return QDir(m_folder->path()).entryList({QStringLiteral("*.draft")}, QDir::Files);
    }
    /// What the only draft of the folder holds; empty when there is none, or more than one.
    QByteArray Kept() const
    {
        const QStringList files = Files();
        if (files.size() != 1) {
            return {};
        }
        // The keeper holds the lock; a copy is nobody's.
        QTemporaryDir folder;
        QFile::copy(m_folder->filePath(files.constFirst()), folder.filePath(files.constFirst()));
        const std::vector<std::unique_ptr<DraftFile>> drafts = DraftFile::Orphans(folder.path());
        Draft draft;
        QString strError;
        return !drafts.empty() && drafts.front()->Read(draft, strError) ? draft.content : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTabWidget> m_widget;
    std::unique_ptr<PageTabs> m_tabs;
    std::unique_ptr<DraftKeeper> m_keeper;
    TellingPage* m_page = nullptr;
};

void TestDraftKeeper::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_widget = std::make_unique<QTabWidget>();
    m_tabs = std::make_unique<PageTabs>(*m_widget, *new QWidget);
    m_keeper = std::make_unique<DraftKeeper>(m_folder->path(), *m_tabs);
    m_page = new TellingPage;
    m_tabs->Show(m_page, QStringLiteral("key"), QStringLiteral("Page"));
}

void TestDraftKeeper::cleanup()
{
    m_keeper.reset();
    m_tabs.reset();
    m_widget.reset();
}

void TestDraftKeeper::anEditIsInTheFileAMomentLater()
{
    m_page->Edit(QStringLiteral("one"));
    QVERIFY(Files().isEmpty());
    QTRY_COMPARE(Kept(), QByteArray("one"));
    m_page->Edit(QStringLiteral("two"));
    QTRY_COMPARE(Kept(), QByteArray("two"));
}

void TestDraftKeeper::editsThatGoOnAreKeptOnTheirWay()
{
    // An edit every few moments, never a pause as long as the delay.
    QTimer timer;
    int i = 0;
    connect(&timer, &QTimer::timeout, this, [this, &i] { m_page->Edit(QString::number(++i)); });
    timer.start(DraftKeeper::Delay / 10);
    QTRY_VERIFY(!Files().isEmpty());
    QVERIFY(timer.isActive());
}

void TestDraftKeeper::takingTheEditsBackRemovesTheDraft()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    QCOMPARE(Files().size(), 1);
    m_page->Undo();
    QCOMPARE(Files().size(), 0);
    m_page->Redo();
    m_keeper->WriteNow();
    QCOMPARE(Kept(), QByteArray("one"));
}

void TestDraftKeeper::savingRemovesTheDraft()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_page->OnSave();
    QCOMPARE(Files().size(), 0);
    m_keeper->WriteNow();
    QCOMPARE(Files().size(), 0);
}

void TestDraftKeeper::discardingRemovesTheDraft()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_page->Edit(QStringLiteral("two")); // not yet written
    m_keeper->Forget(m_page);
    m_keeper->WriteNow();
    QCOMPARE(Files().size(), 0);
    m_keeper->Forget(m_page); // twice is no harm
    // Should the page live on, its next edit is kept again.
    m_page->Edit(QStringLiteral("three"));
    m_keeper->WriteNow();
    QCOMPARE(Kept(), QByteArray("three"));
}

void TestDraftKeeper::aPageThatIsDiscardedInItsTabLeavesNoDraft()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_tabs->Discard(m_page);
    m_keeper->WriteNow();
    QCOMPARE(Files().size(), 0);
}

void TestDraftKeeper::theDraftStaysUntilTheSaveIsOnTheDisk()
{
    const StoreFolder folder;
    AlarmSchemeStoreBackend store;
    AlarmInfoMap map;
    QCOMPARE(store.Load(map), 0);
    m_keeper->Follow(&store);
    m_page->m_save = [&] {
        map[SomeKey].bOpen = true;
        return store.Save(map) == 0;
    };
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    OtherProgram other(folder.File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_page->OnSave();
    QVERIFY(!m_page->isWindowModified() && store.IsSaving());
    QCOMPARE(Kept(), QByteArray("one"));
    other.Release();
    QTRY_VERIFY(!store.IsSaving());
    QCOMPARE(Files().size(), 0);
}

void TestDraftKeeper::theDraftStaysWhenTheSaveFails()
{
    const StoreFolder folder;
    AlarmSchemeStoreBackend store;
    AlarmInfoMap map;
    QCOMPARE(store.Load(map), 0);
    m_keeper->Follow(&store);
    m_page->m_save = [&] {
        map.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
        return store.Save(map) == 0;
    };
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_page->OnSave();
    QTRY_VERIFY(!store.IsSaving());
    QVERIFY(!store.LastOutcome().IsSuccess());
    QCOMPARE(Kept(), QByteArray("one"));
}

void TestDraftKeeper::editsDuringASaveAreKeptAfterIt()
{
    const StoreFolder folder;
    AlarmSchemeStoreBackend store;
    AlarmInfoMap map;
    QCOMPARE(store.Load(map), 0);
    m_keeper->Follow(&store);
    m_page->m_save = [&] {
        map[SomeKey].bOpen = true;
        return store.Save(map) == 0;
    };
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    OtherProgram other(folder.File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    m_page->OnSave();
    m_page->Edit(QStringLiteral("two"));
    QVERIFY(store.IsSaving());
    QCOMPARE(Kept(), QByteArray("one"));
    other.Release();
    QTRY_COMPARE(Kept(), QByteArray("two"));
    QVERIFY(!store.IsSaving());
}

void TestDraftKeeper::whatIsOnItsWayIsWrittenAtOnceWhenAsked()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    QCOMPARE(Kept(), QByteArray("one"));
}

void TestDraftKeeper::aPageThatGoesUnsavedLeavesItsDraft()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_tabs->DestroyAll();
    m_keeper->WriteNow();
    QCOMPARE(Kept(), QByteArray("one"));
    QCOMPARE(DraftFile::Orphans(m_folder->path()).size(), size_t(1)); // nobody holds it any more
}

void TestDraftKeeper::aPageThatWasRestoredKeepsItsFile()
{
    m_page->Edit(QStringLiteral("one"));
    m_keeper->WriteNow();
    m_tabs->DestroyAll();
    m_page = nullptr;
    std::vector<std::unique_ptr<DraftFile>> drafts = DraftFile::Orphans(m_folder->path());
    QCOMPARE(drafts.size(), size_t(1));
    QTabWidget widget;
    PageTabs tabs(widget, *new QWidget);
    DraftKeeper keeper(m_folder->path(), tabs);
    TellingPage page;
    tabs.Show(&page, QStringLiteral("key"), QStringLiteral("Page"));
    QVERIFY(page.RestoreDraft("one") > 0);
    keeper.Adopt(&page, std::move(drafts.front()));
    page.Edit(QStringLiteral("two"));
    keeper.WriteNow();
    QCOMPARE(Kept(), QByteArray("two"));
    page.OnSave();
    QVERIFY(Files().isEmpty());
    // A draft that changes nothing has nothing left to keep.
    page.Edit(QStringLiteral("three"));
    keeper.WriteNow();
    QCOMPARE(Files().size(), 1);
}

void TestDraftKeeper::twoPagesHaveTwoFiles()
{
    auto* const pOther = new TellingPage;
    m_tabs->Show(pOther, QStringLiteral("other"), QStringLiteral("Other"));
    m_page->Edit(QStringLiteral("one"));
    pOther->Edit(QStringLiteral("two"));
    m_keeper->WriteNow();
    QCOMPARE(Files().size(), 2);
    pOther->OnSave();
    QCOMPARE(Kept(), QByteArray("one"));
}

void TestDraftKeeper::twoProgramsHaveTwoFiles()
{
    QTabWidget widget;
    PageTabs tabs(widget, *new QWidget);
    DraftKeeper keeper(m_folder->path(), tabs);
    auto* const pPage = new TellingPage;
    tabs.Show(pPage, QStringLiteral("key"), QStringLiteral("Page"));
    m_page->Edit(QStringLiteral("one"));
    pPage->Edit(QStringLiteral("two"));
    m_keeper->WriteNow();
    keeper.WriteNow();
    QCOMPARE(Files().size(), 2);
    QVERIFY(DraftFile::Orphans(m_folder->path()).empty());
    pPage->OnSave();
    QCOMPARE(Kept(), QByteArray("one"));
}

void TestDraftKeeper::aPageWithoutDraftsIsLeftAlone()
{
    auto* const pPage = new PlainPage;
    m_tabs->Show(pPage, QStringLiteral("plain"), QStringLiteral("Plain"));
    pPage->setWindowModified(true);
    m_keeper->WriteNow();
    pPage->setWindowModified(false);
    QVERIFY(Files().isEmpty());
}

void TestDraftKeeper::aFolderThatCannotBeWrittenIsToldOnce()
{
    QFile file(m_folder->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QTabWidget widget;
    PageTabs tabs(widget, *new QWidget);
    DraftKeeper keeper(file.fileName() + QStringLiteral("/drafts"), tabs);
    const QSignalSpy failed(&keeper, &DraftKeeper::SignalWriteFailed);
    auto* const pPage = new TellingPage;
    tabs.Show(pPage, QStringLiteral("key"), QStringLiteral("Page"));
    for (const char* szText : {"one", "two", "three"}) {
        pPage->Edit(QLatin1String(szText));
        keeper.WriteNow();
        QCoreApplication::sendPostedEvents();
    }
    QCOMPARE(failed.count(), 1);
    QVERIFY(!failed.at(0).at(0).toString().isEmpty());
}

QTEST_MAIN(TestDraftKeeper)
#include "tst_draft_keeper.moc"
