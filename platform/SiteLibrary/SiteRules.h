#pragma once

#include "platform/SiteLibrary/Site.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// Texts of the site library for people.
struct SiteText
{
    Q_DECLARE_TR_FUNCTIONS(SiteFile)
};

/// What a site may hold; the same for site files and for changes at run time.
namespace SiteRules {

constexpr int32_t MaxDeviceType = 18;
constexpr int32_t MaxChannelType = 6;
constexpr int MaxNameLength = 255; ///< in UTF-16 units, so that no name breaks a layout
constexpr int MaxGroupDepth = 32;  ///< groups within groups, so that walking down a tree stays harmless

/// Why a name cannot be used, translated; empty when it can.
SITELIBRARY_EXPORT QString NameProblem(const QString& strName);
/// Whether name, type, kinds, numbers and ids of a device are sound in themselves.
bool IsSound(const VantaLogic::DeviceInfo& device);
/// A channel's place on its device: kind and number in one value.
SITELIBRARY_EXPORT quint64 ChannelPlace(int32_t iType, int32_t iNumber);

struct GroupProblem
{
    int iGroup = -1; ///< position in the list; -1 when all is well
    QString strReason;
};

/// The first group whose parent does not exist, that lies inside itself or lies too deep.
SITELIBRARY_EXPORT GroupProblem FirstGroupProblem(const QVector<VantaLogic::GroupInfo>& groups);

} // namespace SiteRules
