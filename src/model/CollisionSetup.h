#pragma once

#include "CollisionArray.h"

#include <cstdint>

// The parameters of the two-body collision experiment. The application holds the
// program's one record and hands it to the windows that use it: the parameters dialog writes it on "Ok", the defaults routine
// restores it, and the experiment reads it before and during a run. Arrays are
// indexed by body, 1 and 2. Colours are whole RGB numbers kept in floats, already
// combined by exclusive-or with the background of the picture they are drawn on.
class CollisionSetup
{
public:
    // Where the line of centres is taken: between the starting centres
    // ("Central"), or between the centres at the moment the discs touch
    // ("Πλάγια", oblique; the view from above only).
    enum class Direction : int16_t { Central = 0, Oblique = 1 };
    // What the contact does along the line of centres: exchange the motion
    // keeping the kinetic energy ("Elastic"), or leave both bodies with their
    // common velocity ("Plastic").
    enum class Elasticity : int16_t { Elastic = 0, Plastic = 1 };

    // The force models of the contact.
    static constexpr int16_t LinearModel = 0;        // "Linear Model": an instant exchange
    static constexpr int16_t ContinuousVelocity = 1; // "u=f(t), continuous": constant force
    static constexpr int16_t ContinuousForce = 2;    // "u=f(t), F=f(t), continuous": triangular force

    // The introduction pages the experiment is shown on, as Page holds them.
    static constexpr int16_t AboveView = 1; // collision forms, seen from above
    static constexpr int16_t SideView = 2;  // the experiment from the side, with graphs

    // A record holding the defaults against a white background, current colours
    // included, so that a fresh record describes a valid experiment. The defaults
    // are written here once, as the fields' initial values.
    CollisionSetup();

    // Writes every default parameter, those of a fresh record: masses, radii,
    // positions, velocities, switches, force model, and the default colours made
    // against the given background. The current colours and the page are left as
    // they are.
    void resetDefaults(int32_t background);

    // Makes the current colours the default ones.
    void useDefaultColours();

    CollisionArray<int16_t, 2> Mass{10, 15}; // kg
    CollisionArray<float, 2> Radius{10, 10}; // m
    CollisionArray<float, 2> X{0, 100};      // initial centre, m
    CollisionArray<float, 2> Y{0, 0};
    CollisionArray<float, 2> Ux{100, 50};    // initial velocity, m/sec
    CollisionArray<float, 2> Uy{0, 0};

    CollisionArray<float, 2> BodyColor;
    float VelocityColor = 0;
    float ForceColor = 0;
    CollisionArray<float, 2> DefaultBodyColor;
    float DefaultVelocityColor = 0;
    float DefaultForceColor = 0;
    float MomentumColor = 0;          // colour of momentum vectors
    float DefaultMomentumColor = 0;

    int16_t ShowVelocities = 1;
    int16_t ShowForces = 1;
    int16_t GraphDistance = 1;
    int16_t GraphVelocity = 1;
    int16_t GraphForce = 1;
    int16_t ProportionalGraphs = 0;
    int16_t ForceModel = LinearModel;
    int16_t ShowMomenta = 0;          // draw momentum vectors
    Direction CollisionDirection = Direction::Central;
    Elasticity CollisionElasticity = Elasticity::Elastic;
    // The introduction page (AboveView or SideView) handed to the dialog.
    int16_t Page = AboveView;

private:
    // Makes the default colours against a background.
    void makeDefaultColours(int32_t background);
};
