#include "about/ProgramImages.h"
#include "core/ProgramFiles.h"
#include "introduction/PictureFile.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdlib>

// On a screen with two or three device pixels to a pixel (the program started with
// --scale 2, or a high-density desktop) the vessel pictures and the banner are the
// finer drawings made for that resolution, showing the same figure as at the
// ordinary size.

namespace {

// The mean difference of the colour channels of two pictures of one size, out of 255.
double meanDifference(const QImage& a, const QImage& b)
{
    const QImage left = a.convertToFormat(QImage::Format_RGB32);
    const QImage right = b.convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb p = left.pixel(x, y);
            const QRgb q = right.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (3.0 * left.width() * left.height());
}

QImage takenBack(const QImage& fine, QSize ordinary)
{
    return fine.scaled(ordinary, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

class PicturesScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void vesselPicturesAreDrawnFinerNotEnlarged_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("ratio");
        QTest::newRow("flat vessel, double") << "pot_t1" << 2;
        QTest::newRow("round vessel, double") << "pot_t2" << 2;
        QTest::newRow("round vessel, triple") << "pot_t2" << 3;
    }

    void vesselPicturesAreDrawnFinerNotEnlarged()
    {
        QFETCH(QString, name);
        QFETCH(int, ratio);
        const PictureFile file(ProgramFiles::path(name + ".bmp"));
        QCOMPARE(file.status(), PictureFile::Status::Read);
        const QImage shown = file.atPixelRatio(ratio);
        QCOMPARE(shown.size(), file.image().size() * ratio);
        const QImage finer(ProgramFiles::path(QString("%1@%2x.png").arg(name).arg(ratio)));
        QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), finer.convertToFormat(QImage::Format_RGB32));
        // The same figure: taken back to the ordinary size it differs from the
        // ordinary picture only along its smoothed edges.
        QVERIFY(meanDifference(takenBack(shown, file.image().size()), file.image()) < 4);
        QCOMPARE(file.atPixelRatio(1), file.image());
    }

    // A finer drawing that does not match the picture's size belongs to another
    // picture: the picture itself is enlarged instead.
    void aMismatchedFinerDrawingIsLeftAside()
    {
        QTemporaryDir folder;
        const QString plain = folder.filePath("pot_t1.bmp");
        QVERIFY(QFile::copy(ProgramFiles::path("pot_t1.bmp"), plain));
        QImage stranger(10, 10, QImage::Format_RGB32);
        stranger.fill(Qt::red);
        QVERIFY(stranger.save(folder.filePath("pot_t1@2x.png")));
        const PictureFile file(plain);
        const QImage shown = file.atPixelRatio(2);
        QCOMPARE(shown.size(), file.image().size() * 2);
        QVERIFY(meanDifference(takenBack(shown, file.image().size()), file.image()) < 4);
    }

    void theBannerIsTheFinerDrawingOnADoubleScreen()
    {
        QCOMPARE(qApp->devicePixelRatio(), 2.0);
        const QPixmap banner = ProgramImages::banner();
        QCOMPARE(banner.devicePixelRatio(), 2.0);
        QCOMPARE(banner.deviceIndependentSize(), QSizeF(103, 189));
        const QImage ordinary(ProgramFiles::path("floatrix_banner.png"));
        QVERIFY(meanDifference(takenBack(banner.toImage(), ordinary.size()), ordinary) < 4);
    }
};

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    PicturesScaleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictures_scale.moc"
