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
        {"MakeReverse", [](CString& s) { s.MakeReverse(); }, L" ba,ba "},
        {"Trim", [](CString& s) { s.Trim(); }, L"ab,ab"},
        {"TrimSet", [](CString& s) { s.Trim(L"b a"); }, L","},
        {"TrimLeftChar", [](CString& s) { s.TrimLeft(L' '); }, L"ab,ab "},
        {"ReplaceChar", [](CString& s) { EXPECT_EQ(2, s.Replace(L'a', L'c')); }, L" cb,cb "},
        {"ReplaceLonger", [](CString& s) { EXPECT_EQ(2, s.Replace(L"ab", L"aab")); }, L" aab,aab "},
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

TEST(String, FindsAndTakesParts) {
    const CString text(L"one,two,,three");
    EXPECT_EQ(3, text.Find(L','));
    EXPECT_EQ(7, text.Find(L",", 4));
    EXPECT_EQ(-1, text.Find(L"four"));
    EXPECT_EQ(-1, text.Find(L"one", -1));
    EXPECT_EQ(-1, text.Find(L"one", 99));
    EXPECT_EQ(8, text.ReverseFind(L','));
    EXPECT_EQ(2, text.FindOneOf(L"xe,"));
    EXPECT_EQ(text.Mid(4, 3), L"two");
    EXPECT_EQ(text.Mid(9, 99), L"three");
    EXPECT_EQ(text.Mid(99), L"");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Right(5), L"three");
    EXPECT_EQ(text.SpanExcluding(L","), L"one");

    std::vector<CString> tokens;
    int at = 0;
    for (CString token = text.Tokenize(L",", at); at >= 0; token = text.Tokenize(L",", at))
        tokens.push_back(token);
    ASSERT_EQ(3u, tokens.size());
    EXPECT_EQ(tokens[2], L"three");
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
