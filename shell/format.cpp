// Fixed-field output: a format string is compiled into a flat list of edit
// nodes, then run over the items. The output is meant to be character for
// character what gfortran writes for the same format and values, so tables
// and reports keep the look they always had.
#include "shell/format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "shell/units.h"

namespace {

constexpr int ABSENT = -1;
// Counts and widths above this are taken as a broken format rather than as a
// request for megabytes of blanks.
constexpr int LIMIT = 1000000;

enum class op : std::uint8_t {
    lit,    // quoted text or nH
    skip,   // nX, TRn: move right
    back,   // TLn: move left
    tab,    // Tn: go to column n
    slash,  // end the record
    colon,  // stop when no item is left
    data,   // a data edit descriptor
    open,   // a group's '('
    close,  // a group's ')'
    sign,   // S, SP, SS
};

struct node {
    op kind;
    // data: A L I F E D G, 'S' for ES, 'N' for EN; sign: 'P' for SP, else 0.
    char code = 0;
    int rep = 1;
    int w = ABSENT, d = ABSENT, e = ABSENT;
    std::uint32_t off = 0, len = 0;  // lit: place in the literal pool
};

struct compiled {
    std::vector<node> nodes;
    std::string pool;
    int revert = 0;  // where the format starts again when it runs out
};

char upper(char c) { return (c >= 'a' && c <= 'z') ? char(c - 'a' + 'A') : c; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Blanks are insignificant in a format outside quoted text, even inside a
// number ("i 1 2" is i12), and a comma may be left out between items
// ("i3a1"), as gfortran allows.
class parser {
public:
    parser(std::string_view s, compiled& out) : s_(s), out_(out) {}

    bool run() {
        if (get() != '(') return false;
        std::vector<int> open;
        bool after_item = false;
        for (;;) {
            char c = peek();
            if (c == 0) return false;
            if (c == ',') {
                ++i_;
                if (!after_item) return false;
                after_item = false;
                continue;
            }
            if (c == ')') {
                ++i_;
                if (open.empty()) return !bad_;  // text after the final ')' is ignored
                int o = open.back();
                open.pop_back();
                out_.nodes.push_back({op::close});
                if (open.empty()) out_.revert = o;
                after_item = true;
                continue;
            }
            int rep = number();
            bool has_rep = rep != ABSENT;
            c = get();
            if (c == '(') {
                if (rep == 0) return false;
                open.push_back(int(out_.nodes.size()));
                node n{op::open};
                n.rep = has_rep ? rep : 1;
                out_.nodes.push_back(n);
                after_item = false;
                continue;
            }
            if (!item(c, rep) || bad_) return false;
            after_item = true;
        }
    }

private:
    std::string_view s_;
    compiled& out_;
    std::size_t i_ = 0;
    bool bad_ = false;

    char peek() {
        while (i_ < s_.size() && (s_[i_] == ' ' || s_[i_] == '\t')) ++i_;
        return i_ < s_.size() ? upper(s_[i_]) : 0;
    }
    char get() {
        char c = peek();
        if (c) ++i_;
        return c;
    }
    // An unsigned number, or ABSENT if none is there.
    int number() {
        if (!is_digit(peek())) return ABSENT;
        long v = 0;
        while (is_digit(peek())) {
            v = v * 10 + (s_[i_++] - '0');
            if (v > LIMIT) {
                bad_ = true;
                v = LIMIT;
            }
        }
        return int(v);
    }
    // ".n" after a width, or ABSENT.
    int after_point() {
        if (peek() != '.') return ABSENT;
        ++i_;
        int v = number();
        if (v == ABSENT) bad_ = true;
        return v;
    }

    void push_data(char code, int rep, int w, int d, int e) {
        node n{op::data};
        n.code = code;
        n.rep = rep == ABSENT ? 1 : rep;
        n.w = w;
        n.d = d;
        n.e = e;
        if (n.rep == 0) bad_ = true;
        out_.nodes.push_back(n);
    }
    void push_move(op k, int n) {
        node x{k};
        x.rep = n;
        out_.nodes.push_back(x);
    }
    void push_text(std::string_view t) {
        node n{op::lit};
        n.off = std::uint32_t(out_.pool.size());
        n.len = std::uint32_t(t.size());
        out_.pool.append(t);
        out_.nodes.push_back(n);
    }

    bool literal(char q) {
        std::string t;
        for (;;) {
            if (i_ >= s_.size()) return false;
            char c = s_[i_++];
            if (c == q) {
                if (i_ < s_.size() && s_[i_] == q) {
                    ++i_;
                    t += q;
                } else {
                    break;
                }
            } else {
                t += c;
            }
        }
        push_text(t);
        return true;
    }

    bool item(char c, int rep) {
        bool has_rep = rep != ABSENT;
        switch (c) {
        case '\'':
        case '"':
            return !has_rep && literal(s_[i_ - 1]);
        case 'H':  // nH: the next n characters as they stand, blanks included
            if (!has_rep || rep == 0 || s_.size() - i_ < std::size_t(rep)) return false;
            push_text(s_.substr(i_, std::size_t(rep)));
            i_ += std::size_t(rep);
            return true;
        case '/':
            if (rep == 0) return false;
            push_move(op::slash, has_rep ? rep : 1);
            return true;
        case ':':
            if (has_rep) return false;
            push_move(op::colon, 0);
            return true;
        case 'X':
            push_move(op::skip, has_rep ? rep : 1);
            return true;
        case 'T': {
            if (has_rep) return false;
            op k = op::tab;
            if (peek() == 'L') k = op::back, ++i_;
            else if (peek() == 'R') k = op::skip, ++i_;
            int n = number();
            if (n == ABSENT || (k == op::tab && n == 0)) return false;
            push_move(k, n);
            return true;
        }
        case 'S': {
            if (has_rep) return false;
            node n{op::sign};
            if (peek() == 'P') n.code = 'P', ++i_;
            else if (peek() == 'S') ++i_;
            out_.nodes.push_back(n);
            return true;
        }
        case 'B':  // BN and BZ only matter on input
            if (has_rep || (peek() != 'N' && peek() != 'Z')) return false;
            ++i_;
            return true;
        case '$':
        case '\\':  // "no record end": every record here is a whole line anyway
            return !has_rep;
        case 'A':
        case 'L': {
            int w = number();
            if (w == 0) return false;
            push_data(c, rep, w, ABSENT, ABSENT);
            return true;
        }
        case 'I': {
            int w = number();
            int m = w == ABSENT ? ABSENT : after_point();
            push_data('I', rep, w, m, ABSENT);
            return true;
        }
        case 'F': {
            int w = number();
            int d = w == ABSENT ? ABSENT : after_point();
            if (w != ABSENT && d == ABSENT) d = 0;  // "f11" is f11.0
            push_data('F', rep, w, d, ABSENT);
            return true;
        }
        case 'E':
        case 'D':
        case 'G': {
            char code = c;
            if (c == 'E' && (peek() == 'S' || peek() == 'N')) code = get();
            int w = number();
            int d = ABSENT, e = ABSENT;
            if (w != ABSENT) {
                d = after_point();
                if (d == ABSENT) {
                    if (code != 'G') return false;
                    if (w > 0) d = 0;  // G0 alone picks its digits by the item
                } else if (code != 'D' && peek() == 'E') {
                    ++i_;
                    e = number();
                    if (e == ABSENT || e == 0) return false;
                }
                if (w == 0 && code != 'G') return false;
            }
            push_data(code, rep, w, d, e);
            return true;
        }
        default:
            return false;
        }
    }
};

// A few recently used formats stay compiled: tables write thousands of
// records with the same one or two formats.
const compiled* compile(std::string_view f) {
    struct entry {
        std::string key;
        compiled prog;
        bool ok = false;
    };
    thread_local std::array<entry, 8> cache;
    thread_local std::size_t next = 0;
    for (auto& c : cache)
        if (!c.key.empty() && c.key == f) return c.ok ? &c.prog : nullptr;
    entry& c = cache[next];
    next = (next + 1) % cache.size();
    c.key.assign(f);
    c.prog = compiled{};
    c.ok = parser(f, c.prog).run();
    return c.ok ? &c.prog : nullptr;
}

// ---------------------------------------------------------------------------
// Editing of one value into a field.

void stars(std::string& f, int w) { f.assign(std::size_t(w > 0 ? w : 1), '*'); }

// Right-justifies body (with sign in front) in w columns; w == 0 is the
// minimal width. False if it does not fit.
bool justify(std::string& f, int w, char sign, std::string_view body) {
    std::size_t n = body.size() + (sign ? 1 : 0);
    if (w == 0) w = n ? int(n) : 1;  // i0.0 of zero is still one blank
    if (n > std::size_t(w)) return false;
    f.assign(std::size_t(w) - n, ' ');
    if (sign) f += sign;
    f += body;
    return true;
}

char sign_of(bool negative, bool plus) { return negative ? '-' : (plus ? '+' : 0); }

void edit_int(std::string& f, long long v, int w, int m, bool plus) {
    if (w == ABSENT) w = 12;
    char buf[32];
    unsigned long long mag = v < 0 ? 0ull - (unsigned long long)v : (unsigned long long)v;
    auto r = std::to_chars(buf, buf + sizeof buf, mag);
    std::string_view digits(buf, std::size_t(r.ptr - buf));
    std::string body;
    if (m != ABSENT && std::size_t(m) > digits.size()) body.assign(std::size_t(m) - digits.size(), '0');
    if (!(v == 0 && m == 0)) body += digits;  // Iw.0 writes zero as blanks
    if (!justify(f, w, sign_of(v < 0, plus), body)) stars(f, w);
}

void edit_infnan(std::string& f, double v, int w, bool plus) {
    if (std::isnan(v)) {
        if (!justify(f, w, 0, "NaN")) stars(f, w);
        return;
    }
    char sign = sign_of(v < 0, plus);
    // The long spelling when it fits, "Inf" otherwise.
    int room = w == 0 ? 0 : w - (sign ? 1 : 0);
    if (!justify(f, w, sign, room >= 8 ? "Infinity" : "Inf")) stars(f, w);
}

// Fw.d. The zero before the point goes when the field is too narrow for it
// (and always for w == 0), but not when it is the only digit.
void edit_f(std::string& f, double v, int w, int d, bool plus) {
    if (!std::isfinite(v)) return edit_infnan(f, v, w, plus);
    double a = std::fabs(v);
    // More integer digits than any field has columns: stars, and the digit
    // buffer stays small.
    if (w > 0 && a >= 1e300) return stars(f, w);
    char local[512];
    std::string heap;
    char* buf = local;
    std::size_t size = sizeof local;
    if (std::size_t(d) + 320 > size) {
        heap.resize(std::size_t(d) + 320);
        buf = heap.data();
        size = heap.size();
    }
    // to_chars rounds to nearest on the exact binary value, as printf does
    auto r = std::to_chars(buf, buf + size - 1, a, std::chars_format::fixed, d);
    if (r.ec != std::errc()) return stars(f, w);
    if (d == 0) *r.ptr++ = '.';
    std::string_view body(buf, std::size_t(r.ptr - buf));
    char sign = sign_of(std::signbit(v), plus);
    if (d > 0 && body[0] == '0') {
        std::size_t full = body.size() + (sign ? 1 : 0);
        if (w == 0 || full > std::size_t(w)) body.remove_prefix(1);
    }
    if (!justify(f, w, sign, body)) stars(f, w);
}

// The significant digits of |v| rounded to n of them, and the decimal
// exponent x with |v| ~ 0.ddd * 10^x. Zero gives n zeros and x = 0.
void sig_digits(double a, int n, std::string& digits, int& x) {
    digits.clear();
    if (a == 0) {
        digits.assign(std::size_t(n), '0');
        x = 0;
        return;
    }
    char local[400];
    std::string heap;
    char* buf = local;
    std::size_t size = sizeof local;
    if (std::size_t(n) + 16 > size) {
        heap.resize(std::size_t(n) + 16);
        buf = heap.data();
        size = heap.size();
    }
    auto r = std::to_chars(buf, buf + size, a, std::chars_format::scientific, n - 1);
    std::string_view s(buf, std::size_t(r.ptr - buf));
    std::size_t epos = s.find('e');
    for (std::size_t k = 0; k < epos; ++k)
        if (s[k] != '.') digits += s[k];
    int ex = 0;
    std::from_chars(s.data() + epos + 1 + (s[epos + 1] == '+'), s.data() + s.size(), ex);
    x = ex + 1;
}

// The exponent part: "E+05", "+123" past two digits, or with e given
// "E+005"; empty if it does not fit.
bool exponent_text(std::string& out, int x, int e, char letter) {
    int mag = x < 0 ? -x : x;
    char digits[16];
    auto r = std::to_chars(digits, digits + sizeof digits, mag);
    int nd = int(r.ptr - digits);
    char sign = x < 0 ? '-' : '+';
    if (e == ABSENT) {
        if (nd <= 2) {
            out += letter;
            out += sign;
            if (nd < 2) out += '0';
        } else if (nd == 3) {
            out += sign;
        } else {
            return false;
        }
    } else {
        if (nd > e) return false;
        out += letter;
        out += sign;
        out.append(std::size_t(e - nd), '0');
    }
    out.append(digits, std::size_t(nd));
    return true;
}

// Ew.d, Dw.d (code 'D'), ESw.d (code 'S') and ENw.d (code 'N'). With w == 0
// (only reached from G0) the exponent takes as few digits as it needs.
void edit_e(std::string& f, double v, int w, int d, int e, char code, bool plus) {
    if (!std::isfinite(v)) return edit_infnan(f, v, w, plus);
    if (d <= 0 && code != 'S' && code != 'N') return stars(f, w);
    double a = std::fabs(v);
    std::string digits;
    int x = 0;
    std::string body;
    int before = 0;  // digits before the point
    if (code == 'S') {
        sig_digits(a, d + 1, digits, x);
        before = 1;
        if (a != 0) --x;
    } else if (code == 'N') {
        // One to three digits before the point and an exponent that is a
        // multiple of three; rounding may carry into the next power of ten.
        sig_digits(a, d + 3, digits, x);  // for the exponent only
        if (a != 0) {
            int x0 = x;
            before = ((x - 1) % 3 + 3) % 3 + 1;  // x-1 is the first digit's exponent
            sig_digits(a, d + before, digits, x);
            if (x != x0) {
                // Rounded up to the next power of ten, which may start a new
                // group of three.
                before = ((x - 1) % 3 + 3) % 3 + 1;
                digits.assign(1, '1');
                digits.append(std::size_t(d + before - 1), '0');
            }
            x -= before;
        } else {
            before = 1;
            digits.assign(std::size_t(d + 1), '0');
        }
    } else {
        sig_digits(a, d, digits, x);
    }
    if (before > 0) {
        body.append(digits, 0, std::size_t(before));
        body += '.';
        body.append(digits, std::size_t(before), std::string::npos);
    } else {
        body = "0.";
        body += digits;
    }
    char letter = code == 'D' ? 'D' : 'E';
    bool ok;
    if (w == 0) {
        body += letter;
        body += x < 0 ? '-' : '+';
        char buf[16];
        auto r = std::to_chars(buf, buf + sizeof buf, x < 0 ? -x : x);
        body.append(buf, r.ptr);
        ok = true;
    } else {
        ok = exponent_text(body, x, e, letter);
    }
    char sign = sign_of(std::signbit(v), plus);
    if (!ok) return stars(f, w);
    if (before == 0 && w > 0 && body.size() + (sign ? 1 : 0) > std::size_t(w)) body.erase(0, 1);
    if (!justify(f, w, sign, body)) stars(f, w);
}

// 10^n the way gfortran's library computes it, in the real's own precision.
template <class T>
T power_of_ten(int n) {
    T r = 1;
    for (int k = 0; k < (n >= 0 ? n : -n); ++k) r *= 10;
    return n >= 0 ? r : T(1) / r;
}

// For Gw.d: the number of digits before the point that F editing will use,
// or -1 when E editing is due. gfortran decides this by comparing the value
// with 10^k * (1 - 0.5*10^-d) in the value's own precision (0.1 times that as
// a double product), not by rounding the value to d digits, so values on a
// boundary (0.995 in g9.2 is 1.0) go its way.
template <class T>
int g_digits(T m, int d) {
    const T exp_d = power_of_ten<T>(d);
    const T half = T(0.5);
    const T scale = T(1) - half / exp_d;
    T low_end = T(0.1 * scale);
    if (m > 0 && (m < low_end || half >= exp_d - m)) return -1;
    if (m == 0) return 1;
    // the smallest k in 1..d+1 with m < 10^(k-1) * scale
    int low = 0, high = d + 1, lbound = 0, ubound = d + 1, mid = 0;
    while (low <= high) {
        mid = (low + high) / 2;
        T edge = power_of_ten<T>(mid - 1) * scale;
        if (m < edge) {
            ubound = mid;
            if (ubound == lbound + 1) break;
            high = mid - 1;
        } else if (m > edge) {
            lbound = mid;
            if (ubound == lbound + 1) {
                ++mid;
                break;
            }
            low = mid + 1;
        } else {
            ++mid;
            break;
        }
    }
    return mid - 1;
}

// Gw.d for a real: F editing with d-x decimals in w-n columns and n blanks
// after (n = 4, or e+2) when the value has x digits before the point, 0 <= x
// <= d; E editing otherwise. G0 works the same in a minimal field.
void edit_g(std::string& f, double v, bool isfloat, int w, int d, int e, bool plus) {
    if (!std::isfinite(v)) return edit_infnan(f, v, w, plus);
    if (d <= 0) return stars(f, w);
    double a = std::fabs(v);
    int x = isfloat ? g_digits<float>(float(a), d) : g_digits<double>(a, d);
    if (x < 0) return edit_e(f, v, w, d, e, 'E', plus);
    int fd = d - x;
    if (w == 0) {
        edit_f(f, v, 0, fd, plus);
        // G0 keeps the zero before the point that F0 leaves out
        std::size_t p = f.find('.');
        if (p != std::string::npos && (p == 0 || f[p - 1] == '-' || f[p - 1] == '+')) f.insert(p, 1, '0');
        return;
    }
    int n = e == ABSENT ? 4 : e + 2;
    if (n >= w) n = w - 1;
    edit_f(f, v, w - n, fd, plus);
    if (f[0] == '*') return stars(f, w);
    f.append(std::size_t(n), ' ');
}

void edit_l(std::string& f, bool b, int w) {
    if (w == ABSENT || w == 0) w = 1;
    f.assign(std::size_t(w - 1), ' ');
    f += b ? 'T' : 'F';
}

void edit_a(std::string& f, std::string_view c, int w) {
    if (w == ABSENT) {
        f.assign(c);
    } else if (std::size_t(w) <= c.size()) {
        f.assign(c.substr(0, std::size_t(w)));
    } else {
        f.assign(std::size_t(w) - c.size(), ' ');
        f += c;
    }
}

// The width an item of the wrong kind gets filled with stars in.
int default_width(const fitem& it) {
    switch (it.kind) {
    case fitem::INT: return 12;
    case fitem::REAL: return it.isfloat ? 15 : 25;
    case fitem::LOGICAL: return 1;
    case fitem::CHAR: return int(it.c.size());
    }
    return 1;
}

void edit(std::string& f, const node& n, const fitem& it, bool plus) {
    int w = n.w, d = n.d;
    if (it.kind == fitem::REAL && w == ABSENT && n.code != 'A' && n.code != 'L' && n.code != 'I') {
        // A bare F, E, G...: the usual widths for the real's own size
        w = it.isfloat ? 15 : 25;
        d = it.isfloat ? 7 : 16;
    }
    switch (n.code) {
    case 'A':
        if (it.kind == fitem::CHAR) return edit_a(f, it.c, w);
        return stars(f, w == ABSENT ? default_width(it) : w);
    case 'L':
        if (it.kind == fitem::LOGICAL) return edit_l(f, it.l, w);
        return stars(f, w == ABSENT ? 1 : w);
    case 'I':
        if (it.kind == fitem::INT) return edit_int(f, it.i, w, d, plus);
        return stars(f, w == ABSENT ? 12 : (w == 0 ? default_width(it) : w));
    case 'G':
        // G takes any kind: integers as I, logicals as L, text as A
        switch (it.kind) {
        case fitem::INT: return edit_int(f, it.i, w, ABSENT, plus);
        case fitem::LOGICAL: return edit_l(f, it.l, w);
        case fitem::CHAR: return edit_a(f, it.c, w == 0 ? ABSENT : w);
        case fitem::REAL:
            if (w == 0 && d == ABSENT) d = it.isfloat ? 9 : 17;
            return edit_g(f, it.r, it.isfloat, w, d, n.e, plus);
        }
        return;
    default:
        break;
    }
    // F, E, D, ES, EN: reals only
    if (it.kind != fitem::REAL) return stars(f, w == ABSENT ? default_width(it) : (w == 0 ? 1 : w));
    if (n.code == 'F') return edit_f(f, it.r, w, d, plus);
    edit_e(f, it.r, w, d, n.e, n.code, plus);
}

// ---------------------------------------------------------------------------
// Running a compiled format.

class runner {
public:
    runner(const compiled& p, std::span<const fitem> items, std::vector<std::string>& out)
        : p_(p), items_(items), out_(out) {}

    void run() {
        const auto& nodes = p_.nodes;
        struct frame {
            int open;
            int left;
        };
        std::vector<frame> groups;
        int pc = 0;
        std::size_t used_at_start = 0;  // items used when the pass began
        for (;;) {
            if (--budget_ < 0) break;
            if (pc == int(nodes.size())) {
                // The end of the format: done when no item is left, else a
                // new record and back to the reversion point. A pass that
                // used no item would never end.
                if (next_ == items_.size() || next_ == used_at_start) break;
                used_at_start = next_;
                end_record();
                groups.clear();
                pc = p_.revert;
                continue;
            }
            const node& n = nodes[std::size_t(pc)];
            switch (n.kind) {
            case op::lit:
                put(std::string_view(p_.pool).substr(n.off, n.len));
                break;
            case op::skip:
                pos_ += std::size_t(n.rep);
                break;
            case op::back:
                pos_ = pos_ > std::size_t(n.rep) ? pos_ - std::size_t(n.rep) : 0;
                break;
            case op::tab:
                pos_ = std::size_t(n.rep - 1);
                break;
            case op::slash:
                for (int k = 0; k < n.rep && budget_ >= 0; ++k) end_record();
                break;
            case op::colon:
                if (next_ == items_.size()) return end_record();
                break;
            case op::sign:
                plus_ = n.code == 'P';
                break;
            case op::open:
                groups.push_back({pc, n.rep});
                break;
            case op::close:
                if (--groups.back().left > 0) {
                    pc = groups.back().open;
                } else {
                    groups.pop_back();
                }
                break;
            case op::data:
                for (int k = 0; k < n.rep; ++k) {
                    if (next_ == items_.size()) return end_record();
                    edit(field_, n, items_[next_++], plus_);
                    put(field_);
                }
                break;
            }
            ++pc;
        }
        end_record();
    }

private:
    const compiled& p_;
    std::span<const fitem> items_;
    std::vector<std::string>& out_;
    std::size_t next_ = 0;
    std::string rec_, field_;
    std::size_t pos_ = 0;
    bool plus_ = false;
    // Steps, characters and records a run may take. Nested repeat counts on
    // text alone ("(999999(999999/))") would otherwise go on for hours and
    // exhaust memory; no sensible format comes near this.
    long budget_ = 20'000'000;

    // Writes at the current column; blanks fill any gap that positioning
    // left, and text written over earlier text replaces it.
    void put(std::string_view s) {
        if (pos_ > rec_.size()) {
            long gap = long(pos_ - rec_.size());
            budget_ -= gap;
            if (budget_ < 0) return;
            rec_.resize(pos_, ' ');
        }
        std::size_t over = std::min(s.size(), rec_.size() - pos_);
        rec_.replace(pos_, over, s);
        pos_ += s.size();
        budget_ -= long(s.size());
    }
    void end_record() {
        budget_ -= 32;
        out_.push_back(std::move(rec_));
        rec_.clear();
        pos_ = 0;
    }
};

}  // namespace

void format_records(std::vector<std::string>& out, std::string_view format,
                    std::span<const fitem> items) {
    const compiled* p = compile(format);
    if (!p) {
        out.push_back("*** bad format: " + std::string(format));
        return;
    }
    runner(*p, items, out).run();
}

std::string formatv(std::string_view format, std::span<const fitem> items) {
    std::vector<std::string> recs;
    format_records(recs, format, items);
    std::string s;
    for (std::size_t k = 0; k < recs.size(); ++k) {
        if (k) s += '\n';
        s += recs[k];
    }
    return s;
}

void writev(int unit, std::string_view format, std::span<const fitem> items) {
    std::vector<std::string> recs;
    format_records(recs, format, items);
    for (const auto& r : recs) unit_write(unit, r);
}
