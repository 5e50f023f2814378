// Numbered units: the one place where unit numbers meet streams.
//   5  keyboard            6  screen            (both: the console)
//   12 data files          15 command file      20 colour table input
//   50 plot file           55 output tables     99 temporary files
// Any other number may be opened on a file as well.
#pragma once

#include <string>
#include <string_view>

#include "shell/console.h"

constexpr int UNIT_KEYBOARD = 5;
constexpr int UNIT_SCREEN = 6;
constexpr int UNIT_DATA = 12;
constexpr int UNIT_COMMANDS = 15;
constexpr int UNIT_COLOURS = 20;
constexpr int UNIT_PLOT = 50;
constexpr int UNIT_TABLES = 55;
constexpr int UNIT_TEMP = 99;

// Opens a file on a unit. status: "old" (must exist), "new" (must not
// exist), "replace" (created or truncated), "unknown" (opened for reading
// and writing if it exists, created otherwise; written from its start).
// action: "read", "write" or "readwrite" (blank means readwrite, but only
// read for "old"). A unit already open is closed first. Returns false if
// the file can't be opened, and for a write over a file that is open on
// another unit or held (unit_hold); the unit is then closed.
bool unit_open(int unit, std::string_view name, std::string_view status,
               std::string_view action);
// Closes the unit; false if what was written to it did not all reach the
// file (disk full, a file system error).
bool unit_close(int unit);
// Holds the file last opened on unit (the well file loaded) against being
// written over, in place of the one held before; a unit that never opened
// a file releases the hold.
void unit_hold(int unit);
// Closes the unit and removes its file.
void unit_close_delete(int unit);
bool unit_is_open(int unit);
// The name the unit was opened with (empty for the console or a closed unit).
std::string unit_name(int unit);

// Reads one record (a line without its end, CR LF or LF). False at the end
// of the file, for a unit not open or not readable. Lines longer than
// LINE_LIMIT are cut (shell/linein.h). Unit 5 reads the console, after
// every file written is flushed; a console that has gone away raises
// console_closed (see shell/console.h).
bool unit_read(int unit, std::string& rec);
// The same, but a CR before the line end stays: an answer that is a CR
// alone is a character of its own.
bool unit_read_raw(int unit, std::string& rec);
// Writes one record. Units 5 and 6 write to the console; a line for a
// file unit that isn't open is dropped. False once a write to the unit's
// file has failed (the failure is noticed when its buffer goes out).
bool unit_write(int unit, std::string_view rec);
// False if the unit's file could not take what was written to it.
bool unit_flush(int unit);

// Closes every unit but the console (used when a run ends, and by tests).
void units_reset();
