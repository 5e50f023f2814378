// Breakout zones and the stress azimuth of a well: generated wells whose
// zones are known, the rank limits, and the command on the sample wells.
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "borehole/stress.h"
#include "plot/ghostscript.h"
#include "well/well_fixture.h"

namespace {

constexpr float BIT = 25.0f;

// A run of rows with an elongation of C1 along az, the tool scattering
// about it by +-scatter (alternately) or turning at turnrate deg per row;
// the rows gap1 to gap2 inside it are in gauge.
struct elongation {
    int first, last;
    float az, scatter = 0, devi = 1, turnrate = 0, rb = 90;
    int gap1 = 0, gap2 = -1;
};

struct StressWell : WellDialogue {
    void SetUp() override {
        WellDialogue::SetUp();
        stressparadefaults();
        wellpara.bitsize = BIT;
    }
    // n rows of type 200 from 1000 m every 0.1 m, in gauge with the tool
    // turning 3 degrees a row, but for the elongations.
    void make(int n, std::initializer_list<elongation> zones) {
        welldat_t& w = welldat;
        int id = 200;
        wdtype(id, 1);
        w.ndatwd = n;
        w.ncolwd = 7;
        for (int i = 1; i <= n; ++i) {
            w.RWD1(i, 1) = 1000.0f + 0.1f * float(i - 1);
            w.RWD1(i, 2) = std::fmod(3.0f * float(i), 360.0f);
            w.RWD1(i, 3) = w.RWD1(i, 4) = BIT + 0.2f;
            w.RWD1(i, 5) = 40.0f;
            w.RWD1(i, 6) = 1.0f;
            w.RWD1(i, 7) = 0.0f;
        }
        for (const elongation& e : zones)
            for (int i = e.first; i <= e.last; ++i) {
                const float s = (i % 2 == 0) ? e.scatter : -e.scatter;
                w.RWD1(i, 2) = e.az + s + e.turnrate * float(i - e.first);
                if (i < e.gap1 || i > e.gap2) w.RWD1(i, 3) = BIT + 5.0f;
                w.RWD1(i, 5) = e.rb;
                w.RWD1(i, 6) = e.devi;
            }
        wellpara.ztop = 1000.0f;
        wellpara.zbot = 1000.0f + 0.1f * float(n);
        int ierr = 0;
        stresswell(ierr);
        ASSERT_EQ(ierr, 0);
    }
};

TEST_F(StressWell, ZonesHaveTheirDepthsAzimuthsAndMergedGaps) {
    make(1000, {{101, 200, 40, 3},   // 9.9 m about 40
                {301, 320, 170, 0},  // 1.9 m across the 0/180 turn-over
                {501, 600, 120, 0, 1, 0, 90, 551, 553},  // a gap of 0.3 m is merged
                {701, 800, 80, 0, 1, 0, 90, 751, 754},   // one of 0.4 m splits
                {901, 909, 10, 0}}); // 0.8 m: too short
    const stresscom_t& s = stresscom;
    struct want {
        float top, bottom, length, keptlen, az;
        int nsamp, nkept;
    };
    const want zones[] = {{1010.0f, 1019.9f, 9.9f, 9.9f, 40, 100, 100},
                          {1030.0f, 1031.9f, 1.9f, 1.9f, 170, 20, 20},
                          {1050.0f, 1059.9f, 9.9f, 9.5f, 120, 100, 97},
                          {1070.0f, 1074.9f, 4.9f, 4.9f, 80, 50, 50},
                          {1075.4f, 1079.9f, 4.5f, 4.5f, 80, 46, 46}};
    ASSERT_EQ(s.nzone, 5);
    EXPECT_EQ(s.nshort, 1);
    EXPECT_EQ(s.nturn, 0);
    for (int k = 1; k <= 5; ++k) {
        const stresszone& z = s.Z(k);
        const want& e = zones[k - 1];
        SCOPED_TRACE(k);
        EXPECT_NEAR(z.top, e.top, 2e-4);
        EXPECT_NEAR(z.bottom, e.bottom, 2e-4);
        EXPECT_NEAR(z.length, e.length, 2e-4);
        EXPECT_NEAR(z.keptlen, e.keptlen, 2e-4);
        EXPECT_NEAR(z.az, e.az, 0.5);
        EXPECT_EQ(z.nsamp, e.nsamp);
        EXPECT_EQ(z.nkept, e.nkept);
        EXPECT_TRUE(z.used);
    }
    // The scatter of +-3 degrees is its circular s.d.
    EXPECT_NEAR(s.Z(1).sd, 3.0, 0.05);
    EXPECT_EQ(s.Z(2).sd, 0.0f);

    // The table as written: header, names, the first zone.
    ASSERT_TRUE(unit_open(UNIT_TABLES, "zones.txt", "replace", "write"));
    stresstable(UNIT_TABLES, "gen.txt");
    unit_close(UNIT_TABLES);
    std::ifstream in("zones.txt");
    std::string l, names, first;
    int heads = 0;
    while (std::getline(in, l) && l[0] == '#') ++heads;
    names = l;
    std::getline(in, first);
    EXPECT_EQ(heads, 8);
    EXPECT_EQ(names, "top\tbottom\tlength\tsamples\tkept_length\tazimuth\tsd\tC1\tC2\tDC\tDEVI\tturn\tin_mean");
    EXPECT_EQ(first.substr(0, 33), "1010.000\t1019.900\t9.900\t100\t9.900");
}

TEST_F(StressWell, TurningToolKeySeatsAndDeviatedZones) {
    // Turning 0.1 degree a row is 9.9 degrees over 9.9 m: kept, its mean
    // at 40; 0.2 a row is 19.8: the tool is not stopped.
    make(1000, {{101, 200, 35.05f, 0, 1, 0.1f},
                {301, 400, 40, 0, 1, 0.2f},
                // Long axis along the high side (RB 0) in a 20 degree hole: a
                // key seat; the same in a 2 degree hole counts.
                {501, 600, 40, 0, 20, 0, 0},
                {701, 800, 100, 0, 2, 0, 0},
                // Deviated breakout: listed, out of the mean.
                {851, 950, 150, 0, 20}});
    const stresscom_t& s = stresscom;
    ASSERT_EQ(s.nzone, 3);
    EXPECT_EQ(s.nturn, 1);
    EXPECT_NEAR(s.Z(1).turn, 9.9, 1e-3);
    EXPECT_NEAR(s.Z(1).az, 40, 0.01);
    EXPECT_NEAR(s.Z(2).az, 100, 0.5);
    EXPECT_FALSE(s.Z(3).used);
    EXPECT_EQ(s.nused, 2);
    // Equal lengths at 40 and 100: the axial mean is 70.
    EXPECT_NEAR(s.az, 70, 0.5);
    EXPECT_NEAR(s.shmax, 160, 0.5);
}

TEST_F(StressWell, RankFollowsTheLengthOfTheZones) {
    // Four zones of 5.0 m: 20 m, rank C; one of 4.9 m leaves 19.9 m: D.
    make(1000, {{101, 151, 30}, {201, 251, 30}, {301, 351, 30}, {401, 451, 30}});
    EXPECT_NEAR(stresscom.length, 20.0, 1e-3);
    EXPECT_EQ(stresscom.rank, 'C');
    make(1000, {{101, 151, 30}, {201, 251, 30}, {301, 351, 30}, {401, 450, 30}});
    EXPECT_EQ(stresscom.rank, 'D');
    make(1000, {});
    EXPECT_EQ(stresscom.nzone, 0);
    EXPECT_EQ(stresscom.rank, 'E');
}

TEST(StressRank, EachRankAtAndJustPastItsLimits) {
    struct row {
        int n;
        float len, sd;
        char rank;
    };
    const row rows[] = {{10, 100, 12, 'A'},    {9, 100, 12, 'B'},    {10, 99.9f, 12, 'B'},
                        {10, 100, 12.1f, 'B'}, {6, 40, 20, 'B'},     {5, 40, 20, 'C'},
                        {6, 39.9f, 20, 'C'},   {6, 40, 20.1f, 'C'},  {4, 20, 25, 'C'},
                        {3, 20, 25, 'D'},      {4, 19.9f, 25, 'D'},  {4, 20, 25.1f, 'D'},
                        {1, 1, 40, 'D'},       {1, 1, 40.1f, 'E'},   {0, 0, 0, 'E'},
                        {12, 200, NAN, 'E'}};
    for (const row& r : rows)
        EXPECT_EQ(stressrank(r.n, r.len, r.sd), r.rank) << r.n << " " << r.len << " " << r.sd;
}

// The command itself, on the sample wells, in a folder of the test's own.
struct StressCommand : Dialogue {
    int run(const std::string& args) {
        const std::string cmd = std::string(TARNOLIX_BINARY) + " stress --no-pdf --out . " +
                                args + " 2>stderr.txt";
        const int st = std::system(cmd.c_str());
        return WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    }
    static std::string data(const std::string& name) {
        return std::string(TARNOLIX_SOURCE_DIR) + "/data/" + name;
    }
    static std::vector<std::string> rows(const std::string& file) {
        std::ifstream in(file);
        std::vector<std::string> v;
        for (std::string l; std::getline(in, l);)
            if (!l.empty() && l[0] != '#') v.push_back(l);
        return v;
    }
};

TEST_F(StressCommand, SampleWellBreakoutsAreItsZones) {
    ASSERT_EQ(run("--bitsize 25.0825 " + data("well210.txt")), 0);
    const auto r = rows("well210.txt.stress.txt");
    ASSERT_EQ(r.size(), 4u);
    // The three documented breakouts, long axis 65; the two in the
    // 28.5 degree hole stay out of the mean.
    const char* tops[3] = {"2091.440\t2182.728", "2640.080\t2731.368", "2944.880\t3036.167"};
    for (int k = 1; k <= 3; ++k) {
        EXPECT_EQ(r[std::size_t(k)].substr(0, 17), tops[k - 1]);
        std::istringstream f(r[std::size_t(k)]);
        std::string v;
        for (int c = 0; c < 6; ++c) std::getline(f, v, '\t');
        EXPECT_NEAR(std::stof(v), 65.0, 0.5);
    }
    EXPECT_EQ(r[3].substr(r[3].size() - 2), "no");
    EXPECT_GS_RENDERS("well210.txt.stress.ps");
}

TEST_F(StressCommand, ABadFileIsARowOfTheSummary) {
    EXPECT_EQ(run("--bitsize 21.59 " + data("broken_letter.txt") + " " + data("well110.txt") +
                  " " + data("well200.las")),
              1);
    const auto r = rows("stress_summary.txt");
    ASSERT_EQ(r.size(), 4u);
    EXPECT_NE(r[1].find("\tfailed: WHILE READING 8 th DATA LINE"), std::string::npos) << r[1];
    // The breakout of well110 at 20 degrees: SHmax 110.
    EXPECT_NE(r[2].find("\t1\t0\t60.808\t19.9\t0.0\t109.9\tD\tok"), std::string::npos) << r[2];
    // The breakout of well200 lies in a 25 degree hole: listed, not ranked.
    EXPECT_NE(r[3].find("SYNTHETIC WELL B\t\t1800.000\t1982.728\t0\t1\t"), std::string::npos) << r[3];
    std::ifstream err("stderr.txt");
    std::string line;
    std::getline(err, line);
    EXPECT_NE(line.find("broken_letter.txt: WHILE READING"), std::string::npos) << line;
}

}  // namespace
