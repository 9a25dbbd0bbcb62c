// What is attacked: everything that reads bytes from outside.
#pragma once

#include "Mutation.h"

#include <afxadv.h>
#include <afxwin.h>

#include <functional>
#include <string>

/// Something that must not happen, whatever the bytes are.
struct Fault {
    std::string what;
};

inline void Require(bool holds, const char* otherwise) {
    if (!holds)
        throw Fault{otherwise};
}

struct Loader {
    std::string name;
    /// Inputs that it gets of a round of thousands, in relation to the others.
    int share;
    /// Sound inputs, from which hostile ones are made.
    std::vector<Bytes> seeds;
    /// Loads an input, and checks what came of it; with `use` also works with it. True when it was loaded,
    /// false when it was refused. Throws `Fault`.
    std::function<bool(const Bytes& input, bool use)> load;
    /// Repairs what would hide a change behind a checksum; may be empty.
    std::function<void(Bytes& input)> seal = {};
};

/// All loaders. The first call makes seeds and windows; GDI+ and the class library must have been started.
const std::vector<Loader>& Loaders();

void AddLibraryLoaders(std::vector<Loader>& loaders);
void AddPreferenceLoaders(std::vector<Loader>& loaders);
void AddStudioLoaders(std::vector<Loader>& loaders);
void AddFileLoaders(std::vector<Loader>& loaders);

/// What `store` writes to an archive.
template <class Store>
Bytes Stored(Store store) {
    CMemFile file(16 * 1024);
    CArchive ar(&file, CArchive::store);
    store(ar);
    ar.Close();
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// Has `load` read an archive of the bytes. False for the archive's own refusal; every other exception passes
/// on. `left` tells whether there were bytes that nobody read.
template <class Load>
bool Loads(const Bytes& bytes, Load load, bool* left = nullptr) {
    CMemFile file(const_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    // The buffer's end falls on another place in every input.
    CArchive ar(&file, CArchive::load, 128 + static_cast<int>(bytes.size() % 61 * 16));
    try {
        load(ar);
    } catch (CArchiveException* refused) {
        refused->Delete();
        return false;
    }
    BYTE beyond;
    if (left)
        *left = ar.Read(&beyond, 1) != 0;
    return true;
}

/// What is stored must be loaded whole and give the same bytes again, whether the load before succeeded or
/// not.
template <class Record, class Make>
void RequireLasting(Record& record, Make make) {
    const Bytes first = Stored([&](CArchive& ar) { record.Serialize(ar); });
    const auto again = make();
    bool left = true;
    Require(Loads(
                first, [&](CArchive& ar) { again->Serialize(ar); }, &left),
            "what was saved is refused");
    Require(!left, "what was saved is not read to its end");
    Require(Stored([&](CArchive& ar) { again->Serialize(ar); }) == first,
            "what was saved comes back changed");
}
