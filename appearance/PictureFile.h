// What is known of a picture before it is read.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Whether the head of the picture in the file `path` claims more than 64 million pixels. Reading such a file
/// takes gigabytes and stops the program for long, whatever the file really holds. False for a file that
/// holds no picture.
TESSEL_API bool IsOversizedPicture(LPCTSTR path);

}  // namespace Lumo
