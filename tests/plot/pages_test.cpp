// Pages, subplots, maps and lines, seen in the plot file and on the screen.
#include <cstdio>
#include <string>
#include <vector>

#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines = std::vector<std::string>;

// The moveto and lineto lines of each stroked path of a stretch of plot file.
std::vector<lines> paths(const lines& file) {
    std::vector<lines> v;
    bool open = false;
    for (const auto& l : file) {
        if (l == "newpath") v.emplace_back();
        if (l == "newpath" || l == "stroke") open = l == "newpath";
        else if (open && (l.ends_with(" moveto") || l.ends_with(" lineto"))) v.back().push_back(l);
    }
    return v;
}

// Point i of a zigzag (i, i mod 7) under a map of 28.35 points per unit.
std::string zig(int i, const char* word) {
    char b[80];
    std::snprintf(b, sizeof b, "%.2f %.2f %s", 28.35 * i, 28.35 * (i % 7), word);
    return b;
}

class pages : public plot_session {};

}  // namespace

TEST_F(pages, OpeningWithDefaultsResetsEverySubplotAndClosingFinishesTheFile) {
    open_plot("open5.ps");
    EXPECT_EQ(plt1blk.isubplot, 1);
    EXPECT_EQ(pltcharblk.SUBPLOTITLE(40).sv(), "Subplot_40          ");
    for (int k = 1; k <= MAXSUBPLOT; ++k) {
        EXPECT_EQ(plt1blk.USTOCM(1, 1, k) + plt1blk.USTOCM(2, 2, k), 2.0f) << k;
        EXPECT_EQ(plt1blk.USTOCM(1, 2, k) + plt1blk.USTOCM(2, 1, k), 0.0f) << k;
        EXPECT_EQ(plt1blk.US0TOCM(1, k) + plt1blk.US0TOCM(2, k), 20.0f) << k;
    }
    EXPECT_TRUE(screen_has("  1: CM <-> DE updating (plot file open)"));
    EXPECT_TRUE(screen_has(" INITIALISING SUBPLOT =   1"));

    // The user origin lies 10 cm in and up: 283.50 points.
    float x[2] = {0, 1}, y[2] = {0, 0};
    skip_lines();
    usline(x, y, 2);
    ustext2(1.0f, 2.0f, "Upoint");
    cmtext2(2.0f, 3.0f, "Cpoint");
    lines body = new_lines();
    EXPECT_EQ(paths(body)[0], (lines{"283.50 283.50 moveto", "311.85 283.50 lineto"}));
    auto at = [&](std::string_view l) { return std::find(body.begin(), body.end(), l) - body.begin(); };
    EXPECT_LT(at("311.85 340.20 moveto"), at("(Upoint) show"));
    EXPECT_LT(at("(Upoint) show"), at("56.70 85.05 moveto"));
    EXPECT_LT(at("56.70 85.05 moveto"), at("(Cpoint) show"));
    EXPECT_LT(at("(Cpoint) show"), std::ptrdiff_t(body.size()));

    // A second open warns and goes on in the same file.
    fstr<40> other = "other.ps";
    plinit(other, 5);
    EXPECT_TRUE(screen_has(" Plot file or window is already opened"));
    EXPECT_TRUE(screen_has(" ==> appending to current plot file/window"));
    close_plot();
    EXPECT_FALSE(std::ifstream("other.ps").good());
    lines file = read_lines("open5.ps");
    EXPECT_EQ(count(file, "%!"), 1);
    EXPECT_EQ(file[file.size() - 2], "%%Pages:   1");

    // A plot closed already: a warning and no question.
    plend();
    EXPECT_TRUE(screen_has(" The plot window or file is already closed"));
    EXPECT_TRUE(con.keys.empty());
    EXPECT_GS_RENDERS("open5.ps");
}

