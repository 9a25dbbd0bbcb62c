// Loading and unloading of the library.
#include "module/internal/Module.h"

#include "core/internal/CaptionCache.h"

#include <afxdllx.h>

#include <clocale>

namespace {

AFX_EXTENSION_MODULE g_module = {};
CDynLinkLibrary* g_link = nullptr;
ULONG_PTR g_gdiPlus = 0;

// The texts the library shows are Korean; conversions to and from multi-byte text follow.
void SetLocale() {
    std::setlocale(LC_ALL, "Korean");
}

bool StartGdiPlus() {
    const Gdiplus::GdiplusStartupInput input;  // version 1, background thread not suppressed
    return ::GetModuleHandle(L"gdiplus.dll") &&
           Gdiplus::GdiplusStartup(&g_gdiPlus, &input, nullptr) == Gdiplus::Ok;
}

void ReportMissingGdiPlus() {
    CString caption;
    caption.Format(L"Tessel Matrix Software Version %s", L"1111");
    ::MessageBox(nullptr, L"GDI Plus 엔진을 초기화 할수 없습니다. \n\n프로그램을 종료합니다.", caption,
                 MB_OK | MB_ICONERROR);
}

bool Load(HINSTANCE instance) {
    SetLocale();
    if (!AfxInitExtensionModule(g_module, instance))
        return false;
    if (!StartGdiPlus()) {
        ReportMissingGdiPlus();
        AfxTermExtensionModule(g_module);
        return false;
    }
    g_link = new CDynLinkLibrary(g_module);
    return true;
}

void Unload(HINSTANCE instance, bool processEnds) {
    SetLocale();
    ::UnregisterClass(Lumo::kCanvasClassName, instance);
    delete g_link;
    Lumo::ClearCaptionCache();
    if (!processEnds)  // the threads that GDI+ would wait for have been cut off by then
        Gdiplus::GdiplusShutdown(g_gdiPlus);
    AfxTermExtensionModule(g_module);
}

}  // namespace

HINSTANCE Lumo::ModuleHandle() {
    return g_module.hModule;
}

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_PROCESS_ATTACH)
        return Load(instance);
    if (reason == DLL_PROCESS_DETACH && g_link)  // a load that was refused has undone itself
        Unload(instance, processEnds != nullptr);
    return TRUE;
}
