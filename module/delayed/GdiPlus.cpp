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
    auto* function = At<IMAGE_THUNK_DATA>(descriptor.rvaIAT);
    auto* name = At<const IMAGE_THUNK_DATA>(descriptor.rvaINT);
    for (; dll && name->u1.AddressOfData != 0; ++name, ++function) {
        const auto* entry = At<const IMAGE_IMPORT_BY_NAME>(static_cast<RVA>(name->u1.AddressOfData));
        if (const FARPROC found = ::GetProcAddress(dll, reinterpret_cast<LPCSTR>(entry->Name)))
            function->u1.Function = reinterpret_cast<ULONG_PTR>(found);
    }
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
