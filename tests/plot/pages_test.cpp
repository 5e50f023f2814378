// Pages, subplots, maps and lines, seen in the plot file and on the screen.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines_t = std::vector<std::string>;

// The moveto and lineto lines of each stroked path of a stretch of plot file.
std::vector<lines_t> paths(const lines_t& file) {
    std::vector<lines_t> v;
    bool open = false;
    for (const auto& l : file) {
        if (l == "newpath") v.emplace_back();
        if (l == "newpath" || l == "stroke") open = l == "newpath";
        else if (open && (l.ends_with(" moveto") || l.ends_with(" lineto"))) v.back().push_back(l);
    }
    return v;
}

class pages : public plot_session {};

}  // namespace

TEST_F(pages, OpeningWithDefaultsResetsEverySubplotAndClosingFinishesTheFile) {
    open_plot("open5.ps");
    EXPECT_EQ(pltcharblk.SUBPLOTITLE(40).sv(), "Subplot_40          ");
    for (int k = 1; k <= MAXSUBPLOT; ++k) {
        const float m[6] = {plt1blk.USTOCM(1, 1, k), plt1blk.USTOCM(2, 1, k), plt1blk.USTOCM(1, 2, k),
                            plt1blk.USTOCM(2, 2, k), plt1blk.US0TOCM(1, k), plt1blk.US0TOCM(2, k)};
        EXPECT_EQ(std::vector<float>(m, m + 6), (std::vector<float>{1, 0, 0, 1, 10, 10})) << k;
    }
    EXPECT_TRUE(screen_has("  1: CM <-> DE updating (plot file open)"));

    // The user origin lies 10 cm in and up: 283.50 points.
    float x[2] = {0, 1}, y[2] = {0, 0};
    skip_lines();
    usline(x, y, 2);
    ustext2(1.0f, 2.0f, "Upoint");
    cmtext2(2.0f, 3.0f, "Cpoint");
    lines_t body = new_lines();
    EXPECT_EQ(paths(body)[0], (lines_t{"283.50 283.50 moveto", "311.85 283.50 lineto"}));
    auto at = [&](std::string_view l) { return std::find(body.begin(), body.end(), l) - body.begin(); };
    EXPECT_LT(at("311.85 340.20 moveto"), at("(Upoint) show"));
    EXPECT_LT(at("(Upoint) show"), at("56.70 85.05 moveto"));
    EXPECT_LT(at("56.70 85.05 moveto"), at("(Cpoint) show"));

    // A second open warns and goes on in the same file.
    fstr<40> other = "other.ps";
    plinit(other, 5);
    EXPECT_TRUE(screen_has(" ==> appending to current plot file/window"));
    close_plot();
    EXPECT_FALSE(std::ifstream("other.ps").good());
    lines_t file = read_lines("open5.ps");
    EXPECT_EQ(count(file, "%!"), 1);
    EXPECT_EQ(file[file.size() - 2], "%%Pages:   1");

    // A plot closed already: a warning and no question.
    plend();
    EXPECT_TRUE(screen_has(" The plot window or file is already closed"));
    EXPECT_TRUE(con.keys.empty());
    EXPECT_GS_RENDERS("open5.ps");
}

TEST_F(pages, SubplotSelectionInforms) {
    open_plot("panel.ps");
    int n = 12;
    ssubplot(n, 0);
    EXPECT_EQ(plt1blk.isubplot, 12);
    EXPECT_EQ(lines_t(con.screen.end() - 8, con.screen.end()),
              (lines_t{" CURRENT SUBPLOT:", " Subplot nb     :   1", " Subplot name   : Subplot_1           ",
                     " -------------------------------------------", " SWITCHING TO SUBPLOT:",
                     " Subplot nb     :  12", " Subplot name   : Subplot_12          ",
                     " @@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@"}));
    ssubplot(n, 3);
    EXPECT_EQ(n, 12);
    close_plot();
    EXPECT_GS_RENDERS("panel.ps");
}

