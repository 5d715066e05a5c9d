#include "client/MainWindow.h"
#include "ui_MainWindow.h"

#include "client/ClientLog.h"
#include "client/ClientSettings.h"
#include "client/ElidedLabel.h"
#include "client/HomePage.h"
#include "client/MailSettingsDialog.h"
#include "client/PageStatus.h"
#include "client/PluginLoader.h"
#include "client/SaveIndicator.h"
#include "client/store/SchemeStoreOutcome.h"
#include "platform/LXGUI/LXMessageBox.h"
#include "platform/LXGUI/LXMessageNotify.h"
#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/QSystem.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QTabBar>
#include <QUrl>

#include <utility>

namespace {

using LXGUI::LXMessageNotify;

const char* const ModuleKeyProperty = "clientModuleKey";

void Note(const QString& strText, LXMessageNotify::Level level)
{
    LXGUI::LXSingleton<LXMessageNotify>::Instance()->AddTextNotification(strText, level);
}

} // namespace

MainWindow::MainWindow(ClientSettings& settings, UserRole role, const QString& strDataDirectory,
                       QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
    , m_settings(settings)
    , m_role(role)
    , m_strDataDirectory(strDataDirectory)
    , m_pStatus(new PageStatus(this))
{
    ui->setupUi(this);
    m_pHome = new HomePage(ui->tabPages);
    ui->tabPages->addTab(m_pHome, tr("Home"));
    for (const QTabBar::ButtonPosition side : {QTabBar::LeftSide, QTabBar::RightSide}) {
        ui->tabPages->tabBar()->setTabButton(0, side, nullptr);
    }
    BuildStatusBar();
    BuildMenus();
    connect(m_pHome, &HomePage::SignalOpen, this, &MainWindow::OpenPage);
    connect(ui->tabPages, &QTabWidget::currentChanged, this, &MainWindow::OnTabChanged);
    connect(ui->tabPages, &QTabWidget::tabCloseRequested, this, &MainWindow::ClosePage);
    connect(m_pStatus, &PageStatus::SignalChanged, this, &MainWindow::RefreshStatus);
    OnTabChanged();
}

MainWindow::~MainWindow()
{
    // Tabs that go one by one with the widget tree would still announce themselves to a half destroyed
    // window.
    ui->tabPages->disconnect(this);
}

void MainWindow::BuildStatusBar()
{
    m_pEdited = new ElidedLabel(this);
    m_pEdited->setObjectName(QStringLiteral("lblEditedScheme"));
    ui->statusBar->addWidget(m_pEdited, 1);
    m_pSaving = new SaveIndicator(this);
    ui->statusBar->addPermanentWidget(m_pSaving);
    m_pSaving->hide(); // a status bar shows what it is given
    m_pUnsaved = new QLabel(tr("Not saved"), this);
    m_pUnsaved->setObjectName(QStringLiteral("lblUnsaved"));
    ui->statusBar->addPermanentWidget(m_pUnsaved);
    m_pUnsaved->hide();
    auto* pRole = new QLabel(UserRoles::Name(m_role), this);
    pRole->setObjectName(QStringLiteral("lblRole"));
    ui->statusBar->addPermanentWidget(pRole);
    m_pSite = new QLabel(this);
    m_pSite->setObjectName(QStringLiteral("lblSite"));
    m_pSite->setTextFormat(Qt::PlainText);
    ui->statusBar->addPermanentWidget(m_pSite);
}

void MainWindow::BuildMenus()
{
    connect(ui->actionSave, &QAction::triggered, this, &MainWindow::OnSave);
    connect(ui->actionCloseTab, &QAction::triggered, this,
            [this] { ClosePage(ui->tabPages->currentIndex()); });
    connect(ui->actionQuit, &QAction::triggered, this, &QWidget::close);
    connect(ui->actionMail, &QAction::triggered, this, &MainWindow::OpenMailSettings);
    connect(ui->actionAbout, &QAction::triggered, this, &MainWindow::OnAbout);
    connect(ui->actionDataDirectory, &QAction::triggered, this, &MainWindow::OnDataDirectory);
    ui->actionMail->setEnabled(QCommon::CheckMenuRight(QCommon::RightSystemConfig));

    const QActionGroup* pLanguages =
        BuildChoice({ui->actionEnglish, ui->actionChinese}, {QStringLiteral("en"), QStringLiteral("zh_cn")},
                    QSystem::GetInstance()->GetLanguage());
    connect(pLanguages, &QActionGroup::triggered, this, &MainWindow::OnLanguage);
    const QActionGroup* pThemes =
        BuildChoice({ui->actionDark, ui->actionLight}, {QStringLiteral("dark"), QStringLiteral("light")},
                    m_settings.Theme());
    connect(pThemes, &QActionGroup::triggered, this, &MainWindow::OnTheme);
}

QActionGroup* MainWindow::BuildChoice(const QList<QAction*>& actions, const QStringList& values,
                                      const QString& strCurrent)
{
    auto* pGroup = new QActionGroup(this);
    for (int i = 0; i < actions.size(); ++i) {
        actions.at(i)->setData(values.at(i));
        actions.at(i)->setChecked(values.at(i) == strCurrent);
        pGroup->addAction(actions.at(i));
    }
    return pGroup;
}

void MainWindow::SetPlugins(PluginLoader* pPlugins)
{
    m_pPlugins = pPlugins;
    for (int i = 0; i < m_pPlugins->Count(); ++i) {
        m_pHome->AddTile(m_pPlugins->Info(i));
    }
    for (const PluginProblem& problem : m_pPlugins->Problems()) {
        AddProblem(tr("Module %1: %2").arg(problem.strName, problem.strReason));
    }
    m_pHome->FocusFirstTile();
}

bool MainWindow::OpenPage(const QString& strKey)
{
    const int iPlugin = m_pPlugins == nullptr ? -1 : m_pPlugins->Find(strKey);
    if (iPlugin < 0) {
        AddProblem(tr("There is no module \"%1\".").arg(strKey));
        return false;
    }
    QWidget* pPage = m_pPlugins->Page(iPlugin);
    if (pPage == nullptr) {
        const PluginProblem& problem = m_pPlugins->Problems().back();
        AddProblem(tr("Module %1: %2").arg(problem.strName, problem.strReason));
        return false;
    }
    int iTab = ui->tabPages->indexOf(pPage);
    if (iTab < 0) {
        const PluginInfo info = m_pPlugins->Info(iPlugin);
        pPage->setProperty(ModuleKeyProperty, strKey);
        iTab = ui->tabPages->addTab(pPage, info.strTabTitle);
    }
    ui->tabPages->setCurrentIndex(iTab);
    return true;
}

void MainWindow::ClosePage(int iTab)
{
    QWidget* pPage = ui->tabPages->widget(iTab);
    if (pPage == nullptr || pPage == m_pHome) {
        return;
    }
    // The page keeps its parent, so it stays in the window's widget tree with all edits, and comes back with
    // them when its tile is opened again.
    ui->tabPages->removeTab(iTab);
    pPage->hide();
}

void MainWindow::DestroyPages()
{
    m_pStatus->SetPage(nullptr);
    ui->tabPages->disconnect(this);
    for (int i = ui->tabPages->count() - 1; i >= 0; --i) {
        QWidget* pPage = ui->tabPages->widget(i);
        if (pPage != m_pHome) {
            ui->tabPages->removeTab(i);
        }
    }
    const QList<QPointer<QWidget>> pages = AllPages();
    for (const QPointer<QWidget>& page : pages) {
        delete page.data();
    }
    m_pPlugins = nullptr;
}

QList<QPointer<QWidget>> MainWindow::AllPages() const
{
    const QList<QWidget*> candidates = ui->tabPages->findChildren<QWidget*>();
    QList<QPointer<QWidget>> pages;
    for (QWidget* pCandidate : candidates) {
        if (pCandidate->property(ModuleKeyProperty).isValid()) {
            pages.append(pCandidate);
        }
    }
    return pages;
}

void MainWindow::ReloadPages()
{
    const int iCurrent = ui->tabPages->currentIndex();
    const QList<QPointer<QWidget>> pages = AllPages();
    for (const QPointer<QWidget>& page : pages) {
        if (page.isNull() || !PageStatus::CanSave(page)) {
            continue;
        }
        const QString strKey = KeyOfPage(page);
        const int iTab = ui->tabPages->indexOf(page);
        if (iTab >= 0) {
            ui->tabPages->removeTab(iTab);
        }
        delete page.data();
        if (iTab >= 0 && OpenPage(strKey)) {
            ui->tabPages->tabBar()->moveTab(ui->tabPages->currentIndex(), iTab);
        }
    }
    ui->tabPages->setCurrentIndex(iCurrent);
    ShowUnsaved(false);
}

void MainWindow::FollowSaves(AlarmSchemeStoreBackend* pStore)
{
    m_pSaving->Follow(pStore);
}

void MainWindow::ShowUnsaved(bool bUnsaved)
{
    m_pUnsaved->setVisible(bUnsaved);
}

void MainWindow::SetCloseGuard(std::function<bool()> guard)
{
    m_closeGuard = std::move(guard);
}

QList<QPointer<QWidget>> MainWindow::OpenPages() const
{
    QList<QPointer<QWidget>> pages;
    for (int i = 0; i < ui->tabPages->count(); ++i) {
        QWidget* pPage = ui->tabPages->widget(i);
        if (pPage != m_pHome) {
            pages.append(pPage);
        }
    }
    return pages;
}

QString MainWindow::KeyOfPage(QWidget* pPage) const
{
    return pPage == nullptr ? QString() : pPage->property(ModuleKeyProperty).toString();
}

void MainWindow::AddProblem(const QString& strText)
{
    CLIENT_LOG(lxl::LogWarning, "%s", qUtf8Printable(strText));
    m_pHome->AddProblem(strText);
    Note(strText, LXMessageNotify::Error);
}

void MainWindow::SetSite(const QString& strFile, int iDevices)
{
    m_pSite->setText(tr("%1: %n device(s)", nullptr, iDevices).arg(QFileInfo(strFile).fileName()));
    m_pSite->setToolTip(QDir::toNativeSeparators(strFile).toHtmlEscaped());
}

void MainWindow::ShowSaveOutcome(const SchemeStoreOutcome& outcome)
{
    if (!outcome.IsSuccess()) {
        CLIENT_LOG(lxl::LogError, "schemes: %s (%s)", qUtf8Printable(outcome.Text()),
                   qUtf8Printable(outcome.strTechnical));
        Note(outcome.Text(), LXMessageNotify::Error);
    } else if (outcome.bWarning) {
        CLIENT_LOG(lxl::LogWarning, "schemes: %s (%s)", qUtf8Printable(outcome.Text()),
                   qUtf8Printable(outcome.strTechnical));
        Note(outcome.Text(), LXMessageNotify::Warning);
    } else if (outcome.eOperation != SchemeStoreOutcome::Operation::Load) {
        Note(outcome.Text(), LXMessageNotify::Success);
    }
}

void MainWindow::OpenMailSettings()
{
    QSystem* pSystem = QSystem::GetInstance();
    const QPointer<MailSettingsDialog> dialog = new MailSettingsDialog(pSystem->GetMailSettings(), this);
    const int iResult = dialog->exec();
    if (dialog.isNull()) {
        return; // the window was closed under the dialog
    }
    const SystemMailSettings settings = dialog->Settings();
    delete dialog.data();
    if (iResult == QDialog::Accepted) {
        pSystem->SetMailSettings(settings);
    }
}

QString MainWindow::StatusText() const
{
    return m_pEdited->text();
}

bool MainWindow::event(QEvent* event)
{
    if (event->type() != LXHostMessageEvent::EventType()) {
        return QMainWindow::event(event);
    }
    const bool bKnown =
        static_cast<LXHostMessageEvent*>(event)->GetMessageNumber() == QCommon::MessageOpenMailSettings;
    if (bKnown) {
        OpenMailSettings();
    }
    event->setAccepted(bKnown);
    return true;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_closeGuard && !m_closeGuard()) {
        event->ignore();
        return;
    }
    Q_EMIT SignalClosing();
    QMainWindow::closeEvent(event);
}

