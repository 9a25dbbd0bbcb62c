#include "GuardHeap.h"

#include "stress/support/Imports.h"

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace guard {

namespace {

constexpr size_t kPage = 4096;
constexpr size_t kRange = size_t(64) << 30;
constexpr size_t kRecordStep = size_t{64} * 1024;
// Nothing that is read here needs as much: a load that asks for more is out of hand.
constexpr size_t kLargest = size_t(256) << 20;
constexpr unsigned char kUnset = 0xCD;   // contents of a new block
constexpr unsigned char kBeside = 0xFB;  // what lies between a block and its pages' borders
constexpr size_t kBesideChecked = 64;

// What is known of the block that begins in a page.
struct Record {
    UINT32 size;
    bool live;
};

struct Heap {
    SRWLOCK lock = SRWLOCK_INIT;
    char* range = nullptr;
    Record* records = nullptr;
    size_t recordsReady = 0;  // pages whose records have memory
    size_t next = 0;          // page at which the search for room begins
    Usage live = {};
    size_t peak = 0;
    size_t base = 0;
} heap;

class Lock {
public:
    Lock() { ::AcquireSRWLockExclusive(&heap.lock); }
    ~Lock() { ::ReleaseSRWLockExclusive(&heap.lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
};

[[noreturn]] void Stop(DWORD code) {
    ::RaiseException(code, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    std::abort();
}

size_t PagesOf(size_t size) {
    return std::max<size_t>((size + kPage - 1) / kPage, 1);
}

// The strictest place that the alignment of whatever has this size allows.
size_t AlignmentOf(size_t size) {
    return std::min<size_t>(size ? size & (~size + 1) : 1, 16);
}

bool Holds(const void* block) {
    const char* at = static_cast<const char*>(block);
    return heap.range && at >= heap.range && at < heap.range + kRange;
}

Record& RecordOf(const void* block) {
    return heap.records[(static_cast<const char*>(block) - heap.range) / kPage];
}

bool ReadyRecords(size_t pages) {
    while (heap.recordsReady < pages) {
        char* at = reinterpret_cast<char*>(heap.records + heap.recordsReady);
        if (!::VirtualAlloc(at, kRecordStep, MEM_COMMIT, PAGE_READWRITE))
            return false;
        heap.recordsReady += kRecordStep / sizeof(Record);
    }
    return true;
}

// Pages that are free, and one behind them; the oldest come first when the range has been used up once.
char* TakePages(size_t pages) {
    constexpr size_t kPages = kRange / kPage;
    if (heap.next + pages + 1 > kPages)
        heap.next = 0;
    for (size_t free = 0; free < pages + 1;) {
        const size_t page = heap.next + free;
        if (page >= kPages || !ReadyRecords(page + 1))
            return nullptr;
        if (heap.records[page].live) {
            heap.next = page + PagesOf(heap.records[page].size) + 1;
            free = 0;
        } else {
            ++free;
        }
    }
    char* taken = heap.range + heap.next * kPage;
    heap.next += pages + 1;
    return ::VirtualAlloc(taken, pages * kPage, MEM_COMMIT, PAGE_READWRITE) ? static_cast<char*>(taken)
                                                                            : nullptr;
}

void* Take(size_t size, size_t alignment) {
    if (size > kLargest)
        Stop(kHeapRunaway);
    const Lock lock;
    const size_t pages = PagesOf(size);
    char* first = TakePages(pages);
    if (!first)
        return nullptr;
    char* const end = first + pages * kPage;
    char* const block = end - (std::max<size_t>(size, 1) + alignment - 1) / alignment * alignment;
    std::memset(std::max(first, block - kBesideChecked), kBeside,
                end - std::max(first, block - kBesideChecked));
    std::memset(block, kUnset, size);
    RecordOf(block) = {static_cast<UINT32>(size), true};
    ++heap.live.blocks;
    heap.live.bytes += size;
    heap.peak = std::max(heap.peak, heap.live.bytes);
    return block;
}

bool IsUntouched(const char* from, const char* to) {
    return std::all_of(from, to, [](char byte) { return static_cast<unsigned char>(byte) == kBeside; });
}

void Return(void* memory) {
    char* const block = static_cast<char*>(memory);
    const Lock lock;
    Record& record = RecordOf(block);
    if (!record.live)
        Stop(kHeapDamage);
    const size_t pages = PagesOf(record.size);
    char* const first = heap.range + (block - heap.range) / kPage * kPage;
    char* const end = first + pages * kPage;
    if (!IsUntouched(std::max(first, block - kBesideChecked), block) ||
        !IsUntouched(block + record.size, end))
        Stop(kHeapDamage);
    record.live = false;
    --heap.live.blocks;
    heap.live.bytes -= record.size;
    ::VirtualFree(first, pages * kPage, MEM_DECOMMIT);
}

void* Malloc(size_t size) {
    return Take(size, AlignmentOf(size));
}

void* Calloc(size_t count, size_t size) {
    size_t all = 0;
    void* block = __builtin_mul_overflow(count, size, &all) ? nullptr : Malloc(all);
    return block ? std::memset(block, 0, all) : nullptr;
}

void (*systemFree)(void*);
void* (*systemRealloc)(void*, size_t);

void Free(void* block) {
    if (Holds(block))
        Return(block);
    else
        systemFree(block);
}

void* Realloc(void* block, size_t size) {
    if (!block)
        return Malloc(size);
    if (!Holds(block))
        return systemRealloc(block, size);
    void* moved = Malloc(size);
    if (moved) {
        std::memcpy(moved, block, std::min<size_t>(size, RecordOf(block).size));
        Return(block);
    }
    return moved;
}

}  // namespace

void Install() {
    heap.range = static_cast<char*>(::VirtualAlloc(nullptr, kRange, MEM_RESERVE, PAGE_NOACCESS));
    heap.records = static_cast<Record*>(
        ::VirtualAlloc(nullptr, kRange / kPage * sizeof(Record), MEM_RESERVE, PAGE_READWRITE));
    const HMODULE system = ::GetModuleHandle(L"msvcrt.dll");
    systemFree =
        reinterpret_cast<decltype(systemFree)>(reinterpret_cast<void*>(::GetProcAddress(system, "free")));
    systemRealloc = reinterpret_cast<decltype(systemRealloc)>(
        reinterpret_cast<void*>(::GetProcAddress(system, "realloc")));
    if (!heap.range || !heap.records || !systemFree || !systemRealloc)
        std::abort();
    for (LPCWSTR module :
         {L"libstdc++-6.dll", L"TesselAfx.dll", L"MarrowLog.dll", L"TesselCtrls.dll", LPCWSTR()}) {
        ReplaceImport(module, "malloc", &Malloc);
        ReplaceImport(module, "calloc", &Calloc);
        ReplaceImport(module, "realloc", &Realloc);
        ReplaceImport(module, "free", &Free);
    }
}

Usage Live() {
    const Lock lock;
    return heap.live;
}

void WatchPeak() {
    const Lock lock;
    heap.peak = heap.base = heap.live.bytes;
}

size_t Peak() {
    const Lock lock;
    return heap.peak - heap.base;
}

}  // namespace guard
