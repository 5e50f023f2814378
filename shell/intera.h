// The mode every menu routine is called with. 0 or 1 start from the
// caller's value, 2 or 3 from the stored one, 4 or 5 from the defaults; an
// even mode runs the dialogue, an odd one is silent. Routines with modes of
// their own beyond 5 test those numbers themselves.
#pragma once

inline constexpr bool mode_from_caller(int intera) { return intera == 0 || intera == 1; }
inline constexpr bool mode_from_store(int intera) { return intera == 2 || intera == 3; }
inline constexpr bool mode_resets(int intera) { return intera == 4 || intera == 5; }
inline constexpr bool mode_talks(int intera) { return intera % 2 == 0; }
inline constexpr bool mode_silent(int intera) { return intera % 2 != 0; }
// One of the six modes above.
inline constexpr bool mode_known(int intera) { return intera >= 0 && intera <= 5; }
