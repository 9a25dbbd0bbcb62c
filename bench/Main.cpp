// Measures the library and prints a table; ratios are measured side by side in this one run.
//
//   Bench            everything
//   Bench SUBJECT    one subject alone: studio, document, painting, hits, scaling or start
//   Bench empty      shows an empty window, against which Studio's start is measured
#include "bench/Table.h"

#include <afxwin.h>

#include <cstdio>
#include <exception>
#include <string>

namespace {

// What counts the memory that is taken comes first, before there is freed memory to take.
constexpr struct {
    const char* name;
    void (*measure)(std::vector<bench::Line>& lines);
} kSubjects[] = {{"studio", bench::MeasureStudio},     {"document", bench::MeasureDocument},
                 {"painting", bench::MeasurePainting}, {"hits", bench::MeasureHitTests},
                 {"scaling", bench::MeasureScaling},   {"filters", bench::MeasureFilters},
                 {"start", bench::MeasureStart}};

}  // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    const std::string wanted = argc > 1 ? argv[1] : "";
    if (wanted == "empty")
        return bench::ShowEmptyWindow();
    std::vector<bench::Line> lines;
    try {
        for (const auto& subject : kSubjects)
            if (wanted.empty() || wanted == subject.name)
                subject.measure(lines);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    bench::Print(lines);
    return 0;
}
