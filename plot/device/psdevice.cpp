#include "plot/device/psdevice.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "math/angles.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/fileopen.h"

psparams_90_t psparams_90;

namespace {

constexpr version_block VB_INTPLINIT{"intplinit  ", " 9.1", "2024-05-29"};
constexpr version_block VB_INTPLEND{"intplend   ", "10.0", "2024-05-28"};
constexpr version_block VB_PSMOVETO{"psmoveto   ", " 9.0", "2024-05-26"};
constexpr version_block VB_PSLINETO{"pslineto   ", " 9.0", "2024-05-26"};

constexpr std::string_view DEFAULTS_FILE = "quarp9_ini.txt";
constexpr std::string_view RULE43 = "-------------------------------------------";
constexpr std::string_view RULE50 = "==================================================";

// Beyond this a coordinate is surely a wild value; PostScript readers choke
// well before their own number range ends.
constexpr float DEVLIMIT = 9.9e+07f;
// Points to metres, for telling the user how far off the page a value is.
constexpr float PT2M = 0.00035278f;

// The longest number text is 10 characters; a line holds two of them and
// the operator.
constexpr int NUMTEXT = 10;

// Unlike the other files, the plot's writes are checked: on a full disk a
// long plot would otherwise run on, writing nothing, page after page.
void ps(std::string_view line) {
    if (!unit_write(psparams_90.iunitps, line)) wrerrf("PostScript plot", psparams_90.iunitps);
}

// Resets a coordinate past the device limit, with a frame of its own.
void limit(float& v, bool is_x, const version_block& vb) {
    if (v > DEVLIMIT) {
        warninghead(vb);
        writef(iocom.isout, "(5(1x,a,1x,g10.3))", is_x ? "x in meters =" : "y in meters =",
               v * PT2M, is_x ? "==> reset to xmax =" : "==> reset to ymax =", DEVLIMIT * PT2M);
        warningtail00();
        v = DEVLIMIT;
    } else if (v < -DEVLIMIT) {
        warninghead(vb);
        writef(iocom.isout, "(5(1x,a,1x,g10.3))", is_x ? "x in meters =" : "y in meters =",
               v * PT2M, is_x ? "==> reset to xmin =" : "==> reset to ymin =", -DEVLIMIT * PT2M);
        warningtail00();
        v = -DEVLIMIT;
    }
}

// One "x y word" line, laid out as the formats "(a,10(1x,a))" (moveto) and
// "(a,1x,a,1x,'lineto')" do, but built in place: this runs for every point
// of every line drawn, and must not allocate.
void point_line(float x, float y, const char* word) {
    char buf[2 * NUMTEXT + 24];
    int k = psnumtext(buf, x);
    buf[k++] = ' ';
    k += psnumtext(buf + k, y);
    buf[k++] = ' ';
    std::size_t w = std::strlen(word);
    std::memcpy(buf + k, word, w);
    ps(std::string_view(buf, std::size_t(k) + w));
}

psattribute_source attr{};

void colour_line(int i, std::string_view op = "setrgbcolor") {
    float c[3];
    attr.rgb(i, c);
    writef(psparams_90.iunitps, "(3(f6.3,1x),a)", c[0] / 100.0f, c[1] / 100.0f, c[2] / 100.0f,
           op);
}

// The text of a PostScript string, into out. Plain printable ASCII other
// than the three delimiters stays as it is. UTF-8 letters of Latin-1 become
// their Latin-1 code (for a font re-encoded to ISOLatin1Encoding), other
// UTF-8 characters '?', and a byte that is no part of a UTF-8 sequence is
// taken as Latin-1 already. Returns true if a byte above 127 was written.
bool string_text(std::string& out, std::string_view text, bool utf8) {
    out.clear();
    bool high = false;
    auto octal = [&out](unsigned c) {
        const char e[4] = {'\\', char('0' + (c >> 6)), char('0' + ((c >> 3) & 7)),
                           char('0' + (c & 7))};
        out.append(e, 4);
    };
    auto cont = [&text](std::size_t k) {
        return k < text.size() && (unsigned char)(text[k]) >> 6 == 2;
    };
    for (std::size_t k = 0; k < text.size(); ++k) {
        unsigned c = (unsigned char)text[k];
        if (c >= 32 && c < 127) {
            if (c == '(' || c == ')' || c == '\\') out += '\\';
            out += char(c);
            continue;
        }
        if (c < 128 || !utf8) {
            high = high || c >= 128;
            octal(c);
            continue;
        }
        const std::size_t len = c >= 0xC2 && c <= 0xDF   ? 2
                                : c >= 0xE0 && c <= 0xEF ? 3
                                : c >= 0xF0 && c <= 0xF4 ? 4
                                                         : 0;
        bool whole = len > 0;
        for (std::size_t j = 1; whole && j < len; ++j) whole = cont(k + j);
        if (!whole) {
            high = true;
            octal(c);
        } else if (len == 2 && c <= 0xC3) {
            high = true;
            octal(((c & 0x1F) << 6) | ((unsigned char)text[k + 1] & 0x3F));
            k += 1;
        } else {
            out += '?';
            k += len - 1;
        }
    }
    return high;
}

void fill_tables() {
    psparams_90.iunitps = UNIT_PLOT;
    psparams_90.NAMSIZE(1) = "Portrait A4";
    psparams_90.NAMSIZE(2) = "Portrait US Letter";
    psparams_90.NAMSIZE(3) = "Landscape A4";
    psparams_90.NAMSIZE(4) = "Landscape US Letter";
    psparams_90.ISIZEMIN(1) = 595;
    psparams_90.ISIZEMAX(1) = 842;
    psparams_90.ISIZEMIN(2) = 612;
    psparams_90.ISIZEMAX(2) = 792;
    psparams_90.ISIZEMIN(3) = 595;
    psparams_90.ISIZEMAX(3) = 842;
    psparams_90.ISIZEMIN(4) = 612;
    psparams_90.ISIZEMAX(4) = 792;
}

void fill_fonts() {
    static const char* const names[16] = {
        "/Helvetica",   "/Helvetica-Bold",   "/Helvetica-Oblique",   "/Helvetica-BoldOblique",
        "/Times-Roman", "/Times-Bold",       "/Times-Italic",        "/Times-BoldItalic",
        "/Courier",     "/Courier-Bold",     "/Courier-Oblique",     "/Courier-BoldOblique",
        "/Symbol",      "/Symbol-Bold",      "/Symbol-Oblique",      "/Symbol-BoldOblique"};
    for (int i = 1; i <= 16; ++i) psparams_90.FONTS(i) = names[i - 1];
}

void banner() {
    const int o = iocom.isout;
    const char* const lines[] = {
        "@                                                @",
        "@               Quartos PS Library               @",
        "@          Version 10.2  on  2024-05-29          @",
        "@             Origins and credits :              @",
        "@  PSPLOT pen plotter calls, its authors, 1987   @",
        "@  QUARTOS PS device layer, its authors, 1996    @",
        "@                                                @",
    };
    for (const char* l : lines) writef(o, "(5(1x,a))", l);
    writef(o, "(5(1x,a))", RULE50);
    writef(o, "(5(1x,a))", RULE43);
    writef(o, "(5(1x,a))", "             Default Settings:");
    writef(o, "(5(1x,a))", RULE43);
    writef(o, "(5(1x,a))", "Orientation and size =", psparams_90.NAMSIZE(psparams_90.isizeps));
    writef(o, "(5(1x,a))", RULE43);
}

// Reads the page format of the defaults file; false if the file must be
// written anew (missing, unreadable or holding no valid format).
bool read_defaults() {
    fstr<40> fname = DEFAULTS_FILE;
    int ierr = 0;
    opef1(fname, "plot init", psparams_90.iunitps, "old", "read", 7, -1, ierr);
    bool good = false;
    if (ierr == 0) {
        int isize = 0;
        if (readlist(psparams_90.iunitps, isize) && isize >= 1 && isize <= 4) {
            psparams_90.isizeps = isize;
            good = true;
        }
        unit_close(psparams_90.iunitps);
    }
    if (!good) psparams_90.isizeps = 1;
    return good;
}

void write_defaults() {
    const int o = iocom.isout;
    writef(o, "(5(1x,a))", RULE43);
    writef(o, "(5(1x,a))", "updating or creating quarp9_ini.txt");
    fstr<40> fname = DEFAULTS_FILE;
    int ierr = 0;
    opef1(fname, "plot init", psparams_90.iunitps, "unknown", "write", 7, 0, ierr);
    if (ierr == 0) {
        std::string quoted = "'" + std::string(trimmed(psparams_90.NAMSIZE(psparams_90.isizeps))) + "'";
        writef(psparams_90.iunitps, "(1x,i2,1x,a)", psparams_90.isizeps, quoted);
        writef(psparams_90.iunitps, "(a)", " ");
        unit_close(psparams_90.iunitps);
        writef(o, "(5(1x,a))", "quarp9_ini.txt updated or created");
        writef(o, "(5(1x,a))", RULE43);
    } else {
        writef(o, "(5(1x,a))", "Could not update or create quarp9_ini.txt");
        writef(o, "(5(1x,a))", "=> altered defaults are not saved for next run");
        writef(o, "(5(1x,a))", "=> Proceeding");
        writef(o, "(5(1x,a))", RULE43);
    }
}

void file_head() {
    const int u = psparams_90.iunitps;
    const int s = psparams_90.isizeps;
    ps("%!");
    ps("% Initialize coordinate system and scales");
    ps("%%Pages: (atend)");
    // Landscape pages keep the portrait box: the page itself is not turned,
    // only the drawing on it.
    writef(u, "(a,4(1x,i4))", "%%BoundingBox:", 0, 0, psparams_90.ISIZEMIN(s),
           psparams_90.ISIZEMAX(s));
    if (s == 3 || s == 4) writef(u, "(2(i4,1x),a)", psparams_90.ISIZEMIN(s), 0, "translate 90 rotate");
    psrgbcolor(-1);
    ps("% Ready to go");
    writef(u, "(a,4(1x,i4))", "%%Page:", psparams_90.npageps, psparams_90.npageps);
}

}  // namespace

