// The suite's part of a fuzzer: its seeds, and the inputs that once did harm (the folder ACS_FUZZ_FOUND).

#include "tests/fuzz/Fuzzer.h"

#include <QDir>
#include <QtTest>

class FuzzReplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySeedIsHarmless();
    void whatWasFoundIsHarmlessNow();

private:
    static void Use(const QByteArray& input)
    {
        QCOMPARE(LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.constData()),
                                        static_cast<size_t>(input.size())),
                 0);
    }
};

void FuzzReplay::everySeedIsHarmless()
{
    const QList<QByteArray> seeds = FuzzSeeds();
    QVERIFY(!seeds.isEmpty());
    for (const QByteArray& seed : seeds)
        Use(seed);
    Use(QByteArray());
}

void FuzzReplay::whatWasFoundIsHarmlessNow()
{
    const QDir folder(QStringLiteral(ACS_FUZZ_FOUND));
    QVERIFY(folder.exists());
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        Use(file.readAll());
    }
}

QTEST_GUILESS_MAIN(FuzzReplay)
#include "FuzzReplay.moc"
