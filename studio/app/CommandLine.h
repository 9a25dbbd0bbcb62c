// What Studio is asked to do when it is started.
#pragma once

#include "studio/app/Texts.h"

#include <vector>

namespace Studio {

/// The words of the command line, understood.
struct CommandLine {
    enum class Task { kShow, kRender, kCheck, kMakeDemo, kMakeSymbols, kExplain, kRefuse };

    Task task = Task::kShow;
    /// File to open or read, picture to write, page number, in this order, as far as the task has them.
    std::vector<CString> arguments;
    Language language = Language::kEnglish;
    bool demo = false;

    /// The process's command line; the language is the system's unless it is chosen.
    static CommandLine Read();
    /// Understands the words behind the program's name.
    static CommandLine Parse(const std::vector<CString>& words);
};

/// Carries out every task but `kShow`, without a window; what there is to say goes to standard output. The
/// exit code: 0 when it was done, or the file is sound, else 1, also for words that make no sense.
int RunTask(const CommandLine& line);

}  // namespace Studio
