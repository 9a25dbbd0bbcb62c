#include "gdiplus/Brush.h"
#include "gdiplus/Arguments.h"
#include "gdiplus/BitmapObject.h"

namespace flat {

std::unique_ptr<raster::Paint> LinearGradientBrush::Paint(const PaintPlace& place) const {
    const std::vector<raster::GradientStop> stops =
        preset.empty() ? raster::BlendStops(colors[0], colors[1], blend, gamma) : preset;
    return std::make_unique<raster::LinearGradient>(from, to, matrix * place.matrix, stops, ToWrap(wrap),
                                                    gamma);
}

std::unique_ptr<raster::Paint> TextureBrush::Paint(const PaintPlace& place) const {
    const raster::Surface picture{reinterpret_cast<uint8_t*>(const_cast<uint32_t*>(pixels->data())),
                                  ptrdiff_t{4} * width, width, height, raster::Format::Premultiplied32};
    return std::make_unique<raster::Texture>(picture, matrix * place.matrix, ToWrap(wrap),
                                             raster::Sampling::Bilinear);
}

namespace {

void RequireWrap(GpWrapMode wrap) {
    Require(wrap >= WrapModeTile && wrap <= WrapModeClamp);
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCloneBrush(GpBrush* brush, GpBrush** clone) {
    return Answer([&] {
        auto copy = Get<Brush>(brush).Clone();
        const Kind kind = copy->Which();
        Give(clone, std::move(copy), kind);
    });
}

GpStatus WINGDIPAPI GdipDeleteBrush(GpBrush* brush) {
    return Answer([&] { Destroy<Brush>(brush); });
}

GpStatus WINGDIPAPI GdipGetBrushType(GpBrush* brush, GpBrushType* type) {
    return Answer([&] {
        const Kind kind = Get<Brush>(brush).Which();
        Out(type) = static_cast<GpBrushType>(static_cast<int>(kind) - static_cast<int>(Kind::SolidBrush));
    });
}

GpStatus WINGDIPAPI GdipCreateSolidFill(ARGB color, GpSolidFill** brush) {
    return Answer([&] { Give(brush, std::make_unique<SolidBrush>(color)); });
}

GpStatus WINGDIPAPI GdipSetSolidFillColor(GpSolidFill* brush, ARGB color) {
    return Answer([&] { Get<SolidBrush>(brush).color = color; });
}

GpStatus WINGDIPAPI GdipGetSolidFillColor(GpSolidFill* brush, ARGB* color) {
    return Answer([&] { Out(color) = Get<SolidBrush>(brush).color; });
}

GpStatus WINGDIPAPI GdipCreateHatchBrush(GpHatchStyle style, ARGB fore, ARGB back, GpHatch** brush) {
    return Answer([&] {
        Require(style >= HatchStyleMin && style <= HatchStyleMax);
        Give(brush, std::make_unique<HatchBrush>(style, fore, back));
    });
}

GpStatus WINGDIPAPI GdipGetHatchStyle(GpHatch* brush, GpHatchStyle* style) {
    return Answer([&] { Out(style) = Get<HatchBrush>(brush).style; });
}

GpStatus WINGDIPAPI GdipGetHatchForegroundColor(GpHatch* brush, ARGB* color) {
    return Answer([&] { Out(color) = Get<HatchBrush>(brush).fore; });
}

GpStatus WINGDIPAPI GdipGetHatchBackgroundColor(GpHatch* brush, ARGB* color) {
    return Answer([&] { Out(color) = Get<HatchBrush>(brush).back; });
}

GpStatus WINGDIPAPI GdipCreateLineBrush(const GpPointF* from, const GpPointF* to, ARGB first, ARGB last,
                                        GpWrapMode wrap, GpLineGradient** brush) {
    return Answer([&] {
        Require(from && to && wrap != WrapModeClamp);
        RequireWrap(wrap);
        Require(from->X != to->X || from->Y != to->Y, OutOfMemory);
        auto own = std::make_unique<LinearGradientBrush>();
        own->from = ToPoint(*from);
        own->to = ToPoint(*to);
        own->rect = {(std::min)(own->from.x, own->to.x), (std::min)(own->from.y, own->to.y),
                     (std::max)(own->from.x, own->to.x), (std::max)(own->from.y, own->to.y)};
        own->colors[0] = first;
        own->colors[1] = last;
        own->wrap = wrap;
        Give(brush, std::move(own));
    });
}

GpStatus WINGDIPAPI GdipSetLineGammaCorrection(GpLineGradient* brush, BOOL gamma) {
    return Answer([&] { Get<LinearGradientBrush>(brush).gamma = gamma != FALSE; });
}

GpStatus WINGDIPAPI GdipGetLineGammaCorrection(GpLineGradient* brush, BOOL* gamma) {
    return Answer([&] { Out(gamma) = Get<LinearGradientBrush>(brush).gamma; });
}

GpStatus WINGDIPAPI GdipSetLineColors(GpLineGradient* brush, ARGB first, ARGB last) {
    return Answer([&] {
        LinearGradientBrush& own = Get<LinearGradientBrush>(brush);
        own.colors[0] = first;
        own.colors[1] = last;
    });
}

GpStatus WINGDIPAPI GdipGetLineColors(GpLineGradient* brush, ARGB* colors) {
    return Answer([&] {
        const LinearGradientBrush& own = Get<LinearGradientBrush>(brush);
        Require(colors);
        colors[0] = own.colors[0];
        colors[1] = own.colors[1];
    });
}

GpStatus WINGDIPAPI GdipCreateTexture(GpImage* image, GpWrapMode wrap, GpTexture** brush) {
    return Answer([&] {
        const BitmapObject& bitmap = Get<BitmapObject>(image);
        RequireWrap(wrap);
        auto own = std::make_unique<TextureBrush>();
        own->pixels = std::make_shared<const std::vector<uint32_t>>(bitmap.Premultiplied());
        own->width = bitmap.width;
        own->height = bitmap.height;
        own->wrap = wrap;
        Give(brush, std::move(own));
    });
}

GpStatus WINGDIPAPI GdipTranslateTextureTransform(GpTexture* brush, REAL dx, REAL dy, GpMatrixOrder order) {
    return Answer(
        [&] { flat::Combine(Get<TextureBrush>(brush).matrix, raster::Matrix::Translation(dx, dy), order); });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
