#pragma once

#include "platform/SiteLibrary/Site.h"
#include "platform/VantaLogic/IDeviceManager.h"

#include <memory>

/// The device manager over a site. Changes are told to the observers at once. User-interface thread only.
class SITELIBRARY_EXPORT SiteDeviceManager : public VantaLogic::IDeviceManager
{
public:
    SiteDeviceManager();
    explicit SiteDeviceManager(const Site& site);
    ~SiteDeviceManager() override;

    const Site& GetSite() const;
    /// Brings the manager to this site as a difference by id: devices that stay are not removed and added.
    void ApplySite(const Site& site);
    bool AddDevice(const VantaLogic::DeviceInfo& device); ///< false when one of its ids is taken
    bool RenameDevice(int64_t iDeviceId, const QString& strName);
    bool SetDeviceOnline(int64_t iDeviceId, bool bOnline);
    bool SetDeviceEnabled(int64_t iDeviceId, bool bEnabled);
    int OutstandingReferences() const; ///< device and channel objects handed out and not yet released

    void AddObserver(VantaLogic::IDeviceObserver* pObserver) override;
    void RemoveObserver(VantaLogic::IDeviceObserver* pObserver) override;
    QVector<int64_t> GetDeviceIds() const override;
    QVector<VantaLogic::GroupInfo> GetGroups() const override;
    bool RemoveDevice(int64_t iDeviceId) override;
    int32_t GetDevice(int64_t iDeviceId, VantaLogic::DeviceInfo& out) const override;
    VantaLogic::IDevice* GetDeviceObject(int64_t iDeviceId) override;
    int32_t GetDeviceType(int64_t iDeviceId) const override;
    bool IsDeviceEnabled(int64_t iDeviceId) const override;
    int32_t GetChannel(int64_t iChannelId, VantaLogic::ChannelInfo& out) const override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
