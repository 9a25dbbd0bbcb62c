#include "studio/app/Commands.h"

#include "studio/editing/ObjectFactory.h"

#include "studio/editing/PageTool.h"

#include <vector>

namespace Studio {

using namespace Lumo;

namespace {

struct Command {
    UINT id;
    Text text;
    WORD key;  // virtual key, 0 for none
    BYTE modifiers;
};

constexpr BYTE kCtrl = FCONTROL;
constexpr BYTE kShift = FSHIFT;

constexpr Command kCommands[] = {
    {ID_FILE_NEW, Text::kFileNew, 'N', kCtrl},
    {ID_FILE_OPEN, Text::kFileOpen, 'O', kCtrl},
    {ID_FILE_SAVE, Text::kFileSave, 'S', kCtrl},
    {ID_FILE_SAVE_AS, Text::kFileSaveAs, 'S', kCtrl | kShift},
    {ID_DOCUMENT_EXPORT, Text::kFileExport, 0, 0},
    {ID_DOCUMENT_DEMO, Text::kFileDemo, 0, 0},
    {ID_APP_EXIT, Text::kFileExit, 0, 0},
    {ID_PAGES_ADD, Text::kPageAdd, 'N', kCtrl | kShift},
    {ID_PAGES_DUPLICATE, Text::kPageDuplicate, 'D', kCtrl | kShift},
    {ID_PAGES_REMOVE, Text::kPageRemove, 0, 0},
    {ID_PAGES_RENAME, Text::kPageRename, VK_F2, 0},
    {ID_PAGES_MOVE_LEFT, Text::kPageMoveLeft, VK_PRIOR, kCtrl | kShift},
    {ID_PAGES_MOVE_RIGHT, Text::kPageMoveRight, VK_NEXT, kCtrl | kShift},
    {ID_PAGES_PREVIOUS, Text::kGoPreviousPage, VK_PRIOR, kCtrl},
    {ID_PAGES_NEXT, Text::kGoNextPage, VK_NEXT, kCtrl},
    {ID_VIEW_SYMBOLS, Text::kViewSymbols, 0, 0},
    {ID_APP_ABOUT, Text::kHelpAbout, 0, 0},
    {ID_DOCUMENT_LOAD, Text::kFileOpen, 0, 0},
    {ID_DOCUMENT_SAVE, Text::kFileSave, 0, 0},
    {ID_OBJECT_UNDO, Text::kEditUndo, 'Z', kCtrl},
    {ID_OBJECT_REDO, Text::kEditRedo, 'Y', kCtrl},
    {ID_OBJECT_CUT, Text::kEditCut, 'X', kCtrl},
    {ID_OBJECT_COPY, Text::kEditCopy, 'C', kCtrl},
    {ID_OBJECT_PASTE, Text::kEditPaste, 'V', kCtrl},
    {ID_PAGE_DUPLICATE_OBJECTS, Text::kEditDuplicate, 'D', kCtrl},
    {ID_OBJECT_DELETE, Text::kEditDelete, VK_DELETE, 0},
    {ID_PAGE_SELECT_ALL, Text::kEditSelectAll, 'A', kCtrl},
    {ID_OBJECT_PROPERTIES, Text::kEditProperties, 0, 0},
    {ID_MODE_DRAW, Text::kModeDraw, 0, 0},
    {ID_MODE_POLY, Text::kModePoly, 0, 0},
    {ID_MODE_PROPERTY, Text::kModeProperty, 0, 0},
    {ID_MODE_RUNNING, Text::kModeRunning, 0, 0},
    {ID_TOOL_SELECT, Text::kToolSelect, 'V', 0},
    {ID_TOOL_RECTANGLE, Text::kToolRectangle, 'R', 0},
    {ID_TOOL_ELLIPSE, Text::kToolEllipse, 'E', 0},
    {ID_TOOL_LINE, Text::kToolLine, 'L', 0},
    {ID_TOOL_POLYLINE, Text::kToolPolyline, 'P', 0},
    {ID_TOOL_TEXTBOX, Text::kToolTextBox, 'T', 0},
    {ID_TOOL_PEQ_CHART, Text::kToolPeqChart, 0, 0},
    {ID_TOOL_BAND_BUTTON, Text::kToolBandButton, 0, 0},
    {ID_TOOL_DEVICE_CHART, Text::kToolDeviceChart, 0, 0},
    {ID_TOOL_DEVICE_BUTTON, Text::kToolDeviceButton, 0, 0},
    {ID_TOOL_LEVEL_CHART, Text::kToolLevelChart, 0, 0},
    {ID_TOOL_LEVEL_BUTTON, Text::kToolLevelButton, 0, 0},
    {ID_TOOL_CROSSOVER, Text::kToolCrossover, 0, 0},
    {ID_TOOL_GEQ_STATE, Text::kToolGeqState, 0, 0},
    {ID_TOOL_PEQ_STATE, Text::kToolPeqState, 0, 0},
    {ID_RUN_PAGES, Text::kRunStart, VK_F5, 0},
    {ID_TOOL_PICTURE, Text::kToolPicture, 'I', 0},
    {ID_INSERT_EMBEDDED, Text::kInsertEmbedded, 0, 0},
    {ID_POSITION_FORWARD, Text::kArrangeForward, 0, 0},
    {ID_POSITION_BACKWARD, Text::kArrangeBackward, 0, 0},
    {ID_POSITION_FRONT, Text::kArrangeFront, 0, 0},
    {ID_POSITION_BACK, Text::kArrangeBack, 0, 0},
    {ID_ROTATE_LEFT, Text::kArrangeRotateLeft, 0, 0},
    {ID_ROTATE_RIGHT, Text::kArrangeRotateRight, 0, 0},
    {ID_GROUP_MAKE, Text::kArrangeGroup, 'G', kCtrl},
    {ID_GROUP_UNMAKE, Text::kArrangeUngroup, 'G', kCtrl | kShift},
    {ID_ALIGN_LEFT, Text::kAlignLeft, 0, 0},
    {ID_ALIGN_RIGHT, Text::kAlignRight, 0, 0},
    {ID_ALIGN_TOP, Text::kAlignTop, 0, 0},
    {ID_ALIGN_BOTTOM, Text::kAlignBottom, 0, 0},
    {ID_ALIGN_VCENTER, Text::kAlignCentres, 0, 0},
    {ID_ALIGN_HCENTER, Text::kAlignMiddles, 0, 0},
    {ID_ALIGN_CENTER, Text::kAlignBoth, 0, 0},
    {ID_PAGE_DISTRIBUTE_H, Text::kArrangeDistributeH, 0, 0},
    {ID_PAGE_DISTRIBUTE_V, Text::kArrangeDistributeV, 0, 0},
    {ID_PAGE_FLIP_H, Text::kArrangeFlipH, 0, 0},
    {ID_PAGE_FLIP_V, Text::kArrangeFlipV, 0, 0},
    {ID_PAGE_SHOW_GRID, Text::kViewGrid, 'G', 0},
    {ID_VIEW_PROPERTIES, Text::kViewProperties, VK_F4, 0},
    {ID_PAGE_SNAP_TO_GRID, Text::kViewSnap, 'G', kShift},
};

// Keys of commands that stand in no menu.
constexpr struct {
    UINT id;
    WORD key;
    BYTE modifiers;
} kHiddenKeys[] = {
    {ID_PAGE_ESCAPE, VK_ESCAPE, 0},
    {ID_PAGE_FINISH, VK_RETURN, 0},
    {ID_OBJECT_REDO, 'Z', kCtrl | kShift},
    {ID_OBJECT_COPY, VK_INSERT, kCtrl},
    {ID_OBJECT_PASTE, VK_INSERT, kShift},
    {ID_OBJECT_CUT, VK_DELETE, kShift},
    {ID_PAGE_NUDGE_LEFT, VK_LEFT, 0},
    {ID_PAGE_NUDGE_RIGHT, VK_RIGHT, 0},
    {ID_PAGE_NUDGE_UP, VK_UP, 0},
    {ID_PAGE_NUDGE_DOWN, VK_DOWN, 0},
    {ID_PAGE_NUDGE_FAR_LEFT, VK_LEFT, kShift},
    {ID_PAGE_NUDGE_FAR_RIGHT, VK_RIGHT, kShift},
    {ID_PAGE_NUDGE_FAR_UP, VK_UP, kShift},
    {ID_PAGE_NUDGE_FAR_DOWN, VK_DOWN, kShift},
};

constexpr ToolInfo kTools[] = {
    {ID_TOOL_SELECT, DS_SELECT, Text::kToolSelect, Text::kHintSelect, L'V'},
    {ID_TOOL_RECTANGLE, DS_RECTANGLE, Text::kToolRectangle, Text::kHintRectangle, L'R'},
    {ID_TOOL_ELLIPSE, DS_ELLIPSE, Text::kToolEllipse, Text::kHintEllipse, L'E'},
    {ID_TOOL_LINE, DS_LINE, Text::kToolLine, Text::kHintLine, L'L'},
    {ID_TOOL_POLYLINE, DS_POLYLINE, Text::kToolPolyline, Text::kHintPolyline, L'P'},
    {ID_TOOL_TEXTBOX, DS_TEXTEDIT, Text::kToolTextBox, Text::kHintTextBox, L'T'},
    {ID_TOOL_PICTURE, kPictureTool, Text::kToolPicture, Text::kHintPicture, L'I'},
    {ID_TOOL_PEQ_CHART, DS_CHARTPEQ, Text::kToolPeqChart, Text::kHintControl, 0},
    {ID_TOOL_BAND_BUTTON, DS_BUTTONBAND, Text::kToolBandButton, Text::kHintControl, 0},
    {ID_TOOL_DEVICE_CHART, DS_CHARTDEVICE, Text::kToolDeviceChart, Text::kHintControl, 0},
    {ID_TOOL_DEVICE_BUTTON, DS_BUTTONDEVICE, Text::kToolDeviceButton, Text::kHintControl, 0},
    {ID_TOOL_LEVEL_CHART, DS_CHARTLEVEL, Text::kToolLevelChart, Text::kHintControl, 0},
    {ID_TOOL_LEVEL_BUTTON, DS_BUTTONLEVEL, Text::kToolLevelButton, Text::kHintControl, 0},
    {ID_TOOL_CROSSOVER, DS_STATECROSSOVER, Text::kToolCrossover, Text::kHintControl, 0},
    {ID_TOOL_GEQ_STATE, DS_STATEGEQ, Text::kToolGeqState, Text::kHintControl, 0},
    {ID_TOOL_PEQ_STATE, DS_STATEPEQ, Text::kToolPeqState, Text::kHintControl, 0},
};

// A menu of the menu bar: its items by command, 0 for a separator.
struct MenuLayout {
    Text title;
    std::vector<UINT> items;
};

std::vector<UINT> PagesLayout() {
    return {ID_PAGES_ADD,
            ID_PAGES_DUPLICATE,
            ID_PAGES_RENAME,
            ID_PAGES_REMOVE,
            0,
            ID_PAGES_MOVE_LEFT,
            ID_PAGES_MOVE_RIGHT,
            0,
            ID_PAGES_PREVIOUS,
            ID_PAGES_NEXT};
}

std::vector<UINT> ControlsLayout() {
    std::vector<UINT> items;
    for (const ToolInfo& tool : kTools) {
        if (IsControl(tool.kind))
            items.push_back(tool.command);
    }
    return items;
}

std::vector<MenuLayout> MenuBarLayout() {
    return {
        {Text::kMenuFile,
         {ID_FILE_NEW, ID_FILE_OPEN, 0, ID_FILE_SAVE, ID_FILE_SAVE_AS, 0, ID_DOCUMENT_EXPORT,
          ID_DOCUMENT_DEMO, 0, ID_APP_EXIT}},
        {Text::kMenuEdit,
         {ID_OBJECT_UNDO, ID_OBJECT_REDO, 0, ID_OBJECT_CUT, ID_OBJECT_COPY, ID_OBJECT_PASTE,
          ID_PAGE_DUPLICATE_OBJECTS, ID_OBJECT_DELETE, 0, ID_PAGE_SELECT_ALL}},
        {Text::kMenuView, {ID_PAGE_SHOW_GRID, ID_PAGE_SNAP_TO_GRID, 0, ID_VIEW_PROPERTIES, ID_VIEW_SYMBOLS}},
        {Text::kMenuInsert, {ID_TOOL_TEXTBOX, ID_TOOL_PICTURE, 0, ID_INSERT_EMBEDDED}},
        {Text::kMenuPage, PagesLayout()},
        {Text::kMenuMode, {ID_MODE_DRAW, ID_MODE_POLY, 0, ID_RUN_PAGES}},
        {Text::kMenuTools,
         {ID_TOOL_SELECT, 0, ID_TOOL_RECTANGLE, ID_TOOL_ELLIPSE, ID_TOOL_LINE, ID_TOOL_POLYLINE,
          ID_TOOL_TEXTBOX, ID_TOOL_PICTURE}},
        {Text::kMenuControls, ControlsLayout()},
        {Text::kMenuArrange,
         {ID_POSITION_FORWARD,
          ID_POSITION_BACKWARD,
          ID_POSITION_FRONT,
          ID_POSITION_BACK,
          0,
          ID_ROTATE_LEFT,
          ID_ROTATE_RIGHT,
          ID_PAGE_FLIP_H,
          ID_PAGE_FLIP_V,
          0,
          ID_GROUP_MAKE,
          ID_GROUP_UNMAKE,
          0,
          ID_ALIGN_LEFT,
          ID_ALIGN_RIGHT,
          ID_ALIGN_TOP,
          ID_ALIGN_BOTTOM,
          ID_ALIGN_VCENTER,
          ID_ALIGN_HCENTER,
          ID_ALIGN_CENTER,
          0,
          ID_PAGE_DISTRIBUTE_H,
          ID_PAGE_DISTRIBUTE_V}},
        {Text::kMenuHelp, {ID_APP_ABOUT}},
    };
}

const Command* FindCommand(UINT id) {
    for (const Command& command : kCommands) {
        if (command.id == id)
            return &command;
    }
    return nullptr;
}

CString KeyName(const Command& command) {
    CString name;
    if (command.modifiers & kCtrl)
        name += L"Ctrl+";
    if (command.modifiers & kShift)
        name += L"Shift+";
    if (command.key == VK_DELETE)
        name += L"Del";
    else if (command.key == VK_PRIOR || command.key == VK_NEXT)
        name += command.key == VK_PRIOR ? L"PgUp" : L"PgDn";
    else if (command.key >= VK_F1 && command.key <= VK_F24)
        name.AppendFormat(L"F%d", command.key - VK_F1 + 1);
    else
        name += static_cast<WCHAR>(command.key);
    return name;
}

void AppendItem(HMENU menu, UINT command) {
    if (command)
        ::AppendMenu(menu, MF_STRING, command, CommandText(command));
    else
        ::AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
}

HMENU CreatePopup(const std::vector<UINT>& items) {
    HMENU popup = ::CreatePopupMenu();
    for (UINT command : items)
        AppendItem(popup, command);
    return popup;
}

}  // namespace

std::span<const ToolInfo> Tools() {
    return kTools;
}

const ToolInfo& ToolOfKind(DrawShape kind) {
    for (const ToolInfo& tool : kTools) {
        if (tool.kind == kind)
            return tool;
    }
    return kTools[0];
}

CString CommandText(UINT id) {
    const Command* command = FindCommand(id);
    CString text;
    if (command)
        text = GetText(command->text);
    if (command && command->key)
        text += L"\t" + KeyName(*command);
    return text;
}

HMENU CreateMenuBar() {
    HMENU bar = ::CreateMenu();
    for (const MenuLayout& layout : MenuBarLayout()) {
        HMENU popup = CreatePopup(layout.items);
        ::AppendMenu(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), GetText(layout.title));
    }
    return bar;
}

