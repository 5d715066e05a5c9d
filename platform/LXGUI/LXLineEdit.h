#pragma once

#include "lxgui_export.h"

#include <QLineEdit>

namespace LXGUI {

/// A line edit in the host's look.
class LXGUI_EXPORT LXLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit LXLineEdit(QWidget* parent = nullptr);
    ~LXLineEdit() override;
};

} // namespace LXGUI
