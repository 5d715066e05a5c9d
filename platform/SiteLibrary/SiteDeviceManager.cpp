#include "platform/SiteLibrary/SiteDeviceManager.h"

#include "platform/SiteLibrary/SiteObjects.h"
#include "platform/SiteLibrary/SiteRules.h"

#include <QSet>

#include <algorithm>
#include <deque>
#include <iterator>

using namespace VantaLogic;

namespace {

bool SameChannels(const QVector<ChannelInfo>& a, const QVector<ChannelInfo>& b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const auto& x, const auto& y) {
        return x.iChannelId == y.iChannelId && x.iNumber == y.iNumber && x.iChannelType == y.iChannelType &&
               x.bEnabled == y.bEnabled && x.strName == y.strName;
    });
}

/// Whether everything but online is the same.
bool SameConfiguration(const DeviceInfo& a, const DeviceInfo& b)
{
    return a.iDeviceType == b.iDeviceType && a.iGroupId == b.iGroupId && a.bEnabled == b.bEnabled &&
           a.strName == b.strName && SameChannels(a.channels, b.channels);
}

bool SameGroups(const QVector<GroupInfo>& a, const QVector<GroupInfo>& b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const auto& x, const auto& y) {
        return x.iGroupId == y.iGroupId && x.iParentId == y.iParentId && x.strName == y.strName;
    });
}

/// The fewest ids to move so that the ids that stay stand in their new order: all but a longest run that is
/// in order already. `after` holds the ids in their new order, `before` their old places.
QSet<int64_t> MovedIds(const QVector<int64_t>& after, const QHash<int64_t, int>& before)
{
    QVector<int> tails;                    // old places that end the best run of each length
    QVector<int> lengths(after.size(), 0); // length of the best run that ends at each id
    for (int i = 0; i < after.size(); ++i) {
        const int iPlace = before.value(after[i]);
        const auto it = std::lower_bound(tails.begin(), tails.end(), iPlace);
        lengths[i] = static_cast<int>(std::distance(tails.begin(), it)) + 1;
        if (it == tails.end()) {
            tails.append(iPlace);
        } else {
            *it = iPlace;
        }
    }
    QSet<int64_t> moved;
    int iWanted = tails.size();
    int iLimit = before.size();
    for (int i = after.size() - 1; i >= 0; --i) {
        const int iPlace = before.value(after[i]);
        if (lengths[i] == iWanted && iPlace < iLimit) {
            --iWanted;
            iLimit = iPlace;
        } else {
            moved.insert(after[i]);
        }
    }
    return moved;
}

enum class Change
{
    Added,
    Removed,
    Changed,
    Online,
    Groups,
};

struct Notice
{
    Change change;
    int64_t iDeviceId;
    bool bOnline;
    quint64 iSerial; ///< in the order of the changes
};

void Tell(IDeviceObserver& observer, const Notice& notice)
{
    switch (notice.change) {
    case Change::Added:
        observer.OnDeviceAdded(notice.iDeviceId);
        break;
    case Change::Removed:
        observer.OnDeviceRemoved(notice.iDeviceId);
        break;
    case Change::Changed:
        observer.OnDeviceChanged(notice.iDeviceId);
        break;
    case Change::Online:
        observer.OnDeviceOnline(notice.iDeviceId, notice.bOnline);
        break;
    case Change::Groups:
        observer.OnGroupsChanged();
        break;
    }
}

} // namespace

class SiteDeviceManager::Private
{
public:
    struct Observer
    {
        IDeviceObserver* pObserver;
        quint64 iSince; ///< is told of later changes only
    };

    void Post(Change change, int64_t iDeviceId = -1, bool bOnline = false)
    {
        pending.push_back({change, iDeviceId, bOnline, ++iSerial});
    }
    /// A change made by an observer waits until all have been told of the one before: every observer hears
    /// of the changes in the order in which they happened.
    void Deliver();
    void DeliverOne(const Notice& notice);
    void PostDifference(const SiteData& before);

    std::shared_ptr<SiteObjects> objects = std::make_shared<SiteObjects>();
    QVector<Observer> observers;
    std::deque<Notice> pending;
    quint64 iSerial = 0;
    bool bDelivering = false;
};

void SiteDeviceManager::Private::DeliverOne(const Notice& notice)
{
    const QVector<Observer> called = observers;
    for (const Observer& observer : called) {
        const bool bStill =
            std::any_of(observers.cbegin(), observers.cend(), [&observer](const Observer& other) {
                return other.pObserver == observer.pObserver && other.iSince == observer.iSince;
            });
        if (bStill && observer.iSince < notice.iSerial)
            Tell(*observer.pObserver, notice);
    }
}

void SiteDeviceManager::Private::Deliver()
{
    if (bDelivering)
        return;
    bDelivering = true;
    while (!pending.empty()) {
        const Notice notice = pending.front();
        pending.pop_front();
        DeliverOne(notice);
    }
    bDelivering = false;
}

