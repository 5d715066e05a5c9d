#include "scheme_services/exchange/ShownText.h"

namespace {

constexpr int MostCharacters = 80;

} // namespace

QString ShownText(const QString& strText)
{
    QString shown = strText.left(MostCharacters);
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QChar(QChar::ReplacementCharacter);
    }
    return strText.size() > MostCharacters ? shown + QChar(0x2026) : shown;
}
