// The exception of OLE.
#pragma once

#include <afxwin.h>

/// A call of OLE that failed.
class AFX_CLASS_EXPORT COleException : public CException {
    DECLARE_DYNAMIC(COleException)

    COleException() = default;
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    SCODE m_sc = S_OK;
};

/// Raises a COleException with the status.
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowOleException(SCODE sc);
