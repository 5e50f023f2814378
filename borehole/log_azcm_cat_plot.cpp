// The shape classes: every selected depth in exactly one class of a scheme
// (the 11 size codes, the 8 or the 7 hole-shape categories), AzCmax against
// depth at the depths of each class, one track per class or, on 361 and
// 362, one coloured track for all 7 categories over the P1Az loops.
#include <span>
#include <string_view>

#include "borehole/derived.h"
#include "borehole/shaperules.h"
#include "borehole/tracks.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "shell/frames.h"
#include "well/welldat.h"

namespace {

struct catclass {
    int value;                   // the class's code in the key column
    std::string_view shortname;  // track label, 3 characters
    std::string_view text;       // console line, 45 characters
};

constexpr catclass SIZECLASSES[] = {
    {CS_RR, "R+R", "Cmin < Cmax <BS+cbsmin"},
    {CS_RG, "R+G", "Cmin <BS+cbsmin< Cmax <BS+cbsmax"},
    {CS_RE, "R+E", "Cmin <BS+cbsmin<BS+cbsmax< Cmax <Cmaxsat"},
    {CS_RS, "R+S", "Cmin <BS+cbsmin<BS+cbsmax<Cmaxsat< Cmax"},
    {CS_GG, "G+G", "BS+cbsmin< Cmin < Cmax <BS+cbsmax"},
    {CS_GE, "G+E", "BS+cbsmin< Cmin <BS+cbsmax< Cmax <Cmaxsat"},
    {CS_GS, "G+S", "BS+cbsmin< Cmin <BS+cbsmax<Cmaxsat< Cmax"},
    {CS_EE, "E+E", "BS+cbsmax< Cmin < Cmax <Cmaxsat"},
    {CS_ES, "E+S", "BS+cbsmax< Cmin <Cminsat & Cmaxsat< Cmax"},
    {CS_SE, "S+E", "BS+cbsmax<Cminsat< Cmin < Cmax <Cmaxsat"},
    {CS_SS, "S+S", "Cminsat< Cmin & Cmaxsat< Cmax"},
};
// The saturated ones of 361: Cmax saturated (one box), then both.
constexpr catclass XSCLASSES[] = {SIZECLASSES[3], SIZECLASSES[6], SIZECLASSES[8],
                                  SIZECLASSES[9]};
constexpr const catclass& SSCLASS = SIZECLASSES[10];

constexpr catclass CAT8[] = {
    {10, "R", "Isotropic restriction"},
    {20, "ARK", "Anisotropic restriction & Cmax // Top Hole"},
    {30, "AR", "Anisotropic restriction & Cmax >< Top Hole"},
    {40, "G", "Isotropic close to Gauge"},
    {50, "ASE", "Anisotropic elongation & Cmax >< Top Hole"},
    {60, "AEK", "Anisotropic elongation & Cmax // Top Hole"},
    {70, "ADE", "Anisotropic elongation & Cmax >< Top Hole"},
    {80, "WO", "Isotropic or undetermined elongation"},
};

constexpr catclass CAT7[] = {
    {10, "R", "Isotropic restriction"},
    {20, "G", "Isotropic close to Gauge"},
    {30, "WO", "Isotropic or undetermined elongation"},
    {40, "AK", "Anisotropic deformation & Cmax // Top Hole"},
    {50, "AR", "Anisotropic restriction & Cmax >< Top Hole"},
    {60, "ASE", "Single elongation & Cmax >< Top Hole"},
    {70, "ADE", "Double elongation & Cmax >< Top Hole"},
};
// How the 7 categories look in the coloured track: symbol type, colour
// index and size in symbol sizes; the elongations stand out.
struct catstyle {
    int symbol, colour;
    float size;
};
constexpr catstyle CAT7STYLE[] = {{14, 9, 1.5f}, {13, 9, 1.5f}, {15, 9, 1.5f}, {3, 13, 1.5f},
                                  {5, 3, 1.5f},  {1, 4, 3.0f},  {4, 16, 3.0f}};

// The rows of the selection, and the column of the class codes.
struct catrows {
    int key, itop, nsel;
};

// The console lines of one class; the kept points are in the work columns.
int classcount(const catclass& c, const catrows& rows) {
    const int count = trackkept(rows.key, c.value, rows.itop, rows.nsel);
    textline(DASHED);
    textline(fstr<3>(c.shortname));
    textline(fstr<45>(c.text));
    trackcounts(rows.nsel, count);
    return count;
}

// A class in the box made current before.
void classpoints(const catclass& c, const catrows& rows) {
    trackkeptsymbols(rows.itop, classcount(c, rows));
}

// A class in a box of its own.
void classtrack(int subplot, int frame, const catclass& c, const catrows& rows) {
    slogbox(subplot, AXAZCMAXCAT, AXDEPTH, frame, fstr<3>(c.shortname));
    classpoints(c, rows);
}

// One track per class in consecutive subplots from first, the last one
// with its scale on the right.
void classtracks(std::span<const catclass> classes, int first, const catrows& rows) {
    const int n = int(classes.size());
    for (int c = 1; c <= n; ++c) classtrack(first + c - 1, c == n ? 2 : 4, classes[c - 1], rows);
}

// Fills the key column over the selection by a category rule.
void fillcategories(int (*rule)(const shaperow&), int icwork, int icsize, int icdc, int icrb,
                    int itop, int nsel) {
    welldat_t& w = welldat;
    const int i0 = itop - 1;
    const int* c = w.IWD1.col(icsize) + i0;
    const int* d = w.IWD1.col(icdc) + i0;
    const int* r = w.IWD1.col(icrb) + i0;
    int* out = w.IWD1.col(icwork) + i0;
    for (int i = 0; i < nsel; ++i) out[i] = rule(shaperow{c[i], d[i], r[i], 0.0f, 0.0f});
}

void setstyle(const catstyle& s, float symsize) {
    int colour = s.colour, symbol = s.symbol;
    float size = s.size * symsize;
    slinecolor(colour, 1);
    ssymboltype(symbol, 1);
    ssymbolsize(size, 1);
}

// The 7 categories in the box of the P1Az loops (subplot 37, drawn before
// on the same scale), with their legend along the foot of the page.
void colouredtrack(const catrows& rows) {
    int nsub = 37;
    ssubplot(nsub, 1);
    attributekept<int> colour(slinecolor);
    attributekept<int> symbol(ssymboltype);
    attributekept<int> align(stextalign);
    attributekept<float> size(ssymbolsize);
    const float s = size.entry();
    int left = 5;
    stextalign(left, 1);
    const float dx = 15.0f / 7.0f;
    for (int c = 1; c <= 7; ++c) {
        const float xcm = 2.5f + dx * float(c - 1), ycm = 1.0f;
        float xu = 0.0f, yu = 0.0f;
        cm2us(&xu, &yu, &xcm, &ycm, 1);
        setstyle(CAT7STYLE[c - 1], s);
        ussymbol(&xu, &yu, 1);
        cmtext2(xcm + 0.5f, ycm, fstr<3>(CAT7[c - 1].shortname));
    }
    for (int c = 1; c <= 7; ++c) {
        const int count = classcount(CAT7[c - 1], rows);
        if (count >= 1) {
            setstyle(CAT7STYLE[c - 1], s);
            trackkeptsymbols(rows.itop, count);
        }
    }
}

}  // namespace

