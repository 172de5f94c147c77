#include "Gas.h"

#include "MoleculeContact.h"

#include "canvas/Canvas.h"
#include "canvas/Rgb.h"
#include "core/Geometry.h"
#include "core/Numeric.h"
#include "core/RunTimeError.h"
#include "core/SharedRandom.h"

#include <cmath>

namespace {

using MoleculeContact::RoundCentre;

constexpr int32_t DefaultColor = Rgb::RGB(255, 0, 0);
constexpr int32_t ObservedColor = Rgb::RGB(0, 0, 255);

// 2 to the power j - 1: the bit that stands for partner j.
double partnerBit(int16_t j)
{
    return j <= 62 ? double(int64_t{1} << (j - 1)) : std::ldexp(1.0, j - 1);
}

} // namespace

// The molecules go with the array; releasing them by index could raise the index
// error when rows or columns were written after the last layout, and a sample that
// is going away must not fail.
Gas::~Gas() = default;

Canvas& Gas::canvas() const
{
    if (m_Canvas == nullptr)
        throw RunTimeError::objectNotSet();
    return *m_Canvas;
}

Particle& Gas::missingMolecule(int16_t i) const
{
    if (i < 1 || i > m_NoOfMolecules || size_t(i) >= m_Molecule.size())
        throw RunTimeError::subscriptOutOfRange();
    throw RunTimeError::objectNotSet();
}

template <typename Action>
void Gas::ForEachMolecule(Action action)
{
    for (int16_t i = 1; i <= m_NoOfMolecules; ++i)
        action(Molecule(i));
}

void Gas::InitialiseParticles()
{
    if (m_NoOfMolecules == 0)
        return;
    if (m_NoOfMolecules < 0)
        throw RunTimeError::subscriptOutOfRange();
    m_Molecule.clear();
    m_Molecule.resize(size_t(m_NoOfMolecules) + 1);
    for (int16_t c = 1; c <= m_ColumnsOfMolecules; ++c) {
        for (int16_t r = 1; r <= m_RowsOfMolecules; ++r) {
            const int16_t k = Numeric::add16(Numeric::mul16(c - 1, m_RowsOfMolecules), r);
            CreateMolecule(c, r, k);
        }
    }
    ApplyDrawingStyle();
    if (m_ObserveSingleMolecule)
        HandleObservedMolecule();
}

// The writes run in this order because each has its side effects: the canvas
// before anything that reads the surface, mass while the springs are still 0 (so
// every new molecule starts free), the site before the position.
void Gas::CreateMolecule(int16_t c, int16_t r, int16_t k)
{
    if (k < 1 || k > m_NoOfMolecules)
        throw RunTimeError::subscriptOutOfRange();
    m_Molecule[k] = std::make_unique<Particle>();
    Particle& molecule = *m_Molecule[k];
    molecule.setCanvas(m_Canvas);
    molecule.setWall(m_Wall);
    molecule.setWallCoord(m_WallCoord);
    molecule.setColumn(c);
    molecule.setRow(r);
    molecule.setRadius(m_radius);

    molecule.setMass(m_MoleculesMass);
    molecule.setKapaX(m_MoleculesKapaX);
    molecule.setKapaY(m_MoleculesKapaY);
    molecule.setVxmax(m_MaxV);
    molecule.setVymax(m_MaxV);

    PlaceOnLattice(molecule, c, r);
    molecule.setXCenter(molecule.OriginalXCenter());
    molecule.setYCenter(molecule.OriginalYCenter());
    molecule.setXcoord(molecule.XCenter());
    molecule.setYcoord(molecule.YCenter());

    molecule.setVxo(m_MaxV);
    molecule.setVyo(m_MaxV);
    const int16_t sx = Numeric::sign(SharedRandom::next() - 0.5);
    molecule.setVx(Numeric::mul16(sx, m_MaxV));
    const int16_t sy = Numeric::sign(SharedRandom::next() - 0.5);
    molecule.setVy(Numeric::mul16(sy, m_MaxV));

    molecule.setFluxProbability(1);
    molecule.setLatticeKapaX(m_LatticeKapaX);
    molecule.setLatticeKapaY(m_LatticeKapaY);
    molecule.setLeaveTrail(m_LeaveTrail);
}

