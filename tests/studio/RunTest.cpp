// Run mode through real messages: controls, behaviours, repainting, and everything as before at the end.
#include "RunFixture.h"
#include "studio/controls/MatrixControls.h"
#include "studio/controls/PeqChart.h"
#include "studio/runtime/NumberEntry.h"

#include <gtest/gtest.h>

#include <iterator>

using namespace Studio;
using Lumo::CUIObject;

namespace {

constexpr double kTick = 1.0 / 30.0;

class RunTest : public RunFixture {};

}  // namespace

TEST_F(RunTest, EverythingIsAsBeforeAfterwards) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 10, 10, 60, 30);
    CUIObject* line = Add(Lumo::DS_LINE, 100, 10, 50, 50);
    CUIObject* first = Add(Lumo::DS_ELLIPSE, 200, 10, 30, 30);
    CUIObject* second = Add(Lumo::DS_RECTANGLE, 240, 20, 30, 30);
    CUIObject* button = Add(Lumo::DS_BUTTONDEVICE, 300, 10, 80, 40);
    for (CUIObject* object : {box, line, first}) {
        for (Behaviour behaviour :
             {Behaviour::kMove1, Behaviour::kSize1, Behaviour::kRotate, Behaviour::kFill, Behaviour::kText,
              Behaviour::kHide, Behaviour::kBlink, Behaviour::kTrend})
            Extras(object, behaviour, L"in1.level").prefs.m_move1.m_nLowValue = -80;
    }
    Extras(second, Behaviour::kColor, L"in1.mute");
    Page().SelectOnly({first, second});
    GroupSelection(Page());
    const auto before = Bytes();
    const auto selection = Page().m_selection;
    const float x = box->GetPosition().X;
    Run();
    EXPECT_TRUE(Page().m_selection.empty());
    m_device.Set(L"in1.mute", 0.0);
    for (int i = 0; i < 30; ++i)
        m_session->Tick(kTick);
    Mouse(WM_MOUSEMOVE, 320, 30);
    Click({320, 30});
    EXPECT_NE(box->GetPosition().X, x);
    EXPECT_NE(button, nullptr);
    EXPECT_NE(Bytes(), before);
    m_session.reset();
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Page().m_selection, selection);
    EXPECT_EQ(Lumo::CUIToolBase::run_drawshape, Lumo::DS_SELECT);
    EXPECT_EQ(Page().m_nMode, Lumo::CM_DRAW);
}

