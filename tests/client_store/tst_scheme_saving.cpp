#include "client/SchemeSaving.h"

#include "client/SaveIndicator.h"
#include "client/SchemeConflictDialog.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "tests/client/DialogAnswer.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/client_store/StoreWindowTest.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(SchemeConflictAnswer)

namespace {

const QString ForWriting = QStringLiteral("begin immediate");
constexpr std::chrono::milliseconds TooLong{60000};
const AlarmSourceKey SomeKey{QStringLiteral("1$1$0$1"), 3};

} // namespace

/// The client's window around the scheme store.
class SchemeSavingTest : public StoreWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theDialogGivesTheChoice_data();
    void theDialogGivesTheChoice();
    void theDialogTellsHowManySchemesDiffer();
    void aFailedSaveMakesItUnsavedUntilOneSucceeds();
    void aStepThatCannotBeTakenBackLeavesNothingUnsaved();
    void closingWaitsForTheSaveAndThenCloses();
    void closingStaysWhenTheSaveFails();
    void unsavedChangesAreLostOnlyWithConsent();
    void aLongSaveIsShownAfterHalfASecond();
    void theQuestionReachesTheOperator();

private:
    AlarmInfoMap Changed()
    {
        AlarmInfoMap map = m_map;
        map[SomeKey].bOpen = !map.value(SomeKey).bOpen;
        return map;
    }
    QLabel* Unsaved() const { return m_window->findChild<QLabel*>(QStringLiteral("lblUnsaved")); }

    AlarmInfoMap m_map;
};

void SchemeSavingTest::init()
{
    QVERIFY(OpenWindow());
    OpenStore();
    QCOMPARE(m_store->Load(m_map), 0);
}

void SchemeSavingTest::cleanup()
{
    CloseAll();
}

void SchemeSavingTest::theDialogGivesTheChoice_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<SchemeConflictAnswer>("answer");
    QTest::newRow("keep") << QByteArray("btnKeepOthers") << SchemeConflictAnswer::KeepOthers;
    QTest::newRow("reload") << QByteArray("btnReload") << SchemeConflictAnswer::Reload;
    QTest::newRow("over") << QByteArray("btnSaveOver") << SchemeConflictAnswer::SaveOver;
    QTest::newRow("escape") << QByteArray() << SchemeConflictAnswer::Cancel;
}

void SchemeSavingTest::theDialogGivesTheChoice()
{
    QFETCH(QByteArray, button);
    QFETCH(SchemeConflictAnswer, answer);
    SchemeConflictDialog dialog(SchemeConflict{3, 0}, m_window.get());
    const DialogAnswer given(button.isEmpty() ? "none" : button.constData());
    dialog.exec();
    QVERIFY(given.WasGiven());
    QVERIFY(dialog.Answer() == answer);
}

void SchemeSavingTest::theDialogTellsHowManySchemesDiffer()
{
    const SchemeConflictDialog none(SchemeConflict{314, 0});
    const SchemeConflictDialog both(SchemeConflict{314, 159});
    const auto text = [](const SchemeConflictDialog& dialog) {
        return dialog.findChild<QLabel*>(QStringLiteral("lblConflict"))->text();
    };
    QVERIFY(text(none).contains(QLatin1String("314")) && !text(none).contains(QLatin1Char('\n')));
    QVERIFY(text(both).contains(QLatin1String("314")) && text(both).contains(QLatin1String("159")));
}

void SchemeSavingTest::aFailedSaveMakesItUnsavedUntilOneSucceeds()
{
    AlarmInfoMap bad = m_map;
    bad.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
    QCOMPARE(SaveAndWait(*m_store, bad), -1);
    QVERIFY(m_saving->IsUnsaved() && Unsaved()->isVisible());
    QCOMPARE(LastNote(), m_store->LastOutcome().Text());
    QCOMPARE(SaveAndWait(*m_store, Changed()), 0);
    QVERIFY(!m_saving->IsUnsaved() && !Unsaved()->isVisible());
}

