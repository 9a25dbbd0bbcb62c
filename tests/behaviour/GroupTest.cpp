// Groups and symbols: the arithmetic of children, drawing, hit test, rotation and who destroys whom.
#include "behaviour/Objects.h"

#include "core/UIDocument.h"

#include <gtest/gtest.h>

using namespace Lumo;
using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

class OpenSymbol : public CUIObjectSymbol {
public:
    OpenSymbol() = default;
};

class OpenGroup : public CUIObjectList {
public:
    OpenGroup() = default;
};

TEST(Group, StartsAsItsKindSays) {
    const RectF rect(1, 2, 2.5f, 99.4f);
    const CUIObjectList group(rect, DS_GROUP);
    EXPECT_STREQ(L"List", group.GetShapeName());
    EXPECT_EQ(DS_GROUP, group.GetDrawShape());
    EXPECT_EQ(3, group.GetInitialWidth());
    EXPECT_EQ(99, group.GetInitialHeight());
    EXPECT_EQ(1, group.GetGrouped());
    const CUIObjectSymbol symbol(rect, DS_CHARTPEQ);
    EXPECT_STREQ(L"Symbol", symbol.GetShapeName());
    EXPECT_EQ(DS_CHARTPEQ, symbol.GetDrawShape());
    EXPECT_EQ(Box(1, 2, 2.5f, 99.4f), Box(symbol.GetPosition()));
    EXPECT_EQ(3, symbol.GetInitialWidth());
    OpenSymbol empty;
    EXPECT_EQ(DS_SYMBOL, empty.GetDrawShape());
    EXPECT_EQ(DS_SYMBOL, empty.GetType());
    EXPECT_STREQ(L"Symbol", empty.GetShapeName());
    OpenGroup bare;
    EXPECT_EQ(DS_LIST, bare.GetType());
    bare.MakeGroup(nullptr);
    EXPECT_EQ(0, bare.GetGrouped());
    std::deque<CUIObject*> out;
    bare.MakeUnGroup(&out);
    EXPECT_TRUE(out.empty());
}

TEST(Group, MakesItsChildrenRelativeAndGivesThemBack) {
    auto* group = new ProbeGroup({100, 50, 80, 60});
    auto* first = new Probe({130, 70, 20, 10});
    auto* second = new Probe({100, 50, 5, 5});
    group->MakeGroup(first);
    group->MakeGroup(second);
    group->MakeGroup(group);
    EXPECT_EQ(Box(30, 20, 20, 10), Box(first->GetPosition()));
    RectF rect = first->GetPosition();
    group->NormalizeRect(rect);
    EXPECT_EQ(Box(130, 70, 20, 10), Box(rect));
    EXPECT_EQ((std::deque<CUIObject*>{first, second}), group->GetChildren());

    std::deque<CUIObject*> out = {nullptr};
    group->MakeUnGroup(&out);
    EXPECT_EQ(0, ProbeGroup::s_living);
    EXPECT_EQ((std::deque<CUIObject*>{nullptr, first, second}), out);
    EXPECT_EQ(Box(130, 70, 20, 10), Box(first->GetPosition()));
    first->Release();
    second->Release();
    EXPECT_EQ(0, Probe::s_living);
}

TEST(Group, DrawsItsChildrenWhereTheyStandAndLeavesThemThere) {
    const GroupOwner group(new CUIObjectList(RectF(100, 50, 80, 60), DS_LIST));
    auto* child = new Probe({130, 70, 20, 10});
    group->MakeGroup(child);
    Gdiplus::Bitmap bitmap(8, 8);
    Gdiplus::Graphics g(&bitmap);
    group->Draw(&g);
    EXPECT_EQ(Box(130, 70, 20, 10), Box(child->m_drawn));
    EXPECT_EQ(Box(130, 70, 20, 10), Box(child->GetPosition()));
    group->Draw(&g);
    EXPECT_EQ(Box(230, 120, 20, 10), Box(child->m_drawn));
}

TEST(Group, TestsItsChildrenAtTheirStoredPositionsAndFoldsTheirOffsets) {
    const GroupOwner group(new CUIObjectList(RectF(100, 50, 80, 60), DS_LIST));
    auto* first = new Probe({130, 70, 20, 10});
    auto* second = new Probe({100, 50, 5, 5});
    group->MakeGroup(first);
    group->MakeGroup(second);
    for (Probe* child : {first, second})
        child->SetPositionOffset(PointF(3, 4));
    RectF inside(34, 25, 2, 2);
    EXPECT_NE(0, group->HitTest(inside));
    EXPECT_EQ(33, first->GetPositionPoint().X);
    EXPECT_EQ(24, first->GetPositionPoint().Y);
    EXPECT_EQ(0, second->GetPositionPoint().X);
    RectF outside(134, 75, 2, 2);
    EXPECT_EQ(0, group->HitTest(outside));
    EXPECT_EQ(3, second->GetPositionPoint().X);
    PointF point(45, 36);
    EXPECT_EQ(8, group->HitTest(point, 0));
}

