// The statistics menu as the user meets it: without data, its menu, the
// entry computations, the histograms of a page against a direct count, the
// AzCmax statistics on the sample well's breakout, the pages in
// Ghostscript, and its place in the main program.
#include <gtest/gtest.h>

#include <cmath>

#include "borehole/statplot.h"
#include "borehole_fixtures.h"
#include "histogram/blkhst8.h"
#include "shell/main_run.h"

namespace {

struct StatMenu : Borehole {
    // The sample well as the reader offers it (200, without AzCmax).
    void read(float ztop, float zbot) { Borehole::read("200", ztop, zbot); }
    void menu(std::initializer_list<std::string> keys) {
        type(keys);
        run([] { statplot(0); });
    }
    double value(const std::string& label, int nth) const {
        for (const auto& l : screen())
            if (l.rfind(" " + label, 0) == 0 && --nth == 0) return std::stod(l.substr(label.size() + 1));
        ADD_FAILURE() << "no line " << label;
        return 0;
    }
    static std::string ps() { return text("statplot.1.ps"); }
};

TEST_F(StatMenu, WithoutDataTheFrameThenTheWholeMenuAndNothingDrawn) {
    menu({"100", "0", "3", "", "99"});
    lines_t expect = error_head_lines("  statplot   ");
    expect.insert(expect.end(), {" NO DATA !", " ===> NEED INPUT DATA FIRST", " ===> PLOTTING DISABLED"});
    EXPECT_EQ(lines(0, int(expect.size())), expect);
    const int m = find(" PLOT:");
    ASSERT_GT(m, 0);
    EXPECT_EQ(lines(m - 1, 8), (lines_t{DASH, " PLOT:",
                                        " plot file name : statplot.1.ps                           ",
                                        " open plot file ........................10",
                                        " Landscape(T)/Portrait(F) ..............11 T",
                                        " set plot and axes params ..............13",
                                        " close plot file .......................20",
                                        DASH}));
    const int r = find(" Change hole parameters ................50");
    ASSERT_GT(r, m);
    EXPECT_EQ(lines(r, 21),
              (lines_t{" Change hole parameters ................50", DASH,
                       " LOCAL PARAMETERS:", " z test ................................51 T",
                       DASH, " PLOT:", " HISTOGRAMS:",
                       "  C1,C2,P1Az,RB,Hazi,Devi .............100", "  C1,C2,DC,RBCmax,Hazi,AzCmax .........110",
                       " HISTOGRAMS + ROSES(-R):", "  C1,C2,P1Az-R,RB-R,Hazi-R,Devi-R......200",
                       "  C1,C2,DC,RBCmax-R,Hazi-R,AzCmax-R ...210", "  C1,C2,DC,AzCmax,RBCmax-R,Hazi-R .....211",
                       DASH, " SHOW STATISTICS:", "  AzCmax ..............................400", DASH,
                       " EXIT ..................................99", " " + std::string(50, '@'),
                       " ..........................................", " Enter your choice"}));
    EXPECT_EQ(find(" Number of data =      0"), -1);
    EXPECT_EQ(occurrences(ps(), "lineto"), 0);
    EXPECT_EQ(runinfo3com.levelrt, 1);
}

// Page 110 with the listing on: each histogram's counts equal a direct
// count of the selected depths.
TEST_F(StatMenu, EntryComputationsAndHistogramsAgainstADirectCount) {
    read(2000.f, 2200.f);
    menu({"33", "1", "110", "0", "3", "", "99"});
    EXPECT_EQ(lines(find(" Computing:") - 2, 7),
              (lines_t{DASH, " Total number of data =    8000",
                       " Computing:", "  (1) AzCmax", "  (2) Cmax index", "  (3) DC", "  (4) RBCmax"}));
    EXPECT_EQ(w.IDTYPWD(w.itypwd), 210);
    EXPECT_EQ((lines_t{std::string(w.NAMCOL(w.JCOL(w.jazcmax)).sv()), std::string(w.NAMCOL(10).sv()),
                       std::string(w.NAMCOL(11).trimmed())}),
              (lines_t{"AzCmax[180]_cptd", "DC_cptd         ", "RBCmax[180]_cptd"}));
    // The six listings, in page order: C1, C2, DC, HAZI, AzCmax, RBCmax.
    std::vector<std::vector<int>> listed;
    for (int k = find("       Xmin\t    < Xmax\t       N"); k >= 0;
         k = find("       Xmin\t    < Xmax\t       N", k + 1)) {
        std::vector<int> c;
        for (int j = k + 1; j < int(screen().size()) && screen()[std::size_t(j)].find('\t') != std::string::npos; ++j)
            c.push_back(std::stoi(screen()[std::size_t(j)].substr(screen()[std::size_t(j)].rfind('\t') + 1)));
        listed.push_back(c);
    }
    ASSERT_EQ(listed.size(), 6u);
    const int nsel = int(value("Number of data = ", 1));
    EXPECT_EQ(nsel, 1313);
    int i1 = 1;
    while (w.RWD1(i1, 1) < 2000.f) ++i1;
    auto direct = [&](auto get, float lo, float width, int nb) {
        std::vector<int> c(std::size_t(nb), 0);
        for (int i = i1; i < i1 + nsel; ++i) ++c[std::size_t(int((get(i) - lo) / width))];
        return c;
    };
    auto col = [&](int j) { return [this, j](int i) { return w.RWD1(i, j); }; };
    auto mod = [](float a, float p) { return a - p * std::floor(a / p); };
    EXPECT_EQ(listed[0], direct(col(w.JCOL(w.jc1)), 0, 1, 50));
    EXPECT_EQ(listed[1], direct(col(w.JCOL(w.jc2)), 0, 1, 50));
    EXPECT_EQ(listed[2], direct([&](int i) { return std::abs(w.RWD1(i, 3) - w.RWD1(i, 4)); }, 0, 1, 20));
    EXPECT_EQ(listed[3], direct([&](int i) { return mod(w.RWD1(i, w.JCOL(w.jhazi)), 360); }, 0, 5, 72));
    EXPECT_EQ(listed[4], direct([&](int i) { return mod(w.RWD1(i, w.JCOL(w.jazcmax)), 180); }, 0, 5, 36));
    EXPECT_EQ(listed[5], direct([&](int i) { return mod(w.RWD1(i, 11), 180); }, 0, 5, 36));
    EXPECT_EQ(count(" Number of data     =    1313"), 6);
}

TEST_F(StatMenu, NullValuesAreLeftOutOfTheHistogramsOnceCountedAndNeverPause) {
    read(2000.f, 2200.f);
    int i1 = 1;
    while (w.RWD1(i1, 1) < 2000.f) ++i1;
    w.RWD1(i1 + 5, w.JCOL(w.jc1)) = NAN;
    w.RWD1(i1 + 6, w.JCOL(w.jc1)) = INFINITY;
    w.RWD1(i1 + 7, w.JCOL(w.jhazi)) = -INFINITY;
    iocom.lpause = true;  // a frame would ask for a return the script doesn't give
    menu({"110", "", "", "99"});
    // C1 and DC lose two values each, HAZI one; the other histograms none.
    EXPECT_EQ(count(" Number of data left out (not finite) =       2"), 2);
    EXPECT_EQ(count(" Number of data left out (not finite) =       1"), 1);
    EXPECT_EQ(find(" ===> HIT RETURN TO CONTINUE"), -1);
    EXPECT_EQ(ps().find("NaN"), std::string::npos);
}

// The breakout at 2091 to 2183 m has its long axis at 65 degrees.
TEST_F(StatMenu, AzCmaxStatisticsFindTheBreakoutAxis) {
    read(2092.f, 2182.f);
    menu({"400", "51", "0", "400", "99"});
    EXPECT_EQ(lines(find(" AzCmax statistics") - 7, 7),
              (lines_t{DASH, " Depth init = 2092.05 final = 2181.97 inc = 0.15",
                       " WITH DEPTH SELECTION", " Number of data =     591", " Command        =     400",
                       DASH, DASH}));
    // The stat1d0 report, then K = 1 and K = 2, for each of the two runs.
    EXPECT_EQ(count(" STANDARD STATISTICS:"), 2);
    EXPECT_EQ(count(" CIRCULAR STATISTICS [360/K]"), 4);
    EXPECT_NEAR(value("Median Q2                     =", 1), 65.0, 1.0);
    EXPECT_NEAR(value("Mean angle (Am1) (degrees)    =", 1), 65.0, 1.0);
    EXPECT_GT(value("Mean module (R)               =", 2), 0.99);
    // The whole well: the rotating tool spreads the axis round.
    EXPECT_EQ(value("Number of data                =", 4), 8000);
    EXPECT_LT(value("Mean module (R)               =", 4), 0.5);
    EXPECT_GT(find(" WITHOUT DEPTH SELECTION"), 0);
}

TEST_F(StatMenu, EveryPageCarriesItsHeadAndRendersInGhostscript) {
    read(2092.f, 2182.f);
    menu({"100", "0", "3", "", "110", "", "200", "", "210", "", "211", "", "50", "101", "0", "102", "10", "99",
          "200", "", "20", "", "99"});
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "%%Page:"), 6);
    EXPECT_EQ(occurrences(file, "(Depth init = 2092.05 final = 2181.97 inc = 0.15)"), 5);
    for (const char* c : {"Command = 100)", "Command = 110)", "Command = 200)", "Command = 210)", "Command = 211)"})
        EXPECT_EQ(occurrences(file, c), 1) << c;
    EXPECT_EQ(occurrences(file, "(N = 591)"), 6 * 5);
    EXPECT_EQ(occurrences(file, "(North)"), 2 + 2 + 1);  // P1Az, HAZI, AzCmax roses
    EXPECT_EQ(count(" DATA OUT OF RANGE"), 1);
    EXPECT_EQ(count(" => SKIPPING PROCCESS + PLOT"), 1);
    EXPECT_GS_RENDERS("statplot.1.ps");
}

