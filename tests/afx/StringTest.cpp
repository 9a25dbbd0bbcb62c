// CString: sharing and copy on write, formatting, comparison, parts and changes.
#include "Expect.h"

#include <afxstr.h>

#include <string>
#include <thread>
#include <vector>
#include <gtest/gtest.h>

namespace {

static_assert(sizeof(CString) == sizeof(void*));

TEST(String, CopiesShareTheirCharactersUntilOneChanges) {
    CString original(L"Arial");
    const LPCWSTR characters = original;
    CString copy = original, assigned;
    assigned = copy;
    const CString whole = original.Left(100), joined = CString() += original;
    EXPECT_EQ(characters, copy.GetString());
    EXPECT_EQ(characters, assigned.GetString());
    EXPECT_EQ(characters, whole.GetString());
    EXPECT_EQ(characters, joined.GetString());

    copy.SetAt(0, L'a');
    assigned += L'!';
    EXPECT_EQ(original, L"Arial");
    EXPECT_EQ(copy, L"arial");
    EXPECT_EQ(assigned, L"Arial!");
    EXPECT_EQ(characters, original.GetString());
}

TEST(String, TheLastHolderWritesInPlace) {
    CString text(L"one");
    {
        CString copy;
        copy = text;
    }
    const LPCWSTR before = text;
    text.SetAt(0, L'O');
    EXPECT_EQ(before, text.GetString());
    EXPECT_EQ(text, L"One");
}

TEST(String, EveryChangingMemberLeavesCopiesAlone) {
    const struct {
        const char* name;
        void (*change)(CString&);
        const wchar_t* expected;
    } cases[] = {
        {"Append", [](CString& s) { s.Append(L"x"); }, L" ab,ab x"},
        {"AppendFormat", [](CString& s) { s.AppendFormat(L"%d", 7); }, L" ab,ab 7"},
        {"GetBuffer", [](CString& s) { *s.GetBuffer() = L'_'; }, L"_ab,ab "},
        {"MakeUpper", [](CString& s) { s.MakeUpper(); }, L" AB,AB "},
        {"MakeLower", [](CString& s) { s.MakeLower(); }, L" ab,ab "},
        {"AppendSame",
         [](CString& s) {
             s += L" AB";
             s.MakeLower();
         },
         L" ab,ab  ab"},
        {"MakeReverse", [](CString& s) { s.MakeReverse(); }, L" ba,ba "},
        {"Trim", [](CString& s) { s.Trim(); }, L"ab,ab"},
        {"TrimSet", [](CString& s) { s.Trim(L"b a"); }, L","},
        {"TrimLeftChar", [](CString& s) { s.TrimLeft(L' '); }, L"ab,ab "},
        {"ReplaceChar", [](CString& s) { EXPECT_EQ(2, s.Replace(L'a', L'c')); }, L" cb,cb "},
        {"ReplaceLonger", [](CString& s) { EXPECT_EQ(2, s.Replace(L"ab", L"aab")); }, L" aab,aab "},
        {"TrimRight", [](CString& s) { s.TrimRight(); }, L" ab,ab"},
        {"TrimRightChar", [](CString& s) { s.TrimRight(L' ').TrimRight(L'b'); }, L" ab,a"},
        {"TrimLeftSet", [](CString& s) { s.TrimLeft(L"a "); }, L"b,ab "},
        {"TrimNoSet", [](CString& s) { s.TrimLeft(nullptr).TrimRight(L""); }, L" ab,ab "},
        {"ReplaceSame", [](CString& s) { EXPECT_EQ(2, s.Replace(L'a', L'a')); }, L" ab,ab "},
        {"ReplaceNone", [](CString& s) { EXPECT_EQ(0, s.Replace(L"c", L"d")); }, L" ab,ab "},
        {"ReplaceByNothing", [](CString& s) { EXPECT_EQ(2, s.Replace(L"b", nullptr)); }, L" a,a "},
        {"RemoveNone", [](CString& s) { EXPECT_EQ(0, s.Remove(L'c')); }, L" ab,ab "},
        {"InsertInFront", [](CString& s) { EXPECT_EQ(8, s.Insert(-3, L'z')); }, L"z ab,ab "},
        {"DeleteFromBefore", [](CString& s) { EXPECT_EQ(5, s.Delete(-1, 2)); }, L"b,ab "},
        {"DeleteNothing", [](CString& s) { EXPECT_EQ(7, s.Delete(7, 1)); }, L" ab,ab "},
        {"ReplaceEmpty", [](CString& s) { EXPECT_EQ(0, s.Replace(L"", L"x")); }, L" ab,ab "},
        {"Remove", [](CString& s) { EXPECT_EQ(2, s.Remove(L'b')); }, L" a,a "},
        {"Insert", [](CString& s) { EXPECT_EQ(9, s.Insert(3, L"xy")); }, L" abxy,ab "},
        {"InsertBehindEnd", [](CString& s) { s.Insert(99, L'z'); }, L" ab,ab z"},
        {"Delete", [](CString& s) { EXPECT_EQ(4, s.Delete(1, 3)); }, L" ab "},
        {"DeleteBeyond", [](CString& s) { EXPECT_EQ(3, s.Delete(3, 99)); }, L" ab"},
        {"Truncate", [](CString& s) { s.Truncate(2); }, L" a"},
        {"ReleaseBuffer", [](CString& s) { s.ReleaseBuffer(1); }, L" "},
        {"Empty", [](CString& s) { s.Empty(); }, L""},
    };
    for (const auto& c : cases) {
        const CString kept(L" ab,ab ");
        CString changed = kept;
        c.change(changed);
        EXPECT_EQ(changed, c.expected) << c.name;
        EXPECT_EQ(int(wcslen(c.expected)), changed.GetLength()) << c.name;
        EXPECT_EQ(kept, L" ab,ab ") << c.name;
    }
}

TEST(String, TakesPartsOfItselfAsArgument) {
    CString text(L"0123456789abcdef");
    text = text.GetString() + 10;
    EXPECT_EQ(text, L"abcdef");
    for (int i = 0; i < 5; ++i)
        text += text;
    EXPECT_EQ(192, text.GetLength());
    EXPECT_EQ(text.Right(7), L"fabcdef");
    text.Append(text.GetString() + 190, 2);
    EXPECT_EQ(text.Right(4), L"efef");
    text.Format(L"<%s|%s>", text.Left(2), text);
    EXPECT_EQ(200 - 1, text.GetLength());
    EXPECT_EQ(text.Left(6), L"<ab|ab");
}

TEST(String, FormatTakesStringsNumbersAndAnyLength) {
    const CString name(L"\xD30C\xC77C");
    CString text;
    text.Format(L"[%s] %d %u %.2f %c %hs %S %08X %I64d", name, -5, 7u, 0.125, L'x', "narrow", "bytes",
                0xBEEFu, 1LL << 40);
    EXPECT_EQ(text, L"[\xD30C\xC77C] -5 7 0.13 x narrow bytes 0000BEEF 1099511627776");
    // Around the size up to which it is formatted on the stack.
    for (int length : {254, 255, 256, 257, 70000}) {
        const CString filler(L'y', length);
        text.Format(L"%s", filler);
        EXPECT_EQ(text, filler) << length;
        EXPECT_EQ(length, text.GetLength());
    }
    text = L"";
    text.Format(L"%s", L"");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(String, ComparesByValueAndIgnoringCase) {
    const CString a(L"abc"), b(L"abd");
    EXPECT_TRUE(a < b && a <= b && b > a && b >= L"abd" && L"abb" < a && a != b && L"abc" == a && a == "abc");
    EXPECT_LT(a.Compare(L"abcd"), 0);
    EXPECT_EQ(0, a.CompareNoCase(L"ABC"));
    EXPECT_GT(b.CompareNoCase(L"ABC"), 0);
    EXPECT_EQ(0, CString().Compare(nullptr));
}

TEST(String, FindsPlaces) {
    const CString text(L"one,two,,three");
    const std::pair<int, int> cases[] = {
        {3, text.Find(L',')},
        {7, text.Find(L",", 4)},
        {-1, text.Find(L"four")},
        {-1, text.Find(L"one", -1)},
        {-1, text.Find(L"one", 99)},
        {0, text.Find(L"one")},
        {-1, text.Find(L"", 15)},
        {-1, text.Find(nullptr)},
        {0, text.Find(L'o')},
        {6, text.Find(L'o', 1)},
        {13, text.Find(L'e', 13)},
        {-1, text.Find(L'e', 14)},
        {-1, text.Find(L'o', -1)},
        {8, text.ReverseFind(L',')},
        {6, text.ReverseFind(L'o')},
        {-1, text.ReverseFind(L'z')},
        {0, CString(L"ab").ReverseFind(L'a')},
        {2, text.FindOneOf(L"xe,")},
        {0, text.FindOneOf(L"o")},
        {-1, text.FindOneOf(L"z")},
        {-1, text.FindOneOf(nullptr)},
    };
    for (const auto& [expected, found] : cases)
        EXPECT_EQ(expected, found);
}

TEST(String, TakesParts) {
    const CString text(L"one,two,,three");
    const std::pair<const wchar_t*, CString> cases[] = {
        {L"two", text.Mid(4, 3)},
        {L"three", text.Mid(9, 99)},
        {L"e", text.Mid(13)},
        {L"", text.Mid(14)},
        {L"", text.Mid(99)},
        {L"one", text.Mid(-2, 3)},
        {L"", text.Mid(2, -1)},
        {L"", text.Left(-1)},
        {L"o", text.Left(1)},
        {L"", text.Right(-1)},
        {L"", text.Right(0)},
        {L"three", text.Right(5)},
        {L"one,two,,three", text.Right(14)},
        {L"one", text.SpanExcluding(L",")},
        {L"one", text.SpanIncluding(L"eno")},
        {L"", text.SpanIncluding(L"x")},
        {L"x"
         L"one",
         L'x' + text.Left(3)},
        {L"onex", text.Left(3) + L'x'},
        {L"onex", text.Left(3) + "x"},
        {L"xone", L"x" + text.Left(3)},
    };
    for (const auto& [expected, part] : cases)
        EXPECT_EQ(part, expected);
    for (const wchar_t* list : {L"one,two,,three", L",,one,two,three,"}) {
        CString joined;
        int at = 0;
        for (CString token = CString(list).Tokenize(L",", at); at >= 0;
             token = CString(list).Tokenize(L",", at))
            joined += token + L'|';
        EXPECT_EQ(joined, L"one|two|three|");
        EXPECT_TRUE(at == -1 && CString(list).Tokenize(L",", at).IsEmpty());
    }
    int end = 14;
    EXPECT_TRUE(text.Tokenize(L",", end).IsEmpty() && end == -1);
}

TEST(String, GrowsInStepsAndGivesBackWhatItDoesNotNeed) {
    CString text(L'x', 7);
    std::vector<int> capacities = {text.GetAllocLength()};
    while (text.GetLength() < 60) {
        text += L'y';
        if (text.GetAllocLength() != capacities.back())
            capacities.push_back(text.GetAllocLength());
    }
    EXPECT_EQ(std::vector<int>({7, 15, 23, 39, 63}), capacities);
    text.Preallocate(8);
    EXPECT_EQ(63, text.GetAllocLength());
    text.Preallocate(64);
    EXPECT_EQ(95, text.GetAllocLength()) << "half as much again";
    text.FreeExtra();
    EXPECT_EQ(63, text.GetAllocLength());
    text.Truncate(56);
    const LPCWSTR before = text;
    text.FreeExtra();
    EXPECT_EQ(before, text.GetString()) << "less than a step too much";
    text.Truncate(55);
    text.FreeExtra();
    EXPECT_EQ(55, text.GetAllocLength());
    text.Truncate(55);
    text.Truncate(56);
    EXPECT_EQ(55, text.GetLength());
    text.Truncate(-1);
    EXPECT_TRUE(text.IsEmpty() && text.GetAllocLength() == 55);
    text = L"fits";
    EXPECT_EQ(55, text.GetAllocLength()) << "its own memory is used again";
    wcscpy(text.GetBuffer(9), L"abcdefgh");
    text.ReleaseBuffer();
    EXPECT_TRUE(text == L"abcdefgh" && text.GetLength() == 8);
    text.ReleaseBuffer(55);
    EXPECT_EQ(55, text.GetLength());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.ReleaseBuffer(56); }));
    CString shared = text;
    shared.ReleaseBuffer(55);
    EXPECT_EQ(text.GetString(), shared.GetString());
    text.SetString(L"abc", 0);
    EXPECT_TRUE(text.IsEmpty());
    text.Append(nullptr, 3);
    text.Append(L"abc", -1);
    EXPECT_TRUE(text.IsEmpty());
    text = L'z';
    EXPECT_EQ(text, L"z");
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.Format(nullptr); }));
}

