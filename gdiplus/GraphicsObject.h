// What draws: a surface, or a device context through a picture of it, with transforms, clip and modes.
#pragma once

#include "gdiplus/Brush.h"
#include "gdiplus/PenObject.h"
#include "gdiplus/RegionShape.h"
#include "raster/Renderer.h"

#include <functional>
#include <optional>

namespace flat {

/// What GdipSaveGraphics keeps.
struct GraphicsSettings {
    raster::Matrix world;
    GpUnit unit = UnitDisplay;
    REAL scale = 1;
    raster::Matrix container;  // from the page to the device
    RegionShape clip;          // in pixels of the device
    SmoothingMode smoothing = SmoothingModeNone;
    PixelOffsetMode offset = PixelOffsetModeDefault;
    CompositingMode compositing = CompositingModeSourceOver;
    CompositingQuality quality = CompositingQualityDefault;
    InterpolationMode interpolation = InterpolationModeBilinear;
    TextRenderingHint hint = TextRenderingHintSystemDefault;
    UINT contrast = 4;
    INT originX = 0, originY = 0;
};

class GraphicsObject final : public Object {
public:
    static constexpr Kind kFirst = Kind::Graphics, kLast = Kind::Graphics;

    GraphicsObject(const raster::Surface& surface, REAL dpiX, REAL dpiY);
    /// The context stays its owner's; `window` is the one of which it was taken, or null.
    GraphicsObject(HDC dc, HWND window);
    ~GraphicsObject() override;

    GraphicsSettings& Settings() { return m_settings; }
    REAL DpiX() const { return m_dpiX; }
    REAL DpiY() const { return m_dpiY; }
    HDC Dc() const { return m_dc; }

    /// Pixels for one unit of the page.
    raster::Matrix PageToDevice() const;
    raster::Matrix ToDevice() const { return m_settings.world * PageToDevice(); }
    /// Pixels, of the device, of a length in `unit`.
    double PixelsPer(GpUnit unit) const;

    /// All pixels that can be drawn on, the clip left aside.
    raster::IntRect Bounds() const;
    /// Those inside the clip.
    const raster::Region& Visible();
    void ClipChanged() { m_visible.reset(); }

    /// Draws what touches no pixel beside `around` (of the device). `body` gets the renderer and the matrix
    /// from the world to its surface.
    void Draw(const raster::Rect& around,
              const std::function<void(raster::Renderer&, const raster::Matrix&)>& body);
    std::unique_ptr<raster::Paint> Paint(const Brush& brush) const;

    void Fill(const raster::Path& path, raster::FillRule rule, const Brush& brush);
    void Stroke(const raster::Path& path, const PenObject& pen);
    void FillRectangle(const raster::Rect& rect, const Brush& brush);

    UINT Save();
    void Restore(UINT state);
    UINT BeginContainer(const raster::Matrix& toPage);

private:
    void Cover(const raster::IntRect& box);
    void DropPicture();

    REAL m_dpiX, m_dpiY;
    GraphicsSettings m_settings;
    struct Saved {
        UINT number;
        GraphicsSettings settings;
    };
    std::vector<Saved> m_saved;
    UINT m_lastSaved = 0;

    raster::Surface m_surface;
    std::optional<raster::Renderer> m_renderer;
    std::optional<raster::Region> m_visible;

    // A device context's pixels in memory: those of m_covered.
    HDC m_dc = nullptr;
    HWND m_window = nullptr;
    HDC m_memory = nullptr;
    HBITMAP m_picture = nullptr;
    HGDIOBJ m_before = nullptr;
    raster::IntRect m_covered;
};

}  // namespace flat
