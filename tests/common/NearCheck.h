#pragma once

#include <QString>
#include <QtTest>

#include <cmath>

// Verifies that actual lies within tolerance of expected, naming both on failure.
#define QNEAR(actual, expected, tolerance)                                                        \
    QVERIFY2(std::fabs(double(actual) - double(expected)) <= (tolerance),                          \
             qPrintable(QString("%1 = %2, expected %3").arg(#actual).arg(double(actual)).arg(double(expected))))
