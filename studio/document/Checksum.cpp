#include "studio/document/Checksum.h"

#include <array>
#include <vector>

namespace Studio {

namespace {

constexpr std::array<DWORD, 256> MakeTable() {
    std::array<DWORD, 256> table{};
    for (DWORD byte = 0; byte < 256; ++byte) {
        DWORD value = byte;
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1 ? 0xEDB88320u ^ (value >> 1) : value >> 1;
        table[byte] = value;
    }
    return table;
}

constexpr auto kTable = MakeTable();

}  // namespace

DWORD UpdateChecksum(DWORD checksum, const void* data, size_t size) {
    const auto* bytes = static_cast<const BYTE*>(data);
    DWORD value = ~checksum;
    for (size_t i = 0; i < size; ++i)
        value = kTable[(value ^ bytes[i]) & 0xFF] ^ (value >> 8);
    return ~value;
}

DWORD FileChecksum(CFile& file, ULONGLONG offset) {
    std::vector<BYTE> buffer(size_t{64} * 1024);
    file.Seek(static_cast<LONGLONG>(offset), CFile::begin);
    DWORD checksum = 0;
    while (const UINT size = file.Read(buffer.data(), static_cast<UINT>(buffer.size())))
        checksum = UpdateChecksum(checksum, buffer.data(), size);
    return checksum;
}

}  // namespace Studio
