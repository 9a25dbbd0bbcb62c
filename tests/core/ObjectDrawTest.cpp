#include <memory>
#include <vector>

#include "appearance/UIObjectRectangle.h"
#include "core/internal/GraphicsStateScope.h"
#include "core/PaintScope.h"
#include "support/Geometry.h"
#include "support/PaintScopes.h"
#include "support/Surface.h"

#include <gtest/gtest.h>

namespace Lumo {

namespace {

CUIObject Captioned(const CString& text, const Gdiplus::RectF& rect) {
    CUIObject object(rect, DS_RECTANGLE);
    object.SetText(text);
    object.SetTextColor(0xFF000000);
    return object;
}

}  // namespace

TEST(CaptionTest, StandsCentredWhateverTheAlignment) {
    for (int alignment : {0, 1, 2, 7}) {
        Surface surface(300, 200);
        CUIObject object = Captioned(L"HHHH", {60, 40, 200, 120});
        object.SetTextAlignment(alignment);
        object.Draw(surface);
        const CRect painted = surface.Painted();
        ASSERT_FALSE(painted.IsRectEmpty()) << alignment;
        EXPECT_NEAR((painted.left + painted.right) / 2.0, 160, 3) << alignment;
        // Capitals stand a little above the middle of their line, never as much as half of it.
        EXPECT_NEAR((painted.top + painted.bottom) / 2.0, 100, 4) << alignment;
    }
}

TEST(CaptionTest, DefaultObjectShowsItsCaption) {
    Surface surface(200, 100);
    surface.graphics().Clear(Gdiplus::Color(0xFF000000));
    CUIObject object({0, 0, 200, 100}, DS_RECTANGLE);
    object.Draw(surface);
    int bright = 0;
    for (int y = 30; y < 70; ++y)
        for (int x = 60; x < 140; ++x)
            bright += (surface.At(x, y) & 0xFF) > 0x40;
    EXPECT_GT(bright, 40);
}

TEST(CaptionTest, PaintsNothingWhenItMayNot) {
    Surface surface(200, 100);
    Captioned(L"far too wide for it", {50, 30, 40, 40}).Draw(surface);
    Captioned(L"turned over", {190, 30, -180, 40}).Draw(surface);
    CUIObject disabled = Captioned(L"off", {0, 0, 200, 100});
    CUIShapeFormatText format = disabled.GetCoordinate().GetShapeFormatText();
    format.m_bEnabled = 0;
    disabled.GetCoordinate().SetShapeFormatText(format);
    disabled.Draw(surface);
    format.m_bEnabled = 1;
    format.m_strText.Empty();
    disabled.GetCoordinate().SetShapeFormatText(format);
    disabled.Draw(surface);
    disabled.SetText(L"size");
    disabled.SetTextFontSize(-3);
    disabled.Draw(surface);
    disabled.Draw(nullptr);
    EXPECT_TRUE(surface.Painted().IsRectEmpty());
}

TEST(CaptionTest, LeavesTheGraphicsStateAsItWas) {
    Surface surface(300, 100);
    surface.graphics().SetTextRenderingHint(Gdiplus::TextRenderingHintSingleBitPerPixel);
    Captioned(L"fits", {0, 0, 300, 100}).Draw(surface);
    Captioned(L"does not fit", {0, 0, 20, 100}).Draw(surface);
    EXPECT_EQ(surface.graphics().GetTextRenderingHint(), Gdiplus::TextRenderingHintSingleBitPerPixel);
}

TEST(CaptionTest, MissingFontFamilyIsReplaced) {
    Surface surface(300, 100);
    CUIObject object = Captioned(L"HHHH", {0, 0, 300, 100});
    object.SetTextFontName(L"No Such Family 17");
    object.Draw(surface);
    EXPECT_FALSE(surface.Painted().IsRectEmpty());
}

TEST(CaptionTest, FollowsChangesOfTextAndFont) {
    Surface surface(400, 100);
    CUIObject object = Captioned(L"H", {0, 0, 400, 100});
    const auto width = [&] {
        surface.Clear();
        object.Draw(surface);
        return surface.Painted().Width();
    };
    const int one = width();
    object.SetText(L"HHHH");
    const int four = width();
    EXPECT_GT(four, 3 * one);
    object.SetTextFontSize(44);
    EXPECT_GT(width(), four * 3 / 2);
}

TEST(CaptionTest, NeverWraps) {
    const struct {
        const wchar_t* text;
        const wchar_t* font;
        int height;
    } cases[] = {{L"Fader level 12 dB", L"Arial", 25},
                 {L"a b c d e f g h", L"Arial", 25},
                 {L"I I I I I", L"Segoe UI", 25},
                 {L"\xAC00\xB098\xB2E4 Level\n12 dB", L"Malgun Gothic", 56}};
    for (const auto& c : cases)
        for (int alignment : {0, 1, 2}) {
            Surface surface(300, 100);
            CUIObject object = Captioned(c.text, {0.3f, 0.7f, 299.3f, 99.1f});
            object.SetTextFontName(c.font);
            object.SetTextAlignment(alignment);
            object.Draw(surface);
            const CRect painted = surface.Painted();
            EXPECT_LT(painted.Height(), c.height) << alignment;
            EXPECT_GT(painted.Width(), 45) << alignment;
        }
}

TEST(CaptionTest, TallCaptionIsPaintedWhereItReachesBeyondTheObject) {
    Surface whole(300, 200), part(300, 200);
    CUIObject object = Captioned(L"H\nH\nH", {100, 95, 100, 10});
    object.Draw(whole);
    const CRect painted = whole.Painted();
    ASSERT_LT(painted.top, 85);
    {
        PaintScope scope(part.graphics(), Gdiplus::RectF(100, 0, 100, painted.top + 2));
        object.Draw(part);
    }
    EXPECT_EQ(part.Painted().top, painted.top);
}

TEST(TrackerTest, FollowsHandlesThatAHostPlacesElsewhere) {
    struct Far : CUIObject {
        using CUIObject::CUIObject;
        Gdiplus::RectF GetHandleRect(int) override { return {150, 150, 8, 8}; }
    } object({0, 0, 20, 20}, DS_RECTANGLE);
    Surface surface(200, 200);
    const PaintScope scope(surface.graphics(), {140, 140, 30, 30});
    object.DrawTracker(surface);
    EXPECT_TRUE(surface.Shows(154, 154, 0xFF87CEEB));
}

TEST(PaintScopeTest, MissesOnlyWhatDoesNotTouch) {
    Surface surface(30, 20), other(30, 20);
    Gdiplus::Graphics& g = surface.graphics();
    EXPECT_FALSE(PaintScope::Misses(g, {1000, 1000, 1, 1}));
    PaintScope outer(g, {10, 10, 20, 20});
    EXPECT_FALSE(PaintScope::Misses(g, {0, 0, 10, 10}));
    EXPECT_FALSE(PaintScope::Misses(g, {30, 30, 5, 0}));
    EXPECT_TRUE(PaintScope::Misses(g, {0, 0, 9.9f, 100}));
    EXPECT_TRUE(PaintScope::Misses(g, {0, 30.1f, 100, 100}));
    EXPECT_FALSE(PaintScope::Misses(other.graphics(), {0, 0, 9.9f, 100}));
    {
        PaintScope elsewhere(other.graphics(), {200, 200, 10, 10});
        EXPECT_FALSE(PaintScope::Misses(g, {15, 15, 1, 1}));
        PaintScope inner(g, {100, 100, 10, 10});
        EXPECT_TRUE(PaintScope::Misses(g, {15, 15, 1, 1}));
        EXPECT_FALSE(PaintScope::Misses(g, {105, 105, 1, 1}));
    }
    EXPECT_FALSE(PaintScope::Misses(g, {15, 15, 1, 1}));
    EXPECT_TRUE(PaintScope::Misses(g, {105, 105, 1, 1}));
}

TEST(PaintScopeTest, FollowsAShiftAndNothingElse) {
    Surface surface(30, 20);
    Gdiplus::Graphics& g = surface.graphics();
    g.SetTransform(std::make_unique<Gdiplus::Matrix>(2.0f, 0.5f, -1.0f, 3.0f, 7.0f, 11.0f).get());
    const PaintScope scope(g, {10, 20, 30, 5});
    g.TranslateTransform(100, -40);
    const Gdiplus::RectF part = PaintScope::PartOf(g);
    EXPECT_NEAR(part.X, -90, 0.01);
    EXPECT_NEAR(part.Y, 60, 0.01);
    EXPECT_EQ(part.Width, 30);
    EXPECT_EQ(part.Height, 5);
    const auto everything = [&] { return PaintScope::PartOf(g).Contains(1.0e6f, -1.0e6f); };
    EXPECT_FALSE(everything());
    {
        GraphicsStateScope state(g);
        g.RotateTransform(1);
        EXPECT_TRUE(everything());
    }
    EXPECT_FALSE(everything());
    g.SetPageScale(1.5f);
    EXPECT_TRUE(everything());
    g.SetPageScale(1.0f);
    EXPECT_FALSE(everything());
    g.SetPageUnit(Gdiplus::UnitMillimeter);
    EXPECT_TRUE(everything());
}

TEST(PaintScopeTest, ChangesNoPixelOfTheUpdateRectangle) {
    CUIObjectRectangle rectangle({20, 20, 60, 30}, DS_RECTANGLE);
    rectangle.SetLineWidth(12);
    CUIObjectRectangle turnedOver({180, 120, -60, -30}, DS_RECTANGLE);
    turnedOver.SetLineWidth(12);
    CUIObjectEllipse ellipse({120, 20, 60, 30}, DS_ELLIPSE);
    ellipse.SetText(L"Tall\ncaption");
    ExpectSamePixelsInEveryUpdate(200, 160, 8, [&](Surface& surface) {
        for (CUIObject* object : {static_cast<CUIObject*>(&rectangle), static_cast<CUIObject*>(&turnedOver),
                                  static_cast<CUIObject*>(&ellipse)}) {
            object->Draw(surface);
            object->DrawTracker(surface);
        }
    });
}

TEST(PaintScopeTest, ObjectOutsideIsNotPainted) {
    Surface surface(200, 200);
    CUIObjectRectangle object({20, 20, 60, 30}, DS_RECTANGLE);
    PaintScope scope(surface.graphics(), {150, 150, 50, 50});
    object.Draw(surface);
    object.DrawTracker(surface);
    EXPECT_TRUE(surface.Painted().IsRectEmpty());
}

namespace {

struct PathShape {
    explicit PathShape(const Gdiplus::GraphicsPath& path) : points(path.GetPointCount()) {
        path.GetBounds(&rect);
        path.GetPathPoints(points.data(), static_cast<INT>(points.size()));
    }
    // Where the arc of the right top corner starts: the first arc has four points.
    float SecondArc() const { return points.size() > 4 ? points[4].X : -1000.0f; }
    Gdiplus::RectF rect;
    std::vector<Gdiplus::PointF> points;
};

}  // namespace

TEST(RoundRectPathTest, MemberAndFreeFunction) {
    CUIObject object;
    Gdiplus::GraphicsPath path;
    path.AddLine(-500, -500, -400, -400);
    const struct {
        Box rect;
        int diameter;
        Box want;
        float secondArc;
    } cases[] = {// The far arcs end one unit inside the far edges.
                 {{10, 20, 100, 60}, 10, {10, 20, 99, 59}, 104},
                 // 20 takes one unit off the rectangle and adds one to the arcs.
                 {{10, 20, 100, 60}, 20, {10, 20, 99, 59}, 98.5f},
                 // The diameter is cut to the width, then to the height.
                 {{0, 0, 30, 40}, 50, {0, 0, 29, 39}, 14},
                 {{0, 0, 40, 30}, 50, {0, 0, 39, 29}, 24}};
    for (const auto& c : cases) {
        object.GetRoundRectPath(&path, {c.rect.x, c.rect.y, c.rect.width, c.rect.height}, c.diameter);
        const PathShape member(path);
        EXPECT_NEAR(member.rect.X, c.want.x, 0.01) << c.diameter;
        EXPECT_NEAR(member.rect.Width, c.want.width, 0.01) << c.diameter;
        EXPECT_NEAR(member.rect.Height, c.want.height, 0.01) << c.diameter;
        EXPECT_NEAR(member.SecondArc(), c.secondArc, 0.01) << c.diameter;
        EXPECT_EQ(GetRoundRectPath(&path, c.rect.x, c.rect.y, c.rect.width, c.rect.height, c.diameter),
                  Gdiplus::Ok);
        const PathShape free(path);
        EXPECT_EQ(free.points.size(), member.points.size());
        EXPECT_NEAR(free.SecondArc(), c.secondArc, 0.01) << c.diameter;
        EXPECT_NEAR(free.rect.X, member.rect.X, 0.01) << c.diameter;
        EXPECT_NEAR(free.rect.Width, member.rect.Width, 0.01) << c.diameter;
        EXPECT_NEAR(free.rect.Height, member.rect.Height, 0.01) << c.diameter;
    }
    EXPECT_EQ(GetRoundRectPath(&path, 10.9f, -10.9f, 100, 60, 8), Gdiplus::Ok);
    EXPECT_EQ(PathShape(path).rect.X, 10);
    EXPECT_EQ(PathShape(path).rect.Y, -10);
    EXPECT_EQ(GetRoundRectPath(nullptr, 0, 0, 1, 1, 1), Gdiplus::InvalidParameter);
}

}  // namespace Lumo
