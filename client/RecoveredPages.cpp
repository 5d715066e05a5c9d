#include "client/RecoveredPages.h"

#include "client/PageTabs.h"
#include "platform/SystemLibrary/QRecoverSubWndBase.h"

#include <QCoreApplication>
#include <QWidget>

#include <memory>

QStringList RecoveredPages::Ask(const PageTabs& tabs)
{
    QStringList keys;
    QString strFront;
    const QList<QPointer<QWidget>> pages = tabs.Open();
    for (int i = 0; i < pages.size(); ++i) {
        std::unique_ptr<QRecoverSubWndBase> record;
        LXRecoverEvent event(LXRecoverEvent::MessageRecover, i, &record);
        QCoreApplication::sendEvent(pages.at(i), &event);
        if (!record) {
            continue;
        }
        // A page behind another tab is open too.
        const QString strKey = PageTabs::Key(pages.at(i));
        if (record->IsVisible()) {
            strFront = strKey;
        } else {
            keys.append(strKey);
        }
    }
    if (!strFront.isEmpty()) {
        keys.append(strFront);
    }
    return keys;
}
