// Finding values in columns: a linear search of integers, and the index
// range of a monotonic column between two values.
#pragma once

// Searches IARRAY(first..last) upward for value (array(k-1) is IARRAY(k)).
// Not found: index 1 and ierr 1.
void ival2ind1(int& index, int value, const int* array, int first, int last, int& ierr);

// The first and last indices of RDAT (rdat(k-1) is RDAT(k)), monotonic
// between Imin and Imax, whose values lie in [Rmin, Rmax]; first <= last.
// ierr: 0 found, 1 failed (both set to the lower search index), 2 all data
// on one side of the interval (both at the nearest end).
void inval2inind2(int& ierr, int& first, int& last, float Rmin, float Rmax, int Imin, int Imax,
                  const float* rdat, int size, int inter);
