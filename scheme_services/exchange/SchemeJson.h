#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

/// One scheme as JSON, fields in a fixed order, all of them but default cells.
class SchemeJson
{
public:
    SchemeJson();

    void Clear();
    void Write(const AlarmSourceKey& key, const AlarmInfo& info);
    const char* Text() const { return m_buffer.GetString(); }
    int Size() const { return static_cast<int>(m_buffer.GetSize()); }

private:
    void Key(const char* szName);
    void Field(const char* szName, const QString& strText);
    void Field(const char* szName, int32_t iNumber);
    void Field(const char* szName, bool bFlag);
    void WriteSplit(const AlarmVideoSplit& split);
    void WriteVideoLinks(const AlarmVideoSplit& split);
    void WriteAlarmOut(const QList<AlarmLinkAlarmOut>& links);
    void WriteDoors(const QList<AlarmLinkDoor>& links);
    void WriteWeek(const AlarmWeek& week);

    rapidjson::StringBuffer m_buffer;
    rapidjson::Writer<rapidjson::StringBuffer> m_writer;
};
