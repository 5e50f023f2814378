#include "shell/format.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "shell/console.h"
#include "shell/gfortran_reference/gfortran_run.h"
#include "shell/units.h"

namespace {

struct fcase {
    std::string fmt;
    std::vector<fitem> items;
};

// The item as a Fortran expression of the same type and value; reals go by
// their bits so that nothing is lost in decimal.
std::string fortran_item(const fitem& it) {
    if (it.kind == fitem::INT) return "(" + std::to_string(it.i) + ")";
    if (it.kind == fitem::LOGICAL) return it.l ? ".true." : ".false.";
    if (it.kind == fitem::CHAR) return gfortran_ref::quote(it.c);
    char buf[64];
    if (it.isfloat)
        std::snprintf(buf, sizeof buf, "transfer(int(z'%08X',4),1.0)",
                      unsigned(std::bit_cast<std::uint32_t>(float(it.r))));
    else
        std::snprintf(buf, sizeof buf, "transfer(int(z'%016llX',8),1d0)",
                      (unsigned long long)std::bit_cast<std::uint64_t>(it.r));
    return buf;
}

std::vector<fcase> reference_cases() {
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    std::vector<fcase> c = {
        // text
        {"(a3,'|',a10,'|',a,'|')", fitems("abcdef", "abc", "")},
        {"('it''s',a,\"say \"\"hi\"\"\",3hab ,a)", fitems("x", "y")},
        {"(1x,'***',19x,a6,19x,'***')", fitems("head")},
        {"(1x,1('@'),49('='))", {}},
        {"(5(1x,a))", fitems("one", "two")},
        // integers
        {"(i5,i5,i3,i3,i0,'|',i5.3,i5.0,'|',i,i12)",
         fitems(42, -42, 12345, -100, -17, -7, 0, 17, std::numeric_limits<int>::min())},
        {"(I 1 2,sp,i5,ss,i5,s,i5)", fitems(5, 3, 4, 6)},
        {"(i0,'|',i0.0,'|',i1,'|',i2)", fitems(0, 0, 0, -1)},
        // logicals
        {"(l5,l1,l,'|')", fitems(true, false, true)},
        // positioning and records
        {"(a,t20,a,'|',a,tr5)", fitems("ab", "c", "d")},
        {"(1x)", {}},
        {"(i3/i3)", fitems(1, 2)},
        {"(i3/)", fitems(1)},
        {"(i3,2/,i3)", fitems(1, 2)},
        {"(x 2 x i3)", fitems(5)},
        // reversion
        {"(2(i3,'|'))", fitems(1, 2, 3, 4, 5)},
        {"(2(1x,2(i2,'.')))", fitems(1, 2, 3, 4, 5, 6, 7, 8, 9)},
        // G on other kinds, G0, defaults for bare descriptors
        {"(a,g5.2,a,g2.2,a,g5.2,a,g2.2,a,g,a)", fitems("|", "abc", "|", "abc", "|", true, "|", 12345, "|", 17, "|")},
        {"(a,f,a,e,a,es,a,d,a,g,a,en,a)", fitems("|", 2.5, "|", 2.5, "|", 2.5, "|", 2.5, "|", 2.5, "|", 2.5, "|")},
        {"(a,f,a,e,a,es,a,d,a,g,a,en,a)", fitems("|", 2.5f, "|", 2.5f, "|", 2.5f, "|", 2.5f, "|", 2.5f, "|", 2.5f, "|")},
        {"(a,g0,a,g0,a,g0,a,g0,a,g0,a)", fitems("|", 17, "|", true, "|", "ab", "|", 0.0f, "|", -0.5)},
        {"(a,g0.3,a,g0.3,a,g0.3,a,g0.4,a)", fitems("|", 1.0f, "|", 1e-5f, "|", 12345.0f, "|", 0.5f, "|")},
        // exponent widths
        {"(e12.4e3,'|',e14.5e1,'|',e14.5e4,'|',g12.4e3,'|',g12.4e3)", fitems(1234.5f, 1e15f, 1e-15f, 1234.5f, 12345.5f)},
        {"(e12.4,'|',e12.4,'|',d12.4,'|',es12.3)", fitems(1e100, 1e-100, 1e300, 1e-300)},
        {"(es10.0,'|',en10.0,'|',en10.0,'|',es10.0)", fitems(1234.5f, 1234.5f, 999.7, 9.7)},
        {"(sp,f6.1,f10.1,e10.2,g12.4)", fitems(inf, inf, 2.0f, 3.0f)},
        {"(f0.1,'|',g0,'|',g0,'|',f0.2,'|',f0.2)", fitems(-inf, -inf, nan, 0.0f, -0.0f)},
    };
    // Inf and NaN in every width, where the long and short spellings and the
    // sign compete for room.
    for (int w = 1; w <= 10; ++w) {
        std::string ws = std::to_string(w);
        c.push_back({"(a,f" + ws + ".1,a,f" + ws + ".1,a,f" + ws + ".1,a,e" + ws + ".1e2,a,g" + ws + ".1,a)",
                     fitems("|", inf, "|", -inf, "|", nan, "|", -inf, "|", -inf, "|")});
    }
    // Numbers: every real edit over values chosen for rounding carries, ties,
    // the ends of the G ranges and the sign of zero, in both precisions.
    const double values[] = {0.0, -0.0, 1.0, -1.0, 0.5, -0.5, 0.05, 0.125, 0.375, 0.995, 9.995, 99.5,
                             999.5, 999999.5, 0.0995, 0.09999999, 0.1, 123.456, -0.001, 1e-3, 1e5,
                             3.14159, -2.71828, 2.675, 1.005, 1e10, 1e-10, 123456.7, 1234567.0,
                             1e-5, -2.5, 1e30, 6.02214e23, 9.999999e-4, 1e-40, 3e38};
    const char* edits[] = {"f8.3", "f6.1", "f4.0", "f3.0", "f2.0", "f5.2", "f0.3", "f0.0", "f12.2",
                           "e11.3", "e9.2", "e8.2", "e15.6", "d11.3", "es11.3", "es8.1", "en12.3",
                           "g11.4", "g9.2", "g12.6", "g15.7", "g10.3", "g0", "g0.4"};
    // Each format over the values as floats and as doubles.
    auto both = [&c](const std::string& fmt, std::span<const double> vs) {
        std::vector<fitem> fl, dl;
        for (double v : vs) fl.emplace_back(float(v)), dl.emplace_back(v);
        c.push_back({fmt, fl});
        c.push_back({fmt, dl});
    };
    for (const char* e : edits) both(std::string("(8('|',") + e + "))", values);
    // G decides between F and E by comparing with 10^k * (1 - 0.5*10^-d) in
    // the item's own precision: values on and next to those edges.
    for (int d : {2, 4, 6}) {
        std::vector<fitem> fl, dl;
        for (int k = -1; k <= d + 1; ++k) {
            const double edge = std::pow(10.0, k) * (1 - 0.5 * std::pow(10.0, -d));
            for (int dir : {-1, 0, 1}) {
                fl.emplace_back(dir ? std::nextafter(float(edge), dir * 1e30f) : float(edge));
                dl.emplace_back(dir ? std::nextafter(edge, dir * 1e300) : edge);
            }
        }
        const std::string fmt = "(6(1x,g14." + std::to_string(d) + "))";
        c.push_back({fmt, fl});
        c.push_back({fmt, dl});
    }
    // A spread of magnitudes from a fixed generator, for the decimal
    // conversion itself.
    std::uint64_t seed = 12345;
    std::vector<double> spread;
    for (int k = 0; k < 120; ++k) {
        seed = seed * 6364136223846793005ULL + 1442695040888963407ULL;
        const double mant = double(seed >> 11) / double(1ULL << 53);
        spread.push_back((k % 3 == 0 ? -1 : 1) * mant * std::pow(10.0, int((seed >> 3) % 41) - 20));
    }
    for (const char* e : {"(4(1x,g14.6))", "(4(1x,e13.5))", "(4(1x,f14.4))", "(4(1x,es12.4))", "(4(1x,g0))"})
        both(e, spread);
    return c;
}

std::vector<std::string> records(std::string_view fmt, std::span<const fitem> items) {
    std::vector<std::string> r;
    format_records(r, fmt, items);
    return r;
}

}  // namespace

