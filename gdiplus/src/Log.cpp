#include "gdiplus/Log.h"
#include "gdiplus/Platform.h"

#include <mutex>
#include <set>
#include <string>

namespace flat {

void ReportMissing(const char* name) {
    static std::mutex& mutex = *new std::mutex;
    static std::set<std::string>& reported = *new std::set<std::string>;
    const std::lock_guard lock(mutex);
    if (reported.insert(name).second)
        OutputDebugStringA((std::string("gdiplus: ") + name + " is not implemented\n").c_str());
}

}  // namespace flat
