#pragma once

#include <QString>

/// What texts of schemes may be.
namespace SchemeTextRules {

/// The longest key of a source, output or channel, in characters.
constexpr int MostCharacters = 1000;

/// Whether it holds a double quote or a NUL, which never reach the database.
bool HoldsForbidden(const QString& strText);
/// Why the database would not give this text back as a key; translated, empty when it would.
QString Objection(const QString& strText);
/// A whole number of 64 bits, written as the database gives it back: no sign but "-", no leading zeros.
bool IsDoorNumber(const QString& strText);

} // namespace SchemeTextRules
