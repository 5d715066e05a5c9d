#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QSet>
#include <QString>

/// Equal texts as one: schemes name few sources and outputs, and many schemes name the same.
class AlarmSchemeTextPool
{
public:
    void Intern(QString& strText) { strText = *m_texts.insert(strText); }
    void Intern(AlarmInfo& info)
    {
        for (AlarmLinkAlarmOut& link : info.listAlarmOut)
            Intern(link.strLinkAlarmID);
        for (AlarmLinkVideo& link : info.videoSplit.videoLinks)
            Intern(link.strLinkDevID);
        for (AlarmLinkDoor& link : info.listDoor)
            Intern(link.strDoorID);
    }

private:
    QSet<QString> m_texts;
};
