// Lines for the debugger.
#pragma once

namespace flat {

/// Says once per name that a function is not built.
void ReportMissing(const char* name);

}  // namespace flat
