// The panel of symbols beside the toolbox.
#pragma once

#include "studio/document/SymbolLibrary.h"
#include "studio/editing/StudioCanvas.h"

#include <functional>

namespace Studio {

/// Shows the symbols of a folder as small pictures, which are clicked or dragged onto a page; its head
/// chooses the folder. Pictures are made when they are first seen.
class SymbolPanel : public CWnd {
public:
    static constexpr int kWidth = 132;

    using CWnd::Create;

    /// Makes the window as a child of `parent`.
    bool Create(CWnd& parent);
    /// Shows another folder, or the same one anew.
    void ShowFolder(const CString& folder);
    const CString& Folder() const { return m_folder; }
    /// Scrolls by a turn of the mouse wheel.
    void ScrollByWheel(short turn);

    /// Called for a symbol that is clicked (null), or dropped at a point of the screen.
    std::function<void(const CString& path, const CPoint* screen)> onInsert;
    /// Called when the user has chosen a folder.
    std::function<void()> onFolder;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);

private:
    // What is under the pointer: a symbol's index, the folder button, or nothing.
    static constexpr int kNothing = -1;
    static constexpr int kFolderButton = -2;

    struct Entry {
        CString path;
        std::unique_ptr<Gdiplus::Bitmap> picture;  // null until it is seen
    };

    CRect CellRect(int index) const;
    CRect FolderRect() const;
    int PartAt(CPoint point) const;
    void SetHot(int part);
    void ScrollTo(int offset);
    DWORD FaceOf(int part, DWORD plain) const;
    void PaintHead(CDC& dc) const;
    void PaintCell(CDC& dc, int index);
    Gdiplus::Bitmap& PictureOf(Entry& entry);
    void ChooseFolder();

    CString m_folder;
    std::vector<Entry> m_entries;
    int m_offset = 0;
    int m_hot = kNothing;
    int m_pressed = kNothing;
    bool m_dragging = false;
    CPoint m_pressedAt;
};

}  // namespace Studio
