// What a group writes for its children, and what it makes of good and hostile archives.
#include "behaviour/Objects.h"
#include "behaviour/UIObjectChartBase.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>

#include <iterator>

using namespace Lumo;
using Gdiplus::RectF;

namespace {

const RectF kRect(100, 50, 80, 60);

Bytes GroupBase(const std::wstring& name = L"List") {
    return ObjectBase(18, name, 100, 50, 80, 60);
}

/// A line without points: its base and four 16-bit values.
Bytes Line(int kind, const std::wstring& name) {
    return ObjectBase(kind, name, 1, 2, 3, 4).W(3).W(4).W(2).W(0);
}

TEST(GroupArchive, WritesCountFlagAndItsChildren) {
    const GroupOwner group(new CUIObjectList(kRect, DS_LIST));
    group->MakeGroup(new CUIObject(RectF(130, 70, 20, 10), DS_ELLIPSE));
    auto* inner = new CUIObjectSymbol(RectF(110, 60, 5, 5), DS_SYMBOL);
    inner->MakeGroup(new CUIObject(RectF(112, 63, 1, 1), DS_RECTANGLE));
    group->MakeGroup(inner);
    group->MakeGroup(new CUIObject(RectF(100, 50, 2, 2), DS_TEXTEDIT));

    Bytes want = GroupBase().I(3).W(1);
    want.I(4).Add(ObjectBase(4, L"Ellipse", 30, 20, 20, 10));
    want.I(14).Add(ObjectBase(14, L"Symbol", 10, 10, 5, 5).I(1).W(1));
    want.I(3).Add(ObjectBase(3, L"Rectangle", 2, 3, 1, 1));
    want.I(13).Add(ObjectBase(13, L"TextEdit", 0, 0, 2, 2));
    EXPECT_TRUE(SameBytes(Stored(*group), want));

    CUIObjectChartBase chart(RectF(0, 0, 99.5f, 20.4f), DS_CHARTPEQ);
    EXPECT_EQ(0u, Load(chart, want));
    EXPECT_TRUE(chart.GetChildren().empty());
    EXPECT_STREQ(L"List", chart.GetShapeName());
    EXPECT_EQ(Box(100, 50, 80, 60), Box(chart.GetPosition()));
    EXPECT_EQ(5u, Load(chart, Bytes().Add(want).W(1).W(2).Raw("x", 1)));
}

TEST(GroupArchive, ConsumesTheDataOfEveryKindAsTheToolsMakeIt) {
    CUIObjectList group(kRect, DS_LIST);
    Bytes data = GroupBase().I(5).W(0x8001);
    data.I(1).Add(Line(1, L"Line")).I(2).Add(Line(2, L"PolyLine")).I(12).Add(Line(12, L"Slider"));
    data.I(-5).Add(Line(-5, L"?")).I(0x7FFFFFFF).Add(Line(99, L"?"));
    EXPECT_EQ(0u, Load(group, data));
    EXPECT_EQ(0x8001, group.GetGrouped());
    EXPECT_TRUE(group.GetChildren().empty());
}

/// Groups nested `depth` times, none of them with its end missing.
Bytes Nested(int depth) {
    Bytes data;
    for (int i = 0; i < depth; ++i)
        data.Add(GroupBase()).I(1).W(1).I(18);
    return data.Add(GroupBase()).I(0).W(1);
}

TEST(GroupArchive, RefusesHostileData) {
    const struct {
        Bytes data;
        int cause;
    } cases[] = {
        {GroupBase().I(-1).W(1), CArchiveException::badSchema},
        {GroupBase().I(0x7FFFFFFF).W(1), CArchiveException::endOfFile},
        {GroupBase().I(2).W(1).I(1).Add(Line(1, L"Line")), CArchiveException::endOfFile},
        {GroupBase().I(1).Raw("", 1), CArchiveException::endOfFile},
        {Nested(CUIObjectList::kDeepest), CArchiveException::badSchema},
        {Nested(CUIObjectList::kDeepest - 1), -1},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        CUIObjectList group(kRect, DS_LIST);
        EXPECT_EQ(cases[i].cause, LoadFailure(group, cases[i].data)) << "case " << i;
        EXPECT_TRUE(group.GetChildren().empty());
    }
}

TEST(GroupArchive, WhatCannotBeReadIsNotWritten) {
    GroupOwner group(new CUIObjectList(kRect, DS_LIST));
    while (group->GetDepth() < CUIObjectList::kDeepest) {
        auto* outer = new CUIObjectList(kRect, DS_LIST);
        outer->MakeGroup(new CUIObject(kRect, DS_ELLIPSE));
        outer->MakeGroup(group.release());
        group.reset(outer);
    }
    CUIObjectList read(kRect, DS_LIST);
    EXPECT_EQ(-1, LoadFailure(read, Stored(*group)));
    auto* tooDeep = new CUIObjectList(kRect, DS_LIST);
    tooDeep->MakeGroup(group.release());
    group.reset(tooDeep);
    try {
        Stored(*group);
        ADD_FAILURE() << "written";
    } catch (CArchiveException* error) {
        EXPECT_EQ(CArchiveException::badSchema, error->m_cause);
        error->Delete();
    }
    EXPECT_EQ(-1, LoadFailure(read, Stored(read))) << "the refusal leaves no depth behind";
}

}  // namespace
