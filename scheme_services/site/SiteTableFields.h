#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

/// The columns of a site as a table, and the words that stand in them.
namespace SiteTableFields {

enum Column
{
    ColumnRecord,
    ColumnId,
    ColumnParent,
    ColumnName,
    ColumnType,
    ColumnNumber,
    ColumnEnabled,
    ColumnOnline,
};
inline constexpr std::array<const char*, 8> columnNames{
    {"record", "id", "parent", "name", "type", "number", "enabled", "online"}};

enum class Record
{
    Group,
    Device,
    Channel,
};

QString NameOf(Record record);
std::optional<Record> RecordOf(const QString& strCell);
/// The word for a type where there is one, else its number.
QString TypeName(Record record, int32_t iType);
/// A type by word or number; nothing when it is out of range or no type at all.
std::optional<int32_t> TypeOf(Record record, const QString& strCell);
QStringList TypeWords(Record record);
std::optional<bool> FlagOf(const QString& strCell); ///< yes, no, true, false, 1, 0
/// Strict decimals without sign or blanks, from `iMin` to `iMax`.
std::optional<int64_t> NumberOf(const QString& strCell, int64_t iMin, int64_t iMax);
/// A stranger's text made fit for a message: short, without control characters.
QString Shown(const QString& strText);

} // namespace SiteTableFields
