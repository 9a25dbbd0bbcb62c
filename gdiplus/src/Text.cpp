// Drawing and measuring text.
#include "gdiplus/Arguments.h"
#include "gdiplus/GraphicsObject.h"
#include "gdiplus/TextLayout.h"

namespace flat {

namespace {

constexpr double kLargestMask = 200;  // pixels of an em; larger letters are drawn as paths

std::wstring ToText(const WCHAR* text, INT length) {
    Require(text);
    Require(length >= -1);
    return length < 0 ? std::wstring(text) : std::wstring(text, static_cast<size_t>(length));
}

// In units of the world.
double EmOf(GraphicsObject& graphics, const FontObject& font) {
    if (font.unit == UnitWorld)
        return font.size;
    const GraphicsSettings& settings = graphics.Settings();
    return font.size * graphics.PixelsPer(font.unit) / (graphics.PixelsPer(settings.unit) * settings.scale);
}

class ScaledGlyphs final : public raster::GlyphSource {
public:
    ScaledGlyphs(Typeface& face, double em) : m_face(face), m_em(em) {}
    bool Outline(uint32_t glyph, raster::Path& out) override {
        const raster::Path& outline = m_face.Of(glyph).outline;
        if (outline.Empty())
            return false;
        out = outline;
        out.Transform(raster::Matrix::Scaling(m_em, m_em));
        return true;
    }

private:
    Typeface& m_face;
    double m_em;
};

struct LinePainter {
    raster::Renderer& renderer;
    const raster::Matrix& matrix;
    const raster::Paint& paint;
    Typeface& face;
    double em;
    bool sharp;

    void Draw(const TextLayout::Line& line) {
        const double scale = matrix.m11;
        const bool masks = !sharp && matrix.KeepsAxes() && matrix.m11 == matrix.m22 && scale > 0 &&
                           em * scale <= kLargestMask;
        double x = line.x;
        const double baseline = line.top + face.Ascent() * em;
        for (const wchar_t character : line.text) {
            if (masks)
                DrawMask(character, matrix.Map({x, baseline}), em * scale);
            else
                DrawPath(character, x, baseline);
            x += face.Of(character).advance * em;
        }
    }

    void DrawMask(wchar_t character, raster::Point at, double pixels) {
        if (!(std::abs(at.x) < raster::kFarthestPixel && std::abs(at.y) < raster::kFarthestPixel))
            return;
        // Letters stand between whole rows, and at quarters of a pixel along them.
        const double places = std::floor(at.x * raster::kGlyphPlaces + 0.5);
        const int left = static_cast<int>(std::floor(places / raster::kGlyphPlaces));
        const auto size = static_cast<uint64_t>(std::lround(pixels * 64));
        ScaledGlyphs source(face, static_cast<double>(size) / 64);
        const raster::GlyphKey key{uint64_t{face.Number()} << 32 | size, character,
                                   static_cast<uint32_t>(places - double{raster::kGlyphPlaces} * left)};
        renderer.DrawMask(Masks().Get(key, source), left, static_cast<int>(std::floor(at.y + 0.5)), paint);
    }

