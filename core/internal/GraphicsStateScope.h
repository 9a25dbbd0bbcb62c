// Saves the state of a graphics object and puts it back.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Saves the graphics state (transform, clip, quality settings) and restores it at the end of the scope.
class GraphicsStateScope {
public:
    /// Saves the state of `graphics`, which must outlive this object.
    explicit GraphicsStateScope(Gdiplus::Graphics& graphics)
        : m_graphics(graphics), m_state(graphics.Save()) {}
    ~GraphicsStateScope() { m_graphics.Restore(m_state); }

    GraphicsStateScope(const GraphicsStateScope&) = delete;
    GraphicsStateScope& operator=(const GraphicsStateScope&) = delete;

private:
    Gdiplus::Graphics& m_graphics;
    Gdiplus::GraphicsState m_state;
};

}  // namespace Lumo
