#include "platform/LXGUI/LXCustomDialog.h"

#include "platform/LXGUI/Metrics.h"

#include <QCloseEvent>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace LXGUI {
namespace {

constexpr int PopupTitleHeight = 28;

} // namespace

LXCustomDialog::LXCustomDialog(int iStandardButtons, QWidget* parent, bool bPopup)
    : LXDialog(parent)
    , m_pCentral(new QWidget(this))
    , m_pButtons(new QDialogButtonBox(QDialogButtonBox::StandardButtons(iStandardButtons), this))
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pCentral, 1);
    auto* pBar = new QVBoxLayout;
    const int iRoom = bPopup ? 8 : 16;
    pBar->setContentsMargins(iRoom, 8, iRoom, iRoom);
    pBar->addWidget(m_pButtons);
    pLayout->addLayout(pBar);
    if (bPopup) {
        SetTitleHeight(PopupTitleHeight);
    }
    DressButtons(bPopup);
    connect(m_pButtons, &QDialogButtonBox::accepted, this,
            [this] { Answer(&LXCustomDialog::SignalOkButtonClicked); });
    connect(m_pButtons, &QDialogButtonBox::rejected, this, &LXCustomDialog::reject);
}

LXCustomDialog::~LXCustomDialog() = default;

void LXCustomDialog::DressButtons(bool bPopup)
{
    if (QPushButton* pOk = GetButton(QDialogButtonBox::Ok)) {
        pOk->setText(tr("OK"));
        pOk->setProperty("primary", true);
        pOk->setDefault(true);
        // The box has let the style look at its buttons already, and a style asks for properties only once.
        pOk->style()->unpolish(pOk);
        pOk->style()->polish(pOk);
    }
    if (QPushButton* pCancel = GetButton(QDialogButtonBox::Cancel)) {
        pCancel->setText(tr("Cancel"));
    }
    const QList<QAbstractButton*> buttons = m_pButtons->buttons();
    for (QAbstractButton* pButton : buttons) {
        pButton->setIcon(QIcon());
        pButton->setMinimumSize(bPopup ? 70 : 88, bPopup ? ControlHeight : DialogControlHeight);
    }
    m_pButtons->setVisible(!buttons.isEmpty());
}

QWidget* LXCustomDialog::GetCentralWidget() const
{
    return m_pCentral;
}

void LXCustomDialog::SetTitle(const QString& strTitle)
{
    setWindowTitle(strTitle);
}

QString LXCustomDialog::GetTitle() const
{
    return windowTitle();
}

QPushButton* LXCustomDialog::GetButton(QDialogButtonBox::StandardButton button) const
{
    return m_pButtons->button(button);
}

void LXCustomDialog::Answer(void (LXCustomDialog::*signal)())
{
    const QPointer<LXCustomDialog> guard(this);
    m_bAnswering = true;
    Q_EMIT(this->*signal)();
    if (guard) {
        m_bAnswering = false;
    }
}

void LXCustomDialog::reject()
{
    if (m_bAnswering || m_bClosing ||
        !isSignalConnected(QMetaMethod::fromSignal(&LXCustomDialog::SignalCancelButtonClicked))) {
        QDialog::reject();
        return;
    }
    Answer(&LXCustomDialog::SignalCancelButtonClicked);
}

void LXCustomDialog::closeEvent(QCloseEvent* event)
{
    if (event->spontaneous()) {
        // Qt ignores close() while it handles a close event, and closing is what the user's slot will do.
        event->ignore();
        QMetaObject::invokeMethod(this, "reject", Qt::QueuedConnection);
        return;
    }
    m_bClosing = true;
    QDialog::closeEvent(event);
    m_bClosing = false;
}

} // namespace LXGUI
