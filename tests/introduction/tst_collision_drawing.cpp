#include "LineRecorder.h"
#include "NearCheck.h"
#include "WindowChecks.h"

#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "introduction/CollisionGraphs.h"
#include "introduction/CollisionScene.h"
#include "model/CollisionState.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int16_t AboveView = 1;
constexpr int16_t SideView = 2;
constexpr int32_t White = Rgb::RGB(255, 255, 255);
constexpr int32_t Red = Rgb::RGB(255, 0, 0);

// A picture the size of the introduction's (4575 x 4935 twips), ready for exclusive-or.
void prepare(ImageCanvas& canvas)
{
    canvas.resize(305, 329);
    canvas.setDrawMode(Canvas::XorPen);
    canvas.setFillStyle(Canvas::Solid);
}

// The collision experiment set up and run the way the introduction's page set-up
// and timer ticks drive it.
struct CollisionRig
{
    ImageCanvas canvas;
    CollisionSetup setup;
    CollisionState state{setup};
    CollisionScene scene;
    CollisionGraphs graphs;
    int16_t page = SideView;

    explicit CollisionRig(int16_t forceModel = CollisionSetup::LinearModel)
    {
        prepare(canvas);
        setup.ForceModel = forceModel;
        scene.InitialiseGround(canvas);
    }

    int16_t setUpPage(int16_t onPage)
    {
        page = onPage;
        graphs.BuildGraphList(canvas, setup, page);
        const int16_t code = state.ComputeCollision(page);
        scene.ComputeViewport(canvas, setup, state, page);
        scene.DrawCollisionScene(canvas, setup, state, page);
        return code;
    }

    void start()
    {
        state.SimulationTime = 0;
        for (int16_t g = 1; g <= graphs.GraphCount; ++g)
            graphs.GraphRange(setup, state, g, graphs.GraphQuantity[g], 0, 2 * state.ContactStart);
        graphs.StartGraphClocks(state);
        graphs.DrawGraphFrames(canvas, graphs.GraphCount);
    }

    // Ticks until the run reaches its end; returns how many it took.
    int run()
    {
        start();
        int ticks = 0;
        do {
            ++ticks;
            scene.MoveBodies(canvas, setup, state, page);
            graphs.DrawGraphStep(canvas, setup, state);
        } while (ticks < 200 && state.SimulationTime < 2 * state.ContactStart);
        return ticks;
    }

    int32_t shown(float x, float y) const
    {
        return canvas.pixelColor(int32_t(canvas.toDeviceX(x)), int32_t(canvas.toDeviceY(y)));
    }
};

} // namespace

class tst_collision_drawing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(closeLeftoverWindows(), 0); }
    void runErasesEverythingItMoves();
    void defaultSideViewPictureAndGraphPanels();
    void arrowsScaleToTheLargestValueAndZeroDrawsNothing();
    void arrowsPointTheWayTheBodiesMoveAndArePushed_data();
    void arrowsPointTheWayTheBodiesMoveAndArePushed();
    void zeroRangesDrawNothing();
    void contactZoom();
};

void tst_collision_drawing::runErasesEverythingItMoves()
{
    for (int16_t model :
        {CollisionSetup::LinearModel, CollisionSetup::ContinuousVelocity, CollisionSetup::ContinuousForce}) {
        for (int16_t page : {SideView, AboveView}) {
            CollisionRig rig(model);
            rig.setup.Y = {0, 30};
            rig.setup.Uy = {20, 0};
            QCOMPARE(rig.setUpPage(page), CollisionState::CodeReady);
            // The float clock may end just short of 2 t_c and take one tick more.
            const int ticks = rig.run();
            QVERIFY(ticks == 100 || (ticks == 101 && page == AboveView));
            rig.scene.DrawBodies(rig.canvas, rig.setup, rig.state, page);

            // Left behind: the ground and the graphs' frames and curves alone.
            ImageCanvas expected;
            prepare(expected);
            if (page == SideView) {
                expected.setFillColor(int32_t(rig.scene.GroundColor));
                expected.Box(rig.scene.GroundLeft, rig.scene.GroundTop, rig.scene.GroundRight, rig.scene.GroundBottom);
            }
            rig.graphs.RedrawGraphs(expected, rig.setup, rig.state);
            QVERIFY(rig.canvas.image() == expected.image());
        }
    }
}

