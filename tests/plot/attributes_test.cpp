// Drawing attributes: defaults, checks and resets, propagation to the plot
// file, the colour table and the menus.
#include <fstream>
#include <string>
#include <vector>

#include "plot/device/psdevice.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

using lines_t = std::vector<std::string>;

class attributes : public plot_session {
protected:
    void expect_screen(std::initializer_list<const char*> ls) {
        for (const char* l : ls) EXPECT_TRUE(screen_has(l)) << '"' << l << '"';
    }
};

std::string name_of(int i) { return std::string(pltcharblk.COLORNAM(i).sv()); }
std::vector<float> rgb(int i) { return {plt2blk.RED(i), plt2blk.GREEN(i), plt2blk.BLUE(i)}; }

}  // namespace

TEST_F(attributes, ResetAnnouncesTheDefaultsAndModeThreeReadsThemBack) {
    // The defaults show in the plot file (device, symbol and axis tests);
    // here the announcement and the colour table.
    splotattributes(5);
    EXPECT_EQ(name_of(14), "Chartreu");
    EXPECT_EQ(rgb(13), (std::vector<float>{100, 50, 0}));
    expect_screen({" INITIALIZING COLOR TABLE WITH 19 COLORS", " 16/17/18    : Azure/Violet/Pink",
                   " INITIALISING FILL COLOR TO: Grey20", " INITIALISING LINE THICKNESS TO:    0.020 cm",
                   " INITIALISING TEXT ALIGNMENT TO: -1"});
    con.screen.clear();
    float w = 99.0f;
    int c = -5, t = 0;
    slinewidth(w, 3);
    sfillcolor(c, 3);
    ssymboltype(t, 3);
    EXPECT_EQ(w, 0.02f);
    EXPECT_EQ(c, 8);
    EXPECT_EQ(t, 1);
    EXPECT_TRUE(con.screen.empty());
}

// ---------------------------------------------------------------------------
// Checks and resets

TEST_F(attributes, ValuesOutOfRangeAreResetWithAFrame) {
    int c = 19;
    slinecolor(c, 1);  // wraps round the table
    EXPECT_EQ(c, 1);
    EXPECT_EQ(block(" trying to set color nb =     19", 3),
              (lines_t{" trying to set color nb =     19", " when max color nb      =     18",
                     " ===> RESET color nb    =      1"}));
    c = 21;
    sfillcolor(c, 1);
    EXPECT_EQ(plt2blk.ifillcol, 2);
    // The text colour setter still carries the line colour's head.
    c = -3;
    stextcolor(c, 1);
    EXPECT_EQ(plt2blk.itextcol, 1);
    EXPECT_TRUE(screen_has(" ///          subroutine slinecolor             ///"));

    float w = 2000.0f;
    slinewidth(w, 1);
    EXPECT_EQ(block(" LINE THICKNESS OUT OF RANGE:", 5),
              (lines_t{" LINE THICKNESS OUT OF RANGE:", "  line thickness (cm) =    2000.    ", "  min =   0.1000E-01",
                     "  max =    1000.    ", " ==> RESET line thickness =   0.2000E-01"}));
    // The check refuses the very value the prompt would accept.
    for (float v : {0.01f, 0.011f}) {
        w = v;
        slinewidth(w, 1);
    }
    EXPECT_EQ(plt2blk.linewidcm, 0.011f);
    float s = 0.01f;
    stextsize(s, 1);
    EXPECT_EQ(plt2blk.textsizcm, 0.02f);
    s = 2000.0f;
    stextsize(s, 1);
    int f = 17;
    stextfont(f, 1);
    EXPECT_EQ(plt2blk.ifont, 1);

    const int in[] = {4, -8, 0, 12, -4, 8, -12, 7, -11};
    const int out[] = {1, -1, -1, -1, -1, 1, -1, 7, -11};
    for (int i = 0; i < 9; ++i) {
        int j = in[i];
        stextalign(j, 1);
        EXPECT_EQ(plt2blk.ijustif, out[i]) << in[i];
    }
    for (auto [set, got] : {std::pair{-1, 1}, {2, 0}, {3, 1}}) {
        sfillstyle(set, 1);
        EXPECT_EQ(plt2blk.ifillsty, got) << set;
    }
    expect_screen({" ==> RESET text height =   0.5000    ", " font number must be in [1,16]",
                   " ===> RESET just =      1", " max style nb =      1"});
}

// ---------------------------------------------------------------------------
// The plot file

TEST_F(attributes, DeviceAttributesReachAnOpenFileOnly) {
    float w = 0.2f;
    slinewidth(w, 1);  // closed: stored only
    std::ofstream("quarp9_ini.txt") << " 1 'Portrait A4'\n \n";
    open_plot("att.ps");
    // The reset of plinit 5 brought the default back.
    EXPECT_EQ(count(new_lines(), "0.57 setlinewidth"), 1);
    slinewidth(w, 1);
    float s = 1.0f;
    stextsize(s, 1);
    int f = 10;
    stextfont(f, 1);
    float x = 100, y = 700;
    detext2(x, y, "Courier-Bold 1 cm");
    EXPECT_EQ(new_lines(), (lines_t{"5.67 setlinewidth", "100.00 700.00 moveto",
                                  "28 /Courier-Bold findfont exch scalefont setfont", "(Courier-Bold 1 cm) show"}));
    // Angle, justification and colours have no state in the file.
    float a = 45;
    stextangle(a, 1);
    int j = 2, c = 4;
    stextalign(j, 1);
    slinecolor(c, 1);
    EXPECT_TRUE(new_lines().empty());
    // Propagation of what is stored.
    splotattributes(7);
    EXPECT_EQ(new_lines(), lines_t{"5.67 setlinewidth"});
    close_plot();
    EXPECT_GS_RENDERS("att.ps");

    // Mode 3 opens a file with the attributes carried over.
    std::ofstream("quarp9_ini.txt") << " 1 'Portrait A4'\n \n";
    con.type("");
    fstr<40> name = "keep.ps";
    plinit(name, 3);
    close_plot();
    EXPECT_EQ(count(read_lines("keep.ps"), "5.67 setlinewidth"), 1);
    EXPECT_GS_RENDERS("keep.ps");
}