// Each behaviour with the mouse in all its ways: on the page, in a group, and far out on the page, where the
// coordinates do not fit into a message.
TEST_F(RunTest, EveryWayOfOperating) {
    using Set = void (*)(CUIPreference&);
    const CPoint kBeside(130, 90);
    // Presses at one place of an object of 40 by 100, goes to another and releases there.
    const struct {
        const char* what;
        Behaviour behaviour;
        Set set;
        CPoint press, release;
        double before, held, after;
        LPCWSTR asked;
    } rows[] = {
        // clang-format off
        {"slider", Behaviour::kSlider, nullptr, {7, 80}, {7, 30}, -1, -48, -18, L""},
        {"right", Behaviour::kSlider, [](CUIPreference& p) { p.m_slider.m_nDirection = 1; }, {10, 80}, {30, 5}, -1, -45, -15, L""},
        {"down", Behaviour::kSlider, [](CUIPreference& p) { p.m_slider.m_nDirection = 2; }, {10, 80}, {30, 5}, -1, -12, -57, L""},
        {"left", Behaviour::kSlider, [](CUIPreference& p) { p.m_slider.m_nDirection = 3; }, {10, 80}, {30, 5}, -1, -15, -45, L""},
        {"dragged", Behaviour::kSlider, [](CUIPreference& p) { p.m_slider.m_nMode = 1; }, {7, 80}, {7, 60}, -30, -30, -18, L""},
        {"set", Behaviour::kButton, [](CUIPreference& p) { p.m_button.m_nAction = 2, p.m_button.m_nValue = -7; }, {11, 20}, kBeside, -20, -7, -7, L""},
        {"add", Behaviour::kButton, [](CUIPreference& p) { p.m_button.m_nAction = 4, p.m_button.m_nValue = -7; }, {11, 20}, kBeside, -20, -27, -27, L""},
        {"typed", Behaviour::kInput, nullptr, {11, 20}, {12, 20}, -20, -20, -20, L"in1.gain"},
        {"not typed", Behaviour::kInput, nullptr, {11, 20}, kBeside, -20, -20, -20, L""},
        {"page", Behaviour::kPage, [](CUIPreference& p) { p.m_page.m_nMode = 1, p.m_page.m_nPage = 3; }, {11, 20}, {12, 20}, -20, -20, -20, L"3"},
        {"next", Behaviour::kPage, [](CUIPreference& p) { p.m_page.m_nMode = 2; }, {11, 20}, {12, 20}, -20, -20, -20, L"step 1"},
        {"previous", Behaviour::kPage, [](CUIPreference& p) { p.m_page.m_nMode = 3; }, {11, 20}, {12, 20}, -20, -20, -20, L"step -1"},
        {"stayed", Behaviour::kPage, [](CUIPreference& p) { p.m_page.m_nMode = 3; }, {11, 20}, kBeside, -20, -20, -20, L""},
        // clang-format on
    };
    const CPoint corners[] = {{20, 30}, {40000, 70000}};
    for (const CPoint& corner : corners) {
        for (const bool grouped : {false, true}) {
            for (const auto& row : rows) {
                SCOPED_TRACE(row.what);
                SCOPED_TRACE(corner.x + (grouped ? 1 : 0));
                ASSERT_TRUE(m_document->NewFile());
                Page().MoveWindow(0, 0, 600, 400);
                const auto x = static_cast<float>(corner.x), y = static_cast<float>(corner.y);
                CUIObject* object = Add(Lumo::DS_RECTANGLE, x, y, 40, 100);
                auto& prefs = Extras(object, row.behaviour, L"in1.gain").prefs;
                prefs.m_slider.m_nLowValue = -60, prefs.m_slider.m_nHighValue = 0;
                if (row.set)
                    row.set(prefs);
                if (grouped) {
                    Page().SelectOnly({object, Add(Lumo::DS_RECTANGLE, x - 9, y - 5, 3, 4)});
                    GroupSelection(Page());
                }
                if (row.before != -1)
                    m_device.Set(L"in1.gain", row.before);
                m_asked.Empty();
                ScrollTo(corner);
                Run();
                const CSize place = corner - Page().ScrollOrigin();
                const CPoint press = row.press + place, release = row.release + place;
                Mouse(WM_LBUTTONDOWN, press.x, press.y);
                EXPECT_NEAR(m_device.Get(L"in1.gain"), row.held, 0.05);
                if (row.press.x == row.release.x || row.behaviour == Behaviour::kSlider)
                    Mouse(WM_MOUSEMOVE, release.x, release.y, MK_LBUTTON);
                Mouse(WM_LBUTTONUP, release.x, release.y);
                EXPECT_NEAR(m_device.Get(L"in1.gain"), row.after, 0.05);
                EXPECT_STREQ(m_asked, row.asked);
                m_session.reset();
            }
        }
    }
}

