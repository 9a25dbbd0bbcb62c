// Dialog data: what UpdateData moves between members and controls, and what it refuses.
#include "WindowSupport.h"

#include "Expect.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// A program that keeps what it would have shown.
class QuietApp : public CWinApp {
public:
    std::vector<CString> shown;
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        shown.emplace_back(text);
        return IDOK;
    }
};

/// The form in the resources, with one value for each control.
class Form : public CDialog {
public:
    CString name = _T("n\xAC00me");
    int count = -12;
    int check = 2, radio = 1, list = 1, scroll = 37;
    CString combo = _T("free text");
    CEdit edit;
    int changes = 0, ended = -2;
    int missing = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Control(exchange, 710, edit);
        DDX_Text(exchange, 710, name);
        DDV_MaxChars(exchange, name, 7);
        DDX_Text(exchange, 711, count);
        DDV_MinMaxInt(exchange, count, -20, 300);
        DDX_Check(exchange, 712, check);
        DDX_Radio(exchange, 713, radio);
        DDX_LBIndex(exchange, 716, list);
        DDX_CBString(exchange, 717, combo);
        DDX_Scroll(exchange, 718, scroll);
        if (missing)
            DDX_Check(exchange, missing, check);
    }
    BOOL OnInitDialog() override {
        for (LPCTSTR item : {_T("alpha"), _T("alphabet"), _T("beta")}) {
            ::SendMessage(*GetDlgItem(716), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
            ::SendMessage(*GetDlgItem(717), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        }
        ::SetScrollRange(*GetDlgItem(718), SB_CTL, 0, 100, FALSE);
        return CDialog::OnInitDialog();
    }
    void OnChange() { ++changes; }
    void EndModalLoop(int result) override { ended = result; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Form, CDialog)
    ON_EN_CHANGE(711, &Form::OnChange)
END_MESSAGE_MAP()

class DialogData : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(form.Create(MAKEINTRESOURCE(700)));
        form.ShowWindow(SW_SHOW);
    }
    void TearDown() override { form.DestroyWindow(); }
    void Enter(int control, LPCTSTR text) { form.SetDlgItemText(control, text); }
    CString Text(int control) {
        CString text;
        form.GetDlgItemText(control, text);
        return text;
    }

    QuietApp app;
    Form form;
};

TEST_F(DialogData, ShowsTheMembersAndTakesTheEntries) {
    EXPECT_EQ(0, form.changes) << "the program's own texts are no entries";
    EXPECT_TRUE(Text(710) == _T("n\xAC00me") && Text(711) == _T("-12") && Text(717) == _T("free text"));
    EXPECT_EQ(2u, form.IsDlgButtonChecked(712));
    EXPECT_TRUE(!form.IsDlgButtonChecked(713) && form.IsDlgButtonChecked(714));
    EXPECT_EQ(1, form.SendDlgItemMessage(716, LB_GETCURSEL));
    EXPECT_EQ(37, ::GetScrollPos(*form.GetDlgItem(718), SB_CTL));
    EXPECT_EQ(form.GetDlgItem(710), &form.edit);
    EXPECT_EQ(7u, form.edit.GetLimitText());

    Enter(710, _T("other"));
    Enter(711, _T(" 300 "));
    EXPECT_EQ(1, form.changes);
    form.CheckDlgButton(712, 1);
    ::CheckRadioButton(form, 713, 715, 715);
    form.SendDlgItemMessage(716, LB_SETCURSEL, 2);
    form.SendDlgItemMessage(717, CB_SETCURSEL, 0);
    ::SetScrollPos(*form.GetDlgItem(718), SB_CTL, 64, FALSE);
    EXPECT_TRUE(form.UpdateData());
    EXPECT_EQ(form.name, _T("other"));
    EXPECT_TRUE(form.count == 300 && form.check == 1 && form.radio == 2 && form.list == 2 &&
                form.scroll == 64);
    EXPECT_EQ(form.combo, _T("alpha"));
    ::CheckRadioButton(form, 713, 715, 0);
    EXPECT_TRUE(form.UpdateData());
    EXPECT_EQ(-1, form.radio);
}

TEST_F(DialogData, RefusesEntriesAndPutsTheFocusThere) {
    const struct {
        LPCTSTR text, name, reason;
    } cases[] = {
        {_T("12x"), _T("a"), _T("Please enter an integer.")},
        {_T(""), _T("a"), _T("Please enter an integer.")},
        {_T("99999999999"), _T("a"), _T("Please enter an integer.")},
        {_T("301"), _T("a"), _T("Please enter an integer between -20 and 300.")},
        {_T("-21"), _T("a"), _T("Please enter an integer between -20 and 300.")},
        {_T("5"), _T("eight888"), _T("Please enter no more than 7 characters.")},
    };
    for (const auto& c : cases) {
        app.shown.clear();
        Enter(710, c.name);
        Enter(711, c.text);
        form.SetFocus();
        form.SendMessage(WM_COMMAND, IDOK);
        ASSERT_EQ(1u, app.shown.size());
        EXPECT_EQ(c.reason, app.shown[0]);
        EXPECT_EQ(-2, form.ended) << "the dialog stays";
        EXPECT_EQ(form.GetDlgItem(c.name[1] ? 710 : 711), CWnd::GetFocus());
        EXPECT_EQ(37, form.scroll) << "what comes behind is not taken";
    }
    int start, end;
    form.edit.GetSel(start, end);
    EXPECT_TRUE(start == 0 && end == 8) << "its text is selected";
    Enter(710, _T("a"));
    form.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(IDOK, form.ended);
}

