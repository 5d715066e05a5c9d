#include "client/ModulePlatform.h"

#include "platform/LXPluginAPI/PlatformVersion.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const QLatin1String VersionKey("PlatformVersion");

} // namespace

namespace ModulePlatform {

Version Own()
{
    return {LX_PLATFORM_VERSION_MAJOR, LX_PLATFORM_VERSION_MINOR};
}

QString ToText(const Version& version)
{
    return QStringLiteral("%1.%2").arg(version.iMajor).arg(version.iMinor);
}

std::optional<QString> Stated(const QJsonObject& metaData)
{
    QJsonValue value = metaData.value(VersionKey);
    if (value.isUndefined()) {
        value = metaData.value(QLatin1String("MetaData")).toObject().value(VersionKey);
    }
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (value.isArray()) {
        // The meta-object compiler makes a list of every value that it is given on its command line. Given
        // more than once, they would contradict each other.
        const QJsonArray values = value.toArray();
        value = values.size() == 1 ? values.first() : QJsonValue();
    }
    return value.toString();
}

Fit Compare(const QString& strStated, const Version& platform)
{
    static const QRegularExpression numbers(
        QStringLiteral("\\A([0-9]{1,6})\\.([0-9]{1,6})(?:\\.[0-9]{1,6})?\\z"));
    const QRegularExpressionMatch match = numbers.match(strStated);
    if (!match.hasMatch()) {
        return Fit::Unreadable;
    }
    if (match.captured(1).toInt() != platform.iMajor) {
        return Fit::OtherMajor;
    }
    return match.captured(2).toInt() > platform.iMinor ? Fit::NewerMinor : Fit::Fits;
}

} // namespace ModulePlatform
