// Axes and boxes as they come out in the plot file. Most axes have an
// annotation size of 1 cm: numbers 0.8 cm (22 points), tics 0.4 cm, subtics
// 0.2 cm, labels 1 cm (28 points); every position is then a multiple of
// 0.2 cm, exact in points (5.67 each).
#include <algorithm>
#include <string>
#include <vector>

#include "lines.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines_t = std::vector<std::string>;

lines_t seg(const std::string& from, const std::string& to) {
    return {"newpath", from + " moveto", to + " lineto", "stroke"};
}
// A string shifted along its baseline: m = 2 centred, 3 right-aligned.
lines_t shifted(const std::string& at, const std::string& size, const std::string& text, int m) {
    return {at + " moveto", size + " /Helvetica findfont exch scalefont setfont", "(" + text + ")",
            "dup stringwidth pop " + std::to_string(m - 4) + " div 0 rmoveto", "show"};
}
int index_of(const lines_t& v, const std::string& s) {
    auto it = std::find(v.begin(), v.end(), s);
    return it == v.end() ? -1 : int(it - v.begin());
}
bool has_seg(const lines_t& v, const std::string& from, const std::string& to) {
    const lines_t s = seg(from, to);
    return std::search(v.begin(), v.end(), s.begin(), s.end()) != v.end();
}
long paths(const lines_t& v) { return std::count(v.begin(), v.end(), "newpath"); }

// A horizontal axis at y = 2 cm from x = 2 to 12 cm, tics below.
const lines_t AXIS_LINE = seg("56.70 56.70", "340.20 56.70");
lines_t tic(const std::string& x) { return seg(x + " 56.70", x + " 45.36"); }
lines_t sub(const std::string& x) { return seg(x + " 56.70", x + " 51.03"); }
lines_t number(const std::string& x, const std::string& t) { return shifted(x + " 17.01", "22", t, 2); }
const lines_t LABEL = shifted("198.45 -17.01", "28", "Test axis", 2);
const lines_t TEN_TICS = AXIS_LINE + tic("56.70") + sub("85.05") + sub("113.40") + sub("141.75") +
                       sub("170.10") + tic("198.45") + sub("226.80") + sub("255.15") + sub("283.50") +
                       sub("311.85") + tic("340.20");

class axes : public plot_session {
protected:
    void SetUp() override {
        plot_session::SetUp();
        axisblk7a = axisblk7a_t{};
        axisblk7b = axisblk7b_t{};
    }
    void open(std::string_view name) {
        open_plot(name);
        con.screen.clear();
    }
    lines_t xaxis(float wau1, float wau2, float waud, int nasubint = 5, int nlabintk = 1, int nawdig = 0) {
        skip_lines();
        cmaxis11(2.0f, 2.0f, 12.0f, 2.0f, -90.0f, nasubint, nlabintk, wau1, wau2, waud, nawdig, 1.0f, 2,
                 "Test axis");
        return new_lines();
    }
};

}  // namespace

TEST_F(axes, ZeroToTenAndZeroToTwelveByFive) {
    open("ten.ps");
    EXPECT_EQ(xaxis(0, 10, 5), TEN_TICS + number("56.70", "0") + number("198.45", "5") +
                                   number("340.20", "10") + LABEL);
    EXPECT_TRUE(con.screen.empty());
    // The caller's text attributes are back.
    EXPECT_EQ((std::vector<float>{plt2blk.textsizcm, plt2blk.textangle, float(plt2blk.ijustif)}),
              (std::vector<float>{0.5f, 0.0f, -1.0f}));

    // 0 to 12 over 12 cm: tics at 0, 5, 10, two subtics beyond 10, the last
    // at the end of the line, and no tic there.
    skip_lines();
    cmaxis11(2.0f, 2.0f, 14.0f, 2.0f, -90.0f, 5, 1, 0.0f, 12.0f, 5.0f, 0, 1.0f, 2, "Twelve");
    lines_t l = new_lines();
    lines_t head = seg("56.70 56.70", "396.90 56.70") + lines_t(TEN_TICS.begin() + 4, TEN_TICS.end()) +
                 sub("368.55") + sub("396.90");
    EXPECT_EQ(lines_t(l.begin(), l.begin() + std::ptrdiff_t(head.size())), head);
    EXPECT_EQ(strings(l), (lines_t{"0", "5", "10", "Twelve"}));
    EXPECT_GE(index_of(l, "226.80 -17.01 moveto"), 0);  // centred on the line
    close_plot();
    EXPECT_GS_RENDERS("ten.ps");
}

