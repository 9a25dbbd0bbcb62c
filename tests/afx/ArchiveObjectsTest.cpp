// Objects in archives: the bytes written down by hand, shared and null pointers, and hostile data. Lines of
// text.
#include "Expect.h"
#include "MemoryArchive.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Counts its objects and points to another one, which it owns unless it got it as a reference.
class CNode : public CObject {
    DECLARE_SERIAL(CNode)
public:
    CNode() {
        ++alive;
        newest = this;
    }
    ~CNode() override {
        --alive;
        if (ownsNext)
            delete next;
    }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << number << next << kEnd;
            return;
        }
        const int before = alive;
        BYTE end;
        ar >> number >> next;
        ownsNext = alive > before;
        ar >> end;
    }
    static constexpr BYTE kEnd = 0x77;
    static int alive;
    static CNode* newest;
    short number = 0;
    CNode* next = nullptr;
    bool ownsNext = false;
};

class CLeaf : public CNode {
    DECLARE_SERIAL(CLeaf)
    void Serialize(CArchive& ar) override { ar.IsStoring() ? void(ar << number) : void(ar >> number); }
};

class CVersioned : public CObject {
    DECLARE_SERIAL(CVersioned)
    void Serialize(CArchive& ar) override {
        first = ar.GetObjectSchema();
        second = ar.GetObjectSchema();
    }
    UINT first = 0, second = 0;
};

int CNode::alive = 0;
CNode* CNode::newest = nullptr;
IMPLEMENT_SERIAL(CNode, CObject, 0x0102)
IMPLEMENT_SERIAL(CLeaf, CNode, 3)
IMPLEMENT_SERIAL(CVersioned, CObject, VERSIONABLE_SCHEMA | 7)

const std::string kNode = "\xFF\xFF\x02\x01\x05\0CNode"s, kLeaf = "\xFF\xFF\x03\0\x05\0CLeaf"s;

TEST(ArchiveObjects, AreStoredOnceWithTheirClassAndComeBackShared) {
    CNode first, second;
    CLeaf leaf;
    first.number = 0x1123, second.number = 0x3344, leaf.number = 0x5581;
    first.next = &second, second.next = &leaf;
    const std::string bytes =
        kNode + "\x23\x11\x01\x80\x44\x33" + kLeaf + "\x81\x55" + "ww" + "\x03\0\0\0\x02\0\x05\0"s;
    EXPECT_EQ(bytes, Stored([&](CArchive& ar) {
                  ar << &first << &second << static_cast<CObject*>(nullptr) << &first << &leaf;
              }));
    LoadingArchive loader(bytes);
    CNode *head = nullptr, *again = nullptr;
    CLeaf* tail = nullptr;
    CObject *middle = nullptr, *none = &first;
    loader.ar >> head >> middle >> none >> again >> tail;
    EXPECT_TRUE(head->number == 0x1123 && head->next->number == 0x3344 && tail->number == 0x5581);
    EXPECT_TRUE(middle == head->next && head == again && head->next->next == tail && none == nullptr);
    EXPECT_TRUE(tail->IsKindOf(RUNTIME_CLASS(CLeaf)));
    EXPECT_EQ(3 + 3, CNode::alive);
    delete head;
    EXPECT_EQ(3, CNode::alive);
}

TEST(ArchiveObjects, MayPointInACircle) {
    CNode first, second;
    first.next = &second, second.next = &first;
    LoadingArchive loader(Stored([&](CArchive& ar) { ar << &first; }));
    CNode* loaded = nullptr;
    loader.ar >> loaded;
    EXPECT_EQ(loaded, loaded->next->next);
    delete loaded;
    EXPECT_EQ(2, CNode::alive);
}

