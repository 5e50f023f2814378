// Drawing attributes: defaults, checks and resets, propagation to the plot
// file, the colour table and the menus.
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "plot/device/psdevice.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines = std::vector<std::string>;

class attributes : public plot_session {
protected:
    // The index of the first screen line equal to s, or -1.
    int at(const std::string& s, int from = 0) const {
        for (int k = from; k < int(con.screen.size()); ++k)
            if (con.screen[std::size_t(k)] == s) return k;
        return -1;
    }
    lines screen_from(int k, int n) const {
        if (k < 0 || k + n > int(con.screen.size())) return {};
        return lines(con.screen.begin() + k, con.screen.begin() + k + n);
    }
    void open_default(const char* name) {
        std::ofstream("quarp9_ini.txt") << " 1 'Portrait A4'\n \n";
        open_plot(name);
    }
};

std::string name_of(int i) { return std::string(pltcharblk.COLORNAM(i).sv()); }

}  // namespace

// ---------------------------------------------------------------------------
// Defaults

TEST_F(attributes, ResetGivesTheDefaultsAndTheColourTable) {
    splotattributes(5);
    EXPECT_TRUE(screen_has(" INITIALIZING PLOT ATTRIBUTESS"));
    EXPECT_EQ(plt2blk.linewidcm, 0.02f);
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);
    EXPECT_EQ(plt2blk.textangle, 0.0f);
    EXPECT_EQ(plt2blk.symsizcm, 0.4f);
    EXPECT_EQ(plt2blk.ncolors, 18);
    EXPECT_EQ(plt2blk.lcolor, 1);
    EXPECT_EQ(plt2blk.ilinecol, 1);
    EXPECT_EQ(plt2blk.ifillsty, 1);
    EXPECT_EQ(plt2blk.ifillcol, 8);
    EXPECT_EQ(plt2blk.ijustif, -1);
    EXPECT_EQ(plt2blk.ifont, 1);
    EXPECT_EQ(plt2blk.itextcol, 1);
    EXPECT_EQ(plt2blk.isymtype, 1);

    EXPECT_EQ(name_of(0), "White-bk");
    EXPECT_EQ(name_of(8), "Grey20  ");
    EXPECT_EQ(name_of(14), "Chartreu");
    EXPECT_EQ(name_of(18), "Rose    ");
    EXPECT_EQ(plt2blk.RED(0), 100.0f);
    EXPECT_EQ(plt2blk.GREEN(12), 30.0f);
    EXPECT_EQ(plt2blk.RED(13), 100.0f);
    EXPECT_EQ(plt2blk.GREEN(13), 50.0f);
    EXPECT_EQ(plt2blk.BLUE(13), 0.0f);
    EXPECT_EQ(plt2blk.BLUE(16), 100.0f);
    EXPECT_EQ(plt2blk.BLUE(18), 50.0f);

    EXPECT_TRUE(screen_has(" INITIALIZING COLOR TABLE WITH 19 COLORS"));
    EXPECT_TRUE(screen_has(" 16/17/18    : Azure/Violet/Pink"));
    EXPECT_TRUE(screen_has(" INITIALISING TEXT ALIGNMENT TO: -1"));
    EXPECT_TRUE(screen_has(" INITIALISING FILL COLOR TO: Grey20"));
    EXPECT_TRUE(screen_has(" INITIALISING LINE THICKNESS TO:    0.020 cm"));
}

TEST_F(attributes, ReadBackWithThreeStoresNothing) {
    float w = 99.0f;
    slinewidth(w, 3);
    EXPECT_EQ(w, 0.02f);
    int c = -5;
    sfillcolor(c, 3);
    EXPECT_EQ(c, 8);
    float s = 0;
    ssymbolsize(s, 3);
    EXPECT_EQ(s, 0.4f);
    int t = 0;
    ssymboltype(t, 3);
    EXPECT_EQ(t, 1);
    EXPECT_TRUE(con.screen.empty());
}

// ---------------------------------------------------------------------------
// Checks and resets

TEST_F(attributes, ColourNumbersWrapAroundTheTable) {
    int c = 19;
    slinecolor(c, 1);
    EXPECT_EQ(c, 1);
    EXPECT_EQ(plt2blk.ilinecol, 1);
    int k = at(" trying to set color nb =     19");
    ASSERT_GE(k, 0);
    EXPECT_EQ(screen_from(k, 3), (lines{" trying to set color nb =     19", " when max color nb      =     18",
                                        " ===> RESET color nb    =      1"}));
    c = 20;
    slinecolor(c, 1);
    EXPECT_EQ(c, 1);
    c = 21;
    sfillcolor(c, 1);
    EXPECT_EQ(plt2blk.ifillcol, 2);
    c = -3;
    stextcolor(c, 1);
    EXPECT_EQ(plt2blk.itextcol, 1);
    EXPECT_TRUE(screen_has(" when min color nb      = 0"));
    // The text colour setter still carries the line colour's head.
    EXPECT_TRUE(screen_has(" ///          subroutine slinecolor             ///"));
    c = 18;
    slinecolor(c, 1);
    EXPECT_EQ(plt2blk.ilinecol, 18);
}

