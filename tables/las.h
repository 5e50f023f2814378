// LAS well-log files (Log ASCII Standard 1.2 and 2.0), the form in which
// caliper logs come from the logging companies: header sections ~V, ~W, ~C,
// ~P, then the data section ~A, one depth step a line or wrapped over
// several. The reader checks a file in one pass and reads chosen curves in a
// second, with unit factors, a depth interval and a decimation, so that a
// file longer than the caller's table can be read in part.
#pragma once

#include <string_view>

#include "shell/fixed.h"
#include "tables/readreal.h"

constexpr int MAXLASCURVE = 999;

// What a file holds, as far as its header and the checking pass tell.
struct lasfile_t {
    fstr<8> vers;         // VERS of ~V, as written
    bool wrapped;         // WRAP YES
    bool hasnull;         // NULL given in ~W
    double null;          // the NULL value: such a value is no value
    fstr<16> nulltext;    // NULL as written
    fstr<80> well;        // the well name
    fstr<80> loc;         // LOC of ~W: the location, as written
    fstr<16> steptext;    // STEP of ~W as written
    bool hasbs;           // bit size given in ~W or ~P
    float bs;             // the bit size, in bsunit
    fstr<16> bsunit;
    int ncurve;           // curves of ~C, in the column order of ~A
    farr<fstr<16>, MAXLASCURVE> MNEM;
    farr<fstr<16>, MAXLASCURVE> UNIT;
    int cline;            // line of the ~C section head (0: none)
    int aline;            // line of the ~A section head
    // The checking pass, for depth curve jdep:
    int jdep;
    int nrow;             // depth steps in ~A
    int ndrop;            // of which with no readable depth
    double dfirst, dlast; // first and last depth, in the file's unit
    double dmin, dmax;
};
extern lasfile_t lasfile;

// What a quantity is measured in: the program's own units are metres of
// depth, centimetres of diameter and degrees of angle.
enum class las_kind { depth, diameter, angle };
las_kind las_kind_of(std::string_view varname);
std::string_view las_own_unit(las_kind k);
// The factor from a unit of the file to the program's unit; 0 if the unit
// isn't known.
double las_factor(las_kind k, std::string_view unit);

// True if the unit holds a LAS file: its first line that is neither blank
// nor a comment opens the ~V section. The unit is rewound.
bool las_detect(int unit);

// Reads the header sections of the file open on unit. 0 on success; else 1
// with the line and the reason.
int las_header(int unit, int& line, fstr_ref reason);

// The curve a variable of the program takes by the mnemonics the logging
// companies use for it (case aside); 0 if there is none.
int las_alias(std::string_view varname);

// The checking pass with depth curve jdep (after las_header): counts the
// depth steps and checks that rows are whole and depth runs one way. With a
// depth factor fdep and an interval [zlo, zhi] in metres, nin counts the
// steps inside it. 0 on success; else 1 with the line and the reason.
int las_scan(int unit, int jdep, double fdep, float zlo, float zhi, int& nin, int& line,
             fstr_ref reason);

// The reading pass: of the steps whose depth (curve jdep times fdep) lies in
// [zlo, zhi], the first and every ndec-th after it, at most maxlines of them.
// Variable k (1..nvar) takes curve jcurve[k-1] times factor[k-1] into
// data(i, jcol[k-1]) of a table of maxlines rows stored column by column.
// NULL and unreadable values become NaN and are counted in nbad.
void las_read(int unit, int jdep, double fdep, float zlo, float zhi, int ndec, int nvar,
              const int* jcurve, const double* factor, const int* jcol, float* data,
              int maxlines, int& nlines, int& nbad);

// The dialogues. lasopen1 reads and checks the header and the data on the
// unit with the depth curve found by its name and shows what the file holds;
// on failure an error frame names the line and the reason, the unit is
// closed and ierr is 1.
void lasopen1(int& ierr, std::string_view fname, int unit);

// The correspondence of variables and curves (jcurve[k-1], 0 for none;
// found by name on entry when 0), the units, the depth interval and the
// decimation, then the read into the caller's table. ierr 0 read, 1 not.
// The unit is closed on return.
void readlas1(int& ierr, std::string_view fname, int unit, fstr_array_ref namvar, int nvar,
              int* jcurve, const int* jcol, float* data, fstr_array_ref namcol, int& nlines,
              int& ncolused, int maxlines, int maxcols);
