// Takes the functions of GDI+ when this module starts instead of having the system do so: where there is no
// GDI+ the module still loads and can say so (GetModuleHandle(L"gdiplus.dll") answers null then). What links
// this asks for no function before it has looked.
#include <windows.h>

#ifdef __MINGW32__
#include <delayimp.h>

// Made by cmake/delay-library.sh. Its own way to find a function at the first call loses arguments that are
// no whole numbers, so all are found at once.
extern "C" const ImgDelayDescr descriptor asm("__DELAY_IMPORT_DESCRIPTOR_gdiplus_delayed_a");
extern "C" char __ImageBase;

namespace {

template <class T>
T* At(RVA place) {
    return reinterpret_cast<T*>(&__ImageBase + place);
}

HMODULE Bind() {
    const HMODULE dll = ::LoadLibraryA(At<const char>(descriptor.rvaDLLName));
    auto* const functions = At<IMAGE_THUNK_DATA>(descriptor.rvaIAT);
    const auto* const names = At<const IMAGE_THUNK_DATA>(descriptor.rvaINT);
    size_t count = 0;
    while (names[count].u1.AddressOfData != 0)
        ++count;
    // Some linkers put the table where it can only be read.
    DWORD protection = 0;
    if (!dll || !::VirtualProtect(functions, count * sizeof *functions, PAGE_READWRITE, &protection))
        return nullptr;
    for (size_t i = 0; i < count; ++i) {
        const auto* name = At<const IMAGE_IMPORT_BY_NAME>(static_cast<RVA>(names[i].u1.AddressOfData));
        if (const FARPROC found = ::GetProcAddress(dll, reinterpret_cast<LPCSTR>(name->Name)))
            functions[i].u1.Function = reinterpret_cast<ULONG_PTR>(found);
    }
    ::VirtualProtect(functions, count * sizeof *functions, protection, &protection);
    return dll;
}

}  // namespace

// What is called for a function that was not found.
extern "C" FARPROC WINAPI __delayLoadHelper2(PCImgDelayDescr, FARPROC*) {
    ::RaiseException(VcppException(ERROR_SEVERITY_ERROR, ERROR_PROC_NOT_FOUND), 0, 0, nullptr);
    return nullptr;
}

#else

static HMODULE Bind() {
    return ::LoadLibraryW(L"gdiplus.dll");
}

#endif

// Stays loaded to the end of the process: other modules may use it, too.
[[maybe_unused]] static const HMODULE library = Bind();
