// The library as a loaded module.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Name of the window class that a document registers for its canvases.
inline constexpr wchar_t kCanvasClassName[] = L"Tessel Canvas";

/// The library's own module.
HINSTANCE ModuleHandle();

}  // namespace Lumo
