// Where objects stand, and how far they paint.
#include "StudioFixture.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/UniqueNames.h"
#include "support/Surface.h"

#include <gtest/gtest.h>

using namespace Studio;
using Gdiplus::RectF;
using Lumo::CUIObject;

class GeometryTest : public StudioFixture {};

TEST_F(GeometryTest, ABandCatchesALineAndNotItsBox) {
    CUIObject* line = Add(Lumo::DS_LINE, 110, 40, -80, 120);
    const struct {
        RectF band;
        bool caught;
    } rows[] = {
        {{35, 130, 20, 20}, true}, {{60, 90, 21, 9}, true},    {{20, 99, 100, 1}, true},
        {{30, 40, 30, 40}, false}, {{85, 120, 25, 40}, false}, {{111, 30, 9, 140}, false},
        {{105, 35, 20, 20}, true}, {{20, 155, 15, 30}, true},  {{20, 161, 30, 9}, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Touches(*line, row.band), row.caught) << row.band.X << ", " << row.band.Y;
}

TEST_F(GeometryTest, HandlesResizeTheirEdgesAndNothingShrinksToNothing) {
    const RectF start(20, 30, 50, 70);
    const struct {
        int handle;
        float dx, dy;
        bool keepShape;
        RectF expected;
    } rows[] = {
        {0, 7, 9, false, {27, 39, 43, 61}},    {1, 7, 9, false, {20, 39, 57, 61}},
        {2, 7, 9, false, {20, 30, 57, 79}},    {3, 7, 9, false, {27, 30, 43, 79}},
        {4, 7, 9, false, {20, 39, 50, 61}},    {5, 7, 9, false, {20, 30, 57, 70}},
        {6, 7, 9, false, {20, 30, 50, 79}},    {7, 7, 9, false, {27, 30, 43, 70}},
        {5, -50, 9, false, {20, 30, 1, 70}},   {6, 7, -70, false, {20, 30, 50, 1}},
        {0, 60, 80, false, {70, 100, 10, 10}}, {2, 50, 14, true, {20, 30, 100, 140}},
        {0, 10, -35, true, {-5, -5, 75, 105}}, {5, 50, 14, true, {20, 30, 100, 70}},
    };
    for (const auto& row : rows) {
        const RectF bounds = ResizedBounds(start, row.handle, {row.dx, row.dy}, row.keepShape);
        EXPECT_TRUE(bounds.Equals(row.expected)) << row.handle << " by " << row.dx << ": " << bounds.X << ", "
                                                 << bounds.Y << ", " << bounds.Width << ", " << bounds.Height;
    }
}

TEST_F(GeometryTest, NothingIsPaintedBeyondTheMargin) {
    for (const auto kind : {Lumo::DS_LINE, Lumo::DS_POLYLINE, Lumo::DS_RECTANGLE, Lumo::DS_ELLIPSE}) {
        for (const float width : {1.0f, 7.0f, 15.0f}) {
            SCOPED_TRACE(static_cast<int>(kind) * 100 + static_cast<int>(width));
            CUIObject* object = Add(kind, 150, 110, 70, 23);
            object->SetLineWidth(width);
            Surface surface(400, 300);
            object->Draw(surface);
            const CRect painted = surface.Painted();
            RectF bounds = object->GetPosition();
            const float margin = PaintMargin(*object);
            bounds.Inflate(margin, margin);
            EXPECT_FALSE(painted.IsRectEmpty());
            EXPECT_TRUE(bounds.Contains(
                RectF(static_cast<float>(painted.left), static_cast<float>(painted.top),
                      static_cast<float>(painted.Width()), static_cast<float>(painted.Height()))));
        }
    }
}

TEST_F(GeometryTest, NamesThatDifferInCaseAreTheSame) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 30, 40)->SetShapeName(L"PUMP");
    Add(Lumo::DS_RECTANGLE, 50, 20, 30, 40)->SetShapeName(L"Ärmel");
    for (const auto& [name, given] :
         {std::pair(L"pump", L"pump1"), std::pair(L"äRMEL", L"äRMEL1"), std::pair(L"pumps", L"pumps")}) {
        const ObjectPtr object = MakeDrawnObject(Lumo::DS_ELLIPSE, RectF(1, 2, 3, 4));
        object->SetShapeName(name);
        UniqueNames(Page()).Adopt(*object);
        EXPECT_STREQ(object->GetShapeName(), given);
    }
}

TEST_F(GeometryTest, APressTakesTheFocus) {
    m_parent.ShowWindow(SW_SHOW);
    Page().ShowWindow(SW_SHOW);
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN}) {
        ::SetFocus(m_parent);
        Mouse(message, 77, 31);
        EXPECT_EQ(::GetFocus(), Page().m_hWnd);
        Mouse(WM_LBUTTONUP, 77, 31);
    }
}
