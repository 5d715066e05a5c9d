#include "platform/SiteLibrary/SiteHandler.h"

#include "platform/SiteLibrary/SiteRules.h"

#include <QLatin1String>

#include <limits>

using namespace SiteFields;
using namespace VantaLogic;

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
    if (it != m_idLines.cend()) {
        return FailAt(iLine,
                      SiteText::tr("the id %1 already stands on line %2").arg(QString::number(iId)).arg(*it));
    }
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
        if (level.scope == Scope::Group) {
            (level.iField == GroupId ? m_group.iGroupId : m_group.iParentId) = i;
        } else if (level.scope == Scope::Device) {
            (level.iField == DeviceId ? m_device.iDeviceId : m_device.iGroupId) = i;
        } else {
            m_channel.iChannelId = i;
        }
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
    if (Top().scope == Scope::Device) {
        m_device.iDeviceType = i;
    } else if (Top().iField == ChannelNumber) {
        m_channel.iNumber = i;
    } else {
        m_channel.iChannelType = i;
    }
}

bool SiteHandler::Bool(bool b)
{
    const Field* pField = AwaitedField();
    if (!pField || pField->kind != Kind::Flag)
        return Fail(Unexpected());
    if (Top().scope == Scope::Channel) {
        m_channel.bEnabled = b;
    } else {
        (Top().iField == DeviceEnabled ? m_device.bEnabled : m_device.bOnline) = b;
    }
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
    if (Top().scope == Scope::Group) {
        m_group.strName = strName;
    } else if (Top().scope == Scope::Device) {
        m_device.strName = strName;
    } else {
        m_channel.strName = strName;
    }
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
    if (Top().scope == Scope::Device) {
        next.scope = Scope::ChannelList;
    } else {
        next.scope = Top().iField == RootGroups ? Scope::GroupList : Scope::DeviceList;
    }
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
        if (table.fields[i].bRequired && level.lines[static_cast<size_t>(i)] == 0) {
            return FailAt(
                level.iStartLine,
                SiteText::tr("the field \"%1\" is missing").arg(QLatin1String(table.fields[i].name)));
        }
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
    if (it != m_placeLines.cend()) {
        return FailAt(level.lines[ChannelNumber],
                      SiteText::tr("the number %1 of kind %2 already stands on line %3")
                          .arg(m_channel.iNumber)
                          .arg(m_channel.iChannelType)
                          .arg(*it));
    }
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
