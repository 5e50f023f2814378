#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "shell/console.h"
#include "shell/format.h"
#include "shell/gfortran_reference/gfortran_run.h"
#include "shell/units.h"

namespace {

struct vector_source : record_source {
    std::vector<std::string> recs;
    std::size_t next_rec = 0;
    explicit vector_source(std::vector<std::string> r) : recs(std::move(r)) {}
    bool next(std::string& rec) override {
        if (next_rec == recs.size()) return false;
        rec = recs[next_rec++];
        return true;
    }
};

// One item per letter of kinds (i r d l c), all set to the same marks as in
// the reference program, so that an item a read leaves alone shows.
struct slots {
    std::string kinds;
    std::vector<int> i;
    std::vector<float> r;
    std::vector<double> d;
    std::unique_ptr<bool[]> l;
    std::vector<fstr<6>> c;
    std::vector<litem> items;

    explicit slots(std::string k)
        : kinds(std::move(k)), i(kinds.size(), -777), r(kinds.size(), -777.0f), d(kinds.size(), -777.0),
          l(new bool[kinds.size()]), c(kinds.size(), fstr<6>("######")) {
        for (std::size_t n = 0; n < kinds.size(); ++n) {
            l[n] = true;
            switch (kinds[n]) {
            case 'i': items.emplace_back(i[n]); break;
            case 'r': items.emplace_back(r[n]); break;
            case 'd': items.emplace_back(d[n]); break;
            case 'l': items.emplace_back(l[n]); break;
            default: items.emplace_back(c[n]); break;
            }
        }
    }
    // The lines the reference program's dump writes.
    void dump(bool ok, std::vector<std::string>& out) const {
        if (!ok) return out.push_back("error");
        char buf[64];
        for (std::size_t n = 0; n < kinds.size(); ++n) {
            switch (kinds[n]) {
            case 'i': std::snprintf(buf, sizeof buf, "i %d", i[n]); break;
            case 'r': std::snprintf(buf, sizeof buf, "r %08X", std::isnan(r[n]) ? 0x7FC00000u : std::bit_cast<std::uint32_t>(r[n])); break;
            case 'd': std::snprintf(buf, sizeof buf, "d %016llX", std::isnan(d[n]) ? 0x7FF8000000000000ull : (unsigned long long)std::bit_cast<std::uint64_t>(d[n])); break;
            case 'l': std::snprintf(buf, sizeof buf, "l %c", l[n] ? 'T' : 'F'); break;
            default: std::snprintf(buf, sizeof buf, "c [%s]", c[n].str().c_str()); break;
            }
            out.emplace_back(buf);
        }
    }
};

// Reads records into kinds from a file and, for one record, from a string;
// any NaN is written as the one quiet NaN.
const char* reference_program = R"(
contains
  subroutine reset()
    iv = -777; rv = -777.0; dv = -777d0; lv = .true.; cv = '######'
  end subroutine
  subroutine dump(kinds)
    character(len=*), intent(in) :: kinds
    integer :: k
    write(*,'(a)') '@@'
    if (ios /= 0) then
      write(*,'(a)') 'error'
      return
    end if
    do k = 1, len(kinds)
      select case (kinds(k:k))
      case ('i'); write(*,'(a,i0)') 'i ', iv(k)
      case ('r'); if (rv(k) /= rv(k)) rv(k) = transfer(int(z'7FC00000',4), 1.0); write(*,'(a,z8.8)') 'r ', transfer(rv(k), 0)
      case ('d'); if (dv(k) /= dv(k)) dv(k) = transfer(int(z'7FF8000000000000',8), 1d0); write(*,'(a,z16.16)') 'd ', transfer(dv(k), 0_8)
      case ('l'); write(*,'(a,l1)') 'l ', lv(k)
      case default; write(*,'(a,a,a)') 'c [', cv(k), ']'
      end select
    end do
  end subroutine
  subroutine next_record()
    character(len=200) :: line
    if (ios /= 0) return
    read(10,'(a)',iostat=ios) line
    if (ios == 0) then
      write(*,'(a,a,a)') 'next [', trim(line), ']'
    else
      write(*,'(a)') 'next none'
    end if
  end subroutine
end program
)";

struct rcase {
    std::vector<std::string> recs;
    std::string kinds;
};

