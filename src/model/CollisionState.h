#pragma once

#include "CollisionArray.h"
#include "CollisionContactLaw.h"
#include "CollisionSetup.h"

#include <QtGlobal>

#include <cstdint>
#include <string>

// Turns the components (a, b) by an angle: a2 = a cos + b sin, b2 = -a sin + b cos.
// With the line of centres' angle it gives the components along and across that
// line; with minus the angle it turns them back into x and y.
void RotateComponents(float angle, float a, float b, float& a2, float& b2);

// The state of the collision experiment: the moment of contact, the velocities
// after it, the contact laws of the force model, and the experiment's own clock.
// ComputeCollision fills it from a CollisionSetup before a run; BodyState then gives
// either body's position, velocity or force at any moment. Draws nothing.
class CollisionState
{
public:
    // The check codes of ComputeCollision; codes add up (2 + 4 = 6 and so on).
    static constexpr int16_t CodeReady = 0;
    static constexpr int16_t CodeMovingApart = 1;
    static constexpr int16_t CodeOverlapping = 2;
    static constexpr int16_t CodeEqualX = 4;
    static constexpr int16_t CodeEqualY = 8;
    static constexpr int16_t CodeNoCollision = 16;

    // BodyState's components and quantities.
    static constexpr int16_t ComponentX = 1;
    static constexpr int16_t ComponentY = 2;
    static constexpr int16_t Position = 1;
    static constexpr int16_t Velocity = 2;
    static constexpr int16_t Force = 3;

    // The force of the linear model's spike, and its half-width in seconds.
    static constexpr float SpikeForce = 1000000000.0f;
    static constexpr float SpikeHalfWidth = 0.002f;

    // The title of the check's message box, and its text around the message of a
    // check code (%1). Both are marked for translation in the context
    // "CollisionState", where the window that shows them looks them up.
    static constexpr const char* CheckTitle = QT_TRANSLATE_NOOP("CollisionState", "Simulation Results");
    static constexpr const char* CheckBoxFrame = QT_TRANSLATE_NOOP("CollisionState",
        "Attention!\r%1 Please try again with different parameters by clicking on the button \"Options\".");

    // A state that reads the given parameters (the program's record by default),
    // which must outlive it.
    explicit CollisionState(const CollisionSetup& setup);

    // The parameters this state reads.
    const CollisionSetup& setup() const { return *m_setup; }

    // Computes the contact and everything after it from the parameters for an
    // introduction page (1 view from above in x and y, any other page the side view
    // along x) and returns the check code: 0 when a run may start. When the bodies
    // never meet (code 16, or no relative motion) the previous values stay.
    // The caller computes the picture's mapping afterwards, whatever the code.
    int16_t ComputeCollision(int16_t page);

    // Component 1 = x, 2 = y of quantity 1 = position, 2 = velocity, 3 = force of
    // body 1 or 2 at moment t; 0 for any other component or quantity. A position
    // inside the contact is remembered in ContactX / ContactY, from which the motion
    // after the contact continues.
    float BodyState(int16_t component, int16_t quantity, int16_t body, float t);

    // The contact force F_i of a body: the peak of the triangle in the model
    // "u=f(t), F=f(t)", the constant force in "u=f(t)", 0 in the linear model.
    float ContactForce(int16_t body) const { return m_force[body]; }

    // The message of a check code, or empty for a code that shows none; marked for
    // translation in the context "CollisionState".
    static std::string CheckMessage(int16_t code);
    // The whole text of the check's message box ("Attention!", a carriage return,
    // the message and the closing sentence), or empty for a silent code.
    static std::string CheckBoxText(int16_t code);

    float LineAngle = 0;      // direction of the line of centres, radians
    float ContactStart = 0;   // t_c
    float ContactMiddle = 0;  // t_m = t_c + 6 dt
    float ContactEnd = 0;     // t_e = t_m + 6 dt
    float TimeStep = 0;       // dt = 2 t_c / 100
    float SimulationTime = 0; // the experiment's clock, moved by the run
    CollisionArray<float, 2> NormalU, TangentU;   // initial velocity along / across the line
    CollisionArray<float, 2> NormalV, TangentV;   // the same after the collision
    CollisionArray<float, 2> FinalVx, FinalVy;    // velocity after the collision
    CollisionArray<float, 2> EndX, EndY;          // centres at 2 t_c with an instant exchange
    float MaxVelocity = 0;    // largest velocity component, signed
    float MaxForce = 0;       // largest contact force, signed (the spike in the linear model)
    CollisionArray<float, 2> ContactX, ContactY;  // last position computed inside the contact
    float MaxMomentum = 0;    // largest momentum magnitude of the run on the page's axes

private:
    // The phases of ComputeCollision once the moment of contact is known: the
    // velocities after the exchange, the end of the contact and its forces, the
    // largest velocity and force and the instant-exchange end positions, and the
    // contact laws.
    void computeExchange();
    void computeContactForces();
    void computeExtremes();
    void computeContactLaws();
    // True when the page takes the line of centres at the moment of contact.
    bool oblique(int16_t page) const;
    int16_t checkCode(int16_t page, float dx, float dy, float dux, float duy, bool contactKnown) const;
    float position(int16_t component, int16_t body, float t);
    float velocity(int16_t component, int16_t body, float t) const;
    float force(int16_t component, int16_t body, float t) const;
    const CollisionContactLaw& lawAt(int16_t body, float t) const;

    const CollisionSetup* m_setup;
    int16_t m_page = 1;
    CollisionArray<float, 2> m_force;
    // By body, then by contact phase.
    CollisionArray<CollisionArray<CollisionContactLaw, 2>, 2> m_law;
};
