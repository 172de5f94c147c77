#pragma once

#include <cstdint>

// Fixes the shared random sequence for as long as it lives: the generator restarts
// from the given seed and reseeding from the clock no longer disturbs it, so every
// run of a test or benchmark sees the same numbers. Restores the former state.
class ScopedRandomSequence
{
public:
    explicit ScopedRandomSequence(double seed = 1.0);
    ~ScopedRandomSequence();
    ScopedRandomSequence(const ScopedRandomSequence&) = delete;
    ScopedRandomSequence& operator=(const ScopedRandomSequence&) = delete;

private:
    uint32_t m_savedState;
};
