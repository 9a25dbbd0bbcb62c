// Window messages to handlers: what each signature takes from wParam and lParam.
#include <afxwin.h>

#include "CommandMessages.h"

namespace {

/// A message on its way to the handler of a message map entry.
struct Delivery {
    CWnd* window;
    AFX_PMSG handler;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    template <class Result, class... Arguments>
    Result Call(Arguments... arguments) const {
        using Handler = Result (CWnd::*)(Arguments...);
        return (window->*std::bit_cast<Handler>(handler))(arguments...);
    }
    UINT LowW() const { return LOWORD(wParam); }
    UINT HighW() const { return HIWORD(wParam); }
    UINT LowL() const { return LOWORD(lParam); }
    UINT HighL() const { return HIWORD(lParam); }
    CPoint Point() const { return CPoint(lParam); }
    CWnd* WindowW() const { return CWnd::FromHandle(reinterpret_cast<HWND>(wParam)); }
    CWnd* WindowL() const { return CWnd::FromHandle(reinterpret_cast<HWND>(lParam)); }
    CDC* ContextW() const { return CDC::FromHandle(reinterpret_cast<HDC>(wParam)); }
    void* Data() const { return reinterpret_cast<void*>(lParam); }
};

/// True with the answer when the handler took the message.
bool Answer(LRESULT& result, LRESULT answer) {
    result = answer;
    return true;
}

/// The messages with a plain answer or none.
bool DeliverSimple(const Delivery& to, UINT_PTR signature, LRESULT& result) {
    switch (signature) {
        case AfxSig_v:
            to.Call<void>();
            break;
        case AfxSig_v_b:
            to.Call<void, BOOL>(static_cast<BOOL>(to.wParam));
            break;
        case AfxSig_v_b_u:
            to.Call<void, BOOL, UINT>(static_cast<BOOL>(to.wParam), static_cast<UINT>(to.lParam));
            break;
        case AfxSig_v_b_ptr:
            to.Call<void, BOOL, void*>(static_cast<BOOL>(to.wParam), to.Data());
            break;
        case AfxSig_v_ptr:
            to.Call<void, void*>(to.Data());
            break;
        case AfxSig_v_i_i:
            to.Call<void, int, int>(to.Point().x, to.Point().y);
            break;
        case AfxSig_v_u_i_i:
            to.Call<void, UINT, int, int>(static_cast<UINT>(to.wParam), static_cast<int>(to.LowL()),
                                          static_cast<int>(to.HighL()));
            break;
        case AfxSig_v_u_u_u:
            to.Call<void, UINT, UINT, UINT>(static_cast<UINT>(to.wParam), to.LowL(), to.HighL());
            break;
        case AfxSig_v_u_u_menu:
            to.Call<void, UINT, UINT, HMENU>(to.LowW(), to.HighW(), static_cast<HMENU>(to.Data()));
            break;
        case AfxSig_v_u_pt:
            to.Call<void, UINT, CPoint>(static_cast<UINT>(to.wParam), to.Point());
            break;
        case AfxSig_v_timer:
            to.Call<void, UINT_PTR>(to.wParam);
            break;
        case AfxSig_v_W:
            to.Call<void, CWnd*>(to.WindowW());
            break;
        case AfxSig_v_lW:
            to.Call<void, CWnd*>(to.WindowL());
            break;
        case AfxSig_v_W_pt:
            to.Call<void, CWnd*, CPoint>(to.WindowW(), to.Point());
            break;
        case AfxSig_v_u_W_b:
            to.Call<void, UINT, CWnd*, BOOL>(to.LowW(), to.WindowL(), static_cast<BOOL>(to.HighW()));
            break;
        case AfxSig_v_u_u_bar:
            to.Call<void, UINT, UINT, CScrollBar*>(to.LowW(), to.HighW(),
                                                   static_cast<CScrollBar*>(to.WindowL()));
            break;
        case AfxSig_v_menu_u_b:
            to.Call<void, CMenu*, UINT, BOOL>(CMenu::FromHandle(reinterpret_cast<HMENU>(to.wParam)),
                                              to.LowL(), static_cast<BOOL>(to.HighL()));
            break;
        case AfxSig_v_u_l:
            to.Call<void, UINT, LPARAM>(static_cast<UINT>(to.wParam), to.lParam);
            break;
        case AfxSig_v_u_u:
            to.Call<void, UINT, UINT>(to.LowW(), to.HighW());
            break;
        case AfxSig_v_hdrop:
            to.Call<void, HDROP>(reinterpret_cast<HDROP>(to.wParam));
            break;
        case AfxSig_v_u_input:
            to.Call<void, UINT, HRAWINPUT>(static_cast<UINT>(to.wParam & 0xFF),
                                           static_cast<HRAWINPUT>(to.Data()));
            break;
        case AfxSig_v_u_str:
            to.Call<void, UINT, LPCTSTR>(static_cast<UINT>(to.wParam), static_cast<LPCTSTR>(to.Data()));
            break;
        default:
            return false;
    }
    return Answer(result, 0);
}

/// Calls the handler; false leaves the message to the default handling.
bool Deliver(const Delivery& to, UINT_PTR signature, LRESULT& result) {
    switch (signature) {
        case AfxSig_u:
            return Answer(result, to.Call<UINT>());
        case AfxSig_b:
            return Answer(result, to.Call<BOOL>());
        case AfxSig_b_DC:
            return Answer(result, to.Call<BOOL, CDC*>(to.ContextW()));
        case AfxSig_i_CREATE:
            return Answer(result, to.Call<int, LPCREATESTRUCT>(static_cast<LPCREATESTRUCT>(to.Data())));
        case AfxSig_v_i_ptr:
            to.Call<void, int, void*>(static_cast<int>(to.wParam), to.Data());
            return Answer(result, TRUE);
        case AfxSig_l_pt:
            return Answer(result, to.Call<LRESULT, CPoint>(to.Point()));
        case AfxSig_i_W_u_u:
            return Answer(result, to.Call<int, CWnd*, UINT, UINT>(to.WindowW(), to.LowL(), to.HighL()));
        case AfxSig_b_W_ptr:
            return Answer(result, to.Call<BOOL, CWnd*, void*>(to.WindowW(), to.Data()));
        case AfxSig_l_w_l:
            return Answer(result, to.Call<LRESULT, WPARAM, LPARAM>(to.wParam, to.lParam));
        case AfxSig_b_u_s_pt:
            result =
                to.Call<BOOL, UINT, short, CPoint>(to.LowW(), static_cast<short>(to.HighW()), to.Point());
            return result != 0;
        case AfxSig_h_DC_W_u:
            result = reinterpret_cast<LRESULT>(to.Call<HBRUSH, CDC*, CWnd*, UINT>(
                to.ContextW(), to.WindowL(), to.message - WM_CTLCOLORMSGBOX));
            return result != 0;
        case AfxSig_h_DC_u:
            result = reinterpret_cast<LRESULT>(
                to.Call<HBRUSH, CDC*, UINT>(to.ContextW(), to.message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX));
            return result != 0;
        default:
            return DeliverSimple(to, signature, result);
    }
}

/// The number that stands for the message in message maps: one for all controls' colours, reflected or not.
UINT NumberInMaps(UINT message) {
    const UINT base = message >= WM_REFLECT_BASE ? WM_REFLECT_BASE : 0;
    const bool isColour = message - base >= WM_CTLCOLORMSGBOX && message - base <= WM_CTLCOLORSTATIC;
    return isColour ? base + WM_CTLCOLORMSGBOX : message;
}

/// The entry of a registered message, whose number is known only at run time.
const AFX_MSGMAP_ENTRY* FindRegistered(const AFX_MSGMAP* map, UINT message) {
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (entry->nMessage == 0xC000 && *reinterpret_cast<const UINT*>(entry->nSig) == message)
                return entry;
        }
    }
    return nullptr;
}

}  // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    bool isHandled = false;
    if (message == WM_COMMAND) {
        isHandled = OnCommand(wParam, lParam);
        result = 1;
    } else if (message == WM_NOTIFY) {
        isHandled = reinterpret_cast<NMHDR*>(lParam)->hwndFrom && OnNotify(wParam, lParam, &result);
    } else if (message >= 0xC000) {
        const AFX_MSGMAP_ENTRY* entry = FindRegistered(GetMessageMap(), message);
        isHandled = entry && Deliver({this, entry->pfn, message, wParam, lParam}, AfxSig_l_w_l, result);
    } else {
        const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(GetMessageMap(), NumberInMaps(message), 0, 0);
        isHandled = entry && Deliver({this, entry->pfn, message, wParam, lParam}, entry->nSig, result);
    }
    if (isHandled && pResult)
        *pResult = result;
    return isHandled;
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
