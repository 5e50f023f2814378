// The run information and the data status as plot text: a block of small
// lines, at half the text size in force, from a point downward.
#include <string>

#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/textlen.h"

namespace {

constexpr version_block VB_CMPLOTRUNINFO{"cmplotrunin", " 2.5", "2021-02-28"};

constexpr int MAXLEVEL = 3;
// Lines of plot text are held in this many characters.
constexpr std::size_t LINELEN = 60;

std::string str(std::string_view s) { return std::string(s); }

// Switches to half the text size for the life of the object, the lines
// being 1.5 half sizes apart.
struct half_text {
    float size = 0.0f;
    float half = 0.0f;
    half_text() {
        stextsize(size, 3);
        half = size * 0.5f;
        stextsize(half, 1);
    }
    ~half_text() { stextsize(size, 1); }
    float step() const { return half * 1.5f; }
};

// Draws lines from (x, y) downward.
struct text_block {
    float x, y, step;
    void draw(std::string_view line) {
        cmtext2(x, y, trimmed(line));
        y -= step;
    }
};

void level_line(std::string_view text, int value) {
    writef(iocom.isout, "(1x,a,1x,i4)", text, value);
}

}  // namespace

void cmplotruninfo2(const float& x, const float& y) {
    const auto& r = runinfo3com;
    half_text size;
    text_block out{x, y, size.step()};
    fstr<LINELEN> line;

    fstr<10> date;
    fstr<8> time;
    date10_time8(date, time);
    line = "Run on " + str(date) + " at " + str(time);
    out.draw(line);
    if (r.iruninfo == 0 || r.iruninfo == 1) {
        line = "by " + str(trimmed(r.usernm.sv())) + " on " + str(trimmed(r.hostnam.sv()));
        out.draw(line);
    }
    line = "System : " + str(trimmed(r.osname.sv())) + " " + str(trimmed(r.cpuname.sv()));
    out.draw(line);

    if (r.levelrt < 1) {
        errorhead(VB_CMPLOTRUNINFO);
        level_line("Current routine level =", r.levelrt);
        level_line("Can store up to level =", MAXLEVEL);
        textline("=> No program information");
        errortail00();
        out.draw("*** program information ERROR : routine level < 1 ***");
        return;
    }

    // The routine chain on as few lines as it takes: a piece goes on the
    // line if the whole still fits, else the line is drawn and the piece
    // begins the next.
    auto add = [&](const std::string& piece) {
        std::string now(line.trimmed());
        if (now.size() + piece.size() <= LINELEN) {
            line = now + piece;
        } else {
            out.draw(line);
            line = piece;
        }
    };
    auto routine = [&](int i) { return str(r.ROUTNAME(i)) + "_" + str(r.ROUTVERS(i)); };

    line = routine(1);
    if (r.levelrt >= 2) add(" -> " + routine(2));
    if (r.levelrt == 3) add(" -> " + routine(3));
    if (r.levelrt > MAXLEVEL) {
        // " -> x": deeper levels are left out.
        add(" -> " + routine(3) + " -> x");
        warninghead(VB_CMPLOTRUNINFO);
        level_line("Current subroutine level     =", r.levelrt - 1);
        level_line("Information only up to level =", MAXLEVEL - 1);
        warningtail00();
    }
    if (r.iruninfo == 0 || r.iruninfo == 2) add(" Command = " + str(trimmed(formatf("(i4)", r.icmdrun))));
    out.draw(line);
}

void cmplotcharinfo2(std::string_view text, const int& line, const float& x, const float& y) {
    half_text size;
    const float yl = y - size.step() * float(line - 1);
    cmtext2(x, yl, text);
}

void cmplotdatainfo0(std::string_view label, std::string_view type, std::string_view file,
                     std::string_view title, const int& ndat, const float& x, const float& y) {
    half_text size;
    text_block out{x, y, size.step()};
    fstr<LINELEN> line;

    line = str(trimmed(label)) + " data type: " + str(trimmed(type));
    out.draw(line);
    line = "File name: " + str(file);
    out.draw(line);
    line = "Title: " + str(title);
    out.draw(line);
    fstr<6> count;
    int n = 0;
    intg2char(count, n, 6, ndat);
    line = "Number of data: " + str(count.sub(1, n));
    out.draw(line);
}
