#include "platform/SystemLibrary/ShownText.h"

namespace ShownText {

namespace {

bool EndsLine(QChar character)
{
    return character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

bool ActsOnOthers(QChar character)
{
    const auto code = uint{character.unicode()};
    return character.category() == QChar::Other_Control || EndsLine(character) ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

bool IsPairAt(const QString& strText, int iAt)
{
    return strText.at(iAt).isHighSurrogate() && iAt + 1 < strText.size() &&
           strText.at(iAt + 1).isLowSurrogate();
}

} // namespace

QString Visible(const QString& strText, QChar instead)
{
    QString strShown;
    strShown.reserve(strText.size());
    for (int i = 0; i < strText.size(); ++i) {
        const QChar character = strText.at(i);
        if (IsPairAt(strText, i)) {
            const QChar low = strText.at(++i);
            if (QChar::isPrint(QChar::surrogateToUcs4(character, low))) {
                strShown += character;
                strShown += low;
            } else {
                strShown += instead;
            }
        } else {
            strShown += character.isPrint() && !EndsLine(character) ? character : instead;
        }
    }
    return strShown;
}

QString Short(const QString& strText, int iMost, QChar instead)
{
    if (strText.size() <= iMost) {
        return Visible(strText, instead);
    }
    const int iCut = iMost > 0 && IsPairAt(strText, iMost - 1) ? iMost - 1 : iMost;
    return Visible(strText.left(iCut), instead) + QChar(0x2026);
}

QString Whole(const QString& strText)
{
    QString strShown;
    strShown.reserve(strText.size());
    for (const QChar character : strText) {
        if (ActsOnOthers(character)) {
            strShown += QStringLiteral("\\u%1").arg(uint{character.unicode()}, 4, 16, QLatin1Char('0'));
        } else {
            strShown += character;
        }
    }
    return strShown;
}

} // namespace ShownText
