#include "shell/frames.h"

#include <string>

#include "shell/format.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/stop.h"
#include "shell/units.h"

void stop_run() { throw program_stop{1}; }

void textline(std::string_view a) { writef(iocom.isout, "(5(1x,a))", a); }
void textline(std::string_view a, std::string_view b) { writef(iocom.isout, "(5(1x,a))", a, b); }
void textline(std::string_view a, std::string_view b, std::string_view c) {
    writef(iocom.isout, "(5(1x,a))", a, b, c);
}

namespace {

void menuhead(std::string_view prefix, std::string_view name, std::string_view version,
              std::string_view date) {
    fstr<33> first = std::string(prefix) + std::string(name);
    fstr<6> vers = "v" + std::string(trimmed(version));
    writef(iocom.isout, "(1x,50('@'))");
    writef(iocom.isout, "(1x,a33,1x,a5,1x,a10)", first, trimmed(vers.sv()), date);
    writef(iocom.isout, "(1x,1('@'),49('='))");
}

// The pause after a warning or error: always the keyboard, never the
// command file, so a replayed run waits here for somebody.
void pause_for_return() {
    if (!iocom.lpause) return;
    std::string rec;
    for (;;) {
        if (!iocom.lcmdopen)
            writef(iocom.ieout, "(5(1x,a))", "===> HIT RETURN TO CONTINUE");
        else
            writef(iocom.ieout, "(5(1x,a))", "===> HIT RETURN TO RESUME COMMANDS");
        if (unit_read(iocom.iein, rec)) break;
    }
}

void lines(std::initializer_list<std::string_view> ls) {
    for (auto l : ls) writef(iocom.ieout, "(5(1x,a))", l);
}

}  // namespace

void mainmenuhead(std::string_view name, std::string_view version, std::string_view date) {
    menuhead("@ main program ", name, version, date);
}

void submenuhead(std::string_view name, std::string_view version, std::string_view date) {
    menuhead("@ subroutine ", name, version, date);
}

void menutail() { writef(iocom.isout, "(1x,50('@'))"); }

void warninghead(std::string_view name, std::string_view, std::string_view) {
    writef(iocom.ieout, "(1x,50('/'))");
    writef(iocom.ieout, "(1x,'///',10x,'subroutine ',a13,10x,'///')", name);
    writef(iocom.ieout, "(1x,'///',18x,a8,18x,'///')", "WARNING ");
    writef(iocom.ieout, "(1x,50('/'))");
}

void warningtail00() {
    pause_for_return();
    writef(iocom.ieout, "(1x,50('/'))");
}

void errorhead(std::string_view name, std::string_view, std::string_view) {
    writef(iocom.ieout, "(1x,50('*'))");
    writef(iocom.ieout, "(1x,50('*'))");
    writef(iocom.ieout, "(1x,'***',19x,a6,19x,'***')", " ");
    writef(iocom.ieout, "(1x,'***',10x,'subroutine ',a13,10x,'***')", name);
    writef(iocom.ieout, "(1x,'***',19x,a6,19x,'***')", " ");
    writef(iocom.ieout, "(1x,'***',19x,a6,19x,'***')", "ERROR ");
    writef(iocom.ieout, "(1x,'***',19x,a6,19x,'***')", " ");
    writef(iocom.ieout, "(1x,50('*'))");
    writef(iocom.ieout, "(1x,50('*'))");
}

void errortail00() {
    pause_for_return();
    writef(iocom.ieout, "(1x,50('*'))");
}

void errortailstop(int code) {
    int ierr = 0;
    bool answer = true;
    switch (code) {
    case 0:
        lines({"RECOVERABLE ERROR ==> RESUMING EXECUTION ADVISED"});
        inlogicdef2(answer, "RESUME", true, iocom.iein, iocom.ieout, ierr);
        if (answer) {
            lines({"RESUMING EXECUTION"});
            errortail00();
            return;
        }
        lines({"EXECUTION STOPPED BY USER", "AFTER RECOVERABLE ERROR"});
        errortail00();
        stop_run();
    case 1:
        sorryface();
        lines({"UNRECOVERABLE ERROR ==> QUITTING ADVISED"});
        inlogicdef2(answer, "STOP", true, iocom.iein, iocom.ieout, ierr);
        if (answer) {
            lines({"EXECUTION STOPPED BY USER", "AFTER UNRECOVERABLE ERROR",
                   "Copying the above information", "and sending it to the program author",
                   "might be helpful"});
            errortail00();
            stop_run();
        }
        lines({"ENTERING THE TWILIGHT ZONE OF COMPUTING !",
               "THE VALIDITY OF WHAT FOLLOWS IS QUESTIONABLE", "RESUMING EXECUTION"});
        errortail00();
        return;
    case 2:
        sorryface();
        lines({"UNRECOVERABLE ERROR", "EXECUTION STOPPED BY PROGRAM",
               "Copying the above information", "and sending it to the program author",
               "might be helpful"});
        errortail00();
        stop_run();
    default:
        return;
    }
}

void sorryface() {
    static const char* const face[18] = {
        "            &&&&&&&&&&&&            ", "        &&                &&        ",
        "     &&                      &&     ", "   &&                          &&   ",
        "  &&                            &&  ", " &&                              && ",
        " &        &&&          &&&        & ", "&&        &&&          &&&        &&",
        "&&                                &&", "&&                                &&",
        "&&                                &&", " &          &&&&&&&&&&&&          & ",
        " &&      &&&            &&&      && ", "  &&   &&                  &&   &&  ",
        "   &&                          &&   ", "     &&                      &&     ",
        "        &&                &&        ", "            &&&&&&&&&&&&            ",
    };
    writef(iocom.isout, "(5(1x,a))", " ");
    for (const char* l : face) writef(iocom.isout, "(8x,a)", l);
    writef(iocom.isout, "(5(1x,a))", " ");
}
