// The four registrations that user_initialize runs, in this order.
#pragma once

// Each returns the status of its menu add when that failed (and then adds no
// command), else 0. Later host failures are ignored.
int RegisterBomGroup();
int RegisterParamGroup();
int RegisterAutoGroup();
int RegisterSplButton();

// Set once the automation group has started its timers; they start at most
// once a process.
extern int AutoSaveStarted;
