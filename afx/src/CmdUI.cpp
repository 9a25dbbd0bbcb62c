#include <afxwin.h>

CCmdUI::CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
    m_bEnableChanged = TRUE;
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        return;
    }
    if (!m_pOther)
        return;
    // A disabled control that keeps the focus would leave the keyboard without a target.
    if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
        ::SetFocus(::GetNextDlgTabItem(::GetParent(m_pOther->m_hWnd), m_pOther->m_hWnd, FALSE));
    m_pOther->EnableWindow(bOn);
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (!m_pMenu || m_pSubMenu)
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (!m_pMenu->GetMenuItemInfo(m_nIndex, &info, TRUE))
        return;
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu) {
        if (m_pSubMenu)
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    } else if (m_pOther) {
        CString shown;
        m_pOther->GetWindowText(shown);
        if (shown != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}

void CCmdUI::ContinueRouting() {
    m_bContinueRouting = TRUE;
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    BOOL isHandled = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO handler{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &handler));
    }
    return isHandled;
}
