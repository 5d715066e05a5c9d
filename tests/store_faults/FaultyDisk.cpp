#include "tests/store_faults/FaultyDisk.h"

#include <QDir>

#include <sqlite3.h>

#include <cstdlib>
#include <utility>

namespace {

struct Details
{
    FaultyDisk* pDisk;
    QString strFile;
};

/// What SQLite knows as its file; that of the system lies behind it.
struct File
{
    sqlite3_file base;
    Details* pDetails;
};

sqlite3_file* SystemFile(sqlite3_file* pFile)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(pFile) + 1);
}

Details& DetailsOf(sqlite3_file* pFile)
{
    return *reinterpret_cast<File*>(pFile)->pDetails;
}

} // namespace

struct FaultyDisk::Methods
{
    static FaultyDisk& DiskOf(sqlite3_vfs* pVfs) { return *static_cast<FaultyDisk*>(pVfs->pAppData); }

    static Operation Of(sqlite3_file* pFile, Kind eKind, qint64 iOffset = 0)
    {
        Operation operation;
        operation.eKind = eKind;
        operation.strFile = DetailsOf(pFile).strFile;
        operation.iOffset = iOffset;
        return operation;
    }
    static int Decide(sqlite3_file* pFile, Operation operation)
    {
        return DetailsOf(pFile).pDisk->Decide(std::move(operation));
    }