TEST(ArchiveObjects, HaveLongNumbersFrom7FFFOn) {
    std::vector<CLeaf> leaves(0x7FFF);  // with the class the last but one has the number 7FFF
    const std::string bytes = Stored([&](CArchive& ar) {
        for (CLeaf& leaf : leaves)
            ar << &leaf;
        ar << &leaves[0x7FFC] << &leaves[0x7FFD] << &leaves[0x7FFE];
    });
    EXPECT_EQ("\xFE\x7F\xFF\x7F\xFF\x7F\0\0\xFF\x7F\0\x80\0\0"s, bytes.substr(bytes.size() - 14));
    LoadingArchive loader(bytes);
    std::vector<std::unique_ptr<CObject>> loaded;
    for (size_t i = 0; i < leaves.size(); ++i)
        loaded.emplace_back(loader.ar.ReadObject(RUNTIME_CLASS(CLeaf)));
    for (size_t last : {0x7FFC, 0x7FFD, 0x7FFE})
        EXPECT_EQ(loaded[last].get(), loader.ar.ReadObject(RUNTIME_CLASS(CNode)));
}

TEST(ArchiveObjects, TellTheirSchemaOnce) {
    for (WORD schema : {WORD(7), WORD(2)}) {
        std::string bytes = "\xFF\xFF\x07\0\x0A\0CVersioned"s;
        CVersioned stored;
        EXPECT_EQ(bytes, Stored([&](CArchive& ar) { ar << &stored; }));
        bytes[2] = char(schema);
        LoadingArchive loader(bytes);
        CVersioned* loaded = nullptr;
        loader.ar >> loaded;
        EXPECT_TRUE(loaded->first == schema && loaded->second == UINT(-1));
        delete loaded;
    }
}

TEST(ArchiveObjects, HostileDataRaiseTheirCauseAndLeaveNothing) {
    const struct {
        std::string bytes;
        int cause;
    } cases[] = {
        {""s, CArchiveException::endOfFile},
        {"\xFF\xFF\x02\x01\x05\0CNo"s, CArchiveException::endOfFile},
        {kNode + "\x07"s, CArchiveException::endOfFile},
        {kNode + "\x07\0\0\0"s, CArchiveException::endOfFile},
        {kNode + "\x07\0"s + kLeaf + "\x07"s, CArchiveException::endOfFile},
        {kNode + "\x07\0\x01\x80\x08\0\x01"s, CArchiveException::endOfFile},
        {"\xFF\xFF\x02\x01\x06\0CNodes"s, CArchiveException::badClass},
        {"\xFF\xFF\x02\x01\xFF\xFF"s, CArchiveException::badClass},
        {"\xFF\xFF\x07\0\x0A\0CVersioned"s, CArchiveException::badClass},
        {"\xFF\xFF\x03\x01\x05\0CNode"s, CArchiveException::badSchema},
        {"\x01\0"s, CArchiveException::badIndex},
        {"\x01\x80"s, CArchiveException::badIndex},
        {"\0\x80"s, CArchiveException::badIndex},
        {"\xFF\x7F\xFF\xFF\xFF\xFF"s, CArchiveException::badIndex},
        {"\xFF\x7F\xFF\xFF\xFF\x7F"s, CArchiveException::badIndex},
        {kNode + "\x07\0\x01\0"s, CArchiveException::badIndex},
        {kNode + "\x07\0\x02\x80"s, CArchiveException::badIndex},
        {kNode + "\x07\0\x03\0"s, CArchiveException::badIndex},
    };
    for (const auto& c : cases) {
        LoadingArchive loader(c.bytes);
        CNode* loaded = nullptr;
        EXPECT_EQ(c.cause, CauseOf<CArchiveException>([&] { loader.ar >> loaded; })) << &c - cases;
        EXPECT_TRUE(!loaded && CNode::alive == 0) << &c - cases;
    }
    // A reference to a node where a leaf is wanted.
    LoadingArchive loader(kNode + "\x07\0\0\0w\x02\0"s);
    CNode* node = nullptr;
    CLeaf* leaf = nullptr;
    loader.ar >> node;
    EXPECT_EQ(CArchiveException::badClass, CauseOf<CArchiveException>([&] { loader.ar >> leaf; }));
    delete node;
    // One that another object already points to is not deleted when its loading fails afterwards.
    LoadingArchive shared(kNode + "\x07\0\x01\x80\x08\0\x02\0w"s);
    EXPECT_EQ(CArchiveException::endOfFile, CauseOf<CArchiveException>([&] { shared.ar >> node; }));
    ASSERT_EQ(2, CNode::alive);
    EXPECT_EQ(CNode::newest, CNode::newest->next->next);
    delete CNode::newest->next;
}

