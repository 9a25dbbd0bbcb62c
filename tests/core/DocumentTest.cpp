#include "canvas/UICanvas.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"
#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

using namespace Lumo;

namespace {

int g_alive = 0;

// A rectangle that counts how many of its kind live.
class Counted : public CUIObjectRectangle {
public:
    explicit Counted(float x = 0, float y = 0, float width = 10, float height = 10)
        : CUIObjectRectangle(*std::make_unique<Gdiplus::RectF>(x, y, width, height), DS_RECTANGLE) {
        ++g_alive;
    }
    ~Counted() override { --g_alive; }
};

class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        g_alive = 0;
        std::sort(m_canvases, m_canvases + 3, [](auto& a, auto& b) { return a.get() < b.get(); });
    }
    ~DocumentTest() override {
        if (m_document)
            m_document->Release();
        EXPECT_EQ(g_alive, 0);
    }

    // The n-th canvas in page order.
    CUICanvas* Canvas(int n) { return m_canvases[n].get(); }

    Counted* Append(CUICanvas* canvas = nullptr, float x = 0, float y = 0) {
        auto* object = new Counted(x, y);
        m_document->AppendObject(object, canvas);
        return object;
    }

    CUIDocument* m_document = new CUIDocument;
    std::unique_ptr<CUICanvas> m_canvases[3] = {std::make_unique<CUICanvas>(), std::make_unique<CUICanvas>(),
                                                std::make_unique<CUICanvas>()};
};

TEST_F(DocumentTest, PagesFollowTheOrderOfTheirPointers) {
    m_document->AppendCanvas(Canvas(2));
    m_document->AppendCanvas(Canvas(0));
    m_document->AppendCanvas(Canvas(1));
    EXPECT_EQ(m_document->MoveFirstCanvas(), Canvas(0));
    EXPECT_EQ(m_document->MoveNextCanvas(), Canvas(1));
    EXPECT_EQ(m_document->MoveNextCanvas(), Canvas(2));
    EXPECT_EQ(m_document->GetNextCanvas(), Canvas(2));
    EXPECT_EQ(m_document->MovePrevCanvas(), Canvas(1));
    EXPECT_EQ(m_document->MovePrevCanvas(), Canvas(0));
    EXPECT_EQ(m_document->GetPrevCanvas(), Canvas(0));
}

TEST_F(DocumentTest, AskingForTheLastPageMovesThereAskingForTheFirstDoesNot) {
    m_document->AppendCanvas(Canvas(2));
    m_document->AppendCanvas(Canvas(1));
    EXPECT_EQ(m_document->GetFirstCanvas(), Canvas(1));
    EXPECT_EQ(m_document->GetLastCanvas(), Canvas(2));
    EXPECT_EQ(m_document->GetCurrentCanvas(), Canvas(2));
    EXPECT_EQ(m_document->GetFirstCanvas(), Canvas(1));
    EXPECT_EQ(m_document->GetCurrentCanvas(), Canvas(2));
}

TEST_F(DocumentTest, OnlyACanvasWithAPageBecomesCurrent) {
    EXPECT_EQ(m_document->GetCurrentCanvas(), nullptr);
    EXPECT_EQ(m_document->GetNextCanvas(), nullptr);
    EXPECT_EQ(m_document->GetLastCanvas(), nullptr);
    m_document->AppendCanvas(Canvas(0));
    EXPECT_EQ(m_document->SetCurrentCanvas(Canvas(1)), Canvas(0));
    EXPECT_EQ(m_document->SetCurrentCanvas(nullptr), nullptr);
    EXPECT_EQ(m_document->GetCurrentCanvas(), Canvas(0));
    m_document->DeleteCanvas(Canvas(0));
    EXPECT_EQ(m_document->GetCurrentCanvas(), nullptr);
}