    static int Open(sqlite3_vfs* pVfs, const char* szPath, sqlite3_file* pFile, int iFlags, int* pOutFlags)
    {
        FaultyDisk& disk = DiskOf(pVfs);
        auto* file = reinterpret_cast<File*>(pFile);
        file->base.pMethods = nullptr;
        Operation operation;
        operation.eKind = Kind::Open;
        operation.strFile = (iFlags & SQLITE_OPEN_DELETEONCLOSE) != 0 ? QString() : disk.NameOf(szPath);
        operation.bCreate = (iFlags & SQLITE_OPEN_CREATE) != 0;
        const int verdict = disk.Decide(operation);
        if (verdict != SQLITE_OK)
            return verdict;
        const bool named = !operation.strFile.isEmpty();
        if (named && disk.m_bReadOnlyFiles)
            iFlags = (iFlags & ~(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) | SQLITE_OPEN_READONLY;
        if (named && disk.m_bReadOnlyFolder && (iFlags & SQLITE_OPEN_CREATE) != 0) {
            int exists = 0;
            disk.m_pSystem->xAccess(disk.m_pSystem, szPath, SQLITE_ACCESS_EXISTS, &exists);
            if (exists == 0)
                return SQLITE_CANTOPEN;
        }
        const int opened =
            disk.m_pSystem->xOpen(disk.m_pSystem, szPath, SystemFile(pFile), iFlags, pOutFlags);
        if (opened != SQLITE_OK)
            return opened;
        file->pDetails = new Details{&disk, operation.strFile};
        file->base.pMethods = &s_methods;
        return SQLITE_OK;
    }

    static int Delete(sqlite3_vfs* pVfs, const char* szPath, int iSyncFolder)
    {
        FaultyDisk& disk = DiskOf(pVfs);
        Operation operation;
        operation.eKind = Kind::Delete;
        operation.strFile = disk.NameOf(szPath);
        operation.bSyncsFolder = iSyncFolder != 0;
        const int verdict = disk.m_bReadOnlyFolder ? SQLITE_IOERR_DELETE : disk.Decide(operation);
        return verdict != SQLITE_OK ? verdict : disk.m_pSystem->xDelete(disk.m_pSystem, szPath, 0);
    }

    static int Access(sqlite3_vfs* pVfs, const char* szPath, int iFlags, int* pResult)
    {
        FaultyDisk& disk = DiskOf(pVfs);
        Operation operation;
        operation.eKind = Kind::Access;
        operation.strFile = disk.NameOf(szPath);
        const int verdict = disk.Decide(operation);
        return verdict != SQLITE_OK ? verdict
                                    : disk.m_pSystem->xAccess(disk.m_pSystem, szPath, iFlags, pResult);
    }

    static int Close(sqlite3_file* pFile)
    {
        delete reinterpret_cast<File*>(pFile)->pDetails;
        return SystemFile(pFile)->pMethods->xClose(SystemFile(pFile));
    }
    static int Read(sqlite3_file* pFile, void* pData, int iSize, sqlite3_int64 iOffset)
    {
        const int verdict = Decide(pFile, Of(pFile, Kind::Read, iOffset));
        return verdict != SQLITE_OK
                   ? verdict
                   : SystemFile(pFile)->pMethods->xRead(SystemFile(pFile), pData, iSize, iOffset);
    }
    static int Write(sqlite3_file* pFile, const void* pData, int iSize, sqlite3_int64 iOffset)
    {
        Operation operation = Of(pFile, Kind::Write, iOffset);
        operation.data = QByteArray(static_cast<const char*>(pData), iSize);
        const auto write = [pFile, pData, iOffset](int size) {
            return SystemFile(pFile)->pMethods->xWrite(SystemFile(pFile), pData, size, iOffset);
        };
        const int verdict = Decide(pFile, operation);
        if (verdict == EndProcessHalfway) {
            write(iSize / 2);
            std::_Exit(EndedByDisk);
        }
        return verdict != SQLITE_OK ? verdict : write(iSize);
    }
    static int Truncate(sqlite3_file* pFile, sqlite3_int64 iSize)
    {
        const int verdict = Decide(pFile, Of(pFile, Kind::Truncate, iSize));
        return verdict != SQLITE_OK ? verdict
                                    : SystemFile(pFile)->pMethods->xTruncate(SystemFile(pFile), iSize);
    }
    static int Sync(sqlite3_file* pFile, int) { return Decide(pFile, Of(pFile, Kind::Sync)); }
    static int FileSize(sqlite3_file* pFile, sqlite3_int64* pSize)
    {
        const int verdict = Decide(pFile, Of(pFile, Kind::Size));
        return verdict != SQLITE_OK ? verdict
                                    : SystemFile(pFile)->pMethods->xFileSize(SystemFile(pFile), pSize);
    }
    static int Lock(sqlite3_file* pFile, int iLevel)
    {
        const int verdict = Decide(pFile, Of(pFile, Kind::Lock));
        return verdict != SQLITE_OK ? verdict : SystemFile(pFile)->pMethods->xLock(SystemFile(pFile), iLevel);
    }
    static int Unlock(sqlite3_file* pFile, int iLevel)
    {
        // The system lets go whatever it answers.
        const int verdict = Decide(pFile, Of(pFile, Kind::Unlock));
        const int unlocked = SystemFile(pFile)->pMethods->xUnlock(SystemFile(pFile), iLevel);
        return verdict != SQLITE_OK ? verdict : unlocked;
    }
    static int CheckReservedLock(sqlite3_file* pFile, int* pResult)
    {
        const int verdict = Decide(pFile, Of(pFile, Kind::CheckLock));
        return verdict != SQLITE_OK
                   ? verdict
                   : SystemFile(pFile)->pMethods->xCheckReservedLock(SystemFile(pFile), pResult);
    }
    static int FileControl(sqlite3_file* pFile, int iWhat, void* pArgument)
    {
        return SystemFile(pFile)->pMethods->xFileControl(SystemFile(pFile), iWhat, pArgument);
    }
    static int SectorSize(sqlite3_file* pFile)
    {
        return SystemFile(pFile)->pMethods->xSectorSize(SystemFile(pFile));
    }
    static int DeviceCharacteristics(sqlite3_file* pFile)
    {
        return SystemFile(pFile)->pMethods->xDeviceCharacteristics(SystemFile(pFile));
    }

    static const sqlite3_io_methods s_methods;
};

// The first version knows neither shared memory nor mapped files, which would bypass the rule.
const sqlite3_io_methods FaultyDisk::Methods::s_methods = {1,
                                                           &Close,
                                                           &Read,
                                                           &Write,
                                                           &Truncate,
                                                           &Sync,
                                                           &FileSize,
                                                           &Lock,
                                                           &Unlock,
                                                           &CheckReservedLock,
                                                           &FileControl,
                                                           &SectorSize,
                                                           &DeviceCharacteristics,
                                                           nullptr,
                                                           nullptr,
                                                           nullptr,
                                                           nullptr,
                                                           nullptr,
                                                           nullptr};

FaultyDisk::FaultyDisk(const QString& strFolder)
    : m_strFolder(strFolder)
    , m_pSystem(sqlite3_vfs_find(nullptr))
    , m_vfs(std::make_unique<sqlite3_vfs>(*m_pSystem))
{
    m_vfs->zName = "faulty";
    m_vfs->pNext = nullptr;
    m_vfs->pAppData = this;
    m_vfs->szOsFile = static_cast<int>(sizeof(File)) + m_pSystem->szOsFile;
    m_vfs->xOpen = &Methods::Open;
    m_vfs->xDelete = &Methods::Delete;
    m_vfs->xAccess = &Methods::Access;
    if (sqlite3_vfs_register(m_vfs.get(), 1) != SQLITE_OK)
        qFatal("cannot register a file system for a test");
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(m_vfs.get());
    sqlite3_vfs_register(m_pSystem, 1);
}

void FaultyDisk::Reset(const Rule& rule)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_rule = rule;
    m_iCount = 0;
    m_changes.clear();
}

