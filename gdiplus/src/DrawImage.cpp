// Pictures on a Graphics, their attributes and cached copies.
#include "gdiplus/Arguments.h"
#include "gdiplus/BitmapObject.h"
#include "gdiplus/GraphicsObject.h"
#include "raster/Recolor.h"

namespace flat {

namespace {

struct AttributesObject final : Object {
    static constexpr Kind kFirst = Kind::ImageAttributes, kLast = Kind::ImageAttributes;
    raster::ColorEffects effects;
};

struct CachedObject final : Object {
    static constexpr Kind kFirst = Kind::CachedBitmap, kLast = Kind::CachedBitmap;
    std::vector<uint32_t> pixels;
    int width = 0, height = 0;
};

raster::Sampling ToSampling(InterpolationMode mode) {
    switch (mode) {
        case InterpolationModeNearestNeighbor:
            return raster::Sampling::Nearest;
        case InterpolationModeBicubic:
            return raster::Sampling::Bicubic;
        case InterpolationModeHighQualityBilinear:
            return raster::Sampling::SmoothBilinear;
        case InterpolationModeHighQualityBicubic:
            return raster::Sampling::SmoothBicubic;
        default:
            return raster::Sampling::Bilinear;
    }
}

GpStatus Draw(GpGraphics* graphics, GpImage* image, const raster::Rect& to, const raster::Rect& from,
              const GpImageAttributes* attributes = nullptr) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const BitmapObject& bitmap = Get<BitmapObject>(image);
        const AttributesObject* with = GetOrNull<AttributesObject>(attributes);
        if (!HasArea(to) || !HasArea(from))
            return;
        const raster::Point corners[] = {{to.left, to.top}, {to.right, to.top}, {to.left, to.bottom}};
        const raster::Matrix place = ToParallelogram(from, corners);
        own.Draw(MapBounds(own.ToDevice(), to),
                 [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
                     const raster::Matrix whole = place * matrix;
                     // Pixels that fall on pixels need no mixing.
                     const bool same = whole.KeepsAxes() && whole.m11 == 1 && whole.m22 == 1 &&
                                       whole.dx == std::floor(whole.dx) && whole.dy == std::floor(whole.dy);
                     renderer.Style().origin = raster::Settings::Origin::Corner;
                     const raster::Texture paint(
                         bitmap.Surface(), whole, raster::Wrap::FlipXY,
                         same ? raster::Sampling::Nearest : ToSampling(own.Settings().interpolation),
                         with && !with->effects.Empty() ? &with->effects : nullptr);
                     renderer.FillRectangle(to, matrix, paint);
                 });
    });
}

raster::Rect Whole(GpImage* image) {
    const auto* bitmap = static_cast<BitmapObject*>(FindObject(image, Kind::Bitmap, Kind::Bitmap));
    return bitmap ? ToRect(0, 0, bitmap->width, bitmap->height) : raster::Rect{};
}

raster::ColorMatrix ToMatrix(const ColorMatrix& matrix) {
    raster::ColorMatrix result;
    for (size_t i = 0; i < 5; ++i)
        for (size_t j = 0; j < 5; ++j)
            result[i][j] = matrix.m[i][j];
    return result;
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipDrawImage(GpGraphics* graphics, GpImage* image, REAL x, REAL y) {
    const raster::Rect whole = Whole(image);
    return flat::Draw(graphics, image, ToRect(x, y, whole.Width(), whole.Height()), whole);
}

GpStatus WINGDIPAPI GdipDrawImageI(GpGraphics* graphics, GpImage* image, INT x, INT y) {
    return GdipDrawImage(graphics, image, REAL(x), REAL(y));
}

GpStatus WINGDIPAPI GdipDrawImageRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y, REAL width,
                                      REAL height) {
    return flat::Draw(graphics, image, ToRect(x, y, width, height), Whole(image));
}

GpStatus WINGDIPAPI GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                                       INT height) {
    return GdipDrawImageRect(graphics, image, REAL(x), REAL(y), REAL(width), REAL(height));
}

GpStatus WINGDIPAPI GdipDrawImagePointRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y, REAL sourceX,
                                           REAL sourceY, REAL width, REAL height, GpUnit unit) {
    if (unit != UnitPixel)
        return NotImplemented;
    return flat::Draw(graphics, image, ToRect(x, y, width, height), ToRect(sourceX, sourceY, width, height));
}

