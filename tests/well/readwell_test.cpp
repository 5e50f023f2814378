// Command 100: choosing the type of a well file and reading it, through the
// in-memory console, on the sample files of data/.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "well_fixture.h"

namespace {

const std::string DASH = " -------------------------------------------";

struct ReadWell : WellDialogue {
    // Header set-up OK, correspondence OK, read and exit, then leave.
    void read_defaults(const std::string& file) {
        type({"1000", file, "99", "99", "1000", "99"});
    }
    std::vector<std::string> summary(const std::string& count, const std::string& depth,
                                     const std::string& p1az) const {
        return {DASH,
                " Number of read data = " + count,
                DASH,
                " | Variable | Minimum | | Maximum |",
                " | Depth    | " + depth + " |",
                " | P1Az     | " + p1az + " |",
                DASH};
    }
};

TEST_F(ReadWell, OffersType200WhenNothingIsLoadedAndReadsTheSampleWell) {
    read_defaults(sample("well210.txt"));
    run([] { readwell2(2); });

    int m = find(" CURRENT DEFAULT TYPE:");
    ASSERT_GT(m, 0);
    std::vector<std::string> pending = {
        " CURRENT DEFAULT TYPE:",
        " Type name    : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
        " Type ID      : 200",
        " Type index   :   3",
        " Maximum index:   5",
        " Can read at most  15000 data lines",
        " - - - - - - - - - - - - - - - - - - - - -",
        " CHANGE TYPE ..........................100",
        DASH,
        " TYPE OK => READ FILE ................1000",
        " EXIT ..................................99",
    };
    EXPECT_EQ(lines(m, int(pending.size())), pending);
    // The label of a long type name is cut to 25 characters.
    EXPECT_GT(find(" Enter Depth,P1Az,C1,C2,RB,DEVI, file name"), 0);

    int s = find(" Number of read data =    8000");
    ASSERT_GT(s, 0);
    EXPECT_EQ(lines(s - 1, 7), summary("   8000", "2000.00 | | 3219.05", "   0.04 | |  359.86"));

    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 8000);
    EXPECT_EQ(welldat.ncolwd, 7);
    EXPECT_EQ(welldat.nvarwd, 7);
    EXPECT_EQ(welldat.finwd.trimmed(), "well210.txt");
    EXPECT_EQ(welldat.titlewd.trimmed(), "Synthetic well A, 9 7/8 in bit, type 210");
    EXPECT_EQ(welldat.NAMCOL(7).trimmed(), "HAZI");
    EXPECT_EQ(welldat.NAMCOL(8).trimmed(), "Nodata.8");
    // After the read the menu shows what is loaded.
    EXPECT_GT(find(" Currently stored   8000 data"), s);
}

TEST_F(ReadWell, TheDataStatusBlockShowsTypeFileAndCount) {
    int ilist = 0;
    status(ilist, 1);
    std::vector<std::string> none = {
        DASH,
        " WELL DATA STATUS",
        DASH,
        " type name      : NONE",
        " type id        :      0",
        " nb of variables:      0",
        " nb of data     :      0",
        " max nb of data :  15000",
        " input file name: none",
        " title          : none",
    };
    EXPECT_EQ(screen(), none);

    read_defaults(sample("well210.txt"));
    run([] { readwell2(2); });
    clear();
    status(ilist, 1);
    std::vector<std::string> loaded = {
        DASH,
        " WELL DATA STATUS",
        DASH,
        " type name      : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
        " type id        :    200",
        " nb of variables:      7",
        " nb of data     :   8000",
        " max nb of data :  15000",
        " input file name: well210.txt",
        " title          : Synthetic well A, 9 7/8 in bit, type 210",
    };
    EXPECT_EQ(screen(), loaded);
}

