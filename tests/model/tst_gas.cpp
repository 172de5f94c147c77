#include "SampleSetup.h"
#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "core/RunTimeError.h"
#include "core/ScopedRandomSequence.h"
#include "model/Gas.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int32_t Red = Rgb::RGB(255, 0, 0);
constexpr int32_t Blue = Rgb::RGB(0, 0, 255);
constexpr int32_t White = Rgb::RGB(255, 255, 255);

// Rows x columns molecules in a box of the given scale, one pixel per unit.
void setUpBox(Gas& gas, ImageCanvas& canvas, QRectF box, int16_t wall, float wallCoord, int16_t columns,
              int16_t rows)
{
    canvas.setScale(box.left(), box.top(), box.width(), box.height());
    canvas.resize(int32_t(box.width()), int32_t(box.height()));
    canvas.setDrawMode(Canvas::XorPen);
    gas.setCanvas(&canvas);
    gas.setWall(wall);
    gas.setWallCoord(wallCoord);
    gas.setColumnsOfMolecules(columns);
    gas.setRowsOfMolecules(rows);
    gas.InitialiseParticles();
}

// A square lattice as the microscopic view lays it out, drawn.
void setUpAndDrawLikeTheView(Gas& gas, ImageCanvas& canvas, int16_t wall, int16_t size)
{
    setUpLikeTheView(gas, canvas, wall, size);
    gas.DrawGas();
}

QPoint pixelOf(const Canvas& canvas, float x, float y)
{
    return QPoint(int(std::floor(canvas.toDeviceX(x))), int(std::floor(canvas.toDeviceY(y))));
}

int32_t centreColor(const ImageCanvas& canvas, const Particle& m)
{
    const QPoint p = pixelOf(canvas, m.Xcoord(), m.Ycoord());
    return canvas.pixelColor(p.x(), p.y());
}

} // namespace