TEST_F(MainMenu, StartUpOrderAndCommand130) {
    type({"130", "", "32", "99", "99", "9999"});  // the no-data frame pauses
    run();
    std::vector<int> at;
    for (const char* s : {" INITIALIZING PLOT SCALING, ATTRIBUTES & AXES", " INITIALIZING TARNOLIX HISTOGRAMS",
                          " INITIALIZING BOREHOLE PARAMETERS", " INITIALIZING LOG PLOT PARAMETERS",
                          " INITIALIZING STAT PLOT PARAMETERS", " INITIALIZING WELL DATA TYPE"})
        at.push_back(find(s));
    for (std::size_t k = 0; k < at.size(); ++k) EXPECT_GT(at[k], k > 0 ? at[k - 1] : 0) << k;
    EXPECT_EQ(blkhst8.NHST0, 5);
    // The five histograms of every page, as the store's list shows them.
    const int t = find(" |histo nb|        X label        |command|");
    ASSERT_GT(t, 0);
    EXPECT_EQ(lines(t + 1, 5), (lines_t{" |    1   |CALIPER (cm)           |    1  |", " |    2   |DC                     |    2  |",
                                        " |    3   |Angle[360]             |    3  |", " |    4   |Angle[180]             |    4  |",
                                        " |    5   |Devi[90]               |    5  |"}));
    EXPECT_GT(find(" @ subroutine statplot              v8.1 2019-07-29", at.back()), at.back());
    EXPECT_GT(find(" NO DATA !", at.back()), at.back());
}

}  // namespace
