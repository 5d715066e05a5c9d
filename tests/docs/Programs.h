#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// What the programs say of themselves when they are asked for help.
class Programs
{
public:
    Programs(const QString& strClient, const QString& strScheme);

    bool IsComplete() const { return m_strProblem.isEmpty(); }
    const QString& Problem() const { return m_strProblem; }

    QStringList Commands() const { return m_commands.keys(); }
    QSet<QString> OptionsOf(const QString& strCommand) const { return m_commands.value(strCommand); }
    const QSet<QString>& ClientOptions() const { return m_client; }
    QSet<QString> AllOptions() const;

    /// What is wrong in a piece of code that uses one of the programs; empty when nothing is, or when it uses
    /// neither.
    QString Complaint(const QString& strCode) const;

    static QSet<QString> OptionsIn(const QString& strText);
    static QString Listed(const QSet<QString>& options); ///< sorted, empty for none

private:
    QString Ask(const QString& strProgram, const QStringList& arguments);
    QString SchemeComplaint(const QStringList& words) const;

    QHash<QString, QSet<QString>> m_commands;
    QSet<QString> m_client;
    QString m_strProblem;
};