TEST_F(DocumentTest, EveryRoadToDestructionReachesTheObjectsAndTheSelection) {
    struct Road {
        const char* name;
        void (*take)(CUIDocument&, CUICanvas*);
        int modified;
    };
    const Road roads[] = {
        {"append again", [](CUIDocument& d, CUICanvas* c) { d.AppendCanvas(c); }, 1},
        {"delete page", [](CUIDocument& d, CUICanvas* c) { d.DeleteCanvas(c); }, 1},
        {"clear page", [](CUIDocument& d, CUICanvas* c) { d.ClearCanvasObject(c); }, 1},
        {"clear current page", [](CUIDocument& d, CUICanvas*) { d.ClearCanvasObject(); }, 1},
        {"clear all", [](CUIDocument& d, CUICanvas*) { d.ClearCanvas(); }, 0},
        {"clear list", [](CUIDocument& d, CUICanvas* c) { d.ClearObject(d.GetCanvasObjectList(c)); }, 0},
    };
    for (const Road& road : roads) {
        SCOPED_TRACE(road.name);
        m_document->AppendCanvas(Canvas(0));
        CUIObject* first = Append();
        CUIObject* second = Append();
        Canvas(0)->m_selection = {second, first};
        Canvas(1)->m_selection = {first};
        m_document->GetCanvasObjectList()->push_back(nullptr);
        m_document->SetModifiedFlag(0);
        road.take(*m_document, Canvas(0));
        EXPECT_EQ(g_alive, 0);
        EXPECT_TRUE(Canvas(0)->m_selection.empty());
        EXPECT_TRUE(Canvas(1)->m_selection.empty());
        EXPECT_EQ(m_document->GetModifiedFlag(), road.modified);
    }
}

TEST_F(DocumentTest, ADeletedCanvasTakesItsPageAlong) {
    m_document->AppendCanvas(Canvas(0));
    Append();
    m_canvases[0].reset();
    EXPECT_EQ(g_alive, 0);
    EXPECT_TRUE(m_document->GetCanvasList().empty());
    EXPECT_EQ(m_document->GetCurrentCanvas(), nullptr);
}

TEST_F(DocumentTest, AnObjectInTwoListsIsDestroyedOnce) {
    m_document->AppendCanvas(Canvas(0));
    CUIObject* object = Append();
    m_document->AppendObject(object, nullptr);
    m_document->AppendCanvas(Canvas(1));
    m_document->AppendObject(object, nullptr);
    m_document->DeleteCanvas(Canvas(0));
    EXPECT_EQ(g_alive, 0);
    EXPECT_TRUE(m_document->GetCanvasObjectList(Canvas(1))->empty());
}

TEST_F(DocumentTest, ACopySharesThePagesAndNeitherOutlivesThem) {
    m_document->AppendCanvas(Canvas(0));
    Append();
    auto* copy = new CUIDocument(*m_document);
    EXPECT_EQ(copy->GetCanvasObjectList(Canvas(0)), m_document->GetCanvasObjectList(Canvas(0)));
    EXPECT_EQ(copy->GetCurrentCanvas(), Canvas(0));
    copy->Release();
    EXPECT_EQ(g_alive, 0);
    EXPECT_EQ(m_document->GetCanvasObjectList(Canvas(0)), nullptr);
}

TEST_F(DocumentTest, DeletingActsOnTheFirstObjectOfThePage) {
    m_document->AppendCanvas(Canvas(0));
    CUIObject* a = Append();
    CUIObject* b = Append();
    m_document->GetCanvasObjectList()->push_front(nullptr);
    m_document->RemoveObject(b, 0);
    EXPECT_EQ(a->GetRemoved(), 1);
    EXPECT_EQ(b->GetRemoved(), 0);
    m_document->DeleteObject(b);
    EXPECT_EQ(g_alive, 1);
    EXPECT_EQ(m_document->GetCanvasObjectList()->back(), b);
    m_document->RemoveObject(b, 1);
    EXPECT_EQ(g_alive, 0);
    m_document->SetModifiedFlag(0);
    m_document->DeleteObject(nullptr);
    EXPECT_EQ(m_document->GetModifiedFlag(), 0);
}

TEST_F(DocumentTest, RemovingWithoutAnEntryMarksModifiedOnAnEmptyPageItDoesNot) {
    Counted object;
    m_document->RemoveObject(&object, 0);
    EXPECT_EQ(m_document->GetModifiedFlag(), 0);  // no pages
    m_document->AppendCanvas(Canvas(0));
    m_document->SetModifiedFlag(0);
    m_document->RemoveObject(&object, 0);
    EXPECT_EQ(m_document->GetModifiedFlag(), 0);  // an empty page
    m_document->AppendCanvas(Canvas(1));
    m_document->DeleteCanvas(Canvas(1));
    m_document->SetModifiedFlag(0);
    m_document->RemoveObject(&object, 0);
    EXPECT_EQ(m_document->GetModifiedFlag(), 1);  // pages, but no current one
    EXPECT_EQ(object.GetRemoved(), 0);
}

