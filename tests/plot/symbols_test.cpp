// Symbols and polygons as they come out in the plot file. The symbol centre
// is the user point (0, 0) of subplot 1 at its defaults, 10 cm in and up:
// (283.50, 283.50); the default symbol size 0.4 cm gives the radius 5.67.
#include <string>
#include <vector>

#include "lines.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"
#include "plot/symbols.h"

namespace {

using lines_t = std::vector<std::string>;


// One stroked path through the given points.
lines_t path(std::initializer_list<std::string> pts, lines_t end = {"stroke"}) {
    lines_t v{"newpath"};
    v.insert(v.end(), pts.begin(), pts.end());
    return v + end;
}

const lines_t HBAR = path({"277.83 283.50 moveto", "289.17 283.50 lineto"});
const lines_t VBAR = path({"283.50 277.83 moveto", "283.50 289.17 lineto"});
const lines_t DOT = path({"283.50 283.50 moveto", "283.50 283.50 lineto"});
const std::initializer_list<std::string> DIAMOND = {"283.50 289.17 moveto", "277.83 283.50 lineto",
                                                     "283.50 277.83 lineto", "289.17 283.50 lineto",
                                                     "283.50 289.17 lineto"};

class symbols : public plot_session {
protected:
    // The lines one symbol of the given type at (0, 0) writes.
    lines_t symbol(int type) {
        float x = 0, y = 0;
        ssymboltype(type, 1);
        skip_lines();
        ussymbol(&x, &y, 1);
        return new_lines();
    }
};

}  // namespace

TEST_F(symbols, ShapesOfEveryType) {
    open_plot("shapes.ps");
    EXPECT_EQ(symbol(4), path(DIAMOND));
    EXPECT_EQ(symbol(-4), path(DIAMOND, {"closepath gsave", " 0.800  0.800  0.800 setrgbcolor fill grestore",
                                         "stroke"}));
    EXPECT_EQ(symbol(40), path({"287.51 287.51 moveto", "279.49 287.51 lineto", "279.49 279.49 lineto",
                                "287.51 279.49 lineto", "287.51 287.51 lineto"}));
    lines_t circle = symbol(1);
    ASSERT_EQ(circle.size(), 22u);
    EXPECT_EQ(circle[1], "289.17 283.50 moveto");
    EXPECT_EQ(circle[6], "283.03 289.15 lineto");  // 5 steps of 18.95 degrees
    EXPECT_EQ(circle[20], circle[1].substr(0, 14) + "lineto");
    for (int other : {0, 2, 18, 19, 41, 1000}) EXPECT_EQ(symbol(other), circle) << other;
    // The most negative type is a filled unknown type, as its neighbour is.
    EXPECT_EQ(symbol(-2147483647 - 1), symbol(-2147483647));
    for (int t = 3; t <= 9; ++t) {
        lines_t l = symbol(t);
        ASSERT_EQ(l.size(), std::size_t(t + 3)) << t;
        EXPECT_EQ(l[1], "283.50 289.17 moveto") << t;
        EXPECT_EQ(l[std::size_t(t + 1)], "283.50 289.17 lineto") << t;
    }
    EXPECT_EQ(symbol(8)[2], "279.49 287.51 lineto");  // 135 degrees

    EXPECT_EQ(symbol(11), HBAR);
    EXPECT_EQ(symbol(12), VBAR);
    EXPECT_EQ(symbol(13), HBAR + VBAR);
    EXPECT_EQ(symbol(14), path({"287.51 287.51 moveto", "279.49 279.49 lineto"}) +
                              path({"279.49 287.51 moveto", "287.51 279.49 lineto"}));
    lines_t star = symbol(15);
    EXPECT_EQ(count(star, "newpath"), 3);
    EXPECT_EQ(lines_t(star.begin() + 4, star.begin() + 8), path({"283.50 289.17 moveto", "283.50 277.83 lineto"}));
    EXPECT_EQ(count(symbol(16), "283.50 283.50 moveto"), 3);
    EXPECT_EQ(symbol(17)[10], "283.50 289.17 lineto");  // the third of five spokes, straight up

    EXPECT_EQ(symbol(20), circle + DOT);
    EXPECT_EQ(symbol(23), circle + VBAR + HBAR);
    lines_t filled = symbol(-23);  // the bars on top are plain lines
    ASSERT_EQ(filled.size(), 32u);
    EXPECT_EQ(filled[21], "closepath gsave");
    EXPECT_EQ(lines_t(filled.begin() + 24, filled.end()), VBAR + HBAR);

    // Without fill a filled type differs from the hollow one by closepath.
    int hollow = 0;
    sfillstyle(hollow, 1);
    EXPECT_EQ(symbol(-4), path(DIAMOND, {"closepath", "stroke"}));
    // Every type, hollow and filled, in the file that must render.
    hollow = 1;
    sfillstyle(hollow, 1);
    for (int t = -41; t <= 41; ++t) symbol(t);
    close_plot();
    EXPECT_GS_RENDERS("shapes.ps");
}

TEST_F(symbols, EachPointHasItsOwnPathsAndTheDotIgnoresTheSize) {
    open_plot("points.ps");
    float size = 4.0f;
    ssymbolsize(size, 1);
    int dot = 10;
    ssymboltype(dot, 1);
    float x[3] = {0, 1, 2}, y[3] = {0, 1, 0};
    skip_lines();
    ussymbol(x, y, 2);
    EXPECT_EQ(new_lines(), DOT + path({"311.85 311.85 moveto", "311.85 311.85 lineto"}));
    ussymbol(x, y, 0);
    EXPECT_TRUE(new_lines().empty());

    close_plot();
    EXPECT_GS_RENDERS("points.ps");
}

TEST_F(symbols, PolygonsPast501PointsAreCutWithAWarning) {
    open_plot("bigpoly.ps");
    float xcm0 = 0, ycm0 = 0, xx = 1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 1);
    std::vector<float> x(502), y(502);
    for (int i = 1; i <= 502; ++i) {
        x[std::size_t(i - 1)] = 0.2f * float(i % 50);
        y[std::size_t(i - 1)] = 0.2f * float(i / 50);
    }
    skip_lines();
    con.screen.clear();
    uspolygon(x.data(), y.data(), 502);
    lines_t body = new_lines();
    EXPECT_EQ(count(body, "closepath gsave"), 2);
    auto second = std::find(body.rbegin(), body.rend(), "newpath").base();  // points 501 and 502
    ASSERT_LT(second + 2, body.end());
    EXPECT_EQ(lines_t(second, second + 3), (lines_t{"5.67 56.70 moveto", "11.34 56.70 lineto", "closepath gsave"}));
    for (const char* l : {" Polygone vertices =      502", " Plot buffer size  =      501",
                          " ==> Decomposing in smaller polygons"})
        EXPECT_EQ(count(con.screen, l), 1) << l;

    uspolygon(x.data(), y.data(), 501);
    EXPECT_EQ(count(new_lines(), "newpath"), 1);
    EXPECT_EQ(count(con.screen, " ==> Decomposing in smaller polygons"), 1);
    close_plot();
    EXPECT_GS_RENDERS("bigpoly.ps");
}
