// Projections: the corners of a box through each kind against coordinates
// found by another route (complex axis images, the ray from the eye cut by
// the picture plane), and the menus of command 14.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <string>
#include <vector>

#include "dialogue.h"
#include "lines.h"
#include "math/angles.h"
#include "projection/projection.h"

namespace {

using lines_t = std::vector<std::string>;
using vec = std::array<double, 3>;

double dot(const vec& a, const vec& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
vec cross(const vec& a, const vec& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
// s a + b
vec axpy(double s, const vec& a, const vec& b) { return {s * a[0] + b[0], s * a[1] + b[1], s * a[2] + b[2]}; }
double rad(double d) { return d * std::numbers::pi / 180.0; }

struct Projection : Dialogue {
    // An axis-aligned box off the origin, so that signs and mixed terms show.
    float X[8], Y[8], Z[8], x[8], y[8];
    void SetUp() override {
        Dialogue::SetUp();
        iocom.lpause = false;
        trigoset();
        int iproj = 0;
        sprojxyz(iproj, 5);
        for (int k = 0; k < 8; ++k) {
            X[k] = (k & 1) ? 2.0f : -1.0f;
            Y[k] = (k & 2) ? 3.0f : 0.5f;
            Z[k] = (k & 4) ? 1.0f : -2.0f;
        }
        clear();
    }
    void project() { projxyzn(x, y, X, Y, Z, 8); }
};

TEST_F(Projection, AxonometricKindsPutEachAxisAtItsAngleAndReduction) {
    struct kind {
        int itype;
        double a[3], r[3];
    };
    const kind kinds[] = {{2, {45, 180, 90}, {0.5, 1, 1}},        {3, {0, 45, 90}, {1, 0.5, 1}},
                          {4, {30, 150, 90}, {.82, .82, .82}},    {5, {30, 165, 90}, {.65, .86, .92}},
                          {6, {41.5, 138.5, 90}, {.94, .94, .47}}, {7, {15, 165, 90}, {.73, .73, .96}}};
    for (const kind& k : kinds) {
        farr<float, 3> angles{}, red{};
        int itype = k.itype;
        saxono2(angles, red, itype, 1);
        project();
        for (int c = 0; c < 8; ++c) {
            const std::complex<double> p = std::polar(k.r[0], rad(k.a[0])) * double(X[c]) +
                                           std::polar(k.r[1], rad(k.a[1])) * double(Y[c]) +
                                           std::polar(k.r[2], rad(k.a[2])) * double(Z[c]);
            EXPECT_NEAR(x[c], p.real(), 2e-5) << "kind " << k.itype << " corner " << c;
            EXPECT_NEAR(y[c], p.imag(), 2e-5) << "kind " << k.itype << " corner " << c;
        }
    }
    // The stored angles come back without a question.
    farr<float, 3> angles{}, red{};
    int itype = 4;
    saxono2(angles, red, itype, 3);
    EXPECT_EQ(itype, 1);
    EXPECT_FLOAT_EQ(axon.COSA(2), float(0.73 * std::cos(rad(165))));
    EXPECT_TRUE(screen().empty());
}

TEST_F(Projection, PerspectiveCutsTheRayFromTheEyeWithThePicturePlane) {
    struct view {
        float azim, alti, eye[3], dist;
    };
    const view views[] = {{-45, -45, {-10, -10, 10}, 17.3205f},
                          {45, -35.2644f, {-10, -10, 10}, 17.3205f},
                          {200, 10, {6, 4, -3}, 4}};
    for (const view& v : views) {
        float azim = v.azim, alti = v.alti, dist = v.dist;
        farr<float, 3> eye;
        for (int i = 1; i <= 3; ++i) eye(i) = v.eye[i - 1];
        snatper(azim, alti, eye, dist, 1);
        projcatype.iproj = 2;
        project();
        const vec d = {std::cos(rad(v.alti)) * std::cos(rad(v.azim)),
                       std::cos(rad(v.alti)) * std::sin(rad(v.azim)), std::sin(rad(v.alti))};
        vec u = cross({0, 0, 1}, d);
        const double nu = std::sqrt(dot(u, u));
        u = {u[0] / nu, u[1] / nu, u[2] / nu};
        const vec up = cross(d, u);
        const vec E = {v.eye[0], v.eye[1], v.eye[2]};
        const vec C = axpy(v.dist, d, E);  // centre of the picture plane
        for (int c = 0; c < 8; ++c) {
            const vec ray = axpy(-1.0, E, {X[c], Y[c], Z[c]});
            const vec onplane = axpy(-1.0, C, axpy(v.dist / dot(ray, d), ray, E));
            const double tol = 1e-4 * (1.0 + std::fabs(dot(onplane, u)) + std::fabs(dot(onplane, up)));
            EXPECT_NEAR(x[c], dot(onplane, u), tol) << v.azim << " corner " << c;
            EXPECT_NEAR(y[c], dot(onplane, up), tol) << v.azim << " corner " << c;
        }
    }
    // One unit off the view axis: the size goes as dist over the distance
    // from the eye, 1 on the plane.
    const vec d = {nape.MPE(3, 1), nape.MPE(3, 2), nape.MPE(3, 3)};
    const vec u = {nape.MPE(1, 1), nape.MPE(1, 2), nape.MPE(1, 3)};
    for (double s : {0.5, 1.0, 4.0, 40.0}) {
        const vec p = axpy(1.0, u, axpy(s * 4.0, d, {6, 4, -3}));
        float px = float(p[0]), py = float(p[1]), pz = float(p[2]), qx = 0, qy = 0;
        projxyzn(&qx, &qy, &px, &py, &pz, 1);
        EXPECT_NEAR(qx, 1.0 / s, 1e-4 / s) << "at " << s << " times the distance";
        EXPECT_NEAR(qy, 0.0, 1e-4);
    }
}

TEST_F(Projection, OrthogonalKeepsTwoCoordinatesAndAnUnknownKindIsChosenAgain) {
    projcatype.iproj = 3;
    const float* keep[3][2] = {{Y, Z}, {X, Z}, {X, Y}};
    for (int k = 1; k <= 3; ++k) {
        orthocom.iortho = k;
        project();
        for (int c = 0; c < 8; ++c) {
            EXPECT_EQ(x[c], keep[k - 1][0][c]) << k;
            EXPECT_EQ(y[c], keep[k - 1][1][c]) << k;
        }
    }
    projcatype.iproj = 9;
    type({"3", "2"});
    project();
    EXPECT_EQ(lines(0, 13), (error_head_lines("projxyzn     ") +
                             lines_t{"  iproj =      9", "  NO SUCH PROJECTION AVALAIBLE ",
                                     "  WILL TRY TO RESET PROJECTION BELOW ", " " + std::string(50, '*')}));
    EXPECT_EQ(orthocom.iortho, 2);
    EXPECT_EQ(y[6], Z[6]);
    // Out of range from the caller, the menu shows even in a silent mode.
    clear();
    int iproj = 4;
    type({"2"});
    sprojxyz(iproj, 1);
    EXPECT_EQ(count("  ==> RESETTING iproj =      1"), 1);
    EXPECT_EQ(count(" Enter your choice"), 1);
    EXPECT_EQ(projcatype.iproj, 2);
}

// Command 14 through the axonometric and the perspective menus.
TEST_F(Projection, MenusOfEachKind) {
    int iproj = 0;
    type({"1", "1", "1", "40", "6", "0.5", "99", "2", "1", "30", "4", "0", "7", "99", "3", "1"});
    sprojxyz(iproj, 2);
    const std::string R40 = " " + std::string(40, '-'), R42 = " " + std::string(42, '-'),
                      R39 = " " + std::string(39, '-');
    EXPECT_EQ(screen_block(*this, "  Setting up Projection (X,Y,Z) -> (x,y) ", 7),
              (lines_t{"  Setting up Projection (X,Y,Z) -> (x,y) ", "         AVAILABLE PROJECTIONS:          ", R40,
                       "  Axonometric  .........................1", "  Natural perpective ...................2",
                       "  Orthogonal projection ................3", " " + std::string(50, '@')}));
    EXPECT_EQ(screen_block(*this, " AVAILABLE AXONOMETRIC PROJECTIONS:        ", 9),
              (lines_t{" AVAILABLE AXONOMETRIC PROJECTIONS:        ", R42,
                       " Axonometric general ....................1 ", " cavaliere fuite x ......................2 ",
                       " cavaliere fuite y ......................3 ", " isometric ..............................4 ",
                       " trimetric ..............................5 ", " dimetric ...............................6 ",
                       " dimetric upturned ......................7 "}));
    // The general kind starts from the stored isometric values; the last
    // panel shows the answers.
    EXPECT_EQ(screen_block(*this, " Current parameters (angles in degrees):", 10, find(" Enter reduction")),
              (lines_t{" Current parameters (angles in degrees):", R39, "  Ox angle.....................1   40.00",
                       "  Oy angle.....................2  150.00", "  Oz angle.....................3   90.00",
                       "  Ox reduction.................4    0.82", "  Oy reduction.................5    0.82",
                       "  Oz reduction.................6    0.50", R39, " PARAMETERS ARE OK, PROCEED...99"}));

    clear();
    sprojxyz(iproj, 2);
    EXPECT_EQ(screen_block(*this, " View direction angles (in degrees):", 10, find(" New value =             7")),
              (lines_t{" View direction angles (in degrees):", "  azimuth......................1   30.00",
                       "  altitude.....................2  -45.00", " View point cartesian coordinates in E:",
                       "  X............................3  -10.00", "  Y............................4    0.00",
                       "  Z............................5   10.00", " Distance to 1:1 scale plane:",
                       "  Distance.....................6   14.14", "  Set scale 1:1 at Oe..........7"}));
    EXPECT_FLOAT_EQ(nppf.dpp, std::sqrt(200.0f));

    sprojxyz(iproj, 2);
    EXPECT_EQ(count("  // y into x,z plane .................2 "), 1);
    EXPECT_EQ(orthocom.iortho, 1);
    EXPECT_TRUE(con.keys.empty());
}

}  // namespace
