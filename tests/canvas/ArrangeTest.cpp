#include "canvas/CanvasFixture.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

class Arrange : public CanvasFixture {
protected:
    // Two objects, the second selected last: it is the reference.
    void SelectPair() {
        m_first = AddRectangle(10, 10, 20, 20);
        m_second = AddRectangle(50, 40, 30, 10);
        m_canvas->Select(m_second, 0);
        m_canvas->Select(m_first, 1);
    }

    CUIObject* m_first = nullptr;
    CUIObject* m_second = nullptr;
};

TEST_F(Arrange, AlignsWithTheObjectSelectedLast) {
    SelectPair();
    const struct {
        void (CUICanvas::*command)();
        float x, y;
    } rows[] = {
        {&CUICanvas::OnToolsAlignLeft, 10, 40},   {&CUICanvas::OnToolsAlignRight, 0, 40},
        {&CUICanvas::OnToolsAlignTop, 50, 10},    {&CUICanvas::OnToolsAlignBottom, 50, 20},
        {&CUICanvas::OnToolsAlignVCenter, 5, 40}, {&CUICanvas::OnToolsAlignHCenter, 50, 15},
        {&CUICanvas::OnToolsAlignCenter, 5, 15},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        m_second->SetPosition({50, 40, 30, 10});
        (m_canvas->*row.command)();
        ExpectRect(m_second->GetPosition(), row.x, row.y, 30, 10);
        ExpectRect(m_first->GetPosition(), 10, 10, 20, 20);
    }
}

TEST_F(Arrange, CentresOnTheTruncatedHalfOfAnOddReference) {
    CUIObject* moved = AddRectangle(50, 40, 10, 10);
    m_canvas->Select(moved, 0);
    m_canvas->Select(AddRectangle(0, 0, 5, 7), 1);
    m_canvas->OnToolsAlignCenter();
    ExpectRect(moved->GetPosition(), -3, -2, 10, 10);
    // A reference wider than half of what fits in an integer.
    m_canvas->Select(moved, 0);
    m_canvas->Select(AddRectangle(-2.0e9f, -1.5e9f, 4.0e9f, 3.5e9f), 1);
    m_canvas->OnToolsAlignCenter();
    ExpectRect(moved->GetPosition(), -5, 2.5e8f - 5, 10, 10);
}

TEST_F(Arrange, RepaintsOnlyWhatMoves) {
    SelectPair();
    m_first->SetLineWidth(1.0f);
    m_second->SetLineWidth(1.0f);
    TakeUpdateRect();
    m_canvas->OnToolsAlignTop();
    EXPECT_EQ(TakeUpdateRect(), CRect(45, 5, 85, 55));
    m_canvas->OnToolsAlignTop();
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());
}

TEST_F(Arrange, DoesNothingWithoutAReference) {
    m_canvas->OnToolsAlignLeft();
    CUIObject* moved = AddRectangle(50, 40, 10, 10);
    m_canvas->Select(moved, 0);
    m_canvas->Select(AddRectangle(5, 5, 0, 10), 1);
    m_canvas->OnToolsAlignLeft();
    ExpectRect(moved->GetPosition(), 50, 40, 10, 10);
}

TEST_F(Arrange, TurnsOneObjectAboutItsCentre) {
    CUIObject* object = AddRectangle(0, 0, 40, 20);
    m_canvas->OnToolsRotateRight();
    ExpectRect(object->GetPosition(), 0, 0, 40, 20);
    m_canvas->Select(object, 0);
    m_canvas->OnToolsRotateRight();
    ExpectRect(object->GetPosition(), 10, -10, 20, 40);
    m_canvas->OnToolsRotateLeft();
    ExpectRect(object->GetPosition(), 0, 0, 40, 20);
}

TEST_F(Arrange, TurnsSeveralAboutTheRectangleFromTheOrigin) {
    SelectPair();
    // The rectangle is (0, 0, 80, 50), its centre (40, 25): (x, y) goes to (65 - y, x - 15).
    m_canvas->OnToolsRotateRight();
    ExpectRect(m_first->GetPosition(), 35, -5, 20, 20);
    ExpectRect(m_second->GetPosition(), 15, 35, 10, 30);
}

TEST_F(Arrange, RestacksTheObjectSelectedLast) {
    CUIObject* a = AddRectangle(10, 10, 20, 20);
    CUIObject* b = AddRectangle(50, 10, 20, 20);
    CUIObject* c = AddRectangle(90, 10, 20, 20);
    CUIObject* d = AddRectangle(130, 10, 20, 20);
    using List = std::deque<CUIObject*>;
    const struct {
        void (CUICanvas::*command)();
        CUIObject* object;
        List after;
    } rows[] = {
        {&CUICanvas::OnToolsPositionBackward, c, {a, c, b, d}},
        {&CUICanvas::OnToolsPositionForward, c, {a, b, c, d}},
        {&CUICanvas::OnToolsPositionBack, c, {c, a, b, d}},
        {&CUICanvas::OnToolsPositionFront, a, {c, b, d, a}},
        {&CUICanvas::OnToolsPositionFront, a, {c, b, d, a}},
        {&CUICanvas::OnToolsPositionForward, a, {c, b, d, a}},
        {&CUICanvas::OnToolsPositionBack, c, {c, b, d, a}},
        {&CUICanvas::OnToolsPositionBackward, c, {c, b, d, a}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        m_canvas->Select(d, 0);
        m_canvas->Select(row.object, 1);
        const bool changes = Objects() != row.after;
        m_document->SetModifiedFlag(0);
        TakeUpdateRect();
        (m_canvas->*row.command)();
        EXPECT_EQ(Objects(), row.after);
        EXPECT_EQ(m_document->GetModifiedFlag() != 0, changes);
        EXPECT_EQ(!TakeUpdateRect().IsRectEmpty(), changes);
    }
}

TEST_F(Arrange, DoesNotRestackWhatIsNotOnThePage) {
    m_canvas->OnToolsPositionFront();
    CUICanvas* other = AddCanvas();
    CUIObject* foreign = AddRectangle(10, 10, 20, 20);
    AddRectangle(50, 10, 20, 20);
    m_canvas->Select(foreign, 0);
    m_canvas->OnToolsPositionFront();
    EXPECT_EQ(m_document->GetCanvasObjectList(other)->front(), foreign);
    m_canvas->Select(nullptr, 0);
}

}  // namespace