TEST_F(pages, LongPolylinesGoOutInSlicesOf501PointsThatShareTheirEnds) {
    open_plot("slices.ps");
    float xcm0 = 0, ycm0 = 0, xx = 1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 1);
    std::vector<float> x(1200), y(1200);
    for (int i = 1; i <= 1200; ++i) {
        x[std::size_t(i - 1)] = float(i);
        y[std::size_t(i - 1)] = float(i % 7);
    }
    skip_lines();
    usline(x.data(), y.data(), 1200);
    lines body = new_lines();
    auto p = paths(body);
    EXPECT_EQ(count(body, "stroke"), 3);
    ASSERT_EQ(p.size(), 3u);
    ASSERT_EQ(p[0].size(), 501u);
    ASSERT_EQ(p[1].size(), 501u);
    ASSERT_EQ(p[2].size(), 200u);
    EXPECT_EQ(p[0][0], zig(1, "moveto"));
    EXPECT_EQ(p[0][500], zig(501, "lineto"));
    EXPECT_EQ(p[1][0], zig(501, "moveto"));
    EXPECT_EQ(p[1][500], zig(1001, "lineto"));
    EXPECT_EQ(p[2][0], zig(1001, "moveto"));
    EXPECT_EQ(p[2][199], zig(1200, "lineto"));

    usline(x.data(), y.data(), 501);
    EXPECT_EQ(paths(new_lines()).size(), 1u);
    usline(x.data(), y.data(), 502);
    EXPECT_EQ(paths(new_lines())[1], (lines{zig(501, "moveto"), zig(502, "lineto")}));
    usline(x.data(), y.data(), 1);  // a line onto itself
    EXPECT_EQ(paths(new_lines())[0], (lines{zig(1, "moveto"), zig(1, "lineto")}));

    usline(x.data(), y.data(), 0);
    EXPECT_TRUE(new_lines().empty());
    EXPECT_TRUE(screen_has(" is =        1"));
    EXPECT_TRUE(screen_has(" > nx =        0"));
    EXPECT_TRUE(screen_has(" attempt to read past array"));
    close_plot();
    EXPECT_GS_RENDERS("slices.ps");
}

TEST_F(pages, SubplotSelectionInformsAndRefusesNumbersPast40) {
    open_plot("panel.ps");
    int n = 12;
    ssubplot(n, 0);
    EXPECT_EQ(plt1blk.isubplot, 12);
    EXPECT_EQ(lines(con.screen.end() - 8, con.screen.end()),
              (lines{" CURRENT SUBPLOT:", " Subplot nb     :   1", " Subplot name   : Subplot_1           ",
                     " -------------------------------------------", " SWITCHING TO SUBPLOT:",
                     " Subplot nb     :  12", " Subplot name   : Subplot_12          ",
                     " @@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@"}));
    n = 41;
    ssubplot(n, 1);
    EXPECT_EQ(plt1blk.isubplot, 12);
    EXPECT_TRUE(screen_has(" trying to set subplot nb =  41"));
    EXPECT_TRUE(screen_has(" max subpplot nb          =  40"));
    ssubplot(n, 3);
    EXPECT_EQ(n, 12);
    close_plot();
}

TEST_F(pages, BoxMapTakesTheSmallerScaleForBothAxesAndKeepsEachSign) {
    float xcm0 = 3, ycm0 = 4, xlcm = 15, ylcm = 15, xumin = 0, xumax = 10, yumin = 0, yumax = 30;
    int ixy = 1, n = 2;
    ssubplot(n, 1);
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    EXPECT_EQ(plt1blk.USTOCM(1, 1, 2), 0.5f);
    EXPECT_EQ(plt1blk.USTOCM(2, 2, 2), 0.5f);
    // A box 5 cm wide at the given lower left corner.
    float xu[2] = {0, 10}, yu[2] = {0, 30};
    us2cm(xu, yu, xu, yu, 2);
    EXPECT_EQ((std::vector<float>{xu[0], yu[0], xu[1], yu[1]}), (std::vector<float>{3, 4, 8, 19}));
    cm2us(xu, yu, xu, yu, 2);
    EXPECT_FLOAT_EQ(yu[1], 30.0f);

    // A depth axis running down: only the magnitude is shared.
    std::swap(yumin, yumax);
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    EXPECT_EQ(plt1blk.USTOCM(1, 1, 2), 0.5f);
    EXPECT_EQ(plt1blk.USTOCM(2, 2, 2), -0.5f);
    ixy = 0;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    EXPECT_EQ(plt1blk.USTOCM(1, 1, 2), 1.5f);

    // Mode 3 hands the stored set-up back; the panel of mode 2 shows it.
    float a = 0, b = 0, c = 0, d = 0, e = 0, f = 0, g = 0, h = 0;
    int i = 5;
    sus2cm3(a, b, c, d, e, f, g, h, i, 3);
    EXPECT_EQ((std::vector<float>{a, b, c, d, e, f, g, h, float(i)}),
              (std::vector<float>{3, 4, 15, 15, 0, 10, 30, 0, 0}));
    con.type("");
    sus2cm3(a, b, c, d, e, f, g, h, i, 2);
    EXPECT_TRUE(screen_has("    _|_________________|_  yumax =     0.000"));
    EXPECT_TRUE(screen_has("  xumin =     0.000  yumin =    30.000"));
    EXPECT_TRUE(screen_has(" X & Y scale will adjust xlcm & ylcm"));

    // The fixed point map puts (xu0, yu0) at (xcm0, ycm0).
    float xu0 = 100, yu0 = -20, xx = 0.8f, xy = 0.2f, yx = 0, yy = 0.8f;
    sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 1);
    us2cm(&xu0, &yu0, &xu0, &yu0, 1);
    EXPECT_FLOAT_EQ(xu0, 3.0f);
    EXPECT_FLOAT_EQ(yu0, 4.0f);
}

