// Studio's commands: identifier, text and key of each, and the menus made of them.
#pragma once

#include "canvas/CanvasCommands.h"
#include "core/DrawShape.h"
#include "studio/app/Texts.h"

#include <afxres.h>

#include <span>

namespace Studio {

/// Commands on the page that the library's popup menu does not have.
enum PageCommandId : UINT {
    ID_PAGE_FIRST = 6601,
    ID_TOOL_TEXTBOX = ID_PAGE_FIRST,
    ID_PAGE_SELECT_ALL,
    ID_PAGE_ESCAPE,
    ID_PAGE_FINISH,
    ID_PAGE_NUDGE_LEFT,
    ID_PAGE_NUDGE_RIGHT,
    ID_PAGE_NUDGE_UP,
    ID_PAGE_NUDGE_DOWN,
    ID_PAGE_NUDGE_FAR_LEFT,
    ID_PAGE_NUDGE_FAR_RIGHT,
    ID_PAGE_NUDGE_FAR_UP,
    ID_PAGE_NUDGE_FAR_DOWN,
    ID_PAGE_DUPLICATE_OBJECTS,
    ID_PAGE_DISTRIBUTE_H,
    ID_PAGE_DISTRIBUTE_V,
    ID_PAGE_FLIP_H,
    ID_PAGE_FLIP_V,
    ID_PAGE_SHOW_GRID,
    ID_PAGE_SNAP_TO_GRID,
    ID_TOOL_PICTURE,
    ID_TOOL_PEQ_CHART,
    ID_TOOL_BAND_BUTTON,
    ID_TOOL_DEVICE_CHART,
    ID_TOOL_DEVICE_BUTTON,
    ID_TOOL_LEVEL_CHART,
    ID_TOOL_LEVEL_BUTTON,
    ID_TOOL_CROSSOVER,
    ID_TOOL_GEQ_STATE,
    ID_TOOL_PEQ_STATE,
    ID_PAGE_LAST = ID_TOOL_PEQ_STATE,
};

/// Commands of the frame.
enum FrameCommandId : UINT {
    ID_VIEW_PROPERTIES = 6690,
    ID_RUN_PAGES,
    ID_RUN_ESCAPE,
    ID_INSERT_EMBEDDED,
};

/// Commands on the pages and files of the document, and on what the frame shows.
enum DocumentCommandId : UINT {
    ID_PAGES_FIRST = 6701,
    ID_PAGES_ADD = ID_PAGES_FIRST,
    ID_PAGES_DUPLICATE,
    ID_PAGES_REMOVE,
    ID_PAGES_RENAME,
    ID_PAGES_MOVE_LEFT,
    ID_PAGES_MOVE_RIGHT,
    ID_PAGES_PREVIOUS,
    ID_PAGES_NEXT,
    ID_PAGES_LAST = ID_PAGES_NEXT,
    ID_DOCUMENT_EXPORT,
    ID_DOCUMENT_DEMO,
    ID_VIEW_SYMBOLS,
};

/// A drawing tool: command, shape kind, name, what it waits for, key (0 for none).
struct ToolInfo {
    UINT command;
    Lumo::DrawShape kind;
    Text name;
    Text hint;
    WCHAR key;
};

/// All tools in the order of the toolbox.
std::span<const ToolInfo> Tools();

/// The tool of a shape kind; the select tool for a kind that has none.
const ToolInfo& ToolOfKind(Lumo::DrawShape kind);

/// Text of a command with its key behind a tab: "&Open...\tCtrl+O"; empty for an unknown command.
CString CommandText(UINT command);

/// A new menu bar; the caller destroys it or gives it to a window.
HMENU CreateMenuBar();

/// A new popup menu of the commands on pages; the caller destroys it.
HMENU CreatePagesMenu();

/// Gives the items of a popup menu Studio's texts; items of unknown commands keep theirs.
void TranslateMenu(HMENU menu);

/// A new accelerator table of all keys; the caller destroys it.
HACCEL CreateAccelerators();

/// A new accelerator table of the keys that work while the pages run; the caller destroys it.
HACCEL CreateRunAccelerators();

}  // namespace Studio
