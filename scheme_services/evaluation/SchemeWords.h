#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/SchemeReactions.h"
#include "schemeevaluation_export.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class SiteIndex;

/// Schemes in words, translated, for people.
class SCHEMEEVALUATION_EXPORT SchemeWords
{
    Q_DECLARE_TR_FUNCTIONS(SchemeWords)

public:
    SchemeWords() = delete;

    /// "Lobby/Door 1, Door Forced Open".
    static QString Name(const AlarmSourceKey& key, const SiteIndex& site);
    /// One line each: "switches on Lobby/Siren for 20 s".
    static QStringList Reactions(const SchemeReactions& reactions, const SiteIndex& site);
    /// "08:00-12:00, 13:00-24:00", with seconds where there are any; "not armed" for an empty day.
    static QString Day(const AlarmDefenceTime_t& regions);
    /// What differs, one line each: "switched on", "Monday: 08:00-12:00, was not armed". Empty for records
    /// that do the same.
    static QStringList Differences(const AlarmInfo& before, const AlarmInfo& after, const SiteIndex& site);

private:
    static QString Output(const AlarmLinkAlarmOut& link, const SiteIndex& site);
    static QString Door(const AlarmLinkDoor& link, const SiteIndex& site);
    static QString Video(int32_t iWindow, const AlarmLinkVideo& link, const SiteIndex& site);
    static void AddListDifference(QStringList& lines, const QStringList& before, const QStringList& after);
};
