#include "client/InsightPages.h"

#include "client/PageTabs.h"
#include "client/SiteSession.h"
#include "client/insight/CoveragePage.h"
#include "client/insight/ExplainPage.h"
#include "client/insight/HistoryPage.h"
#include "client/store/AlarmSchemeStoreBackend.h"
#include "platform/SystemLibrary/SystemPaths.h"

#include <QMenu>

namespace {

QString SchemeFile()
{
    return QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), QGetDatabaseDirPath());
}

} // namespace

InsightPages::InsightPages(PageTabs& tabs, SiteSession& site, AlarmSchemeStoreBackend& store, QObject* parent)
    : QObject(parent)
    , m_tabs(tabs)
    , m_site(site)
    , m_store(store)
    , m_schemes(std::make_unique<StoredSchemeView>(SchemeFile()))
{
    connect(&m_site, &SiteSession::SignalDevicesChanged, this, &InsightPages::OnSiteChanged);
    connect(&m_tabs, &PageTabs::SignalCurrentChanged, this, &InsightPages::OnTabChanged);
    connect(&m_store, &AlarmSchemeStoreBackend::SignalSavingChanged, this, [this](bool bSaving) {
        if (!bSaving) {
            OnTabChanged();
        }
    });
}

InsightPages::~InsightPages() = default;

void InsightPages::FillMenu(QMenu& menu)
{
    const auto add = [this, &menu](const QString& strText, const QString& strName, auto open) {
        QAction* const pAction = menu.addAction(strText);
        pAction->setObjectName(strName);
        connect(pAction, &QAction::triggered, this, open);
    };
    add(tr("&Explain"), QStringLiteral("actionExplain"), &InsightPages::OpenExplain);
    add(tr("&Coverage"), QStringLiteral("actionCoverage"), &InsightPages::OpenCoverage);
    add(tr("&History"), QStringLiteral("actionHistory"), &InsightPages::OpenHistory);
}

void InsightPages::OpenExplain()
{
    if (m_explain.isNull()) {
        m_explain = new ExplainPage(*m_schemes);
        m_explain->SetSite(m_site.Devices().GetSite());
    }
    m_tabs.Show(m_explain, QLatin1String(ExplainKey), m_explain->windowTitle());
}

void InsightPages::OpenCoverage()
{
    if (m_coverage.isNull()) {
        m_coverage = new CoveragePage(*m_schemes);
        m_coverage->SetSite(m_site.Devices().GetSite());
        connect(m_coverage, &CoveragePage::SignalExplain, this, &InsightPages::OnExplainWanted);
    }
    m_tabs.Show(m_coverage, QLatin1String(CoverageKey), m_coverage->windowTitle());
}

void InsightPages::OpenHistory()
{
    if (m_history.isNull()) {
        m_history = new HistoryPage(SchemeFile(), m_store);
        m_history->SetSite(m_site.Devices().GetSite());
    }
    m_tabs.Show(m_history, QLatin1String(HistoryKey), m_history->windowTitle());
}

bool InsightPages::Open(const QString& strKey)
{
    if (strKey == QLatin1String(ExplainKey)) {
        OpenExplain();
    } else if (strKey == QLatin1String(CoverageKey)) {
        OpenCoverage();
    } else if (strKey == QLatin1String(HistoryKey)) {
        OpenHistory();
    } else {
        return false;
    }
    return true;
}

void InsightPages::OnSiteChanged()
{
    const Site& site = m_site.Devices().GetSite();
    if (!m_explain.isNull()) {
        m_explain->SetSite(site);
    }
    if (!m_coverage.isNull()) {
        m_coverage->SetSite(site);
    }
    if (!m_history.isNull()) {
        m_history->SetSite(site);
    }
}

void InsightPages::OnTabChanged()
{
    // What lies behind other tabs is read when it comes to the front.
    const QWidget* const pCurrent = m_tabs.Current();
    if (pCurrent == nullptr) {
        return;
    }
    if (pCurrent == m_explain || pCurrent == m_coverage) {
        m_schemes->Refresh();
    } else if (pCurrent == m_history) {
        m_history->Refresh();
    }
}

void InsightPages::OnExplainWanted(const QString& strSource, int iType)
{
    OpenExplain();
    m_explain->Ask(strSource, iType);
}