namespace {

// The integer digit count of the width rule, trunc(log10(x)) + 1 for x >= 1,
// as the 4-byte logarithm has always given it: it steps up a few units in
// the last place below each power of ten, at these values. Counted against
// them, the plot files stay byte for byte what they were. Past the last
// step the text has no room for decimals anyway.
constexpr float DIGIT_STEPS[] = {0x1.4p+3f,     0x1.8ffffcp+6f, 0x1.f3ffecp+9f, 0x1.387ffap+13f,
                                 0x1.869fecp+16f, 0x1.e847dap+19f, 0x1.312ce8p+23f, 0x1.7d783p+26f};

constexpr auto DIGIT_PAIRS = [] {
    std::array<char, 200> a{};
    for (int k = 0; k < 100; ++k) {
        a[std::size_t(2 * k)] = char('0' + k / 10);
        a[std::size_t(2 * k + 1)] = char('0' + k % 10);
    }
    return a;
}();

int digit_count(float x) {
    int m = 1;
    for (float step : DIGIT_STEPS) {
        if (x < step) break;
        ++m;
    }
    return m;
}

}  // namespace

int psnumtext(char* text, float value) {
    // The width is worked out from the value, as real2charf1 does, so that
    // no blank is written: 2 decimals, at most 10 characters.
    constexpr int maximum = NUMTEXT;
    constexpr float t = 0.01f + 1e-07f;  // 10^-2 + 1e-7, in 4-byte arithmetic
    // The origin under a mirrored map comes as -0: a point, not a sign.
    if (value == 0.f) value = 0.f;
    int d = 2;
    const float low = value - t, high = value + t;
    int m = 1, count = 0;
    bool sized = true;
    if (high <= -1.f) {
        m = digit_count(-low);
        count = m + d + 2;
    } else if (value < 0.f) {
        count = d + 3;
    } else if (low < 1.f) {
        count = d + 2;
    } else if (low >= 1.f) {
        m = digit_count(high);
        count = m + d + 1;
    } else {
        sized = false;  // NaN
    }
    if (sized && count > maximum) {
        count = maximum;
        d = maximum - m - 2;
    }
    if (!sized || d < 0) {
        // Values no plot should hold: the general routine reports them.
        fstr<NUMTEXT> f;
        int n = 0;
        real2charf1(f, n, 2, maximum, value);
        if (n < 1 || n > maximum) n = maximum;
        std::memcpy(text, f.c, std::size_t(n));
        return n;
    }
    // This runs for every point of every curve, so no formatting call: the
    // value is below 10^8 here, and its 24-bit mantissa times 100 is exact
    // in a double, so rounding that product to an integer, ties to even,
    // rounds the exact value as a formatted write does.
    const double scaled = std::fabs(double(value)) * (d == 2 ? 100.0 : d == 1 ? 10.0 : 1.0);
    std::uint64_t q = std::uint64_t(scaled);
    const double rest = scaled - double(q);
    if (rest > 0.5 || (rest == 0.5 && (q & 1) != 0)) ++q;
    // Built leftwards from the middle of a blank buffer, two digits a step;
    // the field is then the count characters that end there.
    char buf[2 * NUMTEXT + 12];
    std::memset(buf, ' ', sizeof buf);
    char* const end = buf + NUMTEXT + 6;
    char* p = end;
    auto pair = [&p](unsigned k) {
        p -= 2;
        std::memcpy(p, &DIGIT_PAIRS[2 * k], 2);
    };
    if (d == 2) {
        pair(unsigned(q % 100));
        q /= 100;
    } else if (d == 1) {
        *--p = char('0' + q % 10);
        q /= 10;
    }
    *--p = '.';
    auto whole = std::uint32_t(q);  // below 10^8
    for (; whole >= 100; whole /= 100) pair(whole % 100);
    if (whole >= 10)
        pair(whole);
    else
        *--p = char('0' + whole);
    if (std::signbit(value)) *--p = '-';
    if (end - p > count) {
        // As a fixed-field write does with a value too wide for its field.
        std::memset(text, '*', std::size_t(count));
        return count;
    }
    std::memcpy(text, end - count, NUMTEXT);
    return count;
}

