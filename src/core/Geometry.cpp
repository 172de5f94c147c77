#include "Geometry.h"

#include "Numeric.h"

#include <cmath>

float PointDistance(int32_t A, int32_t B, int32_t C, int32_t D)
{
    const double dx = Numeric::sub32(A, B);
    const double dy = Numeric::sub32(C, D);
    return static_cast<float>(std::sqrt(dx * dx + dy * dy));
}

float DirectionAngle(float X, float Y)
{
    if (X > 0)
        return static_cast<float>(std::atan(double(Y) / double(X)));
    if (X < 0)
        return static_cast<float>(std::atan(double(Y) / double(X)) + 3.14159);
    if (Y > 0)
        return static_cast<float>(3.14159 / 2);
    if (Y < 0)
        return static_cast<float>(9.42477 / 2);
    return 0.0f;
}

float LargerOf(float A, float B)
{
    return A > B ? A : B;
}

float SmallerOf(float A, float B)
{
    return A > B ? B : A;
}
