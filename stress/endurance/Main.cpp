// Repeats paints, files, pages, copies and windows: what the process holds must not grow.
#include "stress/endurance/Cycles.h"

#include <afxwin.h>
#include <commctrl.h>

#include <cstdio>
#include <cstdlib>

namespace {

CWinApp theApp(L"Endurance");

}  // namespace

// Arguments: number of paints, number of cycles of everything else.
int main(int count, char** words) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    const int paints = count > 1 ? std::atoi(words[1]) : 20000;
    const int cycles = count > 2 ? std::atoi(words[2]) : 2000;
    if (paints < 100 || cycles < 100) {
        std::puts("usage: Endurance.exe [PAINTS [CYCLES]], 100 of each or more");
        return 2;
    }
    const bool canvas = endurance::EndureCanvas(paints, cycles);
    const bool studio = endurance::EndureStudio(cycles);
    std::puts(canvas && studio ? "everything stays flat" : "FAILED: something grows, or a file was refused");
    return canvas && studio ? 0 : 1;
}
