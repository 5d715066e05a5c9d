#include "tests/store_faults/DiskContent.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

DiskContent ReadDisk(const QString& strFolder)
{
    DiskContent content;
    QDirIterator files(strFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read a file for a test");
        content.insert(QDir(strFolder).relativeFilePath(file.fileName()), file.readAll());
    }
    return content;
}

void WriteDisk(const QString& strFolder, const DiskContent& content)
{
    const QList<QString> present = ReadDisk(strFolder).keys();
    for (const QString& name : present) {
        if (!content.contains(name) && !QFile::remove(QDir(strFolder).filePath(name)))
            qFatal("cannot remove a file for a test");
    }
    for (auto entry = content.cbegin(); entry != content.cend(); ++entry) {
        QFile file(QDir(strFolder).filePath(entry.key()));
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(entry.value()) != entry.value().size())
            qFatal("cannot write a file for a test");
    }
}
