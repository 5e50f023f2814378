// What the stages of the column table reader share: moving about in the open
// data file, free-format reads that tell the end of the file from a bad
// value, and the numbered default names.
#pragma once

#include <span>
#include <string_view>

#include "shell/fixed.h"
#include "shell/format.h"
#include "shell/frames.h"

namespace rrio {

inline constexpr version_block VB_READREAL6{"readreal6  ", " 4.0", "2024-06-06"};
inline constexpr version_block VB_SFHEADER1{"sfheader1  ", " 3.0", "2024-06-08"};
inline constexpr version_block VB_GETFTITLE1{"getftitle1 ", " 2.0", "2024-06-08"};
inline constexpr version_block VB_SCOL2VAR2{"scol2var2  ", " 4.0", "2024-06-08"};
inline constexpr version_block VB_GETFNAMCOL{"getfnamcol ", " 2.0", "2024-06-08"};
inline constexpr version_block VB_SHOWFHEAD1{"showfhead1 ", " 4.0", "2024-06-08"};
inline constexpr version_block VB_GETFREAL{"getfreal   ", " 6.0", "2024-06-08"};

// The file is read again from its first line.
void rewind_unit(int unit);
// Passes over one record, read as "(a)"; false at the end of the file.
bool skip_record(int unit);

enum class got { ok, bad, end };
// A free-format read starting at the next record of the unit; it goes on to
// following records while items remain, passing over blank lines.
got list_in(int unit, std::span<const litem> items);

// prefix and the number as intg2char writes it in at most two digits, as
// "Nodata.7" or "File.col.12".
void numbered_name(fstr_ref out, std::string_view prefix, int n);

// The warning given by the routines that take a mode outside [0,5]; they then
// go on by its parity.
void inter_outside(const version_block& vb, int inter);

inline bool is_even(int inter) { return (inter & 1) == 0; }

// Labelled numbers on the standard output.
void numline(std::string_view text, int value);
void numline(std::string_view text, int value, std::string_view after);

}  // namespace rrio
