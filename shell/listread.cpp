// Free-format (list-directed) input, read the way gfortran reads it, so data
// and command files written for the program keep their meaning: blanks,
// commas and record ends separate values, ",," is a null value that leaves
// its item alone, '/' ends the read, r*v and r* repeat.
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "shell/format.h"
#include "shell/units.h"

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }
bool ends_value(char c) { return is_blank(c) || c == ',' || c == '/'; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }
char lower(char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; }

bool iequal(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t k = 0; k < a.size(); ++k)
        if (lower(a[k]) != b[k]) return false;
    return true;
}

// A sign and digits, within the range of a 4-byte integer.
bool parse_int(std::string_view s, int& out) {
    std::size_t i = 0;
    bool neg = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) neg = s[i++] == '-';
    if (i == s.size()) return false;
    long long v = 0;
    for (; i < s.size(); ++i) {
        if (!is_digit(s[i])) return false;
        v = v * 10 + (s[i] - '0');
        if (v > 2147483648LL) return false;
    }
    if (neg) v = -v;
    if (v > std::numeric_limits<int>::max()) return false;
    out = int(v);
    return true;
}

// A real: sign, digits with an optional point, an optional exponent written
// with E, D or Q, or just its sign ("1.5+3"); also Inf, Infinity and NaN.
// The digits are converted once, straight to the item's own precision.
template <class T>
bool parse_real(std::string_view s, T& out) {
    std::size_t i = 0;
    bool neg = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) neg = s[i++] == '-';
    // Data lines hold plain decimals: those go to the converter as they
    // stand. Anything else, or a value out of range, takes the long way.
    std::size_t k = i;
    bool dot = false, digit = false;
    for (; k < s.size(); ++k) {
        if (is_digit(s[k])) digit = true;
        else if (s[k] == '.' && !dot) dot = true;
        else break;
    }
    if (k == s.size() && digit) {
        T v{};
        auto r = std::from_chars(s.data() + i, s.data() + k, v);
        if (r.ec == std::errc() && r.ptr == s.data() + k) {
            out = neg ? -v : v;
            return true;
        }
    }
    std::string_view rest = s.substr(i);
    if (iequal(rest, "inf") || iequal(rest, "infinity")) {
        out = neg ? -std::numeric_limits<T>::infinity() : std::numeric_limits<T>::infinity();
        return true;
    }
    if (rest.size() >= 3 && iequal(rest.substr(0, 3), "nan") &&
        (rest.size() == 3 || (rest[3] == '(' && rest.back() == ')'))) {
        out = std::numeric_limits<T>::quiet_NaN();
        return true;
    }
    std::string norm;  // the digits and point, then "e" and the exponent
    int ndigits = 0;
    int magnitude = 0;  // decimal position of the first nonzero digit
    bool nonzero = false, point = false;
    for (; i < s.size(); ++i) {
        char c = s[i];
        if (is_digit(c)) {
            ++ndigits;
            if (c != '0') nonzero = true;
            if (!point && nonzero) ++magnitude;
            if (point && !nonzero) --magnitude;
        } else if (c != '.' || point) {
            break;
        } else {
            point = true;
        }
        norm += c;
    }
    if (ndigits == 0) return false;
    long exp = 0;
    if (i < s.size()) {
        char c = lower(s[i]);
        if (c == 'e' || c == 'd' || c == 'q') ++i;
        else if (c != '+' && c != '-') return false;
        bool eneg = false;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) eneg = s[i++] == '-';
        if (i == s.size()) return false;
        for (; i < s.size(); ++i) {
            if (!is_digit(s[i])) return false;
            if (exp < 100000) exp = exp * 10 + (s[i] - '0');
        }
        if (eneg) exp = -exp;
    }
    norm += 'e';
    norm += std::to_string(exp);
    T v{};
    const char* end = norm.data() + norm.size();
    auto r = std::from_chars(norm.data(), end, v);
    if (r.ec == std::errc::result_out_of_range) {
        // Too large is infinite, too small is zero, as gfortran reads them
        v = (nonzero && magnitude + exp > 0) ? std::numeric_limits<T>::infinity() : T(0);
    } else if (r.ec != std::errc() || r.ptr != end) {
        return false;
    }
    out = neg ? -v : v;
    return true;
}

// A logical: an optional point, then T or F; the rest of the value (".true.",
// "false") is not looked at.
bool parse_logical(std::string_view s, bool& out) {
    std::size_t i = s.size() > 1 && s[0] == '.' ? 1 : 0;
    char c = i < s.size() ? lower(s[i]) : 0;
    if (c != 't' && c != 'f') return false;
    out = c == 't';
    return true;
}

int kind_class(litem::kind_t k) { return k == litem::DREAL ? litem::REAL : k; }

// Stores a value (its text; decoded already for a character item).
bool store(const litem& it, std::string_view text) {
    switch (it.kind) {
    case litem::INT: return parse_int(text, *static_cast<int*>(it.p));
    case litem::REAL: return parse_real(text, *static_cast<float*>(it.p));
    case litem::DREAL: return parse_real(text, *static_cast<double*>(it.p));
    case litem::LOGICAL: return parse_logical(text, *static_cast<bool*>(it.p));
    case litem::CHAR: {
        char* p = static_cast<char*>(it.p);
        std::size_t k = std::min(it.n, text.size());
        std::memmove(p, text.data(), k);
        std::memset(p + k, ' ', it.n - k);
        return true;
    }
    }
    return false;
}

