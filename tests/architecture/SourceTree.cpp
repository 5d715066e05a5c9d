#include "tests/architecture/SourceTree.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

SourceTree::SourceTree(const QString& strRoot)
    : m_strRoot(strRoot)
{
    m_ignored = Text(QStringLiteral(".gitignore")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    Collect(QString());
    m_files.sort();
}

QStringList SourceTree::FilesEndingWith(const QStringList& endings) const
{
    QStringList found;
    for (const QString& file : m_files) {
        if (std::any_of(endings.begin(), endings.end(),
                        [&](const QString& ending) { return file.endsWith(ending); }))
            found.append(file);
    }
    return found;
}

QString SourceTree::Text(const QString& strFile) const
{
    QFile file(m_strRoot + QLatin1Char('/') + strFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    return content.contains('\0') ? QString() : QString::fromUtf8(content);
}

void SourceTree::Collect(const QString& strFolder)
{
    const QDir directory(m_strRoot + QLatin1Char('/') + strFolder);
    const QFileInfoList entries = directory.entryInfoList(QDir::Files | QDir::Dirs | QDir::Hidden |
                                                          QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo& entry : entries) {
        const QString path = strFolder + entry.fileName();
        if (IsIgnored(path, entry.isDir()))
            continue;
        if (entry.isDir()) {
            Collect(path + QLatin1Char('/'));
        } else {
            m_files.append(path);
        }
    }
}

// As much of the rules of .gitignore as this repository uses: a leading slash ties a pattern to the root, a
// trailing one to folders.
bool SourceTree::IsIgnored(const QString& strPath, bool bFolder) const
{
    const QString name = strPath.section(QLatin1Char('/'), -1);
    if (name == QLatin1String(".git"))
        return true;
    for (QString pattern : m_ignored) {
        if (pattern.endsWith(QLatin1Char('/'))) {
            if (!bFolder)
                continue;
            pattern.chop(1);
        }
        const bool tied = pattern.startsWith(QLatin1Char('/'));
        const QRegularExpression expression(
            QRegularExpression::wildcardToRegularExpression(tied ? pattern.mid(1) : pattern));
        if (expression.match(tied ? strPath : name).hasMatch())
            return true;
    }
    return false;
}
