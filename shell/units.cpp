#include "shell/units.h"

#include <cerrno>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

namespace {

struct file_unit {
    std::FILE* f = nullptr;
    std::string name;
    bool can_read = false;
    bool can_write = false;
};

std::map<int, file_unit>& table() {
    static std::map<int, file_unit> t;
    return t;
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

    const char* mode = nullptr;
    if (status == "old") {
        if (!exists(name)) return false;
        mode = wr ? (rd ? "r+" : "r+") : "r";
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
    u.name = name;
    u.can_read = rd;
    u.can_write = wr;
    return true;
}

void unit_close(int unit) {
    auto& t = table();
    auto it = t.find(unit);
    if (it == t.end()) return;
    if (it->second.f) std::fclose(it->second.f);
    t.erase(it);
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

bool unit_read(int unit, std::string& rec) {
    rec.clear();
    auto& t = table();
    auto it = t.find(unit);
    if (it == t.end()) {
        if (is_console(unit)) {
            rec = the_console().get_line();
            return true;
        }
        return false;
    }
    file_unit& u = it->second;
    if (!u.can_read || !u.f) return false;
    int ch;
    bool any = false;
    while ((ch = std::fgetc(u.f)) != EOF) {
        any = true;
        if (ch == '\n') break;
        rec.push_back(char(ch));
    }
    if (!any) return false;
    // Tables written on other systems end their lines with CR LF.
    if (!rec.empty() && rec.back() == '\r') rec.pop_back();
    return true;
}

void unit_write(int unit, std::string_view rec) {
    auto& t = table();
    auto it = t.find(unit);
    if (it == t.end()) {
        // The screen, and any unit not opened on a file, is the console.
        the_console().put_line(rec);
        return;
    }
    file_unit& u = it->second;
    if (!u.can_write || !u.f) return;
    std::fwrite(rec.data(), 1, rec.size(), u.f);
    std::fputc('\n', u.f);
}

void unit_flush(int unit) {
    auto& t = table();
    auto it = t.find(unit);
    if (it != t.end() && it->second.f) std::fflush(it->second.f);
}

void units_reset() {
    auto& t = table();
    for (auto& [n, u] : t)
        if (u.f) std::fclose(u.f);
    t.clear();
}
