#pragma once

#include "lxgui_export.h"

#include <QPushButton>

namespace LXGUI {

/// An ordinary button in the host's look.
class LXGUI_EXPORT LXPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LXPushButton(QWidget* parent = nullptr);
    ~LXPushButton() override;
};

} // namespace LXGUI
