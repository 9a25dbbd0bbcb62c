// What the DllMain of an extension DLL needs.
#pragma once

#include <afxwin.h>

/// State of an extension DLL: one static object in the file with its DllMain.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
};

/// Enters the DLL; false when that fails. Call it at process attach.
AFX_API_EXPORT BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Removes the DLL's resource chain entries and window classes. Call it at process detach.
AFX_API_EXPORT void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// Puts an extension DLL into the resource chain for as long as the object lives. Made with new at process
/// attach; AfxTermExtensionModule deletes it.
class AFX_CLASS_EXPORT CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL = nullptr;  ///< the one entered before, or null
};
