#include "shell/console.h"

#include <cstdio>
#include <iostream>

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
    static char* buf = nullptr;
    static std::size_t size = 0;
    // A last line without its end still counts as typed.
    ssize_t n = getline(&buf, &size, stdin);
    if (n <= 0) throw console_closed{"end of standard input"};
    if (buf[n - 1] == '\n') --n;
    return std::string(buf, std::size_t(n));
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
