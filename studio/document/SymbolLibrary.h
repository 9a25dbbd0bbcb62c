// Symbols: pages in a folder that are put on other pages as one object.
#pragma once

#include "studio/document/PageContents.h"

namespace Studio {

/// The symbols of a folder: full paths of its page files, sorted by name. Empty when there are none.
std::vector<CString> FindSymbols(const CString& folder);

/// The folder "symbols" beside the program.
CString DefaultSymbolFolder();

/// The name of a symbol: its file name without folder and extension.
CString SymbolName(const CString& path);

/// Reads a symbol into one object with its corner at the origin: a group of everything on the file's first
/// page, or the object itself when it is the only one. Raises `FileFault`, also for an empty page, and the
/// exceptions of files.
ObjectPtr LoadSymbol(const CString& path);

/// Writes the symbols that Studio comes with into a folder, which is made when it is not there. Raises
/// `FileFault` and the exceptions of files.
void WriteStandardSymbols(const CString& folder);

}  // namespace Studio
