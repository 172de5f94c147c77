#include "WindowChecks.h"

#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"
#include "microview/ForceStatistics.h"
#include "microview/MacroPanel.h"
#include "microview/TickDriver.h"

#include <QEventLoop>
#include <QLocale>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

const int32_t Red = Rgb::RGB(255, 0, 0);

// An indicator surface as the view designs them: pixels, red pen and solid red fill.
ImageCanvas indicator(int width, int height)
{
    ImageCanvas box(width, height);
    box.setScalePixels();
    box.setForeColor(Red);
    box.setFillStyle(Canvas::Solid);
    box.setFillColor(Red);
    return box;
}

// One letter per pixel: K black, W white, R red, ? anything else.
QString colours(const ImageCanvas& canvas, std::initializer_list<QPoint> points)
{
    QString letters;
    for (const QPoint& point : points) {
        const int32_t colour = canvas.pixelColor(point.x(), point.y());
        letters += colour == 0 ? 'K' : colour == Rgb::RGB(255, 255, 255) ? 'W' : colour == Red ? 'R' : '?';
    }
    return letters;
}

} // namespace

class MicroViewHelpersTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(closeLeftoverWindows(), 0); }
    void labelsAndMeansOfSuccessiveTicks();
    void indicatorsGrowFromTheCentreAndTheGridMoves();
    void tickDriverStopsWithinAWakeUp();
};

void MicroViewHelpersTest::labelsAndMeansOfSuccessiveTicks()
{
    QLocale::setDefault(QLocale::c());
    ForceStatistics statistics;
    const ForceReadout r = statistics.UpdateForceIndicators(-12.5F, 10.25F, -3.0F, 0.0F);
    QCOMPARE(QStringList({r.CurrentLeft, r.CurrentRight, r.CurrentTop, r.MeanLeft, r.MeanRight, r.MeanTop,
                 r.MeanHorizontal, r.MeanVertical}),
        QStringList({"  Fleft = -12.5", "  Fright = 10.25", "  Ftop = -3.0", "<Fleft> = -12.5", "<Fright> = 10.25",
            "<Ftop> = -3.0", "<Fhorizontal> = -2.25", "<Fvertical> = -3.0"}));

    // A quiet tick halves the means; the totals stay the sums, not the means.
    ForceReadout second = statistics.UpdateForceIndicators(0, 0, 0, 0);
    QCOMPARE(second.CurrentLeft, QString("  Fleft = 0.0"));
    QCOMPARE(second.MeanLeft, QString("<Fleft> = -6.25"));
    QCOMPARE(second.MeanTop, QString("<Ftop> = -1.5"));
    QCOMPARE(second.H, -2.25F);
    QCOMPARE(second.V, -3.0F);

    // Values are rounded for the labels but summed unrounded.
    statistics.InitialiseCounters();
    statistics.UpdateForceIndicators(-0.004F, 0.333F, 0, 0);
    ForceReadout third = statistics.UpdateForceIndicators(-0.004F, 0.333F, 0, 0);
    QCOMPARE(third.CurrentRight, QString("  Fright = 0.33"));
    QCOMPARE(third.MeanRight, QString("<Fright> = 0.33"));
    QCOMPARE(statistics.SumRight(), 2.0 * double(0.333F));
    QCOMPARE(ForceStatistics::FormatForce(0.996), QString("1.0"));
    QCOMPARE(ForceStatistics::FormatForce(12345.678), QString("12345.68"));

    // The decimal separator is the user's, and no digits are grouped.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(ForceStatistics::FormatForce(-12345.5), QString("-12345,5"));
    QLocale::setDefault(QLocale::c());
}

