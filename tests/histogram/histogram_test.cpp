// The histogram store: counting into bins against a direct count, shared
// X axes, the setters in their six modes and their menus, the listing.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "dialogue.h"
#include "histogram/blkhst8.h"
#include "plot/attributes.h"
#include "shell/fake_platform.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string RULE = " -------------------------------------------";

struct store : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        iocom.lpause = false;
        use_fake_platform();
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        splotattributes(5);
        int isw = 3, n = 2;
        shstall(isw, 5);
        shstnb(n, 1);
        clear();
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        Dialogue::TearDown();
    }
    void bins(int h, float lo, float hi, int nb, int nxtic = 1) {
        int nxlab = 1;
        fstr<25> lab = "X";
        shstxbin2(lo, hi, nb, nxtic, nxlab, lab, h, 1);
    }
    std::vector<int> counts(int h) const {
        const int nb = blkhst8.NBINHST0(blkhst8.IXHST0(h));
        std::vector<int> v;
        for (int j = 1; j <= nb; ++j) v.push_back(blkhst8.NYCTHST0(j, h));
        return v;
    }
};

TEST_F(store, CountsEqualADirectCountWithEdgesAndValuesOutside) {
    // Bounds on a binary grid, so the direct count needs no rounding rule.
    int h = 1;
    bins(h, 0.0f, 10.0f, 20);
    std::mt19937 gen(7);
    std::uniform_int_distribution<int> quarter(-4, 44);  // -1 .. 11 by 0.25
    std::vector<float> x(500);
    for (auto& v : x) v = 0.25f * float(quarter(gen));
    std::vector<int> want(20, 0);
    int rejected = 0;
    float sum = 0.0f;
    for (float v : x) {
        if (v < 0.0f || v > 10.0f) {
            ++rejected;
        } else {
            ++want[v == 10.0f ? 19 : std::size_t(v * 2.0f)];
            sum += v;
        }
    }
    hstclear(h);
    hstadd(x.data(), int(x.size()), h);
    EXPECT_EQ(counts(h), want);
    EXPECT_EQ(blkhst8.NREJHST0(h), rejected);
    EXPECT_EQ(blkhst8.NTOTHST0(h), int(x.size()) - rejected);
    EXPECT_FLOAT_EQ(blkhst8.SUMHST0(h), sum);
    EXPECT_EQ(count(" ==> Value is discarded"), rejected);
}

TEST_F(store, ValuesNearTheEndsFallByTheTolerances) {
    struct row { float v; int bin; const char* report; };  // bin 0: rejected
    const row rows[] = {
        {5.0f, 2, nullptr},     {0.0f, 1, nullptr},      {10.0f, 2, nullptr},
        {4.9999f, 1, nullptr},  {-0.000001f, 1, nullptr},
        {-0.000005f, 1, " ==> Value added to first bin"}, {-0.00002f, 0, " ==> Value is discarded"},
        {10.000001f, 2, nullptr}, {10.000005f, 2, " ==> Value added to last bin"},
        {10.00002f, 0, " ==> Value is discarded"},
    };
    int h = 2;
    bins(h, 0.0f, 10.0f, 2);
    for (const row& r : rows) {
        SCOPED_TRACE(r.v);
        hstclear(h);
        clear();
        hstadd(&r.v, 1, h);
        std::vector<int> want(2, 0);
        if (r.bin > 0) want[std::size_t(r.bin - 1)] = 1;
        EXPECT_EQ(counts(h), want);
        EXPECT_EQ(blkhst8.SUMHST0(h), r.bin > 0 ? r.v : 0.0f);
        if (r.report)
            EXPECT_GT(find(r.report), 0);
        else
            EXPECT_TRUE(screen().empty());
    }
    // The whole report of a rejected value.
    EXPECT_EQ(lines(9, 6), (lines_t{" VALUE ABOVE HIGHEST HISTOGRAM BIN", " Histogram number =   2",
                                    " X axis label     = X                        ", " highest bin value =       10.000",
                                    " Value            =       10.000", " ==> Value is discarded"}));
    EXPECT_EQ(blkhst8.ITYPEHST0(h), 1);
}

