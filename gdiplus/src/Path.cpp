// Making, reading and changing paths as a whole.
#include "gdiplus/Arguments.h"
#include "gdiplus/PathObject.h"

namespace flat {

namespace {

bool IsType(BYTE type) {
    const BYTE kind = type & PathPointTypePathTypeMask;
    return kind == PathPointTypeStart || kind == PathPointTypeLine || kind == PathPointTypeBezier;
}

template <class P>
GpStatus Create(const P* points, const BYTE* types, INT count, GpFillMode mode, GpPath** out) {
    return Answer([&] {
        Require(mode == FillModeAlternate || mode == FillModeWinding);
        auto path = std::make_unique<PathObject>();
        path->fillMode = mode;
        Require(count >= 0);
        if (count > 0) {
            RequireArray(points, count);
            Require(types);
            for (INT i = 0; i < count; ++i) {
                Require(IsType(types[i]));
                path->points.push_back(FromPoint(ToPoint(points[i])));
                path->types.push_back(types[i]);
            }
            path->types[0] = PathPointTypeStart | (path->types[0] & ~PathPointTypePathTypeMask);
            path->starts = (path->types.back() & PathPointTypeCloseSubpath) != 0;
        }
        Give(out, std::move(path));
    });
}

// Where figures begin.
std::vector<size_t> Figures(const PathObject& path) {
    std::vector<size_t> first;
    for (size_t i = 0; i < path.types.size(); ++i)
        if ((path.types[i] & PathPointTypePathTypeMask) == PathPointTypeStart)
            first.push_back(i);
    first.push_back(path.types.size());
    return first;
}

void Reverse(PathObject& path) {
    const std::vector<size_t> figures = Figures(path);
    std::vector<PointF> points(path.points.rbegin(), path.points.rend());
    std::vector<BYTE> types;
    types.reserve(path.types.size());
    for (size_t figure = figures.size() - 1; figure-- > 0;) {
        const size_t first = figures[figure], end = figures[figure + 1];
        const bool closed = (path.types[end - 1] & PathPointTypeCloseSubpath) != 0;
        types.push_back(PathPointTypeStart);
        for (size_t i = end - 1; i > first; --i)
            types.push_back(path.types[i] & ~(PathPointTypeCloseSubpath | PathPointTypePathMarker));
        if (closed)
            types.back() |= PathPointTypeCloseSubpath;
    }
    // A marker stays behind the same figures' end.
    for (size_t i = 0; i + 1 < types.size(); ++i)
        if (path.types[i] & PathPointTypePathMarker)
            types[types.size() - 2 - i] |= PathPointTypePathMarker;
    path.points = std::move(points);
    path.types = std::move(types);
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreatePath(GpFillMode mode, GpPath** path) {
    return Create(static_cast<const PointF*>(nullptr), nullptr, 0, mode, path);
}

GpStatus WINGDIPAPI GdipCreatePath2(const GpPointF* points, const BYTE* types, INT count, GpFillMode mode,
                                    GpPath** path) {
    return Create(points, types, count, mode, path);
}

GpStatus WINGDIPAPI GdipCreatePath2I(const GpPoint* points, const BYTE* types, INT count, GpFillMode mode,
                                     GpPath** path) {
    return Create(points, types, count, mode, path);
}

GpStatus WINGDIPAPI GdipClonePath(GpPath* path, GpPath** clone) {
    return Answer([&] { Give(clone, std::make_unique<PathObject>(Get<PathObject>(path))); });
}

GpStatus WINGDIPAPI GdipDeletePath(GpPath* path) {
    return Answer([&] { Destroy<PathObject>(path); });
}

GpStatus WINGDIPAPI GdipResetPath(GpPath* path) {
    return Answer([&] { Get<PathObject>(path).Clear(); });
}

GpStatus WINGDIPAPI GdipGetPointCount(GpPath* path, INT* count) {
    return Answer([&] { Out(count) = static_cast<INT>(Get<PathObject>(path).points.size()); });
}

GpStatus WINGDIPAPI GdipGetPathTypes(GpPath* path, BYTE* types, INT count) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        RequireArray(types, count);
        Require(static_cast<size_t>(count) >= own.types.size(), InsufficientBuffer);
        std::copy(own.types.begin(), own.types.end(), types);
    });
}

