// The PostScript device as the plot file shows it: heads, pages, paths,
// fills, strings, line widths, the coordinate limit, the page format file.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "lines.h"
#include "plot/device/psdevice.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"
#include "shell/textconv.h"

namespace {

using lines_t = std::vector<std::string>;

const lines_t HEAD{"%!", "% Initialize coordinate system and scales", "%%Pages: (atend)",
                "%%BoundingBox:    0    0  595  842", " 0.000  0.000  0.000 setrgbcolor", "% Ready to go",
                "%%Page:    1    1"};

std::string numtext(float v) {
    char b[16];
    return std::string(b, std::size_t(psnumtext(b, v)));
}

lines_t slice(const lines_t& v, std::size_t from, std::size_t n) {
    if (from > v.size()) return {};
    return lines_t(v.begin() + std::ptrdiff_t(from), v.begin() + std::ptrdiff_t(std::min(v.size(), from + n)));
}

class device : public plot_session {
protected:
    // Opens with the page format file holding the given command, and skips
    // the head.
    void open_format(int isize, const char* name) {
        write_file("quarp9_ini.txt", " " + std::to_string(isize) + " 'set by test'\n \n");
        open_plot(name);
        skip_lines();
    }
};

}  // namespace

// ---------------------------------------------------------------------------
// File head, pages, trailer, page format

TEST_F(device, AFileWithNoDrawingHoldsHeadOnePageAndTrailerInEachPageFormat) {
    struct {
        int isize;
        const char* name;
        lines_t head;  // lines 4 and 5
    } cases[] = {
        {1, "a4p.ps", {"%%BoundingBox:    0    0  595  842", " 0.000  0.000  0.000 setrgbcolor"}},
        {2, "usp.ps", {"%%BoundingBox:    0    0  612  792", " 0.000  0.000  0.000 setrgbcolor"}},
        {3, "a4l.ps", {"%%BoundingBox:    0    0  595  842", " 595    0 translate 90 rotate"}},
        {4, "usl.ps", {"%%BoundingBox:    0    0  612  792", " 612    0 translate 90 rotate"}},
    };
    for (const auto& c : cases) {
        open_format(c.isize, c.name);
        close_plot();
        const lines_t f = read_lines(c.name);
        ASSERT_GE(f.size(), 12u) << c.name;
        EXPECT_EQ(slice(f, 0, 5), slice(HEAD, 0, 3) + c.head) << c.name;
        EXPECT_EQ(slice(f, f.size() - 5, 5), (lines_t{"showpage", "%%End Page", "%%Trailer", "%%Pages:   1", "%%EOF"}));
        EXPECT_EQ(count(f, "%%Page:    1    1"), 1);
        if (c.isize == 1) {
            EXPECT_EQ(slice(f, 0, 7), HEAD);
        }
        // Propagated attributes: line width 0.02 cm is 0.567 points.
        EXPECT_EQ(count(f, "0.57 setlinewidth"), 1) << c.name;
        EXPECT_GS_RENDERS(c.name);
    }
    EXPECT_EQ(count(" Ready to close the PostScript plot file"), 4);
    EXPECT_EQ(count(" The PostScript plot file is closed"), 4);
}