void SchemeSavingTest::aStepThatCannotBeTakenBackLeavesNothingUnsaved()
{
    constexpr qint64 NoStep = 99;
    QCOMPARE(SaveAndWait(*m_store, Changed()), 0);
    QCOMPARE(m_store->Revert(NoStep, QString()), 0);
    m_store->WaitForSaves();
    QVERIFY(!m_store->LastOutcome().IsSuccess());
    QVERIFY(!m_saving->IsUnsaved() && !Unsaved()->isVisible());
}

void SchemeSavingTest::closingWaitsForTheSaveAndThenCloses()
{
    const QSignalSpy closing(m_window.get(), &MainWindow::SignalClosing);
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    QCOMPARE(m_store->Save(Changed()), 0);
    QSignalSpy notes(&Notes(), &LXGUI::LXMessageNotify::SignalNotificationAdded);
    QVERIFY(!m_window->close());
    QCOMPARE(notes.count(), 1);
    QVERIFY(m_window->isVisible() && closing.isEmpty());
    other.Release();
    QTRY_COMPARE(closing.count(), 1);
    QVERIFY(!m_store->IsSaving() && m_store->LastOutcome().IsSuccess());
}

void SchemeSavingTest::closingStaysWhenTheSaveFails()
{
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    AlarmInfoMap bad = Changed();
    bad.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
    QCOMPARE(m_store->Save(bad), 0);
    QVERIFY(!m_window->close());
    QSignalSpy saving(m_store.get(), &AlarmSchemeStoreBackend::SignalSavingChanged);
    other.Release();
    QTRY_COMPARE(saving.count(), 1);
    QCoreApplication::sendPostedEvents();
    QVERIFY(m_window->isVisible() && m_saving->IsUnsaved());
}

void SchemeSavingTest::unsavedChangesAreLostOnlyWithConsent()
{
    AlarmInfoMap bad = m_map;
    bad.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
    QCOMPARE(SaveAndWait(*m_store, bad), -1);
    const DialogAnswer refusal("none"); // by Escape
    QVERIFY(!m_window->close());
    QVERIFY(refusal.WasGiven());
    QVERIFY(m_window->isVisible());
}

void SchemeSavingTest::aLongSaveIsShownAfterHalfASecond()
{
    const auto* pIndicator = m_window->findChild<SaveIndicator*>(QStringLiteral("wndSaveIndicator"));
    QVERIFY(!pIndicator->isVisible());
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(m_store->Save(Changed()), 0);
    QVERIFY(!pIndicator->isVisible());
    QTRY_VERIFY(pIndicator->isVisible());
    QVERIFY(timer.elapsed() >= SaveIndicator::Patience - 50);
    other.Release();
    QTRY_VERIFY(!pIndicator->isVisible());
    QVERIFY(!m_store->IsSaving());
    QCOMPARE(m_window->findChild<QProgressBar*>(QStringLiteral("barSaved"))->minimum(), 0);
}

void SchemeSavingTest::theQuestionReachesTheOperator()
{
    {
        AlarmSchemeStoreBackend other;
        AlarmInfoMap map;
        QCOMPARE(other.Load(map), 0);
        map[AlarmSourceKey{QStringLiteral("theirs"), 1}].bOpen = true;
        QCOMPARE(SaveAndWait(other, map), 0);
    }
    const DialogAnswer answer("btnKeepOthers");
    QCOMPARE(SaveAndWait(*m_store, Changed()), 0);
    QVERIFY(answer.WasGiven());
    AlarmInfoMap stored;
    QCOMPARE(m_store->Load(stored), 0);
    QCOMPARE(stored.size(), 2);
    QVERIFY(stored.value(SomeKey).bOpen && stored.first().bOpen && stored.last().bOpen);
}

QTEST_MAIN(SchemeSavingTest)
#include "tst_scheme_saving.moc"
