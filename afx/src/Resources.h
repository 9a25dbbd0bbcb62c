// Where resources come from.
#pragma once

#include <windows.h>

/// The first module of the resource chain with that string; the resource handle's when none has it.
HINSTANCE FindStringModule(UINT id);
