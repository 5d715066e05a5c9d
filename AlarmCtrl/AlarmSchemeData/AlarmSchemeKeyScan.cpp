#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeKeyScan.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"

#include <algorithm>
#include <limits>

namespace {

bool IsAscii(const char* pText, int iSize)
{
    return std::all_of(pText, pText + iSize, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsShortInteger(const AlarmSchemeRun& row, int iColumn)
{
    return row.IsInteger(iColumn) && row.Int64(iColumn) >= std::numeric_limits<int32_t>::min() &&
           row.Int64(iColumn) <= std::numeric_limits<int32_t>::max();
}

} // namespace

std::optional<std::vector<int64_t>> AlarmSchemeKeyScan::IdsOutside(sqlite3* pDatabase,
                                                                   const AlarmInfoMap& map)
{
    std::vector<int64_t> ids;
    AlarmSchemeStatement statement(pDatabase, SchemeStatements::ScanKeys);
    AlarmSchemeRun row(statement);
    auto entry = map.cbegin();
    while (row.Next()) {
        if (row.IsNull(1))
            continue;
        const bool isText = row.IsText(1);
        const char* const bytes = row.Bytes(1);
        const int size = row.Size(1);
        bool held = false;
        if (isText && IsAscii(bytes, size) && IsShortInteger(row, 2)) {
            // Such rows come in the map's own order, whatever others lie between them.
            const QLatin1String text(bytes, size);
            const int32_t type = row.Int(2);
            int order = -1;
            for (; entry != map.cend(); ++entry) {
                order = entry.key().strEventSource.compare(text);
                if (order > 0 || (order == 0 && entry.key().AlarmType >= type))
                    break;
            }
            held = entry != map.cend() && order == 0 && entry.key().AlarmType == type;
        } else {
            held = map.contains(AlarmSourceKey{QString::fromUtf8(bytes, size), row.Int(2)});
        }
        if (!held)
            ids.push_back(row.Int64(0));
    }
    if (!row.IsDone())
        return std::nullopt;
    std::sort(ids.begin(), ids.end());
    return ids;
}
