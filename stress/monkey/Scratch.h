// A folder for everything that a run writes, and settings of its own.
#pragma once

#include <afxwin.h>

namespace monkey {

/// Makes the folder and leads the user's settings and local application data there, so that nothing of the
/// user's is read or changed. All of it goes with the object.
class Scratch {
public:
    Scratch();
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const CString& Folder() const { return m_folder; }

private:
    CString m_folder;
    CString m_key;
};

}  // namespace monkey
