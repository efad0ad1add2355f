// The automatic save: a repeating window-less timer that saves the current
// model when it or anything below it changed.
#pragma once

#include <cstdint>

// Reads "Time" and "SaveAuto"; with "SaveAuto" on, starts the timer (event
// id 1, "Time" minutes, at least one).
void StartAutoSaveTimer();

// The timer's callback, as the system calls it. Saves the current model when
// it, one of its distinct components or, for a drawing, one of the models it
// shows reports a change: with "DelOldVer" on through SaveMdlAll (components
// saved and older versions sent to the trash), else the model alone.
void AutoSaveTick(void* window, unsigned message, std::uintptr_t id, unsigned long time);
