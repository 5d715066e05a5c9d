#include "tests/AlarmSchemeData/RandomSchemes.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <array>
#include <limits>

AlarmSourceKey RandomSchemes::Key()
{
    static const std::array<int32_t, 4> types{2, 22, -1, std::numeric_limits<int32_t>::min()};
    switch (Below(8)) {
    case 0: // what looks like a placeholder, a string end or a comment must come through as it is
        return {QStringLiteral("%1$%2' -- ;\\%3"), types[static_cast<size_t>(Below(4))]};
    case 1:
        return {QString::fromUtf8("\xE9\x97\xA8\xF0\x9F\x9A\xAA$1$0$1"), 2};
    case 2: // the last four would be read as columns
        static const std::array<const char*, 6> texts{"",    "a key", "strEventSource",
                                                      "oid", "Day",   "windowid"};
        return {QString::fromLatin1(texts[static_cast<size_t>(Below(6))]), 2};
    default:
        return {EventSource::Door(Below(3), Below(3)), types[static_cast<size_t>(Below(2))]};
    }
}

bool RandomSchemes::NamesColumn(const AlarmSourceKey& key)
{
    static const QStringList columns = {QStringLiteral("strEventSource"), QStringLiteral("oid"),
                                        QStringLiteral("Day"), QStringLiteral("windowid")};
    return columns.contains(key.strEventSource);
}

QString RandomSchemes::LinkKey()
{
    switch (Below(8)) {
    case 0:
        return QString();
    case 1:
        return QStringLiteral("%1 it's %4");
    case 2:
        return Below(4) == 0 ? QStringLiteral("_ROWID_") : QString::fromUtf8("\xE9\x97\xA8");
    default:
        return EventSource::AlarmOutput(Below(5));
    }
}

AlarmInfo RandomSchemes::Info()
{
    AlarmInfo info;
    info.bOpen = Flip();
    info.bOpenSound = Flip();
    info.bEmapTwinkle = Flip();
    info.bSendEmail = Flip();

    static const std::array<int32_t, 9> counts{
        0, 1, 2, 3, -1, 8, 9, 70000, std::numeric_limits<int32_t>::max()};
    info.videoSplit.SplitRow = counts[static_cast<size_t>(Below(Below(4) == 0 ? 9 : 4))];
    info.videoSplit.SplitCloum = counts[static_cast<size_t>(Below(Below(4) == 0 ? 9 : 4))];
    info.videoSplit.SplitCount = counts[static_cast<size_t>(Below(9))];
    for (int i = Below(6); i > 0; --i) {
        info.videoSplit.cells[Below(64)] =
            AlarmSplitWindow{Flip(), Below(9), Below(4), Below(4), -1, Below(4)};
    }
    for (int i = Below(4); i > 0; --i) {
        info.videoSplit.videoLinks.insert(
            Below(70) - 2, AlarmLinkVideo{LinkKey(), Below(5) - 1, Below(3) - 1, Flip(), Flip(), Below(100)});
    }
    for (int i = Below(5); i > 0; --i)
        info.listAlarmOut.append(AlarmLinkAlarmOut{LinkKey(), Flip(), Below(50000) - 10});
    static const std::array<const char*, 7> doors{"1", "2", "0", "x", "", "4294967299", "-5"};
    for (int i = Below(5); i > 0; --i) {
        info.listDoor.append(
            AlarmLinkDoor{QString::fromLatin1(doors[static_cast<size_t>(Below(7))]), Flip()});
    }
    if (Flip()) {
        for (int day = 0; day < AlarmWeek::DayCount; ++day) {
            info.defenceTime[day].clear();
            for (int i = Below(4); i > 0; --i)
                info.defenceTime[day].append(AlarmTimeRegion{Below(90000) - 100, Below(90000)});
        }
    }
    return info;
}

AlarmInfoMap RandomSchemes::Map()
{
    AlarmInfoMap map;
    for (int i = Below(7); i > 0; --i)
        map.insert(Key(), Info());
    return map;
}
