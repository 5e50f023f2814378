#include "shell/linein.h"

#include <algorithm>
#include <cstring>

#include "shell/format.h"
#include "shell/sio.h"

bool read_line(std::FILE* f, std::string& rec, line_stream& st, std::string_view what) {
    rec.clear();
    if (st.ended) return false;
    std::size_t total = 0;
    int c = 0;
    bool any = false;
#ifdef __GLIBC__
    // Straight from the stream's buffer, as getline takes its lines: a
    // character at a time costs a table of 15000 rows a quarter more.
    while (total < LINE_LIMIT) {
        if (f->_IO_read_ptr >= f->_IO_read_end) {
            // Empty: one character through the stream refills the buffer.
            if ((c = getc_unlocked(f)) == EOF) break;
            any = true;
            if (c == '\n') break;
            rec.push_back(char(c));
            ++total;
            continue;
        }
        const char* p = f->_IO_read_ptr;
        const std::size_t room =
            std::min(std::size_t(f->_IO_read_end - p), LINE_LIMIT - total);
        const char* nl = static_cast<const char*>(std::memchr(p, '\n', room));
        const std::size_t n = nl ? std::size_t(nl - p) : room;
        rec.append(p, n);
        total += n;
        any = true;
        f->_IO_read_ptr += n + (nl ? 1 : 0);
        if (nl) {
            c = '\n';
            break;
        }
    }
#else
    char piece[512];
    while (total < LINE_LIMIT) {
        const std::size_t room = std::min(sizeof piece, LINE_LIMIT - total);
        std::size_t n = 0;
        while (n < room && (c = getc_unlocked(f)) != '\n' && c != EOF) piece[n++] = char(c);
        rec.append(piece, n);
        total += n;
        any = any || n > 0 || c == '\n';
        if (n < room) break;
    }
#endif
    if (!any) return false;
    // At the limit the next character tells whether the line goes on.
    if (total == LINE_LIMIT) c = getc_unlocked(f);
    if (c == '\n' || c == EOF) return true;
    // Cut: c is the first character past the limit; the rest of the line
    // is skipped, as far as the skip limit.
    for (std::size_t skipped = 1; skipped < LINE_SKIP_LIMIT; ++skipped) {
        c = getc_unlocked(f);
        if (c == '\n' || c == EOF) break;
    }
    if (!st.told) {
        writef(iocom.isout, "(1x,a,1x,i5,1x,a)", "Line longer than", int(LINE_LIMIT),
               "characters cut there, in " + std::string(what));
        st.told = true;
    }
    if (c != '\n' && c != EOF) {
        writef(iocom.isout, "(1x,a,1x,i7,1x,a)", "No line end within", int(LINE_SKIP_LIMIT),
               "characters: the rest is not read");
        st.ended = true;
    }
    return true;
}
