#include "client/ClientOptions.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestClientOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingAskedForGivesTheDefaults();
    void everyOptionIsTaken();
    void pathsAreMadeAbsoluteFromTheWorkingDirectory();
    void wrongValuesAreRefusedInWords_data();
    void wrongValuesAreRefusedInWords();
    void helpNamesEveryOption();
    void versionIsPrinted();
    void argumentsOfTheToolkitAreNotOurs();
    void theProgramEndsWithTwoForAWrongValueWithoutADisplay();
    void theProgramPrintsItsHelpWithoutADisplay();

private:
    static ParsedOptions Parse(const QStringList& arguments)
    {
        return ClientOptionParser::Parse(QStringList{QStringLiteral("acs-client")} + arguments,
                                         QStringLiteral("/home/guard"));
    }
    static QString Program()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/acs-client");
    }
};

void TestClientOptions::nothingAskedForGivesTheDefaults()
{
    const ParsedOptions parsed = Parse({});
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Start);
    QCOMPARE(parsed.options.role, UserRole::Administrator);
    QVERIFY(parsed.options.strDataDirectory.isEmpty());
    QVERIFY(parsed.options.strSiteFile.isEmpty());
    QVERIFY(parsed.options.strLanguage.isEmpty());
    QVERIFY(parsed.options.strTheme.isEmpty());
    QVERIFY(parsed.options.strOpenModule.isEmpty());
    QVERIFY(parsed.options.strPictureFile.isEmpty());
    QCOMPARE(ClientOptionParser::Parse({}, QStringLiteral("/")).outcome, ParsedOptions::Outcome::Start);
}

void TestClientOptions::everyOptionIsTaken()
{
    const ParsedOptions parsed =
        Parse({QStringLiteral("--data-dir"), QStringLiteral("/data"), QStringLiteral("--site=/s/site.json"),
               QStringLiteral("--role"), QStringLiteral("operator"), QStringLiteral("--language"),
               QStringLiteral("zh_cn"), QStringLiteral("--theme"), QStringLiteral("light"),
               QStringLiteral("--open"), QStringLiteral("ACSEventConfigUI"), QStringLiteral("--picture"),
               QStringLiteral("/p/x.png")});
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Start);
    QCOMPARE(parsed.options.strDataDirectory, QStringLiteral("/data"));
    QCOMPARE(parsed.options.strSiteFile, QStringLiteral("/s/site.json"));
    QCOMPARE(parsed.options.role, UserRole::Operator);
    QCOMPARE(parsed.options.strLanguage, QStringLiteral("zh_cn"));
    QCOMPARE(parsed.options.strTheme, QStringLiteral("light"));
    QCOMPARE(parsed.options.strOpenModule, QStringLiteral("ACSEventConfigUI"));
    QCOMPARE(parsed.options.strPictureFile, QStringLiteral("/p/x.png"));
}

void TestClientOptions::pathsAreMadeAbsoluteFromTheWorkingDirectory()
{
    const ParsedOptions parsed =
        Parse({QStringLiteral("--data-dir"), QStringLiteral("data"), QStringLiteral("--site"),
               QStringLiteral("../sites/a.json"), QStringLiteral("--picture"), QStringLiteral("./x.png")});
    QCOMPARE(parsed.options.strDataDirectory, QStringLiteral("/home/guard/data"));
    QCOMPARE(parsed.options.strSiteFile, QStringLiteral("/home/sites/a.json"));
    QCOMPARE(parsed.options.strPictureFile, QStringLiteral("/home/guard/x.png"));
}

void TestClientOptions::wrongValuesAreRefusedInWords_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("strNamed");
    const auto row = [](const char* szName, std::initializer_list<const char*> arguments,
                        const char* szNamed) {
        QStringList list;
        for (const char* szArgument : arguments) {
            list.append(QString::fromUtf8(szArgument));
        }
        QTest::newRow(szName) << list << QString::fromUtf8(szNamed);
    };
    row("an unknown role", {"--role", "king"}, "king");
    row("a role in capitals", {"--role", "Operator"}, "Operator");
    row("an unknown language", {"--language", "fr"}, "fr");
    row("an unknown theme", {"--theme", "pink"}, "pink");
    row("an unknown option", {"--colour", "red"}, "colour");
    row("a stray word", {"site.json"}, "site.json");
    row("a missing value", {"--data-dir"}, "data-dir");
    row("an empty value", {"--data-dir", ""}, "data-dir");
    row("a blank value", {"--picture", "  "}, "picture");
    row("an empty role", {"--role", ""}, "role");
    row("an option twice", {"--role", "operator", "--role", "administrator"}, "role");
}

void TestClientOptions::wrongValuesAreRefusedInWords()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, strNamed);
    const ParsedOptions parsed = Parse(arguments);
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Refuse);
    QVERIFY2(parsed.strText.contains(strNamed), qPrintable(parsed.strText));
    QVERIFY(parsed.strText.startsWith(QLatin1String("acs-client: ")));
    QVERIFY(parsed.strText.endsWith(QLatin1Char('\n')));
}

void TestClientOptions::helpNamesEveryOption()
{
    for (const QString& strAsked : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const ParsedOptions parsed = Parse({strAsked});
        QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Print);
        for (const char* szOption : {"--data-dir", "--site", "--role", "--language", "--theme", "--open",
                                     "--picture", "--version"}) {
            QVERIFY2(parsed.strText.contains(QLatin1String(szOption)), szOption);
        }
    }
}

void TestClientOptions::versionIsPrinted()
{
    const ParsedOptions parsed = Parse({QStringLiteral("--version")});
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Print);
    QVERIFY(QRegularExpression(QStringLiteral("\\Aacs-client \\d+\\.\\d+\\.\\d+\\n\\z"))
                .match(parsed.strText)
                .hasMatch());
}

void TestClientOptions::argumentsOfTheToolkitAreNotOurs()
{
    const ParsedOptions parsed = Parse({QStringLiteral("-platform"), QStringLiteral("offscreen"),
                                        QStringLiteral("--role"), QStringLiteral("operator")});
    QCOMPARE(parsed.outcome, ParsedOptions::Outcome::Start);
    QCOMPARE(parsed.options.role, UserRole::Operator);
    // A session that starts the program again hands it its place in the session.
    QCOMPARE(ClientOptionParser::WithoutToolkitArguments(
                 {QStringLiteral("acs-client"), QStringLiteral("-session"), QStringLiteral("10a_1")}),
             QStringList{QStringLiteral("acs-client")});
    QCOMPARE(ClientOptionParser::WithoutToolkitArguments({QStringLiteral("-platform")}),
             QStringList{QStringLiteral("-platform")}); // the program's own name is never an option
}

void TestClientOptions::theProgramEndsWithTwoForAWrongValueWithoutADisplay()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(Program(), {QStringLiteral("--role"), QStringLiteral("king")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(process.readAllStandardError().contains("king"));
    QVERIFY(process.readAllStandardOutput().isEmpty());
}

void TestClientOptions::theProgramPrintsItsHelpWithoutADisplay()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(Program(), {QStringLiteral("--help")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains("--data-dir"));
}

QTEST_MAIN(TestClientOptions)
#include "tst_client_options.moc"
