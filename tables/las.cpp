// LAS files: recognising one, its header sections, the checking pass and the
// reading pass over the data.
#include "tables/las.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>
#include <string>

#include "shell/format.h"
#include "shell/units.h"
#include "tables/readreal_io.h"

lasfile_t lasfile;

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

bool is_blank(char c) { return c == ' ' || c == '\t'; }

std::string_view trim(std::string_view s) {
    while (!s.empty() && (is_blank(s.front()) || s.front() == '\r')) s.remove_prefix(1);
    while (!s.empty() && (is_blank(s.back()) || s.back() == '\r')) s.remove_suffix(1);
    return s;
}

char upper(char c) { return (c >= 'a' && c <= 'z') ? char(c - 'a' + 'A') : c; }

bool same_word(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i])) return false;
    return true;
}

// The lines of the file: records of the unit, split again at a bare CR
// (files from old Macs), with a byte-order mark dropped; a file in UTF-16
// holds its text in every other byte, and the zero bytes are dropped.
struct las_lines {
    int unit;
    int line = 0;
    bool first = true, utf16 = false, have = false;
    std::size_t pos = 0;
    std::string rec;

    explicit las_lines(int u) : unit(u) { rec.reserve(512); }

    bool next(std::string_view& out) {
        if (!have) {
            if (!unit_read(unit, rec)) return false;
            if (first) {
                first = false;
                if (rec.size() >= 3 && rec.compare(0, 3, "\xEF\xBB\xBF") == 0) {
                    rec.erase(0, 3);
                } else if (rec.size() >= 2 && ((rec[0] == '\xFF' && rec[1] == '\xFE') ||
                                               (rec[0] == '\xFE' && rec[1] == '\xFF'))) {
                    utf16 = true;
                    rec.erase(0, 2);
                }
            }
            if (utf16) {
                std::erase(rec, '\0');
                if (!rec.empty() && rec.back() == '\r') rec.pop_back();
            }
            pos = 0;
            have = true;
        }
        ++line;
        const std::size_t cr = rec.find('\r', pos);
        if (cr == std::string::npos) {
            out = std::string_view(rec).substr(pos);
            have = false;
        } else {
            out = std::string_view(rec).substr(pos, cr - pos);
            pos = cr + 1;
            if (pos >= rec.size()) have = false;
        }
        return true;
    }
};

// A header line "MNEM.UNIT  value : description". The unit runs from the
// first dot to the first blank; the description starts at the last colon,
// since values such as times hold colons of their own.
struct header_item {
    std::string_view mnem, unit, value, descr;
};

bool split_item(std::string_view l, header_item& it) {
    const std::size_t dot = l.find('.');
    if (dot == std::string_view::npos) return false;
    it.mnem = trim(l.substr(0, dot));
    std::string_view rest = l.substr(dot + 1);
    std::size_t u = 0;
    while (u < rest.size() && !is_blank(rest[u]) && rest[u] != ':') ++u;
    it.unit = rest.substr(0, u);
    if (it.unit.size() >= 2 && it.unit.front() == '[' && it.unit.back() == ']')
        it.unit = it.unit.substr(1, it.unit.size() - 2);
    rest = rest.substr(u);
    const std::size_t colon = rest.rfind(':');
    if (colon == std::string_view::npos) {
        it.value = trim(rest);
        it.descr = {};
    } else {
        it.value = trim(rest.substr(0, colon));
        it.descr = trim(rest.substr(colon + 1));
    }
    return true;
}

// A number as written in a data line; NaN for anything else.
double number(std::string_view t) {
    if (!t.empty() && t.front() == '+') t.remove_prefix(1);
    double v = NaN;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), v);
    if (r.ec != std::errc() || r.ptr != t.data() + t.size() || !std::isfinite(v)) return NaN;
    return v;
}

// The values of one depth step, NULL and unreadable ones as NaN; only the
// curves a pass uses are converted.
farr<double, MAXLASCURVE> V;
farr<bool, MAXLASCURVE> USED;

