// The perspective wall plot as the user meets it: its menu, the page
// without data or without a selection, the fold of the azimuths into half
// turns and sections, and the breakout of the sample well seen along its
// azimuth in every projection.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "borehole/wallplot2.h"
#include "borehole_fixtures.h"
#include "plot/attributes.h"

namespace {

struct WallMenu : Borehole {
    void menu(std::initializer_list<std::string> keys) {
        type(keys);
        run([] { wallplot2(0); });
    }
    // Rows at depths 1001, 1002, ... of type 100: P1Az as given, C1 30, C2 26.
    void load(const std::vector<float>& p1az) {
        int id = 100;
        wdtype(id, 1);
        w.ndatwd = int(p1az.size());
        for (int i = 1; i <= w.ndatwd; ++i) {
            w.RWD1(i, w.JCOL(w.jdepth)) = 1000.0f + float(i);
            w.RWD1(i, w.JCOL(w.jp1az)) = p1az[std::size_t(i - 1)];
            w.RWD1(i, w.JCOL(w.jc1)) = 30.0f;
            w.RWD1(i, w.JCOL(w.jc2)) = 26.0f;
        }
        wellpara.ztop = 1000.0f;
        wellpara.zbot = 1000.0f + float(w.ndatwd);
    }
    static std::string ps() { return text("wellpers.ps"); }
};

TEST_F(WallMenu, WithoutDataOrOutsideTheDataThePageStaysBlank) {
    menu({"100", "0", "3", "", "99"});
    lines_t expect = error_head_lines("  wallplot   ");
    expect.insert(expect.end(), {" NO DATA !", " ===> NEED TO READ DATA FIRST",
                                 " ===> DATA PLOTTING DISABLED"});
    EXPECT_EQ(lines(0, int(expect.size())), expect);

    // Data, but the default interval 0 to 1000 m lies above them.
    read("210", 0.f, 1000.f);
    menu({"100", "", "20", "", "99"});
    const int k = find(" DATA OUT OF RANGE");
    ASSERT_GT(k, 4);
    EXPECT_EQ(lines(k - 4, 4), warning_head_lines("  wallplot   "));
    EXPECT_EQ(screen()[std::size_t(k + 1)], " => SKIPPING PLOT");
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "%%Page:"), 2);
    EXPECT_EQ(occurrences(file, "lineto"), 0);
    EXPECT_EQ(occurrences(file, "Command = 100"), 0);
}

TEST_F(WallMenu, MenuShowsEverySettingAndKeepsTheAnswers) {
    read("210", 0.f, 1000.f);
    menu({"800", "2080", "801", "5", "805", "0.25", "806", "-30", "850", "2", "855", "2", "860",
          "25", "901", "0", "904", "1", "907", "0", "11", "0", "99"});
    EXPECT_EQ(count(" to use Landscape(1) or Portrait(0) A4 ?"), 1);
    EXPECT_EQ(count(" mark unsaturated calipers .......2"), 1);
    const int q = last(" PARAMETERS                        Command");
    ASSERT_GT(q, 0);
    EXPECT_EQ(lines(last(" PLOT PARAMS                       Command") + 3, 7),
              (lines_t{" Landscape(T)/Portrait(F) ..............11 F",
                       " Set local scaling .....................12",
                       " Set plot and axes params ..............13",
                       " Set projection ........................14",
                       " Close plot file .......................20", DASH, " WELL DATA STATUS"}));
    EXPECT_EQ(lines(q - 2, 21),
              (lines_t{" Change hole parameters .....50", DASH,
                       " PARAMETERS                        Command", DASH,
                       " Ztop for plot ........................800   2080.000",
                       " depth axis increment .................801      5.000",
                       " Zscale ...............................805      0.250",
                       " Azshift ..............................806    -30.000",
                       " C1 or C2 .............................850     2",
                       " Csat activated ? .....................855     2 unsaturated",
                       " Bit size hole increment ..............860    25",
                       " curve Ci in ..........................901 F",
                       " curve Ci out .........................902 T",
                       " Ci vectors ...........................903 T",
                       " Ci out points ........................904 T",
                       " Drilled hole .........................905 T",
                       " Azimuth / Depth frame ................907 F", DASH,
                       " PLOT .................................100",
                       " EXIT ..................................99", " " + std::string(42, '.')}));
}

// Each pad azimuth folds into a half turn; a section ends where the half
// turn changes, and the table says how long each is.
TEST_F(WallMenu, AzimuthsFoldIntoHalfTurnsAndSectionsFollowThem) {
    struct pad {
        int icpers;
        int loop[6];
        float az[6];
    };
    const pad pads[] = {{1, {2, -1, -2, 0, 0, 0}, {0, 170, 180, 100, 120, 170}},
                        {2, {2, 0, -1, 1, 1, 1}, {90, 80, 90, 10, 30, 80}}};
    for (const pad& c : pads) {
        load({360, -10, -180, 100, 120, 170});
        clear();
        menu({"850", std::to_string(c.icpers), "905", "0", "100", "0", "3", "", "20", "", "99"});
        for (int i = 1; i <= 6; ++i) {
            EXPECT_EQ(w.IWD1(i, 1), c.loop[i - 1]) << c.icpers << " row " << i;
            EXPECT_NEAR(w.RWD1(i, 9), c.az[i - 1] * 3.14159265f / 180.0f, 1e-5f) << c.icpers;
        }
        const int t = find(" |index|index|   depth|   depth|        loop|");
        ASSERT_GT(t, 0);
        EXPECT_EQ(lines(t + 1, 7), (lines_t{" |initl|final|   initl|   final|        type|", DASH,
                                            " |    1|    1|  1001.0|  1001.0|single point|",
                                            " |    2|    2|  1002.0|  1002.0|single point|",
                                            " |    3|    3|  1003.0|  1003.0|single point|",
                                            " |    4|    6|  1004.0|  1006.0|     regular|",
                                            DASH}));
        EXPECT_GS_RENDERS("wellpers.ps");
    }
}

