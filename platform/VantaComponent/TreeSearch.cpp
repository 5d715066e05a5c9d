#include "platform/VantaComponent/TreeSearch.h"

#include "platform/VantaModel/NodeRoles.h"

#include <QStandardItem>

#include <algorithm>

namespace VantaComponent {

namespace {

class Pass
{
public:
    Pass(const NodeMatcher& matcher, SearchResult& result)
        : m_matcher(matcher)
        , m_result(result)
    {
    }

    /// Looks below an item; true when there is a hit. Depth is bounded by the tree's model.
    bool Children(QStandardItem& item, bool bBelowHit)
    {
        QVector<QStandardItem*> shown;
        bool bAnyHit = false;
        const int iRows = item.rowCount();
        for (int i = 0; i < iRows; ++i) {
            QStandardItem* pChild = item.child(i);
            const bool bHit = m_matcher.Matches(*pChild);
            const bool bHitBelow = pChild->hasChildren() && Children(*pChild, bBelowHit || bHit);
            bAnyHit = bAnyHit || bHit || bHitBelow;
            if (!bBelowHit && (bHit || bHitBelow))
                shown.append(pChild);
        }
        if (bAnyHit)
            m_result.unfold.insert(&item);
        if (!bBelowHit && !shown.isEmpty())
            m_result.shown.insert(&item, shown);
        return bAnyHit;
    }

private:
    const NodeMatcher& m_matcher;
    SearchResult& m_result;
};

} // namespace

NodeMatcher::NodeMatcher(const QString& strText)
    : m_strText(strText.trimmed())
    , m_name(m_strText, Qt::CaseInsensitive)
    , m_bNumber(!m_strText.isEmpty() && std::all_of(m_strText.cbegin(), m_strText.cend(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    }))
{
}

bool NodeMatcher::Matches(const QStandardItem& node) const
{
    if (m_name.indexIn(node.data(Qt::DisplayRole).toString()) >= 0)
        return true;
    if (!m_bNumber || node.data(VantaModel::NodeKindRole).toInt() == VantaModel::NodeKindGroup)
        return false;
    const QVariant number = node.data(VantaModel::NodeNumberRole);
    return (number.isValid() && QString::number(number.toInt()).startsWith(m_strText)) ||
           QString::number(node.data(VantaModel::NodeIdRole).toLongLong()).startsWith(m_strText);
}

SearchResult SearchTree(QStandardItem& root, const NodeMatcher& matcher)
{
    SearchResult result;
    if (!Pass(matcher, result).Children(root, false))
        result.shown.insert(&root, {});
    result.unfold.remove(&root);
    return result;
}

} // namespace VantaComponent
