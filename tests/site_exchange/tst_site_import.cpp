#include "scheme_services/site/SiteImport.h"
#include "tests/site_exchange/SiteSamples.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestSiteImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_strSite = m_directory->filePath(QStringLiteral("site.json"));
    }
    void bothFormsAreToldByTheirText();
    void brokenJsonIsToldWithItsLine();
    void aPlanWithProblemsHoldsNoSite();
    void theOldFileIsKeptAndNeverOverwritten();
    void aFirstSiteNeedsNoBackup();
    void aFileThatSomebodyChangedIsLeftAlone();
    void aFileThatWentIsNotMadeAnew();
    void aSiteThatCannotBeWrittenChangesNothing();
    void anExportReadsBackAsTheSameSite_data();
    void anExportReadsBackAsTheSameSite();
    void anExportThatCannotBeWrittenIsTold();
    void filesThatAreNoSitesAreTold();
    void theFormFollowsTheNameOfTheFile();

private:
    QByteArray Content(const QString& strFile) const
    {
        QFile file(strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    void Write(const QString& strFile, const QByteArray& text) const
    {
        QFile file(strFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    QStringList Files() const
    {
        return QDir(m_directory->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_strSite;
    QString m_strBackup;
    QString m_strReason;
};

void TestSiteImport::bothFormsAreToldByTheirText()
{
    for (const SiteForm eForm : {SiteForm::Json, SiteForm::Csv}) {
        const QByteArray text = SiteImport::ToText(SmallSite(), eForm);
        for (const QByteArray& variant : {text, QByteArray(text).replace("\xEF\xBB\xBF", ""),
                                          "\xEF\xBB\xBF" + QByteArray(text).replace("\xEF\xBB\xBF", ""),
                                          "\n\n " + QByteArray(text).replace("\xEF\xBB\xBF", "")}) {
            const SiteImportPlan plan = SiteImport::Plan(variant, Site());
            QCOMPARE(Printed(plan.problems), QString());
            QVERIFY(plan.eForm == eForm);
            QCOMPARE(Printed(plan.site), Printed(SmallSite()));
            QCOMPARE(plan.difference.Count(SiteChange::Kind::Added), 7);
            QVERIFY(SiteImport::Plan(variant, SmallSite()).difference.IsEmpty());
        }
    }
}

void TestSiteImport::brokenJsonIsToldWithItsLine()
{
    for (const QByteArray& text : {QByteArray("{\n\"devices\": [\n}"), QByteArray("[]"), QByteArray("{")}) {
        const SiteImportPlan plan = SiteImport::Plan(text, SmallSite());
        QVERIFY(plan.eForm == SiteForm::Json);
        QCOMPARE(plan.problems.list.size(), 1);
        QVERIFY(plan.problems.list.constFirst().iLine > 0);
    }
}

void TestSiteImport::aPlanWithProblemsHoldsNoSite()
{
    const SiteImportPlan plan =
        SiteImport::Plan("record,id,name,type\ndevice,1,A,12\ndevice,1,B,12\n", SmallSite());
    QVERIFY(!plan.IsSound());
    QVERIFY(plan.site.devices.isEmpty());
    QVERIFY(plan.difference.IsEmpty());
}

void TestSiteImport::theOldFileIsKeptAndNeverOverwritten()
{
    Site other = SmallSite();
    other.devices.removeLast();
    const QByteArray first = SiteFile::ToText(SmallSite());
    const QByteArray second = SiteFile::ToText(other);
    Write(m_strSite, first);
    QVERIFY(SiteImport::ReplaceSiteFile(m_strSite, other, first, m_strBackup, m_strReason));
    QCOMPARE(m_strBackup, m_strSite + QStringLiteral(".bak"));
    QCOMPARE(Content(m_strSite), second);
    QCOMPARE(Content(m_strBackup), first);
    QVERIFY(SiteImport::ReplaceSiteFile(m_strSite, Site(), second, m_strBackup, m_strReason));
    QCOMPARE(m_strBackup, m_strSite + QStringLiteral(".bak2"));
    QCOMPARE(Content(m_strSite + QStringLiteral(".bak")), first);
    QCOMPARE(Content(m_strBackup), second);
    QCOMPARE(Files(), (QStringList{QStringLiteral("site.json"), QStringLiteral("site.json.bak"),
                                   QStringLiteral("site.json.bak2")}));
}

void TestSiteImport::aFirstSiteNeedsNoBackup()
{
    QVERIFY(SiteImport::ReplaceSiteFile(m_strSite, SmallSite(), QByteArray(), m_strBackup, m_strReason));
    QVERIFY(m_strBackup.isEmpty());
    QCOMPARE(Content(m_strSite), SiteFile::ToText(SmallSite()));
    QCOMPARE(Files().size(), 1);
}

void TestSiteImport::aFileThatSomebodyChangedIsLeftAlone()
{
    Write(m_strSite, "mine");
    QVERIFY(!SiteImport::ReplaceSiteFile(m_strSite, SmallSite(), "theirs", m_strBackup, m_strReason));
    QVERIFY(!m_strReason.isEmpty());
    QVERIFY(m_strBackup.isEmpty());
    QVERIFY(!SiteImport::ReplaceSiteFile(m_strSite, SmallSite(), QByteArray(), m_strBackup, m_strReason));
    QCOMPARE(Content(m_strSite), QByteArray("mine"));
    QCOMPARE(Files().size(), 1);
}

void TestSiteImport::aFileThatWentIsNotMadeAnew()
{
    QVERIFY(!SiteImport::ReplaceSiteFile(m_strSite, SmallSite(), "was here", m_strBackup, m_strReason));
    QVERIFY(Files().isEmpty());
}

void TestSiteImport::aSiteThatCannotBeWrittenChangesNothing()
{
    Site unsound = SmallSite();
    unsound.devices[0].strName.clear();
    const QByteArray before = SiteFile::ToText(SmallSite());
    Write(m_strSite, before);
    QVERIFY(!SiteImport::ReplaceSiteFile(m_strSite, unsound, before, m_strBackup, m_strReason));
    QVERIFY(!m_strReason.isEmpty());
    QCOMPARE(Content(m_strSite), before);
    QCOMPARE(Files().size(), 1);
    const QString strNowhere = m_directory->filePath(QStringLiteral("no/such/site.json"));
    QVERIFY(!SiteImport::ReplaceSiteFile(strNowhere, SmallSite(), QByteArray(), m_strBackup, m_strReason));
}

void TestSiteImport::anExportReadsBackAsTheSameSite_data()
{
    QTest::addColumn<QString>("strFile");
    QTest::newRow("table") << QStringLiteral("out.csv");
    QTest::newRow("JSON") << QStringLiteral("out.json");
}

void TestSiteImport::anExportReadsBackAsTheSameSite()
{
    QFETCH(QString, strFile);
    const QString strPath = m_directory->filePath(strFile);
    Write(strPath, "old");
    QVERIFY(SiteImport::Export(strPath, SmallSite(), SiteImport::FormOfFile(strPath), m_strReason));
    QByteArray text;
    QVERIFY(SiteImport::ReadFile(strPath, text, m_strReason));
    QVERIFY(SiteImport::Plan(text, SmallSite()).IsSound());
    QVERIFY(SiteImport::Plan(text, SmallSite()).difference.IsEmpty());
    QCOMPARE(Files().size(), 1);
}

void TestSiteImport::anExportThatCannotBeWrittenIsTold()
{
    QVERIFY(!SiteImport::Export(m_directory->path(), SmallSite(), SiteForm::Csv, m_strReason));
    QVERIFY(!m_strReason.isEmpty());
}

void TestSiteImport::filesThatAreNoSitesAreTold()
{
    QByteArray text("as before");
    for (const QString& strPath : {m_directory->path(), m_strSite}) {
        m_strReason.clear();
        QVERIFY(!SiteImport::ReadFile(strPath, text, m_strReason));
        QVERIFY(!m_strReason.isEmpty());
    }
    QFile large(m_strSite);
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize(64LL * 1024 * 1024 + 1));
    large.close();
    QVERIFY(!SiteImport::ReadFile(m_strSite, text, m_strReason));
    QVERIFY(m_strReason.contains(QLatin1String("64")));
    QCOMPARE(text, QByteArray("as before"));
}

void TestSiteImport::theFormFollowsTheNameOfTheFile()
{
    QVERIFY(SiteImport::FormOfFile(QStringLiteral("a/b.CSV")) == SiteForm::Csv);
    QVERIFY(SiteImport::FormOfFile(QStringLiteral("b.tsv")) == SiteForm::Csv);
    QVERIFY(SiteImport::FormOfFile(QStringLiteral("csv")) == SiteForm::Json);
    QVERIFY(SiteImport::FormOfFile(QStringLiteral("b.csv/site")) == SiteForm::Json);
}

QTEST_GUILESS_MAIN(TestSiteImport)
#include "tst_site_import.moc"
