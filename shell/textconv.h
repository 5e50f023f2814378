// Numbers into left-justified text for labels and names, and the base name
// of a file path.
#pragma once

#include <string>
#include <string_view>

#include "shell/fixed.h"

void path2basename(int& length, fstr_ref basename, std::string_view path);
// The integer in the first count characters of text (the rest blank).
void intg2char(fstr_ref text, int& count, int maximum, int value);
// The real with the given decimals, in the first count characters of text.
void real2charf1(fstr_ref text, int& count, int decimals, int maximum, float value);
// The value written in the format fm.n.
void careafmpn(fstr_ref text, int m, int n, float value);

// The same numbers as strings, for texts put together on a page: the real
// as real2charf1 writes it (maximum at most 32), the integer in at most 12
// characters.
std::string realtext(float value, int decimals, int maximum);
std::string integtext(int value);
