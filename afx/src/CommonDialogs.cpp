#include <afxdlgs.h>

namespace {

COLORREF customColours[16];  // stay for the next time, as the user expects

}  // namespace

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

HWND CCommonDialog::OwnerWindow() const {
    CWnd* owner = m_pParentWnd ? m_pParentWnd : AfxGetMainWnd();
    if (!owner || !owner->m_hWnd)
        return nullptr;
    return ::GetLastActivePopup(owner->GetTopLevelParent()->m_hWnd);
}

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc{} {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = customColours;
    m_cc.Flags = dwFlags | CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = OwnerWindow();
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cf{} {
    m_cf.lStructSize = sizeof(m_cf);
    m_cf.lpLogFont = &m_lf;
    m_cf.Flags = dwFlags;
    if (lplfInitial) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    m_cf.hwndOwner = OwnerWindow();
    return ::ChooseFont(&m_cf) ? IDOK : IDCANCEL;
}
