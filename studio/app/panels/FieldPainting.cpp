#include "studio/app/panels/FieldPainting.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr DWORD kGround = 0xFFFFFFFF;
constexpr DWORD kRefusedEdge = 0xFFD23B3B;

}  // namespace

COLORREF ToColorRef(DWORD argb) {
    return RGB(argb >> 16 & 0xFF, argb >> 8 & 0xFF, argb & 0xFF);
}

BufferedDC::BufferedDC(CWnd& window) : m_paint(&window) {
    window.GetClientRect(m_client);
    m_dc.CreateCompatibleDC(&m_paint);
    m_bitmap.CreateCompatibleBitmap(&m_paint, std::max<int>(m_client.Width(), 1),
                                    std::max<int>(m_client.Height(), 1));
    m_saved = m_dc.SaveDC();
    m_dc.SelectObject(&m_bitmap);
    ::SelectObject(m_dc, BarFont());
    m_dc.SetBkMode(TRANSPARENT);
}

BufferedDC::~BufferedDC() {
    const CRect& rect = m_paint.m_ps.rcPaint;
    m_paint.BitBlt(rect.left, rect.top, rect.Width(), rect.Height(), &m_dc, rect.left, rect.top, SRCCOPY);
    m_dc.RestoreDC(m_saved);
}

void PaintFrame(CDC& dc, const CRect& rect, FrameLook look) {
    const DWORD edge = look == FrameLook::kRefused   ? kRefusedEdge
                       : look == FrameLook::kFocused ? Palette::kAccent
                                                     : Palette::kEdge;
    dc.FillSolidRect(rect, ToColorRef(edge));
    CRect inner = rect;
    inner.DeflateRect(1, 1);
    dc.FillSolidRect(inner, GroundColor(look != FrameLook::kDisabled));
}

COLORREF GroundColor(bool enabled) {
    return ToColorRef(enabled ? kGround : Palette::kBar);
}

HBRUSH GroundBrush(bool enabled) {
    static CBrush brushes[2];
    CBrush& brush = brushes[enabled ? 1 : 0];
    if (!brush.m_hObject)
        brush.CreateSolidBrush(GroundColor(enabled));
    return brush;
}

void PaintText(CDC& dc, const CString& text, CRect rect, DWORD color, UINT align) {
    dc.SetTextColor(ToColorRef(color));
    dc.DrawText(text, rect, align | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void PaintArrow(CDC& dc, CPoint centre, ArrowLook look, DWORD color) {
    constexpr int kRows = 4;
    for (int row = 0; row < kRows; ++row) {
        const int half = look == ArrowLook::kUp ? row : kRows - 1 - row;
        if (look == ArrowLook::kRight)
            dc.FillSolidRect(centre.x - 2 + row, centre.y - half, 1, 2 * half + 1, ToColorRef(color));
        else
            dc.FillSolidRect(centre.x - half, centre.y - 2 + row, 2 * half + 1, 1, ToColorRef(color));
    }
}

HFONT HeadingFont() {
    static CFont font;
    if (!font.m_hObject) {
        LOGFONT look = {};
        ::GetObject(BarFont(), sizeof look, &look);
        look.lfWeight = FW_BOLD;
        font.CreateFontIndirect(&look);
    }
    return font;
}

}  // namespace Studio