void intplinit(fstr_ref name, const int& inter) {
    const int o = iocom.isout;
    int ierr = 0;

    fill_tables();
    bool rewrite = !read_defaults();

    submenuhead(VB_INTPLINIT);
    if (iocom.LWITO(2)) banner();

    bool usedef = true;
    inlogicdef(usedef, "Use default settings", true, ierr);
    if (!usedef) {
        writef(o, "(5(1x,a))", RULE43);
        writef(o, "(5(1x,a))", "        Updating Default Settings:");
        writef(o, "(5(1x,a))", RULE43);
        writef(o, "(5(1x,a))", "Page orientation and size ....... Command");
        for (int i = 1; i <= 4; ++i)
            writef(o, "(1x,a20,1x,18('.'),1x,i1)", psparams_90.NAMSIZE(i), i);
        int isize = psparams_90.isizeps;
        inintegvindef(isize, "command", isize, 1, 4, ierr);
        psparams_90.isizeps = isize;
        rewrite = true;
    }
    if (rewrite) write_defaults();

    opef1(name, "PostScript plot", psparams_90.iunitps, "unknown", "write", inter % 2, 1, ierr);

    psparams_90.npageps = 1;
    psparams_90.ipathps = 0;
    fill_fonts();
    file_head();
}

void intplend() {
    int ierr = 0;
    submenuhead(VB_INTPLEND);
    if (iocom.LWITO(2)) textline("Ready to close the PostScript plot file");
    fstr<80> answer;
    inchar1(answer, "CR = Return to close the PostScript file", ierr);
    psstrokepath();
    // No gsave here: nothing is drawn after the last page.
    ps("showpage");
    ps("%%End Page");
    ps("%%Trailer");
    writef(psparams_90.iunitps, "(a,1x,i3)", "%%Pages:", psparams_90.npageps);
    ps("%%EOF");
    if (!unit_flush(psparams_90.iunitps)) wrerrf("PostScript plot", psparams_90.iunitps);
    unit_close(psparams_90.iunitps);
    textline("The PostScript plot file is closed");
    menutail();
}

