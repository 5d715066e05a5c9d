#include "scheme_services/exchange/SchemeJson.h"

#include <QByteArray>

#include <cstring>

SchemeJson::SchemeJson()
    : m_writer(m_buffer)
{
}

void SchemeJson::Clear()
{
    m_buffer.Clear();
    m_writer.Reset(m_buffer);
}

void SchemeJson::Key(const char* szName)
{
    m_writer.Key(szName, static_cast<rapidjson::SizeType>(std::strlen(szName)));
}

void SchemeJson::Field(const char* szName, const QString& strText)
{
    Key(szName);
    const QByteArray text = strText.toUtf8();
    m_writer.String(text.constData(), static_cast<rapidjson::SizeType>(text.size()));
}

void SchemeJson::Field(const char* szName, int32_t iNumber)
{
    Key(szName);
    m_writer.Int(iNumber);
}

void SchemeJson::Field(const char* szName, bool bFlag)
{
    Key(szName);
    m_writer.Bool(bFlag);
}

void SchemeJson::Write(const AlarmSourceKey& key, const AlarmInfo& info)
{
    m_writer.StartObject();
    Field("strEventSource", key.strEventSource);
    Field("AlarmType", key.AlarmType);
    Field("bOpen", info.bOpen);
    Field("bOpenSound", info.bOpenSound);
    Field("bEmapTwinkle", info.bEmapTwinkle);
    Field("bSendEmail", info.bSendEmail);
    WriteSplit(info.videoSplit);
    WriteVideoLinks(info.videoSplit);
    WriteAlarmOut(info.listAlarmOut);
    WriteDoors(info.listDoor);
    WriteWeek(info.defenceTime);
    m_writer.EndObject();
}

void SchemeJson::WriteSplit(const AlarmVideoSplit& split)
{
    Key("split");
    m_writer.StartObject();
    Field("SplitRow", split.SplitRow);
    Field("SplitCloum", split.SplitCloum);
    Field("SplitCount", split.SplitCount);
    Key("cells");
    m_writer.StartArray();
    const AlarmSplitWindow fresh;
    const bool allFresh = split.cells.IsSharedWith(AlarmSplitCells());
    for (int window = 0; !allFresh && window < AlarmSplitCells::CellCount; ++window) {
        const AlarmSplitWindow& cell = split.cells[window];
        if (cell == fresh)
            continue;
        m_writer.StartObject();
        Field("windowID", window);
        Field("bEnable", cell.bEnable);
        Field("iCombine", cell.iCombine);
        Field("X1", cell.X1);
        Field("Y1", cell.Y1);
        Field("X2", cell.X2);
        Field("Y2", cell.Y2);
        m_writer.EndObject();
    }
    m_writer.EndArray();
    m_writer.EndObject();
}

void SchemeJson::WriteVideoLinks(const AlarmVideoSplit& split)
{
    Key("videoLinks");
    m_writer.StartArray();
    for (auto link = split.videoLinks.cbegin(); link != split.videoLinks.cend(); ++link) {
        m_writer.StartObject();
        Field("WindowID", link.key());
        Field("strLinkDevID", link->strLinkDevID);
        Field("Preposition", link->Preposition);
        Field("StreamType", link->StreamType);
        Field("bOpen", link->bOpen);
        Field("bRecord", link->bRecord);
        Field("Time", link->Time);
        m_writer.EndObject();
    }
    m_writer.EndArray();
}

void SchemeJson::WriteAlarmOut(const QList<AlarmLinkAlarmOut>& links)
{
    Key("alarmOut");
    m_writer.StartArray();
    for (const AlarmLinkAlarmOut& link : links) {
        m_writer.StartObject();
        Field("strLinkAlarmID", link.strLinkAlarmID);
        Field("bAutoOpen", link.bAutoOpen);
        Field("Time", link.Time);
        m_writer.EndObject();
    }
    m_writer.EndArray();
}

void SchemeJson::WriteDoors(const QList<AlarmLinkDoor>& links)
{
    Key("doors");
    m_writer.StartArray();
    for (const AlarmLinkDoor& link : links) {
        m_writer.StartObject();
        Field("id", link.strDoorID);
        Field("bAlwaysOpen", link.bAlwaysOpen);
        m_writer.EndObject();
    }
    m_writer.EndArray();
}

void SchemeJson::WriteWeek(const AlarmWeek& week)
{
    Key("defenceTime");
    m_writer.StartArray();
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        m_writer.StartArray();
        for (const AlarmTimeRegion& region : week[day]) {
            m_writer.StartObject();
            Field("Begin", region.Begin);
            Field("End", region.End);
            m_writer.EndObject();
        }
        m_writer.EndArray();
    }
    m_writer.EndArray();
}
