// The clip of a Graphics.
#include "gdiplus/Arguments.h"
#include "gdiplus/GraphicsObject.h"

namespace flat {

namespace {

GpStatus SetClip(GpGraphics* graphics, const std::function<RegionShape()>& shape, CombineMode mode) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        RegionShape device = shape();
        device.Transform(own.ToDevice());
        own.Settings().clip.Combine(device, mode);
        own.ClipChanged();
    });
}

// Of the device's pixels, in the world.
raster::Rect InWorld(const GraphicsObject& graphics, const raster::Rect& device) {
    const auto back = graphics.ToDevice().Inverse();
    return back ? MapBounds(*back, device) : raster::Rect{};
}

raster::Rect VisibleBounds(GraphicsObject& graphics) {
    const raster::IntRect box = graphics.Visible().Bounds();
    return box.Empty() ? raster::Rect{}
                       : InWorld(graphics,
                                 {double(box.left), double(box.top), double(box.right), double(box.bottom)});
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipSetClipRect(GpGraphics* graphics, REAL x, REAL y, REAL width, REAL height,
                                    CombineMode mode) {
    return SetClip(
        graphics, [&] { return RegionShape(ToRect(x, y, width, height)); }, mode);
}

GpStatus WINGDIPAPI GdipSetClipRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                                     CombineMode mode) {
    return GdipSetClipRect(graphics, REAL(x), REAL(y), REAL(width), REAL(height), mode);
}

GpStatus WINGDIPAPI GdipSetClipPath(GpGraphics* graphics, GpPath* path, CombineMode mode) {
    return SetClip(
        graphics, [&] { return RegionShape(Get<PathObject>(path)); }, mode);
}

GpStatus WINGDIPAPI GdipResetClip(GpGraphics* graphics) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        own.Settings().clip = RegionShape();
        own.ClipChanged();
    });
}

GpStatus WINGDIPAPI GdipGetClipBounds(GpGraphics* graphics, GpRectF* bounds) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Out(bounds) = FromRect(InWorld(own, own.Settings().clip.Bounds()));
    });
}

GpStatus WINGDIPAPI GdipGetVisibleClipBounds(GpGraphics* graphics, GpRectF* bounds) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Out(bounds) = FromRect(VisibleBounds(own));
    });
}

GpStatus WINGDIPAPI GdipGetVisibleClipBoundsI(GpGraphics* graphics, GpRect* bounds) {
    return Answer([&] {
        GraphicsObject& own = Get<GraphicsObject>(graphics);
        Require(bounds);
        const raster::Rect box = VisibleBounds(own);
        *bounds = {Rounded(box.left), Rounded(box.top), Rounded(box.right) - Rounded(box.left),
                   Rounded(box.bottom) - Rounded(box.top)};
    });
}

GpStatus WINGDIPAPI GdipIsVisibleClipEmpty(GpGraphics* graphics, BOOL* empty) {
    return Answer([&] { Out(empty) = Get<GraphicsObject>(graphics).Visible().Empty(); });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
