#include "shell/prompts.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <type_traits>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "shell/units.h"

namespace {

constexpr version_block VB_ININTEG1{"ininteg1   ", " 1.2", "2024-02-05"};
constexpr version_block VB_ININTEGDEF{"inintegdef ", " 1.4", "2024-02-05"};
constexpr version_block VB_ININTEGVIN1{"inintegvin1", " 1.2", "2024-02-05"};
constexpr version_block VB_ININTEGVINDEF{"inintegvindef", " 1.4", "2024-02-05"};
constexpr version_block VB_INREALDEF{"inrealdef  ", " 1.3", "2024-02-05"};
constexpr version_block VB_INREALVINDEF{"inrealvindef", " 1.6", "2024-02-05"};
constexpr version_block VB_INCHAR1{"inchar1    ", " 1.5", "2024-02-05"};
constexpr version_block VB_INCHARDEF{"inchardef  ", " 1.5", "2024-02-05"};
constexpr version_block VB_INLOGICDEF{"inlogicdef ", " 1.4", "2024-02-05"};
constexpr version_block VB_INLOGICDEF2{"inlogicdef2", " 1.0", "08-03-2000"};
constexpr version_block VB_CINVIN3{"cinvin3    ", " 5.0", "2024-02-13"};
constexpr version_block VB_CREVIN3{"crevin3    ", " 4.0", "2024-02-13"};

void dotted() {
    if (iocom.LWITO(2)) textline(DOTTED);
}

void enter_line(std::string_view t) { textline("Enter", t); }

void could_not_read(const version_block& vb, std::string_view t) {
    errorhead(vb);
    textline("could not read", t);
    textline("==> RETRYING");
    errortail00();
}

// A real that reads but is no number to work with (NaN, Inf, or too large
// for 4 bytes): refused like an answer that can't be read.
void not_finite(const version_block& vb, std::string_view t, float v) {
    errorhead(vb);
    writef(iocom.isout, "(1x,a,1x,g12.6)", std::string(t) + " =", v);
    textline("is not a finite number");
    textline("==> RETRYING");
    errortail00();
}

// A record read in "(a)" into a buffer of n characters: cut or blank padded.
// False when the unit gives no record. A CR before the line end stays, for
// the default test: a CR alone is the return key of another system.
bool read_buffer(std::string& buf, std::size_t n) {
    if (!unit_read_raw(iocom.isin, buf)) return false;
    if (buf.size() > n) buf.resize(n);
    buf.append(n - buf.size(), ' ');
    return true;
}

// The CR that ended a line typed or written on another system is no part of
// the answer (a file name with it would not open).
void drop_line_end_cr(std::string& buf) {
    const std::size_t k = buf.find_last_not_of(' ');
    if (k != std::string::npos && buf[k] == '\r') buf[k] = ' ';
}

// The return key, or any answer that starts with a blank, takes the default.
bool takes_default(const std::string& buf) {
    char c = buf.empty() ? ' ' : buf[0];
    return c == ' ' || c == '\r' || c == '\n';
}

void default_line_int(int def) {
    if (!iocom.LWITO(2)) return;
    textline("or return for default value");
    writef(iocom.isout, "(1x,a,1x,i12)", "Default =", def);
}

void echo_int(int v) {
    writef(iocom.isout, "(1x,a,1x,i12)", "New value = ", v);
    dotted();
}

void echo_real(float v) {
    writef(iocom.isout, "(1x,a,1x,g12.6)", "New value = ", v);
    dotted();
}

// The "inside [" / "outside [" line of an integer range, its field widths
// fitted to the bounds by a format written at run time.
void int_range_line(const version_block& vb, std::string_view head, int vmin, int vmax) {
    if (std::llabs((long long)vmin) >= 1000000000LL || std::llabs((long long)vmax) >= 1000000000LL) {
        errorhead(vb);
        textline("*     *** Format problem ***      *");
        textline("-----------------------------------");
        writef(iocom.isout, "(1x,a,1x,i12)", "ivmin = ", vmin);
        writef(iocom.isout, "(1x,a,1x,i12)", "ivmax = ", vmax);
        textline("limited to |iv| < 1 000 000 000");
        errortail00();
    }
    int n1, n2;
    integlen(n1, vmin);
    integlen(n2, vmax);
    int n = std::max(n1, n2);
    std::string f;
    if (n < 10)
        f = formatf("('(1x,a9,i',i1,',a1,i',i1,'a1)')", n1, n2);
    else if (n < 100)
        f = formatf("('(1x,a9,i',i2,',a1,i',i2,'a1)')", n1, n2);
    else if (n < 1000)
        f = formatf("('(1x,a9,i',i3,',a1,i',i3,'a1)')", n1, n2);
    else
        f = formatf("('(1x,a9,i',i9,',a1,i',i9,'a1)')", n1, n2);
    writef(iocom.isout, f, head, vmin, ",", vmax, "]");
}

const char* real_range_format(float vmin, float vmax) {
    float m = std::max(std::fabs(vmin), std::fabs(vmax));
    if (m < 10.f) return "(1x,a9,f6.3,a1,f6.3,a1)";
    if (m < 100.f) return "(1x,a9,f7.3,a1,f7.3,a1)";
    if (m < 1000.f) return "(1x,a9,f7.2,a1,f7.2,a1)";
    if (m < 1000000.f) return "(1x,a9,f9.1,a1,f7.2,a1)";
    if (m < 1e10f) return "(x,a9,f13.1,a1,f11,a1)";
    return "(x,a9,g20.1,a1,f,a1)";
}

void real_range_line(std::string_view head, float vmin, float vmax) {
    writef(iocom.isout, real_range_format(vmin, vmax), head, vmin, ",", vmax, "]");
}

void real_default_line(float value, float def, float vmin, float vmax) {
    if (!iocom.LWITO(2)) return;
    float m = std::max({std::fabs(vmin), std::fabs(vmax), std::fabs(value), std::fabs(def)});
    const char* f = m < 10.f     ? "(1x,a9,1x,f6.3)"
                    : m < 100.f  ? "(1x,a9,1x,f7.3)"
                    : m < 1000.f ? "(1x,a9,1x,f7.2)"
                                 : "(1x,a9,1x,g20.1)";
    textline("or return for default value");
    writef(iocom.isout, f, "Default =", def);
}

// The failed range check: the value, the range, and the pause.
void out_of_range_int(const version_block& vb, std::string_view t, int v, int vmin, int vmax) {
    errorhead(vb);
    writef(iocom.isout, "(1x,a,1x,i12)", std::string(t) + " =", v);
    int_range_line(vb, "outside [", vmin, vmax);
    errortail00();
}

void out_of_range_real(std::string_view t, float v, float vmin, float vmax) {
    errorhead(VB_INREALVINDEF);
    writef(iocom.isout, "(1x,a,1x,g12.6)", std::string(t) + " =", v);
    real_range_line("outside [", vmin, vmax);
    errortail00();
}

// Reads an answer that may take the default into v. False, after the error
// frame, when the answer can't be read.
template <class T>
bool read_defaulted(T& v, T def, const version_block& vb, std::string_view t, std::string& buf) {
    if (!read_buffer(buf, 20)) {
        could_not_read(vb, t);
        return false;
    }
    if (takes_default(buf)) {
        v = def;
        return true;
    }
    if (!readlist_str(buf, v)) {
        could_not_read(vb, t);
        return false;
    }
    if constexpr (std::is_floating_point_v<T>) {
        if (!std::isfinite(v)) {
            not_finite(vb, t, v);
            return false;
        }
    }
    return true;
}

// The integer prompts share one cycle; they differ in default and range.
void integer_prompt(int& value, std::string_view text, const int* def, const int* vmin,
                    const int* vmax, const version_block& vb) {
    std::string_view t = trimmed(text);
    int defv = def ? *def : 0;
    std::string buf;
    for (;;) {
        dotted();
        enter_line(t);
        if (vmin) int_range_line(vb, "inside  [", *vmin, *vmax);
        int v = value;
        if (def) {
            default_line_int(defv);
            if (!read_defaulted(v, defv, vb, t, buf)) continue;
        } else if (!readlist(iocom.isin, v)) {
            could_not_read(vb, t);
            continue;
        }
        if (vmin && (v < *vmin || v > *vmax)) {
            out_of_range_int(vb, t, v, *vmin, *vmax);
            continue;
        }
        value = v;
        echo_int(value);
        return;
    }
}

}  // namespace

