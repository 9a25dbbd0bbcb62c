// Command targets: message map tables, CCmdTarget and CCmdUI. Included by afxwin.h.
#pragma once

#include <afx.h>

#include <bit>

class CCmdTarget;
class CMenu;
class CWnd;

/// The form in which a message map keeps every handler; the entry's signature tells what it really is.
using AFX_PMSG = void (CCmdTarget::*)();

/// Turns a type-checked handler into the form kept in a message map.
template <class Handler>
inline AFX_PMSG AfxMessageHandler(Handler handler) noexcept {
    return std::bit_cast<AFX_PMSG>(handler);
}

/// What a handler takes and returns; named after return value and arguments.
enum AfxSig : UINT_PTR {
    AfxSig_end = 0,
    AfxSig_v,            ///< void ()
    AfxSig_u,            ///< UINT ()
    AfxSig_b,            ///< BOOL ()
    AfxSig_b_DC,         ///< BOOL (CDC*)
    AfxSig_i_CREATE,     ///< int (LPCREATESTRUCT)
    AfxSig_v_b,          ///< void (BOOL)
    AfxSig_v_b_u,        ///< void (BOOL, UINT)
    AfxSig_v_b_ptr,      ///< void (BOOL, void*): WM_NCCALCSIZE
    AfxSig_v_ptr,        ///< void (void*): a structure in lParam
    AfxSig_v_i_i,        ///< void (int, int): WM_MOVE
    AfxSig_v_i_ptr,      ///< void (int, void*): WM_DRAWITEM, WM_MEASUREITEM
    AfxSig_v_u_i_i,      ///< void (UINT, int, int): WM_SIZE
    AfxSig_v_u_u_u,      ///< void (UINT, UINT, UINT): keys
    AfxSig_v_u_u_menu,   ///< void (UINT, UINT, HMENU): WM_MENUSELECT
    AfxSig_v_u_pt,       ///< void (UINT, CPoint): mouse
    AfxSig_b_u_s_pt,     ///< BOOL (UINT, short, CPoint): wheel
    AfxSig_l_pt,         ///< LRESULT (CPoint): WM_NCHITTEST
    AfxSig_v_timer,      ///< void (UINT_PTR)
    AfxSig_v_W,          ///< void (CWnd*), window in wParam
    AfxSig_v_lW,         ///< void (CWnd*), window in lParam
    AfxSig_v_W_pt,       ///< void (CWnd*, CPoint): WM_CONTEXTMENU
    AfxSig_i_W_u_u,      ///< int (CWnd*, UINT, UINT): WM_SETCURSOR, WM_MOUSEACTIVATE
    AfxSig_b_W_ptr,      ///< BOOL (CWnd*, void*): WM_COPYDATA
    AfxSig_v_u_W_b,      ///< void (UINT, CWnd*, BOOL): WM_ACTIVATE
    AfxSig_v_u_u_bar,    ///< void (UINT, UINT, CScrollBar*)
    AfxSig_v_menu_u_b,   ///< void (CMenu*, UINT, BOOL): WM_INITMENUPOPUP
    AfxSig_h_DC_W_u,     ///< HBRUSH (CDC*, CWnd*, UINT): WM_CTLCOLOR...
    AfxSig_v_hdrop,      ///< void (HDROP)
    AfxSig_v_u_input,    ///< void (UINT, HRAWINPUT)
    AfxSig_v_u_str,      ///< void (UINT, LPCTSTR): WM_SETTINGCHANGE
    AfxSig_v_u_l,        ///< void (UINT, LPARAM): WM_SYSCOMMAND
    AfxSig_v_u_u,        ///< void (UINT, UINT): reflected scrolling
    AfxSig_h_DC_u,       ///< HBRUSH (CDC*, UINT): reflected WM_CTLCOLOR...
    AfxSig_l_w_l,        ///< LRESULT (WPARAM, LPARAM): ON_MESSAGE
    AfxSigCmd_v,         ///< void ()
    AfxSigCmd_RANGE,     ///< void (UINT)
    AfxSigCmd_EX,        ///< BOOL (UINT)
    AfxSigCmd_b,         ///< BOOL ()
    AfxSigNotify_v,      ///< void (NMHDR*, LRESULT*)
    AfxSigNotify_b,      ///< BOOL (NMHDR*, LRESULT*)
    AfxSigNotify_RANGE,  ///< void (UINT, NMHDR*, LRESULT*)
    AfxSigCmdUI,         ///< void (CCmdUI*)
};

/// One line of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;  ///< windows message, WM_COMMAND for commands, 0xC000 for a registered message
    UINT nCode;     ///< control or notification code, 0 for a window message
    UINT nID;       ///< first control or command identifier
    UINT nLastID;   ///< last identifier of a range
    UINT_PTR nSig;  ///< AfxSig value, or for a registered message the address of its number
    AFX_PMSG pfn;   ///< the handler
};

/// A class's message map and the way to its base's.
struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/// Tells who would handle a command (OnCmdMsg fills it instead of calling the handler).
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

#define DECLARE_MESSAGE_MAP()                            \
protected:                                               \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {      \
        return GetThisMessageMap();                          \
    }                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() { \
        using ThisClass [[maybe_unused]] = theClass;         \
        using TheBaseClass = baseClass;                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {
#define END_MESSAGE_MAP()                                                                         \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                           \
    }                                                                                             \
    ;                                                                                             \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]}; \
    return &messageMap;                                                                           \
    }

/// Command codes of OnCmdMsg besides the notification codes of controls.
const int CN_COMMAND = 0;
const int CN_UPDATE_COMMAND_UI = -1;

class CCmdUI;

/// Base of everything that handles commands: message map search, wait cursor, and the reference count
/// that OLE objects built on it use.
class AFX_CLASS_EXPORT CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Offers a command (code CN_COMMAND), its user-interface update or a control notification to the
    /// message maps of this object; true when a handler took it. With pHandlerInfo nothing is called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// Called when the reference count falls to 0; destroys the object unless overridden.
    virtual void OnFinalRelease();

    /// Show the wait cursor, take it away again, show it again after something else changed the cursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    /// Reference count for OLE objects: starts at 1; both return the new count.
    DWORD InternalAddRef();
    DWORD InternalRelease();

protected:
    virtual const AFX_MSGMAP* GetMessageMap() const;
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();

    LONG m_dwRef = 1;
};

/// Passed to ON_UPDATE_COMMAND_UI handlers: the menu item or control that shows a command.
class AFX_CLASS_EXPORT CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;               ///< command identifier
    UINT m_nIndex = 0;            ///< position in the menu or pane number
    CMenu* m_pMenu = nullptr;     ///< menu that holds the item, or null
    CMenu* m_pSubMenu = nullptr;  ///< popup below the item, or null
    CWnd* m_pOther = nullptr;     ///< control or bar, when it is no menu
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0;  ///< number of items or panes

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);  ///< 0 off, 1 on, 2 undetermined (shown as on in menus)
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// Passes the update on to the handlers that would otherwise come after this one.
    void ContinueRouting();
    /// Asks pTarget's handlers; an item without command handler is greyed when asked for.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

/// Shows the wait cursor for as long as the object lives.
class AFX_CLASS_EXPORT CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    void Restore();  ///< shows it again after something else changed the cursor
};
