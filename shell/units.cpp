#include "shell/units.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>

#include <sys/stat.h>

#include "shell/linein.h"

namespace {

// Plot files run to megabytes in lines of a few bytes: the stream works
// through a large buffer of ours, and lines are taken whole from it.
constexpr std::size_t BUFFER_SIZE = std::size_t(1) << 16;

// Which file a name stands for, whatever the path or link that reached it.
struct file_id {
    dev_t dev = 0;
    ino_t ino = 0;
    bool known = false;
    bool operator==(const file_id& o) const { return known && o.known && dev == o.dev && ino == o.ino; }
};

file_id id_of(const std::string& name) {
    struct stat st;
    if (::stat(name.c_str(), &st) != 0) return {};
    return {st.st_dev, st.st_ino, true};
}

struct file_unit {
    std::FILE* f = nullptr;
    std::string name;
    bool can_read = false;
    bool can_write = false;
    std::unique_ptr<char[]> buffer;  // the stream's; lives until it is closed
    line_stream lines;
    bool failed = false;  // a write or flush failed: the file is incomplete
    file_id id;

    file_unit() = default;
    file_unit(const file_unit&) = delete;
    file_unit& operator=(const file_unit&) = delete;
    ~file_unit() {
        if (f) std::fclose(f);
    }
    // Closes the stream; false if what was written did not all reach the file.
    bool close() {
        if (!f) return !failed;
        const bool ok = std::fclose(f) == 0 && !failed;
        f = nullptr;
        return ok;
    }
};

std::map<int, file_unit> units;

// The unit last looked up: a plot is written a line at a time, all to the
// same unit. Cleared whenever a unit is closed.
int last_number = 0;
file_unit* last_unit = nullptr;

std::map<int, file_unit>& table() { return units; }

file_unit* find_unit(int unit) {
    if (last_unit && last_number == unit) return last_unit;
    auto it = units.find(unit);
    if (it == units.end()) return nullptr;
    last_number = unit;
    last_unit = &it->second;
    return last_unit;
}

// The file last opened on each unit, open or closed since, and the one held.
std::map<int, file_id>& last_opened() {
    static std::map<int, file_id> t;
    return t;
}
file_id held;

// A file the run has loaded or holds open on a unit is never written over:
// a plot named like the well file would destroy it.
bool guarded(const std::string& name) {
    file_id id = id_of(name);
    if (!id.known) return false;
    if (id == held) return true;
    for (auto& [n, u] : table())
        if (u.id == id) return true;
    return false;
}

// Whatever was written so far reaches the disk before the run waits on the
// keyboard: a run killed at a prompt keeps every finished page.
void flush_all() {
    for (auto& [n, u] : table())
        if (u.can_write && u.f) u.failed = u.failed || std::fflush(u.f) != 0;
}

bool is_console(int unit) { return unit == UNIT_KEYBOARD || unit == UNIT_SCREEN; }

std::string lower(std::string_view s) {
    std::string r;
    for (char c : s) {
        if (c == ' ') continue;
        r.push_back(char(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c));
    }
    return r;
}

bool exists(const std::string& name) {
    std::FILE* f = std::fopen(name.c_str(), "r");
    if (!f) return false;
    std::fclose(f);
    return true;
}

}  // namespace

