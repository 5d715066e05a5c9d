#include "scheme_services/exchange/SchemeTextHandler.h"

#include "platform/SystemLibrary/ShownText.h"
#include "scheme_services/exchange/SchemeTextRules.h"

#include <algorithm>
#include <limits>

using namespace SchemeTextFields;

namespace {

/// Nothing that could be meant nests deeper.
constexpr int MostSkippedLevels = 1000;
/// A field that is unknown or has come before.
constexpr int NoField = -1;

/// Of a record, what names it; of a scheme two.
constexpr unsigned FirstField = 1;
constexpr unsigned BothKeyFields = 3;

constexpr char FormatName[] = "alarm-schemes";
constexpr int32_t FormatVersion = 1;

QString TextOf(const char* text, rapidjson::SizeType length, bool* pSound)
{
    const int size = static_cast<int>(length);
    QString result = QString::fromUtf8(text, size);
    // An escape may have named one half of a pair.
    *pSound = !result.contains(QChar(QChar::ReplacementCharacter)) ||
              result.toUtf8() == QByteArray::fromRawData(text, size);
    return result;
}

} // namespace

SchemeTextHandler::SchemeTextHandler(const SchemeTextStream& stream, AlarmInfoMap& map,
                                     QVector<SchemeTextProblem>& problems)
    : m_stream(stream)
    , m_map(map)
    , m_problems(problems)
{
}

bool SchemeTextHandler::Complain(int iLine, const QString& strReason)
{
    if (m_problems.size() >= MostProblems)
        return End(iLine, tr("there are more problems; the rest was not looked at"));
    m_problems.append({iLine, strReason});
    return true;
}

bool SchemeTextHandler::End(int iLine, const QString& strReason)
{
    if (!m_bEnded)
        m_problems.append({iLine, strReason});
    m_bEnded = true;
    return false;
}

const Field* SchemeTextHandler::Awaited() const
{
    const Level& level = m_levels.back();
    return level.iField == NoField ? nullptr : FieldsOf(level.eScope).pFirst + level.iField;
}

/// What should have stood where something else stands.
QString SchemeTextHandler::Expectation() const
{
    const Field* const field = Awaited();
    if (field == nullptr)
        return m_levels.back().eScope == Scope::Week ? tr("a day must be a list")
                                                     : tr("the entries of this list must be objects");
    const QString name = QLatin1String(field->szName);
    switch (field->eKind) {
    case Kind::Text:
    case Kind::Key:
        return tr("\"%1\" must be a text").arg(name);
    case Kind::Number:
        return tr("\"%1\" must be a whole number from %2 to %3")
            .arg(name)
            .arg(std::numeric_limits<int32_t>::min())
            .arg(std::numeric_limits<int32_t>::max());
    case Kind::Flag:
        return tr("\"%1\" must be true or false").arg(name);
    case Kind::Object:
        return tr("\"%1\" must be an object").arg(name);
    case Kind::List:
        break;
    }
    return tr("\"%1\" must be a list").arg(name);
}

/// A value that does not belong where it stands.
bool SchemeTextHandler::Refuse()
{
    if (m_iSkipped > 0)
        return true;
    if (m_levels.empty())
        return End(m_stream.Line(), tr("this is no file of alarm schemes"));
    Level& level = Top();
    const bool complain = IsList(level.eScope) || level.iField != NoField;
    ++level.iEntries;
    return !complain || Complain(m_stream.Line(), Expectation());
}

bool SchemeTextHandler::Null()
{
    return Refuse();
}

bool SchemeTextHandler::Bool(bool b)
{
    const Field* const field = m_iSkipped > 0 || m_levels.empty() ? nullptr : Awaited();
    if (field == nullptr || field->eKind != Kind::Flag)
        return Refuse();
    field->setFlag(m_draft, b);
    return Take();
}

