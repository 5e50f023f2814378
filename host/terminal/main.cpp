// The console program: the engine on the terminal's standard input and
// output.
#include "shell/main_program.h"

int main() { return run_engine(); }
