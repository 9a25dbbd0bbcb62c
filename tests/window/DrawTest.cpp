// What frames paint, pixel by pixel.
#include "window/Draw.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

constexpr COLORREF kPaper = RGB(255, 255, 254);  // none of the system's colours
constexpr COLORREF kInk = RGB(200, 30, 10);

// A bitmap of 60 by 40 pixels in a device context.
class DrawTest : public ::testing::Test {
protected:
    DrawTest() {
        m_screen.CreateCompatibleDC(nullptr);
        CClientDC desktop(nullptr);
        m_bitmap.CreateCompatibleBitmap(&desktop, 60, 40);
        m_old = ::SelectObject(m_screen, m_bitmap);
        Clear();
    }
    ~DrawTest() override { ::SelectObject(m_screen, m_old); }
    void Clear() { m_screen.FillSolidRect(0, 0, 60, 40, kPaper); }
    COLORREF At(int x, int y) const { return m_screen.GetPixel(x, y); }
    CRect Painted() const {
        CRect bounds(60, 40, 0, 0);
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 60; ++x)
                if (At(x, y) != kPaper)
                    bounds = CRect(std::min<int>(bounds.left, x), std::min<int>(bounds.top, y),
                                   std::max<int>(bounds.right, x + 1), std::max<int>(bounds.bottom, y + 1));
        return bounds.right ? bounds : CRect(0, 0, 0, 0);
    }

    CDC m_screen;
    CBitmap m_bitmap;
    HGDIOBJ m_old;
};

TEST_F(DrawTest, AGradientBeginsAndEndsWithItsColours) {
    const CRect rect(5, 7, 56, 20);
    Draw::Gradient(m_screen, rect, RGB(10, 200, 0), RGB(110, 100, 50), false);
    EXPECT_EQ(RGB(10, 200, 0), At(5, 7));
    EXPECT_EQ(RGB(60, 150, 25), At(30, 19));
    EXPECT_EQ(RGB(110, 100, 50), At(55, 12));
    EXPECT_EQ(rect, Painted());
    Clear();
    m_screen.IntersectClipRect(0, 10, 60, 14);
    Draw::Gradient(m_screen, rect, RGB(0, 0, 0), RGB(120, 120, 120), true);
    ::SelectClipRgn(m_screen, nullptr);
    EXPECT_EQ(RGB(30, 30, 30), At(40, 10)) << "as far from the top as without the clip";
    EXPECT_EQ(CRect(5, 10, 56, 14), Painted());
}

TEST_F(DrawTest, AGlowFadesAwayFromItsRectangle) {
    const CRect rect(20, 10, 44, 26);
    Draw::Glow(m_screen, rect, 8, RGB(0, 0, 0), 255);
    EXPECT_EQ(kPaper, At(20, 10)) << "nothing inside";
    EXPECT_EQ(kPaper, At(43, 25));
    int before = -1;
    for (int away = 1; away <= 8; ++away) {
        const int grey = GetRValue(At(20 - away, 18));
        EXPECT_GT(grey, before);
        EXPECT_NEAR(grey, GetRValue(At(43 + away, 18)), 1);
        EXPECT_NEAR(grey, GetRValue(At(30, 25 + away)), 1);
        before = grey;
    }
    EXPECT_EQ(0, GetRValue(At(19, 18)));
    EXPECT_EQ(kPaper, At(11, 18));
    EXPECT_EQ(kPaper, At(13, 3)) << "round corners";
}

TEST_F(DrawTest, EdgesAreLitFromTheUpperLeft) {
    const CRect rect(4, 5, 44, 35);
    const COLORREF light = ::GetSysColor(COLOR_3DHILIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_3DSHADOW);
    const struct {
        EdgeLook look;
        COLORREF outer, inner;
    } rows[] = {{EdgeLook::kRaised, light, kPaper},
                {EdgeLook::kSunk, dark, kPaper},
                {EdgeLook::kGroove, dark, light},
                {EdgeLook::kRidge, light, dark}};
    for (const auto& row : rows) {
        Clear();
        Draw::Edge(m_screen, rect, row.look, 2);
        EXPECT_EQ(row.outer, At(5, 20));
        EXPECT_EQ(row.inner, At(7, 20));
        EXPECT_EQ(row.inner == kPaper ? kPaper : row.outer, At(40, 20));
        EXPECT_EQ(row.outer == dark ? light : dark, At(43, 20));
        EXPECT_EQ(kPaper, At(8, 20));
    }
    Clear();
    Draw::Edge(m_screen, CRect(10, 10, 12, 30), EdgeLook::kSunk, 9, kInk, kInk);
    EXPECT_EQ(CRect(10, 10, 12, 30), Painted()) << "no wider than its rectangle";
}

