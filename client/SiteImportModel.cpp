#include "client/SiteImportModel.h"

SiteImportModel::SiteImportModel(const SiteImportPlan& plan, QObject* parent)
    : QAbstractTableModel(parent)
    , m_plan(plan)
{
}

int SiteImportModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    if (!m_plan.IsSound()) {
        return static_cast<int>(m_plan.problems.list.size()) + (m_plan.problems.iFurther > 0 ? 1 : 0);
    }
    return static_cast<int>(m_plan.difference.changes.size()) + (m_plan.difference.bOrderChanged ? 1 : 0);
}

int SiteImportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SiteImportModel::data(const QModelIndex& index, int iRole) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return QVariant();
    }
    if (iRole == Qt::DisplayRole) {
        return Cell(index.row(), index.column());
    }
    if (iRole == Qt::ToolTipRole && index.column() == ColumnText) {
        return Cell(index.row(), index.column()).toHtmlEscaped(); // what is too long for the view
    }
    if (iRole == Qt::TextAlignmentRole && index.column() == ColumnLine) {
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    }
    return QVariant();
}

QVariant SiteImportModel::headerData(int iSection, Qt::Orientation orientation, int iRole) const
{
    if (orientation != Qt::Horizontal || iRole != Qt::DisplayRole) {
        return QVariant();
    }
    switch (iSection) {
    case ColumnLine:
        return tr("Line");
    case ColumnWhat:
        return tr("What");
    case ColumnText:
        return m_plan.IsSound() ? tr("Change") : tr("Problem");
    default:
        return QVariant();
    }
}

QString SiteImportModel::Cell(int iRow, int iColumn) const
{
    return m_plan.IsSound() ? ChangeCell(iRow, iColumn) : ProblemCell(iRow, iColumn);
}

QString SiteImportModel::ProblemCell(int iRow, int iColumn) const
{
    if (iRow >= m_plan.problems.list.size()) {
        return iColumn == ColumnText ? tr("%n more line(s) are wrong.", nullptr, m_plan.problems.iFurther)
                                     : QString();
    }
    const SiteProblem& problem = m_plan.problems.list.at(iRow);
    switch (iColumn) {
    case ColumnLine:
        return problem.iLine > 0 ? QString::number(problem.iLine) : QString();
    case ColumnWhat:
        return tr("Wrong");
    default:
        return problem.strReason;
    }
}

QString SiteImportModel::ChangeCell(int iRow, int iColumn) const
{
    if (iRow >= m_plan.difference.changes.size()) {
        return iColumn == ColumnText   ? tr("What stays stands in another order.")
               : iColumn == ColumnWhat ? tr("Moved")
                                       : QString();
    }
    const SiteChange& change = m_plan.difference.changes.at(iRow);
    switch (iColumn) {
    case ColumnLine: {
        const bool bGone = change.eKind == SiteChange::Kind::Removed;
        const int iLine = bGone ? 0 : m_plan.lines.value(change.iId);
        return iLine > 0 ? QString::number(iLine) : QString();
    }
    case ColumnWhat:
        return KindText(change.eKind);
    default:
        return change.Text();
    }
}

QString SiteImportModel::KindText(SiteChange::Kind eKind)
{
    switch (eKind) {
    case SiteChange::Kind::Added:
        return tr("Added");
    case SiteChange::Kind::Renamed:
        return tr("Renamed");
    case SiteChange::Kind::Changed:
        return tr("Changed");
    case SiteChange::Kind::Removed:
        break;
    }
    return tr("Removed");
}