void MicroViewHelpersTest::indicatorsGrowFromTheCentreAndTheGridMoves()
{
    ImageCanvas x = indicator(161, 9);
    ImageCanvas y = indicator(9, 129);
    MacroPanel panel;
    panel.setIndicatorScaleX(1.0F);
    panel.setIndicatorScaleY(1.0F);

    // No force: only the black centre lines.
    panel.UpdateIndicators(0, 0, x, y);
    QCOMPARE(colours(x, {{80, 4}, {60, 4}}) + colours(y, {{4, 64}, {4, 40}}), QString("KWKW"));

    // A first left total sets the scale to twice its size: a quarter bar on the left.
    panel.setIndicatorScaleY(0);
    panel.UpdateIndicators(-50, 0, x, y);
    QCOMPARE(panel.IndicatorScaleX(), 100.0F);
    QCOMPARE(colours(x, {{60, 4}, {30, 4}, {100, 4}}), QString("RWW"));

    // A smaller total keeps the scale and gives a shorter bar; the top wall's
    // negative total makes the vertical bar rise from the centre.
    panel.UpdateIndicators(25, -40, x, y);
    QCOMPARE(panel.IndicatorScaleY(), 80.0F);
    QCOMPARE(colours(x, {{90, 4}, {110, 4}, {60, 4}}) + colours(y, {{4, 45}, {4, 80}}), QString("RWWRW"));

    // A zero scale (cleared history) freezes an indicator until a non-zero total
    // sets the new scale.
    const QImage xBefore = x.image();
    const QImage yBefore = y.image();
    panel.setIndicatorScaleX(0);
    panel.setIndicatorScaleY(0);
    panel.UpdateIndicators(0, 0, x, y);
    QCOMPARE(x.image(), xBefore);
    panel.UpdateIndicators(-10, 0, x, y);
    QCOMPARE(panel.IndicatorScaleX(), 20.0F);
    QVERIFY(x.image() != xBefore);
    QCOMPARE(y.image(), yBefore);

    // A total shifts the grid by a ten-thousandth of itself, wrapped to one grid
    // period however large the step.
    panel.setGridOffsetX(199.99F);
    panel.setGridOffsetY(-199.99F);
    panel.UpdateIndicators(200, -200, x, y);
    QCOMPARE(panel.GridOffsetX(), 0.0F);
    QCOMPARE(panel.GridOffsetY(), 200.0F);
    panel.UpdateIndicators(-5e7F, 5e7F, x, y);
    QVERIFY(panel.GridOffsetX() >= -200 && panel.GridOffsetX() <= 200);
    QVERIFY(panel.GridOffsetY() >= -200 && panel.GridOffsetY() <= 200);

    // The panel in twips: lines every 200 twips (13.3 pixels), moved against the shift.
    ImageCanvas picture(161, 129);
    picture.setScale(0, 0, 2415, 1935);
    MacroPanel grid;
    grid.DrawMacroGrid(picture);
    QCOMPARE(colours(picture, {{13, 50}, {10, 50}, {45, 13}}), QString("KWK"));
    grid.setGridOffsetX(50);
    grid.setGridOffsetY(-100);
    grid.DrawMacroGrid(picture);
    QCOMPARE(colours(picture, {{10, 50}, {13, 50}, {45, 20}, {45, 13}}), QString("KWKW"));
}

void MicroViewHelpersTest::tickDriverStopsWithinAWakeUp()
{
    // A tick that stops the timer is the last one, even within a catch-up batch.
    int ticks = 0;
    std::unique_ptr<TickDriver> timer;
    timer = std::make_unique<TickDriver>([&] {
        if (++ticks % 3 == 0)
            timer->setEnabled(false);
    });
    timer->setEnabled(true);
    QTRY_COMPARE_WITH_TIMEOUT(ticks, 3, 2000);
    QEventLoop later;
    QTimer::singleShot(30, &later, &QEventLoop::quit);
    later.exec();
    QCOMPARE(ticks, 3);
    timer->setEnabled(true);
    QTRY_COMPARE_WITH_TIMEOUT(ticks, 6, 2000);
}

QTEST_MAIN(MicroViewHelpersTest)
#include "tst_microview_helpers.moc"
