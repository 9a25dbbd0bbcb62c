// CArchive: the bytes of every type written down by hand, buffers, ends of data and hostile lengths.
#include "Expect.h"
#include "MemoryArchive.h"
#include "support/TemporaryFile.h"

#include <cmath>
#include <limits>
#include <string>
#include <gtest/gtest.h>

namespace {

int LoadCause(const std::string& bytes, CString& text) {
    LoadingArchive loader(bytes);
    return CauseOf<CArchiveException>([&] { loader.ar >> text; });
}

const std::string kAllTypes =
    "\x12"
    "c"
    "\x01"
    "\xFE\xFF"
    "\x34\x12"
    "\xAC\xD5"
    "\xFE\xFF\xFF\xFF"
    "\x04\x03\x02\x01"
    "\xFF\xFF\xFF\x7F"
    "\x00\xC0\xFF\xEE"
    "\x00\x00\x00\x00\x00\x00\x00\x80"
    "\x08\x07\x06\x05\x04\x03\x02\x01"
    "\x00\x00\xC0\x3F"
    "\x18\x2D\x44\x54\xFB\x21\x09\x40"s;

TEST(Archive, StoresAndLoadsEveryTypeLittleEndian) {
    const std::string stored = Stored([](CArchive& ar) {
        ar << BYTE(0x12) << 'c' << true << short(-2) << WORD(0x1234) << wchar_t(0xD5AC) << -2 << 0x01020304u
           << LONG(0x7FFFFFFF) << DWORD(0xEEFFC000) << std::numeric_limits<LONGLONG>::min()
           << ULONGLONG(0x0102030405060708) << 1.5f << 3.14159265358979323846;
    });
    EXPECT_EQ(kAllTypes, stored);

    LoadingArchive loader(stored);
    BYTE byte = 0;
    char narrow = 0;
    bool flag = false;
    short number16 = 0;
    WORD word = 0;
    wchar_t wide = 0;
    int number = 0;
    unsigned unsignedNumber = 0;
    LONG longNumber = 0;
    DWORD dword = 0;
    LONGLONG number64 = 0;
    ULONGLONG unsigned64 = 0;
    float single = 0;
    double twice = 0;
    loader.ar >> byte >> narrow >> flag >> number16 >> word >> wide >> number >> unsignedNumber >>
        longNumber >> dword >> number64 >> unsigned64 >> single >> twice;
    EXPECT_TRUE(byte == 0x12 && narrow == 'c' && flag && number16 == -2 && word == 0x1234 && wide == 0xD5AC);
    EXPECT_TRUE(number == -2 && unsignedNumber == 0x01020304 && longNumber == 0x7FFFFFFF &&
                dword == 0xEEFFC000);
    EXPECT_TRUE(number64 == std::numeric_limits<LONGLONG>::min() && unsigned64 == 0x0102030405060708);
    EXPECT_TRUE(single == 1.5f && twice == 3.14159265358979323846);
    EXPECT_EQ(CArchiveException::endOfFile, CauseOf<CArchiveException>([&] { loader.ar >> byte; }));
    EXPECT_EQ(0x12, byte);
}

TEST(Archive, StringsHaveTheUnicodeFormAtEveryLength) {
    const struct {
        int length;
        std::string prefix;
    } cases[] = {
        {0, "\xFF\xFE\xFF\x00"s},
        {1, "\xFF\xFE\xFF\x01"s},
        {254, "\xFF\xFE\xFF\xFE"s},
        {255, "\xFF\xFE\xFF\xFF\xFF\x00"s},
        {0xFFFD, "\xFF\xFE\xFF\xFF\xFD\xFF"s},
        {0xFFFE, "\xFF\xFE\xFF\xFF\xFF\xFF\xFE\xFF\x00\x00"s},
        {0x10001, "\xFF\xFE\xFF\xFF\xFF\xFF\x01\x00\x01\x00"s},
    };
    for (const auto& c : cases) {
        const CString text(L'\xAC00', c.length);
        std::string characters;
        for (int i = 0; i < c.length; ++i)
            characters += "\x00\xAC"s;
        const std::string stored = Stored([&](CArchive& ar) { ar << text << BYTE(9); });
        EXPECT_TRUE(c.prefix + characters + '\x09' == stored) << c.length;

        for (int bufferSize : {128, 4096}) {
            LoadingArchive loader(stored, bufferSize);
            CString loaded(L"old");
            BYTE following = 0;
            loader.ar >> loaded >> following;
            EXPECT_TRUE(loaded == text && loaded.GetLength() == c.length) << c.length;
            EXPECT_EQ(9, following);
        }
    }
}

TEST(Archive, LoadsTheAnsiFormToo) {
    const std::string longer(300, 'a');
    const struct {
        std::string bytes;
        CString text;
    } cases[] = {
        {"\x00"s, L""},
        {"\x03"s + "abc", L"abc"},
        {"\xFF\x2C\x01"s + longer, CString(L'a', 300)},
        {"\xFF\xFF\xFF\x2C\x01\x00\x00"s + longer, CString(L'a', 300)},
        {"\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x03\0\0\0\0\0\0\0"s + "abc", L"abc"},
    };
    for (const auto& c : cases) {
        LoadingArchive loader(c.bytes);
        CString loaded;
        loader.ar >> loaded;
        EXPECT_EQ(c.text, loaded);
    }
}

TEST(Archive, LengthsBeyondTheDataRaiseEndOfFile) {
    const std::string hostile[] = {
        ""s,
        "\xFF"s,
        "\xFF\xFE"s,
        "\xFF\xFE\xFF"s,
        "\xFF\xFE\xFF\x02\x61\x00\x62"s,
        "\xFF\xFE\xFF\xFF\x61"s,
        "\xFF\xFE\xFF\xFF\xFD\xFF\x61\x00"s,
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F\x61\x00"s,
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s,
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x01\x00\x00\x00\x00\x00\x00\x80\x61\x00"s,
        "\x05"s + "abcd",
        "\xFF\xFF\xFF\xFE\xFF\xFF\xFF"s + "abcd",
    };
    for (const std::string& bytes : hostile) {
        CString text(L"kept");
        EXPECT_EQ(CArchiveException::endOfFile, LoadCause(bytes, text)) << bytes.size();
        EXPECT_EQ(text, L"kept");
    }
}

TEST(Archive, EveryCutOfAStreamIsNoticed) {
    for (size_t length = 0; length < kAllTypes.size(); ++length) {
        LoadingArchive loader(kAllTypes.substr(0, length));
        EXPECT_EQ(CArchiveException::endOfFile, CauseOf<CArchiveException>([&] {
                      BYTE byte;
                      ULONGLONG rest[6];
                      WORD words[4];
                      loader.ar >> byte >> words[0] >> words[1] >> words[2] >> words[3] >> rest[0] >>
                          rest[1] >> rest[2] >> rest[3] >> rest[4] >> rest[5];
                  }));
    }
}

TEST(Archive, LoadingATextThatIsThereAlreadyKeepsItShared) {
    const CString usual(L"Arial");
    // Behind something else, so that the archive's buffer holds it.
    LoadingArchive loader(Stored([&](CArchive& ar) { ar << 7 << usual << CString(L"Other"); }));
    CString same = usual, other = usual;
    int seven;
    loader.ar >> seven >> same >> other;
    EXPECT_EQ(usual.GetString(), same.GetString());
    EXPECT_EQ(other, L"Other");
    EXPECT_EQ(usual, L"Arial");
}

TEST(Archive, TheWrongDirectionRaisesItsException) {
    CMemFile file;
    CArchive storing(&file, CArchive::store | CArchive::bNoFlushOnDelete);
    CArchive loading(&file, CArchive::load | CArchive::bNoFlushOnDelete);
    EXPECT_TRUE(storing.IsStoring() && !storing.IsLoading() && loading.IsLoading() && !loading.IsStoring());
    CString text;
    int number = 5;
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { loading << 1; }));
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { loading << text; }));
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { loading.Write("", 1); }));
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] { storing >> number; }));
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] { storing >> text; }));
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] { storing.Read(&number, 1); }));
    EXPECT_EQ(5, number);
    storing.Abort();
    EXPECT_EQ(CArchiveException::genericException, CauseOf<CArchiveException>([&] { storing << 1; }));
    EXPECT_EQ(0u, file.GetLength());
}

