#include "shell/console.h"

#include <cstdio>
#include <iostream>

#include "shell/linein.h"

namespace {
terminal_console g_terminal;
console* g_current = nullptr;
}  // namespace

console& the_console() { return g_current ? *g_current : g_terminal; }

console* set_console(console* c) {
    console* prev = g_current;
    g_current = c;
    return prev;
}

void terminal_console::put_line(std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

std::string terminal_console::get_line() {
    static line_stream input;
    std::string s;
    // A last line without its end still counts as typed.
    if (!read_line(stdin, s, input, "standard input"))
        throw console_closed{"end of standard input"};
    return s;
}

std::string memory_console::get_line() {
    if (keys.empty()) throw console_closed{"keyboard script ended"};
    std::string s = std::move(keys.front());
    keys.pop_front();
    return s;
}

std::string memory_console::text() const {
    std::string s;
    for (const auto& l : screen) {
        s += l;
        s += '\n';
    }
    return s;
}
