#include "tests/SystemLibrary/FullDisk.h"
#include "tests/tools/ExchangeKit.h"

#include <QDirIterator>
#include <QTest>

#include <memory>

namespace {

/// Everything that lies in a folder, however deep.
QStringList Everything(const QString& strFolder)
{
    QStringList names;
    QDirIterator all(strFolder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        names.append(all.next());
    names.sort();
    return names;
}

} // namespace

/// What commands that write a database leave behind where there is no room for it.
class TestFullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anImportOntoAFullDiskLeavesNothingBehind_data();
    void anImportOntoAFullDiskLeavesNothingBehind();
    void aRestoreOntoAFullDiskLeavesNothingBehind();
    void whatWasThereStays();
};

void TestFullDisk::anImportOntoAFullDiskLeavesNothingBehind_data()
{
    QTest::addColumn<int>("iRoom");
    // From no room at all to room for the tables, but not for the schemes.
    for (const int room : {0, 1, 512, 4096, 8192, 20000, 40000, 65536, 80000, 100000})
        QTest::addRow("%d bytes", room) << room;
}

void TestFullDisk::anImportOntoAFullDiskLeavesNothingBehind()
{
#ifdef Q_OS_UNIX
    QFETCH(int, iRoom);
    const QTemporaryDir folder;
    const QString text = QDir(folder.path()).absoluteFilePath(Text("listed.json"));
    QFile file(text);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(SchemeTexts::Write(Doors(500)));
    file.close();
    const QStringList before = Everything(folder.path());
    const QString named = QDir(folder.path()).absoluteFilePath(Text("named.db"));
    const QString directory = QDir(folder.path()).absoluteFilePath(Text("new/data"));
    for (const QStringList& where :
         {QStringList{Text("--database"), named}, QStringList{Text("--data-dir"), directory}}) {
        std::unique_ptr<Run> run;
        {
            const FullDisk disk(static_cast<quint64>(iRoom));
            QVERIFY(disk.Holds());
            run = std::make_unique<Run>(QStringList{Text("import"), Text("--merge"), text} + where);
        }
        QCOMPARE(run->code, 3);
        QVERIFY(!run->err.isEmpty());
        QCOMPARE(Everything(folder.path()), before);
    }
    QCOMPARE(Run({Text("import"), Text("--merge"), text, Text("--database"), named}).code, 0);
    QCOMPARE(Run({Text("export"), Text("--database"), named}).out.toUtf8(), SchemeTexts::Write(Doors(500)));
#endif
}

void TestFullDisk::aRestoreOntoAFullDiskLeavesNothingBehind()
{
#ifdef Q_OS_UNIX
    Data data(Doors(500));
    const QTemporaryDir folder;
    const QString database = QDir(folder.path()).absoluteFilePath(Text("new.db"));
    for (const quint64 room : {0U, 20000U, 80000U}) {
        std::unique_ptr<Run> run;
        {
            const FullDisk disk(room);
            QVERIFY(disk.Holds());
            run = std::make_unique<Run>(
                QStringList{Text("restore"), data->Database(), Text("--database"), database});
        }
        QCOMPARE(run->code, 3);
        QCOMPARE(Everything(folder.path()), QStringList());
    }
    QCOMPARE(Run({Text("restore"), data->Database(), Text("--database"), database}).code, 0);
#endif
}

void TestFullDisk::whatWasThereStays()
{
#ifdef Q_OS_UNIX
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(800)));
    const QByteArray before = Bytes(data->Database());
    {
        const FullDisk disk(static_cast<quint64>(before.size()));
        QVERIFY(disk.Holds());
        QCOMPARE(data.Do({Text("import"), Text("--merge"), text}).code, 3);
    }
    QVERIFY(data.Schemes() == Doors(3));
#endif
}

QTEST_GUILESS_MAIN(TestFullDisk)
#include "tst_full_disk.moc"
