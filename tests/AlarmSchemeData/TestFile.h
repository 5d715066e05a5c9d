#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Whole files of tests.
namespace TestFile {

inline QByteArray Bytes(const QString& strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// Ends the program when it cannot.
inline void Write(const QString& strPath, const QByteArray& bytes)
{
    QFile file(strPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write a file for a test");
}

} // namespace TestFile
