#pragma once

#include <QString>

#include <optional>

class QJsonObject;

/// Whether a module was built for the platform that this client brings, told from the module's metadata
/// alone.
namespace ModulePlatform {

/// A version of the platform; see PlatformVersion.h for what its numbers promise.
struct Version
{
    int iMajor = 0;
    int iMinor = 0;
};

enum class Fit
{
    Fits,
    Unreadable, ///< what is stated is no version
    OtherMajor, ///< built before or after a break of the interfaces
    NewerMinor  ///< may need what this platform does not have yet
};

/// The platform of this client.
Version Own();
QString ToText(const Version& version);
/// What a plug-in's metadata states under "PlatformVersion", written there by the build or in the module's
/// own JSON file. Nothing when it states none; an empty text when it states something that is no text.
std::optional<QString> Stated(const QJsonObject& metaData);
/// Compares a stated version ("1.0"; a third number is allowed and means nothing) with a platform's.
Fit Compare(const QString& strStated, const Version& platform);

} // namespace ModulePlatform
