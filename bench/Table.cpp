#include "bench/Table.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace bench {

double Seconds(const std::function<void()>& work) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&start);
    work();
    ::QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - start.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Pair SideBySide(int rounds, const std::function<void()>& ours, const std::function<void()>& other) {
    std::vector<double> a;
    std::vector<double> b;
    ours();
    other();
    for (int i = 0; i < rounds; ++i) {
        a.push_back(Seconds(ours));
        b.push_back(Seconds(other));
    }
    return {Median(a), Median(b)};
}

void Print(const std::vector<Line>& lines) {
    std::printf("| figure | measured | target | met | detail |\n|---|---|---|---|---|\n");
    for (const Line& line : lines) {
        const bool met = line.atLeast ? line.value >= line.limit : line.value <= line.limit;
        std::printf("| %s | %.3g %s | %s %g %s | %s | %s |\n", line.what.c_str(), line.value,
                    line.unit.c_str(), line.atLeast ? "at least" : "at most", line.limit, line.unit.c_str(),
                    met ? "yes" : "no", line.detail.c_str());
    }
}

}  // namespace bench
