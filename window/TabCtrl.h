// A window with one tab per page.
#pragma once

#include "window/ImageListRotate270.h"
#include "window/TabStyle.h"
#include "window/Timer.h"

#include <memory>
#include <vector>

namespace Lumo {

/// Codes of the notifications (`WM_NOTIFY` with a `TabNotify`) a tab control sends to its parent. They are
/// sent for what the user does, never for calls of the host.
enum TabNotifyCode : UINT {
    TABN_FIRST = 0x5400,         ///< the lowest code
    TABN_CHANGING = TABN_FIRST,  ///< `tab` is about to become current; a result that is not 0 refuses
    TABN_CHANGED,                ///< `tab` has become current
    TABN_MOVE,                   ///< `tab` is about to move to `target`; a result that is not 0 refuses
    TABN_MOVED,                  ///< the tab that was at `tab` is now at `target`
    TABN_BEGINRENAME,            ///< the editor is about to open on `tab`; a result that is not 0 refuses
    TABN_RENAME,                 ///< `tab` is about to get `text`; a result that is not 0 refuses
    TABN_ENDRENAME,              ///< the editor on `tab` has closed, whatever came of it
    TABN_CLOSE,                  ///< the user wants `tab` gone: the host removes it, or does not
    TABN_ADD,                    ///< the user wants another tab
    TABN_MENU,                   ///< the right button asks for a menu at `point`; `tab` is -1 beside the tabs
    TABN_DRAGEND,                ///< a drag is over, whether or not the tab moved
    TABN_LAST = TABN_DRAGEND,    ///< the highest code
};

/// What a notification is about.
struct TabNotify {
    NMHDR hdr;     ///< the control and the code, a `TabNotifyCode`
    int tab;       ///< index of the tab, -1 for none
    int target;    ///< the place it moves to, else -1
    LPCWSTR text;  ///< the new text, else null
    POINT point;   ///< in screen coordinates, for the menu
};

/// Parts of the control under a point.
enum class TabPart {
    kNothing,      ///< the strip, or outside the control
    kTab,          ///< a tab beside its close button
    kClose,        ///< a tab's close button
    kAdd,          ///< the add button
    kScrollLeft,   ///< the button that scrolls towards the first tab, up at the left and right of the pages
    kScrollRight,  ///< the button that scrolls towards the last tab, down at the left and right
};

/// A strip of tabs at any side of the pages that its host shows. Tabs can be chosen with the mouse, the
/// arrows, Home and End; dragged to another place (Escape ends the drag); renamed by a double click or F2;
/// closed by a button, the middle button or Del; scrolled by two buttons and the wheel when they do not fit.
/// The pages are the host's affair. Indices start with 0. Sizes follow the scale of the window's monitor.
class TESSEL_API TabCtrl : public CWnd {
    DECLARE_DYNAMIC(TabCtrl)

public:
    TabCtrl();
    ~TabCtrl() override;
    TabCtrl(const TabCtrl&) = delete;
    TabCtrl& operator=(const TabCtrl&) = delete;

    using CWnd::Create;

    /// Makes the window as a child of `parent`; `rect` is in its client coordinates. With `WS_TABSTOP` in
    /// `style` a click gives the control the keyboard. `id` is the control's number in its notifications.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    /// Changes the look; null gives the flat style in light colours. The control owns the style.
    void SetStyle(std::unique_ptr<TabStyle> style);
    /// The style in use; valid until the next `SetStyle`.
    const TabStyle& Style() const { return *m_style; }
    /// The thickness of the strip that the style wants, its width at the left and right.
    int GetHeight() const { return m_style->Height(); }
    /// Paints at `dpi` dots per inch, 96 being 100 %; 0, as at the start, takes the window's own.
    void SetDpi(int dpi);
    /// On which side of the pages the control is; above at the start.
    void SetSide(TabSide side);
    /// With `shown` the window has the pages in it: the strip is `GetHeight` thick, and the style paints its
    /// frame around the rest. Without, as at the start, the strip is the whole window.
    void SetPageFrame(bool shown);
    /// Where the pages go within the frame, in client coordinates: the host puts its windows there, children
    /// of the control or on top of it. Empty without a frame.
    CRect GetPageRect() const;
    /// Shows pictures of `list`, which outlives the control or the next call, on the tabs; null for none. At
    /// the left and right they are turned with the texts.
    void SetImages(HIMAGELIST list);
    /// Shows a close button on every tab; none at the start.
    void SetCloseButtons(bool shown);
    /// Shows an add button behind the last tab; none at the start.
    void SetAddButton(bool shown);
    /// Lets the user drag tabs to other places; not at the start.
    void SetReorder(bool allowed) { m_reorder = allowed; }
    /// Lets the user rename tabs; not at the start.
    void SetRename(bool allowed) { m_rename = allowed; }

    /// Puts a tab behind the last one; `data` is the host's. Its index; the first tab becomes current. `text`
    /// may be null.
    int AddTab(LPCWSTR text, DWORD_PTR data = 0);
    /// Puts a tab with `text` and `data` in front of the one at `index` (clamped to the ends). Its index.
    int InsertTab(int index, LPCWSTR text, DWORD_PTR data = 0);
    /// Removes a tab; when it was current its right neighbour becomes so, or else the left one. False for an
    /// index that is none.
    bool RemoveTab(int index);
    /// Removes all tabs; none is current then.
    void RemoveAllTabs();
    /// Moves the tab at `from` so that it has the index `to` afterwards. False for indices that are none.
    bool MoveTab(int from, int to);

