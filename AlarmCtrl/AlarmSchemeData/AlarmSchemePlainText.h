#pragma once

#include "alarmschemestore_export.h"

#include <QString>

#include <cstddef>

/// Texts that mean the same to SQLite between double quotes, as a bound value and as stored bytes: printable
/// ASCII without a double quote, not empty, and no name of a column of the store's tables (between double
/// quotes that would be read as the column). Every event source that the editors build is one.
bool IsPlainText(const QString& strText);
bool IsPlainText(const char* pText, size_t iSize);

/// Whether SQLite reads the text, between double quotes, as the name of a column of the store's tables.
ALARMSCHEMESTORE_EXPORT bool NamesColumn(const QString& strText);
