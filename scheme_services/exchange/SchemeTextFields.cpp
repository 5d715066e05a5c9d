#include "scheme_services/exchange/SchemeTextFields.h"

#include <array>

namespace SchemeTextFields {

namespace {

constexpr Field Text(const char* szName, void (*set)(Draft&, const QString&))
{
    return {szName, Kind::Text, true, Scope::Skipped, set, nullptr, nullptr};
}
constexpr Field Key(const char* szName, bool bRequired, void (*set)(Draft&, const QString&))
{
    return {szName, Kind::Key, bRequired, Scope::Skipped, set, nullptr, nullptr};
}
constexpr Field Number(const char* szName, void (*set)(Draft&, int32_t), bool bRequired = false)
{
    return {szName, Kind::Number, bRequired, Scope::Skipped, nullptr, set, nullptr};
}
constexpr Field Flag(const char* szName, void (*set)(Draft&, bool))
{
    return {szName, Kind::Flag, false, Scope::Skipped, nullptr, nullptr, set};
}
constexpr Field Object(const char* szName, Scope eInside)
{
    return {szName, Kind::Object, false, eInside, nullptr, nullptr, nullptr};
}
constexpr Field List(const char* szName, Scope eInside, bool bRequired = false)
{
    return {szName, Kind::List, bRequired, eInside, nullptr, nullptr, nullptr};
}

constexpr std::array<Field, 3> DocumentFields{{
    Text("format", [](Draft& d, const QString& s) { d.strFormat = s; }),
    Number(
        "version", [](Draft& d, int32_t i) { d.iVersion = i; }, true),
    List("schemes", Scope::Schemes, true),
}};

constexpr std::array<Field, 11> SchemeFields{{
    Key("strEventSource", true, [](Draft& d, const QString& s) { d.key.strEventSource = s; }),
    Number(
        "AlarmType", [](Draft& d, int32_t i) { d.key.AlarmType = i; }, true),
    Flag("bOpen", [](Draft& d, bool b) { d.info.bOpen = b; }),
    Flag("bOpenSound", [](Draft& d, bool b) { d.info.bOpenSound = b; }),
    Flag("bEmapTwinkle", [](Draft& d, bool b) { d.info.bEmapTwinkle = b; }),
    Flag("bSendEmail", [](Draft& d, bool b) { d.info.bSendEmail = b; }),
    Object("split", Scope::Split),
    List("videoLinks", Scope::VideoLinks),
    List("alarmOut", Scope::AlarmOut),
    List("doors", Scope::Doors),
    List("defenceTime", Scope::Week),
}};

constexpr std::array<Field, 4> SplitFields{{
    Number("SplitRow", [](Draft& d, int32_t i) { d.info.videoSplit.SplitRow = i; }),
    Number("SplitCloum", [](Draft& d, int32_t i) { d.info.videoSplit.SplitCloum = i; }),
    Number("SplitCount", [](Draft& d, int32_t i) { d.info.videoSplit.SplitCount = i; }),
    List("cells", Scope::Cells),
}};

constexpr std::array<Field, 7> CellFields{{
    Number(
        "windowID", [](Draft& d, int32_t i) { d.iWindow = i; }, true),
    Flag("bEnable", [](Draft& d, bool b) { d.cell.bEnable = b; }),
    Number("iCombine", [](Draft& d, int32_t i) { d.cell.iCombine = i; }),
    Number("X1", [](Draft& d, int32_t i) { d.cell.X1 = i; }),
    Number("Y1", [](Draft& d, int32_t i) { d.cell.Y1 = i; }),
    Number("X2", [](Draft& d, int32_t i) { d.cell.X2 = i; }),
    Number("Y2", [](Draft& d, int32_t i) { d.cell.Y2 = i; }),
}};

constexpr std::array<Field, 7> VideoLinkFields{{
    Number(
        "WindowID", [](Draft& d, int32_t i) { d.iWindow = i; }, true),
    Key("strLinkDevID", false, [](Draft& d, const QString& s) { d.videoLink.strLinkDevID = s; }),
    Number("Preposition", [](Draft& d, int32_t i) { d.videoLink.Preposition = i; }),
    Number("StreamType", [](Draft& d, int32_t i) { d.videoLink.StreamType = i; }),
    Flag("bOpen", [](Draft& d, bool b) { d.videoLink.bOpen = b; }),
    Flag("bRecord", [](Draft& d, bool b) { d.videoLink.bRecord = b; }),
    Number("Time", [](Draft& d, int32_t i) { d.videoLink.Time = i; }),
}};

constexpr std::array<Field, 3> AlarmOutFields{{
    Key("strLinkAlarmID", false, [](Draft& d, const QString& s) { d.alarmOut.strLinkAlarmID = s; }),
    Flag("bAutoOpen", [](Draft& d, bool b) { d.alarmOut.bAutoOpen = b; }),
    Number("Time", [](Draft& d, int32_t i) { d.alarmOut.Time = i; }),
}};

constexpr std::array<Field, 2> DoorFields{{
    Text("id", [](Draft& d, const QString& s) { d.door.strDoorID = s; }),
    Flag("bAlwaysOpen", [](Draft& d, bool b) { d.door.bAlwaysOpen = b; }),
}};

constexpr std::array<Field, 2> RegionFields{{
    Number("Begin", [](Draft& d, int32_t i) { d.region.Begin = i; }),
    Number("End", [](Draft& d, int32_t i) { d.region.End = i; }),
}};

template <size_t Count>
Fields All(const std::array<Field, Count>& fields)
{
    return {fields.data(), static_cast<int>(Count)};
}

} // namespace

Fields FieldsOf(Scope eScope)
{
    switch (eScope) {
    case Scope::Document:
        return All(DocumentFields);
    case Scope::Scheme:
        return All(SchemeFields);
    case Scope::Split:
        return All(SplitFields);
    case Scope::Cell:
        return All(CellFields);
    case Scope::VideoLink:
        return All(VideoLinkFields);
    case Scope::AlarmOutLink:
        return All(AlarmOutFields);
    case Scope::Door:
        return All(DoorFields);
    case Scope::Region:
        return All(RegionFields);
    default:
        return {nullptr, 0};
    }
}

int FindField(Scope eScope, const QByteArray& name)
{
    const Fields fields = FieldsOf(eScope);
    for (int field = 0; field < fields.iCount; ++field) {
        if (name == fields.pFirst[field].szName)
            return field;
    }
    return -1;
}

Scope EntryOf(Scope eScope)
{
    switch (eScope) {
    case Scope::Schemes:
        return Scope::Scheme;
    case Scope::Cells:
        return Scope::Cell;
    case Scope::VideoLinks:
        return Scope::VideoLink;
    case Scope::AlarmOut:
        return Scope::AlarmOutLink;
    case Scope::Doors:
        return Scope::Door;
    case Scope::Week:
        return Scope::Day;
    case Scope::Day:
        return Scope::Region;
    default:
        return Scope::Skipped;
    }
}

} // namespace SchemeTextFields
