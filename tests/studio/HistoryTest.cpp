// Undo and redo: after any number of steps, and for every command, the page is what it was.
#include "studio/StudioFixture.h"
#include "studio/editing/History.h"
#include "studio/editing/ListChange.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

#include <algorithm>
#include <random>
#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

class HistoryTest : public StudioFixture {
protected:
    History& Edits() { return m_document->Edits(); }

    void DrawThree() {
        ChooseTool(Page(), Lumo::DS_RECTANGLE);
        Drag({20, 30}, {120, 90});
        ChooseTool(Page(), Lumo::DS_ELLIPSE);
        Drag({200, 30}, {260, 90});
        ChooseTool(Page(), Lumo::DS_LINE);
        Drag({50, 200}, {150, 260});
        ChooseTool(Page(), Lumo::DS_SELECT);
    }
};

TEST_F(HistoryTest, ObjectsStayThemselvesAndTheSelectionComesBack) {
    DrawThree();
    const CUIObjectDeque before = Objects();
    Page().SelectOnly({before[0], before[2]});
    const CUIObjectDeque selected = Page().m_selection;
    DeleteSelection(Page());
    EXPECT_TRUE(Page().m_selection.empty());
    Edits().Undo();
    EXPECT_EQ(before, Objects());
    EXPECT_EQ(selected, Page().m_selection);
    GroupSelection(Page());
    Edits().Undo();
    EXPECT_EQ(before, Objects());
    EXPECT_EQ(selected, Page().m_selection);
    // What was undone is gone for good once something else is done.
    Page().SelectOnly({before[1]});
    NudgeSelection(Page(), 1, 0);
    EXPECT_FALSE(Edits().CanRedo());
}

TEST_F(HistoryTest, TheModifiedMarkFollowsTheSavedPosition) {
    DrawThree();
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    Edits().MarkSaved();
    SelectAll(Page());
    NudgeSelection(Page(), 1, 0);
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    Edits().Undo();
    EXPECT_EQ(0, m_document->GetModifiedFlag());
    Edits().Undo();
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    // The saved state is out of reach now.
    ChooseTool(Page(), Lumo::DS_ELLIPSE);
    Drag({300, 300}, {350, 350});
    Edits().Undo();
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    EXPECT_EQ(CString(L"Draw"), Edits().UndoName());
}

TEST_F(HistoryTest, ABurstOfNudgesIsOneStep) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 100, 100, 50, 40);
    for (int i = 0; i < 5; ++i)
        NudgeSelection(Page(), 1, 0);
    NudgeSelection(Page(), 0, 10);
    Edits().Undo();
    ExpectBounds(*box, 105, 100, 50, 40);
    Edits().Undo();
    ExpectBounds(*box, 100, 100, 50, 40);
    EXPECT_FALSE(Edits().CanUndo());
    Edits().Redo();
    ExpectBounds(*box, 105, 100, 50, 40);
    // Not joined to a step that was saved or redone.
    NudgeSelection(Page(), 1, 0);
    Edits().MarkSaved();
    NudgeSelection(Page(), 1, 0);
    Edits().Undo();
    EXPECT_EQ(0, m_document->GetModifiedFlag());
    ExpectBounds(*box, 106, 100, 50, 40);
}

TEST_F(HistoryTest, ScopesJoinCancelAndRecordNothingWhenNothingChanged) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 100, 100, 50, 40);
    {
        EditScope edit(Page(), Text::kStepMove);
        edit.Touch(*box);
        EXPECT_FALSE(Edits().Undo());
    }
    EXPECT_FALSE(Edits().CanUndo());
    int value = 0;
    {
        EditScope edit(Page(), Text::kStepInsert);
        edit.Touch(*box);
        box->SetText(L"new");
        edit.Do([&] { value = 1; }, [&] { value = 0; });
        NudgeSelection(Page(), 10, 0);
    }
    EXPECT_EQ(CString(L"Insert"), Edits().UndoName());
    Edits().Undo();
    EXPECT_EQ(0, value);
    EXPECT_NE(CString(L"new"), box->GetText());
    ExpectBounds(*box, 100, 100, 50, 40);
    EXPECT_FALSE(Edits().CanUndo());
    Edits().Redo();
    EXPECT_EQ(1, value);
    EXPECT_EQ(CString(L"new"), box->GetText());
    ExpectBounds(*box, 110, 100, 50, 40);
    {
        EditScope edit(Page(), Text::kStepTyping);
        edit.Touch(*box);
        box->SetText(L"never");
        edit.Cancel();
    }
    EXPECT_EQ(CString(L"new"), box->GetText());
}

TEST_F(HistoryTest, TypedTextIsOneStepAndMayBeEmpty) {
    CUIObject* text = Add(Lumo::DS_TEXTEDIT, 50, 50, 200, 40);
    text->SetText(L"before");
    for (LPCWSTR typed : {L"after", L""}) {
        // Hit in the corner, where the library's text box is not.
        Mouse(WM_LBUTTONDBLCLK, 60, 60);
        ASSERT_NE(nullptr, Page().m_pEdit);
        reinterpret_cast<CWnd*>(Page().m_pEdit)->SetWindowText(typed);
        Click({400, 300});
        EXPECT_EQ(nullptr, Page().m_pEdit);
        EXPECT_EQ(CString(typed), text->GetText());
        EXPECT_TRUE(Edits().Undo());
        EXPECT_EQ(CString(L"before"), text->GetText());
        EXPECT_FALSE(Edits().CanUndo());
    }
    // An object that goes while it is edited takes its editor along.
    Mouse(WM_LBUTTONDBLCLK, 60, 60);
    RemoveObjects(Page(), {text}, Text::kStepDelete);
    EXPECT_EQ(nullptr, Page().m_pEdit);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(HistoryTest, ListChangesAreSmallAndExact) {
    std::vector<CUIObject> objects(40);
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        CUIObjectDeque all, before, after;
        for (CUIObject& object : objects)
            all.push_back(&object);
        std::shuffle(all.begin(), all.end(), random);
        before.assign(all.begin(), all.begin() + static_cast<int>(random() % 40));
        std::shuffle(all.begin(), all.end(), random);
        after.assign(all.begin(), all.begin() + static_cast<int>(random() % 40));
        const ListChange change = CompareLists(before, after);
        CUIObjectDeque list = before;
        ApplyChange(list, change, true);
        ASSERT_EQ(after, list);
        ApplyChange(list, change, false);
        ASSERT_EQ(before, list);
    }
    // One object brought to the front is one object moved.
    CUIObjectDeque before;
    for (CUIObject& object : objects)
        before.push_back(&object);
    CUIObjectDeque after = before;
    std::rotate(after.begin(), after.begin() + 1, after.end());
    const ListChange change = CompareLists(before, after);
    EXPECT_EQ(1u, change.removed.size());
    EXPECT_EQ(1u, change.inserted.size());
}
