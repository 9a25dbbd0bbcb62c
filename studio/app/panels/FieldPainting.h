// How the fields of the property panel look.
#pragma once

#include "studio/app/Painting.h"

namespace Studio {

/// An ARGB colour without its alpha.
COLORREF ToColorRef(DWORD argb);

/// Paints a window's client area in one piece, with plain GDI. Lives for the length of a paint message.
class BufferedDC {
public:
    explicit BufferedDC(CWnd& window);
    ~BufferedDC();
    BufferedDC(const BufferedDC&) = delete;
    BufferedDC& operator=(const BufferedDC&) = delete;

    /// Where to paint, with the font of bars and transparent text.
    CDC& Dc() { return m_dc; }
    const CRect& Client() const { return m_client; }

private:
    CPaintDC m_paint;
    CDC m_dc;
    CBitmap m_bitmap;
    CRect m_client;
    int m_saved;
};

enum class FrameLook { kNormal, kDisabled, kFocused, kRefused };

/// Ground and edge of a field.
void PaintFrame(CDC& dc, const CRect& rect, FrameLook look);

/// Colour and brush of a field's ground; the brush belongs to the program.
COLORREF GroundColor(bool enabled);
HBRUSH GroundBrush(bool enabled);

/// Text on one line in a rectangle, in the middle of its height.
void PaintText(CDC& dc, const CString& text, CRect rect, DWORD color, UINT align = DT_LEFT);

/// A small triangle about `centre`, pointing down, up or to the right.
enum class ArrowLook { kDown, kUp, kRight };
void PaintArrow(CDC& dc, CPoint centre, ArrowLook look, DWORD color);

/// The font of a heading; it belongs to the program.
HFONT HeadingFont();

}  // namespace Studio
