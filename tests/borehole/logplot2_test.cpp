// The log analysis menu as the user meets it: entering with and without
// data, the parameter commands, the plot pages with their head, and when
// the computations run again.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "borehole_fixtures.h"
#include "plot/plot_session.h"

namespace {

struct LogMenu : Borehole {
    // The sample well as the reader offers it (200, without AzCmax), or as
    // 210; depths selected whole.
    void read(const std::string& id) { Borehole::read(id, 2000.f, 3220.f); }
    void menu(std::initializer_list<std::string> keys) {
        type(keys);
        run([] { logplot2(0); });
    }
    static std::string ps() { return text("log.ps"); }
};

TEST_F(LogMenu, WithoutDataTheFrameSaysSoAndAPlotCommandTakesNoPage) {
    menu({"301", "99"});
    lines_t expect = error_head_lines("  logplot2   ");
    expect.insert(expect.end(), {" NO DATA !", " ===> NEED INPUT DATA FIRST",
                                 " ===> PLOTTING DISABLED"});
    EXPECT_EQ(lines(0, int(expect.size())), expect);
    EXPECT_EQ(find(" COMPUTATIONS"), -1);
    EXPECT_GT(find(" EXIT THIS SUBROUTINE ..................99"), 0);
    EXPECT_EQ(count(" NO DATA !"), 2);
    EXPECT_FALSE(std::filesystem::exists("log.ps"));
    EXPECT_EQ(runinfo3com.levelrt, 1);
}

TEST_F(LogMenu, ParameterCommandsAndTheirLinesInTheMenu) {
    read("210");
    menu({"856", "40", "857", "7", "857", "12", "855", "1", "11", "0", "99"});
    const int k = find(" Entered nb of intervals =      7");
    ASSERT_GT(k, 0);
    EXPECT_EQ(lines(k - 1, 7),
              (lines_t{warning_head_lines("  logplot2   ")[3], " Entered nb of intervals =      7",
                       " CENTERED ROTATION", " NB OF INTERVALS MUST BE EVEN",
                       " => DISCARDING INPUT", " => KEEPING OLD STORED VALUE",
                       " Stored nb of intervals =     66"}));
    // The last menu: the answers kept, computations to be redone, and the
    // orientation changed.
    EXPECT_EQ(lines(last(" PARAMETERS                        Command") + 2, 4),
              (lines_t{" Update computations : T",
                       " Csat activated ?......................855      1",
                       " Nb intervals for forward rotation ....856     40",
                       " Nb intervals for central rotation ....857     12"}));
    EXPECT_FALSE(wellplot.llandscape);
    EXPECT_EQ(count(" Landscape(T)/Portrait(F) ..............11 F"), 1);
}

TEST_F(LogMenu, EnteringExtendsTheTypeAndHoleParametersRedoTheComputationsOnce) {
    read("200");
    menu({"320", "", "", "320", "", "50", "99", "320", "", "320", "", "500", "99", "99"});
    EXPECT_EQ(lines(1, 5)[4], " CASE 2: Extending data type with AzCmax");
    EXPECT_GT(find(" | 8| AzCmax          |1| 8|AzCmax.cmptd   |"), 0);
    EXPECT_EQ(count(" Normalizing AzCmax "), 2);
    EXPECT_EQ(count(" COMPUTING:"), 2);
    // The second run of the stages comes with the third plot, not the fourth.
    int third = -1;
    for (int i = 0; i < 3; ++i) third = find(" New value =           320", third + 1);
    EXPECT_GT(find(" COMPUTING:", third), third);
    EXPECT_EQ(find(" COMPUTING:", find(" New value =           320", third + 1)), -1);
    EXPECT_EQ(occurrences(ps(), "%%Page:"), 4);
}

// An interval of zero size takes no page; one outside the data leaves a
// blank page, and the next plot finds the data again.
TEST_F(LogMenu, ADepthIntervalOfZeroSizeOrOutsideTheDataSkipsThePlot) {
    read("210");
    wellpara.zbot = wellpara.ztop;
    menu({"301", "99"});
    const int z = find(" Depth interval of zero size:");
    ASSERT_GT(z, 4);
    EXPECT_EQ(lines(z - 4, 4), warning_head_lines("  logplot2   "));
    EXPECT_EQ(lines(z + 1, 3),
              (lines_t{" Ztop =   2000.0    ", " Zbot =   2000.0    ", " => SKIPPING PLOT"}));
    EXPECT_FALSE(std::filesystem::exists("log.ps"));

    wellpara.ztop = 0.f;
    wellpara.zbot = 1000.f;
    clear();
    menu({"301", "", "", "50", "101", "2000", "102", "3300", "99", "301", "", "20", "", "99"});
    const int k = find(" DATA OUT OF RANGE");
    ASSERT_GT(k, 4);
    EXPECT_EQ(lines(k - 4, 4), warning_head_lines("  logplot2   "));
    EXPECT_EQ(screen()[std::size_t(k + 1)], " => SKIPPING PLOT");
    EXPECT_EQ(count(" C12 plot"), 1);
    const std::string file = ps();
    const auto page1 = file.find("%%Page:    1    1"), page2 = file.find("%%Page:   2   2");
    ASSERT_NE(page2, std::string::npos);
    EXPECT_EQ(occurrences(file.substr(page1, page2 - page1), "moveto"), 0);
    EXPECT_GT(occurrences(file.substr(page2), "lineto"), 8000);
}

TEST_F(LogMenu, NullValuesBreakTheCurvesAreCountedOncePerTrackAndNeverPause) {
    // 300 rows of the sample well with null values as field files have them.
    {
        std::ifstream in(sample("well200.txt"));
        std::ofstream out("nulls.txt");
        std::string l;
        for (int i = -2; i < 300 && std::getline(in, l); ++i) {
            std::vector<std::string> f;
            std::istringstream fs(l);
            for (std::string v; std::getline(fs, v, '\t');) f.push_back(v);
            const std::pair<int, const char*> bad[] = {{2, "NaN"}, {2, "NaN"}, {5, "nan"},
                                                       {1, "NaN"}, {3, "Inf"}, {4, "-Inf"}};
            for (int k = 0; k < 6; ++k)
                if (i == 50 + 40 * k) f[std::size_t(bad[k].first)] = bad[k].second;
            if (i == 51) f[2] = "NaN";
            for (const auto& v : f) out << v << '\t';
            out << '\n';
        }
    }
    Borehole::read("200", 1800.f, 1850.f, "nulls.txt");
    iocom.lpause = true;  // a frame would ask for a return the script doesn't give
    menu({"301", "", "", "320", "", "20", "", "99"});
    // Rows 50 and 51: C1; 90: C1; 130: DEVI; 170: P1Az; 210: C2; 250: RB.
    const std::pair<std::string, int> counts[] = {
        {" X-Section plot", 4}, {" C12 plot", 4}, {" DEVI plot", 1}, {" RB plot", 1},
        {" C1-C2 plot", 4}, {" Cmin-BS plot", 3}, {" DC plot", 4}};
    auto starting = [&](const std::string& head, int from) {
        for (int k = from; k < int(screen().size()); ++k)
            if (screen()[std::size_t(k)].starts_with(head)) return k;
        return -1;
    };
    const std::string leftout = " Number of data left out (not finite) = ";
    for (const auto& [track, n] : counts) {
        const int k = find(track);
        ASSERT_GT(k, 0) << track;
        // The line closes the track: after its head, before the next one.
        const int left = starting(leftout, k), next = starting(" Number of data = ", k + 2);
        ASSERT_GT(left, k) << track;
        EXPECT_TRUE(next < 0 || left < next) << track;
        EXPECT_EQ(screen()[std::size_t(left)], leftout + "      " + std::to_string(n)) << track;
    }
    EXPECT_EQ(starting(leftout, find(" HAZI plot")), starting(leftout, find(" RB plot")));
    EXPECT_EQ(find(" HIT RETURN"), -1);
    const std::string file = ps();
    EXPECT_EQ(file.find("NaN"), std::string::npos);
    EXPECT_EQ(file.find("Inf"), std::string::npos);
    EXPECT_GS_RENDERS("log.ps");
}

// A text of a page and the point it was moved to.
struct text_at {
    float x, y;
    std::string s;
};
// The texts of each page of a plot file, page 1 first.
std::vector<std::vector<text_at>> page_texts(const std::string& file) {
    std::vector<std::vector<text_at>> pages;
    std::istringstream in(file);
    float x = 0, y = 0;
    for (std::string l; std::getline(in, l);) {
        if (l.starts_with("%%Page:")) pages.emplace_back();
        if (l.ends_with(" moveto")) std::sscanf(l.c_str(), "%f %f", &x, &y);
        if (pages.empty() || !l.starts_with("(")) continue;
        pages.back().push_back({x, y, shown_text(l)});
    }
    return pages;
}
// The left and right edges of a subplot on the page, in device units.
std::pair<float, float> edges(int isubplot) {
    ssubplot(isubplot, 1);
    float xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax;
    int ixy;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 3);
    float x[2] = {xcm0, xcm0 + xlcm}, y[2] = {ycm0, ycm0}, xd[2], yd[2];
    cm2de(xd, yd, x, y, 2);
    return {xd[0], xd[1]};
}

