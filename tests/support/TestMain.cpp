// Entry point of every test program: the class library is started as a console program starts it.
#include "tests/support/Leaks.h"

#include <afxwin.h>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    return RunTestsAndCountLeaks();
}
