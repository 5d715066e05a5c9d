#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// A link as it stands in a document: a path from the document's folder, an anchor, or both.
struct DocumentLink
{
    QString strPath;
    QString strAnchor;
};

/// One page of the documentation, taken apart.
class Document
{
public:
    /// Code with the heading of the second level below which it stands (empty above the first).
    struct Code
    {
        QString strSection;
        QString strText;    ///< one line of a block, with the lines that continue it, or one inline piece
        bool bShown = true; ///< shown as something to type; false for a piece within the text
    };

    /// `strFile` is the path from `strRoot`.
    Document(const QString& strRoot, const QString& strFile);

    const QString& File() const { return m_strFile; }
    bool IsEmpty() const { return m_strProse.isEmpty(); }
    const QList<Code>& Codes() const { return m_codes; }
    const QSet<QString>& Anchors() const { return m_anchors; }
    QStringList Sections() const { return m_sections; } ///< headings of the second level
    QList<DocumentLink> Links() const;                  ///< those that lead out to the web are left out
    QStringList Quoted() const; ///< what stands in straight quotation marks, without code

private:
    void AddHeading(const QString& strLine);
    void AddBlockLine(const QString& strLine, bool bContinues);
    void AddProse(const QString& strLine);

    QString m_strFile;
    QString m_strSection;
    QString m_strProse; ///< without code; lines are joined, paragraphs are not
    QList<Code> m_codes;
    QSet<QString> m_anchors;
    QStringList m_sections;
};
