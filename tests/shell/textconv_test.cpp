// Numbers into label text, base names, and value search in columns.
#include <gtest/gtest.h>

#include "dialogue.h"
#include "shell/textconv.h"
#include "shell/valuesearch.h"

namespace {

using TextConv = Dialogue;
using Lines = std::vector<std::string>;

TEST_F(TextConv, BaseNames) {
    struct Case {
        std::string path, base;
    } cases[] = {{"dir/sub/well.txt", "well.txt"}, {"well.txt  ", "well.txt"},
                 {"  /abs/w.ps", "w.ps"},           {"a", "a"},
                 {"/x", "x"}};
    for (const auto& c : cases) {
        fstr<40> base;
        int n = 0;
        path2basename(n, base, c.path);
        EXPECT_EQ(base.trimmed(), c.base) << c.path;
        EXPECT_EQ(n, int(c.base.size())) << c.path;
    }
}

TEST_F(TextConv, IntegersBecomeLeftJustifiedText) {
    fstr<12> t;
    int n = 0;
    for (auto [v, s] : {std::pair{0, "0"}, {7, "7"}, {-5, "-5"}, {-10, "-10"}, {10, "10"},
                        {12345, "12345"}, {-99999, "-99999"}, {1000000, "1000000"}}) {
        intg2char(t, n, 12, v);
        EXPECT_EQ(t.trimmed(), s) << v;
        EXPECT_EQ(n, int(std::string_view(s).size())) << v;
    }
    EXPECT_TRUE(screen().empty());
}

TEST_F(TextConv, AnIntegerTooLongForItsTextIsNines) {
    type({""});
    fstr<4> t;
    int n = 0;
    intg2char(t, n, 1, 10);
    EXPECT_EQ(t, "9");
    EXPECT_EQ(n, 1);
    EXPECT_GT(find(" Cannot write integer =                   10"), 0);
    EXPECT_GT(find(" ==> NEED LONGER CHARACTER STRING"), 0);
}

TEST_F(TextConv, RealsBecomeText) {
    fstr<12> t;
    int n = 0;
    real2charf1(t, n, 2, 12, 0.5f);
    EXPECT_EQ(t.trimmed(), "0.50");
    EXPECT_EQ(n, 4);
    // Rounding carries into a new digit: the text is one wider.
    real2charf1(t, n, 2, 12, 999.999f);
    EXPECT_EQ(t.trimmed(), "1000.00");
    EXPECT_EQ(n, 7);
    real2charf1(t, n, 1, 12, -12.34f);
    EXPECT_EQ(t.trimmed(), "-12.3");
    EXPECT_EQ(n, 5);
    real2charf1(t, n, 1, 12, -0.26f);
    EXPECT_EQ(t.trimmed(), "-0.3");
    EXPECT_EQ(n, 4);
    real2charf1(t, n, 3, 12, 2.5f);
    EXPECT_EQ(t.trimmed(), "2.500");
    EXPECT_TRUE(screen().empty());
}

TEST_F(TextConv, ARealTooLongLosesDecimalsThenIsNines) {
    fstr<12> t;
    int n = 0;
    real2charf1(t, n, 3, 6, 1234.56f);  // 1234.560 needs 8: keeps 0 decimals
    EXPECT_EQ(n, 6);
    EXPECT_EQ(t.trimmed(), " 1235.");
    type({""});
    real2charf1(t, n, 3, 4, 123456.f);
    EXPECT_EQ(t.trimmed(), "9999");
    EXPECT_GT(find(" Cannot write real =" + std::string(19, ' ') + "123456.00000"), 0);
}

TEST_F(TextConv, InvalidFixedFormatGivesX) {
    type({""});
    fstr<6> t;
    careafmpn(t, 3, 3, 1.f);
    EXPECT_EQ(t, "X");
    EXPECT_GT(find(" fm.n is not a valid format"), 0);
}

TEST_F(TextConv, LinearSearch) {
    int a[] = {4, 8, 15, 16, 23, 42};
    int k = 0, e = -1;
    ival2ind1(k, 16, a, 1, 6, e);
    EXPECT_EQ(k, 4);
    EXPECT_EQ(e, 0);
    ival2ind1(k, 16, a, 5, 6, e);
    EXPECT_EQ(k, 1);
    EXPECT_EQ(e, 1);
}

using Search = Dialogue;

TEST_F(Search, IncreasingDataWithItsReport) {
    float d[10];
    for (int k = 0; k < 10; ++k) d[k] = float(k + 1);
    int e, f, l;
    inval2inind2(e, f, l, 3.5f, 7.2f, 1, 10, d, 10, 0);
    EXPECT_EQ(e, 0);
    EXPECT_EQ(f, 4);
    EXPECT_EQ(l, 7);
    EXPECT_EQ(lines(3, 9), (Lines{
                               " CASE 1: INCREASING DATA",
                               " +-------+------------------+------------+",
                               " |       |  Array Results   |   Search   |",
                               " |       +------------------+------------+",
                               " |       |index|       value|   bounds   |",
                               " |Initial|    4|       4.000|       3.500|",
                               " |  Final|    7|       7.000|       7.200|",
                               " +-------+------------------+------------+",
                               " " + std::string(50, '@'),
                           }));
}

TEST_F(Search, DecreasingDepthsGiveFirstBelowLast) {
    float d[10];
    for (int k = 0; k < 10; ++k) d[k] = float(10 - k);
    int e, f, l;
    inval2inind2(e, f, l, 3.5f, 7.2f, 1, 10, d, 10, 1);
    EXPECT_EQ(e, 0);
    EXPECT_EQ(f, 4);
    EXPECT_EQ(l, 7);
    EXPECT_TRUE(screen().empty());  // odd inter: silent
}

TEST_F(Search, AGapBetweenTheBoundsFails) {
    type({""});
    float d[] = {1, 2, 3, 10, 11};
    int e, f, l;
    inval2inind2(e, f, l, 4.f, 9.f, 1, 5, d, 5, 1);
    EXPECT_EQ(e, 1);
    EXPECT_EQ(f, 1);
    EXPECT_EQ(l, 1);
    EXPECT_GT(find(" INDICES SEARCH FAILED:"), 0);
}

TEST_F(Search, AllDataBelowTheIntervalSelectsTheLargest) {
    type({""});
    float d[] = {1, 2, 3, 4, 5};
    int e, f, l;
    inval2inind2(e, f, l, 10.f, 20.f, 1, 5, d, 5, 1);
    EXPECT_EQ(e, 2);
    EXPECT_EQ(f, 5);
    EXPECT_EQ(l, 5);
    EXPECT_GT(find(" ALL DATA < Rmin"), 0);
}

TEST_F(Search, SwappedBoundsAreMended) {
    type({""});
    float d[] = {1, 2, 3, 4, 5};
    int e, f, l;
    inval2inind2(e, f, l, 4.f, 2.f, 5, 1, d, 5, 1);
    EXPECT_EQ(e, 0);
    EXPECT_EQ(f, 2);
    EXPECT_EQ(l, 4);
    EXPECT_GT(find(" => switching Imin, Imax"), 0);
    EXPECT_GT(find(" Rmin =      4.000 Rmax =      2.000"), 0);
}

TEST_F(Search, SearchIndicesOutsideTheArray) {
    type({"", ""});
    float d[] = {1, 2, 3};
    int e, f, l;
    inval2inind2(e, f, l, 1.f, 2.f, 0, 3, d, 3, 1);
    EXPECT_EQ(e, 1);
    EXPECT_EQ(f, 1);
    EXPECT_EQ(l, 1);
    EXPECT_GT(find(" SEARCH INDEX BOUNDS ARE OUT OF ARRAY BOUNDS"), 0);
}

}  // namespace
