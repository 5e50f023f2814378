// Angle constants, degree and radian conversion, wrapping of angles into an
// interval, polar and Cartesian conversion and points on circles. All in
// 4-byte reals; arrays are x(1..n) passed as a pointer to x(1). Input and
// output arrays may be the same array. A count of zero or less does nothing.
#pragma once

struct anglerad_t {
    float quartpi;       // pi/4
    float thirdpi;       // pi/3
    float halfpi;        // pi/2
    float threequartpi;  // 3 pi/4
    float pinum;         // pi
    float threehalfpi;   // 3 pi/2
    float twopi;         // 2 pi
    float deg2radfac;    // radians per degree
    float rad2degfac;    // degrees per radian
};
// The first seven constants less (angleradi) and plus (anglerads) 1.0e-5,
// for tolerant comparison with a remarkable angle.
struct anglebound_t {
    float quartpi;
    float thirdpi;
    float halfpi;
    float threequartpi;
    float pinum;
    float threehalfpi;
    float twopi;
};
extern anglerad_t anglerad;
extern anglebound_t angleradi;
extern anglebound_t anglerads;

// Fills the three records; called once at start-up, before anything else
// here.
void trigoset();

float deg(const float& x);  // radians to degrees
float rad(const float& x);  // degrees to radians
void deg2rad(float* out, const float* in, const int& n);
void rad2deg(float* out, const float* in, const int& n);
void deg2rad1(float& out, const float& in);

// Wraps into [origin, origin + period).
void modulro(float* out, const float* in, const float& period, const float& origin,
             const int& n);
// Wraps into (-period/2, +period/2].
void moducr(float* out, const float* in, const float& period, const int& n);

// Polar (r, t in radians) to Cartesian and back; t in (-pi, +pi], and the
// origin gives t = +pi/2.
void rt2xy(float* x, float* y, const float* r, const float* t, const int& n);
void xy2rt(float* r, float* t, const float* x, const float* y, const int& n);
void xy2t(float* t, const float* x, const float* y, const int& n);

// n points of a closed circle (first and last coincide), n >= 2.
void circle(float* x, float* y, const int& n, const float& xc, const float& yc, const float& r);
// n points of an arc from t1 to t2 (radians), n >= 2.
void arcirclerad(float* x, float* y, const int& n, const float& xc, const float& yc,
                 const float& r, const float& t1, const float& t2);
