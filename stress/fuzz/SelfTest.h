// Proof that faults of memory stop the program at once.
#pragma once

/// Commits each kind of fault in a process of its own; 0 when every one is stopped and sound use is not.
int TestHeap();

/// The child's part: uses memory rightly (0) or commits one of the faults.
int CommitFault(int fault);
