#include "scheme_services/site/SiteDifference.h"

#include "scheme_services/site/SiteProblem.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

using namespace SiteTableFields;
using namespace VantaLogic;

namespace {

/// A record of any kind, laid out for comparison. Fields that a kind does not have are the same in all.
struct Entry
{
    Record eRecord = Record::Group;
    int64_t iId = -1;
    int64_t iParent = -1;
    QString strName;
    int32_t iType = 0;
    int32_t iNumber = 0;
    bool bEnabled = true;
    bool bOnline = true;
};

QVector<Entry> EntriesOf(const Site& site)
{
    QVector<Entry> entries;
    for (const GroupInfo& group : site.groups) {
        entries.append({Record::Group, group.iGroupId, group.iParentId, group.strName, 0, 0, true, true});
    }
    for (const DeviceInfo& device : site.devices) {
        entries.append({Record::Device, device.iDeviceId, device.iGroupId, device.strName, device.iDeviceType,
                        0, device.bEnabled, device.bOnline});
        for (const ChannelInfo& channel : device.channels) {
            entries.append({Record::Channel, channel.iChannelId, device.iDeviceId, channel.strName,
                            channel.iChannelType, channel.iNumber, channel.bEnabled, true});
        }
    }
    return entries;
}

QString ParentDetail(const Entry& was)
{
    if (was.eRecord == Record::Channel) {
        return SiteExchangeText::tr("it belonged to the device %1").arg(was.iParent);
    }
    return was.iParent == -1 ? SiteExchangeText::tr("it stood in no group")
                             : SiteExchangeText::tr("it stood in the group %1").arg(was.iParent);
}

QString ChangeDetail(const Entry& was, const Entry& is)
{
    QStringList details;
    if (was.iParent != is.iParent) {
        details.append(ParentDetail(was));
    }
    if (was.iType != is.iType) {
        details.append(SiteExchangeText::tr("its type was %1").arg(TypeName(was.eRecord, was.iType)));
    }
    if (was.iNumber != is.iNumber) {
        details.append(SiteExchangeText::tr("its number was %1").arg(was.iNumber));
    }
    if (was.bEnabled != is.bEnabled) {
        details.append(was.bEnabled ? SiteExchangeText::tr("it was enabled")
                                    : SiteExchangeText::tr("it was disabled"));
    }
    if (was.bOnline != is.bOnline) {
        details.append(was.bOnline ? SiteExchangeText::tr("it was online")
                                   : SiteExchangeText::tr("it was offline"));
    }
    return details.join(QStringLiteral(", "));
}

/// A record of another kind under the same id is another record.
bool IsSame(const Entry* pEntry, const Entry& other)
{
    return pEntry != nullptr && pEntry->eRecord == other.eRecord;
}

QHash<int64_t, const Entry*> IndexOf(const QVector<Entry>& entries)
{
    QHash<int64_t, const Entry*> index;
    index.reserve(entries.size());
    for (const Entry& entry : entries) {
        index.insert(entry.iId, &entry);
    }
    return index;
}

/// The records that both sites have, in the order of one of them, each behind its parent.
QVector<int64_t> Common(const QVector<Entry>& entries, const QHash<int64_t, const Entry*>& others)
{
    QVector<int64_t> ids;
    for (const Entry& entry : entries) {
        const Entry* pOther = others.value(entry.iId);
        // Who has moved elsewhere is told as changed already.
        if (IsSame(pOther, entry) && pOther->iParent == entry.iParent) {
            ids.append(entry.iId);
        }
    }
    return ids;
}

QString RecordWord(Record record)
{
    switch (record) {
    case Record::Group:
        return SiteExchangeText::tr("group");
    case Record::Device:
        return SiteExchangeText::tr("device");
    case Record::Channel:
        break;
    }
    return SiteExchangeText::tr("channel");
}

} // namespace

QString SiteChange::Text() const
{
    const QString strWho =
        SiteExchangeText::tr("%1 %2 \"%3\"").arg(RecordWord(eRecord), QString::number(iId), strName);
    switch (eKind) {
    case Kind::Added:
        return SiteExchangeText::tr("%1 is added").arg(strWho);
    case Kind::Renamed:
        return SiteExchangeText::tr("%1 is renamed: %2").arg(strWho, strDetail);
    case Kind::Changed:
        return SiteExchangeText::tr("%1 is changed: %2").arg(strWho, strDetail);
    case Kind::Removed:
        break;
    }
    return SiteExchangeText::tr("%1 is removed").arg(strWho);
}

int SiteDifference::Count(SiteChange::Kind eKind) const
{
    return static_cast<int>(
        std::count_if(changes.cbegin(), changes.cend(),
                      [eKind](const SiteChange& change) { return change.eKind == eKind; }));
}

QString SiteDifference::Summary() const
{
    if (IsEmpty()) {
        return SiteExchangeText::tr("Nothing changes: the site is the same already.");
    }
    if (changes.isEmpty()) {
        return SiteExchangeText::tr("Only the order changes.");
    }
    return SiteExchangeText::tr("%1 added, %2 renamed, %3 changed, %4 removed.")
        .arg(Count(SiteChange::Kind::Added))
        .arg(Count(SiteChange::Kind::Renamed))
        .arg(Count(SiteChange::Kind::Changed))
        .arg(Count(SiteChange::Kind::Removed));
}

SiteDifference SiteDifference::Between(const Site& before, const Site& after)
{
    SiteDifference difference;
    const QVector<Entry> oldEntries = EntriesOf(before);
    const QVector<Entry> newEntries = EntriesOf(after);
    const auto oldIndex = IndexOf(oldEntries);
    const auto newIndex = IndexOf(newEntries);
    const auto add = [&difference](SiteChange::Kind eKind, const Entry& entry,
                                   const QString& strDetail = {}) {
        difference.changes.append({eKind, entry.eRecord, entry.iId, entry.strName, strDetail});
    };
    for (const Entry& entry : newEntries) {
        const Entry* pOld = oldIndex.value(entry.iId);
        if (!IsSame(pOld, entry)) {
            add(SiteChange::Kind::Added, entry);
            continue;
        }
        if (pOld->strName != entry.strName) {
            add(SiteChange::Kind::Renamed, entry, SiteExchangeText::tr("it was \"%1\"").arg(pOld->strName));
        }
        const QString strDetail = ChangeDetail(*pOld, entry);
        if (!strDetail.isEmpty()) {
            add(SiteChange::Kind::Changed, entry, strDetail);
        }
    }
    for (const Entry& entry : oldEntries) {
        if (!IsSame(newIndex.value(entry.iId), entry)) {
            add(SiteChange::Kind::Removed, entry);
        }
    }
    difference.bOrderChanged = Common(oldEntries, newIndex) != Common(newEntries, oldIndex);
    return difference;
}
