#include "scheme_services/site/SiteTable.h"

#include "scheme_services/site/CsvText.h"
#include "scheme_services/site/SiteTableFields.h"
#include "scheme_services/site/SiteTableReader.h"

#include <algorithm>

using namespace SiteTableFields;
using namespace VantaLogic;

namespace {

constexpr char Mark[] = "\xEF\xBB\xBF";

/// Every line that is not UTF-8. A table that a program wrote in an older encoding shows so at once.
void CheckEncoding(const QByteArray& text, SiteProblems& problems)
{
    if (text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF") || text.left(64).contains('\0')) {
        problems.Add(
            0, SiteExchangeText::tr("this is not UTF-8 but looks like UTF-16; save the table as UTF-8"));
        return;
    }
    int iLine = 0;
    for (int iAt = 0; iAt < text.size();) {
        int iEnd = iAt;
        while (iEnd < text.size() && text.at(iEnd) != '\n' && text.at(iEnd) != '\r') {
            ++iEnd;
        }
        ++iLine;
        const QByteArray line = QByteArray::fromRawData(text.constData() + iAt, iEnd - iAt);
        if (QString::fromUtf8(line.constData(), static_cast<int>(line.size())).toUtf8() != line) {
            problems.Add(iLine, SiteExchangeText::tr("the line is not valid UTF-8; save the table as UTF-8"));
        }
        const bool bPair = iEnd + 1 < text.size() && text.at(iEnd) == '\r' && text.at(iEnd + 1) == '\n';
        iAt = iEnd + (bPair ? 2 : 1);
    }
}

/// The separator under which the heading row names the most columns that are known.
char SeparatorOf(const QByteArray& text)
{
    char cBest = ',';
    int iBest = 0;
    for (const char cSeparator : {',', ';', '\t'}) {
        int iKnown = 0;
        SiteProblem problem;
        CsvText::Read(
            text, cSeparator,
            [&iKnown](const CsvText::Row& row) {
                iKnown = SiteTableReader::KnownColumns(row);
                return false;
            },
            problem);
        if (iKnown > iBest) {
            iBest = iKnown;
            cBest = cSeparator;
        }
    }
    return cBest;
}

QByteArray Flag(bool b)
{
    return b ? QByteArrayLiteral("yes") : QByteArrayLiteral("no");
}

QByteArray Parent(int64_t iId)
{
    return iId == -1 ? QByteArray() : QByteArray::number(static_cast<qlonglong>(iId));
}

void Append(QByteArray& text, std::initializer_list<QByteArray> cells)
{
    bool bFirst = true;
    for (const QByteArray& cell : cells) {
        if (!bFirst) {
            text += ',';
        }
        bFirst = false;
        text += cell;
    }
    text += "\r\n";
}

} // namespace

SiteTable::Parsed SiteTable::Parse(const QByteArray& text, const Site& before)
{
    Parsed parsed;
    const QByteArray body = text.startsWith(Mark) ? text.mid(3) : text;
    CheckEncoding(body, parsed.problems);
    if (!parsed.problems.IsEmpty()) {
        return parsed;
    }
    SiteTableReader reader(before, parsed);
    SiteProblem problem;
    const bool bRead = CsvText::Read(
        body, SeparatorOf(body), [&reader](const CsvText::Row& row) { return reader.Take(row); }, problem);
    if (!bRead) {
        parsed.problems.Add(problem.iLine, problem.strReason);
        return parsed;
    }
    reader.Finish();
    return parsed;
}

QByteArray SiteTable::ToText(const Site& site)
{
    QByteArray text = Mark;
    QList<QByteArray> heading;
    for (const char* szName : columnNames) {
        heading.append(szName);
    }
    text += heading.join(',') + "\r\n";
    const auto id = [](int64_t iId) { return QByteArray::number(static_cast<qlonglong>(iId)); };
    const auto name = [](const QString& strName) { return CsvText::Quoted(strName.toUtf8()); };
    for (const GroupInfo& group : site.groups) {
        Append(text,
               {"group", id(group.iGroupId), Parent(group.iParentId), name(group.strName), "", "", "", ""});
    }
    for (const DeviceInfo& device : site.devices) {
        Append(text, {"device", id(device.iDeviceId), Parent(device.iGroupId), name(device.strName),
                      TypeName(Record::Device, device.iDeviceType).toLatin1(), "", Flag(device.bEnabled),
                      Flag(device.bOnline)});
        for (const ChannelInfo& channel : device.channels) {
            Append(text, {"channel", id(channel.iChannelId), id(device.iDeviceId), name(channel.strName),
                          TypeName(Record::Channel, channel.iChannelType).toLatin1(),
                          QByteArray::number(channel.iNumber), Flag(channel.bEnabled), ""});
        }
    }
    return text;
}