void intnewpage() {
    psstrokepath();
    // showpage resets the graphics state; the gsave pair carries line width,
    // colour and the landscape rotation over to the next page.
    ps("gsave showpage");
    ps("%%End Page");
    ps("grestore");
    psparams_90.npageps = psparams_90.npageps + 1;
    writef(psparams_90.iunitps, "(a,2(1x,i3))", "%%Page:", psparams_90.npageps,
           psparams_90.npageps);
}

void psmoveto(float& x, float& y, const int& mode) {
    limit(x, true, VB_PSMOVETO);
    limit(y, false, VB_PSMOVETO);
    psstrokepath();
    if (mode == 1) {
        ps("newpath");
        point_line(x, y, "moveto");
        psparams_90.ipathps = 1;
    } else if (mode == 0) {
        // Only the current point, for a string: no path is opened.
        point_line(x, y, "moveto");
    }
}

void pslineto(float* x, float* y, const int& n) {
    if (psparams_90.ipathps == 0) {
        warninghead(VB_PSLINETO);
        textline("Path begins with Draw instead of Move");
        warningtail00();
        psparams_90.ipathps = 1;
    }
    for (int i = 0; i < n; ++i) {
        limit(x[i], true, VB_PSLINETO);
        limit(y[i], false, VB_PSLINETO);
        point_line(x[i], y[i], "lineto");
    }
}

void psstrokepath() {
    if (psparams_90.ipathps == 0) return;
    // The colour goes in after the path is built, so a path takes the line
    // colour in force when it is stroked.
    psrgbcolor(1);
    ps("stroke");
    psparams_90.ipathps = 0;
}

