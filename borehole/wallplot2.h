// The perspective view of the hole wall (main menu command 140): each
// selected sample becomes a point in space, depth down Z and the caliper
// off the axis along the pad azimuth, projected by the projection in force
// onto subplot 1. Columns 9 to 15 of RWD1 and 1 and 2 of IWD1 serve as
// work space and are overwritten.
#pragma once

#include "shell/frames.h"

inline constexpr version_block VB_WALLPLOT2{"wallplot   ", "10.2", "2019-12-12"};

// 5 or 6 reset the saved settings and return; any other value runs the
// menu until its command 99.
void wallplot2(const int& intera);