TEST_F(attributes, SizesOutOfRangeAreReset) {
    float s = 0.01f;
    stextsize(s, 1);
    EXPECT_EQ(plt2blk.textsizcm, 0.02f);
    s = 2000.0f;
    stextsize(s, 0 + 1);
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);
    EXPECT_TRUE(screen_has(" TEXT HEIGHT (cm) OUT OF RANGE:"));
    EXPECT_TRUE(screen_has(" ==> RESET text height =   0.5000    "));

    float w = 2000.0f;
    slinewidth(w, 1);
    EXPECT_EQ(plt2blk.linewidcm, 0.02f);
    int k = at(" LINE THICKNESS OUT OF RANGE:");
    ASSERT_GE(k, 0);
    EXPECT_EQ(screen_from(k, 5), (lines{" LINE THICKNESS OUT OF RANGE:", "  line thickness (cm) =    2000.    ",
                                        "  min =   0.1000E-01", "  max =    1000.    ",
                                        " ==> RESET line thickness =   0.2000E-01"}));
    // The check refuses the very value the prompt would accept.
    con.screen.clear();
    w = 0.01f;
    slinewidth(w, 1);
    EXPECT_EQ(plt2blk.linewidcm, 0.02f);
    EXPECT_TRUE(screen_has(" LINE THICKNESS OUT OF RANGE:"));
    w = 0.011f;
    slinewidth(w, 1);
    EXPECT_EQ(plt2blk.linewidcm, 0.011f);

    int f = 17;
    stextfont(f, 1);
    EXPECT_EQ(plt2blk.ifont, 1);
    EXPECT_TRUE(screen_has(" font number must be in [1,16]"));
}

TEST_F(attributes, AlignmentAndFillStyleChecks) {
    const int in[] = {4, -8, 0, 12, -4, 8, -12, 7, -11};
    const int out[] = {1, -1, -1, -1, -1, 1, -1, 7, -11};
    for (int i = 0; i < 9; ++i) {
        int j = in[i];
        stextalign(j, 1);
        EXPECT_EQ(plt2blk.ijustif, out[i]) << in[i];
    }
    EXPECT_TRUE(screen_has(" justif must be in [-11,11]"));
    EXPECT_TRUE(screen_has(" ===> RESET just =      1"));

    int s = -1;
    sfillstyle(s, 1);
    EXPECT_EQ(plt2blk.ifillsty, 1);
    EXPECT_TRUE(screen_has(" min style nb = 0"));
    s = 2;
    sfillstyle(s, 1);
    EXPECT_EQ(plt2blk.ifillsty, 0);
    s = 3;
    sfillstyle(s, 1);
    EXPECT_EQ(plt2blk.ifillsty, 1);
    EXPECT_TRUE(screen_has(" max style nb =      1"));
}

TEST_F(attributes, BadModesAreRefused) {
    float w = 5.0f;
    slinewidth(w, 8);
    EXPECT_EQ(plt2blk.linewidcm, 0.02f);
    int k = at(" inter =      8");
    ASSERT_GE(k, 0);
    EXPECT_EQ(screen_from(k, 3), (lines{" inter =      8", " Accepted range = [0,7]", " ===> NO ACTION"}));

    con.screen.clear();
    int c = 3;
    slinecolor(c, 7);  // plot file closed
    EXPECT_EQ(screen_from(4, 3), (lines{" TRYING TO PROPAGATE PLOT ATTRIBUTE", "  WITH CLOSED PLOT FILE",
                                        " ===> NO ACTION"}));
    EXPECT_EQ(plt2blk.ilinecol, 1);

    con.screen.clear();
    float s = 1.0f;
    ssymbolsize(s, 7);
    EXPECT_EQ(screen_from(4, 2), (lines{" inter =      7", " ===> NO ACTION"}));
    EXPECT_EQ(plt2blk.symsizcm, 0.4f);
    int t = 3;
    ssymboltype(t, -1);
    EXPECT_EQ(plt2blk.isymtype, 1);

    con.screen.clear();
    splotattributes(7);
    EXPECT_TRUE(screen_has(" TRYING TO PROPAGATE PLOT ATTRIBUTES"));
    EXPECT_TRUE(screen_has(" ===> NO ACTION"));
}

