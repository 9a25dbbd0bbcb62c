// The property panel in a real window, driven by real keys and controls.
#include "StudioFixture.h"
#include "studio/app/panels/PropertyPanel.h"
#include "studio/document/ObjectExtras.h"
#include "studio/editing/History.h"
#include "studio/editing/PageEdits.h"
#include "studio/properties/PropertyTable.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

using namespace Studio;

namespace {

// Edit controls in the order in which they are made.
enum Edit { kName, kX, kY, kWidth, kHeight, kFillColor, kFillOpacity };

class PropertyPanelTest : public StudioFixture, public PropertyPanelOwner {
protected:
    void SetUp() override {
        StudioFixture::SetUp();
        m_parent.ShowWindow(SW_SHOWNOACTIVATE);
        ASSERT_TRUE(m_panel.Create(m_parent));
        m_panel.MoveWindow(300, 0, PropertyPanel::kWidth, 400);
        m_edits = Controls(L"Edit");
    }

    StudioCanvas* PropertyPage() override { return m_document ? &Page() : nullptr; }
    void OnPropertyRefused(const CString& reason) override { m_reason = reason; }

    static BOOL CALLBACK Collect(HWND window, LPARAM list) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    }
    // The panel's controls of a window class, in the order in which they are made.
    std::vector<HWND> Controls(LPCWSTR windowClass) {
        std::vector<HWND> controls;
        ::EnumChildWindows(m_panel.m_hWnd, Collect, reinterpret_cast<LPARAM>(&controls));
        std::erase_if(controls, [&](HWND control) {
            WCHAR name[16] = L"";
            ::GetClassName(control, name, 16);
            return ::lstrcmpi(name, windowClass) != 0;
        });
        return controls;
    }

    CString TextOf(Edit edit) {
        WCHAR text[256] = L"";
        ::GetWindowText(m_edits[edit], text, 256);
        return text;
    }
    void Focus(Edit edit) { ::SetFocus(m_edits[edit]); }
    void Type(Edit edit, LPCWSTR text) {
        Focus(edit);
        ::SendMessage(m_edits[edit], EM_SETSEL, 0, -1);
        ::SendMessage(m_edits[edit], EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    // A key as the message pump hands it out; true when the panel keeps it from the frame.
    bool Press(UINT key, bool control = false) {
        BYTE state[256] = {};
        state[VK_CONTROL] = control ? 0x80 : 0;
        ::SetKeyboardState(state);
        MSG message = {};
        message.hwnd = ::GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        const bool kept = m_panel.PreTranslateMessage(&message) != FALSE;
        state[VK_CONTROL] = 0;
        ::SetKeyboardState(state);
        return kept;
    }
    Pixels Picture() {
        ::HideCaret(nullptr);
        m_panel.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return PixelsOf(m_panel);
    }
    // A panel as high as all that is in it.
    void Enlarge(int height) {
        m_parent.MoveWindow(0, 0, 600, height);
        m_panel.MoveWindow(300, 0, PropertyPanel::kWidth, height);
    }
    void ClickOn(HWND control, int x, int y) {
        ::SendMessage(control, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ::SendMessage(control, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }
    float X() { return Objects().front()->GetPosition().X; }

    PropertyPanel m_panel{*this};
    std::vector<HWND> m_edits;
    CString m_reason;
};

}  // namespace

TEST_F(PropertyPanelTest, EnterWritesEscapeTakesBackLosingTheFocusWrites) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    EXPECT_EQ(L"10", TextOf(kX));
    Type(kX, L"070");
    EXPECT_FLOAT_EQ(10.0f, X());
    EXPECT_TRUE(Press(VK_RETURN));
    EXPECT_FLOAT_EQ(70.0f, X());
    EXPECT_EQ(L"70", TextOf(kX));
    Type(kX, L"80");
    EXPECT_TRUE(Press(VK_ESCAPE));
    EXPECT_EQ(L"70", TextOf(kX));
    EXPECT_EQ(m_edits[kX], ::GetFocus());
    Type(kX, L"90");
    EXPECT_TRUE(Press(VK_TAB));
    EXPECT_EQ(m_edits[kY], ::GetFocus());
    EXPECT_FLOAT_EQ(90.0f, X());
    EXPECT_TRUE(Press(VK_ESCAPE)) << "nothing typed: back to the page";
    EXPECT_EQ(Page().m_hWnd, ::GetFocus());
}

TEST_F(PropertyPanelTest, RefusedTextStaysToBeCorrectedAndTheValueWithIt) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    m_document->Edits().Clear();
    Type(kWidth, L"0");
    Press(VK_RETURN);
    EXPECT_EQ(L"0", TextOf(kWidth));
    EXPECT_FALSE(m_reason.IsEmpty());
    EXPECT_FLOAT_EQ(100.0f, Objects().front()->GetPosition().Width);
    Type(kWidth, L"60");
    EXPECT_TRUE(m_reason.IsEmpty()) << "typing on ends the refusal";
    Press(VK_RETURN);
    EXPECT_FLOAT_EQ(60.0f, Objects().front()->GetPosition().Width);
    Type(kWidth, L"wide");
    Focus(kX);
    EXPECT_EQ(L"60", TextOf(kWidth)) << "the old value, once the focus is gone";
    EXPECT_FALSE(m_reason.IsEmpty());
    Type(kFillColor, L"12345");
    Press(VK_RETURN);
    EXPECT_FALSE(m_reason.IsEmpty());
    Press(VK_ESCAPE);
    EXPECT_EQ(L"3E7BFA", TextOf(kFillColor));
    EXPECT_TRUE(m_document->Edits().Undo());
    EXPECT_FALSE(m_document->Edits().CanUndo()) << "one step only";
}

TEST_F(PropertyPanelTest, FieldsFollowTheSelectionButNotWhileTheirTextIsTyped) {
    Lumo::CUIObject* first = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    Lumo::CUIObject* second = Add(Lumo::DS_RECTANGLE, 40, 20, 100, 50);
    Page().SelectOnly({first, second});
    m_panel.Refresh();
    EXPECT_EQ(L"", TextOf(kX));
    EXPECT_EQ(L"20", TextOf(kY));
    EXPECT_FALSE(::IsWindowEnabled(m_edits[kName]));
    Type(kX, L"55");
    first->SetPosition({15, 25, 100, 50});
    m_panel.Refresh();
    EXPECT_EQ(L"55", TextOf(kX));
    EXPECT_EQ(L"", TextOf(kY));
    Press(VK_RETURN);
    EXPECT_FLOAT_EQ(55.0f, first->GetPosition().X);
    EXPECT_FLOAT_EQ(55.0f, second->GetPosition().X);
    // With nothing left to show, the focus does not stay in a dead field.
    Page().SelectOnly({});
    m_panel.Refresh();
    EXPECT_EQ(L"", TextOf(kX));
    EXPECT_FALSE(::IsWindowEnabled(m_edits[kX]));
    EXPECT_EQ(Page().m_hWnd, ::GetFocus());
}

TEST_F(PropertyPanelTest, ArrowKeysStepANumberInOneUndo) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    Focus(kX);
    for (int i = 0; i < 3; ++i)
        Press(VK_UP);
    Press(VK_DOWN);
    EXPECT_FLOAT_EQ(12.0f, X());
    EXPECT_EQ(L"12", TextOf(kX));
    EXPECT_TRUE(m_document->Edits().Undo());
    EXPECT_FLOAT_EQ(10.0f, X());
}

