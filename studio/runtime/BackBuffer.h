// A page's pixels while it runs.
#pragma once

#include "core/Platform.h"

#include <functional>
#include <memory>

namespace Studio {

/// Keeps the whole picture of a window, so that a change costs its own pixels only and an uncovered part
/// costs a copy.
class BackBuffer {
public:
    BackBuffer() = default;
    ~BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    /// Makes it fit; true when it is new and has to be painted whole.
    bool Fit(CSize size);
    /// Paints one rectangle over `ground`, a buffer of the same size, or over black (null); `draw` draws in
    /// page units, of which `origin` is the buffer's corner, clipped to it.
    void Paint(const CRect& part, CPoint origin, const BackBuffer* ground,
               const std::function<void(Gdiplus::Graphics&)>& draw);
    /// Copies a rectangle to a device context of the window.
    void Show(HDC dc, const CRect& part) const;

    CSize Size() const { return m_size; }

private:
    void Drop();

    CSize m_size;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    // Over the same pixels: the graphics library is faster on its own bitmaps than on a device context.
    std::unique_ptr<Gdiplus::Bitmap> m_wrapper;
};

}  // namespace Studio
