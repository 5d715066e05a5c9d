#include "tests/architecture/IncludeRules.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace IncludeRules {

namespace {

struct Include
{
    QString strHeader;
    bool bQuoted;
};

QString Text(const char* strLatin1)
{
    return QString::fromLatin1(strLatin1);
}

/// The store lies beside the records; its files are told by their names.
QString StorePrefix()
{
    return Text("AlarmCtrl/AlarmSchemeData/AlarmScheme");
}

std::vector<Room> MakeRooms()
{
    const QString records = Text("AlarmCtrl/AlarmSchemeData/");
    const QString store = StorePrefix();
    const QString defenceTime = Text("AlarmCtrl/DefenceTime");
    const QString hostServices = Text("plugin/host_services/");

    // The platform, lowest folder first; each may know all below it.
    struct Storey
    {
        const char* strFolder;
        QtReach reach;
    };
    const std::vector<Storey> platform = {
        {"lxl", QtReach::Core},
        {"LXPluginAPI", QtReach::Gui},
        {"DeviceFuncLogical", QtReach::Core},
        {"VantaLogic", QtReach::Core},
        {"SystemLibrary", QtReach::Core},
        {"SiteLibrary", QtReach::Core},
        {"LXGUI", QtReach::Widgets},
        {"UICommonMdl", QtReach::Widgets},
        {"VantaModel", QtReach::Gui},
        {"VantaComponent", QtReach::Widgets},
    };
    std::vector<Room> rooms;
    QStringList wholePlatform;
    QStringList platformWithoutWidgets;
    for (const Storey& storey : platform) {
        const QString folder = Text("platform/%1/").arg(Text(storey.strFolder));
        rooms.push_back({folder, storey.reach, false, wholePlatform + QStringList{records}});
        wholePlatform.append(folder);
        if (storey.reach != QtReach::Widgets)
            platformWithoutWidgets.append(folder);
    }

    rooms.push_back({records, QtReach::Core, false, {}});
    rooms.push_back({store,
                     QtReach::Core,
                     true,
                     {records, Text("platform/lxl/"), Text("platform/SystemLibrary/SystemPaths.h")}});

    // Pure helpers: rules without a window, each a room of its own within its folder.
    const QString copy = Text("scheme_editor/SchemeCopy");
    const QString selection = Text("scheme_editor/SchemeSelection");
    const QString deviceSchemes = Text("scheme_editor/DeviceSchemes");
    const QString lookup = Text("scheme_editor/EventSourceLookup");
    const QString tabs = Text("scheme_editor/TabLayout");
    const QString edits = Text("scheme_editor/edits/");
    const QString tiles = Text("client/TileArrangement");
    const QString modulePlatform = Text("client/ModulePlatform");
    const QString systemLibrary = Text("platform/SystemLibrary/");
    rooms.push_back({defenceTime, QtReach::Core, false, {records}});
    rooms.push_back({edits, QtReach::Core, false, {records}});
    rooms.push_back({copy, QtReach::Core, false, {records, edits, systemLibrary}});
    rooms.push_back({selection, QtReach::Core, false, {records}});
    rooms.push_back({deviceSchemes, QtReach::Core, false, {records, edits}});
    rooms.push_back({lookup,
                     QtReach::Core,
                     false,
                     {records, Text("platform/VantaLogic/"), Text("platform/VantaModel/NodeRoles.h")}});
    rooms.push_back({tabs, QtReach::Core, false, {}});
    rooms.push_back({tiles, QtReach::Core, false, {}});
    rooms.push_back({modulePlatform, QtReach::Core, false, {Text("platform/LXPluginAPI/PlatformVersion.h")}});

    rooms.push_back(
        {hostServices,
         QtReach::Core,
         false,
         {Text("platform/LXPluginAPI/"), Text("platform/DeviceFuncLogical/"), Text("platform/VantaLogic/")}});
    rooms.push_back({Text("AlarmCtrl/"), QtReach::Widgets, false,
                     wholePlatform + QStringList{records, defenceTime, hostServices}});
    rooms.push_back({Text("scheme_editor/"), QtReach::Widgets, false,
                     wholePlatform + QStringList{records, defenceTime, copy, edits, selection, deviceSchemes,
                                                 lookup, tabs, hostServices, Text("AlarmCtrl/")}});
    rooms.push_back({Text("plugin/"), QtReach::Widgets, false,
                     wholePlatform + QStringList{records, store, defenceTime, hostServices,
                                                 Text("AlarmCtrl/"), Text("scheme_editor/")}});

    const QString evaluation = Text("scheme_services/evaluation/");
    rooms.push_back({evaluation,
                     QtReach::Core,
                     false,
                     {records, systemLibrary, Text("platform/SiteLibrary/"), Text("platform/VantaLogic/")}});
    rooms.push_back({Text("scheme_services/site/"),
                     QtReach::Core,
                     false,
                     {systemLibrary, Text("platform/VantaLogic/"), Text("platform/SiteLibrary/")}});
    rooms.push_back(
        {Text("scheme_services/"), QtReach::Core, false, {records, store, systemLibrary, evaluation}});
    rooms.push_back(
        {Text("tools/"), QtReach::Gui, false,
         platformWithoutWidgets + QStringList{records, store, Text("scheme_services/"), evaluation,
                                              Text("scheme_services/site/"), Text("client/store/")}});
    rooms.push_back({Text("client/store/"), QtReach::Core, true,
                     platformWithoutWidgets + QStringList{records, store, Text("scheme_services/")}});
    rooms.push_back({Text("client/mail/"), QtReach::Core, false, {systemLibrary}});
    rooms.push_back({Text("client/"), QtReach::Widgets, false,
                     wholePlatform + QStringList{records, store, tiles, modulePlatform, Text("client/store/"),
                                                 Text("client/mail/"), Text("scheme_services/"), evaluation,
                                                 Text("scheme_services/site/")}});
    return rooms;
}

std::vector<Include> IncludesOf(const QString& strPath, const QString& strContent)
{
    static const QRegularExpression source(
        Text(R"re(^[ \t]*(?:/\*.*\*/[ \t]*)?#[ \t]*(?:include|import)[ \t]*(["<])([^">\n]+)[">])re"),
        QRegularExpression::MultilineOption);
    static const QRegularExpression form(Text(R"re(<header\b([^>]*)>\s*([^<\s]+)\s*</header>)re"));
    const bool isForm = strPath.endsWith(Text(".ui"));
    std::vector<Include> includes;
    auto match = (isForm ? form : source).globalMatch(strContent);
    while (match.hasNext()) {
        const QRegularExpressionMatch hit = match.next();
        const bool quoted =
            isForm ? !hit.captured(1).contains(Text("global")) : hit.captured(1) == Text("\"");
        includes.push_back({hit.captured(2), quoted});
    }
    return includes;
}

