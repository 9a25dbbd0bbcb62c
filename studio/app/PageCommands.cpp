#include "studio/app/PageCommands.h"

#include "studio/app/Commands.h"
#include "studio/editing/Grid.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"
#include "studio/editing/PageTool.h"

#include <optional>

namespace Studio {

using namespace Lumo;

namespace {

constexpr int kFarStep = 10;

struct AlignmentCommand {
    UINT command;
    Alignment how;
};

constexpr AlignmentCommand kAlignments[] = {
    {ID_ALIGN_LEFT, Alignment::kLeft},       {ID_ALIGN_RIGHT, Alignment::kRight},
    {ID_ALIGN_TOP, Alignment::kTop},         {ID_ALIGN_BOTTOM, Alignment::kBottom},
    {ID_ALIGN_VCENTER, Alignment::kCentres}, {ID_ALIGN_HCENTER, Alignment::kMiddles},
    {ID_ALIGN_CENTER, Alignment::kBoth},
};

struct NudgeCommand {
    UINT command;
    int dx, dy;
};

constexpr NudgeCommand kNudges[] = {
    {ID_PAGE_NUDGE_LEFT, -1, 0},
    {ID_PAGE_NUDGE_RIGHT, 1, 0},
    {ID_PAGE_NUDGE_UP, 0, -1},
    {ID_PAGE_NUDGE_DOWN, 0, 1},
    {ID_PAGE_NUDGE_FAR_LEFT, -kFarStep, 0},
    {ID_PAGE_NUDGE_FAR_RIGHT, kFarStep, 0},
    {ID_PAGE_NUDGE_FAR_UP, 0, -kFarStep},
    {ID_PAGE_NUDGE_FAR_DOWN, 0, kFarStep},
};

const ToolInfo* ToolOfCommand(UINT command) {
    for (const ToolInfo& tool : Tools()) {
        if (tool.command == command)
            return &tool;
    }
    return nullptr;
}

std::optional<Alignment> AlignmentOf(UINT command) {
    for (const auto& row : kAlignments) {
        if (row.command == command)
            return row.how;
    }
    return std::nullopt;
}

std::optional<Stacking> StackingOf(UINT command) {
    switch (command) {
        case ID_POSITION_FORWARD:
            return Stacking::kForward;
        case ID_POSITION_BACKWARD:
            return Stacking::kBackward;
        case ID_POSITION_FRONT:
            return Stacking::kFront;
        case ID_POSITION_BACK:
            return Stacking::kBack;
        default:
            return std::nullopt;
    }
}

// The key that leaves things: first the gesture, then the tool, then the selection.
void Escape(StudioCanvas& page) {
    if (page.CancelGesture())
        return;
    if (CUIToolBase::run_drawshape != DS_SELECT)
        ChooseTool(page, DS_SELECT);
    else
        page.Select(nullptr, 0);
}

// Points mode draws points: it wants a tool that does.
void EnterPolyMode(StudioCanvas& page) {
    if (IsFigureTool(CUIToolBase::run_drawshape))
        page.OnModePoly();
    else
        ChooseTool(page, DS_POLYLINE);
}

void EnterDrawMode(StudioCanvas& page) {
    if (IsFigureTool(CUIToolBase::run_drawshape))
        ChooseTool(page, DS_SELECT);
    else
        page.OnModeDraw();
}

void ShowGrid(StudioCanvas& page) {
    PageGrid().shown = !PageGrid().shown;
    page.Invalidate(FALSE);
}

template <bool (*Use)(StudioCanvas& page)>
void UseClipboard(StudioCanvas& page) {
    if (!Use(page))
        AfxMessageBox(GetText(Text::kErrorClipboard), MB_OK | MB_ICONWARNING);
}

// Commands that need nothing but the page.
constexpr struct {
    UINT command;
    void (*run)(StudioCanvas& page);
} kEdits[] = {
    {ID_OBJECT_UNDO, [](StudioCanvas& page) { page.Edits().Undo(); }},
    {ID_OBJECT_REDO, [](StudioCanvas& page) { page.Edits().Redo(); }},
    {ID_OBJECT_CUT, UseClipboard<CutSelection>},
    {ID_OBJECT_COPY, UseClipboard<CopySelection>},
    {ID_OBJECT_PASTE, UseClipboard<PasteObjects>},
    {ID_PAGE_DUPLICATE_OBJECTS, DuplicateSelection},
    {ID_PAGE_DISTRIBUTE_H, [](StudioCanvas& page) { DistributeSelection(page, true); }},
    {ID_PAGE_DISTRIBUTE_V, [](StudioCanvas& page) { DistributeSelection(page, false); }},
    {ID_PAGE_FLIP_H, [](StudioCanvas& page) { FlipSelection(page, true); }},
    {ID_PAGE_FLIP_V, [](StudioCanvas& page) { FlipSelection(page, false); }},
    {ID_PAGE_SHOW_GRID, ShowGrid},
    {ID_PAGE_SNAP_TO_GRID, [](StudioCanvas&) { PageGrid().snapping = !PageGrid().snapping; }},
};

auto EditOf(UINT command) -> void (*)(StudioCanvas&) {
    for (const auto& row : kEdits) {
        if (row.command == command)
            return row.run;
    }
    return nullptr;
}

const NudgeCommand* NudgeOf(UINT command) {
    for (const NudgeCommand& row : kNudges) {
        if (row.command == command)
            return &row;
    }
    return nullptr;
}

}  // namespace

bool IsPageCommandEnabled(StudioCanvas& page, UINT command) {
    if (ToolOfCommand(command) || command == ID_MODE_DRAW || command == ID_MODE_POLY)
        return true;
    if (AlignmentOf(command))
        return page.m_selection.size() >= 2;
    if (StackingOf(command))
        return !page.m_selection.empty();
    switch (command) {
        case ID_ROTATE_LEFT:
        case ID_ROTATE_RIGHT:
        case ID_OBJECT_DELETE:
        case ID_OBJECT_CUT:
        case ID_OBJECT_COPY:
        case ID_PAGE_DUPLICATE_OBJECTS:
        case ID_PAGE_FLIP_H:
        case ID_PAGE_FLIP_V:
            return !page.m_selection.empty();
        case ID_OBJECT_PASTE:
            return CanPaste();
        case ID_OBJECT_UNDO:
            return page.Edits().CanUndo() || page.CurrentGesture();
        case ID_OBJECT_REDO:
            return page.Edits().CanRedo();
        case ID_PAGE_DISTRIBUTE_H:
        case ID_PAGE_DISTRIBUTE_V:
            return page.m_selection.size() >= 3;
        case ID_GROUP_MAKE:
            return CanGroup(page);
        case ID_GROUP_UNMAKE:
            return CanUngroup(page);
        case ID_PAGE_SELECT_ALL:
            return page.Objects() && !page.Objects()->empty();
        default:
            return command >= ID_PAGE_FIRST && command <= ID_PAGE_LAST;
    }
}

bool IsPageCommandChecked(StudioCanvas& page, UINT command) {
    if (const ToolInfo* tool = ToolOfCommand(command))
        return tool->kind == CUIToolBase::run_drawshape;
    if (command == ID_PAGE_SHOW_GRID)
        return PageGrid().shown;
    if (command == ID_PAGE_SNAP_TO_GRID)
        return PageGrid().snapping;
    return (command == ID_MODE_DRAW && page.m_nMode == CM_DRAW) ||
           (command == ID_MODE_POLY && page.m_nMode == CM_POLY);
}

CString PageCommandText(StudioCanvas& page, UINT command) {
    const bool undo = command == ID_OBJECT_UNDO;
    if (!undo && command != ID_OBJECT_REDO)
        return CString();
    const CString step = undo ? page.Edits().UndoName() : page.Edits().RedoName();
    CString text = CommandText(command);
    if (step.IsEmpty())
        return text;
    CString named;
    named.Format(GetText(undo ? Text::kEditUndoStep : Text::kEditRedoStep), step.GetString());
    return named + text.Mid(text.Find(L'\t'));
}

void RunPageCommand(StudioCanvas& page, UINT command) {
    if (command == ID_PAGE_ESCAPE) {
        Escape(page);
        page.NotifyState();
        return;
    }
    page.FinishEditing();
    if (!NudgeOf(command))
        page.Edits().BreakMerging();
    if (!IsPageCommandEnabled(page, command))
        return;
    if (const ToolInfo* tool = ToolOfCommand(command))
        ChooseTool(page, tool->kind);
    else if (const auto alignment = AlignmentOf(command))
        AlignSelection(page, *alignment);
    else if (const auto stacking = StackingOf(command))
        RestackSelection(page, *stacking);
    else if (command == ID_ROTATE_LEFT || command == ID_ROTATE_RIGHT)
        RotateSelection(page, command == ID_ROTATE_RIGHT);
    else if (command == ID_GROUP_MAKE)
        GroupSelection(page);
    else if (command == ID_GROUP_UNMAKE)
        UngroupSelection(page);
    else if (command == ID_OBJECT_DELETE)
        DeleteSelection(page);
    else if (command == ID_PAGE_SELECT_ALL)
        SelectAll(page);
    else if (const auto edit = EditOf(command))
        edit(page);
    else if (command == ID_MODE_DRAW)
        EnterDrawMode(page);
    else if (command == ID_MODE_POLY)
        EnterPolyMode(page);
    else if (const NudgeCommand* nudge = NudgeOf(command))
        NudgeSelection(page, nudge->dx, nudge->dy);
    page.NotifyState();
}

}  // namespace Studio
