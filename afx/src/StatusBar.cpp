#include <afxext.h>

#include <commctrl.h>

#include <algorithm>
#include <vector>

struct CStatusBar::Pane {
    UINT id = 0;
    UINT style = 0;
    int width = 0;
    CString text;
};

namespace {

constexpr int paneGap = 8;  // borders and space between two panes, pixels

/// What handlers of ON_UPDATE_COMMAND_UI do to a pane.
class PaneUI : public CCmdUI {
public:
    explicit PaneUI(CStatusBar& bar) : m_bar(bar) {}
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        SetStyle(SBPS_DISABLED, !bOn);
    }
    void SetCheck(int nCheck) override { SetStyle(SBPS_POPOUT, nCheck != 0); }
    void SetRadio(BOOL bOn) override { SetCheck(bOn); }
    void SetText(LPCTSTR lpszText) override { m_bar.SetPaneText(Index(), lpszText); }

private:
    int Index() const { return static_cast<int>(m_nIndex); }
    void SetStyle(UINT bit, bool isOn) {
        UINT id;
        UINT style;
        int width;
        m_bar.GetPaneInfo(Index(), id, style, width);
        UINT wanted = isOn ? style | bit : style & ~bit;
        if (wanted != style)
            m_bar.SetPaneInfo(Index(), id, wanted, width);
    }

    CStatusBar& m_bar;
};

/// Width of a text in the bar's font, pixels.
int TextWidth(CWnd& bar, const CString& text) {
    CClientDC dc(&bar);
    CFont* before = dc.SelectObject(bar.GetFont());
    int width = dc.GetTextExtent(text).cx;
    dc.SelectObject(before);
    return width;
}

}  // namespace

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CStatusBar::CStatusBar() = default;

CStatusBar::~CStatusBar() {
    delete[] m_pPanes;
}

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    static const bool isReady = [] {
        INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_BAR_CLASSES};
        return ::InitCommonControlsEx(&classes) != FALSE;
    }();
    if (!isReady)
        return FALSE;
    m_dwStyle = dwStyle & 0xFFFF;
    // The frame places the bar, so the control must not do it itself.
    DWORD style = (dwStyle & 0xFFFF0000) | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    if (pParentWnd->GetStyle() & WS_THICKFRAME)
        style |= SBARS_SIZEGRIP;
    return CWnd::Create(STATUSCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID);
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 1 || nIDCount > 255)
        return FALSE;
    delete[] m_pPanes;
    m_pPanes = new Pane[static_cast<size_t>(nIDCount)];
    m_nPanes = nIDCount;
    for (int i = 0; i < nIDCount; ++i) {
        Pane& pane = m_pPanes[i];
        pane.id = lpIDArray ? lpIDArray[i] : ID_SEPARATOR;
        if (pane.id != ID_SEPARATOR)
            pane.text.LoadString(pane.id);
        pane.width = TextWidth(*this, pane.text);
        if (i == 0 && pane.id == ID_SEPARATOR) {
            pane.style = SBPS_STRETCH | SBPS_NOBORDERS;
            pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        }
    }
    LayOut();
    for (int i = 0; i < m_nPanes; ++i)
        SetPaneText(i, CString(m_pPanes[i].text));
    return TRUE;
}

CStatusBar::Pane* CStatusBar::FindPane(int index) const {
    return index >= 0 && index < m_nPanes ? &m_pPanes[index] : nullptr;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    Pane* pane = FindPane(nIndex);
    if (!pane)
        return;
    bool isMoved = cxWidth != pane->width || ((nStyle ^ pane->style) & SBPS_STRETCH);
    pane->id = nID;
    pane->style = nStyle;
    pane->width = cxWidth;
    if (isMoved)
        LayOut();
    SetPaneText(nIndex, CString(pane->text));
}

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const Pane none;
    const Pane* found = FindPane(nIndex);
    const Pane& pane = found ? *found : none;
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    Pane* pane = FindPane(nIndex);
    if (!pane)
        return FALSE;
    pane->text = lpszNewText;
    if (!bUpdate || !m_hWnd)
        return TRUE;
    bool isShown = !(pane->style & SBPS_DISABLED);
    UINT border = pane->style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    CString shown = isShown ? pane->text : CString();
    return static_cast<BOOL>(SendMessage(SB_SETTEXT, static_cast<WPARAM>(nIndex) | border,
                                         reinterpret_cast<LPARAM>(static_cast<LPCTSTR>(shown))));
}

CString CStatusBar::GetPaneText(int nIndex) const {
    const Pane* pane = FindPane(nIndex);
    return pane ? pane->text : CString();
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    for (int i = 0; i < m_nPanes; ++i) {
        if (m_pPanes[i].id == nIDFind)
            return i;
    }
    return -1;
}

UINT CStatusBar::GetItemID(int nIndex) const {
    const Pane* pane = FindPane(nIndex);
    return pane ? pane->id : 0;
}

int CStatusBar::GetCount() const {
    return m_nPanes;
}

/// Gives every pane its width and the stretching ones what is left.
void CStatusBar::LayOut() {
    if (!m_hWnd || m_nPanes == 0)
        return;
    CRect client;
    GetClientRect(&client);
    int left = client.Width();
    int stretching = 0;
    for (int i = 0; i < m_nPanes; ++i) {
        bool stretches = m_pPanes[i].style & SBPS_STRETCH;
        stretching += stretches;
        left -= paneGap + (stretches ? 0 : m_pPanes[i].width);
    }
    int share = stretching ? std::max(left, 0) / stretching : 0;
    std::vector<int> ends(static_cast<size_t>(m_nPanes));
    int end = 0;
    for (int i = 0; i < m_nPanes; ++i) {
        bool stretches = m_pPanes[i].style & SBPS_STRETCH;
        end += paneGap + (stretches ? share : m_pPanes[i].width);
        ends[static_cast<size_t>(i)] = end;
    }
    SendMessage(SB_SETPARTS, static_cast<WPARAM>(m_nPanes), reinterpret_cast<LPARAM>(ends.data()));
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL) {
    TEXTMETRIC metrics{};
    CClientDC dc(this);
    CFont* before = dc.SelectObject(GetFont());
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(before);
    return CSize(32767, metrics.tmHeight + 8);
}

void CStatusBar::OnSize(UINT, int, int) {
    Default();
    LayOut();
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    PaneUI state(*this);
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_nPanes);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = GetItemID(static_cast<int>(state.m_nIndex));
        bool isIndicator = state.m_nID >= ID_INDICATOR_CAPS && state.m_nID <= ID_INDICATOR_SCRL;
        state.DoUpdate(pTarget, bDisableIfNoHndler && isIndicator);
    }
}
