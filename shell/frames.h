// Message frames: '@' borders a menu or report, '/' a warning, '*' an error.
// Each frame names the routine that opened it, so a long scrolling log can
// be read at a glance.
#pragma once

#include <string_view>

void mainmenuhead(std::string_view name, std::string_view version, std::string_view date);
void submenuhead(std::string_view name, std::string_view version, std::string_view date);
void menutail();
void warninghead(std::string_view name, std::string_view version, std::string_view date);
void warningtail00();
void errorhead(std::string_view name, std::string_view version, std::string_view date);
void errortail00();
// Closes an error frame that may end the run: 0 recoverable (the user may
// stop), 1 unrecoverable (the user may go on), 2 unrecoverable (the run
// stops); any other code prints nothing.
void errortailstop(int code);
void sorryface();

// The version block every talking routine carries: name, version, date.
struct version_block {
    std::string_view name, version, date;
};
inline void submenuhead(const version_block& v) { submenuhead(v.name, v.version, v.date); }
inline void warninghead(const version_block& v) { warninghead(v.name, v.version, v.date); }
inline void errorhead(const version_block& v) { errorhead(v.name, v.version, v.date); }

// Writes one text line on the standard output in "(5(1x,a))", the shape of
// every plain text line between a head and its tail.
void textline(std::string_view a);
void textline(std::string_view a, std::string_view b);
void textline(std::string_view a, std::string_view b, std::string_view c);

// The dotted line of prompts and the dashed line of menus.
inline constexpr std::string_view DOTTED = "..........................................";
inline constexpr std::string_view DASHED = "-------------------------------------------";
