// Command 100: choosing the type of a well file and reading it, through the
// in-memory console, on the sample files of data/.
#include <gtest/gtest.h>

#include <cstdio>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "lines.h"
#include "well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";

struct ReadWell : WellDialogue {
    // Header set-up OK, correspondence OK, read and exit, then leave.
    void read_defaults(const std::string& file) { type({"1000", file, "99", "99", "1000", "99"}); }
    void read() {
        run([] { readwell2(2); });
    }
    // The summary after a read, from the count on.
    lines_t summary(const std::string& count, const std::string& depth, const std::string& p1az) const {
        return {" Number of read data = " + count, DASH, " | Variable | Minimum | | Maximum |",
                " | Depth    | " + depth + " |", " | P1Az     | " + p1az + " |", DASH};
    }
    // The error frame of routine name13 ending just before the line text,
    // which must be on the screen.
    int after_error_frame(const std::string& text, const std::string& name13, int from = 0) {
        int k = find(text, from);
        EXPECT_GT(k, 8) << text;
        if (k > 8) {
            EXPECT_EQ(lines(k - 9, 9), error_head_lines(name13)) << text;
        }
        return k;
    }
};

TEST_F(ReadWell, OffersType200WhenNothingIsLoadedReadsTheSampleWellAndATypeChangeThenCancelLeavesNone) {
    read_defaults(sample("well210.txt"));
    read();
    EXPECT_EQ(screen_block(*this, " CURRENT DEFAULT TYPE:", 6), (lines_t{" CURRENT DEFAULT TYPE:", " Type name    : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                    " Type ID      : 200", " Type index   :   3", " Maximum index:   5",
                                    " Can read at most  15000 data lines"}));
    // The label of a long type name is cut to 25 characters.
    EXPECT_GT(find(" Enter Depth,P1Az,C1,C2,RB,DEVI, file name"), 0);
    EXPECT_EQ(screen_block(*this, " Number of read data =    8000", 6),
              summary("   8000", "2000.00 | | 3219.05", "   0.04 | |  359.86"));
    // After the read the menu shows what is loaded.
    EXPECT_GT(find(" Currently stored   8000 data"), find(" Number of read data =    8000"));

    // The data status block.
    clear();
    int ilist = 0;
    status(ilist, 1);
    EXPECT_EQ(screen(), (lines_t{DASH, " WELL DATA STATUS", DASH, " type name      : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                 " type id        :    200", " nb of variables:      7", " nb of data     :   8000",
                                 " max nb of data :  15000", " input file name: well210.txt",
                                 " title          : Synthetic well A, 9 7/8 in bit, type 210"}));

    // Over the loaded well: type 100, then leave the reader without reading.
    clear();
    type({"100", "100", "99", "1000", "well210.txt", "99", "99", "99", "", "99"});
    read();
    EXPECT_EQ(screen_block(*this, " EXITING WITHOUT READING DATA FILE", 2),
              (lines_t{" EXITING WITHOUT READING DATA FILE", " input file well210.txt closed"}));
    const int w = find(" INPUT FILE HAS NOT BEEN READ");
    ASSERT_GT(w, find(" EXITING WITHOUT READING DATA FILE"));
    EXPECT_EQ(lines(w - 4, 6), (warning_head_lines("  readwell   ") +
                                   lines_t{" INPUT FILE HAS NOT BEEN READ", " ====> DATA RESET TO NONE"}));
    // The pending type is still the one chosen.
    EXPECT_GT(find(" Type ID      : 100", w), w);

    EXPECT_EQ(current_id(), 0);
    EXPECT_EQ(welldat.ndatwd, 0);
    EXPECT_EQ(welldat.finwd.trimmed(), "none");
}

