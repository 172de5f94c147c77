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

// A free molecule in a 1000 x 800 box (user units = pixels / 10) with the given wall,
// target speed (written first: it pulls the speed), centre and velocity.
std::unique_ptr<Particle> freeMolecule(ImageCanvas& canvas, int16_t wall, float wallCoord, float vmax = 0,
                                       float x = 0, float y = 0, float vx = 0, float vy = 0)
{
    auto m = std::make_unique<Particle>();
    m->setCanvas(&canvas);
    m->setWall(wall);
    m->setWallCoord(wallCoord);
    m->setRadius(10);
    m->setVxmax(vmax);
    m->setVymax(vmax);
    m->setXcoord(x);
    m->setYcoord(y);
    m->setVx(vx);
    m->setVy(vy);
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
        // A free molecule's speed is pulled one step towards a new target.
        const std::pair<float, float> pulls[] = {{130, 117}, {-70, -77}, {120, 100}, {-80, -100}, {0, 0}};
        for (const auto& [before, after] : pulls) {
            m.setVx(before);
            m.setVy(before);
            m.setVxmax(100);
            m.setVymax(100);
            QCOMPARE(m.Vx(), after);
            QCOMPARE(m.Vy(), after);
            QCOMPARE(m.DirectionX(), int16_t((before > 0) - (before < 0)));
        }
        m.setVxmax(40);
        m.setMass(2);
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

    void wallsMeasureAndReflect()
    {
        // Left wall at 100, right wall at 900: the disc edge passes it moving towards it.
        const std::tuple<int16_t, float, float, float> cases[] = {{0, 100, 159, -50}, {1, 900, 841, 50}};
        for (const auto& [wall, wallCoord, x, vx] : cases) {
            auto m = freeMolecule(canvas, wall, wallCoord, 50, x, 0, vx);
            move(*m);
            QCOMPARE(impulseX, 2 * vx);
            QCOMPARE(m->Vx(), -vx);
            QCOMPARE(m->DirectionX(), int16_t(vx < 0 ? 1 : -1));
            QCOMPARE(impulseY, 7.0f);
        }

        // Top wall at 200, twice the equilibrium temperature: the wall halves the
        // speed, the open bottom doubles it (and regulation then trims it).
        auto top = freeMolecule(canvas, 2, 200, 20, 0, 249, 0, -40);
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

        top->setVy(-40);
        for (const auto& [temperature, equilibrium] : {std::pair<int16_t, int16_t>{0, 165}, {330, 0}}) {
            top->setYcoord(249);
            QVERIFY_THROWS_EXCEPTION(RunTimeError, move(*top, 1, temperature, equilibrium));
        }
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
            auto m = freeMolecule(canvas, c.wall, c.wall == 2 ? 200 : 300, 20, c.x - c.vx, c.y - c.vy, c.vx, c.vy);
            move(*m);
            QCOMPARE(m->Xcoord(), std::isnan(c.expectX) ? c.x : c.expectX);
            QCOMPARE(m->Ycoord(), std::isnan(c.expectY) ? c.y : c.expectY);
            QCOMPARE(m->Vx(), c.wall == 3 ? c.vx : -c.vx);
            QCOMPARE(m->Vy(), -c.vy);
            QCOMPARE(impulseX, 7.0f);
        }
    }

    void boundMoleculesFollowSiteAndAmplitude()
    {
        // The site moves one unit towards the balance of the force and the lattice's
        // pull; in y the force is carried by every row above.
        struct Case {
            float kapaX;
            int16_t row;
            float x, y;
        };
        const Case cases[] = {{1, 1, 503, 400.5f}, {2, 2, 501, 402.5f}, {1.5f, 1, 502, 400.5f}};
        for (const Case& c : cases) {
            auto m = freeMolecule(canvas, 3, 300, 0, 500, 400);
            m->setOriginalXCenter(500);
            m->setXCenter(502);
            m->setLatticeKapaX(c.kapaX);
            m->setRow(c.row);
            m->setOriginalYCenter(400);
            m->setYCenter(401.5f);
            m->setLatticeKapaY(1);
            m->Move(1, 3, 1, false, 300, 300, impulseX, impulseY);
            QCOMPARE(m->XCenter(), c.x);
            QCOMPARE(m->YCenter(), c.y);
        }

        // A bound molecule turns at its amplitude.
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
        auto m = freeMolecule(canvas, 3, 300, 0, 500, 400);
        m->setRadius(30);
        m->setColor(Red);
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
        QVERIFY_THROWS_EXCEPTION(RunTimeError, Particle().setMass(1)); // no surface to measure
    }
};

QTEST_GUILESS_MAIN(tst_particle)
#include "tst_particle.moc"
