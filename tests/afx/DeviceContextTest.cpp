#include <afxwin.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

namespace {

/// A memory context with a bitmap of 64 by 64.
struct MemoryContext {
    CDC dc;
    CBitmap bitmap;
    CBitmap* before;

    MemoryContext() {
        CClientDC screen(nullptr);
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, 64, 64);
        before = dc.SelectObject(&bitmap);
    }
    ~MemoryContext() { dc.SelectObject(before); }
};

TEST(DeviceContext, AnisotropicMappingConvertsBothWays) {
    MemoryContext memory;
    CDC& dc = memory.dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 200);
    dc.SetViewportExt(50, -400);
    dc.SetViewportOrg(10, 20);
    EXPECT_EQ(CSize(100, 200), dc.GetWindowExt());
    CPoint point(35, -180);
    dc.DPtoLP(&point);
    EXPECT_EQ(CPoint(50, 100), point);
    dc.LPtoDP(&point);
    EXPECT_EQ(CPoint(35, -180), point);
    CRect rect(10, 20, 60, -380);
    dc.DPtoLP(&rect);
    EXPECT_EQ(CRect(0, 0, 100, 200), rect);
    CSize size(25, 40);
    dc.DPtoLP(&size);
    EXPECT_EQ(CSize(50, 20), size) << "the sign of the extent does not reach a size";
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(25, 40), size);
    size = CSize(-10, 21);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(-5, 42), size) << "its own sign stays";
    int saved = dc.SaveDC();
    dc.SetMapMode(MM_TEXT);
    dc.RestoreDC(saved);
    EXPECT_EQ(MM_ANISOTROPIC, dc.GetMapMode());
}

TEST(DeviceContext, DrawsPixels) {
    MemoryContext memory;
    CDC& dc = memory.dc;
    dc.FillSolidRect(0, 0, 64, 64, RGB(1, 2, 3));
    CBrush brush(RGB(255, 0, 0));
    dc.FillRect(CRect(10, 10, 20, 20), &brush);
    CPen pen(PS_SOLID, 1, RGB(0, 255, 0));
    CPen* old = dc.SelectObject(&pen);
    EXPECT_EQ(CPoint(0, 0), dc.MoveTo(30, 30));
    dc.LineTo(40, 30);
    EXPECT_EQ(&pen, dc.SelectObject(old)) << "an attached object comes back as itself";
    EXPECT_EQ(RGB(255, 0, 0), dc.GetPixel(19, 19));
    EXPECT_EQ(RGB(1, 2, 3), dc.GetPixel(20, 20));
    EXPECT_EQ(RGB(0, 255, 0), dc.GetPixel(35, 30));
    dc.DrawFocusRect(CRect(5, 5, 50, 50));
    dc.DrawFocusRect(CRect(5, 5, 50, 50));
    EXPECT_EQ(RGB(1, 2, 3), dc.GetPixel(5, 6));
    const int saved = dc.SaveDC();
    dc.IntersectClipRect(CRect(2, 3, 30, 40));
    dc.ExcludeClipRect(CRect(4, 5, 10, 30));
    dc.FillSolidRect(0, 0, 64, 64, RGB(7, 7, 7));
    const struct {
        CPoint at;
        bool painted;
    } clipped[] = {{{3, 4}, true},  {{4, 5}, false}, {{9, 29}, false}, {{10, 29}, true},
                   {{9, 30}, true}, {{1, 4}, false}, {{29, 39}, true}, {{30, 39}, false}};
    for (const auto& c : clipped)
        EXPECT_EQ(c.painted, dc.GetPixel(c.at) == RGB(7, 7, 7)) << c.at.x << ' ' << c.at.y;
    dc.RestoreDC(saved);
    dc.Draw3dRect(CRect(0, 0, 64, 64), RGB(9, 9, 9), RGB(8, 8, 8));
    EXPECT_EQ(RGB(9, 9, 9), dc.GetPixel(0, 10));
    EXPECT_EQ(RGB(8, 8, 8), dc.GetPixel(63, 10));
}

TEST(GraphicsObjects, AreDeletedWithTheirWrapper) {
    HGDIOBJ handles[5];
    {
        CPen pen(PS_SOLID, 1, 0);
        CBrush brush(RGB(1, 2, 3));
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(120, _T("Arial")));
        CRgn region;
        ASSERT_TRUE(region.CreateRectRgn(0, 0, 5, 5));
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.CreateBitmap(4, 4, 1, 1, nullptr));
        const CGdiObject* objects[] = {&pen, &brush, &font, &region, &bitmap};
        for (int i = 0; i < 5; ++i)
            handles[i] = objects[i]->m_hObject;
        ASSERT_TRUE(font.CreatePointFont(90, _T("Arial"))) << "a second creation replaces the first";
        EXPECT_EQ(0u, ::GetObjectType(handles[2]));
        handles[2] = font.m_hObject;
    }
    for (HGDIOBJ handle : handles)
        EXPECT_EQ(0u, ::GetObjectType(handle));
}

TEST(GraphicsObjects, StockObjectsSurviveTheirWrapper) {
    {
        CPen pen;
        ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    }
    EXPECT_EQ(static_cast<UINT>(OBJ_PEN), ::GetObjectType(::GetStockObject(BLACK_PEN)));
}

TEST(GraphicsObjects, RegionsAnswer) {
    CRgn ellipse;
    ASSERT_TRUE(ellipse.CreateEllipticRgnIndirect(CRect(0, 0, 100, 100)));
    EXPECT_TRUE(ellipse.PtInRegion(50, 50));
    EXPECT_FALSE(ellipse.PtInRegion(CPoint(3, 3)));
    EXPECT_FALSE(ellipse.RectInRegion(CRect(0, 0, 3, 3)));
    CRgn half;
    CRgn both;
    ASSERT_TRUE(half.CreateRectRgn(0, 0, 50, 100));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&ellipse, &half, RGN_AND));
    EXPECT_FALSE(both.PtInRegion(60, 50));
    EXPECT_EQ(NULLREGION, both.CombineRgn(&half, &half, RGN_DIFF));
}

/// Paints with everything a paint handler uses.
class Painter : public CWnd {
public:
    int paints = 0;
    CRect updated;

protected:
    void OnPaint() {
        CPaintDC dc(this);
        updated = dc.m_ps.rcPaint;
        EXPECT_EQ(&dc, CDC::FromHandle(dc.m_hDC));
        CPen pen(PS_DOT, 1, RGB(0, 0, 255));
        CPen* before = dc.SelectObject(&pen);
        dc.LineTo(5, 5);
        dc.SelectObject(before);
        ++paints;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Painter, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(DeviceContext, PaintsWhatIsInvalid) {
    Painter window;
    ASSERT_TRUE(CreateHidden(window));
    window.ShowWindow(SW_SHOWNA);
    window.UpdateWindow();
    for (int i = 0; i < 20; ++i) {
        window.InvalidateRect(CRect(1, 2, 30, 40), FALSE);
        window.UpdateWindow();
        CClientDC client(&window);
        CWindowDC frame(&window);
        window.ReleaseDC(window.GetDC());
    }
    EXPECT_GE(window.paints, 20);
    EXPECT_EQ(CRect(1, 2, 30, 40), window.updated);
}

}  // namespace
