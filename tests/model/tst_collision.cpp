#include "canvas/Rgb.h"
#include "core/RunTimeError.h"
#include "core/ScopedRandomSequence.h"
#include "core/SharedRandom.h"
#include "model/CollisionState.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int16_t AboveView = 1;
constexpr int16_t SideView = 2;

bool near(double actual, double expected, double tolerance)
{
    return std::fabs(actual - expected) <= tolerance;
}

// Sets both bodies at once: x, y, ux, uy of body 1 then body 2.
void place(CollisionSetup& setup, std::array<float, 4> body1, std::array<float, 4> body2)
{
    setup.X = {body1[0], body2[0]};
    setup.Y = {body1[1], body2[1]};
    setup.Ux = {body1[2], body2[2]};
    setup.Uy = {body1[3], body2[3]};
}

float uniform(float low, float high)
{
    return low + (high - low) * SharedRandom::next();
}

// A random set-up within the bounds of the parameters dialog.
void randomise(CollisionSetup& setup)
{
    for (int i = 1; i <= 2; ++i) {
        setup.Mass[i] = static_cast<int16_t>(1 + std::floor(uniform(0, 999)));
        setup.Radius[i] = uniform(1, 100);
        setup.X[i] = uniform(-999, 999);
        setup.Y[i] = uniform(-999, 999);
        setup.Ux[i] = uniform(-100, 100);
        setup.Uy[i] = uniform(-100, 100);
    }
}

double kinetic(const CollisionSetup& s, float vx1, float vy1, float vx2, float vy2)
{
    return 0.5 * s.Mass[1] * (double(vx1) * vx1 + double(vy1) * vy1)
           + 0.5 * s.Mass[2] * (double(vx2) * vx2 + double(vy2) * vy2);
}

} // namespace

class tst_collision : public QObject
{
    Q_OBJECT

private slots:
    void defaultsOnTheSideView();
    void obliqueApproachCollidesAlongTheStartingLine();
    void sideViewIgnoresYAndMirrors();
    void randomCollisionsConserveMomentumAndEnergy();
    void contactLawsAreContinuous();
    void linearModelForceIsASpike();
    void checkCodesAndMessages();
    void defaultColoursAreStoredAgainstTheBackground();
};

void tst_collision::defaultsOnTheSideView()
{
    CollisionSetup setup;
    CollisionState state(setup);
    QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
    QCOMPARE(state.ContactStart, 1.6f);
    QCOMPARE(state.TimeStep, 0.032f);
    QVERIFY(near(state.ContactMiddle, 1.792, 1e-6));
    QVERIFY(near(state.ContactEnd, 1.984, 1e-6));
    QVERIFY(near(state.FinalVx[1], 40, 1e-4));
    QVERIFY(near(state.FinalVx[2], 90, 1e-4));
    QCOMPARE(state.FinalVy[1], 0.0f);
    QVERIFY(near(10 * state.FinalVx[1] + 15 * state.FinalVx[2], 1750, 1e-3));
    QVERIFY(near(kinetic(setup, state.FinalVx[1], 0, state.FinalVx[2], 0), 68750, 0.05));
    QVERIFY(near(state.EndX[1], 224, 1e-3));
    QVERIFY(near(state.EndX[2], 324, 1e-3));
    QCOMPARE(state.MaxVelocity, 100.0f);
    QCOMPARE(state.MaxForce, 1000000000.0f);

    setup.ForceModel = CollisionSetup::ContinuousVelocity;
    state.ComputeCollision(SideView);
    QVERIFY(near(state.ContactForce(1), -1562.5, 0.01));
    QVERIFY(near(state.ContactForce(2), 1562.5, 0.01));
    QVERIFY(near(state.MaxForce, 1562.5, 0.01));

    setup.ForceModel = CollisionSetup::ContinuousForce;
    state.ComputeCollision(SideView);
    QVERIFY(near(state.ContactForce(1), -3125, 0.02));
    QVERIFY(near(state.ContactForce(2), 3125, 0.02));
    QVERIFY(near(state.MaxForce, 3125, 0.02));
}

