#pragma once

#include "platform/LXPluginAPI/IHubManager.h"
#include "platform/SiteLibrary/SiteDeviceManager.h"
#include "platform/VantaComponent/GroupTreeCtrl.h"
#include "platform/VantaModel/GroupTreeModel.h"
#include "plugin/host_services/HostServices.h"
#include "tests/VantaTree/ExpansionMemory.h"

#include <QStandardItem>
#include <QWidget>

#include <utility>

/// A host with one site: its managers are in the module's table while it lives.
class SiteHost : private LXPluginAPI::IHubManager
{
public:
    explicit SiteHost(const Site& site)
        : manager(site)
    {
        HostServices::FillTable({this});
    }
    ~SiteHost() override { HostServices::FillTable({}); }
    SiteHost(const SiteHost&) = delete;
    SiteHost& operator=(const SiteHost&) = delete;

    SiteDeviceManager manager;
    ExpansionMemory expansion;

private:
    std::string GetServiceName() const override { return "HubPluginManager"; }
    void* SubManager2() override { return static_cast<VantaLogic::IDeviceManager*>(&manager); }
    void* SubManager3() override { return static_cast<VantaLogic::ITreeExpansion*>(&expansion); }
};

/// Sites built in the test.
namespace TestSite {

inline VantaLogic::DeviceInfo Device(int64_t iId, int32_t iType)
{
    VantaLogic::DeviceInfo device;
    device.iDeviceId = iId;
    device.iDeviceType = iType;
    device.strName = QStringLiteral("Device %1").arg(iId);
    return device;
}

inline void AddChannel(VantaLogic::DeviceInfo& device, int64_t iId, int32_t iKind, int32_t iNumber = 1)
{
    VantaLogic::ChannelInfo channel;
    channel.iChannelId = iId;
    channel.iDeviceId = device.iDeviceId;
    channel.iChannelType = iKind;
    channel.iNumber = iNumber;
    channel.strName = QStringLiteral("Channel %1").arg(iId);
    device.channels.append(channel);
}

constexpr int64_t DeviceOfType(int iType)
{
    return 100 + iType;
}
constexpr int64_t ChannelOf(int iType, int iKind)
{
    return 1000 + 10 * iType + iKind;
}

/// One device of every type 0 to 18, each with one channel of every kind 0 to 6.
inline Site EveryTypeAndKind()
{
    Site site;
    for (int type = 0; type <= 18; ++type) {
        VantaLogic::DeviceInfo device = Device(DeviceOfType(type), type);
        for (int kind = 0; kind <= 6; ++kind)
            AddChannel(device, ChannelOf(type, kind), kind);
        site.devices.append(device);
    }
    return site;
}

} // namespace TestSite

/// What a person does to the device tree inside a widget.
class TreeHand
{
public:
    explicit TreeHand(QWidget& owner)
        : m_pTree(owner.findChild<VantaComponent::GroupTreeCtrl*>())
        , m_pModel(owner.findChild<VantaModel::GroupTreeModel*>())
    {
        m_pModel->EnsureBuilt();
    }

    VantaComponent::GroupTreeCtrl* Tree() const { return m_pTree; }
    QStandardItem* Node(int64_t iId, int32_t iKind) const { return m_pModel->FindNode(iId, iKind); }
    QStandardItem* Channel(int64_t iId) const { return Node(iId, VantaModel::NodeKindChannel); }
    QStandardItem* Device(int64_t iId) const { return Node(iId, VantaModel::NodeKindDevice); }

    /// A click beside the check box.
    bool Click(int64_t iId, int32_t iKind) const
    {
        if (!m_pTree->SelectNode(iId, iKind))
            return false;
        Q_EMIT m_pTree->SignalClicked(Node(iId, iKind)->index(), iKind);
        return true;
    }
    bool ClickChannel(int64_t iId) const { return Click(iId, VantaModel::NodeKindChannel); }

    /// A click on the check box, with what the tree does of its own accord.
    bool Tick(int64_t iId, int32_t iKind, bool bChecked = true) const
    {
        QStandardItem* const pItem = Node(iId, iKind);
        if (pItem == nullptr || !m_pTree->SelectNode(iId, iKind))
            return false;
        m_pTree->UpdateSelectedState(pItem, bChecked);
        Q_EMIT m_pTree->SignalChecked(pItem->index(), bChecked);
        Q_EMIT m_pTree->SignalClicked(pItem->index(), iKind);
        return true;
    }
    bool TickChannel(int64_t iId, bool bChecked = true) const
    {
        return Tick(iId, VantaModel::NodeKindChannel, bChecked);
    }
    bool TickDevice(int64_t iId, bool bChecked = true) const
    {
        return Tick(iId, VantaModel::NodeKindDevice, bChecked);
    }

private:
    VantaComponent::GroupTreeCtrl* m_pTree;
    VantaModel::GroupTreeModel* m_pModel;
};