TEST_F(store, HistogramsOnOneAxisRebinTogetherAndFinishWithTheirTotals) {
    int h1 = 1, h2 = 2, ix = 1;
    bins(h1, 0.0f, 360.0f, 72, 6);
    shstxind(ix, h2, 1);
    bins(h2, 0.0f, 180.0f, 36, 6);  // through h2, on h1's axis
    float x0, x1, y0, y1;
    ghstsize(x0, x1, y0, y1, h1);
    EXPECT_EQ((std::vector<float>{x0, x1}), (std::vector<float>{0.0f, 180.0f}));
    EXPECT_EQ(blkhst8.NBINHST0(1), 36);
    const float a[] = {1, 2, 3, 91, 179.5f};
    hstclear(h1);
    hstadd(a, 5, h1);
    hstcompend(h1);
    EXPECT_EQ(blkhst8.MODEHST0(h1), 3);
    EXPECT_EQ(blkhst8.MINIHST0(h1), 0);
    EXPECT_EQ(blkhst8.YMAXHST0(h1), 3.0f);  // method 1 of the reset table
    EXPECT_FLOAT_EQ(blkhst8.AVGHST0(h1), 276.5f / 5.0f);
    EXPECT_EQ(blkhst8.LABELHST0(6, h1).trimmed(), "N = 5");
    EXPECT_EQ(blkhst8.ITYPEHST0(h1), 2);
    // Nothing retained: the frame, average 0 and an axis up to 0.
    hstclear(h2);
    hstcompend(h2);
    EXPECT_GT(find(" nb of retained data    =   0"), 0);
    EXPECT_EQ(blkhst8.YMAXHST0(h2), 0.0f);
    EXPECT_EQ(blkhst8.LABELHST0(6, h2).trimmed(), "N = 0");
    // A number outside the set changes nothing.
    int bad = 3;
    clear();
    hstclear(bad);
    EXPECT_EQ(lines(9, 5), (lines_t{" maximum number of histograms =  12",
                                    " current number of histograms =   2", " histogram nb =   3",
                                    " nb is outside [   1 ,   2 ]", " ==> EXITING WITHOUT ACTION"}));
}

// Each setter in the six modes: even ones show a menu, odd ones are silent,
// 4 and 5 reset, 2 and 3 read what is stored, 0 and 1 take the caller's.
TEST_F(store, SettersInTheirSixModes) {
    struct setter { const char* name; int stored, reset, given; void (*call)(int&, int&, const int&); };
    const setter ss[] = {
        {"plot type", 4, 1, 7, shstplotype},
        {"plot style", 0, 11, 12, shstplotstyle},
        {"y extrema", 3, 0, 2, shstyextype},  // its reset is 0, not the store's 1
        {"fill colour", 5, 8, 2, shstfillcolor},
    };
    for (const setter& s : ss) {
        for (int mode = 0; mode <= 5; ++mode) {
            SCOPED_TRACE(std::string(s.name) + " mode " + std::to_string(mode));
            int h = 1, v = s.stored;
            s.call(v, h, 1);
            v = s.given;
            clear();
            if (mode % 2 == 0) type({"99"});
            s.call(v, h, mode);
            const int want = mode <= 1 ? s.given : mode <= 3 ? s.stored : s.reset;
            EXPECT_EQ(v, want);
            EXPECT_EQ(find(" Enter your choice") >= 0, mode % 2 == 0);
            EXPECT_TRUE(con.keys.empty());
        }
    }
    int fill = 0;
    sfillcolor(fill, 3);
    EXPECT_EQ(fill, 8);  // the library's own colour is put back
}

TEST_F(store, BadValuesAreReplacedAndSomeSilentCallsOpenTheMenu) {
    // Silent calls that open the menu after the error.
    int n = 13;
    type({"99"});
    shstnb(n, 1);
    EXPECT_EQ(blkhst8.NHST0, 12);
    EXPECT_GT(find(" ==> RESET nb of histogram to max=  12"), 0);
    EXPECT_GT(find(" Setting number of histograms"), 0);
    int h = 1, ix = 13;
    type({"99"});
    clear();
    shstxind(ix, h, 1);
    EXPECT_EQ(ix, 1);
    EXPECT_GT(find(" X axis nb    =   1"), 0);
    EXPECT_GT(find(" X axis index setting"), 0);
    // A label number out of range runs as mode 2 on label 6.
    fstr<25> text = "ignored";
    int on = 1, k = 9;
    type({"99"});
    clear();
    shstlabel(text, on, k, h, 1);
    EXPECT_EQ(k, 6);
    EXPECT_EQ(text.trimmed(), "UR");
    EXPECT_GT(find(" HISTOGRAM LABELS SETTING"), 0);
    // Silent bad type and style: the warning, the reset value, no menu.
    int t = 12, s = 5;
    clear();
    shstplotype(t, h, 1);
    shstplotstyle(s, h, 1);
    EXPECT_EQ((std::vector<int>{t, s}), (std::vector<int>{1, 11}));
    EXPECT_EQ(find(" Enter your choice"), -1);
    EXPECT_GT(find(" [   0 ,   1 ]U[  10 ,  12 ]"), 0);
    // A number past the set grows it through the count dialogue.
    h = 14;
    float y0 = 1, y1 = 5;
    type({"99"});
    clear();
    shstyext(y0, y1, h, 1);
    EXPECT_EQ(h, 12);
    EXPECT_EQ(blkhst8.YMAXHST0(12), 5.0f);
}

