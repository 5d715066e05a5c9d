#include "client/QuestionDialog.h"
#include "ui_QuestionDialog.h"

#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

namespace {

constexpr int IconSize = 32;

} // namespace

QuestionDialog::QuestionDialog(const Texts& texts, QWidget* parent)
    : LXCustomDialog(QDialogButtonBox::Save | QDialogButtonBox::Discard | QDialogButtonBox::Cancel, parent)
    , ui(std::make_unique<Ui::QuestionDialog>())
{
    setObjectName(QStringLiteral("QuestionDialog"));
    ui->setupUi(GetCentralWidget());
    SetTitle(texts.strTitle);
    ui->lblQuestion->setText(texts.strQuestion);
    setAccessibleDescription(texts.strQuestion);
    QIcon icon(QStringLiteral("./Skin/theme1/dialog/warning.png"));
    if (icon.availableSizes().isEmpty()) {
        icon = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    }
    ui->lblIcon->setPixmap(icon.pixmap(QSize(IconSize, IconSize)));

    QPushButton* const pKeep = GetButton(QDialogButtonBox::Save);
    pKeep->setObjectName(QStringLiteral("btnKeep"));
    pKeep->setText(texts.strKeep);
    pKeep->setProperty("primary", true);
    pKeep->setDefault(true);
    // A style asks for properties only once, and it has seen the button already.
    pKeep->style()->unpolish(pKeep);
    pKeep->style()->polish(pKeep);
    QPushButton* const pGiveUp = GetButton(QDialogButtonBox::Discard);
    pGiveUp->setObjectName(QStringLiteral("btnGiveUp"));
    pGiveUp->setText(texts.strGiveUp);
    QPushButton* const pNothing = GetButton(QDialogButtonBox::Cancel);
    pNothing->setObjectName(QStringLiteral("btnNothing"));
    pNothing->setText(texts.strNothing);

    connect(this, &LXCustomDialog::SignalOkButtonClicked, this, [this] {
        m_eAnswer = Answer::Keep;
        done(Accepted);
    });
    connect(pGiveUp, &QPushButton::clicked, this, [this] {
        m_eAnswer = Answer::GiveUp;
        done(Accepted);
    });
    connect(this, &LXCustomDialog::SignalCancelButtonClicked, this, [this] { done(Rejected); });
    pKeep->setFocus();
}

QuestionDialog::~QuestionDialog() = default;

QuestionDialog::Answer QuestionDialog::Ask(const Texts& texts, QWidget* parent)
{
    const QPointer<QuestionDialog> dialog = new QuestionDialog(texts, parent);
    dialog->exec();
    if (dialog.isNull()) {
        return Answer::Nothing;
    }
    const Answer eAnswer = dialog->GetAnswer();
    delete dialog.data();
    return eAnswer;
}
