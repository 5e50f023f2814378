// The small character figures the end report closes with. Each one prints
// a blank line, its own lines and a blank line on the standard output.
#pragma once

void carmag33();
void endfun1();
void graben();
void happyface();
void horst();
void sator();
void tetrakis();
void tetratemple1();
void tetratemple2();

// The figure of the end report for the last digit of the clock's seconds;
// any character that is not a digit gives endfun1.
void tailfigure(char lastdigit);
