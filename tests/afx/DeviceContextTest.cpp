#include <afxwin.h>
#include <gtest/gtest.h>

#include "afx/Expect.h"
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

LONG Both(const POINT& point) {
    return MAKELONG(point.x, point.y);
}
LONG Both(const SIZE& size) {
    return MAKELONG(size.cx, size.cy);
}

TEST(DeviceContext, TwoHandlesStayInStepAndTheAttributesAnswer) {
    const HDC handles[] = {::CreateCompatibleDC(nullptr), ::CreateCompatibleDC(nullptr)};
    const struct {
        LONG (*set)(CDC&, int);
        LONG (*get)(CDC&);
        int output, attributes, both;
    } rows[] = {
        {[](CDC& dc, int v) { return LONG(dc.SetBkColor(v)); }, [](CDC& dc) { return LONG(dc.GetBkColor()); },
         1, 2, 3},
        {[](CDC& dc, int v) { return LONG(dc.SetTextColor(v)); },
         [](CDC& dc) { return LONG(dc.GetTextColor()); }, 1, 2, 3},
        {[](CDC& dc, int v) { return LONG(dc.SetBkMode(v)); }, [](CDC& dc) { return LONG(dc.GetBkMode()); },
         2, 1, 2},
        {[](CDC& dc, int v) { return LONG(dc.SetROP2(v)); },
         [](CDC& dc) { return LONG(::GetROP2(dc.m_hAttribDC)); }, 4, 5, 6},
        {[](CDC& dc, int v) { return LONG(dc.SetStretchBltMode(v)); },
         [](CDC& dc) { return LONG(::GetStretchBltMode(dc.m_hAttribDC)); }, 1, 2, 3},
        {[](CDC& dc, int v) { return LONG(dc.SetTextAlign(v)); },
         [](CDC& dc) { return LONG(::GetTextAlign(dc.m_hAttribDC)); }, 2, 6, 8},
        {[](CDC& dc, int v) { return LONG(dc.SetMapMode(v)); }, [](CDC& dc) { return LONG(dc.GetMapMode()); },
         2, 3, 8},
        {[](CDC& dc, int v) { return Both(dc.SetWindowExt(v, v + 1)); },
         [](CDC& dc) { return Both(dc.GetWindowExt()); }, 10, 20, 30},
        {[](CDC& dc, int v) { return Both(dc.SetViewportExt(v, v + 1)); },
         [](CDC& dc) { return Both(dc.GetViewportExt()); }, 10, 20, 30},
        {[](CDC& dc, int v) { return Both(dc.SetWindowOrg(v, v + 1)); },
         [](CDC& dc) { return Both(dc.GetWindowOrg()); }, 10, 20, 30},
        {[](CDC& dc, int v) { return Both(dc.SetViewportOrg(v, v + 1)); },
         [](CDC& dc) { return Both(dc.GetViewportOrg()); }, 10, 20, 30},
        {[](CDC& dc, int v) { return Both(dc.MoveTo(v, v + 1)); },
         [](CDC& dc) {
             POINT at;
             ::GetCurrentPositionEx(dc.m_hAttribDC, &at);
             return Both(at);
         },
         10, 20, 30},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        LONG values[2];
        CDC one[2];
        for (int i = 0; i < 2; ++i) {
            one[i].Attach(handles[i]);
            one[i].SetMapMode(MM_ANISOTROPIC);
            row.set(one[i], i ? row.attributes : row.output);
            values[i] = row.get(one[i]);
        }
        EXPECT_NE(values[0], values[1]);
        CDC dc;
        dc.SetOutputDC(handles[0]);
        dc.SetAttribDC(handles[1]);
        EXPECT_EQ(values[1], row.get(dc));
        const int saved = dc.SaveDC();
        EXPECT_EQ(values[1], row.set(dc, row.both));
        EXPECT_EQ(row.get(one[0]), row.get(one[1]));
        EXPECT_NE(values[1], row.get(dc));
        EXPECT_TRUE(dc.RestoreDC(saved));
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(values[i], row.get(one[i]));
        EXPECT_TRUE(dc.LineTo(7, 9));
        POINT at[2];
        for (int i = 0; i < 2; ++i)
            ::GetCurrentPositionEx(handles[i], &at[i]);
        EXPECT_TRUE(at[0].x == 7 && at[0].y == 9 && at[1].x == 7 && at[1].y == 9);
        CRgn clip;
        clip.CreateRectRgn(1, 2, 3, 4);
        for (int result : {dc.SelectClipRgn(&clip), dc.SelectClipRgn(nullptr)})
            EXPECT_EQ(SIMPLEREGION, result);
        CPen pen(PS_SOLID, 1, 0);
        CPen* before = dc.SelectObject(&pen);
        EXPECT_EQ(::GetCurrentObject(handles[0], OBJ_PEN), pen.m_hObject);
        EXPECT_EQ(&pen, dc.SelectObject(before));
        EXPECT_NE(nullptr, dc.SelectStockObject(WHITE_PEN));
        EXPECT_EQ(::GetStockObject(WHITE_PEN), ::GetCurrentObject(handles[0], OBJ_PEN));
        EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CGdiObject*>(nullptr)));
        dc.Detach();
        for (CDC& each : one)
            each.Detach();
    }
    for (HDC handle : handles)
        ::DeleteDC(handle);
    CDC none;
    EXPECT_FALSE(none.Attach(nullptr) || none.DeleteDC());
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
    EXPECT_EQ(COLORREF(0), none.SetBkColor(5));
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
    const struct {
        CPoint at;
        COLORREF color;
    } corners[] = {{{0, 0}, RGB(9, 9, 9)},   {{62, 0}, RGB(9, 9, 9)}, {{63, 0}, RGB(8, 8, 8)},
                   {{62, 1}, RGB(7, 7, 7)},  {{0, 62}, RGB(9, 9, 9)}, {{0, 63}, RGB(8, 8, 8)},
                   {{63, 63}, RGB(8, 8, 8)}, {{5, 63}, RGB(8, 8, 8)}, {{62, 20}, RGB(1, 2, 3)},
                   {{1, 1}, RGB(1, 2, 3)},   {{40, 62}, RGB(1, 2, 3)}};
    dc.FillSolidRect(1, 1, 62, 62, RGB(1, 2, 3));
    dc.FillSolidRect(62, 1, 1, 1, RGB(7, 7, 7));
    for (const auto& c : corners)
        EXPECT_EQ(c.color, dc.GetPixel(c.at)) << c.at.x << ' ' << c.at.y;
    EXPECT_TRUE(dc.TextOut(3, 3, _T("H")));
    CRect needed(0, 0, 1, 1);
    EXPECT_GT(dc.DrawText(_T("wide"), needed, DT_CALCRECT), 5);
    EXPECT_EQ(needed.Size(), dc.GetTextExtent(_T("wide")));
    EXPECT_LT(dc.GetTextExtent(_T("wide"), 1).cx, needed.Width());
}