int FaultyDisk::Count() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_iCount;
}

QList<FaultyDisk::Operation> FaultyDisk::Changes() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_changes;
}

void FaultyDisk::SetReadOnly(bool bFiles, bool bFolder)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_bReadOnlyFiles = bFiles;
    m_bReadOnlyFolder = bFolder;
}

int FaultyDisk::Decide(Operation operation)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    operation.iNumber = ++m_iCount;
    const int verdict = m_rule ? m_rule(operation) : SQLITE_OK;
    if (verdict == EndProcess || (verdict == EndProcessHalfway && operation.eKind != Kind::Write))
        std::_Exit(EndedByDisk);
    const bool changes = operation.eKind == Kind::Write || operation.eKind == Kind::Truncate ||
                         operation.eKind == Kind::Delete || operation.eKind == Kind::Sync ||
                         (operation.eKind == Kind::Open && operation.bCreate);
    if (verdict == SQLITE_OK && changes && !operation.strFile.isEmpty())
        m_changes.append(operation);
    return verdict;
}

QString FaultyDisk::NameOf(const char* szPath) const
{
    return szPath == nullptr ? QString() : QDir(m_strFolder).relativeFilePath(QString::fromUtf8(szPath));
}

int FaultyDisk::FailureOf(Kind eKind)
{
    switch (eKind) {
    case Kind::Open:
        return SQLITE_CANTOPEN;
    case Kind::Delete:
        return SQLITE_IOERR_DELETE;
    case Kind::Access:
        return SQLITE_IOERR_ACCESS;
    case Kind::Size:
        return SQLITE_IOERR_FSTAT;
    case Kind::Read:
        return SQLITE_IOERR_READ;
    case Kind::Write:
        return SQLITE_IOERR_WRITE;
    case Kind::Truncate:
        return SQLITE_IOERR_TRUNCATE;
    case Kind::Sync:
        return SQLITE_IOERR_FSYNC;
    case Kind::Lock:
        return SQLITE_IOERR_LOCK;
    case Kind::Unlock:
        return SQLITE_IOERR_UNLOCK;
    case Kind::CheckLock:
        return SQLITE_IOERR_CHECKRESERVEDLOCK;
    }
    return SQLITE_IOERR;
}

FaultyDisk::Rule FaultyDisk::FailOnce(int iNumber)
{
    return [iNumber](const Operation& operation) {
        return operation.iNumber == iNumber ? FailureOf(operation.eKind) : SQLITE_OK;
    };
}

FaultyDisk::Rule FaultyDisk::FailFrom(int iNumber)
{
    return [iNumber](const Operation& operation) {
        return operation.iNumber >= iNumber ? FailureOf(operation.eKind) : SQLITE_OK;
    };
}