TEST(Archive, RawBlocksPassThroughBuffersOfAnySize) {
    std::string block(10000, '\0');
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = char(i * 7 + i / 251);
    for (int bufferSize : {1, 128, 1000, 4096, 20000}) {
        const std::string stored = Stored(
            [&](CArchive& ar) {
                ar << BYTE(1);
                ar.Write(block.data(), 300);
                ar << 2.5;
                ar.Write(block.data() + 300, UINT(block.size() - 300));
            },
            bufferSize);
        ASSERT_EQ("\x01"s + block.substr(0, 300) + "\0\0\0\0\0\0\x04\x40"s + block.substr(300), stored)
            << bufferSize;

        LoadingArchive loader(stored, bufferSize);
        std::string loaded(block.size() + 50, '\0');
        BYTE byte;
        double number;
        loader.ar >> byte;
        EXPECT_EQ(300u, loader.ar.Read(loaded.data(), 300));
        loader.ar >> number;
        EXPECT_EQ(2.5, number);
        EXPECT_EQ(block.size() - 300, loader.ar.Read(loaded.data() + 300, UINT(loaded.size() - 300)));
        EXPECT_EQ(block, loaded.substr(0, block.size())) << bufferSize;
    }
}

TEST(Archive, ClosingALoadLeavesTheFileAtTheNextValue) {
    LoadingArchive loader("\x01\0\0\0next"s);
    int number;
    loader.ar >> number;
    loader.ar.Close();
    EXPECT_EQ(nullptr, loader.ar.GetFile());
    EXPECT_EQ(4u, loader.file.GetPosition());
}

