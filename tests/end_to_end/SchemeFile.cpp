#include "SchemeFile.h"

#include <sqlite3.h>

SchemeFile::SchemeFile(const QString& strPath)
{
    sqlite3_open_v2(strPath.toUtf8().constData(), &m_pDatabase, SQLITE_OPEN_READWRITE, nullptr);
}

SchemeFile::~SchemeFile()
{
    sqlite3_close(m_pDatabase);
}

QStringList SchemeFile::Rows(const QString& strSql) const
{
    sqlite3_stmt* pStatement = nullptr;
    if (sqlite3_prepare_v2(m_pDatabase, strSql.toUtf8().constData(), -1, &pStatement, nullptr) != SQLITE_OK) {
        return {QStringLiteral("error: ") + QString::fromUtf8(sqlite3_errmsg(m_pDatabase))};
    }
    QStringList rows;
    while (sqlite3_step(pStatement) == SQLITE_ROW) {
        QStringList columns;
        for (int i = 0; i < sqlite3_column_count(pStatement); ++i) {
            columns.append(
                QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(pStatement, i))));
        }
        rows.append(columns.join(QLatin1Char('|')));
    }
    sqlite3_finalize(pStatement);
    return rows;
}

bool SchemeFile::Execute(const QString& strSql) const
{
    return sqlite3_exec(m_pDatabase, strSql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

QString SchemeFile::Flags(const QString& strSource, int iType) const
{
    return Rows(QStringLiteral("select b.bOpen, b.bOpenSound, b.bSendEmail from AlarmUniqueID u join "
                               "AlarmBaseInfo b on b.AlarmUniqueID = u.AlarmUniqueID "
                               "where u.strEventSource = '%1' and u.AlarmType = %2")
                    .arg(strSource, QString::number(iType)))
        .join(QLatin1Char('\n'));
}

QStringList SchemeFile::Outputs(const QString& strSource, int iType) const
{
    return Rows(QStringLiteral("select k.strLinkAlarmID, o.bAutoOpen, o.Time from AlarmUniqueID u "
                               "join AlarmLinkAlarmOutInfo o on o.AlarmUniqueID = u.AlarmUniqueID "
                               "join AlarmLinkAlarmOutID k on k.AlarmLinkAlarmOutID = o.AlarmLinkAlarmOutID "
                               "where u.strEventSource = '%1' and u.AlarmType = %2 order by 1")
                    .arg(strSource, QString::number(iType)));
}

QStringList SchemeFile::Content() const
{
    return Rows(QStringLiteral("select * from AlarmUniqueID order by 1")) +
           Rows(QStringLiteral("select AlarmUniqueID, bOpen, bOpenSound, bEmapTwinkle, bSendEmail from "
                               "AlarmBaseInfo order by 1")) +
           Rows(QStringLiteral("select AlarmUniqueID, AlarmLinkAlarmOutID, bAutoOpen, Time from "
                               "AlarmLinkAlarmOutInfo order by 1, 2")) +
           Rows(QStringLiteral("select * from AlarmLinkAlarmOutID order by 1")) +
           Rows(QStringLiteral("select AlarmUniqueID, Day, \"Begin\", \"End\" from AlarmDefenceTimeInfo "
                               "order by 1, 2, 3"));
}
