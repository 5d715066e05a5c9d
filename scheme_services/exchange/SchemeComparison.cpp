#include "scheme_services/exchange/SchemeComparison.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace {

constexpr int SchemesBetweenLooks = 256;

using Fields = QVector<SchemeFieldDifference>;

QJsonObject ToJson(const AlarmLinkAlarmOut& link)
{
    return {{QStringLiteral("bAutoOpen"), link.bAutoOpen}, {QStringLiteral("Time"), link.Time}};
}

QJsonObject ToJson(const AlarmLinkDoor& link)
{
    return {{QStringLiteral("bAlwaysOpen"), link.bAlwaysOpen}};
}

QJsonObject ToJson(const AlarmLinkVideo& link)
{
    return {{QStringLiteral("strLinkDevID"), link.strLinkDevID},
            {QStringLiteral("Preposition"), link.Preposition},
            {QStringLiteral("StreamType"), link.StreamType},
            {QStringLiteral("bOpen"), link.bOpen},
            {QStringLiteral("bRecord"), link.bRecord},
            {QStringLiteral("Time"), link.Time}};
}

QJsonObject ToJson(const AlarmSplitWindow& cell)
{
    return {{QStringLiteral("bEnable"), cell.bEnable}, {QStringLiteral("iCombine"), cell.iCombine},
            {QStringLiteral("X1"), cell.X1},           {QStringLiteral("Y1"), cell.Y1},
            {QStringLiteral("X2"), cell.X2},           {QStringLiteral("Y2"), cell.Y2}};
}

QJsonArray ToJson(const AlarmDefenceTime_t& regions)
{
    QJsonArray array;
    for (const AlarmTimeRegion& region : regions) {
        array.append(
            QJsonObject{{QStringLiteral("Begin"), region.Begin}, {QStringLiteral("End"), region.End}});
    }
    return array;
}

const QString& IdOf(const AlarmLinkAlarmOut& link)
{
    return link.strLinkAlarmID;
}

const QString& IdOf(const AlarmLinkDoor& link)
{
    return link.strDoorID;
}

class FieldComparer
{
public:
    Fields Take() { return std::move(m_fields); }

    void Compare(const QString& strField, const QJsonValue& before, const QJsonValue& after)
    {
        if (before != after)
            m_fields.append({strField, before, after});
    }

    /// Objects field by field; one that only one side has is one difference.
    void CompareObjects(const QString& strName, const QStringList& order, const QJsonObject* pBefore,
                        const QJsonObject* pAfter)
    {
        if (pBefore == nullptr || pAfter == nullptr) {
            m_fields.append({strName, pBefore != nullptr ? QJsonValue(*pBefore) : Nothing(),
                             pAfter != nullptr ? QJsonValue(*pAfter) : Nothing()});
            return;
        }
        for (const QString& field : order)
            Compare(strName + QLatin1Char('.') + field, pBefore->value(field), pAfter->value(field));
    }

    template <typename Link>
    void CompareLinks(const QString& strList, const QStringList& order, const QList<Link>& before,
                      const QList<Link>& after)
    {
        const QStringList idsBefore = Ids(before);
        const QStringList idsAfter = Ids(after);
        const QSet<QString> setBefore(idsBefore.cbegin(), idsBefore.cend());
        const QSet<QString> setAfter(idsAfter.cbegin(), idsAfter.cend());
        // Whatever else wrote the file may have linked a thing twice; then only the whole lists tell.
        if (setBefore.size() != before.size() || setAfter.size() != after.size()) {
            Compare(strList, Whole(before), Whole(after));
            return;
        }
        const auto name = [&strList](const QString& strId) {
            return QStringLiteral("%1[%2]").arg(strList, strId);
        };
        for (const Link& link : before) {
            const QJsonObject was = ToJson(link);
            const int at = idsAfter.indexOf(IdOf(link));
            const QJsonObject is = at >= 0 ? ToJson(after.at(at)) : QJsonObject();
            CompareObjects(name(IdOf(link)), order, &was, at >= 0 ? &is : nullptr);
        }
        for (const Link& link : after) {
            const QJsonObject is = ToJson(link);
            if (!setBefore.contains(IdOf(link)))
                CompareObjects(name(IdOf(link)), order, nullptr, &is);
        }
        if (Common(idsBefore, setAfter) != Common(idsAfter, setBefore))
            Compare(strList, QJsonArray::fromStringList(idsBefore), QJsonArray::fromStringList(idsAfter));
    }

private:
    static QJsonValue Nothing() { return QJsonValue(QJsonValue::Undefined); }

    template <typename Link>
    static QStringList Ids(const QList<Link>& links)
    {
        QStringList ids;
        for (const Link& link : links)
            ids.append(IdOf(link));
        return ids;
    }
    static QStringList Common(const QStringList& ids, const QSet<QString>& others)
    {
        QStringList common;
        std::copy_if(ids.cbegin(), ids.cend(), std::back_inserter(common),
                     [&others](const QString& id) { return others.contains(id); });
        return common;
    }
    template <typename Link>
    static QJsonArray Whole(const QList<Link>& links)
    {
        QJsonArray array;
        for (const Link& link : links) {
            QJsonObject object = ToJson(link);
            object.insert(QStringLiteral("id"), IdOf(link));
            array.append(object);
        }
        return array;
    }

