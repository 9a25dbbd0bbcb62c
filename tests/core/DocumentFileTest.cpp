#include "canvas/UICanvas.h"
#include "core/UIDocument.h"
#include "core/UIObject.h"
#include "stress/support/Imports.h"
#include "support/MessageBoxAnswerer.h"
#include "support/TemporaryFile.h"

#include <sddl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

using namespace Lumo;

namespace {

class DocumentFileTest : public ::testing::Test {
protected:
    DocumentFileTest() { m_document->AppendCanvas(m_canvas.get()); }
    ~DocumentFileTest() override { m_document->Release(); }

    std::vector<uint8_t> Bytes() {
        CFile file(m_path, CFile::modeRead | CFile::shareDenyNone);
        std::vector<uint8_t> bytes(static_cast<size_t>(file.GetLength()));
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    // Loads into a page of two objects, as a host does that rebuilds its pages first.
    class Rebuilding : public CUIDocument {
    public:
        explicit Rebuilding(CUICanvas* canvas) : m_canvas(canvas) {}
        void Serialize(CArchive& ar) override {
            if (ar.IsLoading()) {
                AppendCanvas(m_canvas);
                for (int i = 0; i < 2; ++i)
                    CreateObject(DS_RECTANGLE, CRect());
            }
            CUIDocument::Serialize(ar);
        }

    private:
        CUICanvas* m_canvas;
    };

    std::unique_ptr<CUICanvas> m_canvas = std::make_unique<CUICanvas>();
    CUIDocument* m_document = new CUIDocument;
    TemporaryFile m_file;
    CString m_path = m_file.Path();
};

TEST_F(DocumentFileTest, AnEmptyDocumentMakesAnEmptyFile) {
    EXPECT_EQ(m_document->Save(m_path), 1);
    EXPECT_TRUE(Bytes().empty());
    EXPECT_EQ(m_document->Load(m_path), 1);
    EXPECT_TRUE(m_document->GetCanvasList().empty());
}

TEST_F(DocumentFileTest, RecordsStandBackToBackInListOrder) {
    m_document->CreateObject(DS_ELLIPSE, CRect(0, 0, 5, 5))->SetShapeName(CString(L"Rect"));
    ASSERT_EQ(m_document->Save(m_path), 1);
    const std::vector<uint8_t> one = Bytes();
    const std::vector<uint8_t> start = {4,   0, 0,   0, 0xFF, 0xFE, 0xFF, 4, 'R', 0,
                                        'e', 0, 'c', 0, 't',  0,    1,    0, 0,   0};
    ASSERT_GT(one.size(), start.size());
    EXPECT_EQ(std::vector<uint8_t>(one.begin(), one.begin() + start.size()), start);

    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    m_document->GetCanvasObjectList()->push_front(nullptr);
    ASSERT_EQ(m_document->Save(m_path), 1);
    const std::vector<uint8_t> two = Bytes();
    EXPECT_TRUE(std::equal(one.begin(), one.end(), two.begin()));
    EXPECT_EQ(two[one.size()], 3);
}

TEST_F(DocumentFileTest, AFileThatCannotBeOpenedChangesNothing) {
    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    CString missing(L"Z:\\no\\such\\folder\\page.cbf");
    MessageBoxAnswerer boxes;
    EXPECT_EQ(m_document->Load(missing), 0);
    EXPECT_EQ(m_document->Save(missing), 0);
    EXPECT_EQ(m_document->GetCanvasObjectList()->size(), 1u);
    EXPECT_TRUE(boxes.texts.empty());
}

TEST_F(DocumentFileTest, ATruncatedFileIsReportedAndLeavesWhatWasRead) {
    for (int i = 0; i < 2; ++i)
        m_document->CreateObject(DS_RECTANGLE, CRect(10, 10, 20 + i, 20))->SetText(CString(L"라벨"));
    ASSERT_EQ(m_document->Save(m_path), 1);
    auto canvas = std::make_unique<CUICanvas>();
    auto* loaded = new Rebuilding(canvas.get());
    EXPECT_EQ(loaded->Load(m_path), 1);
    EXPECT_STREQ(loaded->GetCanvasObjectList()->back()->GetText(), L"라벨");
    EXPECT_EQ(loaded->GetCanvasObjectList()->back()->GetSize().Width, 11.0f);
    {
        CFile file(m_path, CFile::modeReadWrite);
        file.SetLength(file.GetLength() - 1);
    }
    MessageBoxAnswerer boxes;
    EXPECT_EQ(loaded->Load(m_path), 0);
    ASSERT_EQ(boxes.texts.size(), 1u);
    CString start;
    start.Format(L"파일(%s) 형식을 알수 없습니다.\n\n", static_cast<LPCTSTR>(m_path));
    EXPECT_EQ(boxes.texts[0].Find(start), 0);
    EXPECT_GT(boxes.texts[0].GetLength(), start.GetLength());
    loaded->Release();
}

// Stores more than a buffer, then fails.
class Breaking : public CUIDocument {
public:
    void Serialize(CArchive& ar) override {
        for (int i = 0; i < 10000; ++i)
            ar << i;
        AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, ar.GetFile()->GetFilePath());
    }
};

TEST_F(DocumentFileTest, AFailedSaveIsReportedAndLeavesTheOldFile) {
    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    ASSERT_EQ(m_document->Save(m_path), 1);
    const std::vector<uint8_t> before = Bytes();
    auto* breaking = new Breaking;
    MessageBoxAnswerer boxes;
    bool isFree = false;
    boxes.onBox = [&] { isFree = CFile().Open(m_path, CFile::modeReadWrite | CFile::shareExclusive); };
    ::SetCurrentDirectory(m_path.Left(m_path.ReverseFind(L'\\')));
    CString name = m_path.Mid(m_path.ReverseFind(L'\\') + 1);
    EXPECT_EQ(breaking->Save(name), 0);
    EXPECT_TRUE(isFree) << "held while the message shows";
    ASSERT_EQ(boxes.texts.size(), 1u);
    CString text;
    text.Format(
        L"파일(%s) 쓰기중 오류가 발생하였습니다.\n\n\"%s\" could not be written because the disk is full.",
        name.GetString(), m_path.GetString());
    EXPECT_STREQ(boxes.texts[0], text);
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(::GetFileAttributes(m_path + L".saving"), INVALID_FILE_ATTRIBUTES);

    CString fresh = m_path + L".new";
    EXPECT_EQ(breaking->Save(fresh), 0);
    EXPECT_EQ(::GetFileAttributes(fresh), INVALID_FILE_ATTRIBUTES);
    breaking->Release();
}

TEST_F(DocumentFileTest, TargetsThatCannotBeWrittenAreRefusedQuietly) {
    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    ASSERT_EQ(m_document->Save(m_path), 1);
    const std::vector<uint8_t> before = Bytes();
    MessageBoxAnswerer boxes;
    ::SetFileAttributes(m_path, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(m_document->Save(m_path), 0);
    ::SetFileAttributes(m_path, FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Bytes(), before);
    CString folder = m_path + L".folder";
    ::CreateDirectory(folder, nullptr);
    for (CString target :
         {folder, folder + L"\\no\\page.cbf", folder + L"\\" + CString(L'n', 300), CString()}) {
        EXPECT_EQ(m_document->Save(target), 0);
        EXPECT_EQ(m_document->Load(target), 0);
    }
    EXPECT_TRUE(::RemoveDirectory(folder)) << "something was left in it";
    EXPECT_TRUE(boxes.texts.empty());
    EXPECT_EQ(m_document->GetCanvasObjectList()->size(), 1u);
}

CString g_closedFolder;

HANDLE WINAPI MakesNothing(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                           DWORD creation, DWORD attributes, HANDLE pattern) {
    if (creation != CREATE_NEW || CString(path).Find(g_closedFolder) < 0)
        return ::CreateFileW(path, access, share, security, creation, attributes, pattern);
    ::SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

BOOL WINAPI MovesNothing(LPCWSTR, LPCWSTR, DWORD) {
    ::SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

TEST_F(DocumentFileTest, WhatCannotBeReplacedIsWrittenOver) {
    constexpr LPCWSTR kLibrary = L"TesselCtrls.dll";
    const CString plain = m_path, folder = m_path + L".folder";
    MessageBoxAnswerer boxes;
    g_closedFolder = folder.Mid(folder.ReverseFind(L'\\'));
    ::CreateDirectory(folder, nullptr);
    for (const bool moves : {true, false}) {
        m_path = folder + L"\\page.cbf";
        for (int i = 0; i < 400; ++i)  // more than a block, and less again the second time
            m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, i));
        ASSERT_EQ(m_document->Save(m_path), 1);
        m_document->ClearObject(m_document->GetCanvasObjectList());
        m_document->CreateObject(DS_ELLIPSE, CRect(0, 0, 5, 5));
        if (moves)
            ASSERT_TRUE(ReplaceImport(kLibrary, "CreateFileW", &MakesNothing));
        else
            ASSERT_TRUE(ReplaceImport(kLibrary, "MoveFileExW", &MovesNothing));
        EXPECT_EQ(m_document->Save(m_path), 1) << moves;
        CString fresh = folder + L"\\new.cbf";
        EXPECT_EQ(m_document->Save(fresh), 0) << "there is nothing to write over";
        ReplaceImport(kLibrary, "CreateFileW", &::CreateFileW);
        ReplaceImport(kLibrary, "MoveFileExW", &::MoveFileExW);
        const std::vector<uint8_t> over = Bytes();
        ::DeleteFile(m_path);
        m_path = plain;
        ASSERT_EQ(m_document->Save(m_path), 1);
        EXPECT_EQ(over, Bytes()) << moves;
        m_document->ClearObject(m_document->GetCanvasObjectList());
    }
    EXPECT_TRUE(::RemoveDirectory(folder)) << "something was left in it";
}

TEST_F(DocumentFileTest, WhatLiesBesideStaysAsItIs) {
    const CString besides[] = {m_path + L".saving", m_path + L".2.saving", m_path + L".before"};
    for (const CString& beside : besides)
        CFile(beside, CFile::modeCreate | CFile::modeWrite).SetLength(7);
    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    EXPECT_EQ(m_document->Save(m_path), 1);
    EXPECT_FALSE(Bytes().empty());
    EXPECT_EQ(::GetFileAttributes(m_path + L".3.saving"), INVALID_FILE_ATTRIBUTES);
    for (const CString& beside : besides) {
        EXPECT_EQ(CFile(beside, CFile::modeRead).GetLength(), 7u);
        ::DeleteFile(beside);
    }
}

TEST_F(DocumentFileTest, NamesMayBeAsLongAsTheSystemTakesThem) {
    const CString folder = m_path.Left(m_path.ReverseFind(L'\\') + 1);
    for (int length : {247, 255}) {
        m_path = L"\\\\?\\" + folder + CString(L'n', length);
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(m_document->Save(m_path), 1) << length;
            EXPECT_TRUE(Bytes().empty() == (round == 0));
            m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
        }
        m_document->ClearObject(m_document->GetCanvasObjectList());
        EXPECT_TRUE(::DeleteFile(m_path));
    }
}

std::vector<uint8_t> AccessTo(const CString& path) {
    DWORD size = 0;
    ::GetFileSecurity(path, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<uint8_t> access(size);
    EXPECT_TRUE(::GetFileSecurity(path, DACL_SECURITY_INFORMATION, access.data(), size, &size));
    return access;
}

TEST_F(DocumentFileTest, TheNewFileTakesOverAttributesAndAccessRights) {
    ASSERT_EQ(m_document->Save(m_path), 1);
    const std::vector<uint8_t> usual = AccessTo(m_path);
    PSECURITY_DESCRIPTOR onlyOwner = nullptr;
    ASSERT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptor(L"D:P(A;;FA;;;BA)", SDDL_REVISION_1,
                                                                      &onlyOwner, nullptr));
    EXPECT_TRUE(::SetFileSecurity(m_path, DACL_SECURITY_INFORMATION, onlyOwner));
    ::LocalFree(onlyOwner);
    ::SetFileAttributes(m_path, FILE_ATTRIBUTE_HIDDEN);
    const std::vector<uint8_t> access = AccessTo(m_path);
    EXPECT_NE(access, usual);
    m_document->CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5));
    EXPECT_EQ(m_document->Save(m_path), 1);
    EXPECT_FALSE(Bytes().empty());
    EXPECT_NE(::GetFileAttributes(m_path) & FILE_ATTRIBUTE_HIDDEN, 0u);
    EXPECT_EQ(AccessTo(m_path), access);
}

TEST_F(DocumentFileTest, AFileHeldByAnotherIsNotTouched) {
    ASSERT_EQ(m_document->Save(m_path), 1);
    CFile held(m_path, CFile::modeReadWrite | CFile::shareExclusive);
    EXPECT_EQ(m_document->Save(m_path), 0);
    EXPECT_EQ(m_document->Load(m_path), 0);
    EXPECT_EQ(m_document->GetCanvasList().size(), 1u);
}

}  // namespace
