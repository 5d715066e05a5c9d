#pragma once

#include "scheme_services/site/SiteImport.h"

#include <QAbstractTableModel>

/// The lines of an import's preview: what is wrong with the text, or, when nothing is, what would change.
class SiteImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ColumnLine, ///< of the text; empty where there is none
        ColumnWhat,
        ColumnText,
        ColumnCount
    };

    explicit SiteImportModel(const SiteImportPlan& plan, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int iRole = Qt::DisplayRole) const override;
    QVariant headerData(int iSection, Qt::Orientation orientation,
                        int iRole = Qt::DisplayRole) const override;

private:
    QString Cell(int iRow, int iColumn) const;
    QString ProblemCell(int iRow, int iColumn) const;
    QString ChangeCell(int iRow, int iColumn) const;
    static QString KindText(SiteChange::Kind eKind);

    const SiteImportPlan m_plan;
};
