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

namespace {

const int32_t White = Rgb::RGB(255, 255, 255);
const int32_t Red = Rgb::RGB(255, 0, 0);
const int32_t Black = 0;

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

void spin(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

class MicroViewHelpersTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(closeLeftoverWindows(), 0); }
    void labelsAndMeansOfSuccessiveTicks();
    void indicatorsGrowFromTheCentre();
    void gridShiftWrapsAndMovesTheLines();
    void tickDriverStopsWithinAWakeUp();
};

void MicroViewHelpersTest::labelsAndMeansOfSuccessiveTicks()
{
    QLocale::setDefault(QLocale::c());
    ForceStatistics statistics;
    ForceReadout first = statistics.UpdateForceIndicators(-12.5F, 10.25F, -3.0F, 0.0F);
    QCOMPARE(first.CurrentLeft, QString("  Fleft = -12.5"));
    QCOMPARE(first.CurrentRight, QString("  Fright = 10.25"));
    QCOMPARE(first.CurrentTop, QString("  Ftop = -3.0"));
    QCOMPARE(first.MeanLeft, QString("<Fleft> = -12.5"));
    QCOMPARE(first.MeanRight, QString("<Fright> = 10.25"));
    QCOMPARE(first.MeanTop, QString("<Ftop> = -3.0"));
    QCOMPARE(first.MeanHorizontal, QString("<Fhorizontal> = -2.25"));
    QCOMPARE(first.MeanVertical, QString("<Fvertical> = -3.0"));
    QCOMPARE(first.H, -2.25F);
    QCOMPARE(first.V, -3.0F);

    // A quiet tick halves the means; the totals stay the sums, not the means.
    ForceReadout second = statistics.UpdateForceIndicators(0, 0, 0, 0);
    QCOMPARE(second.CurrentLeft, QString("  Fleft = 0.0"));
    QCOMPARE(second.MeanLeft, QString("<Fleft> = -6.25"));
    QCOMPARE(second.MeanTop, QString("<Ftop> = -1.5"));
    QCOMPARE(second.H, -2.25F);

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

void MicroViewHelpersTest::indicatorsGrowFromTheCentre()
{
    ImageCanvas x = indicator(161, 9);
    ImageCanvas y = indicator(9, 129);
    MacroPanel panel;
    panel.setIndicatorScaleX(1.0F);
    panel.setIndicatorScaleY(1.0F);

    // No force: only the black centre lines.
    panel.UpdateIndicators(0, 0, x, y);
    QCOMPARE(x.pixelColor(80, 4), Black);
    QCOMPARE(x.pixelColor(60, 4), White);
    QCOMPARE(y.pixelColor(4, 64), Black);
    QCOMPARE(y.pixelColor(4, 40), White);

    // A first left total sets the scale to twice its size: a quarter bar on the left.
    panel.setIndicatorScaleY(0);
    panel.UpdateIndicators(-50, 0, x, y);
    QCOMPARE(panel.IndicatorScaleX(), 100.0F);
    QCOMPARE(x.pixelColor(60, 4), Red);
    QCOMPARE(x.pixelColor(30, 4), White);
    QCOMPARE(x.pixelColor(100, 4), White);

    // A smaller total keeps the scale and gives a shorter bar; the top wall's
    // negative total makes the vertical bar rise from the centre.
    panel.UpdateIndicators(25, -40, x, y);
    QCOMPARE(panel.IndicatorScaleX(), 100.0F);
    QCOMPARE(panel.IndicatorScaleY(), 80.0F);
    QCOMPARE(x.pixelColor(90, 4), Red);
    QCOMPARE(x.pixelColor(110, 4), White);
    QCOMPARE(x.pixelColor(60, 4), White);
    QCOMPARE(y.pixelColor(4, 45), Red);
    QCOMPARE(y.pixelColor(4, 80), White);

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
    QCOMPARE(panel.IndicatorScaleY(), 0.0F);
    QVERIFY(x.image() != xBefore);
    QCOMPARE(y.image(), yBefore);
}

void MicroViewHelpersTest::gridShiftWrapsAndMovesTheLines()
{
    ImageCanvas x = indicator(161, 9);
    ImageCanvas y = indicator(9, 129);
    MacroPanel panel;
    panel.setGridOffsetX(199.99F);
    panel.setGridOffsetY(-199.99F);
    panel.UpdateIndicators(200, -200, x, y);
    QCOMPARE(panel.GridOffsetX(), 0.0F);
    QCOMPARE(panel.GridOffsetY(), 200.0F);
    // However large the step, the shift stays within one grid period.
    panel.UpdateIndicators(-5e7F, 5e7F, x, y);
    QVERIFY(panel.GridOffsetX() >= -200 && panel.GridOffsetX() <= 200);
    QVERIFY(panel.GridOffsetY() >= -200 && panel.GridOffsetY() <= 200);

    // The panel in twips: lines every 200 twips (13.3 pixels), moved against the shift.
    ImageCanvas picture(161, 129);
    picture.setScale(0, 0, 2415, 1935);
    MacroPanel still;
    still.DrawMacroGrid(picture);
    QCOMPARE(picture.pixelColor(13, 50), Black);
    QCOMPARE(picture.pixelColor(10, 50), White);
    QCOMPARE(picture.pixelColor(45, 13), Black);
    MacroPanel moved;
    moved.setGridOffsetX(50);
    moved.setGridOffsetY(-100);
    moved.DrawMacroGrid(picture);
    QCOMPARE(picture.pixelColor(10, 50), Black);
    QCOMPARE(picture.pixelColor(13, 50), White);
    QCOMPARE(picture.pixelColor(45, 20), Black);
    QCOMPARE(picture.pixelColor(45, 13), White);
}

void MicroViewHelpersTest::tickDriverStopsWithinAWakeUp()
{
    // A tick that stops the timer is the last one, even within a catch-up batch.
    int ticks = 0;
    TickDriver* driver = nullptr;
    TickDriver timer([&] {
        if (++ticks % 3 == 0)
            driver->setEnabled(false);
    });
    driver = &timer;
    spin(20);
    QCOMPARE(ticks, 0);
    timer.setEnabled(true);
    QTRY_COMPARE_WITH_TIMEOUT(ticks, 3, 2000);
    spin(30);
    QCOMPARE(ticks, 3);
    timer.setEnabled(true);
    QTRY_COMPARE_WITH_TIMEOUT(ticks, 6, 2000);
}

QTEST_MAIN(MicroViewHelpersTest)
#include "tst_microview_helpers.moc"