TEST_F(device, DefaultsFileIsReadRewrittenWhenBadAndChangedByTheUser) {
    // No file: Portrait A4, and the file is created.
    open_plot("a.ps");
    close_plot();
    EXPECT_EQ(read_lines("quarp9_ini.txt"), (lines_t{"  1 'Portrait A4'", " "}));
    EXPECT_TRUE(screen_has(" quarp9_ini.txt updated or created"));
    // A good file is read and left alone.
    write_file("quarp9_ini.txt", " 3 'my landscape'\n \n");
    con.screen.clear();
    open_plot("b.ps");
    close_plot();
    EXPECT_EQ(read_lines("quarp9_ini.txt"), (lines_t{" 3 'my landscape'", " "}));
    // The banner of each open shows the settings.
    auto it = std::find(con.screen.begin(), con.screen.end(), " @               Quartos PS Library               @");
    ASSERT_LT(it + 10, con.screen.end());
    EXPECT_EQ(*(it + 1), " @          Version 10.2  on  2024-05-29          @");
    EXPECT_EQ(*(it + 10), " Orientation and size = Landscape A4        ");
    // Out of range: back to Portrait A4, rewritten.
    write_file("quarp9_ini.txt", " 9 'nine'\n \n");
    open_plot("c.ps");
    close_plot();
    EXPECT_EQ(read_lines("quarp9_ini.txt"), (lines_t{"  1 'Portrait A4'", " "}));
    EXPECT_EQ(slice(read_lines("c.ps"), 3, 1), lines_t{"%%BoundingBox:    0    0  595  842"});
    for (const char* f : {"a.ps", "b.ps", "c.ps"}) EXPECT_GS_RENDERS(f);

    // The user changes the format.
    write_file("quarp9_ini.txt", " 1 'Portrait A4'\n \n");
    con.type("n");
    con.type("4");
    fstr<40> name = "chg.ps";
    plinit(name, 5);
    close_plot();
    EXPECT_TRUE(screen_has(" Landscape US Letter  .................. 4"));
    EXPECT_EQ(read_lines("quarp9_ini.txt"), (lines_t{"  4 'Landscape US Letter'", " "}));
    EXPECT_EQ(slice(read_lines("chg.ps"), 4, 1), lines_t{" 612    0 translate 90 rotate"});
    EXPECT_GS_RENDERS("chg.ps");
}

// ---------------------------------------------------------------------------
// Paths and polygons

TEST_F(device, PointsLinesAndPolygonsInColour) {
    open_format(1, "paths.ps");
    // A lone point is a zero length line.
    float px[1] = {100.0f}, py[1] = {200.5f};
    deline(px, py, 1);
    EXPECT_EQ(new_lines(), (lines_t{"newpath", "100.00 200.50 moveto", "100.00 200.50 lineto", "stroke"}));

    // The fill colour is set inside gsave/grestore: the outline keeps black.
    float x[3] = {10, 100, 50}, y[3] = {10, 10, 80};
    depolygon(x, y, 3);
    EXPECT_EQ(new_lines(), (lines_t{"newpath", "10.00 10.00 moveto", "100.00 10.00 lineto", "50.00 80.00 lineto",
                                  "closepath gsave", " 0.800  0.800  0.800 setrgbcolor fill grestore", "stroke"}));
    int hollow = 0;
    sfillstyle(hollow, 1);
    depolygon(x, y, 3);
    EXPECT_EQ(new_lines(), (lines_t{"newpath", "10.00 10.00 moveto", "100.00 10.00 lineto", "50.00 80.00 lineto",
                                  "closepath", "stroke"}));

    // The line colour goes out before the stroke, and only when it changes.
    int red = 2;
    slinecolor(red, 1);
    deline(x, y, 2);
    deline(x, y, 2);
    EXPECT_EQ(new_lines(), (lines_t{"newpath", "10.00 10.00 moveto", "100.00 10.00 lineto",
                                  " 1.000  0.000  0.000 setrgbcolor", "stroke", "newpath", "10.00 10.00 moveto",
                                  "100.00 10.00 lineto", "stroke"}));
    close_plot();
    EXPECT_GS_RENDERS("paths.ps");
}

TEST_F(device, BlackAndWhiteFileHasNoColourAtAll) {
    int one = 1;
    scolornb(one, 1);
    ASSERT_EQ(plt2blk.lcolor, 0);
    // Opened keeping the attributes, as command 10 does.
    write_file("quarp9_ini.txt", " 1 'Portrait A4'\n \n");
    con.type("");
    fstr<40> name = "bw.ps";
    plinit(name, 3);
    skip_lines();
    int red = 2, blue = 4;
    slinecolor(red, 1);
    sfillcolor(blue, 1);
    float x[4] = {10, 100, 100, 10}, y[4] = {10, 10, 80, 80};
    depolygon(x, y, 4);
    EXPECT_EQ(new_lines(), (lines_t{"newpath", "10.00 10.00 moveto", "100.00 10.00 lineto", "100.00 80.00 lineto",
                                  "10.00 80.00 lineto", "closepath gsave", " 0.500 setgray fill grestore",
                                  "stroke"}));
    float tx = 50, ty = 50;
    detext2(tx, ty, "grey");
    close_plot();
    for (const auto& l : read_lines("bw.ps")) EXPECT_EQ(l.find("setrgbcolor"), std::string::npos) << l;
    EXPECT_GS_RENDERS("bw.ps");
}