void tst_collision::obliqueApproachCollidesAlongTheStartingLine()
{
    // Body 1 climbs while it approaches; the exchange still happens along x,
    // the direction of the centres at the start, and the y velocity stays with it.
    CollisionSetup setup;
    setup.Mass = {10, 10};
    place(setup, {0, 0, 50, 5}, {100, 0, 0, 0});
    CollisionState state(setup);
    QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeReady);
    QCOMPARE(state.LineAngle, 0.0f);
    QVERIFY(near(state.FinalVx[1], 0, 1e-4));
    QVERIFY(near(state.FinalVy[1], 5, 1e-4));
    QVERIFY(near(state.FinalVx[2], 50, 1e-4));
    QVERIFY(near(state.FinalVy[2], 0, 1e-4));
    const double tc = state.ContactStart;
    QVERIFY(near(std::hypot(100 - 50 * tc, -5 * tc), 20, 1e-3));

    // A diagonal line of centres (3, 4), body 2 at rest, masses 10 and 15.
    setup.Mass = {10, 15};
    place(setup, {0, 0, 10, 10}, {30, 40, 0, 0});
    QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeReady);
    QVERIFY(near(state.NormalU[1], 14, 1e-4));
    QVERIFY(near(state.TangentU[1], -2, 1e-4));
    QVERIFY(near(state.NormalV[1], -2.8, 1e-4));
    QVERIFY(near(state.NormalV[2], 11.2, 1e-4));
    QVERIFY(near(state.FinalVx[1], -0.08, 1e-4));
    QVERIFY(near(state.FinalVy[1], -3.44, 1e-4));
    QVERIFY(near(state.FinalVx[2], 6.72, 1e-4));
    QVERIFY(near(state.FinalVy[2], 8.96, 1e-4));
    QVERIFY(near(state.BodyState(2, 2, 2, 2 * state.ContactStart), 8.96, 1e-4));
}

void tst_collision::sideViewIgnoresYAndMirrors()
{
    CollisionSetup setup;
    CollisionState state(setup);
    // A y velocity left over from the view from above changes nothing along x.
    setup.Uy = {30, -20};
    QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
    QCOMPARE(state.ContactStart, 1.6f);
    QVERIFY(near(state.FinalVx[1], 40, 1e-4));
    QVERIFY(near(state.BodyState(1, 1, 2, 3.2f), 324, 1e-3));

    // The mirror image: body 2 to the left, everything moving left.
    setup.Uy = {0, 0};
    place(setup, {0, 0, -100, 0}, {-100, 0, -50, 0});
    QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
    QCOMPARE(state.LineAngle, 3.14159f);
    QVERIFY(near(state.ContactStart, 1.6, 1e-5));
    QVERIFY(near(state.FinalVx[1], -40, 1e-3));
    QVERIFY(near(state.FinalVx[2], -90, 1e-3));
    QVERIFY(near(state.FinalVy[1], 0, 1e-3));
    QVERIFY(near(state.FinalVy[2], 0, 1e-3));
}

void tst_collision::randomCollisionsConserveMomentumAndEnergy()
{
    ScopedRandomSequence sequence(7);
    CollisionSetup setup;
    CollisionState state(setup);
    for (int16_t page : {AboveView, SideView}) {
        int collisions = 0;
        for (int trial = 0; trial < 4000; ++trial) {
            randomise(setup);
            if (state.ComputeCollision(page) != CollisionState::CodeReady)
                continue;
            ++collisions;
            const float tc = state.ContactStart;
            QVERIFY(0 < tc && tc < state.ContactMiddle && state.ContactMiddle < state.ContactEnd
                    && state.ContactEnd < 2 * tc);
            const float uy1 = page == AboveView ? setup.Uy[1] : 0;
            const float uy2 = page == AboveView ? setup.Uy[2] : 0;
            const float vy1 = page == AboveView ? state.FinalVy[1] : 0;
            const float vy2 = page == AboveView ? state.FinalVy[2] : 0;
            const double m1 = setup.Mass[1];
            const double m2 = setup.Mass[2];
            const double scale = (m1 + m2) * 200;
            QVERIFY2(near(m1 * state.FinalVx[1] + m2 * state.FinalVx[2],
                          m1 * setup.Ux[1] + m2 * setup.Ux[2], 1e-5 * scale),
                     qPrintable(QString("trial %1 page %2").arg(trial).arg(page)));
            QVERIFY(near(m1 * vy1 + m2 * vy2, m1 * uy1 + m2 * uy2, 1e-5 * scale));
            const double before = kinetic(setup, setup.Ux[1], uy1, setup.Ux[2], uy2);
            const double after = kinetic(setup, state.FinalVx[1], vy1, state.FinalVx[2], vy2);
            QVERIFY(near(after, before, 1e-5 * (m1 + m2) * 20000));
            // At t_c the centres are exactly the sum of the radii apart.
            const double gapX = double(setup.X[2]) - setup.X[1] + (double(setup.Ux[2]) - setup.Ux[1]) * tc;
            const double gapY = page == AboveView ? double(setup.Y[2]) - setup.Y[1] + (double(uy2) - uy1) * tc : 0;
            QVERIFY(near(std::hypot(gapX, gapY), setup.Radius[1] + setup.Radius[2], 1e-3 * 2000));
        }
        QVERIFY2(collisions > 50, qPrintable(QString::number(collisions)));
    }
}

