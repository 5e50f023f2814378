// The console the engine talks to: lines out, lines in. The terminal, the
// text window host and the tests each provide one.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

struct console {
    virtual ~console() = default;
    virtual void put_line(std::string_view line) = 0;
    // The next line typed, without its end. A console that can give no more
    // lines (input closed, window gone) throws console_closed.
    virtual std::string get_line() = 0;
};

// Raised when the console can give no more input: the run cannot go on.
struct console_closed {
    std::string why;
};

// The console in force; the terminal one unless another was set.
console& the_console();
// Sets the console (nullptr restores the terminal); returns the previous one.
console* set_console(console* c);

// The terminal: standard output and standard input.
struct terminal_console : console {
    void put_line(std::string_view line) override;
    std::string get_line() override;
};

// In-memory console for tests: a scripted keyboard and a captured screen.
struct memory_console : console {
    std::deque<std::string> keys;
    std::vector<std::string> screen;

    explicit memory_console(std::vector<std::string> typed = {}) : keys(typed.begin(), typed.end()) {}
    void type(std::string_view line) { keys.emplace_back(line); }
    void put_line(std::string_view line) override { screen.emplace_back(line); }
    std::string get_line() override;
    // The whole screen, lines joined with '\n' and a final '\n'.
    std::string text() const;
};

// Makes a console the current one for the lifetime of the object.
struct console_scope {
    console* prev;
    explicit console_scope(console& c) : prev(set_console(&c)) {}
    ~console_scope() { set_console(prev); }
    console_scope(const console_scope&) = delete;
    console_scope& operator=(const console_scope&) = delete;
};