TEST_F(device, LongPolylineGoesOutInThreePaths) {
    open_format(1, "long.ps");
    float xcm0 = 0, ycm0 = 0, xx = 1, xy = 0, yx = 0, yy = 1;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, 1);
    skip_lines();
    std::vector<float> x(1200), y(1200);
    for (std::size_t i = 0; i < 1200; ++i) {
        x[i] = 1.0f + 0.01f * float(i);
        y[i] = 5.0f + float(i % 2);
    }
    usline(x.data(), y.data(), 1200);
    lines_t f = new_lines();
    std::vector<std::size_t> starts;
    for (std::size_t k = 0; k < f.size(); ++k)
        if (f[k] == "newpath") starts.push_back(k);
    ASSERT_EQ(starts.size(), 3u);
    EXPECT_EQ(count(f, "stroke"), 3);
    // Each path starts where the one before ended, at points 501 and 1001
    // (1, 6 and 11 cm across, 5 cm up).
    EXPECT_EQ(f[starts[0] + 1], "28.35 141.75 moveto");
    EXPECT_EQ(f[starts[1] + 1], "170.10 141.75 moveto");
    EXPECT_EQ(f[starts[2] + 1], "311.85 141.75 moveto");
    EXPECT_EQ(starts[1] - starts[0], 503u);  // newpath, moveto, 500 lineto, stroke
    EXPECT_EQ(starts[2] - starts[1], 503u);
    EXPECT_EQ(f.size() - starts[2], 202u);  // newpath, moveto, 199 lineto, stroke
    // No points: refused, nothing drawn.
    usline(x.data(), y.data(), 0);
    EXPECT_TRUE(new_lines().empty());
    for (const char* l : {" is =        1", " > nx =        0", " attempt to read past array"})
        EXPECT_TRUE(screen_has(l)) << l;
    close_plot();
    EXPECT_GS_RENDERS("long.ps");
}

// A disk that takes nothing more: one error frame, the file closed, and the
// drawing runs on to its end writing nowhere.
TEST_F(device, AFullDiskEndsThePlotFileWithOneErrorFrame) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    open_plot("/dev/full");
    std::vector<float> x(1200, 1.0f), y(1200, 2.0f);
    for (int k = 0; k < 20; ++k) usline(x.data(), y.data(), 1200);
    close_plot();
    EXPECT_EQ(count(" COULD NOT WRITE PostScript plot FILE"), 1);
    const int k = find(" COULD NOT WRITE PostScript plot FILE");
    EXPECT_EQ(lines(k + 1, 4), (lines_t{" File name = /dev/full", " for unit =   50",
                                        " (disk full, or the file system refused it)",
                                        " ===> FILE CLOSED, WRITING ENDED"}));
    EXPECT_TRUE(screen_has(" The PostScript plot file is closed"));
}