void tst_collision_drawing::defaultSideViewPictureAndGraphPanels()
{
    CollisionRig rig(CollisionSetup::ContinuousForce);
    rig.setUpPage(SideView);
    const CollisionScene& s = rig.scene;
    // World x -10 to 334 and y -10 to 10 fill the picture; the bodies rest on the ground.
    QNEAR(s.ScreenX(-10), 0, 1e-2);
    QNEAR(s.ScreenX(334), 4575, 1e-2);
    QNEAR(s.ScreenY(10), 0, 1e-2);
    QNEAR(s.ScreenY(-10), 4935, 1e-2);
    QNEAR(s.BodyScreenRadius[2], 10 * 4575.0 / 344, 1e-2);
    QCOMPARE(s.BodyScreenY[2] + s.BodyScreenRadius[2], 4935 * 0.95f);

    QCOMPARE(rig.shown(s.BodyScreenX[1] - 60, s.BodyScreenY[1] + 60), Rgb::RGB(80, 255, 80));
    QCOMPARE(rig.shown(s.BodyScreenX[2] - 60, s.BodyScreenY[2] + 60), Rgb::RGB(255, 255, 80));
    QCOMPARE(rig.shown(2000, 4800), Rgb::RGB(192, 0, 0));
    QCOMPARE(rig.shown(s.BodyScreenX[1] + 200, s.BodyScreenY[1]), Rgb::RGB(255, 255, 175));

    // No force arrows before the contact: the same picture with forces switched off.
    const QImage withForces = rig.canvas.image();
    rig.setup.ShowForces = 0;
    rig.scene.DrawCollisionScene(rig.canvas, rig.setup, rig.state, SideView);
    QCOMPARE(rig.canvas.image(), withForces);

    CollisionGraphs& g = rig.graphs;
    QCOMPARE(g.GraphCount, int16_t(3));
    const float quarter = 4935 / 4.0f;
    QCOMPARE(g.PanelLeft[1], 0.02f * 4575);
    QCOMPARE(g.PanelRight[3], 0.98f * 4575);
    for (int16_t p = 1; p <= 3; ++p) {
        QCOMPARE(g.GraphQuantity[p], p);
        QNEAR(g.PanelBottom[p] - g.PanelTop[p], quarter - g.GraphMargin, 1e-2);
        QNEAR(g.PanelBottom[p], p * quarter, 1e-2);
        QCOMPARE(g.PanelAt(g.PanelTop[p] + 10), p);
    }
    QCOMPARE(g.PanelAt(4000), int16_t(0));

    // Distances in metres and forces in thousands of newtons widen the time axis
    // about its centre; one second and one unit then get the same length.
    rig.setup.ProportionalGraphs = 1;
    rig.start();
    const float duration = 2 * rig.state.ContactStart;
    for (int16_t p : {1, 3}) {
        QVERIFY(g.GraphShownTimeMax[p] - g.GraphShownTimeMin[p] > duration);
        QNEAR(g.GraphShownTimeMax[p] + g.GraphShownTimeMin[p], duration, 1e-3);
        QCOMPARE(g.GraphShownValueMax[p], g.GraphValueMax[p]);
        QNEAR(g.GraphXFactor[p], -g.GraphYFactor[p], 1e-3 * g.GraphXFactor[p]);
    }

    // Slow bodies on a long run: the small velocities get the wider axis.
    rig.setup.X = {0, 900};
    rig.setup.Ux = {1, 0};
    QCOMPARE(rig.setUpPage(SideView), CollisionState::CodeReady);
    rig.start();
    QCOMPARE(g.GraphShownTimeMax[2], g.GraphTimeMax[2]);
    QVERIFY(g.GraphShownValueMax[2] - g.GraphShownValueMin[2] > 100 * (g.GraphValueMax[2] - g.GraphValueMin[2]));
    QNEAR(g.GraphXFactor[2], -g.GraphYFactor[2], 1e-3 * g.GraphXFactor[2]);

    rig.setUpPage(AboveView);
    QCOMPARE(g.GraphCount, int16_t(0));
}

void tst_collision_drawing::arrowsScaleToTheLargestValueAndZeroDrawsNothing()
{
    CollisionRig rig;
    ImageCanvas& c = rig.canvas;
    for (const auto& [value, length] : {std::pair{100.0f, 250.0f}, std::pair{50.0f, 125.0f}}) {
        c.Cls();
        rig.scene.DrawArrow(c, 1, 1000, 1500, 133, 100, value, Red ^ White);
        // The first and last inked columns of the shaft's row.
        int first = -1, last = -1;
        for (int x = 0; x < c.DeviceWidth(); ++x)
            if (c.pixelColor(x, int(c.toDeviceY(1500))) != White) {
                first = first < 0 ? x : first;
                last = x;
            }
        QCOMPARE(first, int(c.toDeviceX(1000)));
        QVERIFY(std::abs(last - int(c.toDeviceX(1000 + length))) <= 1);
        QCOMPARE(rig.shown(1000 + length - 25, 1500 - 25), Red); // a barb
    }
    c.Cls();
    rig.scene.DrawArrow(c, 2, 1000, 1500, 133, 100, -100, Red ^ White);
    QCOMPARE(rig.shown(1000, 1700), Red); // a negative y value points down
    QCOMPARE(rig.shown(1000, 1300), White);
    // A zero scale or value draws nothing.
    c.Cls();
    const QImage blank = c.image();
    rig.scene.DrawArrow(c, 1, 1000, 1500, 133, 0, 100, Red);
    rig.scene.DrawArrow(c, 2, 1000, 1500, 133, 100, 0, Red);
    QCOMPARE(c.image(), blank);
}

