// Loads files that are made up. The first byte of an input says how: even, the rest is the file; odd, the
// rest changes the rows of a sound file.

#include "tests/fuzz/Fuzzer.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/fuzz/RowScript.h"
#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"

#include <memory>

namespace {

const QString s_strFile = QStringLiteral("Database/AlarmScheme.db");

/// Where all inputs are loaded from, one after the other.
class Place
{
public:
    static Place& Instance()
    {
        static Place place;
        return place;
    }

    /// A file with the schemes of some random maps; in small pages, so that it is small itself.
    QByteArray SoundFile(quint32 iSeed, int iMaps) const
    {
        WriteDisk(m_folder.Root(), {});
        RandomSchemes schemes(iSeed);
        {
            AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
            for (int save = 0; save < iMaps; ++save) {
                const AlarmInfoMap map = schemes.Map();
                store.SaveAll(&map);
            }
        }
        RawDatabase(m_folder.File()).Run(QStringLiteral("pragma page_size = 512; vacuum"));
        return m_folder.Bytes();
    }

    void Load(const QByteArray& file)
    {
        WriteDisk(m_folder.Root(), {{s_strFile, file}});
        LoadWhatIsThere();
    }
    void LoadChanged(const uint8_t* pScript, size_t iSize)
    {
        WriteDisk(m_folder.Root(), {{s_strFile, m_sound}});
        {
            RawDatabase database(m_folder.File());
            OracleRounds::HurryAlong(database.Handle());
            RunRowScript(database, pScript, iSize);
        }
        LoadWhatIsThere();
    }

private:
    Place()
        : m_disk(m_folder.Root())
        , m_sound(SoundFile(7, 3))
    {
    }

    void LoadWhatIsThere()
    {
        m_log.Clear();
        m_disk.Reset();
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        const bool loaded = backend.Load(map) == 0;
        if (loaded != backend.LastOutcome().IsSuccess())
            qFatal("the outcome of a load is told in two ways");
        if (!loaded && SaveAndWait(backend, map) == 0)
            qFatal("a save is not refused after a load that failed");
    }

    LogCatcher m_log;
    StoreFolder m_folder;
    FaultyDisk m_disk; ///< one that never forces anything to the medium
    QByteArray m_sound;
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* pData, size_t iSize)
{
    if (iSize == 0)
        return 0;
    Place& place = Place::Instance();
    if (*pData % 2 == 0) {
        place.Load(QByteArray(reinterpret_cast<const char*>(pData + 1), static_cast<int>(iSize - 1)));
    } else {
        place.LoadChanged(pData + 1, iSize - 1);
    }
    return 0;
}

QList<QByteArray> FuzzSeeds()
{
    const QByteArray asFile(1, '\0');
    const QByteArray asScript(1, '\1');
    QList<QByteArray> seeds{asFile, asFile + "This is a letter, not a database.\n", asScript};
    for (quint32 seed = 1; seed <= 4; ++seed)
        seeds.append(asFile + Place::Instance().SoundFile(seed, static_cast<int>(seed) - 1));
    for (quint32 seed = 1; seed <= 12; ++seed) {
        QRandomGenerator random(seed);
        QByteArray script(20 * static_cast<int>(seed), '\0');
        for (char& byte : script)
            byte = static_cast<char>(random.bounded(256));
        seeds.append(asScript + script);
    }
    return seeds;
}
