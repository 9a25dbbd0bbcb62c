#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UIEdit.h"
#include "canvas/CanvasFixture.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

class Edit : public CanvasFixture {
protected:
    CUIObjectTextEdit* AddText(float x, float y, float width, float height, const wchar_t* text) {
        Gdiplus::RectF rect(x, y, width, height);
        auto* object = new CUIObjectTextEdit(rect, DS_TOOL_TEXT);
        object->SetDocument(m_document);
        object->SetCanvas(m_canvas);
        object->SetText(text);
        m_document->AppendObject(object, nullptr);
        return object;
    }

    CUIEdit* Open(CUIObjectTextEdit* object) {
        m_canvas->EditText(object);
        return m_canvas->m_pEdit;
    }

    void Type(const wchar_t* text) {
        for (; *text != 0; ++text)
            m_canvas->m_pEdit->SendMessage(WM_CHAR, *text, 1);
    }

    static LOGFONT Font(int height) {
        LOGFONT font = {};
        font.lfHeight = height;
        wcscpy_s(font.lfFaceName, L"Arial");
        return font;
    }
};

TEST_F(Edit, OpensOverTheObjectWithAllItsTextSelected) {
    CUIObjectTextEdit* object = AddText(30.4f, 39.6f, 100, 20, L"Pegel");
    CUIEdit* edit = Open(object);
    ASSERT_NE(edit, nullptr);
    CRect rect;
    edit->GetWindowRect(&rect);
    m_canvas->ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 130, 60));
    EXPECT_EQ(edit->GetStyle() & 0xFFFF1FFF, 0x500111C1u & 0xFFFF1FFF);
    EXPECT_EQ(edit->GetDlgCtrlID(), 1010);
    EXPECT_EQ(edit->GetEditedObject(), object);
    EXPECT_EQ(object->GetEditing(), 1);
    EXPECT_EQ(::GetFocus(), edit->m_hWnd);
    CString text;
    edit->GetWindowText(text);
    EXPECT_STREQ(text, L"Pegel");
    int first = -1, last = -1;
    edit->GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 5);
    EXPECT_GT(edit->GetLineHeight(), 0);
    EXPECT_GT(edit->GetLimitText(), 32767u);
}

TEST_F(Edit, EnterStoresTheTextAndCloses) {
    CUIObjectTextEdit* object = AddText(30, 40, 100, 20, L"old");
    CUIEdit* edit = Open(object);
    const HWND window = edit->m_hWnd;
    Type(L"한글 12\r");
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_STREQ(object->GetText(), L"한글 12");
    EXPECT_EQ(object->GetEditing(), 1) << "kept: no font was ever set";
    EXPECT_EQ(::GetFocus(), m_canvas->m_hWnd);

    LOGFONT font = Font(-20);
    Open(object)->ChangeFont(font);
    Type(L"x\r");
    EXPECT_STREQ(object->GetText(), L"x");
    EXPECT_EQ(object->GetEditing(), 0);
}

TEST_F(Edit, EverythingElseClosesWithoutStoring) {
    CUIObjectTextEdit* object = AddText(30, 40, 100, 20, L"old");
    CUIObjectTextEdit* other = AddText(30, 140, 100, 20, L"other");
    Open(object);
    Type(L"new\x1b");
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_STREQ(object->GetText(), L"old");
    EXPECT_EQ(object->GetEditing(), 1);

    Open(object);
    Type(L"new");
    TakeUpdateRect();
    m_canvas->EditText(nullptr);
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_STREQ(object->GetText(), L"old");
    EXPECT_EQ(TakeUpdateRect(), CRect(27, 37, 133, 63)) << "with the outline";
    m_canvas->EditText(nullptr);

    Open(object);
    Type(L"new");
    EXPECT_EQ(Open(other)->GetEditedObject(), other);
    EXPECT_STREQ(object->GetText(), L"old");
    ::DestroyWindow(m_canvas->m_pEdit->m_hWnd);
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_STREQ(other->GetText(), L"other");
}

