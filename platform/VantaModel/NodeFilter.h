#pragma once

#include <QSet>

#include <cstdint>

namespace VantaModel {

/// Which nodes a tree offers at all. A black list beats a white list; an empty white list allows everything.
struct NodeFilter
{
    QSet<int32_t> deviceWhiteList;
    QSet<int32_t> deviceBlackList;
    QSet<int32_t> channelWhiteList;
    QSet<int32_t> channelBlackList;
    bool bHideChannels = false;
    bool bHideEmaps = false;

    bool OffersDevice(int32_t iDeviceType) const
    {
        return !deviceBlackList.contains(iDeviceType) &&
               (deviceWhiteList.isEmpty() || deviceWhiteList.contains(iDeviceType));
    }
    bool OffersChannel(int32_t iChannelType) const
    {
        return !bHideChannels && !channelBlackList.contains(iChannelType) &&
               (channelWhiteList.isEmpty() || channelWhiteList.contains(iChannelType));
    }
};

inline bool operator==(const NodeFilter& a, const NodeFilter& b)
{
    return a.deviceWhiteList == b.deviceWhiteList && a.deviceBlackList == b.deviceBlackList &&
           a.channelWhiteList == b.channelWhiteList && a.channelBlackList == b.channelBlackList &&
           a.bHideChannels == b.bHideChannels && a.bHideEmaps == b.bHideEmaps;
}

} // namespace VantaModel