void tst_collision::contactLawsAreContinuous()
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
                const double velocityTolerance = 2 * eps * 2 * std::fabs(dV) / T + 1e-3;
                for (float moment : {state.ContactStart, state.ContactMiddle, state.ContactEnd}) {
                    for (int16_t component = 1; component <= 2; ++component) {
                        // Ask in time order, as a run does, so the contact is remembered.
                        const float p1 = state.BodyState(component, 1, body, moment - eps);
                        const float v1 = state.BodyState(component, 2, body, moment - eps);
                        const float f1 = state.BodyState(component, 3, body, moment - eps);
                        state.BodyState(component, 1, body, moment);
                        const float p2 = state.BodyState(component, 1, body, moment + eps);
                        const float v2 = state.BodyState(component, 2, body, moment + eps);
                        const float f2 = state.BodyState(component, 3, body, moment + eps);
                        QVERIFY(near(p2, p1, 2 * eps * 200 + 1e-3));
                        QVERIFY(near(v2, v1, velocityTolerance));
                        if (model == CollisionSetup::ContinuousForce)
                            QVERIFY(near(f2, f1, 1e-3 * std::fabs(state.ContactForce(body)) + 1));
                    }
                }
                // Each model changes the normal velocity by dV over T, moving the body
                // dV T / 2 further than it would have gone without the contact.
                const double n = std::cos(double(state.LineAngle));
                state.BodyState(1, 1, body, state.ContactEnd);
                const double expected = setup.X[body] + double(setup.Ux[body]) * state.ContactEnd
                                        + n * dV * T / 2
                                        + double(state.FinalVx[body]) * (2.0 * state.ContactStart - state.ContactEnd);
                QVERIFY(near(state.BodyState(1, 1, body, 2 * state.ContactStart), expected, 1e-2));
                QVERIFY(near(state.BodyState(1, 2, body, state.ContactEnd), state.FinalVx[body], 1e-3));
                QCOMPARE(state.BodyState(1, 3, body, state.ContactEnd + eps), 0.0f);
                QCOMPARE(state.BodyState(1, 3, body, state.ContactStart - eps), 0.0f);
            }
            if (model == CollisionSetup::ContinuousForce && page == SideView) {
                QVERIFY(near(state.BodyState(1, 3, 2, state.ContactMiddle), 3125, 0.05));
                QVERIFY(near(state.BodyState(1, 2, 1, state.ContactMiddle), 70, 1e-3));
            }
        }
    }
}

void tst_collision::linearModelForceIsASpike()
{
    CollisionSetup setup;
    CollisionState state(setup);
    state.ComputeCollision(SideView);
    const float tc = state.ContactStart;
    QCOMPARE(state.BodyState(1, 3, 1, tc), -1000000000.0f);
    QCOMPARE(state.BodyState(1, 3, 2, tc), 1000000000.0f);
    QCOMPARE(state.BodyState(1, 3, 2, tc - 0.0019f), 1000000000.0f);
    QCOMPARE(state.BodyState(1, 3, 2, tc + 0.0019f), 1000000000.0f);
    QCOMPARE(state.BodyState(1, 3, 2, tc + 0.0021f), 0.0f);
    QCOMPARE(state.BodyState(1, 3, 2, tc - 0.0021f), 0.0f);
    QCOMPARE(state.BodyState(2, 3, 2, tc), 0.0f);
    // The velocity jumps at t_c; other quantities and components give 0.
    QCOMPARE(state.BodyState(1, 2, 1, tc), 100.0f);
    QVERIFY(near(state.BodyState(1, 2, 1, tc + 1e-4f), 40, 1e-4));
    QCOMPARE(state.BodyState(1, 4, 1, tc), 0.0f);
    QCOMPARE(state.BodyState(3, 1, 1, tc), 0.0f);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, state.BodyState(1, 1, 3, tc));
}

