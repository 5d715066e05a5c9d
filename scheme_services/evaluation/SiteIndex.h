#pragma once

#include "platform/SiteLibrary/Site.h"
#include "schemeevaluation_export.h"

#include <QCoreApplication>
#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>

#include <cstdint>

/// The devices of a site by id and by name: what keys name, and which key a name stands for.
class SCHEMEEVALUATION_EXPORT SiteIndex
{
    Q_DECLARE_TR_FUNCTIONS(SiteIndex)

public:
    SiteIndex() = default; ///< of no site: nothing is known
    explicit SiteIndex(const Site& site);

    bool IsEmpty() const { return m_site.devices.isEmpty(); }
    const Site& GetSite() const { return m_site; }
    const VantaLogic::DeviceInfo* FindDevice(int64_t iDeviceId) const; ///< null when there is none
    const VantaLogic::ChannelInfo* FindChannel(int64_t iChannelId) const;

    /// Whether the site has what the keys name. A whole device is named by a channel of 0 or -1; a channel
    /// has to be one of the device, a door or an alarm input as the unit type says.
    bool HasSource(const QString& strSource) const;
    bool HasOutput(const QString& strOutput) const; ///< an output, or a door unit's
    bool HasDoor(const QString& strDoorId) const;   ///< a decimal number
    bool HasVideo(const QString& strVideo) const;
    /// The device that a source belongs to; null when the site does not have it.
    const VantaLogic::DeviceInfo* DeviceOf(const QString& strSource) const;

    /// Every source of the site, each device followed by its doors and alarm inputs, in the site's order.
    QStringList Sources() const;

    /// Names for people: "device/door", or the device alone; the text itself when the site does not know it.
    QString NameOfSource(const QString& strSource) const;
    QString NameOfOutput(const QString& strOutput) const;
    QString NameOfDoor(const QString& strDoorId) const;

    /// What a text given by a person stands for.
    struct Resolved
    {
        QString strKey;     ///< empty when it stands for nothing, or for several
        QString strProblem; ///< then why, translated
    };
    /// A source by its key or as "device/door", "device/alarm input" or "device". A key need not be known.
    /// Names may hold any character, "/" too. Upper and lower case are told apart only where names would
    /// otherwise be ambiguous.
    Resolved ResolveSource(const QString& strText) const;
    /// An output by its key or as "device/output".
    Resolved ResolveOutput(const QString& strText) const;

private:
    struct Candidate
    {
        QString strKey;
        bool bExact = false;
    };
    enum class Wanted
    {
        Sources,
        Outputs
    };
    QVector<Candidate> Candidates(const QString& strText, Wanted wanted) const;
    Resolved Resolve(const QString& strText, Wanted wanted) const;
    QString NameOf(int64_t iDeviceId, int64_t iChannelId, const QString& strOtherwise) const;

    Site m_site;
    QHash<int64_t, int> m_devices;
    QHash<int64_t, QPair<int, int>> m_channels; ///< positions of device and channel
};
