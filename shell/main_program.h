// The main routine and the engine's entry.
#pragma once

// The start-up of a run: every subsystem to the state a run begins in, in
// one fixed order. With banner the program's record is filled and the
// start banner shown (the main routine); without, the tests and the
// benchmarks begin where a run does, after its banner.
void tarnolix_startup(bool banner);

// The whole life of a run: start-up, the main menu loop, the end report.
void tarnolix_main();

// The engine's entry: runs tarnolix_main on the console in force and turns
// the ways a run can end into an exit status: 0 for a normal end, 1 for the
// unrecoverable stop, 2 when the console gave no more input.
int run_engine();
