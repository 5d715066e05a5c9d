#pragma once

#include "platform/SiteLibrary/Site.h"
#include "platform/SiteLibrary/SiteFields.h"
#include "platform/SiteLibrary/SiteReader.h"

#include <QHash>

#include <rapidjson/memorystream.h>
#include <rapidjson/rapidjson.h>

#include <array>
#include <utility>

/// A record or list that has been opened and not yet closed.
struct Level
{
    SiteFields::Scope scope = SiteFields::Scope::Document;
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
    const SiteFields::Field* AwaitedField() const;
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
    VantaLogic::DeviceInfo m_device;
    VantaLogic::ChannelInfo m_channel;
    VantaLogic::GroupInfo m_group;
    QHash<int64_t, int> m_idLines;
    QHash<quint64, int> m_placeLines; ///< of the device being read
    QVector<int> m_parentLines;       ///< one a group
    QVector<int> m_groupLines;        ///< one a device
    SiteTextError m_error;
};
