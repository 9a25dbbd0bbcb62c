#include "core/UIObject.h"

#include <cfloat>
#include <vector>

#include "support/Geometry.h"
#include "support/MessageBoxAnswerer.h"

#include <gtest/gtest.h>

namespace Lumo {

namespace {

CUIObject ObjectAt(float x, float y, float width, float height) {
    return CUIObject({x, y, width, height}, DS_RECTANGLE);
}

int Hit(CUIObject& object, float x, float y, int selected) {
    Gdiplus::PointF point(x, y);
    return object.HitTest(point, selected);
}

}  // namespace

TEST(ObjectTest, StartsWithItsDefaults) {
    CUIObject made({1, 2, 3, 4}, DS_SLIDER);
    EXPECT_EQ(made.GetShapeName(), L"Slider");
    EXPECT_EQ(made.GetDrawShape(), DS_SLIDER);
    EXPECT_EQ(made.GetRectMode(), 1);
    EXPECT_EQ(made.GetArchived(), 1);
    EXPECT_EQ(made.GetRemoved(), 0);
    EXPECT_EQ(made.GetDocument(), nullptr);
    EXPECT_EQ(Box(made.GetPosition()), Box(1, 2, 3, 4));
    EXPECT_EQ(made.GetType(), -1);

    CUIObject blank;
    EXPECT_TRUE(blank.GetShapeName().IsEmpty());
    blank.SetRectMode(0);
    Gdiplus::RectF rect(5, 6, 7, 8);
    blank.Init(DS_TOOL_TEXT, rect);
    EXPECT_EQ(blank.GetShapeName(), L"Unknown");
    EXPECT_EQ(blank.GetRectMode(), 1);
    EXPECT_EQ(Box(blank.GetPosition()), Box(5, 6, 7, 8));
}

TEST(ObjectTest, CopiesEveryField) {
    CUIObject source = ObjectAt(1, 2, 3, 4);
    source.SetEditing(1);
    source.SetArchived(7);
    source.SetRemoved(1);
    source.SetStateC(99);
    source.SetRectMode(0);
    source.SetShapeName(L"Fader");
    source.SetText(L"dB");
    source.SetCanvas(reinterpret_cast<CUICanvas*>(&source));
    CUIObject copy(source);
    source.SetText(L"changed");
    EXPECT_EQ(copy.GetEditing(), 1);
    EXPECT_EQ(copy.GetArchived(), 7);
    EXPECT_EQ(copy.GetRemoved(), 1);
    EXPECT_EQ(copy.GetStateC(), 99);
    EXPECT_EQ(copy.GetRectMode(), 0);
    EXPECT_EQ(copy.GetShapeName(), L"Fader");
    EXPECT_EQ(copy.GetText(), L"dB");
    EXPECT_EQ(copy.GetCanvas(), source.GetCanvas());
    EXPECT_EQ(Box(copy.GetPosition()), Box(1, 2, 3, 4));
}

TEST(ObjectTest, ManyObjectsShareTheirStringsAndStaySmall) {
    static_assert(sizeof(CUIObject) <= 640);
    CUIObject first = ObjectAt(0, 0, 1, 1);
    CUIObject second = ObjectAt(0, 0, 1, 1);
    const auto buffer = [](const CString& text) { return static_cast<LPCWSTR>(text); };
    EXPECT_EQ(buffer(first.GetShapeName()), buffer(second.GetShapeName()));
    EXPECT_EQ(buffer(first.GetText()), buffer(second.GetText()));
    EXPECT_EQ(buffer(first.GetTextFontName()), buffer(second.GetTextFontName()));
}

TEST(ObjectTest, EmptyAreaIncludesNegativeSizes) {
    EXPECT_TRUE(ObjectAt(0, 0, 0, 10).IsEmptyArea());
    EXPECT_TRUE(ObjectAt(0, 0, 10, -5).IsEmptyArea());
    EXPECT_TRUE(ObjectAt(0, 0, FLT_EPSILON, 10).IsEmptyArea());
    EXPECT_FALSE(ObjectAt(0, 0, 0.001f, 0.001f).IsEmptyArea());
}

TEST(ObjectHandlesTest, StandOnTheirPlacesWithTheirCursors) {
    CUIObject object = ObjectAt(10, 20, 100, 60);
    const struct {
        int handle;
        Spot point;
        LPCTSTR cursor;
    } cases[] = {{0, {10, 20}, IDC_SIZENWSE}, {1, {110, 20}, IDC_SIZENESW}, {2, {110, 80}, IDC_SIZENWSE},
                 {3, {10, 80}, IDC_SIZENESW}, {4, {60, 20}, IDC_SIZENS},    {5, {110, 50}, IDC_SIZEWE},
                 {6, {60, 80}, IDC_SIZENS},   {7, {10, 50}, IDC_SIZEWE},    {8, {60, 50}, IDC_CROSS},
                 {-1, {0, 0}, IDC_CROSS},     {9, {0, 0}, IDC_CROSS}};
    for (const auto& c : cases) {
        EXPECT_EQ(Spot(object.GetHandlePoint(c.handle)), c.point) << c.handle;
        EXPECT_EQ(object.GetHandleCursor(c.handle), ::LoadCursor(nullptr, c.cursor)) << c.handle;
    }
    EXPECT_EQ(Box(object.GetHandleRect(0)), Box(6, 16, 8, 8));
    EXPECT_EQ(Box(object.GetHandleRect(8)), Box(11, 21, 98, 58));
}

TEST(ObjectHandlesTest, MirrorWithNegativeSizes) {
    const struct {
        float width, height;
        std::vector<int> want;  // of the handles -1 to 9
    } cases[] = {{10, 10, {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
                 {-10, 10, {-1, 1, 0, 3, 2, 4, 7, 6, 5, 8, 9}},
                 {10, -10, {-1, 3, 2, 1, 0, 6, 5, 4, 7, 8, 9}},
                 {-10, -10, {-1, 2, 3, 0, 1, 6, 7, 4, 5, 8, 9}}};
    for (const auto& c : cases) {
        CUIObject object = ObjectAt(0, 0, c.width, c.height);
        std::vector<int> got;
        for (int handle = -1; handle <= 9; ++handle)
            got.push_back(object.NormalizeHandle(handle));
        EXPECT_EQ(got, c.want) << c.width << " x " << c.height;
    }
}

TEST(ObjectHandlesTest, HitTest) {
    CUIObject object = ObjectAt(0, 0, 100, 100);
    const struct {
        float x, y;
        int selected, want;
    } cases[] = {{0, 0, 1, 0},           {50, 1, 1, 4},     {50, 50, 1, 8},  {150, 50, 1, -1},
                 {103.9f, 103.9f, 1, 2}, {104, 104, 1, -1}, {-4, -4, 1, 0},  {0.5f, 0.5f, 0, -1},
                 {1, 1, 0, 8},           {98.9f, 50, 0, 8}, {99, 50, 0, -1}, {150, 50, 0, -1}};
    for (const auto& c : cases)
        EXPECT_EQ(Hit(object, c.x, c.y, c.selected), c.want) << c.x << ", " << c.y << ", " << c.selected;
    CUIObject turnedOver = ObjectAt(100, 0, -100, 100);
    EXPECT_EQ(Hit(turnedOver, 50, 50, 0), -1);
}

TEST(ObjectHandlesTest, UnselectedHitAsksTheReplaceableTestAndCount) {
    struct Ring : CUIObject {
        using CUIObject::CUIObject;
        using CUIObject::HitTest;
        int HitTest(Gdiplus::RectF& rect) override {
            m_asked = rect;
            return 1;
        }
        int GetHandleCount() override { return 5; }
        Gdiplus::RectF m_asked;
    } ring({0, 0, 1, 1}, DS_ELLIPSE);
    EXPECT_EQ(Hit(ring, 70, 80, 0), 4);
    EXPECT_EQ(Box(ring.m_asked), Box(69, 79, 2, 2));
}

TEST(ObjectHandlesTest, MoveHandleToMovesTheEdgesOfTheRawHandle) {
    const struct {
        int handle;
        float dx, dy;
        Box start, want;
    } cases[] = {{0, 3, 4, {0, 0, 10, 10}, {3, 4, 7, 6}},
                 {1, 3, 4, {0, 0, 10, 10}, {0, 4, 13, 6}},
                 {2, 3, 4, {0, 0, 10, 10}, {0, 0, 13, 14}},
                 {3, 3, 4, {0, 0, 10, 10}, {3, 0, 7, 14}},
                 {4, 3, 4, {0, 0, 10, 10}, {0, 4, 10, 6}},
                 {5, 3, 4, {0, 0, 10, 10}, {0, 0, 13, 10}},
                 {6, 3, 4, {0, 0, 10, 10}, {0, 0, 10, 14}},
                 {7, 3, 4, {0, 0, 10, 10}, {3, 0, 7, 10}},
                 {8, 3, 4, {0, 0, 10, 10}, {0, 0, 10, 10}},
                 {-1, 3, 4, {0.4f, 0, 10, 10}, {0, 0, 10, 10}},
                 {2, -15, 0, {0, 0, 10, 10}, {0, 0, -5, 10}},
                 {2, 5, 0, {0, 0, -5, 10}, {0, 0, 0, 10}},
                 {0, 0.9f, -0.9f, {0.6f, 0.4f, 10, 10}, {1, 0, 10, 10}},
                 {2, 1e30f, 0, {0, 0, 0, 0}, {0, 0, 2147483648.0f, 0}}};
    for (const auto& c : cases) {
        CUIObject object = ObjectAt(c.start.x, c.start.y, c.start.width, c.start.height);
        object.MoveHandleTo(c.handle, {c.dx, c.dy});
        EXPECT_EQ(Box(object.GetPosition()), c.want)
            << "handle " << c.handle << " by " << c.dx << ", " << c.dy;
    }
}

TEST(ObjectHandlesTest, DraggingAcrossTheOppositeEdgeSwapsHandles) {
    CUIObject object = ObjectAt(0, 0, 10, 10);
    object.MoveHandleTo(2, {-15, 0});
    EXPECT_EQ(object.NormalizeHandle(2), 3);
    EXPECT_EQ(Spot(object.GetHandlePoint(2)), Spot(0, 10));
}

TEST(ObjectHandlesTest, MoveTo) {
    struct Counter : CUIObject {
        using CUIObject::CUIObject;
        void MoveHandleTo(const int& handle, const Gdiplus::PointF& delta) override {
            m_handles.push_back(handle);
            CUIObject::MoveHandleTo(handle, delta);
        }
        std::vector<int> m_handles;
    } object({0.3f, 0, 10, 10}, DS_RECTANGLE);

    object.MoveTo(8, {0, 0});
    EXPECT_EQ(Box(object.GetPosition()), Box(0.3f, 0, 10, 10));
    object.MoveTo(8, {0.5f, 0});
    EXPECT_EQ(Box(object.GetPosition()), Box(0.3f + 0.5f, 0, 10, 10));
    object.MoveTo(-1, {5, 5});
    EXPECT_EQ(Box(object.GetPosition()), Box(1, 0, 10, 10));
    object.SetRectMode(0);
    object.MoveTo(2, {5, 5});
    EXPECT_EQ(Box(object.GetPosition()), Box(1, 0, 10, 10));
    EXPECT_EQ(object.m_handles, (std::vector<int>{8, -1}));
}

TEST(ObjectHandlesTest, InvertMovesTheObjectPastItsEdge) {
    struct Recorder : CUIObject {
        using CUIObject::CUIObject;
        void MoveHandleTo(const int& handle, const Gdiplus::PointF& delta) override {
            m_handle = handle;
            m_delta = delta;
        }
        int m_handle = -1;
        Gdiplus::PointF m_delta;
    } object({10, 20, 30, 40}, DS_RECTANGLE);
    object.Invert(1);
    EXPECT_EQ(object.m_handle, 1);
    EXPECT_EQ(Spot(object.m_delta), Spot(-60, 0));
    EXPECT_EQ(Box(object.GetPosition()), Box(40, 20, 30, 40));
    object.Invert(0);
    EXPECT_EQ(object.m_handle, 2);
    EXPECT_EQ(Spot(object.m_delta), Spot(0, -80));
    EXPECT_EQ(Box(object.GetPosition()), Box(40, 60, 30, 40));
}

TEST(ObjectTest, PreferenceDialogIsAMessageBox) {
    CUIObject object;
    MessageBoxAnswerer answerer;
    object.ShowPreferenceDialog(nullptr);
    EXPECT_EQ(answerer.texts, std::vector<CString>{L"ShowPreferenceDialog"});
}

TEST(ObjectTest, ResetColorRestoresFillAndLineColourOnly) {
    CUIObject object = ObjectAt(0, 0, 1, 1);
    object.SetFillColor(1);
    object.SetLineColor(2);
    object.SetLineWidth(9);
    object.SetTextColor(3);
    object.ResetColor();
    EXPECT_EQ(object.GetFillColor(), 0x800000FFu);
    EXPECT_EQ(object.GetLineColor(), 0x800000FFu);
    EXPECT_EQ(object.GetLineWidth(), 9);
    EXPECT_EQ(object.GetTextColor(), 3u);
}

}  // namespace Lumo