bool SchemeTextHandler::RawNumber(const char* text, rapidjson::SizeType length, bool)
{
    const Field* const field = m_iSkipped > 0 || m_levels.empty() ? nullptr : Awaited();
    bool number = false;
    const int value = QByteArray::fromRawData(text, static_cast<int>(length)).toInt(&number);
    if (field == nullptr || field->eKind != Kind::Number || !number)
        return Refuse();
    field->setNumber(m_draft, value);
    return Take();
}

bool SchemeTextHandler::String(const char* text, rapidjson::SizeType length, bool)
{
    const Field* const field = m_iSkipped > 0 || m_levels.empty() ? nullptr : Awaited();
    if (field == nullptr || (field->eKind != Kind::Text && field->eKind != Kind::Key))
        return Refuse();
    bool sound = false;
    QString value = TextOf(text, length, &sound);
    QString objection;
    if (!sound)
        objection = tr("holds half a character");
    else if (field->eKind == Kind::Key)
        objection = SchemeTextRules::Objection(value);
    if (!objection.isEmpty()) {
        return Complain(m_stream.Line(), tr("the text of \"%1\" %2", "a field; what is wrong with its text")
                                             .arg(QLatin1String(field->szName), objection));
    }
    m_pool.Intern(value);
    field->setText(m_draft, value);
    return Take();
}

bool SchemeTextHandler::Take()
{
    Level& level = Top();
    level.iHeld |= 1U << static_cast<unsigned>(level.iField);
    return level.eScope != Scope::Document || CheckDocument();
}

bool SchemeTextHandler::CheckDocument()
{
    const Level& level = Top();
    const bool format = level.iField == 0;
    if (format && m_draft.strFormat != QLatin1String(FormatName)) {
        m_problems.clear(); // of what is no scheme at all
        return End(m_stream.Line(), tr("this is no file of alarm schemes"));
    }
    if (!format && m_draft.iVersion != FormatVersion) {
        m_problems.clear();
        return End(m_stream.Line(), tr("this is a file of version %1; only version %2 can be read")
                                        .arg(m_draft.iVersion)
                                        .arg(FormatVersion));
    }
    return true;
}

bool SchemeTextHandler::Key(const char* text, rapidjson::SizeType length, bool)
{
    if (m_iSkipped > 0)
        return true;
    Level& level = Top();
    const int size = static_cast<int>(length);
    const int field = FindField(level.eScope, QByteArray::fromRawData(text, size));
    level.iField = NoField;
    if (field == NoField) {
        return Complain(
            m_stream.Line(),
            tr("there is no field \"%1\" here").arg(ShownText::Short(QString::fromUtf8(text, size))));
    }
    const unsigned bit = 1U << static_cast<unsigned>(field);
    if ((level.iSeen & bit) != 0)
        return Complain(m_stream.Line(), tr("\"%1\" stands here twice").arg(QString::fromUtf8(text, size)));
    level.iSeen |= bit;
    level.iField = field;
    return true;
}

bool SchemeTextHandler::StartObject()
{
    return Open(Kind::Object);
}

bool SchemeTextHandler::StartArray()
{
    return Open(Kind::List);
}

bool SchemeTextHandler::EndObject(rapidjson::SizeType)
{
    return Close();
}

bool SchemeTextHandler::EndArray(rapidjson::SizeType)
{
    return Close();
}

bool SchemeTextHandler::Open(Kind eKind)
{
    if (m_iSkipped > 0) {
        return ++m_iSkipped <= MostSkippedLevels ||
               End(m_stream.Line(), tr("this is nested too deep for a file of alarm schemes"));
    }
    Scope scope = Scope::Skipped;
    if (m_levels.empty()) {
        if (eKind == Kind::Object)
            scope = Scope::Document;
    } else if (IsList(Top().eScope)) {
        const Scope entry = EntryOf(Top().eScope);
        if ((eKind == Kind::List) == IsList(entry))
            scope = entry;
    } else if (const Field* const field = Awaited()) {
        if (field->eKind == eKind)
            scope = field->eInside;
    }
    if (scope == Scope::Skipped) {
        if (!Refuse())
            return false;
        ++m_iSkipped;
        return true;
    }
    Begin(scope);
    Level level;
    level.eScope = scope;
    level.iLine = m_stream.Line();
    m_levels.push_back(level);
    return true;
}

