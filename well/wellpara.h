// Borehole parameters: the depth interval, the nominal hole size, the
// caliper saturation limits, the thresholds of the shape tests and the
// origins of the circular plot scales. Lengths in the units of the log
// (centimetres for the calipers), angles in degrees.
#pragma once

struct wellpara_t {
    float ztop;
    float zbot;
    float bitsize;
    float c1sat;
    float c2sat;
    float cdiff;
    float cbsmin;
    float cbsmax;
    float rbcmaxthr;
    float azorig;
    float azcmaxorig;
    float haziorig;
    float rborig;
    float rbcmaxorig;
};
extern wellpara_t wellpara;

// 4 or 5 reset to the defaults (4 then shows the menu), 10 lists the
// parameters, another even value shows the menu, another odd one does
// nothing.
void swellparam(int intera);
