#include "PictureMaker.h"

#include "tests/end_to_end/CopyPopupHand.h"
#include "tests/end_to_end/Hand.h"
#include "tests/end_to_end/OutputsHand.h"
#include "tests/end_to_end/WeekPlanHand.h"

#include "client/MainWindow.h"
#include "client/SampleSite.h"
#include "client/SchemeConflictDialog.h"
#include "client/SchemeDamageDialog.h"
#include "client/SiteImportDialog.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/QCommon.h"
#include "scheme_services/site/SiteImport.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <cstdio>

namespace {

// From the sample site.
constexpr qint64 FirstFloor = 3;
constexpr qint64 MainEntrance = 100101;
constexpr qint64 DeliveryDoor = 100103;
constexpr qint64 LobbySiren = 100107;
constexpr qint64 DisabledDoor = 100204;

constexpr int DoorForcedOpen = 101;
constexpr int DuressCode = 102;

constexpr int SmallestFile = 0; // the best compression
constexpr int RestTime = 400;   // milliseconds; switches slide and notes fade in

/// The devices of the sample site as a table, with what an import would show.
QByteArray ChangedSite(bool bSound)
{
    Site site = MakeSampleSite();
    site.devices[0].strName = QStringLiteral("Lobby controller");
    site.devices[0].channels[2].strName = QStringLiteral("Goods entrance");
    VantaLogic::ChannelInfo door = site.devices[1].channels[0];
    door.iChannelId = 100290;
    door.iNumber = 9;
    door.strName = QStringLiteral("Roof terrace");
    site.devices[1].channels.append(door);
    site.devices.removeLast();
    QByteArray text = SiteImport::ToText(site, SiteForm::Csv);
    if (!bSound)
        text.replace("north\",door", "north\",gate").replace("rooms\",door,3", "rooms\",door,1");
    return text;
}

} // namespace

PictureMaker::PictureMaker(const PictureOrder& order)
    : m_order(order)
    , m_directory(order.strDirectory)
    , m_driver(m_data.path())
{
    m_driver.UseLanguage(order.strLanguage);
}

bool PictureMaker::Run()
{
    if (!m_data.isValid() || !QDir().mkpath(m_directory.path()) || !m_driver.Start())
        return false;
    Window()->resize(m_order.size);
    struct Stop
    {
        const char* szName;
        bool (PictureMaker::*pWork)();
        bool bDocumented;
    };
    const Stop stops[] = {
        {"start", &PictureMaker::OpenPage, true},
        {"alarm", &PictureMaker::SetAlarm, true},
        {"week", &PictureMaker::PlanWeek, true},
        {"output", &PictureMaker::LinkOutput, true},
        {"unsaved", &PictureMaker::AskAboutUnsaved, true},
        {"first save", &PictureMaker::SaveSchemes, true},
        {"copy", &PictureMaker::CopyToFloor, true},
        {"second save", &PictureMaker::SaveSchemes, true},
        {"mistakes", &PictureMaker::LeaveMistakes, true},
        {"third save", &PictureMaker::SaveSchemes, true},
        {"explain", &PictureMaker::Explain, true},
        {"coverage", &PictureMaker::ShowCoverage, true},
        {"history", &PictureMaker::ShowHistory, true},
        {"site", &PictureMaker::ImportSite, true},
        {"window", &PictureMaker::RestOfTheWindow, false},
        {"dialogs", &PictureMaker::RestOfTheDialogs, false},
        {"draft", &PictureMaker::OfferDraft, false},
    };
    return std::all_of(std::cbegin(stops), std::cend(stops), [this](const Stop& stop) {
        if (!stop.bDocumented && !m_order.bEveryScreen)
            return true;
        const bool bDone = (this->*stop.pWork)();
        if (!bDone)
            std::fprintf(stderr, "stopped at: %s\n", stop.szName);
        return bDone;
    });
}

bool PictureMaker::Picture(QWidget* pWidget, const char* szName)
{
    if (!Settled())
        return false;
    const QString strFile = m_directory.filePath(QLatin1String(szName) + QStringLiteral(".png"));
    const bool bSaved = pWidget->grab().save(strFile, "PNG", SmallestFile);
    std::printf("%s %s\n", bSaved ? "made" : "cannot write", qPrintable(strFile));
    return bSaved;
}

bool PictureMaker::Settled()
{
    // What is still to be laid out or to slide shows its last state.
    bool bStill = false;
    QTimer::singleShot(RestTime, &m_driver, [&bStill] { bStill = true; });
    return QTest::qWaitFor([&bStill] { return bStill; });
}

template <typename Act>
bool PictureMaker::PictureOfDialog(const char* szName, Act act)
{
    bool bMade = false;
    m_driver.AnswerDialogs({[this, szName, &bMade](QWidget* pDialog) {
        bMade = Picture(pDialog, szName);
        static_cast<QDialog*>(pDialog)->reject();
    }});
    act();
    return bMade;
}

