#include "tools/CommandOptions.h"

#include "tools/Command.h"

#include <QDir>
#include <QTextStream>

#include <algorithm>

namespace {

QString Absolute(const QString& strPath)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(strPath));
}

QString Below(const QString& strDirectory, const QString& strFile)
{
    return QDir::cleanPath(QDir(strDirectory).absoluteFilePath(strFile));
}

} // namespace

CommandOptions::CommandOptions(const QString& strDescription, const QString& strUsage)
    : m_strUsage(strUsage)
{
    m_parser.setApplicationDescription(strDescription);
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this help.")});
}

void CommandOptions::AddFormat()
{
    m_bFormat = true;
    Add(QStringLiteral("format"), tr("How the result is written; text unless it is said here."),
        QStringLiteral("text|json"));
}

void CommandOptions::AddDatabase()
{
    m_bDatabase = true;
    Add(QStringLiteral("data-dir"), tr("Works on the data of this directory instead of the client's own."),
        QStringLiteral("DIR"));
    Add(QStringLiteral("database"), tr("Works on this database file."), QStringLiteral("FILE"));
}

void CommandOptions::AddSite()
{
    Add(QStringLiteral("site"), tr("Takes devices and names from this site file."), QStringLiteral("FILE"));
}

void CommandOptions::Add(const QString& strName, const QString& strDescription, const QString& strValue)
{
    m_parser.addOption({strName, strDescription, strValue});
    m_valued.append(strName);
}

void CommandOptions::AddFlag(const QString& strName, const QString& strDescription)
{
    m_parser.addOption({strName, strDescription});
}

void CommandOptions::SetArguments(int iLeast, int iMost)
{
    m_iLeast = iLeast;
    m_iMost = iMost;
}

std::optional<int> CommandOptions::Parse(const QStringList& arguments, CommandEnvironment& environment)
{
    if (!m_parser.parse(arguments))
        return WrongUse(environment, m_parser.errorText());
    if (m_parser.isSet(QStringLiteral("help"))) {
        // The parser names the program only; the rest of its text is what is wanted here.
        const QString strText = m_parser.helpText();
        environment.out << tr("Usage: %1 %2").arg(arguments.first(), m_strUsage).trimmed()
                        << strText.mid(strText.indexOf(QLatin1Char('\n')));
        return ExitCode::Done;
    }
    const QString strProblem = Problem(environment);
    if (!strProblem.isEmpty())
        return WrongUse(environment, strProblem);
    return std::nullopt;
}

int CommandOptions::WrongUse(CommandEnvironment& environment, const QString& strWhy)
{
    environment.err << strWhy << '\n';
    return ExitCode::WrongUse;
}

QString CommandOptions::EmptyOption() const
{
    const auto empty = std::find_if(m_valued.begin(), m_valued.end(), [this](const QString& strName) {
        return m_parser.isSet(strName) && m_parser.value(strName).isEmpty();
    });
    return empty == m_valued.end() ? QString() : *empty;
}

QString CommandOptions::Problem(const CommandEnvironment& environment)
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.size() > m_iMost)
        return tr("Unexpected argument \"%1\".").arg(arguments.at(m_iMost));
    if (arguments.size() < m_iLeast || arguments.contains(QString()))
        return tr("An argument is missing; the usage is \"%1\".").arg(m_strUsage);
    const QString strEmpty = EmptyOption();
    if (!strEmpty.isEmpty())
        return tr("--%1 needs a value.").arg(strEmpty);

    if (m_bFormat && m_parser.isSet(QStringLiteral("format"))) {
        const QString strFormat = m_parser.value(QStringLiteral("format"));
        m_bJson = strFormat == QLatin1String("json");
        if (!m_bJson && strFormat != QLatin1String("text"))
            return tr("--format takes \"text\" or \"json\".");
    }
    if (m_bDatabase) {
        const bool named = m_parser.isSet(QStringLiteral("database"));
        const bool directory = m_parser.isSet(QStringLiteral("data-dir"));
        if (named && directory)
            return tr("--database and --data-dir exclude each other.");
        if (named) {
            m_strDatabase = Absolute(m_parser.value(QStringLiteral("database")));
        } else {
            m_strDataDirectory = directory ? Absolute(m_parser.value(QStringLiteral("data-dir")))
                                           : environment.strDefaultDataDirectory;
            m_strDatabase = Below(m_strDataDirectory, QStringLiteral("Database/AlarmScheme.db"));
            m_strSite = Below(m_strDataDirectory, QStringLiteral("site.json"));
        }
    }
    if (m_valued.contains(QStringLiteral("site")) && m_parser.isSet(QStringLiteral("site")))
        m_strSite = Absolute(m_parser.value(QStringLiteral("site")));
    return {};
}