// What a gesture on an object of 60 by 40 makes of the device and asks of the program.
TEST_F(RunTest, GesturesOnBehaviours) {
    using Set = void (*)(ObjectExtras&);
    const struct {
        Behaviour behaviour;
        LPCWSTR value;
        Set set;
        LPCWSTR gesture, changes, asked;
    } rows[] = {
        // clang-format off
        {Behaviour::kInput, L"in1.gain", [](ObjectExtras& e) { e.prefs.m_input.m_nStep = 25; }, L"w20,20 w20,20 W20,20 w20,20", L"in1.gain=3", L""},
        {Behaviour::kInput, L"in1.gain", [](ObjectExtras& e) { e.prefs.m_input.m_nStep = 25; }, L"d20,20 u20,39", L"", L"in1.gain"},
        {Behaviour::kInput, L"in1.gain", nullptr, L"d20,20 u20,45", L"", L""},
        {Behaviour::kInput, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_input.m_nType = 1; }, L"w20,20 d20,20 u20,20", L"in1.mute=1", L""},
        {Behaviour::kInput, L"nothing", nullptr, L"w20,20 d20,20 u20,20", L"", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 1; }, L"d20,20", L"in1.mute=1", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 1, e.prefs.m_button.m_strReleaseCommand = L"in2.gain=5"; }, L"d20,20 m200,200 u200,200", L"in2.gain=5", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 1; }, L"d20,20 x", L"", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 1, e.prefs.m_button.m_bConfirm = 1, e.prefs.m_button.m_strReleaseCommand = L"in2.gain=5"; }, L"d20,20 u20,20", L"in2.gain=5", L""},
        {Behaviour::kButton, L"in1.gain", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 3, e.prefs.m_button.m_nValue = -9, e.prefs.m_button.m_strPressCommand = L" %1.gain =5; rubbish;=4;in4.gain=x; in3.gain=%12", e.prefs.m_button.m_strArguments[0] = L"in2", e.prefs.m_button.m_strArguments[11] = L"4"; }, L"d20,20 u20,20", L"in1.gain=-9 in2.gain=5 in3.gain=4", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_nAction = 5, e.prefs.m_button.m_strPressCommand = L"in2.gain=5"; }, L"d20,20 u20,20", L"in2.gain=5", L""},
        {Behaviour::kButton, L"in1.mute", nullptr, L"d20,20 m500,300 m20,20 u20,20 D20,20 u20,20 d20,20", L"in1.mute=1", L""},
        {Behaviour::kButton, L"in1.mute", nullptr, L"d60,40 u60,40", L"", L""},
        {Behaviour::kButton, L"in1.mute", nullptr, L"m20,20 W20,20 R20,20 l", L"", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.TurnOn(Behaviour::kHide, true); }, L"d20,20 u20,20", L"", L""},
        {Behaviour::kButton, L"in1.mute", [](ObjectExtras& e) { e.prefs.m_button.m_bConfirm = 1, e.prefs.m_button.m_strConfirmText = L"No?", e.prefs.m_button.m_strPressCommand = L"in2.gain=5"; }, L"d20,20 u20,20", L"", L"No?"},
        {Behaviour::kInput, L"in1.gain", [](ObjectExtras& e) { e.TurnOn(Behaviour::kCondition, true), e.prefs.m_condition.m_strName = L"in1.mute", e.prefs.m_condition.m_comparisons[0] = {static_cast<int>(Comparison::kEqual), 1, 0, 0}; }, L"w20,20 d20,20 u20,20", L"", L""},
        {Behaviour::kSlider, L"in1.gain", nullptr, L"d20,20 m30,10 x m30,35", L"in1.gain=-6", L""},
        {Behaviour::kSlider, L"in1.gain", [](ObjectExtras& e) { e.prefs.m_slider.m_nMode = 1, e.prefs.m_slider.m_nDirection = 3; }, L"d20,20 m14,90 m26,90 u26,90", L"in1.gain=-9.6", L""},
        {Behaviour::kSlider, L"nothing", nullptr, L"d20,20 m30,10 u30,10", L"", L""},
        {Behaviour::kPage, L"", [](ObjectExtras& e) { e.prefs.m_page.m_strPageName = L"Two"; }, L"d20,20 m90,20 m59,20 u59,20", L"", L"Two"},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - rows);
        CUIObject* object = Add(Lumo::DS_RECTANGLE, 100, 50, 60, 40);
        ObjectExtras& extras = Extras(object, row.behaviour, row.value);
        extras.prefs.m_slider.m_nLowValue = -60, extras.prefs.m_slider.m_nHighValue = 12;
        if (row.set)
            row.set(extras);
        if (extras.IsOn(Behaviour::kHide))
            extras.Record(Behaviour::kHide).m_strName = L"in1.mute";
        m_device = Device();
        m_asked.Empty();
        m_answer = CString(row.asked) != L"No?";
        const Device before = m_device;
        Run();
        Play(row.gesture, {100, 50});
        EXPECT_STREQ(Changes(before, m_device), row.changes);
        EXPECT_STREQ(m_asked, row.asked);
        Play(L"x l");
        ExpectNothingStale();
        m_session.reset();
        Page().SelectOnly({object});
        DeleteSelection(Page());
    }
}

