// Descriptive and circular statistics: the reports' numbers on known sets,
// and a generated axial sample checked against an independent computation.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "dialogue.h"
#include "math/angles.h"
#include "math/stats.h"
#include "shell/fake_platform.h"

namespace {

struct stats : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        iocom.lpause = false;
        use_fake_platform();
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        trigoset();
        clear();
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        Dialogue::TearDown();
    }
    // The value printed after a label of the report, the n-th time it shows.
    double value(const std::string& label, int nth = 1) const {
        for (const auto& l : screen())
            if (l.rfind(" " + label, 0) == 0 && --nth == 0) return std::stod(l.substr(label.size() + 1));
        ADD_FAILURE() << "no line " << label;
        return NAN;
    }
    std::vector<double> quartiles(std::vector<float> x) {
        std::vector<int> ix(x.size());
        clear();
        stat1d0(ix.data(), x.data(), int(x.size()), 6, 0);
        return {value("Minimum                       ="), value("Lower quartile Q1             ="),
                value("Median Q2                     ="), value("Upper quartile Q3             ="),
                value("Maximum                       =")};
    }
    void circ(std::vector<float> deg, int K) {
        for (auto& d : deg) d = rad(d);
        clear();
        statcirc360k(deg.data(), int(deg.size()), K, 6, 0);
    }
};

TEST_F(stats, QuartilesOfEvenAndOddSetsAndTheReportAroundThem) {
    EXPECT_EQ(quartiles({4, 1, 3, 2}), (std::vector<double>{1, 1.5, 2.5, 3.5, 4}));
    EXPECT_EQ(quartiles({5, 3, 1, 4, 2}), (std::vector<double>{1, 2, 3, 4, 5}));
    EXPECT_EQ(quartiles({7, 2}), (std::vector<double>{2, 2, 4.5, 7, 7}));
    // The whole report of 1..5, run information lifted into it.
    EXPECT_EQ(find(" ==========================================="), 0);
    const int s = find(" STANDARD STATISTICS:");
    ASSERT_GT(s, 2);
    EXPECT_EQ(lines(s, 13),
              (std::vector<std::string>{
                  " STANDARD STATISTICS:", " ===========================================",
                  " Number of data                =        2", " Minimum                       =  2.0000000    ",
                  " Lower quartile Q1             =  2.0000000    ", " Median Q2                     =  4.5000000    ",
                  " Upper quartile Q3             =  7.0000000    ", " Maximum                       =  7.0000000    ",
                  " Average                       =  4.5000000    ", " Range                         =  5.0000000    ",
                  " Variance                      =  12.500000    ", " Standard deviation            =  3.5355339    ",
                  " -------------------------------------------"}));
    // One value: a warning, and every quartile is that value.
    EXPECT_EQ(quartiles({3}), (std::vector<double>{3, 3, 3, 3, 3}));
    EXPECT_GT(find(" NOT ENOUGH DATA:"), 0);
    std::vector<int> ix(1);
    clear();
    stat1d0(ix.data(), nullptr, 0, 6, 0);
    EXPECT_GT(find(" NO DATA:"), 0);
    EXPECT_EQ(find(" STANDARD STATISTICS:"), -1);
}

TEST_F(stats, CircularCasesFoldingAndRefusals) {
    struct row { std::vector<float> deg; int K; double R, am_final; };
    // Am is the last "Mean angle (...) (degrees)" line: Am0 for K = 1, Am1 else.
    const row rows[] = {
        {{0, 180}, 2, 1.0, 0.0},       // one axis in two directions
        {{170, 10}, 2, 0.94, 0.0},     // the axis near 0, not near 90
        {{350, 10}, 1, 0.985, 0.0},    // straddling 0/360
        {{175, 5}, 2, 0.985, 0.0},     // straddling 0/180
        {{30, 60, 90}, 1, 0.91, 60.0},
    };
    for (const row& r : rows) {
        circ(r.deg, r.K);
        SCOPED_TRACE(r.deg[0]);
        EXPECT_NEAR(value("Mean module (R)               ="), r.R, 0.01);
        const std::string am = r.K == 1 ? "Mean angle (Am0) (degrees)    =" : "Mean angle (Am1) (degrees)    =";
        EXPECT_NEAR(value(am), r.am_final, 1e-3);
        EXPECT_EQ(find(" 2- Final results modulo [360/K]") > 0, r.K != 1);
    }
    // Opposite directions with K = 1 cancel: R nearly 0, huge spread.
    circ({0, 180}, 1);
    EXPECT_LT(value("Mean module (R)               ="), 1e-6);
    EXPECT_GT(find(" Computations results modulo [360]"), 0);
    for (int K : {0, -2}) {
        circ({10, 20}, K);
        EXPECT_GT(find(" K > 0 required for folding in 360/K"), 0);
        EXPECT_EQ(find(" CIRCULAR STATISTICS [360/K]"), -1);
    }
}

// An axial sample: directions about 40 degrees, each taken either way round
// (+180 at random). Its K = 2 mean axis and resultant length are computed
// here in double precision from doubled angles through atan2 and hypot,
// a path apart from the routine's.
TEST_F(stats, GeneratedAxialSampleAgreesWithADoublePrecisionReference) {
    std::mt19937 gen(20261123);
    std::normal_distribution<double> spread(40.0, 12.0);
    std::bernoulli_distribution flip(0.5);
    std::vector<float> deg(3000);
    double c = 0, s = 0;
    for (auto& d : deg) {
        d = float(spread(gen) + (flip(gen) ? 180.0 : 0.0));
        const double a = 2.0 * d * M_PI / 180.0;
        c += std::cos(a);
        s += std::sin(a);
    }
    const double R = std::hypot(c, s) / double(deg.size());
    const double axis = std::atan2(s, c) / 2.0 * 180.0 / M_PI;
    circ(deg, 2);
    // 3000 single precision terms: a few 1e-4 of R and of a degree.
    EXPECT_NEAR(value("Mean module (R)               ="), R, 1e-3);
    EXPECT_NEAR(value("Mean angle (Am1) (degrees)    ="), axis, 0.05);
    EXPECT_NEAR(axis, 40.0, 1.0);
    EXPECT_NEAR(value("Standard deviation (s1) (deg) ="), std::sqrt(-2 * std::log(R)) / 2 * 180 / M_PI, 0.05);
    // K = 1 on the same data: the two directions nearly cancel.
    circ(deg, 1);
    EXPECT_LT(value("Mean module (R)               ="), 0.1);
}

}  // namespace