TEST_F(DrawTest, ArrowsAndMarksGrowWithTheirRectangle) {
    for (int scale : {1, 2}) {
        const CRect rect(CPoint(3, 2), CSize(16 * scale, 18 * scale));
        const CPoint middle = rect.CenterPoint();
        const struct {
            ArrowWay way;
            CSize tip;
        } rows[] = {{ArrowWay::kLeft, {-2, 0}},
                    {ArrowWay::kRight, {2, 0}},
                    {ArrowWay::kUp, {0, -2}},
                    {ArrowWay::kDown, {0, 2}}};
        for (const auto& row : rows) {
            Clear();
            Draw::Arrow(m_screen, rect, row.way, kInk);
            const CSize size = Painted().Size();
            const CSize expected(4 * scale + 1, 8 * scale + 1);
            EXPECT_EQ(row.tip.cx ? expected : CSize(expected.cy, expected.cx), size);
            const CPoint tip(middle.x + row.tip.cx * scale, middle.y + row.tip.cy * scale);
            EXPECT_EQ(kInk, At(tip.x, tip.y));
            EXPECT_EQ(kPaper, At(tip.x + (row.tip.cx ? 0 : 1), tip.y + (row.tip.cx ? 1 : 0)));
        }
        Clear();
        Draw::CheckMark(m_screen, rect, kInk);
        const CRect mark = Painted();
        EXPECT_TRUE(mark.Width() > 9 * scale && mark.Width() < 14 * scale) << mark.Width();
        EXPECT_LT(mark.Height(), mark.Width());
    }
    Clear();
    Draw::CheckMark(m_screen, CRect(), kInk);
    Draw::Arrow(m_screen, CRect(9, 9, 9, 20), ArrowWay::kUp, kInk);
    Draw::Gradient(m_screen, CRect(9, 9, 5, 20), kInk, kInk, true);
    EXPECT_TRUE(Painted().IsRectEmpty());
}

TEST_F(DrawTest, ADisabledPictureIsGreyWhereItIsSeen) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, 3, -2, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    CBitmap picture;
    picture.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const DWORD pixels[] = {0xFF000000, 0xFFFFFFFF, 0x00123456, 0xFF00FF00, 0xFF0000FF, 0x00000000};
    std::copy(std::begin(pixels), std::end(pixels), static_cast<DWORD*>(bits));
    Draw::DisabledPicture(m_screen, CRect(CPoint(10, 20), CSize(3, 2)), picture);
    EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), At(10, 20));
    EXPECT_EQ(::GetSysColor(COLOR_3DHILIGHT), At(11, 20));
    EXPECT_EQ(kPaper, At(12, 20)) << "transparent";
    EXPECT_GT(GetRValue(At(10, 21)), GetRValue(At(11, 21))) << "green is brighter than blue";
    std::fill_n(static_cast<DWORD*>(bits), 6, 0x00000000);
    Clear();
    Draw::DisabledPicture(m_screen, CRect(CPoint(10, 20), CSize(12, 8)), picture);
    EXPECT_EQ(CRect(10, 20, 22, 28), Painted()) << "without any alpha it is opaque";
    Draw::DisabledPicture(m_screen, CRect(0, 0, 9, 9), nullptr);
}

TEST_F(DrawTest, TextsLoseTheirMiddle) {
    const CString text = L"Projects\\Hall\\Rack 17";
    const int whole = m_screen.GetTextExtent(text).cx;
    EXPECT_EQ(text, Draw::ShortenMiddle(m_screen, text, whole));
    const CString shorter = Draw::ShortenMiddle(m_screen, text, whole - 1);
    EXPECT_LE(m_screen.GetTextExtent(shorter).cx, whole - 1);
    EXPECT_GE(shorter.GetLength(), text.GetLength() - 4);
    const int gap = shorter.Find(L'\x2026');
    EXPECT_EQ(text.Left(gap), shorter.Left(gap));
    EXPECT_EQ(text.Right(shorter.GetLength() - gap - 1), shorter.Mid(gap + 1));
    EXPECT_NEAR(gap, shorter.GetLength() - gap - 1, 1);
    EXPECT_EQ(L"\x2026", Draw::ShortenMiddle(m_screen, text, 1));
    EXPECT_EQ(L"", Draw::ShortenMiddle(m_screen, L"", 0));
    // Notes are pairs: no half of one is left.
    const CString notes = L"\xD83C\xDFB5\xD83C\xDFB5\xD83C\xDFB5\xD83C\xDFB5";
    const int all = m_screen.GetTextExtent(notes).cx;
    for (int width = 1; width < all; ++width) {
        const CString some = Draw::ShortenMiddle(m_screen, notes, width);
        for (int i = 0, mark = some.Find(L'\x2026'); i < some.GetLength(); ++i) {
            if (i == mark)
                continue;
            EXPECT_EQ((i - (i > mark ? mark + 1 : 0)) % 2 == 0 ? 0xD83C : 0xDFB5, some[i]);
        }
    }
    m_screen.SetTextColor(kInk);
    Draw::MiddleText(m_screen, text, CRect(20, 4, 55, 30), DT_RIGHT | DT_VCENTER);
    EXPECT_GE(Painted().left, 20);
    EXPECT_LE(Painted().right, 55);
    EXPECT_GT(Painted().right, 50);
}

}  // namespace
