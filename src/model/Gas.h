#pragma once

#include "Particle.h"
#include "SamplePainter.h"

#include <cstdint>
#include <memory>
#include <vector>

class Canvas;

// One sample of molecules in a rectangular box on a drawing surface, with one
// solid wall whose impacts are measured: Wall 0 a vertical wall at x = WallCoord
// with the gas on its right, 1 a vertical wall with the gas on its left, 2 a
// horizontal wall at y = WallCoord with the gas below (the top wall). The other
// sides of the box are open.
//
// A caller writes Canvas, Wall, WallCoord and the other settings, then rows and
// columns, calls InitialiseParticles, then ShowNextSnapshot once per tick and
// DrawGas whenever the picture must be rebuilt. Many writes propagate to the
// molecules at once (noted on each setter). Faults throw RunTimeError.
class Gas
{
public:
    // An empty sample: no molecules, every setting 0 or false.
    Gas() = default;
    // Releases the molecules.
    ~Gas();
    Gas(const Gas&) = delete;
    Gas& operator=(const Gas&) = delete;

    // The drawing surface (shared, not owned).
    void setCanvas(Canvas* value) { m_Canvas = value; }

    // Highlights molecule 1 (blue, filled) and draws every other one red, hollow,
    // without trail; saves the drawing flags for when observation ends. Redraws.
    void HandleObservedMolecule();

    // Replaces the molecules by a fresh lattice of ColumnsOfMolecules x
    // RowsOfMolecules, numbered down each column; does nothing when there are no
    // molecules to make. Draws only when a molecule is observed.
    void InitialiseParticles();

    // The time step of one snapshot.
    float TimeStep() const { return m_TimeStep; }
    void setTimeStep(float value) { m_TimeStep = value; }

    // The number of molecules, kept equal to rows x columns.
    int16_t NoOfMolecules() const { return m_NoOfMolecules; }
    void setNoOfMolecules(int16_t value) { m_NoOfMolecules = value; }

    // The target speed of every molecule; a write passes it to every molecule.
    int16_t MaxV() const { return m_MaxV; }
    void setMaxV(int16_t value);

    // The index of the observed molecule.
    int16_t MoleculeObserved() const { return m_MoleculeObserved; }
    void setMoleculeObserved(int16_t value) { m_MoleculeObserved = value; }

    // Kept for the caller; the sample never reads it.
    bool MoleculesFrozen() const { return m_MoleculesFrozen; }
    void setMoleculesFrozen(bool value) { m_MoleculesFrozen = value; }

    // The phase transition temperatures.
    int16_t SolidLiquidTemperature() const { return m_SolidLiquidTemperature; }
    void setSolidLiquidTemperature(int16_t value) { m_SolidLiquidTemperature = value; }
    int16_t LiquidGasTemperature() const { return m_LiquidGasTemperature; }
    void setLiquidGasTemperature(int16_t value) { m_LiquidGasTemperature = value; }

    // The lattice size; a write recounts NoOfMolecules (16-bit product).
    int16_t RowsOfMolecules() const { return m_RowsOfMolecules; }
    void setRowsOfMolecules(int16_t value);
    int16_t ColumnsOfMolecules() const { return m_ColumnsOfMolecules; }
    void setColumnsOfMolecules(int16_t value);

    // The radius of every molecule (the contact distance is twice it); a write
    // erases and redraws every molecule with the new radius.
    int16_t radius() const { return m_radius; }
    void setRadius(int16_t value);

    // Molecules leave trails; a write reaches every molecule (only the observed
    // one while a molecule is observed); writing false redraws the sample.
    bool LeaveTrail() const { return m_LeaveTrail; }
    void setLeaveTrail(bool value);

    // Mass and spring constants; a write reaches every existing molecule.
    int16_t MoleculesMass() const { return m_MoleculesMass; }
    void setMoleculesMass(int16_t value);
    int16_t MoleculesKapaX() const { return m_MoleculesKapaX; }
    void setMoleculesKapaX(int16_t value);
    int16_t MoleculesKapaY() const { return m_MoleculesKapaY; }
    void setMoleculesKapaY(int16_t value);

