// The macros that fill a message map. Every handler is checked against the signature its message needs.
#pragma once

/// What a control's parent gets goes to the control first, or when the parent has no handler of its own, as
/// this number plus the message's: the macros with _REFLECT handle it there.
#define WM_REFLECT_BASE 0xBC00

// clang-format off

#define ON_WM_PAINT() \
    {WM_PAINT, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnPaint))},
#define ON_WM_CLOSE() \
    {WM_CLOSE, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnClose))},
#define ON_WM_DESTROY() \
    {WM_DESTROY, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnDestroy))},
#define ON_WM_NCDESTROY() \
    {WM_NCDESTROY, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnNcDestroy))},
#define ON_WM_NCPAINT() \
    {WM_NCPAINT, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnNcPaint))},
#define ON_WM_MOUSELEAVE() \
    {WM_MOUSELEAVE, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnMouseLeave))},
#define ON_WM_CANCELMODE() \
    {WM_CANCELMODE, 0, 0, 0, AfxSig_v, AfxMessageHandler(static_cast<void (CWnd::*)()>(&ThisClass::OnCancelMode))},
#define ON_WM_GETDLGCODE() \
    {WM_GETDLGCODE, 0, 0, 0, AfxSig_u, AfxMessageHandler(static_cast<UINT (CWnd::*)()>(&ThisClass::OnGetDlgCode))},
#define ON_WM_QUERYENDSESSION() \
    {WM_QUERYENDSESSION, 0, 0, 0, AfxSig_b, AfxMessageHandler(static_cast<BOOL (CWnd::*)()>(&ThisClass::OnQueryEndSession))},
#define ON_WM_ERASEBKGND() \
    {WM_ERASEBKGND, 0, 0, 0, AfxSig_b_DC, AfxMessageHandler(static_cast<BOOL (CWnd::*)(CDC*)>(&ThisClass::OnEraseBkgnd))},
#define ON_WM_CREATE() \
    {WM_CREATE, 0, 0, 0, AfxSig_i_CREATE, AfxMessageHandler(static_cast<int (CWnd::*)(LPCREATESTRUCT)>(&ThisClass::OnCreate))},
#define ON_WM_NCCREATE() \
    {WM_NCCREATE, 0, 0, 0, AfxSig_i_CREATE, AfxMessageHandler(static_cast<BOOL (CWnd::*)(LPCREATESTRUCT)>(&ThisClass::OnNcCreate))},
#define ON_WM_ENABLE() \
    {WM_ENABLE, 0, 0, 0, AfxSig_v_b, AfxMessageHandler(static_cast<void (CWnd::*)(BOOL)>(&ThisClass::OnEnable))},
#define ON_WM_ENDSESSION() \
    {WM_ENDSESSION, 0, 0, 0, AfxSig_v_b, AfxMessageHandler(static_cast<void (CWnd::*)(BOOL)>(&ThisClass::OnEndSession))},
#define ON_WM_SHOWWINDOW() \
    {WM_SHOWWINDOW, 0, 0, 0, AfxSig_v_b_u, AfxMessageHandler(static_cast<void (CWnd::*)(BOOL, UINT)>(&ThisClass::OnShowWindow))},
#define ON_WM_NCCALCSIZE() \
    {WM_NCCALCSIZE, 0, 0, 0, AfxSig_v_b_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*)>(&ThisClass::OnNcCalcSize))},
#define ON_WM_GETMINMAXINFO() \
    {WM_GETMINMAXINFO, 0, 0, 0, AfxSig_v_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(MINMAXINFO*)>(&ThisClass::OnGetMinMaxInfo))},
#define ON_WM_WINDOWPOSCHANGING() \
    {WM_WINDOWPOSCHANGING, 0, 0, 0, AfxSig_v_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(WINDOWPOS*)>(&ThisClass::OnWindowPosChanging))},
#define ON_WM_WINDOWPOSCHANGED() \
    {WM_WINDOWPOSCHANGED, 0, 0, 0, AfxSig_v_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(WINDOWPOS*)>(&ThisClass::OnWindowPosChanged))},
