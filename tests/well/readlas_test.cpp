// LAS files through command 100: the quirks of real files, the broken
// ones, and the dialogue.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "lines.h"
#include "shell/units.h"
#include "tables/las.h"
#include "well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASHED_LINE = " -------------------------------------------";

// A small four-arm log: feet, inches and millimetres, a NULL, an
// unreadable value, comments and tabs.
const std::string SMALL =
    "# exported by hand\n"
    "~Version information\n"
    " VERS.   2.0 : CWLS LOG ASCII STANDARD\n"
    " WRAP.   NO  : one line per step\n"
    "~Well information\n"
    " STRT.FT   1000.0 : start\n"
    " STEP.FT      0.5 : step\n"
    " NULL.    -999.25 : null value\n"
    " WELL.  TEST WELL 7 : well\n"
    "~Curve information\n"
    " DEPT.FT   : depth\n"
    " GR  .GAPI : gamma ray\n"
    " P1AZ.DEG  : pad 1 azimuth\n"
    " C1  .IN   : caliper 1-3\n"
    " C2  .MM   : caliper 2-4\n"
    "~Parameter information\n"
    " BS  .IN   8.5 : bit size\n"
    "~A DEPT GR P1AZ C1 C2\n"
    "1000.0\t50\t10.0\t8.5\t216\n"
    "# a comment among the data\n"
    "1000.5  51  -999.25  8.6  217\n"
    "1001.0  52  12.0  x  218\n"
    "1001.5  53  13.0  8.7  219\n";

// The values a file gives for the variables names[], read with the curves
// the names find and the program's units, one row a step.
std::vector<std::vector<float>> read_direct(const std::string& text,
                                            const std::vector<std::string>& names) {
    write_file("t.las", text);
    EXPECT_TRUE(unit_open(12, "t.las", "old", "read"));
    EXPECT_TRUE(las_detect(12));
    int line = 0, nin = 0;
    fstr<80> reason;
    EXPECT_EQ(las_header(12, line, reason), 0) << line << reason.sv();
    const int n = int(names.size());
    std::vector<int> jcurve, jcol;
    std::vector<double> factor;
    for (int k = 0; k < n; ++k) {
        jcurve.push_back(las_alias(names[std::size_t(k)]));
        factor.push_back(las_factor(las_kind_of(names[std::size_t(k)]),
                                    lasfile.UNIT(jcurve.back()).sv()));
        jcol.push_back(k + 1);
    }
    EXPECT_EQ(las_scan(12, jcurve[0], factor[0], -1e30, 1e30, nin, line, reason), 0)
        << line << reason.sv();
    std::vector<float> data(std::size_t(n) * 100);
    int nlines = 0, nbad = 0;
    las_read(12, jcurve[0], factor[0], -1e30, 1e30, 1, n, jcurve.data(), factor.data(),
             jcol.data(), data.data(), 100, nlines, nbad);
    unit_close(12);
    auto rows = std::vector<std::vector<float>>(std::size_t(nlines));
    for (int i = 0; i < nlines; ++i)
        for (int k = 0; k < n; ++k) rows[std::size_t(i)].push_back(data[std::size_t(k * 100 + i)]);
    return rows;
}

void expect_rows(const std::vector<std::vector<float>>& got,
                 const std::vector<std::vector<float>>& want, const std::string& what) {
    ASSERT_EQ(got.size(), want.size()) << what;
    for (std::size_t i = 0; i < got.size(); ++i)
        for (std::size_t k = 0; k < want[i].size(); ++k) {
            if (std::isnan(want[i][k]))
                EXPECT_TRUE(std::isnan(got[i][k])) << what << " row " << i << " var " << k;
            else
                EXPECT_NEAR(got[i][k], want[i][k], 1e-4f) << what << " row " << i << " var " << k;
        }
}

struct LasReader : Dialogue {};

std::string utf16le(const std::string& text) {
    std::string out = "\xFF\xFE";
    for (char c : text) out += {c, '\0'};
    return out;
}

