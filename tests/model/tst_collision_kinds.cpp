#include "CollisionPlacing.h"
#include "NearCheck.h"
#include "core/ScopedRandomSequence.h"
#include "core/SharedRandom.h"
#include "model/CollisionBalance.h"
#include "model/CollisionRecord.h"
#include "model/CollisionState.h"
#include "model/ParameterDefaults.h"
#include "model/FluidParameters.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int16_t AboveView = 1;
constexpr int16_t SideView = 2;
using Direction = CollisionSetup::Direction;
using Elasticity = CollisionSetup::Elasticity;

// Two bodies aimed at each other: body 2 starts some way off along a random
// direction and moves back towards body 1 with a random miss smaller than the sum
// of the radii, so that nearly every set-up meets.
void aimedSetUp(CollisionSetup& setup)
{
    for (int i = 1; i <= 2; ++i) {
        setup.Mass[i] = static_cast<int16_t>(1 + std::floor(uniform(0, 999)));
        setup.Radius[i] = uniform(1, 50);
    }
    const double rsum = setup.Radius[1] + setup.Radius[2];
    const double angle = uniform(0, 6.28f);
    const double distance = rsum + uniform(5, 400);
    const double miss = uniform(-0.9f, 0.9f) * rsum;
    const float u1x = uniform(-40, 40), u1y = uniform(-40, 40);
    const double closing = uniform(5, 60);
    // The relative velocity points back along the direction, offset by the miss.
    const double cx = std::cos(angle), cy = std::sin(angle);
    const double rx = -closing * cx - closing * miss / distance * -cy;
    const double ry = -closing * cy - closing * miss / distance * cx;
    place(setup, {0, 0, u1x, u1y},
          {float(distance * cx), float(distance * cy), float(u1x + rx), float(u1y + ry)});
}

double momentum(const CollisionSetup& s, CollisionState& state, int16_t component, float t)
{
    return s.Mass[1] * double(state.BodyState(component, CollisionState::Velocity, 1, t))
           + s.Mass[2] * double(state.BodyState(component, CollisionState::Velocity, 2, t));
}

} // namespace

class tst_collision_kinds : public QObject
{
    Q_OBJECT

private slots:
    void newSwitchesStartAndResetToDefaults()
    {
        CollisionSetup setup;
        QCOMPARE(setup.ShowMomenta, int16_t(0));
        QVERIFY(setup.CollisionDirection == Direction::Central);
        QVERIFY(setup.CollisionElasticity == Elasticity::Elastic);
        QCOMPARE(setup.MomentumColor, float((128 + 160 * 65536) ^ 0xFFFFFF));
        setup.ShowMomenta = 1;
        setup.CollisionDirection = Direction::Oblique;
        setup.CollisionElasticity = Elasticity::Plastic;
        FluidParameters fluid;
        RestoreAllDefaults(setup, fluid, 0);
        QCOMPARE(setup.ShowMomenta, int16_t(0));
        QVERIFY(setup.CollisionDirection == Direction::Central);
        QVERIFY(setup.CollisionElasticity == Elasticity::Elastic);
        // Against a black background the stored colour is the plain one.
        QCOMPARE(setup.DefaultMomentumColor, float(128 + 160 * 65536));
    }

