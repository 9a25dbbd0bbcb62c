// Extension DLLs and the resource chain over them.
#include <afxdllx.h>

#include "HandleMap.h"
#include "Resources.h"
#include "WindowClasses.h"

namespace {

SRWLOCK chainLock = SRWLOCK_INIT;
CDynLinkLibrary* newest = nullptr;

/// The newest entry of a module, or null.
CDynLinkLibrary* FindLibrary(HMODULE module) {
    SharedLock lock(chainLock);
    CDynLinkLibrary* library = newest;
    while (library && library->m_hModule != module)
        library = library->m_pNextDLL;
    return library;
}

/// The first module that `has` what is wanted: the resource handle's, then the extension DLLs, newest first;
/// the resource handle's when none has it.
template <class Has>
HINSTANCE FindModule(Has has) {
    HINSTANCE first = AfxGetResourceHandle();
    if (has(first))
        return first;
    SharedLock lock(chainLock);
    for (CDynLinkLibrary* library = newest; library; library = library->m_pNextDLL) {
        if (library->m_hResource && has(library->m_hResource))
            return library->m_hResource;
    }
    return first;
}

}  // namespace

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource) {
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE) {
    ExclusiveLock lock(chainLock);
    m_pNextDLL = newest;
    newest = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    ExclusiveLock lock(chainLock);
    CDynLinkLibrary** place = &newest;
    while (*place && *place != this)
        place = &(*place)->m_pNextDLL;
    if (*place)
        *place = m_pNextDLL;
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (!state.bInitialized) {
        state.bInitialized = TRUE;
        state.hModule = hModule;
        state.hResource = hModule;
    }
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized)
        return;
    state.bInitialized = FALSE;
    while (CDynLinkLibrary* library = FindLibrary(state.hModule))
        delete library;
    UnregisterWindowClasses(state.hModule);
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    return FindModule(
        [=](HINSTANCE module) { return ::FindResource(module, lpszName, lpszType) != nullptr; });
}

HINSTANCE FindStringModule(UINT id) {
    return FindModule([id](HINSTANCE module) {
        LPCWSTR text;
        return ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0) > 0;
    });
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0)
        return 0;
    lpszBuf[0] = 0;
    return ::LoadString(FindStringModule(nIDS), nIDS, lpszBuf, static_cast<int>(nMaxBuf));
}
