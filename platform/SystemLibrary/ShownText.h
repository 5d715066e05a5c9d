#pragma once

#include "systemlibrary_export.h"

#include <QChar>
#include <QString>

/// Text from outside made harmless for one line of output.
namespace ShownText {

/// The same with the character instead of all that cannot be seen: what a terminal would act on, what would
/// end the line, what only steers other characters.
SYSTEMLIBRARY_EXPORT QString Visible(const QString& strText, QChar instead);

/// For a message: visible, and cut with an ellipsis after so many characters.
SYSTEMLIBRARY_EXPORT QString Short(const QString& strText, int iMost = 80,
                                   QChar instead = QChar(QChar::ReplacementCharacter));

/// All of it; characters that would move, erase or turn other text around are written by their numbers,
/// "\u001b" for instance.
SYSTEMLIBRARY_EXPORT QString Whole(const QString& strText);

} // namespace ShownText
