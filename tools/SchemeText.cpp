#include "tools/SchemeText.h"

#include "platform/SystemLibrary/QCommon.h"
#include "platform/SystemLibrary/ShownText.h"

#include <QJsonArray>
#include <QTextStream>

void SchemeText::Line(QTextStream& out, const QString& strText)
{
    out << ShownText::Whole(strText) << '\n';
}

QJsonObject SchemeText::KeyJson(const AlarmSourceKey& key, const SiteIndex& site)
{
    return {{QStringLiteral("source"), key.strEventSource},
            {QStringLiteral("sourceName"), site.NameOfSource(key.strEventSource)},
            {QStringLiteral("event"), key.AlarmType},
            {QStringLiteral("eventName"), QCommon::GetAlarmNameByType(key.AlarmType)}};
}

QJsonObject SchemeText::ReactionsJson(const SchemeReactions& reactions, const SiteIndex& site)
{
    QJsonArray outputs;
    for (const AlarmLinkAlarmOut& output : reactions.outputs) {
        outputs += QJsonObject{{QStringLiteral("output"), output.strLinkAlarmID},
                               {QStringLiteral("name"), site.NameOfOutput(output.strLinkAlarmID)},
                               {QStringLiteral("seconds"), output.Time}};
    }
    QJsonArray doors;
    for (const AlarmLinkDoor& door : reactions.doors) {
        doors += QJsonObject{{QStringLiteral("door"), door.strDoorID},
                             {QStringLiteral("name"), site.NameOfDoor(door.strDoorID)},
                             {QStringLiteral("keptOpen"), door.bAlwaysOpen}};
    }
    QJsonArray videos;
    for (auto video = reactions.videos.begin(); video != reactions.videos.end(); ++video) {
        videos += QJsonObject{{QStringLiteral("video"), video->strLinkDevID},
                              {QStringLiteral("name"), site.NameOfSource(video->strLinkDevID)},
                              {QStringLiteral("window"), video.key()},
                              {QStringLiteral("shown"), video->bOpen},
                              {QStringLiteral("recorded"), video->bRecord},
                              {QStringLiteral("preset"), video->Preposition},
                              {QStringLiteral("stream"), video->StreamType},
                              {QStringLiteral("seconds"), video->Time}};
    }
    return {{QStringLiteral("sound"), reactions.bSound},
            {QStringLiteral("twinkle"), reactions.bTwinkle},
            {QStringLiteral("mail"), reactions.bMail},
            {QStringLiteral("outputs"), outputs},
            {QStringLiteral("doors"), doors},
            {QStringLiteral("videos"), videos}};
}