class list_reader {
public:
    // With a source, records come from it into own, which is kept from one
    // read to the next so that reading a table does not allocate per line;
    // without, rec is all there is.
    list_reader(record_source* src, std::string* own, std::string_view rec)
        : src_(src), own_(own), rec_(rec) {}

    bool read(std::span<const litem> items) {
        int repeat = 0;          // items still to get the last r* value
        bool repeat_null = false;
        int repeat_class = 0;
        std::string repeat_text;
        bool value_before = false;  // a value was read whose comma may follow
        for (const litem& it : items) {
            if (repeat > 0) {
                --repeat;
                if (repeat_null) continue;
                if (kind_class(it.kind) != repeat_class) return false;
                if (!store(it, repeat_text)) return false;
                continue;
            }
            if (!skip_blanks()) return false;
            // One comma after a value, with blanks or record ends around it,
            // only separates; a comma where a value should start is a null.
            if (value_before && rec_[pos_] == ',') {
                ++pos_;
                if (!skip_blanks()) return false;
            }
            value_before = true;
            char c = rec_[pos_];
            if (c == '/') return true;
            if (c == ',') {
                ++pos_;
                value_before = false;
                continue;
            }
            int count = repeat_count();
            if (count < 0) return false;
            if (count > 0 && (at_end() || ends_value(rec_[pos_]))) {  // r*: r null values
                repeat = count - 1;
                repeat_null = true;
                continue;
            }
            std::string_view text;
            if (!value(it, text)) return false;
            if (!store(it, text)) return false;
            if (count > 1) {
                repeat = count - 1;
                repeat_null = false;
                repeat_class = kind_class(it.kind);
                repeat_text.assign(text);
            }
        }
        return true;
    }

private:
    record_source* src_;
    std::string* own_;
    std::string_view rec_;
    std::string text_;
    std::size_t pos_ = 0;

    bool at_end() const { return pos_ >= rec_.size(); }

    bool next_record() {
        if (!src_ || !src_->next(*own_)) return false;
        rec_ = *own_;
        pos_ = 0;
        return true;
    }

    // Moves to the next character that is not a blank, going on through
    // following records; false when the data ends first.
    bool skip_blanks() {
        for (;;) {
            while (pos_ < rec_.size() && is_blank(rec_[pos_])) ++pos_;
            if (pos_ < rec_.size()) return true;
            if (!next_record()) return false;
        }
    }

    // The r of "r*" in front of a value, moving past it; 0 if there is
    // none, -1 for a zero or absurd count.
    int repeat_count() {
        std::size_t p = pos_;
        while (p < rec_.size() && is_digit(rec_[p])) ++p;
        if (p == pos_ || p == rec_.size() || rec_[p] != '*') return 0;
        int count = 0;
        if (!parse_int(rec_.substr(pos_, p - pos_), count) || count == 0) return -1;
        pos_ = p + 1;
        return count;
    }

    // The text of the value at pos_: a quoted string decoded (for a character
    // item), or everything up to the next separator.
    bool value(const litem& it, std::string_view& text) {
        char q = at_end() ? 0 : rec_[pos_];
        if (it.kind == litem::CHAR && (q == '\'' || q == '"')) {
            quoted(q);
            text = text_;
            return at_end() || ends_value(rec_[pos_]);
        }
        std::size_t start = pos_;
        while (pos_ < rec_.size() && !ends_value(rec_[pos_])) ++pos_;
        text = rec_.substr(start, pos_ - start);
        return !text.empty();
    }

    // A quoted string into text_: a doubled quote is one quote, a string
    // may go on over a record end (which adds nothing to it), and the end of
    // the data closes it as gfortran does.
    void quoted(char q) {
        text_.clear();
        ++pos_;
        for (;;) {
            if (at_end()) {
                if (!next_record()) return;
                continue;
            }
            char c = rec_[pos_++];
            if (c != q) {
                text_ += c;
            } else if (pos_ < rec_.size() && rec_[pos_] == q) {
                text_ += q;
                ++pos_;
            } else {
                return;
            }
        }
    }
};

// Records of a numbered unit.
struct unit_source : record_source {
    int unit;
    explicit unit_source(int u) : unit(u) {}
    bool next(std::string& rec) override { return unit_read(unit, rec); }
};

}  // namespace

bool list_read(record_source& src, std::span<const litem> items) {
    if (items.empty()) {
        // A read with no items still takes one record
        std::string rec;
        return src.next(rec);
    }
    static std::string own;
    return list_reader(&src, &own, {}).read(items);
}

bool list_read_str(std::string_view rec, std::span<const litem> items) {
    return list_reader(nullptr, nullptr, rec).read(items);
}

bool list_read_unit(int unit, std::span<const litem> items) {
    unit_source src(unit);
    return list_read(src, items);
}
