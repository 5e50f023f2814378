// Dialogues on the well data and what stands on it: the console of the
// Dialogue fixture, every subsystem in the state a run starts in (as the
// main routine leaves them after its banner) and sample files at hand.
#pragma once

#include <filesystem>
#include <string>

#include "dialogue.h"
#include "plot/pages.h"
#include "shell/main_program.h"
#include "well/welldat.h"
#include "well/wellpara.h"

struct WellDialogue : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        // The page record starts as loaded; no reset of the run clears it.
        plt1blk = plt1blk_t{};
        tarnolix_startup(false);
        int ilist = 0;
        status(ilist, 5);
        clear();
    }

    // A file of data/ copied into the working directory, so that dialogues
    // show the plain name.
    static std::string sample(const std::string& name) {
        std::filesystem::copy_file(std::string(TARNOLIX_SOURCE_DIR) + "/data/" + name, name,
                                   std::filesystem::copy_options::overwrite_existing);
        return name;
    }

    // The data status block of the well, as the main menu shows it.
    static void status(int& ilist, int intera) {
        welldat_t& w = welldat;
        dat1astatus1("WELL", w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd), w.finwd.sv(),
                     w.titlewd.sv(), w.ndatwd, MAXDATWD, w.NAMVAR, w.nvarwd, MAXVARWD,
                     w.JCOL.data(), w.NAMCOL, w.ncolwd, MAXCOLWD, ilist, intera);
    }

    // Runs a dialogue that must end by itself; a script that runs out fails.
    template <class F>
    void run(F f) {
        try {
            f();
        } catch (const console_closed&) {
            FAIL() << "the dialogue asked for more answers than scripted";
        }
        EXPECT_TRUE(con.keys.empty()) << con.keys.size() << " answers left over";
    }

    int current_id() const { return welldat.IDTYPWD(welldat.itypwd); }
};
