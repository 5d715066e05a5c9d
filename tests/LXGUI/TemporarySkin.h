#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A working directory of its own with a "./Skin/theme1" to write into; the old one comes back in the end.
class TemporarySkin
{
public:
    TemporarySkin()
        : m_strOld(QDir::currentPath())
    {
        QDir(m_dir.path()).mkpath(QStringLiteral("Skin/theme1"));
        QDir::setCurrent(m_dir.path());
    }
    ~TemporarySkin() { QDir::setCurrent(m_strOld); }
    TemporarySkin(const TemporarySkin&) = delete;
    TemporarySkin& operator=(const TemporarySkin&) = delete;

    static bool Write(const QString& strName, const QByteArray& content)
    {
        const QString strPath = QStringLiteral("./Skin/theme1/") + strName;
        QDir().mkpath(QFileInfo(strPath).path());
        QFile file(strPath);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

private:
    QTemporaryDir m_dir;
    QString m_strOld;
};
