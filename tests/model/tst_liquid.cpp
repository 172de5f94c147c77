#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "core/RunTimeError.h"
#include "core/ScopedRandomSequence.h"
#include "model/LiquidMolecules.h"

#include <QtTest>

#include <array>

namespace {

// The introduction's picture: 4575 x 4935 twips on 305 x 329 pixels.
void setUpPicture(ImageCanvas& canvas)
{
    canvas.resize(305, 329);
    canvas.setScale(0, 0, 4575, 4935);
}

LiquidMolecules::Layout layoutOf(int16_t rows, int16_t columns, float level, int16_t radius)
{
    LiquidMolecules::Layout layout;
    layout.rows = rows;
    layout.columns = columns;
    layout.liquidLevel = level;
    layout.radius = radius;
    layout.groupColor[0] = Rgb::RGB(255, 0, 0);
    layout.groupColor[1] = Rgb::RGB(0, 0, 255);
    return layout;
}

// Molecules 1 and the last (x, y, vx, vy), then the sums of every molecule's x, y,
// vx and vy.
using State = std::array<double, 12>;

State stateOf(const LiquidMolecules& molecules)
{
    const Particle& a = molecules.Molecule(1);
    const Particle& z = molecules.Molecule(molecules.MoleculeCount());
    State state = {a.Xcoord(), a.Ycoord(), a.Vx(), a.Vy(), z.Xcoord(), z.Ycoord(), z.Vx(), z.Vy(), 0, 0, 0, 0};
    for (int16_t k = 1; k <= molecules.MoleculeCount(); ++k) {
        const Particle& m = molecules.Molecule(k);
        state[8] += m.Xcoord();
        state[9] += m.Ycoord();
        state[10] += m.Vx();
        state[11] += m.Vy();
    }
    return state;
}

} // namespace

Q_DECLARE_METATYPE(State)

class tst_liquid : public QObject
{
    Q_OBJECT

private slots:
    // Any change to the molecules' motion, rebounds, collisions, their order or
    // their number widths shows here: a fixed random sequence, many steps with the
    // partition in, then many with it taken out, and the exact state after each.
    void manyStepsArePinned_data()
    {
        QTest::addColumn<int16_t>("rows");
        QTest::addColumn<int16_t>("columns");
        QTest::addColumn<float>("level");
        QTest::addColumn<int16_t>("radius");
        QTest::addColumn<State>("partitioned");
        QTest::addColumn<State>("open");
        QTest::newRow("page 6, 6 x 5") << int16_t(6) << int16_t(5) << 2600.0f << int16_t(150)
                                       << State{2083.20947265625, 3730.027587890625, -21.333965301513672,
                                              -7.3393144607543945, 2921.81298828125, 3041.3466796875,
                                              4.6113886833190918, -11.058953285217285, 63771.119140625,
                                              105228.74755859375, -46.423577547073364, 23.387764904648066}
                                       << State{2494.875244140625, 3115.73193359375, -6.0129523277282715,
                                              -11.09819221496582, 3191.858154296875, 3362.732177734375,
                                              9.0694208145141602, 11.348507881164551, 68105.556884765625,
                                              105643.90673828125, -55.502434372901917, 60.88011634349823};
        QTest::newRow("page 8, 3 x 4") << int16_t(3) << int16_t(4) << 2100.0f << int16_t(50)
                                       << State{1982.913330078125, 2721.576171875, -13.66624641418457,
                                              35.977523803710938, 2775.22998046875, 4043.375244140625,
                                              -14.262269973754883, -2.856198787689209, 27017.6015625,
                                              39640.900634765625, 70.931058406829834, -26.816833734512329}
                                       << State{2556.621337890625, 2506.22802734375, 10.919341087341309,
                                              -5.6392498016357422, 2177.340576171875, 2515.603759765625,
                                              -4.8161430358886719, -28.774280548095703, 28258.652954101563,
                                              36130.07373046875, -18.931663990020752, 44.407996654510498};
    }

    void manyStepsArePinned()
    {
        QFETCH(int16_t, rows);
        QFETCH(int16_t, columns);
        QFETCH(float, level);
        QFETCH(int16_t, radius);
        QFETCH(State, partitioned);
        QFETCH(State, open);
        ScopedRandomSequence sequence;
        ImageCanvas canvas;
        setUpPicture(canvas);
        LiquidMolecules molecules;
        molecules.Lay(canvas, layoutOf(rows, columns, level, radius));
        for (int step = 0; step < 3000; ++step)
            molecules.Step();
        compare(stateOf(molecules), partitioned, "partitioned");
        if (QTest::currentTestFailed())
            return;
        molecules.RemovePartition();
        for (int step = 0; step < 3000; ++step)
            molecules.Step();
        compare(stateOf(molecules), open, "open");
    }

private:
    static void compare(const State& actual, const State& pinned, const char* phase)
    {
        QString all;
        for (double value : actual)
            all += QString::number(value, 'g', 17) + ", ";
        for (int n = 0; n < int(actual.size()); ++n) {
            // The single molecules' values are floats; the sums are doubles.
            const double expected = n >= 8 ? pinned[size_t(n)] : double(float(pinned[size_t(n)]));
            QVERIFY2(actual[size_t(n)] == expected, qPrintable(QString("%1, value %2: %3").arg(phase).arg(n).arg(all)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_liquid)
#include "tst_liquid.moc"
