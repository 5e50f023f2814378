// The console program: the engine on the terminal's standard input and
// output; with "stress" first, the unattended stress command instead.
#include <cstring>

#include "host/terminal/stress_cmd.h"
#include "shell/main_program.h"

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], "stress") == 0) return stress_command(argc - 1, argv + 1);
    return run_engine();
}
