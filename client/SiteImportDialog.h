#pragma once

#include "platform/LXGUI/LXCustomDialog.h"
#include "scheme_services/site/SiteImport.h"

#include <memory>

namespace Ui {
class SiteImportDialog;
}

/// Shows what an import would do, line by line, before anything is changed. Can be accepted only when nothing
/// is wrong with the text and something would change.
class SiteImportDialog : public LXGUI::LXCustomDialog
{
    Q_OBJECT

public:
    SiteImportDialog(const QString& strFile, const SiteImportPlan& plan, QWidget* parent = nullptr);
    ~SiteImportDialog() override;

private:
    static QString Summary(const SiteImportPlan& plan);
    static bool RemovesDevices(const SiteImportPlan& plan);

    std::unique_ptr<Ui::SiteImportDialog> ui;
};