TEST_F(PropertyPanelTest, KeysOfTextStayInThePanelKeysOfCommandsDoNot) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    Focus(kName);
    for (UINT key : {UINT{'R'}, UINT{VK_DELETE}, UINT{VK_LEFT}})
        EXPECT_TRUE(Press(key)) << key;
    for (UINT key : {UINT{'A'}, UINT{'C'}})
        EXPECT_TRUE(Press(key, true)) << key;
    for (UINT key : {UINT{'S'}, UINT{'Y'}, UINT{'G'}})
        EXPECT_FALSE(Press(key, true)) << key;
    EXPECT_FALSE(Press(VK_F5));
}

TEST_F(PropertyPanelTest, ManyChangesAreShownOnceWhenThereIsTime) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    for (int i = 1; i <= 50; ++i) {
        object->SetPosition({10.0f + static_cast<float>(i), 20, 100, 50});
        m_panel.RefreshSoon();
    }
    EXPECT_EQ(L"10", TextOf(kX));
    const DWORD end = ::GetTickCount() + 2000;
    MSG message;
    while (TextOf(kX) == L"10" && ::GetTickCount() < end && ::GetMessage(&message, nullptr, 0, 0))
        ::DispatchMessage(&message);
    EXPECT_EQ(L"60", TextOf(kX));
}

// The platform's box hands the mouse on to its list when the button goes up, also to a list that is closed.
TEST_F(PropertyPanelTest, AListThatLosesTheFocusWhileItIsPressedGivesTheMouseBack) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    const HWND box = Controls(L"ComboBox").at(0);
    ::SendMessage(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 12));
    ASSERT_NE(0, ::SendMessage(box, CB_GETDROPPEDSTATE, 0, 0));
    Focus(kX);
    EXPECT_EQ(0, ::SendMessage(box, CB_GETDROPPEDSTATE, 0, 0));
    ::SendMessage(box, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(70, 40));
    ::SendMessage(box, WM_LBUTTONUP, 0, MAKELPARAM(70, 12));
    EXPECT_EQ(nullptr, ::GetCapture());
}

