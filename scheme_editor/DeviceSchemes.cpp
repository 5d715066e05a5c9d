#include "scheme_editor/DeviceSchemes.h"

#include <limits>

SchemeChange DeviceSchemes::Remove(AlarmInfoMap& schemes, int64_t iDeviceId)
{
    // Every key of the device begins with the owner field of its shortest one.
    const QString strUnit = EventSource::Unit(iDeviceId);
    const QString strPrefix = strUnit.left(QString::number(iDeviceId).size() + 1);
    SchemeChange::Builder removed;
    auto it = schemes.lowerBound({strPrefix, std::numeric_limits<int32_t>::min()});
    while (it != schemes.end() && it.key().strEventSource.startsWith(strPrefix)) {
        if (EventSource::BelongsToDevice(it.key().strEventSource, iDeviceId)) {
            removed.Add(it.key(), &it.value(), nullptr);
            it = schemes.erase(it);
        } else {
            ++it;
        }
    }
    return removed.Take();
}
