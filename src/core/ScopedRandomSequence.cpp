#include "ScopedRandomSequence.h"

#include "SharedRandom.h"

ScopedRandomSequence::ScopedRandomSequence(double seed) : m_savedState(SharedRandom::s_state)
{
    ++SharedRandom::s_fixedDepth;
    SharedRandom::seed(seed);
}

ScopedRandomSequence::~ScopedRandomSequence()
{
    --SharedRandom::s_fixedDepth;
    SharedRandom::s_state = m_savedState;
}
