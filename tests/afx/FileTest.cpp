// CFile on real files, CMemFile and CSharedFile.
#include "Expect.h"
#include "support/TemporaryFile.h"

#include <afxadv.h>

#include <climits>

#include <numeric>
#include <vector>
#include <gtest/gtest.h>

namespace {

constexpr UINT kSave = CFile::modeCreate | CFile::shareExclusive | CFile::modeReadWrite;
constexpr UINT kLoad = CFile::modeRead | CFile::shareDenyWrite;

TEST(File, WritesSeeksCutsAndReads) {
    TemporaryFile temporary;
    CFile file;
    ASSERT_TRUE(file.Open(temporary.Path(), kSave));
    EXPECT_EQ(file.GetFilePath().CompareNoCase(temporary.Path()), 0);
    EXPECT_EQ(file.GetFileName(), temporary.Path().Mid(temporary.Path().ReverseFind(L'\\') + 1));
    file.Write("0123456789", 10);
    EXPECT_EQ(10u, file.GetPosition());
    EXPECT_EQ(7u, file.Seek(-3, CFile::end));
    char bytes[8] = {};
    EXPECT_EQ(3u, file.Read(bytes, sizeof(bytes)));
    EXPECT_STREQ("789", bytes);
    file.SetLength(4);
    EXPECT_EQ(4u, file.GetLength());
    file.Flush();
    file.Close();
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_EQ("0123", temporary.Read());

    ASSERT_TRUE(file.Open(temporary.Path(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite));
    EXPECT_EQ(4u, file.SeekToEnd());
    file.Write("x", 1);
    file.Close();
    EXPECT_EQ("0123x", temporary.Read());
    ASSERT_TRUE(file.Open(temporary.Path(), kSave));
    EXPECT_EQ(0u, file.GetLength());
}

TEST(File, ReportsWhyItDoesNotOpen) {
    TemporaryFile missing;
    CFileException reason;
    CFile file;
    EXPECT_FALSE(file.Open(missing.Path(), kLoad, &reason));
    EXPECT_EQ(CFileException::fileNotFound, reason.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, reason.m_lOsError);
    EXPECT_EQ(reason.m_strFileName.CompareNoCase(missing.Path()), 0);
    EXPECT_FALSE(file.Open(missing.Path() + L"\\below.cbf", kLoad, &reason));
    EXPECT_EQ(CFileException::badPath, reason.m_cause);
    EXPECT_FALSE(file.Open(nullptr, kLoad));
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile thrown(missing.Path(), kLoad); }));
}

TEST(File, ShareModesHoldAgainstOtherOpens) {
    TemporaryFile temporary("data");
    const struct {
        UINT first, second;
        bool opens;
    } cases[] = {
        {CFile::modeRead | CFile::shareExclusive, CFile::modeRead | CFile::shareDenyNone, false},
        {CFile::modeRead | CFile::shareDenyWrite, CFile::modeRead | CFile::shareDenyWrite, true},
        {CFile::modeRead | CFile::shareDenyWrite, CFile::modeWrite | CFile::shareDenyNone, false},
        {CFile::modeWrite | CFile::shareDenyRead, CFile::modeRead | CFile::shareDenyNone, false},
        {CFile::modeWrite | CFile::shareDenyNone, CFile::modeReadWrite | CFile::shareDenyNone, true},
    };
    for (const auto& c : cases) {
        CFile first(temporary.Path(), c.first), second;
        CFileException reason;
        EXPECT_EQ(c.opens, second.Open(temporary.Path(), c.second, &reason) != FALSE)
            << c.first << ' ' << c.second;
        EXPECT_EQ(c.opens ? CFileException::none : CFileException::sharingViolation, reason.m_cause);
    }
}

TEST(File, RefusesWhatItCannotDo) {
    TemporaryFile temporary("data");
    CFile file(temporary.Path(), kLoad);
    char byte;
    EXPECT_EQ(CFileException::accessDenied, CauseOf<CFileException>([&] { file.Write("x", 1); }));
    EXPECT_NE(-1, CauseOf<CFileException>([&] { file.SetLength(2); }));
    {
        CFile writer(TemporaryFile("more").Path(), CFile::modeCreate | CFile::modeWrite);
        EXPECT_EQ(CFileException::accessDenied, CauseOf<CFileException>([&] { writer.Read(&byte, 1); }));
        EXPECT_EQ(0u, writer.Read(&byte, 0));
    }
    EXPECT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] { file.Seek(-1, CFile::begin); }));
    file.Abort();
    file.Abort();
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.GetLength(); }));
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.Write("x", 1); }));
    EXPECT_EQ("data", temporary.Read());
    CFile::Remove(temporary.Path());
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile::Remove(temporary.Path()); }));
}

