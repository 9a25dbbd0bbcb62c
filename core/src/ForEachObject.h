// Walking many objects.
#pragma once

#include "core/UIDocument.h"
#include "core/UIObject.h"

namespace Lumo {

// Calls visit(object) for every entry that is not null, in order, and has the memory of those to come fetched
// meanwhile: on a large page little is done with each object, and that costs less than waiting for it. The
// list may change.
template <class Visit>
void ForEachObject(const CUIObjectDeque& objects, Visit visit) {
    constexpr size_t kAhead = 6;
    constexpr size_t kCacheLine = 64;
    for (size_t i = 0; i < objects.size(); ++i) {
        if (i + kAhead < objects.size()) {
            const char* next = reinterpret_cast<const char*>(objects[i + kAhead]);
            for (size_t at = 0; next && at < sizeof(CUIObject); at += kCacheLine)
                __builtin_prefetch(next + at);
        }
        if (objects[i])
            visit(objects[i]);
    }
}

}  // namespace Lumo
