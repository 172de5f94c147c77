#pragma once

#include "model/Particle.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

class Canvas;

// The molecules of a liquid page: rows x columns discs laid out in the vessel below
// the liquid's surface, rows one above the other and columns side by side, the
// columns of the left half (group 1) kept left of the partition and those of the
// right half (group 2) right of it until the partition is
// removed, when both groups may use the whole vessel. They move freely, rebound
// from the vessel's walls, its bottom and the surface, and collide elastically with
// each other. Plain C++: draws only through its Canvas; faults throw RunTimeError.
class LiquidMolecules
{
public:
    // The vessel's inner walls and bottom, in the picture's twips.
    static constexpr float VesselLeft = 1000;
    static constexpr float VesselRight = 3480;
    static constexpr float VesselMiddle = 2240;
    static constexpr float VesselBottom = 4425;
    // The window holds this many molecule slots.
    static constexpr int16_t MaxMolecules = 30;

    // What a page's molecules are made from.
    struct Layout
    {
        int16_t rows = 0;
        int16_t columns = 0;
        float liquidLevel = 0;     // y of the liquid's surface
        int16_t radius = 0;
        int32_t groupColor[2] = {}; // whole RGB numbers of group 1 and 2
    };

    // Replaces the molecules by a fresh grid; rows x columns above the number of
    // slots is a subscript fault. Molecule k = (row - 1) x columns + column; row 1
    // lies just below the surface, column 1 at the left wall. The left half takes
    // the first (columns + 1) / 2 columns, the right half the others, each spread
    // evenly across its own half.
    void Lay(Canvas& canvas, const Layout& layout);

    // Releases every molecule.
    void Clear();

    // Lets both groups use the whole width of the vessel.
    void RemovePartition();

    // Moves every molecule by one step, with rebounds and collisions.
    void Step();

    // Draws every molecule once in its own colour (on a freshly cleared picture).
    void Draw();

    // The number of molecules, and molecule k (1 to MoleculeCount).
    int16_t MoleculeCount() const { return int16_t(m_molecules.size()); }
    const Particle& Molecule(int16_t k) const;
    // The group (1 left, 2 right) molecule k belongs to.
    int16_t Group(int16_t k) const;

    // How many molecules of group 1 and 2 (first index 0 and 1) lie in the left and
    // right half of the vessel (second index 0 and 1), by their centres.
    std::array<std::array<int, 2>, 2> HalfCounts() const;

    // The horizontal bounds of group 1 and 2 (index 1 and 2).
    float GroupLeft(int16_t group) const { return m_GroupLeft.at(group); }
    float GroupRight(int16_t group) const { return m_GroupRight.at(group); }

private:
    void reboundFromWalls(Particle& molecule, int16_t group) const;
    void collide(Particle& a, Particle& b) const;

    Canvas* m_canvas = nullptr;
    std::vector<std::unique_ptr<Particle>> m_molecules;
    std::vector<int16_t> m_group;
    std::array<float, 3> m_GroupLeft{};
    std::array<float, 3> m_GroupRight{};
    float m_liquidLevel = 0;
    float m_radius = 0;
};
