// Straight line y = a1*x + b1 by centred least squares, in 4-byte reals.
// All abscissae equal: a warning, a1 = 1.0e10 and b1 = 0.
#pragma once

void lstsq1(float& a1, float& b1, const float* x, const float* y, const int& n);
