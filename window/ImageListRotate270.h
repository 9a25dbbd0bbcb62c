// An image list turned by 270 degrees.
#pragma once

#include "core/Platform.h"

#include <commctrl.h>

namespace Lumo {

/// The pictures of an image list turned by 270 degrees clockwise, a quarter to the left: what was their right
/// side is at the top, so they go with texts that are read upwards. They keep their numbers, masks and alpha.
/// Turned twice they stand on their heads, three times they go with texts that are read downwards.
class TESSEL_API ImageListRotate270 {
public:
    ImageListRotate270() = default;
    ~ImageListRotate270() { Destroy(); }
    ImageListRotate270(const ImageListRotate270&) = delete;
    ImageListRotate270& operator=(const ImageListRotate270&) = delete;

    /// Takes the pictures that `list` has now, which may be this object's own; what it had is destroyed.
    /// False, and nothing changes, when there is no list or no memory. Later changes of `list` do not follow.
    bool Create(HIMAGELIST list);
    /// Destroys the list.
    void Destroy();
    /// The list, null when there is none; it belongs to the object.
    HIMAGELIST Get() const { return m_list; }
    /// Gives the list to the caller, who destroys it; null when there is none.
    HIMAGELIST Detach();

private:
    HIMAGELIST m_list = nullptr;
};

}  // namespace Lumo
