// The column table writer: a table of the kind the reader takes, put back
// on disk (or on the terminal) with a choice of separator and header, all
// lines or only those that pass a test; and the head of an extraction file.
#pragma once

#include <string_view>

#include "shell/fixed.h"
#include "tables/readreal.h"

// What happens to the unit around a write (ioca):
//   0 the file must be open, stays open     1 opened if needed, closed
//   2 opened if needed, stays open          3 the file must be open, closed
// A unit equal to isout is the terminal: nothing is opened or closed.
//
// ifmtouta: 1 values and names each followed by a tab, names quoted;
// 2 separated by blanks, names unquoted.

// Opens an extraction file on unit with status "new" (an existing file is
// refused and the name asked again) unless the unit is already open, then
// writes its head: run information, the label and the borehole parameters.
// fname comes back without its directory.
void beginexfile(int unit, fstr_ref fname, std::string_view label);

// Writes rows 1..nlines of columns JCOL(1..nvar) of rdat (column-major,
// rows by cols). ihdtouta: 1 title and names, 2 also run and data
// information in front. An even intera shows the set-up menu first, where
// the user may leave without writing; the three codes are checked and
// reset first, and keep what the menu made of them. fout comes back
// without its directory when the file is opened here.
void writereal6(int& ifmtouta, int& ihdtouta, int& ioca, int unit, fstr_ref fout,
                std::string_view fin, std::string_view title, std::string_view label,
                std::string_view tname, int tid, const float* rdat, int rows, int cols,
                int nlines, fstr_array_ref namvar, const int* jcol, int maxvar, int nvar,
                int intera);

// As writereal6, for the rows i = first..last where itstdat[i-1] equals
// itest. ihdtouta: 1 title and names; 2 run, data and extraction
// information in front; 3 data and extraction information.
void writextreal1(int& ifmtouta, int& ihdtouta, int& ioca, int unit, fstr_ref fout,
                  std::string_view fin, std::string_view title, std::string_view label,
                  std::string_view tname, int tid, int first, int last, const int* itstdat,
                  int itest, const float* rdat, int rows, int cols, int ntotal,
                  fstr_array_ref namvar, const int* jcol, int maxvar, int nvar, int intera);
