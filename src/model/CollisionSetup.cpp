#include "CollisionSetup.h"

#include "canvas/Rgb.h"
#include "core/Numeric.h"

namespace {

constexpr int32_t White = Rgb::RGB(255, 255, 255);

} // namespace

CollisionSetup::CollisionSetup()
{
    resetDefaults(White);
    useDefaultColours();
    Page = 1;
}

void CollisionSetup::resetDefaults(int32_t background)
{
    DefaultBodyColor = {float(Rgb::RGB(80, 255, 80) ^ background),
                        float(Rgb::RGB(255, 255, 80) ^ background)};
    // The velocity arrows take body 2's colour with its blue turned over.
    DefaultVelocityColor = float(Numeric::toInt32(DefaultBodyColor[2]) ^ Rgb::RGB(0, 0, 255));
    DefaultForceColor = float(Rgb::RGB(255, 0, 0) ^ background);
    // A dark violet that no other default uses and that stands out on white.
    DefaultMomentumColor = float(Rgb::RGB(128, 0, 160) ^ background);

    Mass = {10, 15};
    Radius = {10, 10};
    X = {0, 100};
    Y = {0, 0};
    Ux = {100, 50};
    Uy = {0, 0};

    ShowVelocities = 1;
    ShowForces = 1;
    GraphDistance = 1;
    GraphVelocity = 1;
    GraphForce = 1;
    ForceModel = LinearModel;
    ProportionalGraphs = 0;
    ShowMomenta = 0;
    CollisionDirection = Direction::Central;
    CollisionElasticity = Elasticity::Elastic;
}

void CollisionSetup::useDefaultColours()
{
    BodyColor = DefaultBodyColor;
    VelocityColor = DefaultVelocityColor;
    ForceColor = DefaultForceColor;
    MomentumColor = DefaultMomentumColor;
}
