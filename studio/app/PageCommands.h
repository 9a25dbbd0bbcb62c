// Carries out the commands of the menus and keys on a page.
#pragma once

#include "studio/editing/StudioCanvas.h"

namespace Studio {

/// Whether a command can be carried out on the page as it is now.
bool IsPageCommandEnabled(StudioCanvas& page, UINT command);

/// Whether a command is a choice that is in force: the current tool or mode.
bool IsPageCommandChecked(StudioCanvas& page, UINT command);

/// Text of a command that depends on the page, with its key: "&Undo Move\tCtrl+Z"; empty for other commands.
CString PageCommandText(StudioCanvas& page, UINT command);

/// Carries out a command; an unknown one does nothing. A gesture or editor that is open is finished first.
void RunPageCommand(StudioCanvas& page, UINT command);

}  // namespace Studio