    // Releases every molecule; the slots stay, empty.
    void DestroyMolecules();

    // Lattice stiffness; a write reaches every existing molecule.
    int16_t LatticeKapaX() const { return m_LatticeKapaX; }
    void setLatticeKapaX(int16_t value);
    int16_t LatticeKapaY() const { return m_LatticeKapaY; }
    void setLatticeKapaY(int16_t value);

    // The temperature of the last write and whether that write was a cooling one.
    int16_t PreviousTemperature() const { return m_PreviousTemperature; }
    void setPreviousTemperature(int16_t value) { m_PreviousTemperature = value; }
    int16_t TemperatureChange() const { return m_TemperatureChange; }
    void setTemperatureChange(int16_t value) { m_TemperatureChange = value; }

    // Drawing style; a write restyles every molecule (the caller then calls DrawGas).
    bool RandomDrawColor() const { return m_RandomDrawColor; }
    void setRandomDrawColor(bool value);
    bool FilledMolecules() const { return m_FilledMolecules; }
    void setFilledMolecules(bool value);

    // Highlights molecule 1 when true; false restores the saved style and redraws.
    bool ObserveSingleMolecule() const { return m_ObserveSingleMolecule; }
    void setObserveSingleMolecule(bool value);

    // Clears the surface and draws the grid (when on), the wall and every molecule.
    void DrawGas();
    // Draws a vertical and a horizontal black line through every lattice site.
    void DrawGrid();

    // Molecules are drawn with a line to their lattice sites (from the next drawing).
    bool DrawCenterLine() const { return m_DrawCenterLine; }
    void setDrawCenterLine(bool value) { m_DrawCenterLine = value; }

    // The lattice grid is drawn; a write redraws the sample.
    bool GridOn() const { return m_GridOn; }
    void setGridOn(bool value);

    // Advances every molecule by one time step, redrawing it, collides molecules
    // that come into contact (once per contact) and adds the impulses given to the
    // walls to the four sums: x impulses <= 0 to ImpulseLeft, > 0 to
    // ImpulseRight, y impulses <= 0 to ImpulseTop, > 0 to ImpulseBottom. The sums
    // are never cleared here.
    void ShowNextSnapshot(float& ImpulseLeft, float& ImpulseRight, float& ImpulseTop,
                          float& ImpulseBottom);

    // Random perturbation of the speeds.
    bool Perturbation() const { return m_Perturbation; }
    void setPerturbation(bool value) { m_Perturbation = value; }

    // External force on the lattice (y is scaled by each molecule's row).
    int16_t ExternalForceX() const { return m_ExternalForceX; }
    void setExternalForceX(int16_t value) { m_ExternalForceX = value; }
    int16_t ExternalForceY() const { return m_ExternalForceY; }
    void setExternalForceY(int16_t value) { m_ExternalForceY = value; }

    // The temperature; a write sets MaxV to one more than it (16-bit, so 32767
    // overflows), records whether it cooled the sample and, if so, updates the
    // phase settings.
    int16_t Temperature() const { return m_Temperature; }
    void setTemperature(int16_t value);

    // Kept for the caller; the sample never sets them.
    float ForceTop() const { return m_ForceTop; }
    void setForceTop(float value) { m_ForceTop = value; }
    float ForceBottom() const { return m_ForceBottom; }
    void setForceBottom(float value) { m_ForceBottom = value; }
    float ForceLeft() const { return m_ForceLeft; }
    void setForceLeft(float value) { m_ForceLeft = value; }
    float ForceRight() const { return m_ForceRight; }
    void setForceRight(float value) { m_ForceRight = value; }

    // The temperature at which the top wall reflects molecules unchanged.
    int16_t EquilibriumTemperature() const { return m_EquilibriumTemperature; }
    void setEquilibriumTemperature(int16_t value) { m_EquilibriumTemperature = value; }

