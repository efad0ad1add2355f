// The timers the automation menu group starts once it is registered.
#pragma once

#include <cstdint>

// Starts the automatic-save timer (AutoSave.h) when "SaveAuto" is on, and the
// one-shot work-directory timer (2000 ms), which restores the work directory
// of the last exit when "IsSaveWrkDir" is on.
void StartAutomationTimers();

// The work-directory timer's callback, as the system calls it.
void RestoreWorkDirectory(void* window, unsigned message, std::uintptr_t id, unsigned long time);
