#include "scheme_services/site/SiteTableReader.h"

#include "platform/SiteLibrary/SiteRules.h"

#include <algorithm>
#include <limits>

using namespace SiteTableFields;
using namespace VantaLogic;

namespace {

QString WordOf(Column column)
{
    return QLatin1String(columnNames.at(column));
}

QString AllColumns()
{
    QStringList names;
    for (const char* szName : columnNames) {
        names.append(QLatin1String(szName));
    }
    return names.join(QStringLiteral(", "));
}

int ColumnOf(const QByteArray& cell)
{
    const QString strCell = QString::fromUtf8(cell.constData(), static_cast<int>(cell.size())).trimmed();
    for (size_t i = 0; i < columnNames.size(); ++i) {
        if (strCell.compare(QLatin1String(columnNames.at(i)), Qt::CaseInsensitive) == 0) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

} // namespace

SiteTableReader::SiteTableReader(const Site& before, SiteTable::Parsed& parsed)
    : m_parsed(parsed)
{
    m_places.fill(-1);
    for (const DeviceInfo& device : before.devices) {
        m_before.insert(device.iDeviceId, {device.bEnabled, device.bOnline});
        for (const ChannelInfo& channel : device.channels) {
            m_before.insert(channel.iChannelId, {channel.bEnabled, false});
        }
    }
}

int SiteTableReader::KnownColumns(const CsvText::Row& row)
{
    return static_cast<int>(std::count_if(row.cells.cbegin(), row.cells.cend(),
                                          [](const QByteArray& cell) { return ColumnOf(cell) >= 0; }));
}

bool SiteTableReader::Fail(int iLine, const QString& strReason)
{
    m_parsed.problems.Add(iLine, strReason);
    return false;
}

bool SiteTableReader::Take(const CsvText::Row& row)
{
    if (!m_bHeading) {
        m_bHeading = true;
        m_bUnreadable = !TakeHeading(row);
        return !m_bUnreadable;
    }
    Row split;
    if (Split(row, split)) {
        const QString& strRecord = split.Cell(ColumnRecord);
        const std::optional<Record> record = RecordOf(strRecord.trimmed());
        if (!record) {
            Fail(row.iLine, SiteExchangeText::tr("\"%1\" is no record; write group, device or channel")
                                .arg(Shown(strRecord)));
        } else if (*record == Record::Group) {
            TakeGroup(split);
        } else if (*record == Record::Device) {
            TakeDevice(split);
        } else {
            TakeChannel(split);
        }
    }
    return m_parsed.problems.iFurther == 0;
}

bool SiteTableReader::TakeHeading(const CsvText::Row& row)
{
    if (KnownColumns(row) == 0) {
        return Fail(row.iLine,
                    SiteExchangeText::tr("the first row must name the columns: %1").arg(AllColumns()));
    }
    for (int i = 0; i < row.cells.size(); ++i) {
        const int iColumn = ColumnOf(row.cells.at(i));
        if (iColumn < 0) {
            const QString strCell = QString::fromUtf8(row.cells.at(i)).trimmed();
            if (!strCell.isEmpty()) {
                Fail(row.iLine, SiteExchangeText::tr("unknown column \"%1\"; the columns are %2")
                                    .arg(Shown(strCell), AllColumns()));
            }
            continue;
        }
        int& iPlace = m_places.at(static_cast<size_t>(iColumn));
        if (iPlace >= 0) {
            Fail(row.iLine, SiteExchangeText::tr("the column \"%1\" stands twice")
                                .arg(WordOf(static_cast<Column>(iColumn))));
        }
        iPlace = i;
    }
    for (const Column column : {ColumnRecord, ColumnId, ColumnName, ColumnType}) {
        if (m_places.at(column) < 0) {
            Fail(row.iLine, SiteExchangeText::tr("the column \"%1\" is missing").arg(WordOf(column)));
        }
    }
    m_iColumns = row.iCells;
    return m_parsed.problems.IsEmpty();
}

bool SiteTableReader::Split(const CsvText::Row& row, Row& split)
{
    split.iLine = row.iLine;
    const auto isEmpty = [](const QByteArray& cell) { return cell.trimmed().isEmpty(); };
    if (row.iCells > CsvText::MostCells ||
        !std::all_of(row.cells.cbegin() + qMin(m_iColumns, static_cast<int>(row.cells.size())),
                     row.cells.cend(), isEmpty)) {
        return Fail(row.iLine,
                    SiteExchangeText::tr("the row has more cells than there are columns; a name with the "
                                         "separator in it is written in quotation marks"));
    }
    for (size_t i = 0; i < m_places.size(); ++i) {
        const QByteArray cell = row.cells.value(m_places.at(i));
        split.cells.at(i) = QString::fromUtf8(cell.constData(), static_cast<int>(cell.size()));
        if (i != ColumnName) {
            split.cells.at(i) = split.cells.at(i).trimmed();
        }
    }
    // Spreadsheets leave rows of nothing but separators behind.
    return !std::all_of(row.cells.cbegin(), row.cells.cend(), isEmpty);
}

bool SiteTableReader::TakeId(const Row& row, int64_t& iId)
{
    const int64_t iMax = std::numeric_limits<int64_t>::max();
    const auto iNumber = NumberOf(row.Cell(ColumnId), 1, iMax);
    if (!iNumber) {
        return Fail(row.iLine, SiteExchangeText::tr("the id \"%1\" must be a whole number from 1 to %2")
                                   .arg(Shown(row.Cell(ColumnId)))
                                   .arg(iMax));
    }
    const auto it = m_parsed.lines.constFind(*iNumber);
    if (it != m_parsed.lines.cend()) {
        return Fail(row.iLine,
                    SiteExchangeText::tr("the id %1 already stands on line %2").arg(*iNumber).arg(*it));
    }
    iId = *iNumber;
    m_parsed.lines.insert(iId, row.iLine);
    m_badIds.insert(iId, row.iLine); // until all of the row is known to be good
    return true;
}

bool SiteTableReader::TakeParent(const Row& row, int64_t& iParent)
{
    const QString& strCell = row.Cell(ColumnParent);
    const auto iNumber = NumberOf(strCell, 1, std::numeric_limits<int64_t>::max());
    iParent = iNumber.value_or(-1);
    if (!iNumber && !strCell.isEmpty()) {
        return Fail(row.iLine, SiteExchangeText::tr("the parent \"%1\" is no id").arg(Shown(strCell)));
    }
    return true;
}

bool SiteTableReader::TakeName(const Row& row, QString& strName)
{
    strName = row.Cell(ColumnName);
    const QString strProblem = SiteRules::NameProblem(strName);
    return strProblem.isEmpty() || Fail(row.iLine, strProblem);
}

bool SiteTableReader::TakeType(const Row& row, Record record, int32_t& iType)
{
    const auto iFound = TypeOf(record, row.Cell(ColumnType));
    if (!iFound) {
        const int32_t iMax = record == Record::Device ? SiteRules::MaxDeviceType : SiteRules::MaxChannelType;
        return Fail(row.iLine,
                    SiteExchangeText::tr("the type \"%1\" must be a whole number from 0 to %2, or one of: %3")
                        .arg(Shown(row.Cell(ColumnType)), QString::number(iMax),
                             TypeWords(record).join(QStringLiteral(", "))));
    }
    iType = *iFound;
    return true;
}

bool SiteTableReader::TakeFlag(const Row& row, Column column, bool bOtherwise, bool& bFlag)
{
    const QString& strCell = row.Cell(column);
    const auto bFound = FlagOf(strCell);
    bFlag = bFound.value_or(bOtherwise);
    if (!bFound && !strCell.isEmpty()) {
        return Fail(row.iLine, SiteExchangeText::tr("\"%1\" in the column \"%2\" must be yes or no")
                                   .arg(Shown(strCell), WordOf(column)));
    }
    return true;
}

bool SiteTableReader::MustBeEmpty(const Row& row, std::initializer_list<Column> columns, Record record)
{
    bool bEmpty = true;
    for (const Column column : columns) {
        if (!row.Cell(column).isEmpty()) {
            bEmpty = Fail(row.iLine, SiteExchangeText::tr("a %1 has nothing in the column \"%2\"")
                                         .arg(NameOf(record), WordOf(column)));
        }
    }
    return bEmpty;
}

// In the three functions below every check runs, so that a row tells all that is wrong with it.

void SiteTableReader::TakeGroup(const Row& row)
{
    GroupInfo group;
    bool bGood = TakeId(row, group.iGroupId);
    bGood = TakeParent(row, group.iParentId) && bGood;
    bGood = TakeName(row, group.strName) && bGood;
    bGood = MustBeEmpty(row, {ColumnType, ColumnNumber, ColumnEnabled, ColumnOnline}, Record::Group) && bGood;
    if (bGood) {
        m_badIds.remove(group.iGroupId);
        m_parsed.site.groups.append(group);
    }
}

void SiteTableReader::TakeDevice(const Row& row)
{
    DeviceInfo device;
    bool bGood = TakeId(row, device.iDeviceId);
    const Known known = m_before.value(device.iDeviceId);
    bGood = TakeParent(row, device.iGroupId) && bGood;
    bGood = TakeName(row, device.strName) && bGood;
    bGood = TakeType(row, Record::Device, device.iDeviceType) && bGood;
    bGood = TakeFlag(row, ColumnEnabled, known.bEnabled, device.bEnabled) && bGood;
    bGood = TakeFlag(row, ColumnOnline, known.bOnline, device.bOnline) && bGood;
    bGood = MustBeEmpty(row, {ColumnNumber}, Record::Device) && bGood;
    if (bGood) {
        m_badIds.remove(device.iDeviceId);
        m_parsed.site.devices.append(device);
    }
}

void SiteTableReader::TakeChannel(const Row& row)
{
    ChannelInfo channel;
    bool bGood = TakeId(row, channel.iChannelId);
    bGood = TakeParent(row, channel.iDeviceId) && bGood;
    if (row.Cell(ColumnParent).isEmpty()) {
        bGood = Fail(row.iLine,
                     SiteExchangeText::tr("a channel needs the id of its device in the column \"parent\""));
    }
    bGood = TakeName(row, channel.strName) && bGood;
    bGood = TakeType(row, Record::Channel, channel.iChannelType) && bGood;
    const int32_t iMax = std::numeric_limits<int32_t>::max();
    const auto iNumber = NumberOf(row.Cell(ColumnNumber), 0, iMax);
    if (!iNumber) {
        bGood = Fail(row.iLine, SiteExchangeText::tr("the number \"%1\" must be a whole number from 0 to %2")
                                    .arg(Shown(row.Cell(ColumnNumber)))
                                    .arg(iMax));
    }
    channel.iNumber = static_cast<int32_t>(iNumber.value_or(0));
    bGood =
        TakeFlag(row, ColumnEnabled, m_before.value(channel.iChannelId).bEnabled, channel.bEnabled) && bGood;
    bGood = MustBeEmpty(row, {ColumnOnline}, Record::Channel) && bGood;
    if (bGood) {
        m_badIds.remove(channel.iChannelId);
        m_channels.append({channel, row.iLine});
    }
}

void SiteTableReader::Finish()
{
    if (!m_bHeading) {
        Fail(0, SiteExchangeText::tr("the table is empty"));
    }
    if (m_bUnreadable || !m_bHeading) {
        return;
    }
    AttachChannels();
    CheckGroups();
    auto& problems = m_parsed.problems.list;
    std::stable_sort(problems.begin(), problems.end(),
                     [](const SiteProblem& a, const SiteProblem& b) { return a.iLine < b.iLine; });
}

void SiteTableReader::AttachChannels()
{
    QHash<int64_t, int> devices;
    for (int i = 0; i < m_parsed.site.devices.size(); ++i) {
        devices.insert(m_parsed.site.devices.at(i).iDeviceId, i);
    }
    QHash<int64_t, QHash<quint64, int>> places; // per device, the line of each kind and number
    for (const WaitingChannel& channel : qAsConst(m_channels)) {
        const int64_t iDevice = channel.info.iDeviceId;
        const auto itDevice = devices.constFind(iDevice);
        if (itDevice == devices.cend()) {
            if (!m_badIds.contains(iDevice)) {
                Fail(channel.iLine, SiteExchangeText::tr("the device %1 does not exist").arg(iDevice));
            }
            continue;
        }
        auto& taken = places[iDevice];
        const quint64 iPlace = SiteRules::ChannelPlace(channel.info.iChannelType, channel.info.iNumber);
        const auto itTaken = taken.constFind(iPlace);
        if (itTaken != taken.cend()) {
            Fail(channel.iLine,
                 SiteExchangeText::tr("the number %1 of the type %2 already stands on line %3")
                     .arg(QString::number(channel.info.iNumber),
                          TypeName(Record::Channel, channel.info.iChannelType), QString::number(*itTaken)));
            continue;
        }
        taken.insert(iPlace, channel.iLine);
        m_parsed.site.devices[*itDevice].channels.append(channel.info);
    }
}

void SiteTableReader::CheckGroups()
{
    QHash<int64_t, int> groups;
    for (int i = 0; i < m_parsed.site.groups.size(); ++i) {
        groups.insert(m_parsed.site.groups.at(i).iGroupId, i);
    }
    bool bParents = true;
    const auto check = [&](int64_t iParent, int64_t iChild) {
        if (iParent == -1 || groups.contains(iParent)) {
            return;
        }
        bParents = false;
        if (!m_badIds.contains(iParent)) {
            Fail(m_parsed.lines.value(iChild),
                 SiteExchangeText::tr("the group %1 does not exist").arg(iParent));
        }
    };
    for (const GroupInfo& group : qAsConst(m_parsed.site.groups)) {
        check(group.iParentId, group.iGroupId);
    }
    // Circles are looked for where every group has its parent.
    const SiteRules::GroupProblem problem =
        bParents ? SiteRules::FirstGroupProblem(m_parsed.site.groups) : SiteRules::GroupProblem();
    if (problem.iGroup >= 0) {
        Fail(m_parsed.lines.value(m_parsed.site.groups.at(problem.iGroup).iGroupId), problem.strReason);
    }
    for (const DeviceInfo& device : qAsConst(m_parsed.site.devices)) {
        check(device.iGroupId, device.iDeviceId);
    }
}
