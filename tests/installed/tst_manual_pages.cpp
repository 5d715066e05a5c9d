#include "client/ClientOptions.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

/// The text of a manual page without its commands for fonts, hyphens as they are typed.
QString Page(const QString& strName)
{
    QFile file(QStringLiteral(ACS_PAGES_DIR "/") + strName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression fonts(QStringLiteral("\\\\f[BIR]"));
    return QString::fromUtf8(file.readAll()).remove(fonts).replace(QLatin1String("\\-"), QLatin1String("-"));
}

QSet<QString> OptionsIn(const QString& strText)
{
    static const QRegularExpression option(QStringLiteral("--[a-z]+(?:-[a-z]+)*"));
    QSet<QString> options;
    auto match = option.globalMatch(strText);
    while (match.hasNext())
        options.insert(match.next().captured());
    return options;
}

} // namespace

class TestManualPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageOfTheClientHasItsOptionsAndNoOthers()
    {
        const ParsedOptions help =
            ClientOptionParser::Parse({QStringLiteral("acs-client"), QStringLiteral("--help")}, QString());
        const QSet<QString> options = OptionsIn(help.strText);
        QVERIFY(options.size() > 5);
        const QSet<QString> described = OptionsIn(Page(QStringLiteral("acs-client.1")));
        QCOMPARE(QStringList((options - described).values()), QStringList());
        QCOMPARE(QStringList((described - options).values()), QStringList());
    }

    void thePageOfTheCommandLineHasEveryCommandAndOptionOfItsDocument()
    {
        QFile file(QStringLiteral(ACS_SOURCE_DIR "/docs/acs-scheme.md"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString strDocument = QString::fromUtf8(file.readAll());
        const QString strPage = Page(QStringLiteral("acs-scheme.1"));
        QCOMPARE(OptionsIn(strPage) - OptionsIn(strDocument),
                 QSet<QString>({QStringLiteral("--version")}) - OptionsIn(strDocument));
        QCOMPARE(QStringList((OptionsIn(strDocument) - OptionsIn(strPage)).values()), QStringList());
        static const QRegularExpression command(QStringLiteral("^## ([a-z-]+)$"),
                                                QRegularExpression::MultilineOption);
        auto match = command.globalMatch(strDocument);
        QVERIFY(match.hasNext());
        while (match.hasNext()) {
            const QString strHeading = QStringLiteral("\n.SS %1\n").arg(match.next().captured(1));
            QVERIFY2(strPage.contains(strHeading), qPrintable(strHeading));
        }
    }

    void thePagesNameTheVersion_data()
    {
        QTest::addColumn<QString>("strPage");
        QTest::newRow("acs-client") << QStringLiteral("acs-client.1");
        QTest::newRow("acs-scheme") << QStringLiteral("acs-scheme.1");
    }

    void thePagesNameTheVersion()
    {
        QFETCH(QString, strPage);
        const QString strHead = Page(strPage).section(QLatin1Char('\n'), 0, 0);
        QVERIFY2(strHead.startsWith(QLatin1String(".TH ")) &&
                     strHead.contains(QStringLiteral("acs-client " ACS_VERSION "\"")),
                 qPrintable(strHead));
    }
};

QTEST_GUILESS_MAIN(TestManualPages)
#include "tst_manual_pages.moc"
