// Angle constants, wrapping, polar conversion and circles.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "dialogue.h"
#include "math/angles.h"

namespace {

std::uint32_t bits(float f) { return std::bit_cast<std::uint32_t>(f); }

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

TEST_F(angles, ConstantsHaveTheirExactBitPatterns) {
    EXPECT_EQ(bits(anglerad.quartpi), 0x3F490FDBu);
    EXPECT_EQ(bits(anglerad.thirdpi), 0x3F860A92u);
    EXPECT_EQ(bits(anglerad.halfpi), 0x3FC90FDBu);
    EXPECT_EQ(bits(anglerad.threequartpi), 0x4016CBE4u);
    EXPECT_EQ(bits(anglerad.pinum), 0x40490FDBu);
    EXPECT_EQ(bits(anglerad.threehalfpi), 0x4096CBE4u);
    EXPECT_EQ(bits(anglerad.twopi), 0x40C90FDBu);
    EXPECT_EQ(bits(anglerad.deg2radfac), 0x3C8EFA35u);
    EXPECT_EQ(bits(anglerad.rad2degfac), 0x42652EE0u);

    EXPECT_EQ(bits(angleradi.quartpi), 0x3F490F33u);
    EXPECT_EQ(bits(angleradi.thirdpi), 0x3F860A3Eu);
    EXPECT_EQ(bits(angleradi.halfpi), 0x3FC90F87u);
    EXPECT_EQ(bits(angleradi.threequartpi), 0x4016CBBAu);
    EXPECT_EQ(bits(angleradi.pinum), 0x40490FB1u);
    EXPECT_EQ(bits(angleradi.threehalfpi), 0x4096CBCFu);
    EXPECT_EQ(bits(angleradi.twopi), 0x40C90FC6u);

    EXPECT_EQ(bits(anglerads.quartpi), 0x3F491083u);
    EXPECT_EQ(bits(anglerads.thirdpi), 0x3F860AE6u);
    EXPECT_EQ(bits(anglerads.halfpi), 0x3FC9102Fu);
    EXPECT_EQ(bits(anglerads.threequartpi), 0x4016CC0Eu);
    EXPECT_EQ(bits(anglerads.pinum), 0x40491005u);
    EXPECT_EQ(bits(anglerads.threehalfpi), 0x4096CBF9u);
    EXPECT_EQ(bits(anglerads.twopi), 0x40C90FF0u);

    // The printed values of the table.
    EXPECT_EQ(anglerad.pinum, 3.1415927f);
    EXPECT_EQ(anglerad.rad2degfac, 57.295776f);
    EXPECT_EQ(angleradi.pinum, 3.1415827f);
    EXPECT_EQ(anglerads.pinum, 3.1416028f);
}

TEST_F(angles, StartUpAnnouncesItself) {
    EXPECT_EQ(lines(0, 4), (std::vector<std::string>{
                               " " + std::string(50, '@'),
                               " @ subroutine trigoset              v8.0 2017-03-10",
                               " @" + std::string(49, '='), " Initializing /anglerad/ block"}));
}

TEST_F(angles, DegreesAndRadians) {
    EXPECT_EQ(deg(anglerad.pinum), 180.0f);
    EXPECT_EQ(rad(180.0f), anglerad.deg2radfac * 180.0f);
    EXPECT_FLOAT_EQ(rad(90.0f), anglerad.halfpi);
    float in[3] = {0.0f, 90.0f, -45.0f}, out[3];
    deg2rad(out, in, 3);
    EXPECT_FLOAT_EQ(out[1], anglerad.halfpi);
    EXPECT_FLOAT_EQ(out[2], -anglerad.quartpi);
    // In place, back again.
    rad2deg(out, out, 3);
    EXPECT_FLOAT_EQ(out[1], 90.0f);
    EXPECT_FLOAT_EQ(out[2], -45.0f);
    float one = 0;
    deg2rad1(one, 60.0f);
    EXPECT_FLOAT_EQ(one, anglerad.thirdpi);
}

TEST_F(angles, WrapIntoOriginAndPeriod) {
    EXPECT_EQ(wrap(360, 360, 0), 0);
    EXPECT_EQ(wrap(-360, 360, 0), 0);
    EXPECT_EQ(wrap(-1, 360, 0), 359);
    EXPECT_EQ(wrap(725, 360, 0), 5);
    EXPECT_EQ(wrap(0, 360, 0), 0);
    EXPECT_EQ(wrap(359.5f, 360, 0), 359.5f);
    EXPECT_EQ(wrap(-725, 360, 0), 355);
    EXPECT_EQ(wrap(-180, 360, -180), -180);
    EXPECT_EQ(wrap(180, 360, -180), -180);
    EXPECT_EQ(wrap(190, 360, -180), -170);
    EXPECT_EQ(wrap(400, 180, 0), 40);
    // A whole array, in place.
    float a[5] = {370, -10, 720, 45, -730};
    modulro(a, a, 360.0f, 0.0f, 5);
    EXPECT_EQ(std::vector<float>(a, a + 5), (std::vector<float>{10, 350, 0, 45, 350}));
    // No count, no change.
    float keep = 99;
    float src = 500;
    modulro(&keep, &src, 360.0f, 0.0f, 0);
    EXPECT_EQ(keep, 99);
}

TEST_F(angles, WrapAroundZero) {
    EXPECT_EQ(centred(180, 360), 180);
    EXPECT_EQ(centred(-180, 360), 180);
    EXPECT_EQ(centred(181, 360), -179);
    EXPECT_EQ(centred(360, 360), 0);
    EXPECT_EQ(centred(-360, 360), 0);
    EXPECT_EQ(centred(540, 360), 180);
    EXPECT_EQ(centred(-179.5f, 360), -179.5f);
    EXPECT_EQ(centred(-190, 360), 170);
    EXPECT_EQ(centred(1000, 360), -80);
    EXPECT_EQ(centred(100, 180), -80);
    float keep = 7, src = 500;
    moducr(&keep, &src, 360.0f, -1);
    EXPECT_EQ(keep, 7);
}

TEST_F(angles, PolarAndCartesian) {
    float x[6] = {0, -1, -1, 0, 3, -1};
    float y[6] = {0, 0, -0.0f, -1, 4, -1};
    float r[6], t[6];
    xy2rt(r, t, x, y, 6);
    EXPECT_EQ(r[0], 0.0f);
    EXPECT_EQ(t[0], anglerad.halfpi);
    EXPECT_EQ(t[1], anglerad.pinum);
    EXPECT_EQ(t[2], anglerad.pinum);  // -0.0 counts as y >= 0
    EXPECT_EQ(t[3], -anglerad.halfpi);
    EXPECT_EQ(r[4], 5.0f);
    EXPECT_FLOAT_EQ(t[4], std::atan(4.0f / 3.0f));
    EXPECT_FLOAT_EQ(t[5], -anglerad.threequartpi);
    EXPECT_FLOAT_EQ(r[5], std::sqrt(2.0f));

    float t2[6];
    xy2t(t2, x, y, 6);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(t2[i], t[i]);

    // And back, in place: r and t become x and y.
    rt2xy(r, t, r, t, 6);
    EXPECT_NEAR(r[4], 3.0f, 1e-6f);
    EXPECT_NEAR(t[4], 4.0f, 1e-6f);
    EXPECT_NEAR(r[5], -1.0f, 1e-6f);
    EXPECT_NEAR(t[5], -1.0f, 1e-6f);
}

TEST_F(angles, CirclesAndArcs) {
    float x[5], y[5];
    circle(x, y, 2, 1.0f, 2.0f, 3.0f);
    EXPECT_EQ(x[0], 4.0f);
    EXPECT_EQ(y[0], 2.0f);
    EXPECT_NEAR(x[1], 4.0f, 1e-6f);
    EXPECT_NEAR(y[1], 2.0f, 1e-5f);

    circle(x, y, 5, 0.0f, 0.0f, 2.0f);
    const float ex[5] = {2, 0, -2, 0, 2}, ey[5] = {0, 2, 0, -2, 0};
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(x[i], ex[i], 1e-6f) << i;
        EXPECT_NEAR(y[i], ey[i], 1e-6f) << i;
    }

    arcirclerad(x, y, 3, 10.0f, 0.0f, 1.0f, 0.0f, anglerad.pinum);
    EXPECT_EQ(x[0], 11.0f);
    EXPECT_NEAR(x[1], 10.0f, 1e-6f);
    EXPECT_NEAR(y[1], 1.0f, 1e-6f);
    EXPECT_NEAR(x[2], 9.0f, 1e-6f);
    EXPECT_NEAR(y[2], 0.0f, 1e-6f);
}
