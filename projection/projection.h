// Points of a three-dimensional frame (X, Y, Z) onto the page (x, y), in
// the same length unit: axonometric, natural perspective or orthogonal, by
// the one projection in force. The setting routines compute the derived
// fields once, so that the projection loops only multiply and add.
#pragma once

#include "shell/fixed.h"
#include "shell/frames.h"

struct projcatype_t {
    int iproj;  // 1 axonometric, 2 natural perspective, 3 orthogonal
};
struct axon_t {
    farr<float, 3> ALFAX;  // angles of the images of X, Y, Z, radians
    farr<float, 3> COSA;   // cos(angle) x reduction
    farr<float, 3> SINA;   // sin(angle) x reduction
};
struct uaxon_t {
    farr<float, 3> UALFAX;  // the angles as the user gave them, degrees
    farr<float, 3> REDU;    // the reductions as the user gave them
};
struct nape_t {
    farr<float, 3> OPE;        // where the view axis crosses the 1:1 plane, frame E
    farr2<float, 3, 3> MPE;    // rotation from frame E into the view frame
};
struct nppf_t {
    float dpp;  // distance from the view point to the 1:1 plane
};
struct unape_t {
    float uazim, ualti;     // view direction, degrees
    float udist;           // distance to the 1:1 plane as the user gave it
    farr<float, 3> UOEPE;  // view point in frame E
};
struct orthocom_t {
    int iortho;  // 1 along x, 2 along y, 3 along z
};
extern projcatype_t projcatype;
extern axon_t axon;
extern uaxon_t uaxon;
extern nape_t nape;
extern nppf_t nppf;
extern unape_t unape;
extern orthocom_t orthocom;

inline constexpr version_block VB_PROJXYZN{"projxyzn            ", " 2.0", "2020-06-20"};
inline constexpr version_block VB_SPROJXYZ{"sprojxyz            ", " 2.6", "2020-06-20"};
inline constexpr version_block VB_SAXONO2{"saxono2             ", " 4.2", "2020-09-03"};
inline constexpr version_block VB_SNATPER{"snatper             ", " 3.3", "2020-09-03"};
inline constexpr version_block VB_SORTHOPROJ{"sorthoproj          ", " 2.2", "2020-09-02"};

// Projects n points (arrays from element 1) by the projection in force; an
// unknown one is reported, chosen again through the menu, and used.
void projxyzn(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n);
void axonon(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n);
void natpern(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n);
void orthoprojn(float* x, float* y, const float* X, const float* Y, const float* Z,
                const int& n);

// Chooses the projection and sets its parameters. 0 and 1 run the chosen
// projection's own routine with 2 and 3, so that the stored parameters are
// used; 4 and 5 reset all three.
void sprojxyz(int& iproj, const int& inter);
// itype: 1 general (angles and reductions from the user), 2 to 7 the fixed
// kinds (cavalier x and y, isometric, trimetric, dimetric, dimetric
// upturned). Angles in degrees.
void saxono2(farr<float, 3>& angles, farr<float, 3>& red, int& itype, const int& inter);
void snatper(float& azim, float& alti, farr<float, 3>& OEPE, float& dist, const int& inter);
void sorthoproj(int& iortho, const int& inter);
// The rotation into the view frame from azimuth and altitude, radians: row
// 3 is the direction of view, row 2 the plot's up.
void epll132(farr2<float, 3, 3>& M, const farr<float, 2>& angles);
