// Measures the library and prints a table; ratios are measured side by side in this one run.
#include "bench/Table.h"

#include <afxwin.h>

int main() {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    std::vector<bench::Line> lines;
    bench::MeasurePainting(lines);
    bench::MeasureHitTests(lines);
    bench::MeasureDocument(lines);
    bench::Print(lines);
    return 0;
}
