// Tool rotation: the unwrapped azimuth, the rates of a tool turning at a
// known speed, the end cases, the refusals, the reports of each page, and
// the sample well through the log menu.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "borehole/logplot2.h"
#include "borehole/rotation.h"
#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/ghostscript.h"
#include "plot/pages.h"
#include "well/well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";

TEST(Rotation, UnwrapTakesTheShorterWayRound) {
    struct row {
        float azorig;
        std::vector<float> in, out;
    };
    const row rows[] = {
        {0.f, {350.f, 10.f, 30.f}, {350.f, 370.f, 390.f}},
        {0.f, {10.f, 350.f, 330.f, 10.f}, {10.f, -10.f, -30.f, 10.f}},
        {0.f, {10.f, 190.f, 10.f}, {10.f, -170.f, -350.f}},  // a half turn counts as -180
        {-180.f, {200.f, 90.f}, {-160.f, -270.f}},
    };
    for (const row& r : rows) {
        std::vector<float> azu(r.in.size());
        rotunwrap(azu.data(), r.in.data(), int(r.in.size()), r.azorig);
        EXPECT_EQ(azu, r.out) << r.in[1];
    }
}

std::string plan(int kfwd, int kbwd, int ndat, int itop, int ibot) {
    rotcase_t c;
    rotcase(c, itop, ibot, kfwd, kbwd, ndat);
    auto seg = [](char t, int a, int b) {
        return a > b ? std::string() : " " + std::string(1, t) + std::to_string(a) + "-" + std::to_string(b);
    };
    return std::string(c.label.trimmed()) + " " + std::to_string(c.first) + ".." +
           std::to_string(c.last) + seg('h', c.head1, c.head2) + seg('w', c.whole1, c.whole2) +
           seg('t', c.tail1, c.tail2);
}

TEST(Rotation, EndCasesOfAnyPairOfOffsets) {
    struct row {
        int kfwd, kbwd, itop, ibot;
        std::string expect;
    };
    const row rows[] = {
        {0, 10, 1, 50, "Case 1 1..50 w1-50"},
        {0, 10, 1, 95, "Case 2a 1..95 w1-90 t91-95"},
        {0, 10, 1, 100, "Case 2b 1..99 w1-90 t91-99"},
        {0, 1, 1, 100, "Case 2c 1..99 w1-99"},
        {0, 10, 90, 95, "Case 3a 90..95 t90-95"},  // whole at 90, yet by the tail form
        {0, 10, 95, 100, "Case 3b 95..99 t95-99"},
        {0, 1, 99, 100, "Case 3b 99..99 t99-99"},
        {5, 5, 3, 50, "Case 4a 3..50 h3-5 w6-50"},
        {5, 0, 1, 50, "Case 4b 2..50 h2-5 w6-50"},
        {1, 0, 1, 50, "Case 4c 2..50 w2-50"},
        {33, 33, 1, 100, "Case 5a+d 1..100 h1-33 w34-67 t68-100"},
        {33, 33, 5, 20, "Case 6a 5..20 h5-20"},
        {5, 0, 1, 4, "Case 6b 2..4 h2-4"},
    };
    for (const row& r : rows) EXPECT_EQ(plan(r.kfwd, r.kbwd, 100, r.itop, r.ibot), r.expect);
}

