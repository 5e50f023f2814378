#include "tables/fileopen.h"

#include <string>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/stop.h"
#include "shell/textconv.h"
#include "shell/units.h"

namespace {

constexpr version_block VB_OPEF1{"opef1      ", " 1.1", "2024-05-29"};
constexpr version_block VB_OPEF2{"opef2               ", " 5.2", "2023-04-25"};
constexpr version_block VB_WRERRF{"wrerrf     ", " 1.0", "2026-11-23"};

// Steps shared by both routines: the frame, the name, the open. True if the
// file opened; then fname holds its base name.
bool ask_and_open(const version_block& vb, fstr<250>& name, std::string_view label, int unit,
                  std::string_view status, std::string_view action, int inter) {
    std::string_view lab = trimmed(label);
    if (inter != 7) {
        submenuhead(vb);
        textline("OPENING", lab, "FILE");
        menutail();
    }
    if (inter == 0) {
        fstr<40> prompt = std::string(lab) + " file name";
        int ierr = 0;
        inchardef(name, prompt, name, ierr);
    }
    return unit_open(unit, trimmed(name), status, action);
}

void name_lines(int out, const fstr<250>& name, int unit) {
    writef(out, "(5(1x,a))", "File name =", trimmed(name));
    writef(out, "(1x,a,1x,i4)", "for unit =", unit);
}

void to_basename(fstr_ref fname, const fstr<250>& name) {
    int len = 0;
    fstr<250> base;
    path2basename(len, base, name);
    fname.assign(base.sv().substr(0, std::size_t(len)));
}

}  // namespace

void opef2(fstr_ref fname, std::string_view label, int unit, std::string_view status, int inter) {
    fstr<250> name = fname.sv();
    std::string_view lab = trimmed(label);
    for (;;) {
        if (ask_and_open(VB_OPEF2, name, label, unit, status, "", inter)) {
            to_basename(fname, name);
            return;
        }
        if (inter == 0) {
            warninghead(VB_OPEF2);
            textline("COULD NOT OPEN", lab, "FILE");
            name_lines(iocom.isout, name, unit);
            textline("===> RETRYING");
            warningtail00();
            continue;
        }
        errorhead(VB_OPEF2);
        textline("COULD NOT OPEN", lab, "FILE");
        name_lines(iocom.isout, name, unit);
        textline("===> STOPPING EXECUTION");
        errortail00();
        sorryface();
        stop_run();
    }
}

void opef1(fstr_ref fname, std::string_view label, int unit, std::string_view status,
           std::string_view action, int inter, int severity, int& ierr) {
    fstr<250> name = fname.sv();
    std::string_view lab = trimmed(label);
    for (;;) {
        ierr = 0;
        if (ask_and_open(VB_OPEF1, name, label, unit, status, action, inter)) {
            to_basename(fname, name);
            return;
        }
        ierr = 1;
        // The name typed stays the caller's, so a message or the next
        // default can show it.
        fname.assign(trimmed(name));
        if (inter != 0) break;
        warninghead(VB_OPEF1);
        writef(iocom.ieout, "(5(1x,a))", "COULD NOT OPEN", lab, "FILE");
        name_lines(iocom.ieout, name, unit);
        writef(iocom.ieout, "(5(1x,a))", "===> RETRYING TO OPEN THE FILE");
        warningtail00();
        bool retry = true;
        int e = 0;
        inlogicdef2(retry, "Retry (1) or proceed without retrying (0)", true, iocom.iein,
                    iocom.ieout, e);
        if (!retry) break;
    }
    if (severity >= 0) {
        errorhead(VB_OPEF1);
        textline("FAILED TO OPEN", lab, "FILE");
        name_lines(iocom.isout, name, unit);
        errortailstop(severity);
    } else if (inter != 7) {
        writef(iocom.isout, "(1x,43('-'))");
        textline("Could not open", lab, "file");
        textline("=> Proceeding");
        writef(iocom.isout, "(1x,43('-'))");
    }
}

void wrerrf(std::string_view label, int unit) {
    fstr<250> name = unit_name(unit);
    errorhead(VB_WRERRF);
    textline("COULD NOT WRITE", trimmed(label), "FILE");
    name_lines(iocom.isout, name, unit);
    textline("(disk full, or the file system refused it)");
    textline("===> FILE CLOSED, WRITING ENDED");
    errortail00();
    unit_close(unit);
}