    void DrawPath(wchar_t character, double x, double baseline) {
        const raster::Path& outline = face.Of(character).outline;
        if (!outline.Empty())
            renderer.Fill(outline, raster::Matrix{em, 0, 0, em, x, baseline} * matrix,
                          raster::FillRule::Winding, paint);
    }
};

void DrawRules(GraphicsObject& graphics, const TextLayout& layout, const FontObject& font, Typeface& face,
               double em, const Brush& brush) {
    for (const TextLayout::Line& line : layout.lines) {
        const double baseline = line.top + face.Ascent() * em, thick = em / 14;
        if (font.style & FontStyleUnderline)
            graphics.FillRectangle(ToRect(line.x, baseline + thick, line.width, thick), brush);
        if (font.style & FontStyleStrikeout)
            graphics.FillRectangle(ToRect(line.x, baseline - em * 0.28, line.width, thick), brush);
    }
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipDrawString(GpGraphics* graphics, const WCHAR* string, INT length, const GpFont* font,
                                   const RectF* rect, const GpStringFormat* format, const GpBrush* brush) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const FontObject& letters = Get<FontObject>(font);
        const Brush& fill = Get<Brush>(brush);
        const FormatObject standard;
        const FormatObject& how = format ? Get<FormatObject>(format) : standard;
        Require(rect);
        const std::wstring text = ToText(string, length);
        if (text.empty())
            return;
        const TypefaceLock lock;
        Typeface* const face = Typeface::Find(letters.family, letters.style);
        Require(face, FontStyleNotFound);
        const double em = EmOf(own, letters);
        const TextLayout layout = LayOut(text, *face, em, *rect, how);
        const raster::Rect around{layout.left - em, layout.top - em, layout.left + layout.width + em,
                                  layout.top + layout.height + em};
        const bool clips = !(how.flags & StringFormatFlagsNoClip) && (rect->Width > 0 || rect->Height > 0);
        const RegionShape before = own.Settings().clip;
        if (clips) {
            const double all = 1e6;
            RegionShape box(ToRect(rect->Width > 0 ? rect->X : -all, rect->Height > 0 ? rect->Y : -all,
                                   rect->Width > 0 ? rect->Width : 2 * all,
                                   rect->Height > 0 ? rect->Height : 2 * all));
            box.Transform(own.ToDevice());
            own.Settings().clip.Combine(box, CombineModeIntersect);
            own.ClipChanged();
        }
        own.Draw(MapBounds(own.ToDevice(), around),
                 [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
                     const bool sharp = own.Settings().hint == TextRenderingHintSingleBitPerPixel ||
                                        own.Settings().hint == TextRenderingHintSingleBitPerPixelGridFit;
                     const auto paint = own.Paint(fill);
                     renderer.Style().edges = sharp ? raster::Edges::Sharp : raster::Edges::Smooth;
                     renderer.Style().origin = raster::Settings::Origin::Corner;
                     LinePainter painter{renderer, matrix, *paint, *face, em, sharp};
                     for (const TextLayout::Line& line : layout.lines)
                         painter.Draw(line);
                 });
        DrawRules(own, layout, letters, *face, em, fill);
        if (clips) {
            own.Settings().clip = before;
            own.ClipChanged();
        }
    });
}

GpStatus WINGDIPAPI GdipMeasureString(GpGraphics* graphics, const WCHAR* string, INT length,
                                      const GpFont* font, const RectF* rect, const GpStringFormat* format,
                                      RectF* bounds, INT* characters, INT* lines) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const FontObject& letters = Get<FontObject>(font);
        const FormatObject standard;
        const FormatObject& how = format ? Get<FormatObject>(format) : standard;
        Require(rect && bounds);
        const std::wstring text = ToText(string, length);
        TextLayout layout;
        if (!text.empty()) {
            const TypefaceLock lock;
            Typeface* const face = Typeface::Find(letters.family, letters.style);
            Require(face, FontStyleNotFound);
            layout = LayOut(text, *face, EmOf(own, letters), *rect, how);
        } else {
            layout.left = rect->X;
            layout.top = rect->Y;
        }
        *bounds = {static_cast<REAL>(layout.left), static_cast<REAL>(layout.top),
                   static_cast<REAL>(layout.width), static_cast<REAL>(layout.height)};
        if (characters)
            *characters = static_cast<INT>(layout.fitting);
        if (lines)
            *lines = static_cast<INT>(layout.lines.size());
    });
}

GpStatus WINGDIPAPI GdipGetFontHeight(const GpFont* font, const GpGraphics* graphics, REAL* height) {
    return Answer([&] {
        const FontObject& own = Get<FontObject>(font);
        GraphicsObject& on = Get<GraphicsObject>(graphics);
        const TypefaceLock lock;
        Typeface* const face = Typeface::Find(own.family, own.style);
        Require(face && height);
        *height = static_cast<REAL>(face->LineSpacing() * EmOf(on, own));
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
