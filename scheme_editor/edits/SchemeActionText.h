#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QCoreApplication>
#include <QString>

/// What an action on the page is called, as it stands in a menu behind "Undo". Pure but for translation.
class SchemeActionText
{
    Q_DECLARE_TR_FUNCTIONS(SchemeActionText)

public:
    /// Made in a dialog, where times are typed and copied to other days, or directly on the page.
    enum class Way
    {
        OnPage,
        InDialog
    };

    /// A change of one scheme; the records differ.
    static QString OfEdit(const AlarmInfo& before, const AlarmInfo& after, Way way);
    static QString OfCopy(int iSources);
    static QString OfDraft();

private:
    static QString OfOutputs(const QList<AlarmLinkAlarmOut>& before, const QList<AlarmLinkAlarmOut>& after);
    static QString OfWeek(const AlarmWeek& before, const AlarmWeek& after, Way way);
    static QString DayName(int iDay);
};
