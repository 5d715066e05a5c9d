#pragma once

#include <QMutex>
#include <QSet>
#include <QString>

#include <sqlite3.h>

/// Collects the tables of the scheme file whose rows are written through connections that are opened during
/// its life.
class TouchedTables
{
public:
    TouchedTables() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&TouchedTables::OnOpen)); }
    ~TouchedTables() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&TouchedTables::OnOpen)); }
    TouchedTables(const TouchedTables&) = delete;
    TouchedTables& operator=(const TouchedTables&) = delete;

    /// Those since the last call; without the one that holds the time of the last change.
    static QSet<QString> Take()
    {
        const QMutexLocker lock(&s_mutex);
        QSet<QString> tables;
        tables.swap(s_tables);
        return tables;
    }

private:
    static int OnOpen(sqlite3* pDatabase, char**, const void*)
    {
        sqlite3_update_hook(pDatabase, &TouchedTables::OnRow, nullptr);
        return SQLITE_OK;
    }
    static void OnRow(void*, int, const char* szDatabase, const char* szTable, sqlite3_int64)
    {
        if (qstrcmp(szDatabase, "main") != 0)
            return; // the history
        const QMutexLocker lock(&s_mutex);
        const QString table = QString::fromUtf8(szTable);
        if (table.compare(QLatin1String("BaseInfo"), Qt::CaseInsensitive) != 0)
            s_tables.insert(table);
    }

    static inline QMutex s_mutex;
    static inline QSet<QString> s_tables;
};
