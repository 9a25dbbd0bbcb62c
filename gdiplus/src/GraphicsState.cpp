// Making a Graphics, its modes and transforms.
#include "gdiplus/Arguments.h"
#include "gdiplus/GraphicsObject.h"

namespace flat {

namespace {

template <class T>
GpStatus Set(GpGraphics* graphics, T GraphicsSettings::*member, T value, bool valid = true) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Require(valid);
        own.Settings().*member = value;
    });
}

template <class T>
GpStatus Read(GpGraphics* graphics, T GraphicsSettings::*member, T* value) {
    return Answer([&] { Out(value) = Get<GraphicsObject>(graphics).Settings().*member; });
}

GpStatus Change(GpGraphics* graphics, const raster::Matrix& change, GpMatrixOrder order) {
    return Answer([&] { Combine(Get<GraphicsObject>(graphics).Settings().world, change, order); });
}

raster::Matrix Space(const GraphicsObject& graphics, GraphicsSettings& settings, GpCoordinateSpace space) {
    Require(space >= CoordinateSpaceWorld && space <= CoordinateSpaceDevice);
    if (space == CoordinateSpaceWorld)
        return settings.world * graphics.PageToDevice();
    return space == CoordinateSpacePage ? graphics.PageToDevice() : raster::Matrix{};
}

raster::Matrix Between(GpGraphics* graphics, GpCoordinateSpace to, GpCoordinateSpace from) {
    GraphicsObject& own = Get<GraphicsObject>(graphics);
    const auto back = Space(own, own.Settings(), to).Inverse();
    Require(back.has_value());
    return Space(own, own.Settings(), from) * *back;
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateFromHDC(HDC dc, GpGraphics** graphics) {
    return Answer([&] {
        Require(dc != nullptr, OutOfMemory);
        Require(GetObjectType(dc) != 0);
        Give(graphics, std::make_unique<GraphicsObject>(dc, nullptr));
    });
}

GpStatus WINGDIPAPI GdipCreateFromHDC2(HDC dc, HANDLE, GpGraphics** graphics) {
    return GdipCreateFromHDC(dc, graphics);
}

GpStatus WINGDIPAPI GdipCreateFromHWND(HWND window, GpGraphics** graphics) {
    return Answer([&] {
        Require(graphics);
        HDC dc = GetDC(window);
        Require(dc);
        Give(graphics, std::make_unique<GraphicsObject>(dc, window));
    });
}

GpStatus WINGDIPAPI GdipDeleteGraphics(GpGraphics* graphics) {
    return Answer([&] { Destroy<GraphicsObject>(graphics); });
}

GpStatus WINGDIPAPI GdipFlush(GpGraphics* graphics, GpFlushIntention) {
    return Answer([&] { Get<GraphicsObject>(graphics); });  // every call has drawn when it returns
}

GpStatus WINGDIPAPI GdipGetDC(GpGraphics* graphics, HDC* dc) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Require(dc);
        Require(own.Dc(), NotImplemented);
        *dc = own.Dc();
    });
}

GpStatus WINGDIPAPI GdipReleaseDC(GpGraphics* graphics, HDC dc) {
    return Answer([&] { Require(Get<GraphicsObject>(graphics).Dc() == dc && dc); });
}

GpStatus WINGDIPAPI GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode) {
    return Set(graphics, &GraphicsSettings::smoothing,
               mode == SmoothingModeDefault || mode == SmoothingModeHighSpeed ? SmoothingModeNone
               : mode == SmoothingModeHighQuality                             ? SmoothingModeAntiAlias
                                                                              : mode,
               mode >= SmoothingModeDefault && mode <= SmoothingModeAntiAlias8x8);
}

GpStatus WINGDIPAPI GdipGetSmoothingMode(GpGraphics* graphics, SmoothingMode* mode) {
    return Read(graphics, &GraphicsSettings::smoothing, mode);
}

GpStatus WINGDIPAPI GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode) {
    return Set(graphics, &GraphicsSettings::offset, mode,
               mode >= PixelOffsetModeDefault && mode <= PixelOffsetModeHalf);
}

GpStatus WINGDIPAPI GdipGetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode* mode) {
    return Read(graphics, &GraphicsSettings::offset, mode);
}

GpStatus WINGDIPAPI GdipSetCompositingMode(GpGraphics* graphics, CompositingMode mode) {
    return Set(graphics, &GraphicsSettings::compositing, mode,
               mode == CompositingModeSourceOver || mode == CompositingModeSourceCopy);
}

GpStatus WINGDIPAPI GdipGetCompositingMode(GpGraphics* graphics, CompositingMode* mode) {
    return Read(graphics, &GraphicsSettings::compositing, mode);
}

GpStatus WINGDIPAPI GdipSetCompositingQuality(GpGraphics* graphics, CompositingQuality quality) {
    return Set(graphics, &GraphicsSettings::quality, quality,
               quality >= CompositingQualityDefault && quality <= CompositingQualityAssumeLinear);
}

GpStatus WINGDIPAPI GdipGetCompositingQuality(GpGraphics* graphics, CompositingQuality* quality) {
    return Read(graphics, &GraphicsSettings::quality, quality);
}

