#include "AlarmCtrl/QAlarmListItemViewAccessible.h"

#include "AlarmCtrl/QAlarmListItemView.h"

namespace {

QAccessibleInterface* MakeInterface(const QString& /*strClass*/, QObject* pObject)
{
    auto* const pView = qobject_cast<QAlarmListItemView*>(pObject);
    return pView != nullptr ? new QAlarmListItemViewAccessible(pView) : nullptr;
}

} // namespace

QAlarmListItemViewAccessible::QAlarmListItemViewAccessible(QAlarmListItemView* pView)
    : QAccessibleWidget(pView, QAccessible::List)
{
}

QString QAlarmListItemViewAccessible::text(QAccessible::Text kind) const
{
    const auto* const pView = qobject_cast<const QAlarmListItemView*>(widget());
    if (kind == QAccessible::Value && pView != nullptr)
        return pView->GetCurrentText();
    return QAccessibleWidget::text(kind);
}

void QAlarmListItemViewAccessible::Install()
{
    static const bool bInstalled = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(bInstalled)
}
