// Command files: a text file of answers that stands in for the keyboard.
#pragma once

#include <string_view>

#include "shell/fixed.h"

// The command file menu (main menu command 5000). answer comes back as 99,
// 5001, 5002, or 9999 after 5003 (which ends the run).
void altsio2(fstr_ref fname, int& answer, int intera);
void beginaltsi2(fstr_ref fname, int intera);
void endaltsi2(std::string_view fname, int intera);