#define ON_WM_MOVE() \
    {WM_MOVE, 0, 0, 0, AfxSig_v_i_i, AfxMessageHandler(static_cast<void (CWnd::*)(int, int)>(&ThisClass::OnMove))},
#define ON_WM_DRAWITEM() \
    {WM_DRAWITEM, 0, 0, 0, AfxSig_v_i_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(&ThisClass::OnDrawItem))},
#define ON_WM_MEASUREITEM() \
    {WM_MEASUREITEM, 0, 0, 0, AfxSig_v_i_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(int, LPMEASUREITEMSTRUCT)>(&ThisClass::OnMeasureItem))},
#define ON_WM_SIZE() \
    {WM_SIZE, 0, 0, 0, AfxSig_v_u_i_i, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, int, int)>(&ThisClass::OnSize))},
#define ON_WM_KEYDOWN() \
    {WM_KEYDOWN, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnKeyDown))},
#define ON_WM_KEYUP() \
    {WM_KEYUP, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnKeyUp))},
#define ON_WM_CHAR() \
    {WM_CHAR, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnChar))},
#define ON_WM_SYSKEYDOWN() \
    {WM_SYSKEYDOWN, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnSysKeyDown))},
#define ON_WM_SYSKEYUP() \
    {WM_SYSKEYUP, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnSysKeyUp))},
#define ON_WM_SYSCHAR() \
    {WM_SYSCHAR, 0, 0, 0, AfxSig_v_u_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, UINT)>(&ThisClass::OnSysChar))},
#define ON_WM_MENUSELECT() \
    {WM_MENUSELECT, 0, 0, 0, AfxSig_v_u_u_menu, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, HMENU)>(&ThisClass::OnMenuSelect))},
#define ON_WM_LBUTTONDOWN() \
    {WM_LBUTTONDOWN, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnLButtonDown))},
#define ON_WM_LBUTTONUP() \
    {WM_LBUTTONUP, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnLButtonUp))},
#define ON_WM_LBUTTONDBLCLK() \
    {WM_LBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnLButtonDblClk))},
#define ON_WM_RBUTTONDOWN() \
    {WM_RBUTTONDOWN, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnRButtonDown))},
#define ON_WM_RBUTTONUP() \
    {WM_RBUTTONUP, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnRButtonUp))},
#define ON_WM_RBUTTONDBLCLK() \
    {WM_RBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnRButtonDblClk))},
#define ON_WM_MBUTTONDOWN() \
    {WM_MBUTTONDOWN, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnMButtonDown))},
#define ON_WM_MBUTTONUP() \
    {WM_MBUTTONUP, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnMButtonUp))},
#define ON_WM_MBUTTONDBLCLK() \
    {WM_MBUTTONDBLCLK, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnMButtonDblClk))},
#define ON_WM_MOUSEMOVE() \
    {WM_MOUSEMOVE, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnMouseMove))},
#define ON_WM_MOUSEHOVER() \
    {WM_MOUSEHOVER, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnMouseHover))},
#define ON_WM_MOUSEWHEEL() \
    {WM_MOUSEWHEEL, 0, 0, 0, AfxSig_b_u_s_pt, AfxMessageHandler(static_cast<BOOL (CWnd::*)(UINT, short, CPoint)>(&ThisClass::OnMouseWheel))},
#define ON_WM_NCLBUTTONDOWN() \
    {WM_NCLBUTTONDOWN, 0, 0, 0, AfxSig_v_u_pt, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CPoint)>(&ThisClass::OnNcLButtonDown))},
#define ON_WM_SYSCOMMAND() \
    {WM_SYSCOMMAND, 0, 0, 0, AfxSig_v_u_l, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, LPARAM)>(&ThisClass::OnSysCommand))},
#define ON_WM_NCHITTEST() \
    {WM_NCHITTEST, 0, 0, 0, AfxSig_l_pt, AfxMessageHandler(static_cast<LRESULT (CWnd::*)(CPoint)>(&ThisClass::OnNcHitTest))},
#define ON_WM_TIMER() \
    {WM_TIMER, 0, 0, 0, AfxSig_v_timer, AfxMessageHandler(static_cast<void (CWnd::*)(UINT_PTR)>(&ThisClass::OnTimer))},
