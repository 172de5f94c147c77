#pragma once

#include <QString>

#include <cstdint>

// The filter of every typed number. Flags: 0 accepts any text; 2 allows a leading
// minus sign; 8 allows one decimal point; any other bit only makes the flags
// non-zero. A valid text has no letter A-Z or a-z and a leading number whose
// magnitude is at most Max.
bool IsValidNumber(int16_t Flags, const QString& Text, int16_t Max);

// The number at the start of a text, blanks ignored, 0 when there is none: "3 4"
// reads 34, "1+" reads 1, "-2.5x" reads -2.5.
double LeadingNumber(const QString& text);
