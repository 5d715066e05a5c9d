#include "platform/SiteLibrary/SiteReader.h"

#include "platform/SiteLibrary/SiteRules.h"

#include <QHash>
#include <QLatin1String>

#include <rapidjson/error/error.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

using namespace VantaLogic;

namespace {

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
constexpr std::array<Field, 2> rootFields{{
    {"groups", Kind::List, false, 0},
    {"devices", Kind::List, true, 0},
}};

enum GroupField
{
    GroupId,
    GroupName,
    GroupParent,
};
constexpr std::array<Field, 3> groupFields{{
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
constexpr std::array<Field, 7> deviceFields{{
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
constexpr std::array<Field, 5> channelFields{{
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

FieldTable FieldsOf(Scope scope)
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

/// A record or list that has been opened and not yet closed.
struct Level
{
    Scope scope = Scope::Document;
    int iStartLine = 1;
    int iField = -1;            ///< the field whose value comes next
    std::array<int, 8> lines{}; ///< line of each field that has been read, 0 for the others
};

/// Builds a site from the reader's events. Each event is answered with false as soon as something is wrong,
/// which ends the reading; so a text nests no deeper here than a site does.
class SiteHandler
{
public:
    SiteHandler(const QByteArray& text, const rapidjson::MemoryStream& stream)
        : m_text(text)
        , m_stream(stream)
    {
        m_levels.append(Level());
    }

    bool Null() { return Fail(Unexpected()); }
    bool RawNumber(const char*, rapidjson::SizeType, bool) { return Fail(Unexpected()); }
    bool Double(double) { return Fail(Unexpected()); }
    bool Int(int i) { return Int64(i); }
    bool Uint(unsigned i) { return Int64(i); }
    bool Uint64(uint64_t i);
    bool Int64(int64_t i);
    bool Bool(bool b);
    bool String(const char* text, rapidjson::SizeType length, bool);
    bool Key(const char* text, rapidjson::SizeType length, bool);
    bool StartObject();
    bool EndObject(rapidjson::SizeType);
    bool StartArray();
    bool EndArray(rapidjson::SizeType);

    /// References between records, after the last one has been read.
    bool CheckReferences();

    bool HasFailed() const { return !m_error.strReason.isEmpty(); }
    const SiteTextError& Error() const { return m_error; }
    Site&& TakeSite() { return std::move(m_site); }

private:
    Level& Top() { return m_levels.last(); }
    const Field* AwaitedField() const;
    int Line();
    QString Unexpected() const;
    bool Fail(const QString& strReason) { return FailAt(Line(), strReason); }
    bool FailAt(int iLine, const QString& strReason);
    bool TakeId(int64_t iId);
    void StoreNumber(int32_t i);
    void StoreName(const QString& strName);
    bool EndChannel(const Level& level);

    const QByteArray& m_text;
    const rapidjson::MemoryStream& m_stream;
    size_t m_iCounted = 0; ///< lines are counted up to here
    int m_iLine = 1;

    QVector<Level> m_levels;
    Site m_site;
    DeviceInfo m_device;
    ChannelInfo m_channel;
    GroupInfo m_group;
    QHash<int64_t, int> m_idLines;
    QHash<quint64, int> m_placeLines; ///< of the device being read
    QVector<int> m_parentLines;       ///< one a group
    QVector<int> m_groupLines;        ///< one a device
    SiteTextError m_error;
};

int SiteHandler::Line()
{
    const size_t iEnd = m_stream.Tell();
    for (; m_iCounted < iEnd; ++m_iCounted) {
        if (m_text[static_cast<int>(m_iCounted)] == '\n')
            ++m_iLine;
    }
    return m_iLine;
}

bool SiteHandler::FailAt(int iLine, const QString& strReason)
{
    m_error = {iLine, strReason};
    return false;
}

const Field* SiteHandler::AwaitedField() const
{
    const Level& level = m_levels.last();
    return level.iField < 0 ? nullptr : FieldsOf(level.scope).fields + level.iField;
}

/// What should have stood where something else stands.
QString SiteHandler::Unexpected() const
{
    if (m_levels.last().scope == Scope::Document)
        return SiteText::tr("the file must hold one object");
    const Field* pField = AwaitedField();
    if (!pField)
        return SiteText::tr("the entries of a list must be objects");
    const QString strField = QLatin1String(pField->name);
    switch (pField->kind) {
    case Kind::Id:
        return SiteText::tr("the field \"%1\" must be a whole number from 1 to %2")
            .arg(strField)
            .arg(std::numeric_limits<int64_t>::max());
    case Kind::Number:
        return SiteText::tr("the field \"%1\" must be a whole number from 0 to %2")
            .arg(strField)
            .arg(pField->iMax);
    case Kind::Flag:
        return SiteText::tr("the field \"%1\" must be true or false").arg(strField);
    case Kind::Text:
        return SiteText::tr("the field \"%1\" must be a text").arg(strField);
    case Kind::List:
        break;
    }
    return SiteText::tr("the field \"%1\" must be a list").arg(strField);
}

bool SiteHandler::TakeId(int64_t iId)
{
    const int iLine = Line();
    const auto it = m_idLines.constFind(iId);
    if (it != m_idLines.cend())
        return FailAt(iLine,
                      SiteText::tr("the id %1 already stands on line %2").arg(QString::number(iId)).arg(*it));
    m_idLines.insert(iId, iLine);
    return true;
}

bool SiteHandler::Int64(int64_t i)
{
    const Field* pField = AwaitedField();
    if (!pField)
        return Fail(Unexpected());
    Level& level = Top();
    if (pField->kind == Kind::Number) {
        if (i < 0 || i > pField->iMax)
            return Fail(Unexpected());
        StoreNumber(static_cast<int32_t>(i));
    } else if (pField->kind == Kind::Id) {
        if (i <= 0)
            return Fail(Unexpected());
        if (level.iField == 0 && !TakeId(i)) // the first field of every record is its own id
            return false;
        if (level.scope == Scope::Group)
            (level.iField == GroupId ? m_group.iGroupId : m_group.iParentId) = i;
        else if (level.scope == Scope::Device)
            (level.iField == DeviceId ? m_device.iDeviceId : m_device.iGroupId) = i;
        else
            m_channel.iChannelId = i;
    } else {
        return Fail(Unexpected());
    }
    level.iField = -1;
    return true;
}

bool SiteHandler::Uint64(uint64_t i)
{
    constexpr auto iMax = static_cast<uint64_t>(std::numeric_limits<int64_t>::max());
    return i <= iMax ? Int64(static_cast<int64_t>(i)) : Fail(Unexpected());
}

void SiteHandler::StoreNumber(int32_t i)
{
    if (Top().scope == Scope::Device)
        m_device.iDeviceType = i;
    else if (Top().iField == ChannelNumber)
        m_channel.iNumber = i;
    else
        m_channel.iChannelType = i;
}

bool SiteHandler::Bool(bool b)
{
    const Field* pField = AwaitedField();
    if (!pField || pField->kind != Kind::Flag)
        return Fail(Unexpected());
    if (Top().scope == Scope::Channel)
        m_channel.bEnabled = b;
    else
        (Top().iField == DeviceEnabled ? m_device.bEnabled : m_device.bOnline) = b;
    Top().iField = -1;
    return true;
}

bool SiteHandler::String(const char* text, rapidjson::SizeType length, bool)
{
    const Field* pField = AwaitedField();
    if (!pField || pField->kind != Kind::Text)
        return Fail(Unexpected());
    const QByteArray bytes(text, static_cast<int>(length));
    const QString strName = QString::fromUtf8(bytes.constData(), bytes.size()); // NULs included
    // A lone half of a surrogate pair can be spelled as an escape; it does not survive the conversion.
    const QString strProblem = strName.toUtf8() == bytes ? SiteRules::NameProblem(strName)
                                                         : SiteText::tr("the name is not valid Unicode");
    if (!strProblem.isEmpty())
        return Fail(strProblem);
    StoreName(strName);
    Top().iField = -1;
    return true;
}

void SiteHandler::StoreName(const QString& strName)
{
    if (Top().scope == Scope::Group)
        m_group.strName = strName;
    else if (Top().scope == Scope::Device)
        m_device.strName = strName;
    else
        m_channel.strName = strName;
}

bool SiteHandler::Key(const char* text, rapidjson::SizeType length, bool)
{
    Level& level = Top();
    const QLatin1String name(text, static_cast<int>(length));
    const FieldTable table = FieldsOf(level.scope);
    for (int i = 0; i < table.iCount; ++i) {
        if (name != QLatin1String(table.fields[i].name))
            continue;
        int& iLine = level.lines[static_cast<size_t>(i)];
        if (iLine != 0)
            return Fail(SiteText::tr("the field \"%1\" stands twice").arg(name));
        iLine = Line();
        level.iField = i;
        return true;
    }
    const QString strName = QString::fromUtf8(text, static_cast<int>(length)).left(SiteRules::MaxNameLength);
    return Fail(SiteText::tr("unknown field \"%1\"").arg(strName));
}

bool SiteHandler::StartObject()
{
    Level next;
    next.iStartLine = Line();
    switch (Top().scope) {
    case Scope::Document:
        next.scope = Scope::Root;
        break;
    case Scope::GroupList:
        next.scope = Scope::Group;
        m_group = GroupInfo();
        break;
    case Scope::DeviceList:
        next.scope = Scope::Device;
        m_device = DeviceInfo();
        m_placeLines.clear();
        break;
    case Scope::ChannelList:
        next.scope = Scope::Channel;
        m_channel = ChannelInfo();
        break;
    default:
        return Fail(Unexpected());
    }
    m_levels.append(next);
    return true;
}

bool SiteHandler::StartArray()
{
    const Field* pField = AwaitedField();
    if (!pField || pField->kind != Kind::List)
        return Fail(Unexpected());
    Level next;
    next.iStartLine = Line();
    if (Top().scope == Scope::Device)
        next.scope = Scope::ChannelList;
    else
        next.scope = Top().iField == RootGroups ? Scope::GroupList : Scope::DeviceList;
    Top().iField = -1;
    m_levels.append(next);
    return true;
}

bool SiteHandler::EndArray(rapidjson::SizeType)
{
    m_levels.removeLast();
    return true;
}

bool SiteHandler::EndObject(rapidjson::SizeType)
{
    const Level level = Top();
    const FieldTable table = FieldsOf(level.scope);
    for (int i = 0; i < table.iCount; ++i) {
        if (table.fields[i].bRequired && level.lines[static_cast<size_t>(i)] == 0)
            return FailAt(
                level.iStartLine,
                SiteText::tr("the field \"%1\" is missing").arg(QLatin1String(table.fields[i].name)));
    }
    m_levels.removeLast();
    if (level.scope == Scope::Group) {
        m_site.groups.append(m_group);
        m_parentLines.append(level.lines[GroupParent]);
    } else if (level.scope == Scope::Channel) {
        return EndChannel(level);
    } else if (level.scope == Scope::Device) {
        for (ChannelInfo& channel : m_device.channels)
            channel.iDeviceId = m_device.iDeviceId;
        m_site.devices.append(m_device);
        m_groupLines.append(level.lines[DeviceGroup]);
    }
    return true;
}

bool SiteHandler::EndChannel(const Level& level)
{
    const quint64 iPlace = SiteRules::ChannelPlace(m_channel.iChannelType, m_channel.iNumber);
    const auto it = m_placeLines.constFind(iPlace);
    if (it != m_placeLines.cend())
        return FailAt(level.lines[ChannelNumber],
                      SiteText::tr("the number %1 of kind %2 already stands on line %3")
                          .arg(m_channel.iNumber)
                          .arg(m_channel.iChannelType)
                          .arg(*it));
    m_placeLines.insert(iPlace, level.lines[ChannelNumber]);
    m_device.channels.append(m_channel);
    return true;
}

bool SiteHandler::CheckReferences()
{
    const SiteRules::GroupProblem problem = SiteRules::FirstGroupProblem(m_site.groups);
    if (problem.iGroup >= 0)
        return FailAt(m_parentLines[problem.iGroup], problem.strReason);
    QHash<int64_t, int> groups;
    for (int i = 0; i < m_site.groups.size(); ++i)
        groups.insert(m_site.groups[i].iGroupId, i);
    for (int i = 0; i < m_site.devices.size(); ++i) {
        const int64_t iGroup = m_site.devices[i].iGroupId;
        if (iGroup != -1 && !groups.contains(iGroup))
            return FailAt(m_groupLines[i], SiteText::tr("the group %1 does not exist").arg(iGroup));
    }
    return true;
}

QString SyntaxReason(rapidjson::ParseErrorCode code)
{
    switch (code) {
    case rapidjson::kParseErrorDocumentEmpty:
        return SiteText::tr("the file is empty");
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return SiteText::tr("something follows after the end of the site");
    case rapidjson::kParseErrorObjectMissName:
        return SiteText::tr("the name of a field is missing");
    case rapidjson::kParseErrorObjectMissColon:
        return SiteText::tr("a colon is missing after the name of a field");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return SiteText::tr("a comma or a closing brace is missing");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return SiteText::tr("a comma or a closing bracket is missing");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
    case rapidjson::kParseErrorStringEscapeInvalid:
        return SiteText::tr("an escape in a text is not valid");
    case rapidjson::kParseErrorStringMissQuotationMark:
        return SiteText::tr("a closing quotation mark is missing");
    case rapidjson::kParseErrorStringInvalidEncoding:
        return SiteText::tr("a text is not valid UTF-8 or holds a control character");
    case rapidjson::kParseErrorNumberTooBig:
    case rapidjson::kParseErrorNumberMissFraction:
    case rapidjson::kParseErrorNumberMissExponent:
        return SiteText::tr("a number is not valid");
    default:
        return SiteText::tr("this is not valid JSON");
    }
}

/// The line on which a position lies; the end of the text counts to the last line that holds anything.
int LineOf(const QByteArray& text, size_t iOffset)
{
    int iEnd = static_cast<int>(qMin(iOffset, static_cast<size_t>(text.size())));
    if (iEnd == text.size())
        iEnd = text.trimmed().isEmpty() ? 0 : text.lastIndexOf(text.trimmed().back());
    return 1 + static_cast<int>(std::count(text.cbegin(), text.cbegin() + iEnd, '\n'));
}

} // namespace

bool ReadSiteText(const QByteArray& text, Site& site, SiteTextError& error)
{
    QByteArray body = text;
    if (body.startsWith("\xEF\xBB\xBF")) // some editors mark UTF-8 so
        body.remove(0, 3);

    rapidjson::MemoryStream stream(body.constData(), static_cast<size_t>(body.size()));
    SiteHandler handler(body, stream);
    rapidjson::Reader reader;
    constexpr unsigned flags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, handler);
    if (!handler.HasFailed() && result.IsError()) {
        // The reader reports a raw control character in a text as a wrong escape.
        const bool bControl = result.Offset() < static_cast<size_t>(body.size()) &&
                              static_cast<unsigned char>(body[static_cast<int>(result.Offset())]) < 0x20;
        const bool bWrongEscape = result.Code() == rapidjson::kParseErrorStringEscapeInvalid;
        error = {LineOf(body, result.Offset()),
                 SyntaxReason(bControl && bWrongEscape ? rapidjson::kParseErrorStringInvalidEncoding
                                                       : result.Code())};
        return false;
    }
    // The reader takes a NUL for the end of the text.
    if (!handler.HasFailed() && stream.Tell() != static_cast<size_t>(body.size())) {
        error = {LineOf(body, stream.Tell()), SyntaxReason(rapidjson::kParseErrorDocumentRootNotSingular)};
        return false;
    }
    if (handler.HasFailed() || !handler.CheckReferences()) {
        error = handler.Error();
        return false;
    }
    site = handler.TakeSite();
    return true;
}
