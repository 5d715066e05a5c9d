#pragma once

#include "client/store/SchemeHistoryFile.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/TestFile.h"
#include "tests/scheme_exchange/SchemeTexts.h"
#include "tests/tools/CommandKit.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// What tests of the commands that bring schemes in and out have in common.

using TestFile::Bytes;

inline AlarmSourceKey Key(int iDoor)
{
    return {EventSource::Door(7, iDoor), 101};
}

inline AlarmInfoMap Doors(int iDoors)
{
    AlarmInfoMap map;
    for (int door = 1; door <= iDoors; ++door) {
        AlarmInfo info;
        info.bOpen = door % 2 == 0;
        info.listAlarmOut = {AlarmLinkAlarmOut{EventSource::AlarmOutput(30), true, 20}};
        map.insert(Key(door), info);
    }
    return map;
}

inline QJsonObject Json(const QString& strText)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(strText.toUtf8(), &error);
    return error.error == QJsonParseError::NoError ? document.object() : QJsonObject();
}

/// A data directory without a site, with these schemes.
class Data
{
public:
    explicit Data(const AlarmInfoMap& schemes)
        : m_data(Site(), schemes)
    {
    }
    const ClientData* operator->() const { return &m_data; }
    ClientData* operator->() { return &m_data; }
    Run Do(const QStringList& arguments) const { return Run(arguments, m_data.Directory()); }
    AlarmInfoMap Schemes() const
    {
        const LogCatcher quiet;
        AlarmSchemeDatabaseParser store;
        AlarmInfoMap map;
        store.ReadAll(&map);
        return map;
    }
    QList<SchemeHistoryEntry> History() const
    {
        RawDatabase database(SchemeHistoryFile::PathBeside(m_data.Database()));
        return SchemeHistoryFile(database.Handle(), SchemeHistoryFile::Place::Main)
            .Entries(100)
            .value_or(QList<SchemeHistoryEntry>());
    }

private:
    ClientData m_data;
};

inline QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}
