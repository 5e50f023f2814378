// The main routine and the engine's entry.
#pragma once

// The whole life of a run: start-up, the main menu loop, the end report.
void tarnolix_main();

// The engine's entry: runs tarnolix_main on the console in force and turns
// the ways a run can end into an exit status: 0 for a normal end, 1 for the
// unrecoverable stop, 2 when the console gave no more input.
int run_engine();