bool PictureMaker::Trigger(const char* szAction)
{
    auto* const pAction = Window()->findChild<QAction*>(QLatin1String(szAction));
    if (pAction == nullptr || !pAction->isEnabled())
        return false;
    pAction->trigger();
    return true;
}

bool PictureMaker::Edit(qint64 iDoor, int iType)
{
    return m_driver.ClickNode(iDoor, Hand::KindChannel) &&
           m_driver.ClickEvent(QCommon::GetAlarmNameByType(iType)) && m_driver.ClickButton("btnOpenStatus");
}

bool PictureMaker::SaveSchemes()
{
    if (!m_driver.ClickButton("btnSave"))
        return false;
    m_strSaved = ClientDriver::LastNote();
    LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance()->Clear();
    return true;
}

bool PictureMaker::OpenPage()
{
    return Picture(Window(), "home") && m_driver.OpenByTile() && Picture(Window(), "nothing-selected");
}

bool PictureMaker::SetAlarm()
{
    return Edit(MainEntrance, DuressCode) && m_driver.ClickButton("btnAlarmSound") &&
           Edit(MainEntrance, DoorForcedOpen) && m_driver.ClickButton("btnAlarmSound") &&
           (!m_order.bEveryScreen ||
            PictureOfDialog("no-mail", [this] { m_driver.ClickButton("btnSendEmail"); })) &&
           Picture(Window(), "page");
}

bool PictureMaker::PlanWeek()
{
    if (!m_driver.ClickButton("btnDefTime"))
        return false;
    const WeekPlanHand week(m_driver);
    for (int day = 0; day < WeekPlanHand::Days; ++day) {
        if (!week.Drag(day, 0.0, 24.0)) // erases the whole day
            return false;
    }
    for (int day = 1; day <= 5; ++day) {
        if (!week.Drag(day, 0.0, 7.0) || !week.Drag(day, 19.5, 24.0))
            return false;
    }
    if (!week.Drag(0, 0.0, 24.0) || !week.Drag(6, 0.0, 9.0) || !week.Drag(6, 13.0, 24.0) ||
        !Picture(Window(), "week-plan"))
        return false;

    const bool bDragged = week.ClickLock(1) && week.ClickLock(2) && week.ClickLock(3) &&
                          week.HoverAt(1, 11.0) && week.PressAt(1, 11.0) && week.HoverAt(1, 14.25) &&
                          Picture(Window(), "week-drag") && week.ReleaseAt(1, 14.25) && week.ClickLock(1) &&
                          week.ClickLock(2) && week.ClickLock(3);
    bool bDialog = false;
    return bDragged && week.InDialog(3, [this, &bDialog](QWidget* pDialog) {
        bDialog = Picture(pDialog, "day-dialog");
        static_cast<QDialog*>(pDialog)->reject();
    }) && bDialog;
}

bool PictureMaker::LinkOutput()
{
    return m_driver.ClickButton("btnAlarmOut") && OutputsHand(m_driver).Tick(LobbySiren) &&
           Picture(Window(), "alarm-out");
}

bool PictureMaker::AskAboutUnsaved()
{
    return PictureOfDialog("unsaved", [this] { Window()->close(); }) && Window()->isVisible();
}

bool PictureMaker::CopyToFloor()
{
    const CopyPopupHand popup(m_driver);
    QWidget* const pPopup = QApplication::activeModalWidget();
    return popup.IsOpen() && popup.Tick(FirstFloor, Hand::KindGroup) && Picture(pPopup, "copy-to") &&
           popup.ClickOk();
}

bool PictureMaker::LeaveMistakes()
{
    // One that does nothing, and one that is never armed.
    const bool bSilent = Edit(DeliveryDoor, DoorForcedOpen) && Edit(DeliveryDoor, DuressCode) &&
                         m_driver.ClickButton("btnNotify") && m_driver.ClickButton("btnAlarmSound") &&
                         m_driver.ClickButton("btnDefTime");
    if (!bSilent)
        return false;
    const WeekPlanHand week(m_driver);
    for (int day = 0; day < WeekPlanHand::Days; ++day) {
        if (!week.Drag(day, 0.0, 24.0))
            return false;
    }
    return true;
}

bool PictureMaker::Explain()
{
    if (!Trigger("actionExplain"))
        return false;
    auto* const pSource = Window()->findChild<QComboBox*>(QStringLiteral("cmbSource"));
    auto* const pEvent = Window()->findChild<QComboBox*>(QStringLiteral("cmbEvent"));
    const auto* const pReactions = Window()->findChild<QAbstractItemView*>(QStringLiteral("lstReactions"));
    pSource->setCurrentIndex(pSource->findData(QStringLiteral("1001$1$0$%1").arg(MainEntrance)));
    pEvent->setCurrentIndex(pEvent->findData(DoorForcedOpen));
    Window()
        ->findChild<QDateTimeEdit*>(QStringLiteral("dteTime"))
        ->setDateTime(QDateTime(QDate(2026, 11, 23), QTime(20, 15)));
    return QTest::qWaitFor([pReactions] { return pReactions->model()->rowCount() > 1; }) &&
           Picture(Window(), "explain");
}

