// Fonts of the system as outlines.
#pragma once

namespace flat {

/// Gives back what is kept of the system's fonts.
void ReleaseTypefaces();

}  // namespace flat
