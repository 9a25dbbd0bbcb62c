// The column of tool buttons at the left of the frame.
#pragma once

#include "core/DrawShape.h"

#include <optional>

namespace Studio {

/// Shows one button per tool and sends its command to the parent. Buttons stand at fixed places: 40 by 40
/// pixels from (8, 8) on, one every 44 pixels; the audio controls
/// stand 9 pixels lower.
class Toolbox : public CWnd {
public:
    static constexpr int kWidth = 56;

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

private:
    static CRect ButtonRect(int button);
    static int ButtonAt(CPoint point);
    void DrawFace(Gdiplus::Graphics& g, int button) const;
    void SetHot(int button);
    void AddTooltips();

    Lumo::DrawShape m_current = Lumo::DS_SELECT;
    int m_hot = -1;
    int m_pressed = -1;
    HWND m_tooltip = nullptr;
};

}  // namespace Studio
