#include "client/insight/FindingsModel.h"

#include <QIcon>

#include <algorithm>

namespace {

QIcon IconOf(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Error:
        return QIcon(QStringLiteral("./Skin/theme1/notify/error.png"));
    case FindingSeverity::Warning:
        return QIcon(QStringLiteral("./Skin/theme1/notify/warning.png"));
    case FindingSeverity::Information:
        break;
    }
    return QIcon(QStringLiteral("./Skin/theme1/notify/information.png"));
}

} // namespace

FindingsModel::FindingsModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

FindingsModel::~FindingsModel() = default;

void FindingsModel::SetFindings(const QVector<Finding>& findings, const SiteIndex& site)
{
    beginResetModel();
    m_findings = findings;
    m_site = site;
    endResetModel();
}

int FindingsModel::CountOf(FindingSeverity severity) const
{
    return static_cast<int>(
        std::count_if(m_findings.cbegin(), m_findings.cend(),
                      [severity](const Finding& finding) { return finding.Severity() == severity; }));
}

int FindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_findings.size();
}

int FindingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const Finding& finding = m_findings.at(index.row());
    if (role == SortRole) {
        return index.column() == ColumnSeverity ? QVariant(static_cast<int>(finding.Severity()))
                                                : data(index, Qt::DisplayRole);
    }
    if (role == Qt::DecorationRole && index.column() == ColumnSeverity) {
        return IconOf(finding.Severity());
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    switch (index.column()) {
    case ColumnSeverity:
        return Finding::SeverityName(finding.Severity());
    case ColumnPlace:
        return finding.Place(m_site);
    case ColumnText:
        return finding.Text(m_site);
    case ColumnAdvice:
        return finding.Advice();
    default:
        return {};
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case ColumnSeverity:
        return tr("Severity");
    case ColumnPlace:
        return tr("Where");
    case ColumnText:
        return tr("Finding");
    case ColumnAdvice:
        return tr("What to do");
    default:
        return {};
    }
}
