// Bars and the small structures that frames and views pass around.
#pragma once

#include <afxwin.h>

struct CRuntimeClass;

/// What a page is printed with; passed to OnPrepareDC and OnPrint, null on the screen.
struct AFX_CLASS_EXPORT CPrintInfo {
    BOOL m_bPreview = FALSE;
    BOOL m_bContinuePrinting = TRUE;
    UINT m_nCurPage = 1;  ///< the page being printed, from 1
    UINT m_nNumPreviewPages = 0;
    LPVOID m_lpUserData = nullptr;
    CRect m_rectDraw;  ///< the usable area of the page, logical units
};

/// What a frame is created for.
struct AFX_CLASS_EXPORT CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr;
    CFrameWnd* m_pCurrentFrame = nullptr;
};

/// A bar along an edge of its frame; takes its strip when the frame lays itself out.
class AFX_CLASS_EXPORT CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    DWORD m_dwStyle = 0;  ///< CBRS_ bits: the edge the bar lies along

    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    BOOL IsVisible() const { return (GetStyle() & WS_VISIBLE) != 0; }
    /// Size along the frame's edge; only the one across it counts.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) = 0;
    /// Called at idle time: asks the handlers about everything the bar shows.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

protected:
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_LEFT CBRS_ALIGN_LEFT
#define CBRS_TOP CBRS_ALIGN_TOP
#define CBRS_RIGHT CBRS_ALIGN_RIGHT
#define CBRS_BOTTOM CBRS_ALIGN_BOTTOM

/// Pane styles of CStatusBar.
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000
#define SBPS_STRETCH 0x08000000

/// The status bar: panes with identifiers, the first of which usually stretches.
class AFX_CLASS_EXPORT CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    CStatusBar();
    ~CStatusBar() override;

    using CWnd::Create;
    BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                UINT nID = AFX_IDW_STATUS_BAR);
    /// Makes one pane per identifier, with its string resource as text and measure; the first stretches when
    /// it is ID_SEPARATOR.
    BOOL SetIndicators(const UINT* lpIDArray, int nIDCount);
    /// Style (SBPS_) and width in pixels, without borders, of a pane; false when there is no such pane.
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    void GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const;
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    CString GetPaneText(int nIndex) const;   ///< empty when there is no such pane
    int CommandToIndex(UINT nIDFind) const;  ///< position of a pane, -1 for none
    UINT GetItemID(int nIndex) const;        ///< identifier of a pane, 0 for none
    int GetCount() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    struct Pane;
    Pane* FindPane(int index) const;
    void LayOut();

    Pane* m_pPanes = nullptr;
    int m_nPanes = 0;
};