void ininteg1(int& value, std::string_view text, int& ierr) {
    ierr = 0;
    integer_prompt(value, text, nullptr, nullptr, nullptr, VB_ININTEG1);
}

void inintegdef(int& value, std::string_view text, int def, int& ierr) {
    ierr = 0;
    integer_prompt(value, text, &def, nullptr, nullptr, VB_ININTEGDEF);
}

void inintegvin1(int& value, std::string_view text, int vmin, int vmax, int& ierr) {
    ierr = 0;
    integer_prompt(value, text, nullptr, &vmin, &vmax, VB_ININTEGVIN1);
}

void inintegvindef(int& value, std::string_view text, int def, int vmin, int vmax, int& ierr) {
    ierr = 0;
    integer_prompt(value, text, &def, &vmin, &vmax, VB_ININTEGVINDEF);
}

void inrealdef(float& value, std::string_view text, float def, int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    std::string buf;
    for (;;) {
        dotted();
        enter_line(t);
        if (iocom.LWITO(2)) {
            textline("or return for default value");
            writef(iocom.isout, "(1x,a,1x,g12.6)", "Default =", def);
        }
        float v = value;
        if (!read_defaulted(v, def, VB_INREALDEF, t, buf)) continue;
        value = v;
        echo_real(value);
        return;
    }
}

