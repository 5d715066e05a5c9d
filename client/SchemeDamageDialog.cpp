#include "client/SchemeDamageDialog.h"
#include "ui_SchemeDamageDialog.h"

#include <QDir>
#include <QLocale>
#include <QPointer>

SchemeDamageDialog::SchemeDamageDialog(const SchemeDamage& damage, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::NoButton, parent)
    , ui(std::make_unique<Ui::SchemeDamageDialog>())
{
    setObjectName(QStringLiteral("SchemeDamageDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(tr("The scheme database is damaged"));
    QString strText =
        tr("The file %1 is damaged. What can still be read of it is shown; nothing can be saved.")
            .arg(QDir::toNativeSeparators(damage.strFile));
    strText += QLatin1Char('\n') + tr("Whatever you choose, the damaged file is kept.");
    if (damage.backup) {
        ui->btnRestore->setText(
            tr("&Restore the backup of %1 with %Ln scheme(s)", nullptr, damage.backup->iSchemes)
                .arg(QLocale().toString(damage.backup->time, QLocale::ShortFormat)));
    } else {
        strText += QLatin1Char('\n') + tr("There is no sound backup that could take its place.");
        ui->btnRestore->hide();
    }
    ui->lblDamage->setText(strText);
    ui->lblTechnical->setText(damage.strTechnical);
    setAccessibleDescription(strText);
    connect(ui->btnRestore, &QAbstractButton::clicked, this, [this] { Choose(SchemeDamageAnswer::Restore); });
    connect(ui->btnStartEmpty, &QAbstractButton::clicked, this,
            [this] { Choose(SchemeDamageAnswer::StartEmpty); });
    connect(ui->btnLeaveAlone, &QAbstractButton::clicked, this,
            [this] { Choose(SchemeDamageAnswer::LeaveAlone); });
    (damage.backup ? ui->btnRestore : ui->btnLeaveAlone)->setFocus();
}

SchemeDamageDialog::~SchemeDamageDialog() = default;

void SchemeDamageDialog::Choose(SchemeDamageAnswer eAnswer)
{
    m_eAnswer = eAnswer;
    done(eAnswer == SchemeDamageAnswer::LeaveAlone ? Rejected : Accepted);
}

SchemeDamageAnswer SchemeDamageDialog::Ask(const SchemeDamage& damage, QWidget* parent)
{
    const QPointer<SchemeDamageDialog> dialog = new SchemeDamageDialog(damage, parent);
    dialog->exec();
    if (dialog.isNull()) {
        return SchemeDamageAnswer::LeaveAlone;
    }
    const SchemeDamageAnswer answer = dialog->Answer();
    delete dialog.data();
    return answer;
}
