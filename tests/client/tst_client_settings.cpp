#include "client/ClientSettings.h"
#include "client/ClientTranslations.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class TestClientSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_strFile = m_directory->filePath(QStringLiteral("client.ini"));
    }
    void aFreshFileHasSoundDefaults();
    void everythingComesBackAtTheNextStart();
    void mailSettingsComeBackWithEveryServerInItsPlace();
    void passwordsStandInAFileOfTheirOwn();
    void passwordsThatCannotBeWrittenAreReported();
    void anEncryptionThatIsNotKnownIsTakenForOne();
    void fewerServersLeaveNothingOfTheOldOnes();
    void whatTheFileHoldsIsNotTrusted();
    void theHistoryIsKeptForTwoYearsUnlessTheFileSaysSo_data();
    void theHistoryIsKeptForTwoYearsUnlessTheFileSaysSo();
    void aFileThatIsNoIniFileGivesTheDefaults();
    void aFileThatCannotBeWrittenIsReported();
    void theLanguageIsTheAskedTheKeptOrTheSystems_data();
    void theLanguageIsTheAskedTheKeptOrTheSystems();
    void aMissingCatalogueIsNoError();

private:
    static SystemMailSettings TwoServers()
    {
        SystemMailServer first;
        first.strServer = QStringLiteral("mail.example.com");
        first.iPort = 587;
        first.strUser = QString::fromUtf8("wächter, \"nacht\"; 1=2");
        first.strSender = QStringLiteral("guard@example.com");
        first.eEncryption = SystemMailEncryption::StartTls;
        first.strPassword = QString::fromUtf8("g€heim, \"1\"; a=b %3D\\n ");
        first.recipients =
            QStringList{QStringLiteral("desk@example.com"), QStringLiteral("chief@example.com")};
        first.strCertificateFile = QString::fromUtf8("own, Bücher;=1.pem");
        SystemMailServer second;
        second.strServer = QStringLiteral("::1");
        second.iPort = 65535;
        second.eEncryption = SystemMailEncryption::Tls;
        second.recipients = QStringList{QStringLiteral("desk@example.com")};
        second.strSender = QString::fromUtf8("门卫@例子.中国");
        SystemMailSettings mail;
        mail.bEnable = true;
        mail.servers = {first, second};
        return mail;
    }
    void WriteFile(const QByteArray& bytes) const
    {
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_strFile;
};

void TestClientSettings::aFreshFileHasSoundDefaults()
{
    const ClientSettings settings(m_strFile);
    QVERIFY(settings.Language().isEmpty());
    QCOMPARE(settings.Theme(), QStringLiteral("dark"));
    QVERIFY(settings.WindowGeometry().isEmpty());
    QVERIFY(settings.OpenPages().isEmpty());
    QVERIFY(settings.TreeExpansion().isEmpty());
    QVERIFY(settings.Mail() == SystemMailSettings());
}

void TestClientSettings::everythingComesBackAtTheNextStart()
{
    {
        ClientSettings settings(m_strFile);
        settings.SetLanguage(QStringLiteral("zh_cn"));
        settings.SetTheme(QStringLiteral("light"));
        settings.SetWindowGeometry(QByteArray("\x01\x00\xff geometry", 12));
        settings.SetOpenPages({QStringLiteral("ACSEventConfigUI")});
        settings.SetTreeExpansion({QStringLiteral("2:1001:1"), QStringLiteral("1:1:0")});
        QVERIFY(settings.Write());
    }
    const ClientSettings settings(m_strFile);
    QCOMPARE(settings.Language(), QStringLiteral("zh_cn"));
    QCOMPARE(settings.Theme(), QStringLiteral("light"));
    QCOMPARE(settings.WindowGeometry(), QByteArray("\x01\x00\xff geometry", 12));
    QCOMPARE(settings.OpenPages(), QStringList{QStringLiteral("ACSEventConfigUI")});
    QCOMPARE(settings.TreeExpansion(), (QStringList{QStringLiteral("2:1001:1"), QStringLiteral("1:1:0")}));
}

void TestClientSettings::mailSettingsComeBackWithEveryServerInItsPlace()
{
    {
        ClientSettings settings(m_strFile);
        settings.SetMail(TwoServers());
        QVERIFY(settings.Mail() == TwoServers());
    }
    QVERIFY(ClientSettings(m_strFile).Mail() == TwoServers());
}

void TestClientSettings::passwordsStandInAFileOfTheirOwn()
{
    ClientSettings settings(m_strFile);
    settings.SetMail(TwoServers());
    QVERIFY(settings.Write());
    QFile file(m_strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("heim"));
    const QString strPasswords = m_directory->filePath(QStringLiteral("mail-passwords.json"));
    QVERIFY(QFile::exists(strPasswords));
    QVERIFY(QFile::remove(strPasswords));
    SystemMailSettings without = TwoServers();
    without.servers[0].strPassword.clear();
    QVERIFY(ClientSettings(m_strFile).Mail() == without);
}

void TestClientSettings::passwordsThatCannotBeWrittenAreReported()
{
    QVERIFY(QDir().mkdir(m_directory->filePath(QStringLiteral("mail-passwords.json"))));
    ClientSettings settings(m_strFile);
    settings.SetMail(TwoServers());
    QVERIFY(!settings.Write());
}

