// The window classes registered through the class library, and who registered them.
#pragma once

#include <afxwin.h>

/// Unregisters what a module registered and nobody else uses.
void UnregisterWindowClasses(HMODULE module);
void UnregisterAllWindowClasses();