TEST_F(RunTest, RadioButtonsOfOneGroupExcludeEachOtherWhereverTheyStand) {
    const auto button = [&](int number, DWORD group) {
        CUIObject* object = Add(Lumo::DS_BUTTONDEVICE, 100.0f * static_cast<float>(number) - 90, 20, 80, 40);
        CString name;
        name.Format(L"in%d.mute", number);
        EditExtras(*object)->binding = name;
        dynamic_cast<DeviceButton*>(object)->SetButtonStyle(DeviceButton::kRadio);
        dynamic_cast<DeviceButton*>(object)->SetRadioGroup(group);
        return object;
    };
    button(1, 7);
    CUIObject* const second = button(2, 7);
    CUIObject* const third = button(3, 7);
    CUIObject* const other = button(4, 8);
    button(5, 7);
    Page().SelectOnly({third, other});
    GroupSelection(Page());
    Page().SelectOnly({Objects().back(), second});
    GroupSelection(Page());
    EXPECT_EQ(Objects().size(), 3u);
    Run();
    const auto on = [&] {
        CString which;
        for (LPCWSTR name : {L"in1.mute", L"in2.mute", L"in3.mute", L"in4.mute", L"in5.mute"})
            which += m_device.Get(name) != 0.0 ? L'1' : L'0';
        return which;
    };
    m_device.Set(L"in4.mute", 1.0);
    const LPCWSTR expected[] = {L"10010", L"01010", L"00110", L"00010", L"00011"};
    for (int i : {0, 1, 2, 4, 0}) {
        Click({50 + 100 * i, 40});
        EXPECT_STREQ(on(), expected[i]) << i;
    }
}

TEST_F(RunTest, ControlsFarOutOnThePageAnswerTheMouse) {
    constexpr float kX = 40000, kY = 70000;
    auto* chart = dynamic_cast<PeqChart*>(Add(Lumo::DS_CHARTPEQ, kX, kY, 300, 180));
    Add(Lumo::DS_BUTTONLEVEL, kX + 10, kY + 200, 100, 40);
    auto* matrix = dynamic_cast<DeviceChart*>(Add(Lumo::DS_CHARTDEVICE, kX + 310, kY, 240, 260));
    ScrollTo(CPoint(static_cast<int>(kX), static_cast<int>(kY)));
    Run();
    const CPoint handle = chart->HandleOf(3);
    const double frequency = m_device.Get(L"out1.peq.3.freq");
    Drag(handle, {handle.x + 30, handle.y - 20}, MK_LBUTTON);
    EXPECT_GT(m_device.Get(L"out1.peq.3.freq"), frequency * 1.5);
    const double gain = m_device.Get(L"in1.gain");
    Drag({60, 220}, {60, 200}, MK_LBUTTON);
    EXPECT_EQ(m_device.Get(L"in1.gain"), gain + 5.0);
    CPoint cell = matrix->CellOf(4, 9);
    cell.x += 310;
    Drag(cell, {cell.x, cell.y + 20}, MK_LBUTTON);
    EXPECT_EQ(m_device.Get(L"xp.4.9.gain"), -5.0);
}

TEST_F(RunTest, ControlsStandAnySizeAndBinding) {
    const CSize sizes[] = {{1, 1}, {5, 300}, {300, 5}, {30, 30}, {70, 70}, {200, 160}};
    const LPCWSTR bindings[] = {L"", L"nonsense", L"out99.peq", L"out2.peq.9", L"in.", L"out1.peq.1.freq"};
    int at = 0;
    for (int kind = Lumo::DS_CHARTPEQ; kind <= Lumo::DS_STATEPEQ; ++kind) {
        for (const CSize& size : sizes) {
            CUIObject* object =
                Add(static_cast<Lumo::DrawShape>(kind), static_cast<float>(at % 500),
                    static_cast<float>(at % 300), static_cast<float>(size.cx), static_cast<float>(size.cy));
            EditExtras(*object)->binding = bindings[at % std::size(bindings)];
            at += 7;
        }
    }
    const auto before = Bytes();
    Page().UpdateWindow();
    Run();
    for (int y = 0; y < 400; y += 23) {
        for (int x = 0; x < 600; x += 29) {
            Drag({x, y}, {x + 40, y - 30}, MK_LBUTTON);
            Page().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(x, y));
        }
        m_session->Tick(kTick);
    }
    for (int value = 0; value < m_device.Count(); ++value) {
        EXPECT_GE(m_device.Get(value), m_device.Info(value).low);
        EXPECT_LE(m_device.Get(value), m_device.Info(value).high);
    }
    m_session.reset();
    EXPECT_EQ(Bytes(), before);
}

