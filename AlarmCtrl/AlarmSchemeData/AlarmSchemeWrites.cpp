#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeFileCheck.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeKeyScan.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeSaveRoad.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatementText.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace {

class KeyList
{
public:
    explicit KeyList(const QList<AlarmSourceKey>& keys)
        : m_keys(keys)
    {
        std::sort(m_keys.begin(), m_keys.end());
    }

    bool Contains(const AlarmSourceKey& key) const
    {
        return std::binary_search(m_keys.cbegin(), m_keys.cend(), key);
    }

private:
    QList<AlarmSourceKey> m_keys;
};

} // namespace

std::optional<int64_t> AlarmSchemeDatabaseParser::EnsureScheme(const AlarmSourceKey& key)
{
    ExecFilled(SchemeStatements::EnsureScheme, {key.strEventSource, key.AlarmType});
    return FindSchemeId(key);
}

void AlarmSchemeDatabaseParser::EnsureBaseRow(int64_t iSchemeId)
{
    ExecFilled(SchemeStatements::EnsureBaseRow, {iSchemeId});
}

void AlarmSchemeDatabaseParser::Stamp()
{
    // The C locale, whatever the user's: other programs read this text.
    const QString now = QLocale::c().toString(m_clock ? m_clock() : QDateTime::currentDateTime(),
                                              QString::fromLatin1(SchemeStatements::StampFormat));
    ExecFilled(SchemeStatements::Stamp, {now});
}

int32_t AlarmSchemeDatabaseParser::SaveOpen(const AlarmSourceKey& key, bool bOpen)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    BeginTransaction();
    EnsureBaseRow(*id);
    ExecFilled(SchemeStatements::UpdateOpen, {*id, bOpen});
    Stamp();
    EndTransaction();
    return 0;
}

int32_t AlarmSchemeDatabaseParser::SaveNotify(const AlarmSourceKey& key, const AlarmNotifyInfo& notify)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    EnsureBaseRow(*id);
    ExecFilled(SchemeStatements::UpdateNotify,
               {*id, notify.bOpenSound, notify.bEmapTwinkle, notify.bSendEmail});
    Stamp();
    return 0;
}

int32_t AlarmSchemeDatabaseParser::SaveAlarmOut(const AlarmSourceKey& key,
                                                const QList<AlarmLinkAlarmOut>& links)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    BeginTransaction();
    ExecFilled(SchemeStatements::DeleteAlarmOut, {*id});
    for (const AlarmLinkAlarmOut& link : links)
        SaveAlarmOutLink(*id, link);
    Stamp();
    EndTransaction();
    return 0;
}

void AlarmSchemeDatabaseParser::SaveAlarmOutLink(int64_t iSchemeId, const AlarmLinkAlarmOut& link)
{
    ExecFilled(SchemeStatements::EnsureAlarmOutId, {link.strLinkAlarmID});
    const std::optional<int64_t> output = FindAlarmOutId(link.strLinkAlarmID);
    if (!output)
        return;
    ExecFilled(SchemeStatements::InsertAlarmOut, {iSchemeId, *output});
    ExecFilled(SchemeStatements::UpdateAlarmOut, {iSchemeId, *output, link.bAutoOpen, link.Time});
}

int32_t AlarmSchemeDatabaseParser::SaveDoor(const AlarmSourceKey& key, const QList<AlarmLinkDoor>& links)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    BeginTransaction();
    ExecFilled(SchemeStatements::DeleteDoor, {*id});
    for (const AlarmLinkDoor& link : links) {
        const int64_t door = link.strDoorID.toLongLong(); // 0 for what is no number
        ExecFilled(SchemeStatements::InsertDoor, {*id, door});
        ExecFilled(SchemeStatements::UpdateDoor, {*id, door, link.bAlwaysOpen});
    }
    Stamp();
    EndTransaction();
    return 0;
}

int32_t AlarmSchemeDatabaseParser::SaveDefenceTime(const AlarmSourceKey& key, const AlarmWeek& week)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    BeginTransaction();
    ExecFilled(SchemeStatements::DeleteDefenceTime, {*id});
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        for (const AlarmTimeRegion& region : week[day])
            ExecFilled(SchemeStatements::InsertDefenceTime, {*id, day + 1, region.Begin, region.End});
    }
    Stamp();
    EndTransaction();
    return 0;
}

int32_t AlarmSchemeDatabaseParser::SaveVideo(const AlarmSourceKey& key, const AlarmVideoSplit& split)
{
    const std::optional<int64_t> id = EnsureScheme(key);
    if (!id)
        return -1;
    BeginTransaction();
    ExecFilled(SchemeStatements::DeleteVideo, {*id});
    for (auto link = split.videoLinks.cbegin(); link != split.videoLinks.cend(); ++link)
        SaveVideoLink(*id, link.key(), link.value());
    SaveSplit(*id, split);
    Stamp();
    EndTransaction();
    return 0;
}

void AlarmSchemeDatabaseParser::SaveVideoLink(int64_t iSchemeId, int32_t iWindow, const AlarmLinkVideo& link)
{
    ExecFilled(SchemeStatements::EnsureVideoId, {link.strLinkDevID});
    const std::optional<int64_t> video = FindVideoId(link.strLinkDevID);
    if (!video)
        return;
    ExecFilled(SchemeStatements::InsertVideo, {iSchemeId, iWindow});
    ExecFilled(SchemeStatements::UpdateVideo, {iSchemeId, iWindow, *video, link.bOpen, link.bRecord,
                                               link.Preposition, link.StreamType, link.Time});
}

