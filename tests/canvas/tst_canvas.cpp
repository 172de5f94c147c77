#include "canvas/ImageCanvas.h"
#include "canvas/Rgb.h"

#include <QtTest>

#include <functional>

using Rgb::RGB;

namespace {

constexpr int32_t White = 0xFFFFFF;
constexpr int32_t Red = RGB(255, 0, 0);
constexpr int32_t Blue = RGB(0, 0, 255);

int countPixels(const ImageCanvas& canvas, const std::function<bool(int32_t)>& test)
{
    int n = 0;
    for (int y = 0; y < canvas.DeviceHeight(); ++y)
        for (int x = 0; x < canvas.DeviceWidth(); ++x)
            n += test(canvas.pixelColor(x, y)) ? 1 : 0;
    return n;
}

// A 100 x 80 pixel surface with a user scale of 1000 x 800 units.
ImageCanvas makeCanvas()
{
    ImageCanvas canvas(100, 80);
    canvas.setScale(0, 0, 1000, 800);
    canvas.Cls();
    return canvas;
}

} // namespace

class CanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void userScaleMapsToPixels();
    void twipScaleFollowsTheSize();
    void lineVariantsAndCurrentPoint();
    void xorCircleCombinesEachPixelOnce();
    void transparentFiguresChangeOnlyTheirOutline();
    void xorBoxesAndWideLinesRestoreWhenDrawnTwice();
    void copyModeDrawsTrueColours();
    void windingPolygon();
    void clsClearsToThePicture();
    void aKeptCopyOfThePictureStaysAsItWas();
    void pixelRatioDrawsTheSameFiguresFiner();
};

void CanvasTest::userScaleMapsToPixels()
{
    ImageCanvas canvas = makeCanvas();
    canvas.PSet(505, 405, Red);
    QCOMPARE(canvas.pixelColor(50, 40), Red);

    // A negative height turns y upwards: the bottom-left corner is the origin.
    canvas.setScale(0, 800, 1000, -800);
    canvas.Cls();
    canvas.PSet(5, 5, Blue);
    QCOMPARE(canvas.pixelColor(0, 79), Blue);

    canvas.setDrawWidth(3);
    canvas.setScale(0, 0, 1000, 800);
    canvas.Cls();
    canvas.PSet(505, 405, Red);
    QCOMPARE(countPixels(canvas, [](int32_t c) { return c == Red; }), 9);
}

void CanvasTest::twipScaleFollowsTheSize()
{
    ImageCanvas canvas(127, 119);
    QCOMPARE(canvas.ScaleWidth(), 1905.0f);
    QCOMPARE(canvas.ScaleHeight(), 1785.0f);
    canvas.resize(10, 20);
    QCOMPARE(canvas.ScaleWidth(), 150.0f);
    canvas.setScale(-5, -5, 10, 10);
    canvas.resize(30, 30);
    QCOMPARE(canvas.ScaleWidth(), 10.0f);
    canvas.setScalePixels();
    QCOMPARE(canvas.ScaleHeight(), 30.0f);
}

void CanvasTest::lineVariantsAndCurrentPoint()
{
    ImageCanvas canvas = makeCanvas();
    canvas.PSet(105, 105, Red);
    canvas.LineTo(505, 105, Blue);
    QCOMPARE(canvas.pixelColor(30, 10), Blue);
    QCOMPARE(canvas.CurrentX(), 505.0f);

    canvas.LineStep(105, 305, 400, 200, Blue);
    QCOMPARE(canvas.CurrentX(), 505.0f);
    QCOMPARE(canvas.CurrentY(), 505.0f);
    QCOMPARE(canvas.pixelColor(30, 40), Blue);

    canvas.PSet(705, 105, Red);
    canvas.LineToStep(0, 300, Blue);
    QCOMPARE(canvas.CurrentY(), 405.0f);
    QCOMPARE(canvas.pixelColor(70, 25), Blue);

    // Without a colour a line takes the foreground colour.
    canvas.setForeColor(RGB(0, 255, 0));
    canvas.Line(905, 105, 905, 705);
    QCOMPARE(canvas.pixelColor(90, 50), RGB(0, 255, 0));
}

