#include "Document.h"
#include "Programs.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

const QString Root = QStringLiteral(ACS_SOURCE_DIR);
const QString SchemePage = QStringLiteral("docs/acs-scheme.md");
const QString Guide = QStringLiteral("docs/guide.md");
constexpr QSize LargestPicture(1366, 768);
constexpr qint64 HeaviestPicture = 150'000; // bytes

QString Text(const QString& strFile)
{
    QFile file(Root + QLatin1Char('/') + strFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList Pages()
{
    QStringList pages{QStringLiteral("README.md"), QStringLiteral("ARCHITECTURE.md")};
    const QStringList names =
        QDir(Root + QStringLiteral("/docs")).entryList({QStringLiteral("*.md")}, QDir::Files);
    for (const QString& strName : names)
        pages += QStringLiteral("docs/") + strName;
    return pages;
}

/// A text as a person reads it on the screen: without the mark of its key, dots and colon at its end.
QString AsRead(QString strText)
{
    static const QRegularExpression end(QStringLiteral("\\s*(?:\\.\\.\\.|…|:)$"));
    return strText.remove(QLatin1Char('&')).remove(end).simplified();
}

/// All texts that the programs have, in English.
QSet<QString> ShownTexts()
{
    QFile file(Root + QStringLiteral("/translations/acs_en.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> texts;
    QXmlStreamReader reader(&file);
    QString strElement;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            strElement = reader.name().toString();
        else if (token == QXmlStreamReader::Characters &&
                 QStringList{QStringLiteral("source"), QStringLiteral("translation"),
                             QStringLiteral("numerusform")}
                     .contains(strElement))
            texts.insert(AsRead(reader.text().toString()));
    }
    return texts;
}

} // namespace

/// The pages of the documentation beside the product that they are about.
class TestDocumentation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList pages = Pages();
        for (const QString& strFile : pages) {
            m_documents += Document(Root, strFile);
            QVERIFY2(!m_documents.constLast().IsEmpty(), qPrintable(strFile));
        }
        QVERIFY(m_documents.size() > 5);
        QVERIFY2(m_programs.IsComplete(), qPrintable(m_programs.Problem()));
    }

    void aPageIsTakenApart()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("page.md")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("# A: page\n\nSee `acs-scheme list` and \"a\nwrapped\" [link](b.md#c).\n\n"
                   "    $ acs-scheme show\n      --source S\n\n## A: page\n```\n\"quoted\" in code\n```\n");
        file.close();
        const Document document(folder.path(), QStringLiteral("page.md"));
        QCOMPARE(document.Quoted(), QStringList{QStringLiteral("a wrapped")});
        QCOMPARE(document.Anchors(), QSet<QString>({QStringLiteral("a-page"), QStringLiteral("a-page-1")}));
        QCOMPARE(document.Links().size(), 1);
        QCOMPARE(document.Links().constFirst().strPath, QStringLiteral("b.md"));
        QCOMPARE(document.Links().constFirst().strAnchor, QStringLiteral("c"));
        QStringList codes;
        for (const Document::Code& code : document.Codes())
            codes += code.strText;
        QCOMPARE(codes, QStringList({QStringLiteral("acs-scheme list"),
                                     QStringLiteral("$ acs-scheme show --source S"),
                                     QStringLiteral("\"quoted\" in code")}));
    }

    void whatDoesNotExistIsComplainedOf_data()
    {
        QTest::addColumn<QString>("strCode");
        QTest::addColumn<bool>("bSound");
        QTest::newRow("a command") << QStringLiteral("acs-scheme list --enabled") << true;
        QTest::newRow("with a prompt") << QStringLiteral("$ acs-scheme list --source S") << true;
        QTest::newRow("with a path") << QStringLiteral("build/bin/acs-client --data-dir DIR") << true;
        QTest::newRow("something else") << QStringLiteral("cmake --frobnicate") << true;
        QTest::newRow("no such command") << QStringLiteral("acs-scheme frobnicate") << false;
        QTest::newRow("no such option") << QStringLiteral("acs-scheme list --frobnicate") << false;
        QTest::newRow("another command's") << QStringLiteral("$ acs-scheme list --merge") << false;
        QTest::newRow("the client") << QStringLiteral("build/bin/acs-client --frobnicate") << false;
    }

    void whatDoesNotExistIsComplainedOf()
    {
        QFETCH(QString, strCode);
        QFETCH(bool, bSound);
        QCOMPARE(m_programs.Complaint(strCode).isEmpty(), bSound);
    }

    void everyCommandAndOptionThatIsShownExists()
    {
        int iUses = 0;
        QStringList complaints;
        for (const Document& document : qAsConst(m_documents)) {
            for (const Document::Code& code : document.Codes()) {
                iUses += code.strText.contains(QLatin1String("acs-scheme ")) ? 1 : 0;
                QString strComplaint = m_programs.Complaint(code.strText);
                // An option by itself belongs to the command of the section, or else to any.
                if (!code.bShown && code.strText.startsWith(QLatin1String("--"))) {
                    const bool bCommand =
                        document.File() == SchemePage && m_programs.Commands().contains(code.strSection);
                    const QSet<QString> known =
                        bCommand ? m_programs.OptionsOf(code.strSection) : m_programs.AllOptions();
                    strComplaint = Programs::Listed(Programs::OptionsIn(code.strText) - known);
                }
                if (!strComplaint.isEmpty())
                    complaints +=
                        QStringLiteral("%1: `%2`: %3").arg(document.File(), code.strText, strComplaint);
            }
        }
        QVERIFY(iUses > 30);
        QCOMPARE(complaints.join(QLatin1Char('\n')), QString());
    }

    void everyCommandAndOptionIsDescribed()
    {
        const Document page(Root, SchemePage);
        QHash<QString, QSet<QString>> described;
        for (const Document::Code& code : page.Codes())
            described[code.strSection] += Programs::OptionsIn(code.strText);
        const QSet<QString> common =
            described.value(QString()) + described.value(QStringLiteral("What the commands work on"));
        QVERIFY(common.size() >= 4);
        const QStringList commands = m_programs.Commands();
        for (const QString& strCommand : commands) {
            QVERIFY2(page.Sections().contains(strCommand), qPrintable(strCommand));
            const QSet<QString> missing =
                m_programs.OptionsOf(strCommand) - common - described.value(strCommand);
            QVERIFY2(missing.isEmpty(),
                     qPrintable(strCommand + QLatin1Char(' ') + Programs::Listed(missing)));
        }
    }

    void everyTargetOfMakeAndEveryScriptExists()
    {
        static const QRegularExpression make(QStringLiteral("^make ([a-z0-9-]+)"));
        static const QRegularExpression script(QStringLiteral("^(?:\\./)?(scripts/[\\w.-]+)"));
        const QString strMakefile = Text(QStringLiteral("Makefile"));
        int iTargets = 0;
        for (const Document& document : qAsConst(m_documents)) {
            for (const Document::Code& code : document.Codes()) {
                const QString strTarget = make.match(code.strText).captured(1);
                const QString strScript = script.match(code.strText).captured(1);
                iTargets += strTarget.isEmpty() ? 0 : 1;
                const QRegularExpression rule(QStringLiteral("^%1:").arg(strTarget),
                                              QRegularExpression::MultilineOption);
                QVERIFY2(strTarget.isEmpty() || rule.match(strMakefile).hasMatch(), qPrintable(code.strText));
                QVERIFY2(strScript.isEmpty() || QFileInfo(Root + QLatin1Char('/') + strScript).isExecutable(),
                         qPrintable(code.strText));
            }
        }
        QVERIFY(iTargets > 3);
    }

    void everyCommandOfTheGuideRuns()
    {
        // In the order of the page, over the sample site of a first start.
        QTemporaryDir home;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
        QStringList failures;
        const auto run = [&](const QString& strLine) {
            QStringList words = QProcess::splitCommand(strLine);
            const bool bClient = words.constFirst() == QLatin1String("acs-client");
            words.removeFirst();
            if (bClient)
                words += {QStringLiteral("--picture"), home.filePath(QStringLiteral("picture.png"))};
            QProcess process;
            process.setProcessEnvironment(environment);
            process.setWorkingDirectory(home.path());
            process.start(bClient ? QStringLiteral(ACS_CLIENT) : QStringLiteral(ACS_SCHEME), words);
            // 1 is an answer: not armed, something was found, something differs.
            if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
                process.exitCode() > (bClient ? 0 : 1))
                failures += strLine + QLatin1String(": ") + QString::fromUtf8(process.readAllStandardError());
        };
        run(QStringLiteral("acs-client --open ACSEventConfigUI"));
        run(QStringLiteral("acs-scheme export-site --output devices.csv"));
        int iLines = 0;
        const Document guide(Root, Guide);
        for (const Document::Code& code : guide.Codes()) {
            if (code.bShown && code.strText.startsWith(QLatin1String("acs-"))) {
                ++iLines;
                run(code.strText);
            }
        }
        QVERIFY(iLines > 10);
        QCOMPARE(failures.join(QLatin1Char('\n')), QString());
    }

    void everyLinkLeadsSomewhere()
    {
        QStringList lost;
        for (const Document& document : qAsConst(m_documents)) {
            const QList<DocumentLink> links = document.Links();
            for (const DocumentLink& link : links) {
                const QString strTarget =
                    link.strPath.isEmpty() ? document.File() : TargetOf(document, link.strPath);
                const bool bThere = QFileInfo::exists(Root + QLatin1Char('/') + strTarget);
                const bool bAnchored =
                    link.strAnchor.isEmpty() || Document(Root, strTarget).Anchors().contains(link.strAnchor);
                if (!bThere || !bAnchored)
                    lost += QStringLiteral("%1: %2#%3").arg(document.File(), link.strPath, link.strAnchor);
            }
            // Pages that are named without a link.
            for (const Document::Code& code : document.Codes()) {
                if (!code.bShown && code.strText.endsWith(QLatin1String(".md")) &&
                    !QFileInfo::exists(Root + QLatin1Char('/') + TargetOf(document, code.strText)) &&
                    !QFileInfo::exists(Root + QLatin1Char('/') + code.strText))
                    lost += QStringLiteral("%1: %2").arg(document.File(), code.strText);
            }
        }
        QCOMPARE(lost.join(QLatin1Char('\n')), QString());
    }

    void theListOfTheExampleStandsInItsPage()
    {
        const auto lines = [](const QString& strFile) {
            // Neither empty ones nor comments.
            return Text(strFile).split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^[^#]")));
        };
        const QStringList list = lines(QStringLiteral("examples/minimal_module/CMakeLists.txt"));
        QVERIFY(list.size() > 8);
        const QStringList page = lines(QStringLiteral("docs/plugin-api.md"));
        QCOMPARE(page.mid(page.indexOf(list.constFirst()), list.size()), list);
    }

    void everyPictureIsShownAndLight()
    {
        QSet<QString> shown;
        for (const Document& document : qAsConst(m_documents)) {
            const QList<DocumentLink> links = document.Links();
            for (const DocumentLink& link : links)
                shown.insert(TargetOf(document, link.strPath));
        }
        const QFileInfoList pictures =
            QDir(Root + QStringLiteral("/docs/pictures")).entryInfoList(QDir::Files | QDir::Hidden);
        QVERIFY(pictures.size() > 5);
        for (const QFileInfo& picture : pictures) {
            const QByteArray name = picture.fileName().toUtf8();
            QVERIFY2(shown.contains(QStringLiteral("docs/pictures/") + picture.fileName()), name.constData());
            QCOMPARE(picture.suffix(), QStringLiteral("png"));
            const QSize size = QImageReader(picture.filePath()).size();
            QVERIFY2(size.isValid() && size.boundedTo(LargestPicture) == size, name.constData());
            QVERIFY2(picture.size() <= HeaviestPicture, name.constData());
        }
    }

    void theGuideQuotesWhatThereIs()
    {
        const QSet<QString> texts = ShownTexts();
        QVERIFY(texts.size() > 300);
        const QStringList quoted = Document(Root, Guide).Quoted();
        QVERIFY(quoted.size() > 20);
        QStringList invented;
        for (const QString& strText : quoted) {
            if (!texts.contains(AsRead(strText)))
                invented += strText;
        }
        QCOMPARE(invented.join(QLatin1Char('\n')), QString());
    }

private:
    static QString TargetOf(const Document& document, const QString& strPath)
    {
        return QDir::cleanPath(QFileInfo(document.File()).path() + QLatin1Char('/') + strPath);
    }

    Programs m_programs{QStringLiteral(ACS_CLIENT), QStringLiteral(ACS_SCHEME)};
    QList<Document> m_documents;
};

QTEST_GUILESS_MAIN(TestDocumentation)
#include "tst_documentation.moc"
