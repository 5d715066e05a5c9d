#pragma once

#include "lxpluginapi_export.h"

#include <string>

namespace LXPluginAPI {

class IAbstractWidget;

/// The user-interface object of a module: hands out its page descriptors, which it owns. User-interface
/// thread.
class LXPLUGINAPI_EXPORT IAbstractUI
{
public:
    virtual ~IAbstractUI();                             // slot 0
    virtual IAbstractWidget* GetWidgetDescriptor() = 0; // slot 1: first descriptor, created on demand
    virtual IAbstractWidget* FindWidget(const std::string& name) = 0; // slot 2: by exact name, null when none
};

} // namespace LXPluginAPI