// A tool turning at a known speed: 40 rows half a metre apart, azimuth
// true[i] before wrapping. The rate at i must be minus the slope of true
// between the ends of its interval, cut at the ends of the data, or minus
// the slope fitted through it.
TEST(Rotation, RatesAreMinusTheSlopeOfTheTurningAzimuth) {
    const int n = 40;
    struct profile {
        const char* name;
        float start, first, second;  // degrees, then deg/m before and after row 20
    };
    const profile profiles[] = {
        {"turning down through 0", 10.f, -25.f, -25.f},
        {"turning up through 360", 350.f, 25.f, 25.f},
        {"stopped", 65.f, 0.f, 0.f},
        {"reversing", 100.f, 30.f, -20.f},
    };
    const int offsets[][2] = {{0, 1}, {0, 7}, {3, 3}, {10, 10}};
    std::vector<float> depth(n), p1az(n), azu(n), rotv(n);
    std::vector<double> truth(n);
    for (const profile& p : profiles) {
        double a = p.start;
        for (int i = 0; i < n; ++i) {
            depth[i] = 1000.f + 0.5f * float(i);
            truth[i] = a;
            p1az[i] = float(std::fmod(a + 720.0, 360.0));
            a += 0.5 * (i < 20 ? p.first : p.second);
        }
        rotunwrap(azu.data(), p1az.data(), n, 0.f);
        for (const auto& k : offsets) {
            for (const bool lsq : {false, true}) {
                rotcase_t c;
                rotcase(c, 1, n, k[0], k[1], n);
                rotrates(rotv.data(), azu.data(), depth.data(), c, k[0], k[1], n, lsq);
                for (int i = c.first; i <= c.last; ++i) {
                    const int r1 = std::max(1, i - k[0]), r2 = std::min(n, i + k[1]);
                    double sz = 0, sa = 0, szz = 0, sza = 0;
                    for (int r = r1; r <= r2; ++r) {
                        const double z = depth[r - 1] - 1000.0;
                        sz += z, sa += truth[r - 1], szz += z * z, sza += z * truth[r - 1];
                    }
                    const double m = r2 - r1 + 1;
                    const double slope =
                        lsq ? (sza - sz * sa / m) / (szz - sz * sz / m)
                            : (truth[r2 - 1] - truth[r1 - 1]) / (depth[r2 - 1] - depth[r1 - 1]);
                    EXPECT_NEAR(rotv[i - 1], -slope, 2e-3)
                        << p.name << " offsets " << k[0] << "," << k[1] << " lsq " << lsq << " row " << i;
                }
            }
        }
    }
    // Equal depths at the two ends: a rate that is no number.
    depth.assign(n, 1000.f);
    rotcase_t c;
    rotcase(c, 1, n, 0, 1, n);
    rotrates(rotv.data(), azu.data(), depth.data(), c, 0, 1, n, false);
    EXPECT_FALSE(std::isfinite(rotv[0]));
}

struct RotPage : WellDialogue {
    welldat_t& w = welldat;
    void SetUp() override {
        WellDialogue::SetUp();
        iocom.lpause = false;
        trigoset();
        plt1blk = plt1blk_t{};
        splotattributes(5);
        swellplot(5);
        logplot2(5);
        clear();
    }
    void TearDown() override {
        iocom.lplotopen = false;
        WellDialogue::TearDown();
    }
    void open() {
        type({""});
        fstr<40> name = "rot.ps";
        plinit(name, 5);
        clear();
    }
    // n rows of type 200, depths 100, 100.5, ..., P1Az falling 10 degrees a
    // row: a rotation of +20 deg/m.
    void load(int n) {
        int id = 200;
        wdtype(id, 1);
        w.ndatwd = n;
        for (int i = 1; i <= n; ++i) {
            w.RWD1(i, w.JCOL(w.jdepth)) = 99.5f + 0.5f * float(i);
            w.RWD1(i, w.JCOL(w.jp1az)) = std::fmod(3600.f - 10.f * float(i), 360.f);
        }
        wellpara.ztop = 100.f;
        wellpara.zbot = 99.5f + 0.5f * float(n);
        trackaxisrange(1, wellpara.ztop, wellpara.zbot);
    }
    lines_t report(const std::string& kind, const std::string& label, int first, int last) {
        auto num = [](const std::string& t, int v) {
            std::string s = std::to_string(v);
            return " " + t + " " + std::string(6 - s.size(), ' ') + s;
        };
        return {DASH, " Rotation plot " + kind, " " + label, num("First data index = ", first),
                num("Last  data index = ", last), num("Number of data   = ", last - first + 1), DASH};
    }
};

TEST_F(RotPage, RefusalsSayWhyAndDrawNothing) {
    struct row {
        int n, itop, ibot, nrotf, nrotc, icmd;
        lines_t expect;
    };
    const row rows[] = {
        {10, 1, 10, 5, 6, 320,
         {" ROTATION CALCULATIONS:", " accepted commands = 302,303,304,305,353",
          " current command =    320", " UNRECOGNIZED COMMAND"}},
        {1, 1, 1, 5, 6, 302,
         {" ROTATION CALCULATIONS REQUIRE > 1 POINTS", " Total data top    index         =      1",
          " Total data bottom index         =      1", " Total number of data            =      1",
          " NOT ENOUGH DATA TO PROCEED"}},
        {10, 4, 4, 5, 6, 302,
         {" ROTATION CALCULATIONS REQUIRE > 1 POINTS", " Selected range top    index     =      4",
          " Selected range bottom index     =      4", " Selected range number of points =      1",
          " SELECTED RANGE TOO NARROW"}},
        {10, 1, 10, 5, 1, 303,
         {" ROTATION INTERVAL REQUIRES > 1 POINTS", " Forward  offset                 =      0",
          " Backward offset                 =      0", " ROTATION INTERVAL TOO NARROW"}},
        {10, 1, 10, 10, 6, 353,
         {" ROTATION INTERVAL > FULL DATA RANGE", " Forward  offset                 =      0",
          " Backward offset                 =     10", " number of data in interval      =     11",
          " Total number of data            =     10", " ROTATION INTERVAL TOO WIDE"}},
    };
    open();
    for (const row& r : rows) {
        load(r.n);
        clear();
        log_rot_plot(r.itop, r.ibot, r.nrotf, r.nrotc, r.icmd);
        lines_t expect = warning_head_lines("log_rot_plot ");
        expect.insert(expect.end(), r.expect.begin(), r.expect.end());
        expect.push_back(" => SKIPPING ROTATION CALCULATIONS");
        EXPECT_EQ(lines(0, int(expect.size())), expect);
        EXPECT_EQ(screen().size(), expect.size() + 1) << "the tail only";
    }
    // The widest interval that fits is taken.
    clear();
    log_rot_plot(1, 10, 9, 6, 302);
    EXPECT_EQ(lines(0, 7), report("1 : simple difference", "Case 3b", 1, 9));
}

