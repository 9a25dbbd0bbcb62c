// Moves several windows in one step.
#pragma once

#include "core/Platform.h"

#include <vector>

namespace Lumo {

/// Collects where the children of one parent go and moves all of them at once when it ends, so that no step
/// in between is seen. A window that is there already is not touched.
class TESSEL_API DeferWindow {
public:
    DeferWindow() = default;
    /// Moves what was collected.
    ~DeferWindow();
    DeferWindow(const DeferWindow&) = delete;
    DeferWindow& operator=(const DeferWindow&) = delete;

    /// Puts `window` at `rect` (client coordinates of its parent; an empty one makes it empty). A window
    /// that does not exist is left out.
    void Move(CWnd& window, const CRect& rect);
    /// As `Move`, and shows `window`.
    void Show(CWnd& window, const CRect& rect);
    /// Hides `window` where it is.
    void Hide(CWnd& window);

private:
    struct Place {
        HWND window;
        CRect rect;
        UINT flags;
    };
    void Add(CWnd& window, const CRect& rect, UINT flags);
    bool MoveTogether() const;
    void MoveOneByOne() const;

    std::vector<Place> m_places;
};

}  // namespace Lumo