TEST(Group, TurnsItsChildrenAboutItsCentre) {
    const GroupOwner group(new CUIObjectList(RectF(100, 50, 80, 60), DS_LIST));
    auto* child = new Probe({100, 50, 40, 20});
    group->MakeGroup(child);
    group->Rotate(90);
    const RectF turned = child->GetPosition();
    EXPECT_NEAR(50, turned.X, 1e-3);
    EXPECT_NEAR(-10, turned.Y, 1e-3);
    EXPECT_NEAR(20, turned.Width, 1e-3);
    EXPECT_NEAR(40, turned.Height, 1e-3);
    EXPECT_EQ(Box(100, 50, 80, 60), Box(group->GetPosition()));
}

TEST(Group, OutlinesItselfWhileItIsDragged) {
    Gdiplus::Bitmap bitmap(40, 40);
    Gdiplus::Graphics g(&bitmap);
    const GroupOwner group(new CUIObjectList(RectF(10, 10, 20, 20), DS_LIST));
    group->DrawDragImage(&g, POINT{25, 25});
    Gdiplus::Color edge, middle;
    bitmap.GetPixel(20, 10, &edge);
    bitmap.GetPixel(20, 20, &middle);
    EXPECT_EQ(0xFF000000, edge.GetValue());
    EXPECT_EQ(0u, middle.GetValue());
}

TEST(GroupLifetime, ReleaseDestroysTheChildrenAndLeavesTheGroup) {
    auto* group = new ProbeGroup({0, 0, 10, 10});
    auto* inner = new ProbeGroup({0, 0, 5, 5});
    auto* twice = new Probe({0, 0, 1, 1});
    inner->MakeGroup(new Probe({0, 0, 1, 1}));
    group->MakeGroup(inner);
    inner->MakeGroup(group);
    EXPECT_EQ(1u, inner->GetChildren().size());
    group->MakeGroup(twice);
    group->MakeGroup(twice);
    group->Release();
    EXPECT_EQ(0, Probe::s_living);
    EXPECT_EQ(1, ProbeGroup::s_living);
    EXPECT_TRUE(group->GetChildren().empty());
    delete group;

    auto* kept = new Probe({0, 0, 1, 1});
    auto* discarded = new ProbeGroup({0, 0, 5, 5});
    discarded->MakeGroup(kept);
    delete discarded;
    EXPECT_EQ(1, Probe::s_living);
    kept->Release();
    EXPECT_EQ(0, ProbeGroup::s_living);
}

TEST(GroupLifetime, ACopySharesTheChildrenAndLosesThemWithTheFirstRelease) {
    auto* group = new ProbeGroup({100, 50, 10, 10});
    auto* child = new Probe({110, 50, 1, 1});
    group->MakeGroup(child);
    group->MakeGroup(new Probe({0, 0, 1, 1}));
    auto* copy = new ProbeGroup(*group);
    OpenSymbol assigned;
    static_cast<CUIObjectList&>(assigned) = *copy;
    EXPECT_EQ(group->GetChildren(), copy->GetChildren());
    EXPECT_EQ(group->GetChildren(), assigned.GetChildren());
    EXPECT_STREQ(L"List", assigned.GetShapeName());
    EXPECT_EQ(10, assigned.GetInitialWidth());
    EXPECT_EQ(Box(100, 50, 10, 10), Box(copy->GetPosition()));

    CUIDocument document;
    child->SetDocument(&document);
    std::deque<CUIObject*> out;
    copy->MakeUnGroup(&out);
    EXPECT_EQ(2u, group->GetChildren().size());
    child->Release();
    EXPECT_EQ(1u, group->GetChildren().size());
    EXPECT_EQ(1u, assigned.GetChildren().size());
    group->Release();
    EXPECT_EQ(0, Probe::s_living);
    EXPECT_TRUE(assigned.GetChildren().empty());
    delete group;
}

TEST(GroupLifetime, ADocumentFreesGroupsWithEverythingInThem) {
    auto* document = new CUIDocument;
    std::deque<CUIObject*> page;
    for (int i = 0; i < 3; ++i) {
        auto* outer = new ProbeGroup({0, 0, 50, 50});
        auto* inner = new ProbeGroup({0, 0, 20, 20});
        inner->MakeGroup(new Probe({1, 1, 2, 2}));
        outer->MakeGroup(inner);
        outer->MakeGroup(new Probe({1, 1, 2, 2}));
        page.push_back(outer);
    }
    document->ClearObject(&page);
    EXPECT_EQ(0, Probe::s_living);
    EXPECT_EQ(0, ProbeGroup::s_living);
    document->Release();
}

}  // namespace