// Sites are spread evenly over the gas side of the wall, one more gap than sites.
void Gas::PlaceOnLattice(Particle& molecule, int16_t c, int16_t r)
{
    const Canvas& surface = canvas();
    const double SL = surface.ScaleLeft();
    const double SW = surface.ScaleWidth();
    const double SH = surface.ScaleHeight();
    const double WC = m_WallCoord;
    const double C = Numeric::add16(m_ColumnsOfMolecules, 1);
    const double R = Numeric::add16(m_RowsOfMolecules, 1);
    switch (m_Wall) {
    case SamplePainter::LeftWall:
        molecule.setOriginalXCenter(Numeric::toFloat(c * (SW - WC) / C + WC));
        molecule.setOriginalYCenter(Numeric::toFloat(r * SH / R));
        break;
    case SamplePainter::RightWall:
        molecule.setOriginalXCenter(Numeric::toFloat(c * (WC - SL) / C));
        molecule.setOriginalYCenter(Numeric::toFloat(r * SH / R));
        break;
    case SamplePainter::TopWall:
        molecule.setOriginalXCenter(Numeric::toFloat(c * SW / C));
        molecule.setOriginalYCenter(Numeric::toFloat(r * (SH - WC) / R + WC));
        break;
    default:
        break;
    }
}

void Gas::setMaxV(int16_t value)
{
    SetMaxV(value);
}

void Gas::setRowsOfMolecules(int16_t value)
{
    m_RowsOfMolecules = value;
    CountMolecules();
}

void Gas::setColumnsOfMolecules(int16_t value)
{
    m_ColumnsOfMolecules = value;
    CountMolecules();
}

void Gas::setRadius(int16_t value)
{
    m_radius = value;
    ForEachMolecule([&](Particle& molecule) {
        molecule.EraseYourself(m_DrawCenterLine);
        molecule.setRadius(value);
        molecule.DrawYourself(m_DrawCenterLine);
    });
}

void Gas::setLeaveTrail(bool value)
{
    m_LeaveTrail = value;
    for (int16_t i = 1; i <= m_NoOfMolecules; ++i) {
        if (!m_ObserveSingleMolecule || i == m_MoleculeObserved)
            Molecule(i).setLeaveTrail(value);
    }
    // Redrawing the whole sample is what clears the old trails.
    if (!value)
        DrawGas();
}

void Gas::setMoleculesMass(int16_t value)
{
    m_MoleculesMass = value;
    ForEachMolecule([&](Particle& molecule) { molecule.setMass(value); });
}

void Gas::setMoleculesKapaX(int16_t value)
{
    m_MoleculesKapaX = value;
    ForEachMolecule([&](Particle& molecule) { molecule.setKapaX(value); });
}

void Gas::setMoleculesKapaY(int16_t value)
{
    m_MoleculesKapaY = value;
    ForEachMolecule([&](Particle& molecule) { molecule.setKapaY(value); });
}

void Gas::DestroyMolecules()
{
    if (m_Molecule.empty())
        return;
    for (int16_t i = 1; i <= m_NoOfMolecules; ++i) {
        if (size_t(i) >= m_Molecule.size())
            throw RunTimeError::subscriptOutOfRange();
        m_Molecule[size_t(i)].reset();
    }
}

void Gas::setLatticeKapaX(int16_t value)
{
    m_LatticeKapaX = value;
    ForEachMolecule([&](Particle& molecule) { molecule.setLatticeKapaX(value); });
}

void Gas::setLatticeKapaY(int16_t value)
{
    m_LatticeKapaY = value;
    ForEachMolecule([&](Particle& molecule) { molecule.setLatticeKapaY(value); });
}

void Gas::setRandomDrawColor(bool value)
{
    m_RandomDrawColor = value;
    ApplyDrawingStyle();
}

void Gas::setFilledMolecules(bool value)
{
    m_FilledMolecules = value;
    ApplyDrawingStyle();
}

void Gas::setGridOn(bool value)
{
    m_GridOn = value;
    DrawGas();
}

void Gas::CountMolecules()
{
    m_NoOfMolecules = Numeric::mul16(m_ColumnsOfMolecules, m_RowsOfMolecules);
}

// Rendering ------------------------------------------------------------------

void Gas::DrawGas()
{
    Canvas& surface = canvas();
    surface.Cls();
    if (m_GridOn)
        DrawGrid();
    surface.setDrawWidth(2);
    SamplePainter(surface, m_Wall, m_WallCoord).DrawWall();
    surface.setDrawWidth(1);
    ForEachMolecule([&](Particle& molecule) { molecule.DrawYourself(m_DrawCenterLine); });
}