// Every kind of object, several, none; with all that they have being different.
TEST_F(PropertyPanelTest, ShowsWhatIsSelected) {
    Enlarge(880);
    Sheet sheet(1100);
    const auto show = [&](const Lumo::CUIObjectDeque& objects) {
        Page().SelectOnly(objects);
        m_panel.Refresh();
        sheet.Add(Picture());
    };
    Lumo::CUIObject* shape = Add(Lumo::DS_RECTANGLE, -10, 20.25f, 100, 50);
    shape->SetFillShapeMode(3), shape->SetFillColor(0x80123456), shape->SetLineShapeMode(2);
    shape->SetLineColor(0xABCDEF), shape->SetLineAlpha(51), shape->SetLineWidth(3.5f);
    shape->SetLineDashStyle(2), shape->SetTextFontStyle(5), shape->SetTextAlignment(2);
    shape->SetText(L"two\nlines"), shape->SetTextColor(0x40FF00FF), shape->SetTextFontSize(17);
    shape->GetCoordinate().Format<Lumo::CUIShapeFormatFill>().m_strImagePath = L"C:\\signs\\lamp.png";
    Lumo::CUIObject* line = Add(Lumo::DS_LINE, 200, 20, 60, 30);
    line->SetLineStartCap(Gdiplus::LineCapArrowAnchor), line->SetLineEndCap(Gdiplus::LineCapRound);
    line->SetTextFontStyle(10);
    Lumo::CUIObject* text = Add(Lumo::DS_TEXTEDIT, 10, 120, 100, 50);
    Lumo::CUIObject* control = Add(Lumo::DS_CHARTPEQ, 300, 120, 100, 50);
    EditExtras(*control)->binding = L"out3.peq";
    show({});
    for (Lumo::CUIObject* object : {shape, line, text, control})
        show({object});
    show({shape, line, text});
    Page().SelectOnly({shape, text});
    GroupSelection(Page());
    show({Objects().back()});
    // The record of each behaviour; with it alone on it is the one that is shown.
    Enlarge(640);
    for (UINT header = 1; header <= 4; ++header)
        ::SendMessage(::GetDlgItem(m_panel, static_cast<int>(header)), BM_CLICK, 0, 0);
    for (int i = 0; i < kBehaviourCount; ++i) {
        const auto behaviour = static_cast<Behaviour>(i);
        Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
        EditExtras(*object)->binding = L"in1.level";
        EditExtras(*object)->TurnOn(behaviour, true);
        for (const Property& field : BehaviourFields(behaviour)) {
            const int number = static_cast<int>(&field - BehaviourFields(behaviour).data());
            const PropertyValue now = field.get(*object);
            if (std::holds_alternative<float>(now))
                field.set(*object, PropertyValue(number + 0.0f));
            else if (field.kind == FieldKind::kChoice)
                field.set(*object, PropertyValue(number % static_cast<int>(field.choices().size())));
            else if (std::holds_alternative<int>(now))
                field.set(*object, PropertyValue(number % 2));
            else if (std::holds_alternative<ColorParts>(now))
                field.set(*object, PartsOf(0x20103040u * static_cast<DWORD>(number)));
            else if (field.label != Text::kPropLineColors)
                field.set(*object, PropertyValue(CString(L"in1.level")));
        }
        show({object});
    }
    ExpectGolden(sheet.All(), "studio", "properties", 20);
}

// The states of the fields that the mouse and the keys make.
TEST_F(PropertyPanelTest, FieldsShowTheirState) {
    Enlarge(980);
    Sheet sheet(1100);
    Lumo::CUIObject* shape = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel.Refresh();
    const auto header = [&](int number) { return ::GetDlgItem(m_panel, number); };
    const auto buttons = Controls(L"Button");
    Type(kWidth, L"0");
    Press(VK_RETURN);
    sheet.Add(Picture());
    Type(kFillOpacity, L"200");
    Press(VK_RETURN);
    ::SendMessage(header(4), BM_CLICK, 0, 0);
    sheet.Add(Picture());
    ::SendMessage(header(4), BM_CLICK, 0, 0);
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
        CRect place;
        ::SetFocus(buttons[i]);
        ::GetWindowRect(buttons[i], place);
        m_panel.ScreenToClient(place);
        Picture();
        ::SendMessage(buttons[i], BM_SETSTATE, i % 2, 0);
        sheet.Add(PixelsOf(m_panel, place));
        ::SendMessage(buttons[i], BM_SETSTATE, 0, 0);
    }
    for (const HWND box : Controls(L"ComboBox")) {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(box, &info);
        ::SetFocus(box);
        m_panel.Refresh();
        if (::SendMessage(box, CB_GETCOUNT, 0, 0) > 20)
            continue;  // the fonts of the system
        ::SendMessage(box, CB_SHOWDROPDOWN, TRUE, 0);
        ::SendMessage(info.hwndList, LB_SETCURSEL, 1, 0);
        ::RedrawWindow(info.hwndList, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        CWnd list;
        list.Attach(info.hwndList);
        sheet.Add(PixelsOf(list));
        list.Detach();
        ::SendMessage(box, CB_SHOWDROPDOWN, FALSE, 0);
    }
    EXPECT_NE(shape, nullptr);
    ExpectGolden(sheet.All(), "studio", "fields", 20);
}
