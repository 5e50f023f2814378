// Log layouts: where each subplot stands on the page, the box a track gets
// from slogbox, and the layout menu.
#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "borehole/wellplot.h"
#include "plot/axes/axes.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";

// Each subplot's box on the paper, cm: left, bottom, width, height.
struct box {
    int n;
    float x, y, w, h;
};
void expect_boxes(std::initializer_list<box> want) {
    const plt1blk_t& p = plt1blk;
    for (const box& b : want) {
        const float got[] = {p.USMINTOCM(1, b.n), p.USMINTOCM(2, b.n), p.CMAXLENGTH(1, b.n),
                             p.CMAXLENGTH(2, b.n)};
        const float exp[] = {b.x, b.y, b.w, b.h};
        for (int k = 0; k < 4; ++k) EXPECT_FLOAT_EQ(got[k], exp[k]) << "subplot " << b.n << " " << k;
    }
}

class layout : public plot_session {
protected:
    void SetUp() override {
        plot_session::SetUp();
        axisblk7a = axisblk7a_t{};
        axisblk7b = axisblk7b_t{};
        wellplot = wellplot_t{};
        swellplot(5);
    }
    // A plot opened afresh resets every map: the layout is built again, as
    // logplot2's plot files keep it by opening with 2.
    void open(std::string_view name) {
        open_plot(name);
        swellsubplot();
        // Box 1 as logplot2 leaves it: four full axes.
        int ix = 3, iy = 1, l = 1, r = 1, b = 1, t = 1, clip = 0, zero = 0;
        fstr<BOXLABLEN> lab = "log plot";
        s1bx2d(ix, iy, l, r, b, t, clip, zero, lab, 1, 1);
        skip_lines();
        con.screen.clear();
    }
};

// Start-up: landscape, the caliper colours and the boxes of each layout.
TEST_F(layout, StartUpLandscapeRowsShareBottomAndHeightAndWideBoxesCoverNarrowOnes) {
    swellplot(5);
    const int k = find(" INITIALIZING PLOT SCALING, ATTRIBUTES & AXES");
    ASSERT_GT(k, 0);
    EXPECT_EQ(con.screen[std::size_t(k - 2)], " @ subroutine swellplot             v9.0 2020-10-19");
    EXPECT_TRUE(wellplot.llandscape);
    EXPECT_EQ((std::vector<int>{wellplot.jclrc1, wellplot.jclrc2}), (std::vector<int>{2, 4}));
    // Statistics: top row 25, 24, 23, lower row 28, 27, 26.
    expect_boxes({{2, 2.5f, 2.5f, 25.0f, 15.0f},
                  {8, 2.5f + 5.0f * 25.0f / 6.0f, 2.5f, 25.0f / 6.0f, 15.0f},
                  {9, 2.5f, 2.5f, 3.0f, 15.0f},    {20, 25.5f, 2.5f, 2.0f, 15.0f},
                  {22, 8.5f, 2.5f, 3.0f, 15.0f},   {32, 15.25f, 2.5f, 4.25f, 15.0f},
                  {36, 25.5f, 2.5f, 2.0f, 15.0f},  {37, 15.25f, 2.5f, 8.25f, 15.0f},
                  {28, 4.0f, 3.0f, 6.0f, 6.0f},    {23, 20.0f, 11.0f, 6.0f, 6.0f}});
    // Wide boxes end where the next narrow one starts; depth grows downwards.
    EXPECT_FLOAT_EQ(plt1blk.USMINTOCM(1, 22) + 3.0f, plt1blk.USMINTOCM(1, 13));
    EXPECT_FLOAT_EQ(plt1blk.USMINTOCM(1, 37) + 8.25f, plt1blk.USMINTOCM(1, 35));
    EXPECT_EQ(plt1blk.USEXTR(3, 2), 1000.0f);
    EXPECT_EQ(plt1blk.USEXTR(4, 2), 0.0f);
    // 1: a fixed scale of 0.8 about the top middle of the page.
    EXPECT_EQ(plt1blk.US0TOCM(1, 1), 15.0f);
    EXPECT_EQ(plt1blk.US0TOCM(2, 1), 17.5f);
    EXPECT_FLOAT_EQ(plt1blk.USTOCM(1, 1, 1), 0.8f);
    EXPECT_FLOAT_EQ(plt1blk.USTOCM(2, 2, 1), 0.8f);
}