void tst_collision_drawing::arrowsPointTheWayTheBodiesMoveAndArePushed_data()
{
    QTest::addColumn<int16_t>("page");
    QTest::addColumn<int16_t>("model");
    QTest::addColumn<QList<float>>("start"); // x1, x2, y1, y2, ux1, ux2, uy1, uy2
    const QList<float> defaults = {0, 100, 0, 0, 100, 50, 0, 0};
    const QList<float> restingFirst = {0, 100, 0, 0, 0, -50, 0, 0};
    const QList<float> allLeft = {0, 100, 0, 0, -20, -100, 0, 0};
    const QList<float> allLeftAndDown = {0, 100, 0, 20, -20, -100, -10, -30};
    const QList<float> secondOnTheLeft = {100, 0, 0, 0, -50, 100, 0, 0};
    for (int16_t model :
        {CollisionSetup::LinearModel, CollisionSetup::ContinuousVelocity, CollisionSetup::ContinuousForce}) {
        const QByteArray m = "model " + QByteArray::number(model);
        QTest::newRow(m + ", defaults") << SideView << model << defaults;
        QTest::newRow(m + ", first body at rest") << SideView << model << restingFirst;
        QTest::newRow(m + ", both moving left") << SideView << model << allLeft;
        QTest::newRow(m + ", all left and down from above") << AboveView << model << allLeftAndDown;
        QTest::newRow(m + ", second body on the left") << SideView << model << secondOnTheLeft;
        QTest::newRow(m + ", second body on the left from above") << AboveView << model << secondOnTheLeft;
    }
}

void tst_collision_drawing::arrowsPointTheWayTheBodiesMoveAndArePushed()
{
    QFETCH(int16_t, page);
    QFETCH(int16_t, model);
    QFETCH(QList<float>, start);
    CollisionRig rig(model);
    CollisionSetup& setup = rig.setup;
    setup.X = {start[0], start[1]};
    setup.Y = {start[2], start[3]};
    setup.Ux = {start[4], start[5]};
    setup.Uy = {start[6], start[7]};
    QCOMPARE(rig.setUpPage(page), CollisionState::CodeReady);
    CollisionState& state = rig.state;
    CollisionScene& scene = rig.scene;

    // Every tick of the run, and the contact's start itself (the linear model's spike).
    QList<float> moments;
    for (int k = 0; k <= 100; ++k)
        moments << k * state.TimeStep;
    moments << state.ContactStart;
    float longestVelocity = 0;
    float longestForce = 0;
    for (const float t : moments) {
        state.SimulationTime = t;
        for (const int16_t quantity : {CollisionState::Velocity, CollisionState::Force}) {
            setup.ShowVelocities = quantity == CollisionState::Velocity;
            setup.ShowForces = quantity == CollisionState::Force;
            LineRecorder picture;
            scene.DrawVectors(picture, setup, state, page);
            for (int16_t body = 1; body <= 2; ++body) {
                // The way the body moves, or the way the other body pushes it: away
                // from it along the line between their starting places.
                const int16_t other = 3 - body;
                const float away[2] = {setup.X[body] - setup.X[other], setup.Y[body] - setup.Y[other]};
                for (int16_t component = 1; component <= (page == AboveView ? 2 : 1); ++component) {
                    const float value = state.BodyState(component, quantity, body, t);
                    const float arrow = picture.shaft(scene.BodyScreenX[body], scene.BodyScreenY[body], component);
                    const QString where = QString("t=%1 body %2 component %3 quantity %4 value %5 arrow %6")
                                              .arg(t)
                                              .arg(body)
                                              .arg(component)
                                              .arg(quantity)
                                              .arg(value)
                                              .arg(arrow);
                    QVERIFY2(std::fabs(arrow) <= CollisionScene::ArrowLength + 1, qPrintable(where));
                    if (quantity == CollisionState::Velocity) {
                        QVERIFY2(arrow * value >= 0, qPrintable(where));
                        QVERIFY2(std::fabs(value) < 1 || arrow != 0, qPrintable(where));
                        QVERIFY2(std::fabs(value) > 1e-3f || arrow == 0, qPrintable(where));
                        longestVelocity = std::max(longestVelocity, std::fabs(arrow));
                    } else {
                        QVERIFY2(arrow * away[component - 1] >= 0, qPrintable(where));
                        QVERIFY2(away[component - 1] != 0 || arrow == 0, qPrintable(where));
                        QVERIFY2(component == 2 || (value != 0) == (arrow != 0), qPrintable(where));
                        longestForce = std::max(longestForce, std::fabs(arrow));
                    }
                }
            }
        }
    }
    QNEAR(longestVelocity, CollisionScene::ArrowLength, 1);
    // An oblique push splits into two shorter components.
    if (setup.Y[1] == setup.Y[2])
        QNEAR(longestForce, CollisionScene::ArrowLength, 1);
    else
        QVERIFY(longestForce > CollisionScene::ArrowLength / 2);
}

