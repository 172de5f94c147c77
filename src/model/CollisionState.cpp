#include "CollisionState.h"

#include "core/Geometry.h"
#include "core/Numeric.h"

#include <algorithm>
#include <cmath>

namespace {

bool hasContactLaw(int16_t model)
{
    return model == CollisionSetup::ContinuousVelocity || model == CollisionSetup::ContinuousForce;
}

double along(int16_t component, float angle)
{
    return component == CollisionState::ComponentX ? std::cos(double(angle)) : std::sin(double(angle));
}

} // namespace

void RotateComponents(float angle, float a, float b, float& a2, float& b2)
{
    const double c = std::cos(double(angle));
    const double s = std::sin(double(angle));
    a2 = static_cast<float>(a * c + b * s);
    b2 = static_cast<float>(-a * s + b * c);
}

CollisionState::CollisionState(const CollisionSetup& setup) : m_setup(&setup) {}

bool CollisionState::oblique(int16_t page) const
{
    return page == 1 && m_setup->CollisionDirection == CollisionSetup::Direction::Oblique;
}

int16_t CollisionState::ComputeCollision(int16_t page)
{
    const CollisionSetup& setup = *m_setup;
    const float rsum = setup.Radius[1] + setup.Radius[2];
    const float dx = setup.X[2] - setup.X[1];
    const float dux = setup.Ux[2] - setup.Ux[1];
    // The side view is one-dimensional: only the view from above moves in y.
    const float dy = page == 1 ? setup.Y[2] - setup.Y[1] : 0.0f;
    const float duy = page == 1 ? setup.Uy[2] - setup.Uy[1] : 0.0f;

    const double speed2 = double(dux) * dux + double(duy) * duy;
    const double cross = double(duy) * dx - double(dux) * dy;
    const float discriminant = static_cast<float>(4.0 * rsum * rsum * speed2 - 4.0 * cross * cross);
    if (discriminant < 0)
        return CodeNoCollision;
    if (speed2 == 0) {
        // Without relative motion there is no moment of contact to compute: only the
        // tests that do not need one make the code.
        const int16_t code = checkCode(page, dx, dy, dux, duy, false);
        return code == CodeReady ? CodeNoCollision : code;
    }

    // The earlier root of |d + du t| = Rsum.
    ContactStart = static_cast<float>((-2.0 * (double(dx) * dux + double(dy) * duy)
                                       - std::sqrt(double(discriminant)))
                                      / (2.0 * speed2));
    TimeStep = static_cast<float>(2.0 * ContactStart / 100.0);
    if (oblique(page)) {
        // The discs push along the line between their centres as they touch.
        LineAngle = DirectionAngle(static_cast<float>(dx + double(dux) * ContactStart),
                                   static_cast<float>(dy + double(duy) * ContactStart));
    } else {
        LineAngle = DirectionAngle(dx, dy);
    }
    m_page = page;
    computeExchange();
    computeContactForces();
    computeExtremes();
    computeContactLaws();
    return checkCode(page, dx, dy, dux, duy, true);
}

void CollisionState::computeExchange()
{
    const CollisionSetup& setup = *m_setup;
    for (int16_t i = 1; i <= 2; ++i)
        RotateComponents(LineAngle, setup.Ux[i], setup.Uy[i], NormalU[i], TangentU[i]);

    // Elastic exchange along the line of centres, the masses as whole numbers.
    const int16_t m1 = setup.Mass[1];
    const int16_t m2 = setup.Mass[2];
    const int16_t m = Numeric::add16(m1, m2);
    if (setup.CollisionElasticity == CollisionSetup::Elasticity::Plastic) {
        // Both leave the contact with the velocity of their centre of mass along the
        // line; two bodies without mass count as equal ones.
        const double common = m == 0 ? (double(NormalU[1]) + NormalU[2]) / 2
                                     : (double(m1) * NormalU[1] + double(m2) * NormalU[2]) / m;
        NormalV[1] = NormalV[2] = static_cast<float>(common);
    } else if (m == 0) {
        // Two bodies without mass behave as two equal ones: they swap velocities.
        NormalV[1] = NormalU[2];
        NormalV[2] = NormalU[1];
    } else {
        NormalV[1] = static_cast<float>(
            (double(Numeric::mul16(2, m2)) * NormalU[2] + double(Numeric::sub16(m1, m2)) * NormalU[1]) / m);
        NormalV[2] = static_cast<float>(
            (double(Numeric::sub16(m2, m1)) * NormalU[2] + double(Numeric::mul16(2, m1)) * NormalU[1]) / m);
    }
    for (int16_t i = 1; i <= 2; ++i) {
        TangentV[i] = TangentU[i];
        RotateComponents(-LineAngle, NormalV[i], TangentV[i], FinalVx[i], FinalVy[i]);
    }
}