TEST_F(LogMenu, EachPageCarriesItsHeadAndTracksInTheirPlacesAndRendersInGhostscript) {
    read("200");
    menu({"101", "0", "3", "", "301", "", "302", "", "303", "", "304", "", "305", "", "320", "",
          "200", "", "322", "", "362", "",
          // No picks: both files are left unread.
          "well210.txt", "99", "99", "99", "well210.txt", "99", "99", "99", "20", "", "99"});
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "(Depth init = 2000.00 final = 3219.05 inc = 0.15)"), 10);
    // The test parameters stand on 322 and not on 362.
    EXPECT_EQ(occurrences(file, "(BS = 25.08 t1 = 1.00 t2 = 1.00)"), 1);
    EXPECT_EQ(occurrences(file, "(C1Sat = 37.00 C2Sat = 37.00)"), 1);
    EXPECT_EQ(occurrences(file, "(DCt = 2.90 RBt = 10.00)"), 1);
    EXPECT_EQ(occurrences(file, "(WELL data type: Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax)"), 10);
    // 200 is a plot command that no track knows: a page with its head only.
    const auto p8 = file.find("%%Page:   8   8"), p9 = file.find("%%Page:   9   9");
    EXPECT_EQ(occurrences(file.substr(p8, p9 - p8), "lineto"), 0);
    EXPECT_GT(occurrences(file.substr(p8, p9 - p8), "Command = 200)"), 0);
    EXPECT_GS_RENDERS("log.ps");

    // Each track's label is centred on its subplot, and the frame code
    // shows in the sides that carry the vertical scale's label.
    struct track {
        std::string label;
        int subplot, frame;  // frame: 1 left, 2 right, 3 both, 4 neither
    };
    struct page {
        int icmd;
        std::string yaxis;            // label of the vertical scale
        std::vector<track> tracks;
        lines_t info;  // the lines of the head's right block
    };
    const std::string depth = "Depth init = 2000.00 final = 3219.05 inc = 0.15";
    const std::string forward = "Forward rotation on 66 intervals";
    const std::string centred = "Centered rotation on 66 intervals";
    std::vector<track> p304 = {{"C1,C2 (cm)", 3, 1}, {"P1Az [360]", 4, 4}, {"DEVI", 5, 4},
                               {"HAZI", 6, 4}, {"RB", 7, 4}};
    const std::vector<track> p302 = {{"Cmin,Cmax", 3, 1}, {"AzCmax[180]", 4, 4},
                                     {"P1Az [90]", 5, 4}, {"P1Az [360]", 6, 4},
                                     {"Rot_rate (deg/m)", 7, 4}, {"Rot_lsq (deg/m)", 8, 2}};
    std::vector<track> p305 = p304;
    p304.push_back({"Rot_rate (deg/m)", 8, 2});
    p305.push_back({"Rot_lsq (deg/m)", 8, 2});
    const page pages[] = {
        {101, "|DC| (cm)", {{"AzCmax[180]", 2, 3}}, {depth}},
        {301, "Depth", {{"X-Section", 3, 1}, {"C1,C2 (cm)", 4, 4}, {"P1Az [360]", 5, 4},
                        {"DEVI", 6, 4}, {"HAZI", 7, 4}, {"RB", 8, 2}}, {depth}},
        {302, "Depth", p302, {depth, forward}},
        {303, "Depth", p302, {depth, centred}},
        {304, "Depth", p304, {depth, centred}},
        {305, "Depth", p305, {depth, centred}},
        {320, "Depth", {{"C1,C2 (cm)", 3, 1}, {"|C1-C2|", 4, 4}, {"(C1-C2)", 5, 4},
                        {"Cmin-BS", 6, 4}, {"AzCmax[180]", 7, 4}, {"RBCmax", 8, 2}}, {depth}},
    };
    const auto texts = page_texts(file);
    ASSERT_EQ(texts.size(), 10u);
    float right = 0, unused = 0, xcm = 27.f, ycm = 0.f;
    cm2de(&right, &unused, &xcm, &ycm, 1);
    const float near = 0.5f, scale = 60.f;  // a scale's label lies within 60 units of its side
    for (std::size_t k = 0; k < std::size(pages); ++k) {
        const page& pg = pages[k];
        const auto& t = texts[k];
        lines_t info;
        int command = 0;
        for (const text_at& a : t) {
            if (std::fabs(a.x - right) < near) info.push_back(a.s);
            command += a.s.ends_with("Command = " + std::to_string(pg.icmd));
        }
        EXPECT_EQ(info, pg.info) << pg.icmd;
        EXPECT_EQ(command, 1) << pg.icmd;
        for (const track& tr : pg.tracks) {
            const auto [x1, x2] = edges(tr.subplot);
            int centred_on = 0, left = 0, rightside = 0;
            for (const text_at& a : t) {
                if (a.s == tr.label && std::fabs(a.x - 0.5f * (x1 + x2)) < near) ++centred_on;
                if (a.s != pg.yaxis) continue;
                if (a.x < x1 && a.x > x1 - scale) left = 1;
                if (a.x > x2 && a.x < x2 + scale) rightside = 2;
            }
            EXPECT_EQ(centred_on, 2) << pg.icmd << " " << tr.label;  // below and above
            EXPECT_EQ(left + rightside, tr.frame % 4 == 0 ? 0 : tr.frame)
                << pg.icmd << " " << tr.label;
        }
    }
}

