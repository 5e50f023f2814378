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

// Each figure stands framed at its indent (its first line is checked below
// with the choice); the cartoon is checked whole for its backslashes and quotes.
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

TEST_F(Figures, TheTemplesRepeatTheirColumnsAndThePerspectiveOneIsCut) {
    tetratemple1();
    ASSERT_EQ(screen().size(), 14u);
    EXPECT_EQ(screen()[1], std::string(15, ' ') + "          O          ");
    EXPECT_EQ(lines(6, 5), lines_t(5, std::string(15, ' ') + "   | |   | |   | |   "));
    EXPECT_EQ(screen()[12], std::string(15, ' ') + "=====================");
    clear();
    tetratemple2();
    ASSERT_EQ(screen().size(), 18u);
    // The right-hand edge of these lines is cut away.
    EXPECT_EQ(screen()[5], std::string(13, ' ') + "     /     O           / ");
    EXPECT_EQ(screen()[11], std::string(13, ' ') + "    | |   | |   | | ||===");
}

TEST_F(Figures, TheLastDigitOfTheSecondsChoosesTheFigure) {
    const std::string cartoon = std::string(4, ' ') + R"(                \|/ ____ \|/    -     -     )";
    const std::pair<char, std::string> picks[] = {
        {'0', std::string(20, ' ') + "&&&&&&&&&&&&            "}, {'1', std::string(21, ' ') + "S A T O R"},
        {'2', std::string(19, ' ') + "-------------"},             {'3', cartoon},
        {'4', std::string(25, ' ') + "O      "},                   {'5', std::string(25, ' ') + "O          "},
        {'6', std::string(28, ' ') + "O         "},
        {'7', std::string(6, ' ') + "-+                                    +-"},
        {'8', std::string(17, ' ') + "+----------------+           "}, {'9', std::string(25, ' ') + "O      "},
        {'x', cartoon},                                             {' ', cartoon}};
    for (const auto& [digit, first] : picks) {
        clear();
        tailfigure(digit);
        ASSERT_GE(screen().size(), 3u) << digit;
        EXPECT_EQ((lines_t{screen().front(), screen()[1], screen().back()}), (lines_t{"  ", first, "  "}))
            << "digit '" << digit << "'";
    }
}

}  // namespace