// ---------------------------------------------------------------------------
// Colour table

TEST_F(attributes, NumberOfColours) {
    // Fewer colours: indices beyond are reported and left as they are.
    int c = 5;
    slinecolor(c, 1);
    int n = 3;
    scolornb(n, 1);
    EXPECT_EQ(block(" The nb of colors has been reduced", 2),
              (lines_t{" The nb of colors has been reduced", " ==> checking current set up versus new max"}));
    expect_screen({" trying to set color nb =      5", " trying to set color nb =      8", " ==> checking done"});
    EXPECT_EQ(plt2blk.ilinecol, 5);
    EXPECT_EQ(plt2blk.ifillcol, 8);

    n = 1;
    scolornb(n, 1);  // one colour makes a black and white plot
    EXPECT_EQ(plt2blk.lcolor, 0);
    n = 25;
    scolornb(n, 1);
    EXPECT_EQ(n, 18);
    EXPECT_EQ(plt2blk.lcolor, 1);
    n = 9;
    scolornb(n, 5);  // the reset keeps four colours
    EXPECT_EQ(n, 4);
    expect_screen({" max nb of color  =     18", " INITIALIZING NUMBER OF COLORS TO:      4", " ==> Color plot"});
}

TEST_F(attributes, ColourTableMenuSetsOneColourOrReadsThemFromAFile) {
    type({"200", "2", "20", "Crimson", "30", "80", "10", "20", "99", "99"});
    scolortable(0);
    EXPECT_EQ(name_of(2), "Crimson ");
    EXPECT_EQ(rgb(2), (std::vector<float>{80, 10, 20}));
    expect_screen({"     2 Red       100.0    0.0    0.0", "     2 Crimson    80.0   10.0   20.0",
                   " current|  100.0 |    0.0 |    0.0 |", "     new|   80.0 |   10.0 |   20.0 |"});
    // 98 leaves the colour as it was.
    type({"200", "2", "30", "0", "0", "0", "98", "99"});
    scolortable(0);
    EXPECT_EQ(plt2blk.RED(2), 80.0f);

    // A table read from a file.
    std::ofstream("colours.txt") << "3\n0 100 100 100 'Paper'\n1, 0, 0, 0, 'Ink'\n\n"
                                 << "2 10 20 30 'Chartreuse green'\n3 0 0 100 Blue\n";
    type({"300", "colours.txt", "99"});
    scolortable(0);
    EXPECT_EQ(plt2blk.ncolors, 3);
    EXPECT_EQ((lines_t{name_of(0), name_of(1), name_of(2), name_of(3)}),
              (lines_t{"Paper   ", "Ink     ", "Chartreu", "Blue    "}));
    EXPECT_EQ(rgb(2), (std::vector<float>{10, 20, 30}));
    expect_screen({" Input file colours.txt is closed", " Actually read   :   3 DATA"});
    EXPECT_FALSE(unit_is_open(UNIT_COLOURS));

    // A file that ends early keeps what was read.
    std::ofstream("short.txt") << "4\n0 100 100 100 'Paper'\n1 0 0 0 'Ink'\n";
    type({"300", "short.txt", "99"});
    scolortable(0);
    EXPECT_EQ(block(" END OF FILE REACHED UNEXPECTEDLY", 3),
              (lines_t{" END OF FILE REACHED UNEXPECTEDLY", " WHILE READING LINE NUMBER       4",
                     " Input file short.txt is closed"}));
    EXPECT_EQ(plt2blk.ncolors, 4);
    EXPECT_EQ(name_of(1), "Ink     ");
    EXPECT_EQ(name_of(2), "Chartreu");
    EXPECT_FALSE(unit_is_open(UNIT_COLOURS));
}

// ---------------------------------------------------------------------------
// Panels and the menu

TEST_F(attributes, MenuAndPanelsOfLineWidthTextSizeFillColourAndSymbolType) {
    float s = 2.0f;
    stextsize(s, 1);
    type({"10", "0.2", "1", "n", "31", "", "99"});
    splotattributes(0);
    EXPECT_EQ(plt2blk.linewidcm, 0.2f);
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);  // from the initial values
    // Before and after the answer 1 and no.
    expect_screen({"  from currently stored..... 1 T", "  from initialisation....... 1 T",
                   " present value in cm .......    0.020"});

    // The panels of fill colour and symbol type.
    type({"13"});
    int c = 0;
    sfillcolor(c, 2);
    EXPECT_EQ(plt2blk.ifillcol, 13);
    expect_screen({" Grey20  .................  8", " Rose    ................. 18"});

    con.type("-4");
    int t = 15;
    ssymboltype(t, 200);  // asks only
    EXPECT_EQ(t, -4);
    EXPECT_EQ(plt2blk.isymtype, 1);
    con.type("");
    t = 23;
    ssymboltype(t, 0);
    EXPECT_EQ(plt2blk.isymtype, 23);
    expect_screen({" ready to set type =     15", " ready to  store  type =     23"});
}
