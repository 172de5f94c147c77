#pragma once

#include <cstdint>

// The numeric rules every computation of the program follows: integers of 16 and
// 32 bits whose overflow is an error, reals converted to integers by rounding to
// the nearest (halves to even), and a sign of -1, 0 or 1. Every fault throws
// RunTimeError.
namespace Numeric {

// Rounds to the nearest integer, halves to even; throws Overflow outside int16_t.
int16_t toInt16(double value);
// Rounds to the nearest integer, halves to even; throws Overflow outside int32_t.
int32_t toInt32(double value);
// Narrows a double to a float; throws Overflow when it is not finite or too large.
float toFloat(double value);

// 16-bit sums, differences and products that throw Overflow out of range.
int16_t add16(int32_t a, int32_t b);
int16_t sub16(int32_t a, int32_t b);
int16_t mul16(int32_t a, int32_t b);

// 32-bit sums, differences and products that throw Overflow out of range.
int32_t add32(int64_t a, int64_t b);
int32_t sub32(int64_t a, int64_t b);
int32_t mul32(int64_t a, int64_t b);

// a / b for reals; throws DivisionByZero when b is 0 and Overflow when the result is
// not a finite number.
double divide(double a, double b);

// The sign of a number: -1, 0 or 1.
int16_t sign(double value);

// Checks a real result (NaN or infinite means an invalid operation or an overflow).
double checked(double value);

} // namespace Numeric
