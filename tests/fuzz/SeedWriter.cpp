// "--seeds FOLDER" as the only arguments of a fuzzer: writes its seeds into the folder and ends.

#include "tests/fuzz/Fuzzer.h"

#include <QDir>
#include <QFile>
#include <QString>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* pCount, char*** pArguments);

extern "C" int LLVMFuzzerInitialize(int* pCount, char*** pArguments)
{
    if (*pCount != 3 || QByteArray((*pArguments)[1]) != "--seeds")
        return 0;
    const QDir folder(QString::fromLocal8Bit((*pArguments)[2]));
    int number = 0;
    const QList<QByteArray> seeds = FuzzSeeds();
    for (const QByteArray& seed : seeds) {
        QFile file(folder.filePath(QStringLiteral("seed-%1").arg(++number)));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size())
            std::exit(1);
    }
    std::exit(0);
}
