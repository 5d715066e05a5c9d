#pragma once

#include "client/UserRole.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What was asked for on the command line. Paths are absolute; empty texts mean "not given".
struct ClientOptions
{
    QString strDataDirectory;
    QString strSiteFile;
    UserRole role = UserRole::Administrator;
    QString strLanguage; ///< "en", "zh_cn" or empty
    QString strTheme;    ///< "dark", "light" or empty
    QString strOpenModule;
    QString strPictureFile;
};

/// What became of a command line: options to start with, or a text to print and an exit code to end with.
struct ParsedOptions
{
    enum class Outcome
    {
        Start, ///< start with the options
        Print, ///< print the text to standard output and end with 0
        Refuse ///< print the text to standard error and end with ExitWrongOptions
    };
    Outcome outcome = Outcome::Start;
    ClientOptions options;
    QString strText;
};

/// Reads the command line of acs-client. Looks at nothing but its arguments; needs an application object,
/// with or without a display, for the texts.
class ClientOptionParser
{
    Q_DECLARE_TR_FUNCTIONS(ClientOptionParser)

public:
    static constexpr int ExitWrongOptions = 2;

    /// `arguments` begin with the program's name. Relative paths are taken from `strWorkingDirectory`.
    static ParsedOptions Parse(const QStringList& arguments, const QString& strWorkingDirectory);
    /// The arguments without those that belong to the window toolkit ("-platform offscreen" and the like).
    static QStringList WithoutToolkitArguments(const QStringList& arguments);

    ClientOptionParser() = delete;
};