TEST(GraphicsObjects, AreDeletedWithTheirWrapper) {
    HGDIOBJ handles[5];
    {
        CPen pen(PS_SOLID, 1, 0);
        CBrush brush(RGB(1, 2, 3));
        CFont font;
        EXPECT_TRUE(Throws<CResourceException>([] { AfxThrowResourceException(); }));
        ASSERT_TRUE(font.CreatePointFont(7200, _T("Arial")));
        LOGFONT large = {};
        font.GetLogFont(&large);
        EXPECT_EQ(-10 * CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY), large.lfHeight);
        font.DeleteObject();
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

TEST(GraphicsObjects, HandlesOfOthersGetAnObjectOfTheirKind) {
    {
        CPen pen;
        ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    }
    EXPECT_EQ(static_cast<UINT>(OBJ_PEN), ::GetObjectType(::GetStockObject(BLACK_PEN)));
    const LOGBRUSH look{BS_SOLID, 0, 0};
    const std::pair<HGDIOBJ, CRuntimeClass*> kinds[] = {
        {::CreatePen(PS_DOT, 1, 0), RUNTIME_CLASS(CPen)},
        {::ExtCreatePen(PS_GEOMETRIC, 2, &look, 0, nullptr), RUNTIME_CLASS(CPen)},
        {::CreateSolidBrush(1), RUNTIME_CLASS(CBrush)},
        {::CreateBitmap(2, 2, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
        {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)},
        {::CreateFontW(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L""), RUNTIME_CLASS(CFont)},
        {::CreateCompatibleDC(nullptr), RUNTIME_CLASS(CGdiObject)},
    };
    for (const auto& [handle, kind] : kinds) {
        CGdiObject* object = CGdiObject::FromHandle(handle);
        EXPECT_EQ(kind, object->GetRuntimeClass());
        EXPECT_EQ(object, CGdiObject::FromHandle(handle)) << "the same until the next idle time";
        ::DeleteObject(handle);
    }
    CGdiObject::DeleteTempMap();
    ::DeleteDC(static_cast<HDC>(kinds[6].first));
    CBitmap bitmap;
    CClientDC screen(nullptr);
    EXPECT_FALSE(bitmap.Attach(nullptr) || bitmap.DeleteObject() || bitmap.LoadBitmap(999));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 5, 7));
    BITMAP made;
    bitmap.GetBitmap(&made);
    EXPECT_TRUE(made.bmWidth == 5 && made.bmHeight == 7);
    CBrush brush;
    EXPECT_TRUE(brush.CreatePatternBrush(&bitmap));
    EXPECT_EQ(&bitmap, CGdiObject::FromHandle(bitmap));
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
    EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&half, nullptr, RGN_COPY));
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
