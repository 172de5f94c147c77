#pragma once

#include <cstdint>

class Canvas;

// One molecule: a disc of given radius and mass that moves in the user plane of a
// drawing surface, either freely (a gas molecule) or as a two-dimensional spring
// oscillator bound to a lattice site (a molecule of a solid or a liquid). It draws
// and erases itself on its Canvas in exclusive-or mode, so that erasing is drawing
// again. Many property writes have side effects (noted on each setter), so the
// order in which a creator writes them matters: Canvas before color, and KapaX /
// KapaY written after mass leave OmegaX / OmegaY as they were.
//
// Faults (overflow, division by zero, a missing Canvas) throw RunTimeError.
class Particle
{
public:
    // A molecule with every field 0, false or empty; reseeds the shared random
    // generator from the time of day, as every new molecule does.
    Particle();
    Particle(const Particle&) = delete;
    Particle& operator=(const Particle&) = delete;

    // The measured wall of the molecule's box: 0 left, 1 right, 2 top, other: none.
    int16_t Wall() const { return m_Wall; }
    void setWall(int16_t value) { m_Wall = value; }

    // The coordinate of the measured wall; stored rounded to a 16-bit integer,
    // halves to even.
    float WallCoord() const { return m_WallCoord; }
    void setWallCoord(float value);

    // The disc's centre. A write of a bound molecule (Xo / Yo not 0) gives it a
    // speed for its new displacement, in a random direction.
    float Xcoord() const { return m_Xcoord; }
    void setXcoord(float value);
    float Ycoord() const { return m_Ycoord; }
    void setYcoord(float value);

    // Draws the disc again in exclusive-or mode (so it vanishes) and, with
    // LeaveTrail, leaves a dot in the true colour at its centre. LineFlag must be
    // the one the disc was drawn with.
    void EraseYourself(bool LineFlag);
    // Draws the disc in DrawColor (exclusive-or mode) and, with LineFlag, the line
    // from its centre to its lattice site.
    void DrawYourself(bool LineFlag);

    // Advances the molecule by one time step: drags the lattice site by the
    // external force, moves, turns a bound molecule at its amplitude, rebounds
    // from the measured wall and brings a molecule that left through an open side
    // back in. ImpulseX / ImpulseY receive 2 x the velocity before a rebound from
    // the measured wall and are left as the caller set them otherwise.
    void Move(float dt, float Fx, float Fy, bool Perturbation, int16_t Temperature,
              int16_t EquilibriumTemperature, float& ImpulseX, float& ImpulseY);

    // Velocity; a write sets DirectionX / DirectionY to the sign of the value.
    float Vx() const { return m_Vx; }
    void setVx(float value);
    float Vy() const { return m_Vy; }
    void setVy(float value);

    // The colour as a whole RGB number; a write also computes DrawColor from the
    // Canvas's BackColor of this moment.
    int32_t color() const { return m_color; }
    void setColor(int32_t value);

    // The drawing surface (shared, not owned).
    void setCanvas(Canvas* value) { m_Canvas = value; }

    // The radius of the disc.
    int16_t radius() const { return m_radius; }
    void setRadius(int16_t value) { m_radius = value; }

    // The mass; a write recomputes OmegaX / OmegaY and the amplitudes and speeds
    // that follow from them (nothing when the mass is 0).
    float mass() const { return m_mass; }
    void setMass(float value);

    // One bit per partner molecule currently in contact (kept by the sample).
    double CollisionInProgress() const { return m_CollisionInProgress; }
    void setCollisionInProgress(double value) { m_CollisionInProgress = value; }

    // The current lattice site.
    float XCenter() const { return m_XCenter; }
    void setXCenter(float value) { m_XCenter = value; }
    float YCenter() const { return m_YCenter; }
    void setYCenter(float value) { m_YCenter = value; }

    // Oscillation amplitudes; a write recomputes Vxo / Vyo.
    float Xo() const { return m_Xo; }
    void setXo(float value);
    float Yo() const { return m_Yo; }
    void setYo(float value);

    // Spring constants binding the molecule to its site (0: free). A write gives a
    // new speed when the amplitude is not 0; OmegaX / OmegaY follow only at the
    // next write of mass.
    float KapaX() const { return m_KapaX; }
    void setKapaX(float value);
    float KapaY() const { return m_KapaY; }
    void setKapaY(float value);

    // Speeds of the oscillation when passing the site.
    float Vxo() const { return m_Vxo; }
    void setVxo(float value) { m_Vxo = value; }
    float Vyo() const { return m_Vyo; }
    void setVyo(float value) { m_Vyo = value; }

    // Vxo / Vyo from the amplitude and angular frequency, or the target speed for
    // a free molecule.
    void CalculateVxo();
    void CalculateVyo();

    // Target speeds; a write pulls a free molecule's speed one step towards it.
    float Vxmax() const { return m_Vxmax; }
    void setVxmax(float value);
    float Vymax() const { return m_Vymax; }
    void setVymax(float value);

