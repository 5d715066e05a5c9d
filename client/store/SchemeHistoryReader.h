#pragma once

#include "client/store/SchemeHistoryFile.h"

#include <QCoreApplication>

#include <memory>
#include <optional>

struct sqlite3;

/// Reads the history beside a scheme file and changes nothing. One object is used on one thread; another
/// program that writes meanwhile is waited for, up to five seconds.
class SchemeHistoryReader
{
    Q_DECLARE_TR_FUNCTIONS(SchemeHistoryReader)

public:
    /// Of the history that lies beside this scheme file.
    explicit SchemeHistoryReader(const QString& strSchemeFile);
    ~SchemeHistoryReader();
    SchemeHistoryReader(const SchemeHistoryReader&) = delete;
    SchemeHistoryReader& operator=(const SchemeHistoryReader&) = delete;

    /// Why there is nothing to read, translated; empty when there is.
    QString Problem() const { return m_strProblem; }

    /// The newest steps first, those before one of them when it is given. Nothing when they cannot be read;
    /// Problem tells why.
    std::optional<QList<SchemeHistoryEntry>> Entries(int iMost, qint64 iBefore = 0);
    /// What one step has changed. Nothing when there is no such step or it cannot be read.
    std::optional<SchemeHistoryChanges> Changes(qint64 iEntry);

    /// What made the schemes change, in a word, translated.
    static QString KindName(SchemeHistoryKind eKind);

private:
    struct Closer
    {
        void operator()(sqlite3* pDatabase) const;
    };
    template <typename Result>
    Result Checked(Result result);

    std::unique_ptr<sqlite3, Closer> m_database;
    std::optional<SchemeHistoryFile> m_history;
    QString m_strProblem;
};
