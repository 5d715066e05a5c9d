#include "client/MainWindow.h"
#include "ui_MainWindow.h"

#include "client/ClientLog.h"
#include "client/ClientSettings.h"
#include "client/EditActions.h"
#include "client/ElidedLabel.h"
#include "client/HomePage.h"
#include "client/LoadAnewOffer.h"
#include "client/MailSettingsDialog.h"
#include "client/PageAccess.h"
#include "client/PageStatus.h"
#include "client/PageTabs.h"
#include "client/PluginLoader.h"
#include "client/SaveIndicator.h"
#include "client/UnsavedWork.h"
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
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

using LXGUI::LXMessageNotify;

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
    m_pPages = new PageTabs(*ui->tabPages, *m_pHome, this);
    m_pUnsavedWork = new UnsavedWork(*m_pPages, *this, this);
    BuildStatusBar();
    BuildMenus();
    connect(m_pHome, &HomePage::SignalOpen, this, &MainWindow::OpenPage);
    connect(m_pPages, &PageTabs::SignalCurrentChanged, this, &MainWindow::OnTabChanged);
    connect(m_pPages, &PageTabs::SignalModifiedChanged, this, &MainWindow::UpdateTitle);
    connect(ui->tabPages, &QTabWidget::tabCloseRequested, this, &MainWindow::ClosePage);
    connect(m_pStatus, &PageStatus::SignalChanged, this, &MainWindow::RefreshStatus);
    OnTabChanged();
}

MainWindow::~MainWindow()
{
    // Pages that go with the widget tree would still announce themselves to a half destroyed window.
    m_pPages->disconnect(this);
    delete m_pPages;
}

QMenu& MainWindow::SchemesMenu() const
{
    return *ui->menuSchemes;
}

void MainWindow::BuildStatusBar()
{
    ui->statusBar->setAccessibleName(tr("Status"));
    m_pEdited = new ElidedLabel(this);
    m_pEdited->setObjectName(QStringLiteral("lblEditedScheme"));
    ui->statusBar->addWidget(m_pEdited, 1);
    m_pSaving = new SaveIndicator(this);
    ui->statusBar->addPermanentWidget(m_pSaving);
    m_pSaving->hide(); // a status bar shows what it is given
    m_pLoadAnew = new LoadAnewOffer(this);
    ui->statusBar->addPermanentWidget(m_pLoadAnew);
    m_pLoadAnew->hide();
    connect(m_pLoadAnew, &QPushButton::clicked, this, &MainWindow::ReloadPages);
    m_pEnabled = new QLabel(this);
    m_pEnabled->setObjectName(QStringLiteral("lblEnabledSchemes"));
    ui->statusBar->addPermanentWidget(m_pEnabled);
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
    connect(ui->actionReload, &QAction::triggered, this, &MainWindow::ReloadPages);
    connect(ui->actionCloseTab, &QAction::triggered, this,
            [this] { ClosePage(ui->tabPages->currentIndex()); });
    connect(ui->actionQuit, &QAction::triggered, this, &QWidget::close);
    connect(ui->actionImportSite, &QAction::triggered, this, &MainWindow::SignalImportSite);
    connect(ui->actionExportSite, &QAction::triggered, this, &MainWindow::SignalExportSite);
    connect(ui->actionMail, &QAction::triggered, this, &MainWindow::OpenMailSettings);
    connect(ui->actionAbout, &QAction::triggered, this, &MainWindow::OnAbout);
    connect(ui->actionDataDirectory, &QAction::triggered, this, &MainWindow::OnDataDirectory);
    m_pEditActions = new EditActions({ui->actionUndo, ui->actionRedo, ui->actionFind}, this);
    connect(ui->menuEdit, &QMenu::aboutToShow, m_pEditActions, &EditActions::OnChanged);
    ui->actionImportSite->setEnabled(QCommon::CheckMenuRight(QCommon::RightSystemConfig));
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
    m_pPages->Show(pPage, strKey, m_pPlugins->Info(iPlugin).strTabTitle);
    return true;
}

void MainWindow::ClosePage(int iTab)
{
    const QPointer<QWidget> page = m_pPages->At(iTab);
    if (page.isNull()) {
        return;
    }
    const auto again = [this, page] {
        if (page) {
            ClosePage(ui->tabPages->indexOf(page));
        }
    };
    if (!m_pUnsavedWork->MayCloseTab(page, again) || page.isNull()) {
        return;
    }
    if (page->isWindowModified()) {
        m_pPages->Discard(page);
        if (m_pPages->Modified().isEmpty()) {
            ShowUnsaved(false); // what a failed save was to store is wanted no longer
        }
    } else {
        m_pPages->Hide(page);
    }
}

