// Copies of objects, through bytes and through the system's clipboard.
#include "studio/StudioFixture.h"
#include "support/Clipboard.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

#include <algorithm>
#include <random>
#include <set>
#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

using ClipboardTest = StudioFixture;

TEST_F(ClipboardTest, PastesNamedCopiesAsideAndSelectsThem) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 20, 30, 100, 60);
    box->SetText(L"\xD55C\xAE00");
    CUIObject* line = Add(Lumo::DS_LINE, 200, 50, 40, 30);
    CUIObject* oval = Add(Lumo::DS_ELLIPSE, 250, 50, 40, 30);
    Page().SelectOnly({line, oval});
    GroupSelection(Page());
    box->SetShapeName(L"Fader 9");
    SelectAll(Page());
    ASSERT_TRUE(CopySelection(Page()));
    ASSERT_TRUE(CanPaste());
    PasteObjects(Page());
    ASSERT_EQ(4u, Objects().size());
    EXPECT_EQ((Lumo::CUIObjectDeque{Objects()[3], Objects()[2]}), Page().m_selection);
    ExpectBounds(*Objects()[2], 30, 40, 100, 60);
    EXPECT_EQ(box->GetText(), Objects()[2]->GetText());
    PasteObjects(Page());
    ExpectBounds(*Objects()[4], 40, 50, 100, 60);
    std::set<CString> names;
    std::function<void(CUIObject*)> collect = [&](CUIObject* object) {
        EXPECT_TRUE(names.insert(object->GetShapeName()).second) << object->GetShapeName().GetString();
        EXPECT_EQ(&Page(), Objects()[2]->GetCanvas());
        if (auto* group = dynamic_cast<GroupObject*>(object))
            std::for_each(group->GetChildren().begin(), group->GetChildren().end(), collect);
    };
    std::for_each(Objects().begin(), Objects().end(), collect);
    EXPECT_EQ(0, Objects()[2]->GetShapeName().Find(L"Fader "));
    m_document->Edits().Undo();
    EXPECT_EQ(4u, Objects().size());
}

TEST_F(ClipboardTest, ChildrenOfAPastedGroupKnowTheirPage) {
    Add(Lumo::DS_RECTANGLE, 20, 30, 100, 60);
    Add(Lumo::DS_ELLIPSE, 200, 30, 100, 60);
    SelectAll(Page());
    GroupSelection(Page());
    ASSERT_TRUE(CopySelection(Page()));
    PasteObjects(Page());
    UngroupSelection(Page());
    ASSERT_EQ(3u, Objects().size());
    for (const Lumo::CUIObject* object : Objects()) {
        EXPECT_EQ(&Page(), object->GetCanvas());
        EXPECT_EQ(m_document, object->GetDocument());
    }
}

TEST_F(ClipboardTest, OffersTheCaptionOfASingleObjectAndTakesForeignText) {
    Add(Lumo::DS_RECTANGLE, 20, 30, 100, 60)->SetText(L"Gain");
    ASSERT_TRUE(CopySelection(Page()));
    ASSERT_TRUE(::OpenClipboard(nullptr));
    const auto* text = static_cast<const WCHAR*>(::GlobalLock(::GetClipboardData(CF_UNICODETEXT)));
    ASSERT_NE(nullptr, text);
    EXPECT_EQ(CString(L"Gain"), CString(text));
    ::CloseClipboard();
    ASSERT_TRUE(PutOnClipboard(nullptr, CF_UNICODETEXT, {'H', 0, 'i', 0, 0, 0}));
    PasteObjects(Page());
    ASSERT_EQ(2u, Objects().size());
    EXPECT_EQ(CString(L"Hi"), Objects()[1]->GetText());
    EXPECT_EQ(Lumo::DS_TEXTEDIT, Objects()[1]->GetDrawShape());
    EXPECT_EQ(CString(L"Paste"), m_document->Edits().UndoName());
}

TEST_F(ClipboardTest, RefusesHostileBytesQuietly) {
    Add(Lumo::DS_RECTANGLE, 20, 30, 100, 60);
    Add(Lumo::DS_POLYLINE, 20, 30, 100, 60);
    SelectAll(Page());
    GroupSelection(Page());
    const std::vector<BYTE> sound = PackObjects(Objects());
    ASSERT_EQ(1u, UnpackObjects(sound).size());
    const UINT format = ::RegisterClipboardFormat(L"Tessel Studio Objects");
    m_document->Edits().Clear();
    for (const auto& bytes : {std::vector<BYTE>(), std::vector<BYTE>(7, 0xFF), std::vector<BYTE>(4000, 0x41),
                              std::vector<BYTE>(sound.begin(), sound.end() - 30)}) {
        ASSERT_TRUE(PutOnClipboard(nullptr, format, bytes));
        PasteObjects(Page());
        EXPECT_EQ(1u, Objects().size());
        EXPECT_FALSE(m_document->Edits().CanUndo());
    }
    // Any byte wrong: refused or harmless, but never a crash.
    std::mt19937 random(5);
    for (int round = 0; round < 400; ++round) {
        std::vector<BYTE> broken = sound;
        for (int i = 0; i < 3; ++i)
            broken[random() % broken.size()] = static_cast<BYTE>(random());
        UnpackObjects(broken);
    }
}
