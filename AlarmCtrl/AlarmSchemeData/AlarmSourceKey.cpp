#include "AlarmCtrl/AlarmSchemeData/AlarmSourceKey.h"

#include <QLocale>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

constexpr int FieldsOfSource = 4;
constexpr int64_t OutputUnitType = 3;
const QChar Separator = QLatin1Char('$');

/// Stricter than QString::toLongLong, which also takes blanks around the number and a leading plus: two texts
/// that differ must not name one device.
std::optional<int64_t> Number(QStringView text)
{
    const qsizetype first = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    if (first == text.size())
        return std::nullopt;
    const bool digits = std::all_of(text.begin() + first, text.end(),
                                    [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    if (!digits)
        return std::nullopt;
    static const QLocale plain = QLocale::c();
    bool ok = false;
    const qlonglong value = plain.toLongLong(text, &ok);
    return ok ? std::optional<int64_t>(value) : std::nullopt;
}

/// The text before the first separator; all of it when there is none.
QStringView FirstText(QStringView source)
{
    const qsizetype end = source.indexOf(Separator);
    return end < 0 ? source : source.left(end);
}

using Texts = std::array<QStringView, FieldsOfSource>;

/// The texts of a source's four fields; nothing when it has another number of them.
std::optional<Texts> FieldTexts(const QString& strSource)
{
    if (EventSource::FieldCount(strSource) != FieldsOfSource)
        return std::nullopt;
    Texts texts;
    QStringView rest(strSource);
    for (QStringView& text : texts) {
        text = FirstText(rest);
        rest = rest.mid(std::min(text.size() + 1, rest.size()));
    }
    return texts;
}

} // namespace

namespace EventSource {

QString Unit(int64_t iDeviceId)
{
    return QStringLiteral("%1$1$0$0").arg(iDeviceId);
}

QString Door(int64_t iDeviceId, int64_t iChannelId)
{
    return QStringLiteral("%1$1$0$%2").arg(iDeviceId).arg(iChannelId);
}

QString WholeDevice(int64_t iDeviceId)
{
    return QStringLiteral("%1$1$0$-1").arg(iDeviceId);
}

QString AccessControlDevice(int64_t iDeviceId)
{
    return QStringLiteral("%1$1$1$0").arg(iDeviceId);
}

QString AlarmUnit(int64_t iDeviceId)
{
    return QStringLiteral("%1$3$0$0").arg(iDeviceId);
}

QString AlarmInput(int64_t iDeviceId, int64_t iChannelId, bool bAccessControl)
{
    return (bAccessControl ? QStringLiteral("%1$3$1$%2") : QStringLiteral("%1$3$0$%2"))
        .arg(iDeviceId)
        .arg(iChannelId);
}

QString AlarmOutput(int64_t iChannelId)
{
    return QStringLiteral("%1$%2$0$0").arg(iChannelId).arg(OutputUnitType);
}

int FieldCount(const QString& strSource)
{
    return strSource.isEmpty() ? 0 : strSource.count(Separator) + 1;
}

std::optional<int64_t> FirstField(const QString& strSource)
{
    return Number(FirstText(strSource));
}

std::optional<Fields> Split(const QString& strSource)
{
    const std::optional<Texts> texts = FieldTexts(strSource);
    if (!texts)
        return std::nullopt;
    const std::optional<int64_t> owner = Number((*texts)[0]);
    const std::optional<int64_t> unitType = Number((*texts)[1]);
    const std::optional<int64_t> subKind = Number((*texts)[2]);
    const std::optional<int64_t> channel = Number((*texts)[3]);
    if (!owner || !unitType || !subKind || !channel)
        return std::nullopt;
    return Fields{*owner, *unitType, *subKind, *channel};
}

bool BelongsToDevice(const QString& strSource, int64_t iDeviceId)
{
    return FieldCount(strSource) == FieldsOfSource && FirstField(strSource) == iDeviceId;
}

int64_t OutputChannelId(const QString& strSource)
{
    const std::optional<Texts> texts = FieldTexts(strSource);
    if (!texts || Number((*texts)[1]) != OutputUnitType)
        return -1;
    return Number((*texts)[0]).value_or(-1);
}

std::optional<AlarmSourceKey> SchemeKey(const QString& strSource, int32_t iAlarmType)
{
    if (iAlarmType != PerDeviceAlarmType)
        return AlarmSourceKey{strSource, iAlarmType};
    const std::optional<int64_t> device = FirstField(strSource);
    if (FieldCount(strSource) != FieldsOfSource || !device)
        return std::nullopt;
    return AlarmSourceKey{WholeDevice(*device), iAlarmType};
}

} // namespace EventSource
