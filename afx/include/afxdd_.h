// Dialog data: values that move between members and controls, and the checks on them. Included by afxwin.h.
#pragma once

#include <afxwnd_.h>

/// On the way between members and controls: which way, of which window, and which control is at work.
class AFX_CLASS_EXPORT CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;           ///< TRUE: from the controls to the members
    CWnd* m_pDlgWnd;                   ///< the window with the controls; not owned
    HWND m_hWndLastControl = nullptr;  ///< the control at work, null before the first
    BOOL m_bEditLastControl = FALSE;   ///< it takes text

    /// Makes a control the one at work and returns it; CNotSupportedException when the window has none of
    /// that number.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// Ends the exchange after the user was told why: puts the focus on the control at work, its text
    /// selected, and raises CUserException.
    [[noreturn]] void Fail();
};

/// Move one value. Of text that is no number of the type the user is told, and the exchange fails.
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// Text of at most `nMaxLen` - 1 characters; more is cut.
AFX_API_EXPORT void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR pszText, int nMaxLen);
/// A check box: 0 off, 1 on, 2 undetermined.
AFX_API_EXPORT void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// A group of radio buttons that begins with `nIDC` (WS_GROUP): 0 for the first, -1 when none is on.
AFX_API_EXPORT void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
/// Position of a scroll bar.
AFX_API_EXPORT void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
/// Lists by the chosen item's number, -1 for none, or by its text: chosen by how it begins, or as a whole.
AFX_API_EXPORT void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
AFX_API_EXPORT void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_API_EXPORT void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_API_EXPORT void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// The text of a combo box, which need not be one of its items.
AFX_API_EXPORT void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFX_API_EXPORT void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
/// Ties an object without a window to the control, for good.
AFX_API_EXPORT void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

/// Check the value that was moved last: when it comes from the control and is outside the bounds, the user is
/// told and the exchange fails. Outgoing text is not checked; the edit control takes no more characters
/// afterwards.
AFX_API_EXPORT void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
AFX_API_EXPORT void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal,
                                           float maxVal);
AFX_API_EXPORT void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal,
                                            double maxVal);