// The formatter against gfortran itself, case by case.
TEST(FormatReference, MatchesGfortran) {
    if (!gfortran_ref::available()) GTEST_SKIP() << "gfortran is not installed";
    auto cases = reference_cases();
    std::string src = "program ref\n  implicit none\n  character(len=:), allocatable :: f\n";
    for (const auto& c : cases) {
        src += "  f = " + gfortran_ref::quote(c.fmt) + "\n  write(*,'(a)') '@@'\n  write(*,f)";
        for (std::size_t k = 0; k < c.items.size(); ++k) src += (k ? ", " : " ") + fortran_item(c.items[k]);
        src += "\n";
    }
    src += "end program\n";
    gfortran_ref::scratch_dir dir;
    bool ok = false;
    // -fdec gives F, G, I... written without a width their usual defaults
    std::string out = gfortran_ref::run(dir, src, "-fdec", ok);
    ASSERT_TRUE(ok) << out;
    auto expected = gfortran_ref::blocks(out, "@@");
    ASSERT_EQ(expected.size(), cases.size());
    for (std::size_t k = 0; k < cases.size(); ++k) {
        EXPECT_EQ(records(cases[k].fmt, cases[k].items), expected[k]) << "format " << cases[k].fmt;
    }
}

// Where gfortran can write the same, the strings below are its output. The
// cases above already hold most descriptors; these are the item kinds and
// forms they don't have, the stars of a field too narrow or of an item of
// the wrong kind, the end of output and reversion.
TEST(FormatHand, CasesTheReferenceDoesNotHold) {
    fstr<16> name("abcdefghijklmnop");
    farr<int, 3> a;
    a(1) = 1, a(2) = 2, a(3) = 3;
    const struct {
        const char* fmt;
        std::vector<fitem> items;
        const char* want;
    } cases[] = {
        // strings and arrays as items
        {"(a,a8,a,a20,a)", fitems("|", name, "|", name, "|"), "|abcdefgh|    abcdefghijklmnop|"},
        {"(3i2,2f4.1)", fitems(a, std::vector<double>{0.5, 1.5}), " 1 2 3 0.5 1.5"},
        // the zero before the point goes only when the field needs the room
        {"(f5.2,'|',f4.2,'|',f4.2,'|',f3.0,'|',f0.2)", fitems(0.5f, 0.5f, -0.5f, -0.4f, 0.4f), " 0.50|0.50|-.50|-0.|.40"},
        {"(f30.20)", fitems(0.1f), "        0.10000000149011611938"},
        // bare f and f without decimals, as the program's formats have them
        {"(x,a9,f13.1,a1,f11,a1)", fitems("abc", 3.75f, "|", 2.5f, "|"), "       abc          3.8|         2.|"},
        {"(x,a9,g20.1,a1,f,a1)", fitems("abc", 3.75f, "|", 2.5f, "|"), "       abc              4.    |      2.5000000|"},
        {"(g12.6,'|',g12.6,'|',g12.6)", fitems(1e30f, 1e300, 1e-300), "0.100000E+31|0.100000+301|0.100000-299"},
        // a fixed form too wide for w-4 columns stars the whole field
        {"(g8.3,'|',g8.3,'|',g5.1)", fitems(-123.4f, 1234.4f, 0.3f), "********|.123E+04|*****"},
        {"(i3,'|',f5.2,'|',f2.0,'|',e14.5e1,'|',i2)", fitems(12345, 123.456f, -0.4f, 1e15f, -10),
         "***|*****|**|**************|**"},
        {"(i4,'|',f6.2,'|',e9.2,'|',l2,'|',a3)", fitems(2.5f, 7, "x", 3, 1.0), "****|******|*********|**|***"},
        // output stops at the first data descriptor without an item
        {"(i3,5x,i3)", fitems(1), "  1"},
        {"(1x,'abc',i3,'def')", {}, " abc"},
        {"(i3,:,'x')", fitems(1), "  1"},
        {"(i3/i3)", fitems(1), "  1\n"},
        {"('a',/,'b',i3)", {}, "a\nb"},
        // reversion to the last top-level group; none at all takes no item
        {"(i2,2(i3,'|'),i4)", fitems(1, 2, 3, 4, 5, 6, 7), " 1  2|  3|   4\n  5|  6|   7"},
        {"(i2,(i3,2(i1,'-')),i4)", fitems(1, 2, 3, 4, 5, 6, 7, 8, 9), " 1  23-4-   5\n  67-8-   9"},
        {"('abc')", fitems(1, 2), "abc"},
        {"(t5,a,t2,a,tr3,a,tl2,a)", fitems("xx", "yy", "zz", "q"), " yy xxqz"},
        // blanks anywhere, any case, text after the last parenthesis ignored
        {" ( I 1 2 , 2 X , A 3 ) junk", fitems(5, "abcd"), "           5  abc"},
    };
    for (const auto& c : cases) {
        std::string got;
        for (const auto& r : records(c.fmt, c.items)) got += r + "\n";
        if (!got.empty()) got.pop_back();
        EXPECT_EQ(got, c.want) << c.fmt;
    }
}

TEST(FormatControl, FormatComposedAtRunTime) {
    std::string f = formatf("('(1x,a9,i',i1,',a1,i',i1,'a1)')", 2, 3);
    EXPECT_EQ(f, "(1x,a9,i2,a1,i3a1)");
    EXPECT_EQ(formatf(f, "x", 5, "|", 123, "|"), "         x 5|123|");
}

TEST(FormatControl, BadFormatSaysSo) {
    for (const char* f : {"(i3", "i3", "(i3,,i3)", "(,i3)", "(q5)", "(0(i3))", "(3'ab')", "(a0)", "(t0,i3)",
                          "(e10)", "(1p,e10.3)", "(i3,'abc)", "(99999999999x)", ""})
        EXPECT_EQ(records(f, fitems(1)), std::vector<std::string>{"*** bad format: " + std::string(f)});
}

TEST(FormatUnits, WritevWritesOneLinePerRecord) {
    memory_console con;
    console_scope scope(con);
    writef(UNIT_SCREEN, "(2(1x,i2))", 1, 2, 3);
    EXPECT_EQ(con.screen, (std::vector<std::string>{"  1  2", "  3"}));
}
