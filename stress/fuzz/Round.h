// A round of inputs, fed by one process and watched by another.
#pragma once

#include "Mutation.h"

/// The memory that both processes see.
struct Round {
    static constexpr size_t kMostLoaders = 64;

    struct Progress {
        uint64_t next;  // number of the input at work, or of the first one to come
        uint64_t end;   // behind the last one
        uint64_t loaded;
        uint64_t refused;
    };

    uint64_t seed;
    Progress loaders[kMostLoaders];
    volatile LONG64 begun;  // counts inputs, so that standing still shows
    UINT32 current;         // the loader at work

    // What ended the process, when it was not the end of the round.
    char fault[512];

    UINT32 inputSize;
    BYTE input[kLongestInput];
};

struct Loader;

/// Feeds one input. Returns whether it was loaded; throws `Fault`, for memory that leaks or runs away as
/// well.
bool Feed(const Loader& loader, const Bytes& input, bool use);

/// The child's part: feeds what is left of the round. 0, or 1 with the reason in `fault`.
int FeedRound(Round& round);

/// Whether the `number`th input is worked with after it was loaded.
inline bool IsUsed(uint64_t number) {
    return number % 8 == 0;
}

/// Has faults of the processor described in `fault` when they end this process.
void DescribeCrashes(Round& round);
