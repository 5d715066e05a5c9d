#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/LXGUI/LXSwitchButton.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"
#include "scheme_editor/ACSEventNotifyEditor.h"
#include "tests/scheme_editor/PageHost.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

/// Translates every text into its context and itself, so that a text that is not translated, or in a strange
/// context, shows.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char* szContext, const char* szText, const char*, int) const override
    {
        return QStringLiteral("%1/%2").arg(QLatin1String(szContext), QLatin1String(szText));
    }
    bool isEmpty() const override { return false; }
};

/// What the next modal box looked like, and the hand that answers it.
class BoxAnswer : public QObject
{
    Q_OBJECT

public:
    enum Hand
    {
        Accept,
        Refuse,
        Escape,
        Close
    };

    explicit BoxAnswer(Hand hand, std::function<void()> before = {})
        : m_hand(hand)
        , m_before(std::move(before))
    {
        QTimer::singleShot(0, this, &BoxAnswer::Answer);
    }

    bool bAsked = false;
    QString strTitle;
    QStringList texts;
    QStringList buttons;
    QWidget* pParent = nullptr;

private:
    void Answer()
    {
        QWidget* const pBox = QApplication::activeModalWidget();
        if (pBox == nullptr)
            return;
        bAsked = true;
        strTitle = pBox->windowTitle();
        pParent = pBox->parentWidget();
        const QList<QLabel*> labels = pBox->findChildren<QLabel*>();
        for (const QLabel* const pLabel : labels)
            texts.append(pLabel->text());
        const QList<QPushButton*> found = pBox->findChildren<QPushButton*>();
        QPushButton* pAccept = nullptr;
        QPushButton* pRefuse = nullptr;
        for (QPushButton* const pButton : found) {
            buttons.append(pButton->text().remove(QLatin1Char('&')));
            if (buttons.constLast() == QLatin1String("Yes"))
                pAccept = pButton;
            if (buttons.constLast() == QLatin1String("No"))
                pRefuse = pButton;
        }
        if (m_before)
            m_before();
        if (m_hand == Accept && pAccept != nullptr) {
            QTest::mouseClick(pAccept, Qt::LeftButton);
        } else if (m_hand == Refuse && pRefuse != nullptr) {
            QTest::mouseClick(pRefuse, Qt::LeftButton);
        } else if (m_hand == Close) {
            pBox->close();
        } else {
            QTest::keyClick(pBox, Qt::Key_Escape);
        }
    }

    Hand m_hand;
    std::function<void()> m_before;
};

LXGUI::LXMessageNotify* Notes()
{
    return LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance();
}

QString NoRight()
{
    return QStringLiteral("You do not have system config right.");
}

struct ShownEditor
{
    ShownEditor()
        : editor(std::make_unique<ACSEventNotifyEditor>())
        , pSound(editor->findChild<LXGUI::LXSwitchButton*>(QStringLiteral("btnAlarmSound")))
        , pMail(editor->findChild<LXGUI::LXSwitchButton*>(QStringLiteral("btnSendEmail")))
    {
        editor->show();
    }

    AlarmNotifyInfo Read(const AlarmNotifyInfo& before = {}) const
    {
        AlarmNotifyInfo info = before;
        editor->GetNotifyInfo(info);
        return info;
    }
    void ClickMail() const { QTest::mouseClick(pMail, Qt::LeftButton); }
    void ClickSound() const { QTest::mouseClick(pSound, Qt::LeftButton); }

    std::unique_ptr<ACSEventNotifyEditor> editor;
    LXGUI::LXSwitchButton* pSound;
    LXGUI::LXSwitchButton* pMail;
};

SystemMailServer Server(const QString& strServer)
{
    SystemMailServer server;
    server.strServer = strServer;
    return server;
}

} // namespace

class TestNotifyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsStated();
    void textsAreTranslatedInTheEditorsContext();
    void aFreshEditorShowsBothSwitchesOff();
    void flagsAreShownAndReadBack_data();
    void flagsAreShownAndReadBack();
    void readingBackNeverChangesTheMapTwinkle();
    void showingARecordAsksNothing();
    void simpleModeHidesTheMailRow();
    void onOpenEmailIsItsOnlySlot();
    void switchingSoundAsksNothing();
    void switchingMailOffAsksNothing();
    void usableMailAsksNothing();
    void onlyTheFirstServerCounts();
    void unusableMailAsks_data();
    void unusableMailAsks();
    void theQuestionIsAsStated();
    void refusingTurnsMailOff_data();
    void refusingTurnsMailOff();
    void acceptingWithoutTheRightKeepsMailOnAndSaysSo();
    void anotherRightIsNotEnough();
    void acceptingOpensTheMailSettings();
    void mailThatBecomesUsableStaysOn();
    void acceptingWithoutAMainWindowTurnsMailOff();
    void turningOffAfterARefusalAsksNoSecondTime();
    void everySwitchingOnAsksAgain();
    void theEditorMayGoWhileTheQuestionIsOpen();
    void theEditorMayGoWhileTheMailSettingsAreOpen();
};