GpStatus WINGDIPAPI GdipDrawImageRectRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y, REAL width,
                                          REAL height, REAL sourceX, REAL sourceY, REAL sourceWidth,
                                          REAL sourceHeight, GpUnit unit, const GpImageAttributes* attributes,
                                          DrawImageAbort, VOID*) {
    if (unit != UnitPixel)
        return NotImplemented;
    return flat::Draw(graphics, image, ToRect(x, y, width, height),
                      ToRect(sourceX, sourceY, sourceWidth, sourceHeight), attributes);
}

GpStatus WINGDIPAPI GdipDrawImageRectRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                                           INT height, INT sourceX, INT sourceY, INT sourceWidth,
                                           INT sourceHeight, GpUnit unit, const GpImageAttributes* attributes,
                                           DrawImageAbort abort, VOID* data) {
    return GdipDrawImageRectRect(graphics, image, REAL(x), REAL(y), REAL(width), REAL(height), REAL(sourceX),
                                 REAL(sourceY), REAL(sourceWidth), REAL(sourceHeight), unit, attributes,
                                 abort, data);
}

GpStatus WINGDIPAPI GdipCreateImageAttributes(GpImageAttributes** attributes) {
    return Answer([&] { Give(attributes, std::make_unique<AttributesObject>()); });
}

GpStatus WINGDIPAPI GdipDisposeImageAttributes(GpImageAttributes* attributes) {
    return Answer([&] { Destroy<AttributesObject>(attributes); });
}

GpStatus WINGDIPAPI GdipSetImageAttributesColorMatrix(GpImageAttributes* attributes, ColorAdjustType type,
                                                      BOOL enable, const ColorMatrix* matrix,
                                                      const ColorMatrix* gray, ColorMatrixFlags flags) {
    return Answer([&] {
        raster::ColorEffects& effects = Get<AttributesObject>(attributes).effects;
        Require(!enable || matrix);
        Require(type == ColorAdjustTypeDefault || type == ColorAdjustTypeBitmap, NotImplemented);
        effects.matrix.reset();
        effects.grayMatrix.reset();
        if (!enable)
            return;
        effects.matrix = ToMatrix(*matrix);
        if (flags == ColorMatrixFlagsAltGray)
            effects.grayMatrix = ToMatrix(Out(gray));
    });
}

GpStatus WINGDIPAPI GdipCreateCachedBitmap(GpBitmap* bitmap, GpGraphics* graphics, GpCachedBitmap** cached) {
    return Answer([&] {
        const BitmapObject& own = Get<BitmapObject>(bitmap);
        Get<GraphicsObject>(graphics);
        auto copy = std::make_unique<CachedObject>();
        copy->pixels = own.Premultiplied();
        copy->width = own.width;
        copy->height = own.height;
        Give(cached, std::move(copy));
    });
}

GpStatus WINGDIPAPI GdipDeleteCachedBitmap(GpCachedBitmap* cached) {
    return Answer([&] { Destroy<CachedObject>(cached); });
}

GpStatus WINGDIPAPI GdipDrawCachedBitmap(GpGraphics* graphics, GpCachedBitmap* cached, INT x, INT y) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        CachedObject& copy = Get<CachedObject>(cached);
        const raster::Surface picture{reinterpret_cast<uint8_t*>(copy.pixels.data()),
                                      ptrdiff_t{4} * copy.width, copy.width, copy.height};
        // Of the transform only the translation counts.
        const raster::Matrix device = own.ToDevice();
        const auto back = device.Inverse();
        Require(back.has_value());
        const raster::Point at = device.Map({double(x), double(y)});
        const raster::Rect to = ToRect(Rounded(at.x), Rounded(at.y), copy.width, copy.height);
        own.Draw(to, [&](raster::Renderer& renderer, const raster::Matrix& matrix) {
            const raster::Matrix shift = *back * matrix;
            renderer.Style().origin = raster::Settings::Origin::Corner;
            const raster::Texture paint(
                picture,
                raster::Matrix::Translation(to.left, to.top) *
                    raster::Matrix::Translation(std::round(shift.dx), std::round(shift.dy)),
                raster::Wrap::Clamp, raster::Sampling::Nearest);
            renderer.FillRectangle(
                to, raster::Matrix::Translation(std::round(shift.dx), std::round(shift.dy)), paint);
        });
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
