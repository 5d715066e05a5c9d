#include "AlarmCtrl/AlarmSchemeData/AlarmInfoBytes.h"

#include <QDataStream>
#include <QIODevice>

namespace {

constexpr quint8 FormatVersion = 1;

enum Flags : quint8
{
    Open = 1,
    Sound = 2,
    Twinkle = 4,
    Mail = 8,
    OwnWeek = 16, ///< otherwise the week is that of a fresh record and not written
};

void SetUp(QDataStream& stream)
{
    stream.setVersion(QDataStream::Qt_5_12);
    stream.setByteOrder(QDataStream::LittleEndian);
}

/// A null text is equal to an empty one, but a stream tells them apart.
QString Plain(const QString& strText)
{
    return strText.isEmpty() ? QString(QLatin1String("")) : strText;
}

/// Calls the reader for each entry of a list; stops at the end of the bytes, whatever the count says.
template <typename Reader>
void ReadList(QDataStream& stream, Reader&& readEntry)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 at = 0; at < count && stream.status() == QDataStream::Ok; ++at)
        readEntry();
}

void WriteCells(QDataStream& stream, const AlarmSplitCells& cells)
{
    const AlarmSplitWindow fresh;
    QVector<int> own;
    for (int window = 0; window < AlarmSplitCells::CellCount; ++window) {
        if (!(cells[window] == fresh))
            own.append(window);
    }
    stream << quint32(own.size());
    for (const int window : qAsConst(own)) {
        const AlarmSplitWindow& cell = cells[window];
        stream << quint8(window) << cell.bEnable << cell.iCombine << cell.X1 << cell.Y1 << cell.X2 << cell.Y2;
    }
}

void ReadCells(QDataStream& stream, AlarmSplitCells& cells)
{
    int last = -1;
    ReadList(stream, [&] {
        quint8 window = 0;
        AlarmSplitWindow cell;
        stream >> window >> cell.bEnable >> cell.iCombine >> cell.X1 >> cell.Y1 >> cell.X2 >> cell.Y2;
        if (window >= AlarmSplitCells::CellCount || window <= last || cell == AlarmSplitWindow()) {
            stream.setStatus(QDataStream::ReadCorruptData);
            return;
        }
        last = window;
        cells[window] = cell;
    });
}

void WriteSplit(QDataStream& stream, const AlarmVideoSplit& split)
{
    stream << split.SplitRow << split.SplitCloum << split.SplitCount;
    WriteCells(stream, split.cells);
    stream << quint32(split.videoLinks.size());
    for (auto link = split.videoLinks.cbegin(); link != split.videoLinks.cend(); ++link) {
        stream << link.key() << Plain(link->strLinkDevID) << link->Preposition << link->StreamType
               << link->bOpen << link->bRecord << link->Time;
    }
}

void ReadSplit(QDataStream& stream, AlarmVideoSplit& split)
{
    stream >> split.SplitRow >> split.SplitCloum >> split.SplitCount;
    ReadCells(stream, split.cells);
    ReadList(stream, [&] {
        int32_t window = 0;
        AlarmLinkVideo link;
        stream >> window >> link.strLinkDevID >> link.Preposition >> link.StreamType >> link.bOpen >>
            link.bRecord >> link.Time;
        if (!split.videoLinks.isEmpty() && window <= split.videoLinks.lastKey())
            stream.setStatus(QDataStream::ReadCorruptData);
        else
            split.videoLinks.insert(split.videoLinks.cend(), window, link);
    });
}

void WriteWeek(QDataStream& stream, const AlarmWeek& week)
{
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        stream << quint32(week[day].size());
        for (const AlarmTimeRegion& region : week[day])
            stream << region.Begin << region.End;
    }
}

void ReadWeek(QDataStream& stream, AlarmWeek& week)
{
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        AlarmDefenceTime_t& regions = week[day];
        regions.clear();
        ReadList(stream, [&] {
            AlarmTimeRegion region;
            stream >> region.Begin >> region.End;
            regions.append(region);
        });
    }
}

} // namespace

QByteArray AlarmInfoBytes::Write(const AlarmInfo& info)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    SetUp(stream);
    const bool ownWeek = info.defenceTime != AlarmWeek();
    const int flags = (info.bOpen ? Open : 0) | (info.bOpenSound ? Sound : 0) |
                      (info.bEmapTwinkle ? Twinkle : 0) | (info.bSendEmail ? Mail : 0) |
                      (ownWeek ? OwnWeek : 0);
    stream << FormatVersion << quint8(flags);
    WriteSplit(stream, info.videoSplit);
    stream << quint32(info.listAlarmOut.size());
    for (const AlarmLinkAlarmOut& link : info.listAlarmOut)
        stream << Plain(link.strLinkAlarmID) << link.bAutoOpen << link.Time;
    stream << quint32(info.listDoor.size());
    for (const AlarmLinkDoor& link : info.listDoor)
        stream << Plain(link.strDoorID) << link.bAlwaysOpen;
    if (ownWeek)
        WriteWeek(stream, info.defenceTime);
    return bytes;
}

std::optional<AlarmInfo> AlarmInfoBytes::Read(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    SetUp(stream);
    quint8 version = 0;
    quint8 flags = 0;
    stream >> version >> flags;
    if (stream.status() != QDataStream::Ok || version != FormatVersion || flags >= 2 * OwnWeek)
        return std::nullopt;
    AlarmInfo info;
    info.bOpen = (flags & Open) != 0;
    info.bOpenSound = (flags & Sound) != 0;
    info.bEmapTwinkle = (flags & Twinkle) != 0;
    info.bSendEmail = (flags & Mail) != 0;
    ReadSplit(stream, info.videoSplit);
    ReadList(stream, [&] {
        AlarmLinkAlarmOut link;
        stream >> link.strLinkAlarmID >> link.bAutoOpen >> link.Time;
        info.listAlarmOut.append(link);
    });
    ReadList(stream, [&] {
        AlarmLinkDoor link;
        stream >> link.strDoorID >> link.bAlwaysOpen;
        info.listDoor.append(link);
    });
    if ((flags & OwnWeek) != 0)
        ReadWeek(stream, info.defenceTime);
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return info;
}
