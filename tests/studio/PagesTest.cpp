// Pages: every command with its undo, exact round trips, older files, autosave and recovery.
#include "studio/StudioFixture.h"

#include "studio/device/Device.h"
#include "studio/app/Texts.h"
#include "studio/document/Autosave.h"
#include "studio/document/DemoProject.h"
#include "studio/document/FileReport.h"
#include "studio/document/ObjectExtras.h"
#include "studio/document/PageFile.h"
#include "studio/document/PageImage.h"
#include "studio/document/SymbolLibrary.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

#include <gtest/gtest.h>

using namespace Studio;

namespace {

class Pages : public StudioFixture {
protected:
    // "Page 1 [2] | Page 2* [0]": names, number of objects, the current one.
    CString Order() {
        CString order;
        for (const Studio::Page& page : m_document->Pages()) {
            const auto* objects = m_document->GetCanvasObjectList(page.canvas.get());
            order.AppendFormat(L"%s%s%s [%d]", order.IsEmpty() ? L"" : L" | ", page.name.GetString(),
                               page.canvas.get() == m_document->CurrentPage() ? L"*" : L"",
                               static_cast<int>(objects->size()));
        }
        return order;
    }
    bool Undo() { return m_document->Edits().Undo(); }
    bool Redo() { return m_document->Edits().Redo(); }

    std::vector<BYTE> Bytes() {
        CMemFile file;
        CArchive ar(&file, CArchive::store);
        m_document->Serialize(ar);
        ar.Close();
        std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
        file.SeekToBegin();
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }
};

TEST_F(Pages, CommandsAreUndoneAndRedone) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 10, 50, 40);
    m_document->Edits().MarkSaved();
    const struct {
        std::function<bool()> command;
        LPCWSTR order;
    } steps[] = {
        {[&] { return m_document->AddPage(0); }, L"Page 1 [1] | Page 2* [0]"},
        {[&] { return m_document->DuplicatePage(0); }, L"Page 1 [1] | Page 1 (2)* [1] | Page 2 [0]"},
        {[&] { return m_document->MovePage(0, 2); }, L"Page 1 (2) [1] | Page 2 [0] | Page 1* [1]"},
        {[&] { return m_document->RenamePage(1, L"Second"); }, L"Page 1 (2) [1] | Second* [0] | Page 1 [1]"},
        {[&] { return m_document->RemovePage(2); }, L"Page 1 (2) [1] | Second* [0]"},
        {[&] { return m_document->RemovePage(0); }, L"Second* [0]"},
    };
    for (const auto& step : steps) {
        EXPECT_TRUE(step.command());
        EXPECT_EQ(step.order, Order());
    }
    EXPECT_FALSE(m_document->RemovePage(0)) << "the only page stays";
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 6; ++i)
            EXPECT_TRUE(Undo());
        EXPECT_EQ(L"Page 1* [1]", Order());
        EXPECT_EQ(object, Objects().front()) << "it is the same object";
        EXPECT_FALSE(m_document->GetModifiedFlag());
        for (const auto& step : steps) {
            EXPECT_TRUE(Redo());
            EXPECT_EQ(step.order, Order()) << "redo";
        }
    }
    EXPECT_TRUE(m_document->GetModifiedFlag());
}

TEST_F(Pages, StepsOnAPageThatComesAndGoes) {
    m_document->AddPage(0);
    Page().MoveWindow(0, 0, 600, 400);
    Studio::ChooseTool(Page(), Lumo::DS_RECTANGLE);
    Drag({20, 20}, {120, 90});
    EXPECT_EQ(L"Page 1 [0] | Page 2* [1]", Order());
    m_document->RemovePage(1);
    EXPECT_EQ(L"Page 1* [0]", Order());
    Undo();
    EXPECT_EQ(L"Page 1 [0] | Page 2* [1]", Order());
    m_document->ShowPage(0);
    Undo();
    EXPECT_EQ(L"Page 1 [0] | Page 2* [0]", Order()) << "the page of the step is shown";
    Undo();
    EXPECT_EQ(L"Page 1* [0]", Order());
    // A new step ends the redo of the page, its objects and the canvas with them.
    Drag({20, 20}, {120, 90});
    EXPECT_FALSE(m_document->Edits().CanRedo());
    EXPECT_TRUE(m_document->AddPage(0));
    Undo();
    Undo();
    EXPECT_EQ(L"Page 1* [0]", Order());
}

