// What shapes and lines look like: every setting that changes a pixel, on one sheet each.
#include "appearance/UIObjectRectangle.h"
#include "canvas/UITool.h"
#include "core/UIObjectPoly.h"
#include "support/Golden.h"
#include "support/Surface.h"

#include <gtest/gtest.h>

#include <memory>

namespace Lumo {

namespace {

constexpr int kColumns = 9, kWide = 62, kHigh = 48;

/// Cells from left to right and from top to bottom; each gets what is painted at its place.
class Cells {
public:
    explicit Cells(int rows) : m_height(rows * kHigh), m_surface(kColumns * kWide, m_height) {}
    Gdiplus::PointF Next() {
        const int cell = m_count++;
        const int row = cell / kColumns;
        return {static_cast<float>(cell % kColumns * kWide), static_cast<float>(row * kHigh)};
    }
    Gdiplus::Graphics* operator->() { return &m_surface.graphics(); }
    operator Gdiplus::Graphics*() { return m_surface; }
    Pixels All() {
        Pixels pixels{kColumns * kWide, m_height, {}};
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < pixels.width; ++x)
                pixels.rgb.push_back(m_surface.At(x, y) & 0xFFFFFF);
        return pixels;
    }

private:
    int m_height;
    Surface m_surface;
    int m_count = 0;
};

using Change = void (*)(CUIObject&);

CUIShapeFormatFill& Fill(CUIObject& object) {
    return object.GetCoordinate().Format<CUIShapeFormatFill>();
}

CUIShapeFormatLineColor& Line(CUIObject& object) {
    return object.GetCoordinate().Format<CUIShapeFormatLineColor>();
}

const Change kShapes[] = {
    [](CUIObject&) {},
    [](CUIObject& o) { o.SetLineWidth(8); },
    [](CUIObject& o) { o.SetFillShapeMode(2), o.SetFillColor(0xFF20C040), o.SetFillAlpha(99.5f); },
    [](CUIObject& o) { o.SetFillShapeMode(0); },
    [](CUIObject& o) { o.SetFillShapeMode(7), o.SetLineShapeMode(2), o.SetLineAlpha(70.9f); },
    [](CUIObject& o) { o.SetLineShapeMode(0); },
    [](CUIObject& o) { Fill(o).m_bEnabled = 0, o.SetLineColor(0x00C02010); },
    [](CUIObject& o) { Line(o).m_bEnabled = 0, o.SetFillAlpha(255); },
    [](CUIObject& o) {
        o.SetLineShapeMode(3), o.SetFillShapeMode(3), Fill(o).m_dwGradientColor = 0xFFE0C000;
    },
    [](CUIObject& o) {
        o.SetPosition({o.GetPosition().X + 40, o.GetPosition().Y + 30, -37, -28});
    },
};

TEST(Pictures, RectanglesAndEllipses) {
    Cells cells(7);
    for (int ellipse = 0; ellipse < 2; ++ellipse)
        for (const Change change : kShapes)
            for (int stage = 0; stage < 3; ++stage) {
                const Gdiplus::PointF at = cells.Next();
                const Gdiplus::RectF place(at.X + 9, at.Y + 8, 41, 29);
                std::unique_ptr<CUIObjectRectangle> rectangle;
                std::unique_ptr<CUIObjectEllipse> oval;
                CUIObject* object = nullptr;
                if (ellipse)
                    object = (oval = std::make_unique<CUIObjectEllipse>(place, DS_ELLIPSE)).get();
                else
                    object = (rectangle = std::make_unique<CUIObjectRectangle>(place, DS_RECTANGLE)).get();
                object->GetCoordinate().Format<CUIShapeFormatText>().m_bEnabled = 0;
                object->SetPositionOffset({2, -3});
                change(*object);
                Gdiplus::PointF nowhere(500, 500);
                if (stage == 0)
                    object->Draw(cells);
                else if (stage == 1)
                    ellipse ? oval->DrawDragImage(cells, nowhere) : rectangle->DrawDragImage(cells, nowhere);
                else
                    ellipse ? oval->DrawContents(cells) : rectangle->DrawContents(cells),
                        object->DrawTracker(cells);
            }
    ExpectGolden(cells.All(), "appearance", "shapes");
}

const Change kLines[] = {
    [](CUIObject&) {},
    [](CUIObject& o) { o.SetLineWidth(5), o.SetLineStartCap(0), o.SetLineEndCap(Gdiplus::LineCapCustom); },
    [](CUIObject& o) { o.SetLineWidth(3), o.SetLineStartCap(2), o.SetLineEndCap(19); },
    [](CUIObject& o) {
        o.SetLineShapeMode(2), o.SetLineColor(0x00C02010), o.SetLineAlpha(127.9f), o.SetLineWidth(4);
    },
    [](CUIObject& o) { o.SetLineShapeMode(3); },
    [](CUIObject& o) {
        o.SetLineAlignment(1), o.SetLineWidth(2.5f), o.SetLineStartCap(20), o.SetLineEndCap(17);
    },
    [](CUIObject& o) { static_cast<CUIObjectPoly&>(o).SetMaxPoints(3); },
    [](CUIObject& o) { static_cast<CUIObjectPoly&>(o).RectMode(); },
    [](CUIObject& o) { static_cast<CUIObjectPoly&>(o).NewPoints(0); },
};

TEST(Pictures, LinesAndPolylines) {
    const DrawShape before = std::exchange(CUIToolBase::run_drawshape, DS_LINE);
    Cells cells(6);
    for (int many = 0; many < 2; ++many)
        for (const Change change : kLines)
            for (int stage = 0; stage < 3; ++stage) {
                const Gdiplus::PointF at = cells.Next();
                std::unique_ptr<CUIObjectPoly> figure;
                if (many)
                    figure = std::make_unique<CUIObjectPolyLine>(Gdiplus::RectF(), DS_POLYLINE);
                else
                    figure = std::make_unique<CUIObjectLine>(Gdiplus::RectF(), DS_LINE);
                Gdiplus::PointF points[] = {
                    {at.X + 9, at.Y + 9}, {at.X + 46, at.Y + 17}, {at.X + 30, at.Y + 35}};
                for (int i = 0; i < 2 + many; ++i)
                    figure->AddPoint(points[i]);
                figure->MoveTo(1, {-13, -6});  // the free end
                change(*figure);
                figure->Draw(nullptr), figure->DrawDragImage(nullptr, {}), figure->DrawTracker(nullptr);
                if (stage == 0)
                    figure->Draw(cells);
                else if (stage == 1)
                    figure->DrawDragImage(cells, {4, 7});
                else
                    figure->DrawTracker(cells);
            }
    CUIToolBase::run_drawshape = before;
    ExpectGolden(cells.All(), "appearance", "lines");
}

}  // namespace

}  // namespace Lumo