    Fields m_fields;
};

void CompareSplits(FieldComparer& comparer, const AlarmVideoSplit& before, const AlarmVideoSplit& after)
{
    static const QStringList cellFields = {QStringLiteral("bEnable"), QStringLiteral("iCombine"),
                                           QStringLiteral("X1"),      QStringLiteral("Y1"),
                                           QStringLiteral("X2"),      QStringLiteral("Y2")};
    static const QStringList linkFields = {QStringLiteral("strLinkDevID"), QStringLiteral("Preposition"),
                                           QStringLiteral("StreamType"),   QStringLiteral("bOpen"),
                                           QStringLiteral("bRecord"),      QStringLiteral("Time")};
    comparer.Compare(QStringLiteral("split.SplitRow"), before.SplitRow, after.SplitRow);
    comparer.Compare(QStringLiteral("split.SplitCloum"), before.SplitCloum, after.SplitCloum);
    comparer.Compare(QStringLiteral("split.SplitCount"), before.SplitCount, after.SplitCount);
    const bool shared = before.cells.IsSharedWith(after.cells);
    for (int window = 0; !shared && window < AlarmSplitCells::CellCount; ++window) {
        if (before.cells[window] == after.cells[window])
            continue;
        const QJsonObject was = ToJson(before.cells[window]);
        const QJsonObject is = ToJson(after.cells[window]);
        comparer.CompareObjects(QStringLiteral("split.cells[%1]").arg(window), cellFields, &was, &is);
    }
    if (before.videoLinks == after.videoLinks)
        return;
    std::vector<int32_t> windows(before.videoLinks.keyBegin(), before.videoLinks.keyEnd());
    windows.insert(windows.end(), after.videoLinks.keyBegin(), after.videoLinks.keyEnd());
    std::sort(windows.begin(), windows.end());
    windows.erase(std::unique(windows.begin(), windows.end()), windows.end());
    for (const int32_t window : windows) {
        const auto was = before.videoLinks.constFind(window);
        const auto is = after.videoLinks.constFind(window);
        const QJsonObject old = was != before.videoLinks.cend() ? ToJson(*was) : QJsonObject();
        const QJsonObject now = is != after.videoLinks.cend() ? ToJson(*is) : QJsonObject();
        comparer.CompareObjects(QStringLiteral("videoLinks[%1]").arg(window), linkFields,
                                was != before.videoLinks.cend() ? &old : nullptr,
                                is != after.videoLinks.cend() ? &now : nullptr);
    }
}

} // namespace

QVector<SchemeFieldDifference> SchemeComparison::Fields(const AlarmInfo& before, const AlarmInfo& after)
{
    FieldComparer comparer;
    if (before == after)
        return comparer.Take();
    comparer.Compare(QStringLiteral("bOpen"), before.bOpen, after.bOpen);
    comparer.Compare(QStringLiteral("bOpenSound"), before.bOpenSound, after.bOpenSound);
    comparer.Compare(QStringLiteral("bEmapTwinkle"), before.bEmapTwinkle, after.bEmapTwinkle);
    comparer.Compare(QStringLiteral("bSendEmail"), before.bSendEmail, after.bSendEmail);
    CompareSplits(comparer, before.videoSplit, after.videoSplit);
    if (!(before.listAlarmOut == after.listAlarmOut)) {
        comparer.CompareLinks(QStringLiteral("alarmOut"),
                              {QStringLiteral("bAutoOpen"), QStringLiteral("Time")}, before.listAlarmOut,
                              after.listAlarmOut);
    }
    if (!(before.listDoor == after.listDoor)) {
        comparer.CompareLinks(QStringLiteral("doors"), {QStringLiteral("bAlwaysOpen")}, before.listDoor,
                              after.listDoor);
    }
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        if (before.defenceTime[day] != after.defenceTime[day]) {
            comparer.Compare(QStringLiteral("defenceTime[%1]").arg(day), ToJson(before.defenceTime[day]),
                             ToJson(after.defenceTime[day]));
        }
    }
    return comparer.Take();
}

SchemeComparison::Counts SchemeComparison::Compare(const AlarmInfoMap& before, const AlarmInfoMap& after,
                                                   const Use& use, const Progress& progress)
{
    using Kind = SchemeDifference::Kind;
    Counts counts;
    const auto tell = [&use](const AlarmSourceKey& key, Kind eKind, int& iCount) {
        ++iCount;
        if (use)
            use(SchemeDifference{key, eKind, {}});
    };
    auto a = before.cbegin();
    auto b = after.cbegin();
    for (int step = 0; a != before.cend() || b != after.cend(); ++step) {
        if (progress && step % SchemesBetweenLooks == 0)
            progress(step, std::max(before.size(), after.size()));
        if (b == after.cend() || (a != before.cend() && a.key() < b.key())) {
            tell(a.key(), Kind::Removed, counts.iRemoved);
            ++a;
        } else if (a == before.cend() || b.key() < a.key()) {
            tell(b.key(), Kind::Added, counts.iAdded);
            ++b;
        } else {
            if (*a == *b) {
                ++counts.iEqual;
            } else {
                ++counts.iChanged;
                if (use)
                    use(SchemeDifference{a.key(), Kind::Changed, Fields(*a, *b)});
            }
            ++a;
            ++b;
        }
    }
    return counts;
}
