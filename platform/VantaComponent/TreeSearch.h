#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringMatcher>
#include <QVector>

class QStandardItem;

namespace VantaComponent {

/// Whether a node answers to a search text: a part of its name, or the beginning of a device's or channel's
/// id or of a channel's number on its device. Case and blanks around the text do not matter.
class NodeMatcher
{
public:
    explicit NodeMatcher(const QString& strText = QString());

    bool IsEmpty() const { return m_strText.isEmpty(); }
    const QString& Text() const { return m_strText; }
    bool Matches(const QStandardItem& node) const;

private:
    QString m_strText;
    QStringMatcher m_name;
    bool m_bNumber = false;
};

/// What a search shows of a tree: hits, everything below a hit, and everything above one.
struct SearchResult
{
    /// The shown children of the root and of every shown item that is neither a hit nor below one. Of other
    /// shown items all children are shown.
    QHash<const QStandardItem*, QVector<QStandardItem*>> shown;
    QSet<const QStandardItem*> unfold; ///< items with hits below them
};

/// One pass over the tree under the root.
SearchResult SearchTree(QStandardItem& root, const NodeMatcher& matcher);

} // namespace VantaComponent