    /// Number of tabs.
    int GetTabCount() const { return static_cast<int>(m_tabs.size()); }
    /// The text of a tab, empty for an index that is none.
    CString GetTabText(int index) const;
    /// Changes the text of a tab to `text`; null empties it. False for an index that is none.
    bool SetTabText(int index, LPCWSTR text);
    /// The host's value of a tab, 0 for an index that is none.
    DWORD_PTR GetTabData(int index) const;
    /// Changes the host's value of a tab to `data`. False for an index that is none.
    bool SetTabData(int index, DWORD_PTR data);
    /// The number of a tab's picture, -1 for none.
    int GetTabImage(int index) const { return IsTab(index) ? m_tabs[index].image : -1; }
    /// Shows the picture `image` of the list on a tab; -1 for none. False for an index that is none.
    bool SetTabImage(int index, int image);

    /// The current tab, -1 when there are none.
    int GetCurrent() const { return m_current; }
    /// Makes a tab current and scrolls it into view. False for an index that is none.
    bool SetCurrent(int index);
    /// The tab under the pointer, or -1.
    int GetHover() const {
        return m_hot.part == TabPart::kTab || m_hot.part == TabPart::kClose ? m_hot.tab : -1;
    }
    /// Scrolls so that a tab is seen whole, as far as it fits.
    void EnsureVisible(int index);
    /// Where a tab is shown, in client coordinates; may lie outside the visible strip. Empty for an index
    /// that is none.
    CRect GetTabRect(int index) const;
    /// Where `part` is: the tab at `index`, its close button, the add button or a scroll button; empty when
    /// it is not shown.
    CRect GetPartRect(TabPart part, int index = -1) const;
    /// What is under a point (client coordinates); `tab` (may be null) gets the tab there, or -1.
    TabPart HitTest(CPoint point, int* tab = nullptr) const;
    /// Whether there are more tabs than fit.
    bool IsScrolling() const { return m_scrolling; }

    /// Opens the editor on a tab; false when renaming is not allowed or refused.
    bool BeginRename(int index);
    /// Closes an open editor, and renames when `accept`.
    void EndRename(bool accept);
    /// Whether the editor is open.
    bool IsRenaming() const { return m_edit != nullptr; }
    /// Whether the user is dragging a tab.
    bool IsDragging() const { return m_dragging; }

    /// Ends a drag with Escape before the host's accelerators get the key.
    BOOL PreTranslateMessage(MSG* msg) override;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnEditorLeft(WPARAM, LPARAM editor);
    afx_msg LRESULT OnDpiChanged(WPARAM, LPARAM);

private:
    class Editor;
    friend class Editor;

    struct Tab {
        CString text;
        DWORD_PTR data;
        int image = -1;
        int left = 0;  // along the strip from the first tab on, before scrolling
        int width = 0;
    };
    struct Place {
        TabPart part = TabPart::kNothing;
        int tab = -1;
        bool operator==(const Place&) const = default;
    };

    bool IsTab(int index) const { return index >= 0 && index < GetTabCount(); }
    bool IsUpright() const { return m_side == TabSide::kLeft || m_side == TabSide::kRight; }
    void ApplyDpi();
    void TurnImages();
    void Changed();
    void Arrange();
    CRect StripRect() const;
    int StripLength() const;
    int Along(CPoint point) const;
    CRect Cell(int from, int to) const;
    CRect ButtonRect(int from) const;
    CRect CloseRect(const CRect& tab) const;
    CRect EditorRect(int index) const;
    int ImageLength(int index) const;
    int VisibleLength() const;
    int ContentLength() const;
    int AddLeft() const;
    void ScrollTo(int offset);
    Place PlaceAt(CPoint point) const;
    void SetHot(Place hot);

    LRESULT Notify(TabNotifyCode code, int tab, int target = -1, LPCWSTR text = nullptr,
                   CPoint at = CPoint());
    void Choose(int index);
    void CloseTab(int index);

    bool PassesThreshold(CPoint point) const;
    void BeginDrag();
    void Drag(CPoint point);
    void ScrollWhileDragging();
    void Drop();
    void EndDrag();
    int DropIndexAt(int along) const;
    int DropMark() const;
    void StartScrolling(TabPart part);
    void StepScroll(TabPart part);

    void PaintStrip(CDC& dc) const;
    void PaintTab(CDC& dc, int index) const;
    void PaintImage(CDC& dc, int image, CRect& left) const;
    void PaintText(CDC& dc, int index, const CRect& bounds, const TabState& state) const;
    TabState SignState(TabPart part, int tab = -1) const;
    bool IsScrollEnd(TabPart part) const;

    std::unique_ptr<TabStyle> m_style;
    TabSide m_side = TabSide::kAbove;
    int m_dpi = 0;
    bool m_pageFrame = false;
    HIMAGELIST m_images = nullptr;
    ImageListRotate270 m_turned;
    bool m_closeButtons = false;
    bool m_addButton = false;
    bool m_reorder = false;
    bool m_rename = false;

    std::vector<Tab> m_tabs;
    int m_current = -1;
    int m_offset = 0;
    bool m_scrolling = false;

    Place m_hot;
    Place m_pressed;
    CPoint m_pressedAt;
    bool m_dragging = false;
    int m_dropIndex = -1;
    HWND m_focusBefore = nullptr;
    Timer m_scrollTimer;

    std::unique_ptr<Editor> m_edit;
    int m_renamed = -1;
};

}  // namespace Lumo
