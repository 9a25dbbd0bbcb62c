// A monkey operates something with messages in bursts; after each burst everything has to be in order.
#pragma once

#include "stress/monkey/Journal.h"
#include "stress/monkey/Random.h"

#include <memory>
#include <vector>

namespace monkey {

class Monkey {
public:
    virtual ~Monkey() = default;
    /// What it operates on, as it is saved.
    virtual std::vector<unsigned char> Bytes() = 0;
    /// Sends one message.
    virtual void Act(Random& random) = 0;
    /// Lets go of whatever is still held.
    virtual void Settle() = 0;
    /// Raises `Broken` when something is not as it has to be.
    virtual void Check() = 0;
    /// The same for what takes long.
    virtual void CheckThoroughly() = 0;
};

/// A canvas of the library alone, with a host that routes its commands.
std::unique_ptr<Monkey> MakeCanvasMonkey();
/// Studio's main window.
std::unique_ptr<Monkey> MakeStudioMonkey();

}  // namespace monkey
