#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QString>
#include <QVector>

#include <cstdint>

namespace VantaLogic {
class IDeviceManager;
}

/// What the site says of event sources, without widgets.
namespace EventSourceLookup {

/// Kinds of selection that the category column distinguishes.
enum Category : int32_t
{
    CategoryNone = -1,
    CategoryDoor = 3,   ///< alarm, abnormal and normal events
    CategoryDevice = 4, ///< alarm inputs
};

struct Source
{
    QString strKey; ///< empty when the node is no event source
    int32_t iCategory = CategoryNone;
};

/// The event source that a node of the device tree (id, kind) stands for.
Source SourceOfNode(VantaLogic::IDeviceManager& manager, int64_t iNodeId, int32_t iNodeKind);

struct AlarmInput
{
    QString strName;
    QString strKey;
};

struct AlarmInputs
{
    QString strDeviceName;
    QVector<AlarmInput> inputs; ///< in the device's channel order
};

/// The alarm inputs of the device that owns a source; empty when the source or the device cannot be read.
AlarmInputs AlarmInputsOf(VantaLogic::IDeviceManager& manager, const QString& strSource);

/// Whether a source can be copied from: a channel that exists on an access-control device.
bool IsCopySource(VantaLogic::IDeviceManager& manager, const QString& strSource);

/// Name for people of a source: "channel (device)", or the device alone. The key itself when nothing is
/// known.
QString NameOf(VantaLogic::IDeviceManager* pManager, const QString& strSource);

} // namespace EventSourceLookup
