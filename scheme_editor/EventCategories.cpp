#include "scheme_editor/EventCategories.h"

#include "AlarmCtrl/QAlarmListItemView.h"
#include "platform/SystemLibrary/QCommon.h"

#include <QPushButton>

void EventCategories::FillLists() const
{
    for (const EventCategory& category : m_categories) {
        category.pList->setAccessibleName(category.pButton->text());
        category.pList->SetSubVisible(false);
        const QList<int> types = category.types();
        for (const int iType : types)
            category.pList->AddItem(QCommon::GetAlarmNameByType(iType), iType);
    }
}

void EventCategories::SetButtonsVisible(bool bVisible) const
{
    for (const EventCategory& category : m_categories)
        category.pButton->setVisible(bVisible);
}

void EventCategories::RefreshMarks(const QAbstractButton* pChecked,
                                   const std::function<bool(int)>& accept) const
{
    for (const EventCategory& category : m_categories) {
        if (category.pButton != pChecked)
            continue;
        const QList<int> types = category.types();
        for (const int iType : types)
            category.pList->SetItemMark(iType, accept(iType));
    }
}

void EventCategories::GoTo(int iType) const
{
    for (const EventCategory& category : m_categories) {
        if (!category.types().contains(iType))
            continue;
        if (!category.pButton->isChecked())
            category.pButton->click();
        category.pList->GoToType(iType);
    }
}
