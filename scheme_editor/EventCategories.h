#pragma once

#include <QList>

#include <array>
#include <functional>

class QAbstractButton;
class QAlarmListItemView;
class QPushButton;

/// One category of door events: its button, its list and the host's event types.
struct EventCategory
{
    QPushButton* pButton;
    QAlarmListItemView* pList;
    QList<int> (*types)();
};

/// The categories of door events on the scheme page, top down. Owns none of the widgets.
class EventCategories
{
public:
    explicit EventCategories(const std::array<EventCategory, 3>& categories)
        : m_categories(categories)
    {
    }

    auto begin() const { return m_categories.begin(); }
    auto end() const { return m_categories.end(); }

    /// One entry for each event type of the host, by its name.
    void FillLists() const;
    void SetButtonsVisible(bool bVisible) const;
    /// Shows the marks of the types that are accepted in the list of this category button.
    void RefreshMarks(const QAbstractButton* pChecked, const std::function<bool(int iType)>& accept) const;
    /// Goes to the category and the entry of an event type as clicks on them do.
    void GoTo(int iType) const;

private:
    std::array<EventCategory, 3> m_categories;
};
