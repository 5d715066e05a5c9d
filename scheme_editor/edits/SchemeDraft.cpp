#include "scheme_editor/edits/SchemeDraft.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

namespace {

constexpr quint32 Magic = 0x41435344;
constexpr quint16 Version = 1;
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
    bool Flag() { return Get<quint8>() != 0; }
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

void WriteVideo(Writer& out, const AlarmVideoSplit& video)
{
    static const AlarmSplitCells fresh;
    out << video.SplitRow << video.SplitCloum << video.SplitCount;
    const bool bCells = !(video.cells == fresh);
    out << static_cast<quint8>(bCells);
    for (int i = 0; bCells && i < AlarmSplitCells::CellCount; ++i) {
        const AlarmSplitWindow& cell = video.cells[i];
        out << static_cast<quint8>(cell.bEnable) << cell.iCombine << cell.X1 << cell.Y1 << cell.X2 << cell.Y2;
    }
    out.Size(video.videoLinks.size());
    for (auto it = video.videoLinks.cbegin(); it != video.videoLinks.cend(); ++it) {
        out << it.key() << it->strLinkDevID << it->Preposition << it->StreamType
            << static_cast<quint8>(it->bOpen) << static_cast<quint8>(it->bRecord) << it->Time;
    }
}

void ReadVideo(Reader& in, AlarmVideoSplit& video)
{
    video.SplitRow = in.Get<qint32>();
    video.SplitCloum = in.Get<qint32>();
    video.SplitCount = in.Get<qint32>();
    const bool bCells = in.Flag();
    for (int i = 0; bCells && i < AlarmSplitCells::CellCount; ++i) {
        AlarmSplitWindow& cell = video.cells[i];
        cell.bEnable = in.Flag();
        for (int32_t* const pNumber : {&cell.iCombine, &cell.X1, &cell.Y1, &cell.X2, &cell.Y2})
            *pNumber = in.Get<qint32>();
    }
    in.List([&] {
        AlarmLinkVideo& link = video.videoLinks[in.Get<qint32>()];
        link.strLinkDevID = in.Key();
        link.Preposition = in.Get<qint32>();
        link.StreamType = in.Get<qint32>();
        link.bOpen = in.Flag();
        link.bRecord = in.Flag();
        link.Time = in.Get<qint32>();
    });
}

void WriteRecord(Writer& out, const AlarmInfo& info)
{
    static const AlarmWeek fresh;
    for (const bool bFlag : {info.bOpen, info.bOpenSound, info.bEmapTwinkle, info.bSendEmail})
        out << static_cast<quint8>(bFlag);
    WriteVideo(out, info.videoSplit);
    out.Size(info.listAlarmOut.size());
    for (const AlarmLinkAlarmOut& link : info.listAlarmOut)
        out << link.strLinkAlarmID << static_cast<quint8>(link.bAutoOpen) << link.Time;
    out.Size(info.listDoor.size());
    for (const AlarmLinkDoor& link : info.listDoor)
        out << link.strDoorID << static_cast<quint8>(link.bAlwaysOpen);
    const bool bWeek = info.defenceTime != fresh;
    out << static_cast<quint8>(bWeek);
    for (int day = 0; bWeek && day < AlarmWeek::DayCount; ++day) {
        out.Size(info.defenceTime[day].size());
        for (const AlarmTimeRegion& region : info.defenceTime[day])
            out << region.Begin << region.End;
    }
}

AlarmInfo ReadRecord(Reader& in)
{
    AlarmInfo info;
    for (bool* const pFlag : {&info.bOpen, &info.bOpenSound, &info.bEmapTwinkle, &info.bSendEmail})
        *pFlag = in.Flag();
    ReadVideo(in, info.videoSplit);
    in.List([&] {
        AlarmLinkAlarmOut link;
        link.strLinkAlarmID = in.Key();
        link.bAutoOpen = in.Flag();
        link.Time = in.Get<qint32>();
        info.listAlarmOut.append(link);
    });
    in.List([&] {
        AlarmLinkDoor link;
        link.strDoorID = in.Key();
        link.bAlwaysOpen = in.Flag();
        info.listDoor.append(link);
    });
    const bool bWeek = in.Flag();
    for (int day = 0; bWeek && day < AlarmWeek::DayCount; ++day) {
        AlarmDefenceTime_t regions;
        in.List([&] {
            AlarmTimeRegion region;
            region.Begin = in.Get<qint32>();
            region.End = in.Get<qint32>();
            // As when schemes are loaded: a region that is none is left out.
            if (region.Begin >= 0 && region.Begin <= region.End && region.End <= LastSecond)
                regions.append(region);
        });
        info.defenceTime[day] = regions;
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
        WriteRecord(out, change.m_records[iRecord]);
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
    in.List([&] { content.m_records.append(ReadRecord(in)); });
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
