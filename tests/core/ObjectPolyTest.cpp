#include "core/UIObjectPoly.h"

#include <algorithm>
#include <vector>

#include "canvas/UITool.h"
#include "support/Bytes.h"
#include "support/Geometry.h"
#include "support/PaintScopes.h"
#include "support/Surface.h"

#include <gtest/gtest.h>

namespace Lumo {

namespace {

constexpr int kPolyLineBody = 65536;

class PolyTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_shape = CUIToolBase::run_drawshape;
        m_last = CUIToolBase::run_last;
        CUIToolBase::run_drawshape = DS_SELECT;
    }
    void TearDown() override {
        CUIToolBase::run_drawshape = m_shape;
        CUIToolBase::run_last = m_last;
    }

    static void Add(CUIObjectPoly& poly, std::initializer_list<Gdiplus::PointF> points) {
        for (Gdiplus::PointF point : points)
            EXPECT_EQ(poly.AddPoint(point), 1);
    }
    static std::vector<Spot> Points(CUIObjectPoly& poly) {
        return {poly.NormalizePoints()->begin(), poly.NormalizePoints()->end()};
    }
    static int Hit(CUIObject& object, float x, float y, int selected) {
        Gdiplus::PointF point(x, y);
        return object.HitTest(point, selected);
    }
    static int Last(CUIObjectPoly& poly, int ahead) {
        Gdiplus::PointF point;
        return poly.LastPoint(point, ahead);
    }

    CUIObjectLine m_line{{0, 0, 0, 0}, DS_LINE};
    CUIObjectPolyLine m_polyLine{{0, 0, 0, 0}, DS_POLYLINE};

private:
    DrawShape m_shape;
    CPoint m_last;
};

}  // namespace

TEST_F(PolyTest, CountsHandlesByTheMostPoints) {
    EXPECT_EQ(m_line.GetHandleCount(), 3);
    EXPECT_EQ(m_polyLine.GetHandleCount(), 65537);
    EXPECT_EQ(CUIObjectPoly().GetHandleCount(), 1);
    EXPECT_EQ(CUIObjectPoly({0, 0, 1, 1}, DS_LINE).GetHandleCount(), 1);
    EXPECT_EQ(m_line.GetRectMode(), 0);
    EXPECT_EQ(m_line.GetType(), DS_LINE);
    EXPECT_EQ(m_polyLine.GetType(), -1);
}

TEST_F(PolyTest, KnowsItsLastPoint) {
    EXPECT_EQ(Last(m_line, 1), 0);
    Add(m_line, {{1, 1}});
    EXPECT_EQ(Last(m_line, 0), 0);
    EXPECT_EQ(Last(m_line, 1), 1);
    Add(m_line, {{2, 2}});
    EXPECT_EQ(Last(m_line, 0), 1);
}

TEST_F(PolyTest, BoundsFollowThePoints) {
    EXPECT_EQ(m_polyLine.RecalcBounds(), 0);
    Add(m_polyLine, {{30, 40}});
    EXPECT_EQ(Box(m_polyLine.GetPosition()), Box(30, 40, 0, 0));
    Add(m_polyLine, {{10, 90}, {25, 5}});
    EXPECT_EQ(Box(m_polyLine.GetPosition()), Box(10, 5, 20, 85));
}

TEST_F(PolyTest, SelectingMovesOnePointOrAll) {
    Add(m_line, {{0, 0}, {10, 10}});
    m_line.MoveTo(1, {5.5f, -3});
    EXPECT_EQ(Points(m_line), (std::vector<Spot>{{0, 0}, {15.5f, 7}}));
    EXPECT_EQ(Box(m_line.GetPosition()), Box(0, 0, 15.5f, 7));
    m_line.MoveTo(2, {1, 2});
    EXPECT_EQ(Points(m_line), (std::vector<Spot>{{1, 2}, {16.5f, 9}}));
    m_line.MoveTo(2, {0, 0});
    EXPECT_EQ(Spot(m_line.GetPendingOffset()), Spot(0, 0));
    m_line.MoveTo(3, {4, 4});
    m_line.MoveTo(-1, {1, 0});
    EXPECT_EQ(Spot(m_line.GetPendingOffset()), Spot(5, 4));
    EXPECT_EQ(Points(m_line), (std::vector<Spot>{{1, 2}, {16.5f, 9}}));
}

