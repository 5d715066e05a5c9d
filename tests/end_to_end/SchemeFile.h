#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

struct sqlite3;

/// "AlarmScheme.db" as a person with another tool sees it: plain SQL, no code of the product.
class SchemeFile
{
public:
    explicit SchemeFile(const QString& strPath);
    ~SchemeFile();
    SchemeFile(const SchemeFile&) = delete;
    SchemeFile& operator=(const SchemeFile&) = delete;

    /// All rows of a query, their columns joined by "|"; one row "error: ..." when it fails.
    QStringList Rows(const QString& strSql) const;
    bool Execute(const QString& strSql) const;

    /// The flags "bOpen|bOpenSound|bSendEmail" of a scheme; empty when the file does not hold it.
    QString Flags(const QString& strSource, int iType) const;

    /// The outputs "key|bAutoOpen|Time" that a scheme drives, by key.
    QStringList Outputs(const QString& strSource, int iType) const;

    /// The rows of every table that says something about schemes, for comparing files; not their time stamp.
    QStringList Content() const;

private:
    sqlite3* m_pDatabase = nullptr;
};