const std::vector<rcase> reference_cases = {
    // separators, null values, slash, record ends
    {{"1 2 3"}, "iii"}, {{" 1 , 2 ,3 "}, "iii"}, {{"1\t2\t3"}, "iii"}, {{"1,,3"}, "iii"},
    {{",,5"}, "iii"}, {{"1 , , 3"}, "iii"}, {{", 2 3"}, "iii"}, {{"1 2"}, "iii"}, {{"1 2 /"}, "iii"},
    {{"/"}, "iii"}, {{"1/2"}, "ii"}, {{"1,", "2 3"}, "iii"}, {{"1,", ",2"}, "iii"},
    {{"1", "", "   ", "2,3"}, "iii"}, {{"1 2,", "/"}, "iii"}, {{"1 2,", ","}, "iii"},
    {{"1 2 3 4", "9 9 9"}, "iii"}, {{"1 2,"}, "iii"}, {{""}, "i"},
    // repeats
    {{"2*7, 3"}, "iii"}, {{"3*7"}, "iii"}, {{"4*7", "9"}, "iii"}, {{"3*"}, "iii"}, {{"2*,5"}, "iii"},
    {{"0*5"}, "ii"}, {{"2*5"}, "ir"}, {{"7 2* 4.5"}, "icr"}, {{"7 1*'q' 4.5"}, "icr"}, {{"2*3 4.5"}, "icr"},
    // integers
    {{"-2147483648 2147483647 +7 007"}, "iiii"}, {{"2147483648"}, "i"}, {{"-2147483649"}, "i"},
    {{"5.5"}, "i"}, {{"12abc"}, "i"}, {{"1e3"}, "i"}, {{"-"}, "i"}, {{"'5'"}, "i"},
    // reals
    {{"1.5+3 1.5-3 1. .5 -3.25e-2 1d3 1Q3 7"}, "rrrrrrrr"},
    {{"1.5+3 1.5-3 1. .5 -3.25e-2 1d3 1Q3 7"}, "dddddddd"},
    {{"NaN nan(abc) -Inf infinity +INF"}, "rrrrr"}, {{"NaN -Inf"}, "dd"},
    {{"1e40 -1e-50 1e-40 3.4028236e38"}, "rrrr"}, {{"1e400 1e-400 4.9e-324"}, "ddd"},
    {{"0.1 16777217 1.00000005960464477539062500001 0.30000000000000001665"}, "rrrr"},
    {{"0.1 123456789012345678 2.2250738585072011e-308"}, "ddd"},
    {{"-0. 007.250 -.0 2000.1524 " + std::string(45, '9') + " 0." + std::string(50, '0') + "1"},
     "rrrrrr"},
    {{"."}, "r"}, {{"1e"}, "r"}, {{"1e+"}, "r"}, {{"infin"}, "r"}, {{"+"}, "r"}, {{"1.5x"}, "r"},
    {{"1.5.3"}, "r"}, {{"e5"}, "r"}, {{"1+"}, "r"}, {{"0x10"}, "d"}, {{"1 e5"}, "r"},
    // logicals
    {{"t .true. .f tomato F"}, "lllll"}, {{"x"}, "l"}, {{".x"}, "l"}, {{"1"}, "l"},
    // characters
    {{"'ab''c d' \"x,y/z\" plain"}, "ccc"}, {{"abcdefghij xy"}, "cc"}, {{"abc/def"}, "cc"},
    {{"2*xy"}, "cc"}, {{"2*'a b'"}, "cc"}, {{"12 12*"}, "ccc"}, {{"'ab'cd 5"}, "ci"},
    {{"'unterminated"}, "c"}, {{"'unterminated"}, "cc"}, {{"7 'ab", "cd' 2.5"}, "icr"},
    {{"ab\"cd it's"}, "cc"}, {{"7,,'x'"}, "icr"},
};

std::string fortran_list(const std::string& kinds) {
    std::string s;
    for (std::size_t n = 0; n < kinds.size(); ++n) {
        const char* v = kinds[n] == 'i' ? "iv" : kinds[n] == 'r' ? "rv" : kinds[n] == 'd' ? "dv" : kinds[n] == 'l' ? "lv" : "cv";
        s += (n ? ", " : " ") + std::string(v) + "(" + std::to_string(n + 1) + ")";
    }
    return s;
}

}  // namespace

