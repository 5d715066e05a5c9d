#include "client/MailSettingsDialog.h"
#include "ui_MailSettingsDialog.h"

#include "client/ClientLog.h"
#include "client/ClientPaths.h"
#include "client/ClientSettings.h"
#include "platform/LXGUI/Theme.h"

#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QStyle>
#include <QSysInfo>

namespace {

/// A server nobody has typed anything about: encrypted, as it should be.
SystemMailServer FreshServer()
{
    SystemMailServer server;
    server.eEncryption = SystemMailEncryption::StartTls;
    server.iPort = MailCheck::UsualPort(server.eEncryption);
    return server;
}

} // namespace

MailSettingsDialog::MailSettingsDialog(const SystemMailSettings& settings, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, parent)
    , ui(std::make_unique<Ui::MailSettingsDialog>())
    , m_settings(settings)
    , m_pSender(new MailSender(this))
{
    setObjectName(QStringLiteral("MailSettingsDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(tr("Mail settings"));
    ui->lblProblem->setStyleSheet(
        LXGUI::Theme::Current().Resolve(QStringLiteral("QLabel { color: @danger; }")));
    ui->cmbEncryption->addItem(tr("None"), static_cast<int>(SystemMailEncryption::None));
    ui->cmbEncryption->addItem(tr("STARTTLS"), static_cast<int>(SystemMailEncryption::StartTls));
    ui->cmbEncryption->addItem(tr("TLS"), static_cast<int>(SystemMailEncryption::Tls));
    ui->lblTestIcon->hide();
    if (m_settings.servers.isEmpty()) {
        m_settings.servers.append(FreshServer());
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
    connect(ui->edtPassword, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->edtSender, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->edtRecipients, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->edtCertificateFile, &QLineEdit::textChanged, this, &MailSettingsDialog::StoreFields);
    connect(ui->cmbEncryption, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MailSettingsDialog::OnEncryption);
    connect(ui->btnBrowse, &QAbstractButton::clicked, this, &MailSettingsDialog::OnBrowse);
    connect(ui->btnTest, &QAbstractButton::clicked, this, &MailSettingsDialog::OnTest);
    connect(ui->btnStop, &QAbstractButton::clicked, m_pSender, &MailSender::Cancel);
    connect(this, &QDialog::finished, m_pSender, &MailSender::Cancel);
    connect(m_pSender, &MailSender::SignalFinished, this, &MailSettingsDialog::OnTestFinished);
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
    m_settings.servers.append(FreshServer());
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

void MailSettingsDialog::OnEncryption()
{
    const int iServer = ui->listServers->currentRow();
    if (!m_bShowing && iServer >= 0 && iServer < m_settings.servers.size()) {
        // A port of the person's own choice stays.
        const auto eEncryption = static_cast<SystemMailEncryption>(ui->cmbEncryption->currentData().toInt());
        if (ui->spinPort->value() == MailCheck::UsualPort(m_settings.servers.at(iServer).eEncryption)) {
            ui->spinPort->setValue(MailCheck::UsualPort(eEncryption));
        }
    }
    StoreFields();
    UpdateState();
}

void MailSettingsDialog::OnBrowse()
{
    const QString strFile = QFileDialog::getOpenFileName(
        this, tr("Certificate file"), ClientPaths::ChoiceDirectory(ui->edtCertificateFile->text()),
        tr("Certificates (*.pem *.crt *.cer);;All files (*)"));
    if (!strFile.isEmpty()) {
        ui->edtCertificateFile->setText(QDir::toNativeSeparators(strFile));
    }
}

void MailSettingsDialog::OnTest()
{
    const int iServer = ui->listServers->currentRow();
    if (iServer < 0 || iServer >= m_settings.servers.size()) {
        return;
    }
    SystemMailSettings toTest{true, {m_settings.servers.at(iServer)}};
    SystemMailSettings tidied = MailCheck::Tidied(toTest);
    if (tidied.servers.isEmpty()) {
        tidied = toTest;
    }
    std::optional<MailCheck::Problem> problem = MailCheck::FirstProblem(tidied);
    if (problem) {
        ShowTest(QString(), QString());
        problem->iServer = iServer;
        ShowProblem(*problem);
        return;
    }
    m_tested = tidied.servers.constFirst();
    MailTransfer::Job job;
    job.server = m_tested;
    job.message.strSender = m_tested.strSender;
    job.message.strSenderName = tr("Alarm schemes");
    job.message.recipients = m_tested.recipients;
    job.message.strSubject = tr("Test mail of the alarm client");
    job.message.strBody = tr("This mail tests the mail settings of the alarm client on %1.\n"
                             "If you can read it, mail about alarms will arrive here.\n")
                              .arg(QSysInfo::machineHostName());
    job.message.time = QDateTime::currentDateTime();
    if (m_pSender->Send(job)) {
        ui->lblProblem->clear();
        ShowTest(QStringLiteral("information"),
                 tr("Sending a test mail through %1…").arg(m_tested.strServer));
        UpdateState();
        ui->btnStop->setFocus();
    }
}

void MailSettingsDialog::OnTestFinished(const MailOutcome& outcome)
{
    const bool bSent = outcome.IsSent();
    CLIENT_LOG(bSent ? lxl::LogInfo : lxl::LogWarning, "test mail through %s: %s",
               qUtf8Printable(m_tested.strServer),
               bSent ? "sent" : qUtf8Printable(outcome.strDetail + QLatin1Char(' ') + outcome.strServerText));
    const bool bStopFocused = ui->btnStop->hasFocus();
    const bool bWarning = outcome.eKind == MailOutcome::Kind::SentWithoutLogin;
    const bool bQuiet = outcome.eKind == MailOutcome::Kind::Cancelled;
    ShowTest(bQuiet             ? QStringLiteral("information")
             : bWarning         ? QStringLiteral("warning")
             : outcome.IsSent() ? QStringLiteral("success")
                                : QStringLiteral("error"),
             outcome.Text(m_tested));
    UpdateState();
    if (bStopFocused) {
        ui->btnTest->setFocus();
    }
}

void MailSettingsDialog::ShowTest(const QString& strIcon, const QString& strText)
{
    const int iSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    const QIcon icon(QStringLiteral("./Skin/theme1/notify/%1.png").arg(strIcon));
    ui->lblTestIcon->setPixmap(icon.pixmap(window()->windowHandle(), QSize(iSize, iSize)));
    ui->lblTestIcon->setVisible(!strText.isEmpty());
    ui->lblTest->setText(strText);
}

void MailSettingsDialog::ShowServer(int iServer)
{
    m_bShowing = true;
    const SystemMailServer server = m_settings.servers.value(iServer);
    ui->edtHost->setText(server.strServer);
    ui->spinPort->setValue(server.iPort);
    ui->cmbEncryption->setCurrentIndex(ui->cmbEncryption->findData(static_cast<int>(server.eEncryption)));
    ui->edtUser->setText(server.strUser);
    ui->edtPassword->setText(server.strPassword);
    ui->edtSender->setText(server.strSender);
    ui->edtRecipients->setText(server.recipients.join(QStringLiteral(", ")));
    ui->edtCertificateFile->setText(QDir::toNativeSeparators(server.strCertificateFile));
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
    server.eEncryption = static_cast<SystemMailEncryption>(ui->cmbEncryption->currentData().toInt());
    server.strUser = ui->edtUser->text();
    server.strPassword = ui->edtPassword->text();
    server.strSender = ui->edtSender->text();
    server.recipients = MailCheck::SplitRecipients(ui->edtRecipients->text());
    server.strCertificateFile = QDir::fromNativeSeparators(ui->edtCertificateFile->text());
    RefreshRow(iServer);
    ui->lblProblem->clear();
    UpdateState();
}

void MailSettingsDialog::ShowProblem(const MailCheck::Problem& problem)
{
    if (problem.iServer >= 0) {
        ui->listServers->setCurrentRow(problem.iServer);
    }
    FocusField(problem.field);
    ui->lblProblem->setText(problem.strText);
}

void MailSettingsDialog::FocusField(MailCheck::Field field)
{
    switch (field) {
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
    case MailCheck::Field::Password:
        ui->edtPassword->setFocus();
        break;
    case MailCheck::Field::Sender:
        ui->edtSender->setFocus();
        break;
    case MailCheck::Field::Recipients:
        ui->edtRecipients->setFocus();
        break;
    case MailCheck::Field::CertificateFile:
        ui->edtCertificateFile->setFocus();
        break;
    }
}

void MailSettingsDialog::RefreshRow(int iServer)
{
    const QString strHost = m_settings.servers.at(iServer).strServer.trimmed();
    ui->listServers->item(iServer)->setText(strHost.isEmpty() ? tr("New server") : strHost);
}

void MailSettingsDialog::UpdateState()
{
    const bool bServer = ui->listServers->currentRow() >= 0;
    const bool bEncrypted =
        ui->cmbEncryption->currentData().toInt() != static_cast<int>(SystemMailEncryption::None);
    const bool bUser = !ui->edtUser->text().trimmed().isEmpty();
    ui->wndFields->setEnabled(bServer);
    ui->edtPassword->setEnabled(bUser);
    ui->edtCertificateFile->setEnabled(bEncrypted);
    ui->btnBrowse->setEnabled(bEncrypted);
    ui->lblOpenPassword->setVisible(bUser && !bEncrypted);
    ui->btnTest->setEnabled(bServer && !m_pSender->IsBusy());
    ui->btnStop->setVisible(m_pSender->IsBusy());
    ui->btnRemove->setEnabled(bServer);
    ui->btnAdd->setEnabled(m_settings.servers.size() < ClientSettings::MaximumMailServers);
}
