// Saving to a disk that is full, and to one that takes no writing. The environment names the folders:
// TESSEL_SMALL_DISK a small file system of its own, TESSEL_SEALED_DISK one that is mounted for reading, with
// the files page.cbf and bound.dat, of which the second can be written, TESSEL_ODD_DISK one in which
// bound.dat can be written, but not replaced (it lies on the small disk), and link.dat leads to
// real\page.dat.
#include "studio/StudioFixture.h"

#include "studio/document/Autosave.h"
#include "studio/document/PageImage.h"
#include "studio/document/SymbolLibrary.h"
#include "support/MessageBoxAnswerer.h"

#include <Ini.h>

#include <cstdlib>

using namespace Studio;

namespace {

using Bytes = std::vector<BYTE>;

Bytes Read(const CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

}  // namespace

class Disk : public StudioFixture {
protected:
    explicit Disk(LPCWSTR variable) : m_folder(::_wgetenv(variable)) {}

    void SetUp() override {
        ASSERT_FALSE(m_folder.IsEmpty()) << "no disk to test on";
        StudioFixture::SetUp();
    }

    void Draw(int count) {
        for (int i = 0; i < count; ++i)
            Add(Lumo::DS_RECTANGLE, static_cast<float>(i), 10, 50, 50)->SetText(L"Level of channel");
    }

    CString Path(LPCWSTR name) const { return m_folder + L"\\" + name; }

    // Names of a folder, but for what fills the disk.
    static CString Listing(const CString& folder) {
        CString names;
        WIN32_FIND_DATA data;
        const HANDLE search = ::FindFirstFile(folder + L"\\*", &data);
        if (search == INVALID_HANDLE_VALUE)
            return names;
        do {
            const CString name = data.cFileName;
            if (name.GetAt(0) != L'.' && name != L"filler")
                names += name + L" ";
        } while (::FindNextFile(search, &data));
        ::FindClose(search);
        return names;
    }

    CString Listing() const { return Listing(m_folder); }

    const CString m_folder;
    const CString m_odd = ::_wgetenv(L"TESSEL_ODD_DISK");
};

// A document of the library with so many rectangles.
class Plain {
public:
    explicit Plain(int objects) {
        m_document->AppendCanvas(&m_canvas);
        for (int i = 0; i < objects; ++i)
            m_document->CreateObject(Lumo::DS_RECTANGLE, CRect(2, 3, 5 + i, 9));
    }
    ~Plain() { m_document->Release(); }
    int Save(CString path) { return m_document->Save(path); }

private:
    Lumo::CUICanvas m_canvas;
    Lumo::CUIDocument* m_document = new Lumo::CUIDocument;
};

class FullDisk : public Disk {
protected:
    FullDisk() : Disk(L"TESSEL_SMALL_DISK") {}

    void TearDown() override {
        ::DeleteFile(Path(L"filler"));
        StudioFixture::TearDown();
    }

    // Leaves about so many bytes of the disk.
    void FillButFor(ULONGLONG room) {
        ::DeleteFile(Path(L"filler"));
        ULARGE_INTEGER available = {};
        ASSERT_TRUE(::GetDiskFreeSpaceEx(m_folder, &available, nullptr, nullptr));
        ASSERT_LT(available.QuadPart, 4u << 20) << "not the small disk";
        CFile filler(Path(L"filler"), CFile::modeCreate | CFile::modeWrite);
        const Bytes block(1024, 'x');
        try {
            for (ULONGLONG size = 0; size + room < available.QuadPart; size += block.size())
                filler.Write(block.data(), static_cast<UINT>(block.size()));
        } catch (CFileException* e) {
            e->Delete();
        }
    }

