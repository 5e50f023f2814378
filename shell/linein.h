// Lines from a stream, each at most LINE_LIMIT characters long: a device or
// a binary file given by mistake has no line ends, and must not be read
// into memory whole.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

// The longest line taken as one record (the README states it); the rest of
// a longer line is skipped up to its end.
constexpr std::size_t LINE_LIMIT = 16384;
// How far the end of a cut line is looked for: a stream with no line end
// within this many characters gives no more lines.
constexpr std::size_t LINE_SKIP_LIMIT = std::size_t(1) << 20;

// What one stream has shown so far.
struct line_stream {
    bool ended = false;  // no line end found within LINE_SKIP_LIMIT
    bool told = false;   // a cut line was reported
};

// Reads one line without its line feed into rec (a CR before the line feed
// stays). False at the end of the stream. A line cut at LINE_LIMIT is
// reported once per stream on the standard output, naming the stream.
bool read_line(std::FILE* f, std::string& rec, line_stream& st, std::string_view what);
