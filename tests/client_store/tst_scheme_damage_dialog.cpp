#include "client/SchemeDamageDialog.h"

#include "client/ClientSettings.h"
#include "client/MainWindow.h"
#include "client/SchemeSaving.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/SchemeBackups.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/client_store/SchemeFiles.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QtTest>

#include <memory>

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

/// Presses a button of the next modal dialog, or Escape when it has none of that name.
void AnswerDialog(const QByteArray& button)
{
    QTimer::singleShot(0, qApp, [button] {
        QWidget* pDialog = QApplication::activeModalWidget();
        if (pDialog == nullptr)
            return;
        auto* pButton = pDialog->findChild<QAbstractButton*>(QString::fromLatin1(button));
        if (pButton != nullptr)
            QTest::mouseClick(pButton, Qt::LeftButton);
        else
            QTest::keyClick(pDialog, Qt::Key_Escape);
    });
}

/// Presses it as soon as a dialog comes up.
class WaitingAnswer : public QObject
{
public:
    explicit WaitingAnswer(const QByteArray& button)
        : m_button(button)
    {
        qApp->installEventFilter(this);
    }
    int Dialogs() const { return m_iDialogs; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<SchemeDamageDialog*>(watched) != nullptr) {
            ++m_iDialogs;
            AnswerDialog(m_button);
        }
        return false;
    }

private:
    QByteArray m_button;
    int m_iDialogs = 0;
};

} // namespace

/// How the operator meets a damaged scheme database.
class SchemeDamageDialogTest : public QObject
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
    static QString LastNote()
    {
        return LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->GetLastText();
    }
    void MakeDamagedWithBackup()
    {
        SchemeFiles::Make(m_folder->File(), 12);
        QVERIFY(!SchemeBackups(m_folder->File()).Make(std::chrono::milliseconds(0)));
        SchemeFiles::DamageTable(m_folder->File());
    }
    void StartClient()
    {
        m_store = std::make_unique<AlarmSchemeStoreBackend>();
        m_saving = std::make_unique<SchemeSaving>(*m_store, *m_window);
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<ClientSettings> m_settings;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<AlarmSchemeStoreBackend> m_store;
    std::unique_ptr<SchemeSaving> m_saving;
};

void SchemeDamageDialogTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_settings =
        std::make_unique<ClientSettings>(QDir(m_folder->Root()).filePath(QStringLiteral("client.ini")));
    m_window = std::make_unique<MainWindow>(*m_settings, UserRole::Administrator, m_folder->Root());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void SchemeDamageDialogTest::cleanup()
{
    m_store.reset();
    m_saving.reset();
    m_window.reset();
    m_settings.reset();
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->Clear();
    m_folder.reset();
    m_log.reset();
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
    AnswerDialog(button);
    QVERIFY(SchemeDamageDialog::Ask(Damage(backup), m_window.get()) == answer);
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
    const WaitingAnswer answer("btnRestore");
    StartClient();
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
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->SetAnchor(m_window.get());
    MakeDamagedWithBackup();
    const WaitingAnswer answer("btnRestore");
    StartClient();
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), -1); // as of a page that is opened at once
    const QString strDamaged = LastNote();
    QCOMPARE(strDamaged, m_store->LastOutcome().Text());
    QTRY_VERIFY(m_store->LastOutcome().eOperation == SchemeStoreOutcome::Operation::Repair);
    QVERIFY(LastNote() != strDamaged);
    QCOMPARE(LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->GetVisibleTexts(),
             QStringList{m_store->LastOutcome().Text()});
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->SetAnchor(nullptr);
}

void SchemeDamageDialogTest::closingTheDialogLeavesTheFileAlone()
{
    MakeDamagedWithBackup();
    const QByteArray before = m_folder->Bytes();
    const WaitingAnswer answer("none");
    StartClient();
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
    StartClient();
    AlarmInfoMap map;
    QCOMPARE(m_store->Load(map), 0);
    QCOMPARE(SaveAndWait(*m_store, SchemeFiles::Map(3)), 0);
    QVERIFY(m_store->LastOutcome().bWarning);
    QCOMPARE(LastNote(), m_store->LastOutcome().Text());
    QVERIFY(!m_saving->IsUnsaved());
}

QTEST_MAIN(SchemeDamageDialogTest)
#include "tst_scheme_damage_dialog.moc"
