// The shape tests: the rules on single rows, the count frames of every
// test page on hand-made rows, and the sample well through the log menu
// with its extracted tables and rendered pages.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "borehole/shaperules.h"
#include "borehole/tracks.h"
#include "borehole_fixtures.h"
#include "shell/format.h"

namespace {

using counts_t = std::vector<std::pair<std::string, int>>;

TEST(ShapeRules, EachRuleTakesItsSizeCodes) {
    using enum shaperule;
    // Codes that pass with both the DC and the RB test passed (RB failed
    // for TARK3); the pages below try the other combinations.
    const std::map<shaperule, std::set<int>> codes = {
        {TG, {50, 60, 70}},      {TE, {80, 90, 100}},    {TK, {30, 40}},
        {TASE3, {50, 60, 70}},   {TADE3, {80, 90, 100}}, {TARK3, {30, 40}},
        {TSMAX, {40, 70, 90, 110}}, {TSMIN, {100, 110}}, {TU12, {10, 20, 30, 50, 60, 80}},
        {TU1O2, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}}, {TBS, {50, 60, 70, 80, 90, 100, 110}},
    };
    for (const auto& [rule, pass] : codes)
        for (int c = 10; c <= 110; c += 10)
            EXPECT_EQ(shapepass(rule, {c, 1, rule == TARK3 ? 0 : 1, 0.f, 0.f}, 37.f, 37.f),
                      pass.count(c) == 1)
                << int(rule) << " " << c;
}

struct ShapePages : ShapeRows {
    // The messages and retained counts of the blocks drawn, in order.
    counts_t draw(int icmd, bool lrb = true) {
        clear();
        log_azcm_tst_plot(IWD_WORK, IWD_SIZE, IWD_DC, IWD_RB, 1, n, n, jcc, lrb, icmd);
        counts_t c;
        for (std::size_t k = 1; k + 3 < screen().size(); ++k)
            if (screen()[k - 1] == DASH && screen()[k + 1].starts_with(" Number of   tested"))
                c.emplace_back(screen()[k].substr(1), std::stoi(screen()[k + 2].substr(27)));
        return c;
    }
};

TEST_F(ShapePages, EachPageCountsItsTests) {
    const std::map<int, counts_t> pages = {
        {321, {{"ASE global test 3 failed: DC & CSize & RB", 41}, {"Cmin><G:", 32},
               {"RB Negative test", 22}, {"|DC| Negative test", 22}}},
        {322, {{"ASE global test 3 OK: DC & CSize & RB", 3}, {"Cmin = G:", 12},
               {"RB Positive test", 22}, {"|DC| Positive test", 22}}},
        {323, {{"ADE global test 3 failed: DC & CSize & RB", 41}, {"R+x,G+x,S+S:", 32},
               {"RB Negative test", 22}, {"|DC| Negative test", 22}}},
        {324, {{"ADE global test 3 OK: DC & CSize & RB", 3}, {"E+E or E+S or S+E:", 12},
               {"RB Positive test", 22}, {"|DC| Positive test", 22}}},
        {325, {{"ARK < 0 test R+R,R+G,G+x,E+x,S+x:", 36},
               {"ARK < 0 test (Csize or RBCmax) non ARK", 40}, {"RB Positive test", 22}}},
        {326, {{"ARK possible R+E or R+S:", 8},
               {"ARK test OK (R+E or R+S) & RBCmax up/down:", 4}, {"RB Negative test", 22}}},
        {332, {{"ASE partial test 2 OK: DC & CSize", 6},
               {"ASE global test 3 OK: DC & CSize & RB", 3}, {"|DC| Positive test", 22}}},
        {334, {{"ADE partial test 2 OK: DC & CSize", 6},
               {"ADE global test 3 OK: DC & CSize & RB", 3}, {"|DC| Positive test", 22}}},
        {351, {{"S1&2 : C1 & C2 saturated:", 4}, {"S1 : C1 saturated:", 27},
               {"S2 : C2 saturated:", 22}, {"Smax : Cmax saturated:", 16},
               {"Smin : Cmin saturated:", 8}, {"U1&2 : C1 & C2 unsaturated:", 24},
               {"U1or2 : C1 or C2 unsaturated:", 40}}},
        {354, {{"RB Negative test", 22}, {"RB Positive test", 22}}},
        {365, {{"Cmin-BS  Positive test", 28}}},
        {366, {{"Cmin-BS Negative test", 16}}},
        {101, {}},
        {356, {}},
    };
    for (const auto& [icmd, want] : pages) EXPECT_EQ(draw(icmd), want) << icmd;
    // The frame as the console shows it, and the work column left by the
    // last rule of the page (366: Cmin below the gauge band fails TBS).
    draw(321);
    const int k = find(" Cmin><G:");
    EXPECT_EQ(lines(k - 1, 5), (lines_t{DASH, " Cmin><G:", " Number of   tested data =      44",
                                        " Number of retained data =      32", DASH}));
    draw(366);
    EXPECT_EQ(std::vector<int>(w.IWD1.col(IWD_WORK), w.IWD1.col(IWD_WORK) + 20),
              (std::vector<int>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1}));
    EXPECT_EQ(w.RWD1(1, JWORK11), 101.f);  // the depths of the 16 rows plotted
    EXPECT_EQ(w.RWD1(16, JWORK11), 116.f);

    // Without RB the tests that need it are silently left out.
    EXPECT_EQ(draw(321, false), (counts_t{{"Cmin><G:", 32}, {"|DC| Negative test", 22}}));
    EXPECT_EQ(draw(325, false), (counts_t{{"ARK < 0 test R+R,R+G,G+x,E+x,S+x:", 36}}));
    // No global test, so no table either (its dialogue would find no answers).
    EXPECT_EQ(draw(333, false), (counts_t{{"ASE partial test 2 OK: DC & CSize", 6},
                                          {"|DC| Positive test", 22}}));
    EXPECT_EQ(find(" EXTRACTION CRITERIA"), -1);
}

