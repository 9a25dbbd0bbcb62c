// Shapes that a damaged file puts very far away or makes very large: drawn where that makes sense, else left
// out.
#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "core/EllipseOutline.h"
#include "core/Geometry.h"
#include "core/UIObjectPoly.h"
#include "support/Surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Lumo;
using Gdiplus::RectF;

namespace {

constexpr float kInfinite = std::numeric_limits<float>::infinity();
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

TEST(FarAway, AnEllipseLooksAsItDoesNearTheOrigin) {
    const auto draw = [](float x, float y) {
        auto surface = std::make_unique<Surface>(80, 60);
        CUIObjectEllipse ellipse(RectF(x + 10.5f, y + 10.25f, 50, 30), DS_ELLIPSE);
        ellipse.SetLineShapeMode(1);
        ellipse.GetCoordinate().Format<CUIShapeFormatText>().m_bEnabled = 0;
        surface->graphics().TranslateTransform(-x, -y);
        ellipse.Draw(&surface->graphics());
        Gdiplus::PointF nowhere;
        ellipse.DrawDragImage(&surface->graphics(), nowhere);
        return surface;
    };
    const auto near_ = draw(0, 0);
    ASSERT_NE(near_->Painted(), CRect(0, 0, 0, 0));
    const CRect shown = near_->Painted();
    for (const float at : {3000.0f, 5000.0f, 30000.0f, 500000.0f}) {
        const auto far_ = draw(at, -at);
        CRect difference = far_->Painted();
        difference.OffsetRect(-shown.left, -shown.top);
        EXPECT_NEAR(0, difference.left, 1) << at;
        EXPECT_NEAR(0, difference.top, 1) << at;
        EXPECT_NEAR(shown.Width(), difference.right, 1) << at;
        EXPECT_NEAR(shown.Height(), difference.bottom, 1) << at;
        EXPECT_EQ(near_->At(35, 25), far_->At(35, 25)) << at;
        EXPECT_EQ(near_->At(12, 12), far_->At(12, 12)) << at;
    }
    // A pen without a width takes another way.
    Surface thin(80, 60);
    thin.graphics().TranslateTransform(-84740, -327680);
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 0.0f);
    DrawEllipseOutline(thin.graphics(), pen, RectF(84740.8f, 327683.5f, 4.6f, 4.96f));
    EXPECT_NE(CRect(0, 0, 0, 0), thin.Painted());
    // Far too large for the surface, whose right half lies inside.
    Surface surface(80, 60);
    CUIObjectEllipse large(RectF(40, -50000, 100000, 100000), DS_ELLIPSE);
    large.Draw(&surface.graphics());
    EXPECT_EQ(Surface::kWhite, surface.At(20, 30));
    EXPECT_NE(Surface::kWhite, surface.At(60, 30));
}

TEST(FarAway, NearTheOriginAnEllipseIsThePlatforms) {
    const struct {
        RectF place;
        float width;
    } cases[] = {{{100, 30, 80, 0.9f}, 16}, {{101, 72, -80, -60}, 1}, {{40, 30, 0.5f, 0.5f}, 10}};
    for (const auto& c : cases) {
        Surface ours(220, 80), wanted(220, 80);
        const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), c.width);
        DrawEllipseOutline(ours.graphics(), pen, c.place);
        wanted.graphics().DrawEllipse(&pen, Normalised(c.place));
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 220; ++x)
                ASSERT_EQ(wanted.At(x, y), ours.At(x, y)) << x << ", " << y << ", " << c.width;
    }
}

// A repaint covers the outline's half width and a unit.
TEST(FarAway, AFlatEllipseHasNoSpikes) {
    for (const RectF& place :
         {RectF(5020, -4970, 80, 0.9f), RectF(5100, -4970, -80, 0.9f), RectF(5040, -4990, 2, 37)}) {
        Surface surface(120, 60);
        surface.graphics().TranslateTransform(-5000, 5000);
        const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 16);
        DrawEllipseOutline(surface.graphics(), pen, place);
        RectF room = Inflated(Normalised(place), 9);
        room.Offset(-5000, 5000);
        const CRect painted = surface.Painted();
        CRect both;
        EXPECT_FALSE(painted.IsRectEmpty());
        EXPECT_TRUE(both.IntersectRect(painted, RectAtlFromGdi(room)) && both == painted) << place.X;
    }
}

