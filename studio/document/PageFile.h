// A document's file: a header that tells what it is, and the contents with their length and checksum.
#pragma once

#include "studio/document/ObjectArchive.h"

#include <functional>

namespace Studio {

/// Writes a file whole or not at all: `store` fills a new file beside `path`, which replaces an old one only
/// when it is complete and on the disk. Raises the exceptions of file and archive and `FileFault`; the old
/// file is as it was then.
void WritePageFile(const CString& path, const std::function<void(CArchive&)>& store);

/// Opens `path`, checks header, length and checksum, and lets `load` read the contents, which were written in
/// `version` (1 to `kArchiveVersion`). Raises the exceptions of file and archive and `FileFault`.
void ReadPageFile(const CString& path, const std::function<void(CArchive& ar, DWORD version)>& load);

/// Writes any file whole or not at all: `write` fills the file it is given, which replaces an old one when it
/// is on the disk. Raises what `write` raises, and the exceptions of files.
void WriteWholeFile(const CString& path, const std::function<void(CFile& file)>& write);

/// The full path of a file name, against the current folder.
CString FullPath(const CString& path);

}  // namespace Studio
