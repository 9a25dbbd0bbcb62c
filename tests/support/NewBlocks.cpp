#include "tests/support/NewBlocks.h"

#include <windows.h>

#include <cxxabi.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <typeinfo>
#include <unordered_map>

namespace NewBlocks {

namespace {

// Takes from the C run-time library itself: what is noted must not note itself.
template <class T>
struct Plain {
    using value_type = T;
    Plain() = default;
    template <class U>
    Plain(const Plain<U>&) {}
    T* allocate(size_t count) {
        return static_cast<T*>(std::malloc(count * sizeof(T)));  // NOLINT(bugprone-sizeof-expression)
    }
    void deallocate(T* block, size_t) { std::free(block); }
    friend bool operator==(const Plain&, const Plain&) { return true; }
};

// The sizes of the blocks.
using Blocks = std::unordered_map<const void*, size_t, std::hash<const void*>, std::equal_to<>,
                                  Plain<std::pair<const void* const, size_t>>>;

struct Notes {
    std::mutex lock;
    bool on = false;
    Blocks blocks;
};

// Never destroyed: blocks are given back until the very end.
Notes& TheNotes() {
    alignas(Notes) static BYTE room[sizeof(Notes)];
    static auto* notes = new (room) Notes;
    return *notes;
}

void* Malloc(size_t size) {
    void* block = std::malloc(size);
    Notes& notes = TheNotes();
    const std::lock_guard guard(notes.lock);
    if (notes.on && block)
        notes.blocks[block] = size;
    return block;
}

void Free(void* block) {
    {
        Notes& notes = TheNotes();
        const std::lock_guard guard(notes.lock);
        notes.blocks.erase(block);
    }
    std::free(block);
}

// Replaces a function that a module imports.
void Redirect(HMODULE module, const char* name, void* to) {
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(
        base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* from = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports); from->Name; ++from) {
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + from->OriginalFirstThunk);
        auto* places = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++places) {
            const auto* import =
                reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal) || std::strcmp(import->Name, name) != 0)
                continue;
            DWORD before;
            ::VirtualProtect(places, sizeof *places, PAGE_READWRITE, &before);
            places->u1.Function = reinterpret_cast<ULONGLONG>(to);
            ::VirtualProtect(places, sizeof *places, before, &before);
        }
    }
}

bool IsInModule(const void* address) {
    HMODULE module;
    return address && reinterpret_cast<UINT_PTR>(address) % alignof(void*) == 0 &&
           ::GetModuleHandleEx(
               GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
               static_cast<LPCWSTR>(address), &module) != FALSE;
}

// Descriptions of classes are objects of one of three classes themselves: of a class without bases, with one
// and with several.
bool IsDescription(const void* info) {
    struct Alone {
        virtual ~Alone() = default;
    };
    struct Other {
        virtual ~Other() = default;
    };
    struct Single : Alone {};
    struct Several : Alone, Other {};
    const auto tableOf = [](const void* object) { return *static_cast<const void* const*>(object); };
    return tableOf(info) == tableOf(&typeid(Alone)) || tableOf(info) == tableOf(&typeid(Single)) ||
           tableOf(info) == tableOf(&typeid(Several));
}

// The class of the object in a block, which its table of virtual functions tells; empty for other blocks.
std::string ClassOf(const void* block, size_t size) {
    if (size < sizeof(void*))
        return {};
    const auto* const* table = *static_cast<const void* const* const*>(block);
    if (!IsInModule(table) || !IsInModule(table - 1) || !IsInModule(table[-1]) || !IsDescription(table[-1]))
        return {};
    const char* name = static_cast<const std::type_info*>(table[-1])->name();
    char* readable = abi::__cxa_demangle(name, nullptr, nullptr, nullptr);
    std::string result = readable ? readable : name;
    std::free(readable);
    return result;
}

// What the libraries of C++ and of the tests keep is not ours.
bool IsForeign(const std::string& name) {
    return name.empty() || name.starts_with("std::") || name.starts_with("testing::");
}

}  // namespace

void Install() {
    const HMODULE library = ::GetModuleHandle(L"libstdc++-6.dll");
    Redirect(library, "malloc", reinterpret_cast<void*>(&Malloc));
    Redirect(library, "free", reinterpret_cast<void*>(&Free));
}

void Begin() {
    Notes& notes = TheNotes();
    const std::lock_guard guard(notes.lock);
    notes.on = true;
    notes.blocks.clear();
}

std::string End() {
    Blocks left;
    {
        Notes& notes = TheNotes();
        const std::lock_guard guard(notes.lock);
        notes.on = false;
        left.swap(notes.blocks);
    }
    std::map<std::string, int> classes;
    for (const auto& [block, size] : left) {
        if (const std::string name = ClassOf(block, size); !IsForeign(name))
            ++classes[name];
    }
    std::string lines;
    for (const auto& [name, count] : classes)
        lines += "  " + std::to_string(count) + " " + name + "\n";
    return lines;
}

}  // namespace NewBlocks