TEST(ArchiveObjects, NeedNamesAndTheRightDirection) {
    class CPlain : public CObject {
    } plain;
    CNode node;
    EXPECT_TRUE(node.IsSerializable() && !plain.IsSerializable());
    EXPECT_EQ(RUNTIME_CLASS(CLeaf), CRuntimeClass::FromName("CLeaf"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CPlain"));
    CRuntimeClass first = *RUNTIME_CLASS(CNode), second = first, third = first;
    first.m_lpszClassName = "1", second.m_lpszClassName = "2", third.m_lpszClassName = "3";
    auto one = std::make_unique<AFX_CLASSINIT>(&first), two = std::make_unique<AFX_CLASSINIT>(&second);
    const AFX_CLASSINIT three(&third);
    two.reset();  // a DLL in the middle goes
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("2"));
    EXPECT_TRUE(CRuntimeClass::FromName("1") == &first && CRuntimeClass::FromName("3") == &third);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { Stored([&](CArchive& ar) { ar << &plain; }); }));
    LoadingArchive loader(kNode);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { loader.ar.ReadObject(RUNTIME_CLASS(CObject)); }));
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { loader.ar << &node; }));
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] {
                  Stored([&](CArchive& ar) {
                      CNode* loaded = nullptr;
                      ar >> loaded;
                  });
              }));
}

TEST(ArchiveObjects, GoAThousandDeepAndNoDeeper) {
    for (int count : {1000, 1001}) {
        std::vector<CNode> chain(count);
        for (int i = 0; i + 1 < count; ++i)
            chain[i].next = &chain[i + 1];
        std::string bytes;
        const int cause =
            CauseOf<CArchiveException>([&] { bytes = Stored([&](CArchive& ar) { ar << &chain[0]; }); });
        EXPECT_EQ(count == 1000 ? -1 : int(CArchiveException::genericException), cause);
        // What one would have stored who does not ask.
        bytes = kNode + "\x07\0"s;
        for (int i = 1; i < count; ++i)
            bytes += "\x01\x80\x07\0"s;
        LoadingArchive loader(bytes + "\0\0"s + std::string(count, 'w'));
        CNode* loaded = nullptr;
        EXPECT_EQ(cause, CauseOf<CArchiveException>([&] { loader.ar >> loaded; }));
        delete loaded;
        EXPECT_EQ(count, CNode::alive);
    }
}

TEST(ArchiveText, LinesComeBackWithoutTheirEnds) {
    const std::string bytes =
        "o\0n\0e\0\r\0\n\0\n\0a\0\r\0b\0\n\0\x00\xAC"
        "end"s.substr(0, 26);
    EXPECT_EQ("x\0\n\0"s, Stored([](CArchive& ar) { ar.WriteString(L"x\n"); }));
    {
        LoadingArchive loader(bytes, 128);
        CString line;
        for (LPCWSTR expected : {L"one", L"", L"a\rb", L"\xAC00\x6E65"}) {
            EXPECT_TRUE(loader.ar.ReadString(line));
            EXPECT_EQ(line, expected);
        }
        EXPECT_FALSE(loader.ar.ReadString(line));
        EXPECT_TRUE(line.IsEmpty());
    }
    LoadingArchive loader(bytes);
    wchar_t line[4];
    for (LPCWSTR expected : {L"one", L"", L"", L"a\rb", L"", L"\xAC00\x6E65"}) {
        EXPECT_EQ(line, loader.ar.ReadString(line, 4));
        EXPECT_STREQ(expected, line);
    }
    EXPECT_EQ(nullptr, loader.ar.ReadString(line, 4));
    EXPECT_STREQ(L"", line);
}

}  // namespace