#define ON_WM_SETFOCUS() \
    {WM_SETFOCUS, 0, 0, 0, AfxSig_v_W, AfxMessageHandler(static_cast<void (CWnd::*)(CWnd*)>(&ThisClass::OnSetFocus))},
#define ON_WM_KILLFOCUS() \
    {WM_KILLFOCUS, 0, 0, 0, AfxSig_v_W, AfxMessageHandler(static_cast<void (CWnd::*)(CWnd*)>(&ThisClass::OnKillFocus))},
#define ON_WM_CAPTURECHANGED() \
    {WM_CAPTURECHANGED, 0, 0, 0, AfxSig_v_lW, AfxMessageHandler(static_cast<void (CWnd::*)(CWnd*)>(&ThisClass::OnCaptureChanged))},
#define ON_WM_CONTEXTMENU() \
    {WM_CONTEXTMENU, 0, 0, 0, AfxSig_v_W_pt, AfxMessageHandler(static_cast<void (CWnd::*)(CWnd*, CPoint)>(&ThisClass::OnContextMenu))},
#define ON_WM_SETCURSOR() \
    {WM_SETCURSOR, 0, 0, 0, AfxSig_i_W_u_u, AfxMessageHandler(static_cast<BOOL (CWnd::*)(CWnd*, UINT, UINT)>(&ThisClass::OnSetCursor))},
#define ON_WM_MOUSEACTIVATE() \
    {WM_MOUSEACTIVATE, 0, 0, 0, AfxSig_i_W_u_u, AfxMessageHandler(static_cast<int (CWnd::*)(CWnd*, UINT, UINT)>(&ThisClass::OnMouseActivate))},
#define ON_WM_COPYDATA() \
    {WM_COPYDATA, 0, 0, 0, AfxSig_b_W_ptr, AfxMessageHandler(static_cast<BOOL (CWnd::*)(CWnd*, COPYDATASTRUCT*)>(&ThisClass::OnCopyData))},
#define ON_WM_ACTIVATE() \
    {WM_ACTIVATE, 0, 0, 0, AfxSig_v_u_W_b, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, CWnd*, BOOL)>(&ThisClass::OnActivate))},
#define ON_WM_HSCROLL() \
    {WM_HSCROLL, 0, 0, 0, AfxSig_v_u_u_bar, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, CScrollBar*)>(&ThisClass::OnHScroll))},
#define ON_WM_VSCROLL() \
    {WM_VSCROLL, 0, 0, 0, AfxSig_v_u_u_bar, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT, CScrollBar*)>(&ThisClass::OnVScroll))},
#define ON_WM_INITMENUPOPUP() \
    {WM_INITMENUPOPUP, 0, 0, 0, AfxSig_v_menu_u_b, AfxMessageHandler(static_cast<void (CWnd::*)(CMenu*, UINT, BOOL)>(&ThisClass::OnInitMenuPopup))},
#define ON_WM_CTLCOLOR() \
    {WM_CTLCOLORMSGBOX, 0, 0, 0, AfxSig_h_DC_W_u, AfxMessageHandler(static_cast<HBRUSH (CWnd::*)(CDC*, CWnd*, UINT)>(&ThisClass::OnCtlColor))},
#define ON_WM_DROPFILES() \
    {WM_DROPFILES, 0, 0, 0, AfxSig_v_hdrop, AfxMessageHandler(static_cast<void (CWnd::*)(HDROP)>(&ThisClass::OnDropFiles))},
#define ON_WM_INPUT() \
    {WM_INPUT, 0, 0, 0, AfxSig_v_u_input, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, HRAWINPUT)>(&ThisClass::OnRawInput))},
#define ON_WM_SETTINGCHANGE() \
    {WM_SETTINGCHANGE, 0, 0, 0, AfxSig_v_u_str, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, LPCTSTR)>(&ThisClass::OnSettingChange))},

#define ON_WM_CTLCOLOR_REFLECT() \
    {WM_CTLCOLORMSGBOX + WM_REFLECT_BASE, 0, 0, 0, AfxSig_h_DC_u, AfxMessageHandler(static_cast<HBRUSH (CWnd::*)(CDC*, UINT)>(&ThisClass::CtlColor))},