/// Removals first, then groups, so that a device that comes finds its group, then what stays, then what
/// comes.
void SiteDeviceManager::Private::PostDifference(const SiteData& before)
{
    const SiteData& after = objects->data;
    for (const int64_t iDeviceId : before.DeviceIds()) {
        if (!after.FindDevice(iDeviceId))
            Post(Change::Removed, iDeviceId);
    }
    if (!SameGroups(before.Groups(), after.Groups()))
        Post(Change::Groups);

    QHash<int64_t, int> oldPlaces;
    for (const int64_t iDeviceId : before.DeviceIds()) {
        if (after.FindDevice(iDeviceId))
            oldPlaces.insert(iDeviceId, oldPlaces.size());
    }
    QVector<int64_t> staying;
    for (const int64_t iDeviceId : after.DeviceIds()) {
        if (oldPlaces.contains(iDeviceId))
            staying.append(iDeviceId);
    }
    const QSet<int64_t> moved = MovedIds(staying, oldPlaces);
    for (const int64_t iDeviceId : qAsConst(staying)) {
        const DeviceInfo& is = *after.FindDevice(iDeviceId);
        const DeviceInfo& was = *before.FindDevice(iDeviceId);
        if (!SameConfiguration(was, is) || moved.contains(iDeviceId))
            Post(Change::Changed, iDeviceId);
        if (was.bOnline != is.bOnline)
            Post(Change::Online, iDeviceId, is.bOnline);
    }
    for (const int64_t iDeviceId : after.DeviceIds()) {
        if (!oldPlaces.contains(iDeviceId))
            Post(Change::Added, iDeviceId);
    }
}

SiteDeviceManager::SiteDeviceManager()
    : d(std::make_unique<Private>())
{
}

SiteDeviceManager::SiteDeviceManager(const Site& site)
    : SiteDeviceManager()
{
    d->objects->data.Reset(site);
}

SiteDeviceManager::~SiteDeviceManager()
{
    // Objects that outlive the manager answer like objects of devices that have gone.
    d->objects->RememberAll();
    d->objects->data.Reset(Site());
}

const Site& SiteDeviceManager::GetSite() const
{
    return d->objects->data.AsSite();
}

void SiteDeviceManager::ApplySite(const Site& site)
{
    d->objects->RememberAll();
    const SiteData before = d->objects->data;
    d->objects->data.Reset(site);
    d->PostDifference(before);
    d->Deliver();
}

bool SiteDeviceManager::AddDevice(const DeviceInfo& device)
{
    if (!d->objects->data.Add(device))
        return false;
    d->Post(Change::Added, device.iDeviceId);
    d->Deliver();
    return true;
}

bool SiteDeviceManager::RemoveDevice(int64_t iDeviceId)
{
    d->objects->Remember(iDeviceId);
    if (!d->objects->data.Remove(iDeviceId))
        return false;
    d->Post(Change::Removed, iDeviceId);
    d->Deliver();
    return true;
}

bool SiteDeviceManager::RenameDevice(int64_t iDeviceId, const QString& strName)
{
    if (!d->objects->data.FindDevice(iDeviceId) || !SiteRules::NameProblem(strName).isEmpty())
        return false;
    DeviceInfo* pDevice = d->objects->data.EditDevice(iDeviceId);
    if (pDevice->strName != strName) {
        pDevice->strName = strName;
        d->Post(Change::Changed, iDeviceId);
        d->Deliver();
    }
    return true;
}

bool SiteDeviceManager::SetDeviceOnline(int64_t iDeviceId, bool bOnline)
{
    DeviceInfo* pDevice = d->objects->data.EditDevice(iDeviceId);
    if (!pDevice)
        return false;
    if (pDevice->bOnline != bOnline) {
        pDevice->bOnline = bOnline;
        d->Post(Change::Online, iDeviceId, bOnline);
        d->Deliver();
    }
    return true;
}

bool SiteDeviceManager::SetDeviceEnabled(int64_t iDeviceId, bool bEnabled)
{
    DeviceInfo* pDevice = d->objects->data.EditDevice(iDeviceId);
    if (!pDevice)
        return false;
    if (pDevice->bEnabled != bEnabled) {
        pDevice->bEnabled = bEnabled;
        d->Post(Change::Changed, iDeviceId);
        d->Deliver();
    }
    return true;
}

int SiteDeviceManager::OutstandingReferences() const
{
    return d->objects->Outstanding();
}

void SiteDeviceManager::AddObserver(IDeviceObserver* pObserver)
{
    const bool bKnown = std::any_of(d->observers.cbegin(), d->observers.cend(),
                                    [pObserver](const auto& other) { return other.pObserver == pObserver; });
    if (pObserver && !bKnown)
        d->observers.append({pObserver, d->iSerial});
}

void SiteDeviceManager::RemoveObserver(IDeviceObserver* pObserver)
{
    const auto it = std::remove_if(d->observers.begin(), d->observers.end(),
                                   [pObserver](const auto& other) { return other.pObserver == pObserver; });
    d->observers.erase(it, d->observers.end());
}

QVector<int64_t> SiteDeviceManager::GetDeviceIds() const
{
    return d->objects->data.DeviceIds();
}

QVector<GroupInfo> SiteDeviceManager::GetGroups() const
{
    return d->objects->data.Groups();
}

int32_t SiteDeviceManager::GetDevice(int64_t iDeviceId, DeviceInfo& out) const
{
    const DeviceInfo* pDevice = d->objects->data.FindDevice(iDeviceId);
    if (!pDevice)
        return -1;
    out = *pDevice;
    return 0;
}

IDevice* SiteDeviceManager::GetDeviceObject(int64_t iDeviceId)
{
    return d->objects->AcquireDevice(iDeviceId);
}

int32_t SiteDeviceManager::GetDeviceType(int64_t iDeviceId) const
{
    const DeviceInfo* pDevice = d->objects->data.FindDevice(iDeviceId);
    return pDevice ? pDevice->iDeviceType : DeviceTypeUnknown;
}

bool SiteDeviceManager::IsDeviceEnabled(int64_t iDeviceId) const
{
    const DeviceInfo* pDevice = d->objects->data.FindDevice(iDeviceId);
    return pDevice && pDevice->bEnabled;
}

int32_t SiteDeviceManager::GetChannel(int64_t iChannelId, ChannelInfo& out) const
{
    const ChannelInfo* pChannel = d->objects->data.FindChannel(iChannelId);
    if (!pChannel)
        return -1;
    out = *pChannel;
    return 0;
}
