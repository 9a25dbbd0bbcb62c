// Hit tests, bounds and flattening of paths.
#include "gdiplus/Arguments.h"
#include "gdiplus/GraphicsObject.h"

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipIsVisiblePathPoint(GpPath* path, REAL x, REAL y, GpGraphics* graphics, BOOL* result) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        GetOrNull<GraphicsObject>(graphics);
        raster::Chains chains;
        Flatten(own.Outline(), {}, raster::kTolerance, nullptr, chains);
        Out(result) = Contains(chains, {x, y}, own.Rule());
    });
}

GpStatus WINGDIPAPI GdipIsVisiblePathPointI(GpPath* path, INT x, INT y, GpGraphics* graphics, BOOL* result) {
    return GdipIsVisiblePathPoint(path, REAL(x), REAL(y), graphics, result);
}

GpStatus WINGDIPAPI GdipIsOutlineVisiblePathPoint(GpPath* path, REAL x, REAL y, GpPen* pen,
                                                  GpGraphics* graphics, BOOL* result) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        const PenObject& line = Get<PenObject>(pen);
        GetOrNull<GraphicsObject>(graphics);
        raster::Stroker stroker;
        stroker.Stroke(own.Outline(), line.Line(line.width), {}, {x - 1.0, y - 1.0, x + 1.0, y + 1.0});
        Out(result) = Contains(stroker.Outline(), {x, y}, raster::FillRule::Winding);
    });
}

GpStatus WINGDIPAPI GdipFlattenPath(GpPath* path, GpMatrix* matrix, REAL flatness) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        const MatrixObject* by = GetOrNull<MatrixObject>(matrix);
        raster::Chains chains;
        Flatten(own.Outline(), by ? by->matrix : raster::Matrix{}, (std::max)(0.001f, flatness), nullptr,
                chains);
        own.Assign(chains);
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