void log_azcm_11cdcat_plot2(const int& icsize, const int& itop, const int& ibot,
                            const int& nsel, const int& icmd) {
    (void)ibot;  // the selection is itop and nsel rows
    const catrows rows{icsize, itop, nsel};
    if (icmd == 355) classtracks(SIZECLASSES, 10, rows);
    if (icmd == 361) {
        slogbox(35, AXAZCMAXCAT, AXDEPTH, 4, "X+S");
        for (const catclass& c : XSCLASSES) classpoints(c, rows);
        classtrack(36, 2, SSCLASS, rows);
    }
}

void log_azcm_8hgcat_plot(const int& icwork, const int& icsize, const int& icdc,
                          const int& icrb, const int& itop, const int& ibot, const int& nsel,
                          const int& icmd) {
    (void)ibot;
    if (icmd != 356 && icmd != 357) return;
    fillcategories(shapecat8, icwork, icsize, icdc, icrb, itop, nsel);
    const catrows rows{icwork, itop, nsel};
    if (icmd == 356) {
        classtracks(CAT8, 13, rows);
    } else {
        classtrack(33, 4, CAT8[4], rows);
        classtrack(34, 2, CAT8[6], rows);
    }
}

void log_azcm_7hgcat_plot(const int& icwork, const int& icsize, const int& icdc,
                          const int& icrb, const int& itop, const int& ibot, const int& nsel,
                          const int& icmd) {
    (void)ibot;
    if (icmd < 358 || icmd > 362) return;
    fillcategories(shapecat7, icwork, icsize, icdc, icrb, itop, nsel);
    const catrows rows{icwork, itop, nsel};
    if (icmd == 358) {
        classtracks(CAT7, 13, rows);
    } else if (icmd == 359 || icmd == 360) {
        classtrack(33, 4, CAT7[5], rows);
        // On 360 the selected intervals follow on the right.
        classtrack(34, icmd == 359 ? 2 : 4, CAT7[6], rows);
    } else {
        colouredtrack(rows);
    }
}
