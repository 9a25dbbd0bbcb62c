#include "core/Geometry.h"

#include <climits>
#include <limits>

#include "core/DrawShape.h"
#include "core/UIObject.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

namespace Lumo {

TEST(DrawShapeTest, NamesEveryKindAndNoOther) {
    EXPECT_EQ(GetDrawShapeName(DS_POLYLINE), L"PolyLine");
    EXPECT_EQ(GetDrawShapeName(DS_TEXTEDIT), L"TextEdit");
    EXPECT_EQ(GetDrawShapeName(DS_SELECT), L"Select");
    EXPECT_EQ(GetDrawShapeName(DS_OLE), L"Ole");
    EXPECT_EQ(GetDrawShapeName(DS_STATEPEQ), L"StatePeq");
    for (int kind : {0, -1, 29, 0xFF01, INT_MIN, INT_MAX})
        EXPECT_EQ(GetDrawShapeName(static_cast<DrawShape>(kind)), L"Unknown") << kind;
}

TEST(GeometryTest, RoundsHalfAwayFromZero) {
    const struct {
        float x, y;
        LONG wantX, wantY;
    } cases[] = {{2.5f, -2.5f, 3, -3},
                 {0.0f, -0.4f, 0, 0},
                 {1.49f, 0.5f, 1, 1},
                 {-0.5f, 0.49999997f, -1, 0},
                 {3e9f, -3e9f, INT_MAX, INT_MIN}};
    for (const auto& c : cases)
        EXPECT_EQ(PointAtlFromGdi({c.x, c.y}), CPoint(c.wantX, c.wantY)) << c.x << ", " << c.y;
    EXPECT_EQ(RoundToInt(std::numeric_limits<float>::quiet_NaN()), 0);
    EXPECT_EQ(TruncToInt(-2.9f), -2);
    EXPECT_EQ(TruncToInt(1e20f), INT_MAX);
}

TEST(GeometryTest, ConvertsRectangles) {
    EXPECT_EQ(RectAtlFromGdi({0.4f, 0.4f, 0.4f, 0.4f}), CRect(0, 0, 1, 1));
    EXPECT_EQ(RectAtlFromGdi({10.5f, -10.5f, -5.0f, 5.0f}), CRect(11, -11, 6, -6));
    EXPECT_EQ(Box(RectGdiFromAtl(CRect(10, 20, 4, 50))), Box(10, 20, -6, 30));
    EXPECT_EQ(Box(RectGdiFromAtl(CRect(INT_MIN, 0, INT_MAX, 1))).width, 4294967296.0f);
    EXPECT_EQ(Spot(PointGdiFromAtl(CPoint(-3, 7))), Spot(-3, 7));
}

class RotationTest : public ::testing::Test {
protected:
    CUIObject m_object{Gdiplus::RectF(0, 0, 40, 20), DS_RECTANGLE};
};

TEST_F(RotationTest, TurnsAboutTheOwnCentreExactlyInQuarters) {
    const struct {
        float angle;
        Box want;
    } cases[] = {{0, {0, 0, 40, 20}},      {90, {10, -10, 20, 40}},  {180, {0, 0, 40, 20}},
                 {270, {10, -10, 20, 40}}, {-90, {10, -10, 20, 40}}, {450, {10, -10, 20, 40}}};
    for (const auto& c : cases) {
        Gdiplus::RectF rect(0, 0, 40, 20);
        m_object.Rotate(c.angle, rect);
        EXPECT_EQ(Box(rect), c.want) << c.angle;
    }
}

TEST_F(RotationTest, BoundsAnObliqueTurn) {
    Gdiplus::RectF rect(0, 0, 10, 10);
    m_object.Rotate(45, rect);
    EXPECT_NEAR(rect.X, 5 - 7.0710678f, 1e-5);
    EXPECT_NEAR(rect.Width, 14.142136f, 1e-5);
    EXPECT_NEAR(rect.Height, 14.142136f, 1e-5);
}

TEST_F(RotationTest, PositiveAnglesTurnClockwiseOnTheScreen) {
    // A flat rectangle to the right of the centre hangs below it after a quarter turn.
    Gdiplus::RectF rect(10, 0, 20, 2);
    Gdiplus::PointF centre(0, 0);
    m_object.Rotate(90, rect, centre);
    EXPECT_EQ(Box(rect), Box(-2, 10, 2, 20));
}

TEST_F(RotationTest, StoresTheBoundsAsThePosition) {
    m_object.Rotate(90);
    EXPECT_EQ(Box(m_object.GetPosition()), Box(10, -10, 20, 40));
}

TEST_F(RotationTest, RotateCallsTheReplaceableTurn) {
    struct Marker : CUIObject {
        using CUIObject::CUIObject;
        using CUIObject::Rotate;
        void Rotate(float, Gdiplus::RectF& rect) override { rect = {1, 2, 3, 4}; }
    } marker({0, 0, 40, 20}, DS_RECTANGLE);
    marker.Rotate(90);
    EXPECT_EQ(Box(marker.GetPosition()), Box(1, 2, 3, 4));
}

TEST_F(RotationTest, RotateRectTurnsAboutHalfTheSizeFromTheOrigin) {
    EXPECT_EQ(Box(m_object.RotateRect(90, {100, 100, 40, 20})), Box(-90, 90, 20, 40));
}

TEST_F(RotationTest, RotatePoint) {
    const Gdiplus::RectF rect(10, 10, 40, 20);
    const struct {
        Gdiplus::PointF point;
        Spot want;
    } cases[] = {
        // Helper rectangle (0, 0, 60, 40), turned about (30, 20).
        {{10, 10}, {10, -10}},
        // Helper rectangle (-10, -5, 80, 50), turned about (40, 25).
        {{20, 15}, {20, -25}},
        {{50, 15}, {0, 0}},
        {{20, 30}, {0, 0}},
        {{9, 15}, {0, 0}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Spot(m_object.RotatePoint(90, c.point, rect)), c.want) << c.point.X << ", " << c.point.Y;
}

}  // namespace Lumo