TEST_F(DocumentTest, CreatesFiveKindsAndMarksModifiedForTheOthersWhenThereIsAPage) {
    EXPECT_EQ(m_document->CreateObject(DS_LINE, CRect(0, 0, 1, 1)), nullptr);
    EXPECT_EQ(m_document->GetModifiedFlag(), 0);
    m_document->AppendCanvas(Canvas(0));
    for (int kind = 0; kind < kDrawShapeCount; ++kind) {
        const bool known = kind == 3 || kind == 4 || kind == 13 || kind == 14 || kind == 18;
        m_document->SetModifiedFlag(0);
        CUIObject* object = m_document->CreateObject(static_cast<DrawShape>(kind), CRect(1, 2, 31, 42));
        EXPECT_EQ(object != nullptr, known) << kind;
        EXPECT_EQ(m_document->GetModifiedFlag(), 1);
        if (object) {
            EXPECT_EQ(object->GetDrawShape(), kind);
            EXPECT_TRUE(object->GetPosition().Equals(Gdiplus::RectF(1, 2, 30, 40)));
            EXPECT_EQ(m_document->GetCanvasObjectList()->back(), object);
        }
    }
}

TEST_F(DocumentTest, NamesAreUniqueIgnoringCase) {
    m_document->AppendCanvas(Canvas(0));
    CUIObject* first = Append();
    m_document->SetShapeName(first);
    EXPECT_STREQ(first->GetShapeName(), L"Rectangle1");
    CUIObject* other = m_document->CreateObject(DS_ELLIPSE, CRect(0, 0, 5, 5));
    other->SetShapeName(CString(L"rectangle2"));
    CUIObject* second = Append();
    m_document->SetShapeName(second);
    EXPECT_STREQ(second->GetShapeName(), L"Rectangle3");
    CString lower(L"rectangle1");
    EXPECT_EQ(m_document->CheckShapeName(lower), 1);
    EXPECT_EQ(m_document->FindObject(lower, nullptr), first);
    CString digit(L"Rectangle9");
    EXPECT_EQ(m_document->CheckShapeName(digit), 0);
    CString empty;
    EXPECT_EQ(m_document->CheckShapeName(empty), 0);
}

TEST_F(DocumentTest, ThePointFindsTheTopmostVisibleBody) {
    m_document->AppendCanvas(Canvas(0));
    CUIObject* below = Append(nullptr, 0, 0);
    CUIObject* above = Append(nullptr, 5, 5);
    m_document->GetCanvasObjectList()->push_back(nullptr);
    CPoint both(7, 7);
    EXPECT_EQ(m_document->ObjectAt(both), above);
    above->SetRemoved(1);
    EXPECT_EQ(m_document->ObjectAt(both), below);
    CPoint none(300, 7);
    EXPECT_EQ(m_document->ObjectAt(none), nullptr);
}

// Whether a host's class may end otherwise: its own `Release` decides, once for each object.
TEST_F(DocumentTest, AReleaseOfTheHostsDecidesWhetherAnObjectEnds) {
    struct Group : CUIObjectList {
        enum class Way { kBase, kWhole, kStay };
        explicit Group(Way way) : CUIObjectList({7, 3, 50, 40}, DS_LIST), m_way(way) {
            ++g_alive;
            MakeGroup(new Counted);
        }
        ~Group() override { --g_alive; }
        void Release() override {
            ++m_released;
            if (m_way != Way::kStay)
                CUIObjectList::Release();
            if (m_way == Way::kWhole)
                delete this;
        }
        Way m_way;
        int m_released = 0;
    };
    struct Stayer : Counted {
        void Release() override { ++m_released; }
        int m_released = 0;
    };
    m_document->AppendCanvas(Canvas(0));
    auto* stayer = new Stayer;
    auto* group = new Group(Group::Way::kStay);
    for (CUIObject* object : {static_cast<CUIObject*>(stayer), static_cast<CUIObject*>(group),
                              static_cast<CUIObject*>(new Group(Group::Way::kBase)),
                              static_cast<CUIObject*>(new Group(Group::Way::kWhole))})
        m_document->AppendObject(object, nullptr);
    m_document->ClearObject(m_document->GetCanvasObjectList());
    EXPECT_EQ(g_alive, 3);  // the two that stay, and a child
    EXPECT_EQ(stayer->m_released, 1);
    EXPECT_EQ(group->m_released, 1);
    EXPECT_EQ(group->GetChildren().size(), 1u);
    delete stayer;
    group->m_way = Group::Way::kBase;
    CUIDocument::DestroyObject(group);
    EXPECT_EQ(g_alive, 0);
}

