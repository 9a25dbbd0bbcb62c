// What was sent last, and the report of a failure.
#pragma once

#include <cstdint>
#include <string>

namespace monkey {

/// Starts the journal of a run and takes over what would end the program: a crash, a failed assertion of the
/// standard library, a message that is not answered within a minute. All of them are reported as a failure
/// is.
void StartJournal(const char* subject, std::uint64_t seed);
/// A message is about to be sent; `format` is printf's.
[[gnu::format(__MINGW_PRINTF_FORMAT, 1, 2)]] void Note(const char* format, ...);
/// A burst begins.
void NoteBurst(std::uint64_t burst);
/// Number of messages so far.
std::uint64_t MessagesSent();
/// Prints `what` with seed, burst, message, the last messages and how to replay them.
void Report(const std::string& what);

/// An invariant does not hold.
struct Broken {
    std::string what;
};

/// Raises `Broken` unless `holds`.
inline void Require(bool holds, const char* what) {
    if (!holds)
        throw Broken{what};
}

}  // namespace monkey
