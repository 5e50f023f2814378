// Opening named files, with the dialogue every file of the program shares.
#pragma once

#include <string_view>

#include "shell/fixed.h"

// Opens a file on unit. inter 0 asks for the name (the current name is the
// default); 7 leaves out the "OPENING" frame. With inter 0 a failure asks
// whether to retry; otherwise, or when the user gives up, severity >= 0
// closes with errortailstop(severity) and a negative one proceeds. ierr 0
// opened, 1 not. On success fname becomes the base name of the file opened.
void opef1(fstr_ref fname, std::string_view label, int unit, std::string_view status,
           std::string_view action, int inter, int severity, int& ierr);

// As opef1, but a file that doesn't open is asked for again with inter 0,
// and stops the run otherwise.
void opef2(fstr_ref fname, std::string_view label, int unit, std::string_view status, int inter);

// Reports a file that could not take what was written to it (disk full, a
// file system error) in an error frame, and closes it: what reached the
// file stays, and the run goes on without it.
void wrerrf(std::string_view label, int unit);
