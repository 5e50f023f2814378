// The column table reader: a data table file (a few header lines, then one
// sample per line in free-format columns) mapped onto the columns of a
// caller's table, with a dialogue that shows the head of the file and lets
// the user correct the layout before the data are read.
#pragma once

#include <cassert>
#include <cstddef>
#include <string_view>

#include "shell/fixed.h"

// A writable view of a 1-based array of character fields of one length, so
// that the reader can fill the caller's names whatever their length.
struct fstr_array_ref {
    char* p;
    std::size_t len;
    int n;

    template <std::size_t L, int N>
    fstr_array_ref(farr<fstr<L>, N>& a) : p(a.a[0].c), len(L), n(N) {
        static_assert(sizeof(fstr<L>) == L, "character fields must be packed");
    }
    fstr_ref operator()(int i) const {
        assert(i >= 1 && i <= n);
        return fstr_ref(p + std::size_t(i - 1) * len, len);
    }
    std::string_view sv(int i) const {
        assert(i >= 1 && i <= n);
        return std::string_view(p + std::size_t(i - 1) * len, len);
    }
};

// The reader's settings, kept so that a second read of the same kind of file
// needs no new answers.
struct readrealsetup_t {
    int nlinedisp;  // lines to display
    int iskip;      // header lines without data
    int ititle;     // title line number (0: none)
    int iheader;    // column names line number (0: none)
    farr<int, 99> JCOL;   // for variable k, its array column
    farr<int, 99> JFCOL;  // for variable k, its file column
    int nvarfile;   // number of variables
    int nfcolmax;   // highest file column to read
    farr<float, 99> RR;   // the values of one line
    farr<fstr<11>, 99> NAMVAR;
    farr<fstr<11>, 99> NAMFCOL;
};
extern readrealsetup_t readrealsetup;

// The caller's table: data(i,j) is data[(j-1)*maxlines + i-1], column-major
// as farr2, so RWD1.a can be passed with its row count as maxlines.
//
// ierr: 0 read, 1 not read. The file name is the starting value and comes
// back without its directory. jcola/jfcola: jcola[k-1] is JCOLA(k).
// A caller that reads files of another kind too passes own_kind: a file it
// recognises as soon as it is opened is left open on the unit, untouched,
// with ierr 3, for the caller to read.
void readreal6(int& ierr, fstr_ref title, fstr_ref fname, std::string_view label, int unit,
               int& nlinedisp, int& iskip, int& ititle, int& iheader, int* jcola, int* jfcola,
               fstr_array_ref namvara, int& nvar, int maxvar, float* data,
               fstr_array_ref namrcol, int& nlines, int& ncolused, int maxlines, int maxcols,
               int ilevel, int inter, bool (*own_kind)(int unit) = nullptr);

// The stages of readreal6.
void sfheader1(int& ierr, int& nlinedisp, int& iskip, int& ititle, int& iheader,
               std::string_view fname, int unit, int inter);
void getftitle1(int& ierr, fstr_ref title, std::string_view fname, int unit, int ititle,
                int inter);
void scol2var2(int& ierr, int* jcola, int* jfcola, fstr_array_ref namvara, int& nvar, int maxvar,
               fstr_array_ref namrcol, int& ncolused, int maxcols, std::string_view fname,
               int unit, int ilevel, int inter);
// Fills namfcol(1..ncol) from the column names line; iflag 0 lists them.
void getfnamcol(int& ierr, fstr_array_ref namfcol, int size, int ncol, std::string_view fname,
                int unit, int iheader, int iflag);
void showfhead1(int& ierr, int nlinedisp, int iskip, int ititle, int iheader,
                std::string_view fname, int unit);
// ierr: 0 read, 1 read failed, 2 an array column had to be reset.
void getfreal(int& ierr, int& nlines, int& ncolused, float* data, int maxlines, int maxcols,
              std::string_view fname, int unit, int inter);
