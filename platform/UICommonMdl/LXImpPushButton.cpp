#include "platform/UICommonMdl/LXImpPushButton.h"

#include <QVariant>

namespace UICommonMdl {

LXImpPushButton::LXImpPushButton(QWidget* parent)
    : QPushButton(parent)
{
    setProperty("primary", true); // what the style sheets know important buttons by
}

LXImpPushButton::~LXImpPushButton() = default;

} // namespace UICommonMdl
