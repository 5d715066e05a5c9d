#pragma once

#include "platform/SiteLibrary/Site.h"
#include "scheme_services/site/SiteTableFields.h"

#include <QString>
#include <QVector>

/// One thing that an import changes.
struct SiteChange
{
    enum class Kind
    {
        Added,
        Renamed,
        Changed, ///< anything but the name
        Removed
    };

    Kind eKind = Kind::Added;
    SiteTableFields::Record eRecord = SiteTableFields::Record::Device;
    int64_t iId = -1;
    QString strName;   ///< as it will be; of what is removed as it was
    QString strDetail; ///< translated: what it was before; empty for what is added or removed

    /// "device 100 "Main door" renamed: it was "Door 1"", translated.
    QString Text() const;
};

/// What makes one site of another, by id: a record that stays keeps its id and with it its schemes.
struct SiteDifference
{
    /// In the order of the new site, what is removed at the end in the order of the old one.
    QVector<SiteChange> changes;
    bool bOrderChanged = false; ///< records that stay stand in another order

    bool IsEmpty() const { return changes.isEmpty() && !bOrderChanged; }
    int Count(SiteChange::Kind eKind) const;
    /// How much of each kind, in one translated sentence.
    QString Summary() const;

    static SiteDifference Between(const Site& before, const Site& after);
};
