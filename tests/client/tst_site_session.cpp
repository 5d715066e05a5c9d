#include "client/SiteSession.h"
#include "platform/SiteLibrary/SiteFile.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSiteSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_strFile = m_directory->filePath(QStringLiteral("site.json"));
    }
    void aFirstStartWritesTheSampleSite();
    void aSecondStartReadsWhatTheFirstWrote();
    void aBrokenFileIsNamedWithLineAndReasonAndLeftAlone_data();
    void aBrokenFileIsNamedWithLineAndReasonAndLeftAlone();
    void aMissingFileThatWasAskedForIsNotWritten();
    void aDirectoryInPlaceOfTheFileIsNoSite();
    void aSampleThatCannotBeWrittenIsShownAndReported();
    void aRemovedDeviceIsTakenOutOfTheFile();
    void aRemovalFromABrokenSiteWritesNothing();
    void aFileThatSomebodyChangedIsNotOverwritten();
    void changesOfStateAreNotWritten();
    void takingDownWritesNothing();
    void aSecondOpenReplacesTheFirst();

private:
    QByteArray Bytes() const
    {
        QFile file(m_strFile);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Write(const QByteArray& bytes) const
    {
        QFile file(m_strFile);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_strFile;
};

void TestSiteSession::aFirstStartWritesTheSampleSite()
{
    SiteSession session;
    QCOMPARE(session.Open(m_strFile, true), SiteSession::Outcome::SampleWritten);
    QVERIFY(session.ErrorText().isEmpty());
    QVERIFY(session.DeviceCount() >= 7);
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Read(m_strFile, site, error), qPrintable(error.Text()));
    QCOMPARE(site.devices.size(), session.DeviceCount());
}

void TestSiteSession::aSecondStartReadsWhatTheFirstWrote()
{
    QVector<int64_t> ids;
    {
        SiteSession first;
        first.Open(m_strFile, true);
        ids = first.Devices().GetDeviceIds();
    }
    const QByteArray before = Bytes();
    SiteSession second;
    QCOMPARE(second.Open(m_strFile, true), SiteSession::Outcome::Loaded);
    QCOMPARE(second.Devices().GetDeviceIds(), ids);
    QCOMPARE(Bytes(), before);
}

void TestSiteSession::aBrokenFileIsNamedWithLineAndReasonAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("iLine");
    QTest::newRow("not closed") << QByteArray("{\n  \"devices\": [") << 2;
    QTest::newRow("a stray word on line 2") << QByteArray("{\n  hello\n}\n") << 2;
    QTest::newRow("an array on line 1") << QByteArray("[]\n") << 1;
    QTest::newRow("no JSON at all") << QByteArray("\x89PNG\r\n\x1a\n") << 1;
}

void TestSiteSession::aBrokenFileIsNamedWithLineAndReasonAndLeftAlone()
{
    QFETCH(QByteArray, text);
    QFETCH(int, iLine);
    Write(text);
    SiteSession session;
    QCOMPARE(session.Open(m_strFile, true), SiteSession::Outcome::Broken);
    QCOMPARE(session.DeviceCount(), 0);
    const QString strError = session.ErrorText();
    QVERIFY2(strError.contains(QStringLiteral("site.json")), qPrintable(strError));
    QVERIFY2(strError.contains(QStringLiteral("line %1:").arg(iLine)), qPrintable(strError));
    QVERIFY(strError.size() > m_strFile.size() + 10); // a reason stands behind the place
    QCOMPARE(Bytes(), text);
}

void TestSiteSession::aMissingFileThatWasAskedForIsNotWritten()
{
    SiteSession session;
    QCOMPARE(session.Open(m_strFile, false), SiteSession::Outcome::Broken);
    QCOMPARE(session.DeviceCount(), 0);
    QVERIFY(session.ErrorText().contains(QStringLiteral("site.json")));
    QVERIFY(!QFile::exists(m_strFile));
}

void TestSiteSession::aDirectoryInPlaceOfTheFileIsNoSite()
{
    QVERIFY(QDir().mkdir(m_strFile));
    SiteSession session;
    QCOMPARE(session.Open(m_strFile, true), SiteSession::Outcome::Broken);
    QCOMPARE(session.DeviceCount(), 0);
}

