// Ownership of the platform's interfaces.
#pragma once

#include <unknwn.h>

#include <memory>

namespace Studio {

struct ComReleaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// A counted reference that is given back at the end.
template <class T>
using ComPtr = std::unique_ptr<T, ComReleaser>;

/// Another interface of an object; null when it has none, or there is no object.
template <class T>
ComPtr<T> Query(IUnknown* object, REFIID id) {
    void* found = nullptr;
    if (!object || FAILED(object->QueryInterface(id, &found)))
        return nullptr;
    return ComPtr<T>(static_cast<T*>(found));
}

}  // namespace Studio
