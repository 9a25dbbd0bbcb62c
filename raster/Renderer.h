// Draws on a surface.
#pragma once

#include "raster/GlyphCache.h"
#include "raster/Kernels.h"
#include "raster/Paint.h"
#include "raster/Region.h"
#include "raster/Stroker.h"
#include "raster/ThinLines.h"

namespace raster {

/// How things are drawn.
struct Settings {
    Edges edges = Edges::Sharp;
    /// Whether (0, 0) is the centre of the first pixel or its corner.
    enum class Origin { Centre, Corner } origin = Origin::Centre;
    /// Whether colours go over what is there or replace it.
    enum class Mode { Over, Copy } mode = Mode::Over;
};

/// Draws shapes on a surface. It keeps its memory from shape to shape; one object is for one thread.
class Renderer final : private RowSink {
public:
    /// The pixels stay their owner's and must live as long. Nothing is cut off but what lies beside the
    /// surface.
    explicit Renderer(const Surface& surface, const Kernels& kernels = BestKernels());

    /// Only pixels in `region` change from now on.
    void SetClip(const Region& region);
    const Region& Clip() const { return m_clip; }
    Settings& Style() { return m_settings; }

    void Fill(const Path& path, const Matrix& matrix, FillRule rule, const Paint& paint);
    /// Lines with sharp edges and at most a pixel wide are lines of single pixels, their last one included.
    void Stroke(const Path& path, const Pen& pen, const Matrix& matrix, const Paint& paint);
    /// The same as with a path of the rectangle, in less time.
    void FillRectangle(const Rect& rect, const Matrix& matrix, const Paint& paint);
    void StrokeRectangle(const Rect& rect, const Pen& pen, const Matrix& matrix, const Paint& paint);
    void StrokeLine(Point from, Point to, const Pen& pen, const Matrix& matrix, const Paint& paint);
    /// A glyph whose pixel (0, 0) is at `x`, `y`.
    void DrawMask(const GlyphMask& mask, int x, int y, const Paint& paint);

private:
    // Corners in 1/256 of a pixel.
    struct Box {
        int left, top, right, bottom;
    };

    void Row(int y, std::span<const Run> runs) override;
    void Draw(int y, int x, int length, const uint8_t* coverage, uint8_t value);
    void DrawColor(uint32_t* to, int length, const uint8_t* coverage, uint8_t value);
    void DrawOnPixels(uint32_t* to, int y, int x, int length, const uint8_t* coverage, uint8_t value);
    void DrawFrame(const Box& outer, const Box& inner);
    void FrameRow(const Box& outer, const Box& inner, int outerHeight, int innerHeight);
    void DrawRows(int y, int end);
    bool IsThin(const Pen& pen, const Matrix& matrix) const;
    bool ToBox(const Rect& rect, const Matrix& matrix, Box& box) const;
    void Begin(const Paint& paint);
    // The surface's pixels are what the loops work on.
    bool IsDirect() const {
        return m_surface.format == Format::Premultiplied32 || m_surface.format == Format::Opaque32;
    }
    double Shift() const { return m_settings.origin == Settings::Origin::Centre ? 0.5 : 0; }
    Rect Limits() const;

    Surface m_surface;
    const Kernels& m_kernels;
    Region m_clip;
    Settings m_settings;

    // The shape in work.
    const Paint* m_paint = nullptr;
    bool m_solid = false;
    bool m_plain = false;  // one colour over pixels of the surface in a rectangle
    Color m_color = 0;

    Rasterizer m_rasterizer;
    Stroker m_stroker;
    ThinLines m_thin;
    Chains m_chains;
    Path m_path;
    std::vector<uint32_t> m_colors;
    std::vector<uint32_t> m_pixels;
    std::vector<uint8_t> m_values;
    std::vector<uint8_t> m_frame;
    std::vector<Run> m_runs;
};

}  // namespace raster
