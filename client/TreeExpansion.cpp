#include "client/TreeExpansion.h"

#include "platform/VantaModel/NodeRoles.h"

namespace {

constexpr int KeptNodes = 100000; // a settings file that somebody blew up must not cost the start

} // namespace

TreeExpansion::TreeExpansion(const QStringList& texts)
{
    for (const QString& strText : texts) {
        const QStringList parts = strText.split(QLatin1Char(':'));
        if (parts.size() != 3 || m_differing.size() >= KeptNodes) {
            continue;
        }
        bool bKind = false;
        bool bId = false;
        const int iKind = parts.at(0).toInt(&bKind);
        const qlonglong iId = parts.at(1).toLongLong(&bId);
        const bool bState = parts.at(2) == QLatin1String("0") || parts.at(2) == QLatin1String("1");
        if (bKind && bId && bState) {
            SetExpanded(iKind, iId, parts.at(2) == QLatin1String("1"));
        }
    }
}

bool TreeExpansion::IsExpanded(int32_t iNodeKind, int64_t iNodeId) const
{
    return m_differing.value({iNodeKind, iNodeId}, DefaultOf(iNodeKind));
}

void TreeExpansion::SetExpanded(int32_t iNodeKind, int64_t iNodeId, bool bExpanded)
{
    if (bExpanded == DefaultOf(iNodeKind)) {
        m_differing.remove({iNodeKind, iNodeId});
    } else {
        m_differing.insert({iNodeKind, iNodeId}, bExpanded);
    }
}

QStringList TreeExpansion::ToTexts() const
{
    QStringList texts;
    texts.reserve(m_differing.size());
    for (auto it = m_differing.cbegin(); it != m_differing.cend(); ++it) {
        texts.append(QStringLiteral("%1:%2:%3")
                         .arg(QString::number(it.key().first), QString::number(it.key().second),
                              it.value() ? QStringLiteral("1") : QStringLiteral("0")));
    }
    return texts;
}

bool TreeExpansion::DefaultOf(int32_t iNodeKind)
{
    return iNodeKind == VantaModel::NodeKindGroup;
}