void use_only(int n, const int* jcurve) {
    USED.fill(false);
    for (int k = 0; k < n; ++k)
        if (jcurve[k] > 0) USED(jcurve[k]) = true;
}

// Goes through the data section from the line after the ~A head, calling
// on_row(first line of the step) for each depth step with its values in V.
// A row that isn't whole, or on_row's own complaint, stops the pass: 1 with
// the line and the reason.
template <class F>
int las_rows(las_lines& src, int& line, fstr_ref reason, F on_row) {
    const lasfile_t& f = lasfile;
    const int n = f.ncurve;
    int k = 0, rowline = 0;
    std::string_view l;
    while (src.next(l)) {
        l = trim(l);
        if (l.empty() || l.front() == '#') continue;
        if (l.front() == '~') break;
        if (k == 0) rowline = src.line;
        std::size_t p = 0;
        while (p < l.size()) {
            while (p < l.size() && is_blank(l[p])) ++p;
            if (p >= l.size()) break;
            std::size_t e = p;
            if (l[p] == '"' || l[p] == '\'') {
                const std::size_t q = l.find(l[p], p + 1);
                e = q == std::string_view::npos ? l.size() : q + 1;
            } else {
                while (e < l.size() && !is_blank(l[e])) ++e;
            }
            ++k;
            if (k <= n) {
                if (USED(k)) {
                    double v = number(l.substr(p, e - p));
                    if (f.hasnull && v == f.null) v = NaN;
                    V(k) = v;
                }
            } else if (f.wrapped) {
                line = src.line;
                reason.assign("WRAPPED STEP OF LINE " + std::to_string(rowline) +
                              " RUNS PAST " + std::to_string(n) + " CURVES");
                return 1;
            }
            p = e;
        }
        if (!f.wrapped && k != n) {
            line = src.line;
            reason.assign(std::to_string(k) + " VALUES FOR " + std::to_string(n) + " CURVES");
            return 1;
        }
        if (k == n) {
            k = 0;
            if (on_row(rowline) != 0) return 1;
        }
    }
    if (k != 0) {
        line = rowline;
        reason.assign("WRAPPED STEP: " + std::to_string(k) + " VALUES FOR " + std::to_string(n) +
                      " CURVES");
        return 1;
    }
    return 0;
}

// From the start of the file to just past the ~A head.
void to_data(las_lines& src) {
    rrio::rewind_unit(src.unit);
    std::string_view l;
    while (src.line < lasfile.aline && src.next(l)) {
    }
}

struct unit_factor {
    const char* name;
    double factor;
};

// A depth as a reason shows it.
std::string shown(double z) {
    const std::string s = formatf("(f14.4)", z);
    return std::string(trim(s));
}

// Depths are compared as they are stored.
bool depth_in(double z, float zlo, float zhi) {
    const float s = float(z);
    return s >= zlo && s <= zhi;
}

}  // namespace

las_kind las_kind_of(std::string_view varname) {
    varname = trim(varname);
    if (same_word(varname, "Depth")) return las_kind::depth;
    if (same_word(varname, "C1") || same_word(varname, "C2") || same_word(varname, "CAL"))
        return las_kind::diameter;
    return las_kind::angle;
}

std::string_view las_own_unit(las_kind k) {
    switch (k) {
    case las_kind::depth: return "m";
    case las_kind::diameter: return "cm";
    default: return "deg";
    }
}

