// The log analysis menu as the user meets it: entering with and without
// data, the parameter commands, the plot pages with their head, and when
// the computations run again.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/ghostscript.h"
#include "plot/pages.h"
#include "shell/fake_platform.h"
#include "well/well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;

struct LogMenu : WellDialogue {
    void SetUp() override {
        WellDialogue::SetUp();
        use_fake_platform();
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        iocom.lpause = false;
        clear();
    }
    void TearDown() override {
        iocom.lplotopen = false;
        runinfo_platform = runinfo_platform_default();
        WellDialogue::TearDown();
    }
    // The sample well read as the reader offers it (200, without AzCmax),
    // or as 210; depths selected whole.
    void read(const std::string& id) {
        type({"100", id, "99", "1000", sample("well210.txt"), "99", "99", "1000", "99"});
        run([] { readwell2(2); });
        wellpara.ztop = 2000.f;
        wellpara.zbot = 3220.f;
        clear();
    }
    void menu(std::initializer_list<std::string> keys) {
        type(keys);
        run([] { logplot2(0); });
    }
    static std::string ps() {
        std::ifstream in("log.ps");
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    static int occurrences(const std::string& text, const std::string& what) {
        int n = 0;
        for (auto k = text.find(what); k != std::string::npos; k = text.find(what, k + 1)) ++n;
        return n;
    }
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
    const int w = find(" Entered nb of intervals =      7");
    ASSERT_GT(w, 0);
    EXPECT_EQ(lines(w - 1, 7),
              (lines_t{warning_head_lines("  logplot2   ")[3], " Entered nb of intervals =      7",
                       " CENTERED ROTATION", " NB OF INTERVALS MUST BE EVEN",
                       " => DISCARDING INPUT", " => KEEPING OLD STORED VALUE",
                       " Stored nb of intervals =     66"}));
    // The last menu: the answers kept, computations to be redone, and the
    // orientation changed.
    int last = -1;
    for (int k = 0; k >= 0; k = find(" PARAMETERS                        Command", k + 1)) last = k;
    EXPECT_EQ(lines(last + 2, 4),
              (lines_t{" Update computations : T",
                       " Csat activated ?......................855      1",
                       " Nb intervals for forward rotation ....856     40",
                       " Nb intervals for central rotation ....857     12"}));
    EXPECT_FALSE(wellplot.llandscape);
    EXPECT_EQ(count(" Landscape(T)/Portrait(F) ..............11 F"), 1);
}

TEST_F(LogMenu, EnteringExtendsTheTypeAndHoleParametersRedoTheComputationsOnce) {
    read("200");
    menu({"320", "", "", "320", "", "50", "99", "320", "", "320", "", "500", "99"});
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

TEST_F(LogMenu, ADepthIntervalOutsideTheDataLeavesABlankPageAndTriesAgain) {
    read("210");
    wellpara.ztop = 0.f;
    wellpara.zbot = 1000.f;
    menu({"301", "", "", "50", "101", "2000", "102", "3300", "99", "301", "", "20", "", "99"});
    const int k = find(" DATA OUT OF RANGE");
    ASSERT_GT(k, 0);
    EXPECT_EQ(lines(k - 4, 4), warning_head_lines("  logplot2   "));
    EXPECT_EQ(screen()[std::size_t(k + 1)], " => SKIPPING PLOT");
    EXPECT_EQ(count(" C12 plot"), 1);
    const std::string file = ps();
    const auto page1 = file.find("%%Page:    1    1"), page2 = file.find("%%Page:   2   2");
    ASSERT_NE(page2, std::string::npos);
    const std::string blank = file.substr(page1, page2 - page1);
    EXPECT_EQ(occurrences(blank, "moveto"), 0);
    EXPECT_GT(occurrences(file.substr(page2), "lineto"), 8000);
}

TEST_F(LogMenu, EachPageCarriesItsHeadAndRendersInGhostscript) {
    read("200");
    menu({"101", "0", "3", "", "301", "", "302", "", "303", "", "304", "", "305", "", "320", "",
          "200", "", "322", "", "362", "", "20", "", "99"});
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "(Depth init = 2000.00 final = 3219.05 inc = 0.15)"), 10);
    EXPECT_EQ(occurrences(file, "(Centered rotation on 66 intervals)"), 3);
    EXPECT_EQ(occurrences(file, "(Forward rotation on 66 intervals)"), 1);
    // The test parameters stand on 322 and not on 362.
    EXPECT_EQ(occurrences(file, "(BS = 25.08 t1 = 1.00 t2 = 1.00)"), 1);
    EXPECT_EQ(occurrences(file, "(C1Sat = 37.00 C2Sat = 37.00)"), 1);
    EXPECT_EQ(occurrences(file, "(DCt = 2.90 RBt = 10.00)"), 1);
    EXPECT_EQ(occurrences(file, "(WELL data type: Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax)"), 10);
    EXPECT_EQ(occurrences(file, "Command = 301)"), 1);
    // 200 is a plot command that no track knows: a page with its head only.
    const auto p8 = file.find("%%Page:   8   8"), p9 = file.find("%%Page:   9   9");
    EXPECT_EQ(occurrences(file.substr(p8, p9 - p8), "lineto"), 0);
    EXPECT_GT(occurrences(file.substr(p8, p9 - p8), "Command = 200)"), 0);
    EXPECT_GT(file.find(" 595    0 translate 90 rotate"), 0u);
    EXPECT_GS_RENDERS("log.ps");
}

}  // namespace
