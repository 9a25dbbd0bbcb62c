// Keys that mean the same in every field that text is typed into.
#pragma once

#include <afxwin.h>

namespace Studio {

/// Ctrl+A selects all of the text in a field, also in one of several lines. Saving, opening and running are
/// keys of the frame wherever text is being typed: they end the typing. True when the message is done with.
bool TakeTextKey(MSG& message, CFrameWnd& frame);

}  // namespace Studio