// Every value of the file comes back as the nearest 4-byte real of what the
// generator wrote.
TEST_F(ReadWell, Type210ReadsEveryColumnAsWritten) {
    type({"100", "210", "99"});
    read_defaults(sample("well210.txt"));
    read();
    ASSERT_EQ(current_id(), 210);
    ASSERT_EQ(welldat.ndatwd, 8000);
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
            if (welldat.RWD1(i, welldat.JCOL(j)) != std::strtof(tok.c_str(), nullptr) && ++mismatches < 5)
                ADD_FAILURE() << "row " << i << " column " << j << ": " << tok;
        }
    }
    EXPECT_EQ(i, 8000);
    EXPECT_EQ(mismatches, 0);
    // What the generator wrote at the end, as data/README.md gives it.
    EXPECT_EQ(welldat.RWD1(8000, 1), 3219.0476f);
}

TEST_F(ReadWell, EachOtherTypeReadsItsSample) {
    struct {
        const char *id, *file;
        int n;
        const char *depth, *p1az;
    } cases[] = {{"100", "well100.txt", 1500, "1000.00 | | 1228.45", "   0.31 | |  359.51"},
                 {"110", "well110.txt", 1000, "2500.00 | | 2652.25", "   0.49 | |  359.79"},
                 {"200", "well200.txt", 1200, "1800.00 | | 1982.73", "   0.04 | |  359.27"},
                 {"300", "well300.txt", 800, "", ""}};
    for (const auto& c : cases) {
        clear();
        type({"100", c.id, "99"});
        read_defaults(sample(c.file));
        read();
        EXPECT_EQ(current_id(), std::atoi(c.id));
        EXPECT_EQ(welldat.ndatwd, c.n);
        char count[12];
        std::snprintf(count, sizeof count, " %6d", c.n);
        if (*c.depth == 0)  // type 300 prints no summary
            EXPECT_EQ(find(" | Variable | Minimum | | Maximum |"), -1);
        else
            EXPECT_EQ(screen_block(*this, " Number of read data = " + std::string(count), 6),
                      summary(count, c.depth, c.p1az)) << c.file;
    }
    EXPECT_EQ(welldat.RWD1(800, welldat.JCOL(welldat.jdepth)), 621.7676f);
}

// ---------------------------------------------------------------------------
// Broken files: each leads to its frame, and leaving the recovery menu
// resets the data to NONE.

// Letters in a number stop the read at their line; the recovery menu tries
// the same file again or opens a new one.
TEST_F(ReadWell, LettersInANumberStopTheReadAndTheRecoveryMenuRetriesOrTakesANewFile) {
    sample("broken_letter.txt");
    type({"1000", "broken_letter.txt", "99", "99", "1000", "", "", "1",
          // The same dialogue again on the rewound file, the same failure, and 99 leaves.
          "99", "99", "1000", "", "", "99", "", "99"});
    read();
    int e = after_error_frame(" WHILE READING      8 th DATA LINE", "  getfreal   ");
    EXPECT_EQ(lines(e + 1, 2), (lines_t{" IN FILE: broken_letter.txt", " input file broken_letter.txt rewound"}));
    int r = after_error_frame(" WHILE READING DATA", "  readreal6  ", e);
    EXPECT_EQ(lines(r, 4), (lines_t{" WHILE READING DATA", " IN FILE: broken_letter.txt",
                                    " ------------------------------", " Try again on same file ......1"}));
    EXPECT_EQ(count(" WHILE READING DATA"), 2);
    EXPECT_GT(find(" INPUT FILE HAS NOT BEEN READ", r), r);
    EXPECT_EQ(current_id(), 0);

    clear();
    sample("well200.txt");
    type({"1000", "broken_letter.txt", "99", "99", "1000", "", "", "0", "well200.txt", "99", "99", "1000", "99"});
    read();
    EXPECT_GT(find(" input file broken_letter.txt closed"), 0);
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 1200);
    EXPECT_EQ(welldat.finwd.trimmed(), "well200.txt");
}

