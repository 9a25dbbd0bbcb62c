// CStringList: order, removal in the middle, walks and the reuse of its nodes.
#include "Expect.h"

#include <afxcoll.h>

#include <set>
#include <string>
#include <gtest/gtest.h>

namespace {

std::wstring Joined(const CStringList& list) {
    std::wstring forwards, backwards;
    for (POSITION at = list.GetHeadPosition(); at;)
        forwards += list.GetNext(at).GetString();
    for (POSITION at = list.GetTailPosition(); at;)
        backwards.insert(0, list.GetPrev(at).GetString());
    EXPECT_EQ(forwards, backwards);
    EXPECT_EQ(size_t(list.GetCount()), forwards.size());
    return forwards;
}

TEST(StringList, KeepsOrderThroughEveryChange) {
    CStringList list(2);
    list.AddTail(L"d");
    list.AddHead(L"a");
    list.InsertBefore(list.Find(L"d"), L"b");
    const POSITION c = list.InsertAfter(list.Find(L"b"), L"c");
    list.InsertBefore(nullptr, L"0");
    EXPECT_EQ(L"0abcd", Joined(list));
    list.AddTail(&list);
    EXPECT_EQ(L"0abcd0abcd", Joined(list));
    EXPECT_EQ(list.FindIndex(3), c);
    EXPECT_EQ(list.FindIndex(8), list.Find(L"c", c));
    EXPECT_EQ(nullptr, list.FindIndex(10));
    list.RemoveAt(c);
    list.SetAt(list.FindIndex(1), L"A");
    EXPECT_EQ(list.RemoveHead(), L"0");
    EXPECT_EQ(list.RemoveTail(), L"d");
    EXPECT_EQ(L"Abd0abc", Joined(list));
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { list.RemoveHead(); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { list.GetTail(); }));
    list.AddTail(L"x");
    EXPECT_EQ(L"x", Joined(list));
}

TEST(StringList, ReusesTheNodesOfABlock) {
    CStringList list(4);
    list.AddTail(L"stays");
    std::set<POSITION> seen;
    for (int i = 0; i < 100; ++i) {
        seen.insert(list.AddTail(L"goes"));
        list.RemoveTail();
    }
    EXPECT_EQ(1u, seen.size());
}

TEST(StringList, RemovedEntriesLetTheirTextGo) {
    CString text(L"shared");
    CStringList list;
    list.AddTail(L"stays");
    list.AddTail(text);
    list.RemoveTail();
    const LPCWSTR before = text;
    text.SetAt(0, L'S');
    EXPECT_EQ(before, text.GetString());
}

}  // namespace
