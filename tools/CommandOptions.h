#pragma once

#include "tools/CommandEnvironment.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/// The options of one command: its own, and those that commands share. Answers --help and complains of wrong
/// use by itself.
class CommandOptions
{
    Q_DECLARE_TR_FUNCTIONS(CommandOptions)

public:
    /// `strUsage` is what follows the command's name in the usage line.
    CommandOptions(const QString& strDescription, const QString& strUsage);

    /// --format text|json.
    void AddFormat();
    /// --data-dir DIR and --database FILE, of which one may be given.
    void AddDatabase();
    /// --site FILE.
    void AddSite();
    /// An option with a value; `strValue` is the value's name in the help.
    void Add(const QString& strName, const QString& strDescription, const QString& strValue);
    void AddFlag(const QString& strName, const QString& strDescription);
    /// How many arguments without a dash the command takes; none unless it is said here.
    void SetArguments(int iLeast, int iMost);

    /// Nothing when the command is to go on; otherwise it has been answered and this is the exit code.
    std::optional<int> Parse(const QStringList& arguments, CommandEnvironment& environment);
    /// For what a command finds wrong by itself: says why and gives the exit code.
    static int WrongUse(CommandEnvironment& environment, const QString& strWhy);

    // After Parse:
    bool IsSet(const QString& strName) const { return m_parser.isSet(strName); }
    QString Value(const QString& strName) const { return m_parser.value(strName); } ///< empty when not set
    QStringList Arguments() const { return m_parser.positionalArguments(); }
    bool IsJson() const { return m_bJson; }
    /// The database to work on, absolute; that of the client's own data directory unless told otherwise.
    QString DatabaseFile() const { return m_strDatabase; }
    /// The data directory; empty when only a database was named.
    QString DataDirectory() const { return m_strDataDirectory; }
    /// The site file for names, absolute; that of the data directory unless told otherwise, then it need not
    /// exist. Empty when only a database was named.
    QString SiteFile() const { return m_strSite; }

private:
    QString Problem(const CommandEnvironment& environment);
    QString EmptyOption() const;

    QCommandLineParser m_parser;
    QStringList m_valued;
    QString m_strUsage;
    QString m_strDatabase;
    QString m_strDataDirectory;
    QString m_strSite;
    int m_iLeast = 0;
    int m_iMost = 0;
    bool m_bFormat = false;
    bool m_bDatabase = false;
    bool m_bJson = false;
};
