#pragma once

#include "model/CollisionArray.h"

#include <cstdint>

class Canvas;
class CollisionSetup;
class CollisionState;

// The collision experiment's picture: the mapping from the experiment's metres to
// the picture, the ground strip of the side view, the two bodies and their velocity
// and force arrows. Everything is drawn in exclusive-or mode, so drawing the bodies
// a second time at the same places erases them. Page 1 is the view from above;
// any other page is the side view, where the bodies rest on the ground.
class CollisionScene
{
public:
    // Length in picture units of the arrow of the largest velocity or force, and
    // of each barb.
    static constexpr float ArrowLength = 250.0f;
    static constexpr float BarbLength = 50.0f;
    // How far a momentum arrow runs beside the velocity arrow of its body.
    static constexpr float MomentumOffset = 45.0f;
    // A value this share of the scale or less is rounding, not motion or force.
    static constexpr float NegligibleShare = 1e-5f;

    // The ground of the side view from the picture's present scale and background:
    // a dark red strip along the bottom twentieth of the picture.
    void InitialiseGround(const Canvas& canvas);

    // The world-to-picture mapping that shows both bodies' whole paths from their
    // start to their ends at 2 t_c, and the bodies' places at the start.
    void ComputeViewport(const Canvas& canvas, const CollisionSetup& setup, const CollisionState& state, int16_t page);

    // One scale for both axes, the box xmin..xmax, ymin..ymax centred in the picture.
    void SameScaleViewport(const Canvas& canvas, float xmin, float xmax, float ymin, float ymax);

    // World x and y to picture coordinates.
    float ScreenX(float x) const;
    float ScreenY(float y) const;

    // Clears the picture, draws the ground on the side view, then the bodies.
    void DrawCollisionScene(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page);

    // Both bodies at their picture places with their arrows; a second call at the
    // same places and time erases them.
    void DrawBodies(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page);

    // One step of a run: erases the bodies, advances the experiment's clock by a time
    // step, places the bodies where the state has them then (the side view keeps
    // them on the ground) and draws them there.
    void MoveBodies(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page);

    // The speed and the force that get the longest arrow: the largest size of a
    // component drawn on the page (x, and y from above), before and after the
    // collision; 0 when nothing moves or pushes.
    static float VelocityScale(const CollisionSetup& setup, const CollisionState& state, int16_t page);
    static float ForceScale(const CollisionState& state);

    // The velocity and force arrows at the state's SimulationTime, as switched on,
    // each pointing the way its body moves or is pushed.
    void DrawVectors(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page);

    // The momentum arrows of both bodies (y components from above only), the largest
    // momentum magnitude of the run ArrowLength long.
    void DrawMomenta(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page);

    // The arrows of one quantity for both bodies: x components, and on page 1 the
    // y components; the longest possible arrow belongs to the value of scale.
    void DrawVectorPair(
        Canvas& canvas, int16_t page, float vx1, float vx2, float vy1, float vy2, float scale, float colour);

    // One arrow from a body's centre along x (component 1) or y (component 2),
    // ArrowLength x value / scale long. Nothing for a value or a scale of 0, nor for
    // a value that is a negligible share of the scale.
    void DrawArrow(
        Canvas& canvas, int16_t component, float cx, float cy, float radius, float scale, float value, float colour);

    float ScaleXFactor = 1; // picture x = factor x world x + offset
    float ScaleXOffset = 0;
    float ScaleYFactor = -1; // negative: the world's y grows upwards
    float ScaleYOffset = 0;
    CollisionArray<float, 2> BodyScreenX, BodyScreenY; // centres in picture coordinates
    CollisionArray<float, 2> BodyScreenRadius;         // radii in picture units along x
    float GroundColor = 0;
    float GroundLeft = 0;
    float GroundRight = 0;
    float GroundTop = 0;
    float GroundBottom = 0;
};
