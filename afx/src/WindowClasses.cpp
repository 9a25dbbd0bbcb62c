#include "WindowClasses.h"

#include "HandleMap.h"

#include <map>
#include <set>

namespace {

struct RegisteredClass {
    HINSTANCE instance;
    std::set<HMODULE> users;  ///< modules that asked for the class
};

SRWLOCK classesLock = SRWLOCK_INIT;
std::map<std::wstring, RegisteredClass> classes;

HMODULE ModuleOf(void* address) {
    HMODULE module = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        static_cast<LPCTSTR>(address), &module);
    return module;
}

bool IsRegistered(HINSTANCE instance, LPCTSTR name) {
    WNDCLASS info{};
    return ::GetClassInfo(instance, name, &info);
}

/// Registers a class for a module; the name that stays valid, or null when the system refuses.
LPCTSTR Register(const WNDCLASS& wndClass, HMODULE module) {
    ExclusiveLock lock(classesLock);
    auto found = classes.find(wndClass.lpszClassName);
    bool isOurs = found != classes.end() && found->second.instance == wndClass.hInstance;
    if (!IsRegistered(wndClass.hInstance, wndClass.lpszClassName) && !::RegisterClass(&wndClass))
        return nullptr;
    if (!isOurs)
        found =
            classes.insert_or_assign(wndClass.lpszClassName, RegisteredClass{wndClass.hInstance, {}}).first;
    found->second.users.insert(module);
    return found->first.c_str();
}

}  // namespace

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    CString name;
    if (!hCursor && !hbrBackground && !hIcon)
        name.Format(_T("Afx:%p:%x"), AfxGetInstanceHandle(), nClassStyle);
    else
        name.Format(_T("Afx:%p:%x:%p:%p:%p"), AfxGetInstanceHandle(), nClassStyle, hCursor, hbrBackground,
                    hIcon);
    WNDCLASS wndClass{};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;
    wndClass.lpszClassName = name;
    LPCTSTR registered = Register(wndClass, ModuleOf(__builtin_return_address(0)));
    if (!registered)
        AfxThrowResourceException();
    return registered;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    if (IsRegistered(lpWndClass->hInstance, lpWndClass->lpszClassName))
        return TRUE;
    return Register(*lpWndClass, ModuleOf(__builtin_return_address(0))) != nullptr;
}

void UnregisterWindowClasses(HMODULE module) {
    ExclusiveLock lock(classesLock);
    for (auto entry = classes.begin(); entry != classes.end();) {
        entry->second.users.erase(module);
        bool isUnused = entry->second.users.empty();
        // A class that still has windows stays, and is tried again when the class library goes.
        if (isUnused && ::UnregisterClass(entry->first.c_str(), entry->second.instance))
            entry = classes.erase(entry);
        else
            ++entry;
    }
}

void UnregisterAllWindowClasses() {
    ExclusiveLock lock(classesLock);
    for (auto& [name, info] : classes)
        ::UnregisterClass(name.c_str(), info.instance);
    classes.clear();
}
