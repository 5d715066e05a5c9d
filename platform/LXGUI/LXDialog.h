#pragma once

#include "lxgui_export.h"

#include <QDialog>

namespace LXGUI {

/// Base of the host's dialogs: the host's look, movable by its title, no context help button.
class LXGUI_EXPORT LXDialog : public QDialog
{
    Q_OBJECT

public:
    explicit LXDialog(QWidget* parent = nullptr);
    ~LXDialog() override;
};

} // namespace LXGUI
