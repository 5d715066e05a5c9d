#include "client/mail/MailPasswords.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

SystemMailServer Server(const QString& strHost, const QString& strUser, const QString& strPassword)
{
    SystemMailServer server;
    server.strServer = strHost;
    server.iPort = 587;
    server.strUser = strUser;
    server.strPassword = strPassword;
    return server;
}

SystemMailSettings Two()
{
    return {true,
            {Server(QStringLiteral("a.example"), QStringLiteral("guard"), QString::fromUtf8("g€heim \"1\\")),
             Server(QStringLiteral("b.example"), QStringLiteral("guard"), QStringLiteral("other"))}};
}

SystemMailSettings Forgotten(SystemMailSettings settings)
{
    for (SystemMailServer& server : settings.servers) {
        server.strPassword.clear();
    }
    return settings;
}

} // namespace

class TestMailPasswords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_strFile = m_directory->filePath(QStringLiteral("mail-passwords.json"));
    }
    void passwordsComeBack()
    {
        QVERIFY(Keep(Two()));
        QVERIFY(Filled(Forgotten(Two())) == Two());
    }
    void onlyTheOwnerMayReadTheFile()
    {
        QVERIFY(Keep(Two()));
        const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                                                QFileDevice::ExeGroup | QFileDevice::ReadOther |
                                                QFileDevice::WriteOther | QFileDevice::ExeOther;
        QCOMPARE(QFile::permissions(m_strFile) & others, QFileDevice::Permissions());
        // A file that was open to all is closed by the next write.
        QVERIFY(QFile::setPermissions(m_strFile, QFile::permissions(m_strFile) | QFileDevice::ReadOther));
        QVERIFY(Keep(Two()));
        QCOMPARE(QFile::permissions(m_strFile) & others, QFileDevice::Permissions());
    }
    void noOtherServerUserOrPortGetsThePassword_data()
    {
        QTest::addColumn<QString>("strHost");
        QTest::addColumn<int>("iPort");
        QTest::addColumn<QString>("strUser");
        QTest::newRow("another host") << QStringLiteral("evil.example") << 587 << QStringLiteral("guard");
        QTest::newRow("another port") << QStringLiteral("a.example") << 588 << QStringLiteral("guard");
        QTest::newRow("another user") << QStringLiteral("a.example") << 587 << QStringLiteral("guards");
        QTest::newRow("no user") << QStringLiteral("a.example") << 587 << QString();
    }
    void noOtherServerUserOrPortGetsThePassword()
    {
        QFETCH(QString, strHost);
        QFETCH(int, iPort);
        QFETCH(QString, strUser);
        QVERIFY(Keep(Two()));
        SystemMailServer server = Server(strHost, strUser, QStringLiteral("stale"));
        server.iPort = iPort;
        QCOMPARE(Filled({true, {server}}).servers.at(0).strPassword, QString());
    }
    void theNameOfAHostMayBeSpelledInCapitals()
    {
        QVERIFY(Keep(Two()));
        const SystemMailServer server =
            Server(QStringLiteral("B.Example"), QStringLiteral("guard"), QString());
        QCOMPARE(Filled({true, {server}}).servers.at(0).strPassword, QStringLiteral("other"));
    }
    void aServerThatWentIsForgotten()
    {
        QVERIFY(Keep(Two()));
        SystemMailSettings one = Two();
        one.servers.removeFirst();
        QVERIFY(Keep(one));
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("a.example"));
        QVERIFY(Keep(SystemMailSettings()));
        QVERIFY(!QFile::exists(m_strFile));
        QVERIFY(Keep(SystemMailSettings()));
    }
    void aBrokenFileHoldsNoPassword_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("\xff\xfe{");
        QTest::newRow("a list") << QByteArray("[1,2]");
        QTest::newRow("a number for a password") << QByteArray("{\"a.example/587/guard\": 7}");
    }
    void aBrokenFileHoldsNoPassword()
    {
        QFETCH(QByteArray, text);
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
        file.close();
        QVERIFY(Filled(Two()) == Forgotten(Two()));
        QVERIFY(Keep(Two()));
        QVERIFY(Filled(Forgotten(Two())) == Two());
    }
    void aFileThatCannotBeWrittenIsTold()
    {
        QVERIFY(QDir().mkdir(m_strFile));
        QString strReason;
        QVERIFY(!MailPasswords(m_strFile).Keep(Two(), strReason));
        QVERIFY(!strReason.isEmpty());
        QVERIFY(Filled(Two()) == Forgotten(Two()));
    }

private:
    bool Keep(const SystemMailSettings& settings) const
    {
        QString strReason;
        return MailPasswords(m_strFile).Keep(settings, strReason) && strReason.isEmpty();
    }
    SystemMailSettings Filled(SystemMailSettings settings) const
    {
        MailPasswords(m_strFile).Fill(settings);
        return settings;
    }
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_strFile;
};

QTEST_GUILESS_MAIN(TestMailPasswords)
#include "tst_mail_passwords.moc"
