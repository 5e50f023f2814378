#include "shell/figures.h"

#include <cstddef>
#include <string_view>

#include "shell/fixed.h"
#include "shell/format.h"
#include "shell/sio.h"

namespace {

// A blank line, every line of the figure at its indent, a blank line.
template <std::size_t W, std::size_t N>
void draw(const fstr<W> (&lines)[N], std::string_view format) {
    writef(iocom.isout, "(5(1x,a))", " ");
    for (const auto& l : lines) writef(iocom.isout, format, l);
    writef(iocom.isout, "(5(1x,a))", " ");
}

}  // namespace

// The magic square of Lo Shu.
void carmag33() {
    static const fstr<13> LINES[7] = {
        R"~(-------------)~",
        R"~(| 8 | 1 | 6 |)~",
        R"~(|---|---|---|)~",
        R"~(| 3 | 5 | 7 |)~",
        R"~(|---|---|---|)~",
        R"~(| 4 | 9 | 2 |)~",
        R"~(-------------)~",
    };
    draw(LINES, "(19x,a)");
}

// The closing cartoon.
void endfun1() {
    static const fstr<44> LINES[8] = {
        R"~(                \|/ ____ \|/    -     -     )~",
        R"~(       \|/       @~/ ,. \~@   o' \,=./ `o   )~",
        R"~(      (o -)     /_( \__/ )_\     (o o)      )~",
        R"~(|-oo0--(_)--0oo----\--U-/----oo0--(_)--0oo-|)~",
        R"~(|                                          |)~",
        R"~(|            THAT'S ALL FOLKS !            |)~",
        R"~(|                                          |)~",
        R"~(|------------------------------------------|)~",
    };
    draw(LINES, "(4x,a)");
}

// A rift valley between normal faults.
void graben() {
    static const fstr<40> LINES[8] = {
        R"~(-+                                    +-)~",
        R"~(@@\-----+                      +-----/@@)~",
        R"~(@@@\@@@@@\---+            +---/@@@@@/@@@)~",
        R"~(====\@@@@@\@@@\----------/@@@/@@@@@/====)~",
        R"~(#####\=====\@@@\@@@@@@@@/@@@/=====/#####)~",
        R"~(######\#####\===\@@@@@@/===/#####/######)~",
        R"~(#######\#####\###\====/###/#####/#######)~",
        R"~(########\#####\###\##/###/#####/########)~",
    };
    draw(LINES, "(6x,a)");
}

// A smiling face.
void happyface() {
    static const fstr<36> LINES[18] = {
        R"~(            &&&&&&&&&&&&            )~",
        R"~(        &&                &&        )~",
        R"~(     &&                      &&     )~",
        R"~(   &&                          &&   )~",
        R"~(  &&                            &&  )~",
        R"~( &&                              && )~",
        R"~( &        &&&          &&&        & )~",
        R"~(&&        &&&          &&&        &&)~",
        R"~(&&                                &&)~",
        R"~(&&                                &&)~",
        R"~(&&                                &&)~",
        R"~( &     &&                  &&     & )~",
        R"~( &&      &&&            &&&      && )~",
        R"~(  &&        &&&&&&&&&&&&        &&  )~",
        R"~(   &&                          &&   )~",
        R"~(     &&                      &&     )~",
        R"~(        &&                &&        )~",
        R"~(            &&&&&&&&&&&&            )~",
    };
    draw(LINES, "(8x,a)");
}

// An uplifted block between normal faults.
void horst() {
    static const fstr<40> LINES[8] = {
        R"~(           +----------------+           )~",
        R"~(        +---\@@@@@@@@@@@@@@/---+        )~",
        R"~(   +-----\@@@\@@@@@@@@@@@@/@@@/-----+   )~",
        R"~(----\@@@@@\@@@\==========/@@@/@@@@@/----)~",
        R"~(@@@@@\@@@@@\===\########/===/@@@@@/@@@@@)~",
        R"~(@@@@@@\=====\###\######/###/=====/@@@@@@)~",
        R"~(=======\#####\###\####/###/#####/=======)~",
        R"~(########\#####\###\##/###/#####/########)~",
    };
    draw(LINES, "(6x,a)");
}

// The Sator square, a palindrome both ways.
void sator() {
    static const fstr<9> LINES[5] = {
        R"~(S A T O R)~",
        R"~(A R E P O)~",
        R"~(T E N E T)~",
        R"~(O P E R A)~",
        R"~(R O T A S)~",
    };
    draw(LINES, "(21x,a)");
}

// The tetractys.
void tetrakis() {
    static const fstr<13> LINES[4] = {
        R"~(      O      )~",
        R"~(    O   O    )~",
        R"~(  O   O   O  )~",
        R"~(O   O   O   O)~",
    };
    draw(LINES, "(19x,a)");
}

// A temple under the tetractys.
void tetratemple1() {
    static const fstr<21> LINES[12] = {
        R"~(          O          )~",
        R"~(       O     O       )~",
        R"~(    O     O     O    )~",
        R"~( O     O     O     O )~",
        R"~( =================== )~",
        R"~(   | |   | |   | |   )~",
        R"~(   | |   | |   | |   )~",
        R"~(   | |   | |   | |   )~",
        R"~(   | |   | |   | |   )~",
        R"~(   | |   | |   | |   )~",
        R"~( =================== )~",
        R"~(=====================)~",
    };
    draw(LINES, "(15x,a)");
}

// The same temple in perspective; its lines are held one character short,
// which cuts the last column of the drawing.
void tetratemple2() {
    static const fstr<25> LINES[16] = {
        R"~(               O          )~",
        R"~(            O /   O       )~",
        R"~(         O   /       O    )~",
        R"~(      O     /           O )~",
        R"~(     /     O           / /)~",
        R"~(    /   O     O       / / )~",
        R"~(   / O     O     O   / /  )~",
        R"~(  O     O     O     O /   )~",
        R"~(  ===================/    )~",
        R"~(    | |   | |   | | ||    )~",
        R"~(    | |   | |   | | ||===/)~",
        R"~(    | |   | |   | |     / )~",
        R"~(   /| |   | |   | |    /  )~",
        R"~(  / | |   | |   | |   /   )~",
        R"~( /===================/    )~",
        R"~(=====================     )~",
    };
    draw(LINES, "(13x,a)");
}
void tailfigure(char lastdigit) {
    // 3 and anything that is not a digit share the closing cartoon.
    switch (lastdigit) {
    case '3': endfun1(); break;
    case '0': happyface(); break;
    case '1': sator(); break;
    case '2': carmag33(); break;
    case '4':
    case '9': tetrakis(); break;
    case '5': tetratemple1(); break;
    case '6': tetratemple2(); break;
    case '7': graben(); break;
    case '8': horst(); break;
    default: endfun1(); break;
    }
}
