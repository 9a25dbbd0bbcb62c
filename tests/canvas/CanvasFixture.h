// A document with one page in a real window, and the mouse messages of a gesture.
#pragma once

#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

class CanvasFixture : public ::testing::Test {
protected:
    static constexpr int kWidth = 400;
    static constexpr int kHeight = 300;

    CanvasFixture() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"test", WS_POPUP | WS_VISIBLE, 20, 20, kWidth, kHeight,
                          nullptr, nullptr);
        m_canvas = AddCanvas();
        Lumo::CUIToolBase::run_handle = -1;
        Lumo::CUIToolBase::run_drawshape = Lumo::DS_SELECT;
    }

    ~CanvasFixture() override {
        ::ReleaseCapture();
        m_document->Release();
        for (auto& canvas : m_canvases)
            canvas->DestroyWindow();
    }

    Lumo::CUICanvas* AddCanvas() {
        CString name(L"page");
        CRect rect(0, 0, kWidth, kHeight);
        EXPECT_EQ(m_document->CreateCanvas(WS_CHILD | WS_VISIBLE, name, rect, m_parent.m_hWnd), 1);
        m_canvases.emplace_back(m_document->GetCurrentCanvas());
        return m_canvases.back().get();
    }

    // An object of a kind at a rectangle, appended to the current page with its back pointers.
    Lumo::CUIObject* Add(Lumo::DrawShape kind, float x, float y, float width, float height) {
        Lumo::CUIObject* object = Lumo::CUIToolBase::CreateUIObject({x, y, width, height}, kind);
        object->SetDocument(m_document);
        object->SetCanvas(m_document->GetCurrentCanvas());
        m_document->AppendObject(object, nullptr);
        return object;
    }

    Lumo::CUIObject* AddRectangle(float x, float y, float width, float height) {
        return Add(Lumo::DS_RECTANGLE, x, y, width, height);
    }

    const std::deque<Lumo::CUIObject*>& Objects() { return *m_document->GetCanvasObjectList(m_canvas); }

    void Send(UINT message, int x, int y, UINT flags) {
        m_canvas->SendMessage(message, flags, MAKELPARAM(x, y));
    }
    void Press(int x, int y, UINT flags = 0) { Send(WM_LBUTTONDOWN, x, y, flags | MK_LBUTTON); }
    void Move(int x, int y, UINT flags = MK_LBUTTON) { Send(WM_MOUSEMOVE, x, y, flags); }
    void Release(int x, int y, UINT flags = 0) { Send(WM_LBUTTONUP, x, y, flags); }
    void DoubleClick(int x, int y, UINT flags = 0) { Send(WM_LBUTTONDBLCLK, x, y, flags | MK_LBUTTON); }
    void Click(int x, int y, UINT flags = 0) {
        Press(x, y, flags);
        Release(x, y, flags);
    }
    void Drag(CPoint from, CPoint to, UINT flags = 0) {
        Press(from.x, from.y, flags);
        Move((from.x + to.x) / 2, (from.y + to.y) / 2, flags | MK_LBUTTON);
        Move(to.x, to.y, flags | MK_LBUTTON);
        Release(to.x, to.y, flags);
    }

    // The canvas's invalid rectangle, which is then taken as painted.
    CRect TakeUpdateRect() { return TakeUpdateRect(*m_canvas); }
    static CRect TakeUpdateRect(Lumo::CUICanvas& canvas) {
        CRect rect;
        canvas.GetUpdateRect(&rect);
        canvas.ValidateRect(nullptr);
        return rect;
    }

    // A pixel of the page as `CUICanvas::Draw` renders it, ARGB.
    Gdiplus::ARGB PixelAt(int x, int y) {
        Gdiplus::Bitmap bitmap(kWidth, kHeight, PixelFormat32bppPARGB);
        Gdiplus::Graphics g(&bitmap);
        m_canvas->Draw(&g, kWidth, kHeight);
        Gdiplus::Color color;
        bitmap.GetPixel(x, y, &color);
        return color.GetValue();
    }

    CWnd m_parent;
    Lumo::CUIDocument* m_document = new Lumo::CUIDocument;
    Lumo::CUICanvas* m_canvas = nullptr;

private:
    std::vector<std::unique_ptr<Lumo::CUICanvas>> m_canvases;
};

inline void ExpectRect(const Gdiplus::RectF& rect, float x, float y, float width, float height) {
    EXPECT_TRUE(rect.X == x && rect.Y == y && rect.Width == width && rect.Height == height)
        << rect.X << ", " << rect.Y << ", " << rect.Width << ", " << rect.Height;
}