void CollisionState::computeContactForces()
{
    const CollisionSetup& setup = *m_setup;
    const double halfContact = 12.0 * TimeStep / 2.0;
    ContactMiddle = static_cast<float>(ContactStart + halfContact);
    ContactEnd = static_cast<float>(ContactMiddle + halfContact);

    const float duration = ContactEnd - ContactStart;
    for (int16_t i = 1; i <= 2; ++i) {
        const double dV = double(NormalV[i]) - NormalU[i];
        double peak = 0;
        if (duration != 0 && setup.ForceModel == CollisionSetup::ContinuousForce)
            peak = 2.0 * setup.Mass[i] * dV / duration;
        else if (duration != 0 && setup.ForceModel == CollisionSetup::ContinuousVelocity)
            peak = setup.Mass[i] * dV / duration;
        m_force[i] = static_cast<float>(peak);
    }
}

void CollisionState::computeExtremes()
{
    const CollisionSetup& setup = *m_setup;
    MaxVelocity = setup.Ux[1];
    for (const float v : {setup.Ux[2], setup.Uy[1], setup.Uy[2], FinalVx[1], FinalVx[2], FinalVy[1],
                          FinalVy[2]})
        MaxVelocity = LargerOf(MaxVelocity, v);
    MaxForce = hasContactLaw(setup.ForceModel) ? LargerOf(m_force[1], m_force[2]) : SpikeForce;
    // A speed never exceeds the larger of its values before and after the contact,
    // whose laws move each velocity straight or monotonically between them.
    MaxMomentum = 0;
    for (int16_t i = 1; i <= 2; ++i) {
        const bool inY = m_page == 1;
        const double before = std::hypot(double(setup.Ux[i]), inY ? double(setup.Uy[i]) : 0.0);
        const double after = std::hypot(double(FinalVx[i]), inY ? double(FinalVy[i]) : 0.0);
        MaxMomentum = LargerOf(MaxMomentum, static_cast<float>(setup.Mass[i] * std::max(before, after)));
    }
    for (int16_t i = 1; i <= 2; ++i) {
        EndX[i] = static_cast<float>(setup.X[i] + (double(FinalVx[i]) + setup.Ux[i]) * ContactStart);
        EndY[i] = static_cast<float>(setup.Y[i] + (double(FinalVy[i]) + setup.Uy[i]) * ContactStart);
    }
}

void CollisionState::computeContactLaws()
{
    const int16_t model = m_setup->ForceModel;
    const double duration = ContactEnd - ContactStart;
    for (int16_t i = 1; i <= 2; ++i) {
        const double un = NormalU[i];
        const double dV = double(NormalV[i]) - un;
        const double force = m_force[i];
        CollisionContactLaw first;
        CollisionContactLaw second;
        first.origin = ContactStart;
        first.v0 = un;
        if (duration != 0 && model == CollisionSetup::ContinuousVelocity) {
            first.s2 = dV / (2 * duration);
            first.v1 = dV / duration;
            first.f0 = force;
            second = first;
        } else if (duration != 0 && model == CollisionSetup::ContinuousForce) {
            // The rise and the fall of the triangle; F / (m T) is written 2 dV / T^2
            // so that a body of no mass still moves.
            const double curvature = 2 * dV / (duration * duration);
            first.s3 = curvature / 3;
            first.v2 = curvature;
            first.f1 = 2 * force / duration;
            second.origin = ContactEnd;
            second.v0 = NormalV[i];
            second.v2 = -curvature;
            second.s1 = dV;
            second.s3 = -curvature / 3;
            const double fall = double(ContactMiddle) - ContactEnd;
            second.s0 = first.displacement(ContactMiddle) - dV * fall + curvature / 3 * fall * fall * fall;
            second.f1 = -2 * force / duration;
        } else {
            second = first;
        }
        m_law[i][1] = first;
        m_law[i][2] = second;
    }
    // The motion after the contact continues from its end until a run says otherwise.
    for (int16_t i = 1; i <= 2; ++i)
        position(ComponentX, i, ContactEnd);
}

int16_t CollisionState::checkCode(int16_t page, float dx, float dy, float dux, float duy,
                                  bool contactKnown) const
{
    const CollisionSetup& setup = *m_setup;
    const float rsum = setup.Radius[1] + setup.Radius[2];
    int16_t code = CodeReady;
    if (contactKnown && ContactStart <= 0)
        code = CodeMovingApart;
    const float distance = static_cast<float>(std::sqrt(double(dx) * dx + double(dy) * dy));
    if (distance <= rsum)
        code = CodeOverlapping;
    // A true oblique approach needs only that the discs come within touching distance.
    if (oblique(page))
        return code;
    if (dux == 0 && setup.Ux[1] != 0)
        code = Numeric::add16(code, CodeEqualX);
    if (page == 1 && duy == 0 && setup.Uy[1] != 0)
        code = Numeric::add16(code, CodeEqualY);
    return code;
}

