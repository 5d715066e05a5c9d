#pragma once

#include <QString>
#include <QStringList>

struct sqlite3;

/// A plain connection to a database file, without the store: for making files and for looking into them.
class RawDatabase
{
public:
    explicit RawDatabase(const QString& strPath);
    ~RawDatabase();
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    sqlite3* Handle() const { return m_pHandle; }
    /// SQLite's result code.
    int Run(const QString& strSql);
    /// One text a row, its columns joined by "|", null as "NULL".
    QStringList Rows(const QString& strSql);
    /// The first row's only column.
    QString Value(const QString& strSql);
    /// Every row of the ten tables and the counters of their ids, each value with its type; without the time
    /// of the last change.
    QStringList Content();

    static const QStringList& Tables();

private:
    sqlite3* m_pHandle = nullptr;
};