    void plasticDefaultsStickAndLoseTheWorkedEnergy()
    {
        CollisionSetup setup;
        setup.CollisionElasticity = Elasticity::Plastic;
        CollisionState state(setup);
        QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
        QCOMPARE(state.ContactStart, 1.6f);
        QNEAR(state.FinalVx[1], 70, 1e-4);
        QNEAR(state.FinalVx[2], 70, 1e-4);
        const CollisionBalance balance(setup, state, SideView);
        QNEAR(balance.Before[CollisionBalance::System].Px, 1750, 1e-3);
        QNEAR(balance.After[CollisionBalance::System].Px, 1750, 1e-3);
        QNEAR(balance.Before[CollisionBalance::System].Energy, 68750, 1e-2);
        QNEAR(balance.After[CollisionBalance::System].Energy, 61250, 1e-2);
        QNEAR(balance.Change(CollisionBalance::System).Energy, -7500, 1e-2);
        QNEAR(CollisionBalance::PlasticLoss(setup, state), 7500, 1e-6);
        QNEAR(balance.Change(1).Px, -300, 1e-3);
        QNEAR(balance.Change(2).Px, 300, 1e-3);
        // Largest momentum: body 1 before (1000) or body 2 after (1050).
        QNEAR(state.MaxMomentum, 1050, 1e-3);
        // Each contact law leaves both at the common velocity; the forces are equal
        // and opposite, and the linear model's spike takes the sign of the change.
        for (int16_t model : {CollisionSetup::LinearModel, CollisionSetup::ContinuousVelocity,
                              CollisionSetup::ContinuousForce}) {
            setup.ForceModel = model;
            state.ComputeCollision(SideView);
            for (int16_t body = 1; body <= 2; ++body)
                QNEAR(state.BodyState(1, CollisionState::Velocity, body, 3.2f), 70, 1e-3);
            const float inside = model == CollisionSetup::LinearModel ? 1.6f : 1.7f;
            const float f1 = state.BodyState(1, CollisionState::Force, 1, inside);
            const float f2 = state.BodyState(1, CollisionState::Force, 2, inside);
            QVERIFY(f1 < 0 && f2 > 0);
            if (model != CollisionSetup::LinearModel)
                QNEAR(f1 + f2, 0, 1e-3 * std::fabs(f1));
        }
        QCOMPARE(state.ContactForce(2), 2.0f * 15 * 20 / (state.ContactEnd - state.ContactStart));
    }

    void randomPlasticCollisionsConserveMomentumEverywhere()
    {
        ScopedRandomSequence sequence(11);
        CollisionSetup setup;
        setup.CollisionElasticity = Elasticity::Plastic;
        CollisionState state(setup);
        for (int16_t page : {AboveView, SideView}) {
            int collisions = 0;
            for (int trial = 0; trial < 600; ++trial) {
                aimedSetUp(setup);
                setup.ForceModel = int16_t(trial % 3);
                setup.CollisionDirection = trial % 2 ? Direction::Oblique : Direction::Central;
                if (state.ComputeCollision(page) != CollisionState::CodeReady)
                    continue;
                ++collisions;
                const double m1 = setup.Mass[1], m2 = setup.Mass[2];
                const double scale = m1 * 100 + m2 * 100;
                const float end = 2 * state.ContactStart;
                const double px = momentum(setup, state, 1, 0), py = momentum(setup, state, 2, 0);
                // At every step of a run, and inside the contact too.
                for (int step = 1; step <= 100; ++step) {
                    const float t = end * float(step) / 100;
                    QNEAR(momentum(setup, state, 1, t), px, 2e-6 * scale);
                    QNEAR(momentum(setup, state, 2, t), py, 2e-6 * scale);
                }
                QNEAR(state.NormalV[1], state.NormalV[2], 1e-4);
                const CollisionBalance balance(setup, state, page);
                const double loss = -balance.Change(CollisionBalance::System).Energy;
                // To the precision of velocities near 100 m/sec kept in 32-bit floats.
                QNEAR(loss, CollisionBalance::PlasticLoss(setup, state), 1e-6 * (m1 + m2) * 100 * 100);
            }
            QVERIFY2(collisions > 400, qPrintable(QString::number(collisions)));
        }
    }

