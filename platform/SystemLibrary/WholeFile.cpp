#include "platform/SystemLibrary/WholeFile.h"

#include <QFileInfo>

bool WholeFile::open(OpenMode eMode)
{
    const QFileInfo info(fileName());
    if (info.exists() && !info.isFile()) {
        setErrorString(tr("this is no file"));
        return false;
    }
    return QSaveFile::open(eMode | Unbuffered);
}

qint64 WholeFile::writeData(const char* pData, qint64 iSize)
{
    // Where only a part finds room nothing is said of it; the reason is told to whoever tries the rest.
    qint64 iDone = 0;
    while (iDone < iSize) {
        const qint64 iWritten = QSaveFile::writeData(pData + iDone, iSize - iDone);
        if (iWritten <= 0) {
            return -1;
        }
        iDone += iWritten;
    }
    return iDone;
}

bool WholeFile::Write(const QString& strPath, const QByteArray& content, QString& strReason)
{
    WholeFile file(strPath);
    if (file.open(WriteOnly) && file.write(content) == content.size() && file.commit()) {
        return true;
    }
    strReason = file.errorString();
    return false;
}
