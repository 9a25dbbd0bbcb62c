// Faults of the machine: targets that cannot be written, a clipboard that another program holds, pictures and
// fonts that are not what they should be. Nothing is lost, and the user is told.
#include "studio/StudioFixture.h"

#include "studio/document/Autosave.h"
#include "studio/document/PageImage.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"
#include "studio/editing/PictureFill.h"
#include "support/ClipboardHolder.h"

#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <gtest/gtest.h>

using namespace Studio;

namespace {

void Write(const CString& path, const std::vector<BYTE>& bytes) {
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

std::vector<BYTE> Read(const CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyNone);
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

bool IsThere(const CString& path) {
    return ::GetFileAttributes(path) != INVALID_FILE_ATTRIBUTES;
}

// The header of a bitmap file of the size, and no more than a few of its pixels.
std::vector<BYTE> BitmapHeader(LONG width, LONG height) {
    BITMAPFILEHEADER file = {};
    BITMAPINFOHEADER info = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof file + sizeof info;
    info.biSize = sizeof info;
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 32;
    std::vector<BYTE> bytes(file.bfOffBits + 64);
    std::memcpy(bytes.data(), &file, sizeof file);
    std::memcpy(bytes.data() + sizeof file, &info, sizeof info);
    return bytes;
}

}  // namespace

class FaultTest : public StudioFixture {
protected:
    void SetUp() override {
        StudioFixture::SetUp();
        Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
        m_file = FileName(L"fault.cbf");
        ASSERT_TRUE(m_document->Save(m_file));
        m_before = Read(m_file);
        Add(Lumo::DS_ELLIPSE, 80, 10, 50, 50);
        m_document->SetModifiedFlag(1);
    }

    // Neither the document nor a picture goes to a target, and nothing stays beside it.
    void ExpectRefused(CString target, Text reason) {
        SCOPED_TRACE(target.GetString());
        EXPECT_EQ(0, m_document->Save(target));
        EXPECT_EQ(CString(GetText(reason)), m_document->GetReason());
        EXPECT_EQ(1, m_document->GetModifiedFlag());
        CString why;
        EXPECT_FALSE(AttemptFile([&] { WritePagePicture(Objects(), target); }, why));
        EXPECT_EQ(CString(GetText(reason)), why);
        EXPECT_FALSE(IsThere(target + L".saving"));
    }

