#include "client/LoadAnewOffer.h"

#include "platform/LXGUI/LXMessageNotify.h"

using LXGUI::LXMessageNotify;

LoadAnewOffer::LoadAnewOffer(QWidget* parent)
    : QPushButton(tr("Schemes have changed: load anew"), parent)
{
    setObjectName(QStringLiteral("btnLoadAnew"));
    hide();
}

LoadAnewOffer::~LoadAnewOffer() = default;

void LoadAnewOffer::Offer(const QString& strReason)
{
    const QString strText = strReason + QLatin1Char(' ') +
                            tr("The open pages show the schemes as they were when they were loaded.");
    setToolTip(strText.toHtmlEscaped());
    setAccessibleDescription(strText);
    show();
    LXGUI::LXSingleton<LXMessageNotify>::Instance()->AddTextNotification(strText,
                                                                         LXMessageNotify::Information);
}

void LoadAnewOffer::Withdraw()
{
    hide();
}
