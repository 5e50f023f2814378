// The PostScript device: the only code that writes to the plot file (unit
// 50). Coordinates are PostScript points on the page; the file holds
// absolute page coordinates and spells every operation out with standard
// operators, one per line, so that it can be read and patched by hand.
#pragma once

#include <string_view>

#include "shell/fixed.h"

struct psparams_90_t {
    int iunitps;                // unit of the plot file and of the defaults file: 50
    int ifontps;                // current font, index into FONTS
    int npageps;                // page being written, 1 at open
    int isizeps;                // page orientation and size command, 1 to 4
    farr<int, 4> ISIZEMIN;      // short side of the page in points
    farr<int, 4> ISIZEMAX;      // long side of the page in points
    float textsizeps;           // text height in points
    int ipathps;                // 1 while a path is open and not yet stroked
    farr<fstr<22>, 16> FONTS;   // PostScript font names, with their slash
    farr<fstr<20>, 4> NAMSIZE;  // names of the page formats
};
extern psparams_90_t psparams_90;

// What the device reads of the drawing attributes, through functions that
// the attributes register at load, so that the device stands below them and
// knows nothing of their record.
struct psattribute_source {
    bool (*incolour)();                     // false: a black and white plot
    int (*colourof)(int role);              // colour index of role 1 line, 2 fill, 3 text
    void (*rgb)(int index, float* components);  // red, green, blue in percent
    int& (*inforce)();                      // the colour now set in the plot file
    bool (*filled)();                       // polygons are filled
    int (*justification)();                 // text justification, -11 to 11
    float (*textangle)();                   // text angle, degrees
};
void psattributesource(const psattribute_source& source);

// Reads or asks for the page format, opens the plot file and writes its
// head. name is the plot file name, updated to the name actually opened.
// Called by plinit only.
void intplinit(fstr_ref name, const int& inter);
// Asks for a return, writes the trailer and closes the file. Called by
// plend only.
void intplend();
// Ends the page and begins the next. Called by newpage only.
void intnewpage();

// Strokes any open path and writes a moveto. mode 1 opens a new path, mode 0
// only sets the current point (for text). A coordinate past the device limit
// is reset in the caller's variable.
void psmoveto(float& x, float& y, const int& mode);
// n lineto lines; x(1..n), y(1..n) are x[0..n-1], and may be reset at the
// device limit.
void pslineto(float* x, float* y, const int& n);
// If a path is open: line colour, stroke, path closed.
void psstrokepath();
// setrgbcolor for a colour role: -1 reset to colour 1, 0 repeat the current
// colour, 1 line, 2 fill, 3 text colour. Nothing in black and white.
void psrgbcolor(const int& mode);

// One polyline as one stroked path.
void deline(float* x, float* y, const int& n);
// One closed polygon, filled when the fill style asks, always outlined.
void depolygon(float* x, float* y, const int& n);
// One string at a device point, with the justification, angle, font, size
// and colour in force. Parentheses and backslashes are escaped and other
// bytes than printable ASCII written in octal; a string holding letters
// beyond ASCII takes its font re-encoded to Latin-1.
void detext2(float& x, float& y, std::string_view text);

// Strokes any open path and writes setlinewidth (width in points).
void intslinewidth(const float& width);
// Stores the font number and strokes any open path.
void intstextfont(const int& font);
// Stores the text height (given in cm) in points.
void intstextsize(const float& height);

// The number text of the plot file: the value with two decimals in the
// narrowest field that holds it, at most 10 characters, as "0.50" or
// "-12.25". Writes into text (at least 10 characters, those past the count
// left as scratch) and returns the count.
int psnumtext(char* text, float value);