void TestNotifyEditor::theFormIsAsStated()
{
    ACSEventNotifyEditor editor;
    QCOMPARE(editor.objectName(), QStringLiteral("ACSEventNotifyEditor"));
    QCOMPARE(editor.size(), QSize(336, 326));
    QCOMPARE(editor.windowTitle(), QStringLiteral("Form"));

    auto* const pRows = qobject_cast<QVBoxLayout*>(editor.layout());
    QVERIFY(pRows != nullptr);
    QCOMPARE(pRows->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(pRows->spacing(), 10);
    QCOMPARE(pRows->contentsMargins(), QMargins(17, 22, 10, 10));
    auto* const pGrid = editor.findChild<QGridLayout*>(QStringLiteral("gridLayout"));
    QVERIFY(pGrid != nullptr);
    QCOMPARE(pRows->indexOf(pGrid), 0);
    QCOMPARE(pGrid->horizontalSpacing(), 10);
    QCOMPARE(pGrid->verticalSpacing(), 10);

    const auto at = [pGrid](int iRow, int iColumn) { return pGrid->itemAtPosition(iRow, iColumn); };
    auto* const pSoundLabel = qobject_cast<QLabel*>(at(0, 0)->widget());
    QCOMPARE(pSoundLabel->objectName(), QStringLiteral("label"));
    QCOMPARE(pSoundLabel->text(), QStringLiteral("Alarm Sound:"));
    QCOMPARE(pSoundLabel->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    auto* const pSound = qobject_cast<LXGUI::LXSwitchButton*>(at(0, 1)->widget());
    QVERIFY(pSound != nullptr);
    QCOMPARE(pSound->objectName(), QStringLiteral("btnAlarmSound"));
    QCOMPARE(pSound->minimumSize(), QSize(36, 0));
    QCOMPARE(pSound->maximumSize(), QSize(36, QWIDGETSIZE_MAX));
    auto* const pMailLabel = qobject_cast<QLabel*>(at(1, 0)->widget());
    QCOMPARE(pMailLabel->objectName(), QStringLiteral("label_2"));
    QCOMPARE(pMailLabel->text(), QStringLiteral("Send Mail:"));
    auto* const pMail = qobject_cast<LXGUI::LXSwitchButton*>(at(1, 1)->widget());
    QVERIFY(pMail != nullptr);
    QCOMPARE(pMail->objectName(), QStringLiteral("btnSendEmail"));

    for (int row = 0; row < 2; ++row) {
        QSpacerItem* const pSpacer = at(row, 2)->spacerItem();
        QVERIFY(pSpacer != nullptr);
        QCOMPARE(pSpacer->sizeHint(), QSize(40, 20));
        QCOMPARE(pSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    }
    QSpacerItem* const pBelow = pRows->itemAt(1)->spacerItem();
    QVERIFY(pBelow != nullptr);
    QCOMPARE(pBelow->sizeHint(), QSize(20, 261));
    QCOMPARE(pBelow->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestNotifyEditor::textsAreTranslatedInTheEditorsContext()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    ACSEventNotifyEditor editor;
    QCOMPARE(editor.findChild<QLabel*>(QStringLiteral("label"))->text(),
             QStringLiteral("ACSEventNotifyEditor/Alarm Sound:"));
    QCOMPARE(editor.findChild<QLabel*>(QStringLiteral("label_2"))->text(),
             QStringLiteral("ACSEventNotifyEditor/Send Mail:"));
    QCoreApplication::removeTranslator(&translator);
}

void TestNotifyEditor::aFreshEditorShowsBothSwitchesOff()
{
    const ShownEditor shown;
    QVERIFY(!shown.pSound->isToggled());
    QVERIFY(!shown.pMail->isToggled());
}

void TestNotifyEditor::flagsAreShownAndReadBack_data()
{
    QTest::addColumn<bool>("sound");
    QTest::addColumn<bool>("mail");
    for (const bool sound : {false, true}) {
        for (const bool mail : {false, true})
            QTest::addRow("sound %d mail %d", sound, mail) << sound << mail;
    }
}

void TestNotifyEditor::flagsAreShownAndReadBack()
{
    QFETCH(bool, sound);
    QFETCH(bool, mail);
    const ShownEditor shown;
    for (const bool other : {true, false}) {
        shown.editor->SetNotifyInfo({other, other, other});
        shown.editor->SetNotifyInfo({sound, other, mail});
        QCOMPARE(shown.pSound->isToggled(), sound);
        QCOMPARE(shown.pMail->isToggled(), mail);
        AlarmNotifyInfo info{!sound, other, !mail};
        QCOMPARE(shown.editor->GetNotifyInfo(info), 0);
        QCOMPARE(info.bOpenSound, sound);
        QCOMPARE(info.bSendEmail, mail);
    }
}

void TestNotifyEditor::readingBackNeverChangesTheMapTwinkle()
{
    const ShownEditor shown;
    for (const bool set : {false, true}) {
        for (const bool kept : {false, true}) {
            shown.editor->SetNotifyInfo({true, set, true});
            QCOMPARE(shown.Read({false, kept, false}).bEmapTwinkle, kept);
        }
    }
}

void TestNotifyEditor::showingARecordAsksNothing()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.editor->SetNotifyInfo({false, false, true});
    QCoreApplication::sendPostedEvents();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(shown.pMail->isToggled());
    QVERIFY(!answer.bAsked);
}

void TestNotifyEditor::simpleModeHidesTheMailRow()
{
    const ShownEditor shown;
    auto* const pLabel = shown.editor->findChild<QLabel*>(QStringLiteral("label_2"));
    QVERIFY(pLabel->isVisible() && shown.pMail->isVisible());
    shown.editor->SetSimpleMode(true);
    QVERIFY(pLabel->isHidden() && shown.pMail->isHidden());
    QVERIFY(shown.pSound->isVisible());
    shown.editor->SetNotifyInfo({false, false, true});
    QVERIFY(shown.Read().bSendEmail);
    shown.editor->SetSimpleMode(false);
    QVERIFY(pLabel->isVisible() && shown.pMail->isVisible());
}

void TestNotifyEditor::onOpenEmailIsItsOnlySlot()
{
    const QMetaObject& meta = ACSEventNotifyEditor::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("OnOpenEmail()"));
}

void TestNotifyEditor::switchingSoundAsksNothing()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickSound();
    QVERIFY(shown.Read().bOpenSound);
    QVERIFY(!answer.bAsked);
}

void TestNotifyEditor::switchingMailOffAsksNothing()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    shown.editor->SetNotifyInfo({false, false, true});
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(!shown.Read().bSendEmail);
    QVERIFY(!answer.bAsked);
}

