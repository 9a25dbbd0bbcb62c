// Extension DLLs and the resource chain over them.
#include <afxdllx.h>

#include "HandleMap.h"
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

bool HasResource(HMODULE module, LPCTSTR name, LPCTSTR type) {
    return ::FindResource(module, name, type) != nullptr;
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
    HINSTANCE first = AfxGetResourceHandle();
    if (HasResource(first, lpszName, lpszType))
        return first;
    SharedLock lock(chainLock);
    for (CDynLinkLibrary* library = newest; library; library = library->m_pNextDLL) {
        if (library->m_hResource && HasResource(library->m_hResource, lpszName, lpszType))
            return library->m_hResource;
    }
    return first;
}

int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0)
        return 0;
    lpszBuf[0] = 0;
    // String resources lie in blocks of 16 that are numbered from 1.
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE((nIDS >> 4) + 1), RT_STRING);
    return ::LoadString(module, nIDS, lpszBuf, static_cast<int>(nMaxBuf));
}