GpStatus WINGDIPAPI GdipSetInterpolationMode(GpGraphics* graphics, InterpolationMode mode) {
    const InterpolationMode kept =
        mode == InterpolationModeDefault || mode == InterpolationModeLowQuality ? InterpolationModeBilinear
        : mode == InterpolationModeHighQuality ? InterpolationModeHighQualityBicubic
                                               : mode;
    return Set(graphics, &GraphicsSettings::interpolation, kept,
               mode >= InterpolationModeDefault && mode <= InterpolationModeHighQualityBicubic);
}

GpStatus WINGDIPAPI GdipGetInterpolationMode(GpGraphics* graphics, InterpolationMode* mode) {
    return Read(graphics, &GraphicsSettings::interpolation, mode);
}

GpStatus WINGDIPAPI GdipSetTextRenderingHint(GpGraphics* graphics, TextRenderingHint hint) {
    return Set(graphics, &GraphicsSettings::hint, hint,
               hint >= TextRenderingHintSystemDefault && hint <= TextRenderingHintClearTypeGridFit);
}

GpStatus WINGDIPAPI GdipGetTextRenderingHint(GpGraphics* graphics, TextRenderingHint* hint) {
    return Read(graphics, &GraphicsSettings::hint, hint);
}

GpStatus WINGDIPAPI GdipSetPageUnit(GpGraphics* graphics, GpUnit unit) {
    return Set(graphics, &GraphicsSettings::unit, unit, unit > UnitWorld && unit <= UnitMillimeter);
}

GpStatus WINGDIPAPI GdipGetPageUnit(GpGraphics* graphics, GpUnit* unit) {
    return Read(graphics, &GraphicsSettings::unit, unit);
}

GpStatus WINGDIPAPI GdipSetPageScale(GpGraphics* graphics, REAL scale) {
    return Set(graphics, &GraphicsSettings::scale, scale, scale > 0);
}

GpStatus WINGDIPAPI GdipGetPageScale(GpGraphics* graphics, REAL* scale) {
    return Read(graphics, &GraphicsSettings::scale, scale);
}

GpStatus WINGDIPAPI GdipGetDpiX(GpGraphics* graphics, REAL* dpi) {
    return Answer([&] { Out(dpi) = Get<GraphicsObject>(graphics).DpiX(); });
}

GpStatus WINGDIPAPI GdipGetDpiY(GpGraphics* graphics, REAL* dpi) {
    return Answer([&] { Out(dpi) = Get<GraphicsObject>(graphics).DpiY(); });
}

GpStatus WINGDIPAPI GdipSetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        const raster::Matrix& world = Get<MatrixObject>(matrix).matrix;
        Require(world.Inverse().has_value());
        own.Settings().world = world;
    });
}

GpStatus WINGDIPAPI GdipResetWorldTransform(GpGraphics* graphics) {
    return Set(graphics, &GraphicsSettings::world, raster::Matrix{});
}

GpStatus WINGDIPAPI GdipGetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return Answer([&] { Get<MatrixObject>(matrix).matrix = Get<GraphicsObject>(graphics).Settings().world; });
}

GpStatus WINGDIPAPI GdipMultiplyWorldTransform(GpGraphics* graphics, const GpMatrix* matrix,
                                               GpMatrixOrder order) {
    return Answer([&] {
        flat::Combine(Get<GraphicsObject>(graphics).Settings().world, Get<MatrixObject>(matrix).matrix,
                      order);
    });
}

GpStatus WINGDIPAPI GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy, GpMatrixOrder order) {
    return Change(graphics, raster::Matrix::Translation(dx, dy), order);
}

GpStatus WINGDIPAPI GdipScaleWorldTransform(GpGraphics* graphics, REAL x, REAL y, GpMatrixOrder order) {
    return Change(graphics, raster::Matrix::Scaling(x, y), order);
}

GpStatus WINGDIPAPI GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, GpMatrixOrder order) {
    return Change(graphics, RotationBy(angle), order);
}

GpStatus WINGDIPAPI GdipTransformPoints(GpGraphics* graphics, GpCoordinateSpace to, GpCoordinateSpace from,
                                        GpPointF* points, INT count) {
    return Answer([&] {
        const raster::Matrix matrix = Between(graphics, to, from);
        RequireArray(points, count);
        for (INT i = 0; i < count; ++i)
            points[i] = FromPoint(matrix.Map(ToPoint(points[i])));
    });
}

GpStatus WINGDIPAPI GdipSaveGraphics(GpGraphics* graphics, GraphicsState* state) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Require(state);
        *state = own.Save();
    });
}

GpStatus WINGDIPAPI GdipRestoreGraphics(GpGraphics* graphics, GraphicsState state) {
    return Answer([&] { Get<GraphicsObject>(graphics).Restore(state); });
}

GpStatus WINGDIPAPI GdipBeginContainer2(GpGraphics* graphics, GraphicsContainer* state) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Require(state);
        *state = own.BeginContainer({});
    });
}

GpStatus WINGDIPAPI GdipEndContainer(GpGraphics* graphics, GraphicsContainer state) {
    return GdipRestoreGraphics(graphics, state);
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