TEST_F(axes, ReversedRangesWrongAndMissingIncrementsEqualBounds) {
    open("reversed.ps");
    const lines_t down = TEN_TICS + number("56.70", "10") + number("198.45", "5") +
                       number("340.20", "0") + LABEL;
    EXPECT_EQ(xaxis(10, 0, -5), down);
    EXPECT_TRUE(con.screen.empty());
    // +5 turns round with a warning; the drawing is the same.
    EXPECT_EQ(xaxis(10, 0, 5), down);
    const int k = index_of(con.screen, " Inconsistent annotation increment:");
    ASSERT_GE(k, 1);
    EXPECT_EQ(con.screen[std::size_t(k - 3)], " ///          subroutine   cmaxis11             ///");
    EXPECT_EQ(lines_t(con.screen.begin() + k + 1, con.screen.begin() + k + 5),
              (lines_t{" initial value      =   10.000    ", " final   value      =   0.0000    ",
                     " increment          =   5.0000    ", " => RESET increment =  -5.0000    "}));

    // No increment: one interval, numbers 0 and 8 only.
    con.screen.clear();
    lines_t one = xaxis(0, 8, 0);
    EXPECT_EQ(strings(one), (lines_t{"0", "8", "Test axis"}));
    EXPECT_TRUE(has_seg(one, "340.20 56.70", "340.20 45.36"));
    EXPECT_EQ(paths(one), 1 + 2 + 4);
    EXPECT_GE(index_of(con.screen, " => RESET increment =   8.0000    "), 0);

    // Equal bounds: line and label only.
    con.screen.clear();
    EXPECT_EQ(xaxis(3, 3, 0), AXIS_LINE + LABEL);
    EXPECT_GE(index_of(con.screen, " Identical annotation bounds:"), 0);
    EXPECT_GE(index_of(con.screen, " => SKIPPING TICS"), 0);
    close_plot();
    EXPECT_GS_RENDERS("reversed.ps");
}

TEST_F(axes, AbsurdSettingsDrawABoundedAxisAndWarnOnceForThem) {
    open("bounded.ps");
    struct Case {
        float wau1, wau2, waud;
        int nsub;
        lines_t warning;  // after the head; empty: none
        long tics;        // paths: axis line, tics and subtics
    } cases[] = {
        // A bottom depth typed with four digits too many.
        {2040, 20400000, 50, 5,
         {" Too many tics for one axis:", " initial value      =   2040.0    ",
          " final   value      =  0.20400E+08", " increment          =   50.000    ",
          " nb of subtics intervals =            5", " => RESET increment =   40800.    "},
         1 + 500 + 499 * 4 + 4},
        {0, 10, 1e-30f, 5,
         {" Too many tics for one axis:", " initial value      =   0.0000    ",
          " final   value      =   10.000    ", " increment          =  0.10000E-29",
          " nb of subtics intervals =            5", " => RESET increment =  0.20000E-01"},
         1 + 501 + 500 * 4},
        {0, 10, 5, 2000000000,
         {" Too many tics for one axis:", " initial value      =   0.0000    ",
          " final   value      =   10.000    ", " increment          =   5.0000    ",
          " nb of subtics intervals =   2000000000",
          " => RESET subtics intervals =         1666"},
         1 + 3 + 2 * 1665},
        {0, 1e38f, 1, 5, {}, -1},
        {-3e38f, 3e38f, 1, 5,
         {" Annotation bounds not finite:", " initial value      = -0.30000E+39",
          " final   value      =  0.30000E+39", " increment          =   1.0000    ",
          " => SKIPPING TICS"},
         1},
    };
    for (const auto& c : cases) {
        con.screen.clear();
        const lines_t l = xaxis(c.wau1, c.wau2, c.waud, c.nsub);
        const lines_t again = xaxis(c.wau1, c.wau2, c.waud, c.nsub);
        EXPECT_EQ(l, again) << c.wau2;
        if (c.tics >= 0) {
            EXPECT_EQ(paths(l), c.tics) << c.wau2;
            EXPECT_EQ(std::count(con.screen.begin(), con.screen.end(),
                                 " ///          subroutine   cmaxis11             ///"),
                      1)
                << c.wau2;
            const int k = index_of(con.screen, c.warning[0]);
            ASSERT_GE(k, 3) << c.wau2;
            EXPECT_EQ(lines_t(con.screen.begin() + k, con.screen.begin() + k + long(c.warning.size())),
                      c.warning);
        } else {
            EXPECT_LE(paths(l), 5001) << c.wau2;
        }
    }
    close_plot();
    EXPECT_GS_RENDERS("bounded.ps");
}

