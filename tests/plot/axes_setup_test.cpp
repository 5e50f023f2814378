// Setting up axes, the box and the curve point count: defaults, checks,
// refusals and menus, seen in the records and on the screen.
#include <string>
#include <vector>

#include "plot/axes/axes.h"
#include "plot/axes/curve.h"
#include "plot/plot_session.h"

namespace {

using lines_t = std::vector<std::string>;

const std::string RULE43 = " " + std::string(43, '-');
const std::string RULE35 = " " + std::string(35, '-');
const std::string HEAD_S1AXIS1 = " @ subroutine s1axis1               v3.1 2012-05-09";
const std::string HEAD_S1AXUSWDTYP = " @ subroutine s1axuswdtyp           v1.1 2012-05-09";

// The name line of an error frame.
std::string error_name(const std::string& name13) { return " ***          subroutine " + name13 + "          ***"; }

class axis_setup : public plot_session {
protected:
    void SetUp() override {
        plot_session::SetUp();
        axisblk7a = axisblk7a_t{};
        axisblk7b = axisblk7b_t{};
        ptblock = ptblock_t{};
        snaxis(5);
        con.screen.clear();
    }
};

// One axis as callers pass it to s1axis1.
struct axis_args {
    float usa1 = 0, usa2 = 0, wau1 = 0, wau2 = 0, waud = 0, walas = 0;
    fstr<30> walab;
    int nawdig = 0, nasubint = 0, nlabintk = 0;
    void set(int iaxis, int inter) {
        s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, iaxis, inter);
    }
};

// The box as callers pass it to s1bx2d.
struct box_args {
    int ix = 0, iy = 0, left = 0, right = 0, bottom = 0, top = 0, clip = 0, zero = 0;
    fstr<25> label;
    void set(int ibox, int inter) { s1bx2d(ix, iy, left, right, bottom, top, clip, zero, label, ibox, inter); }
};

}  // namespace

TEST_F(axis_setup, BoundsRefusedAxisNumbersTheIncrementCheckAndTheUserRangeLink) {
    axis_args a;
    a.set(7, 3);
    a.usa1 = -3, a.usa2 = 250;
    a.set(7, 1);
    float u1 = 1, u2 = 2;
    g1axbd(u1, u2, 7);
    EXPECT_EQ((std::vector<float>{u1, u2}), (std::vector<float>{-3, 250}));
    g1axbd(u1, u2, 16);
    EXPECT_EQ((std::vector<float>{u1, u2}), (std::vector<float>{0, 10}));
    EXPECT_EQ(block(" trying to get bounds of axis nb =     16", 3),
              (lines_t{" trying to get bounds of axis nb =     16", " max axis nb =     15", " ===> RETURNING [0, 10]"}));
    EXPECT_TRUE(screen_has(error_name("  g1axbd     ")));

    a.wau1 = 99;
    a.set(16, 1);
    EXPECT_TRUE(screen_has(" trying to set axis nb =     16"));
    for (int i = 1; i <= MAXAXIS; ++i) EXPECT_EQ(axisblk7a.WAU1(i), 0.0f) << i;

    // The increment is checked; the user range follows the link.
    a = axis_args{};
    a.set(2, 3);
    a.wau1 = 10, a.wau2 = 0, a.waud = 5, a.usa1 = 100, a.usa2 = 200;
    a.set(2, 1);
    EXPECT_EQ(a.waud, -5.0f);
    EXPECT_EQ(axisblk7a.USA1(2), 100.0f);  // independent: kept as given

    int link = 1;
    float scale = 1;
    s1axuswdtyp(link, scale, 2, 1);
    a.set(2, 1);
    EXPECT_EQ(axisblk7a.USA1(2), 10.0f);
    // The scaled link can't be set by a caller, only through the menu.
    link = 2;
    s1axuswdtyp(link, scale, 2, 1);
    EXPECT_TRUE(screen_has(" ==> RESET TYPE =      0"));
    type({"10", "2", "20", "2.5", "99"});
    s1axuswdtyp(link, scale, 2, 0);
    a.wau1 = 0, a.wau2 = 10, a.waud = 5;
    a.set(2, 1);
    EXPECT_EQ(axisblk7a.USA2(2), 4.0f);
    EXPECT_TRUE(con.keys.empty());
}

