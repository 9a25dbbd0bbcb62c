// A bounded stack of snapshots of one object, with a task name for each.
#pragma once

#include "core/Platform.h"

namespace Lumo {

class CUIObject;

/// The book-keeping of an undo store: capacity, count, task names and the menu text. `Push` and `Pop` are
/// empty on purpose; a host defines what a snapshot holds.
class TESSEL_API CUndoStack {
public:
    /// A stack for `owner` (not owned) with room for `capacity` snapshots; a negative capacity acts as 0.
    CUndoStack(CUIObject* owner, int capacity);

    /// Frees the stored snapshots.
    ~CUndoStack();

    CUndoStack(const CUndoStack&) = delete;
    CUndoStack& operator=(const CUndoStack&) = delete;

    /// Does nothing; `task` is the name that the menu would show.
    void Push(const char* task);

    /// Does nothing.
    void Pop();

    /// Number of stored snapshots.
    int GetCount() const { return m_nCount; }

    /// Menu text of the next undo step: "Undo ", the newest task name and "\tCtrl+Z". Empty when there is
    /// no task.
    CString GetLastTask() const;

private:
    friend class CUndoStackTest;

    void FreeSnapshots();
    void RemoveAll();
    void RemoveFirst();

    CUIObject* m_pOwner;
    void** m_ppSnapshots;
    DWORD m_dwSnapshotSize = 0;
    CStringList m_tasks;
    int m_nCapacity;
    int m_nCount = 0;
};

}  // namespace Lumo
