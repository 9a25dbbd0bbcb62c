#include "canvas/CanvasFixture.h"

#include <psapi.h>

#include <algorithm>
#include <random>
#include <set>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

// Gestures at random; the seed of a failure replays it.
class LifetimeTest : public CanvasFixture {
protected:
    int Random(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    CPoint RandomPoint() { return {Random(kWidth), Random(kHeight)}; }

    void Gesture() {
        static constexpr DrawShape kKinds[] = {DS_SELECT, DS_RECTANGLE, DS_ELLIPSE, DS_TEXTEDIT, DS_LIST,
                                               DS_LINE,   DS_POLYLINE,  DS_SYMBOL,  DS_SELECT};
        switch (Random(12)) {
            case 0:
            case 1:
            case 2:
                CUIToolBase::run_drawshape = kKinds[Random(std::size(kKinds))];
                break;
            case 3: {
                const CPoint pt = RandomPoint();
                Drag(pt, pt + CPoint(Random(4), Random(4)));  // often too small
                break;
            }
            case 4:
                Click(Random(kWidth), Random(kHeight), Random(2) ? MK_SHIFT : 0);
                break;
            case 5:
                DoubleClick(Random(kWidth), Random(kHeight));
                break;
            case 6:
                m_document->DeleteObject(FrontOrNull());
                break;
            case 7:
                if (Random(2))
                    m_canvas->OnToolsMakeGroup();
                else
                    m_canvas->OnToolsMakeUngroup();
                break;
            case 8:
                m_canvas->OnModeText();
                Click(Random(kWidth), Random(kHeight));
                break;
            case 9:
                if (Random(10) == 0)
                    m_document->ClearObject(m_document->GetCanvasObjectList());
                else
                    m_canvas->OnToolsPositionBackward();
                break;
            default:
                Drag(RandomPoint(), RandomPoint(), Random(2) ? MK_CONTROL : 0);
        }
        Move(Random(kWidth), Random(kHeight), 0);
        m_canvas->UpdateWindow();
    }

    CUIObject* FrontOrNull() {
        return m_canvas->m_selection.empty() ? nullptr : m_canvas->m_selection.front();
    }

    void CheckInvariants() {
        const std::set<CUIObject*> page(Objects().begin(), Objects().end());
        const std::set<CUIObject*> selected(m_canvas->m_selection.begin(), m_canvas->m_selection.end());
        ASSERT_EQ(selected.size(), m_canvas->m_selection.size());
        ASSERT_TRUE(std::includes(page.begin(), page.end(), selected.begin(), selected.end()));
    }

    std::mt19937 m_random;
};

TEST_F(LifetimeTest, AThousandRandomGesturesLeaveNoDanglingPointer) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        m_random.seed(seed);
        for (int i = 0; i < 250; ++i) {
            Gesture();
            CheckInvariants();
            if (HasFatalFailure())
                return;
        }
        m_document->ClearObject(m_document->GetCanvasObjectList());
        EXPECT_TRUE(m_canvas->m_selection.empty());
    }
}

size_t PrivateBytes() {
    ::HeapCompact(::GetProcessHeap(), 0);
    PROCESS_MEMORY_COUNTERS counters = {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

TEST_F(LifetimeTest, MemoryReturnsAfterClearing) {
    const auto fillAndClear = [&] {
        for (int i = 0; i < 5000; ++i)
            AddRectangle(static_cast<float>(i % 300), 0, 10, 10)->SetText(CString(L'x', 20));
        m_document->ClearCanvas();
        m_document->AppendCanvas(m_canvas);
    };
    fillAndClear();
    const size_t before = PrivateBytes();
    for (int round = 0; round < 10; ++round)
        fillAndClear();
    EXPECT_LT(PrivateBytes(), before + (4u << 20));  // one round takes about 4 MB
}

TEST_F(LifetimeTest, TenThousandRectanglesAreNamedOneByOne) {
    for (int i = 0; i < 10000; ++i)
        m_document->SetShapeName(AddRectangle(static_cast<float>(i), 0, 10, 10));
    EXPECT_STREQ(Objects().front()->GetShapeName(), L"Rectangle1");
    EXPECT_STREQ(Objects().back()->GetShapeName(), L"Rectangle10000");
}

}  // namespace
