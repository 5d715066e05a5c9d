#pragma once

#include "client/insight/StoredSchemeView.h"
#include "scheme_services/evaluation/SiteIndex.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ExplainPage;
}

struct SchemeExplanation;

/// Tells what would happen if an event came from a source at a time: the verdict as a sentence, the day with
/// the moment marked, and the reactions. Looks only, at the schemes as they are stored.
class ExplainPage : public QWidget
{
    Q_OBJECT

public:
    /// The view must outlive the page.
    explicit ExplainPage(StoredSchemeView& schemes, QWidget* parent = nullptr);
    ~ExplainPage() override;

    /// What may be asked about; what was picked stays picked where the site still has it.
    void SetSite(const Site& site);
    /// Asks about a source, by its key, and an event type.
    void Ask(const QString& strSource, int iType);

private:
    void OnSourceChanged();
    void FillEvents(const QString& strSource);
    void Explain();
    void Show(const SchemeExplanation& explanation, const QString& strSource);
    void ShowProblem(const QString& strText);
    QString PickedSource(QString& strProblem) const;

    std::unique_ptr<Ui::ExplainPage> ui;
    StoredSchemeView& m_schemes;
    SiteIndex m_site;
};
