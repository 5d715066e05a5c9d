#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QString>

/// The keys and records of which the tests of stored schemes make their maps.
namespace SampleSchemes {

inline AlarmSourceKey Key(const char* szSource, int32_t iType)
{
    return AlarmSourceKey{QString::fromUtf8(szSource), iType};
}

inline AlarmLinkAlarmOut Output(const char* szKey, int32_t iTime, bool bAutoOpen = true)
{
    return AlarmLinkAlarmOut{QString::fromUtf8(szKey), bAutoOpen, iTime};
}

/// One scheme with something in every part.
inline AlarmInfo Rich()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    info.bEmapTwinkle = true;
    info.bSendEmail = true;
    info.videoSplit.SplitRow = 2;
    info.videoSplit.SplitCloum = 3;
    info.videoSplit.SplitCount = 6;
    info.videoSplit.cells[5] = AlarmSplitWindow{false, 2, 1, 0, 3, 2};
    info.videoSplit.videoLinks.insert(0, AlarmLinkVideo{QStringLiteral("90$1$0$1"), 4, 1, true, true, 30});
    info.videoSplit.videoLinks.insert(5, AlarmLinkVideo{QStringLiteral("90$1$0$2"), -1, -1, false, false, 9});
    info.listAlarmOut = {Output("31$3$0$0", 20), Output("30$3$0$0", 43200, false)};
    info.listDoor = {{QStringLiteral("12"), true}, {QStringLiteral("11"), false}};
    info.defenceTime[0] = {{0, 100}, {200, 300}};
    info.defenceTime[3].clear();
    return info;
}

} // namespace SampleSchemes
