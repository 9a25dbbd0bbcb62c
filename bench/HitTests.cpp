// Finding objects under the pointer.
#include "bench/Page.h"
#include "bench/Table.h"

#include "core/UIObjectPoly.h"

using namespace Lumo;

namespace bench {

namespace {

CUIObjectPoly* AddPolyline(Page& page, int points, float x, float y) {
    auto* figure = static_cast<CUIObjectPoly*>(page.Add(DS_POLYLINE, x, y, 0, 0));
    for (int i = 0; i < points; ++i) {
        Gdiplus::PointF point(x + static_cast<float>(i), y + static_cast<float>(i % 7));
        figure->AddPoint(point);
    }
    return figure;
}

double SecondsPerMiss(Page& page, int objects) {
    CPoint nowhere(-500, -500);
    std::vector<double> seconds(51);
    for (double& second : seconds)
        second = Seconds([&] { page.document->ObjectAt(nowhere); });
    return Median(seconds) / objects;
}

void MeasureMisses(std::vector<Line>& lines) {
    Page rectangles(400, 300);
    for (int i = 0; i < 10000; ++i)
        rectangles.Add(DS_RECTANGLE, static_cast<float>(i % 300), static_cast<float>(i % 200), 20, 10);
    lines.push_back({"ObjectAt that misses, per rectangle of 10,000", SecondsPerMiss(rectangles, 10000) * 1e9,
                     "ns", 15, false, ""});
    Page lines20(400, 300);
    for (int i = 0; i < 1000; ++i)
        AddPolyline(lines20, 20, static_cast<float>(i % 300), static_cast<float>(i % 200));
    lines.push_back({"ObjectAt that misses, per polyline of 20 points of 1,000",
                     SecondsPerMiss(lines20, 1000) * 1e9, "ns", 60, false, ""});
}

void MeasureHover(std::vector<Line>& lines) {
    Page page(1280, 800, true);
    page.canvas->Select(AddPolyline(page, 1000, 50, 100), 0);
    page.canvas->UpdateWindow();
    constexpr int kMoves = 1000;
    const double seconds = Seconds([&] {
        for (int i = 0; i < kMoves; ++i)
            page.canvas->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(100 + i % 900, 300));
    });
    lines.push_back({"hover over a selected polyline of 1,000 points, per move", seconds / kMoves * 1e6, "us",
                     50, false, ""});
}

}  // namespace

void MeasureHitTests(std::vector<Line>& lines) {
    MeasureMisses(lines);
    MeasureHover(lines);
}

}  // namespace bench
