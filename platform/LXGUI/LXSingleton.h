#pragma once

namespace LXGUI {

/// The one instance of a platform class, made on first use. Each class is instantiated once, in the platform
/// library that owns it (`extern template` here, definition there), so that modules share it.
template <typename T>
class LXSingleton
{
public:
    static T* Instance();
};

} // namespace LXGUI
