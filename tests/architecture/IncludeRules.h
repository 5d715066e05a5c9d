#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

/// Who may know whom: one table of the rooms of this product, and a checker that reads source files against
/// it.
namespace IncludeRules {

/// How far up a room may reach into Qt.
enum class QtReach
{
    Core,
    Gui,
    Widgets
};

struct Room
{
    /// Beginning of the paths that lie in the room. The longest one that fits a path decides.
    QString strPrefix;
    QtReach reach;
    bool bMaySpeakSql;
    /// Prefixes of other rooms, or full paths of single headers. Its own headers a room always sees.
    QStringList mayInclude;
};

const std::vector<Room>& Rooms();
/// Null for a path outside all rooms.
const Room* RoomOf(const QString& strPath);
bool MayInclude(const Room& room, const QString& strHeader);
/// The rooms that a room's entries name; single headers count for their rooms.
QStringList RoomsIncludedBy(const Room& room);

/// Names of Qt's headers by module.
struct QtHeaders
{
    QSet<QString> gui;
    QSet<QString> widgets;
    /// From Qt's include folders; those of other modules are passed over.
    static QtHeaders Read(const QStringList& folders);
};

class Checker
{
public:
    explicit Checker(QtHeaders headers)
        : m_qt(std::move(headers))
    {
    }

    /// What is wrong with the includes of a source file, header or form; empty when all is well. The path is
    /// relative to the repository root.
    QStringList Violations(const QString& strPath, const QString& strContent) const;

private:
    bool IsOf(const QSet<QString>& headers, const char* strModule, const QString& strHeader) const;

    QtHeaders m_qt;
};

} // namespace IncludeRules
