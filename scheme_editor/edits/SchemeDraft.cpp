#include "scheme_editor/edits/SchemeDraft.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmInfoBytes.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <utility>

namespace {

constexpr quint32 Magic = 0x41435344;
constexpr quint16 Version = 2;
constexpr int HeaderSize = 6; // bytes: magic and version
constexpr int DigestSize = 32;
constexpr int MaxKeyLength = 1000;    // as long as the store takes them
constexpr int64_t MaxCells = 4000000; // several times the schemes of the largest site
constexpr int32_t LastSecond = 86399;

QByteArray Digest(const QByteArray& payload)
{
    return QCryptographicHash::hash(payload, QCryptographicHash::Sha256);
}

/// Writes and reads values one after the other; reading stops for good at the first value that is not there
/// or cannot be.
class Writer
{
public:
    explicit Writer(QByteArray& bytes)
        : m_stream(&bytes, QIODevice::WriteOnly)
    {
        m_stream.setVersion(QDataStream::Qt_5_12);
    }

    template <typename Value>
    Writer& operator<<(const Value& value)
    {
        m_stream << value;
        return *this;
    }
    void Size(int iSize) { m_stream << static_cast<quint32>(iSize); }

private:
    QDataStream m_stream;
};

class Reader
{
public:
    explicit Reader(const QByteArray& bytes)
        : m_stream(bytes)
    {
        m_stream.setVersion(QDataStream::Qt_5_12);
    }

    template <typename Value>
    Value Get()
    {
        Value value{};
        m_stream >> value;
        return value;
    }
    QString Key()
    {
        QString strKey = Get<QString>();
        Require(strKey.size() <= MaxKeyLength);
        return strKey;
    }
    /// Calls `read` for each element of a list; the list's length is what was written, not what to reserve.
    template <typename ReadOne>
    void List(ReadOne read)
    {
        const auto iSize = Get<quint32>();
        for (quint32 i = 0; i < iSize && IsGood(); ++i)
            read();
    }
    void Require(bool bHolds)
    {
        if (!bHolds)
            m_stream.setStatus(QDataStream::ReadCorruptData);
    }
    bool IsGood() const { return m_stream.status() == QDataStream::Ok; }
    bool IsAtEnd() const { return m_stream.atEnd(); }

private:
    QDataStream m_stream;
};

/// Nothing for bytes that are no record, and for names that the store would not take.
std::optional<AlarmInfo> ReadRecord(const QByteArray& bytes)
{
    std::optional<AlarmInfo> info = AlarmInfoBytes::Read(bytes);
    if (!info)
        return std::nullopt;
    const auto isTooLong = [](const QString& strName) { return strName.size() > MaxKeyLength; };
    const bool tooLong =
        std::any_of(info->videoSplit.videoLinks.cbegin(), info->videoSplit.videoLinks.cend(),
                    [&](const AlarmLinkVideo& link) { return isTooLong(link.strLinkDevID); }) ||
        std::any_of(info->listAlarmOut.cbegin(), info->listAlarmOut.cend(),
                    [&](const AlarmLinkAlarmOut& link) { return isTooLong(link.strLinkAlarmID); }) ||
        std::any_of(info->listDoor.cbegin(), info->listDoor.cend(),
                    [&](const AlarmLinkDoor& link) { return isTooLong(link.strDoorID); });
    if (tooLong)
        return std::nullopt;
    // As when schemes are loaded: a region that is none is left out.
    const auto isNone = [](const AlarmTimeRegion& region) {
        return region.Begin < 0 || region.Begin > region.End || region.End > LastSecond;
    };
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        const AlarmDefenceTime_t& stored = std::as_const(*info).defenceTime[day];
        if (std::none_of(stored.cbegin(), stored.cend(), isNone))
            continue;
        AlarmDefenceTime_t regions = stored;
        regions.erase(std::remove_if(regions.begin(), regions.end(), isNone), regions.end());
        info->defenceTime[day] = regions;
    }
    return info;
}

} // namespace

QByteArray SchemeDraft::Write(const SchemeChange& change)
{
    if (change.IsEmpty())
        return {};
    // Only the records of the after side, each once.
    QVector<int> places(change.m_records.size(), SchemeChange::Absent);
    QVector<int> used;
    for (const auto& row : change.m_rows) {
        for (const SchemeChange::Cell& cell : row) {
            if (cell.iAfter != SchemeChange::Absent && places[cell.iAfter] == SchemeChange::Absent) {
                places[cell.iAfter] = used.size();
                used.append(cell.iAfter);
            }
        }
    }

    QByteArray payload;
    Writer out(payload);
    out.Size(used.size());
    for (const int iRecord : qAsConst(used))
        out << AlarmInfoBytes::Write(change.m_records[iRecord]);
    out.Size(change.m_rows.size());
    for (const auto& row : change.m_rows) {
        out.Size(row.size());
        for (const SchemeChange::Cell& cell : row) {
            out << cell.iType
                << (cell.iAfter == SchemeChange::Absent ? SchemeChange::Absent : places[cell.iAfter]);
        }
    }
    out.Size(change.m_sources.size());
    for (const SchemeChange::Source& source : change.m_sources)
        out << source.strText << source.iRow;

    QByteArray header;
    Writer(header) << Magic << Version;
    return header + Digest(payload) + payload;
}

std::optional<SchemeDraft> SchemeDraft::Read(const QByteArray& bytes)
{
    Reader head(bytes.left(HeaderSize));
    if (head.Get<quint32>() != Magic || head.Get<quint16>() != Version || !head.IsGood())
        return std::nullopt;
    const QByteArray payload = bytes.mid(HeaderSize + DigestSize);
    if (bytes.mid(HeaderSize, DigestSize) != Digest(payload))
        return std::nullopt;

    SchemeDraft draft;
    SchemeChange& content = draft.m_content;
    Reader in(payload);
    in.List([&] {
        const std::optional<AlarmInfo> record = ReadRecord(in.Get<QByteArray>());
        in.Require(record.has_value());
        content.m_records.append(record.value_or(AlarmInfo()));
    });
    in.List([&] {
        QVector<SchemeChange::Cell> row;
        in.List([&] {
            const auto iType = in.Get<qint32>();
            const auto iRecord = in.Get<qint32>();
            in.Require(iRecord >= SchemeChange::Absent && iRecord < content.m_records.size());
            in.Require(row.isEmpty() || row.last().iType < iType);
            row.append({iType, SchemeChange::Absent, iRecord});
        });
        in.Require(!row.isEmpty());
        content.m_rows.append(row);
    });
    int64_t iCells = 0;
    in.List([&] {
        SchemeChange::Source source;
        source.strText = in.Key();
        source.iRow = in.Get<qint32>();
        in.Require(source.iRow >= 0 && source.iRow < content.m_rows.size());
        in.Require(EventSource::FieldCount(source.strText) == 4);
        in.Require(content.m_sources.isEmpty() || content.m_sources.last().strText < source.strText);
        if (in.IsGood())
            iCells += content.m_rows[source.iRow].size();
        in.Require(iCells <= MaxCells);
        content.m_sources.append(source);
    });
    if (!in.IsGood() || !in.IsAtEnd() || content.m_sources.isEmpty())
        return std::nullopt;
    return draft;
}
