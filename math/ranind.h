// Index sort: ind(1..n) such that x(ind(1)) <= x(ind(2)) <= ...; x is not
// moved. Quicksort with the segment mean as pivot, without recursion.
#pragma once

void ranind(const int& n, const float* x, int* ind);