void TestClientSettings::anEncryptionThatIsNotKnownIsTakenForOne()
{
    WriteFile("[mail]\nservers\\size=4\nservers\\1\\host=a\nservers\\2\\host=b\n"
              "servers\\2\\encryption=none\nservers\\3\\encryption=ssl9\nservers\\4\\encryption=tls\n"
              "servers\\4\\recipients=a@example.com, b@example.com\n");
    const SystemMailSettings mail = ClientSettings(m_strFile).Mail();
    QCOMPARE(mail.servers.size(), 4);
    QVERIFY(mail.servers.at(0).eEncryption ==
            SystemMailEncryption::None); // written before there was a choice
    QVERIFY(mail.servers.at(1).eEncryption == SystemMailEncryption::None);
    QVERIFY(mail.servers.at(2).eEncryption == SystemMailEncryption::StartTls);
    QVERIFY(mail.servers.at(3).eEncryption == SystemMailEncryption::Tls);
    QCOMPARE(mail.servers.at(3).recipients.size(), 2);
}

void TestClientSettings::fewerServersLeaveNothingOfTheOldOnes()
{
    ClientSettings settings(m_strFile);
    settings.SetMail(TwoServers());
    SystemMailSettings one = TwoServers();
    one.servers.removeFirst();
    settings.SetMail(one);
    QVERIFY(ClientSettings(m_strFile).Mail() == one);
    settings.SetMail(SystemMailSettings());
    QVERIFY(ClientSettings(m_strFile).Mail() == SystemMailSettings());
    QFile file(m_strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("guard@example.com"));
}

void TestClientSettings::whatTheFileHoldsIsNotTrusted()
{
    WriteFile("[client]\nlanguage=../../etc\ntheme=pink\n[mail]\nenabled=true\n"
              "servers\\size=2000000000\nservers\\1\\host=a\nservers\\1\\port=70000\n"
              "servers\\2\\host=b\nservers\\2\\port=-1\nservers\\3\\host=c\nservers\\3\\port=x\n"
              "servers\\4\\host=d\nservers\\4\\port=65535\n");
    const ClientSettings settings(m_strFile);
    QVERIFY(settings.Language().isEmpty());
    QCOMPARE(settings.Theme(), QStringLiteral("dark"));
    const SystemMailSettings mail = settings.Mail();
    QCOMPARE(mail.servers.size(), int(ClientSettings::MaximumMailServers));
    QCOMPARE(mail.servers.at(0).iPort, 25);
    QCOMPARE(mail.servers.at(1).iPort, 25);
    QCOMPARE(mail.servers.at(2).iPort, 25);
    QCOMPARE(mail.servers.at(3).iPort, 65535);
    QCOMPARE(mail.servers.at(3).strServer, QStringLiteral("d"));
}

void TestClientSettings::theHistoryIsKeptForTwoYearsUnlessTheFileSaysSo_data()
{
    QTest::addColumn<QByteArray>("days");
    QTest::addColumn<int>("iKept");
    QTest::newRow("not said") << QByteArray() << 730;
    QTest::newRow("a month") << QByteArray("30") << 30;
    QTest::newRow("least") << QByteArray("1") << 1;
    QTest::newRow("most") << QByteArray("36500") << 36500;
    QTest::newRow("none") << QByteArray("0") << 730;
    QTest::newRow("negative") << QByteArray("-30") << 730;
    QTest::newRow("too many") << QByteArray("36501") << 730;
    QTest::newRow("no number") << QByteArray("30d") << 730;
}

void TestClientSettings::theHistoryIsKeptForTwoYearsUnlessTheFileSaysSo()
{
    QFETCH(QByteArray, days);
    QFETCH(int, iKept);
    WriteFile("[history]\ndays=" + days + "\n");
    QCOMPARE(ClientSettings(m_strFile).HistoryDays(), iKept);
}

void TestClientSettings::aFileThatIsNoIniFileGivesTheDefaults()
{
    WriteFile(QByteArray("\x00\xff\xfe[[[\n=\n", 9));
    const ClientSettings settings(m_strFile);
    QCOMPARE(settings.Theme(), QStringLiteral("dark"));
    QVERIFY(settings.Mail() == SystemMailSettings());
}

void TestClientSettings::aFileThatCannotBeWrittenIsReported()
{
    QVERIFY(QDir().mkdir(m_strFile));
    ClientSettings settings(m_strFile);
    settings.SetTheme(QStringLiteral("light"));
    QVERIFY(!settings.Write());
}

void TestClientSettings::theLanguageIsTheAskedTheKeptOrTheSystems_data()
{
    QTest::addColumn<QString>("strAsked");
    QTest::addColumn<QString>("strKept");
    QTest::addColumn<QString>("strSystem");
    QTest::addColumn<QString>("strChosen");
    const QString strEn = QStringLiteral("en");
    const QString strZh = QStringLiteral("zh_cn");
    QTest::newRow("asked beats all") << strEn << strZh << QStringLiteral("zh_CN") << strEn;
    QTest::newRow("kept beats the system") << QString() << strEn << QStringLiteral("zh_CN") << strEn;
    QTest::newRow("a Chinese system") << QString() << QString() << QStringLiteral("zh_CN") << strZh;
    QTest::newRow("any other system") << QString() << QString() << QStringLiteral("de_DE") << strEn;
    QTest::newRow("no locale") << QString() << QString() << QStringLiteral("C") << strEn;
}

void TestClientSettings::theLanguageIsTheAskedTheKeptOrTheSystems()
{
    QFETCH(QString, strAsked);
    QFETCH(QString, strKept);
    QFETCH(QString, strSystem);
    QFETCH(QString, strChosen);
    QCOMPARE(ClientTranslations::Choose(strAsked, strKept, strSystem), strChosen);
}

void TestClientSettings::aMissingCatalogueIsNoError()
{
    const ClientTranslations translations(QStringLiteral("en"), {m_directory->path()});
    QCOMPARE(translations.InstalledCatalogues(), 0);
}

QTEST_GUILESS_MAIN(TestClientSettings)
#include "tst_client_settings.moc"
