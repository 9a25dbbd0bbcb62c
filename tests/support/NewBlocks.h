// The objects that `new` makes in any module of the process.
#pragma once

#include <string>

namespace NewBlocks {

/// Goes between the C++ run-time library and the heap of the C run-time library.
void Install();

/// Notes what is made from now on.
void Begin();

/// Ends that. What was made and is still there: a line a class, empty when there is nothing. Only objects
/// with virtual functions count, since they alone tell their class; room that containers keep does not.
std::string End();

}  // namespace NewBlocks
