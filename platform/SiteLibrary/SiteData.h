#pragma once

#include "platform/SiteLibrary/Site.h"

#include <QHash>
#include <QMap>

/// The devices of a site with every look-up in constant time. Knows nothing of observers.
class SiteData
{
public:
    /// Replaces everything. Devices that are unsound or whose ids are taken are left out.
    void Reset(const Site& site);
    /// Adds behind the last device; false when it is unsound, an id is taken or its group is not known.
    bool Add(const VantaLogic::DeviceInfo& device);
    bool Remove(int64_t iDeviceId);

    const VantaLogic::DeviceInfo* FindDevice(int64_t iDeviceId) const;
    const VantaLogic::ChannelInfo* FindChannel(int64_t iChannelId) const;
    const VantaLogic::ChannelInfo* FindChannel(int64_t iDeviceId, int32_t iType, int32_t iNumber) const;
    /// For changes of name and state; ids and channels stay as they are.
    VantaLogic::DeviceInfo* EditDevice(int64_t iDeviceId);

    const QVector<VantaLogic::GroupInfo>& Groups() const { return m_groups; }
    const QVector<int64_t>& DeviceIds() const; ///< shared until the devices change
    const Site& AsSite() const;                ///< the whole site, put together when asked for

private:
    struct Entry
    {
        VantaLogic::DeviceInfo info;
        int64_t iOrder = 0;
        QHash<quint64, int> places; ///< kind and number to position in the channel list
    };
    struct ChannelPlace
    {
        int64_t iDeviceId = -1;
        int iPosition = 0;
    };

    bool Insert(const VantaLogic::DeviceInfo& device);
    bool IsTaken(int64_t iId) const;

    QVector<VantaLogic::GroupInfo> m_groups;
    QHash<int64_t, int> m_groupPlaces;
    QHash<int64_t, Entry> m_devices;
    QHash<int64_t, ChannelPlace> m_channels;
    QMap<int64_t, int64_t> m_order; ///< running number to device id
    int64_t m_iNextOrder = 0;
    mutable QVector<int64_t> m_ids;
    mutable Site m_site;
    mutable bool m_bIdsStale = false;
    mutable bool m_bSiteStale = false;
};
