// The shape classes and the picked intervals: the count frames of each
// class page on hand-made rows, the coloured track, and the sample well
// with its pick files through the log menu.
#include <gtest/gtest.h>

#include <map>

#include "borehole/tracks.h"
#include "borehole_fixtures.h"
#include "plot/attributes.h"

namespace {

using counts_t = std::vector<std::pair<std::string, int>>;

// The class names and retained counts of every count frame on the screen.
counts_t classcounts(const lines_t& screen) {
    counts_t c;
    for (std::size_t k = 1; k + 4 < screen.size(); ++k)
        if (screen[k - 1] == DASH && screen[k + 2].starts_with(" Number of   tested"))
            c.emplace_back(screen[k].substr(1, screen[k].find_last_not_of(' ')),
                           std::stoi(screen[k + 3].substr(27)));
    return c;
}
int total(const counts_t& c) {
    int n = 0;
    for (const auto& [name, kept] : c) n += kept;
    return n;
}

struct ClassPages : ShapeRows {
    counts_t draw(int icmd) {
        clear();
        if (icmd == 355 || icmd == 361) log_azcm_11cdcat_plot2(IWD_SIZE, 1, n, n, icmd);
        log_azcm_8hgcat_plot(IWD_WORK, IWD_SIZE, IWD_DC, IWD_RB, 1, n, n, icmd);
        log_azcm_7hgcat_plot(IWD_WORK, IWD_SIZE, IWD_DC, IWD_RB, 1, n, n, icmd);
        return classcounts(screen());
    }
};

TEST_F(ClassPages, EachPageCountsTheDepthsOfItsClasses) {
    const counts_t cat7 = {{"R", 8}, {"G", 6}, {"WO", 10}, {"AK", 10}, {"AR", 4}, {"ASE", 3},
                           {"ADE", 3}};
    std::map<int, counts_t> pages = {
        {355, {{"R+R", 4}, {"R+G", 4}, {"R+E", 4}, {"R+S", 4}, {"G+G", 4}, {"G+E", 4},
               {"G+S", 4}, {"E+E", 4}, {"E+S", 4}, {"S+E", 4}, {"S+S", 4}}},
        {356, {{"R", 8}, {"ARK", 4}, {"AR", 4}, {"G", 6}, {"ASE", 3}, {"AEK", 6}, {"ADE", 3},
               {"WO", 10}}},
        {357, {{"ASE", 3}, {"ADE", 3}}}, {358, cat7}, {360, {{"ASE", 3}, {"ADE", 3}}},
        // The saturated codes, then the 7 categories of the coloured track.
        {361, {{"R+S", 4}, {"G+S", 4}, {"E+S", 4}, {"S+E", 4}, {"S+S", 4}}}, {354, {}},
    };
    pages[361].insert(pages[361].end(), cat7.begin(), cat7.end());
    for (const auto& [icmd, want] : pages) EXPECT_EQ(draw(icmd), want) << icmd;
    // S+S with DC failed (row 41) is WO in both schemes.
    draw(356);
    EXPECT_EQ(w.IWD1(41, IWD_WORK), 80);

    // One frame as the console shows it: names at their full length.
    draw(358);
    EXPECT_EQ(lines(find(" AK "), 5),
              (lines_t{" AK ", " Anisotropic deformation & Cmax // Top Hole   ",
                       " Number of   tested data =      44",
                       " Number of retained data =      10", DASH}));
    EXPECT_EQ(w.IWD1(41, IWD_WORK), 30);
}

TEST_F(ClassPages, TheColouredTrackHasItsLegendAndPutsTheAttributesBack) {
    // The attributes in force before come back, whatever the classes set.
    int colour = 2, symbol = 7, align = -1, nsub = 0;
    float size = 0.2f;
    slinecolor(colour, 1), ssymboltype(symbol, 1), ssymbolsize(size, 1), stextalign(align, 1);
    draw(362);
    slinecolor(colour, 3), ssymboltype(symbol, 3), ssymbolsize(size, 3), stextalign(align, 3);
    ssubplot(nsub, 3);
    EXPECT_EQ((std::vector<float>{float(colour), float(symbol), size, float(align), float(nsub)}),
              (std::vector<float>{2.f, 7.f, 0.2f, -1.f, 37.f}));
    // A class with no point keeps its console lines.
    for (int i = 1; i <= n; ++i) w.IWD1(i, IWD_DC) = 0;
    EXPECT_EQ(draw(357), (counts_t{{"ASE", 0}, {"ADE", 0}}));
    type({""});
    plend();
    const std::string ps = text("rows.ps");
    for (const char* name : {"(R  ) show", "(G  ) show", "(WO ) show", "(AK ) show",
                             "(AR ) show", "(ASE) show", "(ADE) show"})
        EXPECT_NE(ps.find(name), std::string::npos) << name;
    EXPECT_GS_RENDERS("rows.ps");
}

// The sample well and its pick files through the log menu.
struct PickPages : Borehole {
    void SetUp() override {
        Borehole::SetUp();
        read("210", 0.f, 3220.f);
        sample("well210_BO.txt");
        sample("well210_POW.txt");
    }
    void type(const lines_t& keys) {
        for (const std::string& k : keys) con.type(k);
    }
    void type(std::initializer_list<std::string> keys) { WellDialogue::type(keys); }
    // The answers of one pick file read through.
    static lines_t pick(const std::string& file) { return {file, "99", "99", "1000"}; }
    void menu(const std::vector<lines_t>& pages) {
        type({"355", "0", "3", ""});
        for (const lines_t& page : pages) type(page);
        type({"20", "", "99"});
        run([] { logplot2(0); });
    }
};

TEST_F(PickPages, TheSampleWellSortsEveryDepthOnceAndThePicksStandBesideTheClasses) {
    auto picks = [](const std::string& cmd) {
        lines_t keys = pick("well210_BO.txt"), pow = pick("well210_POW.txt");
        keys.insert(keys.begin(), {cmd, ""});
        keys.insert(keys.end(), pow.begin(), pow.end());
        return keys;
    };
    menu({{"356", ""}, {"357", ""}, {"358", ""}, {"359", ""}, picks("360"), {"361", ""},
          picks("362")});
    // The count frames of pages 355 to 362, in order.
    const counts_t all = classcounts(screen());
    ASSERT_EQ(all.size(), 51u);
    std::map<int, counts_t> got;
    auto from = all.begin();
    for (const auto& [p, frames] : std::map<int, int>{
             {355, 11}, {356, 8}, {357, 2}, {358, 7}, {359, 2}, {360, 2}, {361, 12}, {362, 7}}) {
        got[p] = counts_t(from, from + frames);
        from += frames;
    }
    for (int p : {355, 356, 358}) EXPECT_EQ(total(got[p]), 8000) << p;
    // WO: both calipers saturated (300) and the washout below the DC
    // threshold (383), in both schemes.
    EXPECT_EQ(got[358][2], (std::pair<std::string, int>{"WO", 683}));
    EXPECT_EQ(got[356][7], (std::pair<std::string, int>{"WO", 683}));
    // The three breakouts are ASE in both schemes.
    EXPECT_EQ(got[357], (counts_t{{"ASE", 1800}, {"ADE", got[356][6].second}}));
    EXPECT_EQ(got[359][0], (std::pair<std::string, int>{"ASE", 1800}));
    // 361: the saturated codes (C1 alone, then both) and the categories.
    EXPECT_EQ(total(counts_t(got[361].begin(), got[361].begin() + 5)), 600);
    EXPECT_EQ(got[361][4], (std::pair<std::string, int>{"S+S", 300}));
    EXPECT_EQ(counts_t(got[362].begin(), got[362].end()),
              counts_t(got[361].begin() + 5, got[361].end()));

    // The picks of 360, in the well's depth range.
    const int t = find(" Selected BO");
    ASSERT_GT(t, 0);
    EXPECT_EQ(lines(t, 12),
              (lines_t{" Selected BO", " input file name = well210_BO.txt",
                       " Title = Breakout picks of synthetic well A",
                       " Total Number of data   =    180", " Number of data to plot =    180",
                       DASH, " |               |index|       depth|",
                       " |Interval top   |     |       0.000|",
                       " |Interval bottom|     |    3220.000|",
                       " |     First data|    1|    2092.050|",
                       " |      Last data|  180|    3035.406|", DASH}));
    EXPECT_EQ(count(" Selected POW"), 2);
    EXPECT_GS_RENDERS("log.ps");
}

TEST_F(PickPages, AFailedFileSkipsItsTrackOnlyAndAChangedFileShowsOnTheNextPage) {
    // BO left unread; the POW picks all above the top of the selection.
    wellpara.ztop = 2400.f;
    std::ofstream("mine.txt") << " 'Two picks'\n 'z' 'b' 'c' 'd' 'e' 'f' 'g' 'az'\n"
                              << " 2500 0 0 0 0 0 0 10\n 2600 0 0 0 0 0 0 20\n";
    type({"362", "0", "3", "", "well210_BO.txt", "99", "99", "99"});
    type(pick("well210_POW.txt"));
    type({"362", ""});
    for (const char* f : {"mine.txt", "mine.txt"}) type(pick(f));
    type({"99"});
    run([] { logplot2(0); });
    std::ofstream("mine.txt", std::ios::app) << " 2700 0 0 0 0 0 0 30\n";
    type({"362", ""});
    for (const char* f : {"mine.txt", "mine.txt"}) type(pick(f));
    type({"20", "", "99"});
    run([] { logplot2(0); });

    // The unread file: the reader's exit, then the warning, and no box.
    const int k = find(" EXITING WITHOUT READING DATA FILE");
    ASSERT_GT(k, 0);
    lines_t want = warning_head_lines("log_azcm_sele");
    want.insert(want.end(), {" PROBLEM IN INPUT FILE", " INPUT FILE HAS NOT BEEN READ",
                             " ====> SKIPPING PLOT"});
    EXPECT_EQ(lines(find(want[0], k), int(want.size())), want);
    const int r = find(" DATA OUT OF RANGE", k);
    EXPECT_EQ(lines(r, 2), (lines_t{" DATA OUT OF RANGE", " => SKIPPING PLOT"}));
    EXPECT_EQ(count(" Selected POW"), 2);
    // The other pages read the file anew each time: two picks, then three.
    EXPECT_EQ(count(" Total Number of data   =      2"), 2);
    EXPECT_EQ(count(" Total Number of data   =      3"), 2);
    // Page 1 has neither box; pages 2 and 3 have both.
    const std::string ps = text("log.ps");
    const auto page2 = ps.find("\n%%Page:", ps.find("\n%%Page:") + 1);
    EXPECT_EQ(ps.substr(0, page2).find("(BO)"), std::string::npos);
    EXPECT_EQ(ps.substr(0, page2).find("(POW)"), std::string::npos);
    EXPECT_NE(ps.find("(POW)", page2), std::string::npos);
    EXPECT_GS_RENDERS("log.ps");
}

}  // namespace
