#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "core/RunTimeError.h"
#include "core/ScopedRandomSequence.h"
#include "core/SharedRandom.h"
#include "model/Particle.h"

#include <QtTest>

#include <cmath>
#include <memory>

namespace {

constexpr int32_t Red = Rgb::RGB(255, 0, 0);
constexpr int32_t White = Rgb::RGB(255, 255, 255);

// The first number of the fixed sequence that a test starts from.
float firstRandom()
{
    ScopedRandomSequence sequence;
    return SharedRandom::next();
}

// A free molecule in a 1000 x 800 box (user units = pixels / 10) with the given wall.
std::unique_ptr<Particle> freeMolecule(ImageCanvas& canvas, int16_t wall, float wallCoord)
{
    auto m = std::make_unique<Particle>();
    m->setCanvas(&canvas);
    m->setWall(wall);
    m->setWallCoord(wallCoord);
    m->setRadius(10);
    return m;
}

} // namespace

class tst_particle : public QObject
{
    Q_OBJECT

private:
    ImageCanvas canvas{100, 80};
    float impulseX = 0;
    float impulseY = 0;

    void move(Particle& m, float dt = 1, int16_t temperature = 300, int16_t equilibrium = 300)
    {
        m.Move(dt, 0, 0, false, temperature, equilibrium, impulseX, impulseY);
    }

private slots:
    void init()
    {
        canvas.setScale(0, 0, 1000, 800);
        canvas.setDrawMode(Canvas::XorPen);
        canvas.Cls();
        impulseX = 7;
        impulseY = 7;
    }

    void propertyWritesKeepTheirRules()
    {
        ScopedRandomSequence sequence;
        Particle m;
        m.setCanvas(&canvas);
        m.setVxmax(40);
        m.setMass(2);
        QCOMPARE(m.OmegaX(), 0.0f);
        QCOMPARE(m.Xo(), 2000.0f);
        QCOMPARE(m.Yo(), 1600.0f);
        QCOMPARE(m.Vxo(), 40.0f);

        // Springs act only once mass is written again.
        m.setKapaX(8);
        QCOMPARE(m.OmegaX(), 0.0f);
        m.setVx(500);
        m.setVxmax(40);
        QCOMPARE(m.Vx(), 500.0f);
        m.setMass(2);
        QCOMPARE(m.OmegaX(), 2.0f);
        m.setXo(10);
        QCOMPARE(m.Vxo(), 20.0f);

        // A bound molecule's speed for its displacement: plain difference under the root.
        m.setVx(-3.5);
        QCOMPARE(m.DirectionX(), int16_t(-1));
        m.setXCenter(100);
        for (int k = 0; k < 6; ++k) {
            m.setXcoord(106);
            QCOMPARE(std::fabs(m.Vx()), 4.0f);
            QCOMPARE(m.DirectionX(), int16_t(-1));
        }
        m.setXcoord(110);
        QCOMPARE(m.Vx(), 0.0f);

        m.setWallCoord(2.5);
        QCOMPARE(m.WallCoord(), 2.0f);
        m.setWallCoord(3.5);
        QCOMPARE(m.WallCoord(), 4.0f);

        canvas.setBackColor(Rgb::RGB(0, 0, 255));
        m.setColor(Red);
        QCOMPARE(m.DrawColor(), Rgb::RGB(255, 0, 255));
        canvas.setBackColor(White);
    }

    void freeSpeedIsPulledTowardsTheTarget()
    {
        Particle m;
        m.setCanvas(&canvas);
        const std::pair<float, float> cases[] = {{130, 117}, {-70, -77}, {120, 100}, {-80, -100}, {0, 0}};
        for (const auto& [before, after] : cases) {
            m.setVx(before);
            m.setVy(before);
            m.setVxmax(100);
            m.setVymax(100);
            QCOMPARE(m.Vx(), after);
            QCOMPARE(m.Vy(), after);
            QCOMPARE(m.DirectionX(), int16_t((before > 0) - (before < 0)));
        }
    }

