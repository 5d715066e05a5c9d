#include "tools/DifferenceText.h"

#include "platform/SystemLibrary/ShownText.h"
#include "scheme_services/evaluation/SchemeWords.h"
#include "tools/SchemeText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace {

const QLatin1String DayField("defenceTime[");

QString KindWord(SchemeDifference::Kind eKind)
{
    switch (eKind) {
    case SchemeDifference::Kind::Added:
        return QStringLiteral("added");
    case SchemeDifference::Kind::Removed:
        return QStringLiteral("removed");
    case SchemeDifference::Kind::Changed:
        break;
    }
    return QStringLiteral("changed");
}

QJsonValue Null(const QJsonValue& value)
{
    return value.isUndefined() ? QJsonValue(QJsonValue::Null) : value;
}

} // namespace

QString DifferenceText::Value(const QString& strField, const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? tr("yes") : tr("no");
    case QJsonValue::Double:
        return QString::number(value.toInt());
    case QJsonValue::String:
        return value.toString().isEmpty() ? tr("empty") : ShownText::Short(value.toString());
    case QJsonValue::Object: {
        QStringList parts;
        const QJsonObject object = value.toObject();
        for (auto part = object.begin(); part != object.end(); ++part)
            parts.append(QStringLiteral("%1 %2").arg(part.key(), Value(QString(), part.value())));
        return parts.join(QLatin1String(", "));
    }
    case QJsonValue::Array: {
        if (strField.startsWith(DayField)) {
            AlarmDefenceTime_t regions;
            const QJsonArray array = value.toArray();
            for (const QJsonValue& region : array) {
                regions.append(AlarmTimeRegion{region.toObject().value(QStringLiteral("Begin")).toInt(),
                                               region.toObject().value(QStringLiteral("End")).toInt()});
            }
            return SchemeWords::Day(regions);
        }
        return ShownText::Short(
            QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact)));
    }
    default:
        return tr("none");
    }
}

QString DifferenceText::Field(const SchemeFieldDifference& field)
{
    QString name = ShownText::Short(field.strField);
    if (field.strField.startsWith(DayField)) {
        // The locale counts Monday as 1 and Sunday as 7.
        const int day = field.strField.at(DayField.size()).digitValue();
        name = QLocale().standaloneDayName(day == 0 ? 7 : day);
    }
    return tr("%1: %2 -> %3", "field, before, after")
        .arg(name, Value(field.strField, field.before), Value(field.strField, field.after));
}

QString DifferenceText::Scheme(const AlarmSourceKey& key, const SiteIndex& site)
{
    return QStringLiteral("%1 [%2, %3]")
        .arg(ShownText::Short(SchemeWords::Name(key, site)), ShownText::Short(key.strEventSource),
             QString::number(key.AlarmType));
}

QString DifferenceText::Lines(const SchemeDifference& difference, const SiteIndex& site)
{
    const auto heading = [&difference] {
        switch (difference.eKind) {
        case SchemeDifference::Kind::Added:
            return tr("added    %1");
        case SchemeDifference::Kind::Removed:
            return tr("removed  %1");
        case SchemeDifference::Kind::Changed:
            break;
        }
        return tr("changed  %1");
    };
    QString lines = heading().arg(Scheme(difference.key, site)) + QLatin1Char('\n');
    for (const SchemeFieldDifference& field : difference.fields)
        lines += QLatin1String("  ") + Field(field) + QLatin1Char('\n');
    return lines;
}

QJsonObject DifferenceText::Json(const SchemeDifference& difference, const SiteIndex& site)
{
    QJsonObject json = SchemeText::KeyJson(difference.key, site);
    json.insert(QStringLiteral("difference"), KindWord(difference.eKind));
    if (difference.eKind != SchemeDifference::Kind::Changed)
        return json;
    QJsonArray fields;
    for (const SchemeFieldDifference& field : difference.fields) {
        fields.append(QJsonObject{{QStringLiteral("field"), field.strField},
                                  {QStringLiteral("before"), Null(field.before)},
                                  {QStringLiteral("after"), Null(field.after)}});
    }
    json.insert(QStringLiteral("fields"), fields);
    return json;
}

QString DifferenceText::Counts(const SchemeComparison::Counts& counts)
{
    return tr("Added: %1, removed: %2, changed: %3, equal: %4")
        .arg(counts.iAdded)
        .arg(counts.iRemoved)
        .arg(counts.iChanged)
        .arg(counts.iEqual);
}

QJsonObject DifferenceText::CountsJson(const SchemeComparison::Counts& counts)
{
    return {{QStringLiteral("added"), counts.iAdded},
            {QStringLiteral("removed"), counts.iRemoved},
            {QStringLiteral("changed"), counts.iChanged},
            {QStringLiteral("equal"), counts.iEqual}};
}