TEST_F(ShapePages, NineDcLevelsFromAQuarterToFourTimesCdiff) {
    // The fifth level is cdiff but for rounding: 2.8999998 in 4-byte reals.
    EXPECT_EQ(draw(350),
              (counts_t{{"|DC| >       0.725", 44}, {"|DC| >       1.025", 41},
                        {"|DC| >       1.450", 41}, {"|DC| >       2.051", 41},
                        {"|DC| >       2.900", 41}, {"|DC| >       4.101", 38},
                        {"|DC| >       5.800", 35}, {"|DC| >       8.202", 32},
                        {"|DC| >      11.600", 27}}));
    // With cdiff 0 every level keeps every depth, NaN differences too.
    wellpara.cdiff = 0.f;
    for (const auto& [message, kept] : draw(350)) EXPECT_EQ(kept, 44) << message;
    EXPECT_EQ(count(" |DC| >       0.000"), 9);
}

// The sample well through the log menu, as the user meets it.
struct ShapeTables : Borehole {
    // The depths of an extracted table: the first value of each line after
    // the title and the names.
    static lines_t depths(const std::string& name, const std::string& title) {
        std::ifstream in(name);
        lines_t v;
        bool rows = false;
        for (std::string l; std::getline(in, l);) {
            if (rows && !l.starts_with(" '")) v.push_back(l.substr(0, 16));
            rows = rows || l == " '" + title + "'";
        }
        return v;
    }
};

TEST_F(ShapeTables, TheExtractedTablesHoldTheGlobalTestAndEveryPageRenders) {
    read("210", 0.f, 4000.f);
    type({"321", "0", "3", ""});
    for (const char* icmd : {"322", "323", "324", "325", "326", "332", "334", "350", "351",
                             "354", "365", "366"})
        type({icmd, ""});
    // 333 and 335: the page, the file name, then the writer's menu.
    type({"333", "", "", "90", "335", "", "", "90", "20", "", "99"});
    run([] { logplot2(0); });
    EXPECT_EQ(count(" EXTRACTION CRITERIA"), 2);
    // The breakouts of the sample well, samples 601-1200, 4201-4800, 6201-6800.
    const welldat_t& w = welldat;
    lines_t want;
    for (int i = 1; i <= w.ndatwd; ++i)
        if ((i > 600 && i <= 1200) || (i > 4200 && i <= 4800) || (i > 6200 && i <= 6800))
            want.push_back(formatf("(1x,f15.4)", w.RWD1(i, 1)));
    EXPECT_EQ(depths("well210.txt_extr_ase.txt", "well210.txt_extracted_ASE"), want);
    // 335 came last, so the work column still holds its global test.
    want.clear();
    for (int i = 1; i <= w.ndatwd; ++i)
        if (w.IWD1(i, IWD_WORK) == 1) want.push_back(formatf("(1x,f15.4)", w.RWD1(i, 1)));
    EXPECT_EQ(want.size(), 399u);
    EXPECT_EQ(depths("well210.txt_extr_ade.txt", "well210.txt_extracted_ADE"), want);
    EXPECT_GS_RENDERS("log.ps");
}

}  // namespace
