// Text boxes, chart bases and embedded objects.
#include "behaviour/Objects.h"
#include "behaviour/UIObjectChartBase.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>

using namespace Lumo;
using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

TEST(TextEdit, KeepsItsNameThroughInit) {
    CUIObjectTextEdit text;
    EXPECT_EQ(DS_TEXTEDIT, text.GetType());
    EXPECT_STREQ(L"TextEdit", text.GetShapeName());
    RectF rect(1, 2, 30, 40);
    EXPECT_STREQ(L"TextEdit", CUIObjectTextEdit(rect, DS_TOOL_TEXT).GetShapeName());
    text.Init(DS_TOOL_TEXT, rect);
    EXPECT_EQ(DS_TOOL_TEXT, text.GetType());
    EXPECT_TRUE(SameBytes(Stored(text), ObjectBase(0xFF01, L"TextEdit", 1, 2, 30, 40)));
}

TEST(TextEdit, IsHitWithinItsEllipseOnly) {
    CUIObjectTextEdit text(RectF(0, 0, 100, 100), DS_TEXTEDIT);
    RectF corner(0, 0, 6, 6), middle(50, 50, 0, 0);
    EXPECT_EQ(0, text.HitTest(corner));
    EXPECT_EQ(Box(-2, -2, 10, 10), Box(corner));
    EXPECT_NE(0, text.HitTest(middle));
}

TEST(TextEdit, OutlinesItsEllipseWhenAskedAndDrawsNothingByItself) {
    Gdiplus::Bitmap bitmap(40, 40);
    Gdiplus::Graphics g(&bitmap);
    CUIObjectTextEdit text(RectF(5, 5, 30, 30), DS_TEXTEDIT);
    Gdiplus::Color pixel;
    const auto at = [&](int x, int y) {
        bitmap.GetPixel(x, y, &pixel);
        return pixel.GetValue();
    };
    text.Draw(&g);
    EXPECT_EQ(0u, at(20, 5));
    text.DrawContents(&g);
    EXPECT_EQ(0xFF000000, at(20, 5));
    EXPECT_EQ(0u, at(6, 6));
    EXPECT_EQ(0u, at(20, 20));
}

TEST(Chart, IsASymbolThatDrawsNothing) {
    const GroupOwner owner(new CUIObjectChartBase(RectF(10, 10, 99.5f, 20.4f), DS_CHARTLEVEL));
    auto& chart = static_cast<CUIObjectChartBase&>(*owner);
    EXPECT_STREQ(L"ChartBase", chart.GetShapeName());
    EXPECT_EQ(DS_CHARTLEVEL, chart.GetType());
    EXPECT_EQ(100, chart.GetInitialWidth());
    EXPECT_EQ(20, chart.GetInitialHeight());
    EXPECT_EQ(1, chart.GetGrouped());
    auto* child = new Probe({15, 15, 1, 1});
    chart.MakeGroup(child);
    CUIObject* object = &chart;
    object->Draw(nullptr);
    object->RelayEvent(nullptr, WM_LBUTTONDOWN, 0, 0);
    RectF other(0, 0, 1, 1);
    object->Init(DS_LINE, other);
    EXPECT_EQ(Box(5, 5, 1, 1), Box(child->GetPosition()));
    EXPECT_EQ(Box(10, 10, 99.5f, 20.4f), Box(chart.GetPosition()));
    object->Release();
    EXPECT_EQ(0, Probe::s_living);
}

TEST(Ole, ArchivesItsTwoValuesAndNoClientItem) {
    CUIObjectOle ole(RectF(1, 2, 3, 4), DS_OLE);
    EXPECT_STREQ(L"Ole", ole.GetShapeName());
    const Bytes bytes = ObjectBase(19, L"Ole", 1, 2, 3, 4).Fs({1.5f, -2.25f});
    EXPECT_EQ(0u, Load(ole, bytes));
    EXPECT_EQ(nullptr, ole.GetClientItem());
    EXPECT_EQ(-2.25f, ole.GetSecondValue());
    auto* item = reinterpret_cast<COleClientItem*>(&ole);
    ole.SetClientItem(item);
    CUIObjectOle copy(ole);
    EXPECT_EQ(item, copy.GetClientItem());
    EXPECT_TRUE(SameBytes(Stored(copy), bytes));
}

TEST(Ole, StaysWhereItIsWithoutAnOffset) {
    CUIObjectOle ole(RectF(0.3f, 0, 10, 10), DS_OLE);
    ole.MoveTo(0, PointF(0, 0));
    EXPECT_EQ(Box(0.3f, 0, 10, 10), Box(ole.GetPosition()));
    ole.MoveTo(8, PointF(0, 1));
    EXPECT_EQ(Box(0.3f, 1, 10, 10), Box(ole.GetPosition()));
}

}  // namespace