TEST_F(RunTest, ANumberIsTyped) {
    NumberEntry entry;
    double result = 0.0;
    const auto open = [&] {
        ASSERT_TRUE(entry.Open(Page(), CRect(50, 50, 90, 60), 3.5, [&](double number) { result = number; }));
    };
    open();
    CString text;
    entry.GetWindowText(text);
    EXPECT_STREQ(text, L"3.5");
    for (WCHAR c : {L'-', L'1', L'2', L'.', L'5'})
        entry.SendMessage(WM_CHAR, c);
    entry.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(result, -12.5);
    EXPECT_FALSE(entry.IsOpen());
    for (LPCWSTR refused : {L"", L"abc", L"7x", L"inf"}) {
        open();
        entry.SetWindowText(refused);
        entry.SendMessage(WM_KEYDOWN, VK_RETURN);
        EXPECT_TRUE(entry.IsOpen()) << refused;
        EXPECT_EQ(result, -12.5);
        entry.Close();
    }
}

TEST_F(RunTest, OnlyWhatChangedIsPainted) {
    for (int i = 0; i < 20; ++i)
        Add(Lumo::DS_RECTANGLE, 20.0f * i, 200, 15, 15);
    CUIObject* lamp = Add(Lumo::DS_RECTANGLE, 10, 10, 20, 20);
    Extras(lamp, Behaviour::kColor, L"in1.mute");
    Run();
    m_session->TakePaintedPixels();
    m_session->Update();
    m_session->Tick(kTick);
    EXPECT_EQ(m_session->TakePaintedPixels(), 0) << "levels move, but nothing shows them";
    m_device.Set(L"in1.mute", 1.0);
    m_session->Update();
    const long long painted = m_session->TakePaintedPixels();
    EXPECT_GT(painted, 400);
    EXPECT_LT(painted, 60 * 60);
    CClientDC dc(&Page());
    EXPECT_EQ(::GetPixel(dc, 20, 13), RGB(0xFF, 0, 0));
}

TEST_F(RunTest, TwoHundredLiveObjectsLeaveTimeToSpare) {
    Page().MoveWindow(0, 0, 1000, 700);
    Add(Lumo::DS_RECTANGLE, 0, 0, 1000, 700);  // a panel behind all of them
    const Lumo::DrawShape kinds[] = {Lumo::DS_CHARTLEVEL, Lumo::DS_BUTTONLEVEL, Lumo::DS_RECTANGLE,
                                     Lumo::DS_ELLIPSE, Lumo::DS_BUTTONDEVICE};
    for (int i = 0; i < 200; ++i) {
        const int row = i / 20;
        CUIObject* object = Add(kinds[i % 5], 49.0f * (i % 20), 68.0f * static_cast<float>(row), 45, 62);
        object->SetText(L"x");
        CString name;
        name.Format(L"in%d", i % 16 + 1);
        EditExtras(*object)->binding = name;
        if (i % 5 == 2 || i % 5 == 3) {
            auto& extras =
                Extras(object, i % 5 == 2 ? Behaviour::kFill : Behaviour::kMove1, name + L".level");
            extras.prefs.m_fill.m_nLowValue = extras.prefs.m_move1.m_nLowValue = -60;
            extras.prefs.m_fill.m_nHighValue = extras.prefs.m_move1.m_nHighValue = 0;
        }
    }
    Run();
    ASSERT_EQ(m_session->LiveCount(), 200u);
    FILETIME created, ended, kernelBefore, userBefore, kernel, user;
    ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernelBefore, &userBefore);
    constexpr int kTicks = 90;
    for (int i = 0; i < kTicks; ++i)
        m_session->Tick(kTick);
    ::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto millis = [](const FILETIME& from, const FILETIME& to) {
        return static_cast<double>(to.dwLowDateTime - from.dwLowDateTime) / 1.0e4;
    };
    const double each = (millis(kernelBefore, kernel) + millis(userBefore, user)) / kTicks;
    std::printf("200 live objects: %.2f ms of processor time per update, %lld pixels\n", each,
                m_session->TakePaintedPixels() / kTicks);
    EXPECT_LT(each, 1000.0 / 30.0) << "30 updates a second cannot be held";
}
