// A canvas's device context with the mapping of its page.
#pragma once

#include "canvas/UICanvas.h"

namespace Lumo {

/// Converts between client pixels and page units for as long as it lives.
class MappedDC : public CClientDC {
public:
    explicit MappedDC(CUICanvas* canvas) : CClientDC(canvas) { canvas->OnPrepareDC(this, nullptr); }

    /// Client pixels to page units, normalised.
    void ToDoc(CRect& rect) const {
        DPtoLP(&rect);
        rect.NormalizeRect();
    }
    /// Page units to client pixels, normalised.
    void ToClient(CRect& rect) const {
        LPtoDP(&rect);
        rect.NormalizeRect();
    }
};

}  // namespace Lumo