    void obliqueContactLineAgainstWorkedCases_data()
    {
        QTest::addColumn<QVector<float>>("start"); // x, y, ux, uy of body 1, then body 2
        QTest::addColumn<QVector<float>>("after"); // vx, vy of body 1, then body 2
        QTest::addColumn<float>("angle");
        QTest::addColumn<double>("contact");
        // A glancing blow on a body at rest: the two leave at right angles.
        QTest::newRow("billiards") << QVector<float>{0, 0, 100, 0, 100, 10, 0, 0}
                                   << QVector<float>{25, -43.30127f, 75, 43.30127f} << float(M_PI / 6)
                                   << 1 - std::sqrt(3.0) / 10;
        // Equal x velocities: the discs meet in y along a line at 60 degrees.
        QTest::newRow("approach in y") << QVector<float>{0, 0, 20, 0, 10, 100, 20, -50}
                                       << QVector<float>{-1.650635f, -37.5f, 41.650635f, -12.5f} << float(M_PI / 3)
                                       << 2 - std::sqrt(3.0) / 5;
    }

    void obliqueContactLineAgainstWorkedCases()
    {
        QFETCH(QVector<float>, start);
        QFETCH(QVector<float>, after);
        QFETCH(float, angle);
        QFETCH(double, contact);
        CollisionSetup setup;
        setup.Mass = {10, 10};
        place(setup, {start[0], start[1], start[2], start[3]}, {start[4], start[5], start[6], start[7]});
        CollisionState state(setup);
        const int16_t central = state.ComputeCollision(AboveView);
        setup.CollisionDirection = Direction::Oblique;
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeReady);
        QNEAR(state.ContactStart, contact, 1e-5);
        QNEAR(state.LineAngle, angle, 1e-5);
        QNEAR(state.FinalVx[1], after[0], 1e-3);
        QNEAR(state.FinalVy[1], after[1], 1e-3);
        QNEAR(state.FinalVx[2], after[2], 1e-3);
        QNEAR(state.FinalVy[2], after[3], 1e-3);
        if (QTest::currentDataTag() == QByteArray("approach in y")) {
            // The central line refuses the approach in y; the side view ignores the choice.
            QCOMPARE(central, CollisionState::CodeEqualX);
            QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeOverlapping + CollisionState::CodeEqualX);
        } else {
            // The central line runs between the starting centres: another answer.
            QCOMPARE(central, CollisionState::CodeReady);
        }
    }

    void obliqueCheckAsksOnlyForTouching()
    {
        CollisionSetup setup;
        setup.CollisionDirection = Direction::Oblique;
        CollisionState state(setup);
        place(setup, {0, 0, 50, 0}, {15, 100, 50, -10});
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeReady);
        place(setup, {0, 0, 50, 0}, {15, 100, 50, 10}); // drifting apart
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeMovingApart);
        place(setup, {0, 0, 50, 0}, {30, 100, 50, -10}); // passing by
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeNoCollision);
        place(setup, {0, 0, 50, 0}, {10, 0, 60, 0}); // overlapping
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeOverlapping);
        place(setup, {0, 0, 50, 0}, {100, 0, 60, 0}); // moving apart along x
        QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeMovingApart);
    }

    void recordKeepsEveryStep()
    {
        CollisionSetup setup;
        CollisionState state(setup);
        state.ComputeCollision(SideView);
        CollisionRecord record;
        record.Start(SideView);
        QVERIFY(record.Empty());
        for (int step = 0; step <= 100; ++step) {
            state.SimulationTime = state.TimeStep * float(step);
            record.Add(state);
        }
        QCOMPARE(record.Header(), (std::vector<std::string>{"t", "x1", "v1", "F1", "x2", "v2", "F2"}));
        QCOMPARE(record.Rows().size(), size_t(101));
        QCOMPARE(record.Rows()[0], (std::vector<double>{0, 0, 100, 0, 100, 50, 0}));
        QNEAR(record.Rows()[100][4], 324, 1e-3);
        record.Start(AboveView);
        QCOMPARE(record.Header(), (std::vector<std::string>{"t", "x1", "y1", "vx1", "vy1", "Fx1", "Fy1", "x2", "y2",
                                                            "vx2", "vy2", "Fx2", "Fy2"}));
    }
};

QTEST_GUILESS_MAIN(tst_collision_kinds)
#include "tst_collision_kinds.moc"