TEST_F(LasReader, ReadsTheQuirksOfRealFiles) {
    const float nan = NAN;
    struct {
        const char* what;
        std::string text;
        std::vector<std::string> vars;
        std::vector<std::vector<float>> rows;
    } cases[] = {
        {"2.0, ft, in, mm, NULL, unreadable, comment, tabs", SMALL, {"Depth", "P1Az", "C1", "C2"},
         {{304.8f, 10.f, 21.59f, 21.6f}, {304.9524f, nan, 21.844f, 21.7f},
          {305.1048f, 12.f, nan, 21.8f}, {305.2572f, 13.f, 22.098f, 21.9f}}},
        {"1.2 wrapped, CRLF, UTF-8 mark, other NULL, rad, m",
         "\xEF\xBB\xBF~V\r\nVERS. 1.20:\r\nWRAP. YES:\r\n~W\r\nNULL. 9999:\r\n~C\r\nDEPTH.M:\r\n"
         "AZI.RAD:\r\nDEVI.DEG:\r\nCAL.M:\r\n~A\r\n 500.0\r\n 3.14159265 9999\r\n 0.2\r\n"
         " 500.5\r\n 0.0\r\n 2.0 0.25\r\n",
         {"Depth", "HAZI", "DEVI", "CAL"},
         {{500.f, 180.f, nan, 20.f}, {500.5f, 0.f, 2.f, 25.f}}},
        {"bare CR, lower case, decreasing depth, quoted text",
         "~version\rvers. 2.0:\rwrap. no:\r~curves\rmd.m:\rcali.cm:\rzone.:\r~ascii\r"
         "20.5 21.0 'top zone'\r20.0 22.0 \"base zone\"\r",
         {"Depth", "CAL"},
         {{20.5f, 21.f}, {20.f, 22.f}}},
        {"UTF-16, a curve without a name",
         utf16le("~V\r\nVERS. 2.0:\r\nWRAP. NO:\r\n~C\r\nDEPT.M:\r\n .OHMM:\r\nCALI.IN:\r\n~A\r\n"
                 "1.0 5 8.5\r\n"),
         {"Depth", "CAL"},
         {{1.f, 21.59f}}},
    };
    for (const auto& c : cases) expect_rows(read_direct(c.text, c.vars), c.rows, c.what);

    // A table is no LAS file, even when a comment opens it.
    write_file("t.txt", "# ~V in a comment\n 'Title'\n 'Depth'\n 1.0\n");
    ASSERT_TRUE(unit_open(12, "t.txt", "old", "read"));
    EXPECT_FALSE(las_detect(12));
    unit_close(12);
}

// ---------------------------------------------------------------------------

struct ReadLas : WellDialogue {
    void read(std::initializer_list<std::string> keys) {
        type(keys);
        run([] { readwell2(2); });
    }
    // The n screen lines from the first one equal to first on.
    lines_t frame(const std::string& first, int n) const { return screen_block(*this, first, n); }
};

TEST_F(ReadLas, TheDialogueShowsTheFileTheCurvesAndWhatWasRead) {
    write_file("small.las", SMALL);
    // Read, type 100 as offered, curves as found, bit size from BS.
    read({"1000", "small.las", "", "", "", "99"});
    EXPECT_EQ(frame(" LAS FILE: small.las", 18),
              (lines_t{" LAS FILE: small.las", " LAS version: 2.0   wrapped: NO", " well name  : TEST WELL 7",
                       " NULL value : -999.25", " curves     :      5",
                       "   1 DEPT       FT       2 GR         GAPI     3 P1AZ       DEG   ",
                       "   4 C1         IN       5 C2         MM    ", " -------------------------------------------",
                       " depth curve: DEPT   unit: FT", " depth from    1000.0000 to    1001.5000 FT",
                       " step       : 0.5", " rows in file      :      4", " rows without depth:      0",
                       " bit size BS:     8.5000 IN", " @@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@",
                       " @@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@",
                       " @ subroutine typeselect1           v1.3 2019-07-26",
                       " @================================================="}));
    // The type the curves allow is offered first.
    EXPECT_GT(find(" Type name    : Depth,P1Az,C1,C2"), find(" LAS FILE: small.las"));
    EXPECT_EQ(frame("           VARIABLE  <--  LAS CURVE", 16),
              (lines_t{"           VARIABLE  <--  LAS CURVE", DASHED_LINE,
                       " |nb| variable |nb |  curve   |  unit  |   conversion   |",
                       " |--|----------|---|----------|--------|----------------|",
                       " | 1|Depth     |  1|DEPT      |FT      |   x0.30480 -> m|",
                       " | 2|P1Az      |  3|P1AZ      |DEG     |             deg|",
                       " | 3|C1        |  4|C1        |IN      |   x2.5400 -> cm|",
                       " | 4|C2        |  5|C2        |MM      |  x0.10000 -> cm|",
                       " Command to pick a curve: variable nb", DASHED_LINE,
                       " rows in file  :      4 without depth:      0",
                       " depth interval:     304.8000 to     305.2572 m",
                       " keep one row in:      1", " rows to read  :      4 at most  15000",
                       DASHED_LINE, " DEPTH INTERVAL, DECIMATION ......300"}));
    EXPECT_EQ(frame(" rows in file             :      4", 6),
              (lines_t{" rows in file             :      4", " rows read                :      4",
                       " left out: interval, step :      0", " dropped: no depth        :      0",
                       " NULL or unreadable values:      2", " input file small.las closed"}));
    EXPECT_EQ(frame(" bit size BS in the file:     8.5000 IN    21.5900 cm", 2),
              (lines_t{" bit size BS in the file:     8.5000 IN    21.5900 cm",
                       " bitsize now            :    25.0825 cm"}));
    EXPECT_FLOAT_EQ(wellpara.bitsize, 21.59f);
    EXPECT_EQ(current_id(), 100);
    EXPECT_EQ(welldat.ndatwd, 4);
    EXPECT_EQ(welldat.titlewd.trimmed(), "TEST WELL 7");
    EXPECT_EQ(welldat.finwd.trimmed(), "small.las");
    EXPECT_EQ(welldat.NAMCOL(3).trimmed(), "C1");
    EXPECT_GT(find(" | Depth    |  304.80 | |  305.26 |"), 0);
}