TEST_F(axes, NumberSpacingDecimalsAndPlacementAlongTheTics) {
    open("numbers.ps");
    lines_t two = xaxis(0, 20, 5, 5, 2);  // five tics, numbers on 1, 3, 5
    EXPECT_EQ(strings(two), (lines_t{"0", "10", "20", "Test axis"}));
    EXPECT_GE(index_of(two, "198.45 17.01 moveto"), 0);
    EXPECT_EQ(paths(two), 1 + 5 + 4 * 4);
    EXPECT_EQ(strings(xaxis(-1, 1, 0.5f, 1, 1, 1)),
              (lines_t{"-1.0", "-0.5", "0.0", "0.5", "1.0", "Test axis"}));
    EXPECT_EQ(strings(xaxis(0, 2, 0.5f, 1)), (lines_t{"0", "0", "1", "1", "2", "Test axis"}));

    // Upward, tics left: numbers right-aligned at mid-height 0.6 cm left of
    // the line; the label reads upwards, 0.8 cm plus the estimated width of
    // "10" (0.8 x 2 x 0.6 cm) left of the line.
    skip_lines();
    cmaxis11(2.0f, 4.0f, 2.0f, 14.0f, 90.0f, 5, 1, 0.0f, 10.0f, 5.0f, 0, 1.0f, 1, "  Up axis ");
    lines_t up = new_lines();
    EXPECT_TRUE(has_seg(up, "56.70 113.40", "45.36 113.40"));
    const lines_t label{"6.80 255.15 moveto", "  90.00 rotate", "28 /Helvetica findfont exch scalefont setfont",
                      "(Up axis)", "dup stringwidth pop -2 div 0 rmoveto", "show", " -90.00 rotate"};
    EXPECT_EQ(lines_t(up.end() - 22, up.end()), shifted("39.69 102.06", "22", "0", 3) +
                                                  shifted("39.69 243.81", "22", "5", 3) +
                                                  shifted("39.69 385.56", "22", "10", 3) + label);
    close_plot();
    EXPECT_GS_RENDERS("numbers.ps");
}

// Boxes. Subplot 1 at its defaults puts user (0, 0) at 10 cm, 10 cm: a box
// from -5 to 5 fills 5 to 15 cm (141.75 to 425.25 points) both ways.
namespace {

struct box_case {
    float xfirst, xlast, yfirst, ylast;
};
const box_case CASE1{-5, 5, -5, 5}, CASE2{5, -5, -5, 5}, CASE3{-5, 5, 5, -5}, CASE4{5, -5, 5, -5};

class boxes : public axes {
protected:
    // Types: top 0, bottom 1, left 1, right 0 unless given.
    lines_t box(const box_case& c, int izero = 0, int top = 0, int bottom = 1, int left = 1, int right = 0,
              float walas = 1.0f) {
        skip_lines();
        const float xd = c.xfirst < c.xlast ? 5.0f : -5.0f, yd = c.yfirst < c.ylast ? 5.0f : -5.0f;
        usbax6(c.xfirst, c.xlast, c.yfirst, c.ylast, c.xfirst, c.xlast, xd, "Xlab", 0, walas, 5, 1,
               c.yfirst, c.ylast, yd, "Ylab", 0, walas, 5, 1, izero, top, bottom, left, right);
        return new_lines();
    }
};

}  // namespace

TEST_F(boxes, FourRangeCasesEdgeTypesByPlaceAndZeroLines) {
    open("cases.ps");
    for (const box_case& c : {CASE1, CASE2, CASE3, CASE4}) {
        lines_t l = box(c, 1);
        const std::string name = std::to_string(c.xfirst) + "," + std::to_string(c.yfirst);
        // Labels under the bottom and left of the left edge; tics outward.
        EXPECT_GE(index_of(l, "283.50 68.04 moveto"), 0) << name;
        EXPECT_GE(index_of(l, "112.27 283.50 moveto"), 0) << name;
        EXPECT_TRUE(has_seg(l, "283.50 141.75", "283.50 130.41")) << name;
        EXPECT_TRUE(has_seg(l, "141.75 283.50", "130.41 283.50")) << name;
        // Top and right are plain lines from first to last.
        const std::string x0 = c.xfirst < 0 ? "141.75" : "425.25", x1 = c.xfirst < 0 ? "425.25" : "141.75";
        const std::string y0 = c.yfirst < 0 ? "141.75" : "425.25", y1 = c.yfirst < 0 ? "425.25" : "141.75";
        EXPECT_TRUE(has_seg(l, x0 + " 425.25", x1 + " 425.25")) << name;
        EXPECT_TRUE(has_seg(l, "425.25 " + y0, "425.25 " + y1)) << name;
        EXPECT_EQ(strings(l).size(), 8u) << name;
        // Zero lines where a range ascends across zero, last of all.
        const bool zx = c.xfirst < 0, zy = c.yfirst < 0;
        lines_t zeros = (zx ? seg("283.50 " + y0, "283.50 " + y1) : lines_t{}) +
                      (zy ? seg(x0 + " 283.50", x1 + " 283.50") : lines_t{});
        EXPECT_EQ(lines_t(l.end() - std::ptrdiff_t(zeros.size()), l.end()), zeros) << name;
        EXPECT_EQ(paths(l), 2 + 2 * (1 + 3 + 8) + zx + zy) << name;
    }
    // In case 4 the first x number, 5, is at the right.
    lines_t l = box(CASE4);
    EXPECT_EQ(strings(l), (lines_t{"5", "0", "-5", "Xlab", "5", "0", "-5", "Ylab"}));
    EXPECT_EQ(l[std::size_t(index_of(l, "(5)") - 2)], "425.25 102.06 moveto");
    EXPECT_EQ(box({0, 5, 0, 5}, 1), box({0, 5, 0, 5}, 0));  // touching zero isn't crossing it
    close_plot();
    EXPECT_GS_RENDERS("cases.ps");
}

