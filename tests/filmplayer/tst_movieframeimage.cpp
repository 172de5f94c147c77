#include "filmplayer/MovieFrameImage.h"

#include <QVideoFrame>
#include <QtTest>

namespace {

// A 4 x 2 frame whose left half has one luma and chroma and whose right half
// another, written in the layout of the pixel format.
QVideoFrame twoColourFrame(QVideoFrameFormat::PixelFormat pixelFormat, QVideoFrameFormat::ColorRange range,
    const int (&left)[3], const int (&right)[3])
{
    QVideoFrameFormat format(QSize(4, 2), pixelFormat);
    format.setColorRange(range);
    QVideoFrame frame(format);
    if (!frame.map(QVideoFrame::WriteOnly))
        return {};
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x) {
            const int* yuv = x < 2 ? left : right;
            switch (pixelFormat) {
            case QVideoFrameFormat::Format_YUV420P:
                frame.bits(0)[y * frame.bytesPerLine(0) + x] = uchar(yuv[0]);
                frame.bits(1)[x / 2] = uchar(yuv[1]);
                frame.bits(2)[x / 2] = uchar(yuv[2]);
                break;
            case QVideoFrameFormat::Format_NV12:
                frame.bits(0)[y * frame.bytesPerLine(0) + x] = uchar(yuv[0]);
                frame.bits(1)[x / 2 * 2] = uchar(yuv[1]);
                frame.bits(1)[x / 2 * 2 + 1] = uchar(yuv[2]);
                break;
            default: { // UYVY
                uchar* pair = frame.bits(0) + y * frame.bytesPerLine(0) + x / 2 * 4;
                pair[0] = uchar(yuv[1]);
                pair[1 + 2 * (x % 2)] = uchar(yuv[0]);
                pair[2] = uchar(yuv[2]);
            }
            }
        }
    }
    frame.unmap();
    return frame;
}

bool near(QRgb pixel, QColor expected)
{
    return qAbs(qRed(pixel) - expected.red()) <= 3 && qAbs(qGreen(pixel) - expected.green()) <= 3
        && qAbs(qBlue(pixel) - expected.blue()) <= 3;
}

} // namespace

class MovieFrameImageTest : public QObject
{
    Q_OBJECT

private slots:
    void framesBecomeImagesOfTheirOwnColours_data();
    void framesBecomeImagesOfTheirOwnColours();
};

void MovieFrameImageTest::framesBecomeImagesOfTheirOwnColours_data()
{
    QTest::addColumn<QVideoFrameFormat::PixelFormat>("format");
    QTest::addColumn<QVideoFrameFormat::ColorRange>("range");
    // Luma and chroma of red and blue in each range (ITU-R BT.601).
    QTest::newRow("planar 4:2:0, full range as the film's JPEG frames")
        << QVideoFrameFormat::Format_YUV420P << QVideoFrameFormat::ColorRange_Full;
    QTest::newRow("planar 4:2:0, video range") << QVideoFrameFormat::Format_YUV420P
                                               << QVideoFrameFormat::ColorRange_Video;
    QTest::newRow("interleaved chroma") << QVideoFrameFormat::Format_NV12 << QVideoFrameFormat::ColorRange_Video;
    QTest::newRow("packed 4:2:2") << QVideoFrameFormat::Format_UYVY << QVideoFrameFormat::ColorRange_Full;
}

void MovieFrameImageTest::framesBecomeImagesOfTheirOwnColours()
{
    QFETCH(QVideoFrameFormat::PixelFormat, format);
    QFETCH(QVideoFrameFormat::ColorRange, range);
    const bool full = range == QVideoFrameFormat::ColorRange_Full;
    const int red[3] = {full ? 76 : 81, full ? 85 : 90, full ? 255 : 240};
    const int blue[3] = {full ? 29 : 41, full ? 255 : 240, full ? 107 : 110};
    const QImage image = MovieFrameImage::fromFrame(twoColourFrame(format, range, red, blue));
    QCOMPARE(image.size(), QSize(4, 2));
    for (const QPoint& p : {QPoint(0, 0), QPoint(1, 1)})
        QVERIFY2(near(image.pixel(p), Qt::red), qPrintable(QColor(image.pixel(p)).name()));
    for (const QPoint& p : {QPoint(2, 0), QPoint(3, 1)})
        QVERIFY2(near(image.pixel(p), Qt::blue), qPrintable(QColor(image.pixel(p)).name()));
}

QTEST_MAIN(MovieFrameImageTest)
#include "tst_movieframeimage.moc"
