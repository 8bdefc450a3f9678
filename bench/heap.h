#pragma once

/// What this program has of the machine's memory, in bytes.
struct Heap {
    long long allocated = 0; ///< by malloc and not yet freed
    long long resident = 0;
    long long peak = 0; ///< resident at most since forgetPeak()

    static Heap now();
    static void forgetPeak();
};