TEST_F(PolyTest, HandleBeyondThePointsMovesNothing) {
    Add(m_polyLine, {{0, 0}, {10, 10}});
    m_polyLine.SetPosition({500, 500, 1, 1});
    m_polyLine.MoveTo(2, {5, 5});
    EXPECT_EQ(Points(m_polyLine), (std::vector<Spot>{{0, 0}, {10, 10}}));
    EXPECT_EQ(Box(m_polyLine.GetPosition()), Box(0, 0, 10, 10));
    m_line.MoveTo(2, {5, 5});
    EXPECT_TRUE(Points(m_line).empty());
}

TEST_F(PolyTest, DrawingMovesTheFreeEndOnly) {
    CUIToolBase::run_drawshape = DS_LINE;
    Add(m_line, {{0, 0}, {10, 10}});
    m_line.MoveTo(1, {5, 5});
    m_line.MoveTo(2, {1, 2});
    EXPECT_EQ(Spot(m_line.GetPendingOffset()), Spot(6, 7));
    EXPECT_EQ(Points(m_line), (std::vector<Spot>{{0, 0}, {10, 10}}));
}

TEST_F(PolyTest, HandlePointsAndCursors) {
    Add(m_polyLine, {{3, 4}, {10, 10}});
    CUIToolBase::run_last = CPoint(77, 88);
    EXPECT_EQ(Spot(m_polyLine.GetHandlePoint(0)), Spot(3, 4));
    EXPECT_EQ(Spot(m_polyLine.GetHandlePoint(2)), Spot(0, 0));
    EXPECT_EQ(Spot(m_polyLine.GetHandlePoint(-1)), Spot(0, 0));
    EXPECT_EQ(Spot(m_polyLine.GetHandlePoint(kPolyLineBody)), Spot(77, 88));
    EXPECT_EQ(Box(m_polyLine.GetHandleRect(0)), Box(-1, 0, 8, 8));
    EXPECT_EQ(Box(m_polyLine.GetHandleRect(kPolyLineBody)), Box(4, 5, 5, 4));
    EXPECT_EQ(m_polyLine.GetHandleCursor(kPolyLineBody), ::LoadCursor(nullptr, IDC_CROSS));
    EXPECT_EQ(m_polyLine.GetHandleCursor(kPolyLineBody + 1), ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(m_polyLine.GetHandleCursor(-1), ::LoadCursor(nullptr, IDC_ARROW));
}

TEST_F(PolyTest, HitsSegmentsNotTheBox) {
    EXPECT_EQ(Hit(m_line, 0, 0, 0), -1);
    Add(m_line, {{10, 10}, {110, 110}});
    // The tested point is one unit left of and above the pointer.
    EXPECT_EQ(Hit(m_line, 61, 61, 0), 2);
    EXPECT_EQ(Hit(m_line, 61, 65, 0), 2);
    EXPECT_EQ(Hit(m_line, 61, 75, 0), -1);
    EXPECT_EQ(Hit(m_line, 100, 20, 0), -1);
    m_line.SetLineWidth(40);
    EXPECT_EQ(Hit(m_line, 61, 75, 0), 2);
    m_line.SetRectMode(1);
    EXPECT_EQ(Hit(m_line, 100, 20, 0), 2);
}

TEST_F(PolyTest, HitsAnyOfManySegments) {
    for (int i = 0; i <= 1000; ++i)
        Add(m_polyLine, {{static_cast<float>(i * 4), i % 2 != 0 ? 20.0f : 0.0f}});
    EXPECT_EQ(Hit(m_polyLine, 2001, 1, 0), kPolyLineBody);
    EXPECT_EQ(Hit(m_polyLine, 2001, 40, 0), -1);
    EXPECT_EQ(Hit(m_polyLine, 5000, 1, 0), -1);
}

// The test answers what the outlines of the segments answer, however it gets there.
TEST_F(PolyTest, HitsWhereAWidenedSegmentIs) {
    const std::vector<Gdiplus::PointF> points = {{20, 20}, {60, 35}, {60, 35.5f}, {40, 60}, {40, 60}};
    Gdiplus::GraphicsPath paths[4];
    for (size_t i = 0; i < points.size(); ++i) {
        Add(m_polyLine, {points[i]});
        if (i > 0) {
            paths[i - 1].AddLine(points[i - 1], points[i]);
            paths[i - 1].CloseFigure();
        }
    }
    m_polyLine.SetLineWidth(7);
    Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 9);  // half the line and 6 for the hand
    int hits = 0;
    for (float y = 8; y < 76; y += 1.25f)
        for (float x = 8; x < 76; x += 1.25f) {
            Gdiplus::RectF rect(x, y, 2, 2);
            const bool want = std::ranges::any_of(paths, [&](const Gdiplus::GraphicsPath& path) {
                return path.IsOutlineVisible(Gdiplus::PointF(x, y), &pen) != FALSE;
            });
            EXPECT_EQ(m_polyLine.HitTest(rect), want) << x << ", " << y;
            hits += want;
        }
    EXPECT_GT(hits, 100);
}

