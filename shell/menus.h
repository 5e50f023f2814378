// Numbered menus: the lines they are made of and the loop that runs them.
// A plain text line of a menu is textline (frames.h).
#pragma once

#include <string_view>

#include "shell/frames.h"
#include "shell/sio.h"

// A text and a number, "(1x,a,1x,i6)".
void intline(std::string_view text, int value);
// A text and a real, "(1x,a,1x,g12.5)".
void realline(std::string_view text, float value);
// A text and a flag, "(1x,a,1x,l1)".
void flagline(std::string_view text, bool value);
// The dashed rule between the blocks of a menu.
void menurule();
// A block title between two rules.
void menublock(std::string_view title);

// Closes the menu's frame and asks "your choice"; return takes def.
int menuchoice(int def = 99);

// A numbered menu until its 99: each round the head of vb, the menu lines
// (show, at output level 2), the tail and "your choice" (return is 99).
// Any other number goes to act; a number act doesn't know does nothing,
// so the menu comes again.
template <class Show, class Act>
void menuloop(const version_block& vb, Show show, Act act) {
    for (;;) {
        submenuhead(vb);
        if (iocom.LWITO(2)) show();
        const int choice = menuchoice(99);
        if (choice == 99) return;
        act(choice);
    }
}
