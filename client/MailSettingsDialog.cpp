#include "client/MailSettingsDialog.h"
#include "ui_MailSettingsDialog.h"

#include "client/ClientSettings.h"
#include "platform/LXGUI/Theme.h"

MailSettingsDialog::MailSettingsDialog(const SystemMailSettings& settings, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent)
    , ui(std::make_unique<Ui::MailSettingsDialog>())
    , m_settings(settings)
{
    setObjectName(QStringLiteral("MailSettingsDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(tr("Mail settings"));
    ui->lblProblem->setStyleSheet(
        LXGUI::Theme::Current().Resolve(QStringLiteral("QLabel { color: @danger; }")));
    if (m_settings.servers.isEmpty()) {
        m_settings.servers.append(SystemMailServer());
    }
    ui->chkEnable->setChecked(m_settings.bEnable);
    for (int i = 0; i < m_settings.servers.size(); ++i) {
        ui->listServers->addItem(QString());
        RefreshRow(i);
    }

    connect(ui->listServers, &QListWidget::currentRowChanged, this, &MailSettingsDialog::ShowServer);
    connect(ui->btnAdd, &QAbstractButton::clicked, this, &MailSettingsDialog::OnAdd);
    connect(ui->btnRemove, &QAbstractButton::clicked, this, &MailSettingsDialog::OnRemove);
    connect(ui->chkEnable, &QAbstractButton::toggled, this, &MailSettingsDialog::OnEnabled);
    connect(ui->edtHost, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->spinPort, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &MailSettingsDialog::StoreFields);
    connect(ui->edtUser, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->edtSender, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, &MailSettingsDialog::OnAccept);
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, [this] { done(Rejected); });

    ui->listServers->setCurrentRow(0);
    UpdateState();
    ui->edtHost->setFocus();
}

MailSettingsDialog::~MailSettingsDialog() = default;

SystemMailSettings MailSettingsDialog::Settings() const
{
    return MailCheck::Tidied(m_settings);
}

void MailSettingsDialog::OnAccept()
{
    // Problems are shown beside what was typed, so the check runs over the list as it stands; entries that
    // hold nothing are no problem, they are left out of the result.
    SystemMailSettings checked = m_settings;
    QList<int> positions;
    checked.servers.clear();
    for (int i = 0; i < m_settings.servers.size(); ++i) {
        const SystemMailSettings tidied = MailCheck::Tidied({false, {m_settings.servers.at(i)}});
        if (!tidied.servers.isEmpty()) {
            checked.servers.append(tidied.servers.constFirst());
            positions.append(i);
        }
    }
    std::optional<MailCheck::Problem> problem = MailCheck::FirstProblem(checked);
    if (problem) {
        problem->iServer = problem->iServer >= 0 ? positions.at(problem->iServer) : -1;
        ShowProblem(*problem);
        return;
    }
    done(Accepted);
}

void MailSettingsDialog::OnAdd()
{
    m_settings.servers.append(SystemMailServer());
    ui->listServers->addItem(QString());
    RefreshRow(m_settings.servers.size() - 1);
    ui->listServers->setCurrentRow(m_settings.servers.size() - 1);
    UpdateState();
    ui->edtHost->setFocus();
}

void MailSettingsDialog::OnRemove()
{
    const int iServer = ui->listServers->currentRow();
    if (iServer < 0 || iServer >= m_settings.servers.size()) {
        return;
    }
    m_settings.servers.removeAt(iServer);
    {
        // Taking the row makes another one current before this object's list is in step with the view's.
        const QSignalBlocker blocker(ui->listServers);
        delete ui->listServers->takeItem(iServer);
    }
    ShowServer(ui->listServers->currentRow());
    UpdateState();
}

void MailSettingsDialog::OnEnabled()
{
    m_settings.bEnable = ui->chkEnable->isChecked();
    ui->lblProblem->clear();
}

void MailSettingsDialog::ShowServer(int iServer)
{
    m_bShowing = true;
    const SystemMailServer server = m_settings.servers.value(iServer);
    ui->edtHost->setText(server.strServer);
    ui->spinPort->setValue(server.iPort);
    ui->edtUser->setText(server.strUser);
    ui->edtSender->setText(server.strSender);
    m_bShowing = false;
    UpdateState();
}

void MailSettingsDialog::StoreFields()
{
    const int iServer = ui->listServers->currentRow();
    if (m_bShowing || iServer < 0 || iServer >= m_settings.servers.size()) {
        return;
    }
    SystemMailServer& server = m_settings.servers[iServer];
    server.strServer = ui->edtHost->text();
    server.iPort = ui->spinPort->value();
    server.strUser = ui->edtUser->text();
    server.strSender = ui->edtSender->text();
    RefreshRow(iServer);
    ui->lblProblem->clear();
}

void MailSettingsDialog::ShowProblem(const MailCheck::Problem& problem)
{
    if (problem.iServer >= 0) {
        ui->listServers->setCurrentRow(problem.iServer);
    }
    switch (problem.field) {
    case MailCheck::Field::List:
        (m_settings.servers.isEmpty() ? static_cast<QWidget*>(ui->btnAdd) : ui->edtHost)->setFocus();
        break;
    case MailCheck::Field::Host:
        ui->edtHost->setFocus();
        break;
    case MailCheck::Field::Port:
        ui->spinPort->setFocus();
        break;
    case MailCheck::Field::User:
        ui->edtUser->setFocus();
        break;
    case MailCheck::Field::Sender:
        ui->edtSender->setFocus();
        break;
    }
    ui->lblProblem->setText(problem.strText);
}

void MailSettingsDialog::RefreshRow(int iServer)
{
    const QString strHost = m_settings.servers.at(iServer).strServer.trimmed();
    ui->listServers->item(iServer)->setText(strHost.isEmpty() ? tr("New server") : strHost);
}

void MailSettingsDialog::UpdateState()
{
    const bool bServer = ui->listServers->currentRow() >= 0;
    ui->wndFields->setEnabled(bServer);
    ui->btnRemove->setEnabled(bServer);
    ui->btnAdd->setEnabled(m_settings.servers.size() < ClientSettings::MaximumMailServers);
}
