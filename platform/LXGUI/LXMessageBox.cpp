#include "platform/LXGUI/LXMessageBox.h"

#include "platform/LXGUI/LXPushButton.h"
#include "platform/LXGUI/Metrics.h"
#include "platform/LXGUI/SkinImages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QVariant>

namespace LXGUI {
namespace {

constexpr int IconSize = 32;
constexpr int TextWidth = 340;
constexpr int LongText = 800; // characters; beyond it the text scrolls instead of outgrowing the screen

} // namespace

LXMessageBox::LXMessageBox(QWidget* parent, Kind kind, const QString& strTitle, const QString& strText,
                           int iButtons)
    : LXDialog(parent)
    , m_iRefusal(RefusalOf(iButtons))
{
    setModal(true);
    setWindowTitle(strTitle);
    auto* pIcon = new QLabel(this);
    pIcon->setObjectName(QStringLiteral("lblMessageIcon"));
    pIcon->setFixedSize(IconSize, IconSize);
    const bool bWarning = kind == Kind::Warning;
    pIcon->setPixmap(SkinImage(
        this, bWarning ? QStringLiteral("dialog/warning.png") : QStringLiteral("dialog/information.png"),
        bWarning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation, IconSize));
    pIcon->setAccessibleName(bWarning ? tr("Warning") : tr("Information"));

    auto* pBody = new QHBoxLayout;
    pBody->setSpacing(16);
    pBody->addWidget(pIcon, 0, Qt::AlignTop);
    pBody->addWidget(MakeText(strText), 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(16, 16, 16, 16);
    pLayout->setSpacing(16);
    pLayout->addLayout(pBody, 1);
    pLayout->addWidget(MakeButtons(iButtons));
}

LXMessageBox::~LXMessageBox() = default;

QWidget* LXMessageBox::MakeText(const QString& strText)
{
    auto* pText = new QLabel(strText);
    pText->setObjectName(QStringLiteral("lblMessageText"));
    pText->setTextFormat(Qt::PlainText); // names from outside must not become markup
    pText->setWordWrap(true);
    pText->setMinimumWidth(TextWidth);
    pText->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pText->setMinimumHeight(IconSize);
    if (strText.size() <= LongText) {
        return pText;
    }
    auto* pScroll = new QScrollArea;
    pScroll->setFrameShape(QFrame::NoFrame);
    pScroll->setWidgetResizable(true);
    pScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pScroll->setMinimumSize(TextWidth + 40, 240);
    pScroll->setWidget(pText);
    return pScroll;
}

QWidget* LXMessageBox::MakeButtons(int iButtons)
{
    auto* pBar = new QWidget(this);
    auto* pLayout = new QHBoxLayout(pBar);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(8);
    pLayout->addStretch(1);
    const auto add = [&](const QString& strText, int iAnswer) {
        auto* pButton = new LXPushButton(pBar);
        pButton->setText(strText);
        pButton->setMinimumSize(88, DialogControlHeight);
        connect(pButton, &QPushButton::clicked, this, [this, iAnswer] { done(iAnswer); });
        pLayout->addWidget(pButton);
        return pButton;
    };
    const bool bRefusable = (iButtons & ButtonNo) != 0;
    if ((iButtons & ButtonOk) != 0 || !bRefusable) {
        LXPushButton* pAccept = add(bRefusable ? tr("Yes") : tr("OK"), ButtonOk);
        pAccept->setObjectName(QStringLiteral("btnAccept"));
        pAccept->setProperty("primary", true);
        pAccept->setDefault(true);
        pAccept->setFocus();
    }
    if (bRefusable) {
        add(tr("No"), ButtonNo)->setObjectName(QStringLiteral("btnRefuse"));
    }
    return pBar;
}

int LXMessageBox::RefusalOf(int iButtons)
{
    return (iButtons & ButtonNo) != 0 ? ButtonNo : ButtonOk;
}

void LXMessageBox::reject()
{
    done(m_iRefusal);
}

int LXMessageBox::Show(QWidget* parent, Kind kind, const QString& strTitle, const QString& strText,
                       int iButtons)
{
    // The parent may die while the box runs its loop, and the box with it.
    const QPointer<LXMessageBox> pBox = new LXMessageBox(parent, kind, strTitle, strText, iButtons);
    const int iAnswer = pBox->exec();
    if (!pBox) {
        return RefusalOf(iButtons);
    }
    delete pBox.data();
    return iAnswer;
}

int LXMessageBox::ShowInformation(QWidget* parent, const QString& strTitle, const QString& strText,
                                  int iButtons)
{
    return Show(parent, Kind::Information, strTitle, strText, iButtons);
}

int LXMessageBox::ShowWarning(QWidget* parent, const QString& strTitle, const QString& strText, int iButtons)
{
    return Show(parent, Kind::Warning, strTitle, strText, iButtons);
}

} // namespace LXGUI
