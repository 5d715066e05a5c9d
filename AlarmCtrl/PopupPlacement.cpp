#include "AlarmCtrl/PopupPlacement.h"

#include <QWidget>

QPoint PopupPlacement::AboveParent(const QPoint& parentTopRight, const QSize& popupSize)
{
    return parentTopRight - QPoint(popupSize.width(), popupSize.height() + Gap);
}

void PopupPlacement::PlaceAboveParent(QWidget& popup)
{
    const QWidget* const pParent = popup.parentWidget();
    if (pParent != nullptr)
        popup.move(AboveParent(pParent->mapToGlobal(QPoint(pParent->width(), 0)), popup.size()));
}
