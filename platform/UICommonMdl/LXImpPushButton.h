#pragma once

#include "uicommonmdl_export.h"

#include <QPushButton>

namespace UICommonMdl {

/// The important button of a page or dialog: the one that does what the page is for.
class UICOMMONMDL_EXPORT LXImpPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LXImpPushButton(QWidget* parent = nullptr);
    ~LXImpPushButton() override;
};

} // namespace UICommonMdl
