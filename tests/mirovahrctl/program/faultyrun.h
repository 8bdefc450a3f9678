#pragma once

#include "tests/support/programrun.h"

#include <QString>

/// A run of a program whose calls that work with files can be made to fail: see faultyfiles.cpp.
namespace FaultyRun {

struct Fault {
    const char *counted = "all"; ///< which calls count: "all", "changes" or "space"
    int call = 0; ///< the number of the call that fails, from 1; 0: none
    int error = 0; ///< its error number; 0: the program is killed in it
    bool rest = false; ///< all later ones fail, too
};

/// Call it before the run starts. Only calls that concern \a folder count.
void prepare(ProgramRun &run, const QString &folder, const Fault &fault);

} // namespace FaultyRun
