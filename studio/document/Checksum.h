// The checksum of a file's contents.
#pragma once

#include <afx.h>

namespace Studio {

/// CRC-32 (polynomial EDB88320, as in zip files) of what `file` holds from `offset` to its end. Raises the
/// file's exceptions.
DWORD FileChecksum(CFile& file, ULONGLONG offset);

/// Continues a CRC-32 with more bytes; the first call gets 0.
DWORD UpdateChecksum(DWORD checksum, const void* data, size_t size);

}  // namespace Studio