// The rotation tracks of the sample well: near 0 where the tool stops in
// the breakouts and the key seat, minus the generated speed elsewhere. Away
// from the changes of speed; the margin holds the noise of the data and,
// deep down where the unwrapped azimuth runs to thousands of degrees, what
// the single-precision fit loses.
TEST_F(LogMenu, RotationOfTheSampleWellStopsAndSpeeds) {
    read("210");
    const struct {
        int first, last;
        float rate;
    } stretches[] = {{1, 600, -6.f},     {601, 1200, 0.f},    {2901, 3500, 0.f},
                     {4201, 4800, 0.f},  {4801, 5400, -3.f},  {5401, 6200, -20.f},
                     {6201, 6800, 0.f},  {6801, 8000, -6.f}};
    // 304 leaves the centred difference in the work column, 302 the
    // forward fit.
    for (const char* icmd : {"304", "302"}) {
        menu({icmd, "0", "3", "", "99"});
        iocom.lplotopen = false;
        for (const auto& s : stretches)
            for (int i = s.first + 70; i <= s.last - 70; ++i)
                ASSERT_NEAR(welldat.RWD1(i, 10), s.rate, 1.25f) << icmd << " row " << i;
    }
}

// The demo's keyboard script, run by the real program: it must still meet
// the menus it was written for, fit the DEVI axis and draw its three pages.
TEST_F(LogMenu, TheDemoJobRunsToItsEnd) {
    sample("well210.txt");
    const std::string cmd = std::string(TARNOLIX_BINARY) + " < " + TARNOLIX_SOURCE_DIR +
                            "/data/log_job.keys > console.log 2>&1";
    const int st = std::system(cmd.c_str());
    EXPECT_TRUE(WIFEXITED(st) && WEXITSTATUS(st) == 0);
    std::ifstream in("console.log");
    const std::string console(std::istreambuf_iterator<char>(in), {});
    EXPECT_EQ(occurrences(console, " final   value ...................21   35.000"), 2);
    EXPECT_EQ(occurrences(console, " increment .......................22   5.0000"), 1);
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "%%Page:"), 3);
    EXPECT_EQ(occurrences(file, " 595    0 translate 90 rotate"), 1);  // landscape A4
    EXPECT_GS_RENDERS("log.ps");
}