TEST_F(Edit, ClosesWhenItsObjectIsDestroyed) {
    CUIObjectTextEdit* object = AddText(30, 40, 100, 20, L"old");
    const HWND window = Open(object)->m_hWnd;
    m_document->DeleteObject(object);
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Edit, ClosesWithItsCanvas) {
    CUIObjectTextEdit* object = AddText(30, 40, 100, 20, L"old");
    Open(object);
    m_canvas->DestroyWindow();
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_STREQ(object->GetText(), L"old");
}

TEST_F(Edit, TheTextToolOpensItByAClick) {
    CUIObjectTextEdit* object = AddText(30, 40, 100, 20, L"text");
    CUIObject* plain = AddRectangle(200, 40, 50, 50);
    m_canvas->OnModeText();
    Click(80, 50);
    CUIEdit* edit = m_canvas->m_pEdit;
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(edit->GetEditedObject(), object);
    Type(L"typed");
    Click(80, 50);
    EXPECT_EQ(m_canvas->m_pEdit, edit) << "the open editor stays";
    m_canvas->SetFocus();
    EXPECT_EQ(::GetFocus(), edit->m_hWnd) << "the canvas passes the focus on";
    Click(225, 65);
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
    EXPECT_EQ(m_canvas->m_nMode, CM_DRAW);
    EXPECT_TRUE(m_canvas->IsSelected(plain));
}

TEST_F(Edit, MeasuresItsFontAndCentresItsLines) {
    CUIEdit* edit = Open(AddText(30, 40, 100, 100, L"text"));
    LOGFONT font = Font(-40);
    edit->ChangeFont(font);
    {
        CClientDC dc(edit);
        CFont* old = dc.SelectObject(edit->GetFont());
        TEXTMETRIC metrics;
        dc.GetTextMetrics(&metrics);
        dc.SelectObject(old);
        EXPECT_EQ(edit->GetLineHeight(), metrics.tmHeight + metrics.tmExternalLeading);
        EXPECT_EQ(edit->GetCharWidth(), metrics.tmAveCharWidth);
    }
    edit->ReSize();
    CRect rect;
    edit->GetWindowRect(&rect);
    m_canvas->ScreenToClient(&rect);
    const int height = edit->GetLineHeight();
    EXPECT_EQ(rect, CRect(CPoint(30, 40 + (100 - height) / 2), CSize(100, height)));
}

TEST_F(Edit, KeepsKeysFromTheHost) {
    CUIEdit* edit = Open(AddText(30, 40, 100, 20, L"old"));
    MSG key = {};
    key.hwnd = edit->m_hWnd;
    key.message = WM_CHAR;
    key.wParam = L'k';
    EXPECT_TRUE(edit->PreTranslateMessage(&key));
    CString text;
    edit->GetWindowText(text);
    EXPECT_STREQ(text, L"k") << "the key reached the control";
    MSG move = {};
    move.hwnd = edit->m_hWnd;
    move.message = WM_MOUSEMOVE;
    EXPECT_FALSE(edit->PreTranslateMessage(&move));
    key.wParam = VK_RETURN;
    EXPECT_TRUE(edit->PreTranslateMessage(&key));
    EXPECT_EQ(m_canvas->m_pEdit, nullptr);
}

TEST_F(Edit, LeavesKeysToAFrameInHelpMode) {
    auto* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 200)));
    CUIEdit* edit = Open(AddText(30, 40, 100, 20, L"old"));
    m_canvas->SetParent(frame);
    MSG key = {};
    key.hwnd = edit->m_hWnd;
    key.message = WM_CHAR;
    key.wParam = L'k';
    frame->m_bHelpMode = TRUE;
    EXPECT_FALSE(edit->PreTranslateMessage(&key));
    frame->m_bHelpMode = FALSE;
    EXPECT_TRUE(edit->PreTranslateMessage(&key));
    m_canvas->SetParent(&m_parent);
    frame->DestroyWindow();
}

}  // namespace