HMENU CreatePagesMenu() {
    return CreatePopup(PagesLayout());
}

void TranslateMenu(HMENU menu) {
    const int count = ::GetMenuItemCount(menu);
    for (int item = 0; item < count; ++item) {
        const UINT id = ::GetMenuItemID(menu, item);
        if (FindCommand(id))
            ::ModifyMenu(menu, item, MF_BYPOSITION | MF_STRING, id, CommandText(id));
    }
}

HACCEL CreateAccelerators() {
    std::vector<ACCEL> keys;
    const auto add = [&](UINT id, WORD key, BYTE modifiers) {
        keys.push_back({static_cast<BYTE>(FVIRTKEY | modifiers), key, static_cast<WORD>(id)});
    };
    for (const Command& command : kCommands) {
        if (command.key)
            add(command.id, command.key, command.modifiers);
    }
    for (const auto& hidden : kHiddenKeys)
        add(hidden.id, hidden.key, hidden.modifiers);
    return ::CreateAcceleratorTable(keys.data(), static_cast<int>(keys.size()));
}

HACCEL CreateRunAccelerators() {
    ACCEL keys[] = {{FVIRTKEY, VK_F5, ID_RUN_PAGES}, {FVIRTKEY, VK_ESCAPE, ID_RUN_ESCAPE}};
    return ::CreateAcceleratorTable(keys, static_cast<int>(std::size(keys)));
}

}  // namespace Studio
