#include "LineRecorder.h"
#include "NearCheck.h"
#include "WindowChecks.h"

#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "introduction/CollisionScene.h"
#include "model/CollisionState.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int16_t AboveView = 1;
constexpr int16_t SideView = 2;
using Direction = CollisionSetup::Direction;
using Elasticity = CollisionSetup::Elasticity;

// The scene of one page set up the way the introduction does it.
void setUp(Canvas& canvas, CollisionSetup& setup, CollisionState& state, CollisionScene& scene, int16_t page)
{
    scene.InitialiseGround(canvas);
    state.ComputeCollision(page);
    scene.ComputeViewport(canvas, setup, state, page);
    scene.DrawCollisionScene(canvas, setup, state, page);
}

} // namespace

class tst_collision_lab_drawing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(closeLeftoverWindows(), 0); }

    void momentumArrowsScaleToTheLargestMomentum()
    {
        CollisionSetup setup;
        setup.ShowVelocities = 0;
        setup.ShowForces = 0;
        setup.ShowMomenta = 1;
        CollisionState state(setup);
        CollisionScene scene;
        LineRecorder picture;
        setUp(picture, setup, state, scene, SideView);
        // Elastic defaults: body 2 leaves with 15 x 90 = 1350, the largest momentum.
        QNEAR(state.MaxMomentum, 1350, 1e-3);
        const float offset = CollisionScene::MomentumOffset;
        QNEAR(picture.shaft(scene.BodyScreenX[1], scene.BodyScreenY[1] + offset, 1), 250.0 * 1000 / 1350, 1.5);
        QNEAR(picture.shaft(scene.BodyScreenX[2], scene.BodyScreenY[2] + offset, 1), 250.0 * 750 / 1350, 1.5);
        QCOMPARE(picture.shaft(scene.BodyScreenX[1] + offset, scene.BodyScreenY[1], 2), 0.0f);

        // From above, y components too; the largest magnitude is 250 units long.
        setup.Uy = {0, 40};
        setup.X = {0, 100};
        setup.Y = {0, -100};
        setup.Ux = {50, -50};
        setup.Uy = {50, 50};
        setUp(picture, setup, state, scene, AboveView);
        const double largest = state.MaxMomentum;
        QVERIFY(largest >= 15 * std::hypot(50.0, 50.0) - 1e-3);
        QNEAR(picture.shaft(scene.BodyScreenX[2] + offset, scene.BodyScreenY[2], 2), 250.0 * 750 / largest, 1.5);
        QNEAR(picture.shaft(scene.BodyScreenX[2], scene.BodyScreenY[2] + offset, 1), -250.0 * 750 / largest, 1.5);
    }

    void plasticObliqueRunsEraseTheirArrows()
    {
        for (int16_t page : {AboveView, SideView})
            for (int16_t model : {CollisionSetup::LinearModel, CollisionSetup::ContinuousForce}) {
                ImageCanvas canvas;
                canvas.resize(305, 329);
                canvas.setDrawMode(Canvas::XorPen);
                canvas.setFillStyle(Canvas::Solid);
                CollisionSetup setup;
                setup.ShowMomenta = 1;
                setup.ForceModel = model;
                setup.CollisionElasticity = Elasticity::Plastic;
                setup.CollisionDirection = Direction::Oblique;
                setup.Y = {0, 15};
                CollisionState state(setup);
                CollisionScene scene;
                setUp(canvas, setup, state, scene, page);
                const QImage empty = [&] {
                    ImageCanvas bare;
                    bare.resize(305, 329);
                    bare.setDrawMode(Canvas::XorPen);
                    bare.setFillStyle(Canvas::Solid);
                    if (page == SideView) {
                        bare.setFillColor(int32_t(scene.GroundColor));
                        bare.Box(scene.GroundLeft, scene.GroundTop, scene.GroundRight, scene.GroundBottom);
                    }
                    return bare.image();
                }();
                QVERIFY(canvas.image() != empty);
                for (int tick = 0; tick < 100; ++tick) {
                    scene.MoveBodies(canvas, setup, state, page);
                }
                scene.DrawBodies(canvas, setup, state, page);
                QVERIFY2(canvas.image() == empty, qPrintable(QString("page %1 model %2").arg(page).arg(model)));
            }
    }

    void obliquePictureKeepsOneScaleAndShowsTheDiscsTouching()
    {
        LineRecorder picture;
        CollisionSetup setup;
        setup.X = {0, 100};
        setup.Y = {0, 10};
        setup.Ux = {100, 0};
        setup.Uy = {0, 0};
        CollisionState state(setup);
        CollisionScene scene;
        setUp(picture, setup, state, scene, AboveView);
        const float centralFactor = scene.ScaleYFactor;
        QVERIFY(std::fabs(scene.ScaleXFactor + centralFactor) > 1); // each axis stretched on its own

        setup.CollisionDirection = Direction::Oblique;
        setUp(picture, setup, state, scene, AboveView);
        QCOMPARE(scene.ScaleXFactor, -scene.ScaleYFactor);
        const float t = state.ContactStart;
        const double gap = std::hypot(
            double(scene.ScreenX(state.BodyState(1, 1, 2, t)) - scene.ScreenX(state.BodyState(1, 1, 1, t))),
            double(scene.ScreenY(state.BodyState(2, 1, 2, t)) - scene.ScreenY(state.BodyState(2, 1, 1, t))));
        QNEAR(gap, scene.BodyScreenRadius[1] + scene.BodyScreenRadius[2], 0.5);
        // Everything stays inside the picture.
        for (int16_t i = 1; i <= 2; ++i) {
            QVERIFY(scene.ScreenX(state.EndX[i]) >= 0 && scene.ScreenX(state.EndX[i]) <= 4575);
            QVERIFY(scene.ScreenY(state.EndY[i]) >= 0 && scene.ScreenY(state.EndY[i]) <= 4935);
        }
    }
};

QTEST_MAIN(tst_collision_lab_drawing)
#include "tst_collision_lab_drawing.moc"
