#pragma once

/// What the program's output is written to.
struct Terminal {
    int columns = 100; ///< the width of standard output in characters
    bool isColoured = false; ///< reports on standard output are coloured
    bool showsProgress = false; ///< standard error is a terminal

    /// That of this process. Reports are coloured on a terminal that can show it, unless the
    /// environment variable NO_COLOR holds any text.
    static Terminal ofProcess();
};
