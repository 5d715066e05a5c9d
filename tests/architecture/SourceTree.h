#pragma once

#include <QString>
#include <QStringList>

/// The files of the repository, without what git ignores or keeps for itself.
class SourceTree
{
public:
    explicit SourceTree(const QString& strRoot);

    /// Paths from the root, sorted.
    const QStringList& Files() const { return m_files; }
    /// Those with one of these endings.
    QStringList FilesEndingWith(const QStringList& endings) const;
    /// Null when the file cannot be read or is no text.
    QString Text(const QString& strFile) const;

private:
    void Collect(const QString& strFolder);
    bool IsIgnored(const QString& strPath, bool bFolder) const;

    QString m_strRoot;
    QStringList m_ignored; ///< lines of .gitignore
    QStringList m_files;
};
