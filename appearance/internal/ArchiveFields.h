// One list of fields for both directions of an archive.
#pragma once

#include "core/Platform.h"

namespace Lumo {

// Writes or reads the fields in order; what was read before the archive raises an exception stays.
template <class... Fields>
void ArchiveFields(CArchive& ar, Fields&... fields) {
    if (ar.IsStoring())
        (static_cast<void>(ar << fields), ...);
    else
        (static_cast<void>(ar >> fields), ...);
}

}  // namespace Lumo
