// Makes calls from a seed and writes what they answer, a line each: GraphicsCalls SEED writes what every GDI+
// must answer in the same way, GraphicsCalls --hostile SEED makes calls with bad arguments and ends with how
// many there were.
#include <windows.h>
#include <objidl.h>
#include <gdiplus.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

namespace {

std::mt19937 generator;

int Whole(int least, int most) {
    return least + static_cast<int>(generator() % static_cast<unsigned>(most - least + 1));
}
// Eighths: nothing is rounded on the way.
REAL Eighths(int most) {
    return static_cast<REAL>(Whole(-most * 8, most * 8)) / 8;
}

void Say(const char* what, GpStatus status, std::initializer_list<REAL> values = {}) {
    std::printf("%s %d", what, status);
    for (const REAL value : values)
        std::printf(std::abs(value) < 100 ? " %.2f" : " %.4g",
                    std::abs(value) < 0.004f ? 0.0 : value + 0.0013);  // no number is just between two
    std::printf("\n");
}

void Matrices() {
    GpMatrix* matrix = nullptr;
    Say("CreateMatrix",
        GdipCreateMatrix2(Eighths(2), Eighths(2), Eighths(2), Eighths(2), Eighths(9), Eighths(9), &matrix));
    for (int i = 0; i < 4; ++i) {
        const auto order = static_cast<GpMatrixOrder>(Whole(0, 1));
        switch (Whole(0, 3)) {
            case 0:
                Say("Translate", GdipTranslateMatrix(matrix, Eighths(20), Eighths(20), order));
                break;
            case 1:
                Say("Scale", GdipScaleMatrix(matrix, Eighths(2), Eighths(2), order));
                break;
            case 2:
                Say("Rotate", GdipRotateMatrix(matrix, REAL(Whole(-400, 400)), order));
                break;
            default:
                Say("Shear", GdipShearMatrix(matrix, Eighths(1), Eighths(1), order));
        }
    }
    REAL e[6];
    const GpStatus status = GdipGetMatrixElements(matrix, e);
    Say("Elements", status, {e[0], e[1], e[2], e[3], e[4], e[5]});
    PointF point(Eighths(10), Eighths(10));
    const GpStatus mapped = GdipTransformMatrixPoints(matrix, &point, 1);
    Say("Points", mapped, {point.X, point.Y});
    GdipDeleteMatrix(matrix);
}

void Paths() {
    GpPath* path = nullptr;
    GdipCreatePath(static_cast<GpFillMode>(Whole(0, 1)), &path);
    for (int i = Whole(1, 5); i > 0; --i) {
        switch (Whole(0, 5)) {
            case 0:
                Say("Line", GdipAddPathLine(path, Eighths(50), Eighths(50), Eighths(50), Eighths(50)));
                break;
            case 1:
                Say("Rectangle",
                    GdipAddPathRectangleI(path, Whole(-50, 50), Whole(-50, 50), Whole(1, 60), Whole(1, 60)));
                break;
            case 2:
                Say("Arc", GdipAddPathArcI(path, 3, -4, Whole(1, 60), Whole(1, 60), REAL(Whole(-90, 400)),
                                           REAL(Whole(10, 340))));
                break;
            case 3:
                Say("Ellipse", GdipAddPathEllipse(path, Eighths(20), Eighths(20), REAL(Whole(1, 90)),
                                                  REAL(Whole(1, 90))));
                break;
            case 4:
                Say("Close", GdipClosePathFigure(path));
                break;
            default:
                Say("Start", GdipStartPathFigure(path));
        }
    }
    INT count = 0;
    Say("Count", GdipGetPointCount(path, &count), {REAL(count)});
    std::vector<PointF> points(static_cast<size_t>(count));
    std::vector<BYTE> types(static_cast<size_t>(count));
    if (count > 0) {
        GdipGetPathPoints(path, points.data(), count);
        GdipGetPathTypes(path, types.data(), count);
    }
    // Wine's leaves the type of a line to the first point after a closed figure, which begins one all the
    // same.
    for (size_t i = 1; i < types.size(); ++i)
        if ((types[i - 1] & PathPointTypeCloseSubpath) &&
            (types[i] & PathPointTypePathTypeMask) == PathPointTypeLine)
            types[i] = static_cast<BYTE>(types[i] & ~PathPointTypePathTypeMask);
    for (INT i = 0; i < count; ++i)
        Say("Point", Ok, {REAL(types[size_t(i)]), points[size_t(i)].X, points[size_t(i)].Y});
    GdipDeletePath(path);
}

void Fills() {
    GpBitmap* bitmap = nullptr;
    GpGraphics* graphics = nullptr;
    GdipCreateBitmapFromScan0(60, 40, 0, PixelFormat32bppARGB, nullptr, &bitmap);
    GdipGetImageGraphicsContext(bitmap, &graphics);
    Say("Clear", GdipGraphicsClear(graphics, 0xFF102030));
    for (int i = 0; i < 6; ++i) {
        GpSolidFill* brush = nullptr;
        GdipCreateSolidFill(0xFF000000 | generator() % 0xFFFFFF, &brush);
        if (Whole(0, 2) == 0)
            Say("Clip", GdipSetClipRectI(graphics, Whole(-5, 30), Whole(-5, 20), Whole(5, 50), Whole(5, 50),
                                         static_cast<CombineMode>(Whole(0, 1))));
        if (Whole(0, 3) == 0)
            Say("Shift", GdipTranslateWorldTransform(graphics, REAL(Whole(-3, 3)), REAL(Whole(-3, 3)),
                                                     MatrixOrderPrepend));
        Say("Fill",
            GdipFillRectangleI(graphics, brush, Whole(-10, 50), Whole(-10, 30), Whole(1, 40), Whole(1, 40)));
        GdipDeleteBrush(brush);
    }
    RectF box;
    const GpStatus status = GdipGetVisibleClipBounds(graphics, &box);
    Say("VisibleClip", status, {box.X, box.Y, box.Width, box.Height});
    unsigned hash = 2166136261u;
    for (INT y = 0; y < 40; ++y)
        for (INT x = 0; x < 60; ++x) {
            ARGB color = 0;
            GdipBitmapGetPixel(bitmap, x, y, &color);
            hash = (hash ^ color) * 16777619u;
        }
    std::printf("Pixels %08x\n", hash);
    GdipDeleteGraphics(graphics);
    GdipDisposeImage(bitmap);
}

REAL Bad() {
    const REAL values[] = {0,
                           -1,
                           1e30f,
                           -1e30f,
                           std::numeric_limits<REAL>::infinity(),
                           -std::numeric_limits<REAL>::infinity(),
                           std::numeric_limits<REAL>::quiet_NaN(),
                           7.5f,
                           1e-30f};
    return values[generator() % 9];
}

int Hostile() {
    int calls = 0;
    GpBitmap* bitmap = nullptr;
    GdipCreateBitmapFromScan0(60, 40, 0, PixelFormat32bppPARGB, nullptr, &bitmap);
    GpGraphics* graphics = nullptr;
    GdipGetImageGraphicsContext(bitmap, &graphics);
    GpSolidFill* freed = nullptr;
    GdipCreateSolidFill(1, &freed);
    GdipDeleteBrush(freed);
    int foreign[16] = {};
    void* const wrong[] = {
        nullptr, freed, foreign, graphics, reinterpret_cast<void*>(8), reinterpret_cast<void*>(-16)};
    for (int i = 0; i < 4000; ++i) {
        void* const handle = wrong[generator() % 6];
        if (GdipFillRectangle(graphics, static_cast<GpBrush*>(handle), 1, 2, 3, 4) != InvalidParameter ||
            GdipDeletePen(static_cast<GpPen*>(handle)) != InvalidParameter ||
            GdipDrawImageI(graphics, static_cast<GpImage*>(handle), 1, 2) != InvalidParameter)
            return -1;
        GpPen* pen = nullptr;
        GdipCreatePen1(generator(), Bad(), static_cast<GpUnit>(Whole(-1, 7)), &pen);
        GpPath* path = nullptr;
        GdipCreatePath(FillModeAlternate, &path);
        GdipAddPathArc(path, Bad(), Bad(), Bad(), Bad(), Bad(), Bad());
        GdipAddPathBezier(path, Bad(), Bad(), Bad(), Bad(), Bad(), Bad(), Bad(), Bad());
        GdipAddPathEllipse(path, Bad(), Bad(), Bad(), Bad());
        GdipSetPenDashStyle(pen, static_cast<GpDashStyle>(Whole(-1, 6)));
        GdipSetSmoothingMode(graphics, static_cast<SmoothingMode>(Whole(-1, 6)));
        GdipScaleWorldTransform(graphics, Bad(), Bad(), static_cast<GpMatrixOrder>(Whole(-1, 2)));
        GdipDrawPath(graphics, pen, path);
        GdipDrawEllipse(graphics, pen, Bad(), Bad(), Bad(), Bad());
        GdipSetClipRect(graphics, Bad(), Bad(), Bad(), Bad(), static_cast<CombineMode>(Whole(-1, 6)));
        GdipSetClipPath(graphics, path, static_cast<CombineMode>(Whole(-1, 6)));
        RectF box;
        GdipGetVisibleClipBounds(graphics, &box);
        if (Whole(0, 3) == 0) {
            GdipResetWorldTransform(graphics);
            GdipResetClip(graphics);
        }
        GdipDeletePath(path);
        GdipDeletePen(pen);
        calls += 17;
    }
    GdipDeleteGraphics(graphics);
    GdipDisposeImage(bitmap);
    return calls;
}

}  // namespace

int main(int count, char** arguments) {
    const bool hostile = count > 2 && std::strcmp(arguments[1], "--hostile") == 0;
    generator.seed(static_cast<unsigned>(std::atoi(count > 1 ? arguments[count - 1] : "1")));
    ULONG_PTR token = 0;
    GdiplusStartupInput input;
    if (GdiplusStartup(&token, &input, nullptr) != Ok)
        return 1;
    if (hostile) {
        const int calls = Hostile();
        std::printf("%d calls\n", calls);
        return calls > 0 ? 0 : 1;
    }
    for (int i = 0; i < 200; ++i) {
        Matrices();
        Paths();
        Fills();
    }
    GdiplusShutdown(token);
    return 0;
}
