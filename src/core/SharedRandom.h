#pragma once

#include <cstdint>

// The one uniform random generator of the program, on [0, 1). Every new molecule
// reseeds it from the time of day; a ScopedRandomSequence fixes its sequence for
// tests and benchmarks.
class SharedRandom
{
public:
    // The next number of the sequence, uniform on [0, 1).
    static float next();
    // Restarts the sequence from a seed.
    static void seed(double seed);
    // Reseeds from the seconds since midnight, as every new molecule does, mixing
    // the clock into the state; while a fixed sequence is in force it leaves the
    // sequence to run on undisturbed.
    static void reseedFromClock();

private:
    friend class ScopedRandomSequence;
    static uint32_t s_state;
    static int s_fixedDepth;
};
