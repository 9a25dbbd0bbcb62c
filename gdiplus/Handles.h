// What callers hold: handles that say whether they are alive and of which kind.
#pragma once

#include "gdiplus/Platform.h"

#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace flat {

using namespace Gdiplus;

enum class Kind : uint32_t {
    None,
    Matrix,
    Path,
    PathIterator,
    Region,
    SolidBrush,
    HatchBrush,
    TextureBrush,
    PathGradientBrush,
    LinearGradientBrush,
    Pen,
    LineCap,
    ArrowCap,
    Graphics,
    Bitmap,
    CachedBitmap,
    ImageAttributes,
    FontFamily,
    Font,
    FontCollection,
    StringFormat
};

/// What is behind a handle. A class says by `kFirst` and `kLast` which kinds are its own or derive from it.
class Object {
public:
    virtual ~Object() = default;
};

/// Ends a call with a status.
struct Refusal {
    GpStatus status;
};
inline void Require(bool condition, GpStatus otherwise = InvalidParameter) {
    if (!condition)
        throw Refusal{otherwise};
}

/// A handle for the object, of which it is the owner now. It is no address of the object: nothing that a
/// caller passes is followed before it was found among the handles.
void* NewHandle(std::unique_ptr<Object> object, Kind kind);
/// Null when it is no live handle of these kinds.
Object* FindObject(const void* handle, Kind first, Kind last);
/// Takes the object back; the handle is dead.
std::unique_ptr<Object> TakeObject(const void* handle, Kind first, Kind last);

/// The object of a handle; InvalidParameter when there is none.
template <class T>
T& Get(const void* handle) {
    Object* const object = FindObject(handle, T::kFirst, T::kLast);
    Require(object);
    return static_cast<T&>(*object);
}
/// The same, but null for null.
template <class T>
T* GetOrNull(const void* handle) {
    return handle ? &Get<T>(handle) : nullptr;
}
/// What a caller wants to have filled in.
template <class T>
T& Out(T* pointer) {
    Require(pointer);
    return *pointer;
}
/// Hands a new object to the caller.
template <class H, class T>
void Give(H** out, std::unique_ptr<T> object, Kind kind = T::kFirst) {
    Require(out);
    *out = static_cast<H*>(NewHandle(std::move(object), kind));
}
template <class T>
void Destroy(const void* handle) {
    Require(TakeObject(handle, T::kFirst, T::kLast) != nullptr);
}
/// Refuses counts below `least` and a missing array.
template <class T>
void RequireArray(const T* array, int count, int least = 1) {
    Require(array && count >= least);
    Require(count < (1 << 28), OutOfMemory);
}

/// Runs the body of an entry point: what it throws is the status, Ok otherwise or what it returns.
template <class Body>
GpStatus Answer(Body&& body) noexcept {
    try {
        if constexpr (std::is_void_v<decltype(body())>) {
            body();
            return Ok;
        } else {
            return body();
        }
    } catch (const Refusal& refusal) {
        return refusal.status;
    } catch (const std::bad_alloc&) {
        return OutOfMemory;
    } catch (const std::length_error&) {
        return OutOfMemory;
    } catch (...) {
        return GenericError;
    }
}

/// Whether a start-up is in force.
bool IsStarted();

}  // namespace flat