TEST_F(store, BinSettingDialogueAndItsWidthCommand) {
    int h = 1, nbin = 0, nxtic = 0, nxlab = 0;
    float lo = 0, hi = 0;
    fstr<25> lab;
    // 360 by a width of 7: 51 bins; then fewer bins than bins per tic.
    type({"200", "0", "300", "360", "500", "7", "450", "40", "400", "30", "99"});
    shstxbin2(lo, hi, nbin, nxtic, nxlab, lab, h, 4);
    EXPECT_GT(find(" adjusted interval width   7.0588    "), 0);
    EXPECT_GT(find(" nb of bins .....................400     51"), 0);
    EXPECT_GT(find(" ==> RESET nb of intervals within tics =  30"), 0);
    EXPECT_EQ((std::vector<int>{nbin, nxtic}), (std::vector<int>{30, 30}));
    EXPECT_FLOAT_EQ(blkhst8.XBNDHST0(2, 1), 12.0f);
    EXPECT_EQ(blkhst8.XBNDHST0(31, 1), 360.0f);
    // The last menu, line by line.
    int last = 0;
    for (int k = 0; k >= 0; k = find(" X axis bin setting", k + 1)) last = k;
    EXPECT_EQ(lines(last, 14), (lines_t{" X axis bin setting", RULE, " Histogram nb            :   1",
                                        " Current nb of histograms:   2", " Maximum nb of histograms:  12",
                                        " x-label ........................120 X-undefined              ",
                                        " value mini .....................200   0.0000    ",
                                        " value maxi .....................300   360.00    ",
                                        " nb of bins .....................400     30",
                                        " bins within major tics .........450     30",
                                        " major intervals between labels .460      1",
                                        " interval size ..................500   12.000    ",
                                        " EXIT ............................99", " " + std::string(50, '@')}));
    // A width above the range leaves no bin: the largest number, not one.
    type({"500", "1000", "99"});
    shstxbin2(lo, hi, nbin, nxtic, nxlab, lab, h, 2);
    EXPECT_EQ(nbin, 180);
    // Equal ends: the error whose words say "xmin > xmax", and the reset.
    lo = hi = 5;
    type({"99"});
    clear();
    shstxbin2(lo, hi, nbin, nxtic, nxlab, lab, h, 1);
    EXPECT_GT(find(" xmin > xmax"), 0);
    EXPECT_EQ((std::vector<float>{lo, hi}), (std::vector<float>{0.0f, 10.0f}));
}