void TestNotifyEditor::usableMailAsksNothing()
{
    PageHost host;
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickMail();
    QVERIFY(shown.Read().bSendEmail);
    QVERIFY(!answer.bAsked);
}

void TestNotifyEditor::onlyTheFirstServerCounts()
{
    PageHost host;
    SystemMailSettings settings;
    settings.bEnable = true;
    settings.servers = {Server(QStringLiteral("mail.example")), Server(QString())};
    QSystem::GetInstance()->SetMailSettings(settings);
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickMail();
    QVERIFY(!answer.bAsked);
    QVERIFY(shown.Read().bSendEmail);
}

void TestNotifyEditor::unusableMailAsks_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QStringList>("servers");
    const QString server = QStringLiteral("mail.example");
    QTest::newRow("disabled") << false << QStringList{server};
    QTest::newRow("no server entries") << true << QStringList();
    QTest::newRow("empty first server") << true << QStringList{QString(), server};
}

void TestNotifyEditor::unusableMailAsks()
{
    QFETCH(bool, enabled);
    QFETCH(QStringList, servers);
    PageHost host;
    SystemMailSettings settings;
    settings.bEnable = enabled;
    for (const QString& server : qAsConst(servers))
        settings.servers.append(Server(server));
    QSystem::GetInstance()->SetMailSettings(settings);
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QVERIFY(!shown.Read().bSendEmail);
}

void TestNotifyEditor::theQuestionIsAsStated()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QVERIFY(answer.strTitle == QLatin1String("Prompt") || answer.texts.contains(QStringLiteral("Prompt")));
    QVERIFY(answer.texts.contains(
        QStringLiteral("The SMTP setting is not enabled. Do you want to edit it right now?")));
    QVERIFY(answer.buttons.contains(QStringLiteral("Yes")));
    QVERIFY(answer.buttons.contains(QStringLiteral("No")));
    QVERIFY(answer.pParent == nullptr);
}

void TestNotifyEditor::refusingTurnsMailOff_data()
{
    QTest::addColumn<int>("hand");
    QTest::newRow("the refusing button") << int(BoxAnswer::Refuse);
    QTest::newRow("Escape") << int(BoxAnswer::Escape);
    QTest::newRow("closing the box") << int(BoxAnswer::Close);
}

