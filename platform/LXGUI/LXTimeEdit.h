#pragma once

#include "lxgui_export.h"

#include <QTimeEdit>

namespace LXGUI {

/// A time edit in the host's look.
class LXGUI_EXPORT LXTimeEdit : public QTimeEdit
{
    Q_OBJECT

public:
    explicit LXTimeEdit(QWidget* parent = nullptr);
    ~LXTimeEdit() override;
};

} // namespace LXGUI
