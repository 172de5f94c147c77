#include "CollisionPlacing.h"
#include "NearCheck.h"
#include "core/ScopedRandomSequence.h"
#include "core/SharedRandom.h"
#include "model/CollisionState.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int16_t AboveView = 1;
constexpr int16_t SideView = 2;

double kinetic(const CollisionSetup& s, const CollisionArray<float, 2>& vx, const CollisionArray<float, 2>& vy)
{
    return 0.5 * s.Mass[1] * (double(vx[1]) * vx[1] + double(vy[1]) * vy[1])
           + 0.5 * s.Mass[2] * (double(vx[2]) * vx[2] + double(vy[2]) * vy[2]);
}

} // namespace

class tst_collision : public QObject
{
    Q_OBJECT

private slots:
    void defaultsSpikeMirrorAndObliqueApproach()
    {
        CollisionSetup setup;
        CollisionState state(setup);
        setup.Uy = {30, -20}; // left over from the view from above: no part in the side view
        QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
        QCOMPARE(state.ContactStart, 1.6f);
        QCOMPARE(state.TimeStep, 0.032f);
        QNEAR(state.ContactMiddle, 1.792, 1e-6);
        QNEAR(state.ContactEnd, 1.984, 1e-6);
        QNEAR(state.FinalVx[1], 40, 1e-4);
        QNEAR(state.FinalVx[2], 90, 1e-4);
        QNEAR(state.EndX[2], 324, 1e-3);
        QCOMPARE(state.MaxVelocity, 100.0f);
        QCOMPARE(state.MaxForce, 1000000000.0f);
        QNEAR(state.BodyState(1, 1, 2, 3.2f), 324, 1e-3);
        // The linear model's force is a spike of 2 ms either side of t_c; the velocity
        // jumps just after t_c.
        const float tc = state.ContactStart;
        QCOMPARE(state.BodyState(1, 3, 1, tc), -1000000000.0f);
        const std::pair<float, float> spike[] = {{0, 1e9f}, {-0.0019f, 1e9f}, {0.0019f, 1e9f}, {-0.0021f, 0},
                                                 {0.0021f, 0}};
        for (const auto& [offset, force] : spike)
            QCOMPARE(state.BodyState(1, 3, 2, tc + offset), force);
        QCOMPARE(state.BodyState(2, 3, 2, tc), 0.0f);
        QCOMPARE(state.BodyState(1, 2, 1, tc), 100.0f);
        QNEAR(state.BodyState(1, 2, 1, tc + 1e-4f), 40, 1e-4);

        // The constant force is half the triangle's peak.
        for (const auto& [model, peak] : {std::pair{CollisionSetup::ContinuousVelocity, 1562.5},
                                          std::pair{CollisionSetup::ContinuousForce, 3125.0}}) {
            setup.ForceModel = model;
            state.ComputeCollision(SideView);
            QNEAR(state.ContactForce(1), -peak, 0.02);
            QNEAR(state.ContactForce(2), peak, 0.02);
            QNEAR(state.MaxForce, peak, 0.02);
        }

        // The mirror image: body 2 to the left, everything moving left, no y velocity gained.
        place(setup, {0, 0, -100, 0}, {-100, 0, -50, 0});
        QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
        QCOMPARE(state.LineAngle, 3.14159f);
        QNEAR(state.FinalVx[1], -40, 1e-3);
        QNEAR(state.FinalVx[2], -90, 1e-3);
        QNEAR(state.FinalVy[1], 0, 1e-3);
        QNEAR(state.FinalVy[2], 0, 1e-3);

        // From above: the centres start on the line (3, 4); body 1 moves along (1, 1) onto
        // body 2 at rest. The exchange happens along (3, 4) although the bodies meet elsewhere.
        place(setup, {0, 0, 10, 10}, {30, 40, 0, 0});
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeReady);
        QNEAR(state.NormalU[1], 14, 1e-4);
        QNEAR(state.TangentU[1], -2, 1e-4);
        QNEAR(state.FinalVx[1], -0.08, 1e-4);
        QNEAR(state.FinalVy[1], -3.44, 1e-4);
        QNEAR(state.FinalVx[2], 6.72, 1e-4);
        QNEAR(state.FinalVy[2], 8.96, 1e-4);
        QNEAR(std::hypot(30 - 10 * state.ContactStart, 40 - 10 * state.ContactStart), 20, 1e-3);
    }

    void randomCollisionsConserveMomentumAndEnergy()
    {
        ScopedRandomSequence sequence(7);
        CollisionSetup setup;
        CollisionState state(setup);
        for (int16_t page : {AboveView, SideView}) {
            int collisions = 0;
            for (int trial = 0; trial < 4000; ++trial) {
                for (int i = 1; i <= 2; ++i) {
                    setup.Mass[i] = static_cast<int16_t>(1 + std::floor(uniform(0, 999)));
                    setup.Radius[i] = uniform(1, 100);
                    place(setup, {uniform(-999, 999), uniform(-999, 999), uniform(-100, 100), uniform(-100, 100)},
                          {uniform(-999, 999), uniform(-999, 999), uniform(-100, 100), uniform(-100, 100)});
                }
                if (state.ComputeCollision(page) != CollisionState::CodeReady)
                    continue;
                ++collisions;
                const float tc = state.ContactStart;
                QVERIFY(0 < tc && tc < state.ContactMiddle && state.ContactMiddle < state.ContactEnd
                        && state.ContactEnd < 2 * tc);
                // In the side view y velocities pass unchanged, so they conserve too.
                const double m1 = setup.Mass[1], m2 = setup.Mass[2];
                QNEAR(m1 * state.FinalVx[1] + m2 * state.FinalVx[2], m1 * setup.Ux[1] + m2 * setup.Ux[2], 2e-3 * (m1 + m2));
                QNEAR(m1 * state.FinalVy[1] + m2 * state.FinalVy[2], m1 * setup.Uy[1] + m2 * setup.Uy[2], 2e-3 * (m1 + m2));
                QNEAR(kinetic(setup, state.FinalVx, state.FinalVy), kinetic(setup, setup.Ux, setup.Uy), 0.2 * (m1 + m2));
                // At t_c the centres are the sum of the radii apart.
                const double gapX = setup.X[2] - setup.X[1] + (double(setup.Ux[2]) - setup.Ux[1]) * tc;
                const double gapY = page == SideView ? 0 : setup.Y[2] - setup.Y[1] + (double(setup.Uy[2]) - setup.Uy[1]) * tc;
                QNEAR(std::hypot(gapX, gapY), setup.Radius[1] + setup.Radius[2], 2);
            }
            QVERIFY(collisions > 50);
        }
    }

    void contactLawsAreContinuous()
    {
        for (int16_t model : {CollisionSetup::ContinuousVelocity, CollisionSetup::ContinuousForce}) {
            for (int16_t page : {AboveView, SideView}) {
                CollisionSetup setup;
                setup.ForceModel = model;
                if (page == AboveView)
                    place(setup, {0, 0, 40, 30}, {60, 20, -20, 0});
                CollisionState state(setup);
                QCOMPARE(state.ComputeCollision(page), CollisionState::CodeReady);
                const float eps = 1e-4f * state.ContactStart;
                const double T = double(state.ContactEnd) - state.ContactStart;
                for (int16_t body = 1; body <= 2; ++body) {
                    const double dV = double(state.NormalV[body]) - state.NormalU[body];
                    // The steepest velocity change of either model is 2 dV / T.
                    const double velocityTolerance = 4 * eps * std::fabs(dV) / T + 1e-3;
                    for (float at : {state.ContactStart, state.ContactMiddle, state.ContactEnd}) {
                        for (int16_t c = 1; c <= 2; ++c) {
                            // Asked in time order, as a run does, so the contact is remembered.
                            const float p1 = state.BodyState(c, 1, body, at - eps);
                            const float v1 = state.BodyState(c, 2, body, at - eps);
                            const float f1 = state.BodyState(c, 3, body, at - eps);
                            state.BodyState(c, 1, body, at);
                            QNEAR(state.BodyState(c, 1, body, at + eps), p1, 2 * eps * 200 + 1e-3);
                            QNEAR(state.BodyState(c, 2, body, at + eps), v1, velocityTolerance);
                            if (model == CollisionSetup::ContinuousForce)
                                QNEAR(state.BodyState(c, 3, body, at + eps), f1, 1e-3 * std::fabs(state.ContactForce(body)) + 1);
                        }
                    }
                    // Either law moves the body dV T / 2 further along the line than it
                    // would have gone without the contact, and ends on the final velocity.
                    state.BodyState(1, 1, body, state.ContactEnd);
                    const double expected = setup.X[body] + double(setup.Ux[body]) * state.ContactEnd
                                            + std::cos(double(state.LineAngle)) * dV * T / 2
                                            + double(state.FinalVx[body]) * (2.0 * state.ContactStart - state.ContactEnd);
                    QNEAR(state.BodyState(1, 1, body, 2 * state.ContactStart), expected, 1e-2);
                    QNEAR(state.BodyState(1, 2, body, state.ContactEnd), state.FinalVx[body], 1e-3);
                    QCOMPARE(state.BodyState(1, 3, body, state.ContactEnd + eps), 0.0f);
                    QCOMPARE(state.BodyState(1, 3, body, state.ContactStart - eps), 0.0f);
                }
                if (model == CollisionSetup::ContinuousForce && page == SideView) {
                    QNEAR(state.BodyState(1, 3, 2, state.ContactMiddle), 3125, 0.05);
                    QNEAR(state.BodyState(1, 2, 1, state.ContactMiddle), 70, 1e-3);
                }
            }
        }
    }

    void checkCodesAndMessages()
    {
        const std::string overlap = "Bodies are overlaping!";
        const std::string equalX = "x components of velocity are equal, thus leading to no collision.";
        const std::string equalY = "y components of velocity are equal, thus leading to no collision.";
        const std::string none = "Initial condition do not lead to a collision.";
        const struct {
            int16_t page;
            std::array<float, 4> body1, body2;
            int16_t code;
            std::string message;
        } cases[] = {
            {SideView, {0, 0, 50, 0}, {100, 0, 100, 0}, 1,
             "Initial positions and velocities lead to increasing distance of bodies."},
            {SideView, {0, 0, 100, 0}, {20, 0, 50, 0}, 2, overlap},
            {SideView, {0, 0, 100, 0}, {5, 0, 50, 0}, 2, overlap},
            {AboveView, {0, 0, 100, 10}, {100, 0, 50, 10}, 8, equalY},
            {AboveView, {0, 0, 50, 0}, {10, 0, 50, 20}, 6, overlap + " Additionally, " + equalX},
            {AboveView, {0, 0, 100, 10}, {10, 0, 50, 10}, 10, overlap + " Additionally, " + equalY},
            {AboveView, {0, 0, 10, 0}, {0, 100, 10, 50}, 5, ""},
            {AboveView, {0, 0, 0, 10}, {100, 0, 50, 10}, 9, ""},
            {SideView, {0, 0, 100, 10}, {100, 0, 50, 10}, 0, ""},
            // From here on the bodies never meet, so the contact just computed stays.
            {SideView, {0, 0, 50, 0}, {100, 0, 50, 0}, 4, equalX},
            {SideView, {0, 0, 50, 0}, {10, 0, 50, 0}, 6, overlap + " Additionally, " + equalX},
            {AboveView, {0, 0, 100, 0}, {100, 100, 50, 0}, 16, none},
            {SideView, {0, 0, 0, 0}, {100, 0, 0, 0}, 16, none},
            {AboveView, {0, 0, 10, 5}, {100, 0, 10, 5}, 12, ""},
        };
        CollisionSetup setup;
        CollisionState state(setup);
        for (const auto& c : cases) {
            place(setup, c.body1, c.body2);
            const int16_t code = state.ComputeCollision(c.page);
            QCOMPARE(code, c.code);
            QCOMPARE(CollisionState::CheckMessage(code), c.message);
            QCOMPARE(CollisionState::CheckBoxText(code),
                     c.message.empty() ? std::string()
                                       : "Attention!\r" + c.message
                                             + " Please try again with different parameters by clicking on the button \"Options\".");
        }

        QCOMPARE(state.ContactStart, 1.6f);
        QNEAR(state.FinalVx[2], 90, 1e-4);
    }
};

QTEST_GUILESS_MAIN(tst_collision)
#include "tst_collision.moc"
