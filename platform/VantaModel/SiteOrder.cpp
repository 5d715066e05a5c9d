#include "platform/VantaModel/SiteOrder.h"

#include <algorithm>

namespace VantaModel {

namespace {

constexpr int maxDepth = 64;

} // namespace

SiteOrder::SiteOrder(const VantaLogic::IDeviceManager* pDeviceManager)
    : m_pDeviceManager(pDeviceManager)
{
}

void SiteOrder::ReadGroups()
{
    m_groups = m_pDeviceManager ? m_pDeviceManager->GetGroups() : QVector<VantaLogic::GroupInfo>();
    m_groupRanks.clear();
    for (int i = 0; i < m_groups.size(); ++i)
        m_groupRanks.insert(m_groups[i].iGroupId, i);

    QVector<int> cut;
    for (int i = 0; i < m_groups.size(); ++i) {
        int iSteps = 0;
        const VantaLogic::GroupInfo* pGroup = &m_groups.at(i);
        while (pGroup && iSteps <= maxDepth) {
            pGroup = FindGroup(pGroup->iParentId);
            ++iSteps;
        }
        if (pGroup)
            cut.append(i);
    }
    for (const int i : qAsConst(cut))
        m_groups[i].iParentId = -1;
}

void SiteOrder::ReadDevices()
{
    const QVector<int64_t> ids = m_pDeviceManager ? m_pDeviceManager->GetDeviceIds() : QVector<int64_t>();
    if (ids.constData() == m_ids.constData() && ids.size() == m_ids.size())
        return;
    const bool bGrown = ids.size() >= m_ids.size() && std::equal(m_ids.cbegin(), m_ids.cend(), ids.cbegin());
    if (!bGrown)
        m_deviceRanks.clear();
    for (int i = bGrown ? m_ids.size() : 0; i < ids.size(); ++i)
        m_deviceRanks.insert(ids[i], i);
    m_ids = ids;
}

const VantaLogic::GroupInfo* SiteOrder::FindGroup(int64_t iGroupId) const
{
    const auto it = m_groupRanks.constFind(iGroupId);
    return it == m_groupRanks.cend() ? nullptr : &m_groups.at(*it);
}

int64_t SiteOrder::ParentOf(int64_t iGroupId) const
{
    const VantaLogic::GroupInfo* pGroup = FindGroup(iGroupId);
    return pGroup && FindGroup(pGroup->iParentId) ? pGroup->iParentId : -1;
}

int64_t SiteOrder::GroupOf(const VantaLogic::DeviceInfo& device) const
{
    return FindGroup(device.iGroupId) ? device.iGroupId : -1;
}

int SiteOrder::GroupRank(int64_t iGroupId) const
{
    return m_groupRanks.value(iGroupId, -1);
}

int SiteOrder::DeviceRank(int64_t iDeviceId) const
{
    return m_deviceRanks.value(iDeviceId, -1);
}

} // namespace VantaModel