// Every value of the file comes back as the nearest 4-byte real of what the
// generator wrote.
TEST_F(ReadWell, Type210ReadsEveryColumnAsWritten) {
    type({"100", "210", "99"});
    read_defaults(sample("well210.txt"));
    run([] { readwell2(2); });
    ASSERT_EQ(current_id(), 210);
    ASSERT_EQ(welldat.ndatwd, 8000);
    EXPECT_EQ(welldat.NAMCOL(8).trimmed(), "AzCmax");
    EXPECT_EQ(welldat.jazcmax, 8);

    std::ifstream in("well210.txt");
    std::string line;
    std::getline(in, line);
    std::getline(in, line);
    int i = 0, mismatches = 0;
    while (std::getline(in, line)) {
        ++i;
        std::istringstream fields(line);
        std::string tok;
        for (int j = 1; j <= 8; ++j) {
            fields >> tok;
            float want = std::strtof(tok.c_str(), nullptr);
            if (welldat.RWD1(i, welldat.JCOL(j)) != want && ++mismatches < 5)
                ADD_FAILURE() << "row " << i << " column " << j << ": " << tok;
        }
    }
    EXPECT_EQ(i, 8000);
    EXPECT_EQ(mismatches, 0);
    // What the generator wrote at both ends, as data/README.md gives them.
    EXPECT_EQ(welldat.RWD1(1, 1), 2000.0f);
    EXPECT_EQ(welldat.RWD1(1, 2), 10.44f);
    EXPECT_EQ(welldat.RWD1(8000, 1), 3219.0476f);
    // Saturated arms read their maximum exactly.
    EXPECT_EQ(welldat.RWD1(5101, welldat.JCOL(welldat.jc1)), 37.0f);
    EXPECT_EQ(welldat.RWD1(5101, welldat.JCOL(welldat.jc2)), 37.0f);
}

TEST_F(ReadWell, ATypeChangeThenCancelLeavesNone) {
    read_defaults(sample("well210.txt"));
    run([] { readwell2(2); });
    ASSERT_EQ(welldat.ndatwd, 8000);
    clear();

    // Type 100, then leave the reader without reading.
    type({"100", "100", "99", "1000", "well210.txt", "99", "99", "99", "", "99"});
    run([] { readwell2(2); });
    int x = find(" EXITING WITHOUT READING DATA FILE");
    ASSERT_GT(x, 0);
    EXPECT_EQ(screen()[std::size_t(x + 1)], " input file well210.txt closed");
    int w = find(" INPUT FILE HAS NOT BEEN READ", x);
    ASSERT_GT(w, x);
    EXPECT_EQ(lines(w - 4, 4), warning_head_lines("  readwell   "));
    EXPECT_EQ(screen()[std::size_t(w + 1)], " ====> DATA RESET TO NONE");
    EXPECT_EQ(current_id(), 0);
    EXPECT_EQ(welldat.ndatwd, 0);
    EXPECT_EQ(welldat.nvarwd, 0);
    EXPECT_EQ(welldat.finwd.trimmed(), "none");
    // The pending type is still the one chosen.
    EXPECT_GT(find(" Type ID      : 100", w), w);
}

TEST_F(ReadWell, AnswerNinetyNineInTheTypeMenuKeepsThePendingType) {
    type({"100", "99", "99"});
    run([] { readwell2(2); });
    EXPECT_EQ(count(" Type ID      : 200"), 3);  // before, in the type menu, after
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AnUnknownCommandIsRefusedWithAWarning) {
    type({"5", "", "99"});
    run([] { readwell2(2); });
    int u = find(" UNKNOWN ANSWER !");
    ASSERT_GT(u, 0);
    EXPECT_EQ(lines(u - 4, 4), warning_head_lines("  readwell   "));
    EXPECT_EQ(screen()[std::size_t(u + 1)], " ==> BACK TO MENU WITHOUT ACTION");
}

TEST_F(ReadWell, Type300PrintsNoSummary) {
    type({"100", "300", "99"});
    read_defaults(sample("well300.txt"));
    run([] { readwell2(2); });
    EXPECT_EQ(current_id(), 300);
    EXPECT_EQ(welldat.ndatwd, 800);
    EXPECT_EQ(welldat.RWD1(800, welldat.JCOL(welldat.jdepth)), 621.7676f);
    EXPECT_EQ(find(" Number of read data =     800"), -1);
    EXPECT_EQ(count(" | Variable | Minimum | | Maximum |"), 0);
}

