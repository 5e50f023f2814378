// What the attribute setters share among their source files: the start of
// every setter (where the value comes from) and the small frames.
#pragma once

#include <string_view>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/menus.h"
#include "shell/sio.h"

namespace attrdetail {


inline void real_line(std::string_view a, float v) {
    writef(iocom.isout, "(1x,a,1x,g12.4)", a, v);
}

// "inter =" refused with the accepted range; range may be empty.
void bad_inter(const version_block& vb, int inter, std::string_view range);
// The warning for 6 or 7 while no plot file is open.
void closed_plot_warning(const version_block& vb);

// Where a setter's value comes from: 0 and 1 the caller's, 2 and 3 the
// store, 4 and 5 the default. 6 and 7 call propagate (or warn with the plot
// closed) and end the setter, as does an unknown inter. Returns false when
// the setter has nothing more to do.
template <class T, class P>
bool attr_source(T& value, const T& stored, const T& def, int inter, const version_block& vb,
                 P propagate) {
    switch (inter) {
    case 0:
    case 1: return true;
    case 2:
    case 3: value = stored; return true;
    case 4:
    case 5: value = def; return true;
    case 6:
    case 7:
        if (!iocom.lplotopen)
            closed_plot_warning(vb);
        else
            propagate();
        return false;
    default: bad_inter(vb, inter, "Accepted range = [0,7]"); return false;
    }
}

// The colour index test every colour setter runs on the value in hand.
void check_colour_index(int& index, const version_block& vb);
// The colour list of the colour panels, 0 to ncolors.
void colour_list();

}  // namespace attrdetail