TEST(FarAway, WhatCannotBeDrawnPaintsNothing) {
    for (const RectF& place :
         {RectF(9.5e9f, 9.0e9f, 100, 25), RectF(0, 0, 3.0e38f, 20), RectF(-kInfinite, 0, 9, 9),
          RectF(kNoNumber, 0, 9, 9), RectF(0, 0, 20, kNoNumber), RectF(0, -1.0e7f, 50, 2.0e7f)}) {
        Surface surface(40, 40);
        CUIObjectRectangle rectangle(place, DS_RECTANGLE);
        CUIObjectEllipse ellipse(place, DS_ELLIPSE);
        CUIObjectTextEdit text(place, DS_TEXTEDIT);
        Gdiplus::PointF nowhere;
        for (CUIObject* object : {static_cast<CUIObject*>(&rectangle), static_cast<CUIObject*>(&ellipse)}) {
            object->GetCoordinate().Format<CUIShapeFormatFill>().m_nShapeMode = 5;
            object->Draw(&surface.graphics());
        }
        ellipse.DrawContents(&surface.graphics());
        text.DrawContents(&surface.graphics());
        EXPECT_EQ(CRect(0, 0, 0, 0), surface.Painted()) << place.X << ", " << place.Width;
    }
    Surface surface(40, 40);
    CUIObjectRectangle caption(RectF(0, 0, 40, 40), DS_ARC);
    caption.SetTextFontSize(kNoNumber);
    caption.CUIObject::Draw(&surface.graphics());
    caption.SetTextFontSize(9);
    caption.SetTextUnit(0x1000007);
    caption.CUIObject::Draw(&surface.graphics());
    EXPECT_EQ(CRect(0, 0, 0, 0), surface.Painted());
}

TEST(FarAway, AnOutlineThatCannotBeDrawnLeavesTheFill) {
    const struct {
        float width;
        int lineMode, lineEnabled;
    } cases[] = {{1.0e7f, 0, 1}, {kNoNumber, 1, 0}, {kNoNumber, 1, 1}, {-kInfinite, 2, 1}};
    for (const auto& c : cases) {
        Surface surface(60, 40);
        CUIObjectRectangle rectangle(RectF(11, 7, 30, 20), DS_RECTANGLE);
        rectangle.GetCoordinate().Format<CUIShapeFormatText>().m_bEnabled = 0;
        rectangle.SetLineWidth(c.width);
        rectangle.SetLineShapeMode(c.lineMode);
        rectangle.GetCoordinate().Format<CUIShapeFormatLineColor>().m_bEnabled = c.lineEnabled;
        rectangle.Draw(&surface.graphics());
        EXPECT_EQ(CRect(11, 7, 41, 27), surface.Painted()) << c.width;
    }
}

TEST(FarAway, AHugeTextBoxIsHitInsideItsEllipse) {
    // An edge that is no number stands at 0.
    for (const RectF& place :
         {RectF(-1.0e9f, -0.5e9f, 2.0e9f, 1.0e9f), RectF(-1.0e9f, -0.5e9f, kNoNumber, 1.0e9f),
          RectF(-1.0e9f, 0.5e9f, 2.0e9f, kNoNumber)}) {
        CUIObjectTextEdit text(place, DS_TEXTEDIT);
        const auto hits = [&](float x, float y) {
            RectF rect(x, y, 2, 2);
            return text.HitTest(rect);
        };
        const float middle = std::isnan(place.Width) ? -0.5e9f : 0.0f;
        const float centre = std::isnan(place.Height) ? 0.25e9f : 0.0f;
        EXPECT_TRUE(hits(middle, centre)) << place.Width << ", " << place.Height;
        EXPECT_TRUE(hits(-0.99e9f, centre)) << place.Width << ", " << place.Height;
        EXPECT_FALSE(hits(-0.95e9f, centre + 0.23e9f)) << place.Width << ", " << place.Height;
        EXPECT_FALSE(hits(1.2e9f, centre)) << place.Width << ", " << place.Height;
    }
}

}  // namespace
