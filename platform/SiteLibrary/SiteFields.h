#pragma once

#include "platform/SiteLibrary/SiteRules.h"

#include <array>
#include <limits>

/// The fields of a site file's records, as tables.
namespace SiteFields {

enum class Kind
{
    Id,
    Number,
    Flag,
    Text,
    List,
};

struct Field
{
    const char* name;
    Kind kind;
    bool bRequired;
    int32_t iMax; ///< greatest value of a number; the least is 0
};

constexpr int32_t AnyNumber = std::numeric_limits<int32_t>::max();

enum RootField
{
    RootGroups,
    RootDevices,
};
inline constexpr std::array<Field, 2> rootFields{{
    {"groups", Kind::List, false, 0},
    {"devices", Kind::List, true, 0},
}};

enum GroupField
{
    GroupId,
    GroupName,
    GroupParent,
};
inline constexpr std::array<Field, 3> groupFields{{
    {"id", Kind::Id, true, 0},
    {"name", Kind::Text, true, 0},
    {"parent", Kind::Id, false, 0},
}};

enum DeviceField
{
    DeviceId,
    DeviceName,
    DeviceKind,
    DeviceEnabled,
    DeviceOnline,
    DeviceGroup,
    DeviceChannels,
};
inline constexpr std::array<Field, 7> deviceFields{{
    {"id", Kind::Id, true, 0},
    {"name", Kind::Text, true, 0},
    {"type", Kind::Number, true, SiteRules::MaxDeviceType},
    {"enabled", Kind::Flag, true, 0},
    {"online", Kind::Flag, true, 0},
    {"group", Kind::Id, false, 0},
    {"channels", Kind::List, true, 0},
}};

enum ChannelField
{
    ChannelId,
    ChannelNumber,
    ChannelKind,
    ChannelName,
    ChannelEnabled,
};
inline constexpr std::array<Field, 5> channelFields{{
    {"id", Kind::Id, true, 0},
    {"number", Kind::Number, true, AnyNumber},
    {"kind", Kind::Number, true, SiteRules::MaxChannelType},
    {"name", Kind::Text, true, 0},
    {"enabled", Kind::Flag, false, 0},
}};

/// Lists stand right behind the record that holds them, see SiteHandler::StartArray.
enum class Scope
{
    Document,
    Root,
    GroupList,
    Group,
    DeviceList,
    Device,
    ChannelList,
    Channel,
};

struct FieldTable
{
    const Field* fields;
    int iCount;
};

inline FieldTable FieldsOf(Scope scope)
{
    switch (scope) {
    case Scope::Root:
        return {rootFields.data(), static_cast<int>(rootFields.size())};
    case Scope::Group:
        return {groupFields.data(), static_cast<int>(groupFields.size())};
    case Scope::Device:
        return {deviceFields.data(), static_cast<int>(deviceFields.size())};
    case Scope::Channel:
        return {channelFields.data(), static_cast<int>(channelFields.size())};
    default:
        return {nullptr, 0};
    }
}

} // namespace SiteFields