bool SchemeTextHandler::Close()
{
    if (m_iSkipped > 0) {
        --m_iSkipped;
        return true;
    }
    const Level level = Top();
    m_levels.pop_back();
    CheckRequired(level);
    if (m_bEnded || !Finish(level))
        return false;
    if (!m_levels.empty())
        ++Top().iEntries;
    return true;
}

void SchemeTextHandler::CheckRequired(const Level& level)
{
    const Fields fields = FieldsOf(level.eScope);
    for (int field = 0; field < fields.iCount; ++field) {
        if (!fields.pFirst[field].bRequired || (level.iSeen & (1U << static_cast<unsigned>(field))) != 0)
            continue;
        if (level.eScope == Scope::Document && field == 0) {
            m_problems.clear(); // of what is no scheme at all
            End(level.iLine, tr("this is no file of alarm schemes"));
            return;
        }
        Complain(level.iLine, tr("\"%1\" is missing").arg(QLatin1String(fields.pFirst[field].szName)));
    }
}

void SchemeTextHandler::Begin(Scope eScope)
{
    switch (eScope) {
    case Scope::Scheme:
        m_draft.key = AlarmSourceKey();
        m_draft.info = AlarmInfo();
        m_cells.clear();
        m_videos.clear();
        m_iCellsSeen = 0;
        m_outputs.clear();
        m_doors.clear();
        break;
    case Scope::Cell:
        m_draft.iWindow = 0;
        m_draft.cell = AlarmSplitWindow();
        break;
    case Scope::VideoLink:
        m_draft.iWindow = 0;
        m_draft.videoLink = AlarmLinkVideo();
        break;
    case Scope::AlarmOutLink:
        m_draft.alarmOut = AlarmLinkAlarmOut();
        break;
    case Scope::Door:
        m_draft.door = AlarmLinkDoor();
        break;
    case Scope::Week:
        for (int day = 0; day < AlarmWeek::DayCount; ++day)
            m_week[day].clear();
        break;
    case Scope::Region:
        m_draft.region = AlarmTimeRegion();
        break;
    default:
        break;
    }
}

bool SchemeTextHandler::Finish(const Level& level)
{
    switch (level.eScope) {
    case Scope::Cell:
        FinishCell(level);
        break;
    case Scope::VideoLink:
        FinishVideoLink(level);
        break;
    case Scope::AlarmOutLink:
        FinishAlarmOutLink(level);
        break;
    case Scope::Door:
        FinishDoor(level);
        break;
    case Scope::Region:
        FinishRegion(level);
        break;
    case Scope::Week:
        FinishWeek(level);
        break;
    case Scope::Scheme:
        FinishScheme(level);
        break;
    default:
        break;
    }
    return !m_bEnded;
}

void SchemeTextHandler::FinishCell(const Level& level)
{
    if (!level.Holds(FirstField))
        return; // has been complained of
    const int32_t window = m_draft.iWindow;
    if (window < 0 || window >= AlarmSplitCells::CellCount) {
        Complain(level.iLine, tr("\"windowID\" must be from 0 to %1").arg(AlarmSplitCells::CellCount - 1));
        return;
    }
    const quint64 bit = quint64(1) << static_cast<unsigned>(window);
    if ((m_iCellsSeen & bit) != 0) {
        Complain(level.iLine, tr("the cell %1 stands here twice").arg(window));
        return;
    }
    m_iCellsSeen |= bit;
    if (m_draft.cell == AlarmSplitWindow())
        return; // writing would end the sharing of all 64
    m_draft.info.videoSplit.cells[window] = m_draft.cell;
    m_cells.push_back({window, level.iLine});
}

