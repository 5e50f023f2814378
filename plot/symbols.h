// Symbols and polygons from user points of the current subplot.
#pragma once

// Marks each of the n points with the current symbol (type and size of
// plot/attributes.h). Its shape and size are in device units, so a symbol
// looks the same in every subplot; a negative type fills the closed shapes.
void ussymbol(const float* x, const float* y, const int& n);

// A closed polygon through the n points, filled by the fill attributes. One
// of more than 501 points comes out as several polygons, with a warning.
void uspolygon(const float* x, const float* y, const int& n);