TEST_F(DocumentTest, AnObjectThatEndsLeavesWhateverHoldsIt) {
    void (*const ways[])(CUIObject*) = {
        [](CUIObject* object) { object->Release(); },
        [](CUIObject* object) { delete object; },
        [](CUIObject* object) { CUIDocument::DestroyObject(object); },
    };
    m_document->AppendCanvas(Canvas(1));
    m_document->AppendCanvas(Canvas(0));
    CUIObjectList group({7, 3, 50, 40}, DS_LIST);
    for (const auto destroy : ways) {
        auto* appended = Append(Canvas(1));
        auto* child = new Counted;
        group.MakeGroup(child);
        group.MakeGroup(child);
        auto* selected = new Counted;
        Canvas(1)->Select(selected, 0);
        auto* put = new Counted;  // by hand, with its canvas as it should be
        put->SetCanvas(Canvas(0));
        m_document->GetCanvasObjectList()->push_back(put);
        Canvas(2)->m_selection = {appended};
        for (CUIObject* object : {appended, child, selected, put})
            destroy(object);
        EXPECT_EQ(g_alive, 0);
        EXPECT_TRUE(m_document->GetCanvasObjectList(Canvas(1))->empty());
        EXPECT_TRUE(m_document->GetCanvasObjectList()->empty());
        EXPECT_TRUE(Canvas(1)->m_selection.empty());
        EXPECT_TRUE(Canvas(2)->m_selection.empty());
        EXPECT_TRUE(group.GetChildren().empty());
    }
}

// Each road over an owner and its two labels, of which one is destroyed together with it and one stands on
// another page; the labels ask for the owner's destruction in turn.
TEST_F(DocumentTest, AReleaseThatDestroysOthersLeavesNoneOfThemBehind) {
    struct Owner : Counted {
        void Release() override {
            for (CUIObject* other : std::exchange(m_others, {}))
                CUIDocument::DestroyObject(other);
            CUIObject::Release();
        }
        std::vector<CUIObject*> m_others;
    };
    void (*const roads[])(CUIDocument&, CUICanvas*) = {
        [](CUIDocument& d, CUICanvas* c) { d.DeleteCanvas(c); },
        [](CUIDocument& d, CUICanvas* c) { d.ClearObject(d.GetCanvasObjectList(c)); },
        [](CUIDocument& d, CUICanvas* c) {
            auto* group = new CUIObjectList({7, 3, 50, 40}, DS_LIST);
            for (CUIObject* object : std::exchange(*d.GetCanvasObjectList(c), {}))
                group->MakeGroup(object);
            CUIDocument::DestroyObject(group);
        },
        [](CUIDocument& d, CUICanvas* c) { CUIDocument::DestroyObject(d.GetCanvasObjectList(c)->front()); },
    };
    for (const auto road : roads) {
        m_document->AppendCanvas(Canvas(0));
        auto* owner = new Owner;
        auto* label = new Owner;
        m_document->AppendObject(owner, nullptr);
        m_document->AppendObject(label, nullptr);
        m_document->AppendCanvas(Canvas(1));
        owner->m_others = {Append(), label};
        label->m_others = {owner};
        road(*m_document, Canvas(0));
        EXPECT_EQ(g_alive, 0);
        EXPECT_TRUE(m_document->GetCanvasObjectList(Canvas(1))->empty());
    }
}

TEST_F(DocumentTest, ADocumentThatGoesWithoutReleaseLeavesItsObjectsAlive) {
    CUIObject* object = nullptr;
    {
        CUIDocument document;
        document.AppendCanvas(Canvas(0));
        object = document.CreateObject(DS_RECTANGLE, CRect(0, 0, 1, 1));
        EXPECT_EQ(object->GetDocument(), &document);
    }
    EXPECT_EQ(object->GetDocument(), nullptr);
    object->Release();
}

}  // namespace
