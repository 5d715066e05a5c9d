#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeKeyScan.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatement.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStatements.h"

#include <QByteArray>

#include <algorithm>
#include <limits>

namespace {

bool IsAscii(const QByteArray& text)
{
    return std::all_of(text.cbegin(), text.cend(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsShort(int64_t iNumber)
{
    return iNumber >= std::numeric_limits<int32_t>::min() && iNumber <= std::numeric_limits<int32_t>::max();
}

/// The map, gone through in the order of its keys beside rows in the same order.
class KeyWalk
{
public:
    explicit KeyWalk(const AlarmInfoMap& map)
        : m_entry(map.cbegin())
        , m_end(map.cend())
    {
    }

    void SetText(const QByteArray& text)
    {
        m_text = text;
        m_pEqual = nullptr;
    }
    /// Whether the map holds the text with this type.
    bool Holds(int32_t iType)
    {
        for (; m_entry != m_end; ++m_entry) {
            const int order = Order(m_entry.key().strEventSource);
            if (order == 0 && m_entry.key().AlarmType == iType)
                return true;
            if (order > 0 || (order == 0 && m_entry.key().AlarmType > iType))
                return false;
        }
        return false;
    }

private:
    int Order(const QString& strKey)
    {
        // Keys of one source mostly share one text.
        if (strKey.constData() == m_pEqual)
            return 0;
        const int order = strKey.compare(QLatin1String(m_text));
        if (order == 0)
            m_pEqual = strKey.constData();
        return order;
    }

    AlarmInfoMap::const_iterator m_entry;
    AlarmInfoMap::const_iterator m_end;
    QByteArray m_text;
    const QChar* m_pEqual = nullptr; ///< characters that were found to be the text
};

} // namespace

std::optional<std::vector<int64_t>> AlarmSchemeKeyScan::IdsOutside(sqlite3* pDatabase,
                                                                   const AlarmInfoMap& map)
{
    std::vector<int64_t> ids;
    AlarmSchemeStatement statement(pDatabase, SchemeStatements::ScanKeys);
    AlarmSchemeRun row(statement);
    KeyWalk walk(map);
    QByteArray text;
    bool plain = false; // such rows come in the map's own order, whatever others lie between them
    while (row.Next()) {
        const bool isText = row.IsText(1);
        if (!isText && row.IsNull(1))
            continue;
        const char* const bytes = row.Bytes(1);
        const QByteArray present = QByteArray::fromRawData(bytes, row.Size(1));
        if (!plain || !isText || text != present) {
            text = QByteArray(present.constData(), present.size());
            plain = isText && IsAscii(text);
            walk.SetText(text);
        }
        const int64_t type = row.Int64(2);
        const bool held = plain && IsShort(type) && row.IsInteger(2)
                              ? walk.Holds(static_cast<int32_t>(type))
                              : map.contains(AlarmSourceKey{QString::fromUtf8(text), row.Int(2)});
        if (!held)
            ids.push_back(row.Int64(0));
    }
    if (!row.IsDone())
        return std::nullopt;
    std::sort(ids.begin(), ids.end());
    return ids;
}