// Without curves only the circles and the azimuth tics are drawn; without
// the frame the alignment takes the number of the line colour.
TEST_F(WallMenu, CirclesEveryIncrementAndTheAlignmentAfterThePage) {
    load({10, 20, 30, 40, 50, 60, 70});
    struct flags {
        std::string frame;
        int strokes, justif;
    };
    for (const flags& f : {flags{"1", 3 + 14 + 16, -1}, flags{"0", 3 + 14, 3}}) {
        std::filesystem::remove("wellpers.ps");
        int colour = 3;
        slinecolor(colour, 1);
        menu({"901", "0", "902", "0", "903", "0", "904", "0", "860", "3", "801", "1", "907",
              f.frame, "100", "0", "3", "", "20", "", "99"});
        EXPECT_EQ(occurrences(ps(), "stroke"), f.strokes) << f.frame;
        EXPECT_EQ(occurrences(ps(), " lineto"), 3 * 89 + f.strokes - 3) << f.frame;
        EXPECT_EQ(plt2blk.ijustif, f.justif) << f.frame;
        wallplot2(5);
    }
}

TEST_F(WallMenu, NullValuesLeaveGapsAndADepthTypedTooLongKeepsTheTicsBounded) {
    load({10, 20, NAN, 40, 50, 60, 70});
    w.RWD1(5, w.JCOL(w.jc1)) = NAN;
    wellpara.zbot = 20400000.0f;
    menu({"100", "0", "3", "", "20", "", "99"});
    const int k = find(" Too many depth tics:");
    ASSERT_GT(k, 4);
    EXPECT_EQ(lines(k - 4, 4), warning_head_lines("  wallplot   "));
    EXPECT_EQ(screen()[std::size_t(k + 4)], " => RESET increment =   40800.    ");
    EXPECT_EQ(count(" Too many depth tics:"), 1);
    EXPECT_EQ(count(" Number of data left out (not finite) =       6"), 1);
    const std::string file = ps();
    EXPECT_EQ(file.find("NaN"), std::string::npos);
    int numbers = 0;  // the depth numbers: 500 a side, 40800 m apart
    for (auto k = file.find("\n("); k != std::string::npos; k = file.find("\n(", k + 1))
        numbers += std::isdigit((unsigned char)file[k + 2]) != 0;
    EXPECT_EQ(numbers, 2 * 500);
    EXPECT_GS_RENDERS("wellpers.ps");
}

// Marks on the far wall and at the tip of each spike, on the saturated or
// the unsaturated samples.
TEST_F(WallMenu, SaturationMarksFallOnTheChosenSamples) {
    for (const auto& [icsatw, marks] : {std::pair{"0", 0}, {"1", 2 + 2}, {"2", 3 + 3}}) {
        load({10, 20, 30, 40, 50});
        for (int i : {2, 4}) w.RWD1(i, w.JCOL(w.jc1)) = 37.0f;
        std::filesystem::remove("wellpers.ps");
        menu({"855", icsatw, "100", "0", "3", "", "20", "", "99"});
        EXPECT_EQ(occurrences(ps(), "closepath"), marks) << icsatw;
        wallplot2(5);
    }
}

// The sample well's first breakout, 2091.44 to 2182.73 m: pad 1 stands in
// it at azimuth 65 while C1 opens by 3.5 to 7.5 cm.
TEST_F(WallMenu, TheBreakoutShowsAlongItsAzimuthAndTurnsWithTheShift) {
    read("210", 2080.f, 2110.f);
    const float h = wellpara.bitsize * 0.5f;
    menu({"800", "2080", "860", "25", "100", "0", "3", "",
          // a perspective from the north-east, above the top
          "14", "2", "1", "135", "2", "-18", "3", "60", "4", "-60", "5", "20", "6", "85", "99",
          "100", "",
          // the top view along z, then turned by the azimuth shift
          "14", "3", "3", "100", "", "806", "90", "100", "", "20", "", "99"});
    // The top view of the last page: the far wall of every breakout row.
    int n = 0;
    for (int i = 601; i <= 722; ++i) {
        const float x = w.RWD1(i, 14), y = w.RWD1(i, 15);
        const float az = std::atan2(-y, x) * 180.0f / 3.14159265f;
        const float r = std::hypot(x, y);
        EXPECT_NEAR(az, 65.0f + 90.0f, 4.0f) << "row " << i;
        EXPECT_GT(r, h + 3.4f) << "row " << i;
        EXPECT_LT(r, h + 7.6f) << "row " << i;
        ++n;
    }
    EXPECT_EQ(n, 122);
    const std::string file = ps();
    EXPECT_EQ(occurrences(file, "%%Page:"), 4);
    EXPECT_EQ(occurrences(file, "(Origin depth = 2080.00 Azimuth Shift = 90.0)"), 1);
    EXPECT_EQ(occurrences(file, "(Depth init = 2080.01 final = 2109.88 inc = 0.15)"), 4);
    EXPECT_GS_RENDERS("wellpers.ps");
}

}  // namespace
