// "oracle_soak COUNT [FIRST SEED]": random maps and strange files, COUNT of each, saved and loaded by the
// store and by the literal statements. Says what differs; ends with 1 when anything does.

#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <cstdio>

int main(int argc, char** argv)
{
    bool ok = argc == 2 || argc == 3;
    const quint32 count = ok ? QByteArray(argv[1]).toUInt(&ok) : 0;
    const quint32 first = ok && argc == 3 ? QByteArray(argv[2]).toUInt(&ok) : 1;
    if (!ok) {
        std::fprintf(stderr, "usage: oracle_soak COUNT [FIRST SEED]\n");
        return 2;
    }
    const LogCatcher log;
    int different = 0;
    for (quint32 seed = first; seed - first < count; ++seed) {
        for (const auto& [name, round] : {std::pair("random maps", &OracleRounds::SaveRandomMaps),
                                          std::pair("strange file", &OracleRounds::UseStrangeFile)}) {
            const QString difference = round(seed);
            if (difference.isEmpty())
                continue;
            ++different;
            std::printf("%s, seed %u: %s\n", name, seed, qPrintable(difference));
        }
    }
    std::printf("%u random maps and %u strange files: %d differ\n", count, count, different);
    return different == 0 ? 0 : 1;
}