TEST_F(boxes, MirroringMapAndDescendingDepthAxis) {
    open("depth.ps");
    // x right to left on the paper: the tics still point out of the box.
    float xcm0 = 10, ycm0 = 10, xx = -1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 1);
    EXPECT_TRUE(has_seg(box(CASE1, 0, 1, 1, 1, 1), "425.25 141.75", "436.59 141.75"));
    // Depth from 1000 down to 0 (case 3): the edge at y first, on top,
    // takes the top's type.
    float x0 = 5, y0 = 5, xl = 10, yl = 10, xmin = 0, xmax = 50, ymin = 0, ymax = 1000;
    int ixy = 0;
    sus2cm3(x0, y0, xl, yl, xmin, xmax, ymin, ymax, ixy, 1);
    auto depth_box = [&](int top, int bottom) {
        skip_lines();
        usbax6(0.0f, 50.0f, 1000.0f, 0.0f, 0.0f, 50.0f, 10.0f, "X", 0, 1.0f, 5, 1, 1000.0f, 0.0f, -250.0f,
               "Depth (m)", 0, 1.0f, 5, 2, 0, top, bottom, 0, 0);
        return new_lines();
    };
    lines_t t = depth_box(1, 0);
    EXPECT_TRUE(has_seg(t, "141.75 425.25", "141.75 436.59"));
    EXPECT_TRUE(has_seg(t, "141.75 141.75", "425.25 141.75"));
    lines_t b = depth_box(0, 1);
    EXPECT_TRUE(has_seg(b, "141.75 141.75", "141.75 130.41"));
    EXPECT_TRUE(has_seg(b, "141.75 425.25", "425.25 425.25"));
    EXPECT_EQ(index_of(b, "(Depth (m))"), -1);
    close_plot();
    EXPECT_GS_RENDERS("depth.ps");
}

TEST_F(boxes, StoredBoxDrawsAsTheExplicitOneAndOnlyBoxOneExists) {
    open("stored.ps");
    snaxis(5);
    float u1 = 0, u2 = 0, w1 = -5, w2 = 5, wd = 5, ws = 1, sc = 1;
    fstr<30> lab = "Stored x";
    int nd = 0, ns = 5, nl = 1, one = 1;
    s1axuswdtyp(one, sc, 4, 1);
    s1axis1(u1, u2, w1, w2, wd, ws, lab, nd, ns, nl, 4, 1);
    lab = "Stored y";
    w1 = -2, w2 = 6, wd = 2, ns = 2, nl = 2;
    s1axuswdtyp(one, sc, 7, 1);
    s1axis1(u1, u2, w1, w2, wd, ws, lab, nd, ns, nl, 7, 1);
    int ix = 4, iy = 7, left = 1, right = 0, bottom = 1, top = 5, clip = 1, zero = 1;
    fstr<25> blab = "A box";
    s1bx2d(ix, iy, left, right, bottom, top, clip, zero, blab, 1, 1);

    skip_lines();
    d1bx2d(1);
    lines_t stored = new_lines();
    usbax6(-5.0f, 5.0f, -2.0f, 6.0f, -5.0f, 5.0f, 5.0f, fstr<30>("Stored x").sv(), 0, 1.0f, 5, 1, -2.0f,
           6.0f, 2.0f, fstr<30>("Stored y").sv(), 0, 1.0f, 2, 2, 1, 5, 1, 1, 0);
    EXPECT_EQ(stored, new_lines());
    EXPECT_EQ(strings(stored).size(), 12u);
    d1bx2d(2);
    EXPECT_TRUE(new_lines().empty());
    EXPECT_GE(index_of(con.screen, " trying to draw box nb =      2"), 0);
    EXPECT_GE(index_of(con.screen, " max box nb =      1"), 0);
    close_plot();
    EXPECT_GS_RENDERS("stored.ps");
}
