#include "tests/AlarmSchemeData/RawDatabase.h"

#include <sqlite3.h>

RawDatabase::RawDatabase(const QString& strPath)
{
    if (sqlite3_open(strPath.toUtf8().constData(), &m_pHandle) != SQLITE_OK)
        qFatal("cannot open a database for a test");
}

RawDatabase::~RawDatabase()
{
    sqlite3_close(m_pHandle);
}

int RawDatabase::Run(const QString& strSql)
{
    return sqlite3_exec(m_pHandle, strSql.toUtf8().constData(), nullptr, nullptr, nullptr);
}

QStringList RawDatabase::Rows(const QString& strSql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_pHandle, strSql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        return {QStringLiteral("error: ") + QString::fromUtf8(sqlite3_errmsg(m_pHandle))};
    QStringList rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        QStringList columns;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            columns.append(text == nullptr ? QStringLiteral("NULL") : QString::fromUtf8(text));
        }
        rows.append(columns.join(QLatin1Char('|')));
    }
    sqlite3_finalize(statement);
    return rows;
}

QString RawDatabase::Value(const QString& strSql)
{
    return Rows(strSql).value(0, QStringLiteral("no row"));
}

const QStringList& RawDatabase::Tables()
{
    static const QStringList tables = {
        QStringLiteral("AlarmUniqueID"),      QStringLiteral("AlarmBaseInfo"),
        QStringLiteral("AlarmSplitInfo"),     QStringLiteral("AlarmLinkVideoID"),
        QStringLiteral("AlarmLinkVideoInfo"), QStringLiteral("AlarmLinkAlarmOutID"),
        QStringLiteral("AlarmLinkDoorInfo"),  QStringLiteral("AlarmLinkAlarmOutInfo"),
        QStringLiteral("BaseInfo"),           QStringLiteral("AlarmDefenceTimeInfo")};
    return tables;
}

QStringList RawDatabase::Content()
{
    QStringList content;
    for (const QString& table : Tables()) {
        content.append(table);
        QStringList columns;
        const QStringList rows = Rows(QStringLiteral("select name from pragma_table_xinfo('%1')").arg(table));
        for (const QString& row : rows) {
            if (row != QLatin1String("ModifyTime"))
                columns.append(QStringLiteral("quote([%1])").arg(row));
        }
        content += Rows(
            QStringLiteral("select %1 from %2 order by rowid").arg(columns.join(QLatin1Char(',')), table));
    }
    content.append(QStringLiteral("sqlite_sequence"));
    content += Rows(QStringLiteral("select name, seq from sqlite_sequence order by name"));
    return content;
}
