#include "LiquidMolecules.h"

#include "canvas/Canvas.h"
#include "core/RunTimeError.h"
#include "core/SharedRandom.h"

#include <cmath>

namespace {

// The largest speed of a molecule in either direction, twips per step.
constexpr float MaxSpeed = 30;
// The molecules measure no wall of their own.
constexpr int16_t NoWall = 3;

float randomSpeed()
{
    return (2 * SharedRandom::next() - 1) * MaxSpeed;
}

} // namespace

void LiquidMolecules::Lay(Canvas& canvas, const Layout& layout)
{
    Clear();
    m_canvas = &canvas;
    const int32_t count = int32_t(layout.rows) * layout.columns;
    if (count > MaxMolecules)
        throw RunTimeError::subscriptOutOfRange();
    m_liquidLevel = layout.liquidLevel;
    m_radius = layout.radius;
    m_GroupLeft = {0, VesselLeft, VesselMiddle};
    m_GroupRight = {0, VesselMiddle, VesselRight};
    const float depth = VesselBottom - layout.liquidLevel;
    // Rows lie one above the other and columns side by side, as the learner counts
    // them in the options. Each group starts in its own half of the vessel: the
    // columns are shared out between the halves (the left takes an odd one) and
    // spread evenly across each, so that no molecule stands on the partition.
    const int16_t leftColumns = int16_t((layout.columns + 1) / 2);
    const float halfWidth = VesselMiddle - VesselLeft;
    for (int16_t i = 1; i <= layout.rows; ++i) {
        for (int16_t j = 1; j <= layout.columns; ++j) {
            const int16_t group = j <= leftColumns ? 1 : 2;
            const int16_t place = group == 1 ? j : int16_t(j - leftColumns);
            const int16_t columnsInHalf = group == 1 ? leftColumns : int16_t(layout.columns - leftColumns);
            auto molecule = std::make_unique<Particle>();
            molecule->setCanvas(&canvas);
            molecule->setWall(NoWall);
            // Drawn in copy mode over the vessel picture, a molecule shows its
            // drawing colour, which is its colour combined with the background.
            molecule->setColor(layout.groupColor[group - 1] ^ canvas.BackColor());
            molecule->setRadius(layout.radius);
            molecule->setFillStyle(0);
            molecule->setXcoord(m_GroupLeft[group] + (place - 0.5f) * halfWidth / columnsInHalf);
            molecule->setYcoord(layout.liquidLevel + (i - 0.5f) * depth / layout.rows);
            m_molecules.push_back(std::move(molecule));
            m_group.push_back(group);
        }
    }
    // Every new molecule reseeds the random sequence from the clock, so the speeds
    // are drawn once all exist: molecules made within one second still differ.
    for (auto& molecule : m_molecules) {
        molecule->setVx(randomSpeed());
        molecule->setVy(randomSpeed());
    }
}

void LiquidMolecules::Clear()
{
    m_molecules.clear();
    m_group.clear();
}

void LiquidMolecules::RemovePartition()
{
    m_GroupLeft = {0, VesselLeft, VesselLeft};
    m_GroupRight = {0, VesselRight, VesselRight};
}

const Particle& LiquidMolecules::Molecule(int16_t k) const
{
    if (k < 1 || k > MoleculeCount())
        throw RunTimeError::subscriptOutOfRange();
    return *m_molecules[size_t(k - 1)];
}

std::array<std::array<int, 2>, 2> LiquidMolecules::HalfCounts() const
{
    std::array<std::array<int, 2>, 2> counts{};
    for (int16_t k = 1; k <= MoleculeCount(); ++k) {
        const int group = Group(k) == 2 ? 1 : 0;
        ++counts[size_t(group)][Molecule(k).Xcoord() < VesselMiddle ? 0 : 1];
    }
    return counts;
}

int16_t LiquidMolecules::Group(int16_t k) const
{
    if (k < 1 || k > MoleculeCount())
        throw RunTimeError::subscriptOutOfRange();
    return m_group[size_t(k - 1)];
}

void LiquidMolecules::Step()
{
    float impulseX = 0;
    float impulseY = 0;
    // No external force, no perturbation and no measured wall: Move is a straight
    // step, and the vessel's walls are handled here.
    for (auto& molecule : m_molecules)
        molecule->Move(1, 0, 0, false, 1, 1, impulseX, impulseY);
    // The partition keeps the groups apart, so molecules on either side of it never
    // meet while it stands.
    const bool partitioned = m_GroupLeft[1] != m_GroupLeft[2];
    for (size_t a = 0; a < m_molecules.size(); ++a)
        for (size_t b = a + 1; b < m_molecules.size(); ++b)
            if (!partitioned || m_group[a] == m_group[b])
                collide(*m_molecules[a], *m_molecules[b]);
    // The walls act last, so a collision cannot send a molecule on through one.
    for (size_t k = 0; k < m_molecules.size(); ++k)
        reboundFromWalls(*m_molecules[k], m_group[k]);
}

void LiquidMolecules::reboundFromWalls(Particle& molecule, int16_t group) const
{
    const float x = molecule.Xcoord();
    const float y = molecule.Ycoord();
    if ((x - m_radius < m_GroupLeft[group] && molecule.Vx() < 0)
        || (x + m_radius > m_GroupRight[group] && molecule.Vx() > 0))
        molecule.setVx(-molecule.Vx());
    if ((y - m_radius < m_liquidLevel && molecule.Vy() < 0) || (y + m_radius > VesselBottom && molecule.Vy() > 0))
        molecule.setVy(-molecule.Vy());
}

void LiquidMolecules::collide(Particle& a, Particle& b) const
{
    // Two molecules touch when their centres are at most two radii apart; equal
    // masses exchange the parts of their velocities along the line of centres, once,
    // while they approach each other.
    const double dx = double(b.Xcoord()) - a.Xcoord();
    const double dy = double(b.Ycoord()) - a.Ycoord();
    const double distanceSquared = dx * dx + dy * dy;
    const double reach = 2.0 * m_radius;
    if (distanceSquared > reach * reach || distanceSquared == 0)
        return;
    const double dvx = double(b.Vx()) - a.Vx();
    const double dvy = double(b.Vy()) - a.Vy();
    const double approach = dvx * dx + dvy * dy;
    if (approach >= 0)
        return;
    const double exchange = approach / distanceSquared;
    a.setVx(float(a.Vx() + exchange * dx));
    a.setVy(float(a.Vy() + exchange * dy));
    b.setVx(float(b.Vx() - exchange * dx));
    b.setVy(float(b.Vy() - exchange * dy));
}

void LiquidMolecules::Draw()
{
    if (!m_canvas)
        return;
    // The page is cleared for every frame, so the molecules need no exclusive-or
    // drawing, which would mix their colours with the picture under them.
    const int16_t mode = m_canvas->DrawMode();
    m_canvas->setDrawMode(Canvas::CopyPen);
    for (auto& molecule : m_molecules)
        molecule->DrawYourself(false);
    m_canvas->setDrawMode(mode);
}