TEST_F(PolyTest, SelectedHitTriesThePointsThenTheBody) {
    Add(m_polyLine, {{100, 100}, {200, 100}, {200, 200}});
    EXPECT_EQ(Hit(m_polyLine, 201, 101, 1), 1);
    EXPECT_EQ(Hit(m_polyLine, 150, 150, 1), kPolyLineBody);
    EXPECT_EQ(Hit(m_polyLine, 300, 300, 1), -1);
    // Handles without a point do not catch at the page's origin.
    EXPECT_EQ(Hit(m_polyLine, 0, 0, 1), -1);
    m_polyLine.SetRectMode(1);
    EXPECT_EQ(Hit(m_polyLine, 100, 200, 1), 3);
    EXPECT_EQ(Hit(m_polyLine, 0, 0, 1), -1);
}

TEST_F(PolyTest, SelectedHitAsksForNoHandleWithoutAPoint) {
    struct Counter : CUIObjectPolyLine {
        using CUIObjectPolyLine::CUIObjectPolyLine;
        Gdiplus::RectF GetHandleRect(int handle) override {
            ++m_asked;
            return CUIObjectPolyLine::GetHandleRect(handle);
        }
        int m_asked = 0;
    } counter({0, 0, 0, 0}, DS_POLYLINE);
    Add(counter, {{100, 100}, {200, 100}, {200, 200}});
    EXPECT_EQ(Hit(counter, 500, 500, 1), -1);
    EXPECT_LE(counter.m_asked, 4);
}

TEST_F(PolyTest, SelectedHitTriesTheHandlesThatAHostAdds) {
    struct WithHooks : CUIObjectLine {
        using CUIObjectLine::CUIObjectLine;
        int GetHandleCount() override { return 5; }
        Gdiplus::PointF GetHandlePoint(int handle) override {
            if (handle == 2 || handle == 3)
                return {30.0f * static_cast<float>(handle), 200};
            return CUIObjectLine::GetHandlePoint(handle);
        }
    } line({0, 0, 0, 0}, DS_LINE);
    Add(line, {{100, 100}, {180, 150}});
    EXPECT_EQ(Hit(line, 180, 150, 1), 1);
    EXPECT_EQ(Hit(line, 61, 203, 1), 2);
    EXPECT_EQ(Hit(line, 91, 199, 1), 3);
    EXPECT_EQ(Hit(line, 140, 120, 1), 4);
    EXPECT_EQ(Hit(line, 120, 200, 1), -1);
}