    void wallsMeasureAndReflect()
    {
        // Left wall at 100: the disc edge passes it moving left.
        auto left = freeMolecule(canvas, 0, 100);
        left->setVxmax(50);
        left->setVx(-50);
        left->setXcoord(159);
        move(*left);
        QCOMPARE(impulseX, -100.0f);
        QCOMPARE(left->Vx(), 50.0f);
        QCOMPARE(left->DirectionX(), int16_t(1));
        QCOMPARE(impulseY, 7.0f);

        // Right wall at 900, and the same molecule passes the open left side unmeasured.
        auto right = freeMolecule(canvas, 1, 900);
        right->setVxmax(50);
        right->setVx(50);
        right->setXcoord(841);
        move(*right);
        QCOMPARE(impulseX, 100.0f);
        QCOMPARE(right->Vx(), -50.0f);
        impulseX = 7;
        right->setXcoord(30);
        move(*right);
        QCOMPARE(impulseX, 7.0f);

        // Top wall at 200, twice the equilibrium temperature: the wall halves the
        // speed, the open bottom doubles it (and regulation then trims it).
        auto top = freeMolecule(canvas, 2, 200);
        top->setVymax(20);
        top->setVy(-40);
        top->setYcoord(249);
        move(*top, 1, 330, 165);
        QCOMPARE(impulseY, -80.0f);
        QCOMPARE(top->Vy(), 20.0f);
        QCOMPARE(top->DirectionY(), int16_t(1));
        top->setYcoord(800);
        const float r = firstRandom();
        ScopedRandomSequence sequence;
        move(*top, 1, 330, 165);
        QCOMPARE(top->Vy(), -36.0f);
        QCOMPARE(top->Xcoord(), r * 1000);
        QCOMPARE(impulseY, -80.0f);

        top->setYcoord(249);
        top->setVy(-40);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, move(*top, 1, 0, 165));
        top->setYcoord(249);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, move(*top, 1, 330, 0));
    }

    void leavingMoleculesComeBackAlongTheOpenSide()
    {
        const float r = firstRandom();
        struct Case {
            int16_t wall;
            float x, y, vx, vy;
            float expectX, expectY; // NAN: unchanged
        };
        const Case cases[] = {
            {0, 1015, 400, 20, 0, NAN, r * 800},            // right side of a left-wall box
            {1, -15, 400, -20, 0, NAN, r * 800},            // left side of a right-wall box
            {2, -15, 400, -20, 0, NAN, r * 600 + 200},      // both sides of a top-wall box
            {2, 1015, 400, 20, 0, NAN, r * 600 + 200},
            {0, 500, -15, 0, -20, r * 700 + 300, NAN},      // top and bottom, gas side only
            {0, 500, 815, 0, 20, r * 700 + 300, NAN},
            {1, 500, 815, 0, 20, r * 300, NAN},
            {3, -15, -15, -20, -20, r * 300, NAN},          // no wall: x passes untouched
        };
        for (const Case& c : cases) {
            ScopedRandomSequence sequence;
            auto m = freeMolecule(canvas, c.wall, c.wall == 2 ? 200 : 300);
            m->setVxmax(20);
            m->setVymax(20);
            m->setXcoord(c.x - c.vx);
            m->setYcoord(c.y - c.vy);
            m->setVx(c.vx);
            m->setVy(c.vy);
            move(*m);
            QCOMPARE(m->Xcoord(), std::isnan(c.expectX) ? c.x : c.expectX);
            QCOMPARE(m->Ycoord(), std::isnan(c.expectY) ? c.y : c.expectY);
            QCOMPARE(m->Vx(), c.wall == 3 ? c.vx : -c.vx);
            QCOMPARE(m->Vy(), -c.vy);
            QCOMPARE(impulseX, 7.0f);
        }
    }

    void latticeSiteFollowsTheExternalForce()
    {
        const std::pair<float, float> cases[] = {{1, 1}, {2, -1}, {1.5f, 0}};
        for (const auto& [kapa, shift] : cases) {
            auto m = freeMolecule(canvas, 3, 300);
            m->setOriginalXCenter(500);
            m->setXCenter(502);
            m->setXcoord(500);
            m->setLatticeKapaX(kapa);
            m->Move(1, 3, 0, false, 300, 300, impulseX, impulseY);
            QCOMPARE(m->XCenter(), 502 + shift);
        }
        // In y the force is carried by every row above.
        for (int16_t row : {1, 2}) {
            auto m = freeMolecule(canvas, 3, 300);
            m->setRow(row);
            m->setOriginalYCenter(400);
            m->setYCenter(401.5f);
            m->setYcoord(400);
            m->setLatticeKapaY(1);
            m->Move(1, 0, 1, false, 300, 300, impulseX, impulseY);
            QCOMPARE(m->YCenter(), row == 1 ? 400.5f : 402.5f);
        }
    }

    void boundMoleculeTurnsAtItsAmplitude()
    {
        for (float d : {10.5f, 9.5f}) {
            ScopedRandomSequence sequence;
            auto m = freeMolecule(canvas, 3, 300);
            m->setKapaX(4);
            m->setMass(1);
            m->setVxmax(20);
            m->setXo(10);
            m->setXCenter(100);
            m->setYcoord(400);
            m->setXcoord(100 + d - 0.5f);
            m->setVx(5);
            move(*m, 0.1f);
            const float expected = d > 10 ? -2 * std::sqrt(10.25f) : 2 * std::sqrt(9.75f);
            QCOMPARE(m->Vx(), expected);
            QCOMPARE(m->DirectionX(), int16_t(d > 10 ? -1 : 1));
            QCOMPARE(m->Xo(), 10.0f);
        }
    }

    void centreLineIsDrawnAndErasedWithTheDisc()
    {
        auto m = freeMolecule(canvas, 3, 300);
        m->setRadius(30);
        m->setColor(Red);
        m->setXcoord(500);
        m->setYcoord(400);
        m->setXCenter(900);
        m->setYCenter(400);
        const QImage blank = canvas.image();
        for (bool line : {false, true}) {
            m->DrawYourself(line);
            QCOMPARE(canvas.pixelColor(50, 42), Red);
            QCOMPARE(canvas.pixelColor(80, 40), line ? Red : White);
            m->EraseYourself(line);
            QCOMPARE(canvas.image(), blank);
        }
        Particle withoutSurface;
        QVERIFY_THROWS_EXCEPTION(RunTimeError, withoutSurface.setMass(1));
    }
};

QTEST_GUILESS_MAIN(tst_particle)
#include "tst_particle.moc"
