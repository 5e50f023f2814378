// The unrecoverable stop. It unwinds to the engine's entry, which ends the
// run there; this type is used for nothing else.
#pragma once

struct program_stop {
    int status = 1;
};

// Ends the run at once (a plot file left open stays unfinished).
[[noreturn]] void stop_run();