void inrealvindef(float& value, std::string_view text, float def, float vmin, float vmax,
                  int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    std::string buf;
    for (;;) {
        dotted();
        enter_line(t);
        real_range_line("inside  [", vmin, vmax);
        real_default_line(value, def, vmin, vmax);
        float v = value;
        if (!read_defaulted(v, def, VB_INREALVINDEF, t, buf)) continue;
        // NaN passes no comparison: it is outside any range.
        if (!(v >= vmin && v <= vmax)) {
            out_of_range_real(t, v, vmin, vmax);
            continue;
        }
        value = v;
        echo_real(value);
        return;
    }
}

void inchar1(fstr_ref value, std::string_view text, int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    std::string rec;
    for (;;) {
        dotted();
        enter_line(t);
        if (!unit_read(iocom.isin, rec)) {
            could_not_read(VB_INCHAR1, t);
            continue;
        }
        value.assign(rec);
        textline("New value =", value.sv());
        dotted();
        return;
    }
}

void inchardef(fstr_ref value, std::string_view text, std::string_view def_in, int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    const std::string def(def_in);  // value and default may share storage
    std::string buf;
    for (;;) {
        dotted();
        enter_line(t);
        if (iocom.LWITO(2)) {
            textline("or return for default value");
            textline("Default =", trimmed(def));
        }
        if (!read_buffer(buf, 80)) {
            could_not_read(VB_INCHARDEF, t);
            continue;
        }
        if (takes_default(buf)) {
            writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "ichar =", int((unsigned char)buf[0]),
                   "=> use default value");
            value.assign(def);
        } else {
            drop_line_end_cr(buf);
            value.assign(buf);
        }
        textline("New value =", value.sv());
        dotted();
        return;
    }
}

namespace {

// The help of a yes/no question, in a frame named after the routine that
// asked, its lines on the unit that routine writes to.
void logic_help(const version_block& vb, int unit) {
    submenuhead(vb);
    for (std::string_view l : {"   To         type           ", "-----------------------------",
                               "get help      h or H         ", "answer Yes    y or Y or 1    ",
                               "answer No     n or N or 0    ", "use default   Carriage Return"})
        writef(unit, "(5(1x,a))", l);
    menutail();
}

// The answer to a yes/no question: 1 yes, 0 no, -1 default, -2 anything else.
int logic_answer(char c) {
    switch (c) {
    case 'y': case 'Y': case '1': return 1;
    case 'n': case 'N': case '0': return 0;
    case ' ': case '\r': case '\n': return -1;
    default: return -2;
    }
}

}  // namespace

namespace {

// The loop both yes/no questions share: ask, read, and on a record that
// can't be read or an answer that isn't one say so (again: how the frame
// ends) and ask again; h shows the help. The answer is echoed, then the
// question closes with dots.
template <class Ask, class Dots>
bool logic_loop(const version_block& vb, const int& iunit, const int& ounit, std::string_view t, bool def,
                std::string_view again, Ask ask, Dots dots) {
    std::string rec;
    for (;;) {
        ask();
        if (!unit_read(iunit, rec)) {
            errorhead(vb);
            writef(ounit, "(5(1x,a))", "could not read answer to", t);
            writef(ounit, "(5(1x,a))", again);
            errortail00();
            continue;
        }
        char c = rec.empty() ? ' ' : rec[0];
        int a = logic_answer(c);
        if (a == -2) {
            if (c != 'h' && c != 'H') {
                errorhead(vb);
                writef(ounit, "(5(1x,a))", "incorrect answer:", std::string_view(&c, 1));
                writef(ounit, "(5(1x,a))", again);
                errortail00();
            }
            logic_help(vb, ounit);
            continue;
        }
        const bool value = a == -1 ? def : a == 1;
        writef(ounit, "(5(1x,a))", "New value = ", value ? "Yes" : "No");
        dots();
        return value;
    }
}

}  // namespace

