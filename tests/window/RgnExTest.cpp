// Regions from pictures, polygons and texts, as rectangles and back, wider and narrower.
#include "window/RgnEx.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

// A bitmap of 32 bits of 5 by 4 pixels.
class Picture : public CBitmap {
public:
    explicit Picture(const DWORD (&pixels)[20]) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, 5, -4, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        std::copy(std::begin(pixels), std::end(pixels), static_cast<DWORD*>(bits));
    }
};

constexpr DWORD kKey = 0x00FF00FE;  // red 255, blue 254
constexpr DWORD kNear = 0x00FC02FE;
constexpr DWORD kInk = 0x80103050;
constexpr DWORD kPale = 0x7F103050;

const DWORD kPixels[20] = {kKey, kInk, kInk,  kKey, kPale,  //
                           kKey, kInk, kInk,  kKey, kPale,  //
                           kKey, kKey, kNear, kKey, kKey,   //
                           kInk, kKey, kKey,  kKey, kKey};

using Rects = std::vector<CRect>;

TEST(RgnExTest, PicturesGiveTheirShapes) {
    const Picture picture(kPixels);
    RgnEx region;
    ASSERT_TRUE(region.CreateFromColorKey(picture, RGB(255, 0, 254)));
    EXPECT_EQ((Rects{{1, 0, 3, 2}, {4, 0, 5, 2}, {2, 2, 3, 3}, {0, 3, 1, 4}}), region.GetRects());
    EXPECT_FALSE(region.CreateFromColorKey(picture, 0)) << "there is one already";
    RgnEx tolerant, alpha;
    ASSERT_TRUE(tolerant.CreateFromColorKey(picture, RGB(255, 0, 254), 3));
    EXPECT_EQ((Rects{{1, 0, 3, 2}, {4, 0, 5, 2}, {0, 3, 1, 4}}), tolerant.GetRects());
    ASSERT_TRUE(alpha.CreateFromAlpha(picture));
    EXPECT_EQ((Rects{{1, 0, 3, 2}, {0, 3, 1, 4}}), alpha.GetRects());

    CBitmap plain;
    plain.CreateBitmap(9, 9, 1, 1, nullptr);
    RgnEx none;
    EXPECT_FALSE(none.CreateFromAlpha(plain));
    EXPECT_FALSE(none.CreateFromColorKey(nullptr, 0));
    EXPECT_TRUE(none.GetRects().empty());
    EXPECT_FALSE(none.Widen(1));
    ASSERT_TRUE(none.CreateFromAlpha(picture, 0x81)) << "an empty region is one";
    EXPECT_TRUE(none.GetRects().empty());
}

TEST(RgnExTest, RectanglesComeBackAndRegionsGrow) {
    RgnEx region;
    ASSERT_TRUE(region.CreateFromRects({{10, 20, 40, 30}, {20, 25, 30, 60}, {7, 7, 7, 9}}));
    const Rects cross = {{10, 20, 40, 30}, {20, 30, 30, 60}};
    EXPECT_EQ(cross, region.GetRects());
    EXPECT_TRUE(region.Widen(3));
    EXPECT_EQ((Rects{{7, 17, 43, 33}, {17, 33, 33, 63}}), region.GetRects());
    EXPECT_TRUE(region.Narrow(3));
    EXPECT_EQ(cross, region.GetRects());
    EXPECT_TRUE(region.Narrow(5));
    EXPECT_TRUE(region.GetRects().empty()) << "nothing is farther inside";

    // A hole is as far from the inside as the edge is.
    RgnEx ring, hole;
    ring.CreateRectRgn(0, 0, 50, 40);
    hole.CreateRectRgn(20, 10, 30, 20);
    ring.CombineRgn(&ring, &hole, RGN_DIFF);
    EXPECT_TRUE(ring.Narrow(2));
    EXPECT_FALSE(ring.PtInRegion(18, 15) || ring.PtInRegion(31, 15) || ring.PtInRegion(1, 15));
    EXPECT_TRUE(ring.PtInRegion(17, 15) && ring.PtInRegion(32, 15) && ring.PtInRegion(2, 15));
    EXPECT_TRUE(ring.Widen(7));
    EXPECT_TRUE(ring.PtInRegion(25, 15)) << "the hole is filled";
}

TEST(RgnExTest, CornersAreRoundedAsFarAsTheSidesAllow) {
    const POINT box[] = {{10, 10}, {110, 10}, {110, 70}, {10, 70}};
    RgnEx sharp, round, tight;
    ASSERT_TRUE(sharp.CreateRoundPolygon(box, 4, 0));
    EXPECT_EQ((Rects{{10, 10, 110, 70}}), sharp.GetRects());
    ASSERT_TRUE(round.CreateRoundPolygon(box, 4, 20));
    EXPECT_FALSE(round.PtInRegion(13, 13) || round.PtInRegion(106, 66));
    // The middle of a corner's arc is 20 - 20 / sqrt(2), 5.9 pixels, from both sides.
    EXPECT_TRUE(round.PtInRegion(18, 18) && round.PtInRegion(101, 61));
    EXPECT_TRUE(round.PtInRegion(60, 11) && round.PtInRegion(11, 40)) << "the sides stay";
    ASSERT_TRUE(tight.CreateRoundPolygon(box, 4, 1000));
    EXPECT_FALSE(tight.PtInRegion(17, 17)) << "a circle of 30";
    EXPECT_TRUE(tight.PtInRegion(20, 20) && tight.PtInRegion(60, 11));

    // An L: its inner corner is filled, not cut; a side of no length does no harm.
    const POINT bend[] = {{0, 0}, {90, 0}, {90, 0}, {90, 30}, {30, 30}, {30, 80}, {0, 80}};
    RgnEx inner, none;
    ASSERT_TRUE(inner.CreateRoundPolygon(bend, 7, 12));
    EXPECT_TRUE(inner.PtInRegion(31, 31));
    EXPECT_FALSE(inner.PtInRegion(42, 42));
    EXPECT_FALSE(none.CreateRoundPolygon(bend, 2, 3) || none.CreateRoundPolygon(nullptr, 3, 3));
}

TEST(RgnExTest, LettersAreAsWideAsTheirText) {
    CFont font;
    font.CreatePointFont(600, L"Arial");
    RgnEx text, shifted, nothing;
    ASSERT_TRUE(text.CreateFromText(L"OI", font));
    CRect bounds, moved;
    text.GetRgnBox(bounds);
    EXPECT_GT(bounds.Width(), bounds.Height() / 2);
    EXPECT_FALSE(text.PtInRegion(bounds.left + bounds.Width() / 3, bounds.CenterPoint().y)) << "in the O";
    EXPECT_TRUE(text.PtInRegion(bounds.right - 3, bounds.CenterPoint().y)) << "in the I";
    ASSERT_TRUE(shifted.CreateFromText(L"OI", font, CPoint(17, 5)));
    shifted.GetRgnBox(moved);
    EXPECT_EQ(bounds + CPoint(17, 5), moved);
    EXPECT_TRUE(nothing.CreateFromText(L"", font));
    EXPECT_TRUE(nothing.GetRects().empty());
}

}  // namespace