TEST_F(pages, MapsSetWhileClosedReachTheDeviceWhenAPlotOpensWithMode2) {
    splotscaling(6);
    EXPECT_TRUE(screen_has(" Accepted values = 4,5,7"));
    splotscaling(7);
    EXPECT_TRUE(screen_has(" TRYING TO UPDATE PLOT SCALING"));
    EXPECT_EQ(plt1blk.isubplot, 0);

    // The map of subplot 3 typed in its panel.
    int n = 3;
    ssubplot(n, 1);
    for (const char* v : {"y", "2", "1", "2", "", "", "0.5"}) con.type(v);
    float xcm0 = 10, ycm0 = 10, xx = 1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 0);
    auto setup = std::find(con.screen.begin(), con.screen.end(), "             Current set up:");
    ASSERT_LT(setup + 4, con.screen.end());
    EXPECT_EQ(lines(setup + 2, setup + 5), (lines{" |xcm|   |  1.000   0.000|   |xu|   | 10.000|",
                                                   " |   | = |               | * |  | + |       |",
                                                   " |ycm|   |  0.000   1.000|   |yu|   | 10.000|"}));
    EXPECT_EQ(plt1blk.CMTOUS(2, 2, 3), 2.0f);
    EXPECT_EQ(plt1blk.CM0TOUS(1, 3), -1.0f);
    EXPECT_EQ(plt1blk.USTODE(1, 1, 3), 0.0f);  // no device yet
    con.type("");  // page format: defaults
    con.type("");  // file name: the one offered
    fstr<40> name = "carry.ps";
    plinit(name, 2);
    EXPECT_TRUE(screen_has("  2: US <-> CM untouched (set before)"));
    EXPECT_EQ(plt1blk.isubplot, 1);
    ssubplot(n, 1);
    skip_lines();
    float x[2] = {0, 1}, y[2] = {0, 2};
    usline(x, y, 2);
    EXPECT_EQ(paths(new_lines())[0], (lines{"56.70 28.35 moveto", "113.40 56.70 lineto"}));

    farr<float, 2> v0;
    farr2<float, 2, 2> m;
    splotunits(v0, m, 1, 3);
    EXPECT_EQ(m(2, 2), 0.5f);
    splotunits(v0, m, 3, 2);
    EXPECT_FLOAT_EQ(m(2, 2), 14.175f);
    EXPECT_FLOAT_EQ(v0(2), 28.35f);
    splotunits(v0, m, 2, 3);
    EXPECT_TRUE(screen_has(" imat  =      2"));
    close_plot();
    EXPECT_GS_RENDERS("carry.ps");
}

TEST_F(pages, NewPageAddsAPageOrStartsANewFile) {
    open_plot("book.ps");
    con.type("");  // default 0: a new page
    newpage();
    con.type("2");  // the same page
    newpage();
    lines body = new_lines();
    EXPECT_EQ(count(body, "gsave showpage"), 1);
    EXPECT_EQ(count(body, "%%Page:   2   2"), 1);
    for (const char* k : {"1", "", "", ""}) con.type(k);  // new file: close, defaults, name
    newpage();
    EXPECT_EQ(unit_name(UNIT_PLOT), "Next_plot");
    close_plot();
    lines book = read_lines("book.ps");
    EXPECT_EQ(book[book.size() - 2], "%%Pages:   2");
    EXPECT_GS_RENDERS("book.ps");
    EXPECT_GS_RENDERS("Next_plot");
}
