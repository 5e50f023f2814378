// Where the text sits inside a blank-padded field, and how many characters
// an integer takes.
#pragma once

#include <string_view>

// Positions (1-based) of the first and last non-blank character. A blank
// field gives both equal to its length, so it trims to one blank.
void textlen(int& first, int& last, std::string_view text);
// The text between textlen's first and last.
std::string_view trimmed(std::string_view text);
// Number of characters of the value, sign included.
void integlen(int& count, int value);
