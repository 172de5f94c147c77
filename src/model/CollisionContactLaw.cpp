#include "CollisionContactLaw.h"

double CollisionContactLaw::displacement(float) const { return 0; }
double CollisionContactLaw::velocity(float) const { return 0; }
double CollisionContactLaw::force(float) const { return 0; }
