#pragma once

#include <cstdint>

// Small geometry routines shared by the gas samples, the collision experiment and
// the liquid pages.

// The distance between (A, C) and (B, D): the callers pass (x1, x2, y1, y2).
// The differences are 32-bit integers (overflow is an error), the rest double.
float PointDistance(int32_t A, int32_t B, int32_t C, int32_t D);

// The direction of the vector (X, Y) in radians, between -pi/2 and 3pi/2, with pi
// taken as 3.14159 as the program always has.
float DirectionAngle(float X, float Y);

// A if A > B, otherwise B (so the second argument on a tie).
float LargerOf(float A, float B);

// B if A > B, otherwise A (so the first argument on a tie).
float SmallerOf(float A, float B);