void tst_collision_drawing::zeroRangesDrawNothing()
{
    CollisionRig rig(CollisionSetup::ContinuousVelocity);
    rig.setUpPage(SideView);
    ImageCanvas& c = rig.canvas;
    c.Cls();
    const QImage blank = c.image();

    // Before the contact the force is 0 throughout: no value range, nothing drawn.
    CollisionGraphs& g = rig.graphs;
    rig.start();
    g.GraphRange(rig.setup, rig.state, 3, CollisionState::Force, 0, rig.state.ContactStart / 2);
    QCOMPARE(g.GraphValueMin[3], 0.0f);
    QCOMPARE(g.GraphValueMax[3], 0.0f);
    g.GraphXFactor[1] = g.GraphXFactor[2] = 0;
    c.Cls();
    g.RedrawGraphs(c, rig.setup, rig.state);
    QCOMPARE(c.image(), blank);

    // Kept proportional, the empty range opens up about 0 and can be drawn.
    rig.setup.ProportionalGraphs = 1;
    g.GraphRange(rig.setup, rig.state, 3, CollisionState::Force, 0, rig.state.ContactStart / 2);
    QVERIFY(g.GraphDrawable(3));
    QCOMPARE(g.GraphShownValueMin[3], -g.GraphShownValueMax[3]);

    // Bodies without mass swap velocities under no force: no scale, and nothing fails.
    CollisionRig massless(CollisionSetup::ContinuousForce);
    massless.setup.Mass = {0, 0};
    QCOMPARE(massless.setUpPage(SideView), CollisionState::CodeReady);
    QCOMPARE(massless.run(), 100);
    QNEAR(massless.state.FinalVx[1], 50, 1e-4);
    QVERIFY(!massless.graphs.GraphDrawable(3));
}

void tst_collision_drawing::contactZoom()
{
    CollisionRig rig(CollisionSetup::ContinuousForce);
    rig.setup.GraphDistance = 0;
    rig.setUpPage(SideView);
    rig.run();
    CollisionGraphs& g = rig.graphs;
    const CollisionState& s = rig.state;
    // With velocity and force shown, the second panel is the force graph.
    g.SelectedGraph = g.PanelAt(g.PanelTop[2] + 100);
    QCOMPARE(g.GraphQuantity[g.SelectedGraph], CollisionState::Force);
    g.GraphZoomed = 1;
    g.ZoomGraph(
        rig.canvas, rig.setup, rig.state, s.ContactStart - 12 * s.TimeStep / 2, s.ContactStart + 36 * s.TimeStep / 2);
    QNEAR(g.GraphTimeMin[4], 1.6 - 6 * 0.032, 1e-5);
    QNEAR(g.GraphTimeMax[4], 1.6 + 18 * 0.032, 1e-5);
    QNEAR(g.PanelBottom[4], 3 * 4935 / 4.0, 1e-2);
    QNEAR(g.GraphValueMax[4], 3125, 1);
    QNEAR(g.GraphValueMin[4], -3125, 1);

    // Body 2's triangle peaks at t_m in its colour; the ground is gone.
    const int x = int(rig.canvas.toDeviceX(s.ContactMiddle * g.GraphXFactor[4] + g.GraphXOffset[4]));
    const int y = int(rig.canvas.toDeviceY(3125 * g.GraphYFactor[4] + g.GraphYOffset[4]));
    bool peak = false;
    for (int dx = -2; dx <= 2; ++dx)
        for (int dy = -2; dy <= 2; ++dy)
            peak = peak || rig.canvas.pixelColor(x + dx, y + dy) == Rgb::RGB(255, 255, 80);
    QVERIFY(peak);
    QCOMPARE(rig.shown(2000, 4800), White);
}

QTEST_MAIN(tst_collision_drawing)
#include "tst_collision_drawing.moc"
