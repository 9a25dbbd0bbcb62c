#include "stress/support/Imports.h"

#include <cstring>

namespace {

template <class T>
T* At(HMODULE module, DWORD offset) {
    return reinterpret_cast<T*>(reinterpret_cast<char*>(module) + offset);
}

void Put(IMAGE_THUNK_DATA& entry, void* address) {
    DWORD before = 0;
    ::VirtualProtect(&entry, sizeof entry, PAGE_READWRITE, &before);
    entry.u1.Function = reinterpret_cast<ULONGLONG>(address);
    ::VirtualProtect(&entry, sizeof entry, before, &before);
}

}  // namespace

bool ReplaceImport(LPCWSTR moduleName, const char* name, void* replacement) {
    HMODULE module = ::GetModuleHandleW(moduleName);
    if (!module)
        return false;
    const auto* headers = At<IMAGE_NT_HEADERS>(module, At<IMAGE_DOS_HEADER>(module, 0)->e_lfanew);
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    bool found = false;
    for (auto* dll = At<IMAGE_IMPORT_DESCRIPTOR>(module, imports); dll->Name; ++dll) {
        const auto* names = At<IMAGE_THUNK_DATA>(module, dll->OriginalFirstThunk);
        auto* entries = At<IMAGE_THUNK_DATA>(module, dll->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++entries) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                continue;
            const auto* import =
                At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) {
                Put(*entries, replacement);
                found = true;
            }
        }
    }
    return found;
}
