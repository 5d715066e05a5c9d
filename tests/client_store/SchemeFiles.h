#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/TestFile.h"

#include <QDir>
#include <QFile>
#include <QString>

/// Scheme files as tests of their keeping need them: whole, full of schemes, damaged, cut off.
namespace SchemeFiles {

using TestFile::Bytes;
using TestFile::Write;

inline AlarmInfoMap Map(int iCount, bool bOpen = true)
{
    AlarmInfoMap map;
    for (int door = 0; door < iCount; ++door) {
        AlarmInfo& info = map[AlarmSourceKey{EventSource::Door(1, door), 3}];
        info.bOpen = bOpen;
        info.listDoor.append(AlarmLinkDoor{QString::number(door), bOpen});
    }
    return map;
}

/// A file that the store has made, at whatever path.
inline void Make(const QString& strPath, int iSchemes)
{
    AlarmSchemeDatabaseParser store(nullptr, strPath);
    const AlarmInfoMap map = Map(iSchemes);
    if (store.SaveAll(&map) != 0)
        qFatal("cannot make a scheme file for a test");
}

inline AlarmInfoMap Read(const QString& strPath)
{
    AlarmSchemeDatabaseParser store(nullptr, strPath);
    AlarmInfoMap map;
    if (store.ReadAll(&map) != 0)
        qFatal("cannot read a scheme file for a test");
    return map;
}

inline QStringList Names(const QString& strFolder)
{
    return QDir(strFolder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                     QDir::Name);
}

/// Overwrites the page where the links to doors begin.
inline void DamageTable(const QString& strPath)
{
    int page = 0;
    {
        RawDatabase raw(strPath);
        page =
            raw.Value(QStringLiteral("select rootpage from sqlite_master where name = 'AlarmLinkDoorInfo'"))
                .toInt();
    }
    QByteArray bytes = Bytes(strPath);
    if (page < 2 || page * 4096 > bytes.size())
        qFatal("cannot damage a file for a test");
    Write(strPath, bytes.replace((page - 1) * 4096, 4096, QByteArray(4096, '\x5A')));
}

/// Adds a row behind the back of an index: no page is unsound, and only a thorough check compares both.
inline void DamageIndex(const QString& strPath)
{
    const QString where = QStringLiteral(" where name = 'AlarmUniqueID_ByKey'");
    QString row;
    {
        RawDatabase raw(strPath);
        row =
            raw.Value(QStringLiteral("select quote(type) || ',' || quote(name) || ',' || quote(tbl_name) || "
                                     "',' || rootpage || ',' || quote(sql) from sqlite_master") +
                      where);
        raw.Run(QStringLiteral("PRAGMA writable_schema = ON; delete from sqlite_master") + where);
    }
    RawDatabase(strPath).Run(
        QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values('unseen', 1)"));
    const int result = RawDatabase(strPath).Run(
        QStringLiteral("PRAGMA writable_schema = ON; insert into sqlite_master values(%1)").arg(row));
    if (row.isEmpty() || result != 0)
        qFatal("cannot damage an index for a test");
}

} // namespace SchemeFiles
