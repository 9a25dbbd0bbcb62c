// What a file holds, as text.
#pragma once

#include <afxwin.h>

namespace Studio {

/// A report on a file: whether it is sound, and its pages and objects line by line, children indented.
struct FileReport {
    bool sound;
    CString text;
};

/// Reads a file and reports.
FileReport ReportFile(const CString& path);

}  // namespace Studio
