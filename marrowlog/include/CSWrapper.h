// CCSWrapper, a critical section that may be a member of copyable classes.
#pragma once

#include <windows.h>

#include <MarrowLogExport.h>

/// A critical section: lets one thread in at a time, the same thread as often as it likes. A copy is a
/// section of its own that nobody is in; assigning changes neither section.
class MARROWLOG_CLASS CCSWrapper {
public:
    CCSWrapper();
    /// A section of its own that nobody is in; the assignment changes nothing.
    CCSWrapper(const CCSWrapper&);
    CCSWrapper& operator=(const CCSWrapper&);
    ~CCSWrapper();

    /// Waits until the section is free and enters it; every Lock needs an Unlock of the same thread.
    void Lock();
    /// Enters the section if it is free; FALSE when it is not.
    BOOL TryLock();
    /// Leaves the section once; only for the thread that is in it.
    void Unlock();

private:
    CRITICAL_SECTION m_section;
};

/// Keeps a section entered for the length of a scope.
class CCSLock {
public:
    /// Enters `section`, which must outlive this object.
    explicit CCSLock(CCSWrapper& section) : m_section(section) { m_section.Lock(); }
    ~CCSLock() { m_section.Unlock(); }

    CCSLock(const CCSLock&) = delete;
    CCSLock& operator=(const CCSLock&) = delete;

private:
    CCSWrapper& m_section;
};
