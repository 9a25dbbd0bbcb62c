// Dialog data: UpdateData and the functions that move and check values.
#include "ThreadState.h"

#include <cerrno>
#include <cwchar>
#include <limits>
#include <utility>

namespace {

/// Keeps the notifications of a window's controls from its handlers while values are moved.
class ExchangeScope {
public:
    explicit ExchangeScope(HWND window)
        : m_state(GetThreadState()), m_outer(std::exchange(m_state.exchanging, window)) {}
    ~ExchangeScope() { m_state.exchanging = m_outer; }
    ExchangeScope(const ExchangeScope&) = delete;
    ExchangeScope& operator=(const ExchangeScope&) = delete;

private:
    ThreadState& m_state;
    HWND m_outer;
};

/// Tells the user why an entry is not taken, and ends the exchange.
[[noreturn]] void Refuse(CDataExchange& exchange, const CString& reason) {
    AfxMessageBox(reason, MB_OK | MB_ICONEXCLAMATION);
    exchange.Fail();
}

CString TextOf(HWND control) {
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

/// Sets a text only where it differs: a control would flicker and lose its selection.
void SetText(HWND control, const CString& text) {
    if (TextOf(control) != text)
        ::SetWindowText(control, text);
}

template <class Value>
CString Shown(Value value) {
    CString text;
    using Limits = std::numeric_limits<Value>;
    if constexpr (!Limits::is_integer)
        text.Format(_T("%.*g"), Limits::digits10, double(value));
    else if constexpr (Limits::is_signed)
        text.Format(_T("%ld"), static_cast<long>(value));
    else
        text.Format(_T("%lu"), static_cast<unsigned long>(value));
    return text;
}

template <class Value>
LPCTSTR Wanted() {
    using Limits = std::numeric_limits<Value>;
    if (!Limits::is_integer)
        return _T("Please enter a number.");
    if (Limits::max() == 0xFF)
        return _T("Please enter an integer between 0 and 255.");
    return Limits::is_signed ? _T("Please enter an integer.") : _T("Please enter a positive integer.");
}

/// The number that the whole text is, white space around it aside; false when it is none of the type.
template <class Value>
bool Parse(const CString& entered, Value& value) {
    const CString text = CString(entered).Trim();
    using Limits = std::numeric_limits<Value>;
    wchar_t* end = nullptr;
    errno = 0;
    const auto number = [&] {
        if constexpr (!Limits::is_integer)
            return std::wcstod(text, &end);
        else
            return std::wcstoll(text, &end, 10);
    }();
    const bool isInside = number >= Limits::lowest() && number <= Limits::max();  // not so for "nan"
    if (text.IsEmpty() || *end || errno == ERANGE || !isInside)
        return false;
    value = static_cast<Value>(number);
    return true;
}

template <class Value>
void ExchangeNumber(CDataExchange* pDX, int nIDC, Value& value) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
        SetText(control, Shown(value));
    else if (!Parse(TextOf(control), value))
        Refuse(*pDX, Wanted<Value>());
}

template <class Value>
void CheckBounds(CDataExchange* pDX, Value value, Value low, Value high) {
    if (!pDX->m_bSaveAndValidate || (value >= low && value <= high))
        return;
    Refuse(*pDX, (std::numeric_limits<Value>::is_integer ? _T("Please enter an integer between ")
                                                         : _T("Please enter a number between ")) +
                     Shown(low) + _T(" and ") + Shown(high) + _T("."));
}

/// The messages of a kind of list.
struct ListMessages {
    UINT current, choose, find, findExact;
};
constexpr ListMessages kListBox = {LB_GETCURSEL, LB_SETCURSEL, LB_FINDSTRING, LB_FINDSTRINGEXACT};
constexpr ListMessages kComboBox = {CB_GETCURSEL, CB_SETCURSEL, CB_FINDSTRING, CB_FINDSTRINGEXACT};

void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, const ListMessages& list) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, list.current, 0, 0));
    else
        ::SendMessage(control, list.choose, static_cast<WPARAM>(index), 0);
}

/// Chooses the first item that `find` finds, or none; the item's number or -1.
int Choose(HWND control, const ListMessages& list, UINT find, const CString& text) {
    const auto wanted = reinterpret_cast<LPARAM>(text.GetString());
    const auto found = static_cast<int>(::SendMessage(control, find, static_cast<WPARAM>(-1), wanted));
    ::SendMessage(control, list.choose, static_cast<WPARAM>(found), 0);
    return found;
}

CString ChosenText(HWND list) {
    CString text;
    const auto chosen = static_cast<WPARAM>(::SendMessage(list, LB_GETCURSEL, 0, 0));
    const auto length = static_cast<int>(::SendMessage(list, LB_GETTEXTLEN, chosen, 0));
    if (length > 0) {
        ::SendMessage(list, LB_GETTEXT, chosen, reinterpret_cast<LPARAM>(text.GetBuffer(length)));
        text.ReleaseBuffer();
    }
    return text;
}

// A combo box has a text of its own, which need not be that of an item.
void ExchangeItem(CDataExchange* pDX, int nIDC, CString& value, const ListMessages& list, UINT find) {
    HWND control = pDX->PrepareCtrl(nIDC);
    const bool isCombo = &list == &kComboBox;
    if (pDX->m_bSaveAndValidate)
        value = isCombo ? TextOf(control) : ChosenText(control);
    else if (Choose(control, list, find, value) < 0 && isCombo)
        SetText(control, value);
}

}  // namespace

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (!control) {
        TRACE(L"Dialog data: no control %d\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    ExchangeScope scope(m_hWnd);
    try {
        CDataExchange exchange(this, bSaveAndValidate);
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* told) {
        told->Delete();
    } catch (CException* failure) {
        TCHAR text[512];
        if (failure->GetErrorMessage(text, ARRAYSIZE(text)))
            AfxMessageBox(text, MB_OK | MB_ICONEXCLAMATION);
        failure->Delete();
    }
    return FALSE;
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(control);
    else
        SetText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR pszText, int nMaxLen) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::GetWindowText(control, pszText, nMaxLen);
    else
        SetText(control, pszText);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value >= 0 && value <= 2 ? value : 0), 0);
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND button = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    do {
        if (::SendMessage(button, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessage(button, BM_SETCHECK, index == value, 0);
            else if (::SendMessage(button, BM_GETCHECK, 0, 0))
                value = index;
            ++index;
        }
        button = ::GetWindow(button, GW_HWNDNEXT);
    } while (button && !(::GetWindowLongPtr(button, GWL_STYLE) & WS_GROUP));
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, kListBox);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeItem(pDX, nIDC, value, kListBox, kListBox.find);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeItem(pDX, nIDC, value, kListBox, kListBox.findExact);
}

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, kComboBox);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeItem(pDX, nIDC, value, kComboBox, kComboBox.find);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeItem(pDX, nIDC, value, kComboBox, kComboBox.findExact);
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (!rControl.m_hWnd && !rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars) {
        CString reason;
        reason.Format(_T("Please enter no more than %d characters."), nChars);
        Refuse(*pDX, reason);
    }
    if (!pDX->m_bSaveAndValidate && pDX->m_bEditLastControl)
        ::SendMessage(pDX->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeNumber(pDX, nIDC, value);
}

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal) {
    CheckBounds(pDX, value, minVal, maxVal);
}
