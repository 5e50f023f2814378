#include "shell/menus.h"

#include "shell/format.h"
#include "shell/prompts.h"

void intline(std::string_view text, int value) { writef(iocom.isout, "(1x,a,1x,i6)", text, value); }

void realline(std::string_view text, float value) {
    writef(iocom.isout, "(1x,a,1x,g12.5)", text, value);
}

void flagline(std::string_view text, bool value) {
    writef(iocom.isout, "(1x,a,1x,l1)", text, value);
}

void menurule() { textline(DASHED); }

void menublock(std::string_view title) {
    menurule();
    textline(title);
    menurule();
}

int menuchoice(int def) {
    menutail();
    int choice = def, ierr = 0;
    inintegdef(choice, "your choice", def, ierr);
    return choice;
}