double las_factor(las_kind k, std::string_view unit) {
    static const unit_factor depth[] = {{"M", 1.0},       {"METER", 1.0}, {"METERS", 1.0},
                                      {"METRE", 1.0},   {"METRES", 1.0}, {"F", 0.3048},
                                      {"FT", 0.3048},   {"FEET", 0.3048}, {"FOOT", 0.3048}};
    static const unit_factor diameter[] = {{"CM", 1.0},     {"MM", 0.1},      {"M", 100.0},
                                         {"IN", 2.54},    {"INCH", 2.54},   {"INCHES", 2.54}};
    static const unit_factor angle[] = {{"DEG", 1.0},
                                      {"DEGREE", 1.0},
                                      {"DEGREES", 1.0},
                                      {"DEGA", 1.0},
                                      {"RAD", 57.295779513082323},
                                      {"RADIAN", 57.295779513082323},
                                      {"RADIANS", 57.295779513082323}};
    std::span<const unit_factor> table = angle;
    if (k == las_kind::depth) table = depth;
    if (k == las_kind::diameter) table = diameter;
    unit = trim(unit);
    for (const auto& u : table)
        if (same_word(unit, u.name)) return u.factor;
    return 0.0;
}

bool las_detect(int unit) {
    las_lines src(unit);
    std::string_view l;
    bool las = false;
    while (src.next(l)) {
        l = trim(l);
        if (l.empty() || l.front() == '#') continue;
        las = l.size() >= 2 && l[0] == '~' && upper(l[1]) == 'V';
        break;
    }
    rrio::rewind_unit(unit);
    return las;
}

int las_header(int unit, int& line, fstr_ref reason) {
    lasfile_t& f = lasfile;
    f = lasfile_t{};
    f.well.assign("");
    f.loc.assign("");
    las_lines src(unit);
    char section = ' ';
    std::string_view l;
    header_item it;
    while (src.next(l)) {
        l = trim(l);
        if (l.empty() || l.front() == '#') continue;
        if (l.front() == '~') {
            section = l.size() > 1 ? upper(l[1]) : '?';
            if (section == 'C') f.cline = src.line;
            if (section == 'A') {
                f.aline = src.line;
                break;
            }
            continue;
        }
        // A curve without a name still has its column in ~A.
        if (!split_item(l, it) || (it.mnem.empty() && section != 'C')) continue;
        if (section == 'V') {
            if (same_word(it.mnem, "VERS")) f.vers.assign(it.value);
            if (same_word(it.mnem, "WRAP")) f.wrapped = same_word(it.value, "YES");
        } else if (section == 'W') {
            if (same_word(it.mnem, "NULL")) {
                const double v = number(it.value);
                f.hasnull = !std::isnan(v);
                f.null = v;
                f.nulltext.assign(it.value);
            } else if (same_word(it.mnem, "STEP")) {
                f.steptext.assign(it.value);
            } else if (same_word(it.mnem, "LOC")) {
                f.loc.assign(it.value.empty() ? it.descr : it.value);
            } else if (same_word(it.mnem, "WELL")) {
                // LAS 1.2 put the well's name where 2.0 has the description.
                const bool old = !f.vers.trimmed().empty() && f.vers(1) == '1';
                f.well.assign(old && !it.descr.empty() ? it.descr
                              : it.value.empty()       ? it.descr
                                                       : it.value);
            }
        } else if (section == 'C') {
            if (f.ncurve == MAXLASCURVE) {
                line = src.line;
                reason.assign("MORE THAN " + std::to_string(MAXLASCURVE) + " CURVES");
                return 1;
            }
            ++f.ncurve;
            f.MNEM(f.ncurve).assign(it.mnem);
            f.UNIT(f.ncurve).assign(it.unit);
        }
        if ((section == 'W' || section == 'P') && same_word(it.mnem, "BS") && !f.hasbs) {
            const double v = number(it.value);
            if (!std::isnan(v)) {
                f.hasbs = true;
                f.bs = float(v);
                f.bsunit.assign(it.unit);
            }
        }
    }
    if (f.aline == 0) {
        line = src.line;
        reason.assign("NO ~A SECTION");
        return 1;
    }
    if (f.ncurve == 0) {
        line = f.aline;
        reason.assign("NO CURVES IN A ~C SECTION BEFORE ~A");
        return 1;
    }
    return 0;
}

