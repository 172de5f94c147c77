#pragma once

#include "canvas/ImageCanvas.h"
#include "model/Gas.h"

#include <cstdint>

// A square lattice of size x size molecules with the microscopic view's settings
// on a picture of the view's scale (1905 x 1785 twips), the wall line one third in;
// laid out, not yet drawn.
inline void setUpLikeTheView(Gas& gas, ImageCanvas& canvas, int16_t wall, int16_t size)
{
    canvas.setDrawMode(Canvas::XorPen);
    gas.setCanvas(&canvas);
    gas.setWall(wall);
    gas.setEquilibriumTemperature(165);
    const float coords[] = {canvas.ScaleWidth() / 3, 2 * canvas.ScaleWidth() / 3, canvas.ScaleHeight() / 3};
    gas.setWallCoord(coords[wall]);
    gas.setMoleculesMass(10);
    gas.setRadius(70);
    gas.setTemperature(293);
    gas.setTimeStep(0.1f);
    gas.setColumnsOfMolecules(size);
    gas.setRowsOfMolecules(size);
    gas.InitialiseParticles();
}