void MainWindow::OnTabChanged()
{
    QWidget* pPage = CurrentPage();
    m_pStatus->SetPage(pPage);
    ui->actionCloseTab->setEnabled(pPage != nullptr);
    ui->actionSave->setEnabled(m_pStatus->CanSave());
    const QString strTab = pPage == nullptr ? QString() : ui->tabPages->tabText(ui->tabPages->currentIndex());
    setWindowTitle(strTab.isEmpty() ? tr("ACS Client") : tr("%1 - ACS Client").arg(strTab));
}

void MainWindow::OnLanguage(QAction* pAction)
{
    m_settings.SetLanguage(pAction->data().toString());
    Note(tr("The language changes at the next start."), LXMessageNotify::Information);
}

void MainWindow::OnTheme(QAction* pAction)
{
    m_settings.SetTheme(pAction->data().toString());
    Note(tr("The theme changes at the next start."), LXMessageNotify::Information);
}

void MainWindow::OnSave()
{
    m_pStatus->Save();
}

void MainWindow::OnAbout()
{
    LXGUI::LXMessageBox::ShowInformation(
        this, tr("About ACS Client"),
        tr("ACS Client %1\nConfigures the alarm schemes of an access-control site.\n\nData directory: %2")
            .arg(QStringLiteral(ACS_CLIENT_VERSION), QDir::toNativeSeparators(m_strDataDirectory)),
        LXGUI::LXMessageBox::ButtonOk);
}

void MainWindow::OnDataDirectory()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_strDataDirectory))) {
        Note(tr("The data directory is %1").arg(QDir::toNativeSeparators(m_strDataDirectory)),
             LXMessageNotify::Information);
    }
}

void MainWindow::RefreshStatus()
{
    const QString strEdited = m_pStatus->Text();
    const bool bPage = CurrentPage() != nullptr;
    m_pEdited->setText(!strEdited.isEmpty() ? strEdited : bPage ? tr("No event is selected.") : QString());
}

QWidget* MainWindow::CurrentPage() const
{
    QWidget* pPage = ui->tabPages->currentWidget();
    return pPage == m_pHome ? nullptr : pPage;
}
