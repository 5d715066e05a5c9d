#include "tests/architecture/IncludeRules.h"
#include "tests/architecture/SourceTree.h"

#include <QTest>

#include <functional>

using IncludeRules::Room;

class tst_IncludeRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSourcesKeepTheRules()
    {
        const SourceTree tree(QStringLiteral(ACS_SOURCE_DIR));
        QStringList violations;
        int checked = 0;
        const QStringList files =
            tree.FilesEndingWith({QStringLiteral(".h"), QStringLiteral(".cpp"), QStringLiteral(".ui")});
        for (const QString& file : files) {
            // Tests, benchmarks and examples stand outside the house and may look into every room.
            if (file.startsWith(QLatin1String("tests/")) || file.startsWith(QLatin1String("benchmarks/")) ||
                file.startsWith(QLatin1String("examples/")))
                continue;
            violations += m_checker.Violations(file, tree.Text(file));
            ++checked;
        }
        QVERIFY2(checked > 50, "the sources were not found");
        QVERIFY2(violations.isEmpty(), qPrintable(QLatin1Char('\n') + violations.join(QLatin1Char('\n'))));
    }

    // the table

    void everyEntryOfTheTableNamesARoomOrAHeader()
    {
        for (const Room& room : IncludeRules::Rooms()) {
            for (const QString& entry : room.mayInclude) {
                const Room* const other = IncludeRules::RoomOf(entry);
                QVERIFY2(other && (other->strPrefix == entry || entry.endsWith(QLatin1String(".h"))),
                         qPrintable(room.strPrefix + QStringLiteral(" names ") + entry));
                QVERIFY(other != &room);
            }
        }
    }

    void theTableHasNoCircle()
    {
        QStringList path;
        std::function<bool(const Room&)> isFree = [&](const Room& room) {
            if (path.contains(room.strPrefix)) {
                qWarning("%s", qPrintable(path.join(QStringLiteral(" -> "))));
                return false;
            }
            path.append(room.strPrefix);
            const QStringList below = IncludeRules::RoomsIncludedBy(room);
            for (const QString& prefix : below) {
                if (!isFree(*IncludeRules::RoomOf(prefix)))
                    return false;
            }
            path.removeLast();
            return true;
        };
        for (const Room& room : IncludeRules::Rooms())
            QVERIFY(isFree(room));
    }

    void theLongestPrefixNamesTheRoom()
    {
        const auto prefix = [](const char* path) {
            return IncludeRules::RoomOf(QLatin1String(path))->strPrefix;
        };
        QCOMPARE(prefix("plugin/host_services/HostServices.h"), QStringLiteral("plugin/host_services/"));
        QCOMPARE(prefix("plugin/CACSEventConfigUI.h"), QStringLiteral("plugin/"));
        QCOMPARE(prefix("AlarmCtrl/AlarmSchemeData/AlarmInfo.h"),
                 QStringLiteral("AlarmCtrl/AlarmSchemeData/"));
        QCOMPARE(prefix("AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"),
                 QStringLiteral("AlarmCtrl/AlarmSchemeData/AlarmScheme"));
        QCOMPARE(prefix("AlarmCtrl/DefenceTime.h"), QStringLiteral("AlarmCtrl/DefenceTime"));
        QVERIFY(!IncludeRules::RoomOf(QStringLiteral("QString")));
        QVERIFY(!IncludeRules::RoomOf(QStringLiteral("elsewhere/File.h")));
    }

    // the checker

    void badIncludesAreFound_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("line");
        const auto row = [](const char* name, const char* file, const char* line) {
            QTest::newRow(name) << QString::fromLatin1(file) << QString::fromLatin1(line);
        };
        row("client knows the page", "client/A.cpp", "#include \"scheme_editor/ACSEventSchemeEditor.h\"");
        row("client knows alarm widgets", "client/A.cpp", "#include \"AlarmCtrl/QAlarmListItemView.h\"");
        row("client knows the module", "client/A.h", "#include \"plugin/CACSEventConfigUI.h\"");
        row("client knows the lookup", "client/A.h", "#include \"plugin/host_services/HostServices.h\"");
        row("client's store knows a window", "client/store/A.h", "#include \"client/MainWindow.h\"");
        row("module knows the client", "plugin/A.cpp", "#include \"client/HubManager.h\"");
        row("page knows the client", "scheme_editor/A.cpp", "#include \"client/HubManager.h\"");
        row("page knows the root object", "scheme_editor/A.cpp", "#include \"plugin/CACSEventConfigUI.h\"");
        row("page knows the store", "scheme_editor/A.cpp",
            "#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("alarm widgets know the page", "AlarmCtrl/A.cpp", "#include \"scheme_editor/A.h\"");
        row("alarm widgets know the store", "AlarmCtrl/A.cpp",
            "#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("a widget runs SQL", "AlarmCtrl/A.cpp", "#include <sqlite3.h>");
        row("a widget runs Qt's SQL", "scheme_editor/A.cpp", "#include <QSqlQuery>");
        row("a window of the client runs SQL", "client/MainWindow.cpp", "#include <sqlite3.h>");
        row("a window of the client reaches for the store", "client/MainWindow.cpp",
            "#include <QLabel>\n#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("records know the store", "AlarmCtrl/AlarmSchemeData/AlarmInfo.cpp",
            "#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("records know the platform", "AlarmCtrl/AlarmSchemeData/AlarmInfo.cpp",
            "#include \"platform/SystemLibrary/SystemPaths.h\"");
        row("records know Qt Gui", "AlarmCtrl/AlarmSchemeData/AlarmInfo.h", "#include <QColor>");
        row("records speak SQL", "AlarmCtrl/AlarmSchemeData/AlarmInfo.cpp", "#include <sqlite3.h>");
        row("the store knows more than paths", "AlarmCtrl/AlarmSchemeData/AlarmSchemeWrites.cpp",
            "#include \"platform/SystemLibrary/QCommon.h\"");
        row("the store knows a widget", "AlarmCtrl/AlarmSchemeData/AlarmSchemeWrites.cpp",
            "#include <QMessageBox>");
        row("a pure helper knows a widget", "AlarmCtrl/DefenceTime.cpp", "#include <QWidget>");
        row("a pure helper knows its editor", "AlarmCtrl/DefenceTime.cpp",
            "#include \"AlarmCtrl/QAlarmDayEditor.h\"");
        row("copying knows the page", "scheme_editor/SchemeCopy.cpp",
            "#include \"scheme_editor/ACSEventSchemeEditor.h\"");
        row("copying knows a picture", "scheme_editor/SchemeCopy.h", "#include <QtGui/QIcon>");
        row("the lookup knows a widget", "plugin/host_services/HostServices.cpp",
            "#include <QtWidgets/QWidget>");
        row("the lookup knows the tree control", "plugin/host_services/HostServices.cpp",
            "#include \"platform/VantaComponent/GroupTreeCtrl.h\"");
        row("a lower platform folder knows a higher one", "platform/VantaLogic/A.h",
            "#include \"platform/VantaModel/GroupTreeModel.h\"");
        row("the logger knows the system library", "platform/lxl/A.cpp",
            "#include \"platform/SystemLibrary/SystemPaths.h\"");
        row("the platform knows the store", "platform/SystemLibrary/A.cpp",
            "#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("the platform knows alarm widgets", "platform/LXGUI/A.cpp",
            "#include \"AlarmCtrl/DefenceTime.h\"");
        row("the platform knows the client", "platform/LXGUI/A.cpp", "#include \"client/MainWindow.h\"");
        row("models know widgets", "platform/VantaModel/A.cpp", "#include <QTreeView>");
        row("tools know a widget", "tools/A.cpp", "#include <QApplication>");
        row("tools know platform widgets", "tools/A.cpp", "#include \"platform/LXGUI/Theme.h\"");
        row("tools know the client", "tools/A.cpp", "#include \"client/SampleSite.h\"");
        row("services know a widget", "scheme_services/A.cpp", "#include <QtWidgets>");
        row("services know the site", "scheme_services/A.cpp", "#include \"platform/SiteLibrary/Site.h\"");
        row("services know the tools", "scheme_services/A.cpp", "#include \"tools/Command.h\"");
        row("a form knows a foreign widget", "client/A.ui",
            "<header>AlarmCtrl/QAlarmListItemView.h</header>");
        row("a form knows a foreign widget globally", "client/A.ui",
            "<header location=\"global\">AlarmCtrl/QAlarmListItemView.h</header>");
        row("angle brackets", "client/A.cpp", "#include <scheme_editor/A.h>");
        row("blanks", "client/A.cpp", "\t #  include\t\"scheme_editor/A.h\" // why");
        row("a comment before", "client/A.cpp", "/* x */ #include \"scheme_editor/A.h\"");
        row("not the first line", "client/A.cpp", "#pragma once\r\n\r\n#include \"scheme_editor/A.h\"\r\n");
        row("a way round", "client/A.cpp", "#include \"platform/../scheme_editor/A.h\"");
        row("a way up", "client/A.cpp", "#include \"../scheme_editor/A.h\"");
        row("a neighbour without its folder", "client/A.cpp", "#include \"HubManager.h\"");
        row("a file in no room", "attic/A.cpp", "#include <QString>");
    }

    void badIncludesAreFound()
    {
        QFETCH(QString, file);
        QFETCH(QString, line);
        const QStringList violations = m_checker.Violations(file, line);
        QCOMPARE(violations.size(), 1);
        QVERIFY2(violations[0].startsWith(file), qPrintable(violations[0]));
    }

    void goodIncludesPass_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("line");
        const auto row = [](const char* name, const char* file, const char* line) {
            QTest::newRow(name) << QString::fromLatin1(file) << QString::fromLatin1(line);
        };
        row("own header", "client/A.cpp", "#include \"client/A.h\"");
        row("client shows the store's outcome", "client/A.cpp",
            "#include <QLabel>\n#include \"client/store/SchemeStoreOutcome.h\"");
        row("client's store speaks SQL", "client/store/A.cpp",
            "#include <sqlite3.h>\n#include \"AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h\"");
        row("page and its helpers", "scheme_editor/A.cpp",
            "#include \"scheme_editor/SchemeCopy.h\"\n#include \"AlarmCtrl/QAlarmListItemView.h\"\n"
            "#include \"plugin/host_services/HostServices.h\"\n#include <QWidget>");
        row("descriptor creates the page", "plugin/A.cpp",
            "#include \"scheme_editor/ACSEventSchemeEditor.h\"");
        row("system library takes the records", "platform/SystemLibrary/A.h",
            "#include \"AlarmCtrl/AlarmSchemeData/AlarmInfo.h\"");
        row("store", "AlarmCtrl/AlarmSchemeData/AlarmSchemeWrites.cpp",
            "#include <sqlite3.h>\n#include \"platform/lxl/DPrintLog.h\"\n"
            "#include \"platform/SystemLibrary/SystemPaths.h\"\n#include <QFile>");
        row("generated files", "AlarmCtrl/A.cpp",
            "#include \"ui_A.h\"\n#include \"moc_A.cpp\"\n#include \"A.moc\"\n#include \"lxgui_export.h\"");
        row("comments and texts", "client/A.cpp",
            "// #include \"scheme_editor/A.h\"\nauto text = \"#include <sqlite3.h>\";");
        row("other libraries", "platform/SiteLibrary/A.cpp",
            "#include <rapidjson/document.h>\n#include <vector>");
        row("form", "AlarmCtrl/A.ui", "<header>platform/LXGUI/LXTimeEdit.h</header>");
    }

    void goodIncludesPass()
    {
        QFETCH(QString, file);
        QFETCH(QString, line);
        QCOMPARE(m_checker.Violations(file, line), QStringList());
    }

    void qtsHeadersAreKnown()
    {
        const auto headers = IncludeRules::QtHeaders::Read(Folders());
        QVERIFY(headers.widgets.contains(QStringLiteral("QWidget")));
        QVERIFY(headers.gui.contains(QStringLiteral("QColor")));
        QVERIFY(!headers.widgets.contains(QStringLiteral("QString")));
        QVERIFY(!headers.gui.contains(QStringLiteral("QWidget")));
    }

private:
    static QStringList Folders() { return QStringLiteral(ACS_QT_FOLDERS).split(QLatin1Char('|')); }

    const IncludeRules::Checker m_checker{IncludeRules::QtHeaders::Read(Folders())};
};

QTEST_GUILESS_MAIN(tst_IncludeRules)
#include "tst_IncludeRules.moc"
