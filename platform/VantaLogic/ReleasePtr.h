#pragma once

#include <memory>

namespace VantaLogic {

struct Releaser
{
    template <typename T>
    void operator()(T* pObject) const
    {
        pObject->Release();
    }
};

/// Holds a reference-counted device or channel object and releases it exactly once.
template <typename T>
using ReleasePtr = std::unique_ptr<T, Releaser>;

} // namespace VantaLogic