float CollisionState::BodyState(int16_t component, int16_t quantity, int16_t body, float t)
{
    if (component != ComponentX && component != ComponentY)
        return 0;
    switch (quantity) {
    case Position:
        return position(component, body, t);
    case Velocity:
        return velocity(component, body, t);
    case Force:
        return force(component, body, t);
    default:
        return 0;
    }
}

const CollisionContactLaw& CollisionState::lawAt(int16_t body, float t) const
{
    return m_law[body][t <= ContactMiddle ? 1 : 2];
}

float CollisionState::position(int16_t component, int16_t body, float t)
{
    const CollisionSetup& setup = *m_setup;
    const bool inX = component == ComponentX;
    const double r0 = inX ? setup.X[body] : setup.Y[body];
    const double u = inX ? setup.Ux[body] : setup.Uy[body];
    const double V = inX ? FinalVx[body] : FinalVy[body];
    if (t <= ContactStart)
        return static_cast<float>(r0 + u * t);
    if (!hasContactLaw(setup.ForceModel))
        return static_cast<float>(r0 + u * ContactStart + V * (double(t) - ContactStart));
    if (t > ContactEnd) {
        const double last = inX ? ContactX[body] : ContactY[body];
        return static_cast<float>(last + V * (double(t) - ContactEnd));
    }
    const double s = lawAt(body, t).displacement(t);
    ContactX[body] = static_cast<float>(setup.X[body] + double(setup.Ux[body]) * t + along(ComponentX, LineAngle) * s);
    ContactY[body] = static_cast<float>(setup.Y[body] + double(setup.Uy[body]) * t + along(ComponentY, LineAngle) * s);
    return inX ? ContactX[body] : ContactY[body];
}

float CollisionState::velocity(int16_t component, int16_t body, float t) const
{
    const CollisionSetup& setup = *m_setup;
    const bool inX = component == ComponentX;
    const double u = inX ? setup.Ux[body] : setup.Uy[body];
    const double V = inX ? FinalVx[body] : FinalVy[body];
    if (t <= ContactStart)
        return static_cast<float>(u);
    if (!hasContactLaw(setup.ForceModel) || t > ContactEnd)
        return static_cast<float>(V);
    const double change = lawAt(body, t).velocity(t) - NormalU[body];
    return static_cast<float>(u + along(component, LineAngle) * change);
}

float CollisionState::force(int16_t component, int16_t body, float t) const
{
    if (!hasContactLaw(m_setup->ForceModel)) {
        // The instant exchange shows as a spike along x around the contact.
        if (component != ComponentX)
            return 0;
        const float offset = static_cast<float>(std::fabs(double(t) - ContactStart));
        if (offset >= SpikeHalfWidth)
            return 0;
        return static_cast<float>(Numeric::sign(double(NormalV[body]) - NormalU[body])) * SpikeForce;
    }
    if (t < ContactStart || t > ContactEnd)
        return 0;
    return static_cast<float>(along(component, LineAngle) * lawAt(body, t).force(t));
}

std::string CollisionState::CheckMessage(int16_t code)
{
    switch (code) {
    case CodeMovingApart:
        return QT_TRANSLATE_NOOP("CollisionState",
            "Initial positions and velocities lead to increasing distance of bodies.");
    case CodeOverlapping:
        return QT_TRANSLATE_NOOP("CollisionState", "Bodies are overlaping!");
    case CodeEqualX:
        return QT_TRANSLATE_NOOP("CollisionState", "x components of velocity are equal, thus leading to no collision.");
    case CodeEqualY:
        return QT_TRANSLATE_NOOP("CollisionState", "y components of velocity are equal, thus leading to no collision.");
    case CodeOverlapping + CodeEqualX:
        return QT_TRANSLATE_NOOP("CollisionState",
            "Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision.");
    case CodeOverlapping + CodeEqualY:
        return QT_TRANSLATE_NOOP("CollisionState",
            "Bodies are overlaping! Additionally, y components of velocity are equal, thus leading to no collision.");
    case CodeNoCollision:
        return QT_TRANSLATE_NOOP("CollisionState", "Initial condition do not lead to a collision.");
    default:
        return {};
    }
}

std::string CollisionState::CheckBoxText(int16_t code)
{
    const std::string message = CheckMessage(code);
    if (message.empty())
        return {};
    const std::string frame = CheckBoxFrame;
    const size_t at = frame.find("%1");
    return frame.substr(0, at) + message + frame.substr(at + 2);
}
