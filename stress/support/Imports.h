// Calls of a loaded module into other modules, led elsewhere.
#pragma once

#include <windows.h>

/// Makes calls of `name` by `module` (null: the program) arrive at `replacement`. False when the module
/// imports no function of that name.
bool ReplaceImport(LPCWSTR module, const char* name, void* replacement);

template <class Function>
bool ReplaceImport(LPCWSTR module, const char* name, Function* replacement) {
    return ReplaceImport(module, name, reinterpret_cast<void*>(replacement));
}
