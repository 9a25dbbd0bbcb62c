#include <afxwin.h>

IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

BOOL CResourceException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    return CopyErrorMessage(_T("A required resource was unavailable."), lpszError, nMaxError, pnHelpContext);
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}
