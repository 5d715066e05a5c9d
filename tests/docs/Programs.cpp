#include "Programs.h"

#include <QProcess>
#include <QRegularExpression>

Programs::Programs(const QString& strClient, const QString& strScheme)
{
    const QString strHelp = QStringLiteral("--help");
    m_client = OptionsIn(Ask(strClient, {strHelp}));
    static const QRegularExpression command(QStringLiteral("^  ([a-z-]+)  "),
                                            QRegularExpression::MultilineOption);
    auto match = command.globalMatch(Ask(strScheme, {strHelp}));
    while (match.hasNext()) {
        const QString strCommand = match.next().captured(1);
        m_commands.insert(strCommand, OptionsIn(Ask(strScheme, {strCommand, strHelp})));
    }
    if (m_client.isEmpty() || m_commands.isEmpty())
        m_strProblem += QStringLiteral("a program tells no options");
}

QString Programs::Ask(const QString& strProgram, const QStringList& arguments)
{
    QProcess process;
    process.start(strProgram, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        m_strProblem += QStringLiteral("%1 %2: %3\n")
                            .arg(strProgram, arguments.join(QLatin1Char(' ')), process.errorString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

QSet<QString> Programs::OptionsIn(const QString& strText)
{
    static const QRegularExpression option(QStringLiteral("(?<![\\w-])--[a-z]+(?:-[a-z]+)*"));
    QSet<QString> options;
    auto match = option.globalMatch(strText);
    while (match.hasNext())
        options.insert(match.next().captured());
    return options;
}

QString Programs::Listed(const QSet<QString>& options)
{
    QStringList list(options.cbegin(), options.cend());
    list.sort();
    return list.join(QLatin1Char(' '));
}

QSet<QString> Programs::AllOptions() const
{
    QSet<QString> all = m_client;
    for (const QSet<QString>& options : m_commands)
        all += options;
    return all;
}

QString Programs::Complaint(const QString& strCode) const
{
    static const QRegularExpression use(
        QStringLiteral("^(?:\\$ )?(?:[\\w/]*/)?(acs-client|acs-scheme)(?: (.*))?$"));
    const auto match = use.match(strCode);
    if (!match.hasMatch())
        return {};
    const QString strArguments = match.captured(2);
    if (match.captured(1) == QLatin1String("acs-scheme"))
        return SchemeComplaint(strArguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    const QSet<QString> unknown = OptionsIn(strArguments) - m_client;
    return Listed(unknown);
}

QString Programs::SchemeComplaint(const QStringList& words) const
{
    const QString strFirst = words.value(0);
    if (strFirst.isEmpty() || strFirst == QLatin1String("--help") || strFirst == QLatin1String("<command>"))
        return {};
    if (!m_commands.contains(strFirst))
        return QStringLiteral("no command ") + strFirst;
    const QSet<QString> unknown = OptionsIn(words.mid(1).join(QLatin1Char(' '))) - m_commands.value(strFirst);
    return Listed(unknown);
}