TEST_F(ReadWell, AShortLineAndAFileWithoutHeaderLinesAreReadAsTheyCome) {
    read_defaults(sample("broken_short_line.txt"));
    read();
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 20);
    EXPECT_EQ(welldat.RWD1(6, 1), 2000.762f);

    type({"100", "210", "99"});
    read_defaults("broken_short_line.txt");
    read();
    EXPECT_EQ(current_id(), 210);
    // Sample 5 takes its AzCmax from the depth of line 6; sample 6 is line 7.
    EXPECT_EQ(welldat.RWD1(5, 8), 2000.762f);
    EXPECT_EQ(welldat.RWD1(6, 1), 2000.9144f);
    EXPECT_GT(find(" Number of read data =      19"), 0);

    // Without header lines the default layout takes two samples as its header.
    read_defaults(sample("broken_no_header.txt"));
    read();
    EXPECT_EQ(welldat.ndatwd, 18);
    EXPECT_EQ(welldat.titlewd.trimmed(), "2000.0000");
    EXPECT_GT(find(" ==>Line nb:   1 = Header: Title ==========="), 0);
    EXPECT_EQ(welldat.RWD1(1, 1), 2000.3048f);
}

TEST_F(ReadWell, AnEmptyFileFailsAtTheTitle) {
    type({"1000", sample("broken_empty.txt"), "", "99", "", "", "99", "", "99"});
    read();
    EXPECT_EQ(find(" WHILE READING      1 th LINE"), find(" REACHED END OF FILE") + 2);
    int t = after_error_frame(" WHILE TRYING TO READ TITLE IN      1 th LINE", "  getftitle1 ");
    EXPECT_GT(find(" WHILE READING TITLE", t), t);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AFileShorterThanItsHeaderFailsAtTheColumnNames) {
    type({"1000", sample("broken_title_only.txt"), "", "99", "", "", "99", "", "99", "", "99"});
    read();
    int n = after_error_frame(" WHILE TRYING TO READ HEADERS IN      2 th LINE", "  getfnamcol ");
    int c = after_error_frame(" COULD NOT READ COLUMN HEADERS", "  scol2var2  ", n);
    EXPECT_GT(find(" WHILE READING COLUMN HEADERS", c), c);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(ReadWell, AFileOfHeaderLinesOnlyReadsNoData) {
    type({"1000", sample("broken_header_only.txt"), "", "99", "99", "1000", "99"});
    read();
    EXPECT_EQ(current_id(), 200);
    EXPECT_EQ(welldat.ndatwd, 0);
    // The extremes keep their start values, which don't fit the field.
    EXPECT_GT(find(" | Depth    | ******* | | ******* |"), 0);
}

// ---------------------------------------------------------------------------
// The size of the store: 15000 lines fill it, with a warning.

TEST_F(ReadWell, FifteenThousandLinesFillTheStore) {
    for (int n : {14999, 15000, 15007}) {
        SCOPED_TRACE(n);
        clear();
        const std::string name = "lines" + std::to_string(n) + ".txt";
        std::FILE* f = std::fopen(name.c_str(), "w");
        std::fprintf(f, "'%d lines'\n'Depth' 'P1Az' 'C1' 'C2' 'RB' 'DEVI' 'HAZI'\n", n);
        for (int i = 1; i <= n; ++i) std::fprintf(f, "%.4f %d 21.6 21.7 10 2 30\n", 1000.0 + 0.1524 * (i - 1), i % 360);
        std::fclose(f);
        const bool full = n >= 15000;  // the warning asks for the return key
        type({"1000", name, "99", "99", "1000"});
        if (full) con.type("");
        type({"99"});
        read();
        EXPECT_EQ(count(" The array size has been reached"), full ? 1 : 0);
        EXPECT_EQ(welldat.ndatwd, std::min(n, 15000));
        EXPECT_EQ(welldat.RWD1(std::min(n, 15000), 2), float(std::min(n, 15000) % 360));
        if (full) {
            const int a = find(" The array size has been reached");
            ASSERT_GT(a, 3);
            EXPECT_EQ(lines(a - 4, 6), (warning_head_lines("  getfreal   ") +
                                           lines_t{" The array size has been reached",
                                                   " ==> the data may not have been fully read"}));
            EXPECT_GT(find(" Number of read data =   15000"), a);
        }
    }
}

}  // namespace
