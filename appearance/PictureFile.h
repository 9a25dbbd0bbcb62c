// What is known of a picture before it is read.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Whether the head of the picture in the file `path` claims that it takes more than 256 megabytes in memory
/// (of a picture with fewer than 8 bits a pixel, more than 256 million pixels). Reading such a file stops the
/// program for long, whatever the file really holds. False for a file that holds no picture. The answer is
/// remembered until the file's time or length changes; user-interface thread only.
TESSEL_API bool IsOversizedPicture(LPCTSTR path);

}  // namespace Lumo