// The reader against gfortran's list-directed READ, from a file (with the
// record that follows, to show what the read used up) and, for one record,
// from a string.
TEST(ListReadReference, MatchesGfortran) {
    if (!gfortran_ref::available()) GTEST_SKIP() << "gfortran is not installed";
    gfortran_ref::scratch_dir dir;
    ASSERT_FALSE(dir.path.empty());
    std::string src =
        "program ref\n  implicit none\n  integer :: iv(9), ios\n  real :: rv(9)\n  double precision :: dv(9)\n"
        "  logical :: lv(9)\n  character(len=6) :: cv(9)\n  character(len=:), allocatable :: str\n";
    std::vector<std::string> ours, whats;
    for (std::size_t k = 0; k < reference_cases.size(); ++k) {
        const auto& c = reference_cases[k];
        std::string file = "in" + std::to_string(k) + ".txt";
        {
            std::ofstream in(dir.path / file);
            for (const auto& r : c.recs) in << r << '\n';
        }
        std::string what = "records";
        for (const auto& r : c.recs) what += " [" + r + "]";
        what += " into " + c.kinds;
        std::string list = fortran_list(c.kinds), kinds = gfortran_ref::quote(c.kinds);
        src += "  call reset()\n  open(10, file='" + file + "', status='old')\n  read(10,*,iostat=ios)" + list +
               "\n  call dump(" + kinds + ")\n  call next_record()\n  close(10)\n";
        ours.push_back("@@");
        whats.push_back(what);
        slots s(c.kinds);
        vector_source records(c.recs);
        bool ok = list_read(records, s.items);
        s.dump(ok, ours);
        if (ok) {
            std::string next;
            bool more = records.next(next);
            while (!next.empty() && next.back() == ' ') next.pop_back();
            ours.push_back(more ? "next [" + next + "]" : "next none");
        }
        if (c.recs.size() == 1) {
            src += "  call reset()\n  str = " + gfortran_ref::quote(c.recs[0]) + "\n  read(str,*,iostat=ios)" + list +
                   "\n  call dump(" + kinds + ")\n";
            ours.push_back("@@");
            whats.push_back("internal read of " + what);
            slots t(c.kinds);
            t.dump(list_read_str(c.recs[0], t.items), ours);
        }
    }
    src += reference_program;
    bool ok = false;
    // Standard semantics: -fdec would let "1e" or "1+" pass as reals
    std::string out = gfortran_ref::run(dir, src, "", ok);
    ASSERT_TRUE(ok) << out;
    auto expected = gfortran_ref::blocks(out, "@@");
    std::string all;
    for (const auto& l : ours) all += l + "\n";
    auto got = gfortran_ref::blocks(all, "@@");
    ASSERT_EQ(got.size(), expected.size());
    for (std::size_t k = 0; k < got.size(); ++k) EXPECT_EQ(got[k], expected[k]) << whats[k];
}

// The token rules the reference above holds case by case, by hand, and the
// kinds of items and sources it doesn't have.
TEST(ListRead, TokenRulesItemKindsAndSources) {
    // One record is all a string read has.
    int a = 0, b = 0, c = 0;
    EXPECT_FALSE(readlist_str("1,", a, b));

    // Character values are cut or padded to their item.
    fstr<6> s, t;
    fstr<3> u;
    ASSERT_TRUE(readlist_str("'it''s, a/b' plain_long_word \"q\"", s, t, u));
    EXPECT_EQ(s.str() + t.str() + u.str(), "it's, plain_q  ");
    char buf[4];
    fstr_ref r(buf, 4);
    ASSERT_TRUE(readlist_str("ab,cd", r, u));
    EXPECT_EQ(std::string(buf, 4) + u.str(), "ab  cd ");

    // A source goes on to further records; the rest of the last one read is
    // passed over.
    litem items[] = {a, b, c};
    vector_source src({"1", "", "   ", "2,", "3 4", "5"});
    ASSERT_TRUE(list_read(src, items));
    EXPECT_EQ(std::vector<int>({a, b, c}), std::vector<int>({1, 2, 3}));
    ASSERT_TRUE(list_read(src, std::span(items, 1)));
    EXPECT_EQ(a, 5);
    EXPECT_FALSE(list_read(src, std::span(items, 1)));

    // The keyboard unit.
    memory_console con({"10 'two words'", "2.5"});
    console_scope scope(con);
    fstr<12> w;
    double x = 0;
    ASSERT_TRUE(readlist(UNIT_KEYBOARD, a, w, x));
    EXPECT_EQ(std::to_string(a) + "|" + w.str() + "|" + std::to_string(x), "10|two words   |2.500000");
}
