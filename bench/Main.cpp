// Measures the library and prints a table; ratios are measured side by side in this one run.
#include "bench/Table.h"

#include <afxwin.h>

#include <cstdio>
#include <exception>

int main(int argc, char**) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    if (argc > 1)
        return bench::ShowEmptyWindow();
    std::vector<bench::Line> lines;
    // What counts the memory that is taken comes first, before there is freed memory to take.
    bench::MeasureStudio(lines);
    bench::MeasureDocument(lines);
    bench::MeasurePainting(lines);
    bench::MeasureHitTests(lines);
    bench::MeasureScaling(lines);
    try {
        bench::MeasureStart(lines);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    bench::Print(lines);
    return 0;
}
