#include "client/SchemeDamageDialog.h"

#include "client/store/SchemeBackups.h"
#include "tests/client/DialogAnswer.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/client_store/SchemeFiles.h"
#include "tests/client_store/StoreWindowTest.h"

#include <QAbstractButton>
#include <QLabel>
#include <QtTest>

Q_DECLARE_METATYPE(SchemeDamageAnswer)

namespace {

SchemeDamage Damage(bool bBackup)
{
    SchemeDamage damage;
    damage.strFile = QStringLiteral("/data/Database/AlarmScheme.db");
    damage.strTechnical = QStringLiteral("Tree 12 page 7: btreeInitPage() returns error code 11");
    if (bBackup)
        damage.backup = SchemeDamage::Backup{QStringLiteral("/data/Database/backups/x.db"),
                                             QDateTime(QDate(2026, 11, 20), QTime(7, 30)), 4711};
    return damage;
}

} // namespace

/// How the operator meets a damaged scheme database.
class SchemeDamageDialogTest : public StoreWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theDialogGivesTheChoice_data();
    void theDialogGivesTheChoice();
    void theDialogTellsWhatItOffers();
    void withoutABackupNoneIsOffered();
    void theOperatorIsAskedAndTheBackupComesBack();
    void whatWasToldOfTheDamageGoesWithIt();
    void closingTheDialogLeavesTheFileAlone();
    void aMissingBackupIsAWarningBesideTheSuccess();

private:
    void MakeDamagedWithBackup()
    {
        SchemeFiles::Make(m_folder->File(), 12);
        QVERIFY(!SchemeBackups(m_folder->File()).Make(std::chrono::milliseconds(0)));
        SchemeFiles::DamageTable(m_folder->File());
    }
};

void SchemeDamageDialogTest::init()
{
    QVERIFY(OpenWindow());
}

void SchemeDamageDialogTest::cleanup()
{
    CloseAll();
}

void SchemeDamageDialogTest::theDialogGivesTheChoice_data()
{
    QTest::addColumn<bool>("backup");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<SchemeDamageAnswer>("answer");
    QTest::newRow("restore") << true << QByteArray("btnRestore") << SchemeDamageAnswer::Restore;
    QTest::newRow("empty") << true << QByteArray("btnStartEmpty") << SchemeDamageAnswer::StartEmpty;
    QTest::newRow("leave") << true << QByteArray("btnLeaveAlone") << SchemeDamageAnswer::LeaveAlone;
    QTest::newRow("escape") << true << QByteArray("none") << SchemeDamageAnswer::LeaveAlone;
    QTest::newRow("no backup, empty")
        << false << QByteArray("btnStartEmpty") << SchemeDamageAnswer::StartEmpty;
    QTest::newRow("no backup, escape") << false << QByteArray("none") << SchemeDamageAnswer::LeaveAlone;
}

void SchemeDamageDialogTest::theDialogGivesTheChoice()
{
    QFETCH(bool, backup);
    QFETCH(QByteArray, button);
    QFETCH(SchemeDamageAnswer, answer);
    const DialogAnswer given(button.constData());
    QVERIFY(SchemeDamageDialog::Ask(Damage(backup), m_window.get()) == answer);
    QVERIFY(given.WasGiven());
}

void SchemeDamageDialogTest::theDialogTellsWhatItOffers()
{
    const SchemeDamageDialog dialog(Damage(true), m_window.get());
    const auto label = [&dialog](const char* name) {
        return dialog.findChild<QLabel*>(QLatin1String(name))->text();
    };
    QVERIFY(label("lblDamage").contains(QLatin1String("AlarmScheme.db")));
    QCOMPARE(label("lblTechnical"), Damage(true).strTechnical);
    const QString strRestore = dialog.findChild<QAbstractButton*>(QStringLiteral("btnRestore"))->text();
    QVERIFY2(strRestore.contains(QLocale().toString(4711)), qPrintable(strRestore));
    QVERIFY(strRestore.contains(QLocale().toString(Damage(true).backup->time, QLocale::ShortFormat)));
    QVERIFY(!dialog.accessibleDescription().isEmpty());
}

void SchemeDamageDialogTest::withoutABackupNoneIsOffered()
{
    SchemeDamageDialog dialog(Damage(false), m_window.get());
    dialog.show();
    QVERIFY(!dialog.findChild<QAbstractButton*>(QStringLiteral("btnRestore"))->isVisible());
    QVERIFY(dialog.findChild<QAbstractButton*>(QStringLiteral("btnStartEmpty"))->isVisible());
    QVERIFY(dialog.findChild<QAbstractButton*>(QStringLiteral("btnLeaveAlone"))->isVisible());
}

void SchemeDamageDialogTest::theOperatorIsAskedAndTheBackupComesBack()
{
    MakeDamagedWithBackup();
    const DialogAnswer answer("btnRestore");
    OpenStore();
    QTRY_VERIFY(m_store->LastOutcome().eOperation == SchemeStoreOutcome::Operation::Repair);
    QCOMPARE(answer.Dialogs(), 1);
    QVERIFY(m_store->LastOutcome().IsSuccess());
    QCOMPARE(LastNote(), m_store->LastOutcome().Text());
    QVERIFY(LastNote().contains(QLatin1String("12")));
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), 0);
    QVERIFY(map == SchemeFiles::Map(12));
    QVERIFY(!m_saving->IsUnsaved());
}

void SchemeDamageDialogTest::whatWasToldOfTheDamageGoesWithIt()
{
    Notes().SetAnchor(m_window.get());
    MakeDamagedWithBackup();
    const DialogAnswer answer("btnRestore");
    OpenStore();
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), -1); // as of a page that is opened at once
    const QString strDamaged = LastNote();
    QCOMPARE(strDamaged, m_store->LastOutcome().Text());
    QTRY_VERIFY(m_store->LastOutcome().eOperation == SchemeStoreOutcome::Operation::Repair);
    QVERIFY(LastNote() != strDamaged);
    QCOMPARE(Notes().GetVisibleTexts(), QStringList{m_store->LastOutcome().Text()});
    Notes().SetAnchor(nullptr);
}

void SchemeDamageDialogTest::closingTheDialogLeavesTheFileAlone()
{
    MakeDamagedWithBackup();
    const QByteArray before = m_folder->Bytes();
    const DialogAnswer answer("none");
    OpenStore();
    QTRY_COMPARE(answer.Dialogs(), 1);
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), -1);
    QCOMPARE(map.size(), 12);
    QCOMPARE(SaveAndWait(*m_store, map), -1);
    m_store.reset();
    QCOMPARE(m_folder->Bytes(), before);
}

void SchemeDamageDialogTest::aMissingBackupIsAWarningBesideTheSuccess()
{
    SchemeFiles::Make(m_folder->File(), 2);
    SchemeFiles::Write(SchemeBackups(m_folder->File()).Folder(), "a file");
    OpenStore();
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), 0);
    QCOMPARE(SaveAndWait(*m_store, SchemeFiles::Map(3)), 0);
    QVERIFY(m_store->LastOutcome().bWarning);
    QCOMPARE(LastNote(), m_store->LastOutcome().Text());
    QVERIFY(!m_saving->IsUnsaved());
}

QTEST_MAIN(SchemeDamageDialogTest)
#include "tst_scheme_damage_dialog.moc"
