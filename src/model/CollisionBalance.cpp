#include "CollisionBalance.h"

#include "CollisionSetup.h"
#include "CollisionState.h"

namespace {

CollisionBalance::Figures figuresOf(double mass, double vx, double vy)
{
    return {mass * vx, mass * vy, 0.5 * mass * (vx * vx + vy * vy)};
}

CollisionBalance::Figures sum(const CollisionBalance::Figures& a, const CollisionBalance::Figures& b)
{
    return {a.Px + b.Px, a.Py + b.Py, a.Energy + b.Energy};
}

} // namespace

CollisionBalance::CollisionBalance(const CollisionSetup& setup, const CollisionState& state, int16_t page)
{
    // The side view leaves any y velocity out of the experiment.
    const bool inY = page == 1;
    for (int16_t i = 1; i <= 2; ++i) {
        const double m = setup.Mass[i];
        Before[i] = figuresOf(m, setup.Ux[i], inY ? setup.Uy[i] : 0.0f);
        After[i] = figuresOf(m, state.FinalVx[i], inY ? state.FinalVy[i] : 0.0f);
    }
    Before[System] = sum(Before[1], Before[2]);
    After[System] = sum(After[1], After[2]);
}

CollisionBalance::Figures CollisionBalance::Change(int index) const
{
    return {After[index].Px - Before[index].Px, After[index].Py - Before[index].Py,
            After[index].Energy - Before[index].Energy};
}

double CollisionBalance::PlasticLoss(const CollisionSetup& setup, const CollisionState& state)
{
    const double m1 = setup.Mass[1];
    const double m2 = setup.Mass[2];
    const double du = double(state.NormalU[1]) - state.NormalU[2];
    return m1 + m2 == 0 ? 0 : m1 * m2 * du * du / (2 * (m1 + m2));
}
