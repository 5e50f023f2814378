// The well data of a run: one fixed-size table of depth samples, the names
// of what it holds, and its data type, which says which variables are there.
// A value is always reached through the column map, as RWD1(i,JCOL(jc1)).
#pragma once

#include <span>
#include <string_view>

#include "shell/fixed.h"
#include "tables/readreal.h"

constexpr int MAXDATWD = 15000;  // samples
constexpr int MAXCOLWD = 15;     // columns of RWD1
constexpr int MAXVARWD = 10;     // variables of a data type
constexpr int MAXTYPWD = 5;      // highest type index

struct welldat_t {
    int ndatwd;                            // data lines stored
    int ncolwd;                            // highest array column in use
    farr2<int, MAXDATWD, 5> IWD1;          // per-sample integer results
    farr2<float, MAXDATWD, MAXCOLWD> RWD1; // sample values, in file line order
    farr<int, MAXVARWD> JCOL;              // variable k -> column of RWD1
    farr<int, MAXVARWD> JFCOL;             // variable k -> column of the input file
    int nvarwd;                            // number of variables
    int imaxtypwd;                         // highest type index
    int itypwd;                            // current type index
    farr<int, MAXTYPWD + 1, 0> IDTYPWD;    // type ids
    int jdepth, jc1, jc2, jp1az, jrb, jdevi, jhazi, jazcmax;  // variable numbers
    farr<fstr<16>, MAXCOLWD> NAMCOL;       // names of the array columns
    farr<fstr<16>, MAXVARWD> NAMVAR;       // names of the variables
    farr<fstr<36>, MAXTYPWD + 1, 0> TYPWDNAM;  // type names
    fstr<80> titlewd;                      // title of the data set
    fstr<80> finwd;                        // input file name, without its directory
    fstr<80> foutwd;                       // current output table file name
};
extern welldat_t welldat;

// Selects (0..5) or extends with AzCmax (10, 11) the current data type and
// sets up its variables; id comes back as the current type id.
void wdtype(int& id, int intera);

// The type menu, on the caller's copies of index and id. names(k) and ids(k)
// for k = 0..imax are names[k] and ids[k].
void typeselect1(int& index, int& id, std::string_view label, const fstr<36>* names,
                 const int* ids, int imax, int namelen, int headcode, int inter);

// Prints a type; the detail code says how much (1 framed, up to 7 less).
void typestatus1(std::string_view title, std::string_view label, std::string_view tname, int id,
                 int index, int imax, int unit, int code);

// The data status list; ilist chooses the detail (0 basic, 1 variables,
// 2 array columns, 3 all) and is remembered between calls.
void dat1astatus1(std::string_view label, std::string_view tname, int id, std::string_view fin,
                  std::string_view title, int ndata, int maxdata, fstr_array_ref namvar,
                  int nvar, int maxvar, const int* jcol, fstr_array_ref namcol, int ncol,
                  int maxcol, int& ilist, int intera);
// The status block of the well loaded, as the menus show it (ilist 1 adds
// the list of variables and columns).
void wellstatus(int& ilist);

// The status as header lines of a table.
void writedatainfo0(std::string_view label, std::string_view tname, int id, std::string_view fin,
                    std::string_view fout, std::string_view title, int ndata, int nvar,
                    int unit);

// Command 100: choose the data type and read a well file into welldat.
void readwell2(int intera);