bool PictureMaker::ShowCoverage()
{
    if (!Trigger("actionCoverage"))
        return false;
    const auto* const pFindings = Window()->findChild<QAbstractItemView*>(QStringLiteral("tblFindings"));
    const auto* const pText = Window()->findChild<QLabel*>(QStringLiteral("lblPointedAt"));
    static const QRegularExpression number(QStringLiteral("[0-9]"));
    return QTest::qWaitFor([pFindings, pText] {
               return pFindings->model()->rowCount() > 0 && pText->text().contains(number);
           }) &&
           Picture(Window(), "coverage");
}

bool PictureMaker::ShowHistory()
{
    if (!Trigger("actionHistory"))
        return false;
    auto* const pSteps = Window()->findChild<QAbstractItemView*>(QStringLiteral("tblSteps"));
    auto* const pChanges = Window()->findChild<QTreeWidget*>(QStringLiteral("trvChanges"));
    if (!QTest::qWaitFor([pSteps] { return pSteps->model()->rowCount() > 2; }))
        return false;
    QTest::mouseClick(pSteps->viewport(), Qt::LeftButton, {},
                      pSteps->visualRect(pSteps->model()->index(0, 0)).center());
    if (!QTest::qWaitFor([pChanges] { return pChanges->topLevelItemCount() > 0; }))
        return false;
    pChanges->topLevelItem(0)->setExpanded(true);
    return Picture(Window(), "history") && (!m_order.bEveryScreen || PictureOfDialog("take-back", [this] {
               Hand::Click(Window()->findChild<QWidget*>(QStringLiteral("btnTakeBack")));
           }));
}

bool PictureMaker::ImportSite()
{
    const QString strFile = QStringLiteral("devices.csv");
    SiteImportDialog dialog(strFile, SiteImport::Plan(ChangedSite(true), MakeSampleSite()), Window());
    if (!PictureOfDialog("site-import", [&dialog] { dialog.exec(); }) || !m_order.bEveryScreen)
        return !m_order.bEveryScreen;
    SiteImportDialog wrong(strFile, SiteImport::Plan(ChangedSite(false), MakeSampleSite()), Window());
    return PictureOfDialog("site-import-wrong", [&wrong] { wrong.exec(); });
}

bool PictureMaker::RestOfTheWindow()
{
    Window()->findChild<QTabWidget*>(QStringLiteral("tabPages"))->setCurrentIndex(1);
    for (const char* szMenu : {"menuFile", "menuEdit", "menuSchemes", "menuSettings", "menuHelp"}) {
        auto* const pMenu = Window()->findChild<QMenu*>(QLatin1String(szMenu));
        pMenu->popup(QPoint());
        const bool bMade = Picture(pMenu, szMenu);
        pMenu->close();
        if (!bMade)
            return false;
    }
    // A door that is switched off in the configuration, and all that a note can be.
    auto* const pNotes = LXGUI::LXSingleton<LXGUI::LXMessageNotify>::Instance();
    pNotes->AddTextNotification(m_strSaved, LXGUI::LXMessageNotify::Success);
    Window()->AddProblem(QCoreApplication::translate("MainWindow", "There is no module \"%1\".")
                             .arg(QStringLiteral("example.module")));
    const bool bNotes = m_driver.ClickNode(DisabledDoor, Hand::KindChannel) && Picture(Window(), "notes");
    pNotes->Clear();
    Window()->findChild<QTabWidget*>(QStringLiteral("tabPages"))->setCurrentIndex(0);
    return bNotes && Picture(Window(), "home-problem");
}

bool PictureMaker::RestOfTheDialogs()
{
    const QString strFile = QStringLiteral("Database/AlarmScheme.db");
    SchemeConflictDialog conflict({12, 3}, Window());
    SchemeDamageDialog damage(
        {strFile, QStringLiteral("database disk image is malformed"),
         SchemeDamage::Backup{strFile, QDateTime(QDate(2026, 11, 22), QTime(8, 30)), 1250}},
        Window());
    return PictureOfDialog("mail", [this] { Trigger("actionMail"); }) &&
           PictureOfDialog("about", [this] { Trigger("actionAbout"); }) &&
           PictureOfDialog("conflict", [&conflict] { conflict.exec(); }) &&
           PictureOfDialog("damage", [&damage] { damage.exec(); });
}

bool PictureMaker::OfferDraft()
{
    Window()->findChild<QTabWidget*>(QStringLiteral("tabPages"))->setCurrentIndex(1);
    if (!Edit(MainEntrance, DuressCode))
        return false;
    m_driver.End();
    bool bMade = false;
    return PictureOfDialog("draft", [this, &bMade] { bMade = m_driver.Start() && Settled(); }) && bMade;
}