TEST_F(ReadWell, EachOtherTypeReadsItsSample) {
    struct {
        const char* id;
        const char* file;
        int n;
        const char* depth;
        const char* p1az;
    } cases[] = {{"100", "well100.txt", 1500, "1000.00 | | 1228.45", "   0.31 | |  359.51"},
                 {"110", "well110.txt", 1000, "2500.00 | | 2652.25", "   0.49 | |  359.79"},
                 {"200", "well200.txt", 1200, "1800.00 | | 1982.73", "   0.04 | |  359.27"}};
    for (const auto& c : cases) {
        clear();
        type({"100", c.id, "99"});
        read_defaults(sample(c.file));
        run([] { readwell2(2); });
        EXPECT_EQ(current_id(), std::atoi(c.id));
        EXPECT_EQ(welldat.ndatwd, c.n);
        char count[12];
        std::snprintf(count, sizeof count, " %6d", c.n);
        int s = find(" Number of read data = " + std::string(count));
        ASSERT_GT(s, 0) << c.file;
        EXPECT_EQ(lines(s - 1, 7), summary(count, c.depth, c.p1az)) << c.file;
    }
}

// ---------------------------------------------------------------------------
// Broken files: each leads to its frame, and leaving the recovery menu
// resets the data to NONE.

TEST_F(ReadWell, LettersInANumberStopTheReadAtTheirLine) {
    sample("broken_letter.txt");
    // Read fails; leave the recovery menu with 99.
    type({"1000", "broken_letter.txt", "99", "99", "1000", "", "", "99", "", "99"});
    run([] { readwell2(2); });
    int e = find(" WHILE READING      8 th DATA LINE");
    ASSERT_GT(e, 0);
    EXPECT_EQ(lines(e - 9, 9), error_head_lines("  getfreal   "));
    EXPECT_EQ(lines(e + 1, 2),
              (std::vector<std::string>{" IN FILE: broken_letter.txt",
                                        " input file broken_letter.txt rewound"}));
    int r = find(" WHILE READING DATA", e);
    ASSERT_GT(r, e);
    EXPECT_EQ(lines(r - 9, 9), error_head_lines("  readreal6  "));
    std::vector<std::string> recovery = {
        " WHILE READING DATA",
        " IN FILE: broken_letter.txt",
        " ------------------------------",
        " Try again on same file ......1",
        " New file ....................0",
        " Exit .......................99",
        " ===> HIT RETURN TO CONTINUE",
        " " + std::string(50, '*'),
    };
    EXPECT_EQ(lines(r, int(recovery.size())), recovery);
    EXPECT_GT(find(" INPUT FILE HAS NOT BEEN READ", r), r);
    EXPECT_EQ(current_id(), 0);
    EXPECT_EQ(welldat.ndatwd, 0);
}

TEST_F(ReadWell, TheRecoveryMenuOpensANewFile) {
    sample("broken_letter.txt");
    sample("well200.txt");
    type({"1000", "broken_letter.txt", "99", "99", "1000", "", "", "0", "well200.txt", "99",
          "99", "1000", "99"});
    run([] { readwell2(2); });
    EXPECT_GT(find(" input file broken_letter.txt closed"), 0);
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 1200);
    EXPECT_EQ(welldat.finwd.trimmed(), "well200.txt");
}