TEST_F(layout, SlogboxScalesTheBoxToItsSetsAndFramesItByCode) {
    open("slogbox.ps");
    // logplot2 gives the depth set the selected interval.
    axisblk7a.USA1(1) = axisblk7a.WAU1(1) = 1200.0f;
    axisblk7a.USA2(1) = axisblk7a.WAU2(1) = 1300.0f;
    slogbox(5, 7, 1, 4, "P1Az [360]");
    EXPECT_TRUE(con.screen.empty());
    EXPECT_EQ(plt1blk.isubplot, 5);
    float x[2] = {0.0f, 360.0f}, y[2] = {1200.0f, 1300.0f};
    us2cm(x, y, x, y, 2);
    EXPECT_FLOAT_EQ(x[0], 2.5f + 2.0f * 25.0f / 6.0f);  // left, top
    EXPECT_NEAR(y[0], 17.5f, 1e-4f);
    EXPECT_FLOAT_EQ(x[1], 2.5f + 3.0f * 25.0f / 6.0f);  // right, bottom
    EXPECT_NEAR(y[1], 2.5f, 1e-4f);
    // The label stays on the set for the next track that takes it.
    EXPECT_EQ(axisblk7b.WALAB(7).trimmed(), "P1Az [360]");

    struct { int frame, left, right, depth; } want[] = {{1, 1, 0, 1}, {2, 0, 1, 1}, {3, 1, 1, 2},
                                                       {4, 0, 0, 0}};
    for (const auto& w : want) {
        SCOPED_TRACE("frame " + std::to_string(w.frame));
        skip_lines();
        slogbox(3, 4, 1, w.frame, "C1,C2 (cm)");
        const lines_t s = strings(new_lines());
        EXPECT_EQ(axisblk7a.IBBORDER(1), w.left);
        EXPECT_EQ(axisblk7a.IBBORDER(2), w.right);
        EXPECT_EQ(count(s, "Depth (m)"), w.depth);
        EXPECT_EQ(count(s, "C1,C2 (cm)"), 2);  // top and bottom
        EXPECT_EQ(count(s, "1300"), w.depth);
    }
    // 0 sets the box up without drawing and keeps the borders.
    slogbox(4, 6, 1, 0, "|C1-C2|");
    EXPECT_TRUE(new_lines().empty());
    EXPECT_EQ(axisblk7a.IBBORDER(1), 0);
    EXPECT_EQ(axisblk7a.ixaxisbx, 6);
    EXPECT_EQ(axisblk7a.iyaxisbx, 1);
    EXPECT_EQ(plt1blk.isubplot, 4);
    close_plot();
}

TEST_F(layout, TwelveAndEightBoxPagesRender) {
    // The page format file asks for landscape A4, the page these layouts fill.
    std::ofstream("quarp9_ini.txt") << " 3 'Landscape A4'\n \n";
    open("pages.ps");
    slogbox(9, 4, 1, 1, "C1,C2 (cm)");
    for (int n = 10; n <= 19; ++n) slogbox(n, 14, 1, 4, "R+R");
    slogbox(20, 14, 1, 2, "S+S");
    con.type("0");
    newpage();
    const char* labels[] = {"C1,C2 (cm)", "|C1-C2|", "RBCmax", "Azimuth [180]", "X+S", "S+S"};
    const int sub[] = {29, 30, 31, 37, 35, 36}, set[] = {4, 6, 13, 14, 14, 14}, fr[] = {1, 4, 4, 4, 4, 2};
    for (int k = 0; k < 6; ++k) slogbox(sub[k], set[k], 1, fr[k], labels[k]);
    close_plot();
    const lines_t s = strings(read_lines("pages.ps"));
    EXPECT_EQ(count(s, "Depth (m)"), 4);
    EXPECT_EQ(count(s, "R+R"), 20);
    EXPECT_GS_RENDERS("pages.ps");
}

