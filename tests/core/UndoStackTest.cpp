#include "core/UndoStack.h"

#include <gtest/gtest.h>

namespace Lumo {

class CUndoStackTest : public ::testing::Test {
protected:
    // Puts snapshots into the stack as a host's own Push would.
    void Fill(std::initializer_list<const wchar_t*> names) {
        for (const wchar_t* name : names) {
            m_stack.m_ppSnapshots[m_stack.m_nCount++] = Buffer(name);
            m_stack.m_tasks.AddTail(name);
        }
    }

    // A stand-in for a snapshot's address: freeing it fails, which is what the stack's way of freeing does.
    static void* Buffer(const wchar_t* name) { return const_cast<wchar_t*>(name); }

    void* Slot(int i) const { return m_stack.m_ppSnapshots[i]; }
    int Tasks() const { return static_cast<int>(m_stack.m_tasks.GetCount()); }
    void RemoveFirst() { m_stack.RemoveFirst(); }
    void RemoveAll() { m_stack.RemoveAll(); }

    CUndoStack m_stack{nullptr, 4};
};

TEST_F(CUndoStackTest, PushAndPopChangeNothing) {
    m_stack.Push("Move");
    EXPECT_EQ(m_stack.GetCount(), 0);
    Fill({L"Draw"});
    m_stack.Pop();
    EXPECT_EQ(m_stack.GetCount(), 1);
}

TEST_F(CUndoStackTest, MenuTextNamesTheNewestTask) {
    EXPECT_EQ(m_stack.GetLastTask(), L"");
    Fill({L"Draw", L"Move"});
    EXPECT_EQ(m_stack.GetLastTask(), L"Undo Move\tCtrl+Z");
}

TEST_F(CUndoStackTest, RemoveFirstKeepsTheOldestBufferAsTheSpareOne) {
    RemoveFirst();
    EXPECT_EQ(m_stack.GetCount(), 0);
    const wchar_t *a = L"A", *b = L"B", *c = L"C";
    Fill({a, b, c});
    RemoveFirst();
    EXPECT_EQ(m_stack.GetCount(), 2);
    EXPECT_EQ(Slot(0), Buffer(b));
    EXPECT_EQ(Slot(1), Buffer(c));
    EXPECT_EQ(Slot(2), Buffer(a));
    EXPECT_EQ(Tasks(), 3);
}

TEST_F(CUndoStackTest, RemoveAllEmptiesItForReuse) {
    Fill({L"A", L"B", L"C", L"D"});
    RemoveAll();
    EXPECT_EQ(m_stack.GetCount(), 0);
    EXPECT_EQ(Tasks(), 0);
    Fill({L"E"});
    EXPECT_EQ(m_stack.GetLastTask(), L"Undo E\tCtrl+Z");
}

TEST_F(CUndoStackTest, NegativeCapacityHoldsNothing) {
    CUndoStack stack(nullptr, -5);
    EXPECT_EQ(stack.GetCount(), 0);
}

}  // namespace Lumo
