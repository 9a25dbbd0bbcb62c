// The tool buttons at the left of the frame.
#pragma once

#include "core/DrawShape.h"

namespace Studio {

/// Shows one button per tool and sends its command to the parent. Buttons are 40 by 40 pixels from (8, 8) on,
/// one every 44 pixels, in one column, or in two where one is higher than the window; the audio controls
/// begin a row of their own, 9 pixels lower.
class Toolbox : public CWnd {
public:
    /// Width that the buttons need in a window of a height.
    static int WidthFor(int height);

    using CWnd::Create;

    /// Makes the window at the left edge of `parent`.
    bool Create(CWnd& parent);
    /// Shows which tool is current.
    void SetCurrent(Lumo::DrawShape kind);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);

private:
    static int ColumnsFor(int height);
    CRect ButtonRect(int button) const;
    int ButtonAt(CPoint point) const;
    void DrawFace(Gdiplus::Graphics& g, int button) const;
    void SetHot(int button);
    void AddTooltips();

    int m_columns = 1;
    Lumo::DrawShape m_current = Lumo::DS_SELECT;
    int m_hot = -1;
    int m_pressed = -1;
    HWND m_tooltip = nullptr;
};

}  // namespace Studio
