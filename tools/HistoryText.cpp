#include "tools/HistoryText.h"

#include "client/store/SchemeHistoryReader.h"
#include "platform/SystemLibrary/ShownText.h"
#include "tools/Command.h"

#include <QTextStream>

#include <algorithm>
#include <limits>

namespace {

QString KindWord(SchemeHistoryKind eKind)
{
    switch (eKind) {
    case SchemeHistoryKind::Start:
        return QStringLiteral("start");
    case SchemeHistoryKind::Save:
        return QStringLiteral("save");
    case SchemeHistoryKind::Outside:
        return QStringLiteral("outside");
    case SchemeHistoryKind::Revert:
        return QStringLiteral("revert");
    case SchemeHistoryKind::Import:
        return QStringLiteral("import");
    case SchemeHistoryKind::Restore:
        break;
    }
    return QStringLiteral("restore");
}

} // namespace

std::optional<qint64> HistoryText::Number(const QString& strText, CommandEnvironment& environment)
{
    const bool digits = std::all_of(strText.begin(), strText.end(),
                                    [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
    bool number = false;
    const qint64 step = strText.toLongLong(&number);
    if (digits && number && step > 0 && step < std::numeric_limits<qint64>::max())
        return step;
    environment.err << tr("\"%1\" is no number of a step.").arg(ShownText::Short(strText)) << '\n';
    return std::nullopt;
}

QString HistoryText::Time(const SchemeHistoryEntry& entry)
{
    return entry.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString HistoryText::Line(const SchemeHistoryEntry& entry)
{
    const QString who = entry.strWho.isEmpty() ? tr("unknown") : ShownText::Short(entry.strWho);
    const QString line = tr("%1  %2  %3, %4, schemes: %5", "number, time, who, what")
                             .arg(entry.iId)
                             .arg(Time(entry), who, SchemeHistoryReader::KindName(entry.eKind))
                             .arg(entry.iSchemes);
    return entry.strNote.isEmpty() ? line
                                   : line + QStringLiteral(" (%1)").arg(ShownText::Short(entry.strNote));
}

QJsonObject HistoryText::Json(const SchemeHistoryEntry& entry)
{
    return {{QStringLiteral("step"), static_cast<double>(entry.iId)},
            {QStringLiteral("time"), entry.time.toUTC().toString(Qt::ISODateWithMs)},
            {QStringLiteral("who"), entry.strWho},
            {QStringLiteral("what"), KindWord(entry.eKind)},
            {QStringLiteral("note"), entry.strNote},
            {QStringLiteral("count"), entry.iSchemes}};
}

SchemeDifference HistoryText::Difference(const SchemeHistoryChange& change)
{
    using Kind = SchemeDifference::Kind;
    if (!change.before)
        return {change.key, Kind::Added, {}};
    if (!change.after)
        return {change.key, Kind::Removed, {}};
    return {change.key, Kind::Changed, SchemeComparison::Fields(*change.before, *change.after)};
}