    // The measured wall and its coordinate; they reach the molecules at the next
    // InitialiseParticles.
    int16_t Wall() const { return m_Wall; }
    void setWall(int16_t value) { m_Wall = value; }
    float WallCoord() const { return m_WallCoord; }
    void setWallCoord(float value) { m_WallCoord = value; }

    // Molecule i, 1 to NoOfMolecules; any other index throws SubscriptOutOfRange.
    Particle& Molecule(int16_t i)
    {
        if (i >= 1 && i <= m_NoOfMolecules && size_t(i) < m_Molecule.size() && m_Molecule[i])
            return *m_Molecule[i];
        return missingMolecule(i);
    }
    const Particle& Molecule(int16_t i) const { return const_cast<Gas*>(this)->Molecule(i); }

    // The style flags kept while a molecule is observed.
    bool SavedFilledMolecules() const { return m_SavedFilledMolecules; }
    bool SavedRandomDrawColor() const { return m_SavedRandomDrawColor; }
    bool SavedLeaveTrail() const { return m_SavedLeaveTrail; }

    // The grey of the solid side of the measured wall.
    static constexpr int32_t WallColor = SamplePainter::WallColor;

private:
    [[noreturn]] Particle& missingMolecule(int16_t i) const;
    // Calls action(Molecule(i)) for i = 1 to NoOfMolecules, in that order.
    template <typename Action>
    void ForEachMolecule(Action action);
    Canvas& canvas() const;
    void CreateMolecule(int16_t c, int16_t r, int16_t k);
    void PlaceOnLattice(Particle& molecule, int16_t c, int16_t r);

    void UpdatePhase();
    void CheckPhaseChange();
    void ApplyDrawingStyle();
    void CountMolecules();
    void ApplyMaxV();
    static void RotateVector(float a, float x, float y, float& along, float& across);
    void CollideMolecules(int16_t i, int16_t j);
    bool MoleculesInContact(int16_t i, int16_t j);
    int32_t ContactReach() const;
    void ExchangeMolecules(int16_t i, int16_t j);
    void SetMaxV(int16_t value);
    void ExamineContacts(int16_t i);

    bool m_SavedFilledMolecules = false;
    bool m_SavedRandomDrawColor = false;
    bool m_SavedLeaveTrail = false;
    // Index 0 is unused so that molecule i is m_Molecule[i]; an empty slot is a
    // released molecule.
    std::vector<std::unique_ptr<Particle>> m_Molecule;
    int16_t m_MaxV = 0;
    float m_TimeStep = 0;
    int16_t m_RowsOfMolecules = 0;
    int16_t m_NoOfMolecules = 0;
    int16_t m_ColumnsOfMolecules = 0;
    int16_t m_MoleculeObserved = 0;
    bool m_MoleculesFrozen = false;
    int16_t m_SolidLiquidTemperature = 0;
    int16_t m_LiquidGasTemperature = 0;
    Canvas* m_Canvas = nullptr;
    int16_t m_radius = 0;
    bool m_LeaveTrail = false;
    int16_t m_MoleculesMass = 0;
    int16_t m_MoleculesKapaX = 0;
    int16_t m_MoleculesKapaY = 0;
    int16_t m_LatticeKapaX = 0;
    int16_t m_LatticeKapaY = 0;
    int16_t m_Temperature = 0;
    int16_t m_EquilibriumTemperature = 0;
    int16_t m_PreviousTemperature = 0;
    int16_t m_TemperatureChange = 0;
    bool m_RandomDrawColor = false;
    bool m_FilledMolecules = false;
    bool m_ObserveSingleMolecule = false;
    bool m_DrawCenterLine = false;
    bool m_GridOn = false;
    bool m_Perturbation = false;
    int16_t m_ExternalForceX = 0;
    int16_t m_ExternalForceY = 0;
    float m_ForceTop = 0;
    float m_ForceBottom = 0;
    float m_ForceLeft = 0;
    float m_ForceRight = 0;
    int16_t m_Wall = 0;
    float m_WallCoord = 0;
};
