#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <memory>
#include <vector>

class QLockFile;

/// Edits of one page that are not saved.
struct Draft
{
    QString strModule;  ///< key of the module that the page belongs to
    QDateTime written;  ///< UTC
    int iSchemes = -1;  ///< how many schemes it changes; -1: not known
    QByteArray content; ///< in the page's own form
};

/// A place for the draft of one page: a file "<module>.draft", "<module>-2.draft" and so on with a lock
/// beside it, which this object holds while it lives. Several programs may use the same folder: the place of
/// a program that runs cannot be had, the place of one that has crashed can. User-interface thread only, but
/// for Write.
class DraftFile
{
    Q_DECLARE_TR_FUNCTIONS(DraftFile)

public:
    static constexpr int MaximumPlaces = 64; ///< for one module

    /// A place for a page of this module that holds no draft; null when the folder gives none.
    static std::unique_ptr<DraftFile> Free(const QString& strFolder, const QString& strModule);
    /// Every draft in the folder that belongs to no program that runs, in the order of the names.
    static std::vector<std::unique_ptr<DraftFile>> Orphans(const QString& strFolder);

    ~DraftFile();
    DraftFile(const DraftFile&) = delete;
    DraftFile& operator=(const DraftFile&) = delete;

    const QString& Path() const { return m_strPath; }
    /// False when there is no sound draft, with the reason in `strError`.
    bool Read(Draft& draft, QString& strError) const;
    /// Puts the draft in place of what the file holds, all or nothing; false with the reason when it cannot.
    /// Any thread.
    static bool Write(const QString& strPath, const Draft& draft, QString& strError);
    bool Remove() const; ///< true when there is no file afterwards
    /// Gives a file that cannot be used another name, under which nobody looks for drafts; the new path,
    /// empty when that fails.
    QString SetAside() const;

private:
    static std::unique_ptr<DraftFile> Take(const QString& strPath);
    DraftFile(const QString& strPath, std::unique_ptr<QLockFile> lock);

    QString m_strPath;
    std::unique_ptr<QLockFile> m_lock;
};