TEST_F(LogMenu, ATitleWithParenthesesBackslashesAndAccentsShowsAsTyped) {
    {
        std::ifstream in(sample("well210.txt"));
        std::ofstream out("forest (copy).txt");
        std::string line;
        std::getline(in, line);
        std::getline(in, line);
        out << " 'For\xc3\xaat well (real \\ data'\n"
            << " 'Depth' 'P1Az (deg' 'C1 (cm)' 'C2 \\ cm' 'RB' 'DEVI' 'HAZI' 'AzCmax \xc2\xb0'\n";
        for (int i = 0; i < 500 && std::getline(in, line); ++i) out << line << '\n';
    }
    Borehole::read("210", 2000.f, 2070.f, "forest (copy).txt");
    menu({"301", "", "", "20", "", "99"});
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "(Title: For\\352t well \\(real \\\\ data"), 1);
    EXPECT_EQ(occurrences(file, "(File name: forest \\(copy\\).txt"), 1);
    EXPECT_GS_RENDERS("log.ps");
}

}  // namespace

TEST_F(LogMenu, TheFullTableHoldsEveryRowAndAzCmaxAsTheLastPageLeftIt) {
    read("200");
    // 500 before a page: AzCmax as stage 1 computed it; after page 301
    // wrapped from azcmaxorig. The second table finds the first one there
    // and asks for another name.
    menu({"500", "90", "", "301", "", "", "500", "90", "", "after.txt", "99"});
    auto table = [](const std::string& name) {
        std::ifstream in(name);
        std::vector<std::vector<float>> rows;
        for (std::string l; std::getline(in, l);) {
            std::vector<float> r;
            std::istringstream s(l);
            for (float v; s >> v;) r.push_back(v);
            if (r.size() == 8) rows.push_back(r);
        }
        return rows;
    };
    const auto before = table("well210.txt.all.out.txt"), after = table("after.txt");
    ASSERT_EQ(before.size(), 8000u);
    ASSERT_EQ(after.size(), 8000u);
    int wrapped = 0;
    for (int i = 1; i <= 8000; ++i) {
        const auto& b = before[std::size_t(i - 1)];
        const auto& a = after[std::size_t(i - 1)];
        for (int j = 1; j <= 7; ++j) EXPECT_NEAR(b[j - 1], welldat.RWD1(i, welldat.JCOL(j)), 1.5e-4f);
        EXPECT_NEAR(a[7], welldat.RWD1(i, welldat.JCOL(8)), 1.5e-4f);
        EXPECT_EQ(std::vector<float>(a.begin(), a.begin() + 7), std::vector<float>(b.begin(), b.begin() + 7));
        wrapped += a[7] != b[7];
    }
    EXPECT_GT(wrapped, 0);
    EXPECT_EQ(count(" WRITING COMPLETED"), 2);
}