    // The lattice site as laid out.
    float OriginalXCenter() const { return m_OriginalXCenter; }
    void setOriginalXCenter(float value) { m_OriginalXCenter = value; }
    float OriginalYCenter() const { return m_OriginalYCenter; }
    void setOriginalYCenter(float value) { m_OriginalYCenter = value; }

    // Threshold of the sample's exchange test.
    float FluxProbability() const { return m_FluxProbability; }
    void setFluxProbability(float value) { m_FluxProbability = value; }

    // Fill of the disc: 0 solid, 1 transparent.
    int16_t FillStyle() const { return m_FillStyle; }
    void setFillStyle(int16_t value) { m_FillStyle = value; }

    // Stiffness with which the lattice site is pulled back under an external force.
    float LatticeKapaX() const { return m_LatticeKapaX; }
    void setLatticeKapaX(float value) { m_LatticeKapaX = value; }
    float LatticeKapaY() const { return m_LatticeKapaY; }
    void setLatticeKapaY(float value) { m_LatticeKapaY = value; }

    // When true, erasing the disc leaves a dot in its colour at its centre.
    bool LeaveTrail() const { return m_LeaveTrail; }
    void setLeaveTrail(bool value) { m_LeaveTrail = value; }

    // Place in the sample's lattice, from 1; Row also scales the external y force.
    int16_t Row() const { return m_Row; }
    void setRow(int16_t value) { m_Row = value; }
    int16_t Column() const { return m_Column; }
    void setColumn(int16_t value) { m_Column = value; }

    // Stored and exchanged only.
    float dXCenter() const { return m_dXCenter; }
    void setdXCenter(float value) { m_dXCenter = value; }
    float dYCenter() const { return m_dYCenter; }
    void setdYCenter(float value) { m_dYCenter = value; }

    // Swaps the lattice and motion state with another molecule: spring and lattice
    // constants, amplitudes, target and oscillation speeds, radius, mass, sites,
    // velocity, FluxProbability, CollisionInProgress, row and column. Position,
    // colour, fill and trail stay with each molecule.
    void ExchangeWith(Particle& other);

    // Derived state, read for drawing and inspection.
    float OmegaX() const { return m_OmegaX; }
    float OmegaY() const { return m_OmegaY; }
    int16_t DirectionX() const { return m_DirectionX; }
    int16_t DirectionY() const { return m_DirectionY; }
    int32_t DrawColor() const { return m_DrawColor; }

private:
    Canvas& canvas() const;

    void CalculateOmegas();
    void CalculateXo();
    void CalculateYo();
    void CalculateVy();
    void CalculateVx();
    static float RandomFactor(bool Perturbation);
    void RegulateVy(bool Perturbation);
    void RegulateVx(bool Perturbation);
    static float RandomPerturbation(bool Perturbation);

    void MoveX(float dt, float Fx, bool Perturbation, float& ImpulseX);
    void MoveY(float dt, float Fy, bool Perturbation, int16_t Temperature,
               int16_t EquilibriumTemperature, float& ImpulseY);
    // The last phase of each axis's move: the measured wall turns the molecule back
    // and reports the impulse; an open side brings it back in.
    void MeetSidesX(bool Perturbation, float& ImpulseX);
    void MeetSidesY(bool Perturbation, int16_t Temperature, int16_t EquilibriumTemperature,
                    float& ImpulseY);
    void ReenterX(bool Perturbation, float yFrom, float yExtent);
    void ReboundX(bool Perturbation);
    void ReenterY(bool Perturbation, float xFrom, float xExtent);

    float m_LatticeKapaX = 0;
    float m_LatticeKapaY = 0;
    int16_t m_Column = 0;
    int16_t m_Row = 0;
    float m_KapaX = 0;
    float m_KapaY = 0;
    float m_OmegaX = 0;
    float m_OmegaY = 0;
    float m_Xo = 0;
    float m_Yo = 0;
    float m_Vxmax = 0;
    float m_Vymax = 0;
    float m_Vxo = 0;
    float m_Vyo = 0;
    int16_t m_DirectionX = 0;
    int16_t m_DirectionY = 0;
    int16_t m_radius = 0;
    float m_mass = 0;
    float m_OriginalXCenter = 0;
    float m_OriginalYCenter = 0;
    float m_XCenter = 0;
    float m_YCenter = 0;
    float m_dXCenter = 0;
    float m_dYCenter = 0;
    float m_Xcoord = 0;
    float m_Ycoord = 0;
    float m_Vx = 0;
    float m_Vy = 0;
    float m_FluxProbability = 0;
    Canvas* m_Canvas = nullptr;
    int32_t m_color = 0;
    int32_t m_DrawColor = 0;
    int16_t m_FillStyle = 0;
    bool m_LeaveTrail = false;
    double m_CollisionInProgress = 0;
    int16_t m_Wall = 0;
    int16_t m_WallCoord = 0;
};
