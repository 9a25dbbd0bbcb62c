// What tests leave behind: objects, graphics objects of the system, blocks of global memory.
#pragma once

/// Runs the tests. Those that left something are run up to twice more: what is made once and kept, a
/// font or a table, is not made again, so what is left every time is a leak. It is named and fails the
/// program. Returns the program's exit code.
int RunTestsAndCountLeaks();