void Gas::DrawGrid()
{
    const SamplePainter painter(canvas(), m_Wall, m_WallCoord);
    painter.BeginGrid();
    ForEachMolecule([&](const Particle& molecule) { painter.DrawGridLines(molecule.XCenter(), molecule.YCenter()); });
    painter.EndGrid();
}

void Gas::ApplyDrawingStyle()
{
    ForEachMolecule([&](Particle& molecule) {
        if (m_RandomDrawColor) {
            const int red = int(std::floor(255 * SharedRandom::next()));
            const int green = int(std::floor(255 * SharedRandom::next()));
            const int blue = int(std::floor(255 * SharedRandom::next()));
            molecule.setColor(Rgb::RGB(red, green, blue));
        } else {
            molecule.setColor(DefaultColor);
        }
        molecule.setFillStyle(m_FilledMolecules ? Canvas::Solid : Canvas::Transparent);
        molecule.setLeaveTrail(m_LeaveTrail);
    });
}

void Gas::HandleObservedMolecule()
{
    m_SavedFilledMolecules = m_FilledMolecules;
    m_SavedRandomDrawColor = m_RandomDrawColor;
    m_SavedLeaveTrail = m_LeaveTrail;
    m_FilledMolecules = false;
    m_RandomDrawColor = false;
    m_LeaveTrail = false;
    ApplyDrawingStyle();
    m_MoleculeObserved = 1;
    Particle& observed = Molecule(1);
    observed.setFillStyle(Canvas::Solid);
    observed.setColor(ObservedColor);
    observed.setLeaveTrail(m_SavedLeaveTrail);
    DrawGas();
}

void Gas::setObserveSingleMolecule(bool value)
{
    m_ObserveSingleMolecule = value;
    if (value) {
        HandleObservedMolecule();
        return;
    }
    m_FilledMolecules = m_SavedFilledMolecules;
    m_RandomDrawColor = m_SavedRandomDrawColor;
    m_LeaveTrail = m_SavedLeaveTrail;
    ApplyDrawingStyle();
    DrawGas();
}

// Temperature and phase --------------------------------------------------------

void Gas::setTemperature(int16_t value)
{
    m_Temperature = value;
    m_TemperatureChange = value < m_PreviousTemperature ? 1 : 0;
    m_PreviousTemperature = value;
    SetMaxV(Numeric::add16(value, 1));
    CheckPhaseChange();
}

void Gas::SetMaxV(int16_t value)
{
    m_MaxV = value;
    ApplyMaxV();
}

void Gas::ApplyMaxV()
{
    ForEachMolecule([&](Particle& molecule) {
        molecule.setVxmax(m_MaxV);
        molecule.setVymax(m_MaxV);
    });
}

void Gas::CheckPhaseChange()
{
    if (m_TemperatureChange == 1)
        UpdatePhase();
}

// Cooling stiffens the springs that new molecules get, step by step up to the
// limit of a solid (50) or of a liquid (5).
void Gas::UpdatePhase()
{
    const float temperature = m_Temperature;
    int16_t limit = 0;
    if (temperature <= float(m_SolidLiquidTemperature) + 25.0f)
        limit = 50;
    else if (temperature <= float(m_LiquidGasTemperature) + 2.5f)
        limit = 5;
    if (limit != 0) {
        if (m_MoleculesKapaX < limit)
            m_MoleculesKapaX = Numeric::add16(m_MoleculesKapaX, 1);
        if (m_MoleculesKapaY < limit)
            m_MoleculesKapaY = Numeric::add16(m_MoleculesKapaY, 1);
    }

    float flux = 0;
    if (m_Temperature <= m_SolidLiquidTemperature)
        flux = 90;
    else if (m_Temperature <= m_LiquidGasTemperature)
        flux = 70;
    if (flux != 0)
        ForEachMolecule([&](Particle& molecule) { molecule.setFluxProbability(flux); });
}

// Time step --------------------------------------------------------------------