TEST_F(PolyTest, RectangleModeEditsTheBox) {
    Add(m_polyLine, {{0, 0}, {100, 100}});
    m_polyLine.RectMode();
    EXPECT_EQ(m_polyLine.GetRectMode(), 1);
    EXPECT_EQ(Spot(m_polyLine.GetHandlePoint(2)), Spot(100, 100));
    m_polyLine.MoveTo(2, {10, 10});
    EXPECT_EQ(Box(m_polyLine.GetPosition()), Box(0, 0, 110, 110));
    EXPECT_EQ(Points(m_polyLine), (std::vector<Spot>{{0, 0}, {100, 100}}));
    m_polyLine.RectMode();
    EXPECT_EQ(m_polyLine.GetRectMode(), 0);
    m_line.SetRectMode(1);
    m_line.RectMode();
    EXPECT_EQ(m_line.GetRectMode(), 0);
}

TEST_F(PolyTest, TurningAndFlippingLeaveThePoints) {
    Add(m_line, {{0, 0}, {40, 20}});
    m_line.RotatePoints(90, {20, 10}, {0, 0, 40, 20});
    m_line.Invert(1);
    EXPECT_EQ(m_line.GetRectMode(), 0);
    EXPECT_EQ(Box(m_line.GetPosition()), Box(40, 0, 40, 20));
    m_line.SetPosition({0, 0, 40, 20});
    m_line.Rotate(90);
    EXPECT_EQ(Box(m_line.GetPosition()), Box(10, -10, 20, 40));
    EXPECT_EQ(Points(m_line), (std::vector<Spot>{{0, 0}, {40, 20}}));
}

TEST_F(PolyTest, NewPointsAreTheLiveOnes) {
    std::deque<Gdiplus::PointF>* points = m_polyLine.NewPoints(3);
    EXPECT_EQ(points, m_polyLine.NormalizePoints());
    (*points)[1] = {5, 6};
    EXPECT_EQ(Points(m_polyLine), (std::vector<Spot>{{0, 0}, {5, 6}, {0, 0}}));
    CUIObjectPolyLine copy(m_polyLine);
    m_polyLine.NewPoints(-1);
    EXPECT_TRUE(Points(m_polyLine).empty());
    EXPECT_EQ(Points(copy).size(), 3u);
    Gdiplus::RectF rect(1, 2, 3, 4);
    copy.SetRectMode(1);
    copy.Init(DS_POLYLINE, rect);
    EXPECT_TRUE(Points(copy).empty());
    EXPECT_EQ(copy.GetRectMode(), 0);
}

TEST_F(PolyTest, ArchiveHoldsLowWordsAndNoPoints) {
    CUIObjectPolyLine stored({5, 6, 70000.9f, 40.9f}, DS_POLYLINE);
    Add(stored, {{5, 6}, {15, 26}});
    Bytes want = ObjectBase(2, L"PolyLine", 5, 6, 10, 20);
    want.W(70000 & 0xFFFF).W(40).W(0).W(0);
    EXPECT_TRUE(SameBytes(Stored(stored), want));

    CUIObjectPolyLine loaded({0, 0, 0, 0}, DS_POLYLINE);
    EXPECT_EQ(Load(loaded, want), 0u);
    EXPECT_EQ(loaded.GetMaxPoints(), 0);
    EXPECT_TRUE(Points(loaded).empty());
    EXPECT_TRUE(SameBytes(Stored(loaded), want));

    Bytes high = ObjectBase(1, L"Line", 0, 0, 1, 1);
    EXPECT_EQ(Load(m_line, high.W(1).W(2).W(0xFFFF).W(3)), 0u);
    EXPECT_EQ(m_line.GetMaxPoints(), 0xFFFF);
}

// Caps reach beyond the points, and segments are left out one by one.
TEST_F(PolyTest, PaintScopeChangesNoPixelOfTheUpdate) {
    Add(m_line, {{60, 60}, {130, 90}});
    m_line.SetLineWidth(5);
    Add(m_polyLine, {{21, 158}, {58, 182}, {102, 158}, {178, 158}, {178, 21}});
    m_polyLine.SetLineWidth(8);
    m_polyLine.SetLineShapeMode(2);
    ExpectSamePixelsInEveryUpdate(200, 200, 20, [&](Surface& surface) {
        m_line.Draw(surface);
        m_polyLine.Draw(surface);
        m_polyLine.DrawTracker(surface);
    });
}

}  // namespace Lumo
