#pragma once

#include "canvas/Rgb.h"

#include <array>
#include <cstdint>

// The settings of the liquid pages' molecules: how many rows and columns of them,
// the colour of each of their two groups, and whether page 6 draws the liquid's
// surface. The application holds the program's one set; the fluid options dialog
// edits it and the defaults routine restores it.
struct FluidParameters
{
    // The two liquid pages of the introduction's unit 2: the first draws the
    // liquid's surface, the second has no place for that switch.
    static constexpr int16_t FirstLiquidPage = 6;
    static constexpr int16_t SecondLiquidPage = 8;

    // Rows and columns of fluid molecules.
    int16_t FluidRows = 6;
    int16_t FluidColumns = 5;
    // Whole RGB colour numbers of group 1 and group 2, indexed 1 and 2 (0 unused).
    std::array<float, 3> FluidGroupColor{0, Rgb::RGB(255, 0, 0), Rgb::RGB(0, 0, 255)};
    // The colours "Default values" offers, indexed like FluidGroupColor.
    std::array<float, 3> DefaultFluidGroupColor = FluidGroupColor;
    // Whether page 6 draws the liquid's surface line.
    bool LiquidSurface3D = true;

    // Writes the defaults: 6 rows, 5 columns, red and blue groups, the
    // three-dimensional liquid surface on.
    void resetDefaults() { *this = FluidParameters(); }
};
