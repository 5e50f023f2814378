// The table writers: the set-up menu and its checks, the file codes, the
// blocks of the file, and a well table written and read back.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "lines.h"
#include "shell/runinfo.h"
#include "shell/stop.h"
#include "tables/writetable.h"
#include "well/well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";

// Three variables on the columns 3, 1, 2 of six rows.
struct Writer : WellDialogue {
    farr2<float, 6, 3> data;
    farr<fstr<16>, 3> names;
    farr<int, 3> jcol;
    fstr<80> fout = "out.txt";
    int ifmt = 1, ihd = 1, ioca = 1;

    void SetUp() override {
        WellDialogue::SetUp();
        iocom.lpause = false;
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        const float c[3][6] = {{100.f, 100.5f, 101.f, 101.5f, 102.f, 102.5f},
                               {25.5f, -3.25f, 0.f, 1.f, 30.f, 9.f},
                               {24.f, 1234.5678f, 7.f, 2.f, 20.f, 9.f}};
        for (int i = 1; i <= 6; ++i)
            for (int j = 1; j <= 3; ++j) data(i, j) = c[j - 1][i - 1];
        names(1) = "C2", names(2) = "Depth", names(3) = "C1";
        jcol(1) = 3, jcol(2) = 1, jcol(3) = 2;
    }
    void write(int unit, int intera, int nlines = 4) {
        writereal6(ifmt, ihd, ioca, unit, fout, "in.txt", "Three columns ", "TEST", "Depth,C1,C2",
                   7, data.a, 6, 3, nlines, names, jcol.data(), 3, 3, intera);
    }
    void extract(const std::vector<int>& key, int first, int last, int intera = 1) {
        writextreal1(ifmt, ihd, ioca, 55, fout, "in.txt", "Extract", "TEST", "Depth,C1,C2", 7,
                     first, last, key.data(), 1, data.a, 6, 3, 5, names, jcol.data(), 3, 3,
                     intera);
    }
};

TEST_F(Writer, BadCodesAreResetTheMenuSetsFormatAndHeaderAndAClosedFileSendsBack) {
    ifmt = 0, ihd = 5, ioca = 7;
    type({"12", "22", "13", "99"});
    run([&] { write(55, 0); });
    EXPECT_EQ((std::vector<int>{ifmt, ihd, ioca}), (std::vector<int>{2, 2, 1}));
    // The header code is shown under the format's name.
    const std::string head = error_head_lines("  writereal  ")[3];
    lines_t frames;
    for (int k = find(head); k >= 0; k = find(head, k + 1))
        for (const auto& l : lines(k + 6, 4)) frames.push_back(l);
    EXPECT_EQ(frames, (lines_t{" file managment pb", " ioca     =      7", " not in [0,3]", " ==> RESET TO      1",
                               " format pb", " ifmtouta =      0", " not in [1,2]", " ==> RESET TO      1",
                               " format pb", " ifmtouta =      5", " not in [1,2]", " ==> RESET TO      2"}));
    const int m = find(" CURRENT FILE MANAGEMENT");
    EXPECT_EQ(lines(m - 3, 32),
              (lines_t{" @ subroutine writereal             v5.0 2024-06-07",
                       " @=================================================", DASH, " CURRENT FILE MANAGEMENT", DASH,
                       " index:      1", " unit :     55", " name : out.txt", DASH, " CURRENT FORMAT", DASH,
                       " name : f15.4,tab", " index:      1", " ---------------------", " modify format:",
                       " Format......................Command", " f15.4,tab........................11",
                       " f15.4,space......................12", DASH, " CURRENT HEADER", DASH,
                       " name : Full: Prog + data info + Std", " index:      2", " ---------------------",
                       " modify header:", " Header......................Command",
                       " Standard: Title + Col headers....21", " Full: Prog + data info + Std.....22", DASH,
                       " SET UP IS OK, WRITE & EXIT ......90", " EXIT WITHOUT WRITING ............99",
                       " " + std::string(50, '@')}));
    EXPECT_EQ(count(" CURRENT HEADER"), 4);  // 12, 22 and 13 each show it again

    // A file that must be open and isn't: back to the menu, or without a
    // menu nothing written.
    clear();
    ioca = 0;
    type({"", "99"});
    run([&] { write(55, 0); });
    const int k = find(" is not already opened");
    EXPECT_EQ(lines(k - 3, 6),
              (lines_t{" output file status:", " file name: out.txt", " unit     :     55", " is not already opened",
                       " ==> it must be opened before writing", " ==> back to menu in interactive mode"}));
    EXPECT_EQ(count(" CURRENT FILE MANAGEMENT"), 2);
    ioca = 3;
    write(55, 1);
    EXPECT_EQ(count(" WRITING COMPLETED"), 0);
    EXPECT_FALSE(std::filesystem::exists("out.txt"));
}

