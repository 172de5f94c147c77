#include "CollisionContactLaw.h"

double CollisionContactLaw::displacement(float t) const
{
    const double tau = double(t) - origin;
    return s0 + tau * (s1 + tau * (s2 + tau * s3));
}

double CollisionContactLaw::velocity(float t) const
{
    const double tau = double(t) - origin;
    return v0 + tau * (v1 + tau * v2);
}

double CollisionContactLaw::force(float t) const
{
    const double tau = double(t) - origin;
    return f0 + tau * f1;
}