TEST_F(device, MovetoModesLinetoWithoutMoveAndCoordinatesPastTheLimit) {
    open_format(1, "mv.ps");
    con.screen.clear();
    float x = 1.5f, y = -2.25f;
    psmoveto(x, y, 0);  // current point only
    psmoveto(x, y, 1);
    intslinewidth(12.345f);  // strokes the open path first
    float lx[2] = {1, 2}, ly[2] = {3, 4};
    pslineto(lx, ly, 2);  // no path open: warned, written all the same
    psstrokepath();
    EXPECT_EQ(new_lines(), (lines_t{"1.50 -2.25 moveto", "newpath", "1.50 -2.25 moveto", "stroke",
                                  "12.35 setlinewidth", "1.00 3.00 lineto", "2.00 4.00 lineto", "stroke"}));
    EXPECT_TRUE(screen_has(" Path begins with Draw instead of Move"));
    EXPECT_TRUE(screen_has(" ///          subroutine   pslineto             ///"));
    close_plot();
    // Such a file has a lineto with no current point: no reader takes it.
    auto r = gs_render("mv.ps");
    if (r.available) {
        EXPECT_FALSE(r.ok);
    }

    // Coordinates past the limit are reset, with a warning each.
    open_format(1, "lim.ps");
    con.screen.clear();
    x = 1.0e8f, y = -2.0e8f;
    psmoveto(x, y, 1);
    lx[0] = 5.0f, ly[0] = 1.0e9f;
    pslineto(lx, ly, 1);
    EXPECT_EQ((std::vector<float>{x, y, ly[0]}), (std::vector<float>{9.9e7f, -9.9e7f, 9.9e7f}));
    psstrokepath();
    EXPECT_EQ(new_lines(), (lines_t{"newpath", " 99000000. -99000000. moveto", "5.00  99000000. lineto", "stroke"}));
    EXPECT_EQ(count(con.screen, " ///                  WARNING                   ///"), 3);
    EXPECT_TRUE(screen_has(" x in meters =  0.353E+05 ==> reset to xmax =  0.349E+05"));
    EXPECT_TRUE(screen_has(" y in meters = -0.706E+05 ==> reset to ymin = -0.349E+05"));
    EXPECT_TRUE(screen_has(" y in meters =  0.353E+06 ==> reset to ymax =  0.349E+05"));
    close_plot();
    EXPECT_GS_RENDERS("lim.ps");
}

// ---------------------------------------------------------------------------
// Strings

TEST_F(device, StringsRotatedJustifiedTrimmedInTheirFontAndColour) {
    open_format(1, "txt.ps");
    float angle = 30.0f;
    stextangle(angle, 1);
    int just = 6;
    stextalign(just, 1);
    float x = 300, y = 400;
    detext2(x, y, "Depth");
    // Half the 14.175 point height down the rotated text axis.
    EXPECT_EQ(new_lines(), (lines_t{"303.54 393.86 moveto", "  30.00 rotate",
                                  "14 /Helvetica findfont exch scalefont setfont", "(Depth)",
                                  "dup stringwidth pop -2 div 0 rmoveto", "show", " -30.00 rotate"}));
    EXPECT_EQ(x, 300.0f);

    angle = 0.0f;
    stextangle(angle, 1);
    fstr<10> label = "  Depth";
    x = 100, y = 100;
    just = -1;
    stextalign(just, 1);
    detext2(x, y, label);  // -1: left, base, trimmed
    just = 1;
    stextalign(just, 1);
    detext2(x, y, label);  // positive: blanks kept
    just = -11;
    stextalign(just, 1);
    int font = 6, red = 2;
    stextfont(font, 1);
    stextcolor(red, 1);
    detext2(x, y, label);  // right and top: down by the full height
    EXPECT_EQ(new_lines(),
              (lines_t{"100.00 100.00 moveto", "14 /Helvetica findfont exch scalefont setfont", "(Depth) show",
                     "100.00 100.00 moveto", "14 /Helvetica findfont exch scalefont setfont", "(  Depth   ) show",
                     "100.00 85.82 moveto", "14 /Times-Bold findfont exch scalefont setfont",
                     " 1.000  0.000  0.000 setrgbcolor", "(Depth)", "dup stringwidth pop -1 div 0 rmoveto", "show"}));
    close_plot();
    EXPECT_GS_RENDERS("txt.ps");
}

// ---------------------------------------------------------------------------
// Number text

