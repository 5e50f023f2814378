// The derived borehole quantities as logplot2 computes them on entry (stage
// 1) and before a plot (stage 2): hand-made rows for the rules, the sample
// wells for what the user sees.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "borehole_fixtures.h"

namespace {

using ints = std::vector<int>;
using reals_t = std::vector<float>;
const float NaN = std::numeric_limits<float>::quiet_NaN();

struct Row {
    float depth, p1az, c1, c2, rb = 0.f, azcmax = 0.f;
};

// logplot2's locals and its calls of the two stages.
struct Derived : Borehole {
    farr<int, 2> jcc{{0, 0}};
    bool ldata = false, lcal = false, lazc = false, lrb = false, lupdate = true;
    int itop = -1, ibot = -1, nsel = -1, ierr = -1;
    // A table of the given type, selected whole; bit 20, gauge band [19, 21),
    // C1 saturates at 30 and C2 at 32, cdiff 2.5, RBCmax threshold 10.
    void load(int id, const std::vector<Row>& rows) {
        int i = id;
        wdtype(i, 1);
        w.ndatwd = int(rows.size());
        for (int k = 1; k <= w.ndatwd; ++k) {
            const Row& r = rows[std::size_t(k - 1)];
            w.RWD1(k, w.JCOL(w.jdepth)) = r.depth;
            w.RWD1(k, w.JCOL(w.jc1)) = r.c1;
            w.RWD1(k, JRBCMAX) = -5.f;
            if (id == 300) continue;
            w.RWD1(k, w.JCOL(w.jp1az)) = r.p1az;
            w.RWD1(k, w.JCOL(w.jc2)) = r.c2;
            if (id == 200 || id == 210) w.RWD1(k, w.JCOL(w.jrb)) = r.rb;
            if (id == 110 || id == 210) w.RWD1(k, w.JCOL(w.jazcmax)) = r.azcmax;
        }
        w.IWD1.fill(-1);
        w.NAMCOL.fill("none");
        wellpara = {rows.front().depth, rows.back().depth, 20.f, 30.f, 32.f, 2.5f, -1.f, 1.f,
                    10.f, 0.f, 0.f, 0.f, 0.f, 0.f};
        clear();
    }
    void enter() {
        logdatacheck(jcc, ldata, lcal, lazc, lrb);
        logstage1(lazc, jcc, IWD_MAX, lcal, lrb);
        lupdate = true;
    }
    void plot() {
        logstage2(ierr, itop, ibot, nsel, lupdate, jcc, IWD_SIZE, IWD_DC, IWD_MAX, IWD_RB, ldata,
                  lcal, lrb);
    }
    ints codes(int col) const { return ints(w.IWD1.col(col), w.IWD1.col(col) + w.ndatwd); }
    reals_t reals(int col) const {
        return reals_t(w.RWD1.col(col), w.RWD1.col(col) + w.ndatwd);
    }
};

TEST_F(Derived, SizeCodesAtAndBesideTheirLimitsAndTheDcTest) {
    std::vector<Row> rows;
    float z = 0.f;
    for (auto [c1, c2] : std::vector<std::pair<float, float>>{
             {18.99f, 18.f}, {19.f, 18.f},     // Cmax beside and on cbslo: R+R, R+G
             {21.f, 18.f}, {30.f, 18.f},       // on cbshi R+E, on C1sat R+S
             {20.f, 19.f}, {21.f, 19.5f},      // Cmin on cbslo: G+G; G+E
             {30.f, 20.99f}, {25.f, 21.f},     // G+S; Cmin on cbshi: E+E
             {30.f, 29.f}, {30.f, 31.f},       // E+S; C2 larger, Cmin on C1sat: S+E
             {30.f, 32.f}, {25.f, 31.f},       // S+S; C2 under its own limit: E+E
             {22.5f, 20.f}, {20.f, 22.49f},    // |DC| on and just under cdiff
             {NaN, 20.f}, {20.f, NaN}}) {      // NaN: C2 counts as the larger
        rows.push_back({++z, 0.f, c1, c2});
    }
    load(100, rows);
    enter();
    plot();
    ASSERT_EQ(ierr, 0);
    EXPECT_EQ(codes(IWD_SIZE), (ints{10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110, 80, 60, 60,
                                     100, 70}));
    EXPECT_EQ(codes(IWD_MAX), (ints{1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 1, 2, 2, 2}));
    EXPECT_EQ(codes(IWD_DC), (ints{0, 0, 1, 1, 0, 0, 1, 1, 0, 0, 0, 1, 1, 0, 1, 1}));
    // The same tree on the program's default band, summed in single precision.
    const float lo = 25.0825f + -1.f, hi = 25.0825f + 1.f;
    EXPECT_EQ(csizecode(lo, lo, lo, hi, 37.f, 37.f), 50);
    EXPECT_EQ(csizecode(std::nextafter(lo, 0.f), lo, lo, hi, 37.f, 37.f), 20);
    EXPECT_EQ(csizecode(hi, 37.f, lo, hi, 37.f, 37.f), 90);
    EXPECT_STREQ(csizename(60), "G+E");
    EXPECT_STREQ(csizename(110), "S+S");
}

TEST_F(Derived, TheFourCasesOfStageOne) {
    const std::vector<Row> rows = {{10.f, 30.f, 22.f, 21.f, 100.f, 33.f},
                                   {11.f, 30.f, 21.f, 21.f, 120.f, 33.f},
                                   {12.f, 170.f, 21.f, 22.f, 350.f, 250.f}};
    struct {
        int id, newid;
        lines_t cases;
        reals_t azcmax, rbcmax;
    } cases[] = {
        {210, 210, {" CASE 1: AzCmax already defined", " CASE 1.1: with RB", "  => Finding Cmax",
                    "  => Computing RBCmax"}, {33.f, 33.f, 250.f}, {100.f, 120.f, 440.f}},
        {110, 110, {" CASE 1: AzCmax already defined", " CASE 1.2: without RB",
                    "  => Finding Cmax"}, {33.f, 33.f, 250.f}, {-5.f, -5.f, -5.f}},
        {200, 210, {" CASE 2: Extending data type with AzCmax", " CASE 2.1: with RB",
                    " => Finding Cmax", " => Computing AzCmax & RBCmax"},
         {30.f, 30.f, 260.f}, {100.f, 120.f, 440.f}},
        {100, 110, {" CASE 2: Extending data type with AzCmax", " CASE 2.2: without RB",
                    " => Finding Cmax", " => Computing AzCmax"}, {30.f, 30.f, 260.f},
         {-5.f, -5.f, -5.f}},
    };
    for (const auto& c : cases) {
        load(c.id, rows);
        enter();
        lines_t expect = {DASH, " COMPUTATIONS", DASH, " Total number of data =      3",
                          " DATA WITH C1,C2,P1Az"};
        expect.insert(expect.end(), c.cases.begin(), c.cases.end());
        EXPECT_EQ(screen(), expect) << c.id;
        EXPECT_EQ(current_id(), c.newid);
        EXPECT_TRUE(lazc);
        EXPECT_EQ(codes(IWD_MAX), (ints{1, 1, 2})) << c.id;  // an equal pair: C1
        EXPECT_EQ(reals(w.JCOL(w.jazcmax)), c.azcmax) << c.id;
        EXPECT_EQ(reals(JRBCMAX), c.rbcmax) << c.id;
        EXPECT_EQ(w.NAMVAR(w.jazcmax).trimmed(), "AzCmax");
        EXPECT_EQ(w.NAMCOL(w.JCOL(w.jazcmax)).trimmed(),
                  c.id == c.newid ? "none" : "AzCmax.cmptd");
        // Once extended, the next entry finds AzCmax in place.
        clear();
        enter();
        EXPECT_EQ(screen()[5], " CASE 1: AzCmax already defined") << c.id;
    }
}

TEST_F(Derived, StageTwoLinesRbTestAndWrapping) {
    load(210, {{10.f, 0.f, 22.f, 21.f, 9.5f, 190.f}, {11.f, 0.f, 22.f, 21.f, 10.f, -100.f},
               {12.f, 0.f, 22.f, 21.f, 170.f, 89.f}, {13.f, 0.f, 22.f, 21.f, 170.5f, 90.f},
               {14.f, 0.f, 21.f, 22.f, 350.f, 400.f}, {15.f, 0.f, 22.f, 21.f, NaN, 0.f}});
    wellpara.azcmaxorig = -90.f;
    wellpara.ztop = 11.f;
    enter();
    clear();
    plot();
    ASSERT_EQ(ierr, 0);
    EXPECT_EQ(lines(0, 7), (lines_t{" COMPUTING:", DASH, " Normalizing AzCmax ",
                                    " in [ azcmx0 , azcmx0 + 180 [", " with azcmx0 =    -90.00",
                                    " Total number of data =       6", DASH}));
    const int t = find(" Csize & DC tests");
    ASSERT_GT(t, 0);
    EXPECT_EQ(lines(t, 4), (lines_t{" Csize & DC tests", " Number of data =       5", " RB test",
                                    " Number of data =       5"}));
    EXPECT_EQ(int(screen().size()), t + 4);
    EXPECT_EQ((ints{itop, ibot, nsel, lupdate}), (ints{2, 6, 5, 0}));
    // Every AzCmax into [-90, 90); RBCmax and the codes only from ztop on.
    EXPECT_EQ(reals(8), (reals_t{10.f, 80.f, 89.f, -90.f, 40.f, 0.f}));
    EXPECT_EQ(codes(IWD_RB), (ints{-1, 1, 1, 0, 1, 0}));
    reals_t r = reals(JRBCMAX);
    EXPECT_TRUE(std::isnan(r[5]));
    r.pop_back();
    // RB 350 with C2 larger: 440, wrapped to 80.
    EXPECT_EQ(r, (reals_t{9.5f, 10.f, 170.f, 170.5f, 80.f}));

    // The plotting origin moves RBCmax but never the test.
    for (float orig : {-90.f, 45.f}) {
        wellpara.rbcmaxorig = orig;
        lupdate = true;
        plot();
        EXPECT_EQ(codes(IWD_RB), (ints{-1, 1, 1, 0, 1, 0}));
        r = reals(JRBCMAX);
        r.pop_back();
        EXPECT_EQ(r, (orig < 0.f ? reals_t{9.5f, 10.f, -10.f, -9.5f, 80.f}
                                 : reals_t{9.5f, 190.f, 170.f, 170.5f, 80.f}));
    }
}

TEST_F(Derived, WithoutRbTheTestPassesAndWithoutCalipersOnlyTheIntervalIsFound) {
    load(110, {{10.f, 0.f, 22.f, 21.f}, {11.f, 0.f, 21.f, 22.f}});
    enter();
    clear();
    plot();
    EXPECT_EQ(screen().back(), " RB test skipped");
    EXPECT_EQ(codes(IWD_RB), (ints{1, 1}));

    load(300, {{10.f, 0.f, 22.f, 0.f}, {11.f, 0.f, 23.f, 0.f}});
    enter();
    EXPECT_TRUE(ldata && !lcal && !lazc && !lrb && jcc(1) == 2);
    EXPECT_TRUE(screen().empty());
    plot();
    EXPECT_EQ((ints{ierr, itop, ibot, nsel, lupdate}), (ints{0, 1, 2, 2, 0}));
    EXPECT_EQ(screen()[0], " COMPUTING:");
    EXPECT_EQ(count(" Normalizing AzCmax ") + count(" Csize & DC tests"), 0);
    EXPECT_EQ(codes(IWD_SIZE), (ints{-1, -1}));
}

// A gap in the data between the bounds: the search fails, the plot is
// skipped, and the next interval is searched again.
TEST_F(Derived, AFailedSearchSkipsThePlotAndTriesAgain) {
    load(210, {{10.f, 0.f, 22.f, 21.f, 50.f}, {11.f, 0.f, 22.f, 21.f, 50.f}});
    enter();
    wellpara.ztop = 10.2f;
    wellpara.zbot = 10.8f;
    type({"", ""});  // the search's own warning, then this one
    clear();
    plot();
    EXPECT_EQ(ierr, 1);
    const int k = find(" INDICES PROBLEM OR FAILED SEARCH");
    ASSERT_GT(k, 0);
    EXPECT_EQ(screen()[std::size_t(k + 1)], " => SKIPPING PLOT");
    EXPECT_EQ(count(" Csize & DC tests"), 0);
    wellpara.ztop = 0.f;
    wellpara.zbot = 20.f;
    plot();
    EXPECT_EQ((ints{ierr, itop, ibot, nsel, lupdate}), (ints{0, 1, 2, 2, 0}));
}

TEST_F(Derived, ExtractxyFillsTheWorkColumnsFromItop) {
    load(210, {{10.f, 0.f, 22.f, 21.f, 50.f}, {11.f, 0.f, 25.f, 20.f, 50.f},
               {12.f, 0.f, 22.f, 21.f, 50.f}, {13.f, 0.f, 26.f, 21.f, 50.f}});
    wellpara.ztop = 11.f;
    enter();
    plot();
    int nout = -1;
    const int o = itop - 1, n = ibot - itop + 1;
    extractxy(w.RWD1.col(10) + o, w.RWD1.col(11) + o, nout, w.RWD1.col(3) + o,
              w.RWD1.col(1) + o, w.IWD1.col(IWD_DC) + o, n, 1);
    ASSERT_EQ(nout, 2);
    EXPECT_EQ((reals_t{w.RWD1(2, 10), w.RWD1(3, 10), w.RWD1(2, 11), w.RWD1(3, 11)}),
              (reals_t{25.f, 26.f, 11.f, 13.f}));
    extractxy(w.RWD1.col(10), w.RWD1.col(11), nout, w.RWD1.col(3), w.RWD1.col(1),
              w.IWD1.col(IWD_DC), 0, 1);
    EXPECT_EQ(nout, 0);
}

// The main sample well (data/README.md describes its intervals).
TEST_F(Derived, TheSampleWellsIntervalsTakeTheirClassesAndASmallerIntervalItsRows) {
    read("210", 2000.f, 3300.f);
    enter();
    plot();
    ASSERT_EQ(ierr, 0);
    EXPECT_GT(find(" Total number of data =    8000"), 0);
    EXPECT_GT(find(" Number of data =    8000"), 0);
    auto rows = [&](int col, int value, int from, int to) {
        return int(std::count(w.IWD1.col(col) + from - 1, w.IWD1.col(col) + to, value));
    };
    const int spans[][3] = {{1, 600, 50},     {601, 1200, 60},  {1201, 1800, 50},
                            {1801, 2300, 80}, {2301, 2900, 50}, {2901, 3500, 30},
                            {3501, 4200, 50}, {4201, 4800, 60}, {4801, 5100, 90},
                            {5101, 5400, 110}, {5401, 6200, 50}, {6201, 6800, 60},
                            {6801, 8000, 50}};
    for (const auto& s : spans)
        EXPECT_EQ(rows(IWD_SIZE, s[2], s[0], s[1]), s[1] - s[0] + 1) << s[0];
    // Breakouts pass DC and RB, the key seat lies along the high side, and
    // 117 of the washout's 500 samples pass DC.
    for (int from : {601, 4201, 6201})
        EXPECT_EQ(rows(IWD_DC, 1, from, from + 599) + rows(IWD_RB, 1, from, from + 599), 1200);
    EXPECT_EQ(rows(IWD_RB, 0, 2901, 3500), 600);
    EXPECT_EQ(rows(IWD_DC, 1, 1801, 2300), 117);
    // Up to date: nothing to redo; a new interval selects its rows only.
    plot();
    EXPECT_EQ(count(" Normalizing AzCmax "), 1);
    wellpara.ztop = 2091.44f;
    wellpara.zbot = 2182.7276f;
    lupdate = true;
    plot();
    EXPECT_EQ((ints{itop, ibot}), (ints{601, 1200}));
    EXPECT_GT(find(" Number of data =     600"), 0);
}

TEST_F(Derived, ComputedAzCmaxAgreesWithTheFileColumn) {
    read("200", 2000.f, 3300.f);  // the main well without its AzCmax column
    enter();
    plot();
    std::ifstream in("well210.txt");
    std::string line;
    std::getline(in, line);
    std::getline(in, line);
    int i = 0, off = 0;
    for (float v[8]; std::getline(in, line); ++i) {
        std::istringstream f(line);
        for (float& x : v) f >> x;
        const float d = std::fabs(w.RWD1(i + 1, 8) - v[7]);
        off += std::fmin(d, 180.f - d) > 0.011f;  // 0 and 180 are one direction
    }
    EXPECT_EQ(i, 8000);
    EXPECT_EQ(off, 0);
}

}  // namespace
