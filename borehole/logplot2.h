// The log analysis menu (main menu command 120): its settings, the two
// computing stages of the derived quantities, the plot pages with their
// head of run and data information, and the dispatch to every track
// routine in a fixed order.
#pragma once

// 4 or 5 reset the saved settings and return; any other value runs the menu
// until its command 99.
void logplot2(const int& intera);

// Command 500: all rows of every variable of the well table, as they stand
// (AzCmax wrapped once a plot command has normalised it), to the table
// finwd + ".all.out.txt" through the writer's set-up menu.
void log_full_output();
