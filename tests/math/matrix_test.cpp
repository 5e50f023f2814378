// Matrix products and inverse, the straight-line fit, the index sort.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "dialogue.h"
#include "lines.h"
#include "math/angles.h"
#include "math/lstsq1.h"
#include "math/matrix.h"
#include "math/ranind.h"
#include "shell/stop.h"

namespace {

using lines_t = std::vector<std::string>;

class numerics : public Dialogue {
protected:
    void SetUp() override {
        Dialogue::SetUp();
        iocom.lpause = false;
        trigoset();
        clear();
    }
};

std::vector<int> sorted_index(const std::vector<float>& x) {
    std::vector<int> ind(x.size(), -1);
    ranind(int(x.size()), x.data(), ind.data());
    return ind;
}

void expect_sorted(const std::vector<float>& x, const std::vector<int>& ind) {
    std::vector<int> perm = ind;
    std::sort(perm.begin(), perm.end());
    std::vector<int> one_to_n(x.size());
    std::iota(one_to_n.begin(), one_to_n.end(), 1);
    ASSERT_EQ(perm, one_to_n) << "not a permutation";
    for (std::size_t i = 1; i < ind.size(); ++i)
        EXPECT_LE(x[std::size_t(ind[i - 1] - 1)], x[std::size_t(ind[i] - 1)]) << "at " << i;
}

}  // namespace

// Matrices are stored by columns.
TEST_F(numerics, InverseInPlaceAndASingularMatrixStopsTheRun) {
    float b[4] = {4, 2, 7, 6};  // | 4 7 | 2 6 |, by columns
    float det = 0;
    m22determt(det, b);
    EXPECT_EQ(det, 10.0f);
    m22invert(b, b);
    EXPECT_EQ(std::vector<float>(b, b + 4), (std::vector<float>{0.6f, -0.2f, -0.7f, 0.4f}));
    EXPECT_TRUE(screen().empty());

    float s[4] = {1, 2, 2, 4}, c[4] = {9, 9, 9, 9};
    type({""});  // STOP? the return key takes the advised way
    EXPECT_THROW(m22invert(c, s), program_stop);
    EXPECT_EQ(lines(0, 13), (error_head_lines("    m22invert") +
                                lines_t{" det(B) =        0.00    ", " b(1,1) =        1.00     b(1,2) =        2.00    ",
                                        " b(2,1) =        2.00     b(2,2) =        4.00    ", " => Cannot Invert B"}));
    EXPECT_GE(find(" UNRECOVERABLE ERROR ==> QUITTING ADVISED"), 0);
    EXPECT_EQ(c[0], 9.0f);
}

TEST_F(numerics, ProductsMayOverwriteAnOperand) {
    // b is 2 x 3, c is 3 x 2.
    float b[6] = {1, 4, 2, 5, 3, 6};  // | 1 2 3 | / | 4 5 6 |
    float c[6] = {7, 9, 11, 8, 10, 12};  // | 7 8 | 9 10 | 11 12 |
    float a[4];
    mnpxmpq(a, b, c, 2, 3, 2);
    EXPECT_EQ(std::vector<float>(a, a + 4), (std::vector<float>{58, 139, 64, 154}));

    // Square, the result into the right operand.
    float t[4] = {0, 1, 1, 0};  // swaps columns
    float u[4] = {1, 3, 2, 4};  // | 1 2 | 3 4 |
    mnpxmpq(t, u, t, 2, 2, 2);
    EXPECT_EQ(std::vector<float>(t, t + 4), (std::vector<float>{2, 4, 1, 3}));

    // Matrix times vector, the vector overwritten.
    float m[9] = {1, 0, 0, 0, 0, 1, 0, -1, 0};  // rotation about x by 90 degrees
    float v[3] = {1, 2, 3};
    mnpxvp(v, m, v, 3, 3);
    EXPECT_EQ(std::vector<float>(v, v + 3), (std::vector<float>{1, -3, 2}));
}

TEST_F(numerics, LineThroughPointsAndTheSentinelSlopeOfEqualAbscissae) {
    std::vector<float> x{1000, 1001, 1002, 1003, 1004}, y;
    for (float xi : x) y.push_back(-0.5f * xi + 600.0f);
    float a1 = 0, b1 = 0;
    lstsq1(a1, b1, x.data(), y.data(), 5);
    EXPECT_FLOAT_EQ(a1, -0.5f);
    EXPECT_NEAR(b1, 600.0f, 0.01f);

    // Noisy points around y = 2x + 1 from a hand computation.
    std::vector<float> xs{0, 1, 2, 3}, ys{1, 3.5f, 4.5f, 7};
    lstsq1(a1, b1, xs.data(), ys.data(), 4);
    EXPECT_FLOAT_EQ(a1, 1.9f);
    EXPECT_FLOAT_EQ(b1, 1.15f);
    EXPECT_TRUE(screen().empty());

    // Equal abscissae give the sentinel slope.
    std::vector<float> x2{2, 2, 2}, y2{1, 5, 9};
    b1 = 7;
    lstsq1(a1, b1, x2.data(), y2.data(), 3);
    EXPECT_EQ(a1, 1.0e10f);
    EXPECT_EQ(b1, 0.0f);
    EXPECT_EQ(lines(0, 19), (warning_head_lines("       lstsq1") +
                            lines_t{" sig(tt) = 0", "  t = x - xm", "  sig(x)  =            6.00000",
                                    "  sig(y)  =           15.00000", "  sig(tt) =            0.00000",
                                    "  sig(ty) =            0.00000", " Input parameters:", "  n    =      3",
                                    "  x(1) =            2.00000", "  y(1) =            1.00000",
                                    "  x(n) =            2.00000", "  y(n) =            9.00000", " ==> SETTING:",
                                    "  a1 =  10000000000.00000", "  b1 =            0.00000"}));
}

TEST_F(numerics, IndexSortLeavesTheValuesInPlaceAndItsStackOverflowStopsTheRun) {
    // A pseudo-random set with repeated values.
    std::vector<float> r;
    unsigned s = 12345;
    for (int i = 0; i < 3000; ++i) {
        s = s * 1103515245u + 12345u;
        r.push_back(float((s >> 8) % 500) * 0.25f - 40.0f);
    }
    const std::vector<float> copy = r;
    expect_sorted(r, sorted_index(r));
    EXPECT_EQ(r, copy);
    // Equal values: nothing lies above the mean, nothing moves.
    EXPECT_EQ(sorted_index(std::vector<float>(6, 2.5f)), (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(sorted_index({42.0f}), std::vector<int>{1});
    EXPECT_TRUE(screen().empty());

    // Each value so far above those before it that the mean of the
    // smallest m values lies between the two largest of them: every pass
    // splits off the largest value alone and pushes the rest.
    std::vector<float> x{1.0e-37f};
    float sum = x[0];
    for (int m = 2; m <= 45; ++m) {
        x.push_back(1.5f * (float(m) * x.back() - sum));
        sum += x.back();
    }
    std::vector<int> ind(x.size());
    EXPECT_THROW(ranind(int(x.size()), x.data(), ind.data()), program_stop);
    ASSERT_GE(screen().size(), 2u);
    EXPECT_EQ(screen()[0], " kx gt dim. de nx ");
    EXPECT_EQ(screen()[1].size(), 2u + 20u * 6u);

    // Forty levels are enough for fewer such values.
    std::vector<float> y(x.begin(), x.begin() + 38);
    std::reverse(y.begin(), y.end());
    expect_sorted(y, sorted_index(y));
}
