#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class AlarmSchemeStoreBackend;
class CoveragePage;
class ExplainPage;
class HistoryPage;
class PageTabs;
class QMenu;
class SiteSession;
class StoredSchemeView;

/// The client's own pages over the schemes as a whole, in tabs beside the modules' pages: what would happen
/// when, where the gaps are, and who changed what. Each is made when it is first opened. User-interface
/// thread only.
class InsightPages : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the object, which must outlive the tabs' pages.
    InsightPages(PageTabs& tabs, SiteSession& site, AlarmSchemeStoreBackend& store,
                 QObject* parent = nullptr);
    ~InsightPages() override;

    /// Adds an entry for each page.
    void FillMenu(QMenu& menu);

    void OpenExplain();
    void OpenCoverage();
    void OpenHistory();
    /// Opens a page by its key in the tabs; false when none of them has that key.
    bool Open(const QString& strKey);

    static constexpr char ExplainKey[] = "client.explain";
    static constexpr char CoverageKey[] = "client.coverage";
    static constexpr char HistoryKey[] = "client.history";

private:
    void OnSiteChanged();
    void OnTabChanged();
    void OnExplainWanted(const QString& strSource, int iType);

    PageTabs& m_tabs;
    SiteSession& m_site;
    AlarmSchemeStoreBackend& m_store;
    std::unique_ptr<StoredSchemeView> m_schemes;
    QPointer<ExplainPage> m_explain;
    QPointer<CoveragePage> m_coverage;
    QPointer<HistoryPage> m_history;
};
