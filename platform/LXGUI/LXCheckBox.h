#pragma once

#include "lxgui_export.h"

#include <QCheckBox>

namespace LXGUI {

/// A check box in the host's look.
class LXGUI_EXPORT LXCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit LXCheckBox(QWidget* parent = nullptr);
    ~LXCheckBox() override;
};

} // namespace LXGUI