TEST(device_numbers, NumberTextIsTheGeneralConversionWithTwoDecimalsForEveryKindOfFloat) {
    // Past 10 characters the decimals give way, room being kept for a sign
    // that a positive value doesn't have.
    const std::pair<float, const char*> hand[] = {
        {-0.5f, "-0.50"}, {9.999f, "10.00"}, {12345678.0f, " 12345678."}, {-12345678.0f, "-12345678."},
        {-0.0f, "0.00"}};  // a mirrored origin: "****" would break the file
    for (auto [v, text] : hand) EXPECT_EQ(numtext(v), text) << v;
    // The device builds its number text in place, without logarithm or
    // formatting call; it must be what the general routine gives, digit for
    // digit. Infinities, NaN and the huge values go to the general routine,
    // which says so on the console.
    memory_console con;
    console_scope scope(con);
    const bool pause = iocom.lpause;
    iocom.lpause = false;
    std::vector<float> values;
    auto around = [&values](float v, int ulps) {
        float a = v, b = v;
        for (int k = 0; k < ulps; ++k) {
            values.push_back(a), values.push_back(-a), values.push_back(b), values.push_back(-b);
            a = std::nextafter(a, 0.f), b = std::nextafter(b, 3e38f);
        }
    };
    // Where the width steps: powers of ten, and the value on either side of
    // the width rule's margin.
    for (float p = 1.f; p < 2e9f; p *= 10.f)
        for (float v : {p, p - 0.0100001f, p + 0.0100001f, p - 0.005f}) around(v, 3000);
    // Ties and near-ties of the last decimal: 0.005, 0.015, ... 999.995.
    for (int k = 1; k < 200000; k += 2) around(float(k) * 0.005f, 2);
    // Halves of the last decimal where only one or none is left.
    for (int k = 0; k < 3000; ++k) values.push_back(-1000000.f - float(k) * 0.0625f);
    // A stride through the bit patterns of the values a plot holds, and a
    // few it should not.
    for (std::uint64_t b = 0; b < (1ull << 32); b += 4093) {
        const float v = std::bit_cast<float>(std::uint32_t(b));
        if (std::fabs(v) < 2e8f) values.push_back(v);
    }
    for (float v : {0.004f, 0.995f, 9.995f, 99.995f, 999.999f, 0.125f, -0.375f, 841.89f, 9.9e7f, -9.9e7f,
                    5e-5f, 1e9f, -3e38f, std::numeric_limits<float>::infinity(),
                    std::numeric_limits<float>::quiet_NaN()})
        values.push_back(v);
    int wrong = 0;
    for (float v : values) {
        fstr<10> ref;
        int n = 0;
        real2charf1(ref, n, 2, 10, v);
        if (numtext(v) != std::string(ref.sub(1, n)) && ++wrong <= 10)
            ADD_FAILURE() << std::hexfloat << v << ": " << numtext(v) << " | " << std::string(ref.sub(1, n));
    }
    EXPECT_EQ(wrong, 0) << "of " << values.size();
    iocom.lpause = pause;
}

TEST_F(device, StringsAreEscapedAndLettersBeyondAsciiTakeALatin1Font) {
    open_format(1, "esc.ps");
    const std::string plain = "14 /Helvetica findfont exch scalefont setfont";
    const std::string latin1 =
        "14 /Helvetica findfont dup length dict copy dup /FID undef dup /Encoding "
        "ISOLatin1Encoding put /Latin1Text exch definefont exch scalefont setfont";
    const struct {
        int font;
        const char* text;
        std::string font_line, show_line;
    } cases[] = {
        {1, "Alberta well (real", plain, "(Alberta well \\(real) show"},
        {1, "C1 (mm) C:\\logs", plain, "(C1 \\(mm\\) C:\\\\logs) show"},
        {1, "tab\there", plain, "(tab\\011here) show"},
        {1, "For\xc3\xaat \xc3\x9f", latin1, "(For\\352t \\337) show"},  // UTF-8
        {1, "Caf\xe9 \xc3", latin1, "(Caf\\351 \\303) show"},             // Latin-1, a cut sequence
        {1, "5 \xe2\x82\xac", plain, "(5 ?) show"},                        // beyond Latin-1
        {13, "\xc3\xaa", "14 /Symbol findfont exch scalefont setfont", "(\\303\\252) show"},
    };
    float x = 100, y = 700;
    for (const auto& c : cases) {
        int font = c.font;
        stextfont(font, 1);
        y -= 40;
        detext2(x, y, c.text);
        EXPECT_EQ(slice(new_lines(), 1, 2), (lines_t{c.font_line, c.show_line})) << c.text;
    }
    close_plot();
    EXPECT_GS_RENDERS("esc.ps");
}