void TestSiteSession::aSampleThatCannotBeWrittenIsShownAndReported()
{
    const QString strFile = m_directory->filePath(QStringLiteral("missing/site.json"));
    SiteSession session;
    QCOMPARE(session.Open(strFile, true), SiteSession::Outcome::SampleUnsaved);
    QVERIFY(session.DeviceCount() > 0);
    QVERIFY(!session.ErrorText().isEmpty());
    QSignalSpy failed(&session, &SiteSession::SignalWriteFailed);
    QVERIFY(session.Devices().RemoveDevice(session.Devices().GetDeviceIds().constFirst()));
    QCOMPARE(failed.count(), 0); // it was said once, at the start
    QVERIFY(!QFile::exists(strFile));
}

void TestSiteSession::aRemovedDeviceIsTakenOutOfTheFile()
{
    SiteSession session;
    session.Open(m_strFile, true);
    const QVector<int64_t> ids = session.Devices().GetDeviceIds();
    QSignalSpy changed(&session, &SiteSession::SignalDevicesChanged);
    QVERIFY(session.Devices().RemoveDevice(ids.at(1)));
    QVERIFY(session.Devices().RemoveDevice(ids.at(3)));
    QCOMPARE(changed.count(), 2);
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Read(m_strFile, site, error), qPrintable(error.Text()));
    QVector<int64_t> left;
    for (const VantaLogic::DeviceInfo& device : qAsConst(site.devices)) {
        left.append(device.iDeviceId);
    }
    QVector<int64_t> expected = ids;
    expected.removeAll(ids.at(1));
    expected.removeAll(ids.at(3));
    QCOMPARE(left, expected);
}

void TestSiteSession::aRemovalFromABrokenSiteWritesNothing()
{
    Write("{ broken\n");
    SiteSession session;
    session.Open(m_strFile, true);
    VantaLogic::DeviceInfo device;
    device.iDeviceId = 5;
    device.iDeviceType = VantaLogic::DeviceTypeAccessControl;
    device.strName = QStringLiteral("Late");
    QVERIFY(session.Devices().AddDevice(device));
    QVERIFY(session.Devices().RemoveDevice(5));
    QCOMPARE(Bytes(), QByteArray("{ broken\n"));
}

void TestSiteSession::aFileThatSomebodyChangedIsNotOverwritten()
{
    SiteSession session;
    session.Open(m_strFile, true);
    const QByteArray changed = Bytes() + "\n";
    Write(changed);
    QSignalSpy failed(&session, &SiteSession::SignalWriteFailed);
    QVERIFY(session.Devices().RemoveDevice(session.Devices().GetDeviceIds().constFirst()));
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.at(0).at(0).toString().contains(QStringLiteral("site.json")));
    QCOMPARE(Bytes(), changed);
}

void TestSiteSession::changesOfStateAreNotWritten()
{
    SiteSession session;
    session.Open(m_strFile, true);
    const QByteArray before = Bytes();
    const int64_t iDevice = session.Devices().GetDeviceIds().constFirst();
    QVERIFY(session.Devices().SetDeviceOnline(iDevice, false));
    QVERIFY(session.Devices().RenameDevice(iDevice, QStringLiteral("Other")));
    QCOMPARE(Bytes(), before);
}

void TestSiteSession::takingDownWritesNothing()
{
    SiteSession session;
    session.Open(m_strFile, true);
    const QByteArray before = Bytes();
    QSignalSpy changed(&session, &SiteSession::SignalDevicesChanged);
    session.StopFollowing();
    session.StopFollowing();
    QVERIFY(session.Devices().RemoveDevice(session.Devices().GetDeviceIds().constFirst()));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(Bytes(), before);
}

void TestSiteSession::aSecondOpenReplacesTheFirst()
{
    SiteSession session;
    session.Open(m_strFile, true);
    const QByteArray before = Bytes();
    const QString strOther = m_directory->filePath(QStringLiteral("other.json"));
    QCOMPARE(session.Open(strOther, false), SiteSession::Outcome::Broken);
    QCOMPARE(session.DeviceCount(), 0);
    QCOMPARE(Bytes(), before); // going over to another site removes no device from the old file
    QCOMPARE(session.Open(m_strFile, false), SiteSession::Outcome::Loaded);
    QVERIFY(session.ErrorText().isEmpty());
    QVERIFY(session.DeviceCount() > 0);
}

QTEST_GUILESS_MAIN(TestSiteSession)
#include "tst_site_session.moc"