void inlogicdef(bool& value, std::string_view text, bool def, int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    const char* defword = def ? "Yes" : "No";
    auto ask = [&] {
        dotted();
        textline(t, "?");
        if (iocom.LWITO(2)) {
            textline("Enter (0/1)(n/y)(N/Y) to answer");
            textline("or return for default value or h for help");
            textline("Default =", defword);
        }
    };
    value = logic_loop(VB_INLOGICDEF, iocom.isin, iocom.isout, t, def, "==> ASKING AGAIN", ask,
                       dotted);
}

void inlogicdef2(bool& value, std::string_view text, bool def, int iunit, int ounit, int& ierr) {
    ierr = 0;
    std::string_view t = trimmed(text);
    const char* defword = def ? "Yes" : "No";
    writef(ounit, "(5(1x,a))", DOTTED);
    auto ask = [&] {
        writef(ounit, "(5(1x,a))", t, "?");
        writef(ounit, "(5(1x,a))", "Enter", "(0/1)(n/y)(N/Y)");
        writef(ounit, "(5(1x,a))", "or return for default value or h for help");
        writef(ounit, "(5(1x,a))", "Default =", defword);
    };
    value = logic_loop(VB_INLOGICDEF2, iunit, ounit, t, def, "==> WILL ASK QUESTION AGAIN", ask,
                       [&] { writef(ounit, "(5(1x,a))", DOTTED); });
}

namespace {

// The shared body of the two value checks; T is int or float.
template <class T>
void check_value(T& value, T vmin, T vmax, std::string_view name, std::string_view routine,
                 int gravity, int& result, const version_block& vb, const char* numfmt,
                 bool warn_on_10) {
    bool valid_gravity = (gravity >= 0 && gravity <= 4) || (gravity >= 10 && gravity <= 14);
    if (!valid_gravity) {
        warninghead(vb);
        writef(iocom.ieout, "(1x,a,1x,i6,1x,a)", "gravity =", gravity, "not in [0,4]U[10,14]");
        writef(iocom.ieout, "(5(1x,a))", "==> Do as if gravity = 3");
        warningtail00();
    }
    if (value >= vmin && value <= vmax) {
        result = 0;
        return;
    }
    bool warn = gravity == 0 || (warn_on_10 && gravity == 10);
    if (warn)
        warninghead(vb);
    else
        errorhead(vb);
    std::string nm = std::string(trimmed(name)) + " =";
    writef(iocom.ieout, "(5(1x,a))", "Problem in subroutine:", trimmed(routine));
    writef(iocom.ieout, "(1x,a,1x,i8)", "Gravity level [0-4]U[10,14] =", gravity);
    writef(iocom.ieout, numfmt, nm, value, "outside [", vmin, ",", vmax, "]");
    if (value < vmin) {
        writef(iocom.ieout, numfmt, nm, value, "<", vmin);
        result = 1;
    } else {
        writef(iocom.ieout, numfmt, nm, value, ">", vmax);
        result = 2;
    }
    bool reset = gravity >= 10 && gravity <= 14;
    if (reset) value = result == 1 ? vmin : vmax;
    writef(iocom.ieout, numfmt, std::string(reset ? "==> RESET " : "==> UNALTERED ") + nm, value);
    switch (gravity) {
    case 0: case 10: warningtail00(); break;
    case 1: case 11: errortail00(); break;
    case 2: case 3: case 4: errortailstop(gravity - 2); break;
    case 12: case 13: case 14: errortailstop(gravity - 12); break;
    default: errortailstop(1); break;
    }
}

}  // namespace

void cinvin3(int& value, int vmin, int vmax, std::string_view name, std::string_view routine,
             int gravity, int& result) {
    check_value(value, vmin, vmax, name, routine, gravity, result, VB_CINVIN3,
                "(4(1x,a,1x,i8))", false);
}

void crevin3(float& value, float vmin, float vmax, std::string_view name,
             std::string_view routine, int gravity, int& result) {
    check_value(value, vmin, vmax, name, routine, gravity, result, VB_CREVIN3,
                "(4(1x,a,1x,g14.4))", true);
}
