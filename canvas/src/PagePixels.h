// The pixels a page is painted into.
#pragma once

#include "core/Platform.h"

#include <vector>

namespace Lumo {

// A bitmap of the client's size for the length of one paint. Its memory is kept from paint to paint, so that
// painting a small part of a large window neither takes nor clears memory; what a paint shows it has painted
// itself. A paint within a paint gets memory of its own. User-interface thread only.
class PagePixels {
public:
    explicit PagePixels(const CSize& size);
    ~PagePixels();
    PagePixels(const PagePixels&) = delete;
    PagePixels& operator=(const PagePixels&) = delete;

    Gdiplus::Bitmap* Whole() { return &m_whole; }
    // The first pixel of a place on the page and the bytes from row to row, for a bitmap over a part of it.
    BYTE* At(const CPoint& pt) {
        return reinterpret_cast<BYTE*>(m_memory.data()) + ptrdiff_t{pt.y} * Stride() +
               ptrdiff_t{pt.x} * kPixel;
    }
    int Stride() const { return m_size.cx * kPixel; }

private:
    static constexpr int kPixel = 4;

    static std::vector<DWORD> Borrow(const CSize& size);

    CSize m_size;
    std::vector<DWORD> m_memory;
    Gdiplus::Bitmap m_whole;
};

}  // namespace Lumo