TEST(String, KeepsZerosInsideAndConvertsAnsi) {
    const CString zeros(L"a\0b", 3);
    EXPECT_EQ(3, zeros.GetLength());
    EXPECT_EQ(L'b', zeros[2]);
    EXPECT_EQ(4, (zeros + L'c').GetLength());
    EXPECT_EQ(CString("plain"), L"plain");
    EXPECT_EQ(CString("plain", 2), L"pl");
    EXPECT_EQ("<" + CString(L"x") + ">", L"<x>");
    EXPECT_TRUE(CString(LPCWSTR(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(L'x', 0).IsEmpty());
}

TEST(String, RefusesPlacesOutsideAndImpossibleLengths) {
    CString text(L"abc");
    EXPECT_EQ(0, text[3]);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(4); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.SetAt(3, L'd'); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetBuffer(-1); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { text.GetBuffer(INT_MAX); }));
    EXPECT_EQ(text, L"abc");
}

TEST(String, CopiesMayBeMadeAndDroppedByManyThreads) {
    const CString shared(L"shared by all");
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&shared] {
            for (int n = 0; n < 20000; ++n) {
                CString copy = shared;
                if (n % 100 == 0)
                    copy += L'!';
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(shared, L"shared by all");
    // Nobody else holds it any more: a change takes place where it is.
    CString last = shared;
    const LPCWSTR before = shared;
    const_cast<CString&>(shared).Empty();
    last.SetAt(0, L'S');
    EXPECT_EQ(before, last.GetString());
}

}  // namespace
