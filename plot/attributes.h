// Drawing attributes: one process-wide set that governs every drawing, a
// setter per attribute and the menu over all of them. Every setter is
// name(value, inter) with the intera convention, plus:
//   3     returns the stored value and does nothing else (how plot routines
//         read an attribute back to restore it);
//   6, 7  propagate the stored value to an open plot file.
// Only line width, text height and font have state in the plot file.
#pragma once

#include "shell/fixed.h"

struct plt2blk_t {
    farr<float, 19, 0> RED;    // colour table, percent, indices 0 to 18
    farr<float, 19, 0> GREEN;
    farr<float, 19, 0> BLUE;
    float linewidcm;  // line thickness, cm
    float textsizcm;  // text height, cm
    float textangle;  // text angle, degrees counter-clockwise
    float symsizcm;   // symbol size (diameter), cm
    int ncolors;      // highest colour index in use, 1 to 18
    int icolcur;      // colour now in force in the plot file (owned by the device)
    int lcolor;       // 1 colour plot, 0 black and white
    int ilinecol;     // line colour index
    int ifillsty;     // 0 hollow, 1 filled
    int ifillcol;     // fill colour index
    int ijustif;      // text justification, -11 to 11
    int ifont;        // font number, 1 to 16
    int itextcol;     // text colour index
    int isymtype;     // symbol type, negative for filled
};
extern plt2blk_t plt2blk;

// Names of the plot library: subplot titles (kept by the subplot table) and
// colour names (kept by the colour table). Defined with the attributes.
struct pltcharblk_t {
    farr<fstr<20>, 40> SUBPLOTITLE;
    farr<fstr<8>, 19, 0> COLORNAM;
};
extern pltcharblk_t pltcharblk;

void slinewidth(float& value, const int& inter);
void slinestyle(int& value, const int& inter);  // all lines are solid: does nothing
void slinecolor(int& value, const int& inter);
void sfillstyle(int& value, const int& inter);
void sfillcolor(int& value, const int& inter);
void stextfont(int& value, const int& inter);
void stextsize(float& value, const int& inter);
void stextalign(int& value, const int& inter);
void stextangle(float& value, const int& inter);
void stextcolor(int& value, const int& inter);
// Besides 0 to 5: 200 asks for a type without storing it, 102 prints only
// the list of symbol types (for a caller's own panel).
void ssymboltype(int& value, const int& inter);
void ssymbolsize(float& value, const int& inter);

// Number of colours in use; 1 makes the plot black and white.
void scolornb(int& ncol, const int& inter);
// One colour of the table: index 0 to ncolors, name, components in percent.
void scolorrgb(int& index, fstr_ref name, float& red, float& green, float& blue,
               const int& inter);
// The whole colour table, with reading one from a file (unit 20).
void scolortable(const int& inter);

// All attributes: 4, 5 reset; 7 propagates to a newly opened plot file;
// an even value runs the menu.
void splotattributes(const int& inter);
