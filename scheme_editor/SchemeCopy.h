#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_editor/edits/SchemeChange.h"

#include <QList>
#include <QString>

/// Copying the schemes of one event source to others. Pure: no host, no widgets.
namespace SchemeCopy {

/// The event types that a door copy takes along: all alarm, then abnormal, then normal events of the host.
QList<int> DoorEventTypes();
/// The one event type of an alarm-input copy.
QList<int> AlarmInputEventTypes();

/// The map after the copy. For each event type every target gets the source's scheme; where the source has
/// none, or one that still holds the defaults, the targets' schemes of that type are removed: copying an
/// unset scheme clears. The source itself is taken off the targets once. The per-device event type is kept
/// under the targets' devices (EventSource::SchemeKey); targets that do not split into four fields are left
/// out for it. An empty source changes nothing. `pChange` receives what the copy did; null when nobody asks.
///
/// Copied records share their memory with the source's until one of them is edited. Hand the map over
/// (`map = Copy(std::move(map), ...)`), or the whole of it is copied first. Takes time proportional to
/// targets x types plus the logarithm of the map per target.
AlarmInfoMap Copy(AlarmInfoMap map, const QString& strSource, const QList<QString>& targets,
                  const QList<int>& types, SchemeChange* pChange = nullptr);

/// The targets as they are meant: each once, without the source.
QList<QString> Targets(const QString& strSource, const QList<QString>& keys);

} // namespace SchemeCopy