TEST_F(Pages, NamesStayUnique) {
    m_document->AddPage(0);
    EXPECT_FALSE(m_document->RenamePage(1, L"page 1"));
    EXPECT_FALSE(m_document->RenamePage(1, L""));
    EXPECT_TRUE(m_document->RenamePage(1, L"PAGE 2")) << "its own, in other letters";
    EXPECT_TRUE(m_document->RenamePage(0, L"Page 3"));
    EXPECT_TRUE(m_document->AddPage(1));
    EXPECT_EQ(L"Page 3 [0] | PAGE 2 [0] | Page 4* [0]", Order());
    for (int none : {-1, 3}) {
        EXPECT_FALSE(m_document->AddPage(none));
        EXPECT_FALSE(m_document->DuplicatePage(none));
        EXPECT_FALSE(m_document->MovePage(none, 0));
        EXPECT_FALSE(m_document->MovePage(0, none));
        EXPECT_FALSE(m_document->RemovePage(none));
        EXPECT_FALSE(m_document->ShowPage(none));
    }
}

// A press on the page that is shown leaves the editor of another page's tab, whose page is shown then.
TEST_F(Pages, RenamingFinishesWhatIsBeingDrawn) {
    StudioCanvas& first = Page();
    m_document->AddPage(0);
    Add(Lumo::DS_ELLIPSE, 10, 10, 50, 40);
    m_document->ShowPage(0);
    ChooseTool(first, Lumo::DS_RECTANGLE);
    Mouse(WM_LBUTTONDOWN, 200, 100);
    Mouse(WM_MOUSEMOVE, 260, 150, MK_LBUTTON);
    EXPECT_TRUE(m_document->RenamePage(1, L"Other"));
    EXPECT_EQ(L"Page 1 [1] | Other* [1]", Order());
    EXPECT_EQ(nullptr, first.CurrentGesture());
    EXPECT_EQ(*first.Objects(), first.m_selection);
    EXPECT_TRUE(Undo());
    EXPECT_EQ(L"Page 1 [1] | Page 2* [1]", Order());
    EXPECT_TRUE(Undo());
    EXPECT_EQ(L"Page 1* [0] | Page 2 [1]", Order());
}

TEST_F(Pages, AutosaveFollowsTheDocument) {
    const CString path = FileName(L"auto.cbf");
    const CString copy = Autosave::PathFor(path);
    m_files.push_back(copy);
    CString name = path;
    ASSERT_TRUE(m_document->Save(name));
    {
        Autosave autosave(*m_document, L"");
        EXPECT_TRUE(autosave.Update());
        EXPECT_EQ(INVALID_FILE_ATTRIBUTES, ::GetFileAttributes(copy)) << "nothing to save";
        m_document->AddPage(0);
        EXPECT_TRUE(autosave.Update());
        EXPECT_TRUE(autosave.Update()) << "over its own";
        EXPECT_NE(INVALID_FILE_ATTRIBUTES, ::GetFileAttributes(copy));
        EXPECT_FALSE(Autosave::IsLeftBehind(copy)) << "somebody works on it";
        EXPECT_TRUE(m_document->GetModifiedFlag());
        EXPECT_EQ(path, m_document->GetPath());
    }
    // As after a crash.
    EXPECT_TRUE(Autosave::IsLeftBehind(copy));
    const auto changed = Bytes();
    ASSERT_TRUE(m_document->Load(name));
    EXPECT_EQ(1u, m_document->Pages().size());
    ASSERT_TRUE(m_document->Recover(copy, path));
    EXPECT_EQ(changed, Bytes());
    EXPECT_EQ(path, m_document->GetPath());
    EXPECT_TRUE(m_document->GetModifiedFlag());

    Autosave next(*m_document, L"");
    EXPECT_TRUE(next.Update());
    EXPECT_FALSE(Autosave::IsLeftBehind(copy));
    ASSERT_TRUE(m_document->Save(name));
    EXPECT_TRUE(next.Update());
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, ::GetFileAttributes(copy)) << "saved";
}

TEST_F(Pages, AutosaveOfADocumentWithoutFile) {
    const CString folder = FileName(L"folder");
    Add(Lumo::DS_ELLIPSE, 10, 10, 50, 40);
    m_document->Edits().MarkUnsaved();
    {
        Autosave autosave(*m_document, folder);
        EXPECT_TRUE(autosave.Update());
        EXPECT_TRUE(autosave.FindLeftBehind().empty());
    }
    Autosave other(*m_document, folder);
    const auto found = other.FindLeftBehind();
    ASSERT_EQ(1u, found.size());
    EXPECT_TRUE(m_document->NewFile());
    EXPECT_TRUE(m_document->Recover(found.front(), L""));
    EXPECT_EQ(1u, Objects().size());
    // The file gets a name: the copy moves beside it.
    EXPECT_TRUE(other.Update());
    CString path = FileName(L"named.cbf");
    ASSERT_TRUE(m_document->Save(path));
    other.Discard();
    EXPECT_TRUE(other.FindLeftBehind().empty());
    ::RemoveDirectory(folder);
    Autosave nowhere(*m_document, L"");
    EXPECT_TRUE(nowhere.FindLeftBehind().empty());
    EXPECT_TRUE(m_document->NewFile());
    m_document->Edits().MarkUnsaved();
    EXPECT_FALSE(nowhere.Update());
    EXPECT_STREQ(nowhere.GetReason(), GetText(Text::kFaultAccess));
}