void AlarmSchemeDatabaseParser::SaveSplit(int64_t iSchemeId, const AlarmVideoSplit& split)
{
    EnsureBaseRow(iSchemeId);
    ExecFilled(SchemeStatements::UpdateSplitCounts,
               {iSchemeId, split.SplitRow, split.SplitCloum, split.SplitCount});
    // Rows of cells beyond the used ones stay: a smaller layout must not lose what a larger one held.
    const int cells = split.UsedCells();
    for (int window = 0; window < cells; ++window) {
        const AlarmSplitWindow& cell = split.cells[window];
        ExecFilled(SchemeStatements::InsertSplitCell, {iSchemeId, window});
        ExecFilled(SchemeStatements::UpdateSplitCell,
                   {iSchemeId, window, cell.bEnable, cell.iCombine, cell.X1, cell.X2, cell.Y1, cell.Y2});
    }
}

void AlarmSchemeDatabaseParser::SaveScheme(const AlarmSourceKey& key, const AlarmInfo& info)
{
    SaveOpen(key, info.bOpen);
    SaveNotify(key, AlarmNotifyInfo{info.bOpenSound, info.bEmapTwinkle, info.bSendEmail});
    SaveVideo(key, info.videoSplit);
    SaveDoor(key, info.listDoor);
    SaveAlarmOut(key, info.listAlarmOut);
    SaveDefenceTime(key, info.defenceTime);
}

int32_t AlarmSchemeDatabaseParser::SaveAll(const AlarmInfoMap* pMap, const GoOn& goOn)
{
    if (m_pDatabase == nullptr || pMap == nullptr)
        return -1;
    BeginTransaction();
    DisableAllSchemesBut(*pMap);
    SaveSchemes(*pMap, goOn);
    EndTransaction();
    return 0;
}

int32_t AlarmSchemeDatabaseParser::SaveSchemes(const AlarmInfoMap& changed, const GoOn& goOn)
{
    if (m_pDatabase == nullptr)
        return -1;
    BeginTransaction();
    auto entry = changed.cbegin();
    if (m_fileCheck->IsKnownForWriting(m_pDatabase))
        SaveInOnePass(entry, changed.cend(), goOn);
    for (; entry != changed.cend() && (!goOn || goOn()); ++entry)
        SaveScheme(entry.key(), entry.value());
    Stamp();
    EndTransaction();
    return 0;
}

void AlarmSchemeDatabaseParser::SaveInOnePass(AlarmInfoMap::const_iterator& entry,
                                              AlarmInfoMap::const_iterator end, const GoOn& goOn)
{
    // A failure may have ended the transaction and taken away what the road counts on.
    const int64_t failedBefore = m_iFailed;
    AlarmSchemeSaveRoad road(m_pDatabase);
    for (; road.IsReady() && m_iFailed == failedBefore && entry != end; ++entry) {
        if (goOn && !goOn()) {
            entry = end;
            return;
        }
        switch (road.Save(entry.key(), entry.value())) {
        case AlarmSchemeSaveRoad::Result::Saved:
            break;
        case AlarmSchemeSaveRoad::Result::Unusual:
            SaveScheme(entry.key(), entry.value());
            break;
        case AlarmSchemeSaveRoad::Result::Failed:
            CountAndLogFailure();
            return;
        }
    }
}

int32_t AlarmSchemeDatabaseParser::DeleteSchemes(const QList<AlarmSourceKey>& keys)
{
    if (keys.isEmpty())
        return -1;
    const KeyList list(keys);
    return ExecForSchemes(SchemeStatements::DeleteSchemes,
                          [&list](const AlarmSourceKey& key) { return list.Contains(key); });
}

int32_t AlarmSchemeDatabaseParser::DeleteAllSchemesBut(const QList<AlarmSourceKey>& keys)
{
    if (keys.isEmpty())
        return -1;
    const KeyList list(keys);
    return ExecForSchemes(SchemeStatements::DeleteSchemes,
                          [&list](const AlarmSourceKey& key) { return !list.Contains(key); });
}

int32_t AlarmSchemeDatabaseParser::DisableAllSchemesBut(const AlarmInfoMap& map)
{
    if (m_pDatabase != nullptr && m_fileCheck->IsKnown(m_pDatabase)) {
        if (const auto ids = AlarmSchemeKeyScan::IdsOutside(m_pDatabase, map)) {
            ExecForIds(SchemeStatements::DisableSchemes, *ids);
            return 0;
        }
    }
    return ExecForSchemes(SchemeStatements::DisableSchemes,
                          [&map](const AlarmSourceKey& key) { return !map.contains(key); });
}

int32_t AlarmSchemeDatabaseParser::ExecForSchemes(const char* szTemplate, const KeyTest& test)
{
    const std::optional<QList<StoredScheme>> schemes = ReadStoredSchemes();
    if (!schemes)
        return -1;
    std::vector<int64_t> ids;
    for (const StoredScheme& scheme : *schemes) {
        if (test(scheme.key))
            ids.push_back(scheme.iId);
    }
    ExecForIds(szTemplate, ids);
    return 0;
}

void AlarmSchemeDatabaseParser::ExecForIds(const char* szTemplate, const std::vector<int64_t>& ids)
{
    if (ids.empty())
        return;
    const QString separator = QString::fromLatin1(SchemeStatements::IdSeparator);
    QString list;
    for (const int64_t id : ids) {
        if (!list.isEmpty())
            list += separator;
        list += QString::number(id);
    }
    ExecFilled(szTemplate, {list});
    Stamp();
}