TEST_F(Writer, OnTheTerminalNothingIsClosed) {
    ifmt = 2;
    write(iocom.isout, 1, 2);
    const int k = find(" ==> output to terminal");
    EXPECT_EQ(lines(k + 2, 4),
              (lines_t{" 'Three columns'", " C2              Depth           C1             ",
                       "         24.0000        100.0000         25.5000",
                       "       1234.5677        100.5000         -3.2500"}));
    EXPECT_EQ(lines(k + 11, 3), (lines_t{" NUMBER OF SAVED COLUMNS =    3", " NUMBER OF SAVED LINES   =    2",
                                         " OUTPUT FILE out.txt REMAINS OPEN"}));
}

// A disk that fills while the table is written: the error frame instead of
// the report of a table written, and the file closed with what it took.
TEST_F(Writer, ATableTheDiskWontTakeIsReportedAndClosed) {
    rlimit old;
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit small = old;
    small.rlim_cur = 100;
    setrlimit(RLIMIT_FSIZE, &small);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    write(55, 1);
    std::signal(SIGXFSZ, handler);
    setrlimit(RLIMIT_FSIZE, &old);
    const int k = find(" COULD NOT WRITE output table FILE");
    ASSERT_GT(k, 0);
    EXPECT_EQ(lines(k + 1, 2), (lines_t{" File name = out.txt", " for unit =   55"}));
    EXPECT_EQ(find(" WRITING COMPLETED"), -1);
    EXPECT_FALSE(unit_is_open(55));
    EXPECT_EQ(std::filesystem::file_size("out.txt"), 100u);
}

TEST_F(Writer, AWellTableWrittenWithTheStandardHeaderReadsBackTheSame) {
    auto read = [&](const std::string& name) {
        type({"100", "210", "99", "1000", name, "99", "99", "1000", "99"});
        run([] { readwell2(2); });
    };
    auto write_well = [&](const char* name) {
        welldat_t& w = welldat;
        fout = name;
        writereal6(ifmt, ihd, ioca, 55, fout, w.finwd.sv(), w.titlewd.sv(), "WELL",
                   w.TYPWDNAM(w.itypwd).sv(), current_id(), w.RWD1.a, MAXDATWD, MAXCOLWD,
                   w.ndatwd, w.NAMVAR, w.JCOL.data(), MAXVARWD, w.nvarwd, 1);
    };
    read(sample("well210.txt"));
    const std::vector<float> before(welldat.RWD1.a, welldat.RWD1.a + MAXDATWD * 8);
    write_well("copy.txt");
    EXPECT_FALSE(unit_is_open(55));
    // The names line ends in the quote that the format writes after the
    // last tab; the reader passes over it.
    const lines_t copy = file_lines("copy.txt");
    EXPECT_EQ(copy[1], file_lines("well210.txt")[1] + "'");
    welldat.RWD1.fill(0.f);
    read("copy.txt");
    ASSERT_EQ(welldat.ndatwd, 8000);
    float worst = 0.f;
    for (std::size_t k = 0; k < before.size(); ++k)
        worst = std::max(worst, std::fabs(welldat.RWD1.a[k] - before[k]));
    EXPECT_LT(worst, 1.5e-4f);  // four decimals, and the spacing of 4-byte reals at 3000
    write_well("again.txt");
    EXPECT_EQ(file_lines("again.txt"), copy);
}

