#include "SelfTest.h"

#include "GuardHeap.h"
#include "Supervisor.h"

#include <afxwin.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>

namespace {

// Beyond what the compiler can see through.
volatile size_t one = 1;
volatile char seen;

void WriteBeyondNew() {
    const std::unique_ptr<char[]> block(new char[100]);
    std::memset(block.get(), 1, 100 + one);
}

void ReadBeyondLibraryBlock() {
    CMemFile file(1024);  // the class library takes the memory
    file.Write("x", 1);
    BYTE* block = file.Detach();
    seen = static_cast<char>(block[1023 + one]);
    std::free(block);
}

void ReadFreedText() {
    CString text(L"a text");
    const wchar_t* letters = text;
    text.Empty();
    seen = static_cast<char>(letters[one]);
}

void WriteFreedBlock() {
    char* volatile block = static_cast<char*>(std::malloc(48));
    std::free(block);
    block[one] = 1;
}

void FreeTwice() {
    void* block = std::malloc(48 + one);
    void* const volatile again = block;
    std::free(block);
    std::free(again);
}

void WriteBefore() {
    char* volatile block = static_cast<char*>(std::malloc(48));
    block[-static_cast<ptrdiff_t>(one)] = 1;
    std::free(block);
}

void UseRightly() {
    for (size_t size = 0; size < 9000; size += 7) {
        void* block = std::malloc(size);
        std::memset(block, 1, size);
        block = std::realloc(block, size + 100);
        std::memset(block, 2, size + 100);
        std::free(block);
    }
    CString text(L"a text");
    for (int i = 0; i < 1000; ++i)
        text += L"more";
}

constexpr struct {
    const char* name;
    void (*commit)();
    DWORD code;
} kCases[] = {
    {"sound use", UseRightly, 0},
    {"a byte written beyond a block", WriteBeyondNew, EXCEPTION_ACCESS_VIOLATION},
    {"a byte read beyond a block of the class library", ReadBeyondLibraryBlock, EXCEPTION_ACCESS_VIOLATION},
    {"a freed text read", ReadFreedText, EXCEPTION_ACCESS_VIOLATION},
    {"a freed block written", WriteFreedBlock, EXCEPTION_ACCESS_VIOLATION},
    {"a block freed twice", FreeTwice, guard::kHeapDamage},
    {"a byte written before a block", WriteBefore, guard::kHeapDamage},
};

}  // namespace

int TestHeap() {
    int wrong = 0;
    for (size_t i = 0; i < std::size(kCases); ++i) {
        const DWORD code = RunSelf(L"--commit " + std::to_wstring(i), 30000);
        const bool right = code == kCases[i].code;
        std::printf("%s: %s (%08lx)\n", kCases[i].name, right ? "as it should be" : "NOT STOPPED", code);
        wrong += right ? 0 : 1;
    }
    return wrong == 0 ? 0 : 1;
}

int CommitFault(int fault) {
    if (fault < 0 || fault >= static_cast<int>(std::size(kCases)))
        return 2;
    kCases[fault].commit();
    return 0;
}