    CString m_file;
    std::vector<BYTE> m_before;
};

TEST_F(FaultTest, TargetsThatCannotBeWrittenStayAsTheyAre) {
    ::SetFileAttributes(m_file, FILE_ATTRIBUTE_READONLY);
    ExpectRefused(m_file, Text::kFaultAccess);
    ::SetFileAttributes(m_file, FILE_ATTRIBUTE_NORMAL);
    {
        CFile held(m_file, CFile::modeRead | CFile::shareExclusive);
        ExpectRefused(m_file, Text::kFaultAccess);
        CString path = m_file;
        EXPECT_EQ(0, m_document->Load(path));
        EXPECT_EQ(CString(GetText(Text::kFaultAccess)), m_document->GetReason());
    }
    EXPECT_EQ(m_before, Read(m_file));

    CString folder = FileName(L"folder.cbf");
    ASSERT_TRUE(::CreateDirectory(folder, nullptr));
    ExpectRefused(folder, Text::kFaultAccess);
    EXPECT_EQ(0, m_document->Load(folder));
    EXPECT_EQ(CString(GetText(Text::kFaultAccess)), m_document->GetReason());
    EXPECT_EQ(2u, Objects().size());
    ::RemoveDirectory(folder);
    ExpectRefused(folder + L"\\page.cbf", Text::kFaultMissing);
    ExpectRefused(FileName(CString(L'n', 300) + L".cbf"), Text::kFaultName);
    ExpectRefused(FileName(L"page?.cbf"), Text::kFaultName);
}

TEST_F(FaultTest, PathsLongerThanUsualAreWrittenAndRead) {
    CString folder = FileName(L"deep");
    std::vector<CString> folders;
    while (folder.GetLength() < 400) {
        ASSERT_TRUE(::CreateDirectory(L"\\\\?\\" + folder, nullptr));
        folders.push_back(L"\\\\?\\" + folder);
        folder += L"\\" + CString(L'd', 60);
    }
    CString path = folder.Left(folder.ReverseFind(L'\\')) + L"\\page.cbf";
    ASSERT_GT(path.GetLength(), MAX_PATH);
    EXPECT_TRUE(m_document->Save(path)) << m_document->GetError().GetString();
    EXPECT_TRUE(m_document->Save(path)) << "over the old one";
    EXPECT_TRUE(m_document->Load(path)) << m_document->GetError().GetString();
    EXPECT_EQ(2u, Objects().size());
    ::DeleteFile(L"\\\\?\\" + path);
    for (auto it = folders.rbegin(); it != folders.rend(); ++it)
        EXPECT_TRUE(::RemoveDirectory(*it));
}

TEST_F(FaultTest, ABackupThatFailsSaysWhyAndKeepsTheOlderOne) {
    Autosave autosave(*m_document, L"");
    ASSERT_TRUE(autosave.Update());
    const CString copy = Autosave::PathFor(m_file);
    const auto before = Read(copy);
    Add(Lumo::DS_ELLIPSE, 80, 80, 50, 50);
    {
        CFile held(copy, CFile::modeRead | CFile::shareDenyNone);
        EXPECT_FALSE(autosave.Update());
        EXPECT_EQ(CString(GetText(Text::kFaultAccess)), autosave.GetReason());
        EXPECT_EQ(before, Read(copy));
    }
    EXPECT_FALSE(Autosave::IsLeftBehind(copy)) << "still ours";
    EXPECT_TRUE(autosave.Update());
    EXPECT_NE(before, Read(copy));
    autosave.Discard();
    EXPECT_FALSE(IsThere(copy));
    // One that cannot be read is kept for whoever can, and is not offered again.
    Write(copy, {'n', 'o'});
    const CString aside = Autosave::PutAside(copy);
    EXPECT_FALSE(Autosave::IsLeftBehind(copy));
    EXPECT_EQ(2u, Read(aside).size());
    ::DeleteFile(aside);
}

TEST_F(FaultTest, AClipboardThatIsHeldLosesNothing) {
    SelectAll(Page());
    ASSERT_TRUE(CopySelection(Page()));
    const size_t count = Objects().size();
    {
        const ClipboardHolder holder;
        EXPECT_FALSE(CopySelection(Page()));
        EXPECT_FALSE(CutSelection(Page()));
        EXPECT_FALSE(PasteObjects(Page()));
        EXPECT_EQ(count, Objects().size());
        EXPECT_EQ(count, Page().m_selection.size());
    }
    EXPECT_TRUE(PasteObjects(Page()));
    EXPECT_EQ(2 * count, Objects().size()) << "what was copied before is still there";
}

TEST_F(FaultTest, FilesThatHoldNoPictureShowACrossedFrame) {
    std::vector<BYTE> cut = BitmapHeader(4, 4);
    cut.resize(30);
    const std::vector<BYTE> cases[] = {{},
                                       {'B', 'M'},
                                       std::vector<BYTE>(5000, 'x'),
                                       cut,
                                       BitmapHeader(0, 0),
                                       BitmapHeader(30000, 30000),
                                       BitmapHeader(0x7FFFFFFF, 0x7FFFFFFF),
                                       BitmapHeader(-5, 0x40000000)};
    for (size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(i);
        // A name of its own: pictures are remembered for a moment.
        static int files = 0;  // the graphics library keeps some open
        const CString file = FileName(std::to_wstring(++files).c_str());
        Write(file, cases[i]);
        EXPECT_EQ(nullptr, MakePicture(file, Gdiplus::RectF(50, 50, 0, 0), {100, 100}));
        Lumo::CUIObject* box = Add(Lumo::DS_RECTANGLE, 10, 10, 30, 30);
        box->SetFillShapeMode(static_cast<int>(PictureMode::kTiled));
        box->GetCoordinate().Format<Lumo::CUIShapeFormatFill>().m_strImagePath = file;
        Gdiplus::Bitmap bitmap(60, 60, PixelFormat32bppPARGB);
        Gdiplus::Graphics g(&bitmap);
        DrawPictureFill(g, *box);
        Gdiplus::Color diagonal;
        bitmap.GetPixel(20, 20, &diagonal);
        EXPECT_EQ(255, diagonal.GetA());
    }
}

TEST_F(FaultTest, FontsThatAreNotThereKeepTheirNames) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        LPCWSTR name;
        float size;
        bool drawn;
    } cases[] = {{L"No Such Family 17", 20, true},
                 {L"", 20, true},
                 {L"Arial", 0, false},
                 {L"Arial", -5, false},
                 {L"Arial", kNan, false},
                 {L"Arial", 1e30f, false},
                 {L"Arial", INFINITY, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        Lumo::CUIObject* box = Add(Lumo::DS_TEXTEDIT, 5, 5, 90, 50);
        box->SetText(L"HHH");
        auto& font = box->GetCoordinate().Format<Lumo::CUIShapeFormatText>();
        font.m_strFontName = c.name;
        font.m_fFontSize = c.size;
        Gdiplus::Bitmap bitmap(100, 60, PixelFormat32bppPARGB);
        Gdiplus::Graphics g(&bitmap);
        for (int i = 0; i < 300; ++i)  // more than the fonts that are remembered
            box->Draw(&g);
        bool drawn = false;
        for (int x = 0; x < 100 && c.drawn; ++x) {
            Gdiplus::Color at;
            bitmap.GetPixel(x, 30, &at);
            drawn = drawn || at.GetA() != 0;
        }
        EXPECT_EQ(c.drawn, drawn);
        EXPECT_EQ(CString(*c.name ? c.name : L"Arial"), CString(box->GetTextFontName()));
        font.m_fFontSize = 20;  // one that a file may hold
    }
    EXPECT_TRUE(m_document->Save(m_file));
    ASSERT_TRUE(m_document->Load(m_file)) << m_document->GetError().GetString();
    EXPECT_EQ(CString(L"No Such Family 17"), CString(Objects()[2]->GetTextFontName()));
}