TEST_F(pages, BoxMapTakesTheSmallerScaleForBothAxesAndKeepsEachSign) {
    float xcm0 = 3, ycm0 = 4, xlcm = 15, ylcm = 15, xumin = 0, xumax = 10, yumin = 0, yumax = 30;
    int ixy = 1, n = 2;
    ssubplot(n, 1);
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    // A box 5 cm wide at the given lower left corner.
    float xu[2] = {0, 10}, yu[2] = {0, 30};
    us2cm(xu, yu, xu, yu, 2);
    EXPECT_EQ((std::vector<float>{xu[0], yu[0], xu[1], yu[1]}), (std::vector<float>{3, 4, 8, 19}));

    // A depth axis running down: only the magnitude is shared.
    std::swap(yumin, yumax);
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    EXPECT_EQ(plt1blk.USTOCM(1, 1, 2), 0.5f);
    EXPECT_EQ(plt1blk.USTOCM(2, 2, 2), -0.5f);
    ixy = 0;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
    EXPECT_EQ(plt1blk.USTOCM(1, 1, 2), 1.5f);

    // The panel of mode 2 shows the stored set-up.
    con.type("");
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 2);
    EXPECT_TRUE(screen_has("  xumin =     0.000  yumin =    30.000"));

    // The fixed point map puts (xu0, yu0) at (xcm0, ycm0).
    float xu0 = 100, yu0 = -20, xx = 0.8f, xy = 0.2f, yx = 0, yy = 0.8f;
    sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 1);

    // Its panel: the rows carry the fixed point, the middle row is the one
    // of the plain matrix panel.
    float f[8] = {};
    con.screen.clear();
    con.type("");
    sus2cm2(f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7], 2);
    auto setup = std::find(con.screen.begin(), con.screen.end(), "             Current set up:");
    ASSERT_LT(setup + 5, con.screen.end());
    EXPECT_EQ(lines_t(setup + 2, setup + 6), (lines_t{" |xcm|   |  0.800   0.200|   |xu-100.000|   |  3.000|",
                                                   " |   | = |               | * |  | + |       |",
                                                   " |ycm|   |  0.000   0.800|   |yu--20.000|   |  4.000|",
                                                   " =========================================="}));
    EXPECT_EQ(f[2], 100.0f);

    us2cm(&xu0, &yu0, &xu0, &yu0, 1);
    EXPECT_FLOAT_EQ(xu0, 3.0f);
    EXPECT_FLOAT_EQ(yu0, 4.0f);
}

TEST_F(pages, MapsSetWhileClosedReachTheDeviceWhenAPlotOpensWithMode2) {
    splotscaling(7);
    EXPECT_TRUE(screen_has(" TRYING TO UPDATE PLOT SCALING"));

    // The map of subplot 3 typed in its panel.
    int n = 3;
    ssubplot(n, 1);
    for (const char* v : {"y", "2", "1", "2", "", "", "0.5"}) con.type(v);
    float xcm0 = 10, ycm0 = 10, xx = 1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 0);
    auto setup = std::find(con.screen.begin(), con.screen.end(), "             Current set up:");
    ASSERT_LT(setup + 4, con.screen.end());
    EXPECT_EQ(lines_t(setup + 2, setup + 5), (lines_t{" |xcm|   |  1.000   0.000|   |xu|   | 10.000|",
                                                   " |   | = |               | * |  | + |       |",
                                                   " |ycm|   |  0.000   1.000|   |yu|   | 10.000|"}));
    con.type("");  // page format: defaults
    con.type("");  // file name: the one offered
    fstr<40> name = "carry.ps";
    plinit(name, 2);
    EXPECT_TRUE(screen_has("  2: US <-> CM untouched (set before)"));
    ssubplot(n, 1);
    skip_lines();
    float x[2] = {0, 1}, y[2] = {0, 2};
    usline(x, y, 2);
    EXPECT_EQ(paths(new_lines())[0], (lines_t{"56.70 28.35 moveto", "113.40 56.70 lineto"}));

    farr<float, 2> v0;
    farr2<float, 2, 2> m;
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
    lines_t body = new_lines();
    EXPECT_EQ(count(body, "gsave showpage"), 1);
    auto it = std::find(body.begin(), body.end(), "gsave showpage");
    ASSERT_LE(it + 4, body.end());
    EXPECT_EQ(lines_t(it, it + 4), (lines_t{"gsave showpage", "%%End Page", "grestore", "%%Page:   2   2"}));
    for (const char* k : {"1", "", "", ""}) con.type(k);  // new file: close, defaults, name
    newpage();
    EXPECT_EQ(unit_name(UNIT_PLOT), "Next_plot");
    close_plot();
    lines_t book = read_lines("book.ps");
    EXPECT_EQ(lines_t(book.end() - 5, book.end()),
              (lines_t{"showpage", "%%End Page", "%%Trailer", "%%Pages:   2", "%%EOF"}));
    EXPECT_GS_RENDERS("book.ps");
    EXPECT_TRUE(std::ifstream("book.ps-2.png").good());  // each page a picture
    EXPECT_GS_RENDERS("Next_plot");
}