class tst_gas : public QObject
{
    Q_OBJECT

private slots:
    void latticeIsLaidOutPerWall()
    {
        ScopedRandomSequence sequence;
        struct Case {
            int16_t wall;
            float left, wallCoord;
            float x[3], y[2];
        };
        const Case cases[] = {
            {0, 0, 100, {175, 250, 325}, {100, 200}},
            {1, 50, 250, {50, 100, 150}, {100, 200}},
            {2, 0, 120, {100, 200, 300}, {180, 240}},
        };
        for (const Case& c : cases) {
            ImageCanvas canvas;
            Gas gas;
            gas.setMoleculesKapaX(3);
            gas.setTemperature(49);
            setUpBox(gas, canvas, {c.left, 0, 400, 300}, c.wall, c.wallCoord, 3, 2);
            for (int16_t k = 1; k <= 6; ++k) {
                const Particle& m = gas.Molecule(k);
                QCOMPARE(m.Column(), int16_t((k + 1) / 2));
                QCOMPARE(m.Row(), int16_t(2 - k % 2));
                QCOMPARE(m.Xcoord(), c.x[m.Column() - 1]);
                QCOMPARE(m.Ycoord(), c.y[m.Row() - 1]);
                QCOMPARE(std::fabs(m.Vx()) + std::fabs(m.Vy()), 100.0f);
                QCOMPARE(m.OmegaX(), 0.0f);
            }
            QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.Molecule(7));
            QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.Molecule(0));
        }
    }

    void settingsReachEveryMoleculeUntilReleased()
    {
        ImageCanvas canvas;
        Gas gas;
        setUpBox(gas, canvas, {0, 0, 300, 300}, 2, 100, 2, 2);
        gas.DrawGas();
        gas.setMoleculesKapaX(5);
        gas.setMoleculesKapaY(20);
        gas.setMoleculesMass(20);
        gas.setLatticeKapaX(2);
        gas.setLatticeKapaY(3);
        gas.setMaxV(40);
        for (int16_t k = 1; k <= 4; ++k) {
            const Particle& m = gas.Molecule(k);
            QCOMPARE(m.OmegaX(), 0.5f);
            QCOMPARE(m.OmegaY(), 1.0f);
            QCOMPARE(m.LatticeKapaX() + m.LatticeKapaY(), 5.0f);
            QCOMPARE(m.Vxmax(), 40.0f);
        }
        gas.setRadius(12);
        const QImage afterRadius = canvas.image();
        gas.DrawGas();
        QCOMPARE(canvas.image(), afterRadius);

        // No molecules to make leaves the old ones; releasing empties the slots.
        const Particle* first = &gas.Molecule(1);
        gas.setRowsOfMolecules(0);
        gas.InitialiseParticles();
        gas.setRowsOfMolecules(2);
        QCOMPARE(&gas.Molecule(1), first);
        gas.DestroyMolecules();
        QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.Molecule(1));
        // Rows written after the last layout reach beyond the array.
        gas.setRowsOfMolecules(3);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.DestroyMolecules());
        gas.setRowsOfMolecules(200);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.setColumnsOfMolecules(200));
    }

    void temperatureSetsSpeedAndPhase()
    {
        ImageCanvas canvas;
        Gas gas;
        gas.setSolidLiquidTemperature(100);
        gas.setLiquidGasTemperature(200);
        setUpBox(gas, canvas, {0, 0, 300, 300}, 3, 100, 1, 1);
        Particle& m = gas.Molecule(1);
        m.setVx(500);
        gas.setTemperature(293);
        QCOMPARE(gas.MaxV(), int16_t(294));
        QCOMPARE(m.Vx(), 450.0f);
        QCOMPARE(m.Vymax(), 294.0f);

        struct Step {
            int16_t temperature, change, kapa;
            float flux;
        };
        const Step steps[] = {{300, 0, 0, 1}, {310, 0, 0, 1}, {299, 1, 0, 1}, {201, 1, 1, 1}, {202, 0, 1, 1},
                              {120, 1, 2, 70}, {90, 1, 3, 90}, {95, 0, 3, 90}};
        for (const Step& s : steps) {
            gas.setTemperature(s.temperature);
            QCOMPARE(gas.TemperatureChange(), s.change);
            QCOMPARE(gas.MoleculesKapaX(), s.kapa);
            QCOMPARE(gas.MoleculesKapaY(), s.kapa);
            QCOMPARE(m.FluxProbability(), s.flux);
            QCOMPARE(m.KapaX(), 0.0f);
        }
        // Repeated cooling climbs to the limit of the phase and stops there.
        gas.setMoleculesKapaX(4);
        gas.setMoleculesKapaY(49);
        for (int16_t t = 200; t > 195; --t)
            gas.setTemperature(t);
        QCOMPARE(gas.MoleculesKapaX(), int16_t(5));
        QCOMPARE(gas.MoleculesKapaY(), int16_t(49));
        for (int16_t t = 125; t > 120; --t)
            gas.setTemperature(t);
        QCOMPARE(gas.MoleculesKapaY(), int16_t(50));

        QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.setTemperature(32767));
    }

    void contactCollidesOnceAndClearsWhenApart()
    {
        ImageCanvas canvas;
        Gas gas;
        gas.setMoleculesMass(1);
        gas.setRadius(10);
        gas.setTimeStep(0.1f);
        setUpBox(gas, canvas, {0, 0, 1000, 400}, 5, 0, 2, 1);
        Particle& a = gas.Molecule(1);
        Particle& b = gas.Molecule(2);
        const auto start = [](Particle& m, float x, float vx) { m.setXcoord(x); m.setVx(vx); m.setVy(0); };
        start(a, 100, 10);
        start(b, 115, -10);
        float sums[4] = {};
        for (int step = 1; step <= 4; ++step) {
            gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
            QCOMPARE(a.CollisionInProgress(), 2.0);
            QVERIFY(std::fabs(a.Vx() + 10) < 1e-3f);
            QVERIFY(std::fabs(b.Vx() - 10) < 1e-3f);
            QCOMPARE(a.DirectionX(), int16_t(-1));
        }
        gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
        QCOMPARE(a.CollisionInProgress(), 0.0);
        QCOMPARE(a.Column(), int16_t(1));
        QCOMPARE(b.CollisionInProgress(), 0.0);
    }

    void impulsesAreSummedBySign()
    {
        const float wallCoords[] = {100, 900, 100};
        const float x[] = {115, 885, 500};
        const float expected[3][4] = {{-59, 2, 3, 4}, {1, 62, 3, 4}, {1, 2, -57, 4}};
        for (int16_t wall = 0; wall < 3; ++wall) {
            ImageCanvas canvas;
            Gas gas;
            gas.setRadius(10);
            gas.setTimeStep(1);
            gas.setTemperature(29);
            gas.setEquilibriumTemperature(30);
            setUpBox(gas, canvas, {0, 0, 1000, 1000}, wall, wallCoords[wall], 1, 1);
            Particle& m = gas.Molecule(1);
            m.setXcoord(x[wall]);
            m.setYcoord(wall == 2 ? 115 : 500);
            m.setVx(wall == 2 ? 0 : (wall == 0 ? -30 : 30));
            m.setVy(wall == 2 ? -30 : 0);
            float sums[4] = {1, 2, 3, 4};
            gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
            for (int k = 0; k < 4; ++k)
                QCOMPARE(sums[k], expected[wall][k]);
        }
    }

    void contactBitsAllowAtMost31Molecules()
    {
        ImageCanvas canvas;
        Gas gas;
        float sums[4] = {};
        setUpBox(gas, canvas, {0, 0, 400, 400}, 0, 100, 1, 31);
        gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
        setUpBox(gas, canvas, {0, 0, 400, 400}, 0, 100, 1, 32);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]));
    }

    void sampleIsDrawnSteppedAndStyled()
    {
        const QPoint grey[] = {{20, 60}, {110, 60}, {60, 20}};
        const QPoint face[] = {{43, 5}, {85, 5}, {5, 40}};
        const QPoint gasSide[] = {{120, 5}, {5, 5}, {5, 110}};
        for (int16_t wall = 0; wall < 3; ++wall) {
            ScopedRandomSequence sequence;
            ImageCanvas canvas(127, 119);
            Gas gas;
            setUpAndDrawLikeTheView(gas, canvas, wall, 3);
            QCOMPARE(canvas.pixelColor(grey[wall].x(), grey[wall].y()), Gas::WallColor);
            // Where the face crosses the box outline the exclusive-or pen mixes them.
            QCOMPARE(canvas.pixelColor(face[wall].x(), face[wall].y()), wall == 1 ? 0x373737 : 0);
            QCOMPARE(canvas.pixelColor(gasSide[wall].x(), gasSide[wall].y()), White);
            QList<QPoint> old;
            for (int16_t k = 1; k <= 9; ++k) {
                const QPoint c = pixelOf(canvas, gas.Molecule(k).Xcoord(), gas.Molecule(k).Ycoord());
                old << c;
                QCOMPARE(canvas.pixelColor(c.x(), c.y()), White);
                QVERIFY(canvas.pixelColor(c.x() + 4, c.y()) == Red || canvas.pixelColor(c.x() + 5, c.y()) == Red);
            }
            gas.setGridOn(true);
            for (int16_t k = 1; k <= 9; ++k) {
                const Particle& m = gas.Molecule(k);
                const QPoint site = pixelOf(canvas, m.XCenter(), m.YCenter());
                QCOMPARE(canvas.pixelColor(site.x(), 118), 0);
                QCOMPARE(canvas.pixelColor(gasSide[wall].x(), site.y()), 0);
            }
            gas.setGridOn(false);

            float sums[4] = {};
            const QImage before = canvas.image();
            gas.setTimeStep(0);
            gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
            QCOMPARE(canvas.image(), before);
            // A step with trails leaves a dot at every old (white) centre.
            gas.setTimeStep(0.1f);
            gas.setLeaveTrail(true);
            gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
            QCOMPARE(canvas.DrawMode(), Canvas::XorPen);
            for (const QPoint& p : old)
                QCOMPARE(canvas.pixelColor(p.x(), p.y()), Red);
            gas.setLeaveTrail(false);
            for (const QPoint& p : old)
                QCOMPARE(canvas.pixelColor(p.x(), p.y()), White);

            gas.setObserveSingleMolecule(false);
            QVERIFY(!gas.FilledMolecules() && !gas.LeaveTrail() && !gas.RandomDrawColor());
            gas.setRandomDrawColor(true);
            const int32_t first = gas.Molecule(2).color();
            QVERIFY(first != Red && first != gas.Molecule(3).color());
            gas.setFilledMolecules(true);
            QVERIFY(gas.Molecule(2).color() != first);
            gas.DrawGas();
            QCOMPARE(centreColor(canvas, gas.Molecule(2)), gas.Molecule(2).color());

            gas.setLeaveTrail(true);
            gas.setObserveSingleMolecule(true);
            QCOMPARE(centreColor(canvas, gas.Molecule(1)), Blue);
            QCOMPARE(centreColor(canvas, gas.Molecule(2)), White);
            QCOMPARE(gas.Molecule(2).color(), Red);
            QVERIFY(gas.Molecule(1).LeaveTrail() && !gas.Molecule(2).LeaveTrail());
            gas.setLeaveTrail(true);
            QVERIFY(!gas.Molecule(2).LeaveTrail());

            gas.setObserveSingleMolecule(false);
            QVERIFY(gas.FilledMolecules() && gas.RandomDrawColor() && gas.LeaveTrail());
            QVERIFY(gas.Molecule(2).LeaveTrail());
            QVERIFY(gas.Molecule(1).color() != Blue);
            QCOMPARE(centreColor(canvas, gas.Molecule(1)), gas.Molecule(1).color());
        }
    }

    // Any change to the physics, its order or its number widths shows here: per
    // wall, molecules 1 and 25 (x, y, vx, vy), the sums of every molecule's x, y, vx
    // and vy, and the four impulse sums.
    void tenThousandStepsArePinned()
    {
        const double pinned[3][16] = {
            {800.162781, 1420.10242, 132.868744, -231.196182, 1894.63806, 384.534058, 61.4108467, -192.020218,
             34685.10986328125, 21292.622299194336, -558.69909954071045, 227.67992496490479, -737623.625, 0, 0, 0},
            {547.372925, 712.298157, 274.750763, -127.023735, 732.710571, 573.611694, -92.7575912, -98.8366089,
             11859.071899414062, 24325.484638214111, -644.84867572784424, 118.91557234525681, 0, 742864.938, 0, 0},
            {1020.76495, 830.053467, -306.853729, -106.613976, 1760.6886, 1382.0575, 216.170685, -118.125168,
             19975.596199035645, 30897.458862304688, -662.7011833190918, 1569.7823333740234, 0, 0, -2403722.5, 0},
        };
        for (int16_t wall = 0; wall < 3; ++wall) {
            ScopedRandomSequence sequence;
            ImageCanvas canvas(127, 119);
            Gas gas;
            setUpAndDrawLikeTheView(gas, canvas, wall, 5);
            float sums[4] = {};
            for (int step = 0; step < 10000; ++step)
                gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
            const Particle& a = gas.Molecule(1);
            const Particle& z = gas.Molecule(25);
            double state[16] = {a.Xcoord(), a.Ycoord(), a.Vx(), a.Vy(), z.Xcoord(), z.Ycoord(), z.Vx(), z.Vy(),
                                0, 0, 0, 0, sums[0], sums[1], sums[2], sums[3]};
            for (int16_t k = 1; k <= 25; ++k) {
                const Particle& m = gas.Molecule(k);
                state[8] += m.Xcoord();
                state[9] += m.Ycoord();
                state[10] += m.Vx();
                state[11] += m.Vy();
            }
            for (int n = 0; n < 16; ++n) {
                const double expected = n >= 8 && n < 12 ? pinned[wall][n] : float(pinned[wall][n]);
                QVERIFY2(state[n] == expected,
                         qPrintable(QString("wall %1, value %2: %3").arg(wall).arg(n).arg(state[n], 0, 'g', 17)));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_gas)
#include "tst_gas.moc"
