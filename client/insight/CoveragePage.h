#pragma once

#include "client/insight/BackgroundJob.h"
#include "client/insight/FindingsModel.h"
#include "client/insight/StoredSchemeView.h"
#include "scheme_services/evaluation/SiteIndex.h"
#include "scheme_services/evaluation/WeekCoverage.h"

#include <QSortFilterProxyModel>
#include <QWidget>

#include <memory>

namespace Ui {
class CoveragePage;
}

/// Where a site is watched and where it has gaps: the week as a map of how many schemes are armed, and what
/// cannot be meant in the schemes. Looks only, at the schemes as they are stored.
class CoveragePage : public QWidget
{
    Q_OBJECT

public:
    /// The view must outlive the page.
    explicit CoveragePage(StoredSchemeView& schemes, QWidget* parent = nullptr);
    ~CoveragePage() override;

    void SetSite(const Site& site);

Q_SIGNALS:
    /// A finding was opened: the page of this scheme is wanted.
    void SignalExplain(const QString& strSource, int iType);

private:
    void LookThrough();
    void ShowCoverage();
    void ShowFindings(const QVector<Finding>& findings);
    WeekCoverage::Filter Filter() const;
    void OnFindingActivated(const QModelIndex& index);

    std::unique_ptr<Ui::CoveragePage> ui;
    StoredSchemeView& m_schemes;
    SiteIndex m_site;
    FindingsModel m_findings;
    QSortFilterProxyModel m_sorted;
    BackgroundJob m_coverageJob;
    BackgroundJob m_findingsJob;
    QString m_strSummary; ///< said while no half hour is pointed at
};
