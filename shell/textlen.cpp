#include "shell/textlen.h"

#include <cmath>
#include <cstdlib>

void textlen(int& first, int& last, std::string_view text) {
    first = 1;
    last = int(text.size());
    while (first < last && text[std::size_t(first - 1)] == ' ') ++first;
    while (last > first && text[std::size_t(last - 1)] == ' ') --last;
}

std::string_view trimmed(std::string_view text) {
    if (text.empty()) return text;
    int first, last;
    textlen(first, last, text);
    return text.substr(std::size_t(first - 1), std::size_t(last - first + 1));
}

void integlen(int& count, int value) {
    if (value == 0) {
        count = 1;
        return;
    }
    // Computed in single precision, as everywhere in the program; the
    // digit count of exact powers of ten follows from that rounding.
    float a = std::fabs(float(value));
    int digits = int(std::log(a) * 0.4342945f) + 1;
    count = value > 0 ? digits : digits + 1;
}