TEST_F(Writer, AnExtractionKeepsThePassingRowsOfTheSearchedInterval) {
    ihd = 3;
    extract({1, 0, 1, 1, 0, 1}, 2, 5);
    const lines_t f = file_lines("out.txt");
    ASSERT_EQ(f.size(), 23u);
    EXPECT_EQ(lines_t(f.begin() + 10, f.end()),
              (lines_t{" EXTRACTION PARAMETERS", DASH, " Test value               =      1",
                       " 1st  searched line       =      2", " last searched line       =      5",
                       " Total number of data     =      5", " Number of searched data  =      4",
                       " Number of extracted data =      2", DASH, " 'Extract'",
                       " 'C2              '\t'Depth           '\t'C1              '\t'",
                       "          7.0000\t       101.0000\t         0.0000\t",
                       "          2.0000\t       101.5000\t         1.0000\t"}));
    const int k = find(" NUMBER OF LINES:");
    EXPECT_EQ(lines(k, 6), (lines_t{" NUMBER OF LINES:", "   SAVED                 =      2",
                                    "   IN SEARCH INTERVAL    =      4", "   IN FULL DATA SET      =      5",
                                    "   IN ARRAY SIZE         =      6", " OUTPUT FILE out.txt CLOSED"}));
    // No row passes: the heads alone.
    ihd = 1;
    fout = "none.txt";
    extract({0, 0, 0, 0, 0, 0}, 1, 5);
    EXPECT_EQ(file_lines("none.txt").size(), 2u);
    EXPECT_EQ(count("   SAVED                 =      0"), 1);
}

TEST_F(Writer, AnExtractionFileIsNeverOverwrittenAndIsAppendedTo) {
    std::ofstream("ase.txt") << "kept\n";
    fout = "ase.txt";
    EXPECT_THROW(write(55, 1), program_stop);
    EXPECT_EQ(file_lines("ase.txt"), lines_t{"kept"});
    type({"", "ase2.txt"});
    run([&] { beginexfile(55, fout, "ASE output"); });
    EXPECT_EQ(count(" ===> RETRYING"), 1);
    beginexfile(55, fout, "ASE output");  // open already: said so, a second head
    EXPECT_EQ(count(" is already opened"), 1);
    ihd = 2, ioca = 3;
    type({"90"});
    run([&] { extract({1, 1, 1, 1, 1, 1}, 1, 1, 0); });
    EXPECT_EQ(lines(find(" EXTRACTION CRITERIA") + 2, 4),
              (lines_t{" 1st   line:      1", " last  line:      1", " total line:      5",
                       " test value:      1"}));
    EXPECT_FALSE(unit_is_open(55));
    const lines_t f = file_lines("ase2.txt");
    const lines_t head = {DASH, " ASE output", DASH, " BOREHOLE GEOMETRY PARAMETERS", DASH,
                          " Ztop             =      0.000 Zbot             =   1000.000",
                          " Bit Size         =     25.083 C1sat            =     37.000",
                          " C2sat            =     37.000 Cdiff            =      2.900",
                          " C-BS mini        =     -1.000 C-BS maxi        =      1.000",
                          " RBCmax threshold =     10.000"};
    const auto at = std::search(f.begin(), f.end(), head.begin(), head.end());
    ASSERT_NE(at, f.end());
    EXPECT_NE(std::search(at + 1, f.end(), head.begin(), head.end()), f.end());
    // The heads tell the command; the table's own run block leaves it out.
    EXPECT_EQ(std::count_if(f.begin(), f.end(),
                            [](const std::string& l) { return l.starts_with(" Command ="); }),
              2);
    EXPECT_EQ(f.back(), "         24.0000\t       100.0000\t        25.5000\t");
}

}  // namespace
