#include "canvas/CanvasFixture.h"

#include "appearance/UIObjectRectangle.h"
#include "core/PaintScope.h"

#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>

using namespace Lumo;

namespace {

using PaintTest = CanvasFixture;

// A rectangle that counts the draws that reach pixels.
class Watched : public CUIObjectRectangle {
public:
    explicit Watched(const Gdiplus::RectF& rect) : CUIObjectRectangle(rect, DS_RECTANGLE) {}
    void Draw(Gdiplus::Graphics* g) override {
        drawn += !PaintScope::Misses(*g, GetPosition());
        CUIObjectRectangle::Draw(g);
    }
    int drawn = 0;
};

COLORREF WindowPixel(CWnd& wnd, int x, int y) {
    CClientDC dc(&wnd);
    return ::GetPixel(dc.m_hDC, x, y);
}

TEST_F(PaintTest, TheGroundIsBlackAndSelectedObjectsShowHandles) {
    CUIObject* object = AddRectangle(100, 100, 80, 60);
    object->SetFillShapeMode(0);
    EXPECT_EQ(PixelAt(5, 5), 0xFF000000u);
    EXPECT_EQ(PixelAt(98, 98), 0xFF000000u);
    m_canvas->Select(object, 0);
    EXPECT_EQ(PixelAt(98, 98), 0xFF87CEEBu);
}

TEST_F(PaintTest, TheWindowShowsWhatDrawGives) {
    AddRectangle(100, 100, 80, 60)->SetText(CString(L" "));
    m_canvas->Invalidate();
    m_canvas->UpdateWindow();
    for (const CPoint pt :
         {CPoint(5, 5), CPoint(110, 110), CPoint(100, 130), CPoint(179, 159), CPoint(200, 200)}) {
        const Gdiplus::ARGB argb = PixelAt(pt.x, pt.y);
        EXPECT_EQ(WindowPixel(*m_canvas, pt.x, pt.y),
                  RGB((argb >> 16) & 0xFF, (argb >> 8) & 0xFF, argb & 0xFF))
            << pt.x << ", " << pt.y;
    }
}

TEST_F(PaintTest, OnlyObjectsThatTheUpdateTouchesAreDrawn) {
    auto* inside = new Watched({10, 10, 30, 30});
    auto* outside = new Watched({200, 200, 30, 30});
    m_document->AppendObject(inside, nullptr);
    m_document->AppendObject(outside, nullptr);
    m_canvas->Invalidate();
    m_canvas->UpdateWindow();
    EXPECT_EQ(inside->drawn, 1);
    EXPECT_EQ(outside->drawn, 1);
    m_canvas->InvalidateObject(inside);
    m_canvas->UpdateWindow();
    EXPECT_EQ(inside->drawn, 2);
    EXPECT_EQ(outside->drawn, 1);
    PixelAt(0, 0);  // outside a paint message everything is drawn
    EXPECT_EQ(outside->drawn, 2);
}

// Objects of a host that do not draw library objects where their rectangles say: what a partial paint leaves
// out must not follow from that.

class WithMovedChild : public CUIObjectRectangle {
public:
    WithMovedChild() : CUIObjectRectangle({210, 40, 90, 60}, DS_RECTANGLE) {}
    void Draw(Gdiplus::Graphics* g) override {
        const Gdiplus::GraphicsState state = g->Save();
        g->TranslateTransform(200, 30);
        m_child.Draw(g);
        g->Restore(state);
    }

private:
    CUIObjectRectangle m_child{{10, 10, 90, 60}, DS_RECTANGLE};
};

class Turned : public CUIObjectRectangle {
public:
    Turned() : CUIObjectRectangle({210, 70, 90, 4}, DS_RECTANGLE) {}
    void Draw(Gdiplus::Graphics* g) override {
        const Gdiplus::GraphicsState state = g->Save();
        g->TranslateTransform(255, 72);
        g->RotateTransform(90);
        g->TranslateTransform(-255, -72);
        CUIObjectRectangle::Draw(g);
        g->Restore(state);
    }
};

class Enlarged : public CUIObjectRectangle {
public:
    Enlarged() : CUIObjectRectangle({210, 40, 90, 60}, DS_RECTANGLE) {}
    void Draw(Gdiplus::Graphics* g) override {
        g->SetPageUnit(Gdiplus::UnitPixel);
        g->SetPageScale(2.0f);
        m_child.Draw(g);
        g->SetPageScale(1.0f);
        g->SetPageUnit(Gdiplus::UnitDisplay);
    }

private:
    CUIObjectRectangle m_child{{105, 20, 45, 30}, DS_RECTANGLE};
};

// Fills its picture in the first paint that it takes part in, and keeps it.
class WithPicture : public CUIObjectRectangle {
public:
    WithPicture() : CUIObjectRectangle({210, 40, 90, 60}, DS_RECTANGLE) {}
    void Draw(Gdiplus::Graphics* g) override {
        if (!m_picture) {
            m_picture = std::make_unique<Gdiplus::Bitmap>(90, 60, PixelFormat32bppPARGB);
            Gdiplus::Graphics own(m_picture.get());
            CUIObjectRectangle({0, 0, 90, 60}, DS_RECTANGLE).Draw(&own);
        }
        g->DrawImage(m_picture.get(), 210, 40);
    }

private:
    std::unique_ptr<Gdiplus::Bitmap> m_picture;
};

TEST_F(PaintTest, APartialPaintShowsWhatAFullPaintShows) {
    for (CUIObject* object :
         {static_cast<CUIObject*>(new WithMovedChild), static_cast<CUIObject*>(new Turned),
          static_cast<CUIObject*>(new Enlarged), static_cast<CUIObject*>(new WithPicture)}) {
        SCOPED_TRACE(typeid(*object).name());
        m_canvas->UpdateWindow();
        m_document->AppendObject(object, nullptr);
        m_canvas->InvalidateRect(CRect(240, 80, 270, 95));
        m_canvas->UpdateWindow();
        const Gdiplus::ARGB argb = PixelAt(255, 88);
        EXPECT_NE(argb, 0xFF000000u);
        EXPECT_EQ(WindowPixel(*m_canvas, 255, 88), RGB((argb >> 16) & 0xFF, (argb >> 8) & 0xFF, argb & 0xFF));
        CUIDocument::DestroyObject(object);
        m_canvas->Invalidate();
    }
}

TEST_F(PaintTest, RemovedObjectsAreNotDrawnUnlessTheyAreTheFocus) {
    auto* object = new Watched({10, 10, 30, 30});
    m_document->AppendObject(object, nullptr);
    object->SetRemoved(1);
    PixelAt(0, 0);
    EXPECT_EQ(object->drawn, 0);
    Gdiplus::Bitmap bitmap(50, 50, PixelFormat32bppPARGB);
    Gdiplus::Graphics g(&bitmap);
    m_document->DrawObject(&g, object);
    EXPECT_EQ(object->drawn, 1);
    m_document->DrawObject(&g, nullptr);
    EXPECT_EQ(object->drawn, 1);
}

TEST_F(PaintTest, WhatLeavesThePageIsRepaintedWhereItWas) {
    const auto takes = [&](const auto& leave) {
        CUIObject* object = AddRectangle(70, 90, 50, 30);
        AddRectangle(300, 200, 40, 20);
        m_canvas->Select(object, 0);
        TakeUpdateRect();
        leave(object);
        const CRect update = TakeUpdateRect();
        m_document->ClearCanvasObject();
        m_document->AppendCanvas(m_canvas);
        return update;
    };
    const CRect withHandles(66, 86, 124, 124);  // half of a handle beyond every side
    for (const CRect& update : {takes([&](CUIObject* object) { CUIDocument::DestroyObject(object); }),
                                takes([&](CUIObject* object) { m_document->RemoveObject(object, 0); }),
                                takes([&](CUIObject* object) { m_document->RemoveObject(object, 1); })}) {
        EXPECT_TRUE(update.left <= withHandles.left && update.top <= withHandles.top &&
                    update.right >= withHandles.right && update.bottom >= withHandles.bottom)
            << update.left << ", " << update.top << ", " << update.right << ", " << update.bottom;
        EXPECT_LT(update.right, 200);  // and no more than that
    }
    // A page that is cleared shows nothing of what was on it.
    EXPECT_GE(
        takes([&](CUIObject*) { m_document->ClearObject(m_document->GetCanvasObjectList(m_canvas)); }).right,
        340);
}

TEST_F(PaintTest, TheDiagnosticPictureShowsItsTwoCurves) {
    Gdiplus::Bitmap bitmap(450, 420, PixelFormat32bppRGB);
    Gdiplus::Graphics g(&bitmap);
    const HDC dc = g.GetHDC();
    m_canvas->OnPaintTest(dc);
    g.ReleaseHDC(dc);
    for (const CPoint pt :
         {CPoint(200, 400), CPoint(300, 352), CPoint(20, 50), CPoint(100, 10), CPoint(400, 80)}) {
        Gdiplus::Color color;
        int lit = 0;
        for (int x = -1; x <= 1; ++x)
            for (int y = -1; y <= 1; ++y)
                lit += bitmap.GetPixel(pt.x + x, pt.y + y, &color) == Gdiplus::Ok &&
                       (color.GetValue() & 0xFFFFFF) == 0x90EE90;
        EXPECT_GT(lit, 0) << pt.x << ", " << pt.y;
    }
}

}  // namespace
