#include "platform/SiteLibrary/SiteRules.h"

#include <QSet>

#include <algorithm>

namespace SiteRules {

QString NameProblem(const QString& strName)
{
    if (strName.trimmed().isEmpty())
        return SiteText::tr("the name is empty");
    if (strName.size() > MaxNameLength)
        return SiteText::tr("the name is longer than %1 characters").arg(MaxNameLength);
    if (!strName.isValidUtf16())
        return SiteText::tr("the name is not valid Unicode");
    const bool bControl = std::any_of(strName.cbegin(), strName.cend(),
                                      [](QChar c) { return c.category() == QChar::Other_Control; });
    return bControl ? SiteText::tr("the name holds a control character") : QString();
}

quint64 ChannelPlace(int32_t iType, int32_t iNumber)
{
    return (static_cast<quint64>(static_cast<quint32>(iType)) << 32U) | static_cast<quint32>(iNumber);
}

bool IsSound(const VantaLogic::DeviceInfo& device)
{
    if (device.iDeviceId <= 0 || device.iDeviceType < 0 || device.iDeviceType > MaxDeviceType ||
        !NameProblem(device.strName).isEmpty())
        return false;
    QSet<int64_t> ids{device.iDeviceId};
    QSet<quint64> places;
    for (const VantaLogic::ChannelInfo& channel : device.channels) {
        if (channel.iChannelId <= 0 || channel.iChannelType < 0 || channel.iChannelType > MaxChannelType ||
            channel.iNumber < 0 || !NameProblem(channel.strName).isEmpty())
            return false;
        ids.insert(channel.iChannelId);
        places.insert(ChannelPlace(channel.iChannelType, channel.iNumber));
    }
    return ids.size() == device.channels.size() + 1 && places.size() == device.channels.size();
}

GroupProblem FirstGroupProblem(const QVector<VantaLogic::GroupInfo>& groups)
{
    QHash<int64_t, int> positions;
    positions.reserve(groups.size());
    for (int i = 0; i < groups.size(); ++i)
        positions.insert(groups[i].iGroupId, i);

    for (int i = 0; i < groups.size(); ++i) {
        if (groups[i].iParentId != -1 && !positions.contains(groups[i].iParentId))
            return {i, SiteText::tr("the group %1 does not exist").arg(groups[i].iParentId)};
    }

    // Depth of every group, each computed once: 0 not yet, -1 on the path that is being walked.
    QVector<int> depths(groups.size(), 0);
    QVector<int> path;
    for (int iStart = 0; iStart < groups.size(); ++iStart) {
        int iAt = iStart;
        path.clear();
        while (iAt != -1 && depths[iAt] == 0) {
            depths[iAt] = -1;
            path.append(iAt);
            iAt = groups[iAt].iParentId == -1 ? -1 : positions.value(groups[iAt].iParentId);
        }
        if (iAt != -1 && depths[iAt] == -1) {
            const int iFirst = *std::min_element(path.cbegin() + path.indexOf(iAt), path.cend());
            return {iFirst, SiteText::tr("the group %1 lies inside itself").arg(groups[iFirst].iGroupId)};
        }
        int iDepth = iAt == -1 ? 0 : depths[iAt];
        while (!path.isEmpty()) {
            depths[path.last()] = ++iDepth;
            if (iDepth > MaxGroupDepth) {
                return {path.last(),
                        SiteText::tr("groups lie within groups more than %1 deep").arg(MaxGroupDepth)};
            }
            path.removeLast();
        }
    }
    return {};
}

} // namespace SiteRules