void psattributesource(const psattribute_source& source) { attr = source; }

void psrgbcolor(const int& mode) {
    if (!attr.incolour()) return;
    int& inforce = attr.inforce();
    switch (mode) {
    case -1:
        colour_line(1);
        inforce = 1;
        return;
    case 0: colour_line(inforce); return;
    case 1:
    case 2:
    case 3: break;
    default: return;
    }
    const int want = attr.colourof(mode);
    if (inforce == want) return;
    colour_line(want);
    inforce = want;
}

void deline(float* x, float* y, const int& n) {
    if (n <= 0) return;
    psmoveto(x[0], y[0], 1);
    if (n == 1) {
        // A lone point is a zero-length line, which round caps show as a dot.
        pslineto(x, y, 1);
    } else {
        pslineto(x + 1, y + 1, n - 1);
    }
    psstrokepath();
}

void depolygon(float* x, float* y, const int& n) {
    if (n <= 0) return;
    psmoveto(x[0], y[0], 1);
    if (n > 1) pslineto(x + 1, y + 1, n - 1);
    if (!attr.filled()) {
        ps("closepath");
    } else {
        // The fill runs inside gsave/grestore, which keeps the path for the
        // outline and undoes the fill colour: icolcur stays true.
        ps("closepath gsave");
        const int u = psparams_90.iunitps;
        if (attr.incolour()) {
            colour_line(attr.colourof(2), "setrgbcolor fill grestore");
        } else {
            writef(u, "(f6.3,1x,a)", 0.5f, "setgray fill grestore");
        }
    }
    psstrokepath();
}

void detext2(float& x, float& y, std::string_view text) {
    const int u = psparams_90.iunitps;
    const int just = attr.justification();
    const float angle = attr.textangle();
    const int ajust = just < 0 ? -just : just;

    std::string_view t = text;
    if (just < 0) t = trimmed(text);

    float xs = x, ys = y;
    const int v = ajust / 4;
    if (v != 0) {
        // Down the text's own axis, so that the string's base lands where
        // the base must be for the point to be at mid-height or top.
        const float h = psparams_90.textsizeps * 0.5f * float(v);
        const float a = rad(angle);
        xs = x + std::sin(a) * h;
        ys = y - std::cos(a) * h;
    }
    psmoveto(xs, ys, 0);

    if (angle != 0.0f) writef(u, "(f7.2,1x,a)", angle, "rotate");

    fstr<12> size;
    int nsize = 0;
    intg2char(size, nsize, 12, int(psparams_90.textsizeps));
    int ifont = psparams_90.ifontps;
    if (ifont < 1 || ifont > 16) ifont = 1;
    // Escaped rather than written as it stands: one unbalanced parenthesis
    // in a title would make the whole file unreadable. Symbol fonts keep
    // their own encoding and take the bytes as they are.
    static std::string str;
    const bool latin1 = string_text(str, t, ifont <= 12) && ifont <= 12;
    if (latin1)
        writef(u, "(a,5(1x,a))", size.sub(1, nsize), trimmed(psparams_90.FONTS(ifont)),
               "findfont dup length dict copy dup /FID undef dup /Encoding ISOLatin1Encoding put",
               "/Latin1Text exch definefont exch scalefont setfont");
    else
        writef(u, "(a,5(1x,a))", size.sub(1, nsize), trimmed(psparams_90.FONTS(ifont)),
               "findfont exch scalefont setfont");

    psrgbcolor(3);

    const int m = ajust % 4;
    if (m == 0 || m == 1) {
        writef(u, "('(',a,')',1x,a)", str, "show");
    } else {
        writef(u, "('(',a,')')", str);
        writef(u, "(a,1x,i2,1x,a)", "dup stringwidth pop", m - 4, "div 0 rmoveto");
        ps("show");
    }

    if (angle != 0.0f) writef(u, "(f7.2,1x,a)", -angle, "rotate");
}

void intslinewidth(const float& width) {
    psstrokepath();
    char buf[NUMTEXT];
    int k = psnumtext(buf, width);
    writef(psparams_90.iunitps, "(a,5(1x,a))", std::string_view(buf, std::size_t(k)),
           "setlinewidth");
}

void intstextfont(const int& font) {
    psparams_90.ifontps = font;
    psstrokepath();
}

void intstextsize(const float& height) {
    float h = height;
    lengthcm2de(psparams_90.textsizeps, h);
}