    void RemoveAll(std::initializer_list<LPCWSTR> names) {
        for (LPCWSTR name : names)
            ::DeleteFile(Path(name));
    }
};

constexpr ULONGLONG kRooms[] = {0, 4096, 20000};

TEST_F(FullDisk, StudioKeepsTheOldFileAndTheChanges) {
    CString file = Path(L"page.cbf");
    Draw(5);
    ASSERT_TRUE(m_document->Save(file)) << m_document->GetError().GetString();
    const Bytes before = Read(file);
    Draw(150);
    m_document->SetModifiedFlag(1);
    const CString listing = Listing();
    for (ULONGLONG room : kRooms) {
        SCOPED_TRACE(room);
        FillButFor(room);
        CString other = Path(L"other.cbf");
        for (CString target : {file, other}) {
            EXPECT_EQ(0, m_document->Save(target));
            EXPECT_EQ(CString(GetText(Text::kFaultDisk)), m_document->GetReason());
            EXPECT_EQ(1, m_document->GetModifiedFlag());
            EXPECT_EQ(file, m_document->GetPath());
        }
        EXPECT_EQ(before, Read(file));
        EXPECT_EQ(listing, Listing());
    }
    ::DeleteFile(Path(L"filler"));
    EXPECT_TRUE(m_document->Save(file)) << "there is room again";
    ASSERT_TRUE(m_document->Load(file));
    EXPECT_EQ(155u, Objects().size());
    RemoveAll({L"page.cbf"});
}

TEST_F(FullDisk, TheBackupStaysAsItWas) {
    CString file = Path(L"page.cbf");
    ASSERT_TRUE(m_document->Save(file));
    Autosave autosave(*m_document, L"");
    Draw(5);
    m_document->SetModifiedFlag(1);
    ASSERT_TRUE(autosave.Update());
    const Bytes before = Read(Autosave::PathFor(file));
    const CString listing = Listing();
    Draw(150);
    for (ULONGLONG room : kRooms) {
        FillButFor(room);
        EXPECT_FALSE(autosave.Update());
        EXPECT_EQ(CString(GetText(Text::kFaultDisk)), autosave.GetReason());
        EXPECT_EQ(before, Read(Autosave::PathFor(file)));
        EXPECT_EQ(listing, Listing());
    }
    autosave.Discard();
    RemoveAll({L"page.cbf"});
}

TEST_F(FullDisk, PicturesAndSymbolsAreWholeOrNotThere) {
    const CString picture = Path(L"page.png");
    Draw(1);
    WritePagePicture(Objects(), picture);
    const Bytes before = Read(picture);
    const CString listing = Listing();
    Draw(150);
    FillButFor(0);
    CString reason;
    for (const CString& target : {picture, Path(L"other.png")}) {
        EXPECT_FALSE(AttemptFile([&] { WritePagePicture(Objects(), target); }, reason));
        EXPECT_EQ(CString(GetText(Text::kFaultDisk)), reason);
    }
    EXPECT_EQ(before, Read(picture));
    EXPECT_EQ(listing, Listing());

    FillButFor(20000);
    EXPECT_FALSE(AttemptFile([&] { WriteStandardSymbols(m_folder); }, reason));
    EXPECT_EQ(CString(GetText(Text::kFaultDisk)), reason);
    const std::vector<CString> symbols = FindSymbols(m_folder);
    EXPECT_FALSE(symbols.empty());
    for (const CString& symbol : symbols) {
        EXPECT_TRUE(AttemptFile([&] { LoadSymbol(symbol); }, reason)) << reason.GetString();
        ::DeleteFile(symbol);
    }
    EXPECT_EQ(listing, Listing());
    RemoveAll({L"page.png"});
}

TEST_F(FullDisk, TheLibraryReportsAndKeepsTheOldFile) {
    const CString file = Path(L"page.dat");
    ASSERT_EQ(1, Plain(1).Save(file));
    const Bytes before = Read(file);
    const CString listing = Listing();
    for (ULONGLONG room : kRooms) {
        FillButFor(room);
        for (const CString& target : {file, Path(L"other.dat")}) {
            MessageBoxAnswerer boxes;
            EXPECT_EQ(0, Plain(200).Save(target));
            ASSERT_EQ(1u, boxes.texts.size());
            CString text;
            text.Format(
                L"파일(%s) 쓰기중 오류가 발생하였습니다.\n\n\"%s\" could not be written because the disk is "
                L"full.",
                target.GetString(), target.GetString());
            EXPECT_EQ(text, boxes.texts[0]);
        }
        EXPECT_EQ(before, Read(file));
        EXPECT_EQ(listing, Listing());
    }
    RemoveAll({L"page.dat"});
}

TEST_F(FullDisk, WhatCannotBeReplacedIsWrittenOverOrKept) {
    const CString file = m_odd + L"\\bound.dat";
    const CString listing = Listing(m_odd);
    ASSERT_EQ(1, Plain(5).Save(file));
    const Bytes before = Read(file);
    EXPECT_FALSE(before.empty());
    FillButFor(0);
    {
        MessageBoxAnswerer boxes;
        EXPECT_EQ(0, Plain(200).Save(file));
        EXPECT_EQ(1u, boxes.texts.size());
    }
    EXPECT_EQ(before, Read(file));
    ::DeleteFile(Path(L"filler"));
    EXPECT_EQ(1, Plain(2).Save(file));
    EXPECT_LT(Read(file).size(), before.size());
    EXPECT_EQ(listing, Listing(m_odd)) << Listing(m_odd).GetString();
}

TEST_F(FullDisk, ALinkIsWrittenThrough) {
    ASSERT_EQ(1, Plain(5).Save(m_odd + L"\\link.dat"));
    EXPECT_FALSE(Read(m_odd + L"\\real\\page.dat").empty());
    EXPECT_EQ(CString(L"page.dat "), Listing(m_odd + L"\\real"));
}

TEST_F(FullDisk, SettingsKeepTheirValues) {
    CIni settings(Path(L"settings.ini"));
    ASSERT_TRUE(settings.SetString(L"Page", L"Name", L"first"));
    const CString listing = Listing();
    FillButFor(0);
    EXPECT_FALSE(settings.SetString(L"Page", L"Name", CString(L'x', 10000)));
    EXPECT_EQ(CString(L"first"), settings.GetString(L"Page", L"Name", L""));
    EXPECT_EQ(listing, Listing());
    RemoveAll({L"settings.ini"});
}

class SealedDisk : public Disk {
protected:
    SealedDisk() : Disk(L"TESSEL_SEALED_DISK") {}
};

TEST_F(SealedDisk, AFileThatCanBeWrittenIsWrittenOver) {
    const CString file = Path(L"bound.dat");
    const CString listing = Listing();
    for (int objects : {5, 2}) {
        ASSERT_EQ(1, Plain(objects).Save(file));
        EXPECT_EQ(1, Plain(objects).Save(m_odd + L"\\real\\page.dat"));
        EXPECT_EQ(Read(m_odd + L"\\real\\page.dat"), Read(file));
    }
    EXPECT_EQ(listing, Listing());
}

TEST_F(SealedDisk, FilesAreReadAndNothingIsLost) {
    CString file = Path(L"page.cbf");
    ASSERT_TRUE(m_document->Load(file)) << m_document->GetError().GetString();
    const size_t count = Objects().size();
    Draw(1);
    m_document->SetModifiedFlag(1);
    Autosave autosave(*m_document, L"");
    CString reason;
    for (CString target : {file, Path(L"other.cbf")}) {
        EXPECT_EQ(0, m_document->Save(target));
        EXPECT_EQ(CString(GetText(Text::kFaultAccess)), m_document->GetReason());
        EXPECT_FALSE(AttemptFile([&] { WritePagePicture(Objects(), target); }, reason));
        EXPECT_EQ(CString(GetText(Text::kFaultAccess)), reason);
        auto* document = new Lumo::CUIDocument;
        EXPECT_EQ(0, document->Save(target));
        document->Release();
    }
    EXPECT_FALSE(autosave.Update());
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    EXPECT_EQ(count + 1, Objects().size());
}