TEST(File, TakesPathsLongerThanUsual) {
    TemporaryFile temporary;
    const CString name(L'n', 200), prefix(L"\\\\?\\");
    const CString folders[] = {temporary.Path(), temporary.Path() + L"\\" + name};
    for (const CString& folder : folders)
        ASSERT_TRUE(::CreateDirectoryW(prefix + folder, nullptr));
    const CString path = folders[1] + L"\\" + name;
    CFile file(path, kSave);
    file.Write("x", 1);
    file.Close();
    EXPECT_TRUE(file.Open(path, kLoad));
    file.Close();
    CFile::Remove(path);
    EXPECT_TRUE(::RemoveDirectoryW(prefix + folders[1]) && ::RemoveDirectoryW(prefix + folders[0]));
}

TEST(File, AWriteTheDiskRefusesIsDiskFull) {
    CFile device;
    if (!device.Open(L"\\\\?\\unix\\dev\\full", CFile::modeWrite | CFile::shareDenyNone))
        GTEST_SKIP() << "no device here that is always full";
    EXPECT_EQ(CFileException::diskFull, CauseOf<CFileException>([&] { device.Write("x", 1); }));
}

TEST(MemFile, GrowsReadsAndFillsGapsWithZeros) {
    CMemFile file(16);
    std::vector<BYTE> block(100);
    std::iota(block.begin(), block.end(), BYTE(1));
    file.Write(block.data(), UINT(block.size()));
    file.Seek(103, CFile::begin);
    file.Write("x", 1);
    EXPECT_EQ(104u, file.GetLength());
    file.Seek(98, CFile::begin);
    BYTE bytes[10];
    ASSERT_EQ(6u, file.Read(bytes, sizeof(bytes)));
    EXPECT_EQ(std::vector<BYTE>({99, 100, 0, 0, 0, 'x'}), std::vector<BYTE>(bytes, bytes + 6));
    EXPECT_EQ(0u, file.Read(bytes, sizeof(bytes)));
    EXPECT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] { file.Seek(-1, CFile::begin); }));

    file.Seek(3, CFile::begin);
    file.SetLength(106);
    EXPECT_EQ(3u, file.GetPosition()) << "a longer file leaves the position where it is";
    file.SetLength(2);
    EXPECT_EQ(2u, file.GetPosition()) << "a shorter one takes it along";
    file.SetLength(4);
    ASSERT_EQ(2u, file.Read(bytes, sizeof(bytes)));
    EXPECT_TRUE(bytes[0] == 0 && bytes[1] == 0) << "what was cut off does not come back";

    BYTE fixed[4] = {1, 2, 3, 4};
    CMemFile attached(fixed, sizeof(fixed));
    EXPECT_EQ(4u, attached.GetLength());
    attached.SeekToEnd();
    EXPECT_TRUE(Throws<CMemoryException>([&] { attached.Write("x", 1); }));
}

/// Notes how much memory it takes.
class GrowingFile : public CMemFile {
public:
    using CMemFile::CMemFile;
    ~GrowingFile() override { GrowingFile::Close(); }
    std::vector<size_t> sizes;
    bool refuses = false;

protected:
    BYTE* Alloc(SIZE_T size) override {
        return sizes.push_back(size), refuses ? nullptr : CMemFile::Alloc(size);
    }
    BYTE* Realloc(BYTE* memory, SIZE_T size) override {
        return sizes.push_back(size), refuses ? nullptr : CMemFile::Realloc(memory, size);
    }
};