TEST_F(layout, MenuShowsTheLayoutsAndTurnsThePage) {
    con.screen.clear();
    type({"50", "11", "0", "50", "99"});
    swellplot(2);
    const lines_t& sc = con.screen;
    const int m = find(" MULTIPLE PLOTS LAYOUT");
    ASSERT_GE(m, 0);
    EXPECT_EQ(lines_t(sc.begin() + m, sc.begin() + m + 7),
              (lines_t{" MULTIPLE PLOTS LAYOUT", " modify scaling ............10",
                     " Landscape(T)/Portrait(F)...11 T", " modify plot attributes ....15",
                     " modify axes params ........20", " show subplot layout .......50",
                     " EXIT ......................99"}));
    // The drawings: the page of box 1, the log row of 37, the stats.
    const int l = find(" |                      (1)                      |", m);
    const int t = find(" |  29   |  30   |  31   |      37       |35 |36 |", l);
    const int st = find(" |   25    |   |   24    |   |   23    |", t);
    EXPECT_TRUE(l > m && t > l && st > t) << l << " " << t << " " << st;
    // Turned to portrait: two lines of warning without rules, then the
    // flag, the boxes and the stats drawing follow.
    const int nb = find(" N.B. Exchanging Landscape for Portrait ", t);
    ASSERT_GT(nb, t);
    EXPECT_EQ(sc[std::size_t(nb + 1)], "      will reset all subplots scaling");
    EXPECT_NE(sc[std::size_t(nb - 1)], DASH);
    EXPECT_NE(sc[std::size_t(nb + 2)], DASH);
    EXPECT_FALSE(wellplot.llandscape);
    // The stats in the left column 25, 24, 23 from the top.
    expect_boxes({{2, 2.5f, 2.5f, 16.0f, 24.0f}, {12, 4.3f + 2.4f, 2.5f, 1.2f, 24.0f},
                  {37, 10.0f, 2.5f, 5.0f, 24.0f}, {25, 3.5f, 19.5f, 6.0f, 6.0f}});
    EXPECT_EQ(plt1blk.US0TOCM(2, 1), 26.5f);
    const int f = find(" Landscape(T)/Portrait(F)...11 F", t);
    ASSERT_GT(f, t);
    const int p = find(" |   25    |   |   28    |", f);
    ASSERT_GT(p, f);
    EXPECT_EQ(sc[std::size_t(p + 6)], " |   24    |   |   27    |");
}

TEST_F(layout, SubplotEditsLastUntilTheOrientationChanges) {
    // Subplot 3 by hand; 0 does nothing; 11 with the same answer keeps the
    // edit; 99 to "subplot nb to modify" leaves, never sets all.
    type({"10", "0", "3", "1", "0", "100", "0", "200", "1", "1", "5", "5", "0", "99"});
    type({"11", "1", "99"});
    swellplot(2);
    expect_boxes({{3, 1.0f, 1.0f, 5.0f, 5.0f}});
    EXPECT_EQ(count(con.screen, " Do you want to alter this ?"), 1);
    EXPECT_EQ(count(con.screen, " subplot nb maxi =  28"), 3);
    // Above 28: 1 to 28 in turn.
    type({"10", "29"});
    for (int k = 1; k <= 28; ++k) type({""});
    type({"99", "11", "0", "99"});
    swellplot(2);
    EXPECT_EQ(count(con.screen, " Do you want to alter this ?"), 29);
    expect_boxes({{3, 2.5f, 2.5f, 16.0f / 6.0f, 24.0f}});
}

TEST_F(layout, ResetWithDialogueOffersEachAxisSetThenTheMenu) {
    axisblk7b.WALAB(6) = "edited";
    wellplot.llandscape = false;
    for (int k = 1; k <= 31; ++k) type({""});
    swellplot(4);
    EXPECT_TRUE(wellplot.llandscape);
    EXPECT_EQ(axisblk7b.WALAB(6).trimmed(), "|DC| (cm)");
    EXPECT_EQ(count(con.screen, " MULTIPLE PLOTS LAYOUT"), 1);
    EXPECT_TRUE(con.keys.empty());
}

}  // namespace
