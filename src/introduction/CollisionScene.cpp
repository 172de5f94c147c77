#include "CollisionScene.h"

#include "canvas/Canvas.h"
#include "canvas/Rgb.h"
#include "core/Geometry.h"
#include "core/Numeric.h"
#include "model/CollisionSetup.h"
#include "model/CollisionState.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int16_t AboveView = CollisionSetup::AboveView;
constexpr int16_t SideView = CollisionSetup::SideView;
constexpr int16_t ComponentX = CollisionState::ComponentX;
constexpr int16_t ComponentY = CollisionState::ComponentY;

int32_t colourOf(float stored)
{
    return Numeric::toInt32(stored);
}

} // namespace

void CollisionScene::InitialiseGround(const Canvas& canvas)
{
    GroundColor = float(Rgb::RGB(192, 0, 0) ^ canvas.BackColor());
    GroundLeft = canvas.ScaleLeft();
    GroundRight = canvas.ScaleLeft() + canvas.ScaleWidth();
    GroundTop = (canvas.ScaleTop() + canvas.ScaleHeight()) * 0.95f;
    GroundBottom = canvas.ScaleTop() + canvas.ScaleHeight();
}

void CollisionScene::ComputeViewport(
    const Canvas& canvas, const CollisionSetup& setup, const CollisionState& state, int16_t page)
{
    const auto& R = setup.Radius;
    // The whole paths, from the start to the ends at 2 t_c, fill the picture.
    const float xmin = SmallerOf(
        SmallerOf(setup.X[1] - R[1], setup.X[2] - R[2]), SmallerOf(state.EndX[1] - R[1], state.EndX[2] - R[2]));
    const float xmax = LargerOf(
        LargerOf(setup.X[1] + R[1], setup.X[2] + R[2]), LargerOf(state.EndX[1] + R[1], state.EndX[2] + R[2]));
    const float ymin = SmallerOf(
        SmallerOf(setup.Y[1] - R[1], setup.Y[2] - R[2]), SmallerOf(state.EndY[1] - R[1], state.EndY[2] - R[2]));
    const float ymax = LargerOf(
        LargerOf(setup.Y[1] + R[1], setup.Y[2] + R[2]), LargerOf(state.EndY[1] + R[1], state.EndY[2] + R[2]));

    if (page == AboveView && setup.CollisionDirection == CollisionSetup::Direction::Oblique) {
        SameScaleViewport(canvas, xmin, xmax, ymin, ymax);
    } else {
        ScaleXFactor = static_cast<float>(Numeric::divide(canvas.ScaleWidth(), double(xmax) - xmin));
        ScaleXOffset = canvas.ScaleLeft() - ScaleXFactor * xmin;
        ScaleYFactor = static_cast<float>(Numeric::divide(canvas.ScaleHeight(), double(ymin) - ymax));
        ScaleYOffset = canvas.ScaleTop() - ScaleYFactor * ymax;
    }

    for (int16_t i = 1; i <= 2; ++i) {
        BodyScreenX[i] = ScreenX(setup.X[i]);
        BodyScreenRadius[i] = ScreenX(setup.X[i] + R[i]) - BodyScreenX[i];
        // The side view's bodies rest on the ground.
        BodyScreenY[i] = page == SideView ? GroundTop - BodyScreenRadius[i] : ScreenY(setup.Y[i]);
    }
}

void CollisionScene::SameScaleViewport(const Canvas& canvas, float xmin, float xmax, float ymin, float ymax)
{
    // A metre is as long across as it is up, so that discs that touch are seen to
    // touch; the paths sit in the middle of the picture.
    const double width = double(xmax) - xmin;
    const double height = double(ymax) - ymin;
    const double factor
        = std::min(Numeric::divide(canvas.ScaleWidth(), width), Numeric::divide(canvas.ScaleHeight(), height));
    ScaleXFactor = static_cast<float>(factor);
    ScaleYFactor = static_cast<float>(-factor);
    ScaleXOffset = static_cast<float>(canvas.ScaleLeft() + (canvas.ScaleWidth() - factor * width) / 2 - factor * xmin);
    ScaleYOffset = static_cast<float>(canvas.ScaleTop() + (canvas.ScaleHeight() - factor * height) / 2 + factor * ymax);
}

float CollisionScene::ScreenX(float x) const
{
    return ScaleXFactor * x + ScaleXOffset;
}

float CollisionScene::ScreenY(float y) const
{
    return ScaleYFactor * y + ScaleYOffset;
}

void CollisionScene::DrawCollisionScene(
    Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page)
{
    canvas.Cls();
    if (page == SideView) {
        canvas.setFillColor(colourOf(GroundColor));
        canvas.Box(GroundLeft, GroundTop, GroundRight, GroundBottom);
    }
    DrawBodies(canvas, setup, state, page);
}

void CollisionScene::MoveBodies(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page)
{
    DrawBodies(canvas, setup, state, page);
    state.SimulationTime += state.TimeStep;
    for (int16_t body = 1; body <= 2; ++body) {
        const float x
            = state.BodyState(CollisionState::ComponentX, CollisionState::Position, body, state.SimulationTime);
        BodyScreenX[body] = ScreenX(x);
        // The side view keeps the bodies resting on the ground.
        if (page == CollisionSetup::AboveView) {
            const float y
                = state.BodyState(CollisionState::ComponentY, CollisionState::Position, body, state.SimulationTime);
            BodyScreenY[body] = ScreenY(y);
        }
    }
    DrawBodies(canvas, setup, state, page);
}