TEST_F(ReadWell, TheRecoveryMenuTriesTheSameFileAgain) {
    sample("broken_letter.txt");
    type({"1000", "broken_letter.txt", "99", "99", "1000", "", "", "1",
          // The same dialogue again on the rewound file, and the same failure.
          "99", "99", "1000", "", "", "99", "", "99"});
    run([] { readwell2(2); });
    EXPECT_GT(find(" input file broken_letter.txt rewound"), 0);
    EXPECT_EQ(count(" WHILE READING DATA"), 2);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AShortLineLosesTheRestOfTheNextLine) {
    type({"100", "210", "99"});
    read_defaults(sample("broken_short_line.txt"));
    run([] { readwell2(2); });
    EXPECT_EQ(current_id(), 210);
    EXPECT_EQ(welldat.ndatwd, 19);
    // Sample 5 takes its AzCmax from the depth of line 6; sample 6 is line 7.
    EXPECT_EQ(welldat.RWD1(5, 8), 2000.762f);
    EXPECT_EQ(welldat.RWD1(6, 1), 2000.9144f);
    EXPECT_GT(find(" Number of read data =      19"), 0);
}

TEST_F(ReadWell, AShortLineIsCompleteForATypeWithFewerColumns) {
    read_defaults(sample("broken_short_line.txt"));
    run([] { readwell2(2); });
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 20);
    EXPECT_EQ(welldat.RWD1(6, 1), 2000.762f);
}

TEST_F(ReadWell, DepthsOfAHundredThousandAreKeptButNotSummarised) {
    std::FILE* f = std::fopen("deep.txt", "w");
    std::fputs("'deep'\n'Depth' 'P1Az' 'C1' 'C2'\n100000 10 21 22\n100001.5 20 21 22\n", f);
    std::fclose(f);
    type({"100", "100", "99"});
    read_defaults("deep.txt");
    run([] { readwell2(2); });
    EXPECT_EQ(welldat.ndatwd, 2);
    EXPECT_EQ(welldat.RWD1(2, 1), 100001.5f);
    // The minimum keeps its start value, which is too wide for the field.
    EXPECT_GT(find(" | Depth    | ******* | | ******* |"), 0);
    EXPECT_GT(find(" | P1Az     |   10.00 | |   20.00 |"), 0);
}

TEST_F(ReadWell, WithoutHeaderLinesTheDefaultLayoutTakesTwoSamplesAsHeader) {
    read_defaults(sample("broken_no_header.txt"));
    run([] { readwell2(2); });
    EXPECT_EQ(welldat.ndatwd, 18);
    EXPECT_EQ(welldat.titlewd.trimmed(), "2000.0000");
    EXPECT_GT(find(" ==>Line nb:   1 = Header: Title ==========="), 0);
    EXPECT_EQ(welldat.RWD1(1, 1), 2000.3048f);
}

TEST_F(ReadWell, HeaderLinesSetToNoneReadEveryLine) {
    sample("broken_no_header.txt");
    type({"1000", "broken_no_header.txt", "110", "0", "120", "0", "130", "0", "99",
          "",            // title not read
          "",            // again, for the correspondence display
          "",            // column names not read
          "99", "1000",  // correspondence OK, read
          "",            // title not read, before the data
          "99"});
    run([] { readwell2(2); });
    EXPECT_EQ(welldat.ndatwd, 20);
    EXPECT_EQ(welldat.titlewd.trimmed(), "Untitled");
    EXPECT_EQ(welldat.NAMCOL(1).trimmed(), "File.col.1");
    EXPECT_EQ(welldat.RWD1(1, 1), 2000.0f);
    EXPECT_EQ(count(" ==> NOT ATTEMPTING TO READ TITLE"), 3);
    int h = find(" ==> NOT ATTEMPTING TO READ HEADERS");
    ASSERT_GT(h, 0);
    EXPECT_EQ(screen()[std::size_t(h + 2)], " Name of column  1 File.col.1 ");
}

