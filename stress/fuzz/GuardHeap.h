// A heap that makes memory faults stop the program where they happen: each block ends at a page that cannot
// be touched, and the pages of a freed block cannot be touched either until the whole of a very large address
// range has been used.
#pragma once

#include <cstddef>

namespace guard {

/// Makes the modules of this program take their memory from here from now on. Blocks that are there already
/// go back to where they came from.
void Install();

/// What is allocated now.
struct Usage {
    size_t blocks;
    size_t bytes;
};
Usage Live();

/// Bytes in use at most since `WatchPeak`, beyond what was in use then.
void WatchPeak();
size_t Peak();

/// The exception code with which a fault that is found later, when the block is freed, stops the program:
/// bytes beside the block were written, or it was freed before.
inline constexpr unsigned long kHeapDamage = 0xE0000001;
/// The one with which a block stops it that is larger than anything here has a reason to be.
inline constexpr unsigned long kHeapRunaway = 0xE0000002;

}  // namespace guard
