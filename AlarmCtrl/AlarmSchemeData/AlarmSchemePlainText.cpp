#include "AlarmCtrl/AlarmSchemeData/AlarmSchemePlainText.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace {

/// Columns of all ten tables, since one statement may see the columns of two, and the names of the row id.
constexpr std::array<const char*, 35> ColumnNames{"AlarmUniqueID",
                                                  "strEventSource",
                                                  "AlarmType",
                                                  "id",
                                                  "bOpen",
                                                  "bOpenSound",
                                                  "bEmapTwinkle",
                                                  "bSendEmail",
                                                  "SplitRow",
                                                  "SplitCloum",
                                                  "SplitCount",
                                                  "windowID",
                                                  "bEnable",
                                                  "iCombine",
                                                  "X1",
                                                  "X2",
                                                  "Y1",
                                                  "Y2",
                                                  "strLinkDevID",
                                                  "AlarmLinkVideoID",
                                                  "bRecord",
                                                  "Preposition",
                                                  "StreamType",
                                                  "Time",
                                                  "strLinkAlarmID",
                                                  "bAutoOpen",
                                                  "bAlwaysOpen",
                                                  "AlarmLinkDoorID",
                                                  "Version",
                                                  "ModifyTime",
                                                  "Day",
                                                  "Begin",
                                                  "End",
                                                  "rowid",
                                                  "AlarmLinkAlarmOutID"};

bool IsPlainCharacter(uint c)
{
    return c >= 0x20 && c <= 0x7E && c != '"';
}

bool IsColumnName(QLatin1String text)
{
    // Event sources begin with a digit, which no column does.
    const char first = text.isEmpty() ? '0' : text.latin1()[0];
    if (first >= '0' && first <= '9')
        return false;
    const auto isText = [text](const char* szName) {
        return text.compare(QLatin1String(szName), Qt::CaseInsensitive) == 0;
    };
    return std::any_of(ColumnNames.cbegin(), ColumnNames.cend(), isText) || isText("oid") ||
           isText("_rowid_");
}

} // namespace

bool IsPlainText(const QString& strText)
{
    const auto isPlain = [](QChar c) { return IsPlainCharacter(c.unicode()); };
    if (strText.isEmpty() || !std::all_of(strText.cbegin(), strText.cend(), isPlain))
        return false;
    if (strText.at(0).isDigit())
        return true;
    const QByteArray text = strText.toLatin1();
    return !IsColumnName(QLatin1String(text));
}

bool NamesColumn(const QString& strText)
{
    // No column has other letters, which the conversion might turn into theirs.
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    if (!std::all_of(strText.cbegin(), strText.cend(), isAscii))
        return false;
    const QByteArray text = strText.toLatin1();
    return IsColumnName(QLatin1String(text));
}

bool IsPlainText(const char* pText, size_t iSize)
{
    const auto isPlain = [](char c) { return IsPlainCharacter(static_cast<unsigned char>(c)); };
    return iSize > 0 && std::all_of(pText, pText + iSize, isPlain) &&
           !IsColumnName(QLatin1String(pText, static_cast<int>(iSize)));
}