TEST_F(store, OneHistogramMenuLocksLinesByTheSwitch) {
    int h = 2, isw = 1;
    type({"300", "99"});
    shst1(h, isw, 2);
    EXPECT_EQ(find(" Plot type setting"), -1);  // 300 needs isw 2
    const int k = find(" Histogram settings");
    ASSERT_GT(k, 0);
    EXPECT_EQ(lines(k + 2, 46),
              (lines_t{" Maximum nb of histograms :     12", " Current nb of histograms :      2",
                       " Histogram nb             :      2", " Histogram type           :     -1",
                       " Mode                     :      0", " Min                      :      0",
                       " Number of retained data  :      0", " Number of rejected data  :      0", RULE,
                       " X axis and bins", RULE, " Max nb of x - axes       :     12",
                       " Max nb of bins           :    180", " X axis nb .....................:      2",
                       " x-label .....................110 X                        ",
                       " Mini ........................110   0.0000    ", " Maxi ........................110   10.000    ",
                       " nb of bins ..................110      1", " nb of bins within major tics 110      1",
                       " major interv. between labels 110      1", RULE, " Y axis", RULE,
                       " y extrema type...............200      1",
                       " y-label .....................210 N                        ",
                       " Max .........................220   10.000    ", " Min .........................220   0.0000    ",
                       RULE, " Plot", RULE, " Type ..........................:      1",
                       " Style .......................310     11", " Fill color ..................320      8", RULE,
                       " |nb|on|        label        .com", " | 1| 0|X                    .331",
                       " | 2| 0|Y                    .332", " | 3| 0|-X                   .333",
                       " | 4| 0|-Y                   .334", " | 5| 1|X                    .335",
                       " | 6| 0|UR                   .336", " | 7| 0|UL                   .337",
                       " | 8| 1|N                    .338", RULE, " EXIT .........................99",
                       " " + std::string(50, '@')}));
    // The read-only list of all histograms.
    isw = 0;
    type({"1", "99", "99"});
    clear();
    shstall(isw, 2);
    EXPECT_EQ(lines(3, 10), (lines_t{RULE, "       Global Histogram set up",
                                     RULE, " nb of histograms to use .......:   2",
                                     RULE, " |histo nb|    X label            |",
                                     " |    1   |X                      |", " |    2   |X                      |",
                                     RULE, " EXIT .........................99"}));
    EXPECT_GT(find(" |nb|on|        label            "), 0);
    EXPECT_GT(find(" Type ..........................:      1"), 0);
}

TEST_F(store, ListingHasTabSeparatedRowsThatAddUpToTheTotal) {
    int h = 1;
    bins(h, 0.0f, 360.0f, 8, 2);
    const float a[] = {10, 20, 100, 359, 360, 200};
    hstclear(h);
    hstadd(a, 6, h);
    hstcompend(h);
    clear();
    int f = 1, l = 1;
    hstwrite(6, f, l, 1);
    ASSERT_GT(find(" Maximum number of Bins       = 180"), 0);
    const int head = find("       Xmin\t    < Xmax\t       N");
    ASSERT_GT(head, 0);
    int total = 0;
    for (int j = 1; j <= 8; ++j) {
        std::istringstream row(screen()[std::size_t(head + j)]);
        std::string lo, hi, n;
        std::getline(row, lo, '\t');
        std::getline(row, hi, '\t');
        std::getline(row, n, '\t');
        EXPECT_FLOAT_EQ(std::stof(hi) - std::stof(lo), 45.0f);
        total += std::stoi(n);
    }
    EXPECT_EQ(screen()[std::size_t(head + 8)], "    315.000\t   360.000\t       2");
    EXPECT_EQ(total, 6);
    EXPECT_GT(find(" Number of data     =       6"), 0);
    EXPECT_EQ(screen().back(), " ==============================");
    // No histogram: the first number fails to 1, the last to 0, no block.
    blkhst8.NHST0 = 0;
    clear();
    hstwrite(6, f, l, 1);
    EXPECT_EQ((std::vector<int>{f, l}), (std::vector<int>{1, 0}));
    EXPECT_EQ(count(" =============================="), 3);
    EXPECT_EQ(find(" Histogram number   =   1"), -1);
}

TEST_F(store, ListingMenuChoosesTheRangeAndWritesOnce) {
    int f = 1, l = 1;
    type({"11", "2", "12", "2", "", ""});  // return writes, then return leaves
    hstwrite(6, f, l, 0);
    const int m = find(" READY TO WRITE HISTOGRAMS TO FILE");
    ASSERT_GT(m, 0);
    EXPECT_EQ(lines(m - 1, 8), (lines_t{RULE, " READY TO WRITE HISTOGRAMS TO FILE",
                                        " Current histogram set up ..10", " initial histogram .........11      1",
                                        " final   histogram .........12      1", RULE,
                                        " WRITE ....................100", " EXIT ......................99"}));
    EXPECT_EQ((std::vector<int>{f, l}), (std::vector<int>{2, 2}));
    EXPECT_EQ(count(" Histogram number   =   2"), 1);
    EXPECT_EQ(count(" Histogram number   =   1"), 0);
    // The default is 100 until the list is written, then 99.
    EXPECT_EQ(count(" Default =          100"), 3);
    EXPECT_EQ(count(" Default =           99"), 1);
}

}  // namespace