void CanvasTest::xorCircleCombinesEachPixelOnce()
{
    ImageCanvas canvas = makeCanvas();
    const QImage before = canvas.image();
    canvas.setDrawMode(Canvas::XorPen);
    for (int16_t width = 1; width <= 3; ++width) {
        canvas.setDrawWidth(width);
        canvas.setFillStyle(Canvas::Solid);
        // Drawn in colour XOR background, so that it shows as red on white.
        canvas.setFillColor(Red ^ White);
        canvas.Circle(500, 400, 200, Red ^ White);
        const int red = countPixels(canvas, [](int32_t c) { return c == Red; });
        const int other = countPixels(canvas, [](int32_t c) { return c != Red && c != White; });
        QCOMPARE(other, 0);
        // Roughly the area of a disc of 20 pixels' radius.
        QVERIFY2(red > 1200 && red < 1320, qPrintable(QString::number(red)));
        canvas.Circle(500, 400, 200, Red ^ White);
        QCOMPARE(canvas.image(), before);
    }
    // A circle at a fractional position and radius restores too.
    canvas.Circle(123.4f, 345.6f, 37.7f, Blue ^ White);
    canvas.Circle(123.4f, 345.6f, 37.7f, Blue ^ White);
    QCOMPARE(canvas.image(), before);
}

void CanvasTest::transparentFiguresChangeOnlyTheirOutline()
{
    ImageCanvas canvas = makeCanvas();
    canvas.setFillStyle(Canvas::Transparent);
    canvas.setFillColor(Blue);
    canvas.Circle(500, 400, 200, Red);
    QCOMPARE(canvas.pixelColor(50, 40), White);
    QCOMPARE(countPixels(canvas, [](int32_t c) { return c == Blue; }), 0);
    QVERIFY(countPixels(canvas, [](int32_t c) { return c == Red; }) > 100);

    canvas.Cls();
    canvas.setDrawWidth(2);
    canvas.Box(100, 100, 595, 395, Red);
    QCOMPARE(canvas.pixelColor(30, 20), White);
    QCOMPARE(canvas.pixelColor(10, 10), Red);
    QCOMPARE(canvas.pixelColor(11, 11), Red);
    QCOMPARE(canvas.pixelColor(12, 12), White);
    QCOMPARE(canvas.pixelColor(59, 39), Red);
}

void CanvasTest::xorBoxesAndWideLinesRestoreWhenDrawnTwice()
{
    ImageCanvas canvas = makeCanvas();
    canvas.Line(0, 0, 1000, 800, Blue);
    const QImage before = canvas.image();
    canvas.setDrawMode(Canvas::XorPen);
    canvas.setFillStyle(Canvas::Solid);
    canvas.setFillColor(RGB(200, 200, 200) ^ White);
    for (int16_t width = 1; width <= 3; ++width) {
        canvas.setDrawWidth(width);
        canvas.Box(100, 100, 600, 500, White);
        // The fill shows grey inside, the outline black: each pixel once.
        QCOMPARE(canvas.pixelColor(20, 45), RGB(200, 200, 200));
        QCOMPARE(canvas.pixelColor(10 + width - 1, 45), 0);
        QCOMPARE(canvas.pixelColor(10 + width, 45), RGB(200, 200, 200));
        QCOMPARE(canvas.pixelColor(10, 45), 0);
        canvas.Box(100, 100, 600, 500, White);
        QCOMPARE(canvas.image(), before);
        canvas.Line(50, 700, 950, 120, Red ^ White);
        QVERIFY(countPixels(canvas, [](int32_t c) { return c == Red; }) >= 90 * width);
        canvas.Line(50, 700, 950, 120, Red ^ White);
        QCOMPARE(canvas.image(), before);
    }
}

void CanvasTest::copyModeDrawsTrueColours()
{
    ImageCanvas canvas = makeCanvas();
    canvas.setFillStyle(Canvas::Solid);
    canvas.setFillColor(Blue);
    canvas.Circle(500, 400, 200, Red);
    canvas.Circle(500, 400, 200, Red);
    QCOMPARE(canvas.pixelColor(50, 40), Blue);
    QCOMPARE(canvas.pixelColor(50, 20), Red);
    QCOMPARE(canvas.CurrentX(), 500.0f);
}

void CanvasTest::windingPolygon()
{
    ImageCanvas canvas = makeCanvas();
    canvas.setForeColor(Red);
    canvas.setFillColor(Blue);
    canvas.setFillStyle(Canvas::Solid);
    canvas.Polygon({{10, 10}, {40, 10}, {40, 30}, {10, 30}});
    QCOMPARE(canvas.pixelColor(10, 10), Red);
    QCOMPARE(canvas.pixelColor(25, 20), Blue);
    QCOMPARE(canvas.pixelColor(41, 20), White);

    // A star whose centre is wound twice is filled there too.
    canvas.Cls();
    canvas.Polygon({{50, 5}, {62, 70}, {20, 30}, {80, 30}, {38, 70}});
    QCOMPARE(canvas.pixelColor(50, 40), Blue);

    const QImage before = [&] { canvas.Cls(); return canvas.image(); }();
    canvas.setDrawMode(Canvas::XorPen);
    canvas.Polygon({{5, 5}, {60, 5}, {60, 8}, {5, 8}});
    canvas.Polygon({{5, 5}, {60, 5}, {60, 8}, {5, 8}});
    QCOMPARE(canvas.image(), before);
}

