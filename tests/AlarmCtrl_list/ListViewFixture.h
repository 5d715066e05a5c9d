#pragma once

#include "AlarmCtrl/QAlarmListItem.h"
#include "AlarmCtrl/QAlarmListItemView.h"

#include <QButtonGroup>
#include <QLabel>
#include <QSignalSpy>

/// A view with verbs to drive it and questions about what it shows.
class ListViewFixture
{
public:
    QAlarmListItemView view;
    QSignalSpy changes{&view, &QAlarmListItemView::SignalCurrentItemChanged};

    /// Main entries named after their types: "A" with 10, "B" with 11 and so on.
    void AddEntries(int iCount)
    {
        for (int i = 0; i < iCount; ++i)
            view.AddItem(Text(i), Type(i));
    }
    static QString Text(int iEntry) { return QString(QLatin1Char(static_cast<char>('A' + iEntry))); }
    static int Type(int iEntry) { return 10 + iEntry; }

    QButtonGroup* Group() const { return view.findChild<QButtonGroup*>(); }
    int EntryCount() const { return Group()->buttons().size(); }
    QAlarmListItem* Entry(int iPosition) const
    {
        return qobject_cast<QAlarmListItem*>(Group()->buttons().value(iPosition));
    }
    QAlarmListItem* EntryOfType(int iType) const
    {
        for (int i = 0; i < EntryCount(); ++i) {
            if (Entry(i)->GetType() == iType)
                return Entry(i);
        }
        return nullptr;
    }
    static QLabel* Mark(const QAlarmListItem* pItem)
    {
        return pItem->findChild<QLabel*>(QStringLiteral("lblPix"));
    }
    static bool IsMarked(const QAlarmListItem* pItem) { return !Mark(pItem)->isHidden(); }
    template <class Widget>
    Widget* Part(const char* strName) const
    {
        return view.findChild<Widget*>(QLatin1String(strName));
    }
    QAlarmListItem* Header() const { return Part<QAlarmListItem>("btnSubControll"); }

    /// Text and type of the last emission; a type of -1000 when there was none.
    QString LastText() const { return changes.isEmpty() ? QString() : changes.last().at(0).toString(); }
    int LastType() const { return changes.isEmpty() ? -1000 : changes.last().at(1).toInt(); }
};
