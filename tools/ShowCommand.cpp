#include "tools/ShowCommand.h"

#include "scheme_services/evaluation/SchemeWords.h"
#include "scheme_services/exchange/SchemeTextWriter.h"
#include "tools/SchemeInput.h"
#include "tools/SchemeText.h"

#include <QLocale>
#include <QTextStream>

#include <optional>

QString ShowCommand::Name() const
{
    return QStringLiteral("show");
}

QString ShowCommand::Description() const
{
    return tr("Shows everything that is set in a scheme.");
}

int ShowCommand::Run(const QStringList& arguments, CommandEnvironment& environment)
{
    const QString source = QStringLiteral("source");
    const QString event = QStringLiteral("event");
    CommandOptions options(Description(), tr("--source S --event TYPE [options]"));
    SchemeInput::AddSourceAndEvent(options);
    SchemeInput::AddInput(options);
    if (const std::optional<int> code = options.Parse(arguments, environment))
        return *code;
    for (const QString& strName : {source, event}) {
        if (!options.IsSet(strName))
            return CommandOptions::WrongUse(environment, tr("--%1 is missing.").arg(strName));
    }
    SchemeInput input;
    if (const std::optional<int> code = input.Read(options, environment))
        return *code;
    const std::optional<QString> strSource = input.Source(options.Value(source), environment);
    if (!strSource)
        return ExitCode::WrongUse;
    const std::optional<int32_t> type = input.Event(options.Value(event), environment);
    if (!type)
        return ExitCode::WrongUse;

    const std::optional<AlarmSourceKey> key = EventSource::SchemeKey(*strSource, *type);
    const auto scheme = key ? input.schemes.constFind(*key) : input.schemes.constEnd();
    if (scheme == input.schemes.constEnd()) {
        environment.err
            << tr("There is no scheme for %1.").arg(SchemeWords::Name({*strSource, *type}, input.site))
            << '\n';
        return ExitCode::Finding;
    }
    if (!options.IsJson()) {
        Write(scheme.key(), scheme.value(), input.site, environment.out);
        return ExitCode::Done;
    }
    // The same text as an export of this scheme alone.
    SchemeTextWriter writer;
    QByteArray text;
    const bool written = writer.Write({{scheme.key(), scheme.value()}}, [&text](const QByteArray& piece) {
        text += piece;
        return true;
    });
    if (!written) {
        environment.err << writer.Failure() << '\n';
        return ExitCode::Failure;
    }
    environment.out << QString::fromUtf8(text);
    return ExitCode::Done;
}

void ShowCommand::Write(const AlarmSourceKey& key, const AlarmInfo& info, const SiteIndex& site,
                        QTextStream& out)
{
    const QStringList lines = Lines(key, info, site);
    for (const QString& strLine : lines)
        SchemeText::Line(out, strLine);
}

QStringList ShowCommand::Lines(const AlarmSourceKey& key, const AlarmInfo& info, const SiteIndex& site)
{
    const auto yesNo = [](bool bYes) { return bYes ? tr("yes") : tr("no"); };
    const QString strIndent = QStringLiteral("  ");
    QStringList lines{SchemeWords::Name(key, site),
                      tr("Key: %1, event type %2").arg(key.strEventSource, QString::number(key.AlarmType)),
                      tr("Switched on: %1").arg(yesNo(info.bOpen)),
                      tr("Sound: %1").arg(yesNo(info.bOpenSound)),
                      tr("Twinkle on the e-map: %1").arg(yesNo(info.bEmapTwinkle)),
                      tr("Mail: %1").arg(yesNo(info.bSendEmail))};
    lines += info.listAlarmOut.isEmpty() ? tr("Outputs: none") : tr("Outputs:");
    for (const AlarmLinkAlarmOut& link : info.listAlarmOut) {
        const QString strHow = link.bAutoOpen ? tr("%1 (%2): switched on for %3 s")
                                              : tr("%1 (%2): not switched on by itself, for %3 s otherwise");
        lines += strIndent + strHow.arg(site.NameOfOutput(link.strLinkAlarmID), link.strLinkAlarmID,
                                        QString::number(link.Time));
    }
    lines += info.listDoor.isEmpty() ? tr("Doors: none") : tr("Doors:");
    for (const AlarmLinkDoor& link : info.listDoor) {
        const QString strHow = link.bAlwaysOpen ? tr("%1 (%2): kept open") : tr("%1 (%2): opened");
        lines += strIndent + strHow.arg(site.NameOfDoor(link.strDoorID), link.strDoorID);
    }
    const AlarmVideoSplit& split = info.videoSplit;
    lines += split.videoLinks.isEmpty() ? tr("Video: none") : tr("Video:");
    for (auto link = split.videoLinks.begin(); link != split.videoLinks.end(); ++link) {
        lines += strIndent + tr("Window %1: %2 (%3), shown: %4, recorded: %5, preset %6, stream %7, %8 s")
                                 .arg(QString::number(link.key()), site.NameOfSource(link->strLinkDevID),
                                      link->strLinkDevID, yesNo(link->bOpen), yesNo(link->bRecord),
                                      QString::number(link->Preposition), QString::number(link->StreamType),
                                      QString::number(link->Time));
    }
    lines += tr("Video windows: %1 rows, %2 columns, %3 used")
                 .arg(split.SplitRow)
                 .arg(split.SplitCloum)
                 .arg(split.SplitCount);
    lines += tr("Defence time:");
    // The locale counts Monday as 1 and Sunday as 7.
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        lines += strIndent + tr("%1: %2", "day of the week, regions")
                                 .arg(QLocale().standaloneDayName(day == 0 ? 7 : day),
                                      SchemeWords::Day(info.defenceTime[day]));
    }
    return lines;
}
