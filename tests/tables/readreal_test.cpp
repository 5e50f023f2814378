// The column table reader on small tables of its own: free-format data,
// header layouts, the correspondence menu, the size of the table and the
// recovery menu.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "dialogue.h"
#include "lines.h"
#include "tables/readreal.h"

namespace {

struct Reader : Dialogue {
    farr<int, 6> jcol, jfcol;
    farr<fstr<16>, 6> names;
    farr2<float, 10, 4> data;
    farr<fstr<16>, 4> namr;
    fstr<80> title, fname;
    int nld = 0, isk = 0, iti = 0, ihd = 0;
    int nvar = 0, nlines = -1, ncol = -1, ierr = -1;

    void SetUp() override {
        Dialogue::SetUp();
        data.fill(-1.f);
        read(5);
        nvar = 3;
        clear();
    }
    void read(int inter, int ilevel = 1) {
        readreal6(ierr, title, fname, "test data input", 12, nld, isk, iti, ihd, jcol.data(),
                  jfcol.data(), names, nvar, 6, data.a, namr, nlines, ncol, 10, 4, ilevel,
                  inter);
    }
    void write_file(const std::string& name, const std::string& text) {
        ::write_file(name, text);
        fname = name;
    }
    std::string numbered(int n) {
        std::string t = "'three columns'\n'Depth' 'C1' 'C2'\n";
        for (int i = 1; i <= n; ++i) t += std::to_string(100 + i) + " 21.5 21.7\n";
        return t;
    }
    void finish(std::function<void()> f) { run_to_end(*this, f); }
};

TEST_F(Reader, ReadsFreeFormatValuesAcrossBlankAndSplitLines) {
    // The reset gives no more array columns than the table has.
    EXPECT_EQ(jcol(6), 4);
    write_file("free.txt",
               "'A title with blanks'\n"
               "'Depth' \"Cal 1\" 'C2'\n"
               " 1000.5, 21.6\t2.16e1\n"
               "\n"
               " 1001 22\n"
               " 23\n"
               "1002.25 -1.5E+00 7 8 9\n");
    type({"free.txt", "99", "99", "1000"});
    finish([&] { read(0); });
    EXPECT_EQ(ierr, 0);
    ASSERT_EQ(nlines, 3);
    EXPECT_EQ(ncol, 3);
    std::vector<float> got, want = {1000.5f, 21.6f, 21.6f, 1001.f, 22.f, 23.f, 1002.25f, -1.5f, 7.f};
    for (int i = 1; i <= 3; ++i)
        for (int j = 1; j <= 3; ++j) got.push_back(data(i, j));
    EXPECT_EQ(got, want);
    EXPECT_EQ(title.trimmed(), "A title with blanks");
    EXPECT_EQ(namr(2).trimmed(), "Cal 1");
    EXPECT_GT(find(" Read title from header: A title with blanks"), 0);
    EXPECT_GT(find(" | 2|Variable.2| 2|Cal 1     | 2|Cal 1     | 2"), 0);
    const std::vector<std::string> report = {
        " Input file name: free.txt", " Title: A title with blanks", "     Number of variable status",
        " Could read up to:     99", " Actually read   :      3", "         Array status             ",
        " Could read up to:     10 lines", " Actually read   :      3 lines", " Can use up to   :      4 columns",
        " Actually used   :      3 columns", " input file free.txt closed"};
    int r = find(" Could read up to:     99") - 3;
    ASSERT_GT(r, 0);
    EXPECT_EQ(lines(r, int(report.size())), report);
}

TEST_F(Reader, TheHeaderDisplayLabelsEachLineAndCutsLongOnes) {
    write_file("long.txt", "'t'\n'a' 'b' 'c'\n" + std::string(230, '7') + "\n");
    type({"long.txt", "99", "99", "99"});
    finish([&] { read(0); });
    const std::vector<std::string> head = {
        " ==>Line nb:   1 = Header: Title ===========", " 't'", " ==>Line nb:   2 = Header: Column names ====",
        " 'a' 'b' 'c'", " ==>Line nb:   3 = Data ====================", " " + std::string(100, '7'),
        " " + std::string(100, '7'), " " + std::string(30, '7'), " ===========================================",
        " ==> FILE long.txt IS REWOUND"};
    int h = find(head[0]);
    ASSERT_GT(h, 0);
    EXPECT_EQ(lines(h, int(head.size())), head);
    EXPECT_EQ(ierr, 1);
    EXPECT_GT(find(" EXITING WITHOUT READING DATA FILE"), 0);
}

TEST_F(Reader, AnUnquotedTitleKeepsItsFirstWordAndATitleLineBeyondTheHeaderIsResetAndNotRead) {
    write_file("word.txt", "Well A 2024\n'Depth' 'C1' 'C2'\n1 2 3\n");
    type({"word.txt", "99", "99", "1000"});
    finish([&] { read(0); });
    EXPECT_EQ(title.trimmed(), "Well");
    EXPECT_EQ(nlines, 1);

    // A title line beyond the header is reset and not read.
    write_file("t.txt", numbered(2));
    nld = 3, isk = 2, iti = 3, ihd = 2;
    type({"", "", ""});  // the reset warning, then the title not read, twice
    finish([&] { read(1); });
    const std::vector<std::string> reset = {" ititle =    3 > iskip =    2", " ===> RESET ititle =      0",
                                            " ===> HIT RETURN TO CONTINUE"};
    int r = find(reset[0]);
    ASSERT_GT(r, 0);
    EXPECT_EQ(lines(r - 4, 4), warning_head_lines("  sfheader1  "));
    EXPECT_EQ(lines(r, 3), reset);
    EXPECT_EQ(title.trimmed(), "Untitled");
    EXPECT_EQ(nlines, 2);
    EXPECT_GT(find(" Stored      3 variables and      2 lines"), 0);
}

TEST_F(Reader, AnAnswerOutsideTheReadMenuGoesToRecoveryWithoutAHead) {
    write_file("t.txt", numbered(2));
    type({"t.txt", "99", "99", "5", "", "99"});
    finish([&] { read(0); });
    int a = find(" New value =             5");
    ASSERT_GT(a, 0);
    EXPECT_EQ(lines(a + 1, 2), (std::vector<std::string>{" ..........................................", " IN FILE: t.txt"}));
    EXPECT_EQ(ierr, 1);
    EXPECT_EQ(screen().back(), " input file t.txt closed");
}

TEST_F(Reader, Mode3ReadsWithTheStoredSettings) {
    write_file("skip.txt",
               "'three header lines'\n'a comment line'\n'Depth' 'C1' 'C2'\n5 6 7\n8 9 10\n");
    nld = 3, isk = 3, iti = 1, ihd = 3;
    finish([&] { read(1); });
    ASSERT_EQ(nlines, 2);
    // The caller's copies mean nothing now: the stored ones are used.
    nld = isk = iti = ihd = 0;
    nvar = 0;
    jcol.fill(9);
    data.fill(0.f);
    finish([&] { read(3); });
    EXPECT_EQ((std::vector<int>{isk, ihd, nvar, jcol(3), nlines}), (std::vector<int>{3, 3, 3, 3, 2}));
    EXPECT_EQ(data(2, 3), 10.f);
    EXPECT_EQ(namr(1).trimmed(), "Depth");
}

TEST_F(Reader, NoNamesLineGivesFileColumnNames) {
    write_file("t.txt", numbered(2));
    nld = 3, isk = 2, iti = 1, ihd = 0;
    type({""});
    finish([&] { read(1); });
    int d = find(" ==> Headers set to defaults:");
    ASSERT_GT(d, 0);
    EXPECT_EQ(lines(d - 3, 3), (std::vector<std::string>{" Input file name  : t.txt", " Column headers line nb =      0",
                                                          " ==> NOT ATTEMPTING TO READ HEADERS"}));
    // Without a dialogue the default names are not listed.
    EXPECT_EQ(screen()[std::size_t(d + 1)], " ===> HIT RETURN TO CONTINUE");
    EXPECT_EQ(namr(3).trimmed(), "File.col.3");
    EXPECT_EQ(data(2, 1), 102.f);
}

TEST_F(Reader, AVariableCanBeGivenAnotherFileColumn) {
    write_file("t.txt", "'t'\n'Depth' 'C1' 'C2'\n1 2 3\n4 5 6\n");
    type({"t.txt", "99", "2", "3", "99", "1000"});
    finish([&] { read(0); });
    const std::vector<std::string> mod = {" Modifying correspondance", "  Variable name  = Variable.2",
                                          "  Array col nb   =      2",   "  Array col name = C1",
                                          "  File col nb    =      2",   "  File col name  = C1"};
    int m = find(mod[0]);
    ASSERT_GT(m, 0);
    EXPECT_EQ(lines(m, int(mod.size())), mod);
    EXPECT_GT(find(" Enter New file column nb", m), m);
    // Level 1 changes the file column only.
    EXPECT_EQ(find(" Enter New array column nb"), -1);
    EXPECT_EQ(find(" Enter New variable name"), -1);
    EXPECT_EQ(data(2, 2), 6.f);
    EXPECT_EQ(namr(2).trimmed(), "C2");
}

TEST_F(Reader, Level4ChangesTheNumberOfVariables) {
    write_file("t.txt", "'t'\n'Depth' 'C1' 'C2' 'C3'\n1 2 3 4\n");
    type({"t.txt", "99", "200", "4", "99", "1000"});
    finish([&] { read(0, 4); });
    EXPECT_GT(find(" Change nb of variables to read...200"), 0);
    EXPECT_EQ(nvar, 4);
    EXPECT_EQ(data(1, 4), 4.f);
}

}  // namespace
