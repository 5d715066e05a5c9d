#pragma once

#include "platform/SystemLibrary/SystemPaths.h"
#include "platform/lxl/DPrintLog.h"
#include "tests/AlarmSchemeData/TestFile.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// A data directory of its own with an existing "Database" folder, in effect during the object's life.
class StoreFolder
{
public:
    StoreFolder()
    {
        SystemPaths::SetDataDirectory(m_directory.path());
        QDir().mkpath(QGetDatabaseDirPath());
    }
    ~StoreFolder() { SystemPaths::SetDataDirectory(QString()); }
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;

    QString Root() const { return m_directory.path(); }
    QString File() const
    {
        return QDir(QGetDatabaseDirPath()).absoluteFilePath(QStringLiteral("AlarmScheme.db"));
    }
    QByteArray Bytes() const { return TestFile::Bytes(File()); }
    void Write(const QByteArray& bytes) const { TestFile::Write(File(), bytes); }

private:
    QTemporaryDir m_directory;
};

/// Collects what is logged during its life.
class LogCatcher
{
public:
    LogCatcher()
    {
        lxl::DPrintLog::instance().SetStandardError(false);
        lxl::DPrintLog::instance().SetListener(
            [](const lxl::DPrintLog::Entry& entry, void* pSelf) {
                static_cast<LogCatcher*>(pSelf)->m_entries.append(entry);
            },
            this);
    }
    ~LogCatcher() { lxl::DPrintLog::instance().SetListener(nullptr, nullptr); }
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    const QList<lxl::DPrintLog::Entry>& Entries() const { return m_entries; }
    QStringList Messages() const
    {
        QStringList messages;
        for (const lxl::DPrintLog::Entry& entry : m_entries)
            messages.append(entry.strMessage);
        return messages;
    }
    void Clear() { m_entries.clear(); }

private:
    QList<lxl::DPrintLog::Entry> m_entries;
};