TEST(Archive, FlushesIntoItsFileThroughABufferOfTheHosts) {
    BYTE buffer[200] = {}, little[100] = {};
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store, sizeof buffer, buffer);
        ar << BYTE(1) << BYTE(2);
        EXPECT_TRUE(file.GetLength() == 0 && buffer[1] == 2);
        ar.Flush();
        EXPECT_EQ(2u, file.GetLength());
        ar << BYTE(3);
    }
    {
        CArchive ar(&file, CArchive::store, sizeof little, little);
        ar.Write("abcde", 5);
        EXPECT_EQ(0, little[0]) << "too small to be used";
    }
    EXPECT_EQ("\1\2\3abcde", Content(file));
    file.Seek(1, CFile::begin);
    CArchive ar(&file, CArchive::load, 128);
    BYTE byte;
    ar >> byte;
    EXPECT_TRUE(byte == 2 && file.GetPosition() == 8);
    ar.Flush();
    EXPECT_EQ(2u, file.GetPosition()) << "what was not read yet is given back";
    ar >> byte;
    EXPECT_EQ(3, byte);
    wchar_t line[3] = L"xy";
    EXPECT_TRUE(ar.ReadString(line, 1) == line && line[0] == 0) << "no room for a character";
    EXPECT_EQ(line, ar.ReadString(line, 2));
    EXPECT_EQ(L'a' | L'b' << 8, line[0]);
    EXPECT_TRUE(Throws<CInvalidArgException>([] { CArchive(nullptr, CArchive::load); }));
}

TEST(Archive, DestructionFlushesUnlessToldNotTo) {
    for (UINT mode : {UINT(CArchive::store), UINT(CArchive::store | CArchive::bNoFlushOnDelete)}) {
        TemporaryFile temporary;
        CFile file(temporary.Path(), CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive);
        {
            CArchive ar(&file, mode);
            ar << 0x64636261;
        }
        file.Close();
        EXPECT_EQ(mode == CArchive::store ? "abcd" : "", temporary.Read());
    }
}

TEST(Archive, ARealFileCutInTheMiddleNamesItself) {
    TemporaryFile temporary("\xFF\xFE\xFF\x05\x61\x00"s);
    CFile file(temporary.Path(), CFile::modeRead | CFile::shareDenyWrite);
    CArchive ar(&file, CArchive::load | CArchive::bNoFlushOnDelete);
    CString text;
    try {
        ar >> text;
        FAIL() << "the text is not there";
    } catch (CArchiveException* e) {
        EXPECT_EQ(CArchiveException::endOfFile, e->m_cause);
        EXPECT_EQ(e->m_strFileName.CompareNoCase(temporary.Path()), 0);
        e->Delete();
    }
}

}  // namespace
