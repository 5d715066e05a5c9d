#include "client/insight/WeekHeatMapAccessible.h"

#include "client/insight/WeekHeatMap.h"

namespace {

QAccessibleInterface* MakeInterface(const QString& /*strClass*/, QObject* pObject)
{
    auto* const pMap = qobject_cast<WeekHeatMap*>(pObject);
    return pMap != nullptr ? new WeekHeatMapAccessible(pMap) : nullptr;
}

} // namespace

WeekHeatMapAccessible::WeekHeatMapAccessible(WeekHeatMap* pMap)
    : QAccessibleWidget(pMap, QAccessible::Chart)
{
}

QString WeekHeatMapAccessible::text(QAccessible::Text t) const
{
    const auto* const pMap = qobject_cast<const WeekHeatMap*>(widget());
    return t == QAccessible::Value && pMap != nullptr ? pMap->CurrentText() : QAccessibleWidget::text(t);
}

void WeekHeatMapAccessible::Install()
{
    static const bool bInstalled = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(bInstalled)
}