void TestNotifyEditor::refusingTurnsMailOff()
{
    QFETCH(int, hand);
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightAll);
    const ShownEditor shown;
    const BoxAnswer answer(static_cast<BoxAnswer::Hand>(hand));
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QVERIFY(!shown.pMail->isToggled());
    QVERIFY(host.mainWindow.messages.isEmpty());
}

void TestNotifyEditor::acceptingWithoutTheRightKeepsMailOnAndSaysSo()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QSignalSpy notes(Notes(), &LXGUI::LXMessageNotify::SignalNotificationAdded);
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QCOMPARE(notes.count(), 1);
    QCOMPARE(notes.constFirst().constFirst().toString(), NoRight());
    QVERIFY(shown.pMail->isToggled());
    QVERIFY(shown.Read().bSendEmail);
    QVERIFY(host.mainWindow.messages.isEmpty());
}

void TestNotifyEditor::anotherRightIsNotEnough()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightAll & ~uint32_t{QCommon::RightSystemConfig});
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QCOMPARE(Notes()->GetLastText(), NoRight());
    QVERIFY(host.mainWindow.messages.isEmpty());
}

void TestNotifyEditor::acceptingOpensTheMailSettings()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightSystemConfig);
    QSignalSpy notes(Notes(), &LXGUI::LXMessageNotify::SignalNotificationAdded);
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QCOMPARE(host.mainWindow.messages.size(), 1);
    QCOMPARE(host.mainWindow.messages.constFirst().iMessage, 22);
    QCOMPARE(host.mainWindow.messages.constFirst().wParam, quintptr{0});
    QCOMPARE(host.mainWindow.messages.constFirst().lParam, quintptr{0});
    QVERIFY(!shown.pMail->isToggled());
    QCOMPARE(notes.count(), 0);
}

void TestNotifyEditor::mailThatBecomesUsableStaysOn()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightSystemConfig);
    host.mainWindow.answer = &PageHost::MakeMailUsable;
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QCOMPARE(host.mainWindow.messages.size(), 1);
    QVERIFY(shown.pMail->isToggled());
}

void TestNotifyEditor::acceptingWithoutAMainWindowTurnsMailOff()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightSystemConfig);
    host.hub.pMainWindow = nullptr;
    host.Offer();
    const ShownEditor shown;
    const BoxAnswer answer(BoxAnswer::Accept);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QVERIFY(!shown.pMail->isToggled());
}

void TestNotifyEditor::turningOffAfterARefusalAsksNoSecondTime()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    QSignalSpy toggled(shown.pMail, &QAbstractButton::toggled);
    const BoxAnswer answer(BoxAnswer::Refuse);
    shown.ClickMail();
    QVERIFY(answer.bAsked);
    QCOMPARE(toggled.count(), 1);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void TestNotifyEditor::everySwitchingOnAsksAgain()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    const ShownEditor shown;
    for (int i = 0; i < 3; ++i) {
        const BoxAnswer answer(BoxAnswer::Refuse);
        QTest::keyClick(shown.pMail, Qt::Key_Space);
        QVERIFY(answer.bAsked);
        QVERIFY(!shown.pMail->isToggled());
    }
}

void TestNotifyEditor::theEditorMayGoWhileTheQuestionIsOpen()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightSystemConfig);
    for (const BoxAnswer::Hand hand : {BoxAnswer::Refuse, BoxAnswer::Accept}) {
        ShownEditor shown;
        const QPointer<ACSEventNotifyEditor> watched(shown.editor.get());
        const BoxAnswer answer(hand, [&shown] { shown.editor.reset(); });
        // Not from inside the button's own mouse event: a deleted button may not come back from one.
        watched->SetNotifyInfo({false, false, true});
        watched->OnOpenEmail();
        QVERIFY(answer.bAsked);
        QVERIFY(watched.isNull());
    }
}

void TestNotifyEditor::theEditorMayGoWhileTheMailSettingsAreOpen()
{
    PageHost host;
    PageHost::MakeMailUnusable();
    QCommon::SetMenuRights(QCommon::RightSystemConfig);
    ShownEditor shown;
    const QPointer<ACSEventNotifyEditor> watched(shown.editor.get());
    host.mainWindow.answer = [&shown] { shown.editor.reset(); };
    const BoxAnswer answer(BoxAnswer::Accept);
    watched->SetNotifyInfo({false, false, true});
    watched->OnOpenEmail();
    QVERIFY(answer.bAsked);
    QVERIFY(watched.isNull());
    QCOMPARE(host.mainWindow.messages.size(), 1);
}

QTEST_MAIN(TestNotifyEditor)
#include "tst_notify_editor.moc"
