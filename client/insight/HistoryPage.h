#pragma once

#include "client/insight/BackgroundJob.h"
#include "client/insight/HistoryModel.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QWidget>

#include <memory>

class AlarmSchemeStoreBackend;
class QTreeWidgetItem;

namespace Ui {
class HistoryPage;
}

/// Who changed which schemes, when and how; a step can be taken back.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    /// The scheme file whose history is shown. The store, which takes steps back, must outlive the page.
    HistoryPage(const QString& strSchemeFile, AlarmSchemeStoreBackend& store, QWidget* parent = nullptr);
    ~HistoryPage() override;

    void SetSite(const Site& site) { m_site = SiteIndex(site); }
    void Refresh();

private:
    void ReadMore(qint64 iBefore);
    void OnStepChanged();
    void ShowChanges(qint64 iEntry, const SchemeHistoryChanges& changes);
    void OnTakeBack();
    QTreeWidgetItem* LeftAlone(qint64 iEntry) const;

    std::unique_ptr<Ui::HistoryPage> ui;
    QString m_strFile;
    AlarmSchemeStoreBackend& m_store;
    SiteIndex m_site;
    HistoryModel m_model;
    /// Of the step that was taken back last: schemes that have changed since and were left alone.
    qint64 m_iReverted = 0;
    QList<AlarmSourceKey> m_left;
    BackgroundJob m_entriesJob;
    BackgroundJob m_changesJob;
};
