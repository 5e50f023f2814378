// The log analysis menu (main menu command 120): its settings, the two
// computing stages of the derived quantities, the plot pages with their
// head of run and data information, and the dispatch to every track
// routine in a fixed order.
#pragma once

// 4 or 5 reset the saved settings and return; any other value runs the menu
// until its command 99.
void logplot2(const int& intera);
