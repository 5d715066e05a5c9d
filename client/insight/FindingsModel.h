#pragma once

#include "scheme_services/evaluation/Finding.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QAbstractTableModel>
#include <QVector>

/// Findings as a table: how bad, where, what, and what to do about it.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ColumnSeverity,
        ColumnPlace,
        ColumnText,
        ColumnAdvice,
        ColumnCount
    };
    /// Numbers for sorting: the severity first, then the order in which things were found.
    static constexpr int SortRole = Qt::UserRole;

    explicit FindingsModel(QObject* parent = nullptr);
    ~FindingsModel() override;

    /// The names are the site's.
    void SetFindings(const QVector<Finding>& findings, const SiteIndex& site);
    const Finding& At(int iRow) const { return m_findings.at(iRow); }
    int CountOf(FindingSeverity severity) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVector<Finding> m_findings;
    SiteIndex m_site;
};
