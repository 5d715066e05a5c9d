#include "scheme_editor/SchemeCopy.h"

#include "platform/SystemLibrary/AlarmSchemeCommon.h"

#include <QVector>

#include <algorithm>
#include <optional>

namespace {

using EventSource::PerDeviceAlarmType;

/// What happens to the targets' schemes of one event type.
struct TypeCopy
{
    int32_t iType = 0;
    std::optional<AlarmInfo> scheme; ///< nothing: clear
};

/// Type by type, ascending and each once, what the source has to give; read before anything is written.
QVector<TypeCopy> ReadSource(const AlarmInfoMap& map, const QString& strSource, QList<int> types)
{
    std::sort(types.begin(), types.end());
    types.erase(std::unique(types.begin(), types.end()), types.end());
    QVector<TypeCopy> copies;
    copies.reserve(types.size());
    for (const int type : qAsConst(types)) {
        TypeCopy copy;
        copy.iType = type;
        if (const std::optional<AlarmSourceKey> key = EventSource::SchemeKey(strSource, type)) {
            const auto scheme = map.constFind(*key);
            if (scheme != map.cend() && !AlarmSchemeCommon::IsAlarmInfoDefault(scheme.value()))
                copy.scheme = scheme.value();
        }
        copies.append(copy);
    }
    return copies;
}

void SortUnique(QVector<QString>& texts)
{
    std::sort(texts.begin(), texts.end());
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
}

/// Brings the entries of one source text into line, walking the map and the copies side by side (both are in
/// ascending order of type): one search for each text instead of one for each entry.
void Apply(AlarmInfoMap& map, const QString& strText, const QVector<TypeCopy>& copies,
           SchemeChange::Builder& change)
{
    if (copies.isEmpty())
        return;
    auto place = map.lowerBound({strText, copies.first().iType});
    for (const TypeCopy& copy : copies) {
        const AlarmSourceKey key{strText, copy.iType};
        while (place != map.end() && place.key() < key)
            ++place;
        const bool present = place != map.end() && place.key() == key;
        change.Add(key, present ? &place.value() : nullptr, copy.scheme ? &*copy.scheme : nullptr);
        if (!copy.scheme) {
            if (present)
                place = map.erase(place);
        } else if (present) {
            place.value() = *copy.scheme;
        } else {
            place = map.insert(AlarmInfoMap::const_iterator(place), key, *copy.scheme);
        }
    }
}

} // namespace

QList<int> SchemeCopy::DoorEventTypes()
{
    return AlarmSchemeCommon::ACSAlarmEvent() + AlarmSchemeCommon::ACSAbnormalEvent() +
           AlarmSchemeCommon::ACSNormalEvent();
}

QList<int> SchemeCopy::AlarmInputEventTypes()
{
    return {EventSource::AlarmInputAlarmType};
}

AlarmInfoMap SchemeCopy::Copy(AlarmInfoMap map, const QString& strSource, const QList<QString>& targets,
                              const QList<int>& types, SchemeChange* pChange)
{
    if (strSource.isEmpty())
        return map;

    QVector<QString> texts = targets.toVector();
    texts.removeOne(strSource);
    SortUnique(texts);

    // The per-device type goes to other keys than the rest: those of the targets' devices.
    QVector<TypeCopy> perSource = ReadSource(map, strSource, types);
    QVector<TypeCopy> perDevice;
    const auto shared = std::find_if(perSource.begin(), perSource.end(),
                                     [](const TypeCopy& copy) { return copy.iType == PerDeviceAlarmType; });
    if (shared != perSource.end()) {
        perDevice.append(*shared);
        perSource.erase(shared);
    }
    SchemeChange::Builder change;
    for (const QString& strText : qAsConst(texts))
        Apply(map, strText, perSource, change);

    if (!perDevice.isEmpty()) {
        QVector<QString> devices;
        devices.reserve(texts.size());
        for (const QString& strText : qAsConst(texts)) {
            if (const std::optional<AlarmSourceKey> key = EventSource::SchemeKey(strText, PerDeviceAlarmType))
                devices.append(key->strEventSource);
        }
        SortUnique(devices);
        for (const QString& strText : qAsConst(devices))
            Apply(map, strText, perDevice, change);
    }
    if (pChange != nullptr)
        *pChange = change.Take();
    return map;
}

QList<QString> SchemeCopy::Targets(const QString& strSource, const QList<QString>& keys)
{
    QList<QString> targets = keys;
    targets.removeAll(strSource);
    std::sort(targets.begin(), targets.end());
    targets.erase(std::unique(targets.begin(), targets.end()), targets.end());
    return targets;
}
