#include "CollisionSetup.h"

#include "canvas/Rgb.h"
#include "core/Numeric.h"

namespace {

constexpr int32_t White = Rgb::RGB(255, 255, 255);

} // namespace

CollisionSetup::CollisionSetup()
{
    makeDefaultColours(White);
    useDefaultColours();
}

void CollisionSetup::makeDefaultColours(int32_t background)
{
    DefaultBodyColor = {float(Rgb::RGB(80, 255, 80) ^ background),
                        float(Rgb::RGB(255, 255, 80) ^ background)};
    // The velocity arrows take body 2's colour with its blue turned over.
    DefaultVelocityColor = float(Numeric::toInt32(DefaultBodyColor[2]) ^ Rgb::RGB(0, 0, 255));
    DefaultForceColor = float(Rgb::RGB(255, 0, 0) ^ background);
    // A dark violet that no other default uses and that stands out on white.
    DefaultMomentumColor = float(Rgb::RGB(128, 0, 160) ^ background);
}

void CollisionSetup::resetDefaults(int32_t background)
{
    CollisionSetup defaults;
    defaults.BodyColor = BodyColor;
    defaults.VelocityColor = VelocityColor;
    defaults.ForceColor = ForceColor;
    defaults.MomentumColor = MomentumColor;
    defaults.Page = Page;
    defaults.makeDefaultColours(background);
    *this = defaults;
}

void CollisionSetup::useDefaultColours()
{
    BodyColor = DefaultBodyColor;
    VelocityColor = DefaultVelocityColor;
    ForceColor = DefaultForceColor;
    MomentumColor = DefaultMomentumColor;
}
