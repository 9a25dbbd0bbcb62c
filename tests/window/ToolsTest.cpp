// Encodings, colours as texts, sizes of texts, and where frames are put.
#include "window/Tools.h"

#include "afx/WindowSupport.h"
#include "tests/support/TemporaryFile.h"

#include <Ini.h>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

TEST(ToolsTest, TextsSurviveUtf8AndFaultsAreTold) {
    bool whole = false;
    const CString text = L"a\x00E9\xD55C\xD83C\xDFB5z";  // 1, 2, 3, 4 and 1 bytes
    EXPECT_EQ("a\xC3\xA9\xED\x95\x9C\xF0\x9F\x8E\xB5z", Tools::ToUtf8(text, &whole));
    EXPECT_TRUE(whole);
    EXPECT_EQ(text, Tools::FromUtf8(Tools::ToUtf8(text), &whole));
    EXPECT_TRUE(whole);
    EXPECT_EQ(L"<\xFFFD>", Tools::FromUtf8("<\xC3>", &whole));
    EXPECT_FALSE(whole);
    EXPECT_EQ("\xEF\xBF\xBD.", Tools::ToUtf8(L"\xD83C.", &whole));
    EXPECT_FALSE(whole);
    EXPECT_EQ(CString(L"a\0b", 3), Tools::FromUtf8(std::string_view("a\0b", 3))) << "zeros are characters";
    EXPECT_TRUE(Tools::FromUtf8({}, &whole).IsEmpty() && whole);
    EXPECT_TRUE(Tools::ToUtf8(CString(), &whole).empty() && whole);
}

TEST(ToolsTest, TheCodePageTellsWhatItLacks) {
    bool whole = false;
    EXPECT_EQ("Fader 7", Tools::ToCodePage(L"Fader 7", &whole));
    EXPECT_TRUE(whole);
    EXPECT_EQ(L"Fader 7", Tools::FromCodePage("Fader 7", &whole));
    EXPECT_TRUE(whole);
    // No code page but UTF-8 has all three.
    Tools::ToCodePage(L"\xD55C\x0E01\x05D0", &whole);
    EXPECT_EQ(::GetACP() == CP_UTF8, whole);
}

TEST(ToolsTest, ColoursAreReadAsTheyAreWritten) {
    EXPECT_EQ(L"#0A64FF", Tools::ColorText(RGB(10, 100, 255)));
    const struct {
        LPCWSTR text;
        COLORREF color;
    } good[] = {{L"#0a64FF", RGB(10, 100, 255)},
                {L" #fA3\t", RGB(0xFF, 0xAA, 0x33)},
                {L"10, 100 ,255", RGB(10, 100, 255)}};
    for (const auto& row : good)
        EXPECT_EQ(row.color, Tools::ColorOf(row.text)) << Tools::ToUtf8(row.text);
    for (LPCWSTR bad : {L"", L"#", L"#12345", L"#12345G", L"0A64FF", L"1,2", L"1,2,256", L"1,2,3,4", L"1,,3",
                        L"-1,2,3", L"1 2,3,4", L"99999999999,2,3"})
        EXPECT_FALSE(Tools::ColorOf(bad)) << Tools::ToUtf8(bad);
    EXPECT_FALSE(Tools::ColorOf(CString(L"1,2,3\0x", 7)));
}

TEST(ToolsTest, TextsAreMeasuredInLines) {
    const CSize one = Tools::TextExtent(L"many words", nullptr);
    EXPECT_GT(one.cx, one.cy);
    EXPECT_EQ(CSize(one.cx, 2 * one.cy), Tools::TextExtent(L"many words\nx", nullptr));
    const CSize folded = Tools::TextExtent(L"many words", nullptr, one.cx - 1);
    EXPECT_EQ(2 * one.cy, folded.cy);
    EXPECT_LT(folded.cx, one.cx);
    EXPECT_EQ(CSize(0, 0), Tools::TextExtent(L"", nullptr, 40));
    CFont font;
    font.CreatePointFont(400, L"Arial");
    EXPECT_GT(Tools::TextExtent(L"many words", font).cy, 2 * one.cy);
}

class PlacementTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateHidden(m_frame)); }
    void TearDown() override { m_frame.DestroyWindow(); }
    CRect Place() {
        CRect rect;
        m_frame.GetWindowRect(rect);
        return rect;
    }

    CWnd m_frame;
    TemporaryFile m_file;
    CIni m_ini{m_file.Path()};
};

TEST_F(PlacementTest, AFrameComesBackWhereItWas) {
    const CRect there(57, 83, 57 + 411, 83 + 309);
    m_frame.MoveWindow(there);
    ASSERT_TRUE(Tools::SavePlacement(m_frame, m_ini, L"Frame"));
    m_frame.MoveWindow(10, 20, 200, 150);
    EXPECT_EQ(SW_SHOWNOACTIVATE, Tools::LoadPlacement(m_frame, m_ini, L"Frame", SW_SHOWNOACTIVATE));
    EXPECT_EQ(there, Place());
    EXPECT_FALSE(m_frame.IsWindowVisible());

    m_frame.ShowWindow(SW_SHOWMAXIMIZED);
    ASSERT_TRUE(Tools::SavePlacement(m_frame, m_ini, L"Frame"));
    m_frame.ShowWindow(SW_SHOWMINIMIZED);
    ASSERT_TRUE(Tools::SavePlacement(m_frame, m_ini, L"Iconic"));
    m_frame.DestroyWindow();
    for (LPCWSTR section : {L"Frame", L"Iconic"}) {
        ASSERT_TRUE(CreateHidden(m_frame));
        EXPECT_EQ(SW_SHOWMINIMIZED, Tools::LoadPlacement(m_frame, m_ini, section, SW_SHOWMINIMIZED));
        EXPECT_EQ(SW_SHOWMAXIMIZED, Tools::LoadPlacement(m_frame, m_ini, section));
        EXPECT_EQ(there, Place()) << "the place to return to";
        m_frame.DestroyWindow();
    }
    EXPECT_FALSE(Tools::SavePlacement(m_frame, m_ini, L"Frame")) << "no window";
    EXPECT_EQ(SW_SHOWNORMAL, Tools::LoadPlacement(m_frame, m_ini, L"Frame")) << "no window";
}

TEST_F(PlacementTest, AScreenThatIsGoneAndHostileTextsDoNotHideTheFrame) {
    const CRect area = Tools::WorkAreas().at(0);
    m_ini.SetString(L"Far", L"Placement", L"70000,-3000,70400,-2700,0");
    Tools::LoadPlacement(m_frame, m_ini, L"Far");
    EXPECT_EQ(CRect(CPoint(area.right - 400, area.top), CSize(400, 300)), Place());
    m_ini.SetString(L"Large", L"Placement", L"-90000,-90000,90000,90000,0");
    Tools::LoadPlacement(m_frame, m_ini, L"Large");
    EXPECT_EQ(area, Place());

    m_frame.MoveWindow(31, 42, 300, 200);
    const CRect before = Place();
    for (LPCWSTR bad : {L"", L"nonsense", L"1,2,300,400", L"300,200,1,2,0", L"1,2,300,400,1,9",
                        L"1,2,999999,400,0", L"1,2,99999999999999999999,400,0"}) {
        m_ini.SetString(L"Bad", L"Placement", bad);
        EXPECT_EQ(SW_SHOW, Tools::LoadPlacement(m_frame, m_ini, L"Bad", SW_SHOW));
        EXPECT_EQ(before, Place()) << Tools::ToUtf8(bad);
    }
    EXPECT_EQ(area, Tools::WorkAreaOf(before));
}

}  // namespace
