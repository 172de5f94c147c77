#include "CollisionSetup.h"

CollisionSetup::CollisionSetup()
{
    resetDefaults(0xFFFFFF);
    useDefaultColours();
}

CollisionSetup& CollisionSetup::global()
{
    static CollisionSetup setup;
    return setup;
}

void CollisionSetup::resetDefaults(int32_t) {}

void CollisionSetup::useDefaultColours() {}