bool unit_open(int unit, std::string_view name_in, std::string_view status_in,
               std::string_view action_in) {
    unit_close(unit);
    std::string name(name_in);
    while (!name.empty() && name.back() == ' ') name.pop_back();
    while (!name.empty() && name.front() == ' ') name.erase(0, 1);
    if (name.empty()) return false;
    std::string status = lower(status_in), action = lower(action_in);
    bool rd = action.empty() || action == "read" || action == "readwrite";
    bool wr = action.empty() || action == "write" || action == "readwrite";

    // Old files are inputs: a blank action reads only, so a file the user
    // may read but not write (shared, archived) still opens.
    if (status == "old" && action.empty()) wr = false;
    // A file that would be written must not be one the run reads.
    if (wr && status != "new" && guarded(name)) return false;

    const char* mode = nullptr;
    if (status == "old") {
        if (!exists(name)) return false;
        mode = wr ? "r+" : "r";
    } else if (status == "new") {
        if (exists(name)) return false;
        mode = rd ? "w+" : "w";
    } else if (status == "replace" || status == "scratch") {
        mode = rd ? "w+" : "w";
    } else {  // unknown
        if (exists(name) && rd && !wr)
            mode = "r";
        else
            mode = rd && wr ? (exists(name) ? "r+" : "w+") : (wr ? "w" : "r");
    }
    std::FILE* f = std::fopen(name.c_str(), mode);
    if (!f) return false;
    auto buffer = std::make_unique<char[]>(BUFFER_SIZE);
    std::setvbuf(f, buffer.get(), _IOFBF, BUFFER_SIZE);
    // A directory opens with fopen on Linux; it is not a file for us.
    if (std::fseek(f, 0, SEEK_END) != 0 && errno == EISDIR) {
        std::fclose(f);
        return false;
    }
    std::rewind(f);
    if (std::ferror(f)) {
        std::fclose(f);
        return false;
    }
    auto& u = table()[unit];
    u.f = f;
    u.buffer = std::move(buffer);
    u.name = name;
    u.can_read = rd;
    u.can_write = wr;
    struct stat st;
    if (::fstat(fileno(f), &st) == 0) u.id = {st.st_dev, st.st_ino, true};
    last_opened()[unit] = u.id;
    return true;
}

void unit_hold(int unit) {
    auto it = last_opened().find(unit);
    held = it == last_opened().end() ? file_id{} : it->second;
}

bool unit_close(int unit) {
    auto& t = table();
    auto it = t.find(unit);
    if (it == t.end()) return true;
    last_unit = nullptr;
    const bool ok = !it->second.can_write || it->second.close();
    t.erase(it);
    return ok;
}

void unit_close_delete(int unit) {
    auto& t = table();
    auto it = t.find(unit);
    if (it == t.end()) return;
    std::string name = it->second.name;
    unit_close(unit);
    std::remove(name.c_str());
}

bool unit_is_open(int unit) {
    if (is_console(unit)) return true;
    return table().count(unit) != 0;
}

std::string unit_name(int unit) {
    auto& t = table();
    auto it = t.find(unit);
    return it == t.end() ? std::string() : it->second.name;
}

bool unit_read_raw(int unit, std::string& rec) {
    rec.clear();
    file_unit* found = find_unit(unit);
    if (!found) {
        if (is_console(unit)) {
            flush_all();
            rec = the_console().get_line();
            return true;
        }
        return false;
    }
    file_unit& u = *found;
    if (!u.can_read || !u.f) return false;
    return read_line(u.f, rec, u.lines, u.name);
}

bool unit_read(int unit, std::string& rec) {
    if (!unit_read_raw(unit, rec)) return false;
    // Tables written on other systems end their lines with CR LF.
    if (!rec.empty() && rec.back() == '\r') rec.pop_back();
    return true;
}

bool unit_write(int unit, std::string_view rec) {
    file_unit* found = find_unit(unit);
    if (!found) {
        // A file unit that isn't open (a plot whose open failed) writes
        // nowhere rather than into the dialogue.
        if (is_console(unit)) the_console().put_line(rec);
        return true;
    }
    file_unit& u = *found;
    if (!u.can_write || !u.f) return true;
    fwrite_unlocked(rec.data(), 1, rec.size(), u.f);
    putc_unlocked('\n', u.f);
    // The error shows when the stream's buffer goes out, and stays.
    u.failed = u.failed || ferror_unlocked(u.f);
    return !u.failed;
}

bool unit_flush(int unit) {
    file_unit* found = find_unit(unit);
    if (!found || !found->f || !found->can_write) return true;
    file_unit& u = *found;
    u.failed = u.failed || std::fflush(u.f) != 0;
    return !u.failed;
}

void units_reset() {
    last_unit = nullptr;
    units.clear();
    last_opened().clear();
    held = {};
}
