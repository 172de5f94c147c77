#include "AviWriter.h"
#include "BalloonFilm.h"
#include "EmblemPictures.h"
#include "VesselPicture.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImage>

#include <cstdio>

namespace {

constexpr int JpegQuality = 80;

bool writeFilm(const QDir& folder)
{
    const BalloonFilm film;
    AviWriter avi(BalloonFilm::Width, BalloonFilm::Height, BalloonFilm::FramesPerSecond);
    for (int i = 0; i < film.frameCount(); ++i) {
        QByteArray jpeg;
        QBuffer buffer(&jpeg);
        buffer.open(QIODevice::WriteOnly);
        if (!film.frame(i).save(&buffer, "JPG", JpegQuality))
            return false;
        avi.addFrame(jpeg);
    }
    return avi.save(folder.filePath("floatrixo.avi"));
}

bool report(bool done, const QDir& folder, const char* name)
{
    std::printf("%s %s\n", done ? "wrote" : "FAILED to write", qPrintable(folder.filePath(name)));
    return done;
}

} // namespace

// Draws the pictures and renders the film into the folder given as the only
// argument (the program's assets/ folder).
int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_assets <assets folder>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    // Page 8 of the introduction shows the flat vessel with its surface at 2100,
    // page 6 the round one with its surface at 2600.
    bool ok = report(VesselPicture::draw(2100, false).save(folder.filePath("pot_t1.bmp"), "BMP"), folder, "pot_t1.bmp");
    ok = report(VesselPicture::draw(2600, true).save(folder.filePath("pot_t2.bmp"), "BMP"), folder, "pot_t2.bmp") && ok;
    ok = report(EmblemPictures::icon(64).save(folder.filePath("floatrix.png"), "PNG"), folder, "floatrix.png") && ok;
    ok = report(EmblemPictures::banner().save(folder.filePath("floatrix_banner.png"), "PNG"), folder, "floatrix_banner.png") && ok;
    ok = report(writeFilm(folder), folder, "floatrixo.avi") && ok;
    return ok ? 0 : 1;
}