void SchemeTextHandler::FinishVideoLink(const Level& level)
{
    if (!level.Holds(FirstField))
        return;
    auto& links = m_draft.info.videoSplit.videoLinks;
    if (links.contains(m_draft.iWindow)) {
        Complain(level.iLine, tr("the window %1 stands here twice").arg(m_draft.iWindow));
        return;
    }
    links.insert(m_draft.iWindow, m_draft.videoLink);
    m_videos.push_back({m_draft.iWindow, level.iLine});
}

void SchemeTextHandler::FinishAlarmOutLink(const Level& level)
{
    const QString& output = m_draft.alarmOut.strLinkAlarmID;
    if (m_outputs.contains(output)) {
        Complain(level.iLine, tr("the output \"%1\" is linked twice").arg(ShownText::Short(output)));
        return;
    }
    m_outputs.insert(output);
    m_draft.info.listAlarmOut.append(m_draft.alarmOut);
}

void SchemeTextHandler::FinishDoor(const Level& level)
{
    if (!level.Holds(FirstField))
        return;
    const QString& door = m_draft.door.strDoorID;
    if (!SchemeTextRules::IsDoorNumber(door)) {
        Complain(level.iLine, tr("the door \"%1\" is no whole number").arg(ShownText::Short(door)));
        return;
    }
    if (m_doors.contains(door)) {
        Complain(level.iLine, tr("the door %1 is linked twice").arg(door));
        return;
    }
    m_doors.insert(door);
    m_draft.info.listDoor.append(m_draft.door);
}

void SchemeTextHandler::FinishRegion(const Level& level)
{
    const AlarmTimeRegion& region = m_draft.region;
    if (region.Begin < 0 || region.Begin > region.End) {
        Complain(level.iLine, tr("a region from %1 to %2 is none").arg(region.Begin).arg(region.End));
        return;
    }
    const int day = m_levels[m_levels.size() - 2].iEntries; // below the day lies the week
    if (day < AlarmWeek::DayCount)
        m_week[day].append(region);
}

void SchemeTextHandler::FinishWeek(const Level& level)
{
    if (level.iEntries != AlarmWeek::DayCount) {
        Complain(level.iLine, tr("\"defenceTime\" must be a list of seven lists"));
        return;
    }
    const AlarmWeek fresh;
    if (m_week == fresh)
        m_lastWeek = fresh;
    else if (m_week != m_lastWeek)
        m_lastWeek = m_week;
    m_draft.info.defenceTime = m_lastWeek;
}

void SchemeTextHandler::FinishScheme(const Level& level)
{
    // What no layout shows would be lost in the database.
    const AlarmVideoSplit& split = m_draft.info.videoSplit;
    for (const Place& cell : m_cells) {
        if (cell.iWindow >= split.UsedCells())
            Complain(cell.iLine, tr("the cell %1 lies outside the layout").arg(cell.iWindow));
    }
    for (const Place& video : m_videos) {
        if (video.iWindow < 0 || video.iWindow >= split.SplitCount)
            Complain(video.iLine, tr("the window %1 is none of the cells in use").arg(video.iWindow));
    }
    if (!m_cells.empty()) {
        AlarmSplitCells& cells = m_draft.info.videoSplit.cells;
        if (!(cells == m_lastCells))
            m_lastCells = cells;
        cells = m_lastCells;
    }
    if (!level.Holds(BothKeyFields))
        return;
    const AlarmSourceKey& key = m_draft.key;
    if (m_map.isEmpty() || m_map.lastKey() < key) {
        m_map.insert(m_map.cend(), key, m_draft.info);
        return;
    }
    if (m_map.contains(key)) {
        Complain(level.iLine, tr("the scheme %1, event type %2, is listed twice")
                                  .arg(ShownText::Short(key.strEventSource))
                                  .arg(key.AlarmType));
        return;
    }
    m_map.insert(key, m_draft.info);
}
