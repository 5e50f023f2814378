// Report routines of descriptive statistics: the ordinary statistics of a
// set of values with its quartiles, and the circular statistics of angles
// known modulo 360/K (K = 2 for an axis such as a borehole elongation).
// Both print their report on the given unit for an even iflag and compute
// silently for an odd one; they return nothing else. Sums are 4-byte reals
// in index order.
#pragma once

// IXWK(1..n) is overwritten with the ascending order of x.
void stat1d0(int* IXWK, const float* x, const int& n, const int& unit, const int& iflag);
// theta(1..n) in radians.
void statcirc360k(const float* theta, const int& n, const int& K, const int& unit,
                  const int& iflag);