TEST_F(attributes, LineStyleChangesNothing) {
    plt2blk_t before = plt2blk;
    int v = 7;
    slinestyle(v, 0);
    slinestyle(v, 5);
    EXPECT_EQ(v, 7);
    EXPECT_EQ(std::memcmp(&before, &plt2blk, sizeof before), 0);
    EXPECT_TRUE(con.screen.empty());
}

// ---------------------------------------------------------------------------
// The plot file

TEST_F(attributes, DeviceAttributesReachAnOpenFileOnly) {
    float w = 0.2f;
    slinewidth(w, 1);  // closed: stored only
    open_default("att.ps");
    lines head = new_lines();
    // The reset of plinit 5 brought the default back.
    EXPECT_EQ(count(head, "0.57 setlinewidth"), 1);
    EXPECT_EQ(psparams_90.textsizeps, 0.5f * 28.35f);
    EXPECT_EQ(psparams_90.ifontps, 1);

    slinewidth(w, 1);
    float s = 1.0f;
    stextsize(s, 1);
    int f = 10;
    stextfont(f, 1);
    float x = 100, y = 700;
    detext2(x, y, "Courier-Bold 1 cm");
    EXPECT_EQ(new_lines(), (lines{"5.67 setlinewidth", "100.00 700.00 moveto",
                                  "28 /Courier-Bold findfont exch scalefont setfont",
                                  "(Courier-Bold 1 cm) show"}));
    // Angle, justification and colours have no state in the file.
    float a = 45;
    stextangle(a, 1);
    int j = 2, c = 4;
    stextalign(j, 1);
    slinecolor(c, 1);
    EXPECT_TRUE(new_lines().empty());

    // Propagation of what is stored.
    splotattributes(7);
    EXPECT_TRUE(screen_has(" UPDATING PLOT ATTRIBUTESS"));
    EXPECT_EQ(new_lines(), lines{"5.67 setlinewidth"});
    close_plot();
    EXPECT_GS_RENDERS("att.ps");
}

TEST_F(attributes, ReopeningWithTwoCarriesTheAttributesOver) {
    float w = 0.2f;
    slinewidth(w, 1);
    int c = 2;
    slinecolor(c, 1);
    std::ofstream("quarp9_ini.txt") << " 1 'Portrait A4'\n \n";
    con.type("");
    fstr<40> name = "keep.ps";
    plinit(name, 3);
    EXPECT_EQ(count(new_lines(), "5.67 setlinewidth"), 1);
    EXPECT_EQ(plt2blk.ilinecol, 2);
    close_plot();
    EXPECT_GS_RENDERS("keep.ps");
}

// ---------------------------------------------------------------------------
// Colour table

TEST_F(attributes, OneColourMakesABlackAndWhitePlot) {
    int n = 1;
    scolornb(n, 1);
    EXPECT_EQ(plt2blk.lcolor, 0);
    EXPECT_EQ(plt2blk.ncolors, 1);

    n = 25;
    scolornb(n, 1);
    EXPECT_EQ(n, 18);
    EXPECT_EQ(plt2blk.lcolor, 1);
    EXPECT_TRUE(screen_has(" max nb of color  =     18"));
    n = 0;
    scolornb(n, 1);
    EXPECT_EQ(plt2blk.ncolors, 1);
    EXPECT_TRUE(screen_has(" min nb of color  = 1"));
    n = 9;
    scolornb(n, 5);  // the reset keeps four colours
    EXPECT_EQ(n, 4);
    EXPECT_EQ(plt2blk.ncolors, 4);
    EXPECT_TRUE(screen_has(" INITIALIZING NUMBER OF COLORS TO:      4"));
    EXPECT_TRUE(screen_has(" NB of colors =      4"));
    EXPECT_TRUE(screen_has(" ==> Color plot"));
    n = 9;
    scolornb(n, 6);
    EXPECT_TRUE(screen_has(" Accepted range = [0,5]"));
    EXPECT_EQ(plt2blk.ncolors, 4);
}

TEST_F(attributes, FewerColoursReportIndicesBeyondAndLeaveThem) {
    int c = 5;
    slinecolor(c, 1);
    con.screen.clear();
    int n = 3;
    scolornb(n, 1);
    EXPECT_EQ(plt2blk.ncolors, 3);
    int k = at(" The nb of colors has been reduced");
    ASSERT_GE(k, 0);
    EXPECT_EQ(con.screen[std::size_t(k + 1)], " ==> checking current set up versus new max");
    EXPECT_GE(at(" trying to set color nb =      5", k), 0);  // the line colour
    EXPECT_GE(at(" trying to set color nb =      8", k), 0);  // the fill colour
    EXPECT_GE(at(" ==> checking done", k), 0);
    EXPECT_EQ(plt2blk.ilinecol, 5);
    EXPECT_EQ(plt2blk.ifillcol, 8);
}

