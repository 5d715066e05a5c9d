#pragma once

#include "platform/LXPluginAPI/IPluginAPI.h"

#include <QtPlugin>

namespace LXPluginAPI {

class IAbstractUI;

/// A module that contributes pages to the client. User-interface thread only.
class LXPLUGINAPI_EXPORT IClientUIPluginAPI : public IPluginAPI
{
public:
    ~IClientUIPluginAPI() override;
    virtual void Initialize() = 0;   // slot 7: a second call changes nothing
    virtual void Uninitialize() = 0; // slot 8: harmless when repeated
    virtual IAbstractUI*
    GetUIObject() = 0; // slot 9: null before slot 7 and after slot 8; owned by the module
};

} // namespace LXPluginAPI

Q_DECLARE_INTERFACE(LXPluginAPI::IClientUIPluginAPI, "com.LXPluginAPI.IClientUIPluginAPI(1.0)")
