// Choosing where a picture goes.
#pragma once

#include "studio/editing/Gesture.h"
#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// Shows a band from the press to the pointer and asks the host for a picture at its end; the select tool is
/// active afterwards.
class PictureGesture : public Gesture {
public:
    PictureGesture(StudioCanvas& page, CPoint down);
    void Move(CPoint at, UINT flags) override;
    bool Release(CPoint at, UINT flags) override;
    void Cancel() override;

private:
    StudioCanvas& m_page;
    const CPoint m_down;
};

}  // namespace Studio
