#pragma once

#include "systemlibrary_export.h"

#include <QByteArray>
#include <QSaveFile>

/// A file that appears whole at its commit, or not at all; what was there stays until then. When writing
/// fails, errorString() tells why, on a full disk too. What exists and is no file, a folder or a device, is
/// not opened, since a commit would put a file in its place.
class SYSTEMLIBRARY_EXPORT WholeFile : public QSaveFile
{
    Q_OBJECT

public:
    using QSaveFile::QSaveFile;

    /// Unbuffered in any case: write in large pieces.
    bool open(OpenMode eMode) override;

    /// Writes all of a file; false with the reason when what was there is still there.
    static bool Write(const QString& strPath, const QByteArray& content, QString& strReason);

protected:
    qint64 writeData(const char* pData, qint64 iSize) override;
};
