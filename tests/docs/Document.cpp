#include "Document.h"

#include <QFile>
#include <QRegularExpression>

Document::Document(const QString& strRoot, const QString& strFile)
    : m_strFile(strFile)
{
    QFile file(strRoot + QLatin1Char('/') + strFile);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    bool bFenced = false;
    bool bIndented = false;
    bool bBlank = true;
    for (const QString& strLine : lines) {
        if (strLine.startsWith(QLatin1String("```"))) {
            bFenced = !bFenced;
            continue;
        }
        // Indented code follows a blank line; within a list the text is indented too.
        bIndented = !bFenced && strLine.startsWith(QLatin1String("    ")) && (bBlank || bIndented);
        bBlank = strLine.trimmed().isEmpty();
        if (bFenced || bIndented) {
            const QString strText = bIndented ? strLine.mid(4) : strLine;
            AddBlockLine(strText, strText.startsWith(QLatin1Char(' ')));
        } else if (strLine.startsWith(QLatin1Char('#'))) {
            AddHeading(strLine);
        } else {
            AddProse(strLine);
        }
    }
}

void Document::AddHeading(const QString& strLine)
{
    static const QRegularExpression marks(QStringLiteral("^#+ *"));
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    QString strText = strLine;
    strText.remove(marks);
    if (strLine.startsWith(QLatin1String("## "))) {
        m_strSection = strText;
        m_sections += strText;
    }
    const QString strName = strText.toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-'));
    QString strAnchor = strName;
    for (int iTwin = 1; m_anchors.contains(strAnchor); ++iTwin)
        strAnchor = strName + QLatin1Char('-') + QString::number(iTwin);
    m_anchors.insert(strAnchor);
    m_strProse += QLatin1Char('\n');
}

void Document::AddBlockLine(const QString& strLine, bool bContinues)
{
    if (bContinues && !m_codes.isEmpty() && m_codes.constLast().bShown)
        m_codes.last().strText += QLatin1Char(' ') + strLine.trimmed();
    else
        m_codes += {m_strSection, strLine, true};
}

void Document::AddProse(const QString& strLine)
{
    static const QRegularExpression inlineCode(QStringLiteral("`([^`]+)`"));
    auto match = inlineCode.globalMatch(strLine);
    while (match.hasNext())
        m_codes += {m_strSection, match.next().captured(1), false};
    QString strText = strLine;
    m_strProse += strLine.trimmed().isEmpty() ? QStringLiteral("\n")
                                              : strText.replace(inlineCode, QString()) + QLatin1Char(' ');
}

QList<DocumentLink> Document::Links() const
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
    QList<DocumentLink> links;
    auto match = link.globalMatch(m_strProse);
    while (match.hasNext()) {
        const QString strTarget = match.next().captured(1);
        if (!strTarget.contains(QLatin1String("://")))
            links += {strTarget.section(QLatin1Char('#'), 0, 0), strTarget.section(QLatin1Char('#'), 1)};
    }
    return links;
}

QStringList Document::Quoted() const
{
    static const QRegularExpression quoted(QStringLiteral("\"([^\"\\n]+)\""));
    QStringList texts;
    auto match = quoted.globalMatch(m_strProse);
    while (match.hasNext())
        texts += match.next().captured(1).simplified();
    return texts;
}
