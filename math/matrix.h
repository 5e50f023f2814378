// Small matrix helpers. Matrices are stored by columns (first index
// fastest) and passed as a pointer to element (1,1); the leading dimension
// is the declared row count.
#pragma once

// det = a(2,2)*a(1,1) - a(1,2)*a(2,1).
void m22determt(float& det, const float* a);
// c = inverse of b (c may be b). A zero determinant stops the run.
void m22invert(float* c, const float* b);
// a(n,q) = b(n,p) * c(p,q); a may be b or c.
void mnpxmpq(float* a, const float* b, const float* c, const int& n, const int& p,
             const int& q);
// v(n) = a(n,p) * w(p); v may be w.
void mnpxvp(float* v, const float* a, const float* w, const int& n, const int& p);
