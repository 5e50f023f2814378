// Numbers into label text, base names, and value search in columns.
#include <gtest/gtest.h>

#include <cmath>

#include "dialogue.h"
#include "shell/textconv.h"
#include "shell/valuesearch.h"

namespace {

using TextConv = Dialogue;
using Lines = std::vector<std::string>;

TEST_F(TextConv, BaseNames) {
    for (auto [path, want] : {std::pair{"dir/sub/well.txt", "well.txt"}, {"well.txt  ", "well.txt"},
                              {"  /abs/w.ps", "w.ps"}, {"a", "a"}, {"/x", "x"}}) {
        fstr<40> base;
        int n = 0;
        path2basename(n, base, path);
        EXPECT_EQ(base.trimmed(), want) << path;
        EXPECT_EQ(n, int(std::string_view(want).size())) << path;
    }
}

TEST_F(TextConv, NumbersBecomeLeftJustifiedText) {
    fstr<12> t;
    int n = 0;
    for (auto [v, s] : {std::pair{0, "0"}, {-5, "-5"}, {-10, "-10"}, {10, "10"},
                        {-99999, "-99999"}, {1000000, "1000000"}}) {
        intg2char(t, n, 12, v);
        EXPECT_EQ(t.trimmed(), s) << v;
        EXPECT_EQ(n, int(std::string_view(s).size())) << v;
    }
    // Rounding may carry into a new digit: the text is one wider.
    struct { int dec; float v; const char* s; } reals[] = {
        {2, 0.5f, "0.50"}, {2, 999.999f, "1000.00"}, {1, -12.34f, "-12.3"}, {1, -0.26f, "-0.3"},
        {3, 2.5f, "2.500"}};
    for (const auto& r : reals) {
        real2charf1(t, n, r.dec, 12, r.v);
        EXPECT_EQ(t.trimmed(), r.s) << r.v;
        EXPECT_EQ(n, int(std::string_view(r.s).size())) << r.v;
    }
    EXPECT_TRUE(screen().empty());
}

TEST_F(TextConv, NumbersTooLongForTheirTextLoseDecimalsThenAreNines) {
    type({"", ""});
    fstr<4> t;
    int n = 0;
    intg2char(t, n, 1, 10);
    EXPECT_EQ(t, "9");
    EXPECT_EQ(n, 1);
    EXPECT_GT(find(" Cannot write integer =                   10"), 0);
    EXPECT_GT(find(" ==> NEED LONGER CHARACTER STRING"), 0);
    fstr<6> f;
    careafmpn(f, 3, 3, 1.f);
    EXPECT_EQ(f, "X");
    EXPECT_GT(find(" fm.n is not a valid format"), 0);

    // Reals: the line under the frame head, none for a text that fits.
    struct Case {
        int dec, max;
        float v;
        std::string text, frame;
        int n;
    } cases[] = {
        {3, 6, 1234.56f, " 1235.", "", 6},  // 1234.560 needs 8: keeps 0 decimals
        {3, 4, 123456.f, "9999", " Cannot write real =" + std::string(19, ' ') + "123456.00000", 4},
        {2, 12, INFINITY, "    Inf", " Cannot get size of real =", 7},
        {2, 12, -INFINITY, "   -Inf", " Cannot get size of real =", 7},
        {2147483647, 12, 1.5f, " 1.500000000", "", 12},
        {-2147483647 - 1, 12, 1.5f, "999999999999", " Cannot write real =", 12},
    };
    for (const auto& c : cases) {
        clear();
        type({"", ""});
        fstr<12> r;
        real2charf1(r, n, c.dec, c.max, c.v);
        EXPECT_EQ(r.trimmed(), c.text) << c.v;
        EXPECT_EQ(n, c.n) << c.v;
        EXPECT_EQ(screen().empty(), c.frame.empty()) << c.v;
        EXPECT_TRUE((screen().size() > 9 ? screen()[9] : "").starts_with(c.frame)) << c.v;
    }
}

TEST_F(TextConv, LinearSearch) {
    int a[] = {4, 8, 15, 16, 23, 42};
    int k = 0, e = -1;
    ival2ind1(k, 16, a, 1, 6, e);
    EXPECT_EQ((std::pair{k, e}), (std::pair{4, 0}));
    ival2ind1(k, 16, a, 5, 6, e);
    EXPECT_EQ((std::pair{k, e}), (std::pair{1, 1}));
}

using Search = Dialogue;

TEST_F(Search, IncreasingDataWithItsReport) {
    float d[10];
    for (int k = 0; k < 10; ++k) d[k] = float(k + 1);
    int e, f, l;
    inval2inind2(e, f, l, 3.5f, 7.2f, 1, 10, d, 10, 0);
    EXPECT_EQ((std::vector{e, f, l}), (std::vector{0, 4, 7}));
    EXPECT_EQ(lines(3, 9), (Lines{" CASE 1: INCREASING DATA",
                                  " +-------+------------------+------------+",
                                  " |       |  Array Results   |   Search   |",
                                  " |       +------------------+------------+",
                                  " |       |index|       value|   bounds   |",
                                  " |Initial|    4|       4.000|       3.500|",
                                  " |  Final|    7|       7.000|       7.200|",
                                  " +-------+------------------+------------+",
                                  " " + std::string(50, '@')}));
}

TEST_F(Search, OddCodesAreSilentAndFailuresSaySo) {
    struct {
        std::vector<float> d;
        float rmin, rmax;
        int imin, imax;
        std::vector<int> efl;
        Lines shown;  // none for a silent search
    } cases[] = {
        {{10, 9, 8, 7, 6, 5, 4, 3, 2, 1}, 3.5f, 7.2f, 1, 10, {0, 4, 7}, {}},  // decreasing
        {{1, 2, 3, 10, 11}, 4.f, 9.f, 1, 5, {1, 1, 1}, {" INDICES SEARCH FAILED:"}},
        {{1, 2, 3, 4, 5}, 10.f, 20.f, 1, 5, {2, 5, 5}, {" ALL DATA < Rmin"}},
        {{1, 2, 3, 4, 5}, 4.f, 2.f, 5, 1, {0, 2, 4},
         {" => switching Imin, Imax", " Rmin =      4.000 Rmax =      2.000"}},
        {{1, 2, 3}, 1.f, 2.f, 0, 3, {1, 1, 1}, {" SEARCH INDEX BOUNDS ARE OUT OF ARRAY BOUNDS"}},
    };
    for (auto& c : cases) {
        clear();
        con.keys.clear();
        type({"", ""});
        int e, f, l;
        inval2inind2(e, f, l, c.rmin, c.rmax, c.imin, c.imax, c.d.data(), int(c.d.size()), 1);
        EXPECT_EQ((std::vector{e, f, l}), c.efl) << c.rmin;
        if (c.shown.empty()) {
            EXPECT_TRUE(screen().empty());
        }
        for (const auto& s : c.shown) EXPECT_GT(find(s), 0) << s;
    }
}

}  // namespace