TEST_F(attributes, OneColourChecksItsIndexAndComponents) {
    fstr<20> name = "Deep red";
    float r = 120, g = -5, b = 30;
    int i = 19;
    scolorrgb(i, name, r, g, b, 1);
    EXPECT_TRUE(screen_has(" ***          subroutine scolorgb               ***"));
    EXPECT_TRUE(screen_has(" When color index range = [0, 18]"));
    EXPECT_EQ(name_of(18), "Rose    ");

    i = 2;
    scolorrgb(i, name, r, g, b, 1);
    EXPECT_EQ(plt2blk.RED(2), 100.0f);
    EXPECT_EQ(plt2blk.GREEN(2), 0.0f);
    EXPECT_EQ(plt2blk.BLUE(2), 30.0f);
    EXPECT_EQ(name_of(2), "Deep red");

    // Reset of one colour: grey.
    i = 3;
    scolorrgb(i, name, r, g, b, 5);
    EXPECT_EQ(name_of(3), "50% Grey");
    EXPECT_EQ(plt2blk.GREEN(3), 50.0f);
    EXPECT_TRUE(screen_has(" INITIALIZING Color nb =   3 as 50% Grey"));

    // Read back.
    fstr<20> back;
    i = 2;
    scolorrgb(i, back, r, g, b, 3);
    EXPECT_EQ(back.trimmed(), "Deep red");
    EXPECT_EQ(r, 100.0f);
}

TEST_F(attributes, ColourTableMenuSetsOneColour) {
    con.type("200");
    con.type("2");
    con.type("20");
    con.type("Crimson");
    con.type("30");
    con.type("80");
    con.type("10");
    con.type("20");
    con.type("99");
    con.type("99");
    scolortable(0);
    EXPECT_EQ(name_of(2), "Crimson ");
    EXPECT_EQ(plt2blk.RED(2), 80.0f);
    EXPECT_EQ(plt2blk.GREEN(2), 10.0f);
    EXPECT_EQ(plt2blk.BLUE(2), 20.0f);
    EXPECT_TRUE(screen_has("     2 Red       100.0    0.0    0.0"));
    EXPECT_TRUE(screen_has("     2 Crimson    80.0   10.0   20.0"));
    EXPECT_TRUE(screen_has(" current|  100.0 |    0.0 |    0.0 |"));
    EXPECT_TRUE(screen_has("     new|   80.0 |   10.0 |   20.0 |"));
    EXPECT_TRUE(screen_has(" change nb of colors ..........100"));

    // 98 leaves the colour as it was.
    con.screen.clear();
    for (const char* k : {"200", "2", "30", "0", "0", "0", "98", "99"}) con.type(k);
    scolortable(0);
    EXPECT_EQ(plt2blk.RED(2), 80.0f);
}

TEST_F(attributes, ColourTableIsReadFromAFile) {
    std::ofstream("colours.txt") << "3\n"
                                 << "0 100 100 100 'Paper'\n"
                                 << "1, 0, 0, 0, 'Ink'\n"
                                 << "\n"
                                 << "2 10 20 30 'Chartreuse green'\n"
                                 << "3 0 0 100 Blue\n";
    for (const char* k : {"300", "colours.txt", "99"}) con.type(k);
    scolortable(0);
    EXPECT_EQ(plt2blk.ncolors, 3);
    EXPECT_EQ(name_of(0), "Paper   ");
    EXPECT_EQ(name_of(1), "Ink     ");
    EXPECT_EQ(name_of(2), "Chartreu");
    EXPECT_EQ(name_of(3), "Blue    ");
    EXPECT_EQ(plt2blk.GREEN(2), 20.0f);
    EXPECT_EQ(plt2blk.BLUE(3), 100.0f);
    EXPECT_TRUE(screen_has(" Input file colours.txt is closed"));
    EXPECT_TRUE(screen_has(" Could read up to:   3 DATA"));
    EXPECT_TRUE(screen_has(" Actually read   :   3 DATA"));
    EXPECT_FALSE(unit_is_open(UNIT_COLOURS));
}

