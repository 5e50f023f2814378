// Tool rotation: the unwrapped azimuth, the end cases, the rates of a tool
// turning at a known speed, the refusals and the reports of each page.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "borehole/rotation.h"
#include "borehole/tracks.h"
#include "borehole_fixtures.h"
#include "plot/axes/axes.h"

namespace {

TEST(Rotation, UnwrapTakesTheShorterWayRound) {
    struct row {
        float azorig;
        std::vector<float> in, out;
    };
    const row rows[] = {
        {0.f, {350.f, 10.f, 30.f}, {350.f, 370.f, 390.f}},
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
        return a > b ? std::string()
                     : " " + std::string(1, t) + std::to_string(a) + "-" + std::to_string(b);
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
                        << p.name << ", offsets " << k[0] << " " << k[1] << ", row " << i;
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

struct RotPage : Borehole {
    void SetUp() override {
        Borehole::SetUp();
        open_plot("rot.ps");
    }
    // n rows of type 200 half a metre apart, P1Az falling 10 degrees a row:
    // a rotation of +20 deg/m.
    void load(int n) {
        int id = 200;
        wdtype(id, 1);
        w.ndatwd = n;
        for (int i = 1; i <= n; ++i) {
            w.RWD1(i, w.JCOL(w.jdepth)) = 99.5f + 0.5f * float(i);
            w.RWD1(i, w.JCOL(w.jp1az)) = std::fmod(3600.f - 10.f * float(i), 360.f);
        }
        trackaxisrange(1, 100.f, 99.5f + 0.5f * float(n));
        type({""});
        newpage();
        clear();
    }
    // The reports on the screen, one line each: plot, case, first, last.
    std::string reports() const {
        std::string r;
        for (std::size_t k = 0; k + 5 < screen().size(); ++k)
            if (screen()[k].starts_with(" Rotation plot "))
                r += screen()[k].substr(15, 1) + screen()[k + 1] + " " +
                     std::to_string(std::stoi(screen()[k + 2].substr(20))) + "-" +
                     std::to_string(std::stoi(screen()[k + 3].substr(20))) + ";";
        return r;
    }
};

TEST_F(RotPage, RefusalsSayWhyAndDrawNothing) {
    struct row {
        int n, itop, ibot, nrotc, icmd;
        lines_t expect;
    };
    const std::string fwd = " Forward  offset                 =      0";
    const row rows[] = {
        {10, 1, 10, 6, 320,
         {" ROTATION CALCULATIONS:", " accepted commands = 302,303,304,305,353",
          " current command =    320", " UNRECOGNIZED COMMAND"}},
        {1, 1, 1, 6, 302,
         {" ROTATION CALCULATIONS REQUIRE > 1 POINTS", " Total data top    index         =      1",
          " Total data bottom index         =      1", " Total number of data            =      1",
          " NOT ENOUGH DATA TO PROCEED"}},
        {10, 4, 4, 6, 302,
         {" ROTATION CALCULATIONS REQUIRE > 1 POINTS", " Selected range top    index     =      4",
          " Selected range bottom index     =      4", " Selected range number of points =      1",
          " SELECTED RANGE TOO NARROW"}},
        {10, 1, 10, 1, 303,
         {" ROTATION INTERVAL REQUIRES > 1 POINTS", fwd,
          " Backward offset                 =      0", " ROTATION INTERVAL TOO NARROW"}},
        {10, 1, 10, 6, 353,
         {" ROTATION INTERVAL > FULL DATA RANGE", fwd, " Backward offset                 =     10",
          " number of data in interval      =     11", " Total number of data            =     10",
          " ROTATION INTERVAL TOO WIDE"}},
    };
    for (const row& r : rows) {
        load(r.n);
        log_rot_plot(r.itop, r.ibot, 10, r.nrotc, r.icmd);
        lines_t expect = warning_head_lines("log_rot_plot ");
        expect.insert(expect.end(), r.expect.begin(), r.expect.end());
        expect.push_back(" => SKIPPING ROTATION CALCULATIONS");
        expect.push_back(expect[0]);
        EXPECT_EQ(screen(), expect) << r.expect.back();
    }
    // The widest interval that fits is taken; the whole report.
    clear();
    log_rot_plot(1, 10, 9, 6, 302);
    EXPECT_EQ(lines(0, 7), (lines_t{DASH, " Rotation plot 1 : simple difference", " Case 3b",
                                    " First data index =       1", " Last  data index =       9",
                                    " Number of data   =       9", DASH}));
}

TEST_F(RotPage, EachCommandReportsItsCurvesAndDrawsThem) {
    const struct {
        int icmd, nrotf, itop, ibot;
        std::string expect;
    } rows[] = {
        {302, 10, 1, 200, "1 Case 2b 1-199;2 Case 2b 1-199;"},
        {303, 10, 1, 200, "1 Case 5a+d 1-200;2 Case 5a+d 1-200;"},
        {304, 10, 50, 150, "1 Case 1 50-150;"},
        {305, 10, 190, 200, "2 Case 3a 190-200;"},
        {353, 1, 3, 200, "1 Case 2c 3-199;2 Case 2c 3-199;"},
    };
    for (const auto& r : rows) {
        load(200);
        log_rot_plot(r.itop, r.ibot, r.nrotf, 66, r.icmd);
        EXPECT_EQ(reports(), r.expect) << r.icmd;
        for (int i = r.itop; i < r.ibot; ++i)
            ASSERT_NEAR(w.RWD1(i, JWORK10), 20.f, 1e-3f) << r.icmd << " row " << i;
    }
    EXPECT_EQ(axisblk7b.WALAB(8).trimmed(), "Rot_lsq (deg/m)");

    // Equal depths: the fit takes the sentinel slope with its warning, and
    // the curve is drawn as it stands, held at the edge of the device.
    load(200);
    for (int i = 1; i <= 200; ++i) w.RWD1(i, w.JCOL(w.jdepth)) = 100.f;
    log_rot_plot(1, 200, 10, 66, 305);
    EXPECT_EQ(count(" ==> SETTING:"), 200);
    EXPECT_EQ(w.RWD1(5, JWORK10), -1.0e10f);
    type({""});
    plend();
    EXPECT_GS_RENDERS("rot.ps");
}

}  // namespace