void tst_collision::checkCodesAndMessages()
{
    struct Case {
        int16_t page;
        std::array<float, 4> body1, body2;
        int16_t code;
        const char* message;
    };
    const Case cases[] = {
        {SideView, {0, 0, 50, 0}, {100, 0, 100, 0}, 1,
         "Initial positions and velocities lead to increasing distance of bodies."},
        {SideView, {0, 0, 100, 0}, {20, 0, 50, 0}, 2, "Bodies are overlaping!"},
        {SideView, {0, 0, 100, 0}, {5, 0, 50, 0}, 2, "Bodies are overlaping!"},
        {SideView, {0, 0, 50, 0}, {100, 0, 50, 0}, 4,
         "x components of velocity are equal, thus leading to no collision."},
        {AboveView, {0, 0, 100, 10}, {100, 0, 50, 10}, 8,
         "y components of velocity are equal, thus leading to no collision."},
        {SideView, {0, 0, 50, 0}, {10, 0, 50, 0}, 6,
         "Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision."},
        {AboveView, {0, 0, 50, 0}, {10, 0, 50, 20}, 6,
         "Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision."},
        {AboveView, {0, 0, 100, 10}, {10, 0, 50, 10}, 10,
         "Bodies are overlaping! Additionally, y components of velocity are equal, thus leading to no collision."},
        {AboveView, {0, 0, 100, 0}, {100, 100, 50, 0}, 16, "Initial condition do not lead to a collision."},
        {SideView, {0, 0, 0, 0}, {100, 0, 0, 0}, 16, "Initial condition do not lead to a collision."},
        {AboveView, {0, 0, 10, 0}, {0, 100, 10, 50}, 5, ""},
        {AboveView, {0, 0, 0, 10}, {100, 0, 50, 10}, 9, ""},
        {AboveView, {0, 0, 10, 5}, {100, 0, 10, 5}, 12, ""},
        {SideView, {0, 0, 100, 10}, {100, 0, 50, 10}, 0, ""},
    };
    CollisionSetup setup;
    CollisionState state(setup);
    for (const Case& c : cases) {
        place(setup, c.body1, c.body2);
        const int16_t code = state.ComputeCollision(c.page);
        QCOMPARE(code, c.code);
        QCOMPARE(CollisionState::CheckMessage(code), std::string(c.message));
        const std::string box = CollisionState::CheckBoxText(code);
        if (*c.message)
            QCOMPARE(box, "Attention!\r" + std::string(c.message)
                              + " Please try again with different parameters by clicking on the button \"Options\".");
        else
            QVERIFY(box.empty());
    }

    // With no collision ahead the previous contact stays as it was.
    setup.X = {0, 100};
    setup.Y = {0, 0};
    setup.Ux = {100, 50};
    setup.Uy = {0, 0};
    QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeReady);
    setup.Y = {0, 100};
    QCOMPARE(state.ComputeCollision(AboveView), CollisionState::CodeNoCollision);
    setup.Ux = {50, 50};
    QCOMPARE(state.ComputeCollision(SideView), CollisionState::CodeEqualX);
    QCOMPARE(state.ContactStart, 1.6f);
    QVERIFY(near(state.FinalVx[2], 90, 1e-4));
}

void tst_collision::defaultColoursAreStoredAgainstTheBackground()
{
    const int32_t background = Rgb::RGB(200, 30, 120);
    CollisionSetup setup;
    setup.BodyColor = {1, 2};
    setup.resetDefaults(background);
    QCOMPARE(setup.BodyColor[1], 1.0f);
    const auto shown = [&](float stored) { return int32_t(stored) ^ background; };
    QCOMPARE(shown(setup.DefaultBodyColor[1]), Rgb::RGB(80, 255, 80));
    QCOMPARE(shown(setup.DefaultBodyColor[2]), Rgb::RGB(255, 255, 80));
    QCOMPARE(shown(setup.DefaultVelocityColor), Rgb::RGB(255, 255, 175));
    QCOMPARE(shown(setup.DefaultForceColor), Rgb::RGB(255, 0, 0));
    setup.useDefaultColours();
    QCOMPARE(setup.VelocityColor, setup.DefaultVelocityColor);
}

QTEST_GUILESS_MAIN(tst_collision)
#include "tst_collision.moc"
