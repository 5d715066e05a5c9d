#include "platform/lxl/LogLine.h"

#include <QLocale>

#include <iterator>

namespace lxl {

QString SourceBaseName(const QString& strPath)
{
    const int slash = qMax(strPath.lastIndexOf(QLatin1Char('/')), strPath.lastIndexOf(QLatin1Char('\\')));
    return strPath.mid(slash + 1);
}

QString LevelName(int iLevel)
{
    static const QLatin1String names[] = {
        QLatin1String("TRACE"),   QLatin1String("DEBUG"), QLatin1String("INFO"),  QLatin1String("NOTICE"),
        QLatin1String("WARNING"), QLatin1String("ERROR"), QLatin1String("FATAL"),
    };
    if (iLevel < 1 || iLevel > static_cast<int>(std::size(names)))
        return QString::number(iLevel);
    return names[iLevel - 1];
}

QString OneLine(const QString& strText)
{
    QString line;
    line.reserve(strText.size());
    for (const QChar c : strText) {
        if (c == QLatin1Char('\n')) {
            line += QLatin1String("\\n");
        } else if (c == QLatin1Char('\r')) {
            line += QLatin1String("\\r");
        } else if (c == QLatin1Char('\t') || (c.unicode() >= 0x20 && c.unicode() != 0x7F)) {
            line += c;
        } else {
            line += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        }
    }
    return line;
}

std::string LogLine(const QDateTime& time, const QString& strFile, int iLine, const QString& strFunction,
                    const QString& strModule, int iLevel, const QString& strMessage)
{
    const QString module = strModule.isEmpty() ? QString() : QStringLiteral("[%1] ").arg(strModule);
    const QString text =
        QStringLiteral("%1 %2 %3:%4 %5 %6%7")
            .arg(QLocale::c().toString(time, QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz")), LevelName(iLevel),
                 SourceBaseName(strFile), QString::number(iLine), strFunction, module, strMessage);
    return OneLine(text).toStdString() + '\n';
}

} // namespace lxl
