// Angle constants, wrapping, polar conversion and circles.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "dialogue.h"
#include "math/angles.h"

namespace {

class angles : public Dialogue {
protected:
    void SetUp() override {
        Dialogue::SetUp();
        trigoset();
    }
    float wrap(float v, float period, float origin) {
        float out = -12345.0f;
        modulro(&out, &v, period, origin, 1);
        return out;
    }
    float centred(float v, float period) {
        float out = -12345.0f;
        moducr(&out, &v, period, 1);
        return out;
    }
};

}  // namespace

TEST_F(angles, ConstantsAreTheNearestFloatsAndTheBoundsLieTenMicroradiansOff) {
    const double pi = 3.14159265358979323846;
    const anglerad_t& c = anglerad;
    const struct {
        float value, below, above;
        double exact;
    } cs[] = {{c.quartpi, angleradi.quartpi, anglerads.quartpi, pi / 4},
              {c.thirdpi, angleradi.thirdpi, anglerads.thirdpi, pi / 3},
              {c.halfpi, angleradi.halfpi, anglerads.halfpi, pi / 2},
              {c.threequartpi, angleradi.threequartpi, anglerads.threequartpi, 3 * pi / 4},
              {c.pinum, angleradi.pinum, anglerads.pinum, pi},
              {c.threehalfpi, angleradi.threehalfpi, anglerads.threehalfpi, 3 * pi / 2},
              {c.twopi, angleradi.twopi, anglerads.twopi, 2 * pi}};
    for (const auto& k : cs) {
        EXPECT_EQ(k.value, float(k.exact)) << k.exact;
        EXPECT_EQ(k.below, k.value - 1.0e-5f) << k.exact;
        EXPECT_EQ(k.above, k.value + 1.0e-5f) << k.exact;
    }
    EXPECT_EQ(c.deg2radfac, float(pi / 180));
    EXPECT_EQ(c.rad2degfac, 180.0f / c.pinum);
    EXPECT_EQ(deg(anglerad.pinum), 180.0f);
    float a[3] = {0.0f, 90.0f, -45.0f};
    deg2rad(a, a, 3);
    EXPECT_EQ((std::vector<float>{a[1], a[2], rad(90.0f)}),
              (std::vector<float>{anglerad.halfpi, -anglerad.quartpi, anglerad.halfpi}));
    rad2deg(a, a, 3);
    EXPECT_EQ((std::vector<float>(a, a + 3)), (std::vector<float>{0.0f, 90.0f, -45.0f}));
    EXPECT_EQ(lines(0, 4), (std::vector<std::string>{" " + std::string(50, '@'),
                                                     " @ subroutine trigoset              v8.0 2017-03-10",
                                                     " @" + std::string(49, '='), " Initializing /anglerad/ block"}));
}

TEST_F(angles, WrapIntoOriginAndPeriodOrAroundZero) {
    struct {
        float v, period, origin, want;
    } into[] = {{360, 360, 0, 0},      {-360, 360, 0, 0},         {-1, 360, 0, 359},      {725, 360, 0, 5},
                {359.5f, 360, 0, 359.5f}, {-725, 360, 0, 355},    {-180, 360, -180, -180}, {180, 360, -180, -180},
                {190, 360, -180, -170}, {400, 180, 0, 40}};
    for (auto c : into) EXPECT_EQ(wrap(c.v, c.period, c.origin), c.want) << c.v << " " << c.period << " " << c.origin;
    struct {
        float v, period, want;
    } around[] = {{180, 360, 180}, {-180, 360, 180}, {181, 360, -179},      {360, 360, 0},     {-360, 360, 0},
                  {540, 360, 180}, {-179.5f, 360, -179.5f}, {-190, 360, 170}, {1000, 360, -80}, {100, 180, -80}};
    for (auto c : around) EXPECT_EQ(centred(c.v, c.period), c.want) << c.v << " " << c.period;
    // A whole array, in place.
    float a[5] = {370, -10, 720, 45, -730};
    modulro(a, a, 360.0f, 0.0f, 5);
    EXPECT_EQ(std::vector<float>(a, a + 5), (std::vector<float>{10, 350, 0, 45, 350}));
    // No count, no change.
    float keep = 99, src = 500;
    modulro(&keep, &src, 360.0f, 0.0f, 0);
    moducr(&keep, &src, 360.0f, -1);
    EXPECT_EQ(keep, 99);
}

TEST_F(angles, PolarCartesianCirclesAndArcs) {
    float x[6] = {0, -1, -1, 0, 3, -1};
    float y[6] = {0, 0, -0.0f, -1, 4, -1};
    float r[6], t[6];
    xy2rt(r, t, x, y, 6);
    // The origin gives +pi/2, and -0.0 counts as y >= 0.
    EXPECT_EQ((std::vector<float>{r[0], t[0], t[1], t[2], t[3], r[4]}),
              (std::vector<float>{0, anglerad.halfpi, anglerad.pinum, anglerad.pinum, -anglerad.halfpi, 5}));
    EXPECT_FLOAT_EQ(t[5], -anglerad.threequartpi);
    EXPECT_FLOAT_EQ(r[5], std::sqrt(2.0f));
    float t2[6];
    xy2t(t2, x, y, 6);
    EXPECT_EQ(std::vector<float>(t2, t2 + 6), std::vector<float>(t, t + 6));

    // And back, in place: r and t become x and y.
    rt2xy(r, t, r, t, 6);
    for (int i : {4, 5}) {
        EXPECT_NEAR(r[i], x[i], 1e-6f);
        EXPECT_NEAR(t[i], y[i], 1e-6f);
    }

    // Circles and arcs.
    float cx[8], cy[8];
    circle(cx, cy, 5, 1.0f, 2.0f, 2.0f);
    arcirclerad(cx + 5, cy + 5, 3, 10.0f, 0.0f, 1.0f, 0.0f, anglerad.pinum);
    const float ex[8] = {3, 1, -1, 1, 3, 11, 10, 9}, ey[8] = {2, 4, 2, 0, 2, 0, 1, 0};
    for (int i = 0; i < 8; ++i) {
        EXPECT_NEAR(cx[i], ex[i], 1e-6f) << i;
        EXPECT_NEAR(cy[i], ey[i], 1e-6f) << i;
    }
}
