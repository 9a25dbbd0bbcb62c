// A folder for everything that a run writes, and settings of its own.
#pragma once

#include <afxwin.h>

#include <cstdint>

namespace monkey {

/// Makes the folder and leads the user's settings and local application data there, so that nothing of the
/// user's is read or changed. All of it goes with the object. Each run of a seed begins alike: the folder,
/// whose name is stored in what the run makes, is always the same (a second run at the same time is refused
/// with `Broken`), the clipboard is empty and the pointer in the corner of the screen.
class Scratch {
public:
    Scratch(const char* subject, std::uint64_t seed);
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const CString& Folder() const { return m_folder; }

private:
    HANDLE m_held;
    CString m_folder;
    CString m_key;
};

}  // namespace monkey
