// The figures of the end report, as they stand on the screen.
#include <string>
#include <vector>

#include "dialogue.h"
#include "shell/figures.h"

namespace {

using lines_t = std::vector<std::string>;

// A figure on the screen: a blank line, the lines at their indent, a blank
// line.
lines_t framed(int indent, const lines_t& body) {
    lines_t v{"  "};
    for (const auto& l : body) v.push_back(std::string(std::size_t(indent), ' ') + l);
    v.push_back("  ");
    return v;
}

struct Figures : Dialogue {};

TEST_F(Figures, SquaresAndTetractysStandAtTheirIndent) {
    carmag33();
    sator();
    tetrakis();
    lines_t want = framed(19, {"-------------", "| 8 | 1 | 6 |", "|---|---|---|", "| 3 | 5 | 7 |",
                               "|---|---|---|", "| 4 | 9 | 2 |", "-------------"});
    lines_t s = framed(21, {"S A T O R", "A R E P O", "T E N E T", "O P E R A", "R O T A S"});
    lines_t t = framed(19, {"      O      ", "    O   O    ", "  O   O   O  ", "O   O   O   O"});
    want.insert(want.end(), s.begin(), s.end());
    want.insert(want.end(), t.begin(), t.end());
    EXPECT_EQ(screen(), want);
}

TEST_F(Figures, TheClosingCartoonKeepsItsBackslashesAndQuotes) {
    endfun1();
    EXPECT_EQ(screen(), framed(4, {
                                      R"(                \|/ ____ \|/    -     -     )",
                                      R"(       \|/       @~/ ,. \~@   o' \,=./ `o   )",
                                      R"(      (o -)     /_( \__/ )_\     (o o)      )",
                                      R"(|-oo0--(_)--0oo----\--U-/----oo0--(_)--0oo-|)",
                                      R"(|                                          |)",
                                      R"(|            THAT'S ALL FOLKS !            |)",
                                      R"(|                                          |)",
                                      R"(|------------------------------------------|)",
                                  }));
}

TEST_F(Figures, TheTempleRepeatsItsColumnsFiveTimes) {
    tetratemple1();
    const std::string cols = std::string(15, ' ') + "   | |   | |   | |   ";
    ASSERT_EQ(screen().size(), 14u);
    EXPECT_EQ(screen()[1], std::string(15, ' ') + "          O          ");
    EXPECT_EQ(screen()[5], std::string(15, ' ') + " =================== ");
    EXPECT_EQ(lines(6, 5), lines_t(5, cols));
    EXPECT_EQ(screen()[11], std::string(15, ' ') + " =================== ");
    EXPECT_EQ(screen()[12], std::string(15, ' ') + "=====================");
}

TEST_F(Figures, ThePerspectiveTempleLosesItsLastColumn) {
    tetratemple2();
    ASSERT_EQ(screen().size(), 18u);
    const std::string in(13, ' ');
    EXPECT_EQ(screen()[1], in + "               O         ");
    // The right-hand edge of these lines is cut away.
    EXPECT_EQ(screen()[5], in + "     /     O           / ");
    EXPECT_EQ(screen()[11], in + "    | |   | |   | | ||===");
    EXPECT_EQ(screen()[16], in + "=====================    ");
}

TEST_F(Figures, TheLastDigitOfTheSecondsChoosesTheFigure) {
    struct pick {
        char digit;
        std::string first_line;
    };
    const std::string cartoon = std::string(4, ' ') + R"(                \|/ ____ \|/    -     -     )";
    const std::vector<pick> picks = {
        {'0', std::string(8 + 12, ' ') + "&&&&&&&&&&&&            "},
        {'1', std::string(21, ' ') + "S A T O R"},
        {'2', std::string(19, ' ') + "-------------"},
        {'3', cartoon},
        {'4', std::string(19 + 6, ' ') + "O      "},
        {'5', std::string(15 + 10, ' ') + "O          "},
        {'6', std::string(13 + 15, ' ') + "O         "},
        {'7', std::string(6, ' ') + "-+                                    +-"},
        {'8', std::string(6 + 11, ' ') + "+----------------+           "},
        {'9', std::string(19 + 6, ' ') + "O      "},
        {'x', cartoon},
        {' ', cartoon},
    };
    for (const auto& p : picks) {
        SCOPED_TRACE(std::string("digit '") + p.digit + "'");
        clear();
        tailfigure(p.digit);
        ASSERT_GE(screen().size(), 3u);
        EXPECT_EQ(screen()[0], "  ");
        EXPECT_EQ(screen()[1], p.first_line);
        EXPECT_EQ(screen().back(), "  ");
    }
}

}  // namespace