TEST_F(ReadWell, AnEmptyFileFailsAtTheTitle) {
    type({"1000", sample("broken_empty.txt"), "", "99", "", "", "99", "", "99"});
    run([] { readwell2(2); });
    int eof = find(" REACHED END OF FILE");
    ASSERT_GT(eof, 0);
    EXPECT_EQ(screen()[std::size_t(eof + 2)], " WHILE READING      1 th LINE");
    int t = find(" WHILE TRYING TO READ TITLE IN      1 th LINE");
    ASSERT_GT(t, eof);
    EXPECT_EQ(lines(t - 9, 9), error_head_lines("  getftitle1 "));
    EXPECT_GT(find(" WHILE READING TITLE", t), t);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AFileShorterThanItsHeaderFailsAtTheColumnNames) {
    type({"1000", sample("broken_title_only.txt"), "", "99", "", "", "99", "", "99", "", "99"});
    run([] { readwell2(2); });
    int n = find(" WHILE TRYING TO READ HEADERS IN      2 th LINE");
    ASSERT_GT(n, 0);
    EXPECT_EQ(lines(n - 9, 9), error_head_lines("  getfnamcol "));
    int c = find(" COULD NOT READ COLUMN HEADERS", n);
    ASSERT_GT(c, n);
    EXPECT_EQ(lines(c - 9, 9), error_head_lines("  scol2var2  "));
    EXPECT_GT(find(" WHILE READING COLUMN HEADERS", c), c);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AFileOfHeaderLinesOnlyReadsNoData) {
    type({"1000", sample("broken_header_only.txt"), "", "99", "99", "1000", "99"});
    run([] { readwell2(2); });
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 0);
    // The extremes keep their start values, which don't fit the field.
    EXPECT_GT(find(" | Depth    | ******* | | ******* |"), 0);
}

// ---------------------------------------------------------------------------
// The size of the store.

void write_lines(const std::string& name, int n) {
    std::FILE* f = std::fopen(name.c_str(), "w");
    std::fprintf(f, "'%d lines'\n'Depth' 'P1Az' 'C1' 'C2' 'RB' 'DEVI' 'HAZI'\n", n);
    for (int i = 1; i <= n; ++i)
        std::fprintf(f, "%.4f %d 21.6 21.7 10 2 30\n", 1000.0 + 0.1524 * (i - 1), i % 360);
    std::fclose(f);
}

TEST_F(ReadWell, ExactlyFifteenThousandLinesFillTheStoreWithAWarning) {
    write_lines("lines15000.txt", 15000);
    type({"1000", "lines15000.txt", "99", "99", "1000", "", "99"});
    run([] { readwell2(2); });
    int a = find(" The array size has been reached");
    ASSERT_GT(a, 0);
    EXPECT_EQ(lines(a - 4, 4), warning_head_lines("  getfreal   "));
    EXPECT_EQ(screen()[std::size_t(a + 1)], " ==> the data may not have been fully read");
    EXPECT_EQ(welldat.ndatwd, 15000);
    EXPECT_EQ(welldat.RWD1(15000, 2), float(15000 % 360));
    EXPECT_GT(find(" Number of read data =   15000"), a);
}

TEST_F(ReadWell, ALargerFileStopsAtFifteenThousand) {
    write_lines("lines15007.txt", 15007);
    type({"1000", "lines15007.txt", "99", "99", "1000", "", "99"});
    run([] { readwell2(2); });
    EXPECT_EQ(count(" The array size has been reached"), 1);
    EXPECT_EQ(welldat.ndatwd, 15000);
    EXPECT_EQ(welldat.RWD1(15000, 2), float(15000 % 360));
}

TEST_F(ReadWell, OneLineLessGivesNoWarning) {
    write_lines("lines14999.txt", 14999);
    type({"1000", "lines14999.txt", "99", "99", "1000", "99"});
    run([] { readwell2(2); });
    EXPECT_EQ(count(" The array size has been reached"), 0);
    EXPECT_EQ(welldat.ndatwd, 14999);
}

// The first job of a user: read the sample well and look at the parameters.
TEST_F(ReadWell, MainJobReadsTheSampleWellAndShowsTheParameters) {
    read_defaults(sample("well210.txt"));
    type({"99"});
    run([] {
        readwell2(2);
        swellparam(0);
    });
    EXPECT_EQ(welldat.ndatwd, 8000);
    EXPECT_GT(find(" Bit size .............................103     25.083"), 0);
}

}  // namespace
