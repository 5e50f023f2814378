// The one fixed-field formatter and the one free-format (list) reader of the
// program. Format strings are written exactly as in the Fortran edit
// descriptor notation, e.g. "(1x,a,1x,i6)" or "(5(1x,a))", and are
// interpreted when used, so formats composed at run time work the same.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "shell/fixed.h"

// One output item.
struct fitem {
    enum kind_t { INT, REAL, LOGICAL, CHAR };
    kind_t kind;
    long long i = 0;
    double r = 0.0;
    bool isfloat = true;  // a 4-byte real: g and list output use its precision
    bool l = false;
    std::string_view c;

    fitem(int v) : kind(INT), i(v) {}
    fitem(long v) : kind(INT), i(v) {}
    fitem(long long v) : kind(INT), i(v) {}
    fitem(float v) : kind(REAL), r(v), isfloat(true) {}
    fitem(double v) : kind(REAL), r(v), isfloat(false) {}
    fitem(bool v) : kind(LOGICAL), l(v) {}
    fitem(std::string_view v) : kind(CHAR), c(v) {}
    fitem(const char* v) : kind(CHAR), c(v) {}
    fitem(const std::string& v) : kind(CHAR), c(v) {}
    template <std::size_t N>
    fitem(const fstr<N>& v) : kind(CHAR), c(v.sv()) {}
    fitem(const fstr_ref& v) : kind(CHAR), c(v.sv()) {}
};

// Formats the items and returns the records (lines) produced, without line
// ends. Output stops at the first data descriptor that has no item left;
// with more items than descriptors the format reverts to the last top-level
// group. A format that cannot be parsed yields one record that says so.
void format_records(std::vector<std::string>& out, std::string_view format,
                    std::span<const fitem> items);

namespace fmtdetail {
template <class T>
void push(std::vector<fitem>& v, const T& x) {
    if constexpr (requires { x.begin(); x.end(); } && !std::is_convertible_v<T, std::string_view>) {
        for (const auto& e : x) v.emplace_back(e);
    } else if constexpr (requires { T::size(); x.data(); } && !requires { x.sv(); }) {
        for (int k = 0; k < T::size(); ++k) v.emplace_back(x.data()[k]);
    } else {
        v.emplace_back(x);
    }
}
}  // namespace fmtdetail

// Collects items; a std::span, std::vector or farr argument contributes all
// its elements, as an array in a Fortran output list does.
template <class... A>
std::vector<fitem> fitems(const A&... a) {
    std::vector<fitem> v;
    v.reserve(sizeof...(A));
    (fmtdetail::push(v, a), ...);
    return v;
}

// Internal write: the records joined by '\n'.
std::string formatv(std::string_view format, std::span<const fitem> items);
template <class... A>
std::string formatf(std::string_view format, const A&... a) {
    auto v = fitems(a...);
    return formatv(format, v);
}

// Write to a numbered unit (see shell/units.h): one line per record.
void writev(int unit, std::string_view format, std::span<const fitem> items);
template <class... A>
void writef(int unit, std::string_view format, const A&... a) {
    auto v = fitems(a...);
    writev(unit, format, v);
}

// ---------------------------------------------------------------------------
// Free-format (list-directed) input.
//
// Values are separated by blanks, tabs or commas; a slash ends the list for
// this read, leaving the remaining items unchanged; an empty value between
// two commas leaves its item unchanged; r*v repeats a value; character values
// may be quoted ('..' or "..") and keep their blanks, or unquoted up to the
// next separator. Integers take a sign and digits; reals a sign, digits, a
// decimal point and an exponent.

// One input item.
struct litem {
    enum kind_t { INT, REAL, DREAL, LOGICAL, CHAR };
    kind_t kind;
    void* p;
    std::size_t n = 0;  // length of a character item

    litem(int& v) : kind(INT), p(&v) {}
    litem(float& v) : kind(REAL), p(&v) {}
    litem(double& v) : kind(DREAL), p(&v) {}
    litem(bool& v) : kind(LOGICAL), p(&v) {}
    template <std::size_t N>
    litem(fstr<N>& v) : kind(CHAR), p(v.c), n(N) {}
    litem(const fstr_ref& v) : kind(CHAR), p(v.p), n(v.n) {}
};

// Where a list read takes its records from.
struct record_source {
    virtual ~record_source() = default;
    // The next record; false at the end of the data or on an error.
    virtual bool next(std::string& rec) = 0;
};

// Reads the items from the source, going on to following records while
// items remain. Returns false (nothing more is defined) on a bad token or
// when the source ends before every item has a value or a slash is met.
bool list_read(record_source& src, std::span<const litem> items);

// Internal read from one record; running out of the record is an error.
bool list_read_str(std::string_view rec, std::span<const litem> items);
template <class... A>
bool readlist_str(std::string_view rec, A&... a) {
    litem v[] = {litem(a)...};
    return list_read_str(rec, v);
}

// Reads from a numbered unit (see shell/units.h).
bool list_read_unit(int unit, std::span<const litem> items);
template <class... A>
bool readlist(int unit, A&... a) {
    litem v[] = {litem(a)...};
    return list_read_unit(unit, v);
}
