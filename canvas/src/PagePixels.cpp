#include "canvas/src/PagePixels.h"

#include <utility>

namespace Lumo {

namespace {

constexpr size_t kWasteful = 4;  // memory this many times larger than needed is let go

std::vector<DWORD>& Spare() {
    static std::vector<DWORD> spare;
    return spare;
}

}  // namespace

std::vector<DWORD> PagePixels::Borrow(const CSize& size) {
    std::vector<DWORD> memory = std::exchange(Spare(), {});
    const size_t needed = static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy);
    if (memory.size() < needed || memory.size() > kWasteful * needed)
        memory = std::vector<DWORD>(needed);
    return memory;
}

PagePixels::PagePixels(const CSize& size)
    : m_size(size),
      m_memory(Borrow(size)),
      m_whole(size.cx, size.cy, Stride(), PixelFormat32bppPARGB, reinterpret_cast<BYTE*>(m_memory.data())) {}

PagePixels::~PagePixels() {
    Spare() = std::move(m_memory);
}

}  // namespace Lumo
