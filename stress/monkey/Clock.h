// The time of a run: it passes as the seed says, not as fast as the machine is.
#pragma once

#include <windows.h>

namespace monkey {

/// Leads the clocks and timers of the program and the library to a time that stands still between calls of
/// `PassTime`: who waits for something no longer gives up after a while. Timers belong to windows; those of
/// the system's own controls go on as before.
void StartClock();
void PassTime(DWORD milliseconds);
/// Serves the timers that are due, each at most once.
void RunDueTimers();
/// Puts their messages into the queue, for a dialog or menu that serves it next.
void PostDueTimers();

}  // namespace monkey