void Gas::ShowNextSnapshot(float& ImpulseLeft, float& ImpulseRight, float& ImpulseTop,
                           float& ImpulseBottom)
{
    const float forceX = m_ExternalForceX;
    const float forceY = m_ExternalForceY;
    for (int16_t i = 1; i <= m_NoOfMolecules; ++i) {
        Particle& molecule = Molecule(i);
        molecule.EraseYourself(m_DrawCenterLine);
        float px = 0;
        float py = 0;
        molecule.Move(m_TimeStep, forceX, forceY, m_Perturbation, m_Temperature,
                      m_EquilibriumTemperature, px, py);
        molecule.DrawYourself(m_DrawCenterLine);
        if (px <= 0)
            ImpulseLeft += px;
        else
            ImpulseRight += px;
        if (py <= 0)
            ImpulseTop += py;
        else
            ImpulseBottom += py;
        ExamineContacts(i);
    }
}

// Molecule i has moved; the molecules after it are still where the last step left
// them. A pair collides when a contact starts; its bit in the lower index's
// CollisionInProgress keeps the collision from being applied again until the pair
// is found apart.
void Gas::ExamineContacts(int16_t i)
{
    // Collisions and exchanges change velocities and properties, never positions,
    // so molecule i's rounded centre holds for the whole loop.
    if (i >= m_NoOfMolecules)
        return;
    Particle& a = Molecule(i);
    const int32_t xi = RoundCentre(a.Xcoord());
    const int32_t yi = RoundCentre(a.Ycoord());
    const int32_t reach = ContactReach();
    for (int16_t j = i + 1; j <= m_NoOfMolecules; ++j) {
        const double b = partnerBit(j);
        const double c = a.CollisionInProgress();
        const bool inContact = MoleculeContact::WithinReach(xi, yi, Molecule(j), reach);
        const bool present = (RoundCentre(b) & RoundCentre(c)) != 0;
        if (!inContact) {
            if (present)
                a.setCollisionInProgress(c - b);
        } else if (!present) {
            a.setCollisionInProgress(c + b);
            CollideMolecules(i, j);
            if (SharedRandom::next() > a.FluxProbability())
                ExchangeMolecules(i, j);
        }
    }
}

bool Gas::MoleculesInContact(int16_t i, int16_t j)
{
    const Particle& a = Molecule(i);
    const Particle& b = Molecule(j);
    return MoleculeContact::WithinReach(RoundCentre(a.Xcoord()), RoundCentre(a.Ycoord()), b, ContactReach());
}

// Twice the sample's radius, as a 16-bit product.
int32_t Gas::ContactReach() const
{
    return m_radius <= 16383 && m_radius >= -16384 ? 2 * m_radius : Numeric::mul16(2, m_radius);
}

// An elastic collision of two discs: the velocity components along the line of
// centres are exchanged as for a head-on collision, the ones across it are kept.
void Gas::CollideMolecules(int16_t i, int16_t j)
{
    Particle& a = Molecule(i);
    Particle& b = Molecule(j);
    const float mi = a.mass();
    const float mj = b.mass();
    const float S = mj + mi;
    const float theta = DirectionAngle(a.Xcoord() - b.Xcoord(), a.Ycoord() - b.Ycoord());
    float ai = 0, bi = 0, aj = 0, bj = 0;
    RotateVector(theta, a.Vx(), a.Vy(), ai, bi);
    RotateVector(theta, b.Vx(), b.Vy(), aj, bj);
    const float aiAfter = Numeric::toFloat(Numeric::divide((mi - mj) * ai + 2 * mj * aj, S));
    const float ajAfter = Numeric::toFloat(Numeric::divide((mj - mi) * aj + 2 * mi * ai, S));
    float vx = 0, vy = 0;
    RotateVector(-theta, aiAfter, bi, vx, vy);
    a.setVx(vx);
    a.setVy(vy);
    RotateVector(-theta, ajAfter, bj, vx, vy);
    b.setVx(vx);
    b.setVy(vy);
}

void Gas::RotateVector(float a, float x, float y, float& along, float& across)
{
    const double c = std::cos(double(a));
    const double s = std::sin(double(a));
    along = static_cast<float>(x * c + y * s);
    across = static_cast<float>(-x * s + y * c);
}

void Gas::ExchangeMolecules(int16_t i, int16_t j)
{
    Particle& a = Molecule(i);
    Particle& b = Molecule(j);
    a.EraseYourself(m_DrawCenterLine);
    b.EraseYourself(m_DrawCenterLine);
    a.ExchangeWith(b);
    a.DrawYourself(m_DrawCenterLine);
    b.DrawYourself(m_DrawCenterLine);
}