TEST_F(Pages, ADamagedCopyChangesNothing) {
    const CString copy = FileName(L"damaged.autosave");
    WriteWholeFile(copy, [](CFile& file) { file.Write("no copy", 7); });
    Add(Lumo::DS_ELLIPSE, 10, 10, 50, 40);
    EXPECT_FALSE(m_document->Recover(copy, L""));
    EXPECT_EQ(1u, Objects().size());
    EXPECT_FALSE(m_document->GetError().IsEmpty());
}

TEST_F(Pages, DemoProjectIsWholeAndSound) {
    ASSERT_TRUE(m_document->NewFile(MakeDemoProject()));
    EXPECT_EQ(4u, m_document->Pages().size());
    EXPECT_FALSE(m_document->GetModifiedFlag());
    CString path = FileName(L"demo.cbf");
    ASSERT_TRUE(m_document->Save(path));
    const auto before = Bytes();
    ASSERT_TRUE(m_document->Load(path));
    EXPECT_EQ(before, Bytes());
    const FileReport report = ReportFile(path);
    EXPECT_TRUE(report.sound);
    EXPECT_GE(report.text.Find(L"ChartPEQ1"), 0);
    EXPECT_GE(report.text.Find(L"= out1.peq"), 0);
    EXPECT_FALSE(ReportFile(FileName(L"missing.cbf")).sound);
}

TEST_F(Pages, PicturesShowThePageAndNothingElse) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 300, 200, 200, 100);
    object->SetFillColor(0xFF00FF00);
    object->SetFillAlpha(255.0f);
    Lumo::CUIObject* hidden = Add(Lumo::DS_RECTANGLE, 900, 10, 50, 50);
    hidden->SetRemoved(1);
    const CString path = FileName(L"page.png");
    WritePagePicture(Objects(), path);
    Gdiplus::Bitmap picture(path);
    ASSERT_EQ(Gdiplus::Ok, picture.GetLastStatus());
    EXPECT_GT(picture.GetWidth(), 500u);
    EXPECT_LT(picture.GetWidth(), 560u) << "up to the end of what is shown";
    Gdiplus::Color color;
    picture.GetPixel(320, 280, &color);
    EXPECT_EQ(0xFF00FF00u, color.GetValue());
    picture.GetPixel(100, 100, &color);
    EXPECT_EQ(0xFF000000u, color.GetValue());
    Gdiplus::Bitmap small(50, 40);
    Gdiplus::Graphics g(&small);
    g.Clear(Gdiplus::Color(0xFFFFFFFF));
    DrawFitted(g, Objects(), CSize(50, 40));
    small.GetPixel(25, 28, &color);
    EXPECT_EQ(0xFF00FF00u, color.GetValue());
    small.GetPixel(1, 1, &color);
    EXPECT_EQ(0xFFFFFFFFu, color.GetValue());
}

TEST_F(Pages, SymbolsComeAsOneObject) {
    const CString folder = FileName(L"symbols");
    EXPECT_TRUE(FindSymbols(folder).empty());
    WriteStandardSymbols(folder);
    const auto symbols = FindSymbols(folder);
    ASSERT_GE(symbols.size(), 6u);
    for (const CString& path : symbols) {
        m_files.push_back(path);
        std::vector<ObjectPtr> symbol;
        symbol.push_back(LoadSymbol(path));
        const Gdiplus::RectF bounds = symbol.front()->GetPosition();
        EXPECT_FLOAT_EQ(0.0f, bounds.X);
        EXPECT_FLOAT_EQ(0.0f, bounds.Y);
        InsertObjects(Page(), std::move(symbol), {30, 40}, Text::kStepInsertSymbol);
    }
    EXPECT_EQ(symbols.size(), Objects().size());
    EXPECT_TRUE(dynamic_cast<GroupObject*>(Objects().front()));
    EXPECT_TRUE(Undo());
    EXPECT_EQ(symbols.size() - 1, Objects().size());

    DocumentContents empty;
    empty.pages.emplace_back();
    const CString path = folder + L"\\empty.cbf";
    WriteContents(empty, path);
    EXPECT_THROW(LoadSymbol(path), FileFault);
    ::DeleteFile(path);
    for (const CString& symbol : symbols)
        ::DeleteFile(symbol);
    ::RemoveDirectory(folder);
}

}  // namespace
