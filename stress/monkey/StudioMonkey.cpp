#include "stress/monkey/Monkey.h"
namespace monkey {
std::unique_ptr<Monkey> MakeStudioMonkey() {
    return nullptr;
}
}  // namespace monkey
