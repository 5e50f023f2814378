// The orientation of the horizontal stress from breakouts: the depths that
// pass the one-diameter elongation test (ASE) grouped into zones, each zone
// with its axial azimuth, and for the well the length-weighted mean
// breakout azimuth, the maximum horizontal stress azimuth (breakout + 90)
// and a quality rank after the World Stress Map scheme for breakouts.
//
// Works on the well loaded in welldat with the borehole parameters of
// wellpara (bit size, gauge band, saturation, cdiff, RBCmax threshold,
// depth interval) and the zone rules of stresspara. Nothing allocates: the
// zones are a fixed table.
#pragma once

#include <string_view>

#include "shell/fixed.h"
#include "well/welldat.h"

struct stresspara_t {
    float keyseatdevi;  // the RB test applies only where DEVI exceeds this (deg)
    float maxdevi;      // zones deviated more are left out of the mean and rank (deg)
    float minlen;       // least zone length (m)
    float maxgap;       // largest run of rejected depths merged inside a zone (m)
    float maxturn;      // largest turn of pad 1 inside a zone (deg)
};
extern stresspara_t stresspara;
// The defaults: 5, 10, 1 m, 0.3 m, 15 deg.
void stressparadefaults();

struct stresszone {
    int i1, i2;        // first and last row (both kept depths)
    int nsamp, nkept;  // rows from i1 to i2, and those kept
    float top, bottom, length, keptlen;
    float az, sd;      // axial mean of AzCmax over the kept rows, in [0, 180)
    float c1, c2, dc, devi;  // means over the kept rows; devi NaN without DEVI
    float turn;        // range of the unwrapped P1Az over i1..i2
    bool used;         // not deviated beyond maxdevi: in the mean and the rank
};

constexpr int MAXZONE = MAXDATWD / 2 + 1;

struct stresscom_t {
    int itop, ibot;            // the rows of the depth interval
    bool lrb;                  // RB and DEVI were there
    int nkept;                 // depths kept by the test
    int nshort, nturn;         // groups dropped: too short, tool turning
    int nzone;                 // zones kept, in depth order
    farr<stresszone, MAXZONE> Z;
    int nused;                 // zones in the mean
    float length;              // their total length
    float az, sd;              // length-weighted axial mean and circular s.d.
    float shmax;               // az + 90, modulo 180
    char rank;                 // 'A' to 'E'
};
extern stresscom_t stresscom;

// Axial mean of angles a(1..n) in degrees, weighted by w (nullptr: equal
// weights): doubled angles, mean in [0, 180), circular standard deviation
// half of sqrt(-2 ln R) in degrees. n = 0 (or no weight) gives NaN, NaN.
void axialmean(float& mean, float& sd, const float* a, const float* w, int n);

// The rank of a set of zones by number, total length (m) and s.d. (deg):
// A >= 10 zones, >= 100 m, <= 12; B >= 6, >= 40, <= 20; C >= 4, >= 20,
// <= 25; D any other with s.d. <= 40; E no zone or s.d. above 40. Lengths
// count to the millimetre.
char stressrank(int nzone, float length, float sd);

// The whole analysis of the loaded well. ierr 0 done; 1 no calipers with
// pad-1 azimuth in the data type; 2 no depth in the interval.
void stresswell(int& ierr);

// The zone table on a unit: the header lines (each opened by '#') say the
// file, the parameters and the result; then one tab-separated row a zone.
void stresstable(int unit, std::string_view file);

// The page on the open plot file: a depth track of the zones (boxes from
// az - sd to az + sd at their depths, a mark at az; zones out of the mean
// hollow) beside a length-weighted axial rose of the zone azimuths with
// the mean breakout azimuth and the stress azimuth drawn across it.
void stresspage(std::string_view file);