#define ON_WM_DRAWITEM_REFLECT() \
    {WM_DRAWITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(LPDRAWITEMSTRUCT)>(&ThisClass::DrawItem))},
#define ON_WM_MEASUREITEM_REFLECT() \
    {WM_MEASUREITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_ptr, AfxMessageHandler(static_cast<void (CWnd::*)(LPMEASUREITEMSTRUCT)>(&ThisClass::MeasureItem))},
#define ON_WM_HSCROLL_REFLECT() \
    {WM_HSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT)>(&ThisClass::HScroll))},
#define ON_WM_VSCROLL_REFLECT() \
    {WM_VSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_v_u_u, AfxMessageHandler(static_cast<void (CWnd::*)(UINT, UINT)>(&ThisClass::VScroll))},
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    {WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0, AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    {WM_COMMAND + WM_REFLECT_BASE, static_cast<WORD>(wNotifyCode), 0, 0, AfxSigCmd_b, \
     AfxMessageHandler(static_cast<BOOL (CCmdTarget::*)()>(memberFxn))},
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) \
    {WM_NOTIFY + WM_REFLECT_BASE, static_cast<WORD>(static_cast<int>(wNotifyCode)), 0, 0, AfxSigNotify_v, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn))},
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn) \
    {WM_NOTIFY + WM_REFLECT_BASE, static_cast<WORD>(static_cast<int>(wNotifyCode)), 0, 0, AfxSigNotify_b, \
     AfxMessageHandler(static_cast<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn))},

#define ON_COMMAND(id, memberFxn) \
    {WM_COMMAND, static_cast<WORD>(CN_COMMAND), static_cast<WORD>(id), static_cast<WORD>(id), AfxSigCmd_v, \
     static_cast<AFX_PMSG>(memberFxn)},
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    {WM_COMMAND, static_cast<WORD>(CN_COMMAND), static_cast<WORD>(id), static_cast<WORD>(idLast), AfxSigCmd_RANGE, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(UINT)>(memberFxn))},
#define ON_COMMAND_EX(id, memberFxn) \
    {WM_COMMAND, static_cast<WORD>(CN_COMMAND), static_cast<WORD>(id), static_cast<WORD>(id), AfxSigCmd_EX, \
     AfxMessageHandler(static_cast<BOOL (CCmdTarget::*)(UINT)>(memberFxn))},
#define ON_UPDATE_COMMAND_UI(id, memberFxn) \
    {WM_COMMAND, static_cast<UINT>(CN_UPDATE_COMMAND_UI), static_cast<WORD>(id), static_cast<WORD>(id), AfxSigCmdUI, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(CCmdUI*)>(memberFxn))},
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn) \
    {WM_COMMAND, static_cast<UINT>(CN_UPDATE_COMMAND_UI), static_cast<WORD>(id), static_cast<WORD>(idLast), AfxSigCmdUI, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(CCmdUI*)>(memberFxn))},

#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    {WM_COMMAND, static_cast<WORD>(wNotifyCode), static_cast<WORD>(id), static_cast<WORD>(id), AfxSigCmd_v, \
     static_cast<AFX_PMSG>(memberFxn)},
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    {WM_COMMAND, static_cast<WORD>(wNotifyCode), static_cast<WORD>(id), static_cast<WORD>(idLast), AfxSigCmd_RANGE, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(UINT)>(memberFxn))},
#define ON_NOTIFY(wNotifyCode, id, memberFxn) \
    {WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), static_cast<WORD>(id), static_cast<WORD>(id), AfxSigNotify_v, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn))},
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn) \
    {WM_NOTIFY, static_cast<WORD>(static_cast<int>(wNotifyCode)), static_cast<WORD>(id), static_cast<WORD>(idLast), AfxSigNotify_RANGE, \
     AfxMessageHandler(static_cast<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(memberFxn))},
#define ON_MESSAGE(message, memberFxn) \
    {message, 0, 0, 0, AfxSig_l_w_l, AfxMessageHandler(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    {0xC000, 0, 0, 0, reinterpret_cast<UINT_PTR>(&(nMessageVariable)), \
     AfxMessageHandler(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn))},

#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)

// clang-format on
