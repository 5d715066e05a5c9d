#pragma once

#include "platform/VantaLogic/IDeviceManager.h"

#include <QHash>
#include <QVector>

namespace VantaModel {

/// Where groups and devices stand in the site's order, and which group lies in which.
class SiteOrder
{
public:
    explicit SiteOrder(const VantaLogic::IDeviceManager* pDeviceManager);

    void ReadGroups();
    /// Takes the present order of the devices over; costs next to nothing when it has not changed.
    void ReadDevices();

    const QVector<VantaLogic::GroupInfo>& Groups() const { return m_groups; }
    const VantaLogic::GroupInfo* FindGroup(int64_t iGroupId) const;
    /// The group to show a group or device in, -1 for the top: unknown parents count as none, and a host's
    /// circles and endless chains are cut.
    int64_t ParentOf(int64_t iGroupId) const;
    int64_t GroupOf(const VantaLogic::DeviceInfo& device) const;
    int GroupRank(int64_t iGroupId) const;
    int DeviceRank(int64_t iDeviceId) const;

private:
    const VantaLogic::IDeviceManager* m_pDeviceManager;
    QVector<VantaLogic::GroupInfo> m_groups;
    QHash<int64_t, int> m_groupRanks;
    QVector<int64_t> m_ids;
    QHash<int64_t, int> m_deviceRanks;
};

} // namespace VantaModel