void CanvasTest::clsClearsToThePicture()
{
    ImageCanvas canvas = makeCanvas();
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(QColor(0, 128, 0));
    canvas.setBackColor(Blue);
    canvas.setPicture(picture);
    canvas.Cls();
    QCOMPARE(canvas.pixelColor(5, 5), RGB(0, 128, 0));
    QCOMPARE(canvas.pixelColor(50, 50), Blue);
    canvas.setPicture(QImage());
    canvas.Cls();
    QCOMPARE(canvas.pixelColor(5, 5), Blue);
}

void CanvasTest::aKeptCopyOfThePictureStaysAsItWas()
{
    ImageCanvas canvas = makeCanvas();
    const QImage kept = canvas.image();
    canvas.setDrawMode(Canvas::XorPen);
    canvas.setFillStyle(Canvas::Solid);
    canvas.setFillColor(Red ^ White);
    canvas.Circle(500, 400, 200, Red ^ White);
    canvas.setDrawMode(Canvas::CopyPen);
    canvas.Line(0, 0, 1000, 800, Blue);
    canvas.PSet(905, 105, Blue);
    canvas.Box(100, 600, 300, 700, Blue);
    QCOMPARE(canvas.pixelColor(50, 45), Red);
    QCOMPARE(canvas.pixelColor(90, 10), Blue);
    for (int y = 0; y < kept.height(); ++y)
        for (int x = 0; x < kept.width(); ++x)
            QCOMPARE(Rgb::fromQRgb(kept.pixel(x, y)), White);
}

void CanvasTest::pixelRatioDrawsTheSameFiguresFiner()
{
    // A 100 x 80 pixel picture on a double-density screen: 200 x 160 device pixels.
    ImageCanvas canvas(200, 160);
    canvas.setPixelRatio(2);
    QCOMPARE(canvas.ScaleWidth(), 1500.0f);
    canvas.setScalePixels();
    QCOMPARE(canvas.ScaleWidth(), 100.0f);
    QCOMPARE(canvas.ScaleHeight(), 80.0f);

    // Pens are as wide as at ratio 1 in the program's pixels: twice the device pixels.
    canvas.setScale(0, 0, 1000, 800);
    canvas.Line(505, 105, 505, 705, Red);
    // Device columns 101 and 102, from row 21 to row 142 where the pen ends.
    QCOMPARE(countPixels(canvas, [](int32_t c) { return c == Red; }), 2 * 122);
    QCOMPARE(canvas.pixelColor(101, 80), Red);
    QCOMPARE(canvas.pixelColor(102, 80), Red);
    canvas.Cls();
    canvas.setDrawWidth(3);
    canvas.PSet(505, 405, Red);
    QCOMPARE(countPixels(canvas, [](int32_t c) { return c == Red; }), 36);

    // Polygon points are the program's pixels too: the bar (10, 10) to (30, 20)
    // fills device pixels 20..59 by 20..39 with its outline.
    canvas.Cls();
    canvas.setDrawWidth(1);
    canvas.setFillStyle(Canvas::Solid);
    canvas.setFillColor(Red);
    canvas.setForeColor(Red);
    canvas.Polygon({{10, 10}, {30, 10}, {30, 20}, {10, 20}});
    QCOMPARE(canvas.pixelColor(20, 20), Red);
    QCOMPARE(canvas.pixelColor(61, 41), Red);
    QCOMPARE(canvas.pixelColor(62, 42), White);
    QCOMPARE(canvas.pixelColor(19, 19), White);

    // A circle's outline is two device pixels thick, and drawing it twice in
    // exclusive-or mode still restores the picture.
    canvas.Cls();
    const QImage before = canvas.image();
    canvas.setDrawMode(Canvas::XorPen);
    canvas.setFillStyle(Canvas::Transparent);
    canvas.Circle(500, 400, 200, Blue ^ White);
    const int ring = countPixels(canvas, [](int32_t c) { return c == Blue; });
    // About the area between radii of 40 and 38 device pixels.
    QVERIFY2(ring > 450 && ring < 520, qPrintable(QString::number(ring)));
    canvas.Circle(500, 400, 200, Blue ^ White);
    QCOMPARE(canvas.image(), before);
}

QTEST_GUILESS_MAIN(CanvasTest)
#include "tst_canvas.moc"
