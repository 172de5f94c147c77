#include "SharedRandom.h"

#include <QTime>

#include <cstring>

uint32_t SharedRandom::s_state = 0x50000u;
int SharedRandom::s_fixedDepth = 0;

float SharedRandom::next()
{
    // A 24-bit linear congruential generator: every value is an exact float in
    // [0, 1), and the sequence is the same on every machine.
    s_state = (s_state * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return static_cast<float>(s_state) / 16777216.0f;
}

void SharedRandom::seed(double seed)
{
    const float asFloat = static_cast<float>(seed);
    uint32_t bits = 0;
    std::memcpy(&bits, &asFloat, sizeof bits);
    s_state = ((bits >> 8) ^ (bits & 0xFFFFu) ^ (bits >> 24)) & 0xFFFFFFu;
}

void SharedRandom::reseedFromClock()
{
    if (s_fixedDepth > 0)
        return;
    // The clock replaces only the middle bits of the state, so molecules made
    // within the same second still draw different numbers.
    const float seconds = static_cast<float>(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
    uint32_t bits = 0;
    std::memcpy(&bits, &seconds, sizeof bits);
    const uint32_t mixed = ((bits >> 16) ^ bits) & 0xFFFFu;
    s_state = (s_state & 0xFF00FFu) | (mixed << 8);
    next();
}