GpStatus WINGDIPAPI GdipGetPathPoints(GpPath* path, GpPointF* points, INT count) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        RequireArray(points, count);
        Require(static_cast<size_t>(count) >= own.points.size(), InsufficientBuffer);
        std::copy(own.points.begin(), own.points.end(), points);
    });
}

GpStatus WINGDIPAPI GdipGetPathPointsI(GpPath* path, GpPoint* points, INT count) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        RequireArray(points, count);
        Require(static_cast<size_t>(count) >= own.points.size(), InsufficientBuffer);
        for (size_t i = 0; i < own.points.size(); ++i)
            points[i] = {Rounded(own.points[i].X), Rounded(own.points[i].Y)};
    });
}

GpStatus WINGDIPAPI GdipGetPathFillMode(GpPath* path, GpFillMode* mode) {
    return Answer([&] { Out(mode) = Get<PathObject>(path).fillMode; });
}

GpStatus WINGDIPAPI GdipSetPathFillMode(GpPath* path, GpFillMode mode) {
    return Answer([&] {
        Require(mode == FillModeAlternate || mode == FillModeWinding);
        Get<PathObject>(path).fillMode = mode;
    });
}

GpStatus WINGDIPAPI GdipGetPathData(GpPath* path, GpPathData* data) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        PathData& out = *reinterpret_cast<PathData*>(&Out(data));
        Require(out.Points && out.Types);
        Require(out.Count >= 0 && static_cast<size_t>(out.Count) >= own.points.size(), InsufficientBuffer);
        std::copy(own.points.begin(), own.points.end(), out.Points);
        std::copy(own.types.begin(), own.types.end(), out.Types);
        out.Count = static_cast<INT>(own.points.size());
    });
}

GpStatus WINGDIPAPI GdipStartPathFigure(GpPath* path) {
    return Answer([&] { Get<PathObject>(path).starts = true; });
}

GpStatus WINGDIPAPI GdipClosePathFigure(GpPath* path) {
    return Answer([&] { Get<PathObject>(path).Close(); });
}

GpStatus WINGDIPAPI GdipClosePathFigures(GpPath* path) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        const std::vector<size_t> figures = Figures(own);
        for (size_t i = 1; i < figures.size(); ++i)
            own.types[figures[i] - 1] |= PathPointTypeCloseSubpath;
        own.starts = true;
    });
}

GpStatus WINGDIPAPI GdipSetPathMarker(GpPath* path) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        if (!own.types.empty())
            own.types.back() |= PathPointTypePathMarker;
    });
}

GpStatus WINGDIPAPI GdipClearPathMarkers(GpPath* path) {
    return Answer([&] {
        for (BYTE& type : Get<PathObject>(path).types)
            type &= ~PathPointTypePathMarker;
    });
}

GpStatus WINGDIPAPI GdipReversePath(GpPath* path) {
    return Answer([&] { Reverse(Get<PathObject>(path)); });
}

GpStatus WINGDIPAPI GdipGetPathLastPoint(GpPath* path, GpPointF* point) {
    return Answer([&] {
        const PathObject& own = Get<PathObject>(path);
        Require(point && !own.points.empty());
        *point = own.points.back();
    });
}

GpStatus WINGDIPAPI GdipTransformPath(GpPath* path, GpMatrix* matrix) {
    return Answer([&] {
        PathObject& own = Get<PathObject>(path);
        if (const MatrixObject* by = GetOrNull<MatrixObject>(matrix))
            own.Transform(by->matrix);
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
