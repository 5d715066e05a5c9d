#include "client/store/AsStored.h"

#include <algorithm>

namespace {

// A half of a surrogate pair has no form in UTF-8.
QString StoredText(const QString& strText)
{
    return strText.isValidUtf16() ? strText : QString::fromUtf8(strText.toUtf8());
}

/// Each item goes where its first like was, with the values of its last like.
template <typename Link, typename IsLike>
void AppendOnce(QList<Link>& links, const Link& link, IsLike&& isLike)
{
    const auto found = std::find_if(links.begin(), links.end(), isLike);
    if (found == links.end())
        links.append(link);
    else
        *found = link;
}

QList<AlarmLinkAlarmOut> StoredOutputs(const QList<AlarmLinkAlarmOut>& links)
{
    QList<AlarmLinkAlarmOut> stored;
    for (AlarmLinkAlarmOut link : links) {
        link.strLinkAlarmID = StoredText(link.strLinkAlarmID);
        AppendOnce(stored, link, [&link](const AlarmLinkAlarmOut& other) {
            return other.strLinkAlarmID == link.strLinkAlarmID;
        });
    }
    return stored;
}

QList<AlarmLinkDoor> StoredDoors(const QList<AlarmLinkDoor>& links)
{
    QList<AlarmLinkDoor> stored;
    for (AlarmLinkDoor link : links) {
        link.strDoorID = QString::number(link.strDoorID.toLongLong()); // 0 for what is no number
        AppendOnce(stored, link,
                   [&link](const AlarmLinkDoor& other) { return other.strDoorID == link.strDoorID; });
    }
    return stored;
}

AlarmVideoSplit StoredSplit(const AlarmVideoSplit& split)
{
    AlarmVideoSplit stored;
    stored.SplitRow = split.SplitRow;
    stored.SplitCloum = split.SplitCloum;
    stored.SplitCount = split.SplitCount;
    const int used = split.UsedCells();
    for (int window = 0; window < used; ++window) {
        // Looked at before it is written: writing ends the sharing of all 64.
        if (!(split.cells[window] == qAsConst(stored.cells)[window]))
            stored.cells[window] = split.cells[window];
    }
    for (auto link = split.videoLinks.cbegin(); link != split.videoLinks.cend(); ++link) {
        if (link.key() < 0 || link.key() >= split.SplitCount)
            continue;
        AlarmLinkVideo& kept = stored.videoLinks[link.key()];
        kept = link.value();
        kept.strLinkDevID = StoredText(kept.strLinkDevID);
    }
    return stored;
}

AlarmWeek StoredWeek(const AlarmWeek& week)
{
    const auto isNone = [](const AlarmTimeRegion& region) {
        return region.Begin < 0 || region.Begin > region.End;
    };
    AlarmWeek stored = week;
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (std::none_of(week[day].cbegin(), week[day].cend(), isNone))
            continue;
        AlarmDefenceTime_t& regions = stored[day];
        regions.erase(std::remove_if(regions.begin(), regions.end(), isNone), regions.end());
    }
    const AlarmWeek fresh;
    return stored == fresh ? fresh : stored;
}

bool MayNameColumn(const QString& strText)
{
    return !strText.isEmpty() && std::all_of(strText.cbegin(), strText.cend(), [](QChar character) {
        return character.isLetterOrNumber() || character == QLatin1Char('_');
    }) && !strText.at(0).isDigit();
}

} // namespace

AlarmInfo AsStored(const AlarmInfo& info)
{
    AlarmInfo stored;
    stored.bOpen = info.bOpen;
    stored.bOpenSound = info.bOpenSound;
    stored.bEmapTwinkle = info.bEmapTwinkle;
    stored.bSendEmail = info.bSendEmail;
    stored.videoSplit = StoredSplit(info.videoSplit);
    stored.listAlarmOut = StoredOutputs(info.listAlarmOut);
    stored.listDoor = StoredDoors(info.listDoor);
    stored.defenceTime = StoredWeek(info.defenceTime);
    return stored;
}

AlarmSourceKey AsStored(const AlarmSourceKey& key)
{
    return AlarmSourceKey{StoredText(key.strEventSource), key.AlarmType};
}

bool MayNameColumns(const AlarmSourceKey& key, const AlarmInfo& info)
{
    const auto& outputs = info.listAlarmOut;
    const auto& channels = info.videoSplit.videoLinks;
    return MayNameColumn(key.strEventSource) ||
           std::any_of(outputs.cbegin(), outputs.cend(),
                       [](const AlarmLinkAlarmOut& link) { return MayNameColumn(link.strLinkAlarmID); }) ||
           std::any_of(channels.cbegin(), channels.cend(),
                       [](const AlarmLinkVideo& link) { return MayNameColumn(link.strLinkDevID); });
}