TEST_F(pages, AMapOfZeroOrNonFiniteSizeIsRefusedAndTheSubplotKeepsItsOwn) {
    int n = 3;
    ssubplot(n, 1);
    float good[8] = {2, 2, 10, 10, 0, 5, 0, 20};  // xcm0 ycm0 xlcm ylcm xumin xumax yumin yumax
    int ixy = 0;
    sus2cm3(good[0], good[1], good[2], good[3], good[4], good[5], good[6], good[7], ixy, 1);
    const auto kept = plt1blk.USTOCM(3);
    struct Case {
        int field;
        float value;
    } cases[] = {{3, 0.f}, {2, 0.f}, {7, 0.f}, {5, 0.f}, {5, 1e-38f}, {7, INFINITY}, {0, NAN}};
    for (const auto& c : cases) {
        con.screen.clear();
        float v[8];
        std::copy(good, good + 8, v);
        v[c.field] = c.value;
        sus2cm3(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], ixy, 1);
        EXPECT_EQ(plt1blk.USTOCM(3).a[3], kept.a[3]) << c.field << " " << c.value;
        EXPECT_EQ(plt1blk.USEXTR(4, 3), 20.f);
        const auto at = std::find(con.screen.begin(), con.screen.end(),
                                  " Box or scale of zero or non-finite size:");
        ASSERT_NE(at, con.screen.end()) << c.field << " " << c.value;
        EXPECT_EQ(*(at - 7), " ***          subroutine   sus2cm3              ***");
        EXPECT_EQ(*(at + 3), " ===> NO ACTION: SUBPLOT KEEPS ITS MAP");
    }
    // A length of 0 typed into the panel: refused the same way, no stop.
    con.screen.clear();
    con.type("y");
    for (const char* a : {"", "", "", "", "", "", "", "0", ""}) con.type(a);
    sus2cm3(good[0], good[1], good[2], good[3], good[4], good[5], good[6], good[7], ixy, 2);
    EXPECT_TRUE(screen_has(" Box or scale of zero or non-finite size:"));
    EXPECT_EQ(plt1blk.CMAXLENGTH(2, 3), 10.f);
    // The other two setters refuse a singular matrix alike.
    float xcm0 = 1, ycm0 = 1, xu0 = 0, yu0 = 0, xx = 1, xy = 2, yx = 2, yy = 4;
    sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 1);
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 1);
    EXPECT_EQ(std::count(con.screen.begin(), con.screen.end(),
                         " Box or scale of zero or non-finite size:"),
              3);
    EXPECT_EQ(plt1blk.USTOCM(3).a[3], kept.a[3]);
}