TEST_F(ReadLas, AnUnknownUnitAndAPickedCurveAreTheUsersChoice) {
    std::string text = SMALL;
    text.replace(text.find("C2  .MM"), 7, "C2  .XX");
    write_file("small.las", text);
    // Unit XX is worth 0.2 cm; C1 takes curve 5 and C2 curve 4; no BS.
    read({"1000", "small.las", "", "", "0.2", "3", "5", "", "0.2", "4", "4", "", "N", "99"});
    EXPECT_EQ(frame(" UNIT XX OF CURVE C2 NOT KNOWN", 2),
              (lines_t{" UNIT XX OF CURVE C2 NOT KNOWN", " variable C2 is read in cm"}));
    EXPECT_GT(find(" | 3|C1        |  5|C2        |XX      |  x0.20000 -> cm|"), 0);
    EXPECT_FLOAT_EQ(welldat.RWD1(1, 3), 43.2f);
    EXPECT_FLOAT_EQ(welldat.RWD1(1, 4), 21.59f);
    EXPECT_FLOAT_EQ(wellpara.bitsize, 25.0825f);
}

TEST_F(ReadLas, ABrokenFileNamesItsLineAndLeavesNoData) {
    const std::string head = "~V\nVERS. 2.0:\nWRAP. NO:\n~C\nDEPT.M:\nCALI.IN:\n";
    const std::string wrapped = "~V\nVERS. 2.0:\nWRAP. YES:\n~C\nDEPT.M:\nCALI.IN:\nGR.API:\n~A\n";
    struct {
        std::string text, line;
    } cases[] = {
        {head, " LINE      6 NO ~A SECTION"},
        {"~V\nVERS. 2.0:\n~C\nGR.API:\n~A\n1 2\n", " LINE      3 NO DEPTH CURVE: DEPT, DEPTH OR MD"},
        {head + "~A\n", " LINE      7 NO DATA IN THE ~A SECTION"},
        {head + "~A\n1.0 8.5\n1.5 8.5 3\n", " LINE      9 3 VALUES FOR 2 CURVES"},
        {wrapped + "1.0\n8.5\n3\n1.5\n8.5 3 7\n", " LINE     13 WRAPPED STEP OF LINE 12 RUNS PAST 3 CURVES"},
        {wrapped + "1.0\n8.5 3\n1.5\n8.5\n", " LINE     11 WRAPPED STEP: 2 VALUES FOR 3 CURVES"},
        {head + "~A\n1.0 8.5\n1.5 8.5\n1.2 8.5\n", " LINE     10 DEPTH 1.2000 AFTER 1.5000 GOES BACK"},
    };
    for (const auto& c : cases) {
        clear();
        write_file("bad.las", c.text);
        read({"1000", "bad.las", "", "", "99"});
        const int k = find(c.line);
        ASSERT_GT(k, 9) << c.line;
        EXPECT_EQ(lines(k - 10, 12), error_head_lines("  lasopen1   ") +
                                         (lines_t{" LAS FILE: bad.las", c.line, " input file bad.las closed"}));
        EXPECT_GT(find(" INPUT FILE HAS NOT BEEN READ", k), k);
        EXPECT_EQ(current_id(), 0);
        EXPECT_EQ(welldat.ndatwd, 0);
    }
}

TEST_F(ReadLas, MoreStepsThanTheStoreHoldsAreReadByIntervalAndDecimation) {
    std::string text = "~V\nVERS. 2.0:\nWRAP. NO:\n~C\nDEPT.M:\nCAL.CM:\n~A\n";
    for (int i = 0; i < 20000; ++i) text += std::to_string(100 + i) + " " + std::to_string(i % 7) + "\n";
    write_file("long.las", text);
    // Refused as it stands; then 1000 to 19099 m, one step in 2.
    read({"1000", "long.las", "", "", "", "", "300", "1000", "19099", "", "", "99"});
    EXPECT_EQ(count(" DEPTH STEPS TO READ:  20000"), 2);
    EXPECT_GT(find(" New value =             2"), 0);
    EXPECT_EQ(current_id(), 300);
    EXPECT_EQ(welldat.ndatwd, 9050);
    EXPECT_EQ(welldat.RWD1(1, 1), 1000.f);
    EXPECT_EQ(welldat.RWD1(2, 1), 1002.f);
    EXPECT_EQ(welldat.RWD1(2, 2), float(902 % 7));
    EXPECT_EQ(frame(" rows in file             :  20000", 4)[3], " dropped: no depth        :      0");
}

}  // namespace