int las_alias(std::string_view varname) {
    struct names {
        const char* var;
        const char* mnem[8];
    };
    // The names of the logging companies for each quantity, most usual first.
    static const names table[] = {
        {"Depth", {"DEPT", "DEPTH", "MD"}},
        {"P1Az", {"P1AZ", "P1AZI", "P1AZIM", "P1AZM", "PAD1AZ", "AZ1", "IAP1"}},
        {"C1", {"C1", "C13", "CAL1", "CALX", "IECX"}},
        {"C2", {"C2", "C24", "CAL2", "CALY", "IECY"}},
        {"RB", {"RB", "RBR", "RELB", "IRBR"}},
        {"DEVI", {"DEVI", "DEV", "INCL", "DEVIM", "ITLT"}},
        {"HAZI", {"HAZI", "AZI", "AZIM", "HAZIM", "IAZT"}},
        {"AzCmax", {"AZCMAX"}},
        {"CAL", {"CAL", "CALI", "HCAL"}},
    };
    const lasfile_t& f = lasfile;
    for (const auto& t : table) {
        if (!same_word(trim(varname), t.var)) continue;
        for (const char* m : t.mnem) {
            if (!m) break;
            for (int j = 1; j <= f.ncurve; ++j)
                if (same_word(f.MNEM(j).trimmed(), m)) return j;
        }
    }
    return 0;
}

int las_scan(int unit, int jdep, double fdep, float zlo, float zhi, int& nin, int& line,
             fstr_ref reason) {
    lasfile_t& f = lasfile;
    f.jdep = jdep;
    f.nrow = f.ndrop = 0;
    f.dfirst = f.dlast = f.dmin = f.dmax = NaN;
    nin = 0;
    las_lines src(unit);
    to_data(src);
    use_only(1, &jdep);
    int dir = 0;
    double prev = NaN;
    const int e = las_rows(src, line, reason, [&](int rowline) {
        ++f.nrow;
        const double z = V(jdep);
        if (std::isnan(z)) {
            ++f.ndrop;
            return 0;
        }
        if (!std::isnan(prev) && z != prev) {
            const int d = z > prev ? 1 : -1;
            if (dir != 0 && d != dir) {
                line = rowline;
                reason.assign("DEPTH " + shown(z) + " AFTER " + shown(prev) + " GOES BACK");
                return 1;
            }
            dir = d;
        }
        prev = z;
        if (std::isnan(f.dfirst)) f.dfirst = f.dmin = f.dmax = z;
        f.dlast = z;
        f.dmin = std::min(f.dmin, z);
        f.dmax = std::max(f.dmax, z);
        if (depth_in(z * fdep, zlo, zhi)) ++nin;
        return 0;
    });
    rrio::rewind_unit(unit);
    if (e != 0) return 1;
    if (f.nrow == f.ndrop) {
        line = f.aline;
        reason.assign(f.nrow == 0 ? "NO DATA IN THE ~A SECTION" : "NO STEP HAS A DEPTH");
        return 1;
    }
    return 0;
}

void las_read(int unit, int jdep, double fdep, float zlo, float zhi, int ndec, int nvar,
              const int* jcurve, const double* factor, const int* jcol, float* data,
              int maxlines, int& nlines, int& nbad) {
    nlines = nbad = 0;
    las_lines src(unit);
    to_data(src);
    use_only(nvar, jcurve);
    if (jdep > 0) USED(jdep) = true;
    int line = 0, seen = 0;
    fstr<80> reason;
    las_rows(src, line, reason, [&](int) {
        const double z = V(jdep) * fdep;
        if (std::isnan(z) || !depth_in(z, zlo, zhi)) return 0;
        if (seen++ % ndec != 0) return 0;
        if (nlines == maxlines) return 1;
        ++nlines;
        for (int k = 0; k < nvar; ++k) {
            const double v = jcurve[k] > 0 ? V(jcurve[k]) : NaN;
            if (std::isnan(v)) ++nbad;
            data[std::size_t(jcol[k] - 1) * std::size_t(maxlines) + std::size_t(nlines - 1)] =
                float(v * factor[k]);
        }
        return 0;
    });
    rrio::rewind_unit(unit);
}
