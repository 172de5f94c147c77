// The microscopic view with the whole window at twice the size (a double-density
// screen): its pictures are drawn at twice the resolution, show the same figures
// as at the ordinary size, and the physics does not notice.

#include "SampleSetup.h"
#include "widgets/CanvasWidget.h"
#include "canvas/Rgb.h"
#include "core/ScopedRandomSequence.h"
#include "microview/frmMicroView.h"
#include "model/Gas.h"
#include "model/Particle.h"
#include "shell/Forms.h"

#include <QCheckBox>
#include <QScrollBar>
#include <QtTest>

#include <cmath>
#include <cstdlib>
#include <vector>

namespace {

constexpr int32_t White = 0xFFFFFF;

// A top-, left- or right-wall sample as the view sets one up, with trails and grid,
// drawn and stepped on the given surface.
struct SampleRun
{
    std::vector<float> state;
    QImage picture;
};

SampleRun runSample(ImageCanvas& canvas, int16_t wall, bool filled)
{
    ScopedRandomSequence sequence;
    canvas.setScale(0, 0, 1905, 1785);
    Gas gas;
    setUpLikeTheView(gas, canvas, wall, 5);
    gas.setFilledMolecules(filled);
    gas.setLeaveTrail(true);
    gas.setGridOn(true);
    float sums[4] = {};
    for (int step = 0; step < 60; ++step)
        gas.ShowNextSnapshot(sums[0], sums[1], sums[2], sums[3]);
    SampleRun run;
    for (int16_t i = 1; i <= gas.NoOfMolecules(); ++i) {
        const Particle& m = gas.Molecule(i);
        run.state.insert(run.state.end(), {m.Xcoord(), m.Ycoord(), m.Vx(), m.Vy()});
    }
    run.state.insert(run.state.end(), sums, sums + 4);
    run.picture = canvas.image();
    return run;
}

// Whether something is drawn within one pixel of (x, y) of a picture that has
// `scale` device pixels to the pixel.
bool inkNear(const QImage& picture, int scale, int x, int y)
{
    for (int v = (y - 1) * scale; v < (y + 2) * scale; ++v)
        for (int u = (x - 1) * scale; u < (x + 2) * scale; ++u)
            if (u >= 0 && v >= 0 && u < picture.width() && v < picture.height()
                && Rgb::fromQRgb(picture.pixel(u, v)) != White)
                return true;
    return false;
}

int inkedPixels(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += Rgb::fromQRgb(picture.pixel(x, y)) != White ? 1 : 0;
    return count;
}

// The figures of the fine picture, taken back to the ordinary size, are those of
// the ordinary one: the drawn area is the same within a tenth (a pen or an outline
// drawn one device pixel wide at twice the resolution would halve it), and nearly
// every drawn pixel of either has something drawn within one pixel in the other.
// Not quite every one: where an exclusive-or outline crosses a trail dot the two
// resolutions cancel slightly different pixels.
void compareFigures(const QImage& ordinary, const QImage& fine)
{
    QCOMPARE(fine.size(), ordinary.size() * 2);
    int unmatched = 0;
    for (int y = 0; y < ordinary.height(); ++y)
        for (int x = 0; x < ordinary.width(); ++x)
            if (Rgb::fromQRgb(ordinary.pixel(x, y)) != White && !inkNear(fine, 2, x, y))
                ++unmatched;
    for (int y = 0; y < fine.height(); ++y)
        for (int x = 0; x < fine.width(); ++x)
            if (Rgb::fromQRgb(fine.pixel(x, y)) != White && !inkNear(ordinary, 1, x / 2, y / 2))
                ++unmatched;
    const double ordinaryInk = inkedPixels(ordinary);
    const double fineInk = inkedPixels(fine) / 4.0;
    QVERIFY2(unmatched < (ordinaryInk + 4 * fineInk) / 100, qPrintable(QString("%1 unmatched").arg(unmatched)));
    QVERIFY2(std::abs(fineInk - ordinaryInk) < ordinaryInk / 10,
             qPrintable(QString("%1 against %2").arg(fineInk).arg(ordinaryInk)));
}

} // namespace

class MicroViewScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void samplePictureIsTheSameAtEveryScale_data()
    {
        QTest::addColumn<int>("wall");
        QTest::addColumn<bool>("filled");
        QTest::newRow("left wall, outlines") << 0 << false;
        QTest::newRow("right wall, filled") << 1 << true;
        QTest::newRow("top wall, outlines") << 2 << false;
    }

    void samplePictureIsTheSameAtEveryScale()
    {
        QFETCH(int, wall);
        QFETCH(bool, filled);
        ImageCanvas ordinary(127, 119);
        ImageCanvas fine(254, 238);
        fine.setPixelRatio(2);
        const SampleRun atOne = runSample(ordinary, int16_t(wall), filled);
        const SampleRun atTwo = runSample(fine, int16_t(wall), filled);
        // The molecules move in twips: the resolution changes nothing of it.
        QCOMPARE(atTwo.state, atOne.state);
        compareFigures(atOne.picture, atTwo.picture);
    }

    void viewDrawsAtTheScreensResolution()
    {
        frmMicroView& view = Form<frmMicroView>();
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QCOMPARE(view.devicePixelRatioF(), 2.0);
        auto* sample = view.findChild<CanvasWidget*>("picDraw(2)");
        QCOMPARE(sample->canvas().DeviceWidth(), 2 * sample->width());
        QCOMPARE(sample->canvas().PixelRatio(), 2.0);
        // The indicators work in the window's pixels, as at the ordinary size: the
        // vertical one, drawn last, has its bar's corners at its middle.
        auto* indicator = view.findChild<CanvasWidget*>("picForceYIndicator");
        QCOMPARE(indicator->canvas().ScaleHeight(), float(indicator->height()));
        view.SimulationTimer_Timer();
        QCOMPARE(view.panel().IndicatorCorners()[1].x, int32_t(indicator->width()));
        QCOMPARE(view.panel().IndicatorCorners()[1].y, int32_t(std::nearbyint(indicator->height() / 2.0)));

        // On screen the picture is copied pixel for pixel, not enlarged.
        const QImage shown = sample->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(shown.size(), sample->canvas().image().size());
        QImage drawn = sample->canvas().image();
        drawn.setDevicePixelRatio(shown.devicePixelRatio());
        QCOMPARE(shown, drawn);
        Unload<frmMicroView>();
    }
};

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    MicroViewScaleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_microview_scale.moc"