void CollisionScene::DrawBodies(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page)
{
    for (int16_t i = 1; i <= 2; ++i) {
        canvas.setFillColor(colourOf(setup.BodyColor[i]));
        canvas.Circle(BodyScreenX[i], BodyScreenY[i], BodyScreenRadius[i], canvas.ForeColor());
    }
    canvas.setFillColor(Rgb::RGB(0, 0, 0));
    DrawVectors(canvas, setup, state, page);
}

float CollisionScene::VelocityScale(const CollisionSetup& setup, const CollisionState& state, int16_t page)
{
    // The experiment's largest velocity is its largest signed component, which is 0
    // or negative when the bodies move left or down: arrows scaled by it vanish or
    // point against the motion and run off the picture. The arrows are scaled by the
    // largest speed along a drawn axis instead, so they point the way the bodies
    // move and the longest is ArrowLength.
    double scale = 0;
    for (int16_t i = 1; i <= 2; ++i) {
        scale = std::max({scale, std::fabs(double(setup.Ux[i])), std::fabs(double(state.FinalVx[i]))});
        if (page == AboveView)
            scale = std::max({scale, std::fabs(double(setup.Uy[i])), std::fabs(double(state.FinalVy[i]))});
    }
    return static_cast<float>(scale);
}

float CollisionScene::ForceScale(const CollisionState& state)
{
    // The largest contact force is signed too: scaled by its size, the arrows keep
    // their directions whichever body pushes harder.
    return std::max({std::fabs(state.MaxForce), std::fabs(state.ContactForce(1)), std::fabs(state.ContactForce(2))});
}

void CollisionScene::DrawVectors(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page)
{
    const float t = state.SimulationTime;
    const auto pair = [&](int16_t quantity, float scale, float colour, float xDirection) {
        DrawVectorPair(canvas, page, xDirection * state.BodyState(ComponentX, quantity, 1, t),
            xDirection * state.BodyState(ComponentX, quantity, 2, t), state.BodyState(ComponentY, quantity, 1, t),
            state.BodyState(ComponentY, quantity, 2, t), scale, colour);
    };
    if (setup.ShowVelocities == 1)
        pair(CollisionState::Velocity, VelocityScale(setup, state, page), setup.VelocityColor, 1);
    if (setup.ShowForces == 1) {
        // The linear model's spike has the sign of the change along the line of
        // centres, whichever way that line runs: with the second body on the left
        // both arrows would point into the other body. Drawn along x, the spike
        // takes the direction in which its body is pushed.
        const bool spike = setup.ForceModel == CollisionSetup::LinearModel;
        const float xDirection = spike && std::cos(double(state.LineAngle)) < 0 ? -1.0f : 1.0f;
        pair(CollisionState::Force, ForceScale(state), setup.ForceColor, xDirection);
    }
    if (setup.ShowMomenta == 1)
        DrawMomenta(canvas, setup, state, page);
}

void CollisionScene::DrawMomenta(Canvas& canvas, const CollisionSetup& setup, CollisionState& state, int16_t page)
{
    // A momentum points the way its velocity does: the arrows start a little off the
    // centre so that the two stay apart where they overlap.
    const float t = state.SimulationTime;
    for (int16_t body = 1; body <= 2; ++body) {
        const float m = setup.Mass[body];
        const float px = m * state.BodyState(CollisionState::ComponentX, CollisionState::Velocity, body, t);
        const float py = page == AboveView
            ? m * state.BodyState(CollisionState::ComponentY, CollisionState::Velocity, body, t)
            : 0.0f;
        DrawArrow(canvas, 1, BodyScreenX[body], BodyScreenY[body] + MomentumOffset, BodyScreenRadius[body],
            state.MaxMomentum, px, setup.MomentumColor);
        DrawArrow(canvas, 2, BodyScreenX[body] + MomentumOffset, BodyScreenY[body], BodyScreenRadius[body],
            state.MaxMomentum, py, setup.MomentumColor);
    }
}

void CollisionScene::DrawVectorPair(
    Canvas& canvas, int16_t page, float vx1, float vx2, float vy1, float vy2, float scale, float colour)
{
    // The side view shows only the motion along x.
    const float value[2][2] = {{vx1, vx2}, {page == AboveView ? vy1 : 0.0f, page == AboveView ? vy2 : 0.0f}};
    for (int16_t component = ComponentX; component <= ComponentY; ++component)
        for (int16_t body = 1; body <= 2; ++body)
            DrawArrow(canvas, component, BodyScreenX[body], BodyScreenY[body], BodyScreenRadius[body], scale,
                value[component - 1][body - 1], colour);
}

void CollisionScene::DrawArrow(
    Canvas& canvas, int16_t component, float cx, float cy, float, float scale, float value, float colour)
{
    // Without a scale there is no length to give the arrow: it is left out. So is a
    // value that is only the rounding left by turning a velocity or force along a
    // line of centres that runs along x: it would draw barbs without a shaft,
    // pointing across a motion that has no such component.
    if (value == 0 || !(scale > 0) || std::fabs(value) <= scale * NegligibleShare)
        return;
    const float length = static_cast<float>(double(ArrowLength) * value / scale);
    const float direction = Numeric::sign(value);
    const int32_t pen = colourOf(colour);
    if (component == ComponentX) {
        const float tipX = cx + length;
        canvas.Line(cx, cy, tipX, cy, pen);
        canvas.LineStep(tipX, cy, -BarbLength * direction, -BarbLength, pen);
        canvas.LineStep(tipX, cy, -BarbLength * direction, BarbLength, pen);
    } else {
        const float tipY = cy - length;
        canvas.Line(cx, cy, cx, tipY, pen);
        canvas.LineStep(cx, tipY, BarbLength, BarbLength * direction, pen);
        canvas.LineStep(cx, tipY, -BarbLength, BarbLength * direction, pen);
    }
}
