#pragma once

// One phase of the contact of one body: the normal displacement s, the normal
// velocity v and the force f as polynomials in the time since an origin,
// tau = t - origin: s = s0 + s1 tau + s2 tau^2 + s3 tau^3, v = v0 + v1 tau + v2 tau^2,
// f = f0 + f1 tau. Computed once per collision, evaluated at every moment asked.
class CollisionContactLaw
{
public:
    // The law that is zero everywhere (the linear model has no contact law).
    CollisionContactLaw() = default;

    float origin = 0;
    double s0 = 0, s1 = 0, s2 = 0, s3 = 0;
    double v0 = 0, v1 = 0, v2 = 0;
    double f0 = 0, f1 = 0;

    // The normal displacement since the start of the contact at moment t.
    double displacement(float t) const;
    // The normal velocity at moment t.
    double velocity(float t) const;
    // The contact force along the line of centres at moment t.
    double force(float t) const;
};
