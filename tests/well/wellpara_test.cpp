// The borehole parameters: defaults, the list and the menu.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "well_fixture.h"

namespace {

const std::string DASH = " -------------------------------------------";

using BoreholeParameters = WellDialogue;

TEST_F(BoreholeParameters, ResetAnnouncesItselfAndMode10ListsTheDefaults) {
    wellpara = wellpara_t{};
    swellparam(5);
    swellparam(1);  // odd modes do nothing
    swellparam(3);
    swellparam(10);
    EXPECT_EQ(screen(), (std::vector<std::string>{
                            " " + std::string(50, '@'), " @ subroutine swellparam            v2.2 2019-07-29",
                            " @" + std::string(49, '='), " INITIALIZING BOREHOLE PARAMETERS", DASH,
                            " BOREHOLE PARAMETERS:", DASH, " BOREHOLE GEOMETRY:", " Ztop             =      0.000",
                            " Zbot             =   1000.000", " Bit Size         =     25.083",
                            " C1sat            =     37.000", " C2sat            =     37.000",
                            " Cdiff            =      2.900", " C-BS mini        =     -1.000",
                            " C-BS maxi        =      1.000", " RBCmax threshold =     10.000", " PLOT PARAMETERS:",
                            " Azimuth origin   =      0.000", " AzCmax origin    =      0.000",
                            " HAZI origin      =      0.000", " RB origin        =      0.000",
                            " RBCmax origin    =      0.000", " -----------------------------------------"}));
    // The bit size in full: 9 7/8 in.
    EXPECT_EQ(wellpara.bitsize, 25.0825f);
}

TEST_F(BoreholeParameters, TheMenuSetsEachFieldReturnKeepsItAndAnUnknownCommandIsNoError) {
    type({"103", "21.59", "101", "2000", "102", "3220.5", "205", "-90", "104", "", "99"});
    run([] { swellparam(0); });
    EXPECT_EQ(wellpara.zbot, 3220.5f);
    EXPECT_GT(find(" Enter drill bit diameter"), 0);
    EXPECT_GT(find(" Enter RB Cmax origin"), 0);
    // The last menu shows the new values.
    const std::vector<std::string> menu = {
        DASH, " BOREHOLE PARAMETERS               Command", DASH, " BOREHOLE GEOMETRY:",
        " Ztop .................................101   2000.000", " Zbot .................................102   3220.500",
        " Bit size .............................103     21.590", " C1sat ................................104     37.000",
        " C2sat ................................105     37.000", " Cdiff ................................106      2.900",
        " C-BS mini ............................107     -1.000", " C-BS maxi ............................108      1.000",
        " RBCmax threshold .....................109     10.000", " PLOT PARAMETERS:",
        " Azimuth origin .......................201      0.000", " AzCmax origin ........................202      0.000",
        " HAZI origin ..........................203      0.000", " RB origin ............................204      0.000",
        " RBCmax origin ........................205    -90.000", DASH, " EXIT ..................................99"};
    int last = -1;
    for (int k = find(menu[1]); k >= 0; k = find(menu[1], k + 1)) last = k;
    ASSERT_GT(last, 0);
    EXPECT_EQ(lines(last - 1, int(menu.size())), menu);
    EXPECT_EQ(count(" BOREHOLE PARAMETERS               Command"), 6);

    // An unknown command is no error; without level 2 output the menu is left out.
    clear();
    type({"55", "99"});
    run([] { swellparam(0); });
    EXPECT_EQ(count(" BOREHOLE PARAMETERS               Command"), 2);
    EXPECT_EQ(find(" " + std::string(50, '/')), -1);
    EXPECT_EQ(find(" " + std::string(50, '*')), -1);

    clear();
    iocom.LWITO(2) = false;
    type({"106", "3.5", "99"});
    run([] { swellparam(0); });
    EXPECT_EQ(wellpara.cdiff, 3.5f);
    EXPECT_EQ(count(" BOREHOLE PARAMETERS               Command"), 0);
    EXPECT_GT(find(" Enter cdiff for filtering"), 0);
}

}  // namespace
