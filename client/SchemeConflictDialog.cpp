#include "client/SchemeConflictDialog.h"
#include "ui_SchemeConflictDialog.h"

SchemeConflictDialog::SchemeConflictDialog(const SchemeConflict& conflict, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::Cancel, parent)
    , ui(std::make_unique<Ui::SchemeConflictDialog>())
{
    setObjectName(QStringLiteral("SchemeConflictDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(tr("Schemes were changed elsewhere"));
    QString strText =
        tr("Another program has changed %Ln scheme(s) since they were loaded.", nullptr, conflict.iSchemes);
    if (conflict.iBoth > 0) {
        strText += QLatin1Char('\n') + tr("You have changed %Ln of them too; there, saving writes yours.",
                                          nullptr, conflict.iBoth);
    }
    ui->lblConflict->setText(strText);
    connect(ui->btnKeepOthers, &QAbstractButton::clicked, this,
            [this] { Choose(SchemeConflictAnswer::KeepOthers); });
    connect(ui->btnReload, &QAbstractButton::clicked, this, [this] { Choose(SchemeConflictAnswer::Reload); });
    connect(ui->btnSaveOver, &QAbstractButton::clicked, this,
            [this] { Choose(SchemeConflictAnswer::SaveOver); });
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, [this] { done(Rejected); });
    ui->btnKeepOthers->setFocus();
}

SchemeConflictDialog::~SchemeConflictDialog() = default;

void SchemeConflictDialog::Choose(SchemeConflictAnswer eAnswer)
{
    m_eAnswer = eAnswer;
    done(Accepted);
}