TEST_F(RotPage, EachCommandReportsItsCurvesAndDrawsThem) {
    load(200);
    open();
    const std::string rate = "1 : simple difference", lsq = "2 : least square rate";
    struct row {
        int icmd, nrotf, itop, ibot;
        lines_t expect;
    };
    std::vector<row> rows = {
        {302, 10, 1, 200, {}},
        {303, 10, 1, 200, {}},
        {304, 10, 50, 150, report(rate, "Case 1", 50, 150)},
        {305, 10, 190, 200, report(lsq, "Case 3a", 190, 200)},
        {353, 1, 3, 200, {}},
    };
    rows[0].expect = report(rate, "Case 2b", 1, 199);
    for (const auto& l : report(lsq, "Case 2b", 1, 199)) rows[0].expect.push_back(l);
    rows[1].expect = report(rate, "Case 5a+d", 1, 200);
    for (const auto& l : report(lsq, "Case 5a+d", 1, 200)) rows[1].expect.push_back(l);
    rows[4].expect = report(rate, "Case 2c", 3, 199);
    for (const auto& l : report(lsq, "Case 2c", 3, 199)) rows[4].expect.push_back(l);
    for (const row& r : rows) {
        type({""});
        newpage();
        clear();
        log_rot_plot(r.itop, r.ibot, r.nrotf, 66, r.icmd);
        EXPECT_EQ(screen(), r.expect) << r.icmd;
        for (int i = r.itop; i < r.ibot; ++i) ASSERT_NEAR(w.RWD1(i, JWORK10), 20.f, 1e-3f) << r.icmd << " " << i;
    }
    EXPECT_EQ(axisblk7b.WALAB(8).trimmed(), "Rot_lsq (deg/m)");

    // Equal depths: the fit takes the sentinel slope with its warning, and
    // the curve is drawn as it stands, held at the edge of the device.
    for (int i = 1; i <= 200; ++i) w.RWD1(i, w.JCOL(w.jdepth)) = 100.f;
    type({""});
    newpage();
    clear();
    log_rot_plot(1, 200, 10, 66, 305);
    EXPECT_EQ(count(" ==> SETTING:"), 200);
    EXPECT_EQ(w.RWD1(5, JWORK10), -1.0e10f);
    type({""});
    plend();
    EXPECT_GS_RENDERS("rot.ps");
}

// The sample well through the log menu: near 0 where the tool stops in the
// breakouts and the key seat, minus the generated speed elsewhere. Away
// from the changes of speed; the margin holds the noise of the data and,
// deep down where the unwrapped azimuth runs to thousands of degrees, what
// the single-precision fit loses.
TEST_F(RotPage, SampleWellTracksStopsAndSpeeds) {
    type({"100", "210", "99", "1000", sample("well210.txt"), "99", "99", "1000", "99"});
    run([] { readwell2(2); });
    wellpara.ztop = 2000.f;
    wellpara.zbot = 3220.f;
    struct stretch {
        int first, last;
        float rate;
    };
    const stretch stretches[] = {{1, 600, -6.f},     {601, 1200, 0.f},   {2901, 3500, 0.f},
                                 {4201, 4800, 0.f},  {4801, 5400, -3.f}, {5401, 6200, -20.f},
                                 {6201, 6800, 0.f},  {6801, 8000, -6.f}};
    for (const char* icmd : {"304", "302"}) {
        type({icmd, "0", "3", "", "99"});
        run([] { logplot2(0); });
        iocom.lplotopen = false;
        for (const stretch& s : stretches)
            for (int i = s.first + 70; i <= s.last - 70; ++i)
                ASSERT_NEAR(w.RWD1(i, JWORK10), s.rate, 1.25f) << icmd << " row " << i;
    }
}

}  // namespace
