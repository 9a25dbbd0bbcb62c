// A folder for everything that a run writes, and settings of its own.
#pragma once

#include <afxwin.h>

#include <cstdint>

namespace monkey {

/// Makes the folder and leads the user's settings and local application data there, so that nothing of the
/// user's is read or changed. All of it goes with the object. Its name
/// is stored in what the run makes, so it is the same for each run of a seed; a second one at the same time
/// is refused with `Broken`.
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