TEST_F(attributes, ColourTableFileThatEndsEarlyKeepsWhatWasRead) {
    std::ofstream("short.txt") << "4\n0 100 100 100 'Paper'\n1 0 0 0 'Ink'\n";
    for (const char* k : {"300", "short.txt", "99"}) con.type(k);
    scolortable(0);
    int k = at(" END OF FILE REACHED UNEXPECTEDLY");
    ASSERT_GE(k, 0);
    EXPECT_EQ(screen_from(k + 1, 2), (lines{" WHILE READING LINE NUMBER       4", " Input file short.txt is closed"}));
    EXPECT_EQ(plt2blk.ncolors, 4);
    EXPECT_EQ(name_of(1), "Ink     ");
    EXPECT_EQ(name_of(2), "Red     ");
    EXPECT_FALSE(unit_is_open(UNIT_COLOURS));

    // A value that isn't a number: no end of file, the line it stands on.
    con.screen.clear();
    std::ofstream("bad.txt") << "two\n";
    for (const char* k2 : {"300", "bad.txt", "99"}) con.type(k2);
    scolortable(0);
    EXPECT_FALSE(screen_has(" END OF FILE REACHED UNEXPECTEDLY"));
    EXPECT_TRUE(screen_has(" WHILE READING LINE NUMBER       1"));
    EXPECT_EQ(plt2blk.ncolors, 4);
}

// ---------------------------------------------------------------------------
// Panels and the menu

TEST_F(attributes, MenuSetsLineWidthAndTextSizeFromTheDefaults) {
    float s = 2.0f;
    stextsize(s, 1);
    for (const char* k : {"10", "0.2", "1", "n", "31", "", "99"}) con.type(k);
    splotattributes(0);
    EXPECT_EQ(plt2blk.linewidcm, 0.2f);
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);  // from the initial values
    EXPECT_TRUE(screen_has("  from currently stored..... 1 T"));
    EXPECT_TRUE(screen_has("  from initialisation....... 1 F"));
    // After the answer 1 and no: the initial values.
    EXPECT_TRUE(screen_has("  from currently stored..... 1 F"));
    EXPECT_TRUE(screen_has("  from initialisation....... 1 T"));
    EXPECT_TRUE(screen_has(" EXIT THIS SET UP  .........99"));
    EXPECT_TRUE(screen_has("           LINE THICKNESS"));
    EXPECT_TRUE(screen_has(" present value in cm .......    0.020"));
    EXPECT_TRUE(screen_has(" Enter line thickness in cm"));
}

TEST_F(attributes, PanelsOfFontAlignmentAndColour) {
    for (const char* k : {"5", "-6", "13"}) con.type(k);
    int f = 0, j = 0, c = 0;
    stextfont(f, 2);
    stextalign(j, 2);
    sfillcolor(c, 2);
    EXPECT_EQ(plt2blk.ifont, 5);
    EXPECT_EQ(plt2blk.ijustif, -6);
    EXPECT_EQ(plt2blk.ifillcol, 13);
    EXPECT_TRUE(screen_has(" Courier-BoldOblique....................12"));
    EXPECT_TRUE(screen_has("    5<==textstring==6==============>7       "));
    EXPECT_TRUE(screen_has(" Grey20  .................  8"));
    EXPECT_TRUE(screen_has(" Rose    ................. 18"));
    EXPECT_TRUE(screen_has("      FILL COLOR"));
}

TEST_F(attributes, SymbolTypePanelAndItsVariants) {
    int unused = 0;
    ssymboltype(unused, 102);
    EXPECT_EQ(con.screen.size(), 24u);
    EXPECT_EQ(con.screen.front(), " circle   .................. 0");
    EXPECT_EQ(con.screen[12], "    |     ................. 12");
    EXPECT_EQ(con.screen.back(), " circle   ....... other values");

    con.screen.clear();
    con.type("-4");
    int t = 15;
    ssymboltype(t, 200);
    EXPECT_EQ(t, -4);
    EXPECT_EQ(plt2blk.isymtype, 1);
    EXPECT_TRUE(screen_has(" ready to set type =     15"));
    EXPECT_FALSE(screen_has(" currently stored type =      1"));

    con.type("");
    t = 23;
    ssymboltype(t, 0);
    EXPECT_EQ(plt2blk.isymtype, 23);
    EXPECT_TRUE(screen_has(" currently stored type =      1"));
    EXPECT_TRUE(screen_has(" ready to  store  type =     23"));
    EXPECT_TRUE(screen_has("  Negative number => filled symbol"));

    con.type("0.8");
    float s = 0;
    ssymbolsize(s, 2);
    EXPECT_EQ(plt2blk.symsizcm, 0.8f);
    EXPECT_TRUE(screen_has(" ready to  store  size =    0.400"));
}
