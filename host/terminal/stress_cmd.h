// `tarnolix stress [options] FILE...`: the stress orientation from the
// breakouts of each well, without the dialogue. argv[0] is "stress".
// Returns the exit status: 0 all wells done, 1 a well failed, 2 a bad
// command line.
#pragma once

int stress_command(int argc, char** argv);