TEST_F(DialogData, OfAControlThatIsNotThereEndsTheDialogAtItsStart) {
    Form wrong;
    wrong.missing = 799;
    ASSERT_TRUE(wrong.Create(MAKEINTRESOURCE(700)));
    EXPECT_EQ(-1, wrong.ended);
    EXPECT_EQ(1u, app.shown.size());
    wrong.DestroyWindow();
}

/// Moves one text into a value of the type; true when it is taken.
template <class Value>
bool Takes(CWnd& form, LPCTSTR text, Value expected) {
    form.SetDlgItemText(711, text);
    Value value{};
    try {
        CDataExchange in(&form, TRUE);
        DDX_Text(&in, 711, value);
        CDataExchange out(&form, FALSE);
        form.SetDlgItemText(711, _T(""));
        DDX_Text(&out, 711, value);
    } catch (CUserException* e) {
        e->Delete();
        return false;
    }
    CString shown;
    form.GetDlgItemText(711, shown);
    EXPECT_EQ(shown, text);
    EXPECT_EQ(expected, value);
    return true;
}

TEST_F(DialogData, EveryTypeTakesItsRangeOnly) {
    EXPECT_TRUE(Takes<BYTE>(form, _T("255"), 255) && !Takes<BYTE>(form, _T("256"), 0) &&
                !Takes<BYTE>(form, _T("-1"), 0));
    EXPECT_TRUE(Takes<short>(form, _T("-32768"), -32768) && !Takes<short>(form, _T("32768"), 0));
    EXPECT_TRUE(Takes<long>(form, _T("2147483647"), 2147483647) && !Takes<long>(form, _T("2147483648"), 0));
    EXPECT_TRUE(Takes<UINT>(form, _T("4294967295"), 4294967295u) && !Takes<UINT>(form, _T("-1"), 0));
    EXPECT_TRUE(Takes<DWORD>(form, _T("4294967295"), 4294967295u) &&
                !Takes<DWORD>(form, _T("4294967296"), 0));
    EXPECT_TRUE(Takes<float>(form, _T("-0.25"), -0.25f) && !Takes<float>(form, _T("1e39"), 0));
    EXPECT_TRUE(Takes<double>(form, _T("1234.56789012345"), 1234.56789012345) &&
                !Takes<double>(form, _T("nan"), 0) && !Takes<double>(form, _T("1.5."), 0));
    EXPECT_EQ(app.shown[0], _T("Please enter an integer between 0 and 255."));
    EXPECT_EQ(app.shown.back(), _T("Please enter a number."));
    CDataExchange in(&form, TRUE);
    DDV_MinMaxByte(&in, 2, 1, 3);
    DDV_MinMaxShort(&in, -2, -3, 1);
    DDV_MinMaxLong(&in, -2, -3, 1);
    DDV_MinMaxUInt(&in, 2, 1, 3);
    DDV_MinMaxDWord(&in, 2, 1, 3);
    DDV_MinMaxFloat(&in, -2.0f, -2.5f, 1.0f);
    EXPECT_TRUE(Throws<CUserException>([&] { DDV_MinMaxLong(&in, 2, -3, 1); }));
    EXPECT_TRUE(Throws<CUserException>([&] { DDV_MinMaxDouble(&in, 2.75, -1.5, 2.5); }));
    EXPECT_EQ(app.shown.back(), _T("Please enter a number between -1.5 and 2.5."));
}

TEST_F(DialogData, ListsChooseByBeginningOrByTheWholeText) {
    CDataExchange out(&form, FALSE), in(&form, TRUE);
    CString text(_T("alphab")), taken;
    DDX_LBString(&out, 716, text);
    DDX_LBString(&in, 716, taken);
    EXPECT_EQ(taken, _T("alphabet"));
    DDX_LBStringExact(&out, 716, text);
    DDX_LBStringExact(&in, 716, taken);
    EXPECT_TRUE(taken.IsEmpty()) << "there is no such item";
    DDX_CBString(&out, 717, text);
    EXPECT_EQ(Text(717), _T("alphabet"));
    DDX_CBStringExact(&out, 717, text);
    EXPECT_EQ(Text(717), _T("alphab"));
    int index = 2;
    DDX_CBIndex(&out, 717, index);
    index = 0;
    DDX_CBIndex(&in, 717, index);
    EXPECT_EQ(2, index);
    TCHAR cut[4];
    DDX_Text(&in, 717, cut, 4);
    EXPECT_STREQ(_T("bet"), cut);
}

}  // namespace