bool IsGenerated(const QString& strHeader)
{
    static const QRegularExpression generated(
        Text(R"re(^(ui_\w+\.h|\w+_export\.h|moc_\w+\.cpp|\w+\.moc)$)re"));
    return generated.match(strHeader).hasMatch();
}

bool IsSql(const QString& strHeader)
{
    static const QRegularExpression sql(Text(R"re(^(sqlite3(ext)?\.h|(QtSql/?.*|QSql.*)|.*/sqlite3\.h)$)re"));
    return sql.match(strHeader).hasMatch();
}

} // namespace

const std::vector<Room>& Rooms()
{
    static const std::vector<Room> rooms = MakeRooms();
    return rooms;
}

const Room* RoomOf(const QString& strPath)
{
    const Room* best = nullptr;
    for (const Room& room : Rooms()) {
        if (strPath.startsWith(room.strPrefix) && (!best || room.strPrefix.size() > best->strPrefix.size()))
            best = &room;
    }
    return best;
}

bool MayInclude(const Room& room, const QString& strHeader)
{
    const Room* const other = RoomOf(strHeader);
    return other == &room || room.mayInclude.contains(strHeader) ||
           (other && room.mayInclude.contains(other->strPrefix));
}

QStringList RoomsIncludedBy(const Room& room)
{
    QStringList prefixes;
    for (const QString& entry : room.mayInclude) {
        if (const Room* const other = RoomOf(entry))
            prefixes.append(other->strPrefix);
    }
    return prefixes;
}

QtHeaders QtHeaders::Read(const QStringList& folders)
{
    QtHeaders headers;
    for (const QString& folder : folders) {
        const QDir directory(folder);
        const QStringList names = directory.entryList(QDir::Files);
        const QSet<QString> set(names.begin(), names.end());
        if (directory.dirName() == Text("QtGui"))
            headers.gui.unite(set);
        if (directory.dirName() == Text("QtWidgets"))
            headers.widgets.unite(set);
    }
    return headers;
}

bool Checker::IsOf(const QSet<QString>& headers, const char* strModule, const QString& strHeader) const
{
    return headers.contains(strHeader) || strHeader.startsWith(Text(strModule) + QLatin1Char('/'));
}

QStringList Checker::Violations(const QString& strPath, const QString& strContent) const
{
    const Room* const room = RoomOf(strPath);
    if (!room)
        return {Text("%1 lies in no room").arg(strPath)};
    QStringList violations;
    const auto complain = [&](const QString& header, const char* reason) {
        violations.append(Text("%1 includes %2: %3").arg(strPath, header, Text(reason)));
    };
    bool speaksSql = false;
    QString widgetHeader;
    for (const auto& [header, quoted] : IncludesOf(strPath, strContent)) {
        const bool isQtWidget = IsOf(m_qt.widgets, "QtWidgets", header);
        const bool isQtGui = IsOf(m_qt.gui, "QtGui", header);
        if (isQtWidget)
            widgetHeader = header;
        if (IsSql(header)) {
            speaksSql = true;
            if (!room->bMaySpeakSql)
                complain(header, "SQL is spoken by the stores only");
            continue;
        }
        if (QDir::cleanPath(header) != header || header.startsWith(Text("../")) ||
            QDir::isAbsolutePath(header)) {
            complain(header, "write the path from the repository root");
            continue;
        }
        if (const Room* const other = RoomOf(header)) {
            speaksSql = speaksSql || other->strPrefix == StorePrefix();
            if (!MayInclude(*room, header))
                complain(header, "this room may not know that one");
            continue;
        }
        if (isQtWidget && room->reach != QtReach::Widgets) {
            complain(header, "no widgets in this room");
        } else if (isQtGui && room->reach == QtReach::Core) {
            complain(header, "Qt Core only in this room");
        } else if (quoted && !IsGenerated(header)) {
            complain(header, "write the path from the repository root");
        }
    }
    // A window may be told what the client's own store did, but it never holds the store of schemes itself.
    if (speaksSql && !widgetHeader.isEmpty())
        complain(widgetHeader, "a widget runs no SQL");
    return violations;
}

} // namespace IncludeRules