TEST(MemFile, GrowsByHalfInWholeSteps) {
    GrowingFile file(16);
    for (ULONGLONG length : {0, 1, 16, 17, 32, 33, 60, 100})
        file.SetLength(length);
    EXPECT_EQ(std::vector<size_t>({16, 32, 48, 80, 128}), file.sizes);
    file.refuses = true;
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(129); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(ULONGLONG(PTRDIFF_MAX) / 2 + 1); }));
    EXPECT_EQ(100u, file.GetLength());
    const std::pair<ULONGLONG, ULONGLONG> seeks[] = {{3, file.Seek(3, CFile::begin)},
                                                     {1, file.Seek(-2, CFile::current)},
                                                     {93, file.Seek(-7, CFile::end)},
                                                     {0, file.Seek(-100, CFile::end)},
                                                     {100, file.Seek(0, CFile::end)}};
    for (const auto& [expected, place] : seeks)
        EXPECT_EQ(expected, place);
    char byte = 'x';
    EXPECT_EQ(0u, file.Read(&byte, 1));
    file.Write(&byte, 0);
    for (auto [distance, from] :
         {std::pair{-101LL, UINT(CFile::end)}, {0LL, 3u}, {LLONG_MAX, UINT(CFile::end)}})
        EXPECT_EQ(CFileException::badSeek,
                  CauseOf<CFileException>([&file, d = distance, f = from] { file.Seek(d, f); }));
    EXPECT_TRUE(file.GetPosition() == 100 && file.GetLength() == 100);
    BYTE own[8] = {1, 2, 3};
    file.Attach(own, 8, 16);
    EXPECT_TRUE(file.GetLength() == 0 && file.GetPosition() == 0);
    file.Write("abc", 3);
    EXPECT_EQ('a', own[0]);
    EXPECT_TRUE(file.Detach() == own && file.GetLength() == 0 && file.Detach() == nullptr);
    file.Flush();
    file.Abort();
}

TEST(SharedFile, MayGrowWhatItIsGiven) {
    HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, 100);
    CSharedFile file(GMEM_MOVEABLE, 64);
    file.SetHandle(memory);
    EXPECT_EQ(100u, file.GetLength());
    file.SeekToEnd();
    file.Write("x", 1);
    memory = file.Detach();
    EXPECT_EQ(128u, ::GlobalSize(memory));
    file.SetHandle(memory);
    file.Close();
    EXPECT_EQ(0u, file.GetLength()) << "freed with it";
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { file.SetHandle(nullptr); }));
    CFile renamed;
    TemporaryFile from("text"), to;
    CFile::Rename(from.Path(), to.Path());
    EXPECT_EQ("text", to.Read());
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile::Rename(from.Path(), to.Path()); }));
    renamed.SetFilePath(L"a/b");
    EXPECT_TRUE(renamed.GetFilePath() == L"a/b" && renamed.GetFileName() == L"b");
    const HANDLE handle = ::CreateFile(to.Path(), GENERIC_READ, 7, nullptr, OPEN_EXISTING, 0, nullptr);
    { CFile given(handle); }
    EXPECT_FALSE(::CloseHandle(handle)) << "closed with its object";
}

TEST(SharedFile, HandsItsGlobalMemoryOnAndTakesItBack) {
    CSharedFile file;
    std::vector<BYTE> block(5000, 7);
    for (int i = 0; i < 20; ++i)
        file.Write(block.data(), UINT(block.size()));
    HGLOBAL memory = file.Detach();
    ASSERT_NE(nullptr, memory);
    EXPECT_EQ(0u, file.GetLength());
    EXPECT_EQ(nullptr, file.Detach());
    EXPECT_EQ(0u, ::GlobalFlags(memory) & GMEM_LOCKCOUNT);
    // Whole steps of 4096 bytes, the rest of the last one zero.
    ASSERT_EQ(25u * 4096, ::GlobalSize(memory));

    CSharedFile reader;
    reader.SetHandle(memory, FALSE);
    EXPECT_EQ(25u * 4096, reader.GetLength());
    BYTE bytes[2];
    reader.Seek(99999, CFile::begin);
    ASSERT_EQ(2u, reader.Read(bytes, 2));
    EXPECT_EQ(7, bytes[0]);
    EXPECT_EQ(0, bytes[1]);
    reader.SeekToEnd();
    EXPECT_TRUE(Throws<CMemoryException>([&] { reader.Write("x", 1); }));
    EXPECT_EQ(1u, ::GlobalFlags(memory) & GMEM_LOCKCOUNT);
    reader.Close();
    EXPECT_EQ(0u, ::GlobalFlags(memory) & GMEM_LOCKCOUNT);
    EXPECT_EQ(nullptr, ::GlobalFree(memory));
}

}  // namespace
