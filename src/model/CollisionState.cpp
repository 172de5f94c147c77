#include "CollisionState.h"

void RotateComponents(float, float a, float b, float& a2, float& b2)
{
    a2 = a;
    b2 = b;
}

CollisionState::CollisionState(const CollisionSetup& setup) : m_setup(&setup) {}

int16_t CollisionState::ComputeCollision(int16_t) { return CodeNoCollision; }

float CollisionState::BodyState(int16_t, int16_t, int16_t, float) { return 0; }

std::string CollisionState::CheckMessage(int16_t) { return {}; }

std::string CollisionState::CheckBoxText(int16_t) { return {}; }
