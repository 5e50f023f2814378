// The prompts every value the user gives passes through, and the value
// checks at a chosen severity. A prompt never fails to its caller: it asks
// until it has an answer (the error argument is always 0 on return).
#pragma once

#include <string_view>

#include "shell/fixed.h"
#include "shell/textlen.h"

void ininteg1(int& value, std::string_view text, int& ierr);
void inintegdef(int& value, std::string_view text, int def, int& ierr);
void inintegvin1(int& value, std::string_view text, int vmin, int vmax, int& ierr);
void inintegvindef(int& value, std::string_view text, int def, int vmin, int vmax, int& ierr);
void inrealdef(float& value, std::string_view text, float def, int& ierr);
void inrealvindef(float& value, std::string_view text, float def, float vmin, float vmax,
                  int& ierr);
void inchar1(fstr_ref value, std::string_view text, int& ierr);
void inchardef(fstr_ref value, std::string_view text, std::string_view def, int& ierr);
void inlogicdef(bool& value, std::string_view text, bool def, int& ierr);
void inlogicdef2(bool& value, std::string_view text, bool def, int iunit, int ounit, int& ierr);

// Value checks. gravity 0..4 leaves a value outside [vmin, vmax] as it is,
// 10..14 resets it to the bound it crossed; the last digit chooses how the
// frame ends (0 warning, 1 error, 2..4 errortailstop with gravity-2).
// result: 0 inside, 1 below, 2 above.
void cinvin3(int& value, int vmin, int vmax, std::string_view name, std::string_view routine,
             int gravity, int& result);
void crevin3(float& value, float vmin, float vmax, std::string_view name,
             std::string_view routine, int gravity, int& result);
