// The prompts as a user meets them: what is shown, what an answer gives.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <random>

#include "dialogue.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/prompts.h"
#include "shell/stop.h"

namespace {

using Prompts = Dialogue;
using Lines = std::vector<std::string>;
const std::string DOTS = " ..........................................";

// Up to max - 1 characters drawn from alphabet.
std::string random_text(std::mt19937& rng, std::string_view alphabet, unsigned max) {
    std::string s(rng() % max, ' ');
    for (char& ch : s) ch = alphabet[rng() % alphabet.size()];
    return s;
}

// What a prompt takes from an answer, the default or the typed text cut to
// its field; where given, the whole screen.
TEST_F(Prompts, AnswersTakeTheDefaultOrTheTextCutToItsField) {
    using ask_t = std::function<std::string()>;
    auto integ = [](int def, std::string text) -> ask_t {
        return [=] { int v = -1, e; inintegdef(v, text, def, e); return std::to_string(v); };
    };
    // The program passes a name as its own default.
    const ask_t name20 = [] { fstr<20> v = "well.txt"; int e; inchardef(v, "data file name", v, e); return v.str(); };
    std::string longname(85, 'x');
    longname[79] = 'A', longname[80] = 'B';
    const struct {
        std::string key;
        ask_t ask;
        std::string value;
        Lines screen;
    } cases[] = {
        {"42", integ(7, "number of bins                     "), "42",
         {DOTS, " Enter number of bins", " or return for default value", " Default =            7",
          " New value =            42", DOTS}},
        {"", integ(3, "a"), "3", {}},
        {" 5", integ(4, "a"), "4", {}},  // a leading blank is no answer
        {"000000000000000000059", integ(5, "a"), "5", {}},  // twenty characters are read
        {"\r", [] { float x = 0; int e; inrealdef(x, "r", 2.5f, e); return std::to_string(x); }, "2.500000", {}},
        {"", name20, "well.txt            ",
         {DOTS, " Enter data file name", " or return for default value", " Default = well.txt",
          " ichar =  32 => use default value", " New value = well.txt            ", DOTS}},
        {"my_well.txt", name20, "my_well.txt         ", {}},
        {longname, [] { fstr<100> v; int e; inchardef(v, "file", "", e); return std::string(v.trimmed()); },
         longname.substr(0, 80), {}},
        {"  two words", [] { fstr<8> v; int e; inchar1(v, "title", e); return v.str(); }, "  two wo", {}},
    };
    for (const auto& c : cases) {
        clear();
        type({c.key});
        EXPECT_EQ(c.ask(), c.value) << "'" << c.key << "'";
        if (!c.screen.empty()) {
            EXPECT_EQ(screen(), c.screen);
        }
    }
}

// A refused answer: the prompt's error frame right above the line that says
// why and those after it; the question comes again and takes the next answer.
TEST_F(Prompts, RefusedAnswersAreFramedByTheirPromptAndAskedAgain) {
    struct Case {
        std::string name;
        Lines keys;
        std::function<double(int&)> ask;
        std::string head;
        Lines why;
        double value;
    };
    const auto real360 = [](int& e) { float x = 0; inrealvindef(x, "a", 0.f, 0.f, 360.f, e); return double(x); };
    std::vector<Case> cases = {
        {"fraction", {"5.5", "", "6"}, [](int& e) { int v = 0; inintegdef(v, "a", 1, e); return double(v); },
         "  inintegdef ", {" could not read a", " ==> RETRYING"}, 6},
        {"range", {"12", "", "-4"}, [](int& e) { int v = 0; inintegvin1(v, "a", -5, 10, e); return double(v); },
         "  inintegvin1", {" a =           12", " outside [-5,10]"}, -4},
        {"ten digits", {"", "7"}, [](int& e) { int v = 0; inintegvin1(v, "a", 0, 1000000000, e); return double(v); },
         "  inintegvin1",
         {" *     *** Format problem ***      *", " -----------------------------------", " ivmin =             0",
          " ivmax =    1000000000", " limited to |iv| < 1 000 000 000", " ===> HIT RETURN TO CONTINUE"}, 7},
        // A name of 13 characters fills its field exactly.
        {"default outside", {"", "", "2"},
         [](int& e) { int v = 0; inintegvindef(v, "a", 9, 1, 3, e); return double(v); }, "inintegvindef",
         {" a =            9", " outside [1,3]"}, 2},
        {"equal bounds", {"4", "", "5"}, [](int& e) { int v = 0; inintegvindef(v, "a", 5, 5, 5, e); return double(v); },
         "inintegvindef", {" a =            4", " outside [5,5]"}, 5},
        {"real range", {"400", "", "12.25"}, real360, " inrealvindef",
         {" a =  400.000    ", " outside [   0.00, 360.00]"}, 12.25},
        {"no real", {"nonsense", "", "12.25"}, real360, " inrealvindef", {" could not read a", " ==> RETRYING"}, 12.25},
        {"yes or no", {"x", "", "n"},
         [](int& e) { bool b = true; inlogicdef2(b, "a", true, 5, 6, e); return double(b); }, "  inlogicdef2",
         {" incorrect answer: x", " ==> WILL ASK QUESTION AGAIN"}, 0},
    };
    for (const auto& [answer, shown] : {std::pair{"NaN", " a =          NaN"}, {"inf", " a =     Infinity"},
                                        {"-Infinity", " a =    -Infinity"}, {"1e39", " a =     Infinity"}}) {
        const Lines why{shown, " is not a finite number", " ==> RETRYING"};
        cases.push_back({answer, {answer, "", "1.5"}, [](int& e) { float x = 0; inrealdef(x, "a", 1.f, e); return x; },
                         "  inrealdef  ", why, 1.5});
        cases.push_back({answer, {answer, "", "1.5"},
                         [](int& e) { float x = 0; inrealvindef(x, "a", 1.f, -1e30f, 1e30f, e); return x; },
                         " inrealvindef", why, 1.5});
    }
    for (const auto& c : cases) {
        clear();
        type(c.keys);
        int e = -1;
        EXPECT_EQ(c.ask(e), c.value) << c.name;
        EXPECT_EQ(e, 0) << c.name;
        EXPECT_EQ(lines(under(error_head_lines(c.head), c.why[0]), int(c.why.size())), c.why) << c.name;
        EXPECT_TRUE(con.keys.empty()) << c.name;
    }
}

TEST_F(Prompts, RealRangeAndDefaultFormatsFollowTheSizeOfTheBounds) {
    struct Case {
        float hi, def;
        std::string range, def_line;  // "" not checked
    } cases[] = {
        {1.f, 0.5f, " inside  [ 0.000, 1.000]", " Default =  0.500"},
        {90.f, 45.f, " inside  [  0.000, 90.000]", " Default =  45.000"},
        {360.f, 0.f, " inside  [   0.00, 360.00]", ""},
        // Ties round to even, as everywhere in the formatter.
        {15000.f, 2500.f, " inside  [      0.0,*******]", " Default =" + std::string(14, ' ') + "0.2E+04"},
        {1.e8f, 0.f, " inside  [          0.0, 100000000.]", ""},
        // A bare f is f15.7, too narrow for such bounds: as gfortran -fdec writes it.
        {1.e12f, 0.f, " inside  [              0.    ,***************]", ""},
    };
    for (const auto& c : cases) {
        clear();
        type({""});
        float v = -1.f;
        int e;
        inrealvindef(v, "x", c.def, 0.f, c.hi, e);
        EXPECT_EQ(v, c.def);
        EXPECT_EQ(screen()[2], c.range) << c.hi;
        if (!c.def_line.empty()) {
            EXPECT_EQ(screen()[4], c.def_line) << c.hi;
        }
        if (c.hi == 1.f) {
            EXPECT_EQ(screen()[5], " New value =  0.500000    ");
        }
    }
}

// A script written on another system: its CR is the return key on a line
// of its own and no part of a name, typed or from a command file alike.
TEST_F(Prompts, ALineEndingInCarriageReturnTypedOrReplayed) {
    std::ofstream("answers.txt", std::ios::binary) << "\r\nmy_well.txt\r\n  \r\n";
    for (bool replayed : {false, true}) {
        if (replayed) {
            ASSERT_TRUE(unit_open(UNIT_COMMANDS, "answers.txt", "old", "read"));
            iocom.isin = UNIT_COMMANDS;
        } else {
            type({"\r", "my_well.txt\r", "  \r"});
        }
        fstr<20> name = "well.txt", title;
        int e;
        inchardef(name, "data file name", name, e);
        EXPECT_EQ(screen()[4], " ichar =  13 => use default value");
        inchardef(name, "data file name", name, e);
        EXPECT_EQ(name.trimmed(), "my_well.txt");
        inchar1(title, "title", e);
        EXPECT_EQ(title.trimmed(), "");
        clear();
    }
}

TEST_F(Prompts, YesNoAnswers) {
    struct Case {
        std::string typed;
        bool def, expect;
    } cases[] = {{"yes", false, true}, {"Y", false, true}, {"1", false, true},
                 {"no", true, false},  {"N", true, false}, {"0", true, false},
                 {"", true, true},     {"", false, false}, {" y", false, false}};
    for (const auto& c : cases) {
        type({c.typed});
        bool v = !c.expect;
        int e;
        inlogicdef(v, "go on", c.def, e);
        EXPECT_EQ(v, c.expect) << "'" << c.typed << "'";
    }
}

TEST_F(Prompts, HelpIsNoErrorButAWrongAnswerIs) {
    type({"help", "2", "", "y"});
    bool v = false;
    int e;
    inlogicdef(v, "go on", false, e);
    EXPECT_TRUE(v);
    EXPECT_EQ(count(" answer Yes    y or Y or 1    "), 2);
    EXPECT_EQ(count(" incorrect answer: 2"), 1);
    EXPECT_EQ(count(" could not read answer to go on"), 0);
    int h = find(" @ subroutine inlogicdef" + std::string(12, ' ') + "v1.4 2024-02-05");
    ASSERT_GT(h, 0);
    EXPECT_EQ(lines(h + 2, 7), (Lines{"    To         type           ", " -----------------------------",
                                      " get help      h or H         ", " answer Yes    y or Y or 1    ",
                                      " answer No     n or N or 0    ", " use default   Carriage Return",
                                      " " + std::string(50, '@')}));
}

TEST_F(Prompts, TheKeyboardQuestionNamesItselfInItsHelp) {
    type({"x", "", "h", "n"});
    bool v = true;
    int e;
    inlogicdef2(v, "RESUME", true, 5, 6, e);
    EXPECT_FALSE(v);
    EXPECT_EQ(lines(0, 5), (Lines{DOTS, " RESUME ?", " Enter (0/1)(n/y)(N/Y)",
                                  " or return for default value or h for help", " Default = Yes"}));
    const std::string head = " @ subroutine inlogicdef2" + std::string(11, ' ') + "v1.0 08-03-2000";
    EXPECT_EQ(count(head), 2);
    EXPECT_EQ(count(" use default   Carriage Return"), 2);
    EXPECT_EQ(screen()[screen().size() - 2], " New value =  No");
    EXPECT_EQ(screen().back(), DOTS);
}

TEST_F(Prompts, TextLengths) {
    int f, l, f2, l2;
    textlen(f, l, "                    ");
    textlen(f2, l2, "  ab c  ");
    EXPECT_EQ((std::vector{f, l, f2, l2}), (std::vector{20, 20, 3, 6}));
    int n;
    for (auto [v, c] : {std::pair{0, 1}, {7, 1}, {10, 2}, {999, 3}, {1000, 4}, {-1, 2},
                        {-100, 4}, {123456789, 9}}) {
        integlen(n, v);
        EXPECT_EQ(n, c) << v;
    }
}

// Value checks at their severities: inside says nothing, 10 resets.
TEST_F(Prompts, ValueCheckResetsAtGravityTen) {
    int v = 3, r = -1;
    cinvin3(v, 1, 3, "k", "here", 1, r);
    EXPECT_EQ(r, 0);
    EXPECT_TRUE(screen().empty());
    type({""});
    v = 12;
    cinvin3(v, 1, 10, "nbin", "shstnb", 10, r);
    EXPECT_EQ(r, 2);
    EXPECT_EQ(v, 10);
    // The integer check opens an error frame and closes it as a warning.
    EXPECT_EQ(lines(0, 9), error_head_lines("  cinvin3    "));
    EXPECT_EQ(lines(9, 6), (Lines{" Problem in subroutine: shstnb", " Gravity level [0-4]U[10,14] =       10",
                                  " nbin =       12 outside [        1 ,       10 ]", " nbin =       12 >       10",
                                  " ==> RESET nbin =       10", " ===> HIT RETURN TO CONTINUE"}));
    EXPECT_EQ(screen().back(), " " + std::string(50, '/'));

    clear();
    type({""});
    float x = -1.f;
    crevin3(x, 0.f, 5.f, "x", "here", 10, r);
    EXPECT_EQ(r, 1);
    EXPECT_EQ(x, 0.f);
    EXPECT_EQ(lines(0, 4), warning_head_lines("  crevin3    "));
    EXPECT_EQ(screen()[8], " ==> RESET x =      0.000    ");
}

TEST_F(Prompts, ValueCheckWithAnUnknownGravityStopsOnRequest) {
    type({"", "", ""});
    int v = 0, r = 0;
    EXPECT_THROW(cinvin3(v, 1, 2, "k", "here", 5, r), program_stop);
    EXPECT_GT(find(" ==> Do as if gravity = 3"), 0);
    EXPECT_GT(find(" UNRECOVERABLE ERROR ==> QUITTING ADVISED"), 0);
    EXPECT_GT(find(" EXECUTION STOPPED BY USER"), 0);
    EXPECT_EQ(v, 0);
}

TEST_F(Prompts, ErrorStopCodes) {
    type({"", ""});
    errortailstop(0);  // return: resume, as advised
    EXPECT_GT(find(" RESUMING EXECUTION"), 0);
    clear();
    type({"0", ""});
    errortailstop(1);  // no: go on into the twilight zone
    EXPECT_GT(find(" ENTERING THE TWILIGHT ZONE OF COMPUTING !"), 0);
    EXPECT_GT(find("        " + std::string("            &&&&&&&&&&&&            ")), 0);
    clear();
    type({""});
    EXPECT_THROW(errortailstop(2), program_stop);
    EXPECT_GT(find(" EXECUTION STOPPED BY PROGRAM"), 0);
    clear();
    errortailstop(3);
    EXPECT_TRUE(screen().empty());
}

TEST_F(Prompts, PauseInACommandFileStillReadsTheKeyboard) {
    iocom.lcmdopen = true;
    type({""});
    errortail00();
    EXPECT_EQ(screen(), (Lines{" ===> HIT RETURN TO RESUME COMMANDS", " " + std::string(50, '*')}));
    EXPECT_TRUE(con.keys.empty());
}

TEST_F(Prompts, MenuHeadsTrimTheVersion) {
    submenuhead("writesio", " 1.2", "16-12-98  ");
    EXPECT_EQ(screen()[1], " @ subroutine writesio" + std::string(14, ' ') + "v1.2 16-12-98  ");
}

// Random answers never crash a prompt: each one ends with a valid value, or
// is still asking when the keyboard runs out.
TEST_F(Prompts, RandomAnswersNeverBreakAPrompt) {
    std::mt19937 rng(20261121);
    auto random_line = [&] { return random_text(rng, "0123456789 +-.,eEdD/*'\"\tabcxyYnNh\r", 30); };
    for (int round = 0; round < 400; ++round) {
        clear();
        con.keys.clear();
        for (int k = 0; k < 6; ++k) type({random_line()});
        int e = 0, i = 0;
        float x = 0;
        fstr<10> c;
        bool b = false;
        try {
            switch (round % 10) {
            case 0: ininteg1(i, "a", e); break;
            case 1: inintegdef(i, "a", 1, e); break;
            case 2: inintegvin1(i, "a", -3, 3, e); EXPECT_TRUE(i >= -3 && i <= 3); break;
            case 3: inintegvindef(i, "a", 0, 0, 9, e); EXPECT_TRUE(i >= 0 && i <= 9); break;
            case 4: inrealdef(x, "a", 1.f, e); break;
            case 5: inrealvindef(x, "a", 1.f, 0.f, 2.f, e); EXPECT_TRUE(x >= 0.f && x <= 2.f); break;
            case 6: inchardef(c, "a", "d", e); break;
            case 7: inlogicdef(b, "a", true, e); break;
            case 8: inchar1(c, "a", e); break;
            case 9: inlogicdef2(b, "a", true, 5, 6, e); break;
            }
            EXPECT_EQ(e, 0);
        } catch (const console_closed&) {
            // Still asking: the script ran out.
        }
    }
}

}  // namespace
