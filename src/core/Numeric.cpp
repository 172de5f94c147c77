#include "Numeric.h"

#include "RunTimeError.h"

#include <cmath>
#include <limits>

namespace Numeric {

namespace {

template <typename Int>
Int roundChecked(double value)
{
    if (std::isnan(value))
        throw RunTimeError::overflow();
    const double rounded = std::nearbyint(value);
    if (rounded < static_cast<double>(std::numeric_limits<Int>::min())
        || rounded > static_cast<double>(std::numeric_limits<Int>::max()))
        throw RunTimeError::overflow();
    return static_cast<Int>(rounded);
}

template <typename Int>
Int narrowChecked(int64_t value)
{
    if (value < std::numeric_limits<Int>::min() || value > std::numeric_limits<Int>::max())
        throw RunTimeError::overflow();
    return static_cast<Int>(value);
}

} // namespace

int16_t toInt16(double value)
{
    return roundChecked<int16_t>(value);
}

int32_t toInt32(double value)
{
    return roundChecked<int32_t>(value);
}

float toFloat(double value)
{
    if (!std::isfinite(value) || std::fabs(value) > std::numeric_limits<float>::max())
        throw RunTimeError::overflow();
    return static_cast<float>(value);
}

int16_t add16(int32_t a, int32_t b)
{
    return narrowChecked<int16_t>(int64_t(a) + b);
}

int16_t sub16(int32_t a, int32_t b)
{
    return narrowChecked<int16_t>(int64_t(a) - b);
}

int16_t mul16(int32_t a, int32_t b)
{
    return narrowChecked<int16_t>(int64_t(a) * b);
}

int32_t add32(int64_t a, int64_t b)
{
    return narrowChecked<int32_t>(a + b);
}

int32_t sub32(int64_t a, int64_t b)
{
    return narrowChecked<int32_t>(a - b);
}

int32_t mul32(int64_t a, int64_t b)
{
    return narrowChecked<int32_t>(a * b);
}

double divide(double a, double b)
{
    if (b == 0.0)
        throw RunTimeError::divisionByZero();
    return checked(a / b);
}

int16_t sign(double value)
{
    return static_cast<int16_t>((value > 0) - (value < 0));
}

double checked(double value)
{
    if (!std::isfinite(value))
        throw RunTimeError::overflow();
    return value;
}

} // namespace Numeric