void MainWindow::DestroyPages()
{
    m_pStatus->SetPage(nullptr);
    m_pEditActions->SetPage(nullptr);
    m_pPages->disconnect(this);
    m_pPages->DestroyAll();
    m_pPlugins = nullptr;
}

bool MainWindow::ReloadPages()
{
    if (!m_pUnsavedWork->MayReload([this] { ReloadPages(); })) {
        return false;
    }
    const int iCurrent = ui->tabPages->currentIndex();
    const QList<QPointer<QWidget>> pages = m_pPages->All();
    for (const QPointer<QWidget>& page : pages) {
        if (page.isNull() || !PageAccess::CanSave(page)) {
            continue;
        }
        const QString strKey = KeyOfPage(page);
        const int iTab = m_pPages->IndexOf(page);
        m_pPages->Discard(page);
        if (iTab >= 0 && OpenPage(strKey)) {
            m_pPages->Move(m_pPages->Current(), iTab);
        }
    }
    ui->tabPages->setCurrentIndex(iCurrent);
    ShowUnsaved(false);
    return true;
}

void MainWindow::OfferReload(const QString& strReason)
{
    const QList<QPointer<QWidget>> pages = m_pPages->All();
    if (std::any_of(pages.cbegin(), pages.cend(),
                    [](const QPointer<QWidget>& page) { return PageAccess::CanSave(page); })) {
        m_pLoadAnew->Offer(strReason);
    }
}

void MainWindow::WithdrawReload()
{
    m_pLoadAnew->Withdraw();
}

void MainWindow::FollowSaves(AlarmSchemeStoreBackend* pStore)
{
    m_pSaving->Follow(pStore);
    m_pUnsavedWork->Follow(pStore);
}

void MainWindow::ShowUnsaved(bool bUnsaved)
{
    m_pUnsaved->setVisible(bUnsaved);
    m_pUnsavedWork->SetSaveFailed(bUnsaved);
}

QList<QPointer<QWidget>> MainWindow::OpenPages() const
{
    return m_pPages->Open();
}

QString MainWindow::KeyOfPage(QWidget* pPage) const
{
    return PageTabs::Key(pPage);
}

void MainWindow::AddProblem(const QString& strText)
{
    CLIENT_LOG(lxl::LogWarning, "%s", qUtf8Printable(strText));
    m_pHome->AddProblem(strText);
    Note(strText, LXMessageNotify::Error);
}

void MainWindow::SetSite(const QString& strFile, int iDevices)
{
    m_pSite->setText(tr("%1: %Ln device(s)", nullptr, iDevices).arg(QFileInfo(strFile).fileName()));
    m_pHome->ShowEmptySite(iDevices == 0 ? QDir::toNativeSeparators(strFile) : QString());
    m_pSite->setToolTip(QDir::toNativeSeparators(strFile).toHtmlEscaped());
}

void MainWindow::ShowSaveOutcome(const SchemeStoreOutcome& outcome)
{
    if (outcome.IsSuccess() && !outcome.bRevert) { // a step taken back saves nobody's edits
        // Errors stay until they are clicked away, and what they advise would be wrong by now.
        const QStringList overcome = std::exchange(m_failures, {});
        for (const QString& strFailure : overcome) {
            LXGUI::LXSingleton<LXMessageNotify>::Instance()->Withdraw(strFailure);
        }
    }
    if (!outcome.IsSuccess()) {
        if (!m_failures.contains(outcome.Text())) {
            m_failures.append(outcome.Text());
        }
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
    if (!m_pUnsavedWork->MayClose()) {
        event->ignore();
        return;
    }
    Q_EMIT SignalClosing();
    QMainWindow::closeEvent(event);
}

void MainWindow::OnTabChanged()
{
    QWidget* pPage = m_pPages->Current();
    m_pStatus->SetPage(pPage);
    m_pEditActions->SetPage(pPage);
    ui->actionCloseTab->setEnabled(pPage != nullptr);
    ui->actionFind->setEnabled(pPage != nullptr);
    ui->actionSave->setEnabled(m_pStatus->CanSave());
    ui->actionReload->setEnabled(m_pStatus->CanSave());
    UpdateTitle();
}

void MainWindow::UpdateTitle()
{
    const QWidget* const pPage = m_pPages->Current();
    const QString strTitle = PageTabs::Title(pPage);
    setWindowTitle(strTitle.isEmpty() ? tr("ACS Client") : tr("%1[*] - ACS Client").arg(strTitle));
    setWindowModified(pPage != nullptr && pPage->isWindowModified());
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
    m_pEdited->setText(m_pStatus->Text());
    const int iEnabled = m_pStatus->EnabledSchemes();
    m_pEnabled->setText(iEnabled < 0 ? QString() : tr("%Ln scheme(s) on", nullptr, iEnabled));
    m_pEnabled->setVisible(iEnabled >= 0);
}
