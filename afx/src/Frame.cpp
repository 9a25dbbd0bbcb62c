#include <afxext.h>

#include "CommandMessages.h"

#include <vector>

struct CFrameWnd::ModalState {
    std::vector<HWND> disabled;

    static BOOL CALLBACK Disable(HWND window, LPARAM state) {
        if (::IsWindowVisible(window) && ::IsWindowEnabled(window)) {
            ::EnableWindow(window, FALSE);
            reinterpret_cast<ModalState*>(state)->disabled.push_back(window);
        }
        return TRUE;
    }
};

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_INITMENUPOPUP()
    ON_WM_SIZE()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

const RECT CFrameWnd::rectDefault = {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

CFrameWnd::CFrameWnd() = default;

CFrameWnd::~CFrameWnd() {
    delete m_pModalState;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName) {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    bool placesItself = rect.left == CW_USEDEFAULT;
    int width = placesItself ? CW_USEDEFAULT : rect.right - rect.left;
    int height = placesItself ? CW_USEDEFAULT : rect.bottom - rect.top;
    BOOL isCreated = CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width,
                              height, pParentWnd ? pParentWnd->m_hWnd : nullptr, menu, pContext);
    if (!isCreated && menu)
        ::DestroyMenu(menu);
    return isCreated;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1),
                                           ::LoadIcon(nullptr, IDI_APPLICATION));
    return CWnd::PreCreateWindow(cs);
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    m_hAccelTable =
        ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return isKey && m_hAccelTable && ::TranslateAccelerator(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* program = AfxGetApp();
    return program && program->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

void CFrameWnd::OnDestroy() {
    while (InModalState())
        EndModalState();
    Default();
}

namespace {

/// A popup in a menu shows what its first item is about.
UINT FirstItemOf(CMenu* popup) {
    UINT id = popup->GetMenuItemID(0);
    return id == static_cast<UINT>(-1) ? 0 : id;
}

}  // namespace

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT, BOOL bSysMenu) {
    if (bSysMenu || !pMenu) {
        Default();
        return;
    }
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_nIndexMax = pMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        int position = static_cast<int>(state.m_nIndex);
        state.m_nID = pMenu->GetMenuItemID(position);
        bool isPopup = state.m_nID == static_cast<UINT>(-1);
        state.m_pSubMenu = isPopup ? pMenu->GetSubMenu(position) : nullptr;
        if (isPopup && state.m_pSubMenu)
            state.m_nID = FirstItemOf(state.m_pSubMenu);
        if (state.m_nID != 0)
            state.DoUpdate(this, m_bAutoMenuEnable && !isPopup && state.m_nID < 0xF000);
        // A handler may have added or removed items, as lists of recent files do.
        UINT count = pMenu->GetMenuItemCount();
        if (count != static_cast<UINT>(-1)) {
            state.m_nIndex += count - state.m_nIndexMax;
            state.m_nIndexMax = count;
        }
    }
}

void CFrameWnd::OnSize(UINT nType, int, int) {
    Default();
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM) {
    return 0;
}

void CFrameWnd::RecalcLayout(BOOL) {
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    CWnd* bar = GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
    if (auto* status = DYNAMIC_DOWNCAST(CStatusBar, bar))
        status->SetPaneText(0, lpszText ? lpszText : _T(""));
}

void CFrameWnd::BeginModalState() {
    if (m_cModalStack++ > 0)
        return;
    delete m_pModalState;
    m_pModalState = new ModalState;
    ::EnumThreadWindows(::GetCurrentThreadId(), &ModalState::Disable,
                        reinterpret_cast<LPARAM>(m_pModalState));
}

void CFrameWnd::EndModalState() {
    if (m_cModalStack == 0 || --m_cModalStack > 0)
        return;
    for (HWND window : m_pModalState->disabled) {
        if (::IsWindow(window))
            ::EnableWindow(window, TRUE);
    }
    delete m_pModalState;
    m_pModalState = nullptr;
}