TEST_F(axis_setup, AxisMenusShowTheirPanelsAndStoreTheAnswers) {
    type({"20", "-10", "21", "10", "22", "4", "23", "0.4", "24", "1", "25", "2", "26", "Depth (m)", "27", "3",
           "1", "-1", "2", "1", "99"});
    axis_args a;
    a.set(3, 2);
    EXPECT_EQ(con.screen[1], HEAD_S1AXIS1);
    EXPECT_EQ(lines_t(con.screen.begin() + 3, con.screen.begin() + 21),
              (lines_t{" Sizes:", " max nb of axis    =     15", " axis label length =     30",
                     " SETTING UP AXIS #      3", " user space:", " initial value ....................1   0.0000    ",
                     " final   value ....................2   10.000    ", " annotation:",
                     " initial value ...................20   0.0000    ",
                     " final   value ...................21   10.000    ",
                     " increment .......................22   5.0000    ",
                     " size in cm ......................23  0.50000    ",
                     " nb of digits after dec. point ...24      0", " nb of subtics intervals..........25      5",
                     " axis label ......................26 Generic 0-10 axis             ",
                     " nb of tics intervals for label ..27      1", " EXIT.............................99",
                     " " + std::string(50, '@')}));
    EXPECT_TRUE(con.keys.empty());
    const auto& x = axisblk7a;
    EXPECT_EQ((std::vector<float>{x.WAU1(3), x.WAU2(3), x.WAUD(3), x.WALAS(3), x.USA1(3), x.USA2(3)}),
              (std::vector<float>{-10, 10, 4, 0.4f, -1, 1}));
    EXPECT_EQ(x.NAWDIG(3) * 100 + x.NASUBINT(3) * 10 + x.NLABINTK(3), 123);
    EXPECT_EQ(axisblk7b.WALAB(3).sv(), "Depth (m)                     ");

    // An inconsistent increment brings the menu back after the warning.
    con.screen.clear();
    type({"22", "-4", "99", "99"});
    a.set(3, 2);
    EXPECT_TRUE(con.keys.empty());
    EXPECT_GT(find(" EXIT.............................99", find(" => RESET increment =   4.0000    ")), 0);

    // The link menu; a zero scale given there is reset at the next pass.
    // With the link 1 the user lines of s1axis1 give way to one line.
    con.screen.clear();
    int link = 0;
    float scale = 0;
    type({"20", "0", "10", "1", "99", "1", "99"});
    s1axuswdtyp(link, scale, 3, 2);
    a.set(3, 2);
    EXPECT_EQ(lines_t(con.screen.begin() + 6, con.screen.begin() + 9),
              (lines_t{" user space and annotations independent", " user space versus annotations ...10      0",
                     " annotations/user scaling  .......20   1.0000    "}));
    EXPECT_EQ(count(con.screen, " ==> RESET SCALING =   1.0000    "), 1);
    EXPECT_TRUE(screen_has(" user space = annotation"));
    EXPECT_FALSE(screen_has(" Enter user initial value"));
}

TEST_F(axis_setup, AxisListMenuGoesToOneAxisOrThroughAll) {
    axis_args a;
    a.set(2, 3);
    a.walab = "Azimuth [90] degrees from north";
    a.set(2, 1);
    type({"2", "99", "99"});
    snaxis(0);
    EXPECT_EQ(block(" AXIS SET UP", 6), (lines_t{" AXIS SET UP", RULE43, " axis label                  axis nb", RULE35,
                                             " Generic 0-10 axis    ............ 1",
                                             " Azimuth [90] degrees ............ 2"}));
    EXPECT_TRUE(screen_has(" SETTING UP AXIS #      2"));
    EXPECT_FALSE(screen_has(HEAD_S1AXUSWDTYP));

    // From 10 on, the link of the axis comes first.
    con.screen.clear();
    type({"6", "99", "99", "99"});
    snaxis(10);
    EXPECT_GT(find(HEAD_S1AXIS1), find(HEAD_S1AXUSWDTYP));

    con.screen.clear();
    type({"100"});
    for (int i = 0; i <= MAXAXIS; ++i) con.type("99");
    snaxis(2);
    EXPECT_TRUE(con.keys.empty());
    EXPECT_EQ(count(con.screen, HEAD_S1AXIS1), 15);
}

TEST_F(axis_setup, BoxDefaultsRefusalsResetsAndMenu) {
    box_args b;
    b.ix = 9;
    b.set(2, 1);
    EXPECT_EQ(block(" trying to set box nb =      2", 3),
              (lines_t{" trying to set box nb =      2", " max box nb =      1", " ===> NO ACTION"}));

    box_args c{0, 16, 1, 0, 1, 1, 0, 1, fstr<25>("log plot")};
    c.set(1, 1);
    EXPECT_EQ(c.ix * 10 + c.iy, 12);
    EXPECT_EQ(block(" trying to set axis nb =     16", 3),
              (lines_t{" trying to set axis nb =     16", " max axis nb =     15", " ==> RESET axis nb =      2"}));
    box_args d;
    d.set(1, 3);
    EXPECT_EQ(d.left * 1000 + d.right * 100 + d.zero * 10 + d.clip, 1010);
    EXPECT_EQ(d.label.sv(), "log plot                 ");

    con.screen.clear();
    type({"10", "4", "33", "0", "3", "40", "1", "50", "0", "60", "Depth track", "21", "99", "99"});
    d.set(1, 2);
    EXPECT_TRUE(con.keys.empty());
    EXPECT_EQ(lines_t(con.screen.begin() + 3, con.screen.begin() + 7),
              (lines_t{" SETTING BOX #      1", RULE43, " X axis label: Generic 0-10 axis             ",
                     " X axis nb........................10      1"}));
    for (const char* l : {" Box label   : log plot                 ", " X=0 & Y=0 mark line .............50      1",
                          " outside [1,5]", " SETTING UP AXIS #      2"})  // 0 isn't offered
        EXPECT_TRUE(screen_has(l)) << l;
    d.set(1, 3);
    EXPECT_EQ(d.ix * 10000 + d.top * 1000 + d.clip * 100 + d.zero * 10 + d.iy, 43102);
    EXPECT_EQ(d.label.sv(), "Depth track              ");
}

TEST_F(axis_setup, CurvePointCountIsKeptInsideTheBuffer) {
    int np = 2000;
    scptnp(np, 1);
    EXPECT_EQ(ptblock.npcurve, 1000);
    EXPECT_EQ(block(" nb of points =   2000", 4),
              (lines_t{" nb of points =   2000", " > curve buffer size =   1000", " ===> reset nb of points =   1000",
                     " ===> WILL NOT PLOT ALL THE DATA"}));
    con.screen.clear();
    np = 90;
    type({"10", "1001", "45", "99"});
    scptnp(np, 0);
    EXPECT_TRUE(con.keys.empty());
    EXPECT_EQ(block(" max nb of points ................   1000", 3),
              (lines_t{" max nb of points ................   1000", " nb of points ..................10     90",
                     " nb of segments ..................     89"}));
    EXPECT_EQ(ptblock.npcurve, 45);
}
