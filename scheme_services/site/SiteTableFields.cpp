#include "scheme_services/site/SiteTableFields.h"

#include "platform/SiteLibrary/SiteRules.h"
#include "platform/SystemLibrary/ShownText.h"

#include <algorithm>
#include <vector>

using namespace VantaLogic;

namespace SiteTableFields {
namespace {

constexpr int LongestShown = 40;

struct Word
{
    int32_t iType;
    const char* szWord;
};

const std::vector<Word>& WordsOf(Record record)
{
    static const std::vector<Word> devices = {{DeviceTypeAccessControl, "access control"},
                                              {DeviceTypeAlarmHost, "alarm host"},
                                              {DeviceTypeVirtual, "virtual"}};
    static const std::vector<Word> channels = {{ChannelTypeVideo, "video"},
                                               {ChannelTypeAlarmInput, "alarm input"},
                                               {ChannelTypeAlarmOutput, "alarm output"},
                                               {ChannelTypeDoor, "door"}};
    static const std::vector<Word> none;
    if (record == Record::Group) {
        return none;
    }
    return record == Record::Device ? devices : channels;
}

bool IsWord(const QString& strCell, const char* szWord)
{
    return strCell.compare(QLatin1String(szWord), Qt::CaseInsensitive) == 0;
}

} // namespace

QString NameOf(Record record)
{
    switch (record) {
    case Record::Group:
        return QStringLiteral("group");
    case Record::Device:
        return QStringLiteral("device");
    case Record::Channel:
        break;
    }
    return QStringLiteral("channel");
}

std::optional<Record> RecordOf(const QString& strCell)
{
    for (const Record record : {Record::Group, Record::Device, Record::Channel}) {
        if (strCell.compare(NameOf(record), Qt::CaseInsensitive) == 0) {
            return record;
        }
    }
    return std::nullopt;
}

QString TypeName(Record record, int32_t iType)
{
    for (const Word& word : WordsOf(record)) {
        if (word.iType == iType) {
            return QLatin1String(word.szWord);
        }
    }
    return QString::number(iType);
}

std::optional<int32_t> TypeOf(Record record, const QString& strCell)
{
    for (const Word& word : WordsOf(record)) {
        if (IsWord(strCell, word.szWord)) {
            return word.iType;
        }
    }
    const int32_t iMax = record == Record::Device ? SiteRules::MaxDeviceType : SiteRules::MaxChannelType;
    const auto iNumber = NumberOf(strCell, 0, iMax);
    return iNumber ? std::optional<int32_t>(static_cast<int32_t>(*iNumber)) : std::nullopt;
}

QStringList TypeWords(Record record)
{
    QStringList words;
    for (const Word& word : WordsOf(record)) {
        words.append(QLatin1String(word.szWord));
    }
    return words;
}

std::optional<bool> FlagOf(const QString& strCell)
{
    if (IsWord(strCell, "yes") || IsWord(strCell, "true") || strCell == QLatin1String("1")) {
        return true;
    }
    if (IsWord(strCell, "no") || IsWord(strCell, "false") || strCell == QLatin1String("0")) {
        return false;
    }
    return std::nullopt;
}

std::optional<int64_t> NumberOf(const QString& strCell, int64_t iMin, int64_t iMax)
{
    const bool bDigits = !strCell.isEmpty() && std::all_of(strCell.cbegin(), strCell.cend(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    bool bNumber = false;
    const int64_t iNumber = strCell.toLongLong(&bNumber);
    return bDigits && bNumber && iNumber >= iMin && iNumber <= iMax ? std::optional<int64_t>(iNumber)
                                                                    : std::nullopt;
}

QString Shown(const QString& strText)
{
    return ShownText::Short(strText, LongestShown, QLatin1Char(' '));
}

} // namespace SiteTableFields
