// The log layouts: subplot geometry and slogbox. swellplot, with the axis
// set defaults and the layout menu, is in swellplot_menu.cpp.
#include "borehole/wellplot.h"

#include "borehole/tracks.h"
#include "plot/axes/axes.h"
#include "plot/pages.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "well/welldat.h"

wellplot_t wellplot;

namespace {

// Page and margins, cm.
constexpr float MX = 2.5f;   // left and right
constexpr float MY0 = 2.5f;  // bottom
constexpr float MY1 = 3.5f;  // top

// The user range every log box starts with; depth grows downwards, so the
// larger value is at the bottom.
constexpr float LOG_XUMIN = 0.0f, LOG_XUMAX = 50.0f;
constexpr float LOG_YUMIN = 1000.0f, LOG_YUMAX = 0.0f;

// One log box: fixed size, lower left corner at (x, MY0), scales free.
void logsubplot(int n, float x, float w, float h) {
    ssubplot(n, 1);
    float xcm0 = x, ycm0 = MY0, xlcm = w, ylcm = h;
    float xumin = LOG_XUMIN, xumax = LOG_XUMAX, yumin = LOG_YUMIN, yumax = LOG_YUMAX;
    int ixy = 0;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
}

// One 6 x 6 statistics box over [0, 1] x [0, 1]. The scales stay free: a
// bar chart's counts and bins are not of one unit.
void statsubplot(int n, float x, float y) {
    ssubplot(n, 1);
    float xcm0 = x, ycm0 = y, xlcm = 6.0f, ylcm = 6.0f;
    float xumin = 0.0f, xumax = 1.0f, yumin = 0.0f, yumax = 1.0f;
    int ixy = 0;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
}

// The border types of the left and right edges for a frame code; any
// other code leaves them alone.
void frameborders(int iframe, int& left, int& right) {
    switch (iframe) {
    case 1: left = 1; right = 0; break;
    case 2: left = 0; right = 1; break;
    case 3: left = 1; right = 1; break;
    case 4: left = 0; right = 0; break;
    default: break;
    }
}

}  // namespace

void swellorientation(std::string_view question, bool rules) {
    if (rules) menurule();
    textline("N.B. Exchanging Landscape for Portrait ");
    textline("     will reset all subplots scaling");
    if (rules) menurule();
    bool land = wellplot.llandscape;
    int ierr = 0;
    inlogicdef(land, question, wellplot.llandscape, ierr);
    if (land != wellplot.llandscape) {
        wellplot.llandscape = land;
        swellsubplot();
    }
}

void swellsubplot() {
    const bool land = wellplot.llandscape;
    const float W = land ? 30.0f : 21.0f;
    const float H = land ? 21.0f : 30.0f;
    const float h = H - MY0 - MY1;

    // 1: perspectives, a fixed scale about the upper middle of the page.
    {
        int n = 1;
        ssubplot(n, 1);
        float xcm0 = W / 2.0f, ycm0 = H - MY1, xu0 = 0.0f, yu0 = 0.0f;
        float xx = 0.8f, xy = 0.0f, yx = 0.0f, yy = 0.8f;
        sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 1);
    }

    // 2: one box over the whole width.
    logsubplot(2, MX, W - 2.0f * MX, h);

    // 3 to 8: six equal boxes.
    const float w6 = (W - 2.0f * MX) / 6.0f;
    for (int n = 3; n <= 8; ++n) logsubplot(n, MX + float(n - 3) * w6, w6, h);

    // 9 to 20 with 9 wider; 21 and 22 take the room of 10 to 12.
    const float w9 = land ? 3.0f : 1.8f;
    const float w10 = land ? 2.0f : 1.2f;
    logsubplot(9, MX, w9, h);
    for (int n = 21; n <= 22; ++n) logsubplot(n, MX + float(n - 20) * w9, w9, h);
    for (int n = 10; n <= 20; ++n) logsubplot(n, MX + w9 + float(n - 10) * w10, w10, h);

    // 29 to 36 with 29 to 32 wider; 37 takes the room of 32 to 34.
    const float w29 = land ? 4.25f : 2.5f;
    const float w33 = land ? 2.0f : 1.25f;
    const float w37 = land ? 8.25f : 5.0f;
    for (int n = 29; n <= 32; ++n) logsubplot(n, MX + float(n - 29) * w29, w29, h);
    for (int n = 33; n <= 36; ++n) logsubplot(n, MX + 4.0f * w29 + float(n - 33) * w33, w33, h);
    logsubplot(37, MX + 3.0f * w29, w37, h);

    // 23 to 28: the statistics boxes, numbered from the top right in
    // landscape rows and from the top of the right column in portrait.
    for (int n = 23; n <= 28; ++n) {
        if (land) {
            const int k = 28 - n;
            statsubplot(n, 4.0f + 8.0f * float(k % 3), 3.0f + 8.0f * float(k / 3));
        } else {
            const int k = n - 23;
            statsubplot(n, 3.5f + 8.0f * float(k / 3), 3.5f + 8.0f * float(k % 3));
        }
    }
}

void slogbox(const int& isubplot, const int& ixaxis, const int& iyaxis, const int& iframe,
             std::string_view label) {
    trackend();
    // The label stays on the axis set: the next track that takes the set
    // without a label of its own shows it.
    {
        axisedit a(ixaxis);
        a.walab = label;
    }
    {
        boxedit b;
        b.ix = ixaxis;
        b.iy = iyaxis;
        frameborders(iframe, b.left, b.right);
    }
    int nsub = isubplot;
    ssubplot(nsub, 1);
    {
        mapedit m;
        g1axbd(m.xumin, m.xumax, ixaxis);
        // The vertical set runs down the box: its first bound at the top,
        // as depth does on a log.
        g1axbd(m.yumax, m.yumin, iyaxis);
    }
    if (iframe != 0) d1bx2d(1);
}

pageinfoplace wellpagehead(std::string_view file) {
    const welldat_t& w = welldat;
    const bool land = wellplot.llandscape;
    const float y = land ? 20.0f : 29.0f;
    {
        attributekept<int> entry(stextalign);
        int align = -2;
        stextalign(align, 1);
        cmplotruninfo2(land ? 15.0f : 10.5f, y);
        align = -1;
        stextalign(align, 1);
        cmplotdatainfo0("WELL", w.TYPWDNAM(w.itypwd).sv(), file, w.titlewd.sv(), w.ndatwd,
                        land ? 3.0f : 2.0f, y);
    }
    return {land ? 27.0f : 19.0f, y};
}
